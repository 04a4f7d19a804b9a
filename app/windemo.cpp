// orbiscope_windemo: a window with a button that opens a modal dialog, on a display (SDL2) or
// on the headless desktop. The end-to-end tests drive it; it tells what happens on stdout, one
// line per event, so that a test can follow it.
//
//   orbiscope_windemo                      on the display (SDL_VIDEODRIVER=x11 under Xvfb)
//   orbiscope_windemo --headless --out F   opens the dialog, answers it as a user would and
//                                          writes the desktop with the dialog open to F (PNG)
//
// When the dialog is on the screen the demo says "dialog open LEFT TOP RIGHT BOTTOM ok X Y":
// its rectangle and the middle of its OK button, on the screen.
//
// The window stands at the top left of the screen, 400 by 300 pixels, dark blue. Its button
// "Open dialog" opens "Demo dialog" (a name field, OK and Cancel); after OK the window turns
// green, after Cancel red. A click on the window itself turns it orange; "q" quits.
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include "platform/DialogTemplate.h"
#include "platform/TBrush.h"
#include "platform/TButton.h"
#include "platform/TDC.h"
#include "platform/TDialog.h"
#include "platform/TEdit.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/sdl/SdlBackend.h"

namespace {

constexpr int kOpenId = 101;
constexpr int kNameId = 201;
constexpr int kDialogId = 9000;
constexpr UINT_PTR kTickTimer = 1;

void Say(const std::string& line)
{
    std::cout << line << std::endl;
}

std::string At(const TWindow& window)
{
    TRect r = window.GetWindowRect();
    TPoint middle(r.left + r.Width() / 2, r.top + r.Height() / 2);
    return std::to_string(middle.x) + " " + std::to_string(middle.y);
}

// Posted by the dialog to itself at setup: it arrives once the dialog runs, as it is shown.
constexpr UINT kAnnounce = WM_USER + 1;

class DemoDialog : public TDialog
{
public:
    explicit DemoDialog(TWindow* parent) : TDialog(parent, TResId(kDialogId))
    {
        pName = new TEdit(this, kNameId, 40);
    }
    TEdit* pName;
    std::string Name;

    void SetupWindow() override
    {
        TDialog::SetupWindow();
        pName->SetText("Vega");
        PostMessage(kAnnounce);
    }
    void CmOk() override
    {
        Name = pName->GetText();
        TDialog::CmOk();
    }
    // Says where the dialog and its OK button are on the screen.
    LRESULT EvAnnounce(WPARAM, LPARAM)
    {
        TWindow* ok = ChildWithId(IDOK);
        TRect r = GetWindowRect();
        Say("dialog open " + std::to_string(r.left) + " " + std::to_string(r.top) + " " +
            std::to_string(r.right) + " " + std::to_string(r.bottom) + " ok " +
            (ok ? At(*ok) : std::string("0 0")));
        return 0;
    }
    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{MsgRow<kAnnounce, &DemoDialog::EvAnnounce>()};
        const TResponseRow* row = table.Find(event);
        return row ? row : TDialog::Find(event);
    }
};

class DemoWindow : public TWindow
{
public:
    DemoWindow() : TWindow(nullptr, "Orbiscope window demo")
    {
        Attr.X = 0;
        Attr.Y = 0;
        Attr.W = 400;
        Attr.H = 300;
        pOpen = new TButton(this, kOpenId, "Open dialog", 20, 20, 120, 28);
    }
    TButton* pOpen;
    TColor Fill = TColor(0, 0, 128);
    int nTicks = 0;

