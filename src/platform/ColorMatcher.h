#pragma once
// Finds the entry of a colour table nearest to an RGB colour: the smallest sum of squared
// differences of red, green and blue, the lowest index among equals. Remembers recent answers,
// because drawing asks for the same few colours over and over.
#include <array>
#include <cstdint>
#include <vector>

#include "platform/WinTypes.h"

class ColorMatcher
{
public:
    ColorMatcher() = default;
    // Colours as COLORREF values (the top byte is ignored).
    explicit ColorMatcher(std::vector<COLORREF> colors);

    void SetColors(std::vector<COLORREF> colors);
    const std::vector<COLORREF>& GetColors() const { return aColors; }
    int Count() const { return int(aColors.size()); }

    // The index nearest to `rgb`; 0 when the table is empty.
    int Nearest(COLORREF rgb) const;

private:
    struct CacheEntry
    {
        COLORREF Key = CLR_INVALID;
        int Index = 0;
    };
    static constexpr std::size_t kCacheSize = 1024;

    int Search(COLORREF rgb) const;

    std::vector<COLORREF> aColors;
    mutable std::array<CacheEntry, kCacheSize> aCache{};
};
