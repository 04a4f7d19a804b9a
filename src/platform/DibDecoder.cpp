#include "platform/DibDecoder.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "platform/PngFile.h"

namespace {

constexpr std::int64_t kMaxDimension = 32768;
constexpr std::int64_t kMaxPixels = std::int64_t(1) << 28;
constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kInfoHeaderSize = 40;

std::uint32_t Read32(const BYTE* p)
{
    return std::uint32_t(p[0]) | std::uint32_t(p[1]) << 8 | std::uint32_t(p[2]) << 16 |
           std::uint32_t(p[3]) << 24;
}

std::uint16_t Read16(const BYTE* p)
{
    return std::uint16_t(p[0] | p[1] << 8);
}

std::size_t StrideOf(int width, int bitCount)
{
    return std::size_t((std::int64_t(width) * bitCount + 31) / 32 * 4);
}

BITMAPINFOHEADER& HeaderOf(DibData& dib)
{
    return *reinterpret_cast<BITMAPINFOHEADER*>(dib.Info.data());
}

// Writes RLE-coded pixels into bottom-up rows; false when the data ends before the end mark.
class RunLengthDecoder
{
public:
    RunLengthDecoder(const BYTE* data, std::size_t size, int width, int height, int bitCount,
                     std::vector<BYTE>& bits)
        : pData(data), nSize(size), nWidth(width), nHeight(height), nBitCount(bitCount),
          nStride(StrideOf(width, bitCount)), aBits(bits)
    {}

    bool Run()
    {
        int x = 0, y = 0;
        while (nPos + 2 <= nSize) {
            BYTE count = pData[nPos], value = pData[nPos + 1];
            nPos += 2;
            if (count > 0) {
                for (int i = 0; i < count; ++i, ++x) {
                    Put(x, y, nBitCount == 8 ? value : (i & 1) ? value & 0x0F : value >> 4);
                }
                continue;
            }
            if (value == 0) { // end of line
                x = 0;
                ++y;
            } else if (value == 1) { // end of picture
                return true;
            } else if (value == 2) { // move
                if (nPos + 2 > nSize) {
                    return false;
                }
                x += pData[nPos];
                y += pData[nPos + 1];
                nPos += 2;
            } else { // a literal run of `value` pixels, padded to a whole word
                std::size_t bytes = nBitCount == 8 ? value : (std::size_t(value) + 1) / 2;
                if (nPos + bytes > nSize) {
                    return false;
                }
                for (int i = 0; i < value; ++i, ++x) {
                    BYTE b = pData[nPos + (nBitCount == 8 ? std::size_t(i) : std::size_t(i) / 2)];
                    Put(x, y, nBitCount == 8 ? b : (i & 1) ? b & 0x0F : b >> 4);
                }
                nPos += (bytes + 1) & ~std::size_t(1);
            }
        }
        return false;
    }

private:
    void Put(int x, int y, int index)
    {
        if (x < 0 || y < 0 || x >= nWidth || y >= nHeight) {
            return;
        }
        BYTE* row = aBits.data() + std::size_t(y) * nStride;
        if (nBitCount == 8) {
            row[x] = BYTE(index);
        } else if (x & 1) {
            row[x / 2] = BYTE((row[x / 2] & 0xF0) | (index & 0x0F));
        } else {
            row[x / 2] = BYTE((row[x / 2] & 0x0F) | (index << 4));
        }
    }

    const BYTE* pData;
    std::size_t nSize;
    std::size_t nPos = 0;
    int nWidth;
    int nHeight;
    int nBitCount;
    std::size_t nStride;
    std::vector<BYTE>& aBits;
};

} // namespace

DibData DibDecoder::Make(int width, int height, int bitCount, int colors)
{
    DibData dib;
    int tableSize = bitCount <= 8 ? std::clamp(colors, 0, 1 << bitCount) : 0;
    if (bitCount <= 8 && tableSize == 0) {
        tableSize = 1 << bitCount;
    }
    dib.Info.assign(kInfoHeaderSize + 4 * std::size_t(tableSize), 0);
    BITMAPINFOHEADER& h = HeaderOf(dib);
    h.biSize = kInfoHeaderSize;
    h.biWidth = width;
    h.biHeight = height;
    h.biPlanes = 1;
    h.biBitCount = WORD(bitCount);
    h.biCompression = BI_RGB;
    h.biSizeImage = DWORD(StrideOf(width, bitCount) * std::size_t(height));
    h.biClrUsed = DWORD(tableSize);
    dib.Bits.assign(h.biSizeImage, 0);
    return dib;
}

bool DibDecoder::Decode(const BYTE* data, std::size_t size, DibData& dib, std::string& why)
{
    if (data && size >= 2 && data[0] == 'B' && data[1] == 'M') {
        return DecodeBmp(data, size, dib, why);
    }
    if (data && size >= 8 && data[0] == 0x89 && data[1] == 'P' && data[2] == 'N' &&
        data[3] == 'G') {
        return DecodePng(data, size, dib, why);
    }
    why = "neither a BMP nor a PNG picture";
    return false;
}

