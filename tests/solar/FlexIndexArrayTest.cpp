#include <gtest/gtest.h>

#include "solar/FlexIndexArray.h"

TEST(FlexIndexArray, HoldsOneEntryPerIndexOfASignedRange)
{
    FlexIndexArray array(-3, 4);
    EXPECT_EQ(array.GetLowest(), -3);
    EXPECT_EQ(array.GetHighest(), 4);
    EXPECT_EQ(array.GetSize(), 8);
    for (int i = -3; i <= 4; ++i) {
        EXPECT_EQ(array[i], 0.0) << i;
        array[i] = 10.0 * i;
    }
    for (int i = -3; i <= 4; ++i) {
        EXPECT_EQ(array[i], 10.0 * i) << i;
    }
    EXPECT_TRUE(array.Contains(-3));
    EXPECT_TRUE(array.Contains(4));
    EXPECT_FALSE(array.Contains(-4));
    EXPECT_FALSE(array.Contains(5));
}

TEST(FlexIndexArray, RangesEntirelyBelowZeroWork)
{
    FlexIndexArray array(-10, -7);
    array[-10] = 1.5;
    array[-7] = -2.5;
    const FlexIndexArray& view = array;
    EXPECT_EQ(view[-10], 1.5);
    EXPECT_EQ(view[-9], 0.0);
    EXPECT_EQ(view[-7], -2.5);
    EXPECT_EQ(view.GetSize(), 4);
}

TEST(FlexIndexArray, SingleAndEmptyRanges)
{
    FlexIndexArray single(2, 2);
    EXPECT_EQ(single.GetSize(), 1);
    single[2] = 7.0;
    EXPECT_EQ(single[2], 7.0);

    FlexIndexArray empty(1, 0);
    EXPECT_EQ(empty.GetSize(), 0);
    EXPECT_FALSE(empty.Contains(0));
    EXPECT_FALSE(empty.Contains(1));
}

TEST(FlexIndexArray, CopiesAreIndependent)
{
    FlexIndexArray original(-1, 1);
    original[-1] = 3.0;
    FlexIndexArray copy = original;
    copy[-1] = 4.0;
    EXPECT_EQ(original[-1], 3.0);
    EXPECT_EQ(copy[-1], 4.0);
}
