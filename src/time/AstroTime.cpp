#include "time/AstroTime.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "catalogues/LorvString.h"
#include "catalogues/StringParser.h"
#include "state/StateContainer.h"
#include "time/TimeStep.h"
#include "time/TimeZone.h"

namespace {

// MJD = JD - 2400000.5.
constexpr double MjdToJd = 2400000.5;
// MJD of the epoch J2000.0, 2000 January 1 at 12h.
constexpr double MjdJ2000 = 51544.5;
constexpr double DaysPerJulianCentury = 36525.0;
// First Julian Day number of the Gregorian calendar, 1582 October 15.
constexpr double FirstGregorianJdn = 2299161.0;
// 1582 October 4 as 10000 y + 100 m + d, the last day of the Julian calendar.
constexpr double LastJulianDate = 15821004.1;
// MJD 0, 1858 November 17, was a Wednesday: weekday (0 Sunday) = (MJD + 3) mod 7.
constexpr long MjdWeekdayOffset = 3;

const char* const kMonthNames[12] = {"January",   "February", "March",    "April",
                                     "May",       "June",     "July",     "August",
                                     "September", "October",  "November", "December"};

// The data model holds the year in 32 bits; keeping it there also keeps every sum of a year
// and a step count inside a long.
long ClampYear(long long year)
{
    constexpr long long lowest = std::numeric_limits<std::int32_t>::min();
    constexpr long long highest = std::numeric_limits<std::int32_t>::max();
    return static_cast<long>(year < lowest ? lowest : (year > highest ? highest : year));
}

// Truncation towards zero that cannot overflow: NaN gives 0, values beyond the range saturate.
long long TruncToLongLong(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double limit = 9.2e18;
    if (value >= limit) {
        return std::numeric_limits<long long>::max();
    }
    if (value <= -limit) {
        return std::numeric_limits<long long>::min();
    }
    return static_cast<long long>(value);
}

// Fields that count from 0 upwards; a negative result of the arithmetic becomes 0.
unsigned TruncToUnsigned(double value)
{
    if (!(value > 0.0)) {
        return 0;
    }
    if (value >= static_cast<double>(std::numeric_limits<unsigned>::max())) {
        return std::numeric_limits<unsigned>::max();
    }
    return static_cast<unsigned>(value);
}

// "%2d" with a leading blank made a zero: 5 becomes "05", 42 stays "42".
std::string TwoDigits(long long value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%2lld", value);
    if (text[0] == ' ') {
        text[0] = '0';
    }
    return text;
}

// Days in a month by the Gregorian leap rule; 0 for a month that does not exist.
unsigned DaysInMonth(unsigned month, long year)
{
    static const unsigned days[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) {
        return 0;
    }
    bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[month - 1];
}

// Weekday of a calendar date, 0 for Sunday to 6 for Saturday.
int WeekDay(unsigned day, unsigned month, long year)
{
    long long mjd = TruncToLongLong(std::floor(AstroTime(day, month, year, 0.0).GetMJD()));
    long long weekday = (mjd + MjdWeekdayOffset) % 7;
    return static_cast<int>(weekday < 0 ? weekday + 7 : weekday);
}

} // namespace

AstroTime::AstroTime(unsigned day, unsigned month, long year, double hours)
    : Year(ClampYear(year)), Month(month), Day(day)
{
    SetFromFloatHour(hours, false);
}

AstroTime::AstroTime(const std::tm& moment)
    : Year(ClampYear(static_cast<long long>(moment.tm_year) + 1900)),
      Month(TruncToUnsigned(moment.tm_mon + 1.0)), Day(TruncToUnsigned(moment.tm_mday)),
      Hour(TruncToUnsigned(moment.tm_hour)), Minute(TruncToUnsigned(moment.tm_min)),
      Second(moment.tm_sec)
{}

