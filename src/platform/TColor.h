#pragma once
// A colour value as the drawing calls take it: plain RGB, a palette index (0x01000000 | i)
// or an RGB to be matched in the palette (0x02000000 | rgb). Converts to and from COLORREF.
#include "platform/WinTypes.h"

class TColor
{
public:
    constexpr TColor() : Value(0) {}
    constexpr TColor(COLORREF value) : Value(value) {}
    constexpr TColor(int r, int g, int b) : Value(RGB(BYTE(r), BYTE(g), BYTE(b))) {}
    constexpr TColor(const PALETTEENTRY& e) : Value(RGB(e.peRed, e.peGreen, e.peBlue)) {}
    constexpr TColor(const RGBQUAD& q) : Value(RGB(q.rgbRed, q.rgbGreen, q.rgbBlue)) {}

    // Entry `index` of the palette selected into the context that draws with it.
    static constexpr TColor PaletteIndex(int index) { return TColor(PALETTEINDEX(WORD(index))); }

    constexpr operator COLORREF() const { return Value; }
    constexpr COLORREF GetValue() const { return Value; }

    constexpr BYTE Red() const { return GetRValue(Value); }
    constexpr BYTE Green() const { return GetGValue(Value); }
    constexpr BYTE Blue() const { return GetBValue(Value); }
    // The palette index of a palette-index colour.
    constexpr WORD Index() const { return WORD(Value & 0xFFFF); }

    constexpr bool IsPaletteIndex() const { return (Value >> 24) == 0x01; }
    constexpr bool IsPaletteRelative() const { return (Value >> 24) == 0x02; }
    // The same red, green and blue as a plain RGB value.
    constexpr TColor Rgb() const { return TColor(Value & 0x00FFFFFF); }
    // The same red, green and blue, to be matched in the palette.
    constexpr TColor PalRelative() const { return TColor((Value & 0x00FFFFFF) | 0x02000000); }

    constexpr bool operator==(const TColor& other) const { return Value == other.Value; }
    constexpr bool operator!=(const TColor& other) const { return Value != other.Value; }

    static const TColor Black;
    static const TColor White;
    static const TColor Gray;
    static const TColor LtGray;
    static const TColor LtRed;
    static const TColor LtGreen;
    static const TColor LtYellow;
    static const TColor LtBlue;
    static const TColor LtMagenta;
    static const TColor LtCyan;
    // No colour at all: a window with this background erases nothing.
    static const TColor None;

private:
    COLORREF Value;
};

inline const TColor TColor::Black(0, 0, 0);
inline const TColor TColor::White(255, 255, 255);
inline const TColor TColor::Gray(128, 128, 128);
inline const TColor TColor::LtGray(192, 192, 192);
inline const TColor TColor::LtRed(255, 0, 0);
inline const TColor TColor::LtGreen(0, 255, 0);
inline const TColor TColor::LtYellow(255, 255, 0);
inline const TColor TColor::LtBlue(0, 0, 255);
inline const TColor TColor::LtMagenta(255, 0, 255);
inline const TColor TColor::LtCyan(0, 255, 255);
inline const TColor TColor::None(COLORREF(0xFF000000));
