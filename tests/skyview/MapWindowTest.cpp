// The map's draw cycle: the off-screen bitmap, what a paint draws and what it only copies,
// printing, the flags that changes of the view raise, the wait cursor and the map's state.
#include <gtest/gtest.h>

#include <string>

#include "MapFixture.h"
#include "host/HostCmdLine.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "projection/FixedOrientationInfo.h"
#include "state/CmdLineStateContainer.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

// A pixel written straight into the bitmap, which only a draw would wipe out.
constexpr int kMarkX = 30;
constexpr int kMarkY = 20;

void Mark(Surface& bitmap)
{
    bitmap.SetValue(kMarkX, kMarkY, kHostPaletteWhite);
}

// The whole state of a map as a command string.
std::string FullState(const MapWindow& map)
{
    CmdLineStateContainer out;
    out << AstroKey("MapWindow") << map;
    return out.GetCmdLine().GetRawText();
}

void Restore(MapWindow& map, const std::string& text)
{
    CmdLineStateContainer in{HostCmdLine(text)};
    in >> AstroKey("MapWindow") >> map;
}

} // namespace

using MapWindowTest = MapTest;

TEST_F(MapWindowTest, FirstPaintMakesAnEightBitBitmapWithItsWidthRoundedUpToEight)
{
    MapWindow& map = Open(101, 40);

    ASSERT_NE(map.GetMemoryDC(), nullptr);
    ASSERT_NE(map.GetDrawBitmap(), nullptr);
    const BITMAPINFOHEADER& header = map.GetDisplayParameters().FastHeader;
    EXPECT_EQ(header.biWidth, 104);
    EXPECT_EQ(header.biHeight, 40); // bottom-up
    EXPECT_EQ(header.biBitCount, 8);
    EXPECT_EQ(Bitmap().Width(), 104);
    EXPECT_TRUE(Bitmap().IsIndexed());
    // Stars write into the bits: the top row of the screen is the last row in memory.
    EXPECT_EQ(map.GetDisplayParameters().pFastTopRow, Bitmap().Row(0));

    // With nothing to draw a paint copies its own rectangle, up to the window's last column.
    map.SetGridInfo(ShownGrid());
    Pump();
    ASSERT_FALSE(map.IsAnythingDirty());
    Mark(Bitmap());
    Bitmap().SetValue(100, kMarkY, kHostPaletteWhite);
    map.InvalidateRect(TRect(0, 0, 50, 40), false);
    Pump();
    EXPECT_EQ(Screen()->ColorAt(kMarkX, kMarkY), kWhite);
    EXPECT_NE(Screen()->ColorAt(100, kMarkY), kWhite) << "outside the paint rectangle";
    map.InvalidateRect(TRect(90, 0, 101, 40), false);
    Pump();
    EXPECT_EQ(Screen()->Width(), 101);
    EXPECT_EQ(Screen()->ColorAt(100, kMarkY), kWhite);
}

TEST_F(MapWindowTest, AResizeMakesANewBitmapAtTheNextPaint)
{
    MapWindow& map = Open(101, 40);
    const TMemoryDC* before = map.GetMemoryDC();
    ASSERT_NE(before, nullptr);

    map.MoveWindow(0, 0, 64, 30);
    EXPECT_EQ(map.GetMemoryDC(), nullptr) << "the size message drops the context at once";
    EXPECT_EQ(map.GetDrawBitmap(), nullptr);
    EXPECT_EQ(map.GetDisplayParameters().pFastBits, nullptr) << "no bits outlive the bitmap";
    EXPECT_TRUE(map.IsTransformationDirty());

    Pump();
    EXPECT_EQ(map.GetDisplayParameters().FastHeader.biWidth, 64);
    EXPECT_EQ(map.GetDisplayParameters().FastHeader.biHeight, 30);
    EXPECT_FALSE(map.IsTransformationDirty());
    EXPECT_EQ(map.GetTransformation()->GetProjector().GetCenterPoint(), TPoint(32, 15));
}

