#include "platform/PngFile.h"

#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>

#include <png.h>

#include "platform/DebugStream.h"
#include "platform/Surface.h"

namespace {

// Pictures above this many pixels are refused rather than allocated.
constexpr std::size_t kMaxPixels = std::size_t(1) << 28;

struct MemoryReader
{
    const BYTE* Data;
    std::size_t Size;
    std::size_t Position;
};

void ReadFromMemory(png_structp png, png_bytep out, png_size_t count)
{
    auto* reader = static_cast<MemoryReader*>(png_get_io_ptr(png));
    if (count > reader->Size - reader->Position) {
        png_error(png, "truncated picture");
    }
    std::memcpy(out, reader->Data + reader->Position, count);
    reader->Position += count;
}

void QuietWarning(png_structp, png_const_charp)
{}

// What the header says, after the transforms that bring every picture to 8 bits a sample.
struct HeaderInfo
{
    png_uint_32 Width;
    png_uint_32 Height;
    int ColorType;
    png_size_t RowBytes;
    int PaletteCount;
    png_color Palette[256];
};

// The steps that libpng may leave by longjmp hold no C++ objects with destructors; the buffers
// they fill are made by the callers.
bool ReadHeader(png_structp png, png_infop info, HeaderInfo* header)
{
    if (setjmp(png_jmpbuf(png))) {
        return false;
    }
    png_read_info(png, info);
    int bitDepth = png_get_bit_depth(png, info);
    int colorType = png_get_color_type(png, info);
    if (bitDepth == 16) {
        png_set_strip_16(png);
    }
    if (colorType == PNG_COLOR_TYPE_GRAY && bitDepth < 8) {
        png_set_expand_gray_1_2_4_to_8(png);
    }
    if (colorType == PNG_COLOR_TYPE_PALETTE && bitDepth < 8) {
        png_set_packing(png);
    }
    if (colorType & PNG_COLOR_MASK_ALPHA) {
        png_set_strip_alpha(png);
    }
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    header->Width = png_get_image_width(png, info);
    header->Height = png_get_image_height(png, info);
    header->ColorType = png_get_color_type(png, info);
    header->RowBytes = png_get_rowbytes(png, info);
    header->PaletteCount = 0;
    png_colorp palette = nullptr;
    int count = 0;
    if (header->ColorType == PNG_COLOR_TYPE_PALETTE &&
        png_get_PLTE(png, info, &palette, &count) != 0) {
        header->PaletteCount = count < 256 ? count : 256;
        std::memcpy(header->Palette, palette,
                    sizeof(png_color) * std::size_t(header->PaletteCount));
    }
    return true;
}

bool ReadRows(png_structp png, png_bytepp rows)
{
    if (setjmp(png_jmpbuf(png))) {
        return false;
    }
    png_read_image(png, rows);
    return true;
}

bool WriteAll(png_structp png, png_infop info, std::FILE* file, const PngImage* image,
              png_bytepp rows, png_colorp palette)
{
    if (setjmp(png_jmpbuf(png))) {
        return false;
    }
    png_init_io(png, file);
    png_set_IHDR(png, info, png_uint_32(image->Width), png_uint_32(image->Height), 8,
                 image->bIndexed ? PNG_COLOR_TYPE_PALETTE : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (image->bIndexed) {
        png_set_PLTE(png, info, palette, int(image->Palette.size()));
    }
    png_write_info(png, info);
    png_write_image(png, rows);
    png_write_end(png, nullptr);
    return true;
}

} // namespace

bool ReadPng(const BYTE* data, std::size_t size, PngImage& image)
{
    if (!data || size < 8 || png_sig_cmp(data, 0, 8) != 0) {
        return false;
    }
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, QuietWarning);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (!info) {
        png_destroy_read_struct(&png, nullptr, nullptr);
        return false;
    }
    MemoryReader reader{data, size, 0};
    png_set_read_fn(png, &reader, ReadFromMemory);
    auto header = std::make_unique<HeaderInfo>();
    bool ok = ReadHeader(png, info, header.get());
    int channels = header->ColorType == PNG_COLOR_TYPE_RGB ? 3 : 1;
    ok = ok && header->Width > 0 && header->Height > 0 &&
         std::size_t(header->Width) * header->Height <= kMaxPixels &&
         (header->ColorType == PNG_COLOR_TYPE_RGB || header->ColorType == PNG_COLOR_TYPE_GRAY ||
          header->ColorType == PNG_COLOR_TYPE_PALETTE) &&
         header->RowBytes == std::size_t(header->Width) * std::size_t(channels);
    if (ok) {
        image.Width = int(header->Width);
        image.Height = int(header->Height);
        image.bIndexed = channels == 1;
        image.Pixels.assign(header->RowBytes * header->Height, 0);
        std::vector<png_bytep> rows(header->Height);
        for (png_uint_32 y = 0; y < header->Height; ++y) {
            rows[y] = image.Pixels.data() + std::size_t(y) * header->RowBytes;
        }
        ok = ReadRows(png, rows.data());
        image.Palette.clear();
        if (header->ColorType == PNG_COLOR_TYPE_GRAY) {
            for (int g = 0; g < 256; ++g) {
                image.Palette.push_back(RGB(BYTE(g), BYTE(g), BYTE(g)));
            }
        } else if (header->ColorType == PNG_COLOR_TYPE_PALETTE) {
            for (int i = 0; i < header->PaletteCount; ++i) {
                const png_color& c = header->Palette[i];
                image.Palette.push_back(RGB(c.red, c.green, c.blue));
            }
        }
    }
    png_destroy_read_struct(&png, &info, nullptr);
    return ok;
}

