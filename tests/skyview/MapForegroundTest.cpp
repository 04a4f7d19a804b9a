// The foreground: a picture and a mask that each paint merges over the finished sky, pixel for
// pixel, stretched to the window also after a resize; and what a missing or unreadable file
// does.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "MapFixture.h"
#include "host/ScopedHome.h"
#include "platform/DebugStream.h"
#include "platform/PngFile.h"

namespace {

// The landscape, in named colours of the host palette; the mask, white where the sky shows.
COLORREF Landscape(int x, int y)
{
    const PALETTEENTRY& e = kHostPaletteEntries[1 + (x + 3 * y) % 16];
    return RGB(e.peRed, e.peGreen, e.peBlue);
}
COLORREF Mask(int x, int y)
{
    return (x + y) % 3 != 0 ? RGB(255, 255, 255) : RGB(0, 0, 0);
}

// The pictures are 8 by 4 and the map 16 by 8: each picture pixel covers 2 by 2 of the map,
// whose bitmap is filled with a sky of many indexes, so that the merge has something to keep
// and to clear; grid and status line are drawn, so nothing draws the sky again.
class MapForegroundTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        SavedSink = SetDebugSink([this](const char* text) { Told += text; });
        Write("landscape.png", Landscape);
        Write("mask.png", Mask);
        Make(16, 8).SetGridInfo(GridInfo(24, 36, true));
        pHost->Create();
        Pump();
        PaintSky();
    }
    void TearDown() override
    {
        SetDebugSink(SavedSink);
        MapTest::TearDown();
    }
    void Repaint()
    {
        Map().Invalidate();
        Pump();
    }

    void Write(const std::string& name, const std::function<COLORREF(int, int)>& colour)
    {
        Surface picture(8, 4, PixelFormat::Rgb32);
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 8; ++x) {
                picture.SetValue(x, y, Surface::RgbToValue(colour(x, y)));
            }
        }
        ASSERT_TRUE(SaveSurfaceAsPng(picture, Dir.File(name)));
    }

    void PaintSky()
    {
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 16; ++x) {
                Bitmap().SetValue(x, y, (7 * x + 13 * y + 5) % 256);
            }
        }
    }
    // What the bitmap shows: 'm' for the merged picture, 's' for the sky alone, '?' else.
    char Shown()
    {
        bool merged = true;
        bool sky = true;
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 16; ++x) {
                const unsigned at = Bitmap().ValueAt(x, y);
                const unsigned skyIndex = (7 * x + 13 * y + 5) % 256;
                const bool land = Mask(x / 2, y / 2) == RGB(0, 0, 0);
                sky = sky && at == skyIndex;
                merged = merged && at == (land ? IndexOf(Landscape(x / 2, y / 2)) : skyIndex);
            }
        }
        return merged ? 'm' : sky ? 's' : '?';
    }

    ScopedHome Dir;
    std::string Told;
    DebugSink SavedSink;
};

} // namespace

TEST_F(MapForegroundTest, ThePictureShowsWhereTheMaskIsBlackAndTheSkyWhereItIsWhite)
{
    Map().SetForegroundBitmap(Dir.File("landscape.png"), Dir.File("mask.png"));
    EXPECT_EQ(Shown(), 's') << "setting it paints nothing";
    Repaint();
    EXPECT_EQ(Shown(), 'm');
    // Merging again over the merged picture changes nothing.
    Repaint();
    EXPECT_EQ(Shown(), 'm');
    EXPECT_EQ(Told.find("Foreground"), std::string::npos) << Told;
    // A resize builds the pictures again at the new size: the top-left landscape pixel, where
    // the mask is black, then covers 4 by 3 pixels of the map.
    Map().MoveWindow(0, 0, 32, 12);
    Pump();
    EXPECT_EQ(Bitmap().ValueAt(3, 2), IndexOf(Landscape(0, 0)));
    EXPECT_NE(Bitmap().ValueAt(4, 0), IndexOf(Landscape(0, 0)));
}

TEST_F(MapForegroundTest, AMissingFileIsLookedForAtEachPaintButOneThatCannotBeReadTurnsItOff)
{
    Dir.WriteFile("broken.png", "not a picture at all");
    // The picture, the mask, and the file that stands in for one of them when a paint tells
    // which of them was missing or unreadable; whether the overlay then comes back.
    for (const auto& [picture, mask, later, back] :
         std::vector<std::tuple<std::string, std::string, std::string, bool>>{
             {"later.png", "mask.png", "later.png", true},
             {"landscape.png", "masklater.png", "masklater.png", true},
             {"broken.png", "mask.png", "broken.png", false},
             {"landscape.png", "broken.png", "broken.png", false},
         }) {
        SCOPED_TRACE(picture + " over " + mask);
        Told.clear();
        Map().SetForegroundBitmap(Dir.File(picture), Dir.File(mask));
        Repaint();
        Repaint();
        EXPECT_EQ(Shown(), 's');
        EXPECT_NE(Told.find(later), std::string::npos) << Told;
        EXPECT_EQ(Told.find("Foreground:"), Told.rfind("Foreground:")) << "once: " << Told;
        Write(later, later == mask ? Mask : Landscape);
        Repaint();
        EXPECT_EQ(Shown(), back ? 'm' : 's');
        Dir.WriteFile("broken.png", "not a picture at all");
        PaintSky();
    }
}
