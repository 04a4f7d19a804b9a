// orbiscope: the reference host of the planetarium component.
#include <cstdio>
#include <cstring>

namespace {

void PrintUsage()
{
    std::printf("orbiscope %s - an interactive sky map\n\n"
                "usage:\n"
                "  orbiscope --version   print the version\n"
                "  orbiscope --help      print this text\n",
                ORBISCOPE_VERSION);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--version") == 0) {
        std::printf("orbiscope %s\n", ORBISCOPE_VERSION);
        return 0;
    }
    PrintUsage();
    return 0;
}
