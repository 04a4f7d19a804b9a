#pragma once
// The dialog of the observer's place: a city picked from the city list (typing its first
// letters finds it), or latitude and longitude typed as degrees, minutes and seconds with
// their hemispheres, and a time zone with its automatic daylight saving switch.
//
// The city list is the text file of the profile's "CityList" (section "Orbiscope", default
// "ed:\astcity.txt"), read each time the dialog opens, one city a line in fields separated by
// "|": city | region or country | latitude | N or S | longitude | W or E | zone code. The zone
// code is a letter and the zone's number in the zone index file (see TimeZone); a number that
// names no zone leaves the city without one. A missing file leaves the list empty, and the
// dialog then works by hand.
//
// OK refuses, with a message, a latitude outside (0, 90] degrees, a longitude outside
// [0, 180] and the row for no zone; a zone other than the computer's is taken only after a
// yes. When OK is pressed on a name typed in part while the list shows a city that begins with
// it, the city is taken into the fields first and the dialog stays open to be checked.
#include <memory>
#include <string>
#include <vector>

#include "coords/LatLong.h"
#include "shell/AstroDialog.h"
#include "time/TimeZone.h"

class TCheckBox;
class TComboBox;
class TEdit;
class TListBox;

class LocationDialog : public AstroDialog
{
public:
    // A city of the list: its place, "city, region" and its zone (null when the file gives
    // none that this computer knows).
    class CityInfo : public LatLong
    {
    public:
        std::string Name;
        std::unique_ptr<TimeZone> pZone;
    };
    using CityList = std::vector<CityInfo>;

    // Control ids.
    static constexpr int kCityName = 0x65;
    static constexpr int kCities = 0x66;
    static constexpr int kLatitudeDegrees = 0x67;
    static constexpr int kLatitudeMinutes = 0x68;
    static constexpr int kLatitudeSeconds = 0x69;
    static constexpr int kNorthSouth = 0x6a;
    static constexpr int kLongitudeDegrees = 0x6b;
    static constexpr int kLongitudeMinutes = 0x6c;
    static constexpr int kLongitudeSeconds = 0x6d;
    static constexpr int kWestEast = 0x6e;
    static constexpr int kZones = 0x6f;
    static constexpr int kAutomaticDST = 0x70;

    // No place yet: 0, 0, no name, the computer's zone.
    explicit LocationDialog(TWindow* parent);
    LocationDialog(TWindow* parent, const std::string& name, const LatLong& location,
                   const TimeZone& zone);
    ~LocationDialog() override;

    // The results, after OK.
    const std::string& GetLocationName() const { return LocationName; }
    const LatLong& GetLocation() const { return Location; }
    const TimeZone& GetTimeZone() const { return Zone; }
    // The cities read when the dialog opened, in file order.
    const CityList& GetCityList() const { return Cities; }

    // The cities of a city file, in its order; empty when it cannot be read.
    static CityList ReadCityList(const std::string& path);
    // The city file the profile names.
    static std::string CityListPath();

    std::string GetHelpKey() const override;
    void SetupWindow() override;
    void CmOk() override;
    // The name field changed: while the user types there, the list goes to the first city that
    // begins with the text.
    void EnCityNameChanged();
    // A city was picked, or none: the fields follow.
    void LbnCityChanged();
    const TResponseRow* Find(const TEventInfo& event) const override;

private:
    void ShowPlace(const LatLong& place);
    // Selects the zone row of that display name, or the row for no zone.
    void SelectZone(const std::string& displayName);

    CityList Cities;
    LatLong Location;
    std::string LocationName;
    TimeZone Zone;
    int nNoZoneRow = -1;

    TEdit* pCityName;
    TListBox* pCities;
    TComboBox* pNorthSouth;
    TComboBox* pWestEast;
    TComboBox* pZones;
    TCheckBox* pAutomaticDST;
};
