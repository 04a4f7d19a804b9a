// Saving surfaces as PNG and comparing them with golden pictures, as the picture tests of every
// subsystem do.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <unistd.h>

#include "platform/ImageCompare.h"
#include "platform/PngFile.h"
#include "platform/Surface.h"

namespace {

class GoldenPicture : public ::testing::Test
{
protected:
    GoldenPicture()
    {
        // Tests may run at the same time in separate processes: each gets its own folder.
        const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
        Dir = std::filesystem::temp_directory_path() /
              ("orbiscope-golden-test-" + std::to_string(getpid()) + "-" + test->name());
        std::filesystem::create_directories(Dir);
        unsetenv("ORBISCOPE_UPDATE_GOLDEN");
    }
    ~GoldenPicture() override { std::filesystem::remove_all(Dir); }

    std::string PathOf(const char* name) const { return (Dir / name).string(); }

    std::filesystem::path Dir;
};

TEST_F(GoldenPicture, PalettePngKeepsIndexesAndColoursExactly)
{
    Surface s(7, 3, PixelFormat::Indexed8, true);
    for (int x = 0; x < 7; ++x) {
        s.SetValue(x, x % 3, std::uint32_t(30 * x + 5));
    }
    ASSERT_TRUE(SaveSurfaceAsPng(s, PathOf("indexed.png")));
    PngImage image;
    ASSERT_TRUE(ReadPngFile(PathOf("indexed.png"), image));
    EXPECT_TRUE(image.bIndexed);
    EXPECT_EQ(image.Width, 7);
    EXPECT_EQ(image.Height, 3);
    EXPECT_EQ(image.Palette, s.ColorTable());
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 7; ++x) {
            EXPECT_EQ(image.Pixels[std::size_t(y * 7 + x)], s.ValueAt(x, y)) << x << ", " << y;
        }
    }
}

// The colours are compared, not the values: an 8-bit picture matches its golden only while the
// palette gives the same colours, and matches the same picture in 32 bits.
TEST_F(GoldenPicture, SamePictureMatchesAcrossFormats)
{
    Surface indexed(5, 4, PixelFormat::Indexed8);
    indexed.SetValue(2, 2, 12); // blue in the host palette
    SaveSurfaceAsPng(indexed, PathOf("golden.png"));
    EXPECT_TRUE(CompareWithPng(indexed, PathOf("golden.png")).bMatch);
    Surface rgb(5, 4, PixelFormat::Rgb32);
    rgb.SetValue(2, 2, Surface::RgbToValue(RGB(0, 0, 255)));
    EXPECT_TRUE(CompareWithPng(rgb, PathOf("golden.png")).bMatch);
    rgb.SetValue(2, 2, Surface::RgbToValue(RGB(12, 12, 12)));
    EXPECT_FALSE(CompareWithPng(rgb, PathOf("golden.png")).bMatch);
}

TEST_F(GoldenPicture, DifferenceIsLocatedAndDrawn)
{
    Surface s(40, 30, PixelFormat::Rgb32);
    SaveSurfaceAsPng(s, PathOf("black.png"));
    s.SetValue(3, 4, Surface::RgbToValue(RGB(255, 255, 255)));
    s.SetValue(10, 20, Surface::RgbToValue(RGB(9, 9, 9)));

    ImageComparison result = CompareWithPng(s, PathOf("black.png"), PathOf("black-diff.png"));
    EXPECT_FALSE(result.bMatch);
    EXPECT_EQ(result.nDifferent, 2);
    EXPECT_NE(result.Message.find("(3, 4)"), std::string::npos) << result.Message;
    EXPECT_NE(result.Message.find("rgb(255, 255, 255) instead of rgb(0, 0, 0)"), std::string::npos)
        << result.Message;
    EXPECT_NE(result.Message.find("(3, 4) to (11, 21)"), std::string::npos) << result.Message;
    EXPECT_EQ(result.DiffPath, PathOf("black-diff.png"));

    // Expected, actual and differences, each enlarged six times (256 / 40).
    PngImage diff;
    ASSERT_TRUE(ReadPngFile(result.DiffPath, diff));
    EXPECT_EQ(diff.Height, 30 * 6);
    EXPECT_EQ(diff.Width, 3 * 40 * 6 + 2 * 4);
    auto at = [&](int x, int y) {
        const BYTE* p =
            diff.Pixels.data() + 3 * (std::size_t(y) * std::size_t(diff.Width) + std::size_t(x));
        return RGB(p[0], p[1], p[2]);
    };
    int differences = 2 * (40 * 6 + 4);
    EXPECT_EQ(at(differences + 3 * 6, 4 * 6), RGB(255, 0, 0));
    EXPECT_NE(at(differences, 0), RGB(255, 0, 0));
    EXPECT_EQ(at(40 * 6 + 4 + 3 * 6 + 5, 4 * 6 + 5), RGB(255, 255, 255)) << "the actual panel";
}

TEST_F(GoldenPicture, MissingGoldenOrOtherSizeFails)
{
    Surface s(4, 4, PixelFormat::Indexed8);
    ImageComparison missing = CompareWithPng(s, PathOf("none.png"));
    EXPECT_FALSE(missing.bMatch);
    EXPECT_NE(missing.Message.find("ORBISCOPE_UPDATE_GOLDEN"), std::string::npos);

    Surface other(4, 5, PixelFormat::Indexed8);
    SaveSurfaceAsPng(other, PathOf("other.png"));
    ImageComparison sized = CompareWithPng(s, PathOf("other.png"), PathOf("other-diff.png"));
    EXPECT_FALSE(sized.bMatch);
    EXPECT_NE(sized.Message.find("size differs"), std::string::npos) << sized.Message;
}

TEST(PngFile, RefusesWhatIsNoPng)
{
    PngImage image;
    const BYTE junk[] = {0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0};
    EXPECT_FALSE(ReadPng(junk, sizeof junk, image)) << "a signature alone";
    EXPECT_FALSE(ReadPng(junk, 3, image));
    EXPECT_FALSE(ReadPng(nullptr, 0, image));
    EXPECT_FALSE(ReadPngFile("/nonexistent/orbiscope.png", image));
    EXPECT_FALSE(WritePngFile("/nonexistent/dir/out.png",
                              ImageOfSurface(Surface(1, 1, PixelFormat::Rgb32))));
    PngImage empty;
    EXPECT_FALSE(WritePngFile("/nonexistent/empty.png", empty)) << "refused before any file";
}

TEST(PngFile, TruncatedPictureIsRefused)
{
    std::string path =
        (std::filesystem::temp_directory_path() / "orbiscope-truncated.png").string();
    Surface s(16, 16, PixelFormat::Rgb32);
    for (int i = 0; i < 16; ++i) {
        s.SetValue(i, i, std::uint32_t(i * 0x10203));
    }
    ASSERT_TRUE(SaveSurfaceAsPng(s, path));
    std::FILE* file = std::fopen(path.c_str(), "rb");
    std::vector<BYTE> bytes(4096);
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
    std::fclose(file);
    std::remove(path.c_str());
    PngImage image;
    ASSERT_TRUE(ReadPng(bytes.data(), bytes.size(), image));
    EXPECT_FALSE(ReadPng(bytes.data(), bytes.size() / 2, image));
}

} // namespace
