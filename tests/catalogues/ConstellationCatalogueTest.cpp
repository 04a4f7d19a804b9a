// The constellation catalogue on small invented files: the table of names and its numbers,
// the readers of figures, centres and boundaries with their stops and fallbacks, lazy loading
// through the profile, the answer to a request, the settings and their state, the label,
// and the files it writes.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "ConstellationTesting.h"
#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/Request.h"
#include "host/HostFile.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "skyview/SkyCanvas.h"
#include "state/CmdLineStateContainer.h"
#include "time/AstroTime.h"

namespace {

using Catalogue = ConstellationCatalogue;

std::vector<std::string> Abbreviations(const AstroList& list)
{
    std::vector<std::string> found;
    for (AstroObject* object : list) {
        found.push_back(static_cast<Constellation*>(object)->GetAbbreviation());
    }
    return found;
}

// A view of 20 degrees round `centre`, north up, on the whole canvas.
Transformation CanvasView(SkyCanvas& canvas, const PolarCoord& centre)
{
    return Transformation(canvas.GetDC(), canvas.Parameters.DrawRect, centre, 20.0,
                          PolarCoord(0.0, 90.0));
}

// Orion's figure: Betelgeuse to Bellatrix and Bellatrix to Rigel, SAO numbers behind.
const std::string kOrionFigure = "Ori,88.79,7.41,81.28,6.35,113271,112740\n"
                                 "Ori,81.28,6.35,78.63,-8.20,112740,131907\n";

} // namespace

// The table of names.

TEST_F(ConstellationFilesTest,
       NameTableNumbersConstellationsByLineAndEndsAtALineWithoutAbbreviation)
{
    ASSERT_TRUE(Catalogue::LoadNameInfo(*Open("names.txt", "Andromeda, And\n"
                                                           "  Orion ,Ori  \n"
                                                           "Serpens\n"
                                                           "Ursa Minor, UMi\n")));
    ASSERT_EQ(Catalogue::GetNameCount(), 2u);
    EXPECT_EQ(Catalogue::GetConstellationEnum("Andromeda"), 0u);
    EXPECT_EQ(Catalogue::GetConstellationEnum("ORION"), 1u);
    EXPECT_EQ(Catalogue::GetConstellationFullName(Catalogue::CONSTELLATIONS(1)), "Orion");
    EXPECT_EQ(Catalogue::GetConstellationAbbreviation(Catalogue::CONSTELLATIONS(1)), "Ori");
    // Behind the line that lacks its abbreviation nothing was read.
    EXPECT_EQ(Catalogue::GetConstellationEnum("Ursa Minor"), Catalogue::UNKNOWN_CONSTELLATION);
    EXPECT_EQ(Catalogue::GetConstellationEnum("Serpens"), Catalogue::UNKNOWN_CONSTELLATION);
}

TEST_F(ConstellationFilesTest, UnknownNameIs83AndNumbersBeyondTheTableHaveNoTexts)
{
    Catalogue::LoadNameInfo(*Open("names.txt", kFiveNames));
    EXPECT_EQ(Catalogue::GetConstellationEnum("Argo Navis"), 83u);
    EXPECT_EQ(Catalogue::GetConstellationEnum(""), 83u);
    EXPECT_EQ(Catalogue::GetConstellationAbbreviation(Catalogue::UNKNOWN_CONSTELLATION), "");
    EXPECT_EQ(Catalogue::GetConstellationFullName(Catalogue::CONSTELLATIONS(5)), "");
}

TEST_F(ConstellationFilesTest, NameTableIsReadOnceUntilFlushed)
{
    WriteFile("names.txt", kFiveNames);
    ASSERT_TRUE(Catalogue::LoadNameInfo());
    ASSERT_EQ(Catalogue::GetNameCount(), 5u);

    WriteFile("names.txt", "Lyra, Lyr\n");
    EXPECT_TRUE(Catalogue::LoadNameInfo());
    EXPECT_EQ(Catalogue::GetConstellationFullName(Catalogue::CONSTELLATIONS(0)), "Andromeda");

    Catalogue::FlushNameInfo();
    EXPECT_TRUE(Catalogue::LoadNameInfo());
    EXPECT_EQ(Catalogue::GetNameCount(), 1u);
    EXPECT_EQ(Catalogue::GetConstellationFullName(Catalogue::CONSTELLATIONS(0)), "Lyra");
}

