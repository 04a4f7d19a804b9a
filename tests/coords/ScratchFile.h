#pragma once
// A file of its own for one test, under the test temporary directory, removed afterwards.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

class ScratchFile
{
public:
    ScratchFile()
    {
        static int count = 0;
        Path = testing::TempDir() + "coords_" + std::to_string(::getpid()) + "_" +
               testing::UnitTest::GetInstance()->current_test_info()->name() + "_" +
               std::to_string(count++) + ".bin";
    }
    ~ScratchFile() { std::remove(Path.c_str()); }

    const std::string& GetPath() const { return Path; }

    std::vector<unsigned char> Bytes() const
    {
        std::ifstream in(Path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

    void WriteBytes(const std::vector<unsigned char>& bytes) const
    {
        std::ofstream(Path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
    }

private:
    std::string Path;
};
