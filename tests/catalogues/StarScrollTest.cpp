// A scroll of the map as the star index sees it: frames of a request that scrolls, answered by
// the collector, against the full transformation of each frame.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <set>

#include "StarIndexTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroList.h"
#include "catalogues/Star.h"

namespace {

// A view that stands on the ground: a zenith, and the direction of view as an azimuth and a
// zenith distance in the horizon frame, as the map's rotating orientation keeps it.
struct GroundView
{
    PolarCoord Zenith;
    double Azimuth;
    double ZenithDistance;

    PolarCoord Centre() const
    {
        PerspectiveModifier horizon(Zenith, PolarCoord(0.0, 90.0));
        PolarCoord centre;
        horizon.ReversePerspective(PolarCoord(Azimuth, 90.0 - ZenithDistance), centre);
        return centre;
    }
};

class StarScrollTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Quiet = SetDebugSink([](const char*) {});
        // A grid of stars over the part of the sky the scrolls sweep, every half degree.
        std::string text;
        unsigned sao = 1;
        for (double dec = -10.0; dec <= 60.0; dec += 0.5) {
            for (double ra = 60.0; ra <= 140.0; ra += 0.5) {
                text += StarLine(sao++, 5.0, ra, dec) + "\n";
            }
        }
        Dir.WriteText("grid.txt", text);
        TextFile file;
        ASSERT_TRUE(file.OpenForReading(Dir.File("grid.txt").c_str()));
        ASSERT_TRUE(Collector.LoadStars(file));
    }
    void TearDown() override { SetDebugSink(Quiet); }

    // One frame: the request of the view, scrolling with `info`. Each star listed must stand
    // within a pixel of where the frame's full transformation puts it. Returns the SAO numbers
    // listed.
    std::set<std::uint32_t> Frame(const GroundView& view, const AstroScrollInfo& info, bool& kept)
    {
        Transformation full = Screen.View(view.Centre(), 10.0, view.Zenith);
        Request request(full, CatalogueSet(AstroCatalogue::STARS), AstroTime(1, 1, 2000, 0.0), 6.0);
        request.SetScrolling(true);
        request.SetScrollInfo(info);
        EXPECT_TRUE(Collector.SatisfyRequest(request, List));
        kept = request.KeepsScrollCache();
        std::set<std::uint32_t> shown;
        for (AstroObject* object : List) {
            TPoint exact;
            full.Translate(object->GetPosition(), exact);
            const TPoint& drawn = object->GetDisplayPoint();
            EXPECT_LE(std::abs(drawn.x - exact.x), 1) << object->GetInfoName();
            EXPECT_LE(std::abs(drawn.y - exact.y), 1) << object->GetInfoName();
            shown.insert(static_cast<Star*>(object)->GetSAONumber());
        }
        return shown;
    }

    ScratchDirectory Dir;
    TestScreen Screen;
    AstroItemCollector Collector;
    AstroList List{500, 1000};
    DebugSink Quiet;
};

} // namespace

TEST_F(StarScrollTest, UpAndBackDownKeepsEveryStarInPlace)
{
    const AstroScrollInfo up(3, 350, DegreeAngle(1.0));
    const AstroScrollInfo down(4, 350, DegreeAngle(1.0));
    GroundView view{PolarCoord(100, 30), 190.0, 20.0};
    bool kept = true;

    std::set<std::uint32_t> first = Frame(view, up, kept);
    EXPECT_FALSE(kept); // nothing stored yet
    ASSERT_GT(first.size(), 500u);
    std::set<std::uint32_t> gone;
    for (int i = 1; i <= 12; ++i) {
        view.ZenithDistance -= 1.0;
        std::set<std::uint32_t> shown = Frame(view, up, kept);
        EXPECT_TRUE(kept) << i;
        for (std::uint32_t sao : first) {
            if (!shown.count(sao)) {
                gone.insert(sao);
            }
        }
    }
    // Back down: stars that left the view come back into it, where they belong.
    std::set<std::uint32_t> last;
    for (int i = 1; i <= 12; ++i) {
        view.ZenithDistance += 1.0;
        last = Frame(view, down, kept);
        EXPECT_TRUE(kept) << i;
    }
    int returned = 0;
    for (std::uint32_t sao : gone) {
        returned += last.count(sao) ? 1 : 0;
    }
    EXPECT_GT(returned, 100);
}

TEST_F(StarScrollTest, VectorsAreMadeAnewWhenTheScrollDoesNotGoOn)
{
    const AstroScrollInfo up(3, 350, DegreeAngle(2.0));
    const AstroScrollInfo left(1, 350, DegreeAngle(2.0));
    GroundView view{PolarCoord(100, 30), 180.0, 25.0};
    bool kept = true;
    EXPECT_GT(Frame(view, up, kept).size(), 500u);
    view.ZenithDistance -= 2.0;
    Frame(view, up, kept);
    EXPECT_TRUE(kept);
    // The orientation stopped half a step short, at a limit.
    view.ZenithDistance -= 1.0;
    Frame(view, up, kept);
    EXPECT_FALSE(kept);
    // Another kind of scroll keeps its vectors in another frame.
    view.Azimuth += 2.0;
    Frame(view, left, kept);
    EXPECT_FALSE(kept);
    view.Azimuth += 2.0;
    Frame(view, left, kept);
    EXPECT_TRUE(kept);

    // A request that does not scroll, here after a small move of the view, drops every vector.
    view.ZenithDistance -= 0.7;
    Request still(Screen.View(view.Centre(), 10.0, view.Zenith),
                  CatalogueSet(AstroCatalogue::STARS), AstroTime(1, 1, 2000, 0.0), 6.0);
    ASSERT_TRUE(Collector.SatisfyRequest(still, List));
    ASSERT_FALSE(List.IsEmpty());
    for (AstroObject* object : List) {
        EXPECT_FALSE(static_cast<Star*>(object)->HasScrollCache());
    }
    view.Azimuth += 2.0;
    Frame(view, left, kept);
    EXPECT_FALSE(kept);
}
