// A scroll of the map as the star index sees it: frames of a request that scrolls, answered by
// the collector, against the full transformation of each frame.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "StarIndexTesting.h"
#include "catalogues/AstroItemCollector.h"

namespace {

constexpr int kUp = AstroScrollInfo::TOWARDS_ZENITH;
constexpr int kDown = AstroScrollInfo::TOWARDS_HORIZON;

class StarScrollTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // A grid of stars over the part of the sky the scrolls sweep, every half degree.
        std::string text;
        unsigned sao = 1;
        for (double dec = -10.0; dec <= 60.0; dec += 0.5) {
            for (double ra = 60.0; ra <= 140.0; ra += 0.5) {
                text += StarLine(sao++, 5.0, ra, dec);
            }
        }
        ASSERT_TRUE(Collector.LoadStars(*Dir.Open("grid.txt", text)));
    }

    // One frame of a view that stands on the ground, looking at an azimuth and zenith distance
    // in the horizon frame of its zenith, as the map's rotating orientation keeps it; a scroll
    // of 1 degree in `direction`, or no scroll for 0. Each star listed must stand within a
    // pixel of where the frame's full transformation puts it. Returns the SAO numbers listed.
    std::set<std::uint32_t> Frame(double azimuth, double zenithDistance, int direction)
    {
        const PolarCoord zenith(100, 30);
        PolarCoord centre;
        PerspectiveModifier(zenith, PolarCoord(0.0, 90.0))
            .ReversePerspective(PolarCoord(azimuth, 90.0 - zenithDistance), centre);
        const Transformation full = ScreenView(centre, 10.0, zenith);
        Request request(full, CatalogueSet(AstroCatalogue::STARS), AstroTime(1, 1, 2000, 0.0), 6.0);
        if (direction != 0) {
            request.SetScrolling(true);
            request.SetScrollInfo(AstroScrollInfo(direction, 350, DegreeAngle(1.0)));
        }
        EXPECT_TRUE(Collector.SatisfyRequest(request, List));
        Kept = request.KeepsScrollCache();
        std::set<std::uint32_t> shown;
        for (AstroObject* object : List) {
            TPoint exact;
            full.Translate(object->GetPosition(), exact);
            EXPECT_LE(std::abs(object->GetDisplayPoint().x - exact.x), 1) << object->GetInfoName();
            EXPECT_LE(std::abs(object->GetDisplayPoint().y - exact.y), 1) << object->GetInfoName();
            EXPECT_EQ(static_cast<Star*>(object)->HasScrollCache(), direction != 0);
            shown.insert(static_cast<Star*>(object)->GetSAONumber());
        }
        return shown;
    }

    ScratchDirectory Dir;
    AstroItemCollector Collector;
    AstroList List{500, 1000};
    bool Kept = false;
};

} // namespace

TEST_F(StarScrollTest, EveryFrameOfAScrollPutsEveryStarInPlace)
{
    // Twelve steps up and twelve back down: the stars that left the view come back into it,
    // where they belong.
    const std::set<std::uint32_t> first = Frame(190.0, 20.0, kUp);
    EXPECT_FALSE(Kept); // nothing stored yet
    ASSERT_GT(first.size(), 500u);
    for (int i = 1; i <= 12; ++i) {
        EXPECT_NE(Frame(190.0, 20.0 - i, kUp), first);
        EXPECT_TRUE(Kept) << i;
    }
    std::set<std::uint32_t> last;
    for (int i = 11; i >= 0; --i) {
        last = Frame(190.0, 20.0 - i, kDown);
        EXPECT_TRUE(Kept) << i;
    }
    EXPECT_EQ(last, first);

    // A scroll that does not go on, half a step or another kind, makes its vectors anew.
    Frame(190.0, 20.5, kDown);
    EXPECT_FALSE(Kept);
    Frame(191.0, 20.5, AstroScrollInfo::AZIMUTH_UP);
    EXPECT_FALSE(Kept);
}
