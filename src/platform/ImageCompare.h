#pragma once
// Golden-picture checks for the tests of every subsystem: a surface is compared with a PNG file
// pixel for pixel, by the colours that show. When they differ the result says how many pixels
// differ, where the first one is and in which box they all lie, and a diff picture is written:
// the expected picture, the actual one and the differences in red on a dimmed copy, side by
// side and enlarged when small.
//
// With ORBISCOPE_UPDATE_GOLDEN=1 in the environment the surface is written as the new golden
// picture instead, and the check passes.
#include <string>

#include "platform/PngFile.h"

class Surface;

struct ImageComparison
{
    bool bMatch = false;
    long nDifferent = 0;
    std::string Message;  // empty when the pictures match
    std::string DiffPath; // where the diff picture went, if one was written
};

// `diffPath` empty puts the diff picture into orbiscope-golden/ under the temporary directory,
// named after the golden file.
ImageComparison CompareWithPng(const Surface& surface, const std::string& goldenPath,
                               const std::string& diffPath = "");
// Compares two pictures; the diff picture is written only when `diffPath` is given.
ImageComparison CompareImages(const PngImage& expected, const PngImage& actual,
                              const std::string& diffPath = "");