TEST_F(ConstellationFilesTest, MissingNameFileIsReportedAndLeavesNoConstellations)
{
    MessageCapture messages;
    ConstellationCatalogue catalogue;
    EXPECT_FALSE(Catalogue::LoadNameInfo());
    catalogue.Load();
    EXPECT_EQ(catalogue.GetCount(), 0u);
    EXPECT_TRUE(messages.Contains("names.txt"));
    EXPECT_EQ(catalogue.GetConstellation("Orion", false), nullptr);
}

TEST_F(ConstellationFilesTest, ConstellationsAreSkyObjectsWithTheirUidsAndNames)
{
    auto catalogue = Catalogue();
    ASSERT_EQ(catalogue->GetCount(), 5u);
    std::vector<Constellation*> all;
    catalogue->GetConstellations(all);
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i]->GetUid(), AstroObject::kUidBase + i + 1) << i;
    }
    Constellation& orion = *all[1];
    EXPECT_EQ(orion.GetTypeName(), "Constellation");
    EXPECT_EQ(orion.GetRefName(), "Orion");
    EXPECT_TRUE(all[0]->IsLessThan(orion));
    EXPECT_FALSE(orion.IsLessThan(*all[0]));
    // Nothing sets the display point, and it lies off every surface.
    orion.SetDisplayPoint(TPoint(10, 10));
    EXPECT_LT(orion.GetDisplayPoint().x, -10000);
    EXPECT_LT(orion.GetDisplayPoint().y, -10000);
}

TEST_F(ConstellationFilesTest, LookupsIgnoreCaseAndListsDoNotOwn)
{
    WriteFile("names.txt", kFiveNames);
    ConstellationCatalogue catalogue;
    Constellation* orion = catalogue.GetConstellation("oRiOn", false);
    ASSERT_NE(orion, nullptr);
    EXPECT_EQ(catalogue.GetConstellation("ORI", true), orion);
    EXPECT_EQ(catalogue.GetConstellation("Ori", false), nullptr);
    EXPECT_EQ(catalogue.GetConstellation("Orion", true), nullptr);
    EXPECT_EQ(catalogue.FindConstellationWithAbbreviation("umi")->GetName(), "Ursa Minor");
    EXPECT_EQ(catalogue.FindConstellationWithAbbreviation("Lyr"), nullptr);

    std::unique_ptr<PointerVector<AstroObject>> named = catalogue.GetListOfNamedObjects();
    ASSERT_EQ(named->size(), 5u);
    EXPECT_FALSE(named->OwnsElements());
    EXPECT_EQ((*named)[1], orion);
}

// Figures.

TEST_F(ConstellationFilesTest, FigureGroupsComeInAnyOrderAndASecondGroupAddsToTheFirst)
{
    auto catalogue = Catalogue();
    catalogue->LoadFigureInfo(
        *Open("figures.txt", kOrionFigure + "UMi,37.95,89.26,263.05,86.59,308,2937\n" +
                                 "ori,83.00,-0.30,84.05,-1.20,132220,132346\n"));
    EXPECT_TRUE(catalogue->IsFigureLoaded());
    Constellation& orion = *catalogue->FindConstellationWithAbbreviation("Ori");
    ASSERT_EQ(orion.GetFigurePoints().size(), 6u);
    EXPECT_EQ(orion.GetFigurePoints()[0], PolarCoord(88.79, 7.41));
    EXPECT_EQ(orion.GetFigurePoints()[3], PolarCoord(78.63, -8.20));
    EXPECT_EQ(orion.GetFigurePoints()[5], PolarCoord(84.05, -1.20));
    EXPECT_TRUE(orion.GetFigureRange().Contains(PolarCoord(84.0, 0.0)));
    EXPECT_FALSE(orion.GetFigureRange().Contains(PolarCoord(90.0, 0.0)));
    EXPECT_FALSE(orion.GetFigureRange().Contains(PolarCoord(84.0, 8.0)));
    EXPECT_EQ(catalogue->FindConstellationWithAbbreviation("UMi")->GetFigurePoints().size(), 2u);
    EXPECT_FALSE(catalogue->FindConstellationWithAbbreviation("And")->HasFigures());
}

