#pragma once
// The reference host's window on a desktop: a normal top-level window, decorated by the
// desktop and resizable down to a minimum size, with the title bar strip at the top and the
// module below it, laid out again at every size. It answers what a module asks its host:
// whether it is in full-screen mode (0x0615), its title bar (0x0639) and its fly-out menu
// (0x063A); it asks the module to load its menu when the module arrives (0x0638) and again
// before it shows the menu and after an entry is chosen (0x063B).
//
// What users of a desktop planetarium expect becomes the module's own commands, so nothing of
// the module's behaviour changes:
//   menu button, right click on the strip, F10, Menu key   the fly-out menu
//   wheel up and down, + and -                            Zoom In, Zoom Out
//   arrow keys, held                                      scroll the view (the scroller)
//   Ctrl+T, Ctrl+L, Ctrl+G, Ctrl+P                        Set Date and Time, Set Location,
//                                                         the grid dialog, Print
//   Ctrl+B                                                Add Bookmark
//   Ctrl+F                                                the finder, which shows in
//                                                         full-screen mode: switched to first
//   F11, and Escape while in it                           full-screen mode
//   Space                                                 Start Time Lapse
//   F1                                                    help
// Keys that type (Space, + and -, the arrows, Escape) are left to a control of the module that
// has the focus and wants them.
//
// The fly-out menu gets the host's own entries besides the module's: the keys beside the
// entries they give, a Bookmarks sub-menu with every bookmark kept (choosing one opens it,
// its sub-menu Delete Bookmark deletes one), Help and Quit.
#include <functional>
#include <memory>

#include "host/HostBookmarkList.h"
#include "host/HostFlyMenu.h"
#include "host/HostFrameWindow.h"

class HostTitleBar;

class HostMainFrame : public HostFrameWindow
{
public:
    // The smallest client area the user can make it.
    static constexpr int kMinimumWidth = 480;
    static constexpr int kMinimumHeight = 360;
    // The host's commands of the menu beside the module's: Help, Quit, the keys' full-screen
    // switch, and the first command of the bookmarks to open and to delete.
    static constexpr UINT kHelpCommand = 0xE000;
    static constexpr UINT kQuitCommand = 0xE001;
    static constexpr UINT kSwitchFullScreenCommand = 0xE002;
    static constexpr UINT kMenuCommand = 0xE003;
    static constexpr UINT kFirstBookmarkCommand = 0xE100;
    static constexpr UINT kFirstDeleteCommand = 0xE900;
    static constexpr UINT kMostBookmarks = 0x800;
    // The module's commands the keys give.
    static constexpr UINT kZoomInCommand = 25021;
    static constexpr UINT kZoomOutCommand = 25022;
    static constexpr UINT kFinderCommand = 25014;

    // Scrolls the module's view: a direction of the view's scrolling (1 to 4) when an arrow key
    // goes down, 0 when it comes up.
    using Scroller = std::function<void(int direction)>;

    HostMainFrame(const char* title, int width, int height);

    void SetupWindow() override;
    // The module the entry made in this frame: laid out below the strip and asked to load its
    // fly-out menu.
    void AttachModule(TWindow& module);
    TWindow* GetModule() const { return pModule; }
    HostTitleBar* GetTitleBar() const { return pTitleBar; }
    HostFlyMenu& GetFlyMenu() { return FlyMenu; }
    void SetScroller(Scroller scroller) { Scroll = std::move(scroller); }

    // Shows the fly-out menu at a point of the screen (its right edge there when
    // `rightAligned`) and carries out the entry chosen.
    void OpenFlyMenu(TPoint screen, bool rightAligned);
    // Fills the screen with the window, without the desktop's frame, or puts it back.
    void SetFullScreen(bool on);
    bool IsFullScreen() const { return bFullScreen; }
    // Asks the module for a bookmark of its view and keeps it; false when none was kept.
    bool AddBookmark();
    // Hands a bookmark back to the module; one that lacks keys is refused with a message.
    bool OpenBookmark(const HostBookmark& bookmark);
    // A command of the menu or of a key: the host's own, or the module's (posted to it).
    void DoCommand(UINT command);

    void EvSize(UINT sizeType, TSize& size);
    bool PreProcessMsg(MSG& msg) override;
    LRESULT EvMouseWheel(UINT keys, int delta, TPoint& point);
    LRESULT WmuFullScreenQuery(WPARAM, LPARAM);
    LRESULT WmuTitleBarQuery(WPARAM, LPARAM);
    LRESULT WmuFlyMenuQuery(WPARAM, LPARAM);
    LRESULT WmuDoCommand(WPARAM command, LPARAM);
    const TResponseRow* Find(const TEventInfo& event) const override;

protected:
    void ChildGone(TWindow& child) override;

private:
    bool HandleKey(UINT message, UINT key, bool toControl);
    void AddHostEntries(HMENU popup);
    void ShowFlyOut(HostFlyMenu& menu, TPoint at);
    void DeleteBookmark(std::size_t index);

    HostTitleBar* pTitleBar;
    TWindow* pModule = nullptr;
    HostFlyMenu FlyMenu;
    HostBookmarkList Bookmarks;
    Scroller Scroll;
    int nScrollDirection = 0;
    bool bFullScreen = false;
    TRect NormalRect;
};
