#include "catalogues/AstroBitmap.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/DebugStream.h"
#include "platform/TBitmap.h"
#include "platform/TDib.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"
#include "projection/Transformation.h"
#include "skyview/DisplayParameters.h"

namespace {

// The stretch mode that takes whole source pixels (COLORONCOLOR): a picture in a palette must
// not blend its indexes.
constexpr int kStretchDeleteScans = 3;

int ClampSide(double side)
{
    if (!(side >= 1.0)) { // also NaN
        return 1;
    }
    return side >= AstroBitmap::kMaxScaledSide ? AstroBitmap::kMaxScaledSide : int(side);
}

// Sines and cosines of whole quarter turns come out of the maths library a few 1e-17 off 0 and
// 1, which the truncation of the turned coordinates would turn into a pixel's shift.
double ExactNearQuarters(double value)
{
    constexpr double kTolerance = 1e-12;
    if (std::fabs(value) < kTolerance) {
        return 0.0;
    }
    if (std::fabs(std::fabs(value) - 1.0) < kTolerance) {
        return value > 0.0 ? 1.0 : -1.0;
    }
    return value;
}

} // namespace

AstroBitmap::AstroBitmap() = default;

AstroBitmap::~AstroBitmap()
{
    UnloadBitmap();
    GetRidOfDib();
}

void AstroBitmap::SetBitmap(const std::string& fileName)
{
    if (fileName == FileName) {
        return;
    }
    UnloadBitmap();
    FileName = fileName;
    GetRidOfDib();
}

void AstroBitmap::SetBitmap(TDib* dib)
{
    UnloadBitmap();
    GetRidOfDib();
    pDib = dib;
    DibSize = dib ? dib->Size() : TSize(0, 0);
}

void AstroBitmap::SetOrientationAngle(const DegreeAngle& angle)
{
    if (angle == OrientationAngle) {
        return;
    }
    OrientationAngle = angle;
    bRebuild = true;
}

void AstroBitmap::UnloadBitmap()
{
    pBitmap.reset();
}

void AstroBitmap::GetRidOfDib()
{
    pDib = nullptr;
    pFileDib.reset();
    pTurnedDib.reset();
    DibAngle = DegreeAngle(0.0);
}

TSize AstroBitmap::GetScaledSize(const Transformation& transformation) const
{
    const double ratio = DibSize.cx > 0 ? double(DibSize.cy) / double(DibSize.cx) : 0.0;
    // A width held to the largest side keeps the picture's proportions.
    const int width =
        std::min(transformation.GetProjector().GetXExtent(AngularSize), kMaxScaledSide);
    const double height = std::trunc(double(width) * ratio);
    return TSize(ClampSide(width), ClampSide(height));
}

bool AstroBitmap::LoadDib()
{
    auto loaded = std::make_unique<TDib>(FileName);
    if (!loaded->IsOK()) {
        return false; // the platform said why on dbstream
    }
    pFileDib = std::move(loaded);
    pTurnedDib.reset();
    DibAngle = DegreeAngle(0.0);
    pDib = pFileDib.get();
    DibSize = pDib->Size();
    return true;
}

void AstroBitmap::TurnFilePicture()
{
    pTurnedDib.reset();
    if (OrientationAngle.GetDegrees() > 0.0) {
        pTurnedDib = Rotate(*pFileDib, OrientationAngle);
        if (!pTurnedDib) {
            dbstream << "AstroBitmap: " << FileName << " is not an 8-bit picture; not turned"
                     << dbendl;
        }
    }
    DibAngle = OrientationAngle;
    pDib = pTurnedDib ? pTurnedDib.get() : pFileDib.get();
    DibSize = pDib->Size();
}