AstroTime::AstroTime(const _SYSTEMTIME& rule, int year)
    : Year(year), Month(rule.wMonth), Hour(rule.wHour), Minute(rule.wMinute),
      Second(rule.wSecond + 0.001 * rule.wMilliseconds)
{
    if (rule.wYear != 0) {
        Day = rule.wDay;
        return;
    }
    // wDay counts occurrences of a weekday in the month, 5 meaning the last one. Counts outside
    // 1 to 5 are taken as the nearest of them, so a damaged record still gives a day.
    int occurrence = rule.wDay < 1 ? 1 : (rule.wDay > 5 ? 5 : rule.wDay);
    int firstWeekday = WeekDay(1, Month, Year);
    int offset = static_cast<int>(rule.wDayOfWeek % 7) - firstWeekday;
    if (offset < 0) {
        offset += 7;
    }
    unsigned day = static_cast<unsigned>(offset + 1 + (occurrence - 1) * 7);
    unsigned length = DaysInMonth(Month, Year);
    if (length != 0 && day > length) {
        day -= 7;
    }
    Day = day;
}

AstroTime::AstroTime(double mjd, bool roundSeconds)
{
    // A value that is not a number gives the zero time.
    if (!std::isfinite(mjd)) {
        return;
    }
    double jd = mjd + MjdToJd;
    double a = std::trunc(jd + 0.5);
    double c;
    if (a < FirstGregorianJdn) {
        c = a + 1524.0;
    } else {
        double b = std::trunc((a - 1867216.25) / 36524.25);
        c = a + b - std::trunc(b / 4.0) + 1525.0;
    }
    double d = std::trunc((c - 122.1) / 365.25);
    double e = 365.0 * d + std::trunc(d / 4.0);
    double f = std::trunc((c - e) / 30.6001);
    double day = std::trunc(c - e + 0.5) - std::trunc(30.6001 * f);
    double month = f - 1.0 - 12.0 * std::trunc(f / 14.0);
    double year = d - 4715.0 - std::trunc((month + 7.0) / 10.0);

    Day = TruncToUnsigned(day);
    Month = TruncToUnsigned(month);
    Year = ClampYear(TruncToLongLong(year));
    SetFromFloatHour((jd + 0.5 - a) * 24.0, roundSeconds);
}

AstroTime AstroTime::GetTickCount()
{
    std::time_t now = std::time(nullptr);
    std::tm parts{};
    if (gmtime_r(&now, &parts) == nullptr) {
        return AstroTime();
    }
    return AstroTime(parts);
}

void AstroTime::Copy(const AstroTime& other)
{
    Year = other.Year;
    Month = other.Month;
    Day = other.Day;
    Hour = other.Hour;
    Minute = other.Minute;
    Second = other.Second;
    Mode = other.Mode;
    ClearCache();
}

bool AstroTime::operator==(const AstroTime& other) const
{
    return Second == other.Second && Minute == other.Minute && Hour == other.Hour &&
           Day == other.Day && Month == other.Month && Year == other.Year;
}

bool AstroTime::operator<(const AstroTime& other) const
{
    return GetMJD() < other.GetMJD();
}

bool AstroTime::operator>(const AstroTime& other) const
{
    return GetMJD() > other.GetMJD();
}

AstroTime& AstroTime::operator+=(const TimeStep& step)
{
    Step(step, 1);
    return *this;
}

AstroTime& AstroTime::operator-=(const TimeStep& step)
{
    Step(step, -1);
    return *this;
}

AstroTime AstroTime::operator+(const TimeZone& zone) const
{
    AstroTime universal;
    universal.Copy(*this);
    universal += TimeStep(TimeStep::MINUTES, static_cast<int>(zone.GetBiasForLocalTime(*this)));
    return universal;
}

