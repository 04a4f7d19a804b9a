#include "platform/TDialog.h"

#include <algorithm>

#include "platform/ControlLook.h"
#include "platform/DebugStream.h"
#include "platform/TButton.h"
#include "platform/TCheckBox.h"
#include "platform/TComboBox.h"
#include "platform/TEdit.h"
#include "platform/TGroupBox.h"
#include "platform/TListBox.h"
#include "platform/TRadioButton.h"
#include "platform/TScrollBar.h"
#include "platform/TStatic.h"
#include "platform/WindowCalls.h"
#include "platform/WindowSystem.h"

#include "catalogues/LorvString.h"

namespace {

DWORD DialogStyle(DWORD templateStyle)
{
    // A dialog is a popup window shown once it is set up.
    return (templateStyle | WS_POPUP) & ~(WS_CHILD | WS_VISIBLE);
}

bool IsPushButton(const TWindow& w)
{
    auto* button = dynamic_cast<const TButton*>(&w);
    if (!button) {
        return false;
    }
    DWORD type = w.GetStyle() & BS_TYPEMASK;
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
}

} // namespace

TDialog::TDialog(TWindow* parent, const TResId& resId, TModule* module)
    : TWindow(parent, nullptr, module), ResId(resId)
{
    Attr.Style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
    SetBkgndColor(TColor(ControlLook::GetColor(COLOR_BTNFACE)));
}

TDialog::TDialog(TWindow* parent, const DialogTemplate& dialogTemplate, TModule* module)
    : TWindow(parent, nullptr, module), ResId(0), OwnTemplate(dialogTemplate),
      pTemplate(&OwnTemplate)
{
    Attr.Style = DialogStyle(dialogTemplate.Style);
    SetBkgndColor(TColor(ControlLook::GetColor(COLOR_BTNFACE)));
}

TDialog::TDialog(TWindow* parent, const char* title, TModule* module)
    : TWindow(parent, title, module), ResId(0)
{
    Attr.Style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
    Attr.X = CW_USEDEFAULT;
    Attr.Y = CW_USEDEFAULT;
    SetBkgndColor(TColor(ControlLook::GetColor(COLOR_BTNFACE)));
}

TDialog::~TDialog()
{
    Destroy(IDCANCEL);
}

void TDialog::Configure(TWindow& control, const DialogItemTemplate& item)
{
    DialogBaseUnits units = DialogBaseUnits::Of(GetWindowFont());
    TRect r = units.ToPixels(item.X, item.Y, item.Cx, item.Cy);
    control.Attr.X = r.left;
    control.Attr.Y = r.top;
    control.Attr.W = r.Width();
    control.Attr.H = r.Height();
    control.Attr.Style = item.Style | WS_CHILD;
    control.Attr.Id = item.Id;
    control.SetCaption(item.Text);
    control.SetWindowFont(GetWindowFont(), false);
}

TWindow* TDialog::MakeControl(const DialogItemTemplate& item)
{
    const std::string& name = item.ClassName;
    if (EqualNoCase(name, "BUTTON")) {
        switch (item.Style & BS_TYPEMASK) {
        case BS_GROUPBOX:
            return new TGroupBox(this, item.Id);
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
        case BS_3STATE:
        case BS_AUTO3STATE:
            return new TCheckBox(this, item.Id);
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return new TRadioButton(this, item.Id);
        default:
            return new TButton(this, item.Id);
        }
    }
    if (EqualNoCase(name, "EDIT")) {
        return new TEdit(this, item.Id);
    }
    if (EqualNoCase(name, "STATIC")) {
        return new TStatic(this, item.Id);
    }
    if (EqualNoCase(name, "LISTBOX")) {
        return new TListBox(this, item.Id);
    }
    if (EqualNoCase(name, "COMBOBOX")) {
        return new TComboBox(this, item.Id);
    }
    if (EqualNoCase(name, "SCROLLBAR")) {
        return new TScrollBar(this, item.Id);
    }
    dbstream << "TDialog: no control class \"" << name << "\"; a label stands in" << dbendl;
    return new TStatic(this, item.Id);
}

