#pragma once
// A dialog: a top-level window built from a template of the module, or set up in code, that
// holds controls and is run modal (Execute) or left open beside the others (Create).
//
// Building from the template makes a control for each item, in pixels from the template's
// dialog units and its font. A control object that the derived class has made already with the
// item's resource id (TEdit(this, 0xcf), say) takes the item's place, text and style instead
// of a new one, so the class keeps its own typed pointers. After the controls exist,
// SetupWindow runs (fill the controls there), then the dialog shows with the focus on its
// first control that takes it, unless SetupWindow put the focus elsewhere.
//
// Keys: Tab and Shift+Tab move the focus through the controls with WS_TABSTOP, Enter presses
// the focused push button or else the default button (command IDOK when there is none),
// Escape gives command IDCANCEL, F1 presses the Help button (id IDHELP) when there is one.
// CmOk closes with IDOK when CanClose agrees, CmCancel with
// IDCANCEL; closing the window is CmCancel.
#include <string>
#include <vector>

#include "platform/DialogTemplate.h"
#include "platform/TWindow.h"

class TDialog : public TWindow
{
public:
    TDialog(TWindow* parent, const TResId& resId, TModule* module = nullptr);
    // A dialog of a template given here rather than found among the resources.
    TDialog(TWindow* parent, const DialogTemplate& dialogTemplate, TModule* module = nullptr);
    ~TDialog() override;

    // Makes the dialog and shows it, not modal; false when the template cannot be found.
    bool Create() override;
    // Makes the dialog, runs it modal and returns what closed it (IDOK, IDCANCEL or the value
    // given to CloseWindow or EndDialog); -1 when it cannot be made.
    virtual int Execute();
    bool IsModal() const { return bModal; }

    // Ends the dialog with a result when CanClose agrees.
    void CloseWindow(int returnValue = IDCANCEL) override;
    // Ends the dialog with a result at once.
    void EndDialog(int result);
    virtual void CmOk();
    virtual void CmCancel();

    // The controls by id.
    TWindow* GetControl(int id) const { return ChildWithId(id); }
    HWND GetDlgItem(int id) const;
    std::string GetDlgItemText(int id) const;
    void SetDlgItemText(int id, const std::string& text);
    UINT GetDlgItemInt(int id, bool* translated = nullptr, bool isSigned = true) const;
    void SetDlgItemInt(int id, UINT value, bool isSigned = true);
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    LRESULT SendDlgItemMessage(int id, UINT msg, WPARAM wParam = 0, LPARAM lParam = 0);

    // Dialog units to pixels with this dialog's font.
    TRect MapDialogRect(const TRect& units) const;
    const DialogTemplate* GetTemplate() const { return pTemplate; }
    const TResId& GetResourceId() const { return ResId; }

    bool PreProcessMsg(MSG& msg) override;
    const TResponseRow* Find(const TEventInfo& event) const override;
    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;

protected:
    // For dialogs that place their controls in code: no template; the derived class sets
    // the size in Attr and makes its controls before Create.
    TDialog(TWindow* parent, const char* title, TModule* module = nullptr);

private:
    void BuildControls();
    void Configure(TWindow& control, const DialogItemTemplate& item);
    TWindow* MakeControl(const DialogItemTemplate& item);
    void MoveFocus(bool forward);
    TWindow* DefaultButton() const;
    std::vector<TWindow*> TabStops() const;

    TResId ResId;
    DialogTemplate OwnTemplate;
    const DialogTemplate* pTemplate = nullptr;
    bool bModal = false;
    bool bSwallowChar = false;
    // Controls made from the template for items the class has no object of; made again at
    // each Create.
    std::vector<TWindow*> aMadeControls;
};
