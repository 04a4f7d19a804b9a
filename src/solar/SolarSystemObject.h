#pragma once
// The frame of every body of the solar system: its time, its heliocentric position and
// velocity, and the reduction from those to the place that is drawn.
//
// Coordinates are ecliptic of the mean equinox of date, centred on the Sun, in astronomical
// units, unless a function says otherwise. A body computes itself lazily: SetTime stores the
// time and brings the record up to date, and every read of the position goes through Update,
// so one time costs one evaluation of the body's theory however many questions follow.
//
// Questions about where a body stands are asked of the observer (the origin, normally
// Earth200) with the body as the argument. Only Earth200 turns places to the equator and
// applies nutation, so only from there are places equatorial; from any other origin they stay
// ecliptic. No difference between universal and dynamical time is made anywhere, and no date
// is refused.
#include "coords/DegreeAngle.h"
#include "coords/LatLong.h"
#include "coords/PolarCoord.h"
#include "coords/RectCoord.h"
#include "coords/SphericalCoord.h"
#include "solar/OrbitMatrix.h"
#include "time/AstroTime.h"

#include <string>

class SolarSystemObject
{
public:
    // Rates of heliocentric longitude, latitude (1e-4 radian per day) and distance (1e-4 AU per
    // day) for the series bodies.
    struct PolarRates
    {
        double dL = 0.0;
        double dB = 0.0;
        double dR = 0.0;
    };

    SolarSystemObject() = default;
    SolarSystemObject(const SolarSystemObject&) = delete;
    SolarSystemObject& operator=(const SolarSystemObject&) = delete;
    virtual ~SolarSystemObject() = default;

    // Visual magnitude at unit distances and zero phase; 99 for a body without one.
    virtual double GetBaseMagnitude();
    // Called on the observer: the target's visual magnitude as seen from here; 99 here.
    virtual double GetMagnitudeOf(SolarSystemObject& target);
    // The base magnitude with the body's phase law for this observer.
    virtual double GetPhaseMagnitude(SolarSystemObject& observer);
    // Called on the observer: the angle Sun - target - observer, degrees; 0 here.
    virtual DegreeAngle GetPhaseAngleOf(SolarSystemObject& target);
    // The direction of the rotation pole at a time, equatorial degrees. False, with the
    // outputs untouched, for a body without one.
    virtual bool GetPole(const AstroTime& at, DegreeAngle& rightAscension,
                         DegreeAngle& declination);
    // The angle of the prime meridian at a time, degrees; 0 here.
    virtual DegreeAngle GetPrimeMeridian(const AstroTime& at);
    // +1 for direct rotation, -1 for retrograde.
    virtual int GetRotationSense();
    // The direction of the zenith of a place on this body: (0, 90) here.
    virtual PolarCoord GetZenith(const LatLong& location);
    // Sidereal time at a place at this body's time, and at the midnight before; 0 here.
    virtual DegreeAngle GetLocalSiderealTime(const LatLong& location);
    virtual DegreeAngle GetMidnightSiderealTime(const LatLong& location);
    virtual std::string GetName() = 0;

    // Stores the time and brings the record up to date.
    void SetTime(const AstroTime& at);
    const AstroTime& GetTime() const { return time; }

    // The heliocentric state, brought up to date first. AU; velocity in 1e-4 AU per day.
    const RectCoord& GetHelioPosition();
    const RectCoord& GetHelioVelocity();
    double GetHelioDistance();
    // Heliocentric ecliptic longitude and latitude (radians) and distance (AU).
    double GetHelioLongitude();
    double GetHelioLatitude();
    double GetHelioRadius();
    // Distance between the two bodies, AU; both are brought up to date.
    double GetDistanceTo(SolarSystemObject& other);

    // Called on the origin: the target's apparent place, corrected for light time and the
    // origin's aberration in one step. From Earth200 longitude and latitude are the right
    // ascension and declination of the true equator and equinox of date; from any other
    // origin ecliptic longitude and latitude. Radians; radius in AU.
    SphericalCoord GetApparentPlace(SolarSystemObject& target);
    // Called on the origin: the target's geometric place, ecliptic of date, no correction.
    SphericalCoord GetGeometricPlace(SolarSystemObject& target);

    // The planetographic latitude and longitude (degrees, longitude 0 to 360) of the point of
    // this body that faces the observer, at the time the light left. False, with the outputs
    // untouched, for a body without a pole or an observer at the body's centre.
    bool GetSubObserverPoint(SolarSystemObject& observer, DegreeAngle& latitudeOut,
                             DegreeAngle& longitudeOut);

    // The rotation from a frame with the given node, inclination and argument (degrees) into
    // the frame of its node.
    static void BuildOrbitMatrix(const DegreeAngle& node, const DegreeAngle& inclination,
                                 const DegreeAngle& argument, OrbitMatrix& matrix);

    // Rectangular position (and, when rates and velocity are both given, velocity) from
    // longitude and latitude (radians), distance, and their rates.
    static void SetPolarState(double L, double B, double R, RectCoord& positionOut,
                              const PolarRates* rates, RectCoord* velocityOut);

protected:
    // Computes the record for `time`; the base does nothing and returns false.
    virtual bool Compute();
    // Turns an ecliptic vector of date to the equator of date; here it stays as it is.
    virtual RectCoord EclipticToEquatorial(const RectCoord& rect);
    // Applies nutation to an equatorial vector; here nothing, and true.
    virtual bool ApplyNutation(RectCoord& rect);
    // Runs Compute when the time has changed since the last; true when it did.
    virtual bool Update();

    AstroTime time;         // asked for by the last SetTime
    AstroTime computedTime; // for which the record below holds
    double longitude = 0.0; // heliocentric ecliptic longitude, radians
    double latitude = 0.0;  // heliocentric ecliptic latitude, radians
    double radius = 0.0;    // heliocentric distance, AU
    RectCoord position;     // the same point, AU
    PolarRates polarRates;
    RectCoord velocity; // 1e-4 AU per day
};