TEST_F(ConstellationFilesTest,
       FigureReadingStopsAtAnUnknownAbbreviationOrAnEmptyLineKeepingWhatWasRead)
{
    auto catalogue = Catalogue();
    catalogue->LoadFigureInfo(*Open("figures.txt", kOrionFigure +
                                                       "Lyr,283.6,36.9,284.7,37.6,67559,67663\n"
                                                       "UMi,37.95,89.26,263.05,86.59,308,2937\n"));
    EXPECT_EQ(catalogue->FindConstellationWithAbbreviation("Ori")->GetFigurePoints().size(), 4u);
    EXPECT_FALSE(catalogue->FindConstellationWithAbbreviation("UMi")->HasFigures());
    // No second reading follows.
    catalogue->LoadFigureInfo(*Open("more.txt", "UMi,37.95,89.26,263.05,86.59,308,2937\n"));
    EXPECT_FALSE(catalogue->FindConstellationWithAbbreviation("UMi")->HasFigures());

    auto second = Catalogue();
    second->LoadFigureInfo(
        *Open("figures.txt", kOrionFigure + "\n" + "UMi,37.95,89.26,263.05,86.59,308,2937\n"));
    EXPECT_EQ(second->FindConstellationWithAbbreviation("Ori")->GetFigurePoints().size(), 4u);
    EXPECT_FALSE(second->FindConstellationWithAbbreviation("UMi")->HasFigures());
}

TEST_F(ConstellationFilesTest, FigureLinesWithMissingNumbersOrNoDirectionArePassedOver)
{
    auto catalogue = Catalogue();
    catalogue->LoadFigureInfo(*Open("figures.txt", "Ori,88.79,7.41,81.28\n"
                                                   "Ori,nan,7.41,81.28,6.35\n"
                                                   "Ori,1e999,7.41,81.28,6.35\n"
                                                   "Ori,400,7.41,81.28,6.35\n"
                                                   "Ori,88.79,7.41,81.28,-90.5\n"
                                                   "Ori,81.28,6.35,78.63,-8.20,112740,131907\n"
                                                   "UMi,37.95,89.26,263.05,86.59\n"));
    const Constellation& orion = *catalogue->FindConstellationWithAbbreviation("Ori");
    ASSERT_EQ(orion.GetFigurePoints().size(), 2u);
    EXPECT_EQ(orion.GetFigurePoints()[0], PolarCoord(81.28, 6.35));
    EXPECT_EQ(catalogue->FindConstellationWithAbbreviation("UMi")->GetFigurePoints().size(), 2u);
}

TEST_F(ConstellationFilesTest, FigureRangeAcrossZeroHoursHoldsTheSeamAndNotTheFarSide)
{
    auto catalogue = Catalogue();
    catalogue->LoadFigureInfo(*Open("figures.txt", "And,350.0,30.0,2.0,29.0\n"
                                                   "And,2.0,29.0,17.4,35.6\n"));
    const SkyRange& range = catalogue->FindConstellationWithAbbreviation("And")->GetFigureRange();
    EXPECT_TRUE(range.Contains(PolarCoord(0.0, 32.0)));
    EXPECT_TRUE(range.Contains(PolarCoord(355.0, 30.0)));
    EXPECT_FALSE(range.Contains(PolarCoord(180.0, 30.0)));
    EXPECT_FALSE(range.Contains(PolarCoord(340.0, 30.0)));
}

TEST_F(ConstellationFilesTest, UnreadableFigureFileIsReportedOnceAndNotTriedAgain)
{
    MessageCapture messages;
    auto catalogue = Catalogue();
    catalogue->LoadFigureInfo();
    EXPECT_TRUE(messages.Contains("figures.txt"));
    EXPECT_TRUE(catalogue->IsFigureLoaded());

    WriteFile("figures.txt", kOrionFigure);
    catalogue->LoadFigureInfo();
    EXPECT_FALSE(catalogue->FindConstellationWithAbbreviation("Ori")->HasFigures());
}

// Centres and label points.

TEST_F(ConstellationFilesTest, CentreLinesGiveCentreAndLabelEachOnlyWhenBothNumbersAreThere)
{
    auto catalogue = Catalogue();
    catalogue->LoadCenterPointInfo(*Open("centres.txt", "And,10.09,40.48,0.75,43\n"
                                                        "Ori,83.9,5.17,84\n"
                                                        "Ser, 247.4 , 4.8 , 232.5 , 5 \n"
                                                        "Oph,nan,1,255,-5\n"
                                                        "UMi,225.6,76.7,226.5,68\n"));
    EXPECT_TRUE(catalogue->IsCenterLoaded());
    Constellation& andromeda = *catalogue->FindConstellationWithAbbreviation("And");
    EXPECT_EQ(andromeda.GetCenter(), PolarCoord(10.09, 40.48));
    EXPECT_EQ(andromeda.GetPosition(), PolarCoord(10.09, 40.48));
    EXPECT_EQ(andromeda.GetLabelPosition(), PolarCoord(0.75, 43.0));

    // A label point with one number missing is no label point: the centre stands in.
    Constellation& orion = *catalogue->FindConstellationWithAbbreviation("Ori");
    EXPECT_TRUE(orion.HasCenter());
    EXPECT_FALSE(orion.HasLabelPosition());
    EXPECT_EQ(orion.GetLabelPosition(), PolarCoord(83.9, 5.17));

    EXPECT_EQ(catalogue->FindConstellationWithAbbreviation("Ser")->GetLabelPosition(),
              PolarCoord(232.5, 5.0));
    const Constellation& ophiuchus = *catalogue->FindConstellationWithAbbreviation("Oph");
    EXPECT_FALSE(ophiuchus.HasCenter());
    EXPECT_TRUE(ophiuchus.HasLabelPosition());
}

