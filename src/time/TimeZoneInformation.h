#pragma once
// The platform's time zone record, in its published layout (172 bytes).
//
// Biases are minutes to add to local time to get Universal Time: Berlin in winter is -60,
// New York 300. Local standard time is UT - Bias; daylight time is UT - (Bias + DaylightBias),
// so a usual daylight saving of one hour has DaylightBias -60. StandardBias is kept for the
// layout's sake and is 0 in every zone built here.
//
// DaylightDate is the change from standard to daylight time, told in local standard time;
// StandardDate is the change back, told in local daylight time. Both are yearly rules in a
// _SYSTEMTIME (see SystemTime.h); wMonth 0 in either means the zone keeps no daylight saving.
//
// What the record holds beyond the platform's own data (the platform only ever stores hours 0
// to 23 and real dates), because the IANA rules need it:
//  - wHour above 23: the hour counts on past midnight from the rule's day (Jerusalem starts
//    daylight saving on the fourth Thursday of March at 26:00, i.e. Friday 02:00).
//  - wHour read as a signed 16-bit value: a negative hour counts back from the rule's day
//    (Nuuk changes on the last Sunday of March at -1:00, i.e. Saturday 23:00). Minutes and
//    seconds then count forwards from that hour, so -1:30 is stored as hour -2, minute 30.
//    AstroTime's rule constructor reads wHour unsigned; TimeZone applies a negative hour itself.
//  - A date rule (wYear not 0) with wMonth 1 and wDay up to 366: the day of the year counted
//    from January 1 with February 29 included, which the calendar arithmetic of AstroTime
//    carries into the right month.
#include <cstddef>
#include <cstdint>

#include "time/SystemTime.h"

struct _TIME_ZONE_INFORMATION
{
    std::int32_t Bias = 0;
    // UTF-16, at most 31 characters and a terminating zero.
    char16_t StandardName[32] = {};
    _SYSTEMTIME StandardDate;
    std::int32_t StandardBias = 0;
    char16_t DaylightName[32] = {};
    _SYSTEMTIME DaylightDate;
    std::int32_t DaylightBias = 0;
};

using TIME_ZONE_INFORMATION = _TIME_ZONE_INFORMATION;

static_assert(sizeof(_TIME_ZONE_INFORMATION) == 172, "the platform's record is 172 bytes");
static_assert(offsetof(_TIME_ZONE_INFORMATION, StandardDate) == 68);
static_assert(offsetof(_TIME_ZONE_INFORMATION, StandardBias) == 84);
static_assert(offsetof(_TIME_ZONE_INFORMATION, DaylightName) == 88);
static_assert(offsetof(_TIME_ZONE_INFORMATION, DaylightDate) == 152);
static_assert(offsetof(_TIME_ZONE_INFORMATION, DaylightBias) == 168);
