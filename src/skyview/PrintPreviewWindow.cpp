#include "skyview/PrintPreviewWindow.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "coords/DegreesMinutesSecondsArc.h"
#include "coords/HoursMinutesSeconds.h"
#include "coords/PositiveDegreeAngle.h"
#include "host/HostFrameAPI.h"
#include "host/HostModalMaker.h"
#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "platform/PrintCalls.h"
#include "platform/TBrush.h"
#include "platform/TMemoryDC.h"
#include "platform/TRegion.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/HostPrintPreviewDC.h"
#include "skyview/MapWindow.h"
#include "skyview/StarDisplayParameters.h"

namespace {

// The planetarium's string table: its name, and the word that the chart went to the printer.
constexpr short kStringTable = 5;
constexpr short kTitleString = 1000;
constexpr short kPrintedString = 0x11F8;
constexpr short kNotPrintedString = 0x1F15;

// The preview's size is worked out in twenty-fifths of an inch.
constexpr double kUnitsPerInch = 25.0;
constexpr double kInchesPerUnit = 0.04;

// The degree sign in the component's code page.
constexpr char kDegreeSign = '\xB0';

constexpr double kMinutesPerDay = 24.0 * 60.0;

// "UTC", or "UTC+05:30" and "UTC-04:00": how far the local time shown stands from UT.
std::string ZoneText(const AstroTime& universal, const AstroTime& local)
{
    const long minutes = std::lround((local.GetMJD() - universal.GetMJD()) * kMinutesPerDay);
    if (minutes == 0) {
        return "UTC";
    }
    char text[48];
    std::snprintf(text, sizeof text, "UTC%c%02ld:%02ld", minutes < 0 ? '-' : '+',
                  std::labs(minutes) / 60, std::labs(minutes) % 60);
    return text;
}

// "50°00' N, 8°42' E" from a place whose longitude runs west from 0 to 360.
std::string PlaceText(const LatLong& place)
{
    auto arc = [](double degrees, char positive, char negative) {
        const long minutes = std::lround(std::fabs(degrees) * 60.0);
        char text[48];
        std::snprintf(text, sizeof text, "%ld%c%02ld' %c", minutes / 60, kDegreeSign, minutes % 60,
                      degrees < 0.0 ? negative : positive);
        return std::string(text);
    };
    double west = place.GetLongitude().GetDegrees();
    if (west > 180.0) {
        west -= 360.0;
    }
    return arc(place.GetLatitude().GetDegrees(), 'N', 'S') + ", " + arc(-west, 'E', 'W');
}

} // namespace

PrintPreviewWindow::PrintPreviewWindow(TWindow* parent, MapWindow* map)
    : TWindow(parent, "Print Window"), pMapWindow(map)
{
    TakeDisplayFromMap();

    // The platform's print dialog, modal over the whole application.
    HostFrameAPI* frame = getHostFrameAPI();
    TWindow* owner = frame ? frame->GetFrameWindow() : nullptr;
    HostModalMaker modal;
    modal.CountWindows();
    modal.DisableWindows();
    PRINTDLGA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.Flags = PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION;
    dialog.hwndOwner = owner ? owner->HWindow : nullptr;
    const BOOL chosen = PrintDlgA(&dialog);
    modal.EnableWindows();

    if (chosen == 1) {
        nCopies = dialog.nCopies;
        pPrintDC = std::make_unique<TPrintDC>(dialog.hDC, AutoDelete);
        pPrintDC->SetMapMode(MM_TEXT);
        Printer = pPrintDC->GetPrinter();
    }
}

PrintPreviewWindow::PrintPreviewWindow(TWindow* parent, MapWindow* map,
                                       std::unique_ptr<TPrintDC> printer, int copies)
    : TWindow(parent, "Print Window"), pMapWindow(map), nCopies(copies),
      pPrintDC(std::move(printer))
{
    TakeDisplayFromMap();
    if (pPrintDC) {
        pPrintDC->SetMapMode(MM_TEXT);
        Printer = pPrintDC->GetPrinter();
    }
}

PrintPreviewWindow::~PrintPreviewWindow() = default;

void PrintPreviewWindow::TakeDisplayFromMap()
{
    Attr.Style = WS_CHILD;
    // The paper of the preview.
    SetBkgndColor(TColor::White);

    // The map's own parameters, for paper: stars through the drawing calls, dark on white,
    // round, and no status line.
    Display = pMapWindow->GetDisplayParameters();
    Display.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
    Display.SetPrinting(true);
    Display.bShowStatus = false;
    StarDisplayParameters stars = Display;
    stars.SetShape(StarDisplayParameters::kRoundShape);
    Display.SetStarDisplayParams(stars);

    bMilitaryTime = HostProfile().GetBool("Orbiscope", "MilitaryTime", false);
}

void PrintPreviewWindow::SetStarDisplayParameters(const StarDisplayParameters& parameters)
{
    Display.pDC = nullptr;
    Display.SetStarDisplayParams(parameters);
    Invalidate();
}

void PrintPreviewWindow::SetBusy(bool busy)
{
    bPrinting = busy;
    SetCursor(nullptr, TResId(busy ? IDC_WAIT : IDC_ARROW));
}

void PrintPreviewWindow::ClipTo(TDC& dc, const TRect& rect)
{
    if (auto* preview = dynamic_cast<HostPrintPreviewDC*>(&dc)) {
        preview->ClipTo(rect);
    } else {
        dc.SelectClipRgn(TRegion(rect));
    }
}