TEST_F(ConstellationFilesTest, CentreLineOutOfTableOrderEndsTheReadingUnfinished)
{
    auto catalogue = Catalogue();
    catalogue->LoadCenterPointInfo(*Open("centres.txt", "And,10.09,40.48,0.75,43\n"
                                                        "Ser,247.4,4.8,232.5,5\n"
                                                        "Ori,83.9,5.17,84,13\n"));
    EXPECT_FALSE(catalogue->IsCenterLoaded());
    EXPECT_TRUE(catalogue->FindConstellationWithAbbreviation("And")->HasCenter());
    EXPECT_FALSE(catalogue->FindConstellationWithAbbreviation("Ori")->HasCenter());
    EXPECT_FALSE(catalogue->FindConstellationWithAbbreviation("Ser")->HasCenter());
}

TEST_F(ConstellationFilesTest, CentreLineWithOnlyTheAbbreviationFallsBackOnTheBoundaryFile)
{
    WriteFile("bounds.txt", "5.0 -10.0 Ori\n"
                            "6.0 -10.0 Ori\n"
                            "6.0 20.0 Ori\n"
                            "5.0 20.0 Ori\n");
    auto catalogue = Catalogue();
    catalogue->LoadCenterPointInfo(*Open("centres.txt", "And,10.09,40.48,0.75,43\n"
                                                        "Ori\n"));
    Constellation& orion = *catalogue->FindConstellationWithAbbreviation("Ori");
    EXPECT_FALSE(orion.HasCenter());
    EXPECT_FALSE(orion.HasLabelPosition());
    EXPECT_FALSE(catalogue->IsBoundaryLoaded());

    // The middle of the boundary's ranges: RA 75 to 90, Dec -10 to 20.
    const PolarCoord centre = orion.GetCenter();
    EXPECT_TRUE(catalogue->IsBoundaryLoaded());
    EXPECT_NEAR(centre.GetRA().GetDegrees(), 82.5, 1e-9);
    EXPECT_NEAR(centre.GetDec().GetDegrees(), 5.0, 1e-9);
    EXPECT_EQ(orion.GetLabelPosition(), centre);
}

// Boundaries.

TEST_F(ConstellationFilesTest, BoundaryPointsAreHoursAndDegreesWithZeroDeclinationOnTheEquator)
{
    auto catalogue = Catalogue();
    catalogue->LoadBoundaryInfo(*Open("bounds.txt", "-0.5 0 And\n"
                                                    "0.5,-0.0,And\n"
                                                    "0.5 +30.25 And\n"
                                                    "  -0.5 ,  30.25 ,  And  \n"));
    const Constellation& andromeda = *catalogue->FindConstellationWithAbbreviation("And");
    const std::vector<PolarCoord>& points = andromeda.GetBoundaryPoints();
    ASSERT_EQ(points.size(), 4u);
    EXPECT_EQ(points[0].GetRA().GetDegrees(), 352.5);
    EXPECT_EQ(points[0].GetDec().GetDegrees(), 0.0);
    EXPECT_EQ(points[1].GetDec().GetDegrees(), 0.0);
    EXPECT_EQ(points[2], PolarCoord(7.5, 30.25));
    // RA -0.5 h is 23.5 h: the range runs across 0 h.
    const SkyRange& range = andromeda.GetBoundaryRange();
    EXPECT_TRUE(range.Contains(PolarCoord(355.0, 15.0)));
    EXPECT_TRUE(range.Contains(PolarCoord(5.0, 0.0)));
    EXPECT_FALSE(range.Contains(PolarCoord(180.0, 15.0)));
    EXPECT_FALSE(range.Contains(PolarCoord(0.0, -1.0)));
}

