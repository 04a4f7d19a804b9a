// The shipped constellation files, read through the shipped profile: the table of names, the
// figures, the centres and the large boundary file, which the suite reads once.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "StarIndexTesting.h"
#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/ConstellationCatalogue.h"
#include "catalogues/Request.h"
#include "host/HostFile.h"
#include "host/HostProf.h"
#include "time/AstroTime.h"

namespace {

std::string ReadWhole(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Whether one of the points lies within `tolerance` degrees of `position` in both RA and Dec.
bool HasPointNear(const std::vector<PolarCoord>& points, const PolarCoord& position,
                  double tolerance = 0.01)
{
    for (const PolarCoord& point : points) {
        if (DegreeRange::GetDifference(point.GetRA(), position.GetRA()).GetDegrees() <= tolerance &&
            std::fabs(point.GetDec().GetDegrees() - position.GetDec().GetDegrees()) <= tolerance) {
            return true;
        }
    }
    return false;
}

// How many times a closed ring turns round the poles: the sum of its steps in RA, each taken
// the short way, in whole turns.
double TurnsRoundThePole(const std::vector<PolarCoord>& ring)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        double step =
            ring[(i + 1) % ring.size()].GetRA().GetDegrees() - ring[i].GetRA().GetDegrees();
        step = std::remainder(step, 360.0);
        sum += step;
    }
    return sum / 360.0;
}

} // namespace

class ConstellationDataTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        // A fresh user directory: only the shipped profile speaks.
        pHome = new ScopedHome();
        HostProfile().Reload();
        ConstellationCatalogue::FlushNameInfo();
        pCatalogue = new ConstellationCatalogue();
        pCatalogue->UseSettings(ConstellationSettings(true, true, true));
        pCatalogue->Load();
    }
    static void TearDownTestSuite()
    {
        delete pCatalogue;
        pCatalogue = nullptr;
        ConstellationCatalogue::FlushNameInfo();
        delete pHome;
        pHome = nullptr;
        HostProfile().Reload();
    }

    static Constellation& Get(const char* abbreviation)
    {
        Constellation* found = pCatalogue->GetConstellation(abbreviation, true);
        EXPECT_NE(found, nullptr) << abbreviation;
        return *found;
    }

    std::vector<std::string> Listed(const PolarCoord& centre, double radius)
    {
        AstroList list(100, 100);
        pCatalogue->SatisfyRequest(Request(Screen.View(centre, radius),
                                           CatalogueSet(AstroCatalogue::CONSTELLATIONS),
                                           AstroTime(1, 1, 2000, 0.0), 6.0),
                                   list);
        std::vector<std::string> names;
        for (AstroObject* object : list) {
            names.push_back(static_cast<Constellation*>(object)->GetAbbreviation());
        }
        return names;
    }

    static ScopedHome* pHome;
    static ConstellationCatalogue* pCatalogue;
    TestScreen Screen;
};

ScopedHome* ConstellationDataTest::pHome = nullptr;
ConstellationCatalogue* ConstellationDataTest::pCatalogue = nullptr;

TEST_F(ConstellationDataTest, TableHolds88ConstellationsWithDistinctAbbreviations)
{
    ASSERT_EQ(pCatalogue->GetCount(), 88u);
    ASSERT_EQ(ConstellationCatalogue::GetNameCount(), 88u);
    std::vector<Constellation*> all;
    pCatalogue->GetConstellations(all);
    std::set<std::string, NoCaseLess> abbreviations;
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i]->GetAbbreviation().size(), 3u) << all[i]->GetName();
        abbreviations.insert(all[i]->GetAbbreviation());
        EXPECT_EQ(all[i]->GetUid(), AstroObject::kUidBase + i + 1);
    }
    EXPECT_EQ(abbreviations.size(), 88u);
    EXPECT_EQ(all.front()->GetName(), "Andromeda");
    EXPECT_EQ(all.back()->GetName(), "Vulpecula");
    // The number an unknown name is given belongs to a real constellation of this table.
    EXPECT_EQ(ConstellationCatalogue::GetConstellationFullName(
                  ConstellationCatalogue::GetConstellationEnum("Argo Navis")),
              "Ursa Minor");
}

TEST_F(ConstellationDataTest, EveryConstellationHasFigureBoundaryCentreAndLabelPoint)
{
    EXPECT_TRUE(pCatalogue->IsCenterLoaded());
    EXPECT_TRUE(pCatalogue->IsFigureLoaded());
    EXPECT_TRUE(pCatalogue->IsBoundaryLoaded());
    std::vector<Constellation*> all;
    pCatalogue->GetConstellations(all);
    for (const Constellation* c : all) {
        EXPECT_GE(c->GetFigurePoints().size(), 2u) << c->GetName();
        EXPECT_EQ(c->GetFigurePoints().size() % 2, 0u) << c->GetName();
        EXPECT_GE(c->GetBoundaryPoints().size(), 4u) << c->GetName();
        EXPECT_TRUE(c->HasCenter()) << c->GetName();
        EXPECT_TRUE(c->HasLabelPosition()) << c->GetName();
        EXPECT_TRUE(c->GetBoundaryRange().Contains(c->GetCenter())) << c->GetName();
        EXPECT_TRUE(c->GetBoundaryRange().Contains(c->GetLabelPosition())) << c->GetName();
        for (const PolarCoord& p : c->GetFigurePoints()) {
            ASSERT_TRUE(c->GetFigureRange().Contains(p)) << c->GetName();
        }
    }
}

