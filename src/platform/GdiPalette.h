#pragma once
// The object behind a palette handle: its entries and a nearest-colour search over them.
#include <vector>

#include "platform/ColorMatcher.h"
#include "platform/GdiObject.h"
#include "platform/WinTypes.h"

class GdiPalette : public GdiObject
{
public:
    explicit GdiPalette(std::vector<PALETTEENTRY> entries);

    int Count() const { return int(aEntries.size()); }
    const std::vector<PALETTEENTRY>& GetEntries() const { return aEntries; }
    void SetEntries(int start, const PALETTEENTRY* entries, int count);
    // The plain RGB of entry `index`; black for an index beyond the palette.
    COLORREF ColorOf(int index) const;
    // The entry nearest to an RGB colour.
    int Nearest(COLORREF rgb) const { return Matcher.Nearest(rgb); }

    // A palette describes itself by its number of entries, a WORD.
    int Describe(int size, void* buffer) const override;

private:
    void Rebuild();

    std::vector<PALETTEENTRY> aEntries;
    ColorMatcher Matcher;
};
