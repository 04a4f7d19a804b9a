#include "platform/ColorMatcher.h"

#include <utility>

ColorMatcher::ColorMatcher(std::vector<COLORREF> colors)
{
    SetColors(std::move(colors));
}

void ColorMatcher::SetColors(std::vector<COLORREF> colors)
{
    aColors = std::move(colors);
    for (COLORREF& c : aColors) {
        c &= 0x00FFFFFF;
    }
    aCache.fill(CacheEntry{});
}

int ColorMatcher::Nearest(COLORREF rgb) const
{
    rgb &= 0x00FFFFFF;
    // A multiplicative hash spreads neighbouring greys over the cache.
    std::size_t slot = ((rgb * 2654435761u) >> 22) & (kCacheSize - 1);
    CacheEntry& entry = aCache[slot];
    if (entry.Key != rgb) {
        entry.Key = rgb;
        entry.Index = Search(rgb);
    }
    return entry.Index;
}

int ColorMatcher::Search(COLORREF rgb) const
{
    int r = GetRValue(rgb), g = GetGValue(rgb), b = GetBValue(rgb);
    int best = 0;
    long bestDistance = -1;
    for (std::size_t i = 0; i < aColors.size(); ++i) {
        long dr = GetRValue(aColors[i]) - r;
        long dg = GetGValue(aColors[i]) - g;
        long db = GetBValue(aColors[i]) - b;
        long distance = dr * dr + dg * dg + db * db;
        if (bestDistance < 0 || distance < bestDistance) {
            bestDistance = distance;
            best = int(i);
            if (distance == 0) {
                break;
            }
        }
    }
    return best;
}
