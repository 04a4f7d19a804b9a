#pragma once
// Turns picture files into the form of a device-independent bitmap: a BITMAPINFOHEADER with its
// colour table, and bottom-up rows padded to 4 bytes.
//
// BMP files of 1, 4, 8, 24 and 32 bits per pixel are read, uncompressed or run-length encoded
// (8 and 4 bits), bottom-up or top-down; a colour count of 0 means the full table. 32-bit
// pixels become 24-bit ones. PNG files come through libpng: palette and grey pictures become
// 8-bit bitmaps, colour pictures 24-bit ones. A truncated or malformed file is refused whole.
#include <cstddef>
#include <string>
#include <vector>

#include "platform/WinTypes.h"

struct DibData
{
    std::vector<BYTE> Info; // BITMAPINFOHEADER and RGBQUAD table
    std::vector<BYTE> Bits;
};

class DibDecoder
{
public:
    // A BMP or a PNG file, told apart by its first bytes. On failure `why` says what was wrong.
    static bool Decode(const BYTE* data, std::size_t size, DibData& dib, std::string& why);
    static bool DecodeBmp(const BYTE* data, std::size_t size, DibData& dib, std::string& why);
    static bool DecodePng(const BYTE* data, std::size_t size, DibData& dib, std::string& why);

    // An empty bitmap of the given form, all pixels 0, all colours black.
    static DibData Make(int width, int height, int bitCount, int colors);
};
