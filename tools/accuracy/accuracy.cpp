// Compares Orbiscope's apparent places with a reference and prints, for each body, the median
// and the largest angular difference in arcseconds.
//
// The reference file (reference.js writes it from astronomy-engine) holds lines
// "MJD body RA Dec", degrees, geocentric apparent places of the true equator and equinox of
// date. For each MJD every body is set to that time (the Earth first, the Moon after it) and
// the Earth is asked for the body's apparent place. A line for "MoonWithDeltaT" is the Moon
// with the reference's own delta-T: its difference from the line "Moon" is what delta-T alone
// moves the Moon, which Orbiscope, making no difference between the time scales, leaves out.
//
// Usage: accuracy reference.txt [--list BODY]
//   --list BODY prints every date of one body: MJD, difference in RA cos Dec and in Dec, ".
#include "solar/Earth200.h"
#include "solar/Jupiter200.h"
#include "solar/Mars200.h"
#include "solar/Mercury200.h"
#include "solar/Moon.h"
#include "solar/Neptune200.h"
#include "solar/Pluto200.h"
#include "solar/Saturn200.h"
#include "solar/SeriesMath.h"
#include "solar/Sun200.h"
#include "solar/Uranus200.h"
#include "solar/Venus200.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Place
{
    double ra = 0.0;  // degrees
    double dec = 0.0; // degrees
};

// Angle between two directions, arcseconds (Vincenty's form, good at all separations).
double Separation(const Place& a, const Place& b)
{
    const double ra1 = a.ra * kRadiansPerDegree, dec1 = a.dec * kRadiansPerDegree;
    const double ra2 = b.ra * kRadiansPerDegree, dec2 = b.dec * kRadiansPerDegree;
    const double dra = ra2 - ra1;
    const double x =
        std::cos(dec1) * std::sin(dec2) - std::sin(dec1) * std::cos(dec2) * std::cos(dra);
    const double y = std::cos(dec2) * std::sin(dra);
    const double z =
        std::sin(dec1) * std::sin(dec2) + std::cos(dec1) * std::cos(dec2) * std::cos(dra);
    return std::atan2(std::hypot(x, y), z) * kArcsecondsPerRadian;
}

double Median(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    return n % 2 == 1 ? values[n / 2] : 0.5 * (values[n / 2 - 1] + values[n / 2]);
}

class SolarSystem
{
public:
    SolarSystem() : saturn(sun), moon(earth, sun)
    {
        bodies = {{"Sun", &sun},       {"Moon", &moon},     {"Mercury", &mercury},
                  {"Venus", &venus},   {"Mars", &mars},     {"Jupiter", &jupiter},
                  {"Saturn", &saturn}, {"Uranus", &uranus}, {"Neptune", &neptune},
                  {"Pluto", &pluto}};
    }

    void SetTime(double mjd)
    {
        const AstroTime at(mjd, false);
        earth.SetTime(at); // first: the Moon builds on the Earth's position
        for (const auto& [name, body] : bodies) {
            body->SetTime(at);
        }
    }

    // Apparent RA and Dec of date, degrees; false for an unknown body.
    bool Apparent(const std::string& name, Place& place)
    {
        for (const auto& [bodyName, body] : bodies) {
            if (bodyName == name) {
                const SphericalCoord p = earth.GetApparentPlace(*body);
                place.ra = p.GetLongitude() * kDegreesPerRadian;
                place.dec = p.GetLatitude() * kDegreesPerRadian;
                return true;
            }
        }
        return false;
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& [name, body] : bodies) {
            names.push_back(name);
        }
        return names;
    }

private:
    Sun200 sun;
    Mercury200 mercury;
    Venus200 venus;
    Earth200 earth;
    Mars200 mars;
    Jupiter200 jupiter;
    Saturn200 saturn;
    Uranus200 uranus;
    Neptune200 neptune;
    Pluto200 pluto;
    Moon moon;
    std::vector<std::pair<std::string, SolarSystemObject*>> bodies;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: accuracy reference.txt [--list BODY]\n");
        return 2;
    }
    std::string listBody;
    for (int i = 2; i + 1 < argc; ++i) {
        if (std::strcmp(argv[i], "--list") == 0) {
            listBody = argv[i + 1];
        }
    }
    std::ifstream file(argv[1]);
    if (!file) {
        std::fprintf(stderr, "accuracy: cannot read %s\n", argv[1]);
        return 1;
    }

    SolarSystem system;
    std::map<std::string, std::vector<double>> differences;
    std::vector<double> deltaTMoon;
    std::map<double, Place> moonAsTT;
    double currentMJD = std::nan("");
    double firstMJD = 0.0, lastMJD = 0.0;
    std::size_t dates = 0;
    std::string line;
    while (std::getline(file, line)) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        std::istringstream fields(line);
        double mjd = 0.0;
        std::string body;
        Place reference;
        if (!(fields >> mjd >> body >> reference.ra >> reference.dec)) {
            std::fprintf(stderr, "accuracy: unreadable line: %s\n", line.c_str());
            return 1;
        }
        if (mjd != currentMJD) {
            system.SetTime(mjd);
            currentMJD = mjd;
            if (dates++ == 0) {
                firstMJD = mjd;
            }
            lastMJD = mjd;
        }
        if (body == "MoonWithDeltaT") {
            deltaTMoon.push_back(Separation(moonAsTT[mjd], reference));
            continue;
        }
        Place ours;
        if (!system.Apparent(body, ours)) {
            std::fprintf(stderr, "accuracy: unknown body %s\n", body.c_str());
            return 1;
        }
        if (body == "Moon") {
            moonAsTT[mjd] = reference;
        }
        differences[body].push_back(Separation(ours, reference));
        if (body == listBody) {
            const double dra = std::remainder(ours.ra - reference.ra, 360.0) *
                               std::cos(reference.dec * kRadiansPerDegree) * 3600.0;
            std::printf("%.4f %9.2f %9.2f\n", mjd, dra, (ours.dec - reference.dec) * 3600.0);
        }
    }
    if (!listBody.empty()) {
        return 0;
    }

    std::printf("%zu dates from MJD %.1f to %.1f; differences in arcseconds\n", dates, firstMJD,
                lastMJD);
    std::printf("%-8s %8s %8s\n", "body", "median", "largest");
    for (const std::string& name : system.Names()) {
        const std::vector<double>& d = differences[name];
        if (d.empty()) {
            continue;
        }
        std::printf("%-8s %8.2f %8.2f\n", name.c_str(), Median(d),
                    *std::max_element(d.begin(), d.end()));
    }
    if (!deltaTMoon.empty()) {
        std::printf("delta-T alone moves the Moon by %.1f (median) and up to %.1f\n",
                    Median(deltaTMoon), *std::max_element(deltaTMoon.begin(), deltaTMoon.end()));
    }
    return 0;
}
