#include <gtest/gtest.h>

#include "solar/FlexDoubleIndexArray.h"

TEST(FlexDoubleIndexArray, EveryRowSharesTheInnerRange)
{
    FlexDoubleIndexArray table(-6, 6, 1, 4);
    EXPECT_EQ(table.GetLowest(), -6);
    EXPECT_EQ(table.GetHighest(), 6);
    EXPECT_EQ(table.GetSize(), 13);
    for (int j = -6; j <= 6; ++j) {
        EXPECT_EQ(table[j].GetLowest(), 1) << j;
        EXPECT_EQ(table[j].GetHighest(), 4) << j;
    }
}

TEST(FlexDoubleIndexArray, CellsAreIndependent)
{
    FlexDoubleIndexArray table(-2, 2, 1, 3);
    for (int j = -2; j <= 2; ++j) {
        for (int i = 1; i <= 3; ++i) {
            table[j][i] = 10.0 * j + i;
        }
    }
    const FlexDoubleIndexArray& view = table;
    for (int j = -2; j <= 2; ++j) {
        for (int i = 1; i <= 3; ++i) {
            EXPECT_EQ(view[j][i], 10.0 * j + i) << j << "," << i;
        }
    }
    EXPECT_TRUE(view.Contains(-2));
    EXPECT_FALSE(view.Contains(3));
}
