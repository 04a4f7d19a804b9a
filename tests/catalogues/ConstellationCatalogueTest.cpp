// The constellation catalogue on small invented files: the table of names, the readers of
// figures, centres and boundaries with what they refuse and where they stop, and the answer
// to a request.
#include <gtest/gtest.h>

#include <cstdio>
#include <tuple>

#include "ConstellationTesting.h"

using Catalogue = ConstellationCatalogue;

TEST_F(ConstellationFilesTest, NameTableNumbersByLineEndsAtALineWithoutAbbreviationAndIgnoresCase)
{
    MessageCapture messages;
    EXPECT_EQ(ConstellationCatalogue().GetConstellation("Orion", false), nullptr);
    EXPECT_TRUE(messages.Contains("names.txt")); // a missing file is reported

    Dir.WriteFile("names.txt", "Andromeda, And\n  Orion ,Ori  \nSerpens\nUrsa Minor, UMi\n");
    ConstellationCatalogue catalogue;
    Constellation* orion = catalogue.GetConstellation("oRiOn", false);
    ASSERT_NE(orion, nullptr);
    EXPECT_EQ(catalogue.GetCount(), 2u);
    EXPECT_EQ(catalogue.GetConstellation("ORI", true), orion);
    EXPECT_EQ(catalogue.GetConstellation("Ori", false), nullptr);
    EXPECT_EQ(orion->GetUid(), AstroObject::kUidBase + 2);
    EXPECT_EQ(Catalogue::GetConstellationAbbreviation(Catalogue::CONSTELLATIONS(1)), "Ori");
    // Behind the line that lacks its abbreviation nothing was read; unknown names are 83.
    for (const char* name : {"Serpens", "Ursa Minor", "Argo Navis", ""}) {
        EXPECT_EQ(Catalogue::GetConstellationEnum(name), 83u) << name;
    }
    // No click lands on a constellation.
    orion->SetDisplayPoint(TPoint(10, 10));
    EXPECT_LT(orion->GetDisplayPoint().x, -10000);
}

TEST_F(ConstellationFilesTest, FigureLinesAddUpByAbbreviationAndBadLinesArePassedOver)
{
    auto catalogue = Catalogue();
    catalogue->LoadFigureInfo(*Dir.Open(
        "figures.txt", kOrionFigure + "UMi,37.95,89.26,263.05,86.59,308,2937\n"
                                      "ori,83.00,-0.30,84.05,-1.20,132220,132346\n"
                                      // Numbers missing, not numbers, or off the sphere:
                                      "Ori,88.79,7.41,81.28\nOri,nan,7.41,81.28,6.35\n"
                                      "Ori,1e999,7.41,81.28,6.35\nOri,400,7.41,81.28,6.35\n"
                                      "Ori,88.79,7.41,81.28,-90.5\n"));
    const Constellation& orion = Get(*catalogue, "Ori");
    ASSERT_EQ(orion.GetFigurePoints().size(), 6u);
    EXPECT_EQ(orion.GetFigurePoints()[3], PolarCoord(78.63, -8.20));
    EXPECT_EQ(orion.GetFigurePoints()[5], PolarCoord(84.05, -1.20));
    EXPECT_EQ(Get(*catalogue, "UMi").GetFigurePoints().size(), 2u);
    EXPECT_FALSE(Get(*catalogue, "And").HasFigures());

    // A figure across 0 h holds the seam and not the far side.
    auto seam = Catalogue();
    seam->LoadFigureInfo(*Dir.Open("figures.txt", "And,350.0,30.0,2.0,29.0\nAnd,2,29,17.4,35.6\n"));
    const SkyRange& range = Get(*seam, "And").GetFigureRange();
    EXPECT_TRUE(range.Contains(PolarCoord(0.0, 32.0)));
    EXPECT_TRUE(range.Contains(PolarCoord(355.0, 30.0)));
    EXPECT_FALSE(range.Contains(PolarCoord(180.0, 30.0)));
    EXPECT_FALSE(range.Contains(PolarCoord(340.0, 30.0)));
}

