#include "host/HostMainFrame.h"

#include <algorithm>

#include "host/HostFrameAPI.h"
#include "host/HostMessages.h"
#include "host/HostStringTable.h"
#include "host/HostTitleBar.h"
#include "platform/MenuData.h"
#include "platform/WindowCalls.h"
#include "platform/WindowSystem.h"
#include "projection/AstroScrollInfo.h"

namespace {

// A private message of the frame: carry out the command in the WPARAM. Keys post it, so that
// what a key opens runs after the key's own handling.
constexpr UINT kDoCommandMessage = WM_APP + 1;

// The help topic of the main window: the top of the help page.
constexpr const char* kHelpTopic = "Planetarium";

// A key and the command it gives. Keys without Ctrl that type are left to a control that
// wants them; the function keys never are.
struct KeyCommand
{
    UINT Key;
    bool Control;
    UINT Command;
    const char* Label;
};

constexpr KeyCommand kKeys[] = {
    {'T', true, 25003, "Ctrl+T"},
    {'L', true, 25002, "Ctrl+L"},
    {'G', true, 25012, "Ctrl+G"},
    {'P', true, 25006, "Ctrl+P"},
    {'B', true, kHostBookmarkCommand, "Ctrl+B"},
    {'F', true, HostMainFrame::kFinderCommand, "Ctrl+F"},
    {VK_SPACE, false, 25005, "Space"},
    {VK_F1, false, HostMainFrame::kHelpCommand, "F1"},
    {VK_F10, false, HostMainFrame::kMenuCommand, nullptr},
    {VK_APPS, false, HostMainFrame::kMenuCommand, nullptr},
    {VK_F11, false, HostMainFrame::kSwitchFullScreenCommand, nullptr},
};

// What the menu shows beside the entries of commands that keys give otherwise.
constexpr KeyCommand kOtherLabels[] = {
    {0, false, HostMainFrame::kZoomInCommand, "+"},
    {0, false, HostMainFrame::kZoomOutCommand, "-"},
    {0, false, kHostFullScreenCommand, "F11"},
    {0, false, kHostExitFullScreenCommand, "F11"},
};

const char* LabelOf(UINT command)
{
    for (const KeyCommand& key : kKeys) {
        if (key.Command == command && key.Label) {
            return key.Label;
        }
    }
    for (const KeyCommand& key : kOtherLabels) {
        if (key.Command == command) {
            return key.Label;
        }
    }
    return nullptr;
}

// Puts the keys beside the entries they give, in every sub-menu too.
void AddKeyLabels(HMENU menu)
{
    MenuData* data = MenuData::Find(menu);
    for (std::size_t i = 0; data && i < data->Items.size(); ++i) {
        MenuItem& item = data->Items[i];
        if (item.IsPopup()) {
            AddKeyLabels(item.Popup);
        } else if (const char* label = LabelOf(item.Id); label && !item.IsSeparator()) {
            item.Text += std::string("\t") + label;
        }
    }
}

// The view's scrolling for an arrow key. Azimuths count from north through west, so the view
// turns left as its azimuth goes up.
int ScrollDirectionOf(UINT key)
{
    switch (key) {
    case VK_LEFT:
        return AstroScrollInfo::AZIMUTH_UP;
    case VK_RIGHT:
        return AstroScrollInfo::AZIMUTH_DOWN;
    case VK_UP:
        return AstroScrollInfo::TOWARDS_ZENITH;
    case VK_DOWN:
        return AstroScrollInfo::TOWARDS_HORIZON;
    default:
        return 0;
    }
}

// A text of the host's table by its name.
std::string HostText(const char* name)
{
    return replaceHostString(1, name);
}

// A bookmark's title as a menu item shows it: "&" stands for itself.
std::string MenuText(const std::string& title)
{
    std::string text;
    for (char c : title) {
        text += c == '&' ? std::string("&&") : std::string(1, c);
    }
    return text;
}

} // namespace

HostMainFrame::HostMainFrame(const char* title, int width, int height)
    : HostFrameWindow(title, width, height), pTitleBar(new HostTitleBar(this))
{
    pTitleBar->SetMenuOpener(
        [this](TPoint screen, bool rightAligned) { OpenFlyMenu(screen, rightAligned); });
    FlyMenu.SetShower([this](HostFlyMenu& menu, TPoint at) { ShowFlyOut(menu, at); });
}

