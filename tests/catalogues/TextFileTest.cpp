// The line reader under every catalogue: line ends, and lines too long for its buffer.
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
