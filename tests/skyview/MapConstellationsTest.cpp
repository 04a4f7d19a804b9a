// The constellations on the map, from the shipped files: the names shown by default, figures
// and boundaries when turned on, nothing asked for when nothing is shown, the change of
// settings and what it raises, and the settings in the map's state and in Copy.
#include <gtest/gtest.h>

#include <string>

#include "MapFixture.h"
#include "catalogues/Constellation.h"
#include "host/HostCmdLine.h"
#include "state/CmdLineStateContainer.h"

namespace {

bool Lists(const MapWindow& map, const std::string& name)
{
    for (AstroObject* object : map.GetVisibleObjects()) {
        if (object->GetType() == AstroObject::ObjectType::Constellation &&
            object->GetListName() == name) {
            return true;
        }
    }
    return false;
}

int ConstellationsListed(const MapWindow& map)
{
    int n = 0;
    for (AstroObject* object : map.GetVisibleObjects()) {
        n += object->GetType() == AstroObject::ObjectType::Constellation;
    }
    return n;
}

} // namespace

class MapConstellationsTest : public MapTest
{
protected:
    int CountPixels(const TColor& color)
    {
        const unsigned index = HostPalette().GetNearestPaletteIndex(color);
        int n = 0;
        Surface& bits = Bitmap();
        for (int y = 0; y < bits.Height(); ++y) {
            for (int x = 0; x < bits.Width(); ++x) {
                n += bits.ValueAt(x, y) == index;
            }
        }
        return n;
    }

    static const TColor kFigures;
    static const TColor kBoundaries;
    static const TColor kNames;
};

const TColor MapConstellationsTest::kFigures(0, 255, 0);
const TColor MapConstellationsTest::kBoundaries(255, 0, 0);
const TColor MapConstellationsTest::kNames(255, 128, 0);

TEST_F(MapConstellationsTest, ANewMapNamesTheConstellationsOfOrionsSky)
{
    MapWindow& map = Open(320, 240);
    EXPECT_EQ(map.GetConstellationSettings(), ConstellationSettings());
    EXPECT_TRUE(Lists(map, "Orion"));
    EXPECT_TRUE(Lists(map, "Taurus"));
    EXPECT_GT(CountPixels(kNames), 50);
    EXPECT_EQ(CountPixels(kFigures), 0);

    // A narrower field lists fewer: the far north and south are gone.
    map.SetFieldRadius(15.0);
    Pump();
    EXPECT_TRUE(Lists(map, "Orion"));
    EXPECT_FALSE(Lists(map, "Crux"));
    EXPECT_FALSE(Lists(map, "Ursa Minor"));
}

TEST_F(MapConstellationsTest, FiguresAndBoundariesAppearWhenTurnedOnAndEverythingIsRedrawn)
{
    MapWindow& map = Open(320, 240);
    ASSERT_FALSE(map.IsTransformationDirty());
    map.SetConstellationSettings(ConstellationSettings(true, true, false));
    EXPECT_TRUE(map.IsTransformationDirty());
    EXPECT_TRUE(map.IsGridDirty());
    EXPECT_TRUE(map.IsTimeDirty());
    EXPECT_TRUE(map.IsStatusDirty());
    EXPECT_TRUE(map.AreLabelsDirty());
    EXPECT_EQ(map.GetWaitCursorDepth(), 0u);
    // The catalogue was loaded for the names: the boundaries wait for their first draw.
    EXPECT_FALSE(map.GetCollector().GetConstellationCatalogue().IsBoundaryLoaded());
    Pump();
    EXPECT_TRUE(map.GetCollector().GetConstellationCatalogue().IsBoundaryLoaded());
    EXPECT_GT(CountPixels(kFigures), 100);
    EXPECT_GT(CountPixels(kBoundaries), 100);
    EXPECT_EQ(CountPixels(kNames), 0);

    // The same settings again change nothing.
    map.SetConstellationSettings(ConstellationSettings(true, true, false));
    EXPECT_FALSE(map.IsTransformationDirty());
}

TEST_F(MapConstellationsTest, NothingShownAsksForNoConstellations)
{
    MapWindow& map = Open(320, 240);
    ASSERT_GT(ConstellationsListed(map), 0);
    map.SetConstellationSettings(ConstellationSettings(false, false, false));
    Pump();
    EXPECT_EQ(ConstellationsListed(map), 0);
    EXPECT_EQ(CountPixels(kNames), 0);
}

TEST_F(MapConstellationsTest, SettingsGoIntoBothStatesAndComeBack)
{
    MapWindow& map = Open(64, 40);
    map.SetConstellationSettings(ConstellationSettings(true, false, false));

    CmdLineStateContainer out;
    out << AstroKey("MapWindow") << map;
    const std::string full = out.GetCmdLine().GetRawText();
    EXPECT_NE(full.find("Constellations=<Show_Figures=1 Show_Boundaries=0 Show_Labels=0>"),
              std::string::npos)
        << full;
    MapWindow copy(nullptr);
    CmdLineStateContainer in{HostCmdLine(full)};
    in >> AstroKey("MapWindow") >> copy;
    EXPECT_EQ(copy.GetConstellationSettings(), ConstellationSettings(true, false, false));

    CmdLineStateContainer defaults;
    map.SaveDefaultState(defaults);
    MapWindow restored(nullptr);
    CmdLineStateContainer defaultsIn{HostCmdLine(defaults.GetCmdLine().GetRawText())};
    restored.RestoreDefaultState(defaultsIn);
    EXPECT_EQ(restored.GetConstellationSettings(), ConstellationSettings(true, false, false));
}

TEST_F(MapConstellationsTest, CopyTakesTheOtherMapsConstellationSettings)
{
    MapWindow& map = Open(64, 40);
    MapWindow other(nullptr);
    other.SetConstellationSettings(ConstellationSettings(false, true, true));
    map.Copy(other);
    EXPECT_EQ(map.GetConstellationSettings(), ConstellationSettings(false, true, true));
}
