#include "coords/DegreesMinutesSecondsArc.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "catalogues/StringParser.h"
#include "coords/AngleMath.h"
#include "coords/DegreeAngle.h"
#include "state/StateContainer.h"

namespace {

char SignCharacter(int sign)
{
    return sign == 1 ? '+' : '-';
}

// A whole-number field; false when it lies outside -limit to limit.
bool ReadWholeField(const LorvString& token, long limit, std::int32_t& field)
{
    long value = std::strtol(token.c_str(), nullptr, 10);
    if (value > limit || value < -limit) {
        return false;
    }
    field = static_cast<std::int32_t>(value);
    return true;
}

// The carry of the text forms, on copies: minutes past 59 make a degree; degrees never wrap.
std::string Describe(int sign, int degrees, int minutes, double seconds, bool withSeconds)
{
    if (minutes > 59) {
        minutes = 0;
        degrees = CarryInto(degrees);
    }
    char text[80];
    if (withSeconds) {
        std::snprintf(text, sizeof text, "%c %02d\xB0 %02d' %04.1f\"", SignCharacter(sign), degrees,
                      minutes, seconds);
    } else {
        std::snprintf(text, sizeof text, "%c %02d\xB0 %02d'", SignCharacter(sign), degrees,
                      minutes);
    }
    return text;
}

} // namespace

DegreesMinutesSecondsArc::DegreesMinutesSecondsArc(int degrees, int minutes, double seconds,
                                                   int sign)
    : Sign(sign), Degrees(degrees), Minutes(minutes), Seconds(seconds)
{}

DegreesMinutesSecondsArc::DegreesMinutesSecondsArc(double degrees, double minutes, double seconds,
                                                   int sign)
{
    Init(sign * (degrees + (minutes * 60.0 + seconds) / 3600.0));
}

DegreesMinutesSecondsArc::DegreesMinutesSecondsArc(const DegreeAngle& angle)
{
    Init(angle.GetDegrees());
}

void DegreesMinutesSecondsArc::Init(double degrees)
{
    double magnitude = std::fabs(degrees);
    Degrees = TruncateToInt(magnitude);
    double m = (magnitude - Degrees) * 60.0;
    Minutes = TruncateToInt(m);
    Seconds = (m - Minutes) * 60.0;
    // Rounding in the subtractions above can leave a whole minute in the seconds.
    if (Seconds >= 60.0) {
        Seconds -= 60.0;
        Minutes = CarryInto(Minutes);
        if (Minutes == 60) {
            Minutes = 0;
            Degrees = CarryInto(Degrees);
        }
    }
    Sign = degrees >= 0.0 ? 1 : -1;
}

void DegreesMinutesSecondsArc::Roundoff()
{
    Seconds = std::trunc(Seconds + 0.5);
    if (Seconds == 60.0) {
        Seconds = 0.0;
        Minutes = CarryInto(Minutes);
        if (Minutes == 60) {
            Minutes = 0;
            Degrees = CarryInto(Degrees);
        }
    }
}

double DegreesMinutesSecondsArc::GetValue() const
{
    return Sign * (Degrees * 3600.0 + Minutes * 60.0 + Seconds) / 3600.0;
}

DegreeAngle DegreesMinutesSecondsArc::GetDegreeAngle() const
{
    return DegreeAngle(GetValue());
}

std::string DegreesMinutesSecondsArc::GetDescription1() const
{
    // Seconds that would print as 60.0 count as the next minute.
    if (Seconds >= 59.95) {
        return Describe(Sign, Degrees, CarryInto(Minutes), 0.0, true);
    }
    return Describe(Sign, Degrees, Minutes, Seconds, true);
}

std::string DegreesMinutesSecondsArc::GetDescription2() const
{
    return Describe(Sign, Degrees, Seconds > 30.0 ? CarryInto(Minutes) : Minutes, 0.0, false);
}

bool DegreesMinutesSecondsArc::Set(StringParser& parser)
{
    LorvString* token = parser.GetNextToken();
    if (token == nullptr) {
        return false;
    }
    Sign = 1;
    if (!token->empty() && (token->front() == '+' || token->front() == '-')) {
        if (token->front() == '-') {
            Sign = -1;
        }
        token = parser.GetNextToken();
        if (token == nullptr) {
            return false;
        }
    }
    if (!ReadWholeField(*token, 90, Degrees)) {
        return false;
    }

    Minutes = 0;
    token = parser.GetNextToken();
    if (token != nullptr && !ReadWholeField(*token, 60, Minutes)) {
        return false;
    }

    Seconds = 0.0;
    token = parser.GetNextToken();
    if (token != nullptr) {
        double seconds = std::strtod(token->c_str(), nullptr);
        if (!std::isfinite(seconds) || seconds > 60.0 || seconds < -60.0) {
            return false;
        }
        Seconds = seconds;
    }
    return true;
}

StateContainer& DegreesMinutesSecondsArc::operator<<(StateContainer& sc) const
{
    std::string value = Sign < 0 ? "-" : "+";
    for (const std::string& part :
         {std::to_string(Degrees), std::to_string(Minutes), StateText(Seconds)}) {
        value.append(" ").append(part);
    }
    return sc << value;
}

StateContainer& DegreesMinutesSecondsArc::operator>>(StateContainer& sc)
{
    std::string value;
    sc >> value;
    StringParser parser(value, " ,", true);
    DegreesMinutesSecondsArc read;
    if (!read.Set(parser)) {
        read = DegreesMinutesSecondsArc();
    }
    *this = read;
    return sc;
}

std::ostream& operator<<(std::ostream& out, const DegreesMinutesSecondsArc& arc)
{
    return out << (arc.GetSign() < 0 ? '-' : '+') << ',' << arc.GetDegrees() << ','
               << arc.GetMinutes() << ',' << arc.GetSeconds();
}

StateContainer& operator<<(StateContainer& sc, const DegreesMinutesSecondsArc& arc)
{
    return arc << sc;
}

StateContainer& operator>>(StateContainer& sc, DegreesMinutesSecondsArc& arc)
{
    return arc >> sc;
}
