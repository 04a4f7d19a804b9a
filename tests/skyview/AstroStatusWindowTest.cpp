// The status display: the blocks of the panel beside the map (pointer, time, orientation,
// Moon) with their texts for known map states, how the map keeps them up to date, how the
// panel lays them out and paints them, and the red status line on the map itself.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "host/HostCmdLine.h"
#include "host/HostProf.h"
#include "host/ScopedHome.h"
#include "platform/ControlLook.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindowFont.h"
#include "platform/TWindow.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/AstroStatusWindow.h"
#include "skyview/MapWindow.h"
#include "state/CmdLineStateContainer.h"
#include "time/TimeZone.h"
#include "windows/HeadlessFixture.h"

namespace {

constexpr int kPanelWidth = 220;
constexpr int kMapWidth = 200;
constexpr int kHeight = 330;

// New York: five hours behind Universal Time, four in summer (second Sunday of March to the
// first Sunday of November, 2:00).
TimeZone NewYork()
{
    TimeZone zone;
    EXPECT_TRUE(TimeZone::FromRule("EST5EDT,M3.2.0,M11.1.0", zone));
    return zone;
}

AstroTime At(unsigned day, unsigned month, long year, int hour, int minute = 0, int second = 0)
{
    return AstroTime(day, month, year, hour + minute / 60.0 + second / 3600.0);
}

// A view fixed on the sky with north up.
FixedOrientationInfo Fixed(const PolarCoord& centre, double radius)
{
    return FixedOrientationInfo(nullptr, centre, FixedOrientationInfo::NorthUpZenith(centre),
                                radius);
}

std::vector<std::string> LinesOf(const TextStatusItem& item)
{
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < item.GetLineCount(); ++i) {
        lines.push_back(item.GetLine(i));
    }
    return lines;
}

// The number of the Moon block's line, after checking that it is written as a stream writes a
// double: at most six significant digits and no trailing zeros.
double PhaseOf(const MoonStatusItem& item)
{
    const std::string line = item.GetLine(0);
    const std::string prefix = "Phase: ";
    EXPECT_EQ(line.rfind(prefix, 0), 0u) << line;
    const std::string number = line.substr(prefix.size());
    int digits = 0;
    for (char c : number) {
        digits += c >= '0' && c <= '9';
    }
    EXPECT_LE(digits, 6) << line;
    if (number.find('.') != std::string::npos) {
        EXPECT_NE(number.back(), '0') << line;
    }
    return std::stod(number);
}

// The status panel at the left and the map at the right of one top-level window.
class StatusHost : public TWindow
{
public:
    StatusHost() : TWindow(nullptr, "Status host")
    {
        Attr.X = 0;
        Attr.Y = 0;
        Attr.W = kPanelWidth + kMapWidth;
        Attr.H = kHeight;
        const TGadgetWindowFont font(8, false, false);
        pPanel = new AstroStatusWindow(this, &font);
        pPanel->Attr.X = 0;
        pPanel->Attr.Y = 0;
        pPanel->Attr.W = kPanelWidth;
        pPanel->Attr.H = kHeight;
        pMap = new MapWindow(this);
        pMap->Attr.X = kPanelWidth;
        pMap->Attr.Y = 0;
        pMap->Attr.W = kMapWidth;
        pMap->Attr.H = kHeight;
    }

    // Both owned by this window.
    AstroStatusWindow* pPanel = nullptr;
    MapWindow* pMap = nullptr;
};

} // namespace

class AstroStatusWindowTest : public HeadlessTest
{
protected:
    void TearDown() override
    {
        if (pHost) {
            pHost->Destroy();
            pHost.reset();
        }
        HeadlessTest::TearDown();
    }

    // A map with the panel attached, in Universal Time, looking at a fixed view; shown and
    // painted once when `create`.
    MapWindow& Open(bool create = true)
    {
        pHost = std::make_unique<StatusHost>();
        MapWindow& map = *pHost->pMap;
        map.SetTimeZone(TimeZone());
        map.SetOrientation(Fixed(PolarCoord(84.0, 0.0), 30.0));
        map.AttachStatusWindow(*pHost->pPanel);
        if (create) {
            pHost->Create();
            Pump();
        }
        return map;
    }

    MapWindow& Map() { return *pHost->pMap; }
    AstroStatusWindow& Panel() { return *pHost->pPanel; }
    std::unique_ptr<Surface> PanelPicture()
    {
        return WindowSystem::Get().CaptureWindow(Panel().HWindow);
    }

