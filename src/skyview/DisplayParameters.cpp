#include "skyview/DisplayParameters.h"

#include <algorithm>
#include <cmath>

#include "platform/HostPalette.h"
#include "platform/TDC.h"
#include "platform/TPalette.h"
#include "state/StateContainer.h"

namespace {

// The sky while the Sun is up.
constexpr TColor kDaySkyColor(0, 0, 0x60);
constexpr TColor kNightSkyColor(0, 0, 0);
// Below the horizon: a grey darker than the faintest star on the screen, a light one on paper.
constexpr TColor kGroundColor(40, 40, 40);
constexpr TColor kPaperGroundColor(224, 224, 224);

// The narrowest line on paper, in millimetres, and millimetres to the inch.
constexpr double kPrintedLineMillimetres = 0.25;
constexpr double kMillimetresPerInch = 25.4;

// A label on paper is at most this bright (0.299 R + 0.587 G + 0.114 B, 0 to 255): dark
// enough to read on white, as pure red or blue already is.
constexpr double kPaperLabelBrightness = 80.0;

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

TColor DisplayParameters::GetGroundColor() const
{
    return IsPrinting() ? kPaperGroundColor : kGroundColor;
}

int DisplayParameters::GetLineWidth() const
{
    if (!IsPrinting() || pDC == nullptr) {
        return 1;
    }
    const double dots =
        kPrintedLineMillimetres / kMillimetresPerInch * pDC->GetDeviceCaps(LOGPIXELSX);
    return std::max(1, int(std::ceil(dots)));
}

TColor DisplayParameters::GetTextColor(const TColor& screenColor) const
{
    if (!IsPrinting()) {
        return screenColor;
    }
    const int r = screenColor.Red();
    const int g = screenColor.Green();
    const int b = screenColor.Blue();
    if (r == g && g == b) {
        return TColor::Black;
    }
    const double brightness = 0.299 * r + 0.587 * g + 0.114 * b;
    if (brightness <= kPaperLabelBrightness) {
        return screenColor;
    }
    const double scale = kPaperLabelBrightness / brightness;
    return TColor(int(r * scale), int(g * scale), int(b * scale));
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
