#pragma once
// The dialog of the map's date and time. The user sees and types local time in the map's time
// zone (month, day, year with its era, hour, minute, second, and am or pm on the 12-hour
// clock); the dialog holds Universal Time, and after OK its time is the typed local time
// turned back into Universal Time. "Now" takes the present moment.
//
// A year below 1 is refused with a message, as BC years are typed as positive years with the
// era B.C.; every other number passes on to AstroTime as typed (text reads as 0). Without
// automatic daylight saving in the zone, the daylight check box sets the zone's manual toggle.
//
// Whether the clock is the 24-hour one comes from the profile ("MilitaryTime", section
// "Orbiscope", default 0): the am and pm buttons are hidden then.
#include <string>

#include "coords/LatLong.h"
#include "shell/AstroDialog.h"
#include "time/AstroTime.h"
#include "time/TimeZone.h"

class TCheckBox;
class TComboBox;
class TEdit;
class TRadioButton;
class TStatic;

class TimeDialog : public AstroDialog
{
public:
    // Control ids.
    static constexpr int kDay = 0xc9;
    static constexpr int kHour = 0xca;
    static constexpr int kSecond = 0xcb;
    static constexpr int kMinute = 0xce;
    static constexpr int kYear = 0xcf;
    static constexpr int kMonth = 0xd0;
    static constexpr int kAm = 0xd1;
    static constexpr int kPm = 0xd2;
    static constexpr int kNow = 0xd4;
    static constexpr int kModifyTimeZone = 0xd5;
    static constexpr int kZoneName = 0xd6;
    static constexpr int kEra = 0xd7;
    static constexpr int kDaylight = 0xd8;

    // `time` in Universal Time; the zone, place and its name go to the location dialog.
    TimeDialog(TWindow* parent, const AstroTime& time, const TimeZone& zone,
               const std::string& locationName, const LatLong& location);

    // The results, after OK.
    const AstroTime& GetTime() const { return Time; }
    const TimeZone& GetTimeZone() const { return Zone; }
    const std::string& GetLocationName() const { return LocationName; }
    const LatLong& GetLocation() const { return Location; }
    bool Is24HourDisplay() const { return b24HourDisplay; }

    std::string GetHelpKey() const override;
    void SetupWindow() override;
    void CmOk() override;
    // The present moment.
    void CmNow();
    // The location dialog on the place, its name and the zone; they change only with its OK.
    void CmModifyTimeZone();
    const TResponseRow* Find(const TEventInfo& event) const override;

private:
    // Shows the time as local time in the zone, and the zone.
    void InitControls();

    bool b24HourDisplay;
    AstroTime Time;
    TimeZone Zone;
    std::string LocationName;
    LatLong Location;

    TEdit* pYear;
    TComboBox* pEra;
    TComboBox* pMonth;
    TEdit* pDay;
    TEdit* pHour;
    TEdit* pMinute;
    TEdit* pSecond;
    TRadioButton* pAm;
    TRadioButton* pPm;
    TStatic* pZoneName;
    TCheckBox* pDaylight;
};
