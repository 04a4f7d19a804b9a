#pragma once
// A DegreeAngle whose constructors turn a negative value into its twin between 0 and 360.
// Everything else, streaming included, is that of DegreeAngle; later arithmetic may make the
// value negative again.
#include "coords/DegreeAngle.h"

class PositiveDegreeAngle : public DegreeAngle
{
public:
    PositiveDegreeAngle() = default;
    // Normalises as a DegreeAngle, then a negative value becomes 360 less its magnitude.
    explicit PositiveDegreeAngle(double degrees);
    explicit PositiveDegreeAngle(const DegreeAngle& angle);

private:
    void MakePositive();
};
