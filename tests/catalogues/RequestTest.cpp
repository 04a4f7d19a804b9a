#include <gtest/gtest.h>

#include "StarIndexTesting.h"
#include "catalogues/Request.h"

namespace {

class RequestTest : public ::testing::Test
{
protected:
    Request Make(const PolarCoord& centre, double radius, std::uint32_t set, double hours,
                 double limit)
    {
        return Request(Screen.View(centre, radius), CatalogueSet(set), AstroTime(1, 1, 2000, hours),
                       limit);
    }

    TestScreen Screen;
};

} // namespace

TEST_F(RequestTest, TimeAloneTellsADifferenceByTimeOnly)
{
    Request a = Make(PolarCoord(10, 20), 30.0, 0x1F, 0.0, 6.0);
    Request same = Make(PolarCoord(10, 20), 30.0, 0x1F, 0.0, 6.0);
    Request later = Make(PolarCoord(10, 20), 30.0, 0x1F, 1.0, 6.0);
    EXPECT_TRUE(a == same);
    EXPECT_FALSE(a.DiffersByTimeOnly(same));
    EXPECT_FALSE(a == later);
    EXPECT_TRUE(a.DiffersByTimeOnly(later));
    EXPECT_TRUE(a.CompareAllButTime(later));
}

TEST_F(RequestTest, ViewCataloguesAndMagnitudeEachMakeAnotherRequest)
{
    Request a = Make(PolarCoord(10, 20), 30.0, 0x1F, 0.0, 6.0);
    const Request others[] = {
        Make(PolarCoord(10, 20.0001), 30.0, 0x1F, 1.0, 6.0),
        Make(PolarCoord(10, 20), 30.5, 0x1F, 1.0, 6.0),
        Make(PolarCoord(10, 20), 30.0, 0x0F, 1.0, 6.0),
        // Bits that name no catalogue still count: the whole word is compared.
        Make(PolarCoord(10, 20), 30.0, 0x11F, 1.0, 6.0),
        Make(PolarCoord(10, 20), 30.0, 0x1F, 1.0, 6.000000001),
    };
    for (const Request& other : others) {
        EXPECT_FALSE(a.CompareAllButTime(other));
        EXPECT_FALSE(a.DiffersByTimeOnly(other));
        EXPECT_FALSE(a == other);
    }
    // The same view on another rectangle is another request too.
    Request wider(Transformation(Screen.DC(), TRect(0, 0, 800, 600), PolarCoord(10, 20), 30.0,
                                 PolarCoord(0, 90)),
                  CatalogueSet(0x1F), AstroTime(1, 1, 2000, 0.0), 6.0);
    EXPECT_FALSE(a == wider);
}

TEST_F(RequestTest, ScrollTransformationBelongsToItsRequestAlone)
{
    Request a = Make(PolarCoord(10, 20), 30.0, 1, 0.0, 6.0);
    EXPECT_EQ(a.GetScrollTransformation(), nullptr);
    a.SetScrolling(true);
    EXPECT_EQ(a.GetActiveScroll(), nullptr);

    a.SetScrollInfo(AstroScrollInfo(3, 200, DegreeAngle(1.5)));
    ASSERT_NE(a.GetActiveScroll(), nullptr);
    EXPECT_TRUE(a.GetActiveScroll()->IsVertical());
    EXPECT_EQ(a.GetActiveScroll()->GetTransformation(), a.GetView());
    EXPECT_EQ(a.GetScrollInfo().GetInterval(), 200);

    // A copy keeps the flags and the info but makes no scroll of its own.
    Request copy = a;
    EXPECT_TRUE(copy.IsScrolling());
    EXPECT_EQ(copy.GetScrollInfo(), a.GetScrollInfo());
    EXPECT_EQ(copy.GetScrollTransformation(), nullptr);
    EXPECT_TRUE(copy == a);

    // Not scrolling, the scroll transformation is not used.
    a.SetScrolling(false);
    EXPECT_EQ(a.GetActiveScroll(), nullptr);
    EXPECT_NE(a.GetScrollTransformation(), nullptr);
}
