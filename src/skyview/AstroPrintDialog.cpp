#include "skyview/AstroPrintDialog.h"

#include "host/HostFrameAPI.h"
#include "host/HostStringTable.h"
#include "host/HostWindowStrings.h"
#include "platform/DialogTemplate.h"
#include "platform/WindowCalls.h"
#include "shell/StarDisplayDialog.h"

namespace {

constexpr short kStringTable = 5;
constexpr short kTitleString = 0x0B54;
constexpr const char* kHelpKey = "Print Star Chart";

// The dialog's resource: the preview's place on the left, in dialog units, and the buttons
// in a column on the right.
DialogTemplate PrintChartTemplate()
{
    DialogTemplate t;
    t.Title = "STID_ASTRO_DLG_PRINT_TITLE";
    t.Cx = 361;
    t.Cy = 223;
    const int column = 258;
    const int width = 96;
    DialogItemTemplate placeholder =
        DialogItemTemplate::Label("", AstroPrintDialog::kPreviewId, 7, 7, 241, 185);
    placeholder.Style = WS_CHILD | WS_VISIBLE | SS_BLACKFRAME;
    t.Items = {
        placeholder,
        DialogItemTemplate::PushButton("@STID_MENU_PRINT", AstroPrintDialog::kPrintId, column, 7,
                                       width, 14, true),
        DialogItemTemplate::PushButton("@STID_BTN_CANCEL", AstroPrintDialog::kCloseId, column, 25,
                                       width, 14),
        DialogItemTemplate::PushButton("STID_ASTRO_BTN_MODIFY_STARS",
                                       AstroPrintDialog::kModifyStarsId, column, 43, width, 14),
        DialogItemTemplate::PushButton("@STID_BTN_HELP", AstroPrintDialog::kHelpId, column, 202,
                                       width, 14),
    };
    return t;
}

// The template joins the module's resources once.
const TResId& PrintChartResource()
{
    static const TResId id = [] {
        AddDialogResource(TResId(AstroPrintDialog::kResourceId), PrintChartTemplate());
        return TResId(AstroPrintDialog::kResourceId);
    }();
    return id;
}

} // namespace

AstroPrintDialog::AstroPrintDialog(TWindow* parent, MapWindow* map)
    : HostCenterDialog(parent, PrintChartResource()), Preview(this, map)
{}

const TResponseRow* AstroPrintDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        CmRow<kPrintId, &AstroPrintDialog::CmPrint>(),
        CmRow<kModifyStarsId, &AstroPrintDialog::CmModifyStars>(),
        CmRow<kHelpId, &AstroPrintDialog::CmHelp>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : HostCenterDialog::Find(event);
}

void AstroPrintDialog::SetupWindow()
{
    HostCenterDialog::SetupWindow();
    SetCaption(getHostString(kStringTable, kTitleString));
    if (HasPrinter()) {
        if (TWindow* placeholder = GetControl(kPreviewId)) {
            const TRect place = placeholder->GetRect();
            const TSize size = Preview.GetPreviewSize(place.Size());
            const TPoint corner(place.left + (place.Width() - size.cx) / 2,
                                place.top + (place.Height() - size.cy) / 2);
            Preview.MoveWindow(TRect(corner, size));
            placeholder->Show(SW_HIDE);
            Preview.Show(SW_SHOW);
        }
    }
    replaceHostChildWindowStrings(kStringTable, HWindow);
}

void AstroPrintDialog::CmPrint()
{
    SetCursor(nullptr, TResId(IDC_WAIT));
    Preview.Print();
    SetCursor(nullptr, TResId(IDC_ARROW));
}

void AstroPrintDialog::CmModifyStars()
{
    StarDisplayDialog dialog(this, Preview.GetDisplayParameters());
    if (dialog.Execute() == IDOK) {
        Preview.SetStarDisplayParameters(dialog.GetStarDisplayParameters());
        Preview.Invalidate();
    }
}

void AstroPrintDialog::CmHelp()
{
    HostFrameAPI* frame = getHostFrameAPI();
    const std::string file = frame ? frame->GetHelpFile() : std::string();
    WinHelpA(HWindow, file.c_str(), HELP_KEY, reinterpret_cast<UINT_PTR>(kHelpKey));
}
