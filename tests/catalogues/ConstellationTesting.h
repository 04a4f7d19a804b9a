#pragma once
// What the constellation tests share: a scratch directory whose profile names the four
// constellation files in it, and the shared table of names emptied before and after each test
// (so that no test sees another's names).
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "StarIndexTesting.h"
#include "catalogues/ConstellationCatalogue.h"

// Five constellations of the real table, in its order, with invented figures and boundaries
// where a test needs them.
inline const std::string kFiveNames =
    "Andromeda, And\nOrion, Ori\nSerpens, Ser\nOphiuchus, Oph\nUrsa Minor, UMi\n";

// Orion's figure: Betelgeuse to Bellatrix and Bellatrix to Rigel, SAO numbers behind.
inline const std::string kOrionFigure = "Ori,88.79,7.41,81.28,6.35,113271,112740\n"
                                        "Ori,81.28,6.35,78.63,-8.20,112740,131907\n";

class ConstellationFilesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ConstellationCatalogue::FlushNameInfo();
        Dir.WriteFile("orbiscope.ini",
                      "[Orbiscope]\nConstellationNameFile = " + Dir.File("names.txt") +
                          "\nConstNodeFile = " + Dir.File("figures.txt") +
                          "\nConstCenterFile = " + Dir.File("centres.txt") +
                          "\nConstellationBoundaryFile = " + Dir.File("bounds.txt") + "\n");
        HostProfile().Reload();
    }
    void TearDown() override { ConstellationCatalogue::FlushNameInfo(); }

    // A catalogue whose constellations are those of `names`, read as the table of names.
    std::unique_ptr<ConstellationCatalogue> Catalogue(const std::string& names = kFiveNames)
    {
        ConstellationCatalogue::FlushNameInfo();
        ConstellationCatalogue::LoadNameInfo(*Dir.Open("names.txt", names));
        auto catalogue = std::make_unique<ConstellationCatalogue>();
        catalogue->LoadConstellations();
        return catalogue;
    }
    // The constellation of an abbreviation in `catalogue`.
    static Constellation& Get(const ConstellationCatalogue& catalogue, const char* abbreviation)
    {
        Constellation* found = catalogue.FindConstellationWithAbbreviation(abbreviation);
        EXPECT_NE(found, nullptr) << abbreviation;
        return *found;
    }

    ScratchDirectory Dir;
};