TEST_F(ConstellationFilesTest, FigureReadingStopsForGoodAtAnUnknownNameAnEmptyLineOrNoFile)
{
    const std::string umi = "UMi,37.95,89.26,263.05,86.59,308,2937\n";
    for (const std::string stop : {"Lyr,283.6,36.9,284.7,37.6,67559,67663\n", "\n"}) {
        auto catalogue = Catalogue();
        catalogue->LoadFigureInfo(*Dir.Open("figures.txt", kOrionFigure + stop + umi));
        EXPECT_EQ(Get(*catalogue, "Ori").GetFigurePoints().size(), 4u) << stop;
        EXPECT_FALSE(Get(*catalogue, "UMi").HasFigures()) << stop;
    }
    // A file that cannot be read is reported once and not tried again.
    MessageCapture messages;
    auto catalogue = Catalogue();
    std::remove(Dir.File("figures.txt").c_str());
    catalogue->LoadFigureInfo();
    EXPECT_TRUE(messages.Contains("figures.txt"));
    Dir.WriteFile("figures.txt", kOrionFigure);
    catalogue->LoadFigureInfo();
    EXPECT_FALSE(Get(*catalogue, "Ori").HasFigures());
}

TEST_F(ConstellationFilesTest, CentreLinesGiveCentreAndLabelPointEachOnlyWithBothNumbers)
{
    auto catalogue = Catalogue();
    catalogue->LoadCenterPointInfo(*Dir.Open("centres.txt", "And,10.09,40.48,0.75,43\n"
                                                            "Ori,83.9,5.17,84\n"
                                                            "Ser, 247.4 , 4.8 , 232.5 , 5 \n"
                                                            "Oph,nan,1,255,-5\n"
                                                            "UMi,225.6,76.7,226.5,68\n"));
    EXPECT_TRUE(catalogue->IsCenterLoaded());
    EXPECT_EQ(Get(*catalogue, "And").GetCenter(), PolarCoord(10.09, 40.48));
    EXPECT_EQ(Get(*catalogue, "And").GetLabelPosition(), PolarCoord(0.75, 43.0));
    EXPECT_EQ(Get(*catalogue, "Ser").GetLabelPosition(), PolarCoord(232.5, 5.0));
    // A label point with one number missing is no label point: the centre stands in.
    EXPECT_EQ(Get(*catalogue, "Ori").GetLabelPosition(), PolarCoord(83.9, 5.17));
    EXPECT_FALSE(Get(*catalogue, "Oph").HasCenter());
    EXPECT_TRUE(Get(*catalogue, "Oph").HasLabelPosition());

    // A line out of the table's order ends the reading. Orion's holds its abbreviation alone:
    // the middle of its boundary's ranges, RA 75 to 90 and Dec -10 to 20, stands in.
    Dir.WriteFile("bounds.txt", "5.0 -10.0 Ori\n6.0 -10.0 Ori\n6.0 20.0 Ori\n5.0 20.0 Ori\n");
    auto unordered = Catalogue();
    unordered->LoadCenterPointInfo(
        *Dir.Open("centres.txt", "And,10.09,40.48,0.75,43\nOri\nOph,255.5,-5.5,256.25,-7.5\n"));
    EXPECT_FALSE(unordered->IsCenterLoaded());
    EXPECT_FALSE(Get(*unordered, "Ser").HasCenter());
    EXPECT_NEAR(Get(*unordered, "Ori").GetCenter().GetRA().GetDegrees(), 82.5, 1e-9);
    EXPECT_NEAR(Get(*unordered, "Ori").GetCenter().GetDec().GetDegrees(), 5.0, 1e-9);
}

