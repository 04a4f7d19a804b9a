#pragma once
// The platform's date and time record, in its published layout: eight 16-bit words.
//
// Time zone data uses it for the yearly change-over rules. With wYear 0 the record is a rule:
// wDay is then the occurrence (1 to 5, 5 meaning the last) of the weekday wDayOfWeek (0 is
// Sunday) in wMonth. With wYear set it names one fixed date.
#include <cstdint>

struct _SYSTEMTIME
{
    std::uint16_t wYear = 0;
    std::uint16_t wMonth = 0;
    std::uint16_t wDayOfWeek = 0;
    std::uint16_t wDay = 0;
    std::uint16_t wHour = 0;
    std::uint16_t wMinute = 0;
    std::uint16_t wSecond = 0;
    std::uint16_t wMilliseconds = 0;
};

using SYSTEMTIME = _SYSTEMTIME;

static_assert(sizeof(_SYSTEMTIME) == 16, "the record is sixteen bytes, as the platform stores it");
