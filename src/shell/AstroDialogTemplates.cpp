#include "shell/AstroDialogTemplates.h"

namespace {

using Item = DialogItemTemplate;

// Every template's frame: the platform's sans-serif dialog font at 8 points.
DialogTemplate Frame(const char* title, int width, int height)
{
    DialogTemplate t;
    t.Title = title;
    t.Cx = width;
    t.Cy = height;
    t.FontName = "MS Sans Serif";
    t.PointSize = 8;
    return t;
}

// OK, Cancel and Help stacked at the right edge, from the top.
void AddButtonColumn(DialogTemplate& t, const char* okText = "@STID_BTN_OK")
{
    int x = t.Cx - 57;
    t.Items.push_back(Item::PushButton(okText, IDOK, x, 7, 50, 14, true));
    t.Items.push_back(Item::PushButton("@STID_BTN_CANCEL", IDCANCEL, x, 25, 50, 14));
    t.Items.push_back(
        Item::PushButton("@STID_BTN_HELP", AstroDialogTemplates::kHelpId, x, 43, 50, 14));
}

// A label with its field below it.
void AddLabelledEdit(DialogTemplate& t, const char* label, int id, int x, int y, int width)
{
    t.Items.push_back(Item::Label(label, -1, x, y, width + 10, 8));
    t.Items.push_back(Item::Edit(id, x, y + 10, width, 14));
}

// A label with its field to the right of it, in one row.
void AddEditRow(DialogTemplate& t, const char* label, int id, int x, int y, int labelWidth,
                int width)
{
    t.Items.push_back(Item::Label(label, -1, x, y + 3, labelWidth, 8));
    t.Items.push_back(Item::Edit(id, x + labelWidth + 4, y, width, 14));
}

} // namespace

DialogTemplate AstroDialogTemplates::Time()
{
    DialogTemplate t = Frame("STID_ASTRO_TITLE_DATE_TIME", 331, 163);
    t.Items.push_back(Item::Label("STID_ASTRO_LABEL_MONTH", -1, 7, 7, 80, 8));
    t.Items.push_back(Item::ComboBox(0xd0, 7, 17, 80, 150));
    AddLabelledEdit(t, "STID_ASTRO_LABEL_DAY", 0xc9, 94, 7, 30);
    AddLabelledEdit(t, "STID_ASTRO_LABEL_YEAR", 0xcf, 131, 7, 40);
    t.Items.push_back(Item::ComboBox(0xd7, 178, 17, 45, 50));
    AddLabelledEdit(t, "STID_ASTRO_LABEL_HOUR", 0xca, 7, 42, 30);
    AddLabelledEdit(t, "STID_ASTRO_LABEL_MINUTE", 0xce, 44, 42, 30);
    AddLabelledEdit(t, "STID_ASTRO_LABEL_SECOND", 0xcb, 81, 42, 40);
    t.Items.push_back(Item::RadioButton("STID_ASTRO_RBTN_AM", 0xd1, 131, 50, 40, 10, true));
    t.Items.push_back(Item::RadioButton("STID_ASTRO_RBTN_PM", 0xd2, 131, 62, 40, 10));
    Item now = Item::PushButton("STID_ASTRO_BTN_NOW", 0xd4, 178, 52, 45, 14);
    now.Style |= WS_GROUP;
    t.Items.push_back(now);
    t.Items.push_back(Item::Label("STID_ASTRO_LABEL_TZONE", -1, 7, 86, 60, 8));
    t.Items.push_back(Item::Label("", 0xd6, 70, 86, 200, 8, SS_LEFTNOWORDWRAP));
    t.Items.push_back(Item::PushButton("STID_ASTRO_BTN_MODIFY_TZONE", 0xd5, 7, 100, 100, 14));
    t.Items.push_back(Item::CheckBox("STID_ASTRO_CKBX_DAYLT_SAVE", 0xd8, 7, 124, 200, 10));
    AddButtonColumn(t);
    return t;
}

