#pragma once
// An angle in radians. It may be negative; the operations that normalise keep it between
// minus two pi and plus two pi, both ends included, by removing whole turns.
#include <string>

class DegreeAngle;
class StateContainer;

class RadianAngle
{
public:
    RadianAngle() = default;
    // Stores the value and normalises it.
    explicit RadianAngle(double radians);
    // Converts and normalises.
    explicit RadianAngle(const DegreeAngle& angle);
    // The number the text begins with (0 when there is none), stored without normalising.
    explicit RadianAngle(const std::string& text);
    RadianAngle(const RadianAngle&) = default;
    RadianAngle& operator=(const RadianAngle&) = default;
    virtual ~RadianAngle() = default;

    // Stores the value without normalising.
    RadianAngle& operator=(double radians);
    // Change the value, then normalise.
    RadianAngle& operator+=(double radians);
    RadianAngle& operator-=(double radians);

    bool operator==(const RadianAngle& other) const { return Radians == other.Radians; }
    bool operator>(const RadianAngle& other) const { return Radians > other.Radians; }
    bool operator<(const RadianAngle& other) const { return Radians < other.Radians; }

    double GetRadians() const { return Radians; }
    double GetDegrees() const;

    // Writes the angle as one value at the key the caller set.
    virtual StateContainer& operator<<(StateContainer& sc) const;
    // Reads it back from the caller's key; a missing key gives 0.
    virtual StateContainer& operator>>(StateContainer& sc);

private:
    void Normalise();

    double Radians = 0.0;
};

StateContainer& operator<<(StateContainer& sc, const RadianAngle& angle);
StateContainer& operator>>(StateContainer& sc, RadianAngle& angle);
