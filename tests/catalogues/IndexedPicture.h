#pragma once
// Small 8-bit pictures written as text for the picture tests: '.' black, '#' white, 'r' red,
// 'g' green, 'b' blue, one character per pixel, rows from the top. The colour table has 32
// entries (so that the picture is 8-bit), the five colours first and black after them.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/PngFile.h"
#include "platform/TDib.h"

namespace indexed_picture {

inline const std::string& Characters()
{
    static const std::string characters = ".#rgb";
    return characters;
}

inline const std::vector<TColor>& Colors()
{
    static const std::vector<TColor> colors = {TColor::Black, TColor::White, TColor::LtRed,
                                               TColor::LtGreen, TColor::LtBlue};
    return colors;
}

} // namespace indexed_picture

constexpr int kIndexedPictureColors = 32;

inline std::unique_ptr<TDib> MakeIndexedDib(const std::vector<std::string>& rows)
{
    const int height = int(rows.size());
    const int width = height > 0 ? int(rows[0].size()) : 0;
    auto dib = std::make_unique<TDib>(width, height, kIndexedPictureColors);
    for (std::size_t i = 0; i < indexed_picture::Colors().size(); ++i) {
        dib->SetColor(int(i), indexed_picture::Colors()[i]);
    }
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            dib->SetPixelIndex(x, y, int(indexed_picture::Characters().find(rows[y][x])));
        }
    }
    return dib;
}

// The picture by its indexes; '?' for an index beyond the five.
inline std::string IndexedDibText(const TDib& dib)
{
    std::string text;
    for (int y = 0; y < dib.Height(); ++y) {
        for (int x = 0; x < dib.Width(); ++x) {
            int index = dib.GetPixelIndex(x, y);
            text += index >= 0 && index < int(indexed_picture::Characters().size())
                        ? indexed_picture::Characters()[std::size_t(index)]
                        : '?';
        }
        text += '\n';
    }
    return text;
}

// Writes the picture as an indexed PNG file, which TDib reads as an 8-bit picture.
inline void WriteIndexedPicture(const std::string& path, const std::vector<std::string>& rows)
{
    PngImage image;
    image.Height = int(rows.size());
    image.Width = image.Height > 0 ? int(rows[0].size()) : 0;
    image.bIndexed = true;
    for (int i = 0; i < kIndexedPictureColors; ++i) {
        image.Palette.push_back(i < int(indexed_picture::Colors().size())
                                    ? COLORREF(indexed_picture::Colors()[std::size_t(i)])
                                    : COLORREF(0));
    }
    for (const std::string& row : rows) {
        for (char c : row) {
            image.Pixels.push_back(BYTE(indexed_picture::Characters().find(c)));
        }
    }
    ASSERT_TRUE(WritePngFile(path, image)) << path;
}
