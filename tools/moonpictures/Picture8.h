#pragma once
// An 8-bit picture with a colour table of its own, and how the picture tools write it: an
// uncompressed bottom-up BMP file, as the build embeds it among the module's pictures.
#include <cstdint>
#include <string>
#include <vector>

struct Rgb
{
    std::uint8_t Red;
    std::uint8_t Green;
    std::uint8_t Blue;
    bool operator==(const Rgb& other) const
    {
        return Red == other.Red && Green == other.Green && Blue == other.Blue;
    }
};

// Indexes into its own colour table, rows from the top.
struct Picture
{
    int Width = 0;
    int Height = 0;
    std::vector<Rgb> Colors;
    std::vector<std::uint8_t> Pixels;
};

// The BMP file of a picture: file header, BITMAPINFOHEADER, colour table, bottom-up rows padded
// to 4 bytes, uncompressed.
std::vector<std::uint8_t> EncodeBmp(const Picture& picture);
// Writes the bytes and names the file on standard output; false, with a message, when it
// cannot be written.
bool WriteFile(const std::string& path, const std::vector<std::uint8_t>& bytes);
