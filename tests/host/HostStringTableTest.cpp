#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "host/HostStringTable.h"
#include "host/ScopedHome.h"

namespace {

struct NumberedUse
{
    short Table;
    short Id;
    int Marks; // %s and %d marks the caller fills in
    const char* Where;
};

// Every text the planetarium asks for by number.
const NumberedUse kNumberedUses[] = {
    {1, 0x0C82, 0, "fly-out menu: full-screen entry while in full screen"},
    {5, 1000, 0, "window title, message captions, bookmark titles"},
    {5, 1110, 0, "finder list and Locate Object row: constellations"},
    {5, 1120, 0, "finder list and Locate Object row: planets"},
    {5, 1130, 0, "finder list and Locate Object row: stars"},
    {5, 1140, 0, "finder list and Locate Object row: Messier objects"},
    {5, 1150, 0, "finder list and Locate Object row: comets"},
    {5, 1210, 0, "finder name label"},
    {5, 1220, 0, "finder list type label"},
    {5, 0x051E, 0, "location: north"},
    {5, 0x0528, 0, "location: south"},
    {5, 0x0532, 0, "location: east"},
    {5, 0x053C, 0, "location: west"},
    {5, 0x0834, 0, "star display caption"},
    {5, 0x0849, 0, "star shape: rays"},
    {5, 0x084A, 0, "star shape: round"},
    {5, 0x0898, 0, "star size caption"},
    {5, 0x08FC, 0, "star intensity caption"},
    {5, 0x092D, 0, "object info caption"},
    {5, 0x0960, 0, "grid caption"},
    {5, 0x09C4, 0, "object list caption"},
    {5, 0x0A28, 0, "location caption"},
    {5, 0x0A64, 0, "time zone list: no zone"},
    {5, 0x0A8C, 0, "time caption"},
    {5, 0x0AAE, 0, "era: before Christ"},
    {5, 0x0AB0, 0, "era: anno Domini"},
    {5, 0x0AF0, 0, "animation caption"},
    {5, 0x0B18, 0, "stop animation caption"},
    {5, 0x0B54, 0, "print caption"},
    {5, 0x1004, 0, "time: year below 1"},
    {5, 0x1005, 1, "grid: too many lines, with the limit"},
    {5, 0x1006, 0, "location: latitude out of range"},
    {5, 0x1007, 0, "location: longitude out of range"},
    {5, 0x1008, 0, "location: no zone chosen"},
    {5, 0x1072, 0, "location: zone differs from the system's"},
    {5, 0x10CC, 0, "node log caption"},
    {5, 0x10D6, 0, "node log: no constellation"},
    {5, 0x1130, 0, "rising question caption"},
    {5, 0x113A, 0, "name of an object without one"},
    {5, 0x1144, 2, "rising question, with name and time"},
    {5, 0x1194, 0, "below horizon caption"},
    {5, 0x119E, 0, "show below horizon question"},
    {5, 0x11A8, 1, "never rises question, with name"},
    {5, 0x11F8, 0, "printing done"},
    {5, 0x11F9, 0, "Mercury"},
    {5, 0x11FA, 0, "Venus"},
    {5, 0x11FB, 0, "Earth"},
    {5, 0x11FC, 0, "Mars"},
    {5, 0x11FD, 0, "Jupiter"},
    {5, 0x11FE, 0, "Saturn"},
    {5, 0x11FF, 0, "Uranus"},
    {5, 0x1200, 0, "Neptune"},
    {5, 0x1201, 0, "Pluto"},
    {5, 0x1202, 0, "Moon"},
    {5, 0x1203, 0, "Sun"},
};

// Every "STID_" name in the planetarium's dialog and menu templates; "@" names read table 1.
const char* const kTemplateNames[] = {
    "@STID_BTN_OK",
    "@STID_BTN_CANCEL",
    "@STID_BTN_HELP",
    "@STID_BTN_DEFAULT_SETTINGS",
    "@STID_MENU_BOOKMARK",
    "@STID_MENU_GOTO_FULL_SCREEN",
    "@STID_MENU_PRINT",
    // menus 101, 102, 103, 105
    "STID_ASTRO_MENU_ZOOM_IN",
    "STID_ASTRO_MENU_ZOOM_OUT",
    "STID_ASTRO_MENU_DISPLAY",
    "STID_ASTRO_MENU_LOCATE",
    "STID_ASTRO_MENU_SET_LOCATION",
    "STID_ASTRO_MENU_SET_TIME",
    "STID_ASTRO_MENU_SET_LAPSE",
    "STID_ASTRO_MENU_START_LAPSE",
    "STID_ASTRO_MENU_PRINT",
    "STID_ASTRO_MENU_DUMP_TIME_ZONE_NAMES",
    "STID_ASTRO_MENU_CONSTELLATIONS",
    "STID_ASTRO_MENU_PLANET_LABELS",
    "STID_ASTRO_MENU_STARS_ETC",
    "STID_ASTRO_MENU_COMETS",
    "STID_ASTRO_MENU_MESSIER_OBJS",
    "STID_ASTRO_MENU_RADEC_LINES",
    "STID_ASTRO_MENU_BELOW_HORZ",
    "STID_ASTRO_MENU_LOC_CONTROLS",
    "STID_ASTRO_MENU_CONST_ETC",
    "STID_ASTRO_MENU_PLANETS_ETC",
    "STID_ASTRO_MENU_COMETS_ETC",
    "STID_ASTRO_MENU_MESSIERS_ETC",
    "STID_ASTRO_MENU_SUN",
    "STID_ASTRO_MENU_MOON",
    "STID_ASTRO_MENU_LABELS",
    "STID_ASTRO_MENU_FIGURES",
    "STID_ASTRO_MENU_BOUNDS",
    // time dialog
    "STID_ASTRO_TITLE_DATE_TIME",
    "STID_ASTRO_BTN_NOW",
    "STID_ASTRO_RBTN_AM",
    "STID_ASTRO_RBTN_PM",
    "STID_ASTRO_BTN_MODIFY_TZONE",
    "STID_ASTRO_CKBX_DAYLT_SAVE",
    "STID_ASTRO_LABEL_MONTH",
    "STID_ASTRO_LABEL_DAY",
    "STID_ASTRO_LABEL_YEAR",
    "STID_ASTRO_LABEL_HOUR",
    "STID_ASTRO_LABEL_MINUTE",
    "STID_ASTRO_LABEL_SECOND",
    "STID_ASTRO_LABEL_TZONE",
    // animation and stop dialogs
    "STID_ASTRO_TITLE_TIME_LAPSE",
    "STID_ASTRO_BTN_START_LAPSE",
    "STID_ASTRO_LABEL_TIME_STEP",
    "STID_ASTRO_LABEL_SECSPERSTEP",
    "STID_ASTRO_DLG_TITLE_ANIMATION",
    "STID_ASTRO_DLB_BTN_STOP",
    "STID_ASTRO_DLG_DOING_ANIM",
    // grid dialog
    "STID_ASTRO_TITLE_RA_DEC",
    "STID_ASTRO_RBTN_LINESPERHR",
    "STID_ASTRO_RBTN_HRSPERLINE",
    "STID_ASTRO_CKBX_SHOW_GRID",
    "STID_ASTRO_HEADING_RA_LINES",
    "STID_ASTRO_HEADING_DEC_LINES",
    "STID_ASTRO_LABEL_DEGPERLINE",
    // object list and object info dialogs
    "STID_ASTRO_TITLE_LOCATE_OBJ",
    "STID_ASTRO_BTN_LOCATE",
    "STID_ASTRO_LABEL_OBJ_TYPE",
    "STID_ASTRO_OBJECT_INFO_TITLE",
    "STID_ASTRO_OBJECT_INFO_NAME",
    "STID_ASTRO_OBJECT_INFO_TYPE",
    "STID_ASTRO_OBJECT_INFO_RA",
    "STID_ASTRO_OBJECT_INFO_DEC",
    "STID_ASTRO_OBJECT_VISUAL_MAG",
    "STID_ASTRO_OBJECT_DISTANCE",
    "STID_ASTRO_OBJECT_ARTICLE",
    // print dialog
    "STID_ASTRO_DLG_PRINT_TITLE",
    "STID_ASTRO_BTN_MODIFY_STARS",
    // location dialog
    "STID_ASTRO_TITLE_VIEW_LOC",
    "STID_ASTRO_LOCATION_INTRO",
    "STID_ASTRO_LABEL_ENTER_CITY",
    "STID_ASTRO_EDBX_CLICKONCITY",
    "STID_ASTRO_HEADING_LATITUDE",
    "STID_ASTRO_HEADING_LONG",
    "STID_ASTRO_CKBX_AUTO_TIME",
    // star display dialogs
    "STID_STAR_TITLE_STAR_DISPLAY",
    "STID_STAR_LABEL_MAGNITUDE",
    "STID_STAR_LABEL_SHAPE",
    "STID_STAR_LABEL_STAROFMAGNITUDE",
    "STID_STAR_LABEL_WILLLOOKLIKE",
    "STID_STAR_LABEL_LABEL",
    "STID_STAR_CKBX_DISPLAY_LABELS",
    "STID_STAR_BTN_MODIFY_SIZES",
    "STID_STAR_BTN_MODIFY_INTENSITY",
    "STID_STAR_TITLE_SIZE_SETTINGS",
    "STID_STAR_TITLE_INTENSE_SETTINGS",
    "STID_STAR_EDBX_DIMMERTHANMAG",
    "STID_STAR_EDBX_BRIGHTERTHANMAG",
    "STID_STAR_EDBX_WILLBESAMESIZE",
    "STID_STAR_EDBX_WILLBESAMEINTENSE",
    "STID_STAR_SB_SIZE",
    "STID_STAR_SB_INTENSITY",
};

int CountMarks(const std::string& text)
{
    int marks = 0;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == '%') {
            if (text[i + 1] == 's' || text[i + 1] == 'd') {
                ++marks;
            }
            ++i;
        }
    }
    return marks;
}

} // namespace

