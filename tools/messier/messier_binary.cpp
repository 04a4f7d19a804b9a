// Turns the Messier text catalogue into its binary file, through the planetarium's own reading
// and writing, and reads the file back: the same numbers, magnitudes and positions, in the same
// order. It also checks what the planetarium relies on in the text: objects 1 to 110, each on
// the line of its number, each with words for its class.
//
//   messier_binary TEXT BINARY
#include <cstdio>
#include <string>

#include "catalogues/MessierCatalogue.h"
#include "catalogues/TextFile.h"

namespace {

// Messier's list runs to 110 with the later additions.
constexpr unsigned kObjects = 110;

bool SameObjects(const MessierCatalogue& text, const MessierCatalogue& binary)
{
    if (text.GetCount() != binary.GetCount()) {
        return false;
    }
    for (unsigned n = 1; n <= text.GetCount(); ++n) {
        const Messier& a = *text.GetObject(n);
        const Messier& b = *binary.GetObject(n);
        if (a.GetNumber() != b.GetNumber() || a.GetMagnitude() != b.GetMagnitude() ||
            !(a.GetPosition() == b.GetPosition())) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: messier_binary TEXT BINARY\n");
        return 2;
    }
    const std::string textName = argv[1];
    const std::string binaryName = argv[2];

    TextFile text;
    if (!text.OpenForReading(textName.c_str())) {
        std::fprintf(stderr, "messier_binary: cannot read %s\n", textName.c_str());
        return 1;
    }
    MessierCatalogue catalogue;
    if (!catalogue.Load(text)) {
        std::fprintf(stderr, "messier_binary: line %ld of %s is not a Messier object\n",
                     text.GetLineNumber(), textName.c_str());
        return 1;
    }
    if (catalogue.GetCount() != kObjects) {
        std::fprintf(stderr, "messier_binary: %s holds %zu objects, not %u\n", textName.c_str(),
                     catalogue.GetCount(), kObjects);
        return 1;
    }
    unsigned named = 0;
    for (unsigned n = 1; n <= kObjects; ++n) {
        const Messier& object = *catalogue.GetObject(n);
        if (object.GetNumber() != n || object.GetTypeName().empty()) {
            std::fprintf(stderr, "messier_binary: line %u of %s is %s, class \"%s\"\n", n,
                         textName.c_str(), object.GetCodeName().c_str(),
                         object.GetTypeName().c_str());
            return 1;
        }
        named += object.GetCommonName().empty() ? 0 : 1;
    }
    if (!catalogue.Dump(binaryName)) {
        std::fprintf(stderr, "messier_binary: cannot write %s\n", binaryName.c_str());
        return 1;
    }

    MessierCatalogue written;
    if (!written.Load(binaryName) || !SameObjects(catalogue, written)) {
        std::fprintf(stderr, "messier_binary: %s does not read back as the text\n",
                     binaryName.c_str());
        return 1;
    }
    std::printf("%s: %zu objects (%u named), faintest %.2f\n", binaryName.c_str(),
                written.GetCount(), named, written.GetMaxMagnitude());
    return 0;
}