bool DibDecoder::DecodeBmp(const BYTE* data, std::size_t size, DibData& dib, std::string& why)
{
    if (!data || size < kFileHeaderSize + kInfoHeaderSize || data[0] != 'B' || data[1] != 'M') {
        why = "too short for a BMP header";
        return false;
    }
    const BYTE* info = data + kFileHeaderSize;
    std::uint32_t headerSize = Read32(info);
    std::int64_t width = std::int32_t(Read32(info + 4));
    std::int64_t height = std::int32_t(Read32(info + 8));
    int planes = Read16(info + 12);
    int bitCount = Read16(info + 14);
    std::uint32_t compression = Read32(info + 16);
    std::uint32_t colorsUsed = Read32(info + 32);
    std::uint32_t bitsOffset = Read32(data + 10);
    if (headerSize < kInfoHeaderSize || headerSize > size - kFileHeaderSize) {
        why = "unknown BMP header";
        return false;
    }
    bool topDown = height < 0;
    height = topDown ? -height : height;
    if (width <= 0 || height <= 0 || width > kMaxDimension || height > kMaxDimension ||
        width * height > kMaxPixels || planes != 1) {
        why = "bad BMP size";
        return false;
    }
    bool rle =
        (compression == BI_RLE8 && bitCount == 8) || (compression == BI_RLE4 && bitCount == 4);
    bool known =
        bitCount == 1 || bitCount == 4 || bitCount == 8 || bitCount == 24 || bitCount == 32;
    if (!known || (compression != BI_RGB && !rle) || (rle && topDown)) {
        why = "unsupported BMP format";
        return false;
    }
    int tableSize = 0;
    if (bitCount <= 8) {
        tableSize = colorsUsed == 0 ? 1 << bitCount
                                    : int(std::min<std::uint32_t>(colorsUsed, 1u << bitCount));
    }
    std::size_t tableStart = kFileHeaderSize + headerSize;
    if (tableStart + 4 * std::size_t(tableSize) > size) {
        why = "truncated BMP colour table";
        return false;
    }
    if (bitsOffset == 0) {
        bitsOffset = std::uint32_t(tableStart + 4 * std::size_t(tableSize));
    }
    if (bitsOffset >= size) {
        why = "BMP pixels missing";
        return false;
    }

    int outBits = bitCount == 32 ? 24 : bitCount;
    dib = Make(int(width), int(height), outBits, tableSize);
    std::memcpy(dib.Info.data() + kInfoHeaderSize, data + tableStart, 4 * std::size_t(tableSize));
    for (int i = 0; i < tableSize; ++i) {
        dib.Info[kInfoHeaderSize + 4 * std::size_t(i) + 3] = 0;
    }
    const BYTE* pixels = data + bitsOffset;
    std::size_t available = size - bitsOffset;
    if (rle) {
        RunLengthDecoder decoder(pixels, available, int(width), int(height), bitCount, dib.Bits);
        if (!decoder.Run()) {
            why = "truncated run-length BMP";
            return false;
        }
        return true;
    }
    std::size_t inStride = StrideOf(int(width), bitCount);
    std::size_t outStride = StrideOf(int(width), outBits);
    // The last row needs only its pixels, not its padding.
    std::size_t lastRow = (std::size_t(width) * std::size_t(bitCount) + 7) / 8;
    if (inStride * std::size_t(height - 1) + lastRow > available) {
        why = "truncated BMP pixels";
        return false;
    }
    for (std::int64_t row = 0; row < height; ++row) {
        const BYTE* in = pixels + inStride * std::size_t(row);
        std::int64_t outRow = topDown ? height - 1 - row : row;
        BYTE* out = dib.Bits.data() + outStride * std::size_t(outRow);
        if (bitCount == 32) {
            for (std::int64_t x = 0; x < width; ++x) {
                std::memcpy(out + 3 * x, in + 4 * x, 3);
            }
        } else {
            std::memcpy(out, in, row == height - 1 ? lastRow : std::min(inStride, outStride));
        }
    }
    return true;
}

bool DibDecoder::DecodePng(const BYTE* data, std::size_t size, DibData& dib, std::string& why)
{
    PngImage image;
    if (!ReadPng(data, size, image)) {
        why = "unreadable PNG picture";
        return false;
    }
    int bitCount = image.bIndexed ? 8 : 24;
    dib = Make(image.Width, image.Height, bitCount, image.bIndexed ? int(image.Palette.size()) : 0);
    if (image.bIndexed) {
        for (std::size_t i = 0; i < image.Palette.size() && i < 256; ++i) {
            BYTE* q = dib.Info.data() + kInfoHeaderSize + 4 * i;
            q[0] = GetBValue(image.Palette[i]);
            q[1] = GetGValue(image.Palette[i]);
            q[2] = GetRValue(image.Palette[i]);
        }
    }
    std::size_t stride = StrideOf(image.Width, bitCount);
    std::size_t channels = image.bIndexed ? 1 : 3;
    for (int y = 0; y < image.Height; ++y) {
        const BYTE* in = image.Pixels.data() + std::size_t(y) * std::size_t(image.Width) * channels;
        BYTE* out = dib.Bits.data() + stride * std::size_t(image.Height - 1 - y);
        for (int x = 0; x < image.Width; ++x) {
            if (image.bIndexed) {
                out[x] = in[x];
            } else {
                out[3 * x] = in[3 * x + 2];
                out[3 * x + 1] = in[3 * x + 1];
                out[3 * x + 2] = in[3 * x];
            }
        }
    }
    return true;
}
