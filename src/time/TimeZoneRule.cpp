#include "time/TimeZoneRule.h"

#include <cctype>
#include <cstdint>
#include <utility>

namespace {

constexpr long SecondsPerHour = 3600;
// Offsets from UT reach 24 hours in POSIX; change-over times reach 167 hours (a week less a
// second) in the IANA extension, so that a rule can name a day after the weekday it counts.
constexpr long MaxOffsetHours = 24;
constexpr long MaxTimeHours = 167;
// The rule the reference code assumes when a daylight name comes without dates.
constexpr const char* DefaultDates = ",M3.2.0,M11.1.0";

// Walks the text of one rule; every reader leaves the position alone when it fails.
class Cursor
{
public:
    explicit Cursor(const std::string& text) : Text(text) {}

    bool AtEnd() const { return nPos >= Text.size(); }
    char Peek() const { return AtEnd() ? '\0' : Text[nPos]; }
    bool Take(char c)
    {
        if (Peek() != c || AtEnd()) {
            return false;
        }
        ++nPos;
        return true;
    }

    // A zone abbreviation: three or more letters, or three or more letters, digits and signs
    // in angle brackets (the brackets are not part of the name).
    bool Name(std::string& name)
    {
        std::size_t start = nPos;
        std::string read;
        if (Take('<')) {
            while (!AtEnd() && (std::isalnum(static_cast<unsigned char>(Peek())) || Peek() == '+' ||
                                Peek() == '-')) {
                read += Text[nPos++];
            }
            if (!Take('>') || read.size() < 3) {
                nPos = start;
                return false;
            }
        } else {
            while (!AtEnd() && std::isalpha(static_cast<unsigned char>(Peek()))) {
                read += Text[nPos++];
            }
            if (read.size() < 3) {
                nPos = start;
                return false;
            }
        }
        name = std::move(read);
        return true;
    }

    // [+|-]hh[:mm[:ss]] with hh up to maxHours; the result in seconds, negative for '-'.
    bool Duration(long maxHours, long& seconds)
    {
        std::size_t start = nPos;
        long sign = 1;
        if (Take('-')) {
            sign = -1;
        } else {
            Take('+');
        }
        long hours, minutes = 0, secs = 0;
        bool ok = Number(3, maxHours, hours);
        if (ok && Take(':')) {
            ok = Number(2, 59, minutes);
            if (ok && Take(':')) {
                ok = Number(2, 59, secs);
            }
        }
        if (!ok) {
            nPos = start;
            return false;
        }
        seconds = sign * (hours * SecondsPerHour + minutes * 60 + secs);
        return true;
    }

    // One to maxDigits decimal digits whose value is at most maxValue.
    bool Number(int maxDigits, long maxValue, long& value)
    {
        std::size_t start = nPos;
        long read = 0;
        int digits = 0;
        while (digits < maxDigits && std::isdigit(static_cast<unsigned char>(Peek()))) {
            read = read * 10 + (Text[nPos++] - '0');
            ++digits;
        }
        if (digits == 0 || read > maxValue) {
            nPos = start;
            return false;
        }
        value = read;
        return true;
    }