DialogTemplate AstroDialogTemplates::Animation()
{
    DialogTemplate t = Frame("STID_ASTRO_TITLE_TIME_LAPSE", 265, 217);
    t.Items.push_back(Item::GroupBox("STID_ASTRO_LABEL_TIME_STEP", -1, 7, 7, 180, 132));
    // The step's fields in the order of its units, years to seconds.
    const struct
    {
        const char* Label;
        int Id;
    } rows[] = {
        {"STID_ASTRO_LABEL_YEAR", 0x12d},   {"STID_ASTRO_LABEL_MONTH", 0x130},
        {"STID_ASTRO_LABEL_DAY", 0x12e},    {"STID_ASTRO_LABEL_HOUR", 0x12f},
        {"STID_ASTRO_LABEL_MINUTE", 0x132}, {"STID_ASTRO_LABEL_SECOND", 0x131},
    };
    int y = 20;
    for (const auto& row : rows) {
        AddEditRow(t, row.Label, row.Id, 17, y, 80, 50);
        y += 19;
    }
    AddEditRow(t, "STID_ASTRO_LABEL_SECSPERSTEP", 0x133, 7, 150, 110, 50);
    t.Items.push_back(Item::PushButton("STID_ASTRO_BTN_START_LAPSE", 0x134, 7, 190, 60, 14));
    AddButtonColumn(t);
    return t;
}

DialogTemplate AstroDialogTemplates::Grid()
{
    DialogTemplate t = Frame("STID_ASTRO_TITLE_RA_DEC", 172, 209);
    t.Items.push_back(Item::CheckBox("STID_ASTRO_CKBX_SHOW_GRID", 0x199, 7, 7, 150, 10));
    t.Items.push_back(Item::GroupBox("STID_ASTRO_HEADING_RA_LINES", -1, 7, 24, 158, 62));
    t.Items.push_back(Item::RadioButton("STID_ASTRO_RBTN_HRSPERLINE", 0x195, 15, 39, 90, 10, true));
    t.Items.push_back(Item::Edit(0x197, 110, 37, 45, 14));
    t.Items.push_back(Item::RadioButton("STID_ASTRO_RBTN_LINESPERHR", 0x196, 15, 61, 90, 10));
    t.Items.push_back(Item::Edit(0x198, 110, 59, 45, 14));
    Item dec = Item::GroupBox("STID_ASTRO_HEADING_DEC_LINES", -1, 7, 96, 158, 40);
    dec.Style |= WS_GROUP; // ends the group of the two radio buttons
    t.Items.push_back(dec);
    t.Items.push_back(Item::Label("STID_ASTRO_LABEL_DEGPERLINE", -1, 15, 113, 90, 8));
    t.Items.push_back(Item::Edit(0x194, 110, 110, 45, 14));
    t.Items.push_back(Item::PushButton("@STID_BTN_OK", IDOK, 7, 188, 50, 14, true));
    t.Items.push_back(Item::PushButton("@STID_BTN_CANCEL", IDCANCEL, 61, 188, 50, 14));
    t.Items.push_back(Item::PushButton("@STID_BTN_HELP", kHelpId, 115, 188, 50, 14));
    return t;
}

DialogTemplate AstroDialogTemplates::ObjectList()
{
    DialogTemplate t = Frame("STID_ASTRO_TITLE_LOCATE_OBJ", 274, 215);
    t.Items.push_back(Item::Label("STID_ASTRO_LABEL_OBJ_TYPE", -1, 7, 7, 150, 8));
    t.Items.push_back(Item::ComboBox(0x65, 7, 17, 150, 100));
    t.Items.push_back(Item::ListBox(0x66, 7, 36, 200, 172, WS_VSCROLL));
    AddButtonColumn(t, "STID_ASTRO_BTN_LOCATE");
    return t;
}

DialogTemplate AstroDialogTemplates::ObjectInfo()
{
    DialogTemplate t = Frame("STID_ASTRO_OBJECT_INFO_TITLE", 267, 175);
    // Label and value of each line: the value's id is the label's plus one.
    const struct
    {
        const char* Label;
        int Id;
    } rows[] = {
        {"STID_ASTRO_OBJECT_INFO_NAME", 0x65},  {"STID_ASTRO_OBJECT_INFO_TYPE", 0x67},
        {"STID_ASTRO_OBJECT_INFO_RA", 0x69},    {"STID_ASTRO_OBJECT_INFO_DEC", 0x6b},
        {"STID_ASTRO_OBJECT_VISUAL_MAG", 0x6d}, {"STID_ASTRO_OBJECT_DISTANCE", 0x70},
    };
    int y = 9;
    for (const auto& row : rows) {
        t.Items.push_back(Item::Label(row.Label, row.Id, 7, y, 80, 8));
        t.Items.push_back(Item::Label("", row.Id + 1, 92, y, 168, 8, SS_LEFTNOWORDWRAP));
        y += 16;
    }
    t.Items.push_back(Item::PushButton("STID_ASTRO_OBJECT_ARTICLE", 0x6f, 7, 154, 90, 14));
    t.Items.push_back(Item::PushButton("@STID_BTN_OK", IDOK, 156, 154, 50, 14, true));
    t.Items.push_back(Item::PushButton("@STID_BTN_HELP", kHelpId, 210, 154, 50, 14));
    return t;
}

