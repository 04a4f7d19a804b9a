#pragma once
// The status block of where the view looks: the kind of orientation, the field of view (the
// whole width, twice the radius, in degrees), the centre and the zenith in RA and Dec, and for
// a view from the ground the offset of the centre from the zenith (azimuth and zenith
// distance, degrees).
#include "skyview/TextStatusItem.h"

class OrientationInfo;

class OrientationStatusItem : public TextStatusItem
{
public:
    static constexpr int kId = 3;

    OrientationStatusItem();

    int GetCharacterCount() const override { return 30; }

    // Fills all eight lines; the offset lines are empty for a fixed view.
    void Set(const OrientationInfo& orientation);
};
