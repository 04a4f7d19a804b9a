#include "solar/FlexDoubleIndexArray.h"

#include <cassert>

FlexDoubleIndexArray::FlexDoubleIndexArray(int lowest, int highest, int innerLowest,
                                           int innerHighest)
    : Lowest(lowest), Highest(highest),
      aRows(highest >= lowest
                ? static_cast<std::size_t>(static_cast<long long>(highest) - lowest) + 1
                : 0,
            FlexIndexArray(innerLowest, innerHighest))
{}

FlexIndexArray& FlexDoubleIndexArray::operator[](int index)
{
    assert(Contains(index));
    return aRows[static_cast<std::size_t>(index - Lowest)];
}

const FlexIndexArray& FlexDoubleIndexArray::operator[](int index) const
{
    assert(Contains(index));
    return aRows[static_cast<std::size_t>(index - Lowest)];
}
