#pragma once
// Response tables: how a window class says which member function answers which message.
//
// A table is a list of rows. A row names a message number, or for WM_COMMAND a command or
// control id with a notification code, and the member function that handles it. A window
// looks a message up with its virtual Find: each class searches its own table and then calls
// its base class's Find, so a row in a derived class hides the base's row for the same message.
//
//   const TResponseRow* MapWindow::Find(const TEventInfo& event) const
//   {
//       static const TResponseTable table{
//           EvRow<WM_SIZE, &MapWindow::EvSize>(),
//           EvRow<WM_TIMER, &MapWindow::EvTimer>(),
//           MsgRow<0x08B0, &MapWindow::EvShowStartingObject>(),
//           CmRow<25021, &MapWindow::CmZoomIn>(),
//           NotifyRow<0x3EA, EN_CHANGE, &MapWindow::EvNameChange>(),
//       };
//       const TResponseRow* row = table.Find(event);
//       return row ? row : TWindow::Find(event);
//   }
//
// EvRow unpacks the parameters of the standard messages as the handlers take them:
//   WM_SIZE                      (UINT sizeType, TSize& size)
//   mouse messages               (UINT keys, TPoint& point), point in client coordinates
//   WM_MOUSEWHEEL                (UINT keys, int delta, TPoint& point), point on the screen
//   WM_TIMER                     (UINT id)
//   WM_CHAR, WM_KEYDOWN, WM_KEYUP (UINT key, UINT repeatCount, UINT flags)
//   WM_ERASEBKGND                (HDC dc), returning bool: true when the background is done
//   WM_SETFOCUS, WM_KILLFOCUS    (HWND other)
//   WM_VSCROLL, WM_HSCROLL       (UINT code, int position, HWND scrollBar)
//   WM_CTLCOLOR...               (HDC dc, HWND control, UINT message), returning HBRUSH or null
//   WM_PAINT, WM_CLOSE, WM_DESTROY ()
// Any other message, private ones included, goes to a handler of (WPARAM, LPARAM) that returns
// LRESULT (MsgRow). Commands and notifications take no parameters. A handler may return void
// (the message's result is 0), bool, an integer or a pointer.
#include <initializer_list>
#include <type_traits>
#include <vector>

#include "platform/TPoint.h"
#include "platform/TSize.h"
#include "platform/WinTypes.h"

class TWindow;

// What a message is looked up by: its number, and for WM_COMMAND the id and the notification
// code (0 for menu commands and clicks).
struct TEventInfo
{
    UINT Msg = 0;
    UINT Id = 0;
    UINT Code = 0;
};

using TEventHandler = LRESULT (*)(TWindow& window, WPARAM wParam, LPARAM lParam);

struct TResponseRow
{
    UINT Msg;
    UINT Id;
    UINT Code;
    TEventHandler Handler;
};

class TResponseTable
{
public:
    TResponseTable(std::initializer_list<TResponseRow> rows) : aRows(rows) {}

    // The row for an event, null when the table has none.
    const TResponseRow* Find(const TEventInfo& event) const;

private:
    std::vector<TResponseRow> aRows;
};