    // Mm.w.d, Jn or n, then an optional /time.
    bool Date(TimeZoneRule::ChangeOver& change)
    {
        std::size_t start = nPos;
        TimeZoneRule::ChangeOver read;
        long a = 0, b = 0, c = 0;
        bool ok;
        if (Take('M')) {
            ok = Number(2, 12, a) && a >= 1 && Take('.') && Number(1, 5, b) && b >= 1 &&
                 Take('.') && Number(1, 6, c);
            read.Form = TimeZoneRule::MonthWeekDay;
            read.Month = static_cast<int>(a);
            read.Occurrence = static_cast<int>(b);
            read.WeekDay = static_cast<int>(c);
        } else if (Take('J')) {
            ok = Number(3, 365, a) && a >= 1;
            read.Form = TimeZoneRule::JulianDay;
            read.Day = static_cast<int>(a);
        } else {
            ok = Number(3, 365, a);
            read.Form = TimeZoneRule::DayOfYear;
            read.Day = static_cast<int>(a);
        }
        if (ok && Take('/')) {
            ok = Duration(MaxTimeHours, read.Seconds);
        }
        if (!ok) {
            nPos = start;
            return false;
        }
        change = read;
        return true;
    }

private:
    const std::string& Text;
    std::size_t nPos = 0;
};

// Seconds to whole minutes, halves away from zero.
std::int32_t RoundToMinutes(long seconds)
{
    long minutes = seconds >= 0 ? (seconds + 30) / 60 : -((-seconds + 30) / 60);
    return static_cast<std::int32_t>(minutes);
}

// Month and day of day `julian` (1 to 365) of a year without February 29.
void MonthAndDay(int julian, int& month, int& day)
{
    static const int lengths[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    month = 1;
    day = julian;
    while (month < 12 && day > lengths[month - 1]) {
        day -= lengths[month - 1];
        ++month;
    }
}

} // namespace

bool TimeZoneRule::Parse(const std::string& text)
{
    Cursor cursor(text);
    TimeZoneRule read;
    if (!cursor.Name(read.StandardAbbreviation) ||
        !cursor.Duration(MaxOffsetHours, read.StandardOffset)) {
        return false;
    }
    if (!cursor.AtEnd()) {
        if (!cursor.Name(read.DaylightAbbreviation)) {
            return false;
        }
        read.bDaylightSaving = true;
        read.DaylightOffset = read.StandardOffset - SecondsPerHour;
        char next = cursor.Peek();
        if (next == '+' || next == '-' || std::isdigit(static_cast<unsigned char>(next))) {
            if (!cursor.Duration(MaxOffsetHours, read.DaylightOffset)) {
                return false;
            }
        }
        if (cursor.AtEnd()) {
            std::string dates(DefaultDates);
            Cursor fallback(dates);
            fallback.Take(',');
            fallback.Date(read.Start);
            fallback.Take(',');
            fallback.Date(read.End);
        } else if (!cursor.Take(',') || !cursor.Date(read.Start) || !cursor.Take(',') ||
                   !cursor.Date(read.End)) {
            return false;
        }
    }
    if (!cursor.AtEnd()) {
        return false;
    }
    *this = std::move(read);
    return true;
}

_SYSTEMTIME TimeZoneRule::ToSystemTime(const ChangeOver& change)
{
    _SYSTEMTIME record;
    switch (change.Form) {
    case MonthWeekDay:
        record.wMonth = static_cast<std::uint16_t>(change.Month);
        record.wDay = static_cast<std::uint16_t>(change.Occurrence);
        record.wDayOfWeek = static_cast<std::uint16_t>(change.WeekDay);
        break;
    case JulianDay: {
        // February 29 is never counted, so the day always falls on the same date.
        int month, day;
        MonthAndDay(change.Day, month, day);
        record.wYear = 1;
        record.wMonth = static_cast<std::uint16_t>(month);
        record.wDay = static_cast<std::uint16_t>(day);
        break;
    }
    case DayOfYear:
        // Day n counted from 0 is January n + 1; the calendar arithmetic carries it over the
        // month ends, February 29 included in leap years.
        record.wYear = 1;
        record.wMonth = 1;
        record.wDay = static_cast<std::uint16_t>(change.Day + 1);
        break;
    }
    // The hour is floored, so minutes and seconds always count forwards from it.
    long hour = change.Seconds >= 0 ? change.Seconds / SecondsPerHour
                                    : -((-change.Seconds + SecondsPerHour - 1) / SecondsPerHour);
    long rest = change.Seconds - hour * SecondsPerHour;
    record.wHour = static_cast<std::uint16_t>(static_cast<std::int16_t>(hour));
    record.wMinute = static_cast<std::uint16_t>(rest / 60);
    record.wSecond = static_cast<std::uint16_t>(rest % 60);
    return record;
}

_TIME_ZONE_INFORMATION TimeZoneRule::ToZoneInformation() const
{
    _TIME_ZONE_INFORMATION info;
    info.Bias = RoundToMinutes(StandardOffset);
    if (!bDaylightSaving) {
        return info;
    }
    info.DaylightBias = RoundToMinutes(DaylightOffset) - info.Bias;
    info.DaylightDate = ToSystemTime(Start);
    info.StandardDate = ToSystemTime(End);
    if (info.DaylightBias > 0) {
        // Daylight time behind standard time: swap the roles. The end of "daylight" time is
        // told in that time, which is now standard time, and the start in the old standard
        // time, which is now daylight time, so the dates move over unchanged.
        info.Bias += info.DaylightBias;
        info.DaylightBias = -info.DaylightBias;
        std::swap(info.DaylightDate, info.StandardDate);
    }
    return info;
}
