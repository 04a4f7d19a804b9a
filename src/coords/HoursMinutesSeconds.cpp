#include "coords/HoursMinutesSeconds.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "catalogues/StringParser.h"
#include "coords/AngleMath.h"
#include "coords/DegreeAngle.h"
#include "coords/RadianAngle.h"
#include "state/StateContainer.h"

namespace {

// A field read from a token as a double; false when the token is no number in (-limit, limit).
bool ReadField(const LorvString& token, double limit, double& value)
{
    value = std::strtod(token.c_str(), nullptr);
    return std::isfinite(value) && value < limit && value > -limit;
}

} // namespace

HoursMinutesSeconds::HoursMinutesSeconds(int hours, int minutes, double seconds)
    : Hours(hours), Minutes(minutes), Seconds(seconds)
{}

HoursMinutesSeconds::HoursMinutesSeconds(double hours, double minutes, double seconds)
{
    Init(hours, minutes, seconds);
}

HoursMinutesSeconds::HoursMinutesSeconds(const DegreeAngle& angle)
{
    Init(RadianAngle(angle));
}

void HoursMinutesSeconds::Init(double hours, double minutes, double seconds)
{
    double total = hours * 3600.0 + minutes * 60.0 + seconds;
    double h = total / 3600.0;
    Hours = TruncateToInt(h);
    Minutes = TruncateToInt((h - Hours) * 60.0);
    Seconds = total - (Hours * 3600.0 + Minutes * 60.0);
}

void HoursMinutesSeconds::Init(const RadianAngle& angle)
{
    double h = angle.GetRadians() * 24.0 / twoPi;
    Hours = TruncateToInt(h);
    double m = (h - Hours) * 60.0;
    Minutes = TruncateToInt(m);
    Seconds = (m - Minutes) * 60.0;
}

RadianAngle HoursMinutesSeconds::GetRadianAngle() const
{
    return RadianAngle((Hours * 3600.0 + Minutes * 60.0 + Seconds) * twoPi / 86400.0);
}

DegreeAngle HoursMinutesSeconds::GetDegreeAngle() const
{
    return DegreeAngle(GetRadianAngle());
}

namespace {

// The carry of the text forms, on copies: minutes past 59 make an hour, and 24 hours are 0.
std::string Describe(int hours, int minutes, double seconds, bool withSeconds)
{
    if (minutes > 59) {
        minutes = 0;
        ++hours;
    }
    if (hours > 23) {
        hours = 0;
    }
    char text[64];
    if (withSeconds) {
        std::snprintf(text, sizeof text, "%02dh %02dm %04.1fs", hours, minutes, seconds);
    } else {
        std::snprintf(text, sizeof text, "%02dh %02dm", hours, minutes);
    }
    return text;
}

} // namespace

std::string HoursMinutesSeconds::GetDescription1() const
{
    // Seconds that would print as 60.0 count as the next minute.
    if (Seconds >= 59.95) {
        return Describe(Hours, Minutes + 1, 0.0, true);
    }
    return Describe(Hours, Minutes, Seconds, true);
}

std::string HoursMinutesSeconds::GetDescription2() const
{
    return Describe(Hours, Seconds > 30.0 ? Minutes + 1 : Minutes, 0.0, false);
}

bool HoursMinutesSeconds::Set(StringParser& parser)
{
    LorvString* token = parser.GetNextToken();
    double hours = 0.0, minutes = 0.0, seconds = 0.0;
    if (token == nullptr || !ReadField(*token, 24.0, hours)) {
        return false;
    }
    token = parser.GetNextToken();
    if (token != nullptr) {
        if (!ReadField(*token, 60.0, minutes)) {
            return false;
        }
        token = parser.GetNextToken();
        if (token != nullptr && !ReadField(*token, 60.0, seconds)) {
            return false;
        }
    }
    Init(hours, minutes, seconds);
    return true;
}

StateContainer& HoursMinutesSeconds::operator<<(StateContainer& sc) const
{
    return sc << std::to_string(Hours) + " " + std::to_string(Minutes) + " " + StateText(Seconds);
}

StateContainer& HoursMinutesSeconds::operator>>(StateContainer& sc)
{
    std::string value;
    sc >> value;
    StringParser parser(value, " ", true);
    HoursMinutesSeconds read;
    if (!read.Set(parser)) {
        read = HoursMinutesSeconds();
    }
    *this = read;
    return sc;
}

StateContainer& operator<<(StateContainer& sc, const HoursMinutesSeconds& time)
{
    return time << sc;
}

StateContainer& operator>>(StateContainer& sc, HoursMinutesSeconds& time)
{
    return time >> sc;
}
