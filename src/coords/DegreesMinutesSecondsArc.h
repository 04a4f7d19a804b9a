#pragma once
// An arc as a sign and three magnitudes: whole degrees, whole minutes and decimal seconds.
// The sign stands apart (+1 or -1), so an arc of minus 0 degrees 30 minutes keeps it.
#include <cstdint>
#include <ostream>
#include <string>

class DegreeAngle;
class StateContainer;
class StringParser;

class DegreesMinutesSecondsArc
{
public:
    DegreesMinutesSecondsArc() = default;
    // The four fields stored as they are.
    DegreesMinutesSecondsArc(int degrees, int minutes, double seconds, int sign);
    // sign * (degrees + (minutes * 60 + seconds) / 3600), through Init.
    DegreesMinutesSecondsArc(double degrees, double minutes, double seconds, int sign);
    // The angle in degrees through Init.
    explicit DegreesMinutesSecondsArc(const DegreeAngle& angle);
    DegreesMinutesSecondsArc(const DegreesMinutesSecondsArc&) = default;
    DegreesMinutesSecondsArc& operator=(const DegreesMinutesSecondsArc&) = default;
    virtual ~DegreesMinutesSecondsArc() = default;

    // Splits a value in degrees into sign, degrees, minutes and seconds.
    void Init(double degrees);
    // Brings the seconds to whole seconds, carrying into minutes and degrees, for display in
    // three integer fields.
    void Roundoff();

    int GetSign() const { return Sign; }
    int GetDegrees() const { return Degrees; }
    int GetMinutes() const { return Minutes; }
    double GetSeconds() const { return Seconds; }

    // sign * (degrees * 3600 + minutes * 60 + seconds) / 3600.
    double GetValue() const;
    DegreeAngle GetDegreeAngle() const;

    // "+ 12° 30' 15.5\"" with the Latin-1 degree mark; seconds to a tenth, carried into
    // minutes and degrees. Degrees never wrap.
    std::string GetDescription1() const;
    // "+ 12° 30'": minutes rounded up when the seconds are above 30.
    std::string GetDescription2() const;

    // Reads "[+|-] degrees [minutes [seconds]]". A first token that begins with + or - is the
    // sign alone and the rest of it is ignored, so "-5 10 20" is 10 degrees 20 minutes south.
    // Degrees and minutes are whole numbers, seconds decimal; limits are |degrees| <= 90,
    // |minutes| <= 60 and |seconds| <= 60. Fields read before a refused one stay changed.
    bool Set(StringParser& parser);

    // One value at the caller's key: sign, degrees, minutes, seconds with single blanks.
    virtual StateContainer& operator<<(StateContainer& sc) const;
    // Reads that value back through Set; a missing or refused value gives + 0 0 0.
    virtual StateContainer& operator>>(StateContainer& sc);

private:
    std::int32_t Sign = 1;
    std::int32_t Degrees = 0;
    std::int32_t Minutes = 0;
    double Seconds = 0.0;
};

// "+,12,30,15.5": sign, degrees, minutes, seconds separated by commas, the text form of a
// star's declination.
std::ostream& operator<<(std::ostream& out, const DegreesMinutesSecondsArc& arc);

StateContainer& operator<<(StateContainer& sc, const DegreesMinutesSecondsArc& arc);
StateContainer& operator>>(StateContainer& sc, DegreesMinutesSecondsArc& arc);
