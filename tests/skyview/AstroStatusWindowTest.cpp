// The status display: the texts of the panel's blocks beside the map (pointer, time,
// orientation, Moon, from top to bottom) for known map states and under the mouse, and the red
// status line on the map itself.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "MapFixture.h"
#include "host/ScopedHome.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/TextStatusItem.h"
#include "time/TimeZone.h"

namespace {

AstroTime At(unsigned day, unsigned month, long year, int hour, int minute = 0, int second = 0)
{
    return AstroTime(day, month, year, hour + minute / 60.0 + second / 3600.0);
}

class AstroStatusWindowTest : public MapTest
{
protected:
    RecordingMap& OpenWithPanel()
    {
        Make(200, 330, false, 220);
        pHost->Create();
        Pump();
        return Map();
    }
    // The lines of the panel's block `index`: 0 pointer, 1 time, 2 orientation, 3 Moon.
    std::vector<std::string> Lines(int index)
    {
        const TGadget* gadget = pHost->pPanel->FirstGadget();
        for (int i = 0; i < index; ++i) {
            gadget = pHost->pPanel->NextGadget(*gadget);
        }
        const auto& block = dynamic_cast<const TextStatusItem&>(*gadget);
        std::vector<std::string> lines = {block.GetHeading()};
        for (std::size_t i = 0; i < block.GetLineCount(); ++i) {
            lines.push_back(block.GetLine(i));
        }
        return lines;
    }
};

} // namespace

TEST_F(AstroStatusWindowTest, TheTimeIsShownInTheMapsZoneInThePanelAndInRedOnTheMap)
{
    // New York: five hours behind Universal Time, four in summer; the profile may ask for a
    // twenty-four hour clock.
    TimeZone newYork;
    ASSERT_TRUE(TimeZone::FromRule("EST5EDT,M3.2.0,M11.1.0", newYork));
    for (const auto& [military, time, date, clock] :
         std::vector<std::tuple<bool, AstroTime, std::string, std::string>>{
             {false, At(4, 7, 2024, 16, 30), "July 4, 2024", "12:30:00pm"},
             {false, At(15, 1, 2024, 17), "January 15, 2024", "12:00:00pm"},
             {false, At(15, 1, 2024, 16, 59, 59), "January 15, 2024", "11:59:59am"},
             {false, At(1, 1, 2000, 3), "December 31, 1999", "10:00:00pm"},
             {true, At(15, 1, 2024, 22, 45), "January 15, 2024", "17:45:00"},
         }) {
        ScopedHome home;
        home.WriteFile("orbiscope.ini", military ? "[Orbiscope]\nMilitaryTime=1\n" : "");
        RecordingMap& map = OpenWithPanel();
        map.SetTimeZone(newYork);
        map.SetLocationName("New York");
        map.SetTime(time);
        Pump();
        EXPECT_EQ(Lines(1), (std::vector<std::string>{"Date/Time: ", date, clock}));
        EXPECT_EQ(map.GetStatusText(), clock + " " + date + "  New York");
        EXPECT_GT(CountValue(Bitmap(), IndexOf(TColor(255, 0, 0))), 50) << "in red on the map";
        pHost->Destroy();
    }
}