const TResponseRow* HostMainFrame::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SIZE, &HostMainFrame::EvSize>(),
        EvRow<WM_MOUSEWHEEL, &HostMainFrame::EvMouseWheel>(),
        MsgRow<kHostFullScreenQuery, &HostMainFrame::WmuFullScreenQuery>(),
        MsgRow<kHostTitleBarQuery, &HostMainFrame::WmuTitleBarQuery>(),
        MsgRow<kHostFlyMenuQuery, &HostMainFrame::WmuFlyMenuQuery>(),
        MsgRow<kDoCommandMessage, &HostMainFrame::WmuDoCommand>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : HostFrameWindow::Find(event);
}

void HostMainFrame::SetupWindow()
{
    HostFrameWindow::SetupWindow();
    WindowSystem::Get().GetBackend().SetNativeResizable(HWindow,
                                                        TSize(kMinimumWidth, kMinimumHeight));
}

void HostMainFrame::AttachModule(TWindow& module)
{
    pModule = &module;
    TSize size = GetClientRect().Size();
    EvSize(SIZE_RESTORED, size);
    module.SendMessage(kHostLoadFlyMenu);
}

void HostMainFrame::ChildGone(TWindow& child)
{
    if (&child == pModule) {
        pModule = nullptr;
    } else if (&child == pTitleBar) {
        pTitleBar = nullptr;
    }
}

void HostMainFrame::EvSize(UINT sizeType, TSize& size)
{
    TWindow::EvSize(sizeType, size);
    const int strip = pTitleBar ? HostTitleBar::kHeight : 0;
    if (pTitleBar && pTitleBar->HWindow) {
        pTitleBar->MoveWindow(0, 0, size.cx, strip);
    }
    if (pModule && pModule->HWindow) {
        pModule->MoveWindow(0, strip, size.cx, std::max(0, size.cy - strip));
    }
}

LRESULT HostMainFrame::WmuFullScreenQuery(WPARAM, LPARAM)
{
    return bFullScreen ? 1 : 0;
}

LRESULT HostMainFrame::WmuTitleBarQuery(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(pTitleBar);
}

LRESULT HostMainFrame::WmuFlyMenuQuery(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(&FlyMenu);
}

LRESULT HostMainFrame::WmuDoCommand(WPARAM command, LPARAM)
{
    DoCommand(UINT(command));
    return 0;
}

// Keys and wheel.

bool HostMainFrame::PreProcessMsg(MSG& msg)
{
    if (msg.message != WM_KEYDOWN && msg.message != WM_KEYUP && msg.message != WM_CHAR) {
        return false;
    }
    // A control of the module with the focus (an edit field, a list, a button) says so by its
    // dialog code, and keeps the keys that type.
    TWindow* target = GetWindowPtr(msg.hwnd);
    const bool toControl = target && target != this && target->SendMessage(WM_GETDLGCODE) != 0;
    return HandleKey(msg.message, UINT(msg.wParam), toControl);
}

bool HostMainFrame::HandleKey(UINT message, UINT key, bool toControl)
{
    const bool control = WindowSystem::Get().IsKeyDown(VK_CONTROL);
    if (message == WM_CHAR) {
        // Ctrl with a letter types a character of its own, which the key has dealt with.
        if (toControl || control) {
            return false;
        }
        if (key == '+' || key == '=' || key == '-' || key == '_') {
            const UINT zoom = key == '+' || key == '=' ? kZoomInCommand : kZoomOutCommand;
            if (pModule && pModule->HWindow) {
                pModule->SendMessage(WM_COMMAND, zoom, 0);
            }
            return true;
        }
        return key == ' ';
    }
    if (const int direction = ScrollDirectionOf(key); direction && !toControl && !control) {
        if (message == WM_KEYDOWN && direction != nScrollDirection && Scroll) {
            nScrollDirection = direction;
            Scroll(direction);
        } else if (message == WM_KEYUP && direction == nScrollDirection) {
            nScrollDirection = 0;
            Scroll(0);
        }
        return true;
    }
    if (message != WM_KEYDOWN) {
        return false;
    }
    if (key == VK_ESCAPE && bFullScreen && !toControl) {
        SetFullScreen(false);
        return true;
    }
    for (const KeyCommand& entry : kKeys) {
        const bool typing = entry.Key == VK_SPACE;
        if (entry.Key == key && entry.Control == control && !(typing && toControl)) {
            PostMessage(kDoCommandMessage, entry.Command);
            return true;
        }
    }
    return false;
}

