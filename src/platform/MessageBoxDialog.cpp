#include "platform/MessageBoxDialog.h"

#include <algorithm>

#include "platform/ControlLook.h"
#include "platform/TBrush.h"
#include "platform/TButton.h"
#include "platform/TDC.h"
#include "platform/TMemoryDC.h"
#include "platform/TPen.h"
#include "platform/TStatic.h"
#include "platform/TextLayout.h"

namespace {

constexpr int kMargin = 12;
constexpr int kIconSize = 32;
constexpr int kButtonWidth = 75;
constexpr int kButtonHeight = 23;
constexpr int kButtonGap = 8;
constexpr int kTextWidth = 360;

std::vector<int> ButtonsOf(UINT type)
{
    switch (type & MB_TYPEMASK) {
    case MB_OKCANCEL:
        return {IDOK, IDCANCEL};
    case MB_ABORTRETRYIGNORE:
        return {IDABORT, IDRETRY, IDIGNORE};
    case MB_YESNOCANCEL:
        return {IDYES, IDNO, IDCANCEL};
    case MB_YESNO:
        return {IDYES, IDNO};
    case MB_RETRYCANCEL:
        return {IDRETRY, IDCANCEL};
    default:
        return {IDOK};
    }
}

const char* LabelOf(int id)
{
    switch (id) {
    case IDOK:
        return "OK";
    case IDCANCEL:
        return "Cancel";
    case IDABORT:
        return "&Abort";
    case IDRETRY:
        return "&Retry";
    case IDIGNORE:
        return "&Ignore";
    case IDYES:
        return "&Yes";
    case IDNO:
        return "&No";
    default:
        return "";
    }
}

} // namespace

MessageBoxDialog::MessageBoxDialog(TWindow* owner, const std::string& text,
                                   const std::string& caption, UINT type)
    : TDialog(owner, caption.empty() ? "Error" : caption.c_str()), aButtons(ButtonsOf(type)),
      nIcon(type & MB_ICONMASK)
{
    TMemoryDC measure;
    measure.SelectObject(GetWindowFont());
    TextLayout layout(measure, text, kTextWidth, DT_WORDBREAK | DT_NOPREFIX);
    int textLeft = kMargin + (nIcon ? kIconSize + kMargin : 0);
    int textHeight = std::max(layout.GetHeight(), nIcon ? kIconSize : 0);
    int buttonsWidth = int(aButtons.size()) * (kButtonWidth + kButtonGap) - kButtonGap;
    int width = std::max(textLeft + layout.GetWidth() + kMargin, buttonsWidth + 2 * kMargin);
    int buttonsTop = kMargin + textHeight + kMargin;
    Attr.W = std::max(width, 160);
    Attr.H = buttonsTop + kButtonHeight + kMargin;
    IconRect = TRect(kMargin, kMargin, kMargin + kIconSize, kMargin + kIconSize);

    int textTop = kMargin + (textHeight - layout.GetHeight()) / 2;
    auto* label = new TStatic(this, -1, text.c_str(), textLeft, textTop, layout.GetWidth() + 2,
                              layout.GetHeight(), 0);
    label->Attr.Style |= SS_NOPREFIX;

    std::size_t defaultIndex = (type & MB_DEFMASK) >> 8;
    if (defaultIndex >= aButtons.size()) {
        defaultIndex = 0;
    }
    int x = Attr.W - kMargin - buttonsWidth;
    for (std::size_t i = 0; i < aButtons.size(); ++i) {
        auto* button = new TButton(this, aButtons[i], LabelOf(aButtons[i]), x, buttonsTop,
                                   kButtonWidth, kButtonHeight, i == defaultIndex);
        // The default button is the first to have the focus.
        if (i == defaultIndex) {
            ReorderChildren({button});
        }
        x += kButtonWidth + kButtonGap;
    }
}

int MessageBoxDialog::GetEscapeAnswer() const
{
    if (std::find(aButtons.begin(), aButtons.end(), IDCANCEL) != aButtons.end()) {
        return IDCANCEL;
    }
    return aButtons.size() == 1 ? aButtons.front() : 0;
}

LRESULT MessageBoxDialog::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    if (msg == WM_COMMAND) {
        int id = LOWORD(wParam);
        if (id == IDCANCEL && !GetEscapeAnswer()) {
            // Escape does nothing in a box that cannot be cancelled.
            return 0;
        }
        if (id == IDCANCEL) {
            id = GetEscapeAnswer();
        }
        if (std::find(aButtons.begin(), aButtons.end(), id) != aButtons.end()) {
            EndDialog(id);
        }
        return 0;
    }
    if (msg == WM_CLOSE) {
        // Closed without an answer: what Escape answers, or else the last button.
        int answer = GetEscapeAnswer();
        EndDialog(answer ? answer : aButtons.back());
        return 0;
    }
    return TDialog::WindowProc(msg, wParam, lParam);
}

void MessageBoxDialog::Paint(TDC& dc, bool, TRect&)
{
    if (!nIcon) {
        return;
    }
    // A round sign with a letter: a cross for errors, "?" for questions, "!" for warnings,
    // "i" for information.
    COLORREF color = RGB(0, 99, 177);
    const char* letter = "i";
    if (nIcon == MB_ICONHAND) {
        color = RGB(196, 43, 28);
        letter = "X";
    } else if (nIcon == MB_ICONQUESTION) {
        letter = "?";
    } else if (nIcon == MB_ICONEXCLAMATION) {
        color = RGB(234, 157, 0);
        letter = "!";
    }
    dc.SelectObject(TPen(color));
    dc.SelectObject(TBrush(color));
    dc.Ellipse(IconRect);
    dc.RestorePen();
    dc.RestoreBrush();
    dc.SelectObject(TFont("Arial", -20, 0, 0, 0, FW_BOLD));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(TColor::White);
    TextLayout(dc, letter, IconRect.Width(), DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX)
        .Draw(dc, IconRect);
    dc.RestoreFont();
}
