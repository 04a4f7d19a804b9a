#include "skyview/DisplayParameters.h"

#include "platform/HostPalette.h"
#include "platform/TPalette.h"
#include "state/StateContainer.h"

namespace {

// The sky while the Sun is up.
constexpr TColor kDaySkyColor(0, 0, 0x60);
constexpr TColor kNightSkyColor(0, 0, 0);

} // namespace

DisplayParameters::DisplayParameters()
{
    nNightIndex = GetPaletteIndex(kNightSkyColor);
    nDayIndex = GetPaletteIndex(kDaySkyColor);
    nBackgroundIndex = nNightIndex;
}

void DisplayParameters::SetStarDisplayParams(const StarDisplayParameters& parameters)
{
    StarDisplayParameters::Copy(parameters);
    CalculateIntensityScale();
    CalculateSizeScale(pDC);
}

void DisplayParameters::SetDC(TDC* dc)
{
    pDC = dc;
    CalculateIntensityScale();
    CalculateSizeScale(pDC);
}

void DisplayParameters::SetFastDrawBitmapBits(void* bits, const BITMAPINFOHEADER& header)
{
    pFastBits = static_cast<BYTE*>(bits);
    FastHeader = header;
    bool bottomUp8Bit = header.biBitCount == 8 && header.biWidth > 0 && header.biHeight > 0;
    pFastTopRow = pFastBits != nullptr && bottomUp8Bit
                      ? pFastBits + std::size_t(header.biHeight - 1) * std::size_t(header.biWidth)
                      : nullptr;
}

bool DisplayParameters::GetColorFromIntensity(unsigned intensity, TColor& color,
                                              unsigned& index) const
{
    int level = intensity > 255 ? 255 : int(intensity);
    color = TColor(level, level, level);
    index = GetPaletteIndex(color);
    return true;
}

unsigned DisplayParameters::GetPaletteIndex(const TColor& color) const
{
    const TPalette* palette = GetPalette();
    return palette != nullptr ? palette->GetNearestPaletteIndex(color) : 0;
}

const TPalette* DisplayParameters::GetPalette() const
{
    return &HostPalette();
}

void DisplayParameters::SetDaytime(bool daytime)
{
    bDaytime = daytime;
    BackgroundColor = daytime ? kDaySkyColor : kNightSkyColor;
    nBackgroundIndex = daytime ? nDayIndex : nNightIndex;
}

StateContainer& operator<<(StateContainer& sc, const DisplayParameters& parameters)
{
    return sc << NewLevel << AstroKey("Star Params")
              << static_cast<const StarDisplayParameters&>(parameters) << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, DisplayParameters& parameters)
{
    sc >> GoToLevel >> AstroKey("Star Params") >> static_cast<StarDisplayParameters&>(parameters) >>
        EndLevel;
    parameters.CalculateIntensityScale();
    parameters.CalculateSizeScale(nullptr);
    return sc;
}