namespace response_detail {

template <class Member>
struct MemberOf;
template <class C, class R, class... A>
struct MemberOf<R (C::*)(A...)>
{
    using Class = C;
};
template <class C, class R, class... A>
struct MemberOf<R (C::*)(A...) const>
{
    using Class = C;
};

// Calls the member and turns what it returns into a message result.
template <auto Member, class Self, class... Args>
LRESULT Call(Self& self, Args&&... args)
{
    using Result = decltype((self.*Member)(args...));
    if constexpr (std::is_void_v<Result>) {
        (self.*Member)(args...);
        return 0;
    } else if constexpr (std::is_pointer_v<Result>) {
        return reinterpret_cast<LRESULT>((self.*Member)(args...));
    } else {
        return LRESULT((self.*Member)(args...));
    }
}

constexpr bool IsClientMouseMessage(UINT msg)
{
    return msg == WM_MOUSEMOVE || (msg >= WM_LBUTTONDOWN && msg <= WM_MBUTTONUP);
}

constexpr bool IsCtlColorMessage(UINT msg)
{
    return msg >= WM_CTLCOLOREDIT && msg <= WM_CTLCOLORSTATIC;
}

template <UINT Msg, auto Member>
LRESULT Crack(TWindow& window, WPARAM w, LPARAM l)
{
    using Class = typename MemberOf<decltype(Member)>::Class;
    auto& self = static_cast<Class&>(window);
    if constexpr (Msg == WM_SIZE) {
        TSize size(LOWORD(std::uintptr_t(l)), HIWORD(std::uintptr_t(l)));
        return Call<Member>(self, UINT(w), size);
    } else if constexpr (IsClientMouseMessage(Msg)) {
        TPoint point(GET_X_LPARAM(l), GET_Y_LPARAM(l));
        return Call<Member>(self, UINT(w), point);
    } else if constexpr (Msg == WM_MOUSEWHEEL) {
        TPoint point(GET_X_LPARAM(l), GET_Y_LPARAM(l));
        return Call<Member>(self, UINT(LOWORD(w)), int(short(HIWORD(w))), point);
    } else if constexpr (Msg == WM_TIMER) {
        return Call<Member>(self, UINT(w));
    } else if constexpr (Msg == WM_CHAR || Msg == WM_KEYDOWN || Msg == WM_KEYUP) {
        return Call<Member>(self, UINT(w), UINT(LOWORD(std::uintptr_t(l))),
                            UINT(HIWORD(std::uintptr_t(l))));
    } else if constexpr (Msg == WM_ERASEBKGND) {
        return Call<Member>(self, reinterpret_cast<HDC>(w));
    } else if constexpr (Msg == WM_SETFOCUS || Msg == WM_KILLFOCUS) {
        return Call<Member>(self, reinterpret_cast<HWND>(w));
    } else if constexpr (Msg == WM_VSCROLL || Msg == WM_HSCROLL) {
        return Call<Member>(self, UINT(LOWORD(w)), int(short(HIWORD(w))),
                            reinterpret_cast<HWND>(l));
    } else if constexpr (IsCtlColorMessage(Msg)) {
        return Call<Member>(self, reinterpret_cast<HDC>(w), reinterpret_cast<HWND>(l), Msg);
    } else if constexpr (Msg == WM_PAINT || Msg == WM_CLOSE || Msg == WM_DESTROY) {
        return Call<Member>(self);
    } else {
        return Call<Member>(self, w, l);
    }
}

template <auto Member>
LRESULT Raw(TWindow& window, WPARAM w, LPARAM l)
{
    using Class = typename MemberOf<decltype(Member)>::Class;
    return Call<Member>(static_cast<Class&>(window), w, l);
}

template <auto Member>
LRESULT NoArguments(TWindow& window, WPARAM, LPARAM)
{
    using Class = typename MemberOf<decltype(Member)>::Class;
    return Call<Member>(static_cast<Class&>(window));
}

} // namespace response_detail

// A standard message, its parameters unpacked as the list above says.
template <UINT Msg, auto Member>
constexpr TResponseRow EvRow()
{
    return TResponseRow{Msg, 0, 0, &response_detail::Crack<Msg, Member>};
}

// A message whose handler takes (WPARAM, LPARAM) as they come: private and host messages.
template <UINT Msg, auto Member>
constexpr TResponseRow MsgRow()
{
    return TResponseRow{Msg, 0, 0, &response_detail::Raw<Member>};
}

// A command: a menu item, an accelerator or a click on a button of that id.
template <UINT Id, auto Member>
constexpr TResponseRow CmRow()
{
    return TResponseRow{WM_COMMAND, Id, 0, &response_detail::NoArguments<Member>};
}

// A notification from the control of an id with a code (EN_CHANGE, LBN_SELCHANGE, ...).
template <UINT Id, UINT Code, auto Member>
constexpr TResponseRow NotifyRow()
{
    return TResponseRow{WM_COMMAND, Id, Code, &response_detail::NoArguments<Member>};
}
