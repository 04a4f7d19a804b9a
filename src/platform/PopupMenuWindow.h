#pragma once
// The window that shows a popup menu: its items in a column, check marks at the left, arrows
// at the right of items that open a submenu, separators as lines and greyed items in grey.
//
// The first menu holds the mouse and the keyboard while it runs, modal, and works the whole
// chain of open submenus: the pointer highlights, resting on a popup item opens its submenu, a
// release on a command chooses it, a press outside every menu leaves them all. The arrow keys
// move the highlight and open and close submenus, Enter chooses, Escape closes the last menu,
// and a letter marked with "&" chooses its item.
#include <memory>
#include <vector>

#include "platform/MenuData.h"
#include "platform/TWindow.h"

class PopupMenuWindow : public TWindow
{
public:
    // A menu at a point of the screen, placed as the TPM_ flags say and kept on the screen.
    PopupMenuWindow(TWindow* owner, HMENU menu, TPoint at, UINT flags,
                    PopupMenuWindow* parentMenu = nullptr);
    ~PopupMenuWindow() override;

    // Shows the menu until an item is chosen or the menu is left; the id chosen, or 0.
    UINT Run();

    HMENU GetMenu() const { return hMenu; }
    int GetHighlight() const { return nHighlight; }
    PopupMenuWindow* GetOpenSubMenu() const { return pSub.get(); }
    // The row of an item (client coordinates); empty for a position that does not exist.
    TRect GetItemRect(int position) const;
    // The position of the command in this menu, or of the popup item that leads to it; -1.
    int FindPath(UINT command) const;
    int GetItemAt(TPoint client) const;

    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;

private:
    const std::vector<MenuItem>& Items() const;
    PopupMenuWindow& Root();
    PopupMenuWindow& Deepest();
    PopupMenuWindow* MenuAt(TPoint screen);
    void SetHighlight(int position);
    void StepHighlight(int direction);
    void OpenSub(int position);
    void CloseSub();
    void Choose(UINT id);
    void Measure(TPoint at, UINT flags);

    HMENU hMenu;
    PopupMenuWindow* pParentMenu;
    std::unique_ptr<PopupMenuWindow> pSub;
    int nSubPosition = -1;
    int nHighlight = -1;
    UINT nChosen = 0;
    std::vector<TRect> aRows;
};
