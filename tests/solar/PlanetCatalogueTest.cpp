// The eleven views in their fixed places, seen from the Earth, found by name without regard to
// case, timed together with the Moon after the Earth, and their label option in saved state.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "projection/Transformation.h"
#include "skyview/DisplayParameters.h"
#include "skyview/SkyCanvas.h"
#include "solar/Earth200.h"
#include "solar/Moon.h"
#include "solar/PlanetCatalogue.h"
#include "solar/SeriesMath.h"
#include "solar/Sun200.h"
#include "state/CmdLineStateContainer.h"

namespace {

AstroTime AtCenturies(double T)
{
    return AstroTime(51544.5 + T * 36525.0, false);
}

std::vector<std::string> Names(const PointerVector<AstroObject>& list)
{
    std::vector<std::string> names;
    for (const AstroObject* object : list) {
        names.push_back(object->GetListName());
    }
    return names;
}

std::vector<std::string> Names(const AstroList& list)
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
    PlanetCatalogue Planets;
};

// Requests for views of a 200-pixel square sky.
class PlanetRequestTest : public PlanetCatalogueTest
{
protected:
    PlanetRequestTest() : Canvas(200, 200) {}

    Request Looking(const PolarCoord& centre, double radius, const AstroTime& time)
    {
        Transformation view(Canvas.GetDC(), TRect(0, 0, 200, 200), centre, radius,
                            PolarCoord(0.0, 90.0));
        return Request(view, CatalogueSet(AstroCatalogue::PLANETS), time, 6.0);
    }

    SkyCanvas Canvas;
    AstroList List{20, 10};
};

} // namespace

TEST_F(PlanetCatalogueTest, ElevenViewsInTheirFixedPlaces)
{
    struct Place
    {
        const char* Name;
        std::uint32_t UidOffset;
        AstroObject::ObjectType Type;
    };
    const Place places[] = {
        {"Mercury", 300, AstroObject::ObjectType::Planet},
        {"Venus", 301, AstroObject::ObjectType::Planet},
        {"Earth", 302, AstroObject::ObjectType::Planet},
        {"Mars", 303, AstroObject::ObjectType::Planet},
        {"Jupiter", 304, AstroObject::ObjectType::Planet},
        {"Saturn", 305, AstroObject::ObjectType::Planet},
        {"Uranus", 306, AstroObject::ObjectType::Planet},
        {"Neptune", 307, AstroObject::ObjectType::Planet},
        {"Pluto", 308, AstroObject::ObjectType::Planet},
        {"Sun", 311, AstroObject::ObjectType::Star},
        {"Moon", 310, AstroObject::ObjectType::Moon},
    };
    ASSERT_EQ(Planets.GetCount(), std::size_t(PlanetCatalogue::kViewCount));
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        SCOPED_TRACE(i);
        const PlanetView* view = Planets.GetView(i);
        ASSERT_NE(view, nullptr);
        EXPECT_EQ(view->GetRefName(), places[i].Name);
        EXPECT_EQ(view->GetUid(), AstroObject::kUidBase + places[i].UidOffset);
        EXPECT_EQ(view->GetType(), places[i].Type);
        EXPECT_EQ(Planets.GetSolarSystemObject(i), &view->GetSolarSystemObject());
    }
    EXPECT_EQ(Planets.GetView(PlanetCatalogue::kViewCount), nullptr);
    EXPECT_EQ(Planets.GetSolarSystemObject(PlanetCatalogue::kViewCount), nullptr);
    EXPECT_NE(dynamic_cast<Earth200*>(Planets.GetSolarSystemObject(PlanetCatalogue::kEarthPlace)),
              nullptr);
    EXPECT_NE(dynamic_cast<Sun200*>(Planets.GetSolarSystemObject(PlanetCatalogue::kSunPlace)),
              nullptr);
    EXPECT_NE(dynamic_cast<Moon*>(Planets.GetSolarSystemObject(PlanetCatalogue::kMoonPlace)),
              nullptr);
    EXPECT_TRUE(Planets.IsTimeDependent());
}

