#include "skyview/TimeStatusItem.h"

#include "host/HostProf.h"
#include "time/AstroTime.h"

TimeStatusItem::TimeStatusItem()
    : TextStatusItem(kId, "Date/Time: ", 2),
      bMilitaryTime(HostProfile().GetBool("Orbiscope", "MilitaryTime", false))
{}

void TimeStatusItem::Set(const AstroTime& local)
{
    AstroTime shown = local;
    shown.SetMode(bMilitaryTime ? AstroTime::Clock24 : AstroTime::Clock12);
    SetLine(0, shown.GetDescription2());
    SetLine(1, shown.GetDescription3());
    Invalidate();
}
