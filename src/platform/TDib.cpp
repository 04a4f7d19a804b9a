#include "platform/TDib.h"

#include <fstream>
#include <iterator>
#include <vector>

#include "platform/DebugStream.h"
#include "platform/ModuleResources.h"

namespace {

constexpr int kMaxDimension = 32768;

} // namespace

TDib::TDib(int width, int height, UINT nColors)
{
    if (width <= 0 || height <= 0 || width > kMaxDimension || height > kMaxDimension) {
        dbstream << "TDib: bad size " << width << " by " << height << dbendl;
        return;
    }
    int bitCount = nColors == 0 || nColors > 256 ? 24 : nColors <= 2 ? 1 : nColors <= 16 ? 4 : 8;
    Dib = DibDecoder::Make(width, height, bitCount, bitCount == 24 ? 0 : int(nColors));
}

TDib::TDib(const char* fileName)
{
    std::ifstream in(fileName ? fileName : "", std::ios::binary);
    if (!in) {
        dbstream << "TDib: cannot open " << (fileName ? fileName : "(null)") << dbendl;
        return;
    }
    std::vector<BYTE> data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    Load(data.data(), data.size(), fileName);
}

TDib::TDib(HINSTANCE module, const TResId& resId)
{
    const PictureResource* resource =
        module ? FindPictureResource(resId.GetName().c_str()) : nullptr;
    if (!resource) {
        dbstream << "TDib: no picture resource " << resId.GetName() << dbendl;
        return;
    }
    Load(resource->Data, resource->Size, resId.GetName());
}

TDib::TDib(const BYTE* data, std::size_t size)
{
    Load(data, size, "picture in memory");
}

void TDib::Load(const BYTE* data, std::size_t size, const std::string& what)
{
    std::string why;
    if (!DibDecoder::Decode(data, size, Dib, why)) {
        Dib = DibData{};
        dbstream << "TDib: " << what << ": " << why << dbendl;
    }
}

const BITMAPINFOHEADER& TDib::Header() const
{
    return *reinterpret_cast<const BITMAPINFOHEADER*>(Dib.Info.data());
}

const BITMAPINFO* TDib::GetInfo() const
{
    return IsOK() ? reinterpret_cast<const BITMAPINFO*>(Dib.Info.data()) : nullptr;
}

BITMAPINFO* TDib::GetInfo()
{
    return IsOK() ? reinterpret_cast<BITMAPINFO*>(Dib.Info.data()) : nullptr;
}

const BITMAPINFOHEADER* TDib::GetInfoHeader() const
{
    return IsOK() ? &Header() : nullptr;
}

RGBQUAD* TDib::GetColors()
{
    return NumColors() > 0 ? reinterpret_cast<RGBQUAD*>(Dib.Info.data() + Header().biSize)
                           : nullptr;
}

const RGBQUAD* TDib::GetColors() const
{
    return NumColors() > 0 ? reinterpret_cast<const RGBQUAD*>(Dib.Info.data() + Header().biSize)
                           : nullptr;
}

TColor TDib::GetColor(int index) const
{
    if (index < 0 || index >= NumColors()) {
        return TColor(CLR_INVALID);
    }
    return TColor(GetColors()[index]);
}

void TDib::SetColor(int index, const TColor& color)
{
    if (index < 0 || index >= NumColors()) {
        return;
    }
    RGBQUAD& q = GetColors()[index];
    q.rgbRed = color.Red();
    q.rgbGreen = color.Green();
    q.rgbBlue = color.Blue();
    q.rgbReserved = 0;
}

int TDib::FindColor(const TColor& color) const
{
    TColor wanted = color.Rgb();
    for (int i = 0; i < NumColors(); ++i) {
        if (TColor(GetColors()[i]) == wanted) {
            return i;
        }
    }
    return -1;
}

int TDib::GetPixelIndex(int x, int y) const
{
    int bits = BitsPixel();
    if (x < 0 || y < 0 || x >= Width() || y >= Height() || bits > 8) {
        return -1;
    }
    const BYTE* row = Dib.Bits.data() + std::size_t(Height() - 1 - y) * std::size_t(Pitch());
    switch (bits) {
    case 1:
        return (row[x >> 3] >> (7 - (x & 7))) & 1;
    case 4:
        return (x & 1) ? row[x >> 1] & 0x0F : row[x >> 1] >> 4;
    default:
        return row[x];
    }
}

bool TDib::SetPixelIndex(int x, int y, int index)
{
    int bits = BitsPixel();
    if (x < 0 || y < 0 || x >= Width() || y >= Height() || bits > 8 || index < 0 ||
        index >= (1 << bits)) {
        return false;
    }
    BYTE* row = Dib.Bits.data() + std::size_t(Height() - 1 - y) * std::size_t(Pitch());
    switch (bits) {
    case 1: {
        BYTE bit = BYTE(0x80 >> (x & 7));
        row[x >> 3] = BYTE(index ? row[x >> 3] | bit : row[x >> 3] & ~bit);
        break;
    }
    case 4:
        row[x >> 1] =
            (x & 1) ? BYTE((row[x >> 1] & 0xF0) | index) : BYTE((row[x >> 1] & 0x0F) | index << 4);
        break;
    default:
        row[x] = BYTE(index);
    }
    return true;
}

TColor TDib::GetPixelColor(int x, int y) const
{
    if (x < 0 || y < 0 || x >= Width() || y >= Height()) {
        return TColor(CLR_INVALID);
    }
    if (BitsPixel() <= 8) {
        return GetColor(GetPixelIndex(x, y));
    }
    const BYTE* p =
        Dib.Bits.data() + std::size_t(Height() - 1 - y) * std::size_t(Pitch()) + 3 * std::size_t(x);
    return TColor(p[2], p[1], p[0]);
}
