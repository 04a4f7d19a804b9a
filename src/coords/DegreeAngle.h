#pragma once
// An angle in degrees. It may be negative; the operations that normalise keep it between
// -360 and +360, both ends included, by removing whole turns while keeping the sign.
// Nothing here maps a negative angle to its positive twin: PositiveDegreeAngle does that.
#include <string>

class HostFile;
class RadianAngle;
class StateContainer;

class DegreeAngle
{
public:
    DegreeAngle() = default;
    // Stores the value and normalises it.
    explicit DegreeAngle(double degrees);
    // Converts and normalises.
    explicit DegreeAngle(const RadianAngle& angle);
    // The number the text begins with (0 when there is none), stored without normalising.
    explicit DegreeAngle(const std::string& text);
    DegreeAngle(const DegreeAngle&) = default;
    DegreeAngle& operator=(const DegreeAngle&) = default;
    virtual ~DegreeAngle() = default;

    // Stores the value without normalising.
    DegreeAngle& operator=(double degrees);
    // Change the value, then normalise.
    DegreeAngle& operator+=(double degrees);
    DegreeAngle& operator-=(double degrees);

    // Exact comparisons of the stored values.
    bool operator==(const DegreeAngle& other) const { return Degrees == other.Degrees; }
    bool operator>(const DegreeAngle& other) const { return Degrees > other.Degrees; }
    bool operator<(const DegreeAngle& other) const { return Degrees < other.Degrees; }

    double GetDegrees() const { return Degrees; }
    double GetRadians() const;

    // Writes the angle as one value at the key the caller set.
    virtual StateContainer& operator<<(StateContainer& sc) const;
    // Reads it back from the caller's key; a missing key gives 0.
    virtual StateContainer& operator>>(StateContainer& sc);

    // Writes the double as 8 little-endian bytes; true when all 8 were written.
    bool Dump(HostFile& file) const;
    // Reads 8 bytes into the double, without normalising; false (and no change) when the
    // file ends first.
    bool Load(HostFile& file);

protected:
    void Normalise();

    double Degrees = 0.0;
};

// `sc << AstroKey("RA") << angle` and `sc >> AstroKey("RA") >> angle` in a state chain.
StateContainer& operator<<(StateContainer& sc, const DegreeAngle& angle);
StateContainer& operator>>(StateContainer& sc, DegreeAngle& angle);
