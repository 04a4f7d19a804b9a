#include "projection/OrientationInfo.h"

#include "state/StateContainer.h"

StateContainer& OrientationInfo::operator<<(StateContainer& sc) const
{
    return sc << NewLevel << AstroKey("Radius") << Radius << EndLevel;
}

StateContainer& OrientationInfo::operator>>(StateContainer& sc)
{
    return sc >> GoToLevel >> AstroKey("Radius") >> Radius >> EndLevel;
}

bool OrientationInfo::Scroll(AstroScrollInfo& /*info*/)
{
    return false;
}

const char* OrientationInfo::GetTypeName() const
{
    return nType == FIXED ? "Fixed" : "Rotating";
}

StateContainer& operator<<(StateContainer& sc, const OrientationInfo& orientation)
{
    return orientation << sc;
}

StateContainer& operator>>(StateContainer& sc, OrientationInfo& orientation)
{
    return orientation >> sc;
}