TEST_F(ConstellationFilesTest, BoundaryOfSerpensInTwoGroupsJoinsBothParts)
{
    auto catalogue = Catalogue();
    catalogue->LoadBoundaryInfo(*Open("bounds.txt", "15.1 -3.7 Ser\n"
                                                    "16.3 -3.7 Ser\n"
                                                    "16.3 25.6 Ser\n"
                                                    "16.4 -30.0 Oph\n"
                                                    "17.0 -30.0 Oph\n"
                                                    "17.0 14.0 Oph\n"
                                                    "17.8 -16.0 Ser\n"
                                                    "18.9 -16.0 Ser\n"
                                                    "18.9 6.0 Ser\n"));
    const Constellation& serpens = *catalogue->FindConstellationWithAbbreviation("Ser");
    ASSERT_EQ(serpens.GetBoundaryPoints().size(), 6u);
    EXPECT_EQ(serpens.GetBoundaryPoints()[3].GetRA().GetDegrees(), 17.8 * 15.0);
    // The head's corner and the tail's are both within its range.
    EXPECT_TRUE(serpens.GetBoundaryRange().Contains(PolarCoord(15.1 * 15.0, 25.0)));
    EXPECT_TRUE(serpens.GetBoundaryRange().Contains(PolarCoord(18.9 * 15.0, -16.0)));
    EXPECT_EQ(catalogue->FindConstellationWithAbbreviation("Oph")->GetBoundaryPoints().size(), 3u);
}

TEST_F(ConstellationFilesTest,
       BoundaryPointsOffTheSphereArePassedOverAndALineWithoutThreeFieldsStops)
{
    auto catalogue = Catalogue();
    catalogue->LoadBoundaryInfo(*Open("bounds.txt", "5.0 -10.0 Ori\n"
                                                    "5.5 -91 Ori\n"
                                                    "25 0 Ori\n"
                                                    "6.0 -10.0 Ori\n"
                                                    "6.0 20.0\n"
                                                    "5.0 20.0 Ori\n"
                                                    "1.0 80.0 UMi\n"));
    EXPECT_TRUE(catalogue->IsBoundaryLoaded());
    EXPECT_EQ(catalogue->FindConstellationWithAbbreviation("Ori")->GetBoundaryPoints().size(), 2u);
    EXPECT_FALSE(catalogue->FindConstellationWithAbbreviation("UMi")->HasBoundaries());
}

// Loading through the profile.

TEST_F(ConstellationFilesTest, LoadReadsNamesCentresAndFiguresAndLeavesBoundariesUntilShown)
{
    WriteFile("names.txt", kFiveNames);
    WriteFile("figures.txt", kOrionFigure);
    WriteFile("centres.txt", "And,10.09,40.48,0.75,43\nOri,83.9,5.17,84,13\n");
    WriteFile("bounds.txt", "5.0 -10.0 Ori\n6.0 -10.0 Ori\n6.0 20.0 Ori\n");
    ConstellationCatalogue catalogue;
    catalogue.Load();
    EXPECT_TRUE(catalogue.IsLoaded());
    ASSERT_EQ(catalogue.GetCount(), 5u);
    EXPECT_TRUE(catalogue.IsFigureLoaded());
    EXPECT_FALSE(catalogue.IsCenterLoaded()); // the file ends after two of five lines
    EXPECT_FALSE(catalogue.IsBoundaryLoaded());
    Constellation& orion = *catalogue.GetConstellation("Orion", false);
    EXPECT_TRUE(orion.HasFigures());
    EXPECT_EQ(orion.GetCenter(), PolarCoord(83.9, 5.17));
    EXPECT_FALSE(orion.HasBoundaries());

    // Boundaries shown: the first draw of a boundary loads them.
    SkyCanvas canvas(64, 48);
    catalogue.UseSettings(ConstellationSettings(false, true, false));
    orion.DrawBoundaries(canvas.GetDC(), CanvasView(canvas, PolarCoord(84, 0)));
    EXPECT_TRUE(catalogue.IsBoundaryLoaded());
    EXPECT_EQ(orion.GetBoundaryPoints().size(), 3u);
}

TEST_F(ConstellationFilesTest, LoadWithBoundariesShownReadsThemAtOnce)
{
    WriteFile("names.txt", kFiveNames);
    WriteFile("bounds.txt", "5.0 -10.0 Ori\n6.0 -10.0 Ori\n6.0 20.0 Ori\n");
    ConstellationCatalogue catalogue;
    catalogue.UseSettings(ConstellationSettings(false, true, true));
    catalogue.Load();
    EXPECT_TRUE(catalogue.IsBoundaryLoaded());
    EXPECT_TRUE(catalogue.GetConstellation("ori", true)->HasBoundaries());
}

// Requests.

