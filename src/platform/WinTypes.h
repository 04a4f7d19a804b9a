#pragma once
// The plain types, structures and constants of the drawing interface, under the names and with
// the values the component's code uses. Colours are COLORREF values 0x00bbggrr; the top byte
// says how to read them: 0 plain RGB, 1 a palette index, 2 an RGB matched in the palette.
#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using BOOL = int;
using COLORREF = DWORD;

constexpr BOOL TRUE = 1;
constexpr BOOL FALSE = 0;

class TDC;
class GdiBitmap;
class GdiPalette;
struct ModuleInstance;

// A device context handle is the context itself; a TDC converts to it.
using HDC = TDC*;
using HBITMAP = GdiBitmap*;
using HPALETTE = GdiPalette*;
// Any object handle, as DeleteObject and GetObjectA take it.
using HGDIOBJ = void*;
using HANDLE = void*;
using HINSTANCE = ModuleInstance*;

constexpr COLORREF RGB(BYTE r, BYTE g, BYTE b)
{
    return COLORREF(r) | (COLORREF(g) << 8) | (COLORREF(b) << 16);
}
constexpr BYTE GetRValue(COLORREF c)
{
    return BYTE(c & 0xFF);
}
constexpr BYTE GetGValue(COLORREF c)
{
    return BYTE((c >> 8) & 0xFF);
}
constexpr BYTE GetBValue(COLORREF c)
{
    return BYTE((c >> 16) & 0xFF);
}
// Entry i of the palette selected into the context.
constexpr COLORREF PALETTEINDEX(WORD i)
{
    return 0x01000000u | i;
}
// The palette entry nearest to an RGB value.
constexpr COLORREF PALETTERGB(BYTE r, BYTE g, BYTE b)
{
    return 0x02000000u | RGB(r, g, b);
}
constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

struct POINT
{
    LONG x;
    LONG y;
};

struct SIZE
{
    LONG cx;
    LONG cy;
};

struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

struct RGBQUAD
{
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};

struct PALETTEENTRY
{
    BYTE peRed;
    BYTE peGreen;
    BYTE peBlue;
    BYTE peFlags;
};

struct LOGPALETTE
{
    WORD palVersion;
    WORD palNumEntries;
    PALETTEENTRY palPalEntry[1];
};

struct BITMAPINFOHEADER
{
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};

// The header followed by its colour table: RGBQUADs, or WORD palette indices with
// DIB_PAL_COLORS. Callers allocate room for the whole table behind the header.
struct BITMAPINFO
{
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

struct BITMAP
{
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    void* bmBits;
};

struct DIBSECTION
{
    BITMAP dsBm;
    BITMAPINFOHEADER dsBmih;
    DWORD dsBitfields[3];
    HANDLE dshSection;
    DWORD dsOffset;
};

constexpr int LF_FACESIZE = 32;

struct LOGFONT
{
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    char lfFaceName[LF_FACESIZE];
};
using LOGFONTA = LOGFONT;

struct TEXTMETRIC
{
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};
using TEXTMETRICA = TEXTMETRIC;

struct LOGPEN
{
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
};

struct LOGBRUSH
{
    UINT lbStyle;
    COLORREF lbColor;
    LONG lbHatch;
};

// Raster operations: the middle byte is the truth table of pattern, source and destination.
constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr DWORD SRCPAINT = 0x00EE0086;
constexpr DWORD SRCAND = 0x008800C6;
constexpr DWORD SRCINVERT = 0x00660046;
constexpr DWORD SRCERASE = 0x00440328;
constexpr DWORD NOTSRCCOPY = 0x00330008;
constexpr DWORD NOTSRCERASE = 0x001100A6;
constexpr DWORD MERGEPAINT = 0x00BB0226;
constexpr DWORD PATCOPY = 0x00F00021;
constexpr DWORD PATINVERT = 0x005A0049;
constexpr DWORD DSTINVERT = 0x00550009;
constexpr DWORD BLACKNESS = 0x00000042;
constexpr DWORD WHITENESS = 0x00FF0062;

// Colour tables of device-independent bitmaps.
constexpr UINT DIB_RGB_COLORS = 0;
constexpr UINT DIB_PAL_COLORS = 1;
constexpr DWORD BI_RGB = 0;
constexpr DWORD BI_RLE8 = 1;
constexpr DWORD BI_RLE4 = 2;
constexpr DWORD BI_BITFIELDS = 3;

// Background modes.
constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;

// ExtTextOut options.
constexpr UINT ETO_OPAQUE = 0x0002;
constexpr UINT ETO_CLIPPED = 0x0004;

// GetDeviceCaps indexes.
constexpr int HORZSIZE = 4;
constexpr int VERTSIZE = 6;
constexpr int HORZRES = 8;
constexpr int VERTRES = 10;
constexpr int BITSPIXEL = 12;
constexpr int PLANES = 14;
constexpr int NUMCOLORS = 24;
constexpr int LOGPIXELSX = 88;
constexpr int LOGPIXELSY = 90;
constexpr int SIZEPALETTE = 104;

// Pen styles.
constexpr UINT PS_SOLID = 0;
constexpr UINT PS_DASH = 1;
constexpr UINT PS_DOT = 2;
constexpr UINT PS_DASHDOT = 3;
constexpr UINT PS_DASHDOTDOT = 4;
constexpr UINT PS_NULL = 5;
constexpr UINT PS_INSIDEFRAME = 6;

// Brush styles.
constexpr UINT BS_SOLID = 0;
constexpr UINT BS_NULL = 1;
constexpr UINT BS_HOLLOW = BS_NULL;

// Stretch modes; every mode samples the nearest source pixel here.
constexpr int BLACKONWHITE = 1;
constexpr int WHITEONBLACK = 2;
constexpr int COLORONCOLOR = 3;
constexpr int HALFTONE = 4;

// Mapping modes.
constexpr int MM_TEXT = 1;
constexpr int MM_ISOTROPIC = 7;
constexpr int MM_ANISOTROPIC = 8;

// Region kinds returned by SelectClipRgn.
constexpr int ERROR = 0;
constexpr int NULLREGION = 1;
constexpr int SIMPLEREGION = 2;

// Font weights, character sets, pitch and family.
constexpr LONG FW_DONTCARE = 0;
constexpr LONG FW_NORMAL = 400;
constexpr LONG FW_BOLD = 700;
constexpr BYTE ANSI_CHARSET = 0;
constexpr BYTE DEFAULT_CHARSET = 1;
constexpr BYTE DEFAULT_PITCH = 0;
constexpr BYTE FIXED_PITCH = 1;
constexpr BYTE VARIABLE_PITCH = 2;
constexpr BYTE FF_DONTCARE = 0x00;
constexpr BYTE FF_ROMAN = 0x10;
constexpr BYTE FF_SWISS = 0x20;
constexpr BYTE FF_MODERN = 0x30;
constexpr BYTE OUT_DEFAULT_PRECIS = 0;
constexpr BYTE CLIP_DEFAULT_PRECIS = 0;
constexpr BYTE DEFAULT_QUALITY = 0;
constexpr BYTE NONANTIALIASED_QUALITY = 3;
