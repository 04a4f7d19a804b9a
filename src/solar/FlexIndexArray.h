#pragma once
// An array of doubles indexed over a signed range [lowest, highest], allocated once at
// construction. The series use it for the multiples cos(i M), sin(i M) of an anomaly, with i
// running through negative and positive values alike.
//
// Indexing does not check the range in release builds: the rows of a series stay within the
// ranges their theory declares, which the tests pin. Debug builds assert.
#include <vector>

class FlexIndexArray
{
public:
    // An array for lowest..highest inclusive, every entry 0. An empty range (highest below
    // lowest) holds nothing.
    FlexIndexArray(int lowest, int highest);

    double& operator[](int index);
    double operator[](int index) const;

    int GetLowest() const { return Lowest; }
    int GetHighest() const { return Highest; }
    // Number of entries, highest - lowest + 1, or 0 for an empty range.
    int GetSize() const { return static_cast<int>(aValues.size()); }
    bool Contains(int index) const { return index >= Lowest && index <= Highest; }

private:
    int Lowest;
    int Highest;
    std::vector<double> aValues;
};