TEST_F(ConstellationDataTest, OrionHasItsStarsInItsFigureAndBoundary)
{
    const Constellation& orion = Get("Ori");
    // Betelgeuse, Rigel and the belt's middle star, Alnilam (Hipparcos, J2000).
    const PolarCoord betelgeuse(88.7929, 7.4071);
    const PolarCoord rigel(78.6345, -8.2016);
    const PolarCoord alnilam(84.0534, -1.2019);
    EXPECT_TRUE(HasPointNear(orion.GetFigurePoints(), betelgeuse));
    EXPECT_TRUE(HasPointNear(orion.GetFigurePoints(), rigel));
    EXPECT_TRUE(HasPointNear(orion.GetFigurePoints(), alnilam));
    EXPECT_GT(orion.GetBoundaryPoints().size(), 20u);
    for (const PolarCoord& star : {betelgeuse, rigel, alnilam}) {
        EXPECT_TRUE(orion.GetBoundaryRange().Contains(star));
    }
    EXPECT_FALSE(orion.GetBoundaryRange().Contains(PolarCoord(88.7929, 30.0)));
}

TEST_F(ConstellationDataTest, UrsaMinorsBoundaryGoesRoundThePoleAndOctansRoundTheSouthPole)
{
    // A ring that holds a pole turns once round it; any other ring turns back.
    EXPECT_NEAR(std::fabs(TurnsRoundThePole(Get("UMi").GetBoundaryPoints())), 1.0, 1e-9);
    EXPECT_NEAR(std::fabs(TurnsRoundThePole(Get("Oct").GetBoundaryPoints())), 1.0, 1e-9);
    EXPECT_NEAR(TurnsRoundThePole(Get("Ori").GetBoundaryPoints()), 0.0, 1e-9);
    EXPECT_NEAR(TurnsRoundThePole(Get("Cep").GetBoundaryPoints()), 0.0, 1e-9);
    // No ring runs to a pole itself: that would be a line where the sky has no border.
    std::vector<Constellation*> all;
    pCatalogue->GetConstellations(all);
    for (const Constellation* c : all) {
        for (const PolarCoord& p : c->GetBoundaryPoints()) {
            ASSERT_LT(std::fabs(p.GetDec().GetDegrees()), 90.0) << c->GetName();
        }
    }
    EXPECT_TRUE(HasPointNear(Get("UMi").GetFigurePoints(), PolarCoord(37.9546, 89.2641)));
}

TEST_F(ConstellationDataTest, SerpensIsOneBoundaryOverHeadAndTail)
{
    const Constellation& serpens = Get("Ser");
    // Unukalhai in the head, Alya at the end of the tail.
    EXPECT_TRUE(serpens.GetBoundaryRange().Contains(PolarCoord(236.0671, 6.4256)));
    EXPECT_TRUE(serpens.GetBoundaryRange().Contains(PolarCoord(284.0549, 4.2036)));
    EXPECT_TRUE(HasPointNear(serpens.GetFigurePoints(), PolarCoord(236.0671, 6.4256)));
    // Its name stands in the head.
    EXPECT_LT(serpens.GetLabelPosition().GetRA().GetDegrees(), 245.0);
}

TEST_F(ConstellationDataTest, ViewsListTheConstellationsTheyShow)
{
    const std::vector<std::string> orion = Listed(PolarCoord(84.0, 0.0), 10.0);
    EXPECT_NE(std::find(orion.begin(), orion.end(), "Ori"), orion.end());
    EXPECT_EQ(std::find(orion.begin(), orion.end(), "UMa"), orion.end());

    const std::vector<std::string> pole = Listed(PolarCoord(0.0, 90.0), 15.0);
    for (const char* north : {"UMi", "Cep", "Dra", "Cam"}) {
        EXPECT_NE(std::find(pole.begin(), pole.end(), north), pole.end()) << north;
    }
    EXPECT_EQ(std::find(pole.begin(), pole.end(), "Ori"), pole.end());
    // The northern hemisphere holds the northern constellations and not the far southern.
    const std::vector<std::string> north = Listed(PolarCoord(0.0, 90.0), 90.0);
    for (const char* name : {"UMa", "Cas", "Cyg", "Lyr", "Per", "Aur", "Her", "Boo"}) {
        EXPECT_NE(std::find(north.begin(), north.end(), name), north.end()) << name;
    }
    for (const char* name : {"Cru", "Cen", "Car", "Oct", "Men"}) {
        EXPECT_EQ(std::find(north.begin(), north.end(), name), north.end()) << name;
    }
}

TEST_F(ConstellationDataTest, WritingTheCentresGivesTheShippedFileBack)
{
    const std::string path = pHome->File("constct.txt");
    TextFile out;
    ASSERT_TRUE(out.OpenForWriting(path.c_str()));
    ASSERT_TRUE(pCatalogue->WriteCenterInfo(out));
    out.Close();
    const std::string shipped = ReadWhole(HostFile::DataDirectory() + "/constct.txt");
    ASSERT_FALSE(shipped.empty());
    EXPECT_EQ(ReadWhole(path), shipped);
}

TEST_F(ConstellationDataTest, BoundaryDumpHoldsEveryPoint)
{
    std::size_t points = 0;
    std::vector<Constellation*> all;
    pCatalogue->GetConstellations(all);
    for (const Constellation* c : all) {
        points += c->GetBoundaryPoints().size();
    }
    const std::string path = pHome->File("constbd.bin");
    HostFile file(path, HostFile::WriteNew);
    ASSERT_TRUE(pCatalogue->DumpBoundaryInfo(file));
    file.Close();
    EXPECT_EQ(ReadWhole(path).size(), 88u * 7u + points * 16u);
    EXPECT_EQ(ReadWhole(path).substr(0, 3), "And");
}