    // The rectangle of row `row` of a block (0 the heading) in the panel.
    TRect RowOf(const TextStatusItem& item, int row)
    {
        const int height = Panel().GetFontHeight();
        const TRect inner = item.GetInnerRect();
        return TRect(inner.left, inner.top + row * height, inner.right,
                     inner.top + (row + 1) * height);
    }

    // How the panel's font writes `text` at `x` in `row`, on the button face.
    std::unique_ptr<Surface> Written(const std::string& text, int x, const TRect& row)
    {
        auto picture = std::make_unique<Surface>(kPanelWidth, kHeight, PixelFormat::Rgb32);
        TDC dc(*picture);
        dc.SelectObject(Panel().GetFont());
        dc.SetBkColor(TColor(GetSysColor(COLOR_BTNFACE)));
        dc.SetTextColor(TColor(GetSysColor(COLOR_BTNTEXT)));
        dc.ExtTextOut(TPoint(x, row.top), ETO_OPAQUE | ETO_CLIPPED, &row, text);
        return picture;
    }

    // Whether `picture` shows in `row` exactly what the font writes there.
    ::testing::AssertionResult Shows(const Surface& picture, const std::string& text, int x,
                                     const TRect& row)
    {
        auto expected = Written(text, x, row);
        for (int y = row.top; y < row.bottom; ++y) {
            for (int px = row.left; px < row.right; ++px) {
                if (picture.ColorAt(px, y) != expected->ColorAt(px, y)) {
                    return ::testing::AssertionFailure()
                           << "\"" << text << "\" differs at (" << px << ", " << y << ")";
                }
            }
        }
        return ::testing::AssertionSuccess();
    }

    // The leftmost pixel of `row` that is not the button face; -1 when the row is bare.
    static int FirstInk(const Surface& picture, const TRect& row)
    {
        const COLORREF face = GetSysColor(COLOR_BTNFACE);
        for (int x = row.left; x < row.right; ++x) {
            for (int y = row.top; y < row.bottom; ++y) {
                if (picture.ColorAt(x, y) != face) {
                    return x;
                }
            }
        }
        return -1;
    }

    std::unique_ptr<StatusHost> pHost;
};

TEST_F(AstroStatusWindowTest, TheTimeBlockShowsTheMapsTimeInItsZone)
{
    MapWindow& map = Open();
    map.SetTimeZone(NewYork());
    const TimeStatusItem& item = map.GetTimeItem();
    EXPECT_EQ(item.GetHeading(), "Date/Time: ");
    ASSERT_FALSE(item.IsMilitaryTime());

    struct Case
    {
        AstroTime Universal;
        const char* Date;
        const char* Time;
    };
    const Case cases[] = {
        // Daylight saving: four hours behind.
        {At(4, 7, 2024, 16, 30), "July 4, 2024", "12:30:00pm"},
        // Standard time: five hours behind; noon is pm, the hour after midnight am.
        {At(15, 1, 2024, 17), "January 15, 2024", "12:00:00pm"},
        {At(15, 1, 2024, 5, 7, 9), "January 15, 2024", "12:07:09am"},
        // The local date is the day before.
        {At(1, 1, 2000, 3), "December 31, 1999", "10:00:00pm"},
    };
    for (const Case& c : cases) {
        map.SetTime(c.Universal);
        Pump();
        EXPECT_EQ(LinesOf(item), (std::vector<std::string>{c.Date, c.Time})) << c.Date;
    }
}

TEST_F(AstroStatusWindowTest, TheProfilesTwentyFourHourClockLeavesOutAmAndPmOnBothDisplays)
{
    ScopedHome home;
    home.WriteFile("orbiscope.ini", "[Orbiscope]\nMilitaryTime=1\n");
    ASSERT_TRUE(HostProfile().GetBool("Orbiscope", "MilitaryTime", false));
    MapWindow& map = Open();
    map.SetLocationName("Greenwich");
    map.SetTime(At(15, 1, 2024, 17, 45));
    Pump();
    EXPECT_TRUE(map.GetTimeItem().IsMilitaryTime());
    EXPECT_EQ(map.GetTimeItem().GetLine(1), "17:45:00");
    EXPECT_EQ(map.GetStatusText(), "17:45:00 January 15, 2024  Greenwich");
}

TEST_F(AstroStatusWindowTest, TheRedLineOnTheMapTurnsToPmExactlyAtNoon)
{
    MapWindow& map = Open();
    map.SetLocationName("Greenwich");
    map.SetTime(At(15, 1, 2024, 12));
    Pump();
    EXPECT_EQ(map.GetStatusText(), "12:00:00pm January 15, 2024  Greenwich");
    map.SetTime(At(15, 1, 2024, 11, 59, 59));
    Pump();
    EXPECT_EQ(map.GetStatusText(), "11:59:59am January 15, 2024  Greenwich");
}