LRESULT HostMainFrame::EvMouseWheel(UINT, int delta, TPoint&)
{
    // A notch at a time, in or out about the centre.
    const UINT zoom = delta > 0 ? kZoomInCommand : kZoomOutCommand;
    for (int notch = 0; notch < std::max(1, std::abs(delta) / WHEEL_DELTA); ++notch) {
        if (pModule && pModule->HWindow && delta != 0) {
            pModule->SendMessage(WM_COMMAND, zoom, 0);
        }
    }
    return 0;
}

// Commands.

void HostMainFrame::DoCommand(UINT command)
{
    switch (command) {
    case kHostFullScreenCommand:
        SetFullScreen(true);
        return;
    case kHostExitFullScreenCommand:
        SetFullScreen(false);
        return;
    case kSwitchFullScreenCommand:
        SetFullScreen(!bFullScreen);
        return;
    case kHostBookmarkCommand:
        AddBookmark();
        return;
    case kHelpCommand: {
        HostFrameAPI* frame = getHostFrameAPI();
        const std::string file = frame ? frame->GetHelpFile() : std::string();
        WinHelpA(HWindow, file.c_str(), HELP_KEY, reinterpret_cast<UINT_PTR>(kHelpTopic));
        return;
    }
    case kQuitCommand:
        PostMessage(WM_CLOSE);
        return;
    case kMenuCommand:
        if (pTitleBar) {
            OpenFlyMenu(pTitleBar->GetMenuPoint(), true);
        }
        return;
    case kFinderCommand:
        // The finder shows only in full-screen mode, where the module brings it up by itself;
        // in that mode the command shows or hides it, as its menu entry does.
        if (!bFullScreen) {
            SetFullScreen(true);
            return;
        }
        break;
    default:
        break;
    }
    if (command >= kFirstBookmarkCommand && command < kFirstBookmarkCommand + kMostBookmarks) {
        const std::vector<HostBookmark> kept = Bookmarks.Read();
        if (command - kFirstBookmarkCommand < kept.size()) {
            OpenBookmark(kept[command - kFirstBookmarkCommand]);
        }
    } else if (command >= kFirstDeleteCommand && command < kFirstDeleteCommand + kMostBookmarks) {
        DeleteBookmark(command - kFirstDeleteCommand);
    } else if (pModule && pModule->HWindow) {
        pModule->PostMessage(WM_COMMAND, command, 0);
    }
}

void HostMainFrame::SetFullScreen(bool on)
{
    if (on == bFullScreen || !HWindow) {
        return;
    }
    WindowBackend& backend = WindowSystem::Get().GetBackend();
    // The mode changes before the size does, so that the module sees it in its size message.
    bFullScreen = on;
    if (on) {
        NormalRect = GetWindowRect();
        backend.SetNativeBordered(HWindow, false);
        const TSize screen = backend.GetScreenSize();
        MoveWindow(0, 0, screen.cx, screen.cy);
    } else {
        backend.SetNativeBordered(HWindow, true);
        MoveWindow(NormalRect);
    }
}

// The menu.

void HostMainFrame::OpenFlyMenu(TPoint screen, bool rightAligned)
{
    if (!pModule || !pModule->HWindow) {
        return;
    }
    pModule->SendMessage(kHostFlyMenuNotify);
    HMENU popup = FlyMenu.MakePopup([this](UINT command) {
        if (pModule && pModule->HWindow) {
            pModule->SendMessage(WM_COMMAND, command, 0);
        }
    });
    AddHostEntries(popup);
    AddKeyLabels(popup);
    const UINT chosen =
        UINT(TrackPopupMenu(popup, TPM_RETURNCMD | (rightAligned ? TPM_RIGHTALIGN : 0), screen.x,
                            screen.y, 0, HWindow, nullptr));
    DestroyMenu(popup);
    if (chosen) {
        DoCommand(chosen);
        if (pModule && pModule->HWindow) {
            pModule->SendMessage(kHostFlyMenuNotify);
        }
    }
}

void HostMainFrame::ShowFlyOut(HostFlyMenu& menu, TPoint at)
{
    HMENU popup = menu.MakePopup([this](UINT command) {
        if (pModule && pModule->HWindow) {
            pModule->SendMessage(WM_COMMAND, command, 0);
        }
    });
    AddKeyLabels(popup);
    if (at.x == HostFlyMenu::kBesideEntry && at.y == HostFlyMenu::kBesideEntry) {
        at = WindowSystem::Get().GetCursorPos();
    }
    const UINT chosen = UINT(TrackPopupMenu(popup, TPM_RETURNCMD, at.x, at.y, 0, HWindow, nullptr));
    DestroyMenu(popup);
    if (chosen) {
        DoCommand(chosen);
    }
}

