#pragma once
// A one-line edit field: the user types at the caret, replaces the selection, moves with the
// arrow keys, Home and End (with Shift to select), deletes with Backspace and Delete, selects
// all with Ctrl+A, copies, cuts and pastes with Ctrl+C, Ctrl+X and Ctrl+V, and clicks or drags
// to place the caret or select. The text scrolls sideways to keep the caret in view.
//
// Every change of the text, by the user or by WM_SETTEXT, tells the parent EN_CHANGE; typing
// beyond the text limit is refused with EN_MAXTEXT. Enter asks the parent for command IDOK
// (a dialog takes Enter before the field sees it). ES_UPPERCASE, ES_LOWERCASE, ES_NUMBER,
// ES_PASSWORD and ES_READONLY work as their names say.
#include <string>

#include "platform/TControl.h"

class TEdit : public TControl
{
public:
    // A text limit of 0 leaves the field without one.
    TEdit(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
          UINT textLimit = 0, bool multiline = false, TModule* module = nullptr);
    TEdit(TWindow* parent, int resourceId, UINT textLimit = 0, TModule* module = nullptr);

    std::string GetText() const { return Text; }
    void SetText(const std::string& text) { SetWindowText(text); }
    int GetTextLen() const { return int(Text.size()); }
    // The selection as character positions, start before end; equal when nothing is selected.
    void GetSelection(int& start, int& end) const;
    // Selects from `start` to `end` and puts the caret at `end`; -1 as the end means the end of
    // the text, -1 as the start selects nothing.
    void SetSelection(int start, int end);
    void SelectAll() { SetSelection(0, -1); }
    int GetCaretIndex() const { return nCaret; }
    // Replaces the selection, as typing or pasting does (within the limit).
    void Insert(const std::string& text);
    void Clear() { SetWindowText(""); }
    UINT GetTextLimit() const { return nLimit; }
    void SetTextLimit(UINT limit);
    bool IsModified() const { return bModified; }
    void ClearModify() { bModified = false; }

    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;

protected:
    int GetDefaultCursor() const override { return IDC_IBEAM; }

private:
    // The inner rectangle the text is drawn in.
    TRect TextRect() const;
    // The width of the first `count` characters as shown.
    int WidthTo(int count) const;
    // The character boundary nearest to a point.
    int HitTest(int x) const;
    std::string Shown() const;
    void Changed();
    void MoveCaret(int position, bool extend);
    void DeleteSelection();
    bool HasSelection() const { return nAnchor != nCaret; }
    void KeepCaretVisible();
    void TypeChar(char c);

    std::string Text;
    int nAnchor = 0;
    int nCaret = 0;
    int nScroll = 0;
    UINT nLimit;
    bool bModified = false;
    bool bTracking = false;
};