TEST_F(MapWindowTest, APaintWithNothingDirtyOnlyCopiesTheBitmap)
{
    MapWindow& map = Open(120, 80);
    map.SetGridInfo(ShownGrid());
    Pump();
    ASSERT_FALSE(map.IsAnythingDirty()) << "grid drawn and status line written";
    const Transformation* projection = map.GetTransformation();
    const int fieldChanges = pHost->nFieldChanges;

    Mark(Bitmap());
    Repaint();

    EXPECT_EQ(Screen()->ColorAt(kMarkX, kMarkY), kWhite) << "the bitmap was copied, not redrawn";
    EXPECT_EQ(Bitmap().ValueAt(kMarkX, kMarkY), unsigned(kHostPaletteWhite));
    EXPECT_EQ(map.GetTransformation(), projection);
    EXPECT_EQ(pHost->nFieldChanges, fieldChanges);
}

TEST_F(MapWindowTest, WithTheGridHiddenEveryPaintDrawsAgain)
{
    MapWindow& map = Open(120, 80);
    ASSERT_FALSE(map.GetGridInfo().bShow);
    EXPECT_TRUE(map.IsGridDirty()) << "only drawing the grid clears its flag";
    EXPECT_TRUE(map.IsAnythingDirty());

    Mark(Bitmap());
    Repaint();

    EXPECT_EQ(Bitmap().ValueAt(kMarkX, kMarkY), 0u) << "the sky was filled again";
    EXPECT_NE(Screen()->ColorAt(kMarkX, kMarkY), kWhite);
    // The projection did not change, so the parent heard of it only once.
    EXPECT_EQ(pHost->nFieldChanges, 1);
}

TEST_F(MapWindowTest, TheStarsOfTheViewAreAskedForOnceUntilTheViewChanges)
{
    MapWindow& map = Open(200, 150, true);
    const std::size_t shown = map.GetVisibleObjects().GetCount();
    EXPECT_GT(shown, 20u) << "Orion down to magnitude 6, and the planets there";
    Transformation view = *map.GetTransformation();
    EXPECT_EQ(map.LoadVisibleObjects(view), 0) << "the same request again";

    // Every paint draws while the grid is hidden, yet the list stays as it was.
    Repaint();
    EXPECT_EQ(map.GetVisibleObjects().GetCount(), shown);

    StarDisplayParameters brighter = map.GetDisplayParameters();
    brighter.SetLimitingMagnitude(3.0);
    map.SetStarDisplayParameters(brighter);
    Pump();
    EXPECT_LT(map.GetVisibleObjects().GetCount(), shown);
    EXPECT_GT(map.GetVisibleObjects().GetCount(), 3u);
    for (const AstroObject* object : map.GetVisibleObjects()) {
        if (object->GetType() == AstroObject::ObjectType::Star) {
            EXPECT_LE(object->GetMagnitude(), 3.0);
        }
    }
}

TEST_F(MapWindowTest, LabelsAreLaidOutAgainOnlyWhenTheObjectsOrTheTimeChange)
{
    // Jupiter and Saturn stand in Pisces and Aries at the start of 2000.
    MapWindow& map = Open(400, 300);
    map.SetTime(AstroTime(1, 1, 2000, 0.0));
    map.SetOrientation(
        FixedOrientationInfo(nullptr, PolarCoord(30.0, 10.0), PolarCoord(30.0, 90.0), 20.0));
    map.SetGridInfo(ShownGrid());
    Pump();
    ASSERT_FALSE(map.IsAnythingDirty());
    ASSERT_GE(map.GetLabels().size(), 2u) << "the planets' names";
    const Label* first = map.GetLabels().front();

    // The grid alone changes: the labels stay as they were laid out.
    map.SetGridInfo(ShownGrid(12, 18));
    EXPECT_FALSE(map.AreLabelsDirty());
    Pump();
    EXPECT_EQ(map.GetLabels().front(), first);

    // A new time moves the planets: their labels are made again.
    map.SetTime(AstroTime(1, 2, 2000, 0.0));
    EXPECT_TRUE(map.AreLabelsDirty());
    Pump();
    EXPECT_FALSE(map.AreLabelsDirty());
    EXPECT_GE(map.GetLabels().size(), 2u);
}

