#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <unistd.h>
#include <vector>

#include "catalogues/TextFile.h"
#include "platform/DebugStream.h"

namespace {

class TextFileTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Dir = std::filesystem::temp_directory_path() /
              ("textfile-" + std::to_string(::getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::create_directories(Dir);
        Previous = SetDebugSink([this](const char* text) { Messages.emplace_back(text); });
    }
    void TearDown() override
    {
        SetDebugSink(Previous);
        std::filesystem::remove_all(Dir);
    }
    std::string Write(const std::string& name, const std::string& content)
    {
        std::string path = (Dir / name).string();
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

    std::filesystem::path Dir;
    std::vector<std::string> Messages;
    DebugSink Previous;
};

} // namespace

TEST_F(TextFileTest, ReadsLinesWithoutTheirEndsAndCountsThem)
{
    std::string path = Write("a.txt", "first\nsecond\r\n\nlast");
    TextFile file;
    ASSERT_TRUE(file.OpenForReading(path.c_str()));
    EXPECT_STREQ(file.GetNextLine(), "first");
    EXPECT_STREQ(file.GetNextLine(), "second");
    EXPECT_STREQ(file.GetNextLine(), "");
    EXPECT_STREQ(file.GetCurrentLine(), "");
    EXPECT_STREQ(file.GetNextLine(), "last");
    EXPECT_EQ(file.GetLineNumber(), 4);
    EXPECT_EQ(file.GetNextLine(), nullptr);
}

TEST_F(TextFileTest, LongLineGoesOnAsTheNextLine)
{
    std::string longLine(2500, 'x');
    longLine[1999] = 'y';
    std::string path = Write("long.txt", longLine + "\nend\n");
    TextFile file;
    ASSERT_TRUE(file.OpenForReading(path.c_str()));
    const char* first = file.GetNextLine();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(std::string(first).size(), 1999u);
    const char* second = file.GetNextLine();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second[0], 'y');
    EXPECT_EQ(std::string(second).size(), 501u);
    EXPECT_STREQ(file.GetNextLine(), "end");
    EXPECT_EQ(file.GetLineNumber(), 3);
}

TEST_F(TextFileTest, SkipBlankLinesStopsAtContentOrEnd)
{
    std::string path = Write("blank.txt", "   \n\n  x \n");
    TextFile file;
    ASSERT_TRUE(file.OpenForReading(path.c_str()));
    EXPECT_TRUE(file.SkipBlankLines());
    EXPECT_STREQ(file.GetCurrentLine(), "  x ");
    EXPECT_EQ(file.GetLineNumber(), 3);
    file.GetNextLine();
    EXPECT_FALSE(file.SkipBlankLines());
}

TEST_F(TextFileTest, RewindStartsAgain)
{
    std::string path = Write("r.txt", "one\ntwo\n");
    TextFile file;
    ASSERT_TRUE(file.OpenForReading(path.c_str()));
    file.GetNextLine();
    file.GetNextLine();
    EXPECT_TRUE(file.Rewind());
    EXPECT_STREQ(file.GetCurrentLine(), "one");
    EXPECT_EQ(file.GetLineNumber(), 1);
}

TEST_F(TextFileTest, WritesAndAppendsBytes)
{
    std::string path = (Dir / "w.txt").string();
    {
        TextFile file;
        ASSERT_TRUE(file.OpenForWriting(path.c_str()));
        EXPECT_TRUE(file.Write("abc\n"));
        EXPECT_TRUE(file.Write("defgh", 2));
        EXPECT_TRUE(file.WriteChar('\n'));
    }
    {
        TextFile file;
        ASSERT_TRUE(file.OpenForAppending(path.c_str()));
        EXPECT_TRUE(file.Write("z"));
    }
    std::ifstream in(path, std::ios::binary);
    std::string all((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    EXPECT_EQ(all, "abc\nde\nz");
}

TEST_F(TextFileTest, DirectoryIsJoinedBeforeTheName)
{
    Write("joined.txt", "ok\n");
    std::string dir = Dir.string() + "/";
    TextFile file;
    ASSERT_TRUE(file.OpenForReading("joined.txt", dir.c_str()));
    EXPECT_STREQ(file.GetNextLine(), "ok");
}

TEST_F(TextFileTest, FailuresAreReportedOnTheDiagnosticStream)
{
    TextFile file;
    EXPECT_FALSE(file.OpenForReading(nullptr));
    EXPECT_TRUE(Messages.empty());

    std::string missing = (Dir / "missing.txt").string();
    EXPECT_FALSE(file.OpenForReading(missing.c_str()));
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_EQ(Messages[0], "Could not open file: " + missing + "\r\n");
    EXPECT_EQ(file.GetNextLine(), nullptr);
    EXPECT_FALSE(file.SkipBlankLines());

    EXPECT_FALSE(file.WriteChar('x'));
    EXPECT_EQ(Messages.back(),
              "Attempt to write 1 char to file failed. On file: " + missing + "\r\n");
}
