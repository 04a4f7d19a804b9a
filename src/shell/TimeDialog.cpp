#include "shell/TimeDialog.h"

#include <algorithm>
#include <limits>
#include <string>

#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "platform/TCheckBox.h"
#include "platform/TComboBox.h"
#include "platform/TEdit.h"
#include "platform/TRadioButton.h"
#include "platform/TStatic.h"
#include "shell/AstroDialogTemplates.h"
#include "shell/LocationDialog.h"

namespace {

// String ids of the eras, in the order of AstroTime::AD_OR_BC.
constexpr short kAnnoDomini = 0xab0;
constexpr short kBeforeChrist = 0xaae;
constexpr short kCaption = 0xa8c;
constexpr short kYearBelowOne = 0x1004;

} // namespace

TimeDialog::TimeDialog(TWindow* parent, const AstroTime& time, const TimeZone& zone,
                       const std::string& locationName, const LatLong& location)
    : AstroDialog(parent, TResId(AstroDialogTemplates::kTime)),
      b24HourDisplay(HostProfile().GetBool("Orbiscope", "MilitaryTime", false)),
      LocationName(locationName), Location(location)
{
    Time.Copy(time);
    Zone.Copy(zone);
    pYear = new TEdit(this, kYear);
    pEra = new TComboBox(this, kEra);
    pMonth = new TComboBox(this, kMonth);
    pDay = new TEdit(this, kDay);
    pHour = new TEdit(this, kHour);
    pMinute = new TEdit(this, kMinute);
    pSecond = new TEdit(this, kSecond);
    pAm = new TRadioButton(this, kAm);
    pPm = new TRadioButton(this, kPm);
    pZoneName = new TStatic(this, kZoneName);
    pDaylight = new TCheckBox(this, kDaylight);
}

std::string TimeDialog::GetHelpKey() const
{
    return ProfileHelpKey("TimeDialogHelpKey", "Planetarium");
}

void TimeDialog::SetupWindow()
{
    AstroDialog::SetupWindow();
    SetCaption(getHostString(5, kCaption));
    InitControls();
}

void TimeDialog::InitControls()
{
    AstroTime local = Time - Zone;
    local.SetMode(b24HourDisplay ? AstroTime::Clock24 : AstroTime::Clock12);

    if (pEra->GetCount() == 0) {
        pEra->AddString(getHostString(5, kAnnoDomini));
        pEra->AddString(getHostString(5, kBeforeChrist));
    }
    long year = 0;
    AstroTime::AD_OR_BC era = AstroTime::AD;
    local.GetYearWithADOrBC(year, era);
    pEra->SetSelIndex(era);

    pYear->SetText(std::to_string(year));
    pDay->SetText(std::to_string(local.GetDay()));
    pHour->SetText(std::to_string(local.GetDisplayHour()));
    pMinute->SetText(std::to_string(local.GetMinute()));
    pSecond->SetText(AstroTime::GetString(local.GetSecond()));

    if (local.GetMode() == AstroTime::Clock12) {
        bool morning = local.GetHour() < 12;
        pAm->SetCheck(morning ? BST_CHECKED : BST_UNCHECKED);
        pPm->SetCheck(morning ? BST_UNCHECKED : BST_CHECKED);
    } else {
        pAm->Show(SW_HIDE);
        pPm->Show(SW_HIDE);
    }

    if (pMonth->GetCount() == 0) {
        for (unsigned month = 1; month <= 12; ++month) {
            pMonth->AddString(AstroTime::GetMonthName(month));
        }
    }
    pMonth->SetSelIndex(int(local.GetMonth()) - 1);

    pZoneName->SetText(Zone.GetDisplayName());
    pDaylight->SetCheck(Zone.IsInDaylightSavingsRange(local, false) ? BST_CHECKED : BST_UNCHECKED);
    pDaylight->Show(Zone.GetAutomaticDST() ? SW_HIDE : SW_SHOW);
}

void TimeDialog::CmNow()
{
    Time = AstroTime::GetTickCount();
    InitControls();
}

void TimeDialog::CmModifyTimeZone()
{
    LocationDialog dialog(this, LocationName, Location, Zone);
    if (dialog.Execute() == IDOK) {
        LocationName = dialog.GetLocationName();
        Location = dialog.GetLocation();
        Zone.Copy(dialog.GetTimeZone());
    }
    InitControls();
}

void TimeDialog::CmOk()
{
    long year = ReadInteger(kYear);
    if (year < 1) {
        ShowMessage(getHostString(5, kYearBelowOne));
        return;
    }
    AstroTime::AD_OR_BC era = pEra->GetSelIndex() == AstroTime::BC ? AstroTime::BC : AstroTime::AD;
    unsigned month = AstroTime::GetMonthNumber(pMonth->GetText());
    long day = ReadInteger(kDay);
    long hour = ReadInteger(kHour);
    long minute = ReadInteger(kMinute);
    double second = ReadNumber(kSecond);

    if (pAm->IsChecked() && hour == 12) {
        hour = 0;
    }
    if (pPm->IsChecked() && hour != 12) {
        hour += 12;
    }
    // A negative day has no meaning to the calendar: it reads as day 0, the day before the 1st.
    unsigned dayOfMonth = unsigned(std::clamp<long>(day, 0, std::numeric_limits<unsigned>::max()));
    double hours = double(hour) + double(minute) / 60.0 + second / 3600.0;
    AstroTime local(dayOfMonth, month, AstroTime::GetYearWithoutADOrBC(year, era), hours);

    if (!Zone.GetAutomaticDST()) {
        Zone.SetManualDSTToggle(pDaylight->IsChecked());
    }
    Time = local + Zone;
    AstroDialog::CmOk();
}

const TResponseRow* TimeDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        CmRow<kNow, &TimeDialog::CmNow>(),
        CmRow<kModifyTimeZone, &TimeDialog::CmModifyTimeZone>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : AstroDialog::Find(event);
}
