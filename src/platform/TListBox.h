#pragma once
// A list box with one selected row: rows of text with a number each (item data), kept in
// order of insertion or, with LBS_SORT, in order of their text without regard to case. A
// click selects a row and tells the parent LBN_SELCHANGE, a double click LBN_DBLCLK; the arrow
// keys, Page Up and Down, Home and End move the selection, and a typed character goes to the
// next row that begins with it. Rows scroll by the wheel and, with WS_VSCROLL, by a scroll bar
// at the right. Setting the selection from the program tells the parent nothing.
//
// Finding a row by the beginning of its text (LB_FINDSTRING) works as on Windows: the case of
// letters does not count, the search starts with the row after the one given, wraps round to
// the first row and ends with the row given; -1 starts at the first row.
//
// With an item master (TListBoxItemMaster) the rows are the master's: it counts and paints
// them, and Reset makes the list read their number again.
#include <string>
#include <vector>

#include "platform/TControl.h"

class TListBoxItemMaster;
class TScrollBar;

class TListBox : public TControl
{
public:
    TListBox(TWindow* parent, int id, int x, int y, int width, int height,
             TModule* module = nullptr);
    TListBox(TWindow* parent, int resourceId, TModule* module = nullptr);
    ~TListBox() override;

    // The index the row got, or LB_ERR.
    int AddString(const std::string& text);
    int InsertString(const std::string& text, int index);
    // The number of rows left, or LB_ERR for a row that does not exist.
    int DeleteString(int index);
    void ClearList();
    int GetCount() const;
    int GetSelIndex() const { return nSelection; }
    // Selects a row (-1 for none) and scrolls it into view; LB_ERR for a row that does not
    // exist, which clears the selection.
    int SetSelIndex(int index);
    std::string GetString(int index) const;
    int GetStringLen(int index) const { return int(GetString(index).size()); }
    int FindString(const std::string& prefix, int startAfter = -1) const;
    int FindExactString(const std::string& text, int startAfter = -1) const;
    // Selects the row FindString finds; its index or LB_ERR.
    int SetSelString(const std::string& prefix, int startAfter = -1);
    int GetTopIndex() const { return nTop; }
    int SetTopIndex(int index);
    LPARAM GetItemData(int index) const;
    int SetItemData(int index, LPARAM data);
    int GetItemHeight() const;
    void SetItemHeight(int height);
    // The rows that fit in the list at once.
    int GetVisibleRows() const;
    // The row at a point of the client area, or -1.
    int RowAt(TPoint point) const;

    // The master that draws the rows; null for rows of text. Not owned.
    void SetItemMaster(TListBoxItemMaster* master);
    TListBoxItemMaster* GetItemMaster() const { return pMaster; }
    // Reads the number of rows from the master again and keeps selection and top in range.
    void Reset();

    void SetupWindow() override;
    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;

protected:
    // Selects a row as the user does: scrolls to it and tells the parent when it changed.
    void UserSelect(int index);
    // The scroll bar of a list with WS_VSCROLL, a child of the list at that place; a plain
    // upright bar by default.
    virtual TScrollBar* MakeScrollBar(const TRect& place);

private:
    struct Item
    {
        std::string Text;
        LPARAM Data;
    };
    TRect RowsRect() const;
    void UpdateScrollBar();
    void KeepInView(int index);
    bool Matches(int index, const std::string& prefix, bool exact) const;
    int FindItem(const std::string& text, int startAfter, bool exact) const;

    std::vector<Item> aItems;
    TListBoxItemMaster* pMaster = nullptr;
    int nMasterCount = 0;
    int nSelection = -1;
    int nTop = 0;
    int nItemHeight = 0;
    // The height the font or the master gives, measured once for a font (0 until then).
    mutable int nMeasuredHeight = 0;
    mutable LOGFONT MeasuredFont{};
    bool bTracking = false;
    TScrollBar* pScrollBar = nullptr;
};