TEST_F(PlanetCatalogueTest, EveryViewSeesFromTheEarthWhichItselfIsHidden)
{
    SolarSystemObject* earth = Planets.GetSolarSystemObject(PlanetCatalogue::kEarthPlace);
    EXPECT_EQ(Planets.GetOrigin(), earth);
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        EXPECT_EQ(Planets.GetView(i)->GetOrigin(), earth) << i;
        EXPECT_EQ(Planets.GetView(i)->IsVisible(), i != PlanetCatalogue::kEarthPlace) << i;
    }
}

TEST_F(PlanetCatalogueTest, LoadingAgainMakesNewBodiesAndTheNewEarthTheOrigin)
{
    Planets.Load();
    ASSERT_EQ(Planets.GetCount(), std::size_t(PlanetCatalogue::kViewCount));
    SolarSystemObject* earth = Planets.GetSolarSystemObject(PlanetCatalogue::kEarthPlace);
    EXPECT_EQ(Planets.GetOrigin(), earth);
    EXPECT_EQ(Planets.GetView(4)->GetOrigin(), earth);
    EXPECT_FALSE(Planets.GetView(PlanetCatalogue::kEarthPlace)->IsVisible());
}

TEST_F(PlanetCatalogueTest, NamedListLeavesOutTheSunTheMoonAndTheEarth)
{
    auto list = Planets.GetListOfNamedObjects();
    ASSERT_NE(list, nullptr);
    EXPECT_FALSE(list->OwnsElements());
    EXPECT_EQ(Names(*list), (std::vector<std::string>{"Mercury", "Venus", "Mars", "Jupiter",
                                                      "Saturn", "Uranus", "Neptune", "Pluto"}));
    EXPECT_EQ((*list)[0], Planets.GetView(0));
}

TEST_F(PlanetCatalogueTest, LookupByNameIgnoresCaseAndFindsTheBodiesTheListLeavesOut)
{
    EXPECT_EQ(Planets.GetObjectByName("Mars"), Planets.GetView(3));
    EXPECT_EQ(Planets.GetObjectByName("mars"), Planets.GetView(3));
    EXPECT_EQ(Planets.GetObjectByName("JUPITER"), Planets.GetView(4));
    EXPECT_EQ(Planets.GetObjectByName("sun"), Planets.GetView(PlanetCatalogue::kSunPlace));
    EXPECT_EQ(Planets.GetObjectByName("Moon"), Planets.GetView(PlanetCatalogue::kMoonPlace));
    EXPECT_EQ(Planets.GetObjectByName("eArTh"), Planets.GetView(PlanetCatalogue::kEarthPlace));
    EXPECT_EQ(Planets.GetObjectByName("Vulcan"), nullptr);
    EXPECT_EQ(Planets.GetObjectByName(""), nullptr);
    EXPECT_EQ(Planets.GetObjectByName("Mars "), nullptr);
}

TEST_F(PlanetCatalogueTest, TimeReachesEveryBodyAndTheMoonFollowsTheEarth)
{
    const AstroTime when = AtCenturies(0.2);
    Planets.SetTime(when);
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        EXPECT_EQ(Planets.GetSolarSystemObject(i)->GetTime().GetMJD(), when.GetMJD()) << i;
    }
    // The Moon's place is that of a Moon computed from an Earth of the same time.
    Earth200 earth;
    Sun200 sun;
    Moon moon(earth, sun);
    earth.SetTime(when);
    sun.SetTime(when);
    moon.SetTime(when);
    const SphericalCoord expected = earth.GetApparentPlace(moon);
    const PolarCoord seen = Planets.GetView(PlanetCatalogue::kMoonPlace)->GetPosition();
    EXPECT_DOUBLE_EQ(seen.GetRA().GetDegrees(), expected.GetLongitude() * kDegreesPerRadian);
    EXPECT_DOUBLE_EQ(seen.GetDec().GetDegrees(), expected.GetLatitude() * kDegreesPerRadian);
}

TEST_F(PlanetCatalogueTest, LabelsFollowTheOption)
{
    DisplayParameters parameters;
    EXPECT_TRUE(Planets.GetOptions().bShowLabels);
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        EXPECT_TRUE(Planets.GetView(i)->IsLabeled(parameters)) << i;
    }
    PlanetOptions off;
    off.bShowLabels = false;
    Planets.SetOptions(off);
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        EXPECT_FALSE(Planets.GetView(i)->IsLabeled(parameters)) << i;
    }
    // A new load keeps the option.
    Planets.Load();
    EXPECT_FALSE(Planets.GetView(5)->IsLabeled(parameters));
}

