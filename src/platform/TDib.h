#pragma once
// A device-independent bitmap in memory: header, colour table and pixels, as a BMP file holds
// them. Pictures load from BMP (1, 4, 8, 24 bits) and PNG files, or from the named pictures
// of the module. Rows are kept bottom-up with a stride of a multiple of 4 bytes; the pixel
// calls count y from the top of the picture.
//
// A picture that cannot be loaded leaves an empty bitmap (IsOK false) and a line on dbstream.
#include <string>

#include "platform/DibDecoder.h"
#include "platform/TColor.h"
#include "platform/TResId.h"
#include "platform/TSize.h"
#include "platform/WinTypes.h"

class TDib
{
public:
    // An empty picture, all pixels 0 and all colours black. The bit depth follows the colour
    // count: 2 gives 1 bit, up to 16 gives 4, up to 256 gives 8, and 0 (or more) 24.
    TDib(int width, int height, UINT nColors);
    explicit TDib(const char* fileName);
    explicit TDib(const std::string& fileName) : TDib(fileName.c_str()) {}
    // A named picture of the module.
    TDib(HINSTANCE module, const TResId& resId);
    // A picture from the bytes of a BMP or PNG file.
    TDib(const BYTE* data, std::size_t size);

    bool IsOK() const { return !Dib.Bits.empty(); }
    int Width() const { return IsOK() ? Header().biWidth : 0; }
    int Height() const { return IsOK() ? Header().biHeight : 0; }
    TSize Size() const { return TSize(Width(), Height()); }
    int BitsPixel() const { return IsOK() ? Header().biBitCount : 0; }
    // Entries of the colour table; 0 for a 24-bit picture.
    long NumColors() const { return IsOK() ? long(Header().biClrUsed) : 0; }
    // Bytes from one row to the next.
    int Pitch() const { return (Width() * BitsPixel() + 31) / 32 * 4; }
    UINT Usage() const { return DIB_RGB_COLORS; }

    const BITMAPINFO* GetInfo() const;
    BITMAPINFO* GetInfo();
    const BITMAPINFOHEADER* GetInfoHeader() const;
    // The rows from the bottom one up.
    void* GetBits() { return IsOK() ? Dib.Bits.data() : nullptr; }
    const void* GetBits() const { return IsOK() ? Dib.Bits.data() : nullptr; }
    RGBQUAD* GetColors();
    const RGBQUAD* GetColors() const;

    TColor GetColor(int index) const;
    void SetColor(int index, const TColor& color);
    // The first entry of the colour table that is exactly `color`, or -1.
    int FindColor(const TColor& color) const;

    // The index at (x, y) of a picture of 8 bits or fewer, -1 outside or for 24 bits.
    int GetPixelIndex(int x, int y) const;
    bool SetPixelIndex(int x, int y, int index);
    // The colour at (x, y) of any picture; CLR_INVALID outside.
    TColor GetPixelColor(int x, int y) const;

private:
    const BITMAPINFOHEADER& Header() const;
    void Load(const BYTE* data, std::size_t size, const std::string& what);

    DibData Dib;
};