TEST_F(AstroStatusWindowTest, TheOrientationBlockTellsAFixedViewOrOneFromTheGroundThroughTime)
{
    RecordingMap& map = OpenWithPanel();
    map.SetOrientation(NorthUp(PolarCoord(90.0, -30.5), 12.5));
    EXPECT_EQ(Lines(2), (std::vector<std::string>{
                            "Orientation: ",
                            "Type: Fixed",
                            "Field of View: 25",
                            "Center RA:  06h 00m 00.0s",
                            "Center Dec: - 30\xB0 30' 00.0\"",
                            "Zenith RA:  06h 00m 00.0s",
                            "Zenith Dec: + 90\xB0 00' 00.0\"",
                            "",
                            "",
                        }));
    // The field is the whole width of the view, without trailing zeros; one too wide is refused.
    // A negative RA is written as the hours of the day it stands for.
    map.SetFieldRadius(0.125);
    map.SetFieldRadius(95.0);
    map.ChangeCenterOfView(PolarCoord(-15.0, 10.0));
    EXPECT_EQ(Lines(2)[2], "Field of View: 0.25");
    EXPECT_EQ(Lines(2)[3], "Center RA:  23h 00m 00.0s");

    // 2000 January 1 at 6h UT: the mean sidereal time at longitude 122.4 west is 4h 31m 15.4s,
    // an hour later 5h 31m 25.3s.
    map.SetTime(At(1, 1, 2000, 6));
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(37.8, 122.4),
                                               PolarCoord(270.0, 60.0), 20.0, true));
    Pump();
    const std::vector<std::string> before = Lines(2);
    EXPECT_EQ(before[1], "Type: Rotating");
    EXPECT_EQ(before[5], "Zenith RA:  04h 31m 15.4s");
    EXPECT_EQ(before[7], "Offset RA: 270");
    map.SetTime(At(1, 1, 2000, 7));
    Pump();
    EXPECT_EQ(Lines(2)[5], "Zenith RA:  05h 31m 25.3s");
    EXPECT_NE(Lines(2)[3], before[3]) << "the centre turned with the sky";
    // Back to a fixed view the offset lines are cleared.
    map.SetOrientation(NorthUp(Orion(), 30.0));
    EXPECT_EQ(Lines(2)[7], "");
}

TEST_F(AstroStatusWindowTest, TheMoonBlockShowsThePhaseAtTheMapsTimeEvenWithThePlanetsHidden)
{
    // Full Moon on 2024 January 25 at 17:54 UT: 180 degrees from the Sun, written as a stream
    // writes a double, at most six digits.
    RecordingMap& map = OpenWithPanel();
    map.ShowPlanets(false);
    map.SetTime(At(25, 1, 2024, 17, 54));
    Pump();
    const std::string line = Lines(3).at(1);
    ASSERT_EQ(line.rfind("Phase: 1", 0), 0u) << line;
    EXPECT_NEAR(std::stod(line.substr(7)), 180.0, 0.5) << line;
    EXPECT_LE(line.size(), 7u + 7u) << line;
}

TEST_F(AstroStatusWindowTest, ThePointerBlockFollowsTheMouseWithAzimuthAndAltitudeFromTheGround)
{
    // In the middle of the map: Orion's centre; then, from the ground, the direction of view,
    // south (a compass's 180) 30 degrees up. Off the map's sky the block is empty.
    RecordingMap& map = OpenWithPanel();
    auto pointAt = [&](const TPoint& point) {
        Desk().MouseMove(map.ClientToScreen(point));
        Pump();
        return Lines(0);
    };
    std::vector<std::string> lines = pointAt(TPoint(100, 165));
    EXPECT_NE(lines.at(1).find("05h 36m 00.0s"), std::string::npos) << lines[1];
    EXPECT_NE(lines.at(2).find("+ 00\xB0 00' 00.0\""), std::string::npos) << lines[2];
    EXPECT_EQ(lines.at(3), "");
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(50.0, 0.0),
                                               PolarCoord(180.0, 60.0), 20.0, true));
    Pump();
    lines = pointAt(TPoint(100, 166));
    ASSERT_EQ(lines.at(3).rfind("Azimuth: ", 0), 0u) << lines[3];
    EXPECT_NEAR(std::stod(lines[3].substr(9)), 180.0, 0.2) << lines[3];
    ASSERT_EQ(lines.at(4).rfind("Altitude: ", 0), 0u) << lines[4];
    EXPECT_NEAR(std::stod(lines[4].substr(10)), 30.0, 0.2) << lines[4];
    map.SetOrientation(NorthUp(Orion(), 90.0));
    Pump();
    EXPECT_EQ(pointAt(TPoint(1, 1)).at(1), "");
}
