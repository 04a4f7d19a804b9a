#pragma once
// The two kinds of surface: 8-bit indexes into a colour table of 256 entries, and 32-bit RGB
// pixels stored as the bytes blue, green, red, unused (the value 0x00RRGGBB).
enum class PixelFormat
{
    Indexed8,
    Rgb32,
};
