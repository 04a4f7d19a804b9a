// Rectangles hold their left and top edges but not their right and bottom ones.
#include <gtest/gtest.h>

#include "platform/TRect.h"

namespace {

TEST(TRect, SizeAndContainmentLeaveOutRightAndBottom)
{
    TRect r(2, 3, 6, 5);
    EXPECT_EQ(r.Width(), 4);
    EXPECT_EQ(r.Height(), 2);
    EXPECT_EQ(r.Size(), TSize(4, 2));
    EXPECT_TRUE(r.Contains(TPoint(2, 3)));
    EXPECT_TRUE(r.Contains(TPoint(5, 4)));
    EXPECT_FALSE(r.Contains(TPoint(6, 4)));
    EXPECT_FALSE(r.Contains(TPoint(5, 5)));
    EXPECT_EQ(TRect(TPoint(2, 3), TSize(4, 2)), r);
    EXPECT_EQ(TRect(TPoint(2, 3), TPoint(6, 5)), r);
}

TEST(TRect, EmptyNormalisedAndCommonPart)
{
    EXPECT_TRUE(TRect(5, 5, 5, 9).IsEmpty());
    EXPECT_TRUE(TRect(6, 5, 2, 9).IsEmpty());
    EXPECT_EQ(TRect(6, 9, 2, 5).Normalized(), TRect(2, 5, 6, 9));
    EXPECT_EQ(TRect(0, 0, 10, 10) & TRect(5, -5, 20, 3), TRect(5, 0, 10, 3));
    EXPECT_EQ(TRect(0, 0, 10, 10) & TRect(10, 0, 20, 10), TRect()) << "edges only touch";
    EXPECT_TRUE(TRect(0, 0, 10, 10).Touches(TRect(9, 9, 20, 20)));
    EXPECT_FALSE(TRect(0, 0, 10, 10).Touches(TRect(10, 0, 20, 10)));
    EXPECT_EQ(TRect(1, 1, 3, 3).OffsetBy(2, -1), TRect(3, 0, 5, 2));
    EXPECT_EQ(TRect(1, 1, 3, 3).InflatedBy(1, 2), TRect(0, -1, 4, 5));
}

TEST(TPoint, Arithmetic)
{
    TPoint p(3, 4);
    EXPECT_EQ(p + TPoint(1, 1), TPoint(4, 5));
    EXPECT_EQ(p - TPoint(1, 1), TPoint(2, 3));
    EXPECT_EQ(-p, TPoint(-3, -4));
    p += TPoint(10, 0);
    EXPECT_EQ(p, TPoint(13, 4));
}

} // namespace
