#include "platform/GdiPalette.h"

#include <cstring>

GdiPalette::GdiPalette(std::vector<PALETTEENTRY> entries) : aEntries(std::move(entries))
{
    Rebuild();
}

void GdiPalette::SetEntries(int start, const PALETTEENTRY* entries, int count)
{
    for (int i = 0; i < count; ++i) {
        if (start + i >= 0 && start + i < Count()) {
            aEntries[std::size_t(start + i)] = entries[i];
        }
    }
    Rebuild();
}

COLORREF GdiPalette::ColorOf(int index) const
{
    if (index < 0 || index >= Count()) {
        return RGB(0, 0, 0);
    }
    const PALETTEENTRY& e = aEntries[std::size_t(index)];
    return RGB(e.peRed, e.peGreen, e.peBlue);
}

int GdiPalette::Describe(int size, void* buffer) const
{
    if (!buffer || size < int(sizeof(WORD))) {
        return 0;
    }
    WORD count = WORD(Count());
    std::memcpy(buffer, &count, sizeof count);
    return int(sizeof count);
}

void GdiPalette::Rebuild()
{
    std::vector<COLORREF> colors;
    colors.reserve(aEntries.size());
    for (const PALETTEENTRY& e : aEntries) {
        colors.push_back(RGB(e.peRed, e.peGreen, e.peBlue));
    }
    Matcher.SetColors(std::move(colors));
}