void TDialog::BuildControls()
{
    for (TWindow* made : aMadeControls) {
        delete made;
    }
    aMadeControls.clear();
    if (!pTemplate) {
        return;
    }
    SetWindowFont(pTemplate->MakeFont(), false);
    DialogBaseUnits units = DialogBaseUnits::Of(GetWindowFont());
    Attr.Style = DialogStyle(pTemplate->Style);
    Attr.W = units.ToPixelsX(pTemplate->Cx);
    Attr.H = units.ToPixelsY(pTemplate->Cy);
    if (pTemplate->Style & DS_CENTER || (pTemplate->X == 0 && pTemplate->Y == 0)) {
        Attr.X = CW_USEDEFAULT;
        Attr.Y = CW_USEDEFAULT;
    } else {
        Attr.X = units.ToPixelsX(pTemplate->X);
        Attr.Y = units.ToPixelsY(pTemplate->Y);
    }
    SetCaption(pTemplate->Title);

    // The order of the children is the template's, which is the order of tabbing.
    std::vector<TWindow*> ordered;
    for (const DialogItemTemplate& item : pTemplate->Items) {
        TWindow* control = nullptr;
        for (TWindow* child : GetChildren()) {
            auto* c = dynamic_cast<TControl*>(child);
            if (c && c->IsFromResource() && c->GetId() == item.Id && item.Id != -1 &&
                std::find(ordered.begin(), ordered.end(), child) == ordered.end()) {
                control = child;
                break;
            }
        }
        if (!control) {
            control = MakeControl(item);
            aMadeControls.push_back(control);
        }
        Configure(*control, item);
        ordered.push_back(control);
    }
    // Children the template does not name (windows the class made itself) come after.
    for (TWindow* child : GetChildren()) {
        if (std::find(ordered.begin(), ordered.end(), child) == ordered.end()) {
            ordered.push_back(child);
        }
    }
    ReorderChildren(ordered);
}

bool TDialog::Create()
{
    if (HWindow) {
        return true;
    }
    if (!pTemplate && ResId.GetName() != "#0") {
        pTemplate = FindDialogResource(ResId);
        if (!pTemplate) {
            dbstream << "TDialog: no dialog template " << ResId.GetName() << dbendl;
            return false;
        }
    }
    BuildControls();
    Attr.Style &= ~WS_VISIBLE;
    if (!TWindow::Create()) {
        return false;
    }
    Show(SW_SHOW);
    WindowSystem& system = WindowSystem::Get();
    TWindow* focus = system.FindWindow(system.GetFocus());
    if (!focus || focus == this || focus->GetTopLevelWindow() != this) {
        std::vector<TWindow*> stops = TabStops();
        if (!stops.empty()) {
            stops.front()->SetFocus();
            if (dynamic_cast<TEdit*>(stops.front())) {
                stops.front()->SendMessage(EM_SETSEL, 0, -1);
            }
        }
    }
    return true;
}

int TDialog::Execute()
{
    bModal = true;
    if (!Create()) {
        bModal = false;
        return -1;
    }
    int result = WindowSystem::Get().RunModal(*this);
    bModal = false;
    Destroy(result);
    return result;
}

void TDialog::EndDialog(int result)
{
    if (bModal && WindowSystem::Get().IsInModalLoop(*this)) {
        WindowSystem::Get().EndModal(*this, result);
        // The modal loop sees the end and Execute takes the window away.
        Show(SW_HIDE);
    } else {
        Destroy(result);
    }
}

void TDialog::CloseWindow(int returnValue)
{
    if (CanClose()) {
        EndDialog(returnValue);
    }
}

void TDialog::CmOk()
{
    CloseWindow(IDOK);
}

void TDialog::CmCancel()
{
    EndDialog(IDCANCEL);
}

const TResponseRow* TDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        CmRow<IDOK, &TDialog::CmOk>(),
        CmRow<IDCANCEL, &TDialog::CmCancel>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}

LRESULT TDialog::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    if (msg == WM_CLOSE) {
        // Closing a dialog is cancelling it.
        SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, 0), 0);
        return 0;
    }
    return TWindow::DefWindowProc(msg, wParam, lParam);
}

// The keyboard.

std::vector<TWindow*> TDialog::TabStops() const
{
    std::vector<TWindow*> stops;
    for (TWindow* child : GetChildren()) {
        if (child->HWindow && !child->IsTopLevel() && (child->GetStyle() & WS_TABSTOP) &&
            child->IsWindowVisible() && child->IsWindowEnabled()) {
            stops.push_back(child);
        }
    }
    return stops;
}

