// The list of what a view shows: the object under the mouse, found through an index that the
// list drops at each change.
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

#include "SkyObjectProbe.h"
#include "catalogues/AstroList.h"

namespace {

// Objects owned by the test, listed in an AstroList as the map lists a catalogue's objects.
class AstroListTest : public ::testing::Test
{
protected:
    SkyObjectProbe* Place(int x, int y)
    {
        Objects.push_back(std::make_unique<SkyObjectProbe>());
        Objects.back()->SetDisplayPoint(TPoint(x, y));
        List.Add(Objects.back().get());
        return Objects.back().get();
    }

    std::vector<std::unique_ptr<SkyObjectProbe>> Objects;
    AstroList List{500, 1000};
};

} // namespace

TEST_F(AstroListTest, NearestObjectIsTheOneItsDefinitionGivesOnAFullSky)
{
    EXPECT_EQ(List.FindNearestObject(TPoint(10, 10), 10), nullptr);
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> x(-20, 1044);
    std::uniform_int_distribution<int> y(-20, 788);
    for (int i = 0; i < 3000; ++i) {
        Place(x(random), y(random));
    }
    // Clusters with shared x values and exact ties.
    for (int i = 0; i < 200; ++i) {
        Place(500 + i % 7, 400 + i % 11);
    }
    // The definition, object by object: the nearest strictly inside the circle; of equal
    // distances the smaller x, then the earlier in the list.
    for (int i = 0; i < 5000; ++i) {
        const TPoint point(x(random), y(random));
        const int radius = 1 + i % 25;
        AstroObject* nearest = nullptr;
        long long best = (long long)radius * radius;
        for (AstroObject* object : List) {
            const TPoint p = object->GetDisplayPoint();
            const long long d = (long long)(p.x - point.x) * (p.x - point.x) +
                                (long long)(p.y - point.y) * (p.y - point.y);
            if (d < best || (nearest && d == best && p.x < nearest->GetDisplayPoint().x)) {
                nearest = object;
                best = d;
            }
        }
        ASSERT_EQ(List.FindNearestObject(point, radius), nearest)
            << point.x << ", " << point.y << " within " << radius;
    }
}