// Degrees, minutes and seconds fields with their marks, and the hemisphere list after them.
static void AddArcFields(DialogTemplate& t, int firstId, int hemisphereId, int x, int y)
{
    const char* const marks[] = {"\xB0", "'", "\""};
    for (int i = 0; i < 3; ++i) {
        t.Items.push_back(Item::Edit(firstId + i, x + i * 34, y, 24, 14));
        t.Items.push_back(Item::Label(marks[i], -1, x + i * 34 + 26, y + 2, 6, 8));
    }
    t.Items.push_back(Item::ComboBox(hemisphereId, x + 104, y, 30, 50));
}

DialogTemplate AstroDialogTemplates::Location()
{
    DialogTemplate t = Frame("STID_ASTRO_TITLE_VIEW_LOC", 350, 266);
    t.Items.push_back(Item::Label("STID_ASTRO_LOCATION_INTRO", -1, 7, 7, 270, 16));
    t.Items.push_back(Item::Label("STID_ASTRO_LABEL_ENTER_CITY", -1, 7, 28, 200, 8));
    t.Items.push_back(Item::Edit(0x65, 7, 38, 200, 14));
    t.Items.push_back(Item::Label("STID_ASTRO_EDBX_CLICKONCITY", -1, 7, 58, 200, 8));
    t.Items.push_back(Item::ListBox(0x66, 7, 68, 200, 110, LBS_SORT));
    t.Items.push_back(Item::GroupBox("STID_ASTRO_HEADING_LATITUDE", -1, 7, 184, 150, 34));
    AddArcFields(t, 0x67, 0x6a, 14, 198);
    t.Items.push_back(Item::GroupBox("STID_ASTRO_HEADING_LONG", -1, 163, 184, 150, 34));
    AddArcFields(t, 0x6b, 0x6e, 170, 198);
    t.Items.push_back(Item::Label("STID_ASTRO_LABEL_TZONE", -1, 7, 229, 60, 8));
    t.Items.push_back(Item::ComboBox(0x6f, 70, 227, 243, 120, CBS_DROPDOWNLIST | CBS_SORT));
    t.Items.push_back(Item::CheckBox("STID_ASTRO_CKBX_AUTO_TIME", 0x70, 7, 249, 300, 10));
    AddButtonColumn(t);
    return t;
}

DialogTemplate AstroDialogTemplates::StopAnimation()
{
    DialogTemplate t = Frame("STID_ASTRO_DLG_TITLE_ANIMATION", 163, 56);
    t.Items.push_back(Item::Label("STID_ASTRO_DLG_DOING_ANIM", -1, 7, 10, 149, 8, SS_CENTER));
    t.Items.push_back(Item::PushButton("STID_ASTRO_DLB_BTN_STOP", IDOK, 56, 32, 50, 14, true));
    return t;
}

// The star display dialogs.

// A placeholder of a star sample: a black frame whose place the sample window takes.
static DialogItemTemplate SamplePlace(int id, int x, int y)
{
    Item place = Item::Label("", id, x, y, 37, 25);
    place.Style = WS_CHILD | WS_VISIBLE | SS_BLACKFRAME;
    return place;
}

