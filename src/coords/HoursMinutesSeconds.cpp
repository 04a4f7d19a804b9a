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
        hours = CarryInto(hours);
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
        return Describe(Hours, CarryInto(Minutes), 0.0, true);
    }
    return Describe(Hours, Minutes, Seconds, true);
}

std::string HoursMinutesSeconds::GetDescription2() const
{
    return Describe(Hours, Seconds > 30.0 ? CarryInto(Minutes) : Minutes, 0.0, false);
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
    // Six significant digits round seconds such as 59.9999997 to "60", which Set refuses.
    // Such seconds go into the minute, whole minutes into the hour and whole days away, so
    // that what is written reads back as the same angle. Ordinary values are written as
    // they stand.
    std::string seconds = StateText(Seconds);
    long long minutes = Minutes;
    long long hours = Hours;
    double written = StateDouble(seconds);
    if (written >= 60.0 || written <= -60.0) {
        seconds = StateText(0.0);
        minutes += written > 0.0 ? 1 : -1;
    }
    hours += minutes / 60;
    minutes %= 60;
    hours %= 24;
    std::string value = std::to_string(hours);
    value.append(" ").append(std::to_string(minutes)).append(" ").append(seconds);
    return sc << value;
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
