#include "platform/ImageCompare.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <system_error>

#include "platform/Surface.h"

namespace {

COLORREF ColorAt(const PngImage& image, int x, int y)
{
    std::size_t i = std::size_t(y) * std::size_t(image.Width) + std::size_t(x);
    if (image.bIndexed) {
        BYTE index = image.Pixels[i];
        return index < image.Palette.size() ? image.Palette[index] : RGB(0, 0, 0);
    }
    const BYTE* p = image.Pixels.data() + 3 * i;
    return RGB(p[0], p[1], p[2]);
}

std::string Describe(COLORREF c)
{
    std::ostringstream out;
    out << "rgb(" << int(GetRValue(c)) << ", " << int(GetGValue(c)) << ", " << int(GetBValue(c))
        << ")";
    return out.str();
}

bool UpdateRequested()
{
    const char* value = std::getenv("ORBISCOPE_UPDATE_GOLDEN");
    return value && *value && std::string(value) != "0";
}

// Expected, actual and differences side by side, each enlarged by the same whole factor.
PngImage DiffPicture(const PngImage& expected, const PngImage& actual)
{
    int w = std::max(expected.Width, actual.Width), h = std::max(expected.Height, actual.Height);
    int scale = std::clamp(256 / std::max({w, h, 1}), 1, 8);
    constexpr int kGap = 4;
    int panelWidth = w * scale;
    PngImage out;
    out.Width = 3 * panelWidth + 2 * kGap;
    out.Height = h * scale;
    out.Pixels.assign(std::size_t(out.Width) * std::size_t(out.Height) * 3, 128);
    auto put = [&](int x, int y, COLORREF c) {
        BYTE* p =
            out.Pixels.data() + 3 * (std::size_t(y) * std::size_t(out.Width) + std::size_t(x));
        p[0] = GetRValue(c);
        p[1] = GetGValue(c);
        p[2] = GetBValue(c);
    };
    auto inside = [](const PngImage& image, int x, int y) {
        return x < image.Width && y < image.Height;
    };
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            bool hasE = inside(expected, x, y), hasA = inside(actual, x, y);
            COLORREF e = hasE ? ColorAt(expected, x, y) : RGB(128, 128, 128);
            COLORREF a = hasA ? ColorAt(actual, x, y) : RGB(128, 128, 128);
            COLORREF d;
            if (hasE && hasA && e == a) {
                int grey = (GetRValue(e) * 30 + GetGValue(e) * 59 + GetBValue(e) * 11) / 100;
                d = RGB(BYTE(64 + grey / 4), BYTE(64 + grey / 4), BYTE(64 + grey / 4));
            } else {
                d = RGB(255, 0, 0);
            }
            for (int sy = 0; sy < scale; ++sy) {
                for (int sx = 0; sx < scale; ++sx) {
                    int px = x * scale + sx, py = y * scale + sy;
                    put(px, py, e);
                    put(panelWidth + kGap + px, py, a);
                    put(2 * (panelWidth + kGap) + px, py, d);
                }
            }
        }
    }
    return out;
}

std::string DefaultDiffPath(const std::string& goldenPath)
{
    std::error_code error;
    std::filesystem::path dir = std::filesystem::temp_directory_path(error) / "orbiscope-golden";
    std::filesystem::create_directories(dir, error);
    return (dir / (std::filesystem::path(goldenPath).stem().string() + "-diff.png")).string();
}

} // namespace

ImageComparison CompareImages(const PngImage& expected, const PngImage& actual,
                              const std::string& diffPath)
{
    ImageComparison result;
    std::ostringstream message;
    if (expected.Width != actual.Width || expected.Height != actual.Height) {
        message << "size differs: expected " << expected.Width << " by " << expected.Height
                << ", got " << actual.Width << " by " << actual.Height;
        result.nDifferent = -1;
    } else {
        TRect box;
        TPoint first;
        COLORREF firstExpected = 0, firstActual = 0;
        for (int y = 0; y < expected.Height; ++y) {
            for (int x = 0; x < expected.Width; ++x) {
                COLORREF e = ColorAt(expected, x, y), a = ColorAt(actual, x, y);
                if (e == a) {
                    continue;
                }
                if (result.nDifferent++ == 0) {
                    first = TPoint(x, y);
                    firstExpected = e;
                    firstActual = a;
                    box = TRect(x, y, x + 1, y + 1);
                } else {
                    box =
                        TRect(std::min(box.left, LONG(x)), std::min(box.top, LONG(y)),
                              std::max(box.right, LONG(x + 1)), std::max(box.bottom, LONG(y + 1)));
                }
            }
        }
        if (result.nDifferent == 0) {
            result.bMatch = true;
            return result;
        }
        message << result.nDifferent << " of " << long(expected.Width) * expected.Height
                << " pixels differ; the first at (" << first.x << ", " << first.y << ") is "
                << Describe(firstActual) << " instead of " << Describe(firstExpected)
                << "; all lie in (" << box.left << ", " << box.top << ") to (" << box.right << ", "
                << box.bottom << ")";
    }
    if (!diffPath.empty() && WritePngFile(diffPath, DiffPicture(expected, actual))) {
        result.DiffPath = diffPath;
        message << "; diff picture: " << diffPath;
    }
    result.Message = message.str();
    return result;
}

ImageComparison CompareWithPng(const Surface& surface, const std::string& goldenPath,
                               const std::string& diffPath)
{
    PngImage actual = ImageOfSurface(surface);
    if (UpdateRequested()) {
        ImageComparison result;
        result.bMatch = WritePngFile(goldenPath, actual);
        if (!result.bMatch) {
            result.Message = "cannot write the golden picture " + goldenPath;
        }
        return result;
    }
    PngImage expected;
    if (!ReadPngFile(goldenPath, expected)) {
        ImageComparison result;
        result.Message = "no golden picture " + goldenPath +
                         " (ORBISCOPE_UPDATE_GOLDEN=1 writes it from the present output)";
        return result;
    }
    ImageComparison result =
        CompareImages(expected, actual, diffPath.empty() ? DefaultDiffPath(goldenPath) : diffPath);
    if (!result.bMatch) {
        result.Message = goldenPath + ": " + result.Message;
    }
    return result;
}
