#include "solar/MoonView.h"

#include "platform/ModuleResources.h"
#include "platform/TDib.h"
#include "projection/PerspectiveModifier.h"
#include "projection/Transformation.h"
#include "skyview/DisplayParameters.h"

MoonView::MoonView(SolarSystemObject& earth, SolarSystemObject& sun)
    : PlanetView(ObjectType::Moon, 310), Body(earth, sun)
{
    Bitmap.SetAngularSize(DegreeAngle(kAngularSize));
    LoadPhaseBitmap(ShownPhase, bShownForPrinting);
}

MoonView::~MoonView()
{
    // The bitmap must not outlive the picture it points to.
    Bitmap.SetBitmap(static_cast<TDib*>(nullptr));
}

const char* MoonView::GetPhaseBitmapName(const DegreeAngle& phase)
{
    const double degrees = phase.GetDegrees();
    if (degrees <= 45.0) {
        return "MOON1";
    }
    if (degrees <= 135.0) {
        return "MOON2";
    }
    if (degrees <= 225.0) {
        return "MOON3";
    }
    if (degrees <= 315.0) {
        return "MOON4";
    }
    return "MOON5";
}

void MoonView::LoadPhaseBitmap(const DegreeAngle& phase, bool printing)
{
    Bitmap.SetBitmap(static_cast<TDib*>(nullptr));
    pPhaseDib = std::make_unique<TDib>(GetModuleInstance(), TResId(GetPhaseBitmapName(phase)));
    if (printing && pPhaseDib->IsOK()) {
        RGBQUAD* table = pPhaseDib->GetColors();
        for (long i = 0; i < pPhaseDib->NumColors(); ++i) {
            table[i].rgbRed = BYTE(255 - table[i].rgbRed);
            table[i].rgbGreen = BYTE(255 - table[i].rgbGreen);
            table[i].rgbBlue = BYTE(255 - table[i].rgbBlue);
        }
    }
    Bitmap.SetBitmap(pPhaseDib.get());
}

TRect MoonView::GetDisplayRect(DisplayParameters& parameters) const
{
    return Bitmap.GetDrawRect(parameters);
}

void MoonView::SetDisplayPoint(const TPoint& point)
{
    Bitmap.SetDisplayPoint(point);
    PlanetView::SetDisplayPoint(point);
}

DegreeAngle MoonView::GetOrientationAngle(const Transformation& view, const PolarCoord& position)
{
    const PolarCoord centre = view.GetCenterOfView();
    const PolarCoord zenith = view.GetZenith();

    PolarCoord aroundZenith;
    PerspectiveModifier(zenith, centre).ChangePerspective(position, aroundZenith);
    const double a = aroundZenith.GetRA().GetDegrees();

    PolarCoord poleAroundMoon;
    PerspectiveModifier(position, zenith).ChangePerspective(PolarCoord(0.0, 90.0), poleAroundMoon);
    const double b = poleAroundMoon.GetRA().GetDegrees();

    return DegreeAngle((360.0 - a) + (360.0 - b));
}

void MoonView::Draw(TDC& /*dc*/, DisplayParameters& parameters)
{
    const DegreeAngle phase = Body.GetPhase();
    const bool printing = parameters.IsPrinting();
    if (!(phase == ShownPhase) || printing != bShownForPrinting) {
        LoadPhaseBitmap(phase, printing);
        ShownPhase = phase;
        bShownForPrinting = printing;
    }
    if (parameters.pTransformation != nullptr) {
        Bitmap.SetOrientationAngle(GetOrientationAngle(*parameters.pTransformation, GetPosition()));
    }
    Bitmap.SetDisplayPoint(GetDisplayPoint());
    Bitmap.Draw(parameters);
}