class ConstellationRequestTest : public ConstellationFilesTest
{
protected:
    void SetUp() override
    {
        ConstellationFilesTest::SetUp();
        WriteFile("names.txt", kFiveNames);
        // Orion's figure near RA 84, Ursa Minor's by the pole; Serpens has a boundary that
        // crosses Orion's sky but no figure, Andromeda a figure far from Orion.
        WriteFile("figures.txt",
                  kOrionFigure + "UMi,37.95,89.26,263.05,86.59\n" + "And,2.1,29.1,17.4,35.6\n");
        WriteFile("bounds.txt", "5.0 -10.0 Ser\n6.0 -10.0 Ser\n6.0 20.0 Ser\n");
    }

    std::vector<std::string> Listed(const PolarCoord& centre, double radius)
    {
        AstroList list(10, 10);
        const Request request(Screen.View(centre, radius),
                              CatalogueSet(AstroCatalogue::CONSTELLATIONS),
                              AstroTime(1, 1, 2000, 0.0), 6.0);
        Constellations.SatisfyRequest(request, list);
        return Abbreviations(list);
    }

    TestScreen Screen;
    ConstellationCatalogue Constellations;
};

TEST_F(ConstellationRequestTest, ConstellationsAreListedByTheirFiguresInTableOrder)
{
    EXPECT_EQ(Listed(PolarCoord(84.0, 0.0), 10.0), (std::vector<std::string>{"Ori"}));
    EXPECT_EQ(Listed(PolarCoord(0.0, 90.0), 20.0), (std::vector<std::string>{"UMi"}));
    EXPECT_EQ(Listed(PolarCoord(0.0, 90.0), 90.0), (std::vector<std::string>{"And", "Ori", "UMi"}));
    EXPECT_TRUE(Listed(PolarCoord(200.0, -40.0), 20.0).empty());
    EXPECT_TRUE(Constellations.IsLoaded());
}

TEST_F(ConstellationRequestTest, AConstellationWithoutAFigureIsNeverListedWhateverItsBoundary)
{
    Constellations.UseSettings(ConstellationSettings(true, true, true));
    // Serpens's invented boundary lies across Orion's sky, yet only Orion is in the list.
    EXPECT_EQ(Listed(PolarCoord(82.0, 5.0), 15.0), (std::vector<std::string>{"Ori"}));
    EXPECT_EQ(Listed(PolarCoord(0.0, 90.0), 90.0), (std::vector<std::string>{"And", "Ori", "UMi"}));
    const Constellation& serpens = *Constellations.GetConstellation("Ser", true);
    EXPECT_TRUE(serpens.HasBoundaries());
    EXPECT_TRUE(serpens.GetFigureRange().GetRA().IsEmpty());
}

// Settings, state and labels.

TEST(ConstellationSettingsTest, DefaultsShowNamesInOrangeAndEqualityTakesTheColourIn)
{
    ConstellationSettings settings;
    EXPECT_FALSE(settings.bShowFigures);
    EXPECT_FALSE(settings.bShowBoundaries);
    EXPECT_TRUE(settings.bShowLabels);
    EXPECT_EQ(settings.LabelColor, TColor(255, 128, 0));
    EXPECT_FALSE(ConstellationSettings(false, false, false).ShowsAnything());

    // Figures, boundaries, labels: the constructor's order.
    ConstellationSettings figures(true, false, false);
    EXPECT_TRUE(figures.bShowFigures);
    EXPECT_FALSE(figures.bShowBoundaries);
    ConstellationSettings boundaries(false, true, false);
    EXPECT_TRUE(boundaries.bShowBoundaries);

    ConstellationSettings blue = settings;
    blue.LabelColor = TColor(0, 0, 255);
    EXPECT_FALSE(blue == settings);
}

TEST(ConstellationSettingsTest, StateHoldsTheThreeFlagsInOrderAndNotTheColour)
{
    ConstellationSettings settings(true, false, true);
    settings.LabelColor = TColor(0, 0, 255);
    CmdLineStateContainer writer;
    writer << AstroKey("Constellations") << settings;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Constellations=<Show_Figures=1 Show_Boundaries=0 Show_Labels=1>");

    ConstellationSettings read(false, true, false);
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("Constellations") >> read;
    EXPECT_TRUE(read.bShowFigures);
    EXPECT_FALSE(read.bShowBoundaries);
    EXPECT_TRUE(read.bShowLabels);
    EXPECT_EQ(read.LabelColor, TColor(255, 128, 0));

    // A state without the key reads every flag as false.
    CmdLineStateContainer empty;
    CmdLineStateContainer emptyReader(empty.GetCmdLine());
    emptyReader >> AstroKey("Constellations") >> read;
    EXPECT_FALSE(read.ShowsAnything());
}

