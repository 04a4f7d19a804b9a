#include "catalogues/MorphingObject.h"

#include <cmath>

#include "platform/TDib.h"

MorphingObject::MorphingObject(const std::string& /*name*/, std::unique_ptr<TDib> dib,
                               const DegreeAngle& angularSize, unsigned maxFade, ObjectType type)
    : AstroObject(type), pDib(std::move(dib)), MaxFade(maxFade)
{
    Bitmap.SetAngularSize(angularSize);
    GetOriginalColors();
    SetStage(1.0);
}

MorphingObject::~MorphingObject()
{
    // The bitmap must not outlive the picture it points to.
    Bitmap.SetBitmap(static_cast<TDib*>(nullptr));
}

void MorphingObject::GetOriginalColors()
{
    OriginalColors.clear();
    if (!pDib || !pDib->IsOK()) {
        return;
    }
    const RGBQUAD* table = pDib->GetColors();
    for (long i = 0; i < pDib->NumColors(); ++i) {
        const RGBQUAD& entry = table[i];
        const std::uint32_t average =
            (std::uint32_t(entry.rgbRed) + entry.rgbGreen + entry.rgbBlue) / 3;
        OriginalColors.push_back(
            {entry.rgbBlue, entry.rgbGreen, entry.rgbRed, entry.rgbReserved, average});
    }
}

bool MorphingObject::SetStage(double stage)
{
    if (!(stage >= 0.0 && stage <= 1.0)) {
        return false;
    }
    Fade = std::uint32_t(std::trunc(double(MaxFade) * stage));
    if (pDib && pDib->IsOK()) {
        RGBQUAD* table = pDib->GetColors();
        for (std::size_t i = 0; i < OriginalColors.size(); ++i) {
            const ColorInfo& original = OriginalColors[i];
            table[i].rgbBlue =
                BYTE(GetModifiedIntensityForStage(original.Average, original.rgbBlue));
            table[i].rgbGreen =
                BYTE(GetModifiedIntensityForStage(original.Average, original.rgbGreen));
            table[i].rgbRed = BYTE(GetModifiedIntensityForStage(original.Average, original.rgbRed));
        }
    }
    Bitmap.SetBitmap(pDib.get());
    return true;
}

std::uint32_t MorphingObject::GetModifiedIntensityForStage(std::uint32_t /*average*/,
                                                           std::uint32_t component) const
{
    return component > Fade ? component - Fade : 0;
}

TRect MorphingObject::GetDisplayRect(DisplayParameters& parameters) const
{
    return Bitmap.GetDrawRect(parameters);
}

void MorphingObject::Draw(TDC& /*dc*/, DisplayParameters& parameters)
{
    Bitmap.Draw(parameters);
}
