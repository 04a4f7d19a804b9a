#pragma once
// A drop-down combo box: with CBS_DROPDOWNLIST a box that shows the selected row, with
// CBS_DROPDOWN (and CBS_SIMPLE) an edit field in which the user may also type. A click on the
// box (or its button), F4 or Alt+Down drops the list below it; a click on a row, or Enter,
// takes that row, and a click elsewhere, or Escape, closes the list unchanged. While closed,
// the arrow keys step through the rows and a typed character goes to the next row that begins
// with it (drop-down lists).
//
// The parent hears CBN_DROPDOWN and CBN_CLOSEUP, CBN_SELENDOK or CBN_SELENDCANCEL, and
// CBN_SELCHANGE when the user changed the selection; typing in the field gives CBN_EDITCHANGE.
// The height given to the box is the height of the dropped list, as in dialog templates; the
// box itself is one line high.
#include <memory>
#include <string>
#include <vector>

#include "platform/TControl.h"

class TEdit;
class TListBox;

class TComboBox : public TControl
{
public:
    TComboBox(TWindow* parent, int id, int x, int y, int width, int height, DWORD style,
              UINT textLimit = 0, TModule* module = nullptr);
    TComboBox(TWindow* parent, int resourceId, UINT textLimit = 0, TModule* module = nullptr);
    ~TComboBox() override;

    int AddString(const std::string& text);
    int InsertString(const std::string& text, int index);
    int DeleteString(int index);
    void ClearList();
    int GetCount() const { return int(aItems.size()); }
    int GetSelIndex() const { return nSelection; }
    // Selects a row and shows its text; -1 clears. Tells the parent nothing.
    int SetSelIndex(int index);
    std::string GetString(int index) const;
    int FindString(const std::string& prefix, int startAfter = -1) const;
    int FindExactString(const std::string& text, int startAfter = -1) const;
    int SetSelString(const std::string& prefix, int startAfter = -1);
    LPARAM GetItemData(int index) const;
    int SetItemData(int index, LPARAM data);
    // The text in the field, or of the selected row.
    std::string GetText() const { return GetWindowText(); }
    void SetText(const std::string& text) { SetWindowText(text); }
    void SetTextLimit(UINT limit);
    void ShowList(bool show = true);
    void HideList() { ShowList(false); }
    bool IsListShown() const { return bDropped; }
    // The height of the box when closed, and of the list when dropped.
    int GetClosedHeight() const;
    int GetDropHeight() const { return nDropHeight; }
    // The dropped list while it is shown; null otherwise.
    TListBox* GetDroppedList() const;

    void SetupWindow() override;
    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;

    // Ends the dropped list, taking its selected row or not. Called by the list.
    void CloseList(bool accept);

private:
    struct Item
    {
        std::string Text;
        LPARAM Data;
    };
    bool HasEdit() const { return (Attr.Style & 0x3) != CBS_DROPDOWNLIST; }
    TRect ButtonRect() const;
    void ShowSelectionText();
    void UserSelect(int index);
    int FindItem(const std::string& text, int startAfter, bool exact) const;
    bool HandleListKey(UINT key);

    std::vector<Item> aItems;
    int nSelection = -1;
    int nDropHeight = 0;
    UINT nTextLimit;
    bool bDropped = false;
    bool bSettingText = false;
    TEdit* pEdit = nullptr;
    std::unique_ptr<TListBox> pList;
};
