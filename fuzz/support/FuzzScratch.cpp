#include "FuzzScratch.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

#include <unistd.h>

FuzzScratch::FuzzScratch(const std::string& target)
{
    const char* dir = std::getenv("TMPDIR");
    std::string pattern = std::string(dir != nullptr && *dir != '\0' ? dir : "/tmp") +
                          "/orbiscope-fuzz-" + target + "-XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    if (::mkdtemp(name.data()) != nullptr) {
        Folder = name.data();
    }
}

FuzzScratch::~FuzzScratch()
{
    if (IsReady()) {
        std::error_code ignored;
        std::filesystem::remove_all(Folder, ignored);
    }
}

std::string FuzzScratch::Path(const std::string& name) const
{
    return Folder + "/" + name;
}

bool FuzzScratch::Write(const std::string& name, const std::string& bytes) const
{
    if (!IsReady()) {
        return false;
    }
    std::FILE* file = std::fopen(Path(name).c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && written;
}

void FuzzScratch::Empty() const
{
    if (!IsReady()) {
        return;
    }
    std::error_code error;
    for (std::filesystem::directory_iterator entry(Folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        std::filesystem::remove_all(entry->path(), ignored);
    }
}
