#include "platform/Blitter.h"

#include <array>
#include <cstring>
#include <vector>

namespace {

BYTE TruthTable(DWORD rop)
{
    return BYTE((rop >> 16) & 0xFF);
}

// Turns source pixels of one row into destination values.
class Converter
{
public:
    Converter(const PixelSource& source, const Surface& target) : Source(source), Target(target)
    {
        if (!source.IsIndexed()) {
            return;
        }
        const std::vector<COLORREF>& table = source.ColorTable();
        bool sameTable = target.IsIndexed() && table.size() == 256 &&
                         (source.GetSurface() == &target || table == target.ColorTable());
        for (std::size_t i = 0; i < aLookup.size(); ++i) {
            COLORREF c = i < table.size() ? table[i] : RGB(0, 0, 0);
            aLookup[i] = sameTable ? std::uint32_t(i) : target.ValueForColor(c);
        }
    }

    std::uint32_t At(const BYTE* row, int x) const
    {
        switch (Source.BitCount()) {
        case 8:
            return aLookup[row[x]];
        case 1:
            return aLookup[(row[x >> 3] >> (7 - (x & 7))) & 1];
        case 4:
            return aLookup[(x & 1) ? row[x >> 1] & 0x0F : row[x >> 1] >> 4];
        default: {
            const BYTE* p = row + std::size_t(x) * std::size_t(Source.BitCount() / 8);
            COLORREF rgb = RGB(p[2], p[1], p[0]);
            return Target.IsIndexed() ? Target.ValueForColor(rgb) : Surface::RgbToValue(rgb);
        }
        }
    }

private:
    const PixelSource& Source;
    const Surface& Target;
    std::array<std::uint32_t, 256> aLookup{};
};

std::uint32_t LoadValue(const Surface& s, const BYTE* row, int x)
{
    if (s.IsIndexed()) {
        return row[x];
    }
    std::uint32_t v;
    std::memcpy(&v, row + 4 * x, 4);
    return v & 0x00FFFFFF;
}

void StoreValue(const Surface& s, BYTE* row, int x, std::uint32_t v)
{
    if (s.IsIndexed()) {
        row[x] = BYTE(v);
    } else {
        v &= 0x00FFFFFF;
        std::memcpy(row + 4 * x, &v, 4);
    }
}

// Source coordinate of destination step i of n over a source span of m: the pixel under the
// centre of the destination pixel.
int Sample(int i, int n, int m)
{
    return int((2 * std::int64_t(i) + 1) * m / (2 * std::int64_t(n)));
}

} // namespace

bool Blitter::UsesSource(DWORD rop)
{
    BYTE t = TruthTable(rop);
    return ((t ^ (t >> 2)) & 0x33) != 0;
}

bool Blitter::UsesPattern(DWORD rop)
{
    BYTE t = TruthTable(rop);
    return ((t ^ (t >> 4)) & 0x0F) != 0;
}

std::uint32_t Blitter::Combine(DWORD rop, std::uint32_t p, std::uint32_t s, std::uint32_t d)
{
    BYTE t = TruthTable(rop);
    switch (t) {
    case 0xCC:
        return s;
    case 0x88:
        return s & d;
    case 0xEE:
        return s | d;
    case 0x22:
        return d & ~s;
    case 0x66:
        return s ^ d;
    case 0x55:
        return ~d;
    case 0xF0:
        return p;
    case 0x00:
        return 0;
    case 0xFF:
        return ~0u;
    default:
        break;
    }
    // Bit i of the table is the result for pattern bit 4, source bit 2, destination bit 1.
    std::uint32_t result = 0;
    for (int i = 0; i < 8; ++i) {
        if (t & (1 << i)) {
            result |= ((i & 4) ? p : ~p) & ((i & 2) ? s : ~s) & ((i & 1) ? d : ~d);
        }
    }
    return result;
}

bool Blitter::Blit(Raster& target, int dx, int dy, int dw, int dh, const PixelSource* source,
                   int sx, int sy, int sw, int sh, DWORD rop, std::uint32_t pattern)
{
    bool needSource = UsesSource(rop);
    if (dw <= 0 || dh <= 0 || (needSource && (!source || !source->IsOK() || sw <= 0 || sh <= 0))) {
        return false;
    }
    Surface& out = target.GetSurface();
    const TRect& clip = target.GetClip();
    TRect area = TRect(dx, dy, dx + dw, dy + dh) & clip;
    if (area.IsEmpty()) {
        return true;
    }
    std::uint32_t mask = out.IsIndexed() ? 0xFF : 0x00FFFFFF;

    if (!needSource) {
        for (int y = area.top; y < area.bottom; ++y) {
            BYTE* row = out.Row(y);
            for (int x = area.left; x < area.right; ++x) {
                StoreValue(out, row, x, Combine(rop, pattern, 0, LoadValue(out, row, x)) & mask);
            }
        }
        return true;
    }

    PixelSource src = *source;
    if (src.GetSurface() == &out) {
        src.TakeCopy();
    }
    Converter convert(src, out);
    // Source column of each destination column; -1 where it falls outside the source.
    std::vector<int> columns(std::size_t(area.Width()));
    for (int x = area.left; x < area.right; ++x) {
        int c = sx + (sw == dw ? x - dx : Sample(x - dx, dw, sw));
        columns[std::size_t(x - area.left)] = c >= 0 && c < src.Width() ? c : -1;
    }
    bool copy = TruthTable(rop) == 0xCC;
    for (int y = area.top; y < area.bottom; ++y) {
        int row = sy + (sh == dh ? y - dy : Sample(y - dy, dh, sh));
        if (row < 0 || row >= src.Height()) {
            continue;
        }
        const BYTE* in = src.Row(row);
        BYTE* line = out.Row(y);
        for (int x = area.left; x < area.right; ++x) {
            int c = columns[std::size_t(x - area.left)];
            if (c < 0) {
                continue;
            }
            std::uint32_t s = convert.At(in, c);
            if (!copy) {
                s = Combine(rop, pattern, s, LoadValue(out, line, x)) & mask;
            }
            StoreValue(out, line, x, s);
        }
    }
    return true;
}
