#pragma once
// A calendar date and time of day in Universal Time, convertible to and from the Modified
// Julian Date (MJD = JD - 2400000.5; MJD 0 is 1858 November 17 at 0h).
//
// The calendar is the Julian one up to 1582 October 4 and the Gregorian one from the next day,
// 1582 October 15. Years are astronomical: 1 is 1 AD, 0 is 1 BC, -1 is 2 BC. No difference
// between universal and dynamical time is applied. The conversions follow the classical
// integer-part algorithms; they hold from Julian Day 0 (4713 BC) onwards.
//
// Fields are not range-checked: a month 0 or a 31 November goes through the arithmetic of
// GetMJD and comes out as the date that arithmetic makes of it.
#include <ctime>
#include <string>

#include "time/SystemTime.h"

class StateContainer;
class StringParser;
class TimeStep;
class TimeZone;

class AstroTime
{
public:
    enum AD_OR_BC
    {
        AD = 0,
        BC = 1
    };

    // Hour display modes.
    static constexpr int Clock24 = 0;
    static constexpr int Clock12 = 1;

    // Every field zero: month and day too.
    AstroTime() = default;
    // A date and a time of day in decimal hours; day comes first.
    AstroTime(unsigned day, unsigned month, long year, double hours);
    // A broken-down time of the C library (tm_year from 1900, tm_mon from 0).
    explicit AstroTime(const std::tm& moment);
    // The moment of a time zone's change-over rule in `year`.
    AstroTime(const _SYSTEMTIME& rule, int year);
    // The calendar date of a Modified Julian Date; with `roundSeconds` seconds are whole.
    AstroTime(double mjd, bool roundSeconds);

    // The present moment in Universal Time, from the system clock.
    static AstroTime GetTickCount();

    // Takes every field but the cached centuries, which it clears.
    void Copy(const AstroTime& other);

    // Same date and time of day; the hour display mode does not count.
    bool operator==(const AstroTime& other) const;
    bool operator<(const AstroTime& other) const;
    bool operator>(const AstroTime& other) const;

    // Steps by a calendar interval: years, then months, then the rest through the MJD. The
    // result has whole seconds and the 24-hour mode.
    AstroTime& operator+=(const TimeStep& step);
    AstroTime& operator-=(const TimeStep& step);

    // This moment taken as local time in the zone, in Universal Time: moved by the zone's
    // bias for that local time.
    AstroTime operator+(const TimeZone& zone) const;
    // This moment in Universal Time as local time in the zone: moved back by the standard
    // bias, then, in daylight saving, by the daylight bias too. Whole seconds, 24-hour mode.
    AstroTime operator-(const TimeZone& zone) const;

    double GetMJD() const;
    // Julian centuries since 2000 January 1.5 (MJD 51544.5); cached, since every body of the
    // solar system asks for it at the same moment.
    double GetCenturiesSince2000() const;

    // Moves month and year by whole months; the day stays as it is.
    void IncrementMonth(int months);
    // Sets hour, minute and second from decimal hours. There is no carry into the day, so a
    // value just under 24 can round up to hour 24.
    void SetFromFloatHour(double hours, bool roundSeconds);

    int GetMode() const { return Mode; }
    void SetMode(int mode) { Mode = mode; }

    long GetYear() const { return Year; }
    unsigned GetMonth() const { return Month; }
    unsigned GetDay() const { return Day; }
    unsigned GetHour() const { return Hour; }
    unsigned GetMinute() const { return Minute; }
    double GetSecond() const { return Second; }
    // The hour as the mode shows it: 0 to 23, or 12, 1 to 11 on the 12-hour clock.
    unsigned GetDisplayHour() const;

    // Year 1 or later: that year and AD; otherwise 1 - year and BC.
    void GetYearWithADOrBC(long& year, AD_OR_BC& era) const;
    static long GetYearWithoutADOrBC(long year, AD_OR_BC era);

    // "January" to "December"; empty for any other number.
    static std::string GetMonthName(unsigned month);
    // 1 to 12 for a month name (case ignored), 0 when the text names no month.
    static unsigned GetMonthNumber(const std::string& name);

    // Reads a catalogue date: format 1 is year, month name, day with a decimal fraction.
    // Any other format reads nothing and returns false.
    bool Initialize(StringParser& parser, int format);

    // "March 3, 1999 at 5 hours 07 minutes 09 seconds."
    std::string GetDescription1() const;
    // "March 3, 1999"
    std::string GetDescription2() const;
    // "5:07:09", with "am" or "pm" appended on the 12-hour clock.
    std::string GetDescription3() const;
    // "1999", or "44BC" for year -43.
    std::string GetYearString() const;
    std::string GetMinuteString() const;
    std::string GetSecondString() const;
    // Display hour, minutes and seconds, "5:07:09".
    std::string GetTimeString() const;

    static std::string GetString(long value);
    // Six significant digits, as a stream writes a double by default.
    static std::string GetString(double value);

    friend StateContainer& operator<<(StateContainer& sc, const AstroTime& time);
    friend StateContainer& operator>>(StateContainer& sc, AstroTime& time);

private:
    void ClearCache() { bCacheValid = false; }
    void Step(const TimeStep& step, int sign);
    // IncrementMonth over a range wide enough for a negated step count.
    void AddMonths(long long months);

    long Year = 0;
    unsigned Month = 0;
    unsigned Day = 0;
    unsigned Hour = 0;
    unsigned Minute = 0;
    double Second = 0.0;
    int Mode = Clock24;
    mutable bool bCacheValid = false;
    mutable double Centuries = 0.0;
};

// State: a level at the caller's key with "Year", "Month", "Day", "Hour", "Minute", "Second"
// and "Mode". Reading clears the cached centuries; a missing key reads as 0.
StateContainer& operator<<(StateContainer& sc, const AstroTime& time);
StateContainer& operator>>(StateContainer& sc, AstroTime& time);
