// Arbitrary text against the command-string reader, the state reader built on it and every
// text parser of the coordinate types.
//
// Beyond "no crash", three properties are checked: the parameters of any text, written out
// again with AddParam, read back identically; angles and places read from state are written
// and read back to the same six-digit text; an hours value read from state reads back as the
// same angle.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "catalogues/StringParser.h"
#include "coords/AngleMath.h"
#include "coords/DegreeAngle.h"
#include "coords/DegreeRange.h"
#include "coords/DegreesMinutesSecondsArc.h"
#include "coords/HoursMinutesSeconds.h"
#include "coords/LatLong.h"
#include "coords/PolarCoord.h"
#include "coords/RadianAngle.h"
#include "coords/SkyRange.h"
#include "coords/StellarCoord.h"
#include "host/HostCmdLine.h"
#include "state/CmdLineStateContainer.h"

namespace {

void Fail(const char* what, const std::string& detail)
{
    std::fprintf(stderr, "fuzz_cmdline: %s: [%s]\n", what, detail.c_str());
    std::abort();
}

// The parameters of a text, rebuilt by AddParam, must parse to the same keys and values.
void CheckCommandLine(const std::string& text)
{
    HostCmdLine line(text);
    std::vector<HostCmdLine::Parameter> parameters = line.GetParameters();
    std::string value;
    for (const char* key : {"Center", "Location", "FullState", "stringref", "View", ""}) {
        line.GetValue(key, value);
    }

    HostCmdLine rebuilt;
    for (const HostCmdLine::Parameter& parameter : parameters) {
        rebuilt.AddParam(parameter.Key, parameter.Value, true);
    }
    std::vector<HostCmdLine::Parameter> again = rebuilt.GetParameters();
    if (again.size() != parameters.size()) {
        Fail("parameter count changed on rewriting", rebuilt.GetRawText());
    }
    for (std::size_t i = 0; i < again.size(); ++i) {
        if (again[i].Key != parameters[i].Key || again[i].Value != parameters[i].Value) {
            Fail("parameter changed on rewriting", rebuilt.GetRawText());
        }
    }
}

void SameText(double a, double b, const char* what)
{
    if (StateText(a) != StateText(b)) {
        Fail(what, StateText(a) + " vs " + StateText(b));
    }
}

// Hours values agree when they name the same angle, a whole day aside.
void SameHours(const HoursMinutesSeconds& a, const HoursMinutesSeconds& b)
{
    double ra = a.GetRadianAngle().GetRadians(), rb = b.GetRadianAngle().GetRadians();
    if (!std::isfinite(ra) || !std::isfinite(rb)) {
        return;
    }
    double difference = std::fmod(std::fabs(ra - rb), twoPi);
    if (std::min(difference, twoPi - difference) > 1e-6) {
        Fail("hours changed on rewriting", a.GetDescription1() + " vs " + b.GetDescription1());
    }
}

struct ViewState
{
    PolarCoord Center;
    LatLong Location;
    DegreeAngle Field;
    RadianAngle Phase;
    HoursMinutesSeconds Time;
    DegreesMinutesSecondsArc Arc;
    StellarCoord Star;
    std::string Name;
    long Count = 0;
    bool Flag = false;
};

void Read(StateContainer& sc, ViewState& state)
{
    sc >> AstroKey("Center") >> state.Center >> AstroKey("Location") >> state.Location;
    sc >> AstroKey("View") >> GoToLevel >> AstroKey("Field") >> state.Field >>
        AstroKey("Inner Level") >> GoToLevel >> AstroKey("Phase") >> state.Phase >>
        AstroKey("Time") >> state.Time >> AstroKey("Arc") >> state.Arc >> AstroKey("Star") >>
        state.Star >> EndLevel >> AstroKey("Name") >> state.Name >> AstroKey("Count") >>
        state.Count >> AstroKey("Flag") >> state.Flag >> EndLevel;
}

void Write(StateContainer& sc, const ViewState& state)
{
    sc << AstroKey("Center") << state.Center << AstroKey("Location") << state.Location;
    sc << AstroKey("View") << NewLevel << AstroKey("Field") << state.Field
       << AstroKey("Inner Level") << NewLevel << AstroKey("Phase") << state.Phase
       << AstroKey("Time") << state.Time << AstroKey("Arc") << state.Arc << AstroKey("Star")
       << state.Star << EndLevel << AstroKey("Name") << state.Name << AstroKey("Count")
       << state.Count << AstroKey("Flag") << state.Flag << EndLevel;
}

void CheckState(const std::string& text)
{
    CmdLineStateContainer reader{HostCmdLine(text)};
    ViewState state;
    Read(reader, state);
    // Unbalanced levels in the text must not upset a further read.
    reader >> EndLevel >> EndLevel >> AstroKey("Center") >> GoToLevel >> GoToLevel >> EndLevel;

    CmdLineStateContainer writer;
    Write(writer, state);
    CmdLineStateContainer rereader(writer.GetCmdLine());
    ViewState again;
    Read(rereader, again);

    SameText(state.Center.GetRA().GetDegrees(), again.Center.GetRA().GetDegrees(), "RA");
    SameText(state.Center.GetDec().GetDegrees(), again.Center.GetDec().GetDegrees(), "Dec");
    SameText(state.Location.GetLatitude().GetDegrees(), again.Location.GetLatitude().GetDegrees(),
             "latitude");
    SameText(state.Location.GetLongitude().GetDegrees(), again.Location.GetLongitude().GetDegrees(),
             "longitude");
    SameText(state.Field.GetDegrees(), again.Field.GetDegrees(), "field");
    SameText(state.Phase.GetRadians(), again.Phase.GetRadians(), "phase");
    SameHours(state.Time, again.Time);
    SameHours(state.Star.GetRA(), again.Star.GetRA());
    if (state.Arc.GetDescription1() != again.Arc.GetDescription1() ||
        state.Star.GetDec().GetDescription1() != again.Star.GetDec().GetDescription1()) {
        Fail("arc changed on rewriting", writer.GetCmdLine().GetRawText());
    }
    if (state.Name != again.Name || state.Count != again.Count || state.Flag != again.Flag) {
        Fail("plain value changed on rewriting", writer.GetCmdLine().GetRawText());
    }
}

// Every value a parser accepts goes through the conversions and text forms.
void Use(const PolarCoord& coord)
{
    StellarCoord stellar(coord);
    PolarCoord back(stellar);
    SkyRange range;
    range.Enclose(coord);
    range.Enclose(back);
    range.Contains(coord);
    DegreeAngle ra = coord.GetRA();
    DegreeRange(ra, coord.GetDec()).Enclose(ra);
    (void)(stellar.GetDescription() + coord.GetDescription() + stellar.GetRA().GetDescription2() +
           stellar.GetDec().GetDescription2());
}

void CheckParsers(const std::string& text)
{
    for (const char* separators : {" ", ",", " ,"}) {
        HoursMinutesSeconds time;
        StringParser timeText(text, separators, true);
        if (time.Set(timeText)) {
            Use(PolarCoord(time.GetDegreeAngle(), DegreeAngle(0.0)));
        }

        DegreesMinutesSecondsArc arc;
        StringParser arcText(text, separators, true);
        if (arc.Set(arcText)) {
            arc.Roundoff();
            Use(PolarCoord(DegreeAngle(0.0), arc.GetDegreeAngle()));
        }

        StellarCoord stellar;
        StringParser stellarText(text, separators, true);
        stellar.Set(stellarText);
        Use(PolarCoord(stellar));

        PolarCoord polar(1.0, 2.0);
        StringParser polarText(text, separators, true);
        polar.Set(polarText);
        Use(polar);

        LatLong place;
        StringParser placeText(text, separators, true);
        place.Set(placeText);
        Use(PolarCoord(place.GetLongitude(), place.GetLatitude()));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    CheckCommandLine(text);
    CheckState(text);
    CheckParsers(text);
    return 0;
}