    void SetupWindow() override
    {
        TWindow::SetupWindow();
        SetTimer(kTickTimer, 250);
    }
    void Paint(TDC& dc, bool, TRect&) override
    {
        dc.FillRect(GetClientRect(), TBrush(Fill));
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(TColor::White);
        dc.TextOut(20, 270, "ticks: " + std::to_string(nTicks));
    }
    void EvTimer(UINT)
    {
        ++nTicks;
        InvalidateRect(TRect(0, 260, 200, 300));
    }
    void EvLButtonDown(UINT, TPoint& p)
    {
        Fill = TColor(255, 128, 0);
        Invalidate();
        Say("clicked " + std::to_string(p.x) + " " + std::to_string(p.y));
    }
    void EvChar(UINT key, UINT, UINT)
    {
        if (key == 'q') {
            Say("quit");
            PostQuitMessage(0);
        }
    }
    void EvClose() { PostQuitMessage(0); }
    void CmOpen()
    {
        DemoDialog dialog(this);
        int result = dialog.Execute();
        Fill = result == IDOK ? TColor(0, 160, 0) : TColor(200, 0, 0);
        Invalidate();
        Say("dialog closed " + std::to_string(result) + " " + dialog.Name);
    }

    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{
            EvRow<WM_TIMER, &DemoWindow::EvTimer>(),
            EvRow<WM_LBUTTONDOWN, &DemoWindow::EvLButtonDown>(),
            EvRow<WM_CHAR, &DemoWindow::EvChar>(),
            EvRow<WM_CLOSE, &DemoWindow::EvClose>(),
            CmRow<kOpenId, &DemoWindow::CmOpen>(),
        };
        const TResponseRow* row = table.Find(event);
        return row ? row : TWindow::Find(event);
    }
};

void AddTemplate()
{
    DialogTemplate t;
    t.Title = "Demo dialog";
    t.Cx = 180;
    t.Cy = 70;
    t.Items = {
        DialogItemTemplate::Label("Name:", -1, 7, 9, 30, 8),
        DialogItemTemplate::Edit(kNameId, 40, 7, 130, 14),
        DialogItemTemplate::PushButton("OK", IDOK, 66, 48, 50, 14, true),
        DialogItemTemplate::PushButton("Cancel", IDCANCEL, 122, 48, 50, 14),
    };
    AddDialogResource(TResId(kDialogId), t);
}

// The dialog's answer on the headless desktop: a user types a name and presses OK, after the
// window behind has ticked for a second and the picture has been taken.
int RunHeadless(const std::string& out)
{
    HeadlessBackend& desk = Headless();
    DemoWindow window;
    window.Create();
    desk.AdvanceTime(0);
    Say("ready");
    bool saved = false;
    desk.AnswerNextModal([&](TWindow& dialog) {
        desk.AdvanceTime(1000);
        HeadlessBackend::TypeInto(dialog, kNameId, "Deneb");
        desk.AdvanceTime(0);
        saved = out.empty() || desk.SaveDesktopPng(out);
        HeadlessBackend::PressButton(dialog, IDOK);
    });
    desk.Click(window, TPoint(80, 34));
    desk.AdvanceTime(0);
    Say("ticks " + std::to_string(window.nTicks));
    window.Destroy();
    return saved ? 0 : 1;
}

// On a display the loop runs until "q", or until the window is closed.
int RunOnDisplay()
{
    std::string error;
    auto backend = SdlBackend::Open(error);
    if (!backend) {
        std::cerr << "orbiscope_windemo: no display: " << error << std::endl;
        return 2;
    }
    WindowSystem::Get().SetBackend(std::move(backend));
    int code = 0;
    {
        DemoWindow window;
        window.Create();
        WindowSystem::Get().ProcessAll();
        Say("ready");
        code = WindowSystem::Get().Run();
        window.Destroy();
    }
    WindowSystem::Get().SetBackend(std::make_unique<HeadlessBackend>());
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    AddTemplate();
    bool headless = false;
    std::string out;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--headless") == 0) {
            headless = true;
        } else if (std::strcmp(argv[i], "--out") == 0 && i + 1 < argc) {
            out = argv[++i];
        } else {
            std::fprintf(stderr, "usage: orbiscope_windemo [--headless [--out picture.png]]\n");
            return 2;
        }
    }
    return headless ? RunHeadless(out) : RunOnDisplay();
}
