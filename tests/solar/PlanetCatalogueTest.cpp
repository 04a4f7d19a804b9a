// The eleven views in their fixed places, seen from the Earth, found by name without regard to
// case, their label option in saved state, and requests answered with the Moon timed after the
// Earth.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "projection/Transformation.h"
#include "skyview/DisplayParameters.h"
#include "skyview/SkyCanvas.h"
#include "solar/PlanetCatalogue.h"
#include "state/CmdLineStateContainer.h"

namespace {

AstroTime AtCenturies(double T)
{
    return AstroTime(51544.5 + T * 36525.0, false);
}

template <class List>
std::vector<std::string> Names(const List& list)
{
    std::vector<std::string> names;
    for (const AstroObject* object : list) {
        names.push_back(object->GetListName());
    }
    return names;
}

class PlanetCatalogueTest : public ::testing::Test
{
protected:
    // A request for a view of a 200-pixel square sky.
    Request Looking(const PolarCoord& centre, double radius, const AstroTime& time)
    {
        Transformation view(Canvas.GetDC(), TRect(0, 0, 200, 200), centre, radius,
                            PolarCoord(0.0, 90.0));
        return Request(view, CatalogueSet(AstroCatalogue::PLANETS), time, 6.0);
    }

    PlanetCatalogue Planets;
    SkyCanvas Canvas{200, 200};
    AstroList List{20, 10};
};

} // namespace

TEST_F(PlanetCatalogueTest, ElevenViewsInTheirFixedPlacesSeenFromTheEarth)
{
    // The uids go into saved views and command strings; the Earth, the origin, is not shown.
    const char* const names[] = {"Mercury", "Venus",   "Earth", "Mars", "Jupiter", "Saturn",
                                 "Uranus",  "Neptune", "Pluto", "Sun",  "Moon"};
    const std::uint32_t uids[] = {300, 301, 302, 303, 304, 305, 306, 307, 308, 311, 310};
    // Loading again makes new bodies, and the new Earth is the origin.
    Planets.Load();
    ASSERT_EQ(Planets.GetCount(), std::size_t(PlanetCatalogue::kViewCount));
    SolarSystemObject* earth = Planets.GetSolarSystemObject(PlanetCatalogue::kEarthPlace);
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        const PlanetView* view = Planets.GetView(i);
        EXPECT_EQ(view->GetRefName(), names[i]) << i;
        EXPECT_EQ(view->GetUid(), AstroObject::kUidBase + uids[i]) << names[i];
        EXPECT_EQ(view->GetType(), i == PlanetCatalogue::kSunPlace ? AstroObject::ObjectType::Star
                                   : i == PlanetCatalogue::kMoonPlace
                                       ? AstroObject::ObjectType::Moon
                                       : AstroObject::ObjectType::Planet)
            << names[i];
        EXPECT_EQ(view->GetOrigin(), earth) << names[i];
        EXPECT_EQ(view->IsVisible(), i != PlanetCatalogue::kEarthPlace) << names[i];
    }
}

TEST_F(PlanetCatalogueTest, NamedListLeavesOutTheSunTheMoonAndTheEarthWhichLookupFinds)
{
    auto list = Planets.GetListOfNamedObjects();
    EXPECT_FALSE(list->OwnsElements());
    EXPECT_EQ(Names(*list), (std::vector<std::string>{"Mercury", "Venus", "Mars", "Jupiter",
                                                      "Saturn", "Uranus", "Neptune", "Pluto"}));
    EXPECT_EQ(Planets.GetObjectByName("JUPITER"), Planets.GetView(4));
    EXPECT_EQ(Planets.GetObjectByName("sun"), Planets.GetView(PlanetCatalogue::kSunPlace));
    EXPECT_EQ(Planets.GetObjectByName("eArTh"), Planets.GetView(PlanetCatalogue::kEarthPlace));
    EXPECT_EQ(Planets.GetObjectByName("Mars "), nullptr);
}

TEST_F(PlanetCatalogueTest, LabelOptionGoesThroughSavedStateToEveryView)
{
    PlanetOptions off;
    off.bShowLabels = false;
    Planets.SetOptions(off);
    CmdLineStateContainer writer;
    writer << AstroKey("Planets") << Planets;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Planets=<Show_Labels=0>");

    PlanetCatalogue restored;
    DisplayParameters parameters;
    EXPECT_TRUE(restored.GetView(5)->IsLabeled(parameters));
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("Planets") >> restored;
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        EXPECT_FALSE(restored.GetView(i)->IsLabeled(parameters)) << i;
    }
}

TEST_F(PlanetCatalogueTest, EachHalfOfTheSkyAtTheEpochHoldsItsBodiesButNeverTheEarth)
{
    // In January 2000 Jupiter and Saturn stood in Pisces and Aries, north of the equator; the
    // Sun, the Moon and the other planets south of it. The bodies start at another time, so
    // the Earth must take the request's time before Mercury and Venus are placed, and the Moon
    // after it: the Moon then stands at its published apparent place.
    Planets.SetTime(AtCenturies(0.3));
    Planets.SatisfyRequest(Looking(PolarCoord(0.0, 90.0), 90.0, AtCenturies(0.0)), List);
    EXPECT_EQ(Names(List), (std::vector<std::string>{"Jupiter", "Saturn"}));
    AstroList south(20, 10);
    Planets.SatisfyRequest(Looking(PolarCoord(0.0, -90.0), 90.0, AtCenturies(0.0)), south);
    EXPECT_EQ(Names(south), (std::vector<std::string>{"Mercury", "Venus", "Mars", "Uranus",
                                                      "Neptune", "Pluto", "Sun", "Moon"}));
    PlanetView* moon = Planets.GetView(PlanetCatalogue::kMoonPlace);
    EXPECT_NEAR(moon->GetPosition().GetRA().GetDegrees(), 222.4406, 0.00005);
    EXPECT_NEAR(moon->GetPosition().GetDec().GetDegrees(), -10.8974, 0.00005);

    // A narrow view on the Moon holds the Moon alone, at its centre.
    AstroList narrow(5, 5);
    Planets.SatisfyRequest(Looking(moon->GetPosition(), 5.0, AtCenturies(0.0)), narrow);
    ASSERT_EQ(narrow.GetCount(), 1u);
    EXPECT_EQ(narrow[0], moon);
    EXPECT_EQ(moon->GetDisplayPoint(), TPoint(100, 100));
}