TEST(HostStrings, ShippedFileReadsWithoutProblems)
{
    HostStringTable table;
    ASSERT_TRUE(table.Load("ed:\\strings.txt"));
    EXPECT_TRUE(table.GetProblems().empty())
        << (table.GetProblems().empty() ? "" : table.GetProblems().front());
    EXPECT_EQ(table.GetCount(), std::size(kNumberedUses) + std::size(kTemplateNames));
}

TEST(HostStrings, EveryNumberedTextExistsWithItsMarks)
{
    for (const NumberedUse& use : kNumberedUses) {
        std::string text = getHostString(use.Table, use.Id);
        EXPECT_FALSE(text.empty()) << use.Where;
        EXPECT_EQ(CountMarks(text), use.Marks) << use.Where << ": " << text;
    }
}

TEST(HostStrings, EveryTemplateNameHasWords)
{
    for (const char* name : kTemplateNames) {
        std::string words = replaceHostString(5, name);
        EXPECT_FALSE(words.empty()) << name;
        EXPECT_EQ(words.find("STID_"), std::string::npos) << name;
    }
}

TEST(HostStrings, HemisphereRowsAreTheLettersTheLocationDialogCompares)
{
    EXPECT_EQ(getHostString(5, 0x051E), "N");
    EXPECT_EQ(getHostString(5, 0x0528), "S");
    EXPECT_EQ(getHostString(5, 0x0532), "E");
    EXPECT_EQ(getHostString(5, 0x053C), "W");
}

