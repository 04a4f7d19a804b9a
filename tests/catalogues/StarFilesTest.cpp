// The shipped star files, read through the star index: a well-known star stands in each where
// the catalogues put it, and the shipped profile leads the collector to both.
#include <gtest/gtest.h>

#include <tuple>

#include "StarIndexTesting.h"
#include "catalogues/AstroItemCollector.h"

TEST(StarFilesTest, EachFileHoldsAWellKnownStarWhereTheCataloguesPutIt)
{
    // Positions (J2000) and V magnitudes from the Bright Star Catalogue, 5th edition; a file
    // made from Hipparcos V may differ from it by a few hundredths.
    const std::tuple<const char*, std::uint32_t, const char*, double, double, double> rows[] = {
        {"ed:\\bright.bin", 151881, "Sirius", 101.287, -16.716, -1.46},
        {"cd:\\win32\\stars.bin", 67174, "Vega", 279.235, 38.784, 0.03},
    };
    ScratchDirectory home; // the shipped profile alone
    MessageCapture messages;
    for (const auto& [file, sao, name, ra, dec, magnitude] : rows) {
        StarCatalogue catalogue;
        ASSERT_TRUE(catalogue.Load(file));
        std::unique_ptr<Star> star(catalogue.GetStarFromSAONumber(sao));
        ASSERT_NE(star, nullptr) << file;
        EXPECT_EQ(star->GetListName(), name);
        // Within 0.001 degree on the sky.
        const double cosDec = std::cos(dec * 3.14159265358979323846 / 180.0);
        EXPECT_NEAR((star->GetPosition().GetRA().GetDegrees() - ra) * cosDec, 0.0, 0.001) << name;
        EXPECT_NEAR(star->GetPosition().GetDec().GetDegrees(), dec, 0.001) << name;
        EXPECT_NEAR(star->GetMagnitude(), magnitude, 0.03) << name;
    }
    // The segments read gave all the stars their headers promise.
    EXPECT_EQ(messages.Messages, "");

    // The profile names the bright file first and the large one second.
    AstroItemCollector collector;
    StarCatalogue* bright = collector.ChooseStarCatalogue(6.0);
    ASSERT_NE(bright, nullptr);
    EXPECT_EQ(collector.GetStarCatalogues()[0], bright);
    EXPECT_EQ(collector.ChooseStarCatalogue(9.0), collector.GetStarCatalogues()[1]);
    EXPECT_LT(bright->GetMaxMagnitude(), collector.GetStarCatalogues()[1]->GetMaxMagnitude());
}
