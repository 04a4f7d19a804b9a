#pragma once
// An angle in time units: whole hours, whole minutes and decimal seconds, one turn being 24
// hours. A negative angle gives negative fields; nothing wraps it.
#include <cstdint>
#include <string>

class DegreeAngle;
class RadianAngle;
class StateContainer;
class StringParser;

class HoursMinutesSeconds
{
public:
    HoursMinutesSeconds() = default;
    // The three fields stored as they are.
    HoursMinutesSeconds(int hours, int minutes, double seconds);
    // Through Init: the total is carried into whole hours and whole minutes.
    HoursMinutesSeconds(double hours, double minutes, double seconds);
    // Through RadianAngle and Init(RadianAngle).
    explicit HoursMinutesSeconds(const DegreeAngle& angle);
    HoursMinutesSeconds(const HoursMinutesSeconds&) = default;
    HoursMinutesSeconds& operator=(const HoursMinutesSeconds&) = default;
    virtual ~HoursMinutesSeconds() = default;

    void Init(double hours, double minutes, double seconds);
    void Init(const RadianAngle& angle);

    int GetHours() const { return Hours; }
    int GetMinutes() const { return Minutes; }
    double GetSeconds() const { return Seconds; }

    // (hours * 3600 + minutes * 60 + seconds) * two pi / 86400.
    RadianAngle GetRadianAngle() const;
    DegreeAngle GetDegreeAngle() const;

    // "07h 30m 12.5s": seconds to a tenth, carried into minutes and hours, 24h shown as 00h.
    std::string GetDescription1() const;
    // "07h 30m": minutes rounded up when the seconds are above 30.
    std::string GetDescription2() const;

    // Reads "hours [minutes [seconds]]" as decimal numbers and runs Init. False, with the
    // object untouched, when there is no hours token or a field is out of range: hours from
    // above -24 to below 24, minutes and seconds from above -60 to below 60.
    bool Set(StringParser& parser);

    // One value at the caller's key: hours, minutes and seconds with single blanks between.
    virtual StateContainer& operator<<(StateContainer& sc) const;
    // Reads that value back through Set; a missing or refused value gives 0h 0m 0s.
    virtual StateContainer& operator>>(StateContainer& sc);

private:
    std::int32_t Hours = 0;
    std::int32_t Minutes = 0;
    double Seconds = 0.0;
};

StateContainer& operator<<(StateContainer& sc, const HoursMinutesSeconds& time);
StateContainer& operator>>(StateContainer& sc, HoursMinutesSeconds& time);