TEST_F(MapWindowTest, TheParentHearsOfEveryNewProjection)
{
    MapWindow& map = Open(120, 80);
    EXPECT_EQ(pHost->nFieldChanges, 1);

    map.SetFieldRadius(30.0);
    Pump();
    EXPECT_EQ(pHost->nFieldChanges, 2);
    EXPECT_DOUBLE_EQ(map.GetTransformation()->GetProjector().GetFieldRadius(), 30.0);

    map.SetFieldRadius(30.0); // unchanged: nothing to rebuild
    EXPECT_FALSE(map.IsTransformationDirty());
    map.SetFieldRadius(90.5); // wider than a hemisphere: refused
    EXPECT_FALSE(map.IsTransformationDirty());
    EXPECT_DOUBLE_EQ(map.GetOrientation().GetFieldRadius(), 30.0);
    map.SetFieldRadius(90.0);
    EXPECT_TRUE(map.IsTransformationDirty());
    EXPECT_TRUE(map.IsGridDirty());
    Pump();
    EXPECT_EQ(pHost->nFieldChanges, 3);
}

TEST_F(MapWindowTest, APaintWhilePrintingDoesNothingAndTheEndOfPrintingRedraws)
{
    MapWindow& map = Open(120, 80);
    map.SetGridInfo(ShownGrid());
    Pump();
    auto before = Screen();

    // A white page with its own surface and rectangle.
    Surface page(200, 150, PixelFormat::Rgb32);
    TDC pageDc(page);
    pageDc.FillRect(page.Bounds(), TBrush(TColor::White));
    DisplayParameters printing = map.GetDisplayParameters();
    printing.SetPrinting(true);
    printing.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
    printing.SetDC(&pageDc);
    printing.SetDrawRect(page.Bounds());
    map.StartPrinting(printing);

    // The page was drawn at once, with its paper left white.
    EXPECT_EQ(page.ColorAt(199, 149), kWhite);
    int gridPixels = 0;
    for (int y = 0; y < page.Height(); ++y) {
        for (int x = 0; x < page.Width(); ++x) {
            gridPixels += page.ColorAt(x, y) == RGB(0, 0, 255);
        }
    }
    EXPECT_GT(gridPixels, 100);
    EXPECT_EQ(map.GetTransformation()->GetProjector().GetCenterPoint(), TPoint(100, 75));

    // Meanwhile a paint neither draws nor copies.
    Mark(Bitmap());
    Repaint();
    auto during = Screen();
    EXPECT_EQ(during->ColorAt(kMarkX, kMarkY), before->ColorAt(kMarkX, kMarkY));
    EXPECT_EQ(Bitmap().ValueAt(kMarkX, kMarkY), unsigned(kHostPaletteWhite));

    // The end of printing draws the screen's view again at once.
    map.StopPrinting();
    EXPECT_FALSE(map.GetDisplayParameters().IsPrinting());
    EXPECT_EQ(Bitmap().ValueAt(kMarkX, kMarkY), 0u);
    EXPECT_EQ(map.GetTransformation()->GetProjector().GetCenterPoint(), TPoint(60, 40));
    EXPECT_EQ(map.GetDisplayParameters().pFastTopRow, Bitmap().Row(0));
    EXPECT_EQ(Screen()->ColorAt(kMarkX, kMarkY), before->ColorAt(kMarkX, kMarkY));
}