TEST_F(ConstellationFilesTest, BoundaryPointsAreHoursAndDegreesAndGroupsOfOneConstellationJoin)
{
    auto catalogue = Catalogue();
    catalogue->LoadBoundaryInfo(*Dir.Open("bounds.txt",
                                          "-0.5 0 And\n0.5,-0.0,And\n0.5 +30.25 And\n"
                                          "  -0.5 ,  30.25 ,  And  \n"
                                          // Serpens's head and tail, Ophiuchus between.
                                          "15.1 -3.7 Ser\n16.3 -3.7 Ser\n16.3 25.6 Ser\n"
                                          "16.4 -30.0 Oph\n17.0 -30.0 Oph\n17.0 14.0 Oph\n"
                                          "17.8 -16.0 Ser\n18.9 -16.0 Ser\n18.9 6.0 Ser\n"
                                          // Off the sphere, then a line of two fields.
                                          "5.0 -10.0 Ori\n5.5 -91 Ori\n25 0 Ori\n6.0 -10.0 Ori\n"
                                          "6.0 20.0\n1.0 80.0 UMi\n"));
    const Constellation& andromeda = Get(*catalogue, "And");
    ASSERT_EQ(andromeda.GetBoundaryPoints().size(), 4u);
    EXPECT_EQ(andromeda.GetBoundaryPoints()[2], PolarCoord(7.5, 30.25));
    // RA -0.5 h is 23.5 h: the range runs across 0 h.
    const std::tuple<double, double, bool> points[] = {
        {355.0, 15.0, true}, {5.0, 0.0, true}, {180.0, 15.0, false}, {0.0, -1.0, false}};
    for (const auto& [ra, dec, inside] : points) {
        EXPECT_EQ(andromeda.GetBoundaryRange().Contains(PolarCoord(ra, dec)), inside) << ra;
    }
    EXPECT_EQ(Get(*catalogue, "Ser").GetBoundaryPoints().size(), 6u);
    EXPECT_EQ(Get(*catalogue, "Ori").GetBoundaryPoints().size(), 2u);
    EXPECT_FALSE(Get(*catalogue, "UMi").HasBoundaries());
}

TEST_F(ConstellationFilesTest, RequestListsInTableOrderTheConstellationsWhoseFiguresItReaches)
{
    Dir.WriteFile("names.txt", kFiveNames);
    Dir.WriteFile("figures.txt",
                  kOrionFigure + "UMi,37.95,89.26,263.05,86.59\nAnd,2.1,29.1,17.4,35.6\n");
    // Serpens's boundary lies across Orion's sky, but without a figure it is never listed.
    Dir.WriteFile("bounds.txt", "5.0 -10.0 Ser\n6.0 -10.0 Ser\n6.0 20.0 Ser\n");
    ConstellationCatalogue catalogue;
    catalogue.UseSettings(ConstellationSettings(true, true, true));
    const std::tuple<PolarCoord, double, std::vector<std::string>> rows[] = {
        {PolarCoord(84.0, 0.0), 10.0, {"Orion"}},
        {PolarCoord(0.0, 90.0), 20.0, {"Ursa Minor"}},
        {PolarCoord(0.0, 90.0), 90.0, {"Andromeda", "Orion", "Ursa Minor"}},
        {PolarCoord(200.0, -40.0), 20.0, {}},
    };
    for (const auto& [centre, radius, expected] : rows) {
        EXPECT_EQ(Shown(catalogue, centre, radius, AstroCatalogue::CONSTELLATIONS), expected)
            << centre.GetDescription() << " within " << radius;
    }
}

TEST_F(ConstellationFilesTest, ReadersKeepRightAscensionWithinOneTurnAndRangesHoldEveryPoint)
{
    struct Case
    {
        bool bBoundary;
        std::string text;
        std::vector<double> ras;
    };
    const Case cases[] = {
        {true, "23 3 And\n. 2 And\n-4 1 And\n", {345, 0, 300}},
        {true, "-24 10 And\n24 10 And\n-0.5 10 And\n-23.5 10 And\n", {0, 0, 352.5, 7.5}},
        {false, "And,345,0,0,0\nAnd,-60,0,-60,0\n", {345, 0, 300, 300}},
        {false, "And,-360,0,360,1\nAnd,-0.25,0,359.75,1\n", {0, 0, 359.75, 359.75}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        auto catalogue = Catalogue();
        if (c.bBoundary) {
            catalogue->LoadBoundaryInfo(*Dir.Open("bounds.txt", c.text));
        } else {
            catalogue->LoadFigureInfo(*Dir.Open("figures.txt", c.text));
        }
        const Constellation& andromeda = Get(*catalogue, "And");
        const std::vector<PolarCoord>& points =
            c.bBoundary ? andromeda.GetBoundaryPoints() : andromeda.GetFigurePoints();
        const SkyRange& range =
            c.bBoundary ? andromeda.GetBoundaryRange() : andromeda.GetFigureRange();
        ASSERT_EQ(points.size(), c.ras.size());
        for (std::size_t i = 0; i < points.size(); ++i) {
            EXPECT_EQ(points[i].GetRA().GetDegrees(), c.ras[i]) << i;
            EXPECT_TRUE(range.Contains(points[i])) << i;
        }
    }
}
