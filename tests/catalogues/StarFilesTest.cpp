// The shipped star files, read through the star index: well-known stars stand where the
// catalogues put them, and the collector finds and chooses the files the profile names.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "StarIndexTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroList.h"
#include "catalogues/Star.h"
#include "coords/AngleMath.h"

namespace {

struct KnownStar
{
    std::uint32_t SAONumber;
    const char* Name;
    double RA, Dec;   // J2000, degrees
    double Magnitude; // V
};

// Positions and V magnitudes from the Bright Star Catalogue, 5th edition.
const KnownStar kKnown[] = {
    {151881, "Sirius", 101.287, -16.716, -1.46},
    {308, "Polaris", 37.953, 89.264, 2.02},
    {113271, "Betelgeuse", 88.793, 7.407, 0.50},
    {67174, "Vega", 279.235, 38.784, 0.03},
};

class StarFilesTest : public ::testing::Test
{
protected:
    // The shipped profile alone: an empty user configuration.
    ScratchDirectory Home;
    MessageCapture Messages;
};

void ExpectKnownStars(StarCatalogue& catalogue, double magnitudeTolerance)
{
    for (const KnownStar& known : kKnown) {
        std::unique_ptr<Star> star(catalogue.GetStarFromSAONumber(known.SAONumber));
        ASSERT_NE(star, nullptr) << known.Name;
        EXPECT_EQ(star->GetListName(), known.Name);
        // Within 0.001 degree on the sky; near the pole RA itself may differ more.
        double dRA = (star->GetPosition().GetRA().GetDegrees() - known.RA) *
                     std::cos(DegreesToRadians(known.Dec));
        EXPECT_NEAR(dRA, 0.0, 0.001) << known.Name;
        EXPECT_NEAR(star->GetPosition().GetDec().GetDegrees(), known.Dec, 0.001) << known.Name;
        EXPECT_NEAR(star->GetMagnitude(), known.Magnitude, magnitudeTolerance) << known.Name;
    }
}

} // namespace

TEST_F(StarFilesTest, BothFilesHoldTheKnownStarsAndReadWhole)
{
    struct File
    {
        const char* Name;
        double MagnitudeTolerance; // Hipparcos V differs from the BSC's by a few hundredths
        std::size_t MinimumStars;
    };
    for (const File& file :
         {File{"ed:\\bright.bin", 0.0, 9000}, File{"cd:\\win32\\stars.bin", 0.06, 100000}}) {
        StarCatalogue catalogue;
        ASSERT_TRUE(catalogue.Load(file.Name));
        ASSERT_EQ(catalogue.GetSegments().size(), 64u);
        EXPECT_EQ(catalogue.GetSegments()[0].GetFileOffset(), 2828);
        ExpectKnownStars(catalogue, file.MagnitudeTolerance);

        // Every segment read once, each with all the stars its header promises (a shortfall
        // would be reported).
        auto named = catalogue.GetListOfNamedObjects();
        EXPECT_GT(named->size(), 500u);
        std::size_t stars = 0;
        for (const Segment& segment : catalogue.GetSegments()) {
            stars += std::size_t(segment.GetStarCount());
            EXPECT_FALSE(segment.IsLoaded());
        }
        EXPECT_GT(stars, file.MinimumStars);
        EXPECT_TRUE(Messages.Messages.empty()) << file.Name;
    }
}

TEST_F(StarFilesTest, ShippedProfileLeadsTheCollectorToBothFiles)
{
    AstroItemCollector collector;
    StarCatalogue* bright = collector.ChooseStarCatalogue(6.0);
    StarCatalogue* large = collector.ChooseStarCatalogue(9.0);
    ASSERT_NE(bright, nullptr);
    ASSERT_NE(large, nullptr);
    EXPECT_LT(bright->GetMaxMagnitude(), large->GetMaxMagnitude());
    EXPECT_EQ(collector.GetStarCatalogues()[0], bright);
    EXPECT_EQ(collector.GetStarCatalogues()[1], large);

    Star* sirius = collector.GetStarFromSAONumber(151881);
    ASSERT_NE(sirius, nullptr);
    EXPECT_EQ(sirius->GetMagnitude(), -1.46); // from the bright file
    sirius->ReleaseReference();
    EXPECT_TRUE(Resident(large->GetSegments()).empty());
}

TEST_F(StarFilesTest, SiriusOutshinesEveryStarAroundIt)
{
    AstroItemCollector collector;
    TestScreen screen;
    Request request(screen.View(PolarCoord(101.287, -16.716), 20.0),
                    CatalogueSet(AstroCatalogue::STARS), AstroTime(1, 1, 2000, 0.0), 9.0);
    AstroList list(500, 1000);
    ASSERT_TRUE(collector.SatisfyRequest(request, list));
    ASSERT_GT(list.GetCount(), 1000u);
    const AstroObject* brightest = nullptr;
    for (const AstroObject* object : list) {
        if (brightest == nullptr || object->GetMagnitude() < brightest->GetMagnitude()) {
            brightest = object;
        }
    }
    EXPECT_EQ(brightest->GetListName(), "Sirius");
    EXPECT_EQ(brightest->GetDisplayPoint(), TPoint(512, 384));
}
