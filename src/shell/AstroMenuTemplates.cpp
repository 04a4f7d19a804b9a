#include "shell/AstroMenuTemplates.h"

namespace {

// The numbers are the commands of AstroNoxWindow's response table, and 7532 and 7433 the
// host's own full-screen and bookmark commands.
MenuTemplateItem Command(const char* text, UINT id)
{
    return MenuTemplateItem::Command(text, id);
}

MenuTemplateItem FlyOut(const char* text, UINT id)
{
    return MenuTemplateItem::FlyOut(text, id);
}

MenuTemplateItem Separator()
{
    return MenuTemplateItem::Separator();
}

} // namespace

MenuTemplate AstroMenuTemplates::CommandMenu()
{
    return {{
        Command("STID_ASTRO_MENU_ZOOM_IN", 25021),
        Command("STID_ASTRO_MENU_ZOOM_OUT", 25022),
        Separator(),
        Command("STID_ASTRO_MENU_SET_LOCATION", 25002),
        Command("STID_ASTRO_MENU_SET_TIME", 25003),
        Separator(),
        Command("STID_ASTRO_MENU_SET_LAPSE", 25004),
        Command("STID_ASTRO_MENU_START_LAPSE", 25005),
        Separator(),
        Command("STID_ASTRO_MENU_PRINT", 25006),
    }};
}

MenuTemplate AstroMenuTemplates::MainMenu()
{
    return {{
        Command("@STID_MENU_GOTO_FULL_SCREEN", 7532),
        Separator(),
        Command("STID_ASTRO_MENU_ZOOM_IN", 25021),
        Command("STID_ASTRO_MENU_ZOOM_OUT", 25022),
        Separator(),
        FlyOut("STID_ASTRO_MENU_DISPLAY", 25000),
        FlyOut("STID_ASTRO_MENU_LOCATE", 25001),
        Command("STID_ASTRO_MENU_SET_LOCATION", 25002),
        Command("STID_ASTRO_MENU_SET_TIME", 25003),
        Separator(),
        Command("STID_ASTRO_MENU_SET_LAPSE", 25004),
        Command("STID_ASTRO_MENU_START_LAPSE", 25005),
        Separator(),
        Command("STID_ASTRO_MENU_PRINT", 25006),
        Command("@STID_MENU_BOOKMARK", 7433),
        Command("STID_ASTRO_MENU_DUMP_TIME_ZONE_NAMES", 25032),
    }};
}

MenuTemplate AstroMenuTemplates::DisplayMenu()
{
    return {{
        FlyOut("STID_ASTRO_MENU_CONSTELLATIONS", 25009),
        Command("STID_ASTRO_MENU_PLANET_LABELS", 25010),
        Command("STID_ASTRO_MENU_STARS_ETC", 25011),
        Command("STID_ASTRO_MENU_COMETS", 25029),
        Command("STID_ASTRO_MENU_MESSIER_OBJS", 25013),
        Separator(),
        Command("STID_ASTRO_MENU_RADEC_LINES", 25012),
        Command("STID_ASTRO_MENU_BELOW_HORZ", 25015),
        Command("STID_ASTRO_MENU_LOC_CONTROLS", 25014),
    }};
}

MenuTemplate AstroMenuTemplates::LocateMenu()
{
    return {{
        Command("STID_ASTRO_MENU_CONST_ETC", 25016),
        Command("STID_ASTRO_MENU_PLANETS_ETC", 25017),
        Command("STID_ASTRO_MENU_STARS_ETC", 25018),
        Command("STID_ASTRO_MENU_COMETS_ETC", 25030),
        Command("STID_ASTRO_MENU_MESSIERS_ETC", 25019),
        Command("STID_ASTRO_MENU_SUN", 25027),
        Command("STID_ASTRO_MENU_MOON", 25028),
    }};
}

MenuTemplate AstroMenuTemplates::DevelopmentMenu()
{
    return {{Command("Dump Time Zone Names", 25032)}};
}

MenuTemplate AstroMenuTemplates::ConstellationMenu()
{
    return {{
        Command("STID_ASTRO_MENU_LABELS", 25025),
        Command("STID_ASTRO_MENU_FIGURES", 25024),
        Command("STID_ASTRO_MENU_BOUNDS", 25026),
    }};
}

void AstroMenuTemplates::Register()
{
    static const bool registered = [] {
        AddMenuResource(TResId(kCommandMenu), CommandMenu());
        AddMenuResource(TResId(kMainMenu), MainMenu());
        AddMenuResource(TResId(kDisplayMenu), DisplayMenu());
        AddMenuResource(TResId(kLocateMenu), LocateMenu());
        AddMenuResource(TResId(kDevelopmentMenu), DevelopmentMenu());
        AddMenuResource(TResId(kConstellationMenu), ConstellationMenu());
        return true;
    }();
    (void)registered;
}
