#pragma once
// A two-dimensional table of doubles over two signed index ranges: an array, indexed over
// [lowest, highest], of FlexIndexArrays that all share one inner range. table[j][i] reads
// as row j, column i. The lunar theory keeps its multiples of four arguments in two of these.
//
// Like FlexIndexArray it checks indices only in debug builds.
#include "solar/FlexIndexArray.h"

#include <vector>

class FlexDoubleIndexArray
{
public:
    // Rows lowest..highest, each a FlexIndexArray over innerLowest..innerHighest, all 0.
    FlexDoubleIndexArray(int lowest, int highest, int innerLowest, int innerHighest);

    FlexIndexArray& operator[](int index);
    const FlexIndexArray& operator[](int index) const;

    int GetLowest() const { return Lowest; }
    int GetHighest() const { return Highest; }
    int GetSize() const { return static_cast<int>(aRows.size()); }
    bool Contains(int index) const { return index >= Lowest && index <= Highest; }

private:
    int Lowest;
    int Highest;
    std::vector<FlexIndexArray> aRows;
};
