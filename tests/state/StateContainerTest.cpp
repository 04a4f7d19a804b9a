// A whole state, as the map writes one, saved to either container, restored and saved again.
#include <gtest/gtest.h>

#include <memory>

#include "host/ScopedHome.h"
#include "platform/Registry.h"
#include "state/CmdLineStateContainer.h"
#include "state/ColorFontState.h"
#include "state/RegistryStateContainer.h"

namespace {

// Nested levels, keys with blanks, a level left empty, texts with blanks, brackets and quotes,
// a flag, a colour and a font. The root level has no key: its values join the text, or the
// registry key, it is written into, and are read from there.
struct MapState
{
    double RA = 0, Dec = 0, Offset = 0;
    std::string Arc, Odd;
    bool Labels = false;
    TColor Color;
    std::unique_ptr<TFont> Font = std::make_unique<TFont>("");
};

void Save(StateContainer& sc, const MapState& s)
{
    sc << AstroKey("") << NewLevel << AstroKey("Center") << NewLevel << AstroKey("RA") << s.RA
       << AstroKey("Dec") << s.Dec << EndLevel << AstroKey("Nothing") << NewLevel << EndLevel
       << AstroKey("Zenith Offset") << s.Offset << AstroKey("Arc") << s.Arc << AstroKey("Odd")
       << s.Odd << AstroKey("Labels") << s.Labels << AstroKey("Grid Color") << s.Color
       << AstroKey("Label Font") << *s.Font << EndLevel;
}

MapState Restore(StateContainer& sc)
{
    MapState s;
    TFont* font = nullptr;
    sc >> AstroKey("Center") >> GoToLevel >> AstroKey("RA") >> s.RA >> AstroKey("Dec") >> s.Dec >>
        EndLevel >> AstroKey("Zenith Offset") >> s.Offset >> AstroKey("Arc") >> s.Arc >>
        AstroKey("Odd") >> s.Odd >> AstroKey("Labels") >> s.Labels >> AstroKey("Grid Color") >>
        s.Color >> AstroKey("Label Font") >> font;
    s.Font.reset(font);
    return s;
}

std::string Text(const MapState& s)
{
    CmdLineStateContainer sc;
    Save(sc, s);
    return sc.GetCmdLine().GetRawText();
}

} // namespace

TEST(StateContainer, AStateSavedToEitherContainerRestoresToTheSameText)
{
    auto font = std::make_unique<TFont>("Times New Roman", -16, 0, 0, 0, FW_BOLD);
    const MapState map = {
        10.5,           -20, 123.456789, "+ 12 30 15.5", "a<b> \"c\\d\"", true, TColor(255, 128, 0),
        std::move(font)};
    // A level is one bracketed value; an empty level leaves no trace.
    const std::string text = Text(map);
    EXPECT_EQ(text, "Center=<RA=10.5 Dec=-20> Zenith_Offset=123.457 Arc=\"+ 12 30 15.5\" "
                    "Odd=\"a<b> \\\"c\\\\d\\\"\" Labels=1 Grid_Color=<R=255 G=128 B=0> "
                    "Label_Font=<Face_Name=\"Times New Roman\" Height=-16>");
    CmdLineStateContainer fromText{HostCmdLine(text)};
    EXPECT_EQ(Text(Restore(fromText)), text);

    const ScopedHome home;
    RegistryStateContainer toRegistry("SOFTWARE\\Orbiscope"), fromRegistry("SOFTWARE\\Orbiscope");
    Save(toRegistry, map);
    EXPECT_EQ(Text(Restore(fromRegistry)), text);
    CloseRegistryStore();

    // Keys that are not there read as zero, black and a font without a face; colours from
    // text written elsewhere are held to a byte.
    CmdLineStateContainer other(HostCmdLine("Grid_Color=<R=300 G=-5 B=17>"));
    EXPECT_EQ(Text(Restore(other)), "Center=<RA=0 Dec=0> Zenith_Offset=0 Arc=\"\" Odd=\"\" "
                                    "Labels=0 Grid_Color=<R=255 G=0 B=17> "
                                    "Label_Font=<Face_Name=\"\" Height=0>");
}
