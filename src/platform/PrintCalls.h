#pragma once
// Printing in its plain form, on handles, for code written against these calls.
//
// PrintDlgA shows the platform's print dialog (PrintDialog): paper, copies and the PDF file
// to write. It starts from the default printer (TPrinter::Default) and keeps what the user
// chose there. With PD_RETURNDC it hands back a new printer context in hDC, which the caller
// deletes with DeleteDC or gives to a TPrintDC with AutoDelete. PD_RETURNDEFAULT skips the
// dialog and answers for the default printer at once.
//
// The document calls act on printer contexts (TPrintDC) and answer SP_ERROR for any other.
#include "platform/WinTypes.h"

constexpr DWORD PD_ALLPAGES = 0x00000000;
constexpr DWORD PD_NOSELECTION = 0x00000004;
constexpr DWORD PD_NOPAGENUMS = 0x00000008;
constexpr DWORD PD_RETURNDC = 0x00000100;
constexpr DWORD PD_RETURNDEFAULT = 0x00000400;

struct PRINTDLGA
{
    DWORD lStructSize;
    HWND hwndOwner;
    HDC hDC;
    DWORD Flags;
    WORD nFromPage;
    WORD nToPage;
    WORD nMinPage;
    WORD nMaxPage;
    WORD nCopies;
};
using PRINTDLG = PRINTDLGA;

struct DOCINFOA
{
    int cbSize;
    const char* lpszDocName;
    // The file to write; null for the printer's own.
    const char* lpszOutput;
    const char* lpszDatatype;
    DWORD fwType;
};
using DOCINFO = DOCINFOA;

// TRUE when the user chose to print (nCopies, and hDC with PD_RETURNDC, filled in); FALSE when
// cancelled or when the structure is not one.
BOOL PrintDlgA(PRINTDLGA* dialog);
inline BOOL PrintDlg(PRINTDLGA* dialog)
{
    return PrintDlgA(dialog);
}

// A job number above 0, or SP_ERROR (-1).
int StartDocA(HDC dc, const DOCINFOA* info);
inline int StartDoc(HDC dc, const DOCINFOA* info)
{
    return StartDocA(dc, info);
}
int StartPage(HDC dc);
int EndPage(HDC dc);
int EndDoc(HDC dc);
int AbortDoc(HDC dc);

// Deletes a context that PrintDlgA made.
BOOL DeleteDC(HDC dc);
