#pragma once
// A plain top-level window to put controls in, that writes down the notifications they send.
#include <string>
#include <vector>

#include "platform/TWindow.h"

class ControlHost : public TWindow
{
public:
    struct Notification
    {
        int Id;
        UINT Code;
        bool operator==(const Notification& other) const
        {
            return Id == other.Id && Code == other.Code;
        }
    };

    ControlHost() : TWindow(nullptr, "Controls")
    {
        Attr.X = 20;
        Attr.Y = 20;
        Attr.W = 400;
        Attr.H = 300;
    }

    std::vector<Notification> Notes;

    int Count(int id, UINT code) const
    {
        int n = 0;
        for (const Notification& note : Notes) {
            n += note.Id == id && note.Code == code;
        }
        return n;
    }

    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == WM_COMMAND) {
            Notes.push_back(Notification{int(LOWORD(wParam)), UINT(HIWORD(wParam))});
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }
};
