#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "host/HostFile.h"

namespace {

// Points the logical data directory at a temporary tree for one test.
class HostFileTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Dir = std::filesystem::temp_directory_path() /
              ("hostfile-" + std::to_string(::getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::create_directories(Dir / "Sub");
        std::ofstream(Dir / "strings.txt") << "x";
        std::ofstream(Dir / "Sub" / "Stars.Bin") << "y";
        const char* old = std::getenv("ORBISCOPE_DATA");
        OldData = old ? old : "";
        ::setenv("ORBISCOPE_DATA", Dir.c_str(), 1);
    }
    void TearDown() override
    {
        if (OldData.empty()) {
            ::unsetenv("ORBISCOPE_DATA");
        } else {
            ::setenv("ORBISCOPE_DATA", OldData.c_str(), 1);
        }
        std::filesystem::remove_all(Dir);
    }
    std::string Resolved(std::string path)
    {
        HostFile::ResolvePath(path, true, false);
        return path;
    }

    std::filesystem::path Dir;
    std::string OldData;
};

} // namespace

TEST_F(HostFileTest, LogicalPrefixesPointAtTheDataDirectoryWhateverTheCase)
{
    EXPECT_EQ(Resolved("ed:\\STRINGS.TXT"), (Dir / "strings.txt").string());
    EXPECT_EQ(Resolved("ED:\\sub\\stars.bin"), (Dir / "Sub" / "Stars.Bin").string());
    EXPECT_EQ(Resolved("cd:\\win32\\Strings.txt"), (Dir / "strings.txt").string());
}

TEST_F(HostFileTest, MissingNamesStayAsGivenWithSlashes)
{
    EXPECT_EQ(Resolved("ed:\\new\\File.txt"), (Dir / "new" / "File.txt").string());
    EXPECT_EQ(Resolved((Dir / "SUB" / "none.txt").string()), (Dir / "Sub" / "none.txt").string());
}

TEST_F(HostFileTest, ReadsWritesAndSeeksByteExact)
{
    std::string path = (Dir / "bytes.bin").string();
    const unsigned char data[] = {0, 1, 0xFF, '\n', '\r', 7};
    {
        HostFile out(path, HostFile::WriteNew);
        ASSERT_TRUE(out.IsOpen());
        EXPECT_EQ(out.Write(data, sizeof data), sizeof data);
    }
    HostFile in(path, HostFile::ReadOnly);
    ASSERT_TRUE(in.IsOpen());
    EXPECT_EQ(in.Length(), 6);
    ASSERT_TRUE(in.Seek(2));
    unsigned char buffer[8] = {};
    EXPECT_EQ(in.Read(buffer, sizeof buffer), 4u);
    EXPECT_EQ(buffer[0], 0xFF);
    EXPECT_EQ(buffer[3], 7);
    EXPECT_EQ(in.Tell(), 6);
}

TEST_F(HostFileTest, NumbersGoInTheFilesByteOrderAndAShortReadFails)
{
    std::string path = (Dir / "numbers.bin").string();
    {
        HostFile out(path, HostFile::WriteNew);
        EXPECT_TRUE(out.WriteInt32(-2));
        EXPECT_TRUE(out.WriteDouble(101.287));
        EXPECT_EQ(out.Write("\x01\x02", 2), 2u);
    }
    HostFile in(path, HostFile::ReadOnly);
    EXPECT_EQ(in.Length(), 14);
    unsigned char first[4] = {};
    ASSERT_EQ(in.Read(first, 4), 4u);
    EXPECT_EQ(first[0], 0xFE);
    EXPECT_EQ(first[3], 0xFF);
    ASSERT_TRUE(in.Seek(0));
    std::int32_t whole = 0;
    double place = 0.0;
    EXPECT_TRUE(in.ReadInt32(whole));
    EXPECT_EQ(whole, -2);
    EXPECT_TRUE(in.ReadDouble(place));
    EXPECT_EQ(place, 101.287);
    EXPECT_FALSE(in.ReadInt32(whole)) << "two bytes are left, not four";
}

TEST_F(HostFileTest, ClosedFileAnswersQuietly)
{
    HostFile file;
    EXPECT_FALSE(file.Open((Dir / "absent.bin").string(), HostFile::ReadOnly));
    char c;
    EXPECT_EQ(file.Read(&c, 1), 0u);
    EXPECT_EQ(file.Write(&c, 1), 0u);
    EXPECT_FALSE(file.Seek(0));
    EXPECT_EQ(file.Tell(), -1);
}
