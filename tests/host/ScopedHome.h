#pragma once
// A fresh user configuration directory for one test: ORBISCOPE_HOME points at a new
// temporary directory while the object lives, and both are gone afterwards.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <unistd.h>

class ScopedHome
{
public:
    ScopedHome()
    {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "orbiscope-home-XXXXXX").string();
        Directory = ::mkdtemp(pattern.data()) ? pattern : pattern + "-unmade";
        if (const char* before = std::getenv("ORBISCOPE_HOME")) {
            Before = before;
        }
        ::setenv("ORBISCOPE_HOME", Directory.c_str(), 1);
    }
    ~ScopedHome()
    {
        Before ? ::setenv("ORBISCOPE_HOME", Before->c_str(), 1) : ::unsetenv("ORBISCOPE_HOME");
        std::error_code ignored;
        std::filesystem::remove_all(Directory, ignored);
    }
    ScopedHome(const ScopedHome&) = delete;
    ScopedHome& operator=(const ScopedHome&) = delete;

    const std::string& Path() const { return Directory; }
    std::string File(const std::string& name) const { return Directory + "/" + name; }
    void WriteFile(const std::string& name, const std::string& text) const
    {
        std::ofstream(File(name), std::ios::binary) << text;
    }
    std::string ReadFile(const std::string& name) const
    {
        std::ifstream in(File(name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

private:
    std::string Directory;
    std::optional<std::string> Before;
};
