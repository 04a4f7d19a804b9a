#pragma once
// The strip the host draws above a module inside its frame: the module's icon and title at
// the left, a short note in the middle for a while after the host has done something the
// user cannot see (a bookmark kept), and a menu button at the right. A press on the button,
// and a right click anywhere on the strip, ask the frame for the module's fly-out menu.
#include <functional>
#include <string>

#include "platform/TWindow.h"

class TDib;

class HostTitleBar : public TWindow
{
public:
    // The strip's height in pixels.
    static constexpr int kHeight = 30;

    // What the strip asks for: the menu, at a point of the screen, with its right edge there
    // below the button or its left edge there where the pointer stood.
    using MenuOpener = std::function<void(TPoint screen, bool rightAligned)>;

    explicit HostTitleBar(TWindow* parent);

    // The module's icon (kept by the host, may be null), its title (blanks at the ends are
    // dropped), the title's font height in pixels (13 unless above 0) and flags, none of
    // which are defined yet.
    void Initialize(const TDib* icon, const std::string& title, int fontHeight, int flags);
    const std::string& GetTitle() const { return Title; }

    // Shows a note beside the title for a few seconds.
    void ShowNote(const std::string& note);
    const std::string& GetNote() const { return Note; }

    void SetMenuOpener(MenuOpener opener) { OpenMenu = std::move(opener); }
    // Where the menu button lies, in client coordinates, and where its menu opens on the
    // screen: below the button, right-aligned with it.
    TRect GetMenuButtonRect() const;
    TPoint GetMenuPoint() const;

    void Paint(TDC& dc, bool erase, TRect& rect) override;
    void EvLButtonDown(UINT keys, TPoint& point);
    void EvRButtonUp(UINT keys, TPoint& point);
    void EvTimer(UINT id);
    const TResponseRow* Find(const TEventInfo& event) const override;

private:
    const TDib* pIcon = nullptr;
    std::string Title;
    int nFontHeight = 13;
    std::string Note;
    MenuOpener OpenMenu;
};
