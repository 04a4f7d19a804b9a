#include "solar/FlexIndexArray.h"

#include <cassert>

FlexIndexArray::FlexIndexArray(int lowest, int highest)
    : Lowest(lowest), Highest(highest),
      aValues(highest >= lowest
                  ? static_cast<std::size_t>(static_cast<long long>(highest) - lowest) + 1
                  : 0,
              0.0)
{}

double& FlexIndexArray::operator[](int index)
{
    assert(Contains(index));
    return aValues[static_cast<std::size_t>(index - Lowest)];
}

double FlexIndexArray::operator[](int index) const
{
    assert(Contains(index));
    return aValues[static_cast<std::size_t>(index - Lowest)];
}
