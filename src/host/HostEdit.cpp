#include "host/HostEdit.h"

namespace {

constexpr char kEscape = 0x1B;

} // namespace

HostEdit::HostEdit(TWindow* parent, int id, UINT textLimit)
    : TEdit(parent, id, "", 0, 0, 0, 0, textLimit)
{}

LRESULT HostEdit::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    // Emptying tells the parent of the change, as typing does.
    if (msg == WM_CHAR && char(wParam) == kEscape && !(Attr.Style & ES_READONLY)) {
        if (GetTextLen() > 0) {
            Clear();
        }
        return 0;
    }
    return TEdit::DefWindowProc(msg, wParam, lParam);
}
