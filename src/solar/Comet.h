#pragma once
// A comet: a body on a fixed conic about the Sun, without perturbations. Compute solves the
// orbit for the body's time with one of three solvers (see KeplerOrbit.h), chosen by the mean
// anomaly and by how near the eccentricity lies to 1, and turns the result from the plane of
// the orbit into the ecliptic with a matrix built once from the elements.
//
// Frame and units as for every body: heliocentric ecliptic of date, AU; the velocity is kept in
// 1e-4 AU per day like that of the series bodies, so that the reduction to the apparent place
// corrects a comet for its own motion during the light time, as it does a planet. (The solvers
// give AU per day; at 1 AU a comet moves some 20 to 60 arcseconds in the eight minutes its
// light travels, too much to leave out.)
//
// A comet has no magnitude of its own (99, the base value) and, as an observer, gives 0 for the
// magnitude of anything.
#include "solar/CometElements.h"
#include "solar/SolarSystemObject.h"

#include <string>

class StringParser;

class Comet : public SolarSystemObject
{
public:
    // Which solver the last computation used.
    enum class Solver
    {
        None,
        Elliptic,
        Hyperbolic,
        NearParabolic
    };

    // No orbit until Initialize: the record stays zero, at the Sun.
    Comet() = default;
    explicit Comet(const CometElements& elements);
    // The complete form: angles in degrees, q in AU.
    Comet(const std::string& name, const AstroTime& perihelion, double q, double e,
          double inclination, double node, double argument);

    // Reads a record of seven comma-separated fields: name; time of perihelion as year, month
    // name and day with a fraction ("1997 April 1.1456"); perihelion distance (AU);
    // eccentricity; inclination, longitude of the ascending node and argument of perihelion
    // (degrees). A record with a field missing or not a number, an unknown month, q not above
    // 0 or e below 0 is refused: false, a message on dbstream naming the profile key
    // "Comet<index + 1>", and the comet as it was. Fields beyond the seventh are ignored.
    bool Initialize(unsigned index, StringParser& parser);

    double GetMagnitudeOf(SolarSystemObject& target) override;
    std::string GetName() override { return Elements.Name; }

    const CometElements& GetElements() const { return Elements; }
    // Takes new elements and rebuilds the orbit matrix; the record follows at the next Update.
    void SetElements(const CometElements& elements);

    // The solver of the last Compute and the rounds its iteration took (for tests and checks).
    Solver GetLastSolver() const { return LastSolver; }
    int GetLastRounds() const { return LastRounds; }

protected:
    bool Compute() override;

private:
    CometElements Elements;
    OrbitMatrix orbitMatrix; // from the plane of the orbit to the ecliptic
    bool bHasOrbit = false;
    Solver LastSolver = Solver::None;
    int LastRounds = 0;
};