TEST_F(AstroStatusWindowTest, TheOrientationBlockTellsAFixedViewAtOnce)
{
    MapWindow& map = Open();
    const OrientationStatusItem& item = map.GetOrientationItem();
    EXPECT_EQ(item.GetHeading(), "Orientation: ");

    map.SetOrientation(Fixed(PolarCoord(90.0, -30.5), 12.5));
    EXPECT_EQ(LinesOf(item), (std::vector<std::string>{
                                 "Type: Fixed",
                                 "Field of View: 25",
                                 "Center RA:  06h 00m 00.0s",
                                 "Center Dec: - 30\xB0 30' 00.0\"",
                                 "Zenith RA:  06h 00m 00.0s",
                                 "Zenith Dec: + 90\xB0 00' 00.0\"",
                                 "",
                                 "",
                             }));

    // A field is the whole width of the view, written with no trailing zeros; one too wide is
    // refused and the block stays.
    map.SetFieldRadius(0.125);
    EXPECT_EQ(item.GetLine(1), "Field of View: 0.25");
    map.SetFieldRadius(95.0);
    EXPECT_EQ(item.GetLine(1), "Field of View: 0.25");

    // A centre given with a negative RA is written as the hours of the day it stands for.
    map.ChangeCenterOfView(PolarCoord(-15.0, 10.0));
    EXPECT_EQ(item.GetLine(2), "Center RA:  23h 00m 00.0s");
    EXPECT_EQ(item.GetLine(3), "Center Dec: + 10\xB0 00' 00.0\"");
}

TEST_F(AstroStatusWindowTest, TheOrientationBlockFollowsAViewFromTheGroundThroughTime)
{
    MapWindow& map = Open();
    const OrientationStatusItem& item = map.GetOrientationItem();
    // 2000 January 1 at 6h UT: the mean sidereal time at longitude 122.4 west is 4h 31m 15.4s.
    map.SetTime(At(1, 1, 2000, 6));
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(37.8, 122.4),
                                               PolarCoord(270.0, 60.0), 20.0, true));
    Pump();
    EXPECT_EQ(item.GetLine(0), "Type: Rotating");
    EXPECT_EQ(item.GetLine(1), "Field of View: 40");
    EXPECT_EQ(item.GetLine(4), "Zenith RA:  04h 31m 15.4s");
    EXPECT_EQ(item.GetLine(5), "Zenith Dec: + 37\xB0 48' 00.0\"");
    EXPECT_EQ(item.GetLine(6), "Offset RA: 270");
    EXPECT_EQ(item.GetLine(7), "Offset Dec: 60");
    const std::string centreBefore = item.GetLine(2);

    // An hour later the sky has turned on, and with it the centre; the draw tells the block.
    map.SetTime(At(1, 1, 2000, 7));
    Pump();
    EXPECT_EQ(item.GetLine(4), "Zenith RA:  05h 31m 25.3s");
    EXPECT_NE(item.GetLine(2), centreBefore);

    // A new place tells the block at once.
    map.SetLocation(LatLong(-33.9, 341.6));
    EXPECT_EQ(item.GetLine(5), "Zenith Dec: - 33\xB0 54' 00.0\"");

    // Back to a fixed view: the offset lines are cleared.
    map.SetOrientation(Fixed(PolarCoord(84.0, 0.0), 30.0));
    EXPECT_EQ(item.GetLine(0), "Type: Fixed");
    EXPECT_EQ(item.GetLine(6), "");
    EXPECT_EQ(item.GetLine(7), "");
}

TEST_F(AstroStatusWindowTest, ACentreChosenWhileTheTimeWaitsReachesTheBlockWithTheDraw)
{
    MapWindow& map = Open();
    const OrientationStatusItem& item = map.GetOrientationItem();
    map.SetTime(At(1, 1, 2000, 0));
    map.ChangeCenterOfView(PolarCoord(120.0, 10.0));
    EXPECT_EQ(item.GetLine(2), "Center RA:  05h 36m 00.0s") << "not applied yet";
    Pump();
    EXPECT_EQ(item.GetLine(2), "Center RA:  08h 00m 00.0s");
}