TEST_F(ConstellationFilesTest, CatalogueStateIsItsSettingsAndReadingForgetsTheLabels)
{
    auto catalogue = Catalogue();
    catalogue->LoadCenterPointInfo(*Open("centres.txt", "And,10.09,40.48,0.75,43\n"
                                                        "Ori,83.9,5.17,84,13\n"));
    catalogue->UseSettings(ConstellationSettings(false, true, true));
    CmdLineStateContainer writer;
    writer << AstroKey("Constellations") << *catalogue;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Constellations=<Show_Figures=0 Show_Boundaries=1 Show_Labels=1>");

    SkyCanvas canvas(64, 48);
    Transformation view = CanvasView(canvas, PolarCoord(84, 13));
    canvas.Parameters.pTransformation = &view;
    Constellation& orion = *catalogue->FindConstellationWithAbbreviation("Ori");
    Label* before = orion.GetLabel(canvas.Parameters);
    ASSERT_NE(before, nullptr);
    EXPECT_EQ(before->GetColor(), TColor(255, 128, 0));

    ConstellationSettings blue;
    blue.LabelColor = TColor(0, 0, 255);
    catalogue->UseSettings(blue);
    Label* after = orion.GetLabel(canvas.Parameters);
    ASSERT_NE(after, nullptr);
    EXPECT_EQ(after->GetColor(), TColor(0, 0, 255));

    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("Constellations") >> *catalogue;
    EXPECT_TRUE(catalogue->GetSettings().bShowBoundaries);
    EXPECT_FALSE(catalogue->GetSettings().bShowFigures);
}

TEST_F(ConstellationFilesTest, LabelIsTheNameFixedOnTheLabelPointWhileItIsInView)
{
    auto catalogue = Catalogue();
    catalogue->LoadCenterPointInfo(*Open("centres.txt", "And,10.09,40.48,0.75,43\n"
                                                        "Ori,83.9,5.17,84,13\n"));
    Constellation& orion = *catalogue->FindConstellationWithAbbreviation("Ori");
    SkyCanvas canvas(64, 48);
    EXPECT_TRUE(orion.IsLabeled(canvas.Parameters));
    // Without a projection there is no place for it.
    EXPECT_EQ(orion.GetLabel(canvas.Parameters), nullptr);

    Transformation view = CanvasView(canvas, PolarCoord(84, 13));
    canvas.Parameters.pTransformation = &view;
    Label* label = orion.GetLabel(canvas.Parameters);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetText(), "Orion");
    EXPECT_TRUE(label->IsFixed());
    EXPECT_EQ(label->GetObject(), &orion);
    TPoint expected;
    ASSERT_TRUE(view.Translate(PolarCoord(84, 13), expected));
    EXPECT_EQ(label->GetObjectPoint(), expected);
    EXPECT_EQ(label->GetFontRef(), ConstellationSettings::GetLabelFontRef(canvas.GetDC()));
    // The same label serves again while the font is the same.
    EXPECT_EQ(orion.GetLabel(canvas.Parameters), label);

    Transformation away = CanvasView(canvas, PolarCoord(264, -13));
    canvas.Parameters.pTransformation = &away;
    EXPECT_EQ(orion.GetLabel(canvas.Parameters), nullptr);

    catalogue->UseSettings(ConstellationSettings(true, true, false));
    EXPECT_FALSE(orion.IsLabeled(canvas.Parameters));
}

TEST(ConstellationSettingsTest, LabelFontIsItalicAndFollowsTheResolution)
{
    Surface pixels(1, 1, PixelFormat::Rgb32);
    TDC screen(pixels, DeviceCaps{});
    FontRef* font = ConstellationSettings::GetLabelFontRef(screen);
    EXPECT_EQ(ConstellationSettings::GetLabelFontRef(screen), font);
    EXPECT_EQ(font->GetFont().GetFaceName(), "Arial Italic");
    // 0.18 inch at 96 dots per inch.
    EXPECT_EQ(font->GetFont().GetHeight(), 17);

    // A printer's resolution makes a new font; a label holding the old one keeps it alive.
    font->AddReference();
    DeviceCaps printerCaps;
    printerCaps.LogPixelsX = printerCaps.LogPixelsY = 300;
    TDC printer(pixels, printerCaps);
    FontRef* printed = ConstellationSettings::GetLabelFontRef(printer);
    EXPECT_NE(printed, font);
    EXPECT_EQ(printed->GetFont().GetHeight(), 54);
    EXPECT_EQ(font->GetFont().GetHeight(), 17);
    font->Release();
    EXPECT_EQ(ConstellationSettings::GetLabelFontRef(printer), printed);
}

