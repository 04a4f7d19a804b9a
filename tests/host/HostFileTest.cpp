#include <gtest/gtest.h>

#include <filesystem>

#include "host/HostFile.h"
#include "host/ScopedHome.h"

TEST(HostFile, LogicalPathsFindTheDataFilesWhateverTheCase)
{
    const ScopedHome data;
    std::filesystem::create_directories(data.File("Sub"));
    data.WriteFile("Sub/Stars.Bin", "y");
    const std::string before = HostFile::DataDirectory();
    ::setenv("ORBISCOPE_DATA", data.Path().c_str(), 1);
    for (const auto& [logical, real] : {std::pair("ED:\\sub\\stars.bin", "Sub/Stars.Bin"),
                                        {"cd:\\win32\\SUB\\stars.BIN", "Sub/Stars.Bin"}}) {
        std::string path = logical;
        HostFile::ResolvePath(path);
        EXPECT_EQ(path, data.File(real)) << logical;
    }
    ::setenv("ORBISCOPE_DATA", before.c_str(), 1);
}

TEST(HostFile, NumbersGoLowByteFirstAndShortReadsAndClosedFilesFailQuietly)
{
    const ScopedHome home;
    const std::string path = home.File("numbers.bin");
    {
        HostFile out(path, HostFile::WriteNew);
        EXPECT_TRUE(out.WriteInt32(-2) && out.WriteDouble(1.0));
        EXPECT_EQ(out.Write("\x01\x02", 2), 2u);
    }
    EXPECT_EQ(home.ReadFile("numbers.bin"),
              std::string("\xFE\xFF\xFF\xFF\0\0\0\0\0\0\xF0\x3F\x01\x02", 14));
    HostFile in(path, HostFile::ReadOnly);
    std::int32_t whole = 0;
    double place = 0.0;
    EXPECT_TRUE(in.ReadInt32(whole) && in.ReadDouble(place));
    EXPECT_EQ(whole, -2);
    EXPECT_EQ(place, 1.0);
    EXPECT_FALSE(in.ReadInt32(whole)) << "two bytes are left, not four";
    HostFile closed(home.File("absent.bin"), HostFile::ReadOnly);
    EXPECT_FALSE(closed.IsOpen() || closed.Seek(0) || closed.ReadInt32(whole));
}
