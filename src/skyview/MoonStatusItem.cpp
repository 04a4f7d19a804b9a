#include "skyview/MoonStatusItem.h"

#include "solar/Moon.h"

MoonStatusItem::MoonStatusItem() : TextStatusItem(kId, "Moon: ", 1)
{}

void MoonStatusItem::Set(Moon& moon)
{
    SetLine(0, "Phase: " + Number(moon.GetPhase().GetDegrees()));
    Invalidate();
}
