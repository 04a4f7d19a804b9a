#pragma once
// Small pictures as text for the drawing tests: one character per pixel, row under row, so that
// a test can state the exact picture it expects and a failure shows both pictures.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "platform/Surface.h"
#include "platform/TRect.h"

using ColorLegend = std::map<COLORREF, char>;

// '.' black, '#' white, 'r' red, 'g' green, 'b' blue, 'y' yellow, 'm' magenta; '?' any other.
inline const ColorLegend& BasicLegend()
{
    static const ColorLegend legend = {
        {RGB(0, 0, 0), '.'},     {RGB(255, 255, 255), '#'}, {RGB(255, 0, 0), 'r'},
        {RGB(0, 255, 0), 'g'},   {RGB(0, 0, 255), 'b'},     {RGB(255, 255, 0), 'y'},
        {RGB(255, 0, 255), 'm'},
    };
    return legend;
}

// The visible colours of `area` as text rows ending in '\n'.
inline std::string PictureOf(const Surface& surface, const TRect& area,
                             const ColorLegend& legend = BasicLegend())
{
    std::string text;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            auto found = legend.find(surface.ColorAt(x, y));
            text += found == legend.end() ? '?' : found->second;
        }
        text += '\n';
    }
    return text;
}

inline std::string PictureOf(const Surface& surface, const ColorLegend& legend = BasicLegend())
{
    return PictureOf(surface, surface.Bounds(), legend);
}

// Names the format in the names of parameterised tests.
inline std::string FormatName(const ::testing::TestParamInfo<PixelFormat>& param)
{
    return param.param == PixelFormat::Indexed8 ? "Indexed8" : "Rgb32";
}

// Rows joined as PictureOf writes them.
inline std::string Rows(const std::vector<std::string>& rows)
{
    std::string text;
    for (const std::string& row : rows) {
        text += row + '\n';
    }
    return text;
}

// Every visible colour of a surface, row by row, for comparing whole surfaces.
inline std::vector<COLORREF> ColorsOf(const Surface& surface)
{
    std::vector<COLORREF> colors;
    for (int y = 0; y < surface.Height(); ++y) {
        for (int x = 0; x < surface.Width(); ++x) {
            colors.push_back(surface.ColorAt(x, y));
        }
    }
    return colors;
}