// The daylight saving rule speaks of local time, so the moment first becomes local standard
// time, and the rule is asked about that.
AstroTime AstroTime::operator-(const TimeZone& zone) const
{
    const _TIME_ZONE_INFORMATION& info = zone.GetZoneInformation();
    AstroTime local;
    local.Copy(*this);
    local -= TimeStep(TimeStep::MINUTES, static_cast<int>(info.Bias));
    if (zone.IsInDaylightSavingsRange(local, true)) {
        local -= TimeStep(TimeStep::MINUTES, static_cast<int>(info.DaylightBias));
    }
    return local;
}

// Years and months go through the calendar fields so that a month is a calendar month; a day
// that overflows its month (31 February) is then carried by the MJD arithmetic. Everything
// below a month is added to the MJD.
void AstroTime::Step(const TimeStep& step, int sign)
{
    AstroTime moved;
    moved.Copy(*this);
    moved.Year =
        ClampYear(moved.Year + static_cast<long long>(sign) * step.GetStep(TimeStep::YEARS));
    moved.AddMonths(static_cast<long long>(sign) * step.GetStep(TimeStep::MONTHS));

    double fraction =
        (step.GetStep(TimeStep::HOURS) +
         (step.GetStep(TimeStep::MINUTES) + step.GetStep(TimeStep::SECONDS) / 60.0) / 60.0) /
        24.0;
    double days = step.GetStep(TimeStep::DAYS) + fraction;
    *this = AstroTime(moved.GetMJD() + sign * days, true);
}

double AstroTime::GetMJD() const
{
    double y = static_cast<double>(Year);
    double m = Month;
    double v = 10000.0 * static_cast<double>(Year) + 100.0 * Month + Day;
    if (Month <= 2) {
        m = Month + 12.0;
        y = static_cast<double>(Year) - 1.0;
    }
    double b;
    if (v > LastJulianDate) {
        b = std::trunc(y / 400.0) - std::trunc(y / 100.0) + std::trunc(y / 4.0);
    } else {
        b = std::trunc((y + 4716.0) / 4.0) - 2.0 - 1179.0;
    }
    double dayFraction = (Hour + (Minute + Second / 60.0) / 60.0) / 24.0;
    return 365.0 * y - 679004.0 + b + std::trunc(30.6001 * (m + 1.0)) + Day + dayFraction;
}

double AstroTime::GetCenturiesSince2000() const
{
    if (!bCacheValid) {
        Centuries = (GetMJD() - MjdJ2000) / DaysPerJulianCentury;
        bCacheValid = true;
    }
    return Centuries;
}

void AstroTime::IncrementMonth(int months)
{
    AddMonths(months);
}

void AstroTime::AddMonths(long long months)
{
    long long v = static_cast<long long>(Month) + months;
    if (v > 12) {
        long long k = (v - 1) / 12;
        Month = static_cast<unsigned>(v - 12 * k);
        Year = ClampYear(Year + k);
    } else if (v < 1) {
        long long a = -v;
        Month = static_cast<unsigned>(12 - a % 12);
        Year = ClampYear(Year - (a / 12 + 1));
    } else {
        Month = static_cast<unsigned>(v);
    }
    ClearCache();
}

void AstroTime::SetFromFloatHour(double hours, bool roundSeconds)
{
    if (!std::isfinite(hours)) {
        hours = 0.0;
    }
    double hour = std::trunc(hours);
    double m = (hours - hour) * 60.0;
    double minute = std::trunc(m);
    double second = (m - minute) * 60.0;
    if (roundSeconds) {
        second = std::trunc(second + 0.5);
    }
    if (second >= 60.0) {
        second -= 60.0;
        minute += 1.0;
    }
    if (minute >= 60.0) {
        minute -= 60.0;
        hour += 1.0;
    }
    Hour = TruncToUnsigned(hour);
    Minute = TruncToUnsigned(minute);
    Second = second;
    ClearCache();
}

unsigned AstroTime::GetDisplayHour() const
{
    if (Mode != Clock12) {
        return Hour;
    }
    if (Hour == 0) {
        return 12;
    }
    return Hour <= 12 ? Hour : Hour - 12;
}