TEST_F(MapWindowTest, ARestoredViewOpensAtThePresentMomentOnlyWhenItAsksTo)
{
    const AstroTime past(1, 1, 2000, 12.0);
    MapWindow& map = Open(64, 40);
    EXPECT_FALSE(map.IsFirstDrawPending());
    EXPECT_FALSE(map.IsNearestDarkPending()) << "the first draw took the present moment";

    map.SetTime(past);
    const std::string keeping = FullState(map);
    std::string asking = keeping;
    const std::string key = "Show_Nearest_Dark_Time_At_Startup=0";
    ASSERT_NE(asking.find(key), std::string::npos) << asking;
    asking.replace(asking.find(key), key.size(), "Show_Nearest_Dark_Time_At_Startup=1");

    Restore(map, keeping);
    EXPECT_FALSE(map.IsNearestDarkPending());
    Pump();
    EXPECT_EQ(map.GetTime(), past);

    Restore(map, asking);
    EXPECT_TRUE(map.IsNearestDarkPending());
    Pump();
    EXPECT_GT(map.GetTime().GetYear(), 2000);
    EXPECT_FALSE(map.IsNearestDarkPending());

    // A time set before the draw wins over the start at the present moment.
    Restore(map, asking);
    map.SetTime(past);
    EXPECT_FALSE(map.IsNearestDarkPending());
    Pump();
    EXPECT_EQ(map.GetTime(), past);
}

TEST_F(MapWindowTest, OnlyTheLastCentreChosenWhileTheTimeIsDirtyIsApplied)
{
    MapWindow& map = Open(64, 40);
    const PolarCoord first(10.0, 20.0);
    const PolarCoord last(200.0, -30.0);

    map.SetTime(AstroTime(1, 1, 2000, 0.0));
    ASSERT_TRUE(map.IsTimeDirty());
    map.ChangeCenterOfView(first);
    map.ChangeCenterOfView(last);
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), PolarCoord(84.0, 0.0))
        << "the centre waits for the time update";
    Pump();
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), last);
    EXPECT_EQ(map.GetTransformation()->GetCenterOfView(), last);

    // With the time up to date the centre moves at once.
    map.ChangeCenterOfView(first);
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), first);
    EXPECT_TRUE(map.IsTransformationDirty());
}

TEST_F(MapWindowTest, GridChangesTakeCountsAndShowFlagButNeverTheColourOrTooManyLines)
{
    MapWindow& map = Open(200, 150);
    GridInfo grid(12, 18, true);
    grid.Color = TColor(255, 0, 0);
    map.SetGridInfo(grid);
    EXPECT_EQ(map.GetGridInfo().nRALines, 12u);
    EXPECT_EQ(map.GetGridInfo().nDecLines, 18u);
    EXPECT_TRUE(map.GetGridInfo().bShow);
    EXPECT_EQ(map.GetGridInfo().Color, TColor(0, 0, 255));

    Pump();
    EXPECT_GT(CountGridPixels(), 100);

    // Seven Dec lines are too few for a grid: nothing is drawn, meridians included.
    map.SetGridInfo(GridInfo(24, 7, true));
    Pump();
    EXPECT_EQ(CountGridPixels(), 0);
    EXPECT_EQ(map.GetGridLines().GetCount(), 0u);

    map.SetGridInfo(GridInfo(499, 499, false));
    EXPECT_EQ(map.GetGridInfo().nRALines, 499u);
    map.SetGridInfo(GridInfo(500, 10, true));
    map.SetGridInfo(GridInfo(10, 500, true));
    EXPECT_EQ(map.GetGridInfo().nRALines, 499u);
    EXPECT_EQ(map.GetGridInfo().nDecLines, 499u);
    EXPECT_FALSE(map.GetGridInfo().bShow);
}

