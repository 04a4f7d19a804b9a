#include "shell/ObjectInfoDialog.h"

#include <cstdio>

#include "catalogues/AstroObject.h"
#include "coords/DegreesMinutesSecondsArc.h"
#include "coords/HoursMinutesSeconds.h"
#include "host/HostStringTable.h"
#include "shell/AstroDialogTemplates.h"
#include "solar/PlanetView.h"

namespace {

constexpr short kCaption = 0x92d;
// Objects without a known magnitude (comets, some Messier objects) give 99 or more.
constexpr double kNoMagnitude = 99.0;

} // namespace

ObjectInfoDialog::ObjectInfoDialog(TWindow* parent, AstroObject& object)
    : AstroDialog(parent, TResId(AstroDialogTemplates::kObjectInfo)), pObject(&object)
{}

std::string ObjectInfoDialog::GetHelpKey() const
{
    return ProfileHelpKey("ObjectInfoDialogHelpKey", "Planetarium");
}

std::string ObjectInfoDialog::FormatMagnitude(double magnitude)
{
    if (!(magnitude < kNoMagnitude)) {
        return "-";
    }
    char text[32];
    std::snprintf(text, sizeof text, "%-2.1f", magnitude);
    return text;
}

void ObjectInfoDialog::SetupWindow()
{
    AstroDialog::SetupWindow();
    SetCaption(getHostString(5, kCaption));
    PolarCoord position = pObject->GetPosition();
    SetDlgItemText(kName, pObject->GetInfoName());
    SetDlgItemText(kType, pObject->GetTypeName());
    SetDlgItemText(kRightAscension, HoursMinutesSeconds(position.GetRA()).GetDescription1());
    SetDlgItemText(kDeclination, DegreesMinutesSecondsArc(position.GetDec()).GetDescription1());
    SetDlgItemText(kMagnitude, FormatMagnitude(pObject->GetMagnitude()));
    if (auto* view = dynamic_cast<PlanetView*>(pObject)) {
        char text[48];
        std::snprintf(text, sizeof text, "%-4.3f AU", view->GetDistance());
        SetDlgItemText(kDistance, text);
    } else if (TWindow* label = GetControl(kDistanceLabel)) {
        label->Show(SW_HIDE);
    }
    if (pObject->GetLaunchString().empty()) {
        if (TWindow* button = GetControl(kArticle)) {
            button->Show(SW_HIDE);
        }
    }
}

void ObjectInfoDialog::CmArticle()
{
    LaunchString = pObject->GetLaunchString();
    AstroDialog::CmOk();
}

const TResponseRow* ObjectInfoDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        CmRow<kArticle, &ObjectInfoDialog::CmArticle>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : AstroDialog::Find(event);
}
