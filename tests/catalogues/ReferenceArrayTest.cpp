#include <gtest/gtest.h>

#include <string>

#include "catalogues/ReferenceArray.h"

namespace {

// Counts live instances, to see who deletes what.
struct Tracked
{
    static int nLive;
    Tracked() { ++nLive; }
    ~Tracked() { --nLive; }
};
int Tracked::nLive = 0;

} // namespace

TEST(ReferenceArray, GrowsByItsStepWhenFull)
{
    std::string a = "a";
    ReferenceArray<std::string> array(2, 3);
    EXPECT_EQ(array.GetCapacity(), 2u);
    array.Add(&a);
    array.Add(&a);
    EXPECT_EQ(array.GetCapacity(), 2u);
    array.Add(&a);
    EXPECT_EQ(array.GetCapacity(), 5u);
    for (int i = 0; i < 3; ++i) {
        array.Add(&a);
    }
    EXPECT_EQ(array.GetCapacity(), 8u);
    EXPECT_EQ(array.GetCount(), 6u);
}

TEST(ReferenceArray, WithoutOwnershipNothingIsDeleted)
{
    Tracked objects[3];
    {
        ReferenceArray<Tracked> array(1, 1);
        for (Tracked& object : objects) {
            array.Add(&object);
        }
        EXPECT_TRUE(array.Detach(1));
        EXPECT_FALSE(array.Detach(5));
        ASSERT_EQ(array.GetCount(), 2u);
        EXPECT_EQ(array[0], &objects[0]);
        EXPECT_EQ(array[1], &objects[2]);
        array.Flush();
        EXPECT_TRUE(array.IsEmpty());
    }
    EXPECT_EQ(Tracked::nLive, 3);
}

TEST(ReferenceArray, AnOwningArrayDeletesOnFlushAndAtItsEndButNotOnDetach)
{
    auto* kept = new Tracked;
    {
        ReferenceArray<Tracked> array(4, 4);
        array.OwnsElements(true);
        array.Add(new Tracked);
        array.Add(new Tracked);
        array.Flush();
        EXPECT_EQ(Tracked::nLive, 1);

        array.Add(kept);
        array.Add(new Tracked);
        array.Detach(0);
        EXPECT_EQ(Tracked::nLive, 2);
    }
    EXPECT_EQ(Tracked::nLive, 1);
    delete kept;
}
