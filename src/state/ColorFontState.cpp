#include "state/ColorFontState.h"

#include <algorithm>
#include <string>

StateContainer& operator<<(StateContainer& sc, const TColor& color)
{
    return sc << NewLevel << AstroKey("R") << int(color.Red()) << AstroKey("G")
              << int(color.Green()) << AstroKey("B") << int(color.Blue()) << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, TColor& color)
{
    long r = 0, g = 0, b = 0;
    sc >> GoToLevel >> AstroKey("R") >> r >> AstroKey("G") >> g >> AstroKey("B") >> b >> EndLevel;
    auto channel = [](long v) { return int(std::clamp(v, 0L, 255L)); };
    color = TColor(channel(r), channel(g), channel(b));
    return sc;
}

StateContainer& operator<<(StateContainer& sc, const TFont& font)
{
    LOGFONT logFont;
    font.GetObject(logFont);
    return sc << NewLevel << AstroKey("Face Name") << std::string(logFont.lfFaceName)
              << AstroKey("Height") << long(logFont.lfHeight) << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, TFont*& font)
{
    std::string face;
    long height = 0;
    sc >> GoToLevel >> AstroKey("Face Name") >> face >> AstroKey("Height") >> height >> EndLevel;
    font = new TFont(face.c_str(), int(height), 0, 0, 0, FW_NORMAL, 0, false, false, false,
                     DEFAULT_CHARSET, 0, 0, 0);
    return sc;
}