void AstroBitmap::LoadBitmapA(DisplayParameters& parameters)
{
    if (pDib == nullptr) {
        if (FileName.empty() || !LoadDib()) {
            return;
        }
    }
    if (pFileDib && !(DibAngle == OrientationAngle)) {
        TurnFilePicture();
    }
    UnloadBitmap();
    if (!pDib->IsOK() || parameters.pDC == nullptr || parameters.pTransformation == nullptr) {
        return;
    }

    const TSize size = GetScaledSize(*parameters.pTransformation);
    auto bitmap = std::make_unique<TBitmap>(*parameters.pDC, size.cx, size.cy);
    TMemoryDC memory(*parameters.pDC);
    memory.SelectObject(*bitmap);
    if (const TPalette* palette = parameters.GetPalette()) {
        memory.SelectObject(*palette, true);
        memory.RealizePalette();
    }
    memory.SetStretchBltMode(kStretchDeleteScans);
    memory.StretchDIBits(TRect(TPoint(0, 0), size), TRect(TPoint(0, 0), DibSize), *pDib, SRCCOPY);
    memory.RestoreBitmap();
    memory.RestorePalette();

    pBitmap = std::move(bitmap);
    BitmapSize = size;
    bRebuild = false;
}

void AstroBitmap::UpdateBitmap(DisplayParameters& parameters)
{
    if (pBitmap && !bRebuild && parameters.pTransformation != nullptr &&
        GetScaledSize(*parameters.pTransformation) == BitmapSize) {
        return;
    }
    LoadBitmapA(parameters);
}

TRect AstroBitmap::GetDrawRect(DisplayParameters& parameters)
{
    UpdateBitmap(parameters);
    return GetDrawRectInternal();
}

TRect AstroBitmap::GetDrawRectInternal() const
{
    if (!pBitmap) {
        return TRect();
    }
    const int width = pBitmap->Width();
    const int height = pBitmap->Height();
    const TPoint topLeft(DisplayPoint.x - width / 2, DisplayPoint.y - height / 2);
    return TRect(topLeft, TSize(width, height));
}

void AstroBitmap::Draw(DisplayParameters& parameters)
{
    UpdateBitmap(parameters);
    if (!pBitmap || parameters.pDC == nullptr) {
        return;
    }
    const TRect rect = GetDrawRectInternal();
    TMemoryDC memory(*parameters.pDC);
    memory.SelectObject(*pBitmap);
    if (const TPalette* palette = parameters.GetPalette()) {
        memory.SelectObject(*palette, true);
        memory.RealizePalette();
    }
    parameters.pDC->BitBlt(rect, memory, TPoint(0, 0), SRCCOPY);
    memory.RestorePalette();
    memory.RestoreBitmap();
}

std::unique_ptr<TDib> AstroBitmap::Rotate(const TDib& source, const DegreeAngle& angle)
{
    if (!source.IsOK() || source.BitsPixel() != 8) {
        return nullptr;
    }
    const int w = source.Width();
    const int h = source.Height();
    const long colors = source.NumColors();
    auto turned = std::make_unique<TDib>(w, h, UINT(colors));
    if (!turned->IsOK() || turned->BitsPixel() != 8) {
        return nullptr;
    }
    std::memcpy(turned->GetColors(), source.GetColors(), std::size_t(colors) * sizeof(RGBQUAD));
    const int black = std::max(turned->FindColor(TColor::Black), 0);

    // Destination and source are of one size, so they share the row stride. Rows are taken in
    // the order the bits hold them.
    const int W = w;
    const int H = h;
    const int stride = source.Pitch();
    auto* to = static_cast<BYTE*>(turned->GetBits());
    const auto* from = static_cast<const BYTE*>(source.GetBits());
    std::fill(to, to + std::size_t(stride) * std::size_t(H), BYTE(black));

    // Forward mapping: each source pixel lands on one destination pixel, so destination pixels
    // that no source pixel reaches keep the fill.
    const double c = ExactNearQuarters(std::cos(angle.GetRadians()));
    const double s = ExactNearQuarters(std::sin(angle.GetRadians()));
    for (int y = 0; y < h; ++y) {
        const int dy = y - h / 2;
        for (int x = 0; x < w; ++x) {
            const int dx = x - w / 2;
            const double tx = std::trunc(dx * c - dy * s + W / 2);
            const double ty = std::trunc(dy * c + dx * s + H / 2);
            if (tx >= 0.0 && ty >= 0.0 && tx < W && ty < H) {
                to[std::size_t(ty) * std::size_t(stride) + std::size_t(tx)] =
                    from[std::size_t(y) * std::size_t(stride) + std::size_t(x)];
            }
        }
    }
    return turned;
}