TEST(HostStrings, BodyNamesAreTheNamesLinksReferTo)
{
    // "stringref=Planet,Mars" finds a body by the name the table gives it.
    const char* const names[] = {"Mercury", "Venus",   "Earth", "Mars", "Jupiter", "Saturn",
                                 "Uranus",  "Neptune", "Pluto", "Moon", "Sun"};
    for (short i = 0; i < 11; ++i) {
        EXPECT_EQ(getHostString(5, static_cast<short>(0x11F9 + i)), names[i]);
    }
}

TEST(HostStrings, TitleEndsInABlankSoBookmarkTitlesReadAsWords)
{
    std::string title = getHostString(5, 1000);
    ASSERT_FALSE(title.empty());
    EXPECT_EQ(title.back(), ' ');
    EXPECT_NE(title.front(), ' ');
}

TEST(HostStrings, MissingNumbersGiveEmptyText)
{
    EXPECT_EQ(getHostString(5, 0x7FFF), "");
    EXPECT_EQ(getHostString(2, 1000), "");
    EXPECT_EQ(getHostString(-1, -1), "");
}

TEST(HostStrings, TemplateTextsOutsideTheTablesStayAsTheyAre)
{
    EXPECT_EQ(replaceHostString(5, "stid_astro_btn_now"), "Now");
    EXPECT_EQ(replaceHostString(5, "@STID_BTN_OK"), "OK");
    EXPECT_EQ(replaceHostString(5, "STID_BTN_OK"), "STID_BTN_OK"); // table 5 has no such name
    EXPECT_EQ(replaceHostString(1, "STID_BTN_OK"), "OK");
    EXPECT_EQ(replaceHostString(5, "STID_NO_SUCH_NAME"), "STID_NO_SUCH_NAME");
    EXPECT_EQ(replaceHostString(5, "Plain words"), "Plain words");
    EXPECT_EQ(replaceHostString(5, "STID_"), "STID_");
    EXPECT_EQ(replaceHostString(5, "@"), "@");
    EXPECT_EQ(replaceHostString(5, ""), "");
}