TEST_F(MapWindowTest, TheStatusLineShowsLocalTimeDateAndPlaceAndKeepsItsRectangle)
{
    MapWindow& map = Open(400, 60);
    map.SetLocationName("Greenwich");
    map.SetTime(AstroTime(3, 3, 1999, 12.0 + 5.0 / 60.0 + 9.0 / 3600.0));
    Pump();
    ASSERT_FALSE(map.IsMilitaryTime());
    EXPECT_EQ(map.GetStatusText(), "12:05:09pm March 3, 1999  Greenwich");
    EXPECT_FALSE(map.IsStatusDirty());
    const TRect rect = map.GetStatusRect();
    EXPECT_EQ(rect.TopLeft(), TPoint(0, 0));
    EXPECT_GT(rect.Width(), 100);
    EXPECT_GT(rect.Height(), 5);

    // Red text lies within the rectangle and nowhere else.
    const unsigned red = HostPalette().GetNearestPaletteIndex(TColor(255, 0, 0));
    int inside = 0;
    int outside = 0;
    for (int y = 0; y < Bitmap().Height(); ++y) {
        for (int x = 0; x < 400; ++x) {
            if (Bitmap().ValueAt(x, y) == red) {
                (rect.Contains(TPoint(x, y)) ? inside : outside)++;
            }
        }
    }
    EXPECT_GT(inside, 50);
    EXPECT_EQ(outside, 0);

    map.SetTime(AstroTime(3, 3, 1999, 11.5));
    Pump();
    EXPECT_EQ(map.GetStatusText(), "11:30:00am March 3, 1999  Greenwich");
}

TEST_F(MapWindowTest, WithoutTheStatusLineItsFlagStaysAndEveryPaintDraws)
{
    MapWindow& map = Open(64, 40);
    DisplayParameters quiet = map.GetDisplayParameters();
    quiet.bShowStatus = false;
    map.SetDisplayParameters(quiet);
    map.SetGridInfo(ShownGrid());
    Pump();
    EXPECT_TRUE(map.IsStatusDirty());
    EXPECT_FALSE(map.IsGridDirty());
    EXPECT_TRUE(map.IsAnythingDirty());
    EXPECT_EQ(map.GetDisplayParameters().pFastTopRow, Bitmap().Row(0))
        << "new parameters keep the map's own bits";
}

TEST_F(MapWindowTest, WaitCursorsNestAndTheLastRestoreBringsTheOldCursorBack)
{
    MapWindow& map = Open(64, 40);
    map.SetCursor(nullptr, TResId(IDC_CROSS));

    map.ShowWaitCursor();
    map.ShowWaitCursor();
    EXPECT_EQ(map.GetCursorResId().GetInt(), IDC_WAIT);
    map.RestoreCursor();
    EXPECT_EQ(map.GetCursorResId().GetInt(), IDC_WAIT);
    EXPECT_EQ(map.GetWaitCursorDepth(), 1u);
    map.RestoreCursor();
    EXPECT_EQ(map.GetCursorResId().GetInt(), IDC_CROSS);
    map.RestoreCursor(); // one too many changes nothing
    EXPECT_EQ(map.GetWaitCursorDepth(), 0u);
    EXPECT_EQ(map.GetCursorResId().GetInt(), IDC_CROSS);
}

TEST_F(MapWindowTest, CopyTakesTheOtherMapsViewAsAnIndependentCopy)
{
    MapWindow& map = Open(64, 40);
    MapWindow other(nullptr);
    const PolarCoord centre(150.0, 40.0);
    other.SetOrientation(FixedOrientationInfo(nullptr, centre, PolarCoord(150.0, 90.0), 12.0));
    other.SetTime(AstroTime(24, 12, 1968, 20.5));
    other.SetGridInfo(GridInfo(12, 18, true));
    StarDisplayParameters stars = other.GetDisplayParameters();
    stars.SetLimitingMagnitude(4.5);
    other.SetStarDisplayParameters(stars);

    map.Copy(other);
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), centre);
    EXPECT_DOUBLE_EQ(map.GetOrientation().GetFieldRadius(), 12.0);
    EXPECT_EQ(map.GetTime(), AstroTime(24, 12, 1968, 20.5));
    EXPECT_EQ(map.GetGridInfo(), GridInfo(12, 18, true));
    EXPECT_DOUBLE_EQ(map.GetDisplayParameters().GetLimitingMagnitude(), 4.5);
    EXPECT_TRUE(map.IsTransformationDirty());

    other.SetFieldRadius(50.0);
    EXPECT_DOUBLE_EQ(map.GetOrientation().GetFieldRadius(), 12.0) << "the orientation is a clone";
    Pump();
    EXPECT_EQ(map.GetTransformation()->GetCenterOfView(), centre);
}