void HostMainFrame::AddHostEntries(HMENU popup)
{
    // The bookmarks kept, after the entry that adds one (or at the end).
    HMENU open = CreatePopupMenu();
    HMENU remove = CreatePopupMenu();
    const std::vector<HostBookmark> kept = Bookmarks.Read();
    for (std::size_t i = 0; i < kept.size() && i < kMostBookmarks; ++i) {
        const std::string title = MenuText(kept[i].Title.empty() ? kept[i].Command : kept[i].Title);
        AppendMenuA(open, MF_STRING, kFirstBookmarkCommand + i, title.c_str());
        AppendMenuA(remove, MF_STRING, kFirstDeleteCommand + i, title.c_str());
    }
    if (kept.empty()) {
        AppendMenuA(open, MF_STRING | MF_GRAYED, 0, HostText("STID_MENU_NO_BOOKMARKS").c_str());
        DestroyMenu(remove);
    } else {
        AppendMenuA(open, MF_SEPARATOR, 0, nullptr);
        AppendMenuA(open, MF_POPUP, reinterpret_cast<UINT_PTR>(remove),
                    HostText("STID_MENU_DELETE_BOOKMARK").c_str());
    }
    const std::string bookmarks = HostText("STID_MENU_BOOKMARKS");
    MenuData* data = MenuData::Find(popup);
    auto after = std::find_if(data->Items.begin(), data->Items.end(), [](const MenuItem& item) {
        return !item.IsPopup() && item.Id == kHostBookmarkCommand;
    });
    if (after == data->Items.end()) {
        AppendMenuA(popup, MF_POPUP, reinterpret_cast<UINT_PTR>(open), bookmarks.c_str());
    } else {
        InsertMenuA(popup, UINT(after - data->Items.begin() + 1), MF_BYPOSITION | MF_POPUP,
                    reinterpret_cast<UINT_PTR>(open), bookmarks.c_str());
    }
    AppendMenuA(popup, MF_SEPARATOR, 0, nullptr);
    AppendMenuA(popup, MF_STRING, kHelpCommand, HostText("STID_MENU_HELP").c_str());
    AppendMenuA(popup, MF_STRING, kQuitCommand, HostText("STID_MENU_QUIT").c_str());
}

// Bookmarks.

bool HostMainFrame::AddBookmark()
{
    if (!pModule || !pModule->HWindow) {
        return false;
    }
    // The module makes the record; the host owns it.
    const std::unique_ptr<HostBookmark> made(
        reinterpret_cast<HostBookmark*>(pModule->SendMessage(kHostCreateBookmark)));
    if (!made) {
        return false;
    }
    if (!Bookmarks.Add(*made)) {
        MessageBox(HostText("STID_BOOKMARK_NOT_KEPT").c_str(), GetWindowText().c_str(),
                   MB_OK | MB_ICONWARNING);
        return false;
    }
    if (pTitleBar) {
        pTitleBar->ShowNote(formatHostString(HostText("STID_BOOKMARK_KEPT"), {made->Title}));
    }
    return true;
}

bool HostMainFrame::OpenBookmark(const HostBookmark& bookmark)
{
    const std::string missing = HostBookmarkList::DescribeMissing(bookmark.Command);
    if (!missing.empty()) {
        MessageBox(formatHostString(HostText("STID_BOOKMARK_REFUSED"), {missing}).c_str(),
                   GetWindowText().c_str(), MB_OK | MB_ICONWARNING);
        return false;
    }
    if (!pModule || !pModule->HWindow) {
        return false;
    }
    pModule->SendMessage(kHostOpenBookmark, 0, reinterpret_cast<LPARAM>(&bookmark));
    return true;
}

void HostMainFrame::DeleteBookmark(std::size_t index)
{
    const std::vector<HostBookmark> kept = Bookmarks.Read();
    if (index >= kept.size()) {
        return;
    }
    const std::string question =
        formatHostString(HostText("STID_BOOKMARK_DELETE"), {kept[index].Title});
    if (MessageBox(question.c_str(), GetWindowText().c_str(), MB_YESNO | MB_ICONQUESTION) ==
        IDYES) {
        Bookmarks.Remove(index);
    }
}
