// Command strings that name an object, as the links of the host's articles hold them: by
// catalogue word and reference name ("stringref") or by uid ("uid"). Each brings the object
// into view; one that names nothing changes nothing.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ComponentInFrame.h"
#include "catalogues/AstroObject.h"
#include "catalogues/Constellation.h"
#include "catalogues/ConstellationCatalogue.h"
#include "coords/StellarCoord.h"
#include "projection/FixedOrientationInfo.h"
#include "skyview/MapWindow.h"
#include "solar/PlanetCatalogue.h"

namespace {

// A chart fixed on the stars at 0h UT on 2000 January 1: it shows whatever is named without
// asking about the horizon, and its bodies stand where they stood then.
const char* const kChart =
    "FullState=1 AstroNoxWindow=<MapWindow=<Orientation_Type=0 Orientation=<Base=<Radius=20> "
    "CenterOfView=<RA=0 Dec=0> Zenith=<RA=0 Dec=90>> Time=<Year=2000 Month=1 Day=1 Hour=0 "
    "Minute=0 Second=0 Mode=0>>>";
const PolarCoord kChartCentre(0.0, 0.0);

class CommandStringTest : public ComponentInFrame
{
protected:
    // The component in the frame, unpainted.
    AstroNoxWindow& EnterUnpainted(const char* command)
    {
        AstroNoxWindow* window = Enter(command);
        EXPECT_NE(window, nullptr);
        return *window;
    }

    // The component showing the chart, painted.
    AstroNoxWindow& StartOnTheChart()
    {
        AstroNoxWindow& window = EnterUnpainted(kChart);
        Pump();
        return window;
    }

    // Acts on the command and lets the map draw what it did.
    PolarCoord CentreAfter(AstroNoxWindow& window, const std::string& command)
    {
        window.HandleCommandString(command);
        Pump();
        return window.GetMap()->GetOrientation().GetCenterOfView();
    }

    // Back to the chart's own centre between two commands.
    void Recentre(AstroNoxWindow& window)
    {
        window.GetMap()->ChangeCenterOfView(kChartCentre);
        Pump();
    }

    PlanetView& Body(AstroNoxWindow& window, unsigned place)
    {
        return *window.GetMap()->GetCollector().GetPlanetCatalogue().GetView(place);
    }
};

} // namespace

TEST_F(CommandStringTest, AStarIsFoundByNameWhateverTheCaseOfTheWordAndTheName)
{
    AstroNoxWindow& window = StartOnTheChart();
    MapWindow& map = *window.GetMap();
    ASSERT_EQ(map.GetOrientation().GetCenterOfView(), kChartCentre);
    // Sirius: RA 6h 45m 09s, Dec -16 43'.
    for (const char* command :
         {"stringref=star,Sirius", "stringref=STAR,sirius", "orbiscope stringref=Star,SIRIUS"}) {
        const PolarCoord centre = CentreAfter(window, command);
        EXPECT_NEAR(centre.GetRA().GetDegrees(), 101.29, 0.05) << command;
        EXPECT_NEAR(centre.GetDec().GetDegrees(), -16.72, 0.05) << command;
        EXPECT_EQ(map.GetLastTargetName(), "Sirius") << command;
        Recentre(window);
    }
}

TEST_F(CommandStringTest, PlanetsConstellationsAndMessierObjectsAreFoundByTheirWords)
{
    AstroNoxWindow& window = StartOnTheChart();
    MapWindow& map = *window.GetMap();

    EXPECT_EQ(CentreAfter(window, "stringref=Planet,mars"), Body(window, 3).GetPosition());
    EXPECT_EQ(map.GetLastTargetName(), "Mars");

    Constellation* orion =
        map.GetCollector().GetConstellationCatalogue().GetConstellation("Orion", false);
    ASSERT_NE(orion, nullptr);
    EXPECT_EQ(CentreAfter(window, "stringref=constellation,ORION"), orion->GetCenter());

    map.ShowMessierObjects(false);
    AstroObject* m42 = map.GetObjectFromUid(AstroObject::kUidBase + 142);
    ASSERT_NE(m42, nullptr);
    EXPECT_EQ(CentreAfter(window, "stringref=Messier,m42"), m42->GetPosition());
    EXPECT_TRUE(map.IsShowingMessier()) << "what was located is shown";
    m42->ReleaseReference();
}

TEST_F(CommandStringTest, AReferenceThatNamesNothingChangesNothing)
{
    AstroNoxWindow& window = StartOnTheChart();
    const MapWindow& map = *window.GetMap();
    for (const char* command :
         {"stringref=Planet", "stringref=Planet,", "stringref=,Mars", "stringref=Comet,Halley",
          "stringref=Planet,Vulcan", "stringref=Planets,Mars", "stringref=Planet,Sun",
          "stringref=Star,Nowhere", "uid=1879048191", "uid=abc", "uid=", "uid=-5", "uid=1879048494",
          "uid=1879048292", "uid=99999999999", "uid=0x7FFFFFFF"}) {
        EXPECT_EQ(CentreAfter(window, command), kChartCentre) << command;
        EXPECT_EQ(map.GetLastTargetName(), StellarCoord(kChartCentre).GetDescription()) << command;
    }
}

TEST_F(CommandStringTest, TheUidsOfTheSunAndTheMoonShowThem)
{
    AstroNoxWindow& window = StartOnTheChart();
    // The base 0x70000000 plus 311 and plus 310.
    EXPECT_EQ(CentreAfter(window, "uid=1879048503"),
              Body(window, PlanetCatalogue::kSunPlace).GetPosition());
    EXPECT_EQ(CentreAfter(window, "uid=1879048502"),
              Body(window, PlanetCatalogue::kMoonPlace).GetPosition());
    // Hexadecimal serves as well: Orion, the 60th name of the table.
    Constellation* orion =
        window.GetMap()->GetCollector().GetConstellationCatalogue().GetConstellation("Orion",
                                                                                     false);
    ASSERT_NE(orion, nullptr);
    EXPECT_EQ(CentreAfter(window, "uid=0x7000003C"), orion->GetCenter());
}

TEST_F(CommandStringTest, AStringRefWinsOverAUid)
{
    AstroNoxWindow& window = StartOnTheChart();
    EXPECT_EQ(CentreAfter(window, "uid=1879048503 stringref=Planet,Mars"),
              Body(window, 3).GetPosition());
}

TEST_F(CommandStringTest, AnObjectNamedToTheEntryWaitsForTheFirstPaint)
{
    AstroNoxWindow& window = EnterUnpainted("stringref=Planet,Jupiter");
    MapWindow& map = *window.GetMap();
    ASSERT_TRUE(map.IsFirstDrawPending());
    // Before the first paint the host gives the view a chart, so that no horizon is in the way.
    map.SetOrientation(FixedOrientationInfo(map.GetCollector().GetOrigin(), kChartCentre,
                                            PolarCoord(0.0, 90.0), 20.0));
    map.SetTime(AstroTime(1, 1, 2000, 0.0));
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), kChartCentre);
    Pump();
    EXPECT_FALSE(map.IsFirstDrawPending());
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), Body(window, 4).GetPosition());
    EXPECT_EQ(map.GetLastTargetName(), "Jupiter");
}