TEST_F(AstroStatusWindowTest, TheMoonBlockShowsThePhaseEvenWithThePlanetsHidden)
{
    MapWindow& map = Open();
    const MoonStatusItem& item = map.GetMoonItem();
    EXPECT_EQ(item.GetHeading(), "Moon: ");
    ASSERT_EQ(item.GetLineCount(), 1u);

    // Full Moon on 2024 January 25 at 17:54 UT, first quarter on January 18 at 3:53 UT, new
    // Moon on February 9 at 22:59 UT: 180, 90 and 0 (or 360) degrees from the Sun.
    map.SetTime(At(25, 1, 2024, 17, 54));
    Pump();
    EXPECT_NEAR(PhaseOf(item), 180.0, 0.5);

    map.ShowPlanets(false);
    map.SetTime(At(18, 1, 2024, 3, 53));
    Pump();
    EXPECT_NEAR(PhaseOf(item), 90.0, 0.5);

    map.SetTime(At(9, 2, 2024, 22, 59));
    Pump();
    const double phase = PhaseOf(item);
    EXPECT_NEAR(std::min(phase, 360.0 - phase), 0.0, 0.5);
}

TEST_F(AstroStatusWindowTest, ARestoredViewFillsTheAttachedPanelAtOnce)
{
    MapWindow& map = Open();
    map.SetOrientation(Fixed(PolarCoord(56.75, 24.1167), 5.0));
    map.SetTime(At(3, 3, 1999, 12, 5, 9));
    CmdLineStateContainer out;
    out << AstroKey("MapWindow") << map;
    map.SetOrientation(Fixed(PolarCoord(84.0, 0.0), 30.0));
    map.SetTime(At(4, 7, 2024, 16, 30));
    Pump();

    CmdLineStateContainer in{HostCmdLine(out.GetCmdLine().GetRawText())};
    in >> AstroKey("MapWindow") >> map;
    EXPECT_EQ(map.GetOrientationItem().GetLine(1), "Field of View: 10");
    EXPECT_EQ(map.GetOrientationItem().GetLine(2), "Center RA:  03h 47m 00.0s");
    EXPECT_EQ(LinesOf(map.GetTimeItem()),
              (std::vector<std::string>{"March 3, 1999", "12:05:09pm"}));
    EXPECT_EQ(map.GetMoonItem().GetLine(0).rfind("Phase: ", 0), 0u);
}

TEST_F(AstroStatusWindowTest, BlocksOfAMapWithoutAPanelAreStillKept)
{
    MapWindow& map = Open(false);
    map.DetachStatusWindow();
    map.SetOrientation(Fixed(PolarCoord(90.0, 0.0), 5.0));
    EXPECT_EQ(map.GetOrientationItem().GetLine(1), "Field of View: 10");
    pHost->Create();
    map.SetTime(At(4, 7, 2024, 16, 30));
    Pump();
    EXPECT_EQ(map.GetTimeItem().GetLine(0), "July 4, 2024");

    // Without a panel a refresh leaves the blocks alone.
    map.SetTimeZone(NewYork());
    map.RefreshAllStatus();
    EXPECT_EQ(map.GetTimeItem().GetLine(1), "4:30:00pm");
}

TEST_F(AstroStatusWindowTest, ThePointerBlockShowsTheSkyUnderAPoint)
{
    MapWindow& map = Open(false);
    const PositionStatusItem& item = map.GetPointerItem();
    EXPECT_EQ(item.GetHeading(), "Pointer Position: ");
    EXPECT_FALSE(map.ShowPointerPosition(TPoint(10, 10))) << "no draw yet";
    EXPECT_EQ(LinesOf(item), (std::vector<std::string>{"", ""}));

    pHost->Create();
    map.SetOrientation(Fixed(PolarCoord(90.0, -30.5), 20.0));
    Pump();
    ASSERT_TRUE(map.ShowPointerPosition(TPoint(kMapWidth / 2, kHeight / 2)));
    EXPECT_EQ(LinesOf(item), (std::vector<std::string>{"RA: (90)06h 00m 00.0s",
                                                       "Dec: (-30.5)- 30\xB0 30' 00.0\""}));
}

