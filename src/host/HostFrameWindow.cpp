#include "host/HostFrameWindow.h"

#include "catalogues/LorvString.h"
#include "host/HostBookmark.h"
#include "host/SkyhuntGame.h"
#include "platform/DebugStream.h"

HostFrameWindow::HostFrameWindow(const char* title, int width, int height) : TWindow(nullptr, title)
{
    Attr.X = 0;
    Attr.Y = 0;
    Attr.W = width;
    Attr.H = height;
    // The component paints all of it.
    SetBkgndColor(TColor::None);
}

const TResponseRow* HostFrameWindow::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SIZE, &HostFrameWindow::EvSize>(),
        MsgRow<kStartModuleMessage, &HostFrameWindow::WmuStartModule>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}

void HostFrameWindow::EvSize(UINT sizeType, TSize& size)
{
    TWindow::EvSize(sizeType, size);
    for (TWindow* child : GetChildren()) {
        if (child->HWindow) {
            child->MoveWindow(0, 0, size.cx, size.cy);
        }
    }
}

LRESULT HostFrameWindow::WmuStartModule(WPARAM, LPARAM bookmark)
{
    const auto* request = reinterpret_cast<const HostBookmark*>(bookmark);
    if (request && EqualNoCase(request->Command, "skyhunt")) {
        return StartSkyhuntGame() ? 1 : 0;
    }
    dbstream << "HostFrameWindow: no module for \"" << (request ? request->Command : "") << "\""
             << dbendl;
    return 0;
}
