#pragma once
// The dialog of the printed star chart: the preview of the page, and buttons to print it,
// to change how its stars look (which leaves the map's own stars as they are), for help, and
// to close.
//
// Building the dialog brings up the platform's print dialog first (through the preview
// window); when the user cancels there, HasPrinter is false and the caller does not run this
// dialog. Print leaves the dialog open, so that more copies can follow.
#include "host/HostCenterDialog.h"
#include "skyview/PrintPreviewWindow.h"

class MapWindow;

class AstroPrintDialog : public HostCenterDialog
{
public:
    static constexpr int kResourceId = 1700;
    static constexpr int kPrintId = 1;
    static constexpr int kCloseId = 2;
    static constexpr int kHelpId = 9;
    static constexpr int kPreviewId = 101;
    static constexpr int kModifyStarsId = 102;

    AstroPrintDialog(TWindow* parent, MapWindow* map);

    bool HasPrinter() const { return Preview.HasPrinter(); }
    PrintPreviewWindow& GetPreview() { return Preview; }

    // Places the preview over its placeholder and puts words in the controls.
    void SetupWindow() override;
    void CmPrint();
    // The star display dialog on the chart's star settings; OK takes them for the chart alone
    // and redraws the preview.
    void CmModifyStars();
    void CmHelp();
    const TResponseRow* Find(const TEventInfo& event) const override;

private:
    PrintPreviewWindow Preview;
};
