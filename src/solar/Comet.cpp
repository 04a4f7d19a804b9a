#include "solar/Comet.h"

#include "catalogues/StringParser.h"
#include "platform/DebugStream.h"
#include "solar/KeplerOrbit.h"
#include "solar/SeriesMath.h"

#include <charconv>
#include <cmath>

namespace {

// The record keeps velocities in 1e-4 AU per day; the solvers give AU per day.
constexpr double kVelocityScale = 1e4;

// The mean anomaly (degrees) and the distance of e from 1 below which the near-parabolic
// solver takes over: there the ellipse and hyperbola solvers lose accuracy, since E or H and
// the mean anomaly are all small and 1 - e cos E nearly cancels.
constexpr double kNearParabolicAnomaly = 5.0;
constexpr double kNearParabolicDelta = 0.1;

// The whole text as a finite number; false for anything else (blanks, trailing text, "nan").
bool ReadNumber(const std::string& text, double& value)
{
    const char* first = text.data();
    const char* last = first + text.size();
    if (first != last && *first == '+') {
        ++first; // from_chars takes no plus sign; a record may well carry one
    }
    double parsed = 0.0;
    const auto [end, error] = std::from_chars(first, last, parsed);
    if (error != std::errc() || end != last || first == last || !std::isfinite(parsed)) {
        return false;
    }
    value = parsed;
    return true;
}

// Year (a whole number), month name and day with a fraction, blank-separated.
bool ReadPerihelionTime(const std::string& text, AstroTime& perihelion, std::string& why)
{
    StringParser tokens(text, " \t", true);
    const std::string year = *tokens.GetNextToken("");
    const std::string month = *tokens.GetNextToken("");
    const std::string day = *tokens.GetNextToken("");
    double yearValue = 0.0, dayValue = 0.0;
    if (!ReadNumber(year, yearValue) || yearValue != std::trunc(yearValue) ||
        std::fabs(yearValue) > 1e6) {
        why = "the year of perihelion is not a whole number";
        return false;
    }
    if (AstroTime::GetMonthNumber(month) == 0) {
        why = "the month of perihelion is not a month name";
        return false;
    }
    if (!ReadNumber(day, dayValue) || dayValue < 0.0 || dayValue >= 32.0) {
        why = "the day of perihelion is not a number from 0 to 31";
        return false;
    }
    StringParser again(text, " \t", true);
    return perihelion.Initialize(again, 1);
}

} // namespace

Comet::Comet(const CometElements& elements)
{
    SetElements(elements);
}

Comet::Comet(const std::string& name, const AstroTime& perihelion, double q, double e,
             double inclination, double node, double argument)
{
    CometElements elements;
    elements.Name = name;
    elements.Perihelion = perihelion;
    elements.PerihelionDistance = q;
    elements.Eccentricity = e;
    elements.Inclination = DegreeAngle(inclination);
    elements.Node = DegreeAngle(node);
    elements.Argument = DegreeAngle(argument);
    SetElements(elements);
}

bool Comet::Initialize(unsigned index, StringParser& parser)
{
    static const char* const kFieldNames[] = {"name",
                                              "time of perihelion",
                                              "perihelion distance",
                                              "eccentricity",
                                              "inclination",
                                              "longitude of the ascending node",
                                              "argument of perihelion"};
    std::string fields[7];
    std::string why;
    for (int i = 0; i < 7 && why.empty(); ++i) {
        fields[i] = *parser.GetNextToken("");
        if (fields[i].empty()) {
            why = std::string("the ") + kFieldNames[i] + " is missing";
        }
    }

    CometElements read;
    double numbers[5] = {};
    if (why.empty()) {
        read.Name = fields[0];
        ReadPerihelionTime(fields[1], read.Perihelion, why);
    }
    for (int i = 0; i < 5 && why.empty(); ++i) {
        if (!ReadNumber(fields[i + 2], numbers[i])) {
            why = std::string("the ") + kFieldNames[i + 2] + " is not a number";
        }
    }
    if (why.empty() && numbers[0] <= 0.0) {
        why = "the perihelion distance is not above 0";
    }
    if (why.empty() && numbers[1] < 0.0) {
        why = "the eccentricity is below 0";
    }
    if (!why.empty()) {
        dbstream << "Comet" << index + 1 << ": refused, " << why << dbendl;
        return false;
    }
    read.PerihelionDistance = numbers[0];
    read.Eccentricity = numbers[1];
    read.Inclination = DegreeAngle(numbers[2]);
    read.Node = DegreeAngle(numbers[3]);
    read.Argument = DegreeAngle(numbers[4]);
    SetElements(read);
    return true;
}

