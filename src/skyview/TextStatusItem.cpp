#include "skyview/TextStatusItem.h"

#include <sstream>

#include "platform/ControlLook.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindow.h"

TextStatusItem::TextStatusItem(int id, const std::string& heading, std::size_t lines)
    : AstroStatusItem(id), Heading(heading)
{
    aLines.reserve(lines);
    for (std::size_t i = 0; i < lines; ++i) {
        aLines.push_back(new std::string());
    }
}

const std::string& TextStatusItem::GetLine(std::size_t index) const
{
    static const std::string none;
    return index < aLines.size() ? *aLines[index] : none;
}

void TextStatusItem::SetLine(std::size_t index, const std::string& text)
{
    if (index < aLines.size()) {
        *aLines[index] = text;
    }
}

void TextStatusItem::GetDesiredSize(TSize& size)
{
    TGadget::GetDesiredSize(size);
    if (GetShrinkWrapWidth()) {
        size.cx += GetCharacterWidth() * GetCharacterCount() + GetIndent();
    }
    if (GetShrinkWrapHeight()) {
        const TGadgetWindow* window = GetGadgetWindow();
        const int fontHeight = window ? window->GetFontHeight() : 0;
        size.cy += fontHeight * int(aLines.size() + 1);
    }
}

void TextStatusItem::Paint(TDC& dc)
{
    PaintBorder(dc);
    const TGadgetWindow* window = GetGadgetWindow();
    if (!window) {
        return;
    }
    const TRect inner = GetInnerRect();
    const int fontHeight = window->GetFontHeight();
    const TColor background = dc.SetBkColor(TColor(GetSysColor(COLOR_BTNFACE)));
    const TColor text = dc.SetTextColor(TColor(GetSysColor(COLOR_BTNTEXT)));

    // Each row is as wide as the block; the lines begin at the indent from the block's left.
    TRect row(inner.left, inner.top, inner.right, inner.top + fontHeight);
    dc.ExtTextOut(TPoint(inner.left, inner.top), ETO_CLIPPED | ETO_OPAQUE, &row, Heading);
    const int lineLeft = GetBounds().left + GetIndent();
    for (const std::string* line : aLines) {
        row = row.OffsetBy(0, fontHeight);
        dc.ExtTextOut(TPoint(lineLeft, row.top), ETO_CLIPPED | ETO_OPAQUE, &row, *line);
    }

    dc.SetBkColor(background);
    dc.SetTextColor(text);
}

std::string TextStatusItem::Number(double value)
{
    std::ostringstream out;
    out << value;
    return out.str();
}
