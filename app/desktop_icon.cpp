// desktop_icon: writes the component's icon, the picture "PLNT" of its title bar, as PNG files
// for the desktop's menus: one of the picture's own 32 by 32 pixels and one of 64 by 64 with
// each pixel doubled, so that it stays sharp.
//
//   desktop_icon OUT32.png OUT64.png
#include <cstdio>

#include "platform/ModuleResources.h"
#include "platform/PngFile.h"
#include "platform/TDib.h"

namespace {

PngImage Scaled(const TDib& picture, int factor)
{
    PngImage image;
    image.Width = picture.Width() * factor;
    image.Height = picture.Height() * factor;
    image.bIndexed = true;
    for (long i = 0; i < picture.NumColors(); ++i) {
        image.Palette.push_back(picture.GetColor(int(i)));
    }
    for (int y = 0; y < image.Height; ++y) {
        for (int x = 0; x < image.Width; ++x) {
            image.Pixels.push_back(BYTE(picture.GetPixelIndex(x / factor, y / factor)));
        }
    }
    return image;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: desktop_icon OUT32.png OUT64.png\n");
        return 2;
    }
    const TDib icon(GetModuleInstance(), TResId("PLNT"));
    if (!icon.IsOK() || icon.BitsPixel() > 8) {
        std::fprintf(stderr, "desktop_icon: the picture PLNT is missing or not a palette one\n");
        return 1;
    }
    if (!WritePngFile(argv[1], Scaled(icon, 1)) || !WritePngFile(argv[2], Scaled(icon, 2))) {
        std::fprintf(stderr, "desktop_icon: cannot write the pictures\n");
        return 1;
    }
    return 0;
}