TEST_F(AstroStatusWindowTest, ThePanelStacksItsBlocksAsWideAsItselfEachARowPerLine)
{
    Open();
    AstroStatusWindow& panel = Panel();
    const MapWindow& map = Map();
    EXPECT_EQ(map.GetStatusWindow(), &panel);

    // From top to bottom: pointer, time, orientation, Moon, each a heading and its lines.
    const int height = panel.GetFontHeight();
    ASSERT_GT(height, 0);
    const std::vector<const TextStatusItem*> order = {
        &map.GetPointerItem(), &map.GetTimeItem(), &map.GetOrientationItem(), &map.GetMoonItem()};
    const std::vector<int> rows = {3, 3, 9, 2};
    const TGadget* gadget = panel.FirstGadget();
    int top = 2;
    for (std::size_t i = 0; i < order.size(); ++i) {
        ASSERT_EQ(gadget, order[i]) << i;
        EXPECT_EQ(gadget->GetId(), int(i) + 1);
        EXPECT_EQ(gadget->GetBounds(), TRect(2, top, kPanelWidth - 2, top + rows[i] * height));
        top += rows[i] * height;
        gadget = panel.NextGadget(*gadget);
    }
    EXPECT_EQ(gadget, nullptr);
}

TEST(AstroStatusItem, ABlockWantsThirtyCharactersAndTheIndentAcrossAndARowPerLineDown)
{
    // Outside a panel there is no font to measure.
    MoonStatusItem moon;
    EXPECT_EQ(moon.GetCharacterWidth(), 0);
    EXPECT_EQ(moon.GetIndent(), 0);

    // A character is the mean of the font's average and widest one.
    const TGadgetWindowFont font(8, false, false);
    AstroStatusWindow panel(nullptr, &font);
    panel.Insert(moon);
    const TEXTMETRIC& metrics = panel.GetFont().GetInstance()->GetMetrics();
    const int character = int((metrics.tmAveCharWidth + metrics.tmMaxCharWidth) / 2);
    ASSERT_GT(metrics.tmMaxCharWidth, metrics.tmAveCharWidth);
    EXPECT_EQ(moon.GetCharacterWidth(), character);
    EXPECT_EQ(moon.GetIndent(), 2 * character);
    TSize wanted;
    moon.GetDesiredSize(wanted);
    EXPECT_EQ(wanted, TSize(32 * character, 2 * panel.GetFontHeight()));

    // A side that does not shrink-wrap keeps only the borders and margins.
    moon.SetShrinkWrap(false, true);
    moon.GetDesiredSize(wanted);
    EXPECT_EQ(wanted.cx, 0);
    moon.SetShrinkWrap(true, false);
    moon.GetDesiredSize(wanted);
    EXPECT_EQ(wanted.cy, 0);
}

TEST_F(AstroStatusWindowTest, ThePanelPaintsHeadingsAndIndentedLinesAndRepaintsAChangedBlock)
{
    MapWindow& map = Open();
    map.SetOrientation(Fixed(PolarCoord(90.0, -30.5), 12.5));
    map.SetTime(At(3, 3, 1999, 12, 5, 9));
    Pump();
    auto picture = PanelPicture();
    ASSERT_EQ(picture->Width(), kPanelWidth);

    // Headings stand at the left of each block, lines at the indent; empty lines leave their
    // rows bare.
    const int indent = map.GetTimeItem().GetIndent();
    const std::vector<const TextStatusItem*> blocks = {
        &map.GetPointerItem(), &map.GetTimeItem(), &map.GetOrientationItem(), &map.GetMoonItem()};
    for (const TextStatusItem* block : blocks) {
        const int left = block->GetBounds().left;
        const int heading = FirstInk(*picture, RowOf(*block, 0));
        EXPECT_GE(heading, left) << block->GetHeading();
        EXPECT_LT(heading, left + indent) << block->GetHeading();
        for (std::size_t i = 0; i < block->GetLineCount(); ++i) {
            const int ink = FirstInk(*picture, RowOf(*block, int(i) + 1));
            if (block->GetLine(i).empty()) {
                EXPECT_EQ(ink, -1) << block->GetHeading() << " line " << i;
            } else {
                EXPECT_GE(ink, left + indent) << block->GetHeading() << " line " << i;
            }
        }
    }

    // The time block's rows show just its texts.
    const TimeStatusItem& time = map.GetTimeItem();
    const int left = time.GetBounds().left;
    EXPECT_TRUE(Shows(*picture, "Date/Time: ", left, RowOf(time, 0)));
    EXPECT_TRUE(Shows(*picture, "March 3, 1999", left + indent, RowOf(time, 1)));
    EXPECT_TRUE(Shows(*picture, "12:05:09pm", left + indent, RowOf(time, 2)));

    // A new time paints the block again, with nothing of the longer old text left behind.
    map.SetTime(At(4, 5, 1999, 1, 2, 3));
    Pump();
    picture = PanelPicture();
    EXPECT_TRUE(Shows(*picture, "May 4, 1999", left + indent, RowOf(time, 1)));
    EXPECT_TRUE(Shows(*picture, "1:02:03am", left + indent, RowOf(time, 2)));
}
