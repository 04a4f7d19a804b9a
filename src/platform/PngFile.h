#pragma once
// Reading and writing PNG pictures through libpng. Palette pictures keep their indexes and
// palette exactly both ways; grey pictures come in as indexes into a grey palette; colour
// pictures as red, green, blue bytes. Alpha is dropped, 16-bit samples are cut to 8.
#include <cstddef>
#include <string>
#include <vector>

#include "platform/WinTypes.h"

class Surface;

struct PngImage
{
    int Width = 0;
    int Height = 0;
    bool bIndexed = false;
    std::vector<COLORREF> Palette; // plain RGB, for an indexed picture
    // Rows from the top, without padding: one index, or red, green, blue, per pixel.
    std::vector<BYTE> Pixels;
};

bool ReadPng(const BYTE* data, std::size_t size, PngImage& image);
bool ReadPngFile(const std::string& path, PngImage& image);
bool WritePngFile(const std::string& path, const PngImage& image);

// The picture of a surface: an 8-bit surface as a palette picture with its colour table.
PngImage ImageOfSurface(const Surface& surface);
bool SaveSurfaceAsPng(const Surface& surface, const std::string& path);
