#include "Picture8.h"

#include <fstream>
#include <iostream>

namespace {

void PutLittle(std::vector<std::uint8_t>& out, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i) {
        out.push_back(std::uint8_t(value >> (8 * i)));
    }
}

} // namespace

std::vector<std::uint8_t> EncodeBmp(const Picture& picture)
{
    const std::uint32_t stride = std::uint32_t(picture.Width + 3) / 4 * 4;
    const std::uint32_t tableBytes = std::uint32_t(picture.Colors.size()) * 4;
    const std::uint32_t bitsOffset = 14 + 40 + tableBytes;
    const std::uint32_t imageBytes = stride * std::uint32_t(picture.Height);

    std::vector<std::uint8_t> out;
    out.push_back('B');
    out.push_back('M');
    PutLittle(out, bitsOffset + imageBytes, 4);
    PutLittle(out, 0, 4); // reserved
    PutLittle(out, bitsOffset, 4);

    PutLittle(out, 40, 4); // biSize
    PutLittle(out, std::uint32_t(picture.Width), 4);
    PutLittle(out, std::uint32_t(picture.Height), 4); // positive: bottom-up
    PutLittle(out, 1, 2);                             // planes
    PutLittle(out, 8, 2);                             // bits per pixel
    PutLittle(out, 0, 4);                             // BI_RGB
    PutLittle(out, imageBytes, 4);
    PutLittle(out, 2835, 4); // 72 dots per inch, in dots per metre
    PutLittle(out, 2835, 4);
    PutLittle(out, std::uint32_t(picture.Colors.size()), 4); // biClrUsed
    PutLittle(out, 0, 4);                                    // biClrImportant: all

    for (const Rgb& color : picture.Colors) {
        out.push_back(color.Blue);
        out.push_back(color.Green);
        out.push_back(color.Red);
        out.push_back(0);
    }
    for (int y = picture.Height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.Width; ++x) {
            out.push_back(picture.Pixels[std::size_t(y * picture.Width + x)]);
        }
        for (std::uint32_t pad = std::uint32_t(picture.Width); pad < stride; ++pad) {
            out.push_back(0);
        }
    }
    return out;
}

bool WriteFile(const std::string& path, const std::vector<std::uint8_t>& bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
    out.close();
    if (!out) {
        std::cerr << "cannot write " << path << "\n";
        return false;
    }
    std::cout << path << " (" << bytes.size() << " bytes)\n";
    return true;
}