TEST_F(PlanetCatalogueTest, OptionsGoThroughSavedState)
{
    PlanetOptions off;
    off.bShowLabels = false;
    Planets.SetOptions(off);
    CmdLineStateContainer writer;
    writer << AstroKey("Planets") << Planets;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Planets=<Show_Labels=0>");

    PlanetCatalogue restored;
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("Planets") >> restored;
    EXPECT_FALSE(restored.GetOptions().bShowLabels);
    DisplayParameters parameters;
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        EXPECT_FALSE(restored.GetView(i)->IsLabeled(parameters)) << i;
    }

    // Labels on, and back again.
    Planets.SetOptions(PlanetOptions());
    CmdLineStateContainer second;
    second << AstroKey("Planets") << Planets;
    CmdLineStateContainer secondReader(second.GetCmdLine());
    secondReader >> AstroKey("Planets") >> restored;
    EXPECT_TRUE(restored.GetView(0)->IsLabeled(parameters));
}

TEST_F(PlanetRequestTest, NorthernSkyAtTheEpochHoldsJupiterAndSaturnOnly)
{
    // The bodies start at another time, so the Earth must take the request's time before
    // Mercury and Venus are placed.
    Planets.SetTime(AtCenturies(0.3));
    // In January 2000 Jupiter and Saturn stood in Pisces and Aries, north of the equator;
    // the Sun, the Moon and the other planets were south of it.
    Planets.SatisfyRequest(Looking(PolarCoord(0.0, 90.0), 90.0, AtCenturies(0.0)), List);
    EXPECT_EQ(Names(List), (std::vector<std::string>{"Jupiter", "Saturn"}));
}

TEST_F(PlanetRequestTest, BodyAtTheCentreGetsTheCentrePointAndOthersStayOut)
{
    const AstroTime epoch = AtCenturies(0.0);
    Planets.SetTime(epoch);
    PlanetView* moon = Planets.GetView(PlanetCatalogue::kMoonPlace);
    Planets.SatisfyRequest(Looking(moon->GetPosition(), 5.0, epoch), List);
    ASSERT_EQ(List.GetCount(), 1u);
    EXPECT_EQ(List[0], moon);
    EXPECT_EQ(moon->GetDisplayPoint(), TPoint(100, 100));
}

TEST_F(PlanetRequestTest, RequestSetsTheTimeOnEveryBodyAndNeverListsTheEarth)
{
    // From the south celestial pole outwards the whole sky is in view.
    const AstroTime when = AtCenturies(-0.13);
    for (const PolarCoord& centre : {PolarCoord(0.0, 90.0), PolarCoord(0.0, -90.0)}) {
        Planets.SatisfyRequest(Looking(centre, 90.0, when), List);
    }
    for (unsigned i = 0; i < PlanetCatalogue::kViewCount; ++i) {
        EXPECT_EQ(Planets.GetSolarSystemObject(i)->GetTime().GetMJD(), when.GetMJD()) << i;
    }
    // A body on the equator may be in both halves.
    const std::vector<std::string> listed = Names(List);
    const std::set<std::string> names(listed.begin(), listed.end());
    EXPECT_EQ(names.size(), std::size_t(PlanetCatalogue::kViewCount - 1));
    EXPECT_EQ(names.count("Earth"), 0u);
    // Each listed body stands where the view puts its place.
    for (const AstroObject* object : List) {
        TPoint point;
        Transformation(Canvas.GetDC(), TRect(0, 0, 200, 200),
                       object->GetPosition().GetDec().GetDegrees() >= 0.0 ? PolarCoord(0.0, 90.0)
                                                                          : PolarCoord(0.0, -90.0),
                       90.0, PolarCoord(0.0, 90.0))
            .Translate(object->GetPosition(), point);
        EXPECT_EQ(object->GetDisplayPoint(), point) << object->GetListName();
    }
}