DialogTemplate AstroDialogTemplates::StarDisplay()
{
    DialogTemplate t = Frame("STID_STAR_TITLE_STAR_DISPLAY", 321, 207);
    t.Items.push_back(Item::Label("STID_STAR_LABEL_MAGNITUDE", -1, 7, 10, 150, 8));
    t.Items.push_back(Item::Edit(0x6e, 160, 7, 40, 14));
    t.Items.push_back(Item::Label("STID_STAR_LABEL_SHAPE", -1, 7, 30, 150, 8));
    t.Items.push_back(Item::ListBox(0x6a, 160, 27, 60, 26));
    t.Items.push_back(Item::CheckBox("STID_STAR_CKBX_DISPLAY_LABELS", 0x69, 7, 62, 200, 10));
    t.Items.push_back(Item::Label("STID_STAR_LABEL_LABEL", 0x76, 19, 80, 138, 8));
    t.Items.push_back(Item::Edit(0x6c, 160, 77, 40, 14));
    t.Items.push_back(Item::PushButton("STID_STAR_BTN_MODIFY_SIZES", 0x74, 7, 100, 70, 14));
    t.Items.push_back(Item::PushButton("STID_STAR_BTN_MODIFY_INTENSITY", 0x75, 83, 100, 70, 14));
    // The row of samples: the magnitudes above, the stars below.
    t.Items.push_back(Item::Label("STID_STAR_LABEL_STAROFMAGNITUDE", -1, 7, 128, 80, 8));
    t.Items.push_back(Item::Label("STID_STAR_LABEL_WILLLOOKLIKE", -1, 7, 148, 80, 8));
    for (int i = 0; i < 4; ++i) {
        const int x = 92 + i * 42;
        t.Items.push_back(Item::Label("", 0x77 + i, x, 128, 37, 8, SS_CENTER));
        t.Items.push_back(SamplePlace(0x70 + i, x, 140));
    }
    t.Items.push_back(Item::PushButton("@STID_BTN_DEFAULT_SETTINGS", 0x6f, 7, 186, 80, 14));
    AddButtonColumn(t);
    return t;
}

// The two rows of a range dialog: for the dimmer stars and for the brighter ones, each with
// its magnitude, its sample and its slider; OK and Cancel below.
static DialogTemplate StarRange(const char* title, int width, int height, const char* sameText,
                                const char* sliderText)
{
    DialogTemplate t = Frame(title, width, height);
    const struct
    {
        const char* Label;
        int Magnitude;
        int Sample;
        int Slider;
    } rows[] = {
        {"STID_STAR_EDBX_DIMMERTHANMAG", 0x66, 100, 0x65},
        {"STID_STAR_EDBX_BRIGHTERTHANMAG", 0x69, 0x67, 0x68},
    };
    const int rowHeight = (height - 30) / 2;
    int y = 7;
    for (const auto& row : rows) {
        t.Items.push_back(Item::Label(row.Label, -1, 7, y, 100, 8));
        t.Items.push_back(Item::Edit(row.Magnitude, 7, y + 10, 40, 14));
        t.Items.push_back(Item::Label(sameText, -1, 7, y + 30, 100, 18));
        t.Items.push_back(SamplePlace(row.Sample, width - 105, y + 12));
        t.Items.push_back(Item::Label(sliderText, -1, width - 67, y, 60, 8, SS_CENTER));
        t.Items.push_back(Item::ScrollBar(row.Slider, width - 43, y + 10, 11, rowHeight - 22));
        y += rowHeight;
    }
    t.Items.push_back(
        Item::PushButton("@STID_BTN_OK", IDOK, width - 111, height - 21, 50, 14, true));
    t.Items.push_back(
        Item::PushButton("@STID_BTN_CANCEL", IDCANCEL, width - 57, height - 21, 50, 14));
    return t;
}

DialogTemplate AstroDialogTemplates::StarSizeRange()
{
    return StarRange("STID_STAR_TITLE_SIZE_SETTINGS", 220, 170, "STID_STAR_EDBX_WILLBESAMESIZE",
                     "STID_STAR_SB_SIZE");
}

DialogTemplate AstroDialogTemplates::StarIntensityRange()
{
    return StarRange("STID_STAR_TITLE_INTENSE_SETTINGS", 215, 178,
                     "STID_STAR_EDBX_WILLBESAMEINTENSE", "STID_STAR_SB_INTENSITY");
}

void AstroDialogTemplates::Register()
{
    static const bool registered = [] {
        AddDialogResource(TResId(kTime), Time());
        AddDialogResource(TResId(kAnimation), Animation());
        AddDialogResource(TResId(kGrid), Grid());
        AddDialogResource(TResId(kObjectList), ObjectList());
        AddDialogResource(TResId(kObjectInfo), ObjectInfo());
        AddDialogResource(TResId(kLocation), Location());
        AddDialogResource(TResId(kStopAnimation), StopAnimation());
        AddDialogResource(TResId(kStarDisplay), StarDisplay());
        AddDialogResource(TResId(kStarSizeRange), StarSizeRange());
        AddDialogResource(TResId(kStarIntensityRange), StarIntensityRange());
        return true;
    }();
    (void)registered;
}