double Comet::GetMagnitudeOf(SolarSystemObject&)
{
    return 0.0;
}

void Comet::SetElements(const CometElements& elements)
{
    Elements = elements;
    BuildOrbitMatrix(Elements.Node, Elements.Inclination, Elements.Argument, orbitMatrix);
    bHasOrbit = true;
    // A comet that already stands somewhere moves to its new orbit at once; a new one keeps
    // the zero record until its first time, like every body.
    if (LastSolver != Solver::None) {
        Compute();
    }
}

bool Comet::Compute()
{
    const double e = Elements.Eccentricity;
    const double q = Elements.PerihelionDistance;
    OrbitPlaneState plane;
    bool solved = bHasOrbit;
    if (solved) {
        const double days = time.GetMJD() - Elements.Perihelion.GetMJD();
        const double delta = std::fabs(1.0 - e);
        const double invA = delta / q; // 1 / |a|, per AU
        // Mean anomaly, degrees, negative before perihelion.
        const double M =
            kDegreesPerRadian * kGaussianGravitation * days * std::sqrt(invA * invA * invA);
        // The near-parabolic loop is chosen by the size of M on both sides of perihelion. It
        // converges only within some tens of degrees of mean anomaly: taken for every time
        // before perihelion it puts Halley's comet, one period before its 1986 passage, more
        // than an AU from where the ellipse has it.
        // The distance from e = 1 is judged on e itself: 1 - 0.9 is a hair below 0.1 in binary,
        // yet an orbit with e = 0.9 as written belongs to the ellipse solver.
        const bool nearOne = e > 1.0 - kNearParabolicDelta && e < 1.0 + kNearParabolicDelta;
        if (std::fabs(M) < kNearParabolicAnomaly && nearOne) {
            plane = NearParabolicOrbit(days, q, e);
            LastSolver = Solver::NearParabolic;
        } else if (e < 1.0) {
            plane = EllipticOrbit(M, 1.0 / invA, e);
            LastSolver = Solver::Elliptic;
        } else {
            plane = HyperbolicOrbit(days, 1.0 / invA, e);
            LastSolver = Solver::Hyperbolic;
        }
        LastRounds = plane.Rounds;
        // Elements far outside any real orbit (an eccentricity of 1e200, say) can overflow;
        // such a comet stays at the Sun rather than carry infinities into the drawing.
        solved = std::isfinite(plane.X) && std::isfinite(plane.Y) && std::isfinite(plane.VX) &&
                 std::isfinite(plane.VY);
    }
    if (!solved) {
        position = RectCoord();
        velocity = RectCoord();
        longitude = latitude = radius = 0.0;
        polarRates = {};
        return false;
    }

    const OrbitMatrix& m = orbitMatrix;
    const double x = m(1, 1) * plane.X + m(1, 2) * plane.Y;
    const double y = m(2, 1) * plane.X + m(2, 2) * plane.Y;
    const double z = m(3, 1) * plane.X + m(3, 2) * plane.Y;
    const double vx = (m(1, 1) * plane.VX + m(1, 2) * plane.VY) * kVelocityScale;
    const double vy = (m(2, 1) * plane.VX + m(2, 2) * plane.VY) * kVelocityScale;
    const double vz = (m(3, 1) * plane.VX + m(3, 2) * plane.VY) * kVelocityScale;
    position = RectCoord(x, y, z);
    velocity = RectCoord(vx, vy, vz);

    const SphericalCoord place(position);
    longitude = place.GetLongitude();
    latitude = place.GetLatitude();
    radius = place.GetRadius();
    // The rates of longitude, latitude and distance that this velocity means, in the units of
    // the series bodies (1e-4 radian or AU per day).
    const double rho2 = x * x + y * y;
    const double rho = std::sqrt(rho2);
    polarRates.dR = radius > 0.0 ? (x * vx + y * vy + z * vz) / radius : 0.0;
    polarRates.dL = rho2 > 0.0 ? (x * vy - y * vx) / rho2 : 0.0;
    polarRates.dB = rho > 0.0 ? (vz * rho2 - z * (x * vx + y * vy)) / (radius * radius * rho) : 0.0;
    return true;
}
