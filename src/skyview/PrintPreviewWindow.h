#pragma once
// The printed star chart: its page, drawn by one routine on the printer for each copy and on
// this window as a preview, so that the preview shows what will be printed.
//
// A page holds the sky of the map's present view, drawn by the map itself through its own
// draw cycle (MapWindow::StartPrinting) with parameters of the chart's own: stars round and
// dark on white paper, labels black, no status line. Below the sky the compass shows where the
// view looks, and a heading gives the local date and time, the place, the field of view and
// the centre of view in RA and Dec (see PrintPageLayout).
//
// The window exists for one run of the print dialog. Made for the user, it first asks the
// platform's print dialog for the printer; when the user cancels there is no printer and the
// window draws and prints nothing. Settings changed here (SetStarDisplayParameters) stay in
// the chart's parameters and never reach the map.
#include <memory>
#include <string>
#include <vector>

#include "platform/TPrintDC.h"
#include "platform/TPrinter.h"
#include "platform/TWindow.h"
#include "skyview/DirectionDrawer.h"
#include "skyview/DisplayParameters.h"
#include "skyview/PrintPageLayout.h"

class MapWindow;
class StarDisplayParameters;

class PrintPreviewWindow : public TWindow
{
public:
    // The name of every printed document.
    static constexpr const char* kDocumentName = "NOX Planetarium";

    // Asks the user for the printer, paper and copies through PrintDlgA.
    PrintPreviewWindow(TWindow* parent, MapWindow* map);
    // Prints `copies` copies on `printer` without asking (a host printing a chart for a
    // bookmark, say); a null printer prints nothing.
    PrintPreviewWindow(TWindow* parent, MapWindow* map, std::unique_ptr<TPrintDC> printer,
                       int copies);
    ~PrintPreviewWindow() override;

    // Prints all copies, then says in a message box that the chart went to the printer, or
    // that it did not and why.
    void Print();
    // The printing alone: false when there is no printer or it refused the document.
    bool PrintCopies();
    // Lays out and draws one page on a printer or preview context.
    void DrawPage(TDC& dc);
    // The heading's five lines for the map's present view: the local time with its distance
    // from UT, the place (its name, or else the latitude and longitude of a view from the
    // ground), the field across the shorter side, and the centre's RA (0h to 24h) and Dec.
    std::vector<std::string> MakeHeading() const;

    // The preview: the page scaled into the client area, framed in black.
    void Paint(TDC& dc, bool erase, TRect& rect) override;

    // The largest size of the page's shape within `available` pixels; 0, 0 without printer.
    TSize GetPreviewSize(TSize available) const;
    bool HasPrinter() const { return pPrintDC != nullptr; }

    // The chart's parameters. A change of the star settings takes effect at the next page
    // or repaint of the preview.
    DisplayParameters& GetDisplayParameters() { return Display; }
    void SetStarDisplayParameters(const StarDisplayParameters& parameters);

    TPrintDC* GetPrintDC() const { return pPrintDC.get(); }
    int GetCopies() const { return nCopies; }
    bool IsPrinting() const { return bPrinting; }
    const PrintPageLayout& GetLayout() const { return Layout; }
    const DirectionDrawer& GetDirection() const { return Direction; }

private:
    // Steps shared by both constructors.
    void TakeDisplayFromMap();
    // Clips to a rectangle of the page on either kind of context.
    static void ClipTo(TDC& dc, const TRect& rect);
    void SetBusy(bool busy);

    MapWindow* pMapWindow;
    DirectionDrawer Direction;
    bool bMilitaryTime = false;
    int nCopies = 1;
    std::unique_ptr<TPrintDC> pPrintDC;
    TPrinter Printer;
    DisplayParameters Display;
    bool bPrinting = false;
    PrintPageLayout Layout;
};