void TDialog::MoveFocus(bool forward)
{
    std::vector<TWindow*> stops = TabStops();
    if (stops.empty()) {
        return;
    }
    WindowSystem& system = WindowSystem::Get();
    TWindow* focus = system.FindWindow(system.GetFocus());
    // The control that holds the focus, or holds the field that does.
    while (focus && focus->GetParentO() != this && !focus->IsTopLevel()) {
        focus = focus->GetParentO();
    }
    auto at = std::find(stops.begin(), stops.end(), focus);
    std::size_t index;
    if (at == stops.end()) {
        index = forward ? 0 : stops.size() - 1;
    } else {
        std::size_t i = std::size_t(at - stops.begin());
        index = forward ? (i + 1) % stops.size() : (i + stops.size() - 1) % stops.size();
    }
    TWindow* next = stops[index];
    next->SetFocus();
    if (next->SendMessage(WM_GETDLGCODE) & DLGC_HASSETSEL) {
        next->SendMessage(EM_SETSEL, 0, -1);
    }
}

TWindow* TDialog::DefaultButton() const
{
    for (TWindow* child : GetChildren()) {
        if (child->HWindow && IsPushButton(*child) &&
            (child->GetStyle() & BS_TYPEMASK) == BS_DEFPUSHBUTTON) {
            return child;
        }
    }
    return nullptr;
}

bool TDialog::PreProcessMsg(MSG& msg)
{
    if (msg.message == WM_CHAR && bSwallowChar) {
        bSwallowChar = false;
        // Only the character of the key just handled, where the backend makes one; any other
        // is what the user types next.
        if (msg.wParam == '\t' || msg.wParam == '\r' || msg.wParam == 0x1b) {
            return true;
        }
    }
    if (msg.message != WM_KEYDOWN) {
        return false;
    }
    TWindow* target = GetWindowPtr(msg.hwnd);
    UINT wants = target && target != this ? UINT(target->SendMessage(WM_GETDLGCODE)) : 0;
    if (wants & DLGC_WANTALLKEYS) {
        return false;
    }
    switch (msg.wParam) {
    case VK_TAB:
        if (wants & DLGC_WANTTAB) {
            return false;
        }
        MoveFocus(!WindowSystem::Get().IsKeyDown(VK_SHIFT));
        bSwallowChar = true;
        return true;
    case VK_RETURN: {
        bSwallowChar = true;
        if (target && IsPushButton(*target)) {
            target->SendMessage(BM_CLICK);
            return true;
        }
        TWindow* button = DefaultButton();
        if (button && button->IsWindowEnabled()) {
            button->SendMessage(BM_CLICK);
        } else if (!button) {
            SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        }
        return true;
    }
    case VK_ESCAPE:
        bSwallowChar = true;
        SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
        return true;
    case VK_F1: {
        // F1 asks for the help that the dialog's Help button gives.
        TWindow* help = ChildWithId(IDHELP);
        if (!help || !help->IsWindowEnabled()) {
            return false;
        }
        help->SendMessage(BM_CLICK);
        return true;
    }
    default:
        return false;
    }
}

// Controls by id.

HWND TDialog::GetDlgItem(int id) const
{
    TWindow* control = ChildWithId(id);
    return control ? control->HWindow : nullptr;
}

std::string TDialog::GetDlgItemText(int id) const
{
    TWindow* control = ChildWithId(id);
    return control ? control->GetWindowText() : std::string();
}

void TDialog::SetDlgItemText(int id, const std::string& text)
{
    if (TWindow* control = ChildWithId(id)) {
        control->SetWindowText(text);
    }
}

UINT TDialog::GetDlgItemInt(int id, bool* translated, bool isSigned) const
{
    BOOL ok = FALSE;
    UINT value = ::GetDlgItemInt(HWindow, id, &ok, isSigned);
    if (translated) {
        *translated = ok != FALSE;
    }
    return value;
}

void TDialog::SetDlgItemInt(int id, UINT value, bool isSigned)
{
    SetDlgItemText(id, isSigned ? std::to_string(int(value)) : std::to_string(value));
}

void TDialog::CheckDlgButton(int id, UINT check)
{
    if (TWindow* control = ChildWithId(id)) {
        control->SendMessage(BM_SETCHECK, check);
    }
}

UINT TDialog::IsDlgButtonChecked(int id) const
{
    TWindow* control = ChildWithId(id);
    return control ? UINT(control->SendMessage(BM_GETCHECK)) : 0;
}

LRESULT TDialog::SendDlgItemMessage(int id, UINT msg, WPARAM wParam, LPARAM lParam)
{
    TWindow* control = ChildWithId(id);
    return control ? control->SendMessage(msg, wParam, lParam) : 0;
}

TRect TDialog::MapDialogRect(const TRect& units) const
{
    DialogBaseUnits base = DialogBaseUnits::Of(GetWindowFont());
    return TRect(base.ToPixelsX(units.left), base.ToPixelsY(units.top), base.ToPixelsX(units.right),
                 base.ToPixelsY(units.bottom));
}