TEST(HostStringTable, ReadsQuotesEscapesAndReportsBadLines)
{
    HostStringTable table;
    table.AddText("# comment\n"
                  "orphan = before any table\n"
                  "[5]\n"
                  "0x10 = \"  padded  \"\r\n"
                  "17 = one\\ntwo \\\"q\\\" back\\\\slash \\x\n"
                  "stid_lower = Lower\n"
                  "0x10 = again\n"
                  "STID_LOWER = again\n"
                  "65536 = too big\n"
                  "word = not a key\n"
                  "no equals sign\n"
                  "[x]\n"
                  "1 = lost\n"
                  "[1]\n"
                  "0x10 = host\n");
    ASSERT_NE(table.Find(5, 0x10), nullptr);
    EXPECT_EQ(*table.Find(5, 0x10), "  padded  ");
    EXPECT_EQ(*table.Find(5, 17), "one\ntwo \"q\" back\\slash \\x");
    ASSERT_NE(table.Find(5, "STID_Lower"), nullptr);
    EXPECT_EQ(*table.Find(5, "STID_LOWER"), "Lower");
    EXPECT_EQ(*table.Find(1, 0x10), "host");
    EXPECT_EQ(table.Find(1, 1), nullptr);
    EXPECT_EQ(table.GetCount(), 4u);
    // orphan, 0x10 twice, STID_LOWER twice, 65536, word, no equals, [x], 1 = lost
    EXPECT_EQ(table.GetProblems().size(), 8u);
}

TEST(HostStringTable, SharedTableFollowsTheDataDirectory)
{
    ScopedHome data;
    data.WriteFile("Strings.TXT", "[5]\n1000 = Other Sky\nSTID_ASTRO_BTN_NOW = Right Now\n");
    const char* before = std::getenv("ORBISCOPE_DATA");
    std::string saved = before ? before : "";
    ::setenv("ORBISCOPE_DATA", data.Path().c_str(), 1);
    EXPECT_EQ(getHostString(5, 1000), "Other Sky");
    EXPECT_EQ(replaceHostString(5, "STID_ASTRO_BTN_NOW"), "Right Now");
    if (before) {
        ::setenv("ORBISCOPE_DATA", saved.c_str(), 1);
    } else {
        ::unsetenv("ORBISCOPE_DATA");
    }
    EXPECT_EQ(replaceHostString(5, "STID_ASTRO_BTN_NOW"), "Now");
}

TEST(FormatHostString, FillsMarksInOrderAndNothingMore)
{
    EXPECT_EQ(formatHostString("%s rises at %s.", {"Mars", "9:15 pm"}), "Mars rises at 9:15 pm.");
    EXPECT_EQ(formatHostString("fewer than %d per hour", {"21"}), "fewer than 21 per hour");
    EXPECT_EQ(formatHostString("%s and %s", {"one"}), "one and ");
    EXPECT_EQ(formatHostString("100%% %n %x %", {"unused"}), "100% %n %x %");
    EXPECT_EQ(formatHostString("", {}), "");
}
