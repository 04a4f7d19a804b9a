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
    AstroListTest() : List(500, 1000) {}

    SkyObjectProbe* Place(int x, int y, bool timeDependent = false)
    {
        Objects.push_back(std::make_unique<SkyObjectProbe>(TPoint(x, y), timeDependent));
        List.Add(Objects.back().get());
        return Objects.back().get();
    }

    std::vector<std::unique_ptr<SkyObjectProbe>> Objects;
    AstroList List;
};

// The definition of the search, object by object: the nearest strictly inside the circle;
// of equal distances the smaller x, then the earlier in the list.
AstroObject* NearestByDefinition(const AstroList& list, TPoint point, int radius)
{
    AstroObject* best = nullptr;
    long long bestDistance = (long long)radius * radius;
    int bestX = 0;
    for (AstroObject* object : list) {
        TPoint p = object->GetDisplayPoint();
        long long dx = p.x - point.x;
        long long dy = p.y - point.y;
        long long d = dx * dx + dy * dy;
        if (d < bestDistance || (best != nullptr && d == bestDistance && p.x < bestX)) {
            best = object;
            bestDistance = d;
            bestX = p.x;
        }
    }
    return best;
}

} // namespace

TEST_F(AstroListTest, EmptyListFindsNothing)
{
    EXPECT_EQ(List.FindNearestObject(TPoint(10, 10), 10), nullptr);
}

TEST_F(AstroListTest, SearchCircleIsOpenAtItsRadius)
{
    SkyObjectProbe* right = Place(110, 50);
    EXPECT_EQ(List.FindNearestObject(TPoint(100, 50), 10), nullptr);
    EXPECT_EQ(List.FindNearestObject(TPoint(101, 50), 10), right);
    // Straight below at the radius, and on the diagonal at 8, 6 (distance 10) and 7, 7.
    Place(100, 90);
    EXPECT_EQ(List.FindNearestObject(TPoint(100, 80), 10), nullptr);
    SkyObjectProbe* diagonal = Place(208, 206);
    EXPECT_EQ(List.FindNearestObject(TPoint(200, 200), 10), nullptr);
    EXPECT_EQ(List.FindNearestObject(TPoint(201, 199), 10), diagonal);
}

TEST_F(AstroListTest, NearestWinsAndTiesKeepTheSmallerX)
{
    Place(300, 300);
    SkyObjectProbe* left = Place(97, 100);
    SkyObjectProbe* right = Place(103, 100);
    Place(100, 109);
    EXPECT_EQ(List.FindNearestObject(TPoint(100, 100), 10), left);
    EXPECT_EQ(List.FindNearestObject(TPoint(101, 100), 10), right);

    // Same place twice: the one listed first.
    SkyObjectProbe* first = Place(400, 400);
    Place(400, 400);
    EXPECT_EQ(List.FindNearestObject(TPoint(402, 401), 10), first);
}

TEST_F(AstroListTest, SearchAgreesWithTheDefinitionOnAFullSky)
{
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
    for (int i = 0; i < 5000; ++i) {
        TPoint point(x(random), y(random));
        int radius = 1 + i % 25;
        ASSERT_EQ(List.FindNearestObject(point, radius), NearestByDefinition(List, point, radius))
            << point.x << ", " << point.y << " within " << radius;
    }
}

TEST_F(AstroListTest, IndexFollowsChangesOfTheList)
{
    Place(10, 10);
    EXPECT_FALSE(List.HasIndex());
    EXPECT_EQ(List.FindNearestObject(TPoint(50, 50), 10), nullptr);
    EXPECT_TRUE(List.HasIndex());

    SkyObjectProbe* late = Place(52, 50);
    EXPECT_FALSE(List.HasIndex());
    EXPECT_EQ(List.FindNearestObject(TPoint(50, 50), 10), late);

    // Display points move between frames; a new frame rebuilds the list and so the index.
    List.Flush();
    EXPECT_FALSE(List.HasIndex());
    late->SetDisplayPoint(TPoint(200, 200));
    List.Add(late);
    EXPECT_EQ(List.FindNearestObject(TPoint(50, 50), 10), nullptr);
    EXPECT_EQ(List.FindNearestObject(TPoint(199, 200), 10), late);
}

TEST_F(AstroListTest, FlushLeavesTheObjectsAlive)
{
    bool deleted = false;
    SkyObjectProbe object(TPoint(1, 1), false, &deleted);
    List.Add(&object);
    List.Flush();
    EXPECT_TRUE(List.IsEmpty());
    EXPECT_FALSE(deleted);
    EXPECT_EQ(object.GetReferenceCount(), 1);
}

TEST_F(AstroListTest, RemovingTimeDependentObjectsKeepsTheOrderOfTheRest)
{
    SkyObjectProbe* a = Place(1, 1);
    Place(2, 2, true);
    Place(3, 3, true);
    SkyObjectProbe* b = Place(4, 4);
    Place(5, 5, true);
    List.FindNearestObject(TPoint(0, 0), 5);
    ASSERT_TRUE(List.HasIndex());

    List.RemoveTimeDependentObjects();
    ASSERT_EQ(List.GetCount(), 2u);
    EXPECT_EQ(List[0], a);
    EXPECT_EQ(List[1], b);
    EXPECT_FALSE(List.HasIndex());
    EXPECT_EQ(List.FindNearestObject(TPoint(5, 5), 3), b);
}

TEST_F(AstroListTest, CopyListsTheSameObjectsWithoutTheIndex)
{
    Place(1, 1);
    Place(2, 2);
    Place(3, 3);
    List.FindNearestObject(TPoint(0, 0), 5);

    AstroList copy(List);
    ASSERT_EQ(copy.GetCount(), 3u);
    for (std::size_t i = 0; i < copy.GetCount(); ++i) {
        EXPECT_EQ(copy[i], List[i]);
    }
    EXPECT_FALSE(copy.HasIndex());
    EXPECT_EQ(copy.GetGrowthStep(), 1000u);
    EXPECT_GE(copy.GetCapacity(), 3u);
}