std::vector<std::string> PrintPreviewWindow::MakeHeading() const
{
    const MapWindow& map = *pMapWindow;
    AstroTime local = map.GetTime() - map.GetTimeZone();
    local.SetMode(bMilitaryTime ? AstroTime::Clock24 : AstroTime::Clock12);

    // A view from the ground that has no place name is named by its latitude and longitude.
    std::string place = map.GetLocationName();
    const auto* ground = dynamic_cast<const RotatingOrientationInfo*>(&map.GetOrientation());
    if (place.empty() && ground) {
        place = PlaceText(ground->GetLocation());
    }

    // The whole width of the shorter side, as the status panel gives it.
    std::ostringstream field;
    field << "Minimum field Of View: " << 2.0 * map.GetOrientation().GetFieldRadius()
          << kDegreeSign;

    const PolarCoord centre = map.GetOrientation().GetCenterOfView();
    return {
        local.GetDescription3() + " " + local.GetDescription2() + " " +
            ZoneText(map.GetTime(), local),
        place,
        field.str(),
        "Center RA: " + HoursMinutesSeconds(PositiveDegreeAngle(centre.GetRA())).GetDescription1(),
        "Center Dec: " + DegreesMinutesSecondsArc(centre.GetDec()).GetDescription1(),
    };
}

void PrintPreviewWindow::DrawPage(TDC& dc)
{
    Layout.LayOut(dc, Direction);

    // The sky, drawn by the map for this page.
    Display.SetDC(&dc);
    Display.SetDrawRect(Layout.GetSkyRect());
    ClipTo(dc, Layout.GetSkyRect());
    pMapWindow->StartPrinting(Display);

    const TBrush black(TColor::Black);
    ClipTo(dc, Layout.GetPageRect());
    dc.FrameRect(Layout.GetSkyRect(), black);

    // The compass, from the view just drawn, its lines as wide as the sky's.
    Direction.SetLineWidth(Display.GetLineWidth());
    Direction.SetRect(Layout.GetCompassRect());
    Direction.Set(*pMapWindow);
    ClipTo(dc, Layout.GetCompassRect());
    Direction.Paint(dc, Layout.GetCompassRect());
    ClipTo(dc, Layout.GetPageRect());
    dc.FrameRect(Layout.GetCompassRect(), black);

    ClipTo(dc, Layout.GetTextRect());
    Layout.DrawHeading(dc, MakeHeading());

    pMapWindow->StopPrinting();
    Display.pDC = nullptr;
}

bool PrintPreviewWindow::PrintCopies()
{
    SetBusy(true);
    if (!pPrintDC) {
        SetBusy(false);
        return false;
    }
    bool printed = false;
    if (pPrintDC->StartDoc(kDocumentName) != SP_ERROR) {
        for (int copy = 0; copy < nCopies; ++copy) {
            pPrintDC->StartPage();
            DrawPage(*pPrintDC);
            pPrintDC->RestoreObjects();
            pPrintDC->EndPage();
        }
        printed = pPrintDC->EndDoc() != SP_ERROR;
    }
    SetBusy(false);
    return printed;
}

void PrintPreviewWindow::Print()
{
    if (!pPrintDC) {
        return;
    }
    const std::string title = getHostString(kStringTable, kTitleString);
    if (PrintCopies()) {
        MessageBox(getHostString(kStringTable, kPrintedString).c_str(), title.c_str(), MB_OK);
        return;
    }
    // Nothing reached the printer: the user hears so, and why.
    const std::string text =
        formatHostString(getHostString(kStringTable, kNotPrintedString), {pPrintDC->GetError()});
    MessageBox(text.c_str(), title.c_str(), MB_OK | MB_ICONEXCLAMATION);
}

void PrintPreviewWindow::Paint(TDC& dc, bool, TRect& rect)
{
    if (!pPrintDC) {
        return;
    }
    const TRect client = GetClientRect();
    const TBrush black(TColor::Black);
    dc.FrameRect(client, black);
    {
        HostPrintPreviewDC preview(dc, *pPrintDC, client, rect);
        DrawPage(preview);
    }
    dc.FrameRect(client, black);
}

TSize PrintPreviewWindow::GetPreviewSize(TSize available) const
{
    if (!pPrintDC) {
        return TSize(0, 0);
    }
    TMemoryDC screen;
    const int logX = screen.GetDeviceCaps(LOGPIXELSX);
    const int logY = screen.GetDeviceCaps(LOGPIXELSY);
    const int pageWidth = pPrintDC->GetDeviceCaps(HORZSIZE);
    const int pageHeight = pPrintDC->GetDeviceCaps(VERTSIZE);
    if (logX <= 0 || logY <= 0 || pageWidth <= 0 || pageHeight <= 0 || available.cx <= 0 ||
        available.cy <= 0) {
        return TSize(0, 0);
    }

    int width = int(double(available.cx) / logX * kUnitsPerInch);
    int height = int(double(available.cy) / logY * kUnitsPerInch);
    if (width <= 0 || height <= 0) {
        return TSize(0, 0);
    }
    const double pageShape = double(pageWidth) / pageHeight;
    const double availableShape = double(width) / height;
    if (availableShape <= pageShape) {
        height = int(width / pageShape);
    } else {
        width = int(height * pageShape);
    }
    return TSize(int(width * logX * kInchesPerUnit), int(height * logY * kInchesPerUnit));
}
