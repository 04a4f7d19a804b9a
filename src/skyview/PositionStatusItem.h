#pragma once
// The status block of a position on the sky: under its heading the RA and the Dec, each in
// degrees and then sexagesimal, and for a view from the ground the azimuth (from north
// through east, as a compass reads) and the altitude, in degrees. The map fills it with the
// sky under the pointer.
#include <string>

#include "skyview/TextStatusItem.h"

class DegreeAngle;
class StellarCoord;

class PositionStatusItem : public TextStatusItem
{
public:
    static constexpr int kId = 1;

    explicit PositionStatusItem(const std::string& heading);

    int GetCharacterCount() const override { return 30; }

    // "RA: (<degrees>)07h 30m 12.5s" and "Dec: (<degrees>)+ 12° 30' 15.5\"", with the
    // azimuth and altitude lines empty.
    void Set(const StellarCoord& position);
    // The same with "Azimuth: <degrees>°" and "Altitude: <degrees>°".
    void Set(const StellarCoord& position, const DegreeAngle& azimuth, const DegreeAngle& altitude);
    // Every line empty: the pointer is off the sky.
    void Clear();
};
