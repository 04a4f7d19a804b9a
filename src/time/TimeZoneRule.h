#pragma once
// A zone's yearly rule as a POSIX TZ string, the form that ends every TZif file of the IANA
// database, and its translation into the platform's zone record.
//
//   std offset [dst [offset] [,start[/time],end[/time]]]
//
// Names are three or more letters, or any three or more letters, digits, '+' and '-' between
// '<' and '>'. Offsets are [+|-]hh[:mm[:ss]] with hh up to 24 and are positive west of
// Greenwich (EST5 is five hours behind UT); the daylight offset defaults to one hour less than
// the standard one. A change-over date is Mm.w.d (month 1-12, occurrence 1-5 where 5 is the
// last, weekday 0-6 from Sunday), Jn (day 1-365 of the year, February 29 never counted) or n
// (day 0-365, February 29 counted). The time of a change-over is local time before the change,
// [+|-]hh[:mm[:ss]] with hh up to 167 as the IANA extension allows, 02:00 by default. A
// daylight name without dates takes the rule M3.2.0,M11.1.0, as the reference code does.
//
// Examples: "EST5EDT,M3.2.0,M11.1.0", "IST-5:30", "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0",
// "IST-2IDT,M3.4.4/26,M10.5.0", "IST-1GMT0,M10.5.0,M3.5.0/1".
#include <string>

#include "time/TimeZoneInformation.h"

class TimeZoneRule
{
public:
    enum DateForm
    {
        MonthWeekDay, // Mm.w.d
        JulianDay,    // Jn, 1 to 365, February 29 not counted
        DayOfYear     // n, 0 to 365, February 29 counted
    };

    // One change-over: a day by one of the three forms and a time of day in seconds.
    struct ChangeOver
    {
        DateForm Form = MonthWeekDay;
        int Month = 0;
        int Occurrence = 0;
        int WeekDay = 0;
        int Day = 0;
        long Seconds = 2 * 3600;
    };

    // Reads a rule; false, with the rule left as it was, when the text is not one whole rule.
    bool Parse(const std::string& text);

    const std::string& GetStandardAbbreviation() const { return StandardAbbreviation; }
    const std::string& GetDaylightAbbreviation() const { return DaylightAbbreviation; }
    // Seconds to add to local time to get UT, as the text gives them (west positive).
    long GetStandardOffsetSeconds() const { return StandardOffset; }
    long GetDaylightOffsetSeconds() const { return DaylightOffset; }
    bool HasDaylightSaving() const { return bDaylightSaving; }
    // The change to daylight time, told in standard time, and the change back, told in
    // daylight time.
    const ChangeOver& GetStart() const { return Start; }
    const ChangeOver& GetEnd() const { return End; }

    // The zone record of the rule, with empty names. Offsets become whole minutes (rounded;
    // no zone of the present database has seconds in its offsets). A rule whose daylight time
    // lies west of its standard time, as Dublin's "IST-1GMT0,M10.5.0,M3.5.0/1" with Irish
    // Standard Time in summer and "daylight" GMT in winter, is turned round: winter becomes
    // standard time and summer daylight time, which tells the same moments and keeps the
    // daylight bias negative, as every other zone has it. The change-over times always fit
    // (see TimeZoneInformation.h for what hours above 23 and below 0 mean).
    _TIME_ZONE_INFORMATION ToZoneInformation() const;

    // The record form of one change-over.
    static _SYSTEMTIME ToSystemTime(const ChangeOver& change);

private:
    std::string StandardAbbreviation;
    std::string DaylightAbbreviation;
    long StandardOffset = 0;
    long DaylightOffset = 0;
    bool bDaylightSaving = false;
    ChangeOver Start;
    ChangeOver End;
};
