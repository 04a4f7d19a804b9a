#pragma once
// Turns the celestial sphere into the frame of a view and back.
//
// In the view frame the centre of view is the pole (Dec 90) and the zenith lies at RA 0, so
// the Dec of a direction is 90 minus its angle from the centre, and its RA is the position
// angle around the centre, counted from "up" towards the right of the picture (Projector
// draws RA 0 straight up and RA 90 to the right). All angles are degrees in whatever frame
// the centre and the zenith are given in, usually equatorial.
//
// The frame is defined by three rotations in a fixed order: about the old pole by the centre's
// RA, a tilt of the pole by 90 - Dec of the centre, about the new pole by the zenith angle.
// The pictures depend on the exact doubles that order produces (screen points are truncated),
// so no shortcut replaces it. The tilt's sines and cosines are worked out once here.
#include "coords/PolarCoord.h"

class PerspectiveModifier
{
public:
    // Centre and zenith (0, 0), every trigonometric value 0.
    PerspectiveModifier() = default;
    // A view looking at `centre`, with `zenith` straight above it. A zenith in the same
    // direction as the centre, or opposite to it, leaves the turn about the centre to the
    // rounding of the tilt; the view is then upright in no particular way.
    PerspectiveModifier(const PolarCoord& centre, const PolarCoord& zenith);

    // Sky to view frame. Always true.
    bool ChangePerspective(const PolarCoord& in, PolarCoord& out) const;
    // View frame to sky. Always true.
    bool ReversePerspective(const PolarCoord& in, PolarCoord& out) const;

    // RA minus `degrees`, brought back to 0 - 360; Dec unchanged. The turn about the old pole.
    static void RotateAboutYAxis(PolarCoord& coord, double degrees);
    // The same turn, about the pole of the view frame.
    static void RotateAboutCenterOfView(PolarCoord& coord, double degrees);
    // Tilts the pole by the angle whose cosine and sine are given. Rounding that pushes the
    // sine of the new Dec or the cosine of the new RA past 1 is held at +-1 and reported on
    // dbstream.
    static void RotateAboutXAxis(PolarCoord& coord, double cosine, double sine);

    PolarCoord GetCenterOfView() const { return CenterOfView; }
    PolarCoord GetZenith() const { return Zenith; }
    // Degrees: the RA of the zenith after the first two rotations.
    double GetZenithAngle() const { return ZenithAngle; }
    // Of the tilt, 90 - Dec of the centre.
    double GetCosTilt() const { return CosTilt; }
    double GetSinTilt() const { return SinTilt; }

    // Centre and zenith only; everything else follows from them.
    bool operator==(const PerspectiveModifier& other) const
    {
        return CenterOfView == other.CenterOfView && Zenith == other.Zenith;
    }
    bool operator!=(const PerspectiveModifier& other) const { return !(*this == other); }

private:
    PolarCoord CenterOfView;
    PolarCoord Zenith;
    double ZenithAngle = 0.0;
    // tilt = 90 - Dec of the centre, in degrees.
    double CosTilt = 0.0;
    double CosNegativeTilt = 0.0;
    double SinTilt = 0.0;
    double SinNegativeTilt = 0.0;
};
