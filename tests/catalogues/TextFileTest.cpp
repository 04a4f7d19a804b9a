// The line reader under every catalogue: line ends, long lines, and files that cannot be
// opened or written.
#include <gtest/gtest.h>

#include "StarIndexTesting.h"

TEST(TextFile, ReadsLinesWithoutTheirEndsAndALongLineGoesOnAsTheNext)
{
    ScratchDirectory dir;
    std::string longLine(2500, 'x');
    longLine[1999] = 'y';
    std::unique_ptr<TextFile> file = dir.Open("a.txt", "first\r\n\n" + longLine + "\nlast");
    EXPECT_STREQ(file->GetNextLine(), "first");
    EXPECT_STREQ(file->GetNextLine(), "");
    // 1999 characters, then the rest as the next line; the line number counts both.
    EXPECT_EQ(std::string(file->GetNextLine()), std::string(1999, 'x'));
    EXPECT_EQ(std::string(file->GetNextLine()), "y" + std::string(500, 'x'));
    EXPECT_STREQ(file->GetNextLine(), "last");
    EXPECT_EQ(file->GetLineNumber(), 5);
    EXPECT_EQ(file->GetNextLine(), nullptr);
}

TEST(TextFile, FailuresAreReportedWithThePathAndReadAsTheEnd)
{
    ScratchDirectory dir;
    MessageCapture messages;
    TextFile file;
    EXPECT_FALSE(file.OpenForReading(nullptr));
    EXPECT_EQ(messages.Messages, "");
    const std::string missing = dir.File("missing.txt");
    EXPECT_FALSE(file.OpenForReading(missing.c_str()));
    EXPECT_EQ(messages.Messages, "Could not open file: " + missing + "\r\n");
    EXPECT_EQ(file.GetNextLine(), nullptr);
    EXPECT_FALSE(file.WriteChar('x'));
    EXPECT_TRUE(messages.Contains("Attempt to write 1 char to file failed. On file: " + missing));
}