TEST_F(MapWindowTest, TheFullStateComesBackWholeAndTheDefaultStateLeavesTheTimeOut)
{
    MapWindow& map = Open(64, 40);
    map.SetOrientation(
        FixedOrientationInfo(nullptr, PolarCoord(10.5, -20.0), PolarCoord(10.5, 90.0), 33.0));
    map.SetGridInfo(GridInfo(12, 18, true));
    map.SetTime(AstroTime(4, 7, 2021, 22.25));
    map.SetLocationName("San Francisco");
    map.ShowMessierObjects(true);
    map.ShowComets(true);
    StarDisplayParameters stars = map.GetDisplayParameters();
    stars.SetLimitingMagnitude(5.25);
    map.SetStarDisplayParameters(stars);

    const std::string text = FullState(map);
    EXPECT_NE(text.find("Orientation_Type=0"), std::string::npos) << text;
    EXPECT_NE(text.find("Location_Name=\"San Francisco\""), std::string::npos) << text;

    MapWindow copy(nullptr);
    Restore(copy, text);
    EXPECT_EQ(copy.GetOrientation().GetCenterOfView(), PolarCoord(10.5, -20.0));
    EXPECT_EQ(copy.GetOrientation().GetZenith(), PolarCoord(10.5, 90.0));
    EXPECT_DOUBLE_EQ(copy.GetOrientation().GetFieldRadius(), 33.0);
    EXPECT_EQ(copy.GetGridInfo(), GridInfo(12, 18, true));
    EXPECT_EQ(copy.GetTime(), AstroTime(4, 7, 2021, 22.25));
    EXPECT_EQ(copy.GetLocationName(), "San Francisco");
    EXPECT_TRUE(copy.IsShowingMessier());
    EXPECT_TRUE(copy.IsShowingComets());
    EXPECT_DOUBLE_EQ(copy.GetDisplayParameters().GetLimitingMagnitude(), 5.25);
    EXPECT_TRUE(copy.IsAnythingDirty());

    CmdLineStateContainer defaults;
    map.SaveDefaultState(defaults);
    const std::string saved = defaults.GetCmdLine().GetRawText();
    EXPECT_EQ(saved.find("Time="), std::string::npos) << saved;
    EXPECT_EQ(saved.find("Show_Nearest"), std::string::npos) << saved;
    MapWindow restored(nullptr);
    const AstroTime own = restored.GetTime();
    CmdLineStateContainer in{HostCmdLine(saved)};
    restored.RestoreDefaultState(in);
    EXPECT_EQ(restored.GetTime(), own);
    EXPECT_EQ(restored.GetOrientation().GetCenterOfView(), PolarCoord(10.5, -20.0));
    EXPECT_EQ(restored.GetLocationName(), "San Francisco");
    EXPECT_EQ(restored.GetGridInfo(), GridInfo(12, 18, true));
}

TEST_F(MapWindowTest, ASavedGridWithTooManyLinesIsNotTaken)
{
    MapWindow map(nullptr);
    Restore(map, "MapWindow=<Grid=<Show=1 NumberOfRALines=-5 NumberOfDecLines=36>>");
    EXPECT_EQ(map.GetGridInfo(), GridInfo()) << "a negative count reads as a huge one";
    Restore(map, "MapWindow=<Grid=<Show=1 NumberOfRALines=48 NumberOfDecLines=72>>");
    EXPECT_EQ(map.GetGridInfo(), GridInfo(48, 72, true));
}
