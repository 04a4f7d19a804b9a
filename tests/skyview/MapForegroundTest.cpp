// The foreground: a picture and a mask that each paint merges over the finished sky, pixel
// for pixel, stretched to the window; what a missing or unreadable file does; and a resize.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "MapFixture.h"
#include "host/ScopedHome.h"
#include "platform/DebugStream.h"
#include "platform/PngFile.h"
#include "platform/TBitmap.h"

namespace {

// The pictures are 8 by 4 and the map 16 by 8: each picture pixel covers 2 by 2 of the map.
constexpr int kMapWidth = 16;
constexpr int kMapHeight = 8;
constexpr int kPictureWidth = 8;
constexpr int kPictureHeight = 4;

// The landscape: named colours of the host palette in a pattern.
COLORREF ForegroundColor(int x, int y)
{
    const PALETTEENTRY& e = kHostPaletteEntries[1 + (x + 3 * y) % 16];
    return RGB(e.peRed, e.peGreen, e.peBlue);
}

// White lets the sky through, black shows the landscape.
bool MaskIsWhite(int x, int y)
{
    return (x + y) % 3 != 0;
}

// A sky of many palette indexes, so that the merge has something to keep and to clear.
unsigned SkyIndex(int x, int y)
{
    return unsigned(7 * x + 13 * y + 5) % 256;
}

void WritePicture(const std::string& path, const std::function<COLORREF(int, int)>& colour)
{
    Surface picture(kPictureWidth, kPictureHeight, PixelFormat::Rgb32);
    for (int y = 0; y < kPictureHeight; ++y) {
        for (int x = 0; x < kPictureWidth; ++x) {
            picture.SetValue(x, y, Surface::RgbToValue(colour(x, y)));
        }
    }
    ASSERT_TRUE(SaveSurfaceAsPng(picture, path));
}

// ORBISCOPE_DATA, which the host's "ed:\" prefix stands for, set for a while.
class ScopedDataDirectory
{
public:
    explicit ScopedDataDirectory(const std::string& dir)
    {
        const char* before = std::getenv("ORBISCOPE_DATA");
        bHad = before != nullptr;
        Before = before ? before : "";
        ::setenv("ORBISCOPE_DATA", dir.c_str(), 1);
    }
    ~ScopedDataDirectory()
    {
        if (bHad) {
            ::setenv("ORBISCOPE_DATA", Before.c_str(), 1);
        } else {
            ::unsetenv("ORBISCOPE_DATA");
        }
    }

private:
    bool bHad = false;
    std::string Before;
};

class MapForegroundTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        Told = SetDebugSink([this](const char* text) { Messages.push_back(text); });
        WritePicture(Dir.File("landscape.png"), ForegroundColor);
        WritePicture(Dir.File("mask.png"), [](int x, int y) {
            return MaskIsWhite(x, y) ? RGB(255, 255, 255) : RGB(0, 0, 0);
        });
    }
    void TearDown() override
    {
        SetDebugSink(Told);
        MapTest::TearDown();
    }

    // A map that draws nothing more until told (grid and status line done), its bitmap filled
    // with the sky pattern.
    MapWindow& OpenQuiet()
    {
        MapWindow& map = Open(kMapWidth, kMapHeight);
        map.SetGridInfo(ShownGrid());
        Pump();
        EXPECT_FALSE(map.IsAnythingDirty());
        PaintSky();
        return map;
    }
    void PaintSky()
    {
        for (int y = 0; y < kMapHeight; ++y) {
            for (int x = 0; x < kMapWidth; ++x) {
                Bitmap().SetValue(x, y, SkyIndex(x, y));
            }
        }
    }
    bool BitmapIsSky()
    {
        for (int y = 0; y < kMapHeight; ++y) {
            for (int x = 0; x < kMapWidth; ++x) {
                if (Bitmap().ValueAt(x, y) != SkyIndex(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }
    // The index the merge must leave at (x, y).
    static unsigned Merged(int x, int y)
    {
        const int px = x / 2;
        const int py = y / 2;
        return MaskIsWhite(px, py) ? SkyIndex(x, y)
                                   : HostPalette().GetNearestPaletteIndex(ForegroundColor(px, py));
    }
    int CountTold(const std::string& word) const
    {
        int n = 0;
        for (const std::string& m : Messages) {
            n += m.find("Foreground") != std::string::npos && m.find(word) != std::string::npos;
        }
        return n;
    }

    ScopedHome Dir;
    std::vector<std::string> Messages;
    DebugSink Told;
};

} // namespace

TEST_F(MapForegroundTest, ThePictureShowsWhereTheMaskIsBlackAndTheSkyWhereItIsWhite)
{
    MapWindow& map = OpenQuiet();
    // Through the host's logical prefix, in names of any case.
    ScopedDataDirectory data(Dir.Path());
    map.SetForegroundBitmap("ed:\\LANDSCAPE.PNG", "ed:\\Mask.png");
    EXPECT_TRUE(map.IsUsingForeground());
    EXPECT_EQ(map.GetForegroundBitmap(), nullptr) << "built at the next paint";
    EXPECT_TRUE(BitmapIsSky()) << "setting it paints nothing";

    Repaint();
    ASSERT_NE(map.GetForegroundBitmap(), nullptr);
    ASSERT_NE(map.GetMaskBitmap(), nullptr);
    EXPECT_EQ(map.GetForegroundBitmap()->Size(), TSize(kMapWidth, kMapHeight)) << "stretched";
    EXPECT_EQ(map.GetMaskBitmap()->Size(), TSize(kMapWidth, kMapHeight));
    std::unique_ptr<Surface> screen = Screen();
    for (int y = 0; y < kMapHeight; ++y) {
        for (int x = 0; x < kMapWidth; ++x) {
            ASSERT_EQ(Bitmap().ValueAt(x, y), Merged(x, y)) << x << " " << y;
            ASSERT_EQ(screen->ColorAt(x, y), Bitmap().ColorAt(x, y)) << x << " " << y;
        }
    }

    // Merging again over the merged picture changes nothing.
    Repaint();
    for (int y = 0; y < kMapHeight; ++y) {
        for (int x = 0; x < kMapWidth; ++x) {
            ASSERT_EQ(Bitmap().ValueAt(x, y), Merged(x, y)) << x << " " << y;
        }
    }
    EXPECT_EQ(CountTold(""), 0);

    // Dropping the built pictures keeps the setting: the next paint builds them again.
    map.DeleteForegroundBitmap();
    EXPECT_EQ(map.GetForegroundBitmap(), nullptr);
    EXPECT_TRUE(map.IsUsingForeground());
    PaintSky();
    Repaint();
    EXPECT_NE(map.GetForegroundBitmap(), nullptr);
    EXPECT_EQ(Bitmap().ValueAt(0, 0), Merged(0, 0));
}

TEST_F(MapForegroundTest, AMissingPictureIsLookedForAtEachPaintAndToldOnce)
{
    MapWindow& map = OpenQuiet();
    map.SetForegroundBitmap(Dir.File("later.png"), Dir.File("mask.png"));
    Repaint();
    Repaint();
    EXPECT_TRUE(BitmapIsSky());
    EXPECT_TRUE(map.IsUsingForeground()) << "still looked for";
    EXPECT_EQ(map.GetForegroundBitmap(), nullptr);
    EXPECT_EQ(CountTold("later.png"), 1);

    WritePicture(Dir.File("later.png"), ForegroundColor);
    Repaint();
    ASSERT_NE(map.GetForegroundBitmap(), nullptr);
    EXPECT_EQ(Bitmap().ValueAt(0, 0), Merged(0, 0));
    EXPECT_EQ(Bitmap().ValueAt(2, 0), Merged(2, 0));
}

TEST_F(MapForegroundTest, APictureThatCannotBeReadTurnsTheOverlayOff)
{
    MapWindow& map = OpenQuiet();
    Dir.WriteFile("broken.png", "not a picture at all");
    map.SetForegroundBitmap(Dir.File("broken.png"), Dir.File("mask.png"));
    Repaint();
    EXPECT_FALSE(map.IsUsingForeground());
    EXPECT_EQ(map.GetForegroundBitmap(), nullptr);
    EXPECT_TRUE(BitmapIsSky());
    EXPECT_EQ(CountTold("broken.png"), 1);

    // Off means no more attempts.
    Repaint();
    EXPECT_EQ(CountTold("broken.png"), 1);
    EXPECT_TRUE(BitmapIsSky());
}

TEST_F(MapForegroundTest, WithoutAPictureFileTheMergeTurnsTheOverlayOff)
{
    MapWindow& map = OpenQuiet();
    map.SetMaskBitmap(Dir.File("mask.png"));
    EXPECT_TRUE(map.IsUsingForeground());
    Repaint();
    EXPECT_FALSE(map.IsUsingForeground());
    EXPECT_TRUE(BitmapIsSky());
}

TEST_F(MapForegroundTest, WithoutAUsableMaskTheSkyStaysWhole)
{
    MapWindow& map = OpenQuiet();
    // A mask still to come: looked for again, like the picture.
    map.SetForegroundBitmap(Dir.File("landscape.png"), Dir.File("nomask.png"));
    Repaint();
    EXPECT_TRUE(BitmapIsSky());
    EXPECT_TRUE(map.IsUsingForeground());
    EXPECT_EQ(map.GetForegroundBitmap(), nullptr) << "no half-built overlay";
    EXPECT_EQ(CountTold("nomask.png"), 1);

    // A mask that cannot be read, or none named at all: off.
    Dir.WriteFile("badmask.png", "garbage");
    map.SetForegroundBitmap(Dir.File("landscape.png"), Dir.File("badmask.png"));
    Repaint();
    EXPECT_FALSE(map.IsUsingForeground());
    EXPECT_TRUE(BitmapIsSky());
    map.SetForegroundBitmap(Dir.File("landscape.png"), "");
    Repaint();
    EXPECT_FALSE(map.IsUsingForeground());
    EXPECT_TRUE(BitmapIsSky());

    // The next good setting is told its own problems again, and works.
    map.SetMaskBitmap(Dir.File("mask.png"));
    Repaint();
    EXPECT_TRUE(map.IsUsingForeground());
    EXPECT_EQ(Bitmap().ValueAt(0, 0), Merged(0, 0));
}

TEST_F(MapForegroundTest, AResizeBuildsThePicturesAgainAtTheNewSize)
{
    MapWindow& map = OpenQuiet();
    map.SetForegroundBitmap(Dir.File("landscape.png"), Dir.File("mask.png"));
    Repaint();
    ASSERT_NE(map.GetForegroundBitmap(), nullptr);

    map.MoveWindow(0, 0, 32, 12);
    EXPECT_EQ(map.GetForegroundBitmap(), nullptr);
    EXPECT_EQ(map.GetMaskBitmap(), nullptr);
    EXPECT_TRUE(map.IsUsingForeground());
    Pump();
    ASSERT_NE(map.GetForegroundBitmap(), nullptr);
    EXPECT_EQ(map.GetForegroundBitmap()->Size(), TSize(32, 12));
    // The top-left landscape pixel, where the mask is black, now covers 4 by 3 of the map.
    const unsigned corner = HostPalette().GetNearestPaletteIndex(ForegroundColor(0, 0));
    EXPECT_EQ(Bitmap().ValueAt(0, 0), corner);
    EXPECT_EQ(Bitmap().ValueAt(3, 2), corner);
}
