#include <gtest/gtest.h>

#include "catalogues/PointerVector.h"

namespace {

struct Counted
{
    explicit Counted(int& live) : nLive(live) { ++nLive; }
    ~Counted() { --nLive; }
    int& nLive;
};

} // namespace

TEST(PointerVector, OwningVectorDeletesOnFlushAndAtItsEnd)
{
    int live = 0;
    {
        PointerVector<Counted> owning;
        owning.push_back(new Counted(live));
        owning.push_back(new Counted(live));
        owning.Flush();
        EXPECT_EQ(live, 0);
        EXPECT_TRUE(owning.empty());
        owning.push_back(new Counted(live));
    }
    EXPECT_EQ(live, 0);
}

TEST(PointerVector, VectorWithoutOwnershipLeavesItsElements)
{
    int live = 0;
    Counted a(live), b(live);
    {
        PointerVector<Counted> borrowed(false);
        borrowed.push_back(&a);
        borrowed.push_back(&b);
        borrowed.Flush();
        EXPECT_TRUE(borrowed.empty());
        borrowed.push_back(&a);
    }
    EXPECT_EQ(live, 2);
}