void AstroTime::GetYearWithADOrBC(long& year, AD_OR_BC& era) const
{
    if (Year >= 1) {
        year = Year;
        era = AD;
    } else {
        year = 1 - Year;
        era = BC;
    }
}

long AstroTime::GetYearWithoutADOrBC(long year, AD_OR_BC era)
{
    return era == BC ? 1 - year : year;
}

std::string AstroTime::GetMonthName(unsigned month)
{
    if (month < 1 || month > 12) {
        return std::string();
    }
    return kMonthNames[month - 1];
}

unsigned AstroTime::GetMonthNumber(const std::string& name)
{
    for (unsigned i = 0; i < 12; ++i) {
        if (EqualNoCase(name, kMonthNames[i])) {
            return i + 1;
        }
    }
    return 0;
}

bool AstroTime::Initialize(StringParser& parser, int format)
{
    if (format != 1) {
        return false;
    }
    // Each token is copied at once: the parser reuses its token on the next call.
    std::string yearText = *parser.GetNextToken("");
    std::string monthText = *parser.GetNextToken("");
    std::string dayText = *parser.GetNextToken("");

    Year = ClampYear(std::strtol(yearText.c_str(), nullptr, 10));
    Month = GetMonthNumber(monthText);
    double value = std::strtod(dayText.c_str(), nullptr);
    if (!std::isfinite(value)) {
        value = 0.0;
    }
    double whole = std::trunc(value);
    Day = TruncToUnsigned(whole);
    SetFromFloatHour((value - whole) * 24.0, false);
    return true;
}

std::string AstroTime::GetDescription1() const
{
    return GetDescription2() + " at " + GetString(static_cast<long>(GetDisplayHour())) + " hours " +
           GetMinuteString() + " minutes " + GetSecondString() + " seconds.";
}

std::string AstroTime::GetDescription2() const
{
    return GetMonthName(Month) + " " + GetString(static_cast<long>(Day)) + ", " + GetYearString();
}

std::string AstroTime::GetDescription3() const
{
    if (Mode == Clock12) {
        return GetTimeString() + (Hour < 12 ? "am" : "pm");
    }
    return GetTimeString();
}

std::string AstroTime::GetYearString() const
{
    long year;
    AD_OR_BC era;
    GetYearWithADOrBC(year, era);
    return era == BC ? GetString(year) + "BC" : GetString(year);
}

std::string AstroTime::GetMinuteString() const
{
    return TwoDigits(Minute);
}

std::string AstroTime::GetSecondString() const
{
    return TwoDigits(TruncToLongLong(Second));
}

std::string AstroTime::GetTimeString() const
{
    return GetString(static_cast<long>(GetDisplayHour())) + ":" + GetMinuteString() + ":" +
           GetSecondString();
}

std::string AstroTime::GetString(long value)
{
    return std::to_string(value);
}

std::string AstroTime::GetString(double value)
{
    return StateText(value);
}

StateContainer& operator<<(StateContainer& sc, const AstroTime& time)
{
    return sc << NewLevel << AstroKey("Year") << time.Year << AstroKey("Month") << time.Month
              << AstroKey("Day") << time.Day << AstroKey("Hour") << time.Hour << AstroKey("Minute")
              << time.Minute << AstroKey("Second") << time.Second << AstroKey("Mode") << time.Mode
              << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, AstroTime& time)
{
    long year = 0;
    sc >> GoToLevel >> AstroKey("Year") >> year >> AstroKey("Month") >> time.Month >>
        AstroKey("Day") >> time.Day >> AstroKey("Hour") >> time.Hour >> AstroKey("Minute") >>
        time.Minute >> AstroKey("Second") >> time.Second >> AstroKey("Mode") >> time.Mode >>
        EndLevel;
    time.Year = ClampYear(year);
    time.ClearCache();
    return sc;
}
