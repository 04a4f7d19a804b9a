#pragma once
// The drawing calls in their plain form, on handles, for code written against them. A device
// context handle is a TDC*; each call does what the TDC member of the same name does. Calls on
// a null context fail (FALSE, 0 or CLR_INVALID) and do nothing.
#include "platform/TDC.h"
#include "platform/WinTypes.h"

// An 8-bit or 32-bit DIB section whose bits the caller may write directly; they stay where
// they are until the bitmap is deleted. A positive height makes it bottom-up. With
// DIB_PAL_COLORS the colour table holds WORD indexes into the palette selected into `dc`
// (the standard palette when `dc` is null). Null, and `*bits` null, for a header it refuses.
HBITMAP CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                         DWORD offset);
// The sky map's kind of surface: an 8-bit bottom-up DIB section whose colour table is the
// palette indexes 0 to 255 in order (DIB_PAL_COLORS), so that its pixels are indexes into the
// palette selected into `dc`. `*bits`, when asked for, receives the pixels.
HBITMAP CreatePaletteDIBSection(HDC dc, int width, int height, void** bits = nullptr);
// Fills a BITMAP, or a DIBSECTION when there is room and the bitmap is one, or the WORD entry
// count of a palette. Returns the bytes written, 0 for a bad handle or too small a buffer.
int GetObjectA(HGDIOBJ object, int size, void* buffer);
// Gives up a handle. An object that a context still selects lives on until it is let go.
BOOL DeleteObject(HGDIOBJ object);
// Drawing is done at once, so there is never anything to wait for.
BOOL GdiFlush();

UINT RealizePalette(HDC dc);
int GetDeviceCaps(HDC dc, int index);
int SetMapMode(HDC dc, int mode);
BOOL LPtoDP(HDC dc, POINT* points, int count);
COLORREF SetTextColor(HDC dc, COLORREF color);
COLORREF SetBkColor(HDC dc, COLORREF color);
int SetBkMode(HDC dc, int mode);
int SetStretchBltMode(HDC dc, int mode);

COLORREF SetPixel(HDC dc, int x, int y, COLORREF color);
COLORREF GetPixel(HDC dc, int x, int y);
BOOL MoveToEx(HDC dc, int x, int y, POINT* oldPoint);
BOOL LineTo(HDC dc, int x, int y);
BOOL Polyline(HDC dc, const POINT* points, int count);
BOOL InvertRect(HDC dc, const RECT* rect);
BOOL Rectangle(HDC dc, int x1, int y1, int x2, int y2);
BOOL Ellipse(HDC dc, int x1, int y1, int x2, int y2);
BOOL Pie(HDC dc, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
BOOL Arc(HDC dc, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
BOOL RoundRect(HDC dc, int x1, int y1, int x2, int y2, int width, int height);

BOOL TextOutA(HDC dc, int x, int y, const char* text, int count);
BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, const char* text, UINT count,
                 const int* dx);
BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size);
BOOL GetTextMetricsA(HDC dc, TEXTMETRIC* metrics);

BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int sx, int sy, DWORD rop);
BOOL StretchBlt(HDC dc, int x, int y, int width, int height, HDC source, int sx, int sy, int sw,
                int sh, DWORD rop);
int StretchDIBits(HDC dc, int x, int y, int width, int height, int sx, int sy, int sw, int sh,
                  const void* bits, const BITMAPINFO* info, UINT usage, DWORD rop);
