#include "platform/PrintCalls.h"

#include "platform/PrintDialog.h"
#include "platform/TPrintDC.h"
#include "platform/TWindow.h"

namespace {

TPrintDC* PrinterOf(HDC dc)
{
    return dynamic_cast<TPrintDC*>(static_cast<TDC*>(dc));
}

} // namespace

BOOL PrintDlgA(PRINTDLGA* dialog)
{
    if (!dialog || dialog->lStructSize < sizeof(PRINTDLGA)) {
        return FALSE;
    }
    TPrinter& printer = TPrinter::Default();
    int copies = 1;
    if (!(dialog->Flags & PD_RETURNDEFAULT)) {
        PrintDialog box(GetWindowPtr(dialog->hwndOwner), printer,
                        dialog->nCopies > 0 ? dialog->nCopies : 1);
        if (box.Execute() != IDOK) {
            return FALSE;
        }
        printer = box.GetPrinter();
        copies = box.GetCopies();
    }
    dialog->nCopies = WORD(copies);
    if (dialog->Flags & PD_RETURNDC) {
        dialog->hDC = new TPrintDC(printer);
    }
    return TRUE;
}

int StartDocA(HDC dc, const DOCINFOA* info)
{
    TPrintDC* printer = PrinterOf(dc);
    if (!printer) {
        return SP_ERROR;
    }
    return printer->StartDoc(info ? info->lpszDocName : nullptr, info ? info->lpszOutput : nullptr);
}

int StartPage(HDC dc)
{
    TPrintDC* printer = PrinterOf(dc);
    return printer ? printer->StartPage() : SP_ERROR;
}

int EndPage(HDC dc)
{
    TPrintDC* printer = PrinterOf(dc);
    return printer ? printer->EndPage() : SP_ERROR;
}

int EndDoc(HDC dc)
{
    TPrintDC* printer = PrinterOf(dc);
    return printer ? printer->EndDoc() : SP_ERROR;
}

int AbortDoc(HDC dc)
{
    TPrintDC* printer = PrinterOf(dc);
    return printer ? printer->AbortDoc() : SP_ERROR;
}

BOOL DeleteDC(HDC dc)
{
    if (!dc) {
        return FALSE;
    }
    delete static_cast<TDC*>(dc);
    return TRUE;
}