// Files written.

TEST_F(ConstellationFilesTest, CentreLinesAreWrittenWithTheCentreStandingInForAMissingLabel)
{
    auto catalogue = Catalogue();
    catalogue->LoadCenterPointInfo(*Open("centres.txt", "And,10.0934,40.4843,0.75,43\n"
                                                        "Ori,83.9002,5.17467\n"
                                                        "Ser,247.427,4.81435,232.5,5\n"
                                                        "Oph,255.5,-5.5,256.25,-7.5\n"
                                                        "UMi,225.628,76.6889,226.5,68\n"));
    TextFile out;
    ASSERT_TRUE(out.OpenForWriting(pDir->File("written.txt").c_str()));
    ASSERT_TRUE(catalogue->WriteCenterInfo(out));
    out.Close();
    EXPECT_EQ(pDir->ReadFile("written.txt"), "And,10.0934,40.4843,0.75,43\n"
                                             "Ori,83.9002,5.17467,83.9002,5.17467\n"
                                             "Ser,247.427,4.81435,232.5,5\n"
                                             "Oph,255.5,-5.5,256.25,-7.5\n"
                                             "UMi,225.628,76.6889,226.5,68\n");
}

TEST_F(ConstellationFilesTest, WriteCenterInfoGoesToTheDataDirectory)
{
    const char* before = std::getenv("ORBISCOPE_DATA");
    const std::string saved = before ? before : "";
    ::setenv("ORBISCOPE_DATA", pDir->Path().c_str(), 1);
    auto catalogue = Catalogue("Orion, Ori\n");
    catalogue->LoadCenterPointInfo(*Open("centres.txt", "Ori,83.9,5.17,84,13\n"));
    const bool written = catalogue->WriteCenterInfo();
    if (before) {
        ::setenv("ORBISCOPE_DATA", saved.c_str(), 1);
    } else {
        ::unsetenv("ORBISCOPE_DATA");
    }
    ASSERT_TRUE(written);
    EXPECT_EQ(pDir->ReadFile("CONSTCT.TXT"), "Ori,83.9,5.17,84,13\n");
}

TEST_F(ConstellationFilesTest, BoundaryDumpHoldsAbbreviationCountAndDoublesPerConstellation)
{
    auto catalogue = Catalogue("Orion, Ori\nCrux, C\n");
    WriteFile("bounds.txt", "5.0 -10.0 Ori\n6.0 20.5 Ori\n");
    HostFile file(pDir->File("constbd.bin"), HostFile::WriteNew);
    ASSERT_TRUE(catalogue->DumpBoundaryInfo(file));
    file.Close();
    EXPECT_TRUE(catalogue->IsBoundaryLoaded());

    const std::vector<unsigned char> bytes = pDir->ReadBytes("constbd.bin");
    ASSERT_EQ(bytes.size(), 3u + 4u + 2u * 16u + 3u + 4u);
    EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 3), "Ori");
    EXPECT_EQ(bytes[3], 2);
    EXPECT_EQ(bytes[4] | bytes[5] | bytes[6], 0);
    double ra = 0.0;
    double dec = 0.0;
    std::memcpy(&ra, &bytes[7 + 16], 8);
    std::memcpy(&dec, &bytes[7 + 24], 8);
    EXPECT_EQ(ra, 90.0);
    EXPECT_EQ(dec, 20.5);
    // A shorter abbreviation is filled with zeros; no points follow its count.
    const std::size_t crux = 7 + 32;
    EXPECT_EQ(bytes[crux], 'C');
    EXPECT_EQ(bytes[crux + 1], 0);
    EXPECT_EQ(bytes[crux + 2], 0);
    EXPECT_EQ(bytes[crux + 3] | bytes[crux + 4] | bytes[crux + 5] | bytes[crux + 6], 0);
}

TEST_F(ConstellationFilesTest, DumpWritesConstbdBinInTheWorkingDirectory)
{
    auto catalogue = Catalogue("Orion, Ori\n");
    WriteFile("bounds.txt", "5.0 -10.0 Ori\n");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(pDir->Path());
    const bool dumped = catalogue->Dump();
    std::filesystem::current_path(before);
    ASSERT_TRUE(dumped);
    EXPECT_EQ(pDir->ReadBytes("constbd.bin").size(), 3u + 4u + 16u);
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
            catalogue->LoadBoundaryInfo(*Open("bounds.txt", c.text));
        } else {
            catalogue->LoadFigureInfo(*Open("figures.txt", c.text));
        }
        const Constellation& andromeda = *catalogue->FindConstellationWithAbbreviation("And");
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