bool ReadPngFile(const std::string& path, PngImage& image)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return false;
    }
    std::vector<BYTE> data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return ReadPng(data.data(), data.size(), image);
}

bool WritePngFile(const std::string& path, const PngImage& image)
{
    std::size_t channels = image.bIndexed ? 1 : 3;
    if (image.Width <= 0 || image.Height <= 0 ||
        image.Pixels.size() != std::size_t(image.Width) * std::size_t(image.Height) * channels ||
        (image.bIndexed && (image.Palette.empty() || image.Palette.size() > 256))) {
        return false;
    }
    std::vector<png_color> palette;
    for (COLORREF c : image.Palette) {
        palette.push_back(png_color{GetRValue(c), GetGValue(c), GetBValue(c)});
    }
    std::vector<png_bytep> rows(std::size_t(image.Height));
    for (int y = 0; y < image.Height; ++y) {
        rows[std::size_t(y)] = const_cast<BYTE*>(image.Pixels.data()) +
                               std::size_t(y) * std::size_t(image.Width) * channels;
    }
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) {
        dbstream << "PNG: cannot write " << path << dbendl;
        return false;
    }
    png_structp png =
        png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, QuietWarning);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    bool ok = info && WriteAll(png, info, file, &image, rows.data(), palette.data());
    png_destroy_write_struct(&png, &info);
    ok = std::fclose(file) == 0 && ok;
    return ok;
}

PngImage ImageOfSurface(const Surface& surface)
{
    PngImage image;
    image.Width = surface.Width();
    image.Height = surface.Height();
    image.bIndexed = surface.IsIndexed();
    std::size_t channels = image.bIndexed ? 1 : 3;
    image.Pixels.reserve(std::size_t(image.Width) * std::size_t(image.Height) * channels);
    if (image.bIndexed) {
        image.Palette = surface.ColorTable();
    }
    for (int y = 0; y < image.Height; ++y) {
        for (int x = 0; x < image.Width; ++x) {
            if (image.bIndexed) {
                image.Pixels.push_back(BYTE(surface.ValueAt(x, y)));
            } else {
                COLORREF c = surface.ColorAt(x, y);
                image.Pixels.insert(image.Pixels.end(), {GetRValue(c), GetGValue(c), GetBValue(c)});
            }
        }
    }
    return image;
}

bool SaveSurfaceAsPng(const Surface& surface, const std::string& path)
{
    return WritePngFile(path, ImageOfSurface(surface));
}
