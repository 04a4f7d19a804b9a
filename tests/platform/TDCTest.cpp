// What a device context keeps besides pixels: the device's resolution and size, the mapping of
// logical to device units, selected objects and how they are restored, and the plain calls on
// handles.
#include <gtest/gtest.h>

#include <cstdlib>

#include "PictureText.h"
#include "platform/Gdi.h"
#include "platform/TBitmap.h"
#include "platform/TClientDC.h"
#include "platform/TMemoryDC.h"

namespace {

TEST(DeviceCaps, ScreenHasNinetySixDotsPerInchUnlessConfigured)
{
    if (std::getenv("ORBISCOPE_SCREEN_DPI")) {
        GTEST_SKIP() << "the screen resolution is configured";
    }
    Surface s(10, 10, PixelFormat::Rgb32);
    TClientDC dc(s);
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSX), 96);
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), 96);
    EXPECT_EQ(dc.GetDeviceCaps(HORZRES), 1024);
    EXPECT_EQ(dc.GetDeviceCaps(VERTRES), 768);
    EXPECT_EQ(dc.GetDeviceCaps(HORZSIZE), 271) << "1024 pixels at 96 per inch, in millimetres";
    EXPECT_EQ(dc.GetDeviceCaps(VERTSIZE), 203);
    EXPECT_EQ(dc.GetDeviceCaps(9999), 0);
    TMemoryDC memory(dc);
    EXPECT_EQ(memory.GetDeviceCaps(LOGPIXELSY), 96) << "a memory context shares its device";
}

TEST(DeviceCaps, PrinterPageAnswersForItself)
{
    DeviceCaps a4{300, 300, 2480, 3508, 24};
    Surface page(8, 8, PixelFormat::Rgb32);
    TDC dc(page, a4);
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), 300);
    EXPECT_EQ(dc.GetDeviceCaps(HORZSIZE), 210);
    EXPECT_EQ(dc.GetDeviceCaps(VERTSIZE), 297);
    EXPECT_EQ(GetDeviceCaps(dc, VERTRES), 3508);

    DeviceCaps saved = ScreenDeviceCaps();
    DeviceCaps big = saved;
    big.LogPixelsX = big.LogPixelsY = 120;
    SetScreenDeviceCaps(big);
    TMemoryDC screen;
    EXPECT_EQ(screen.GetDeviceCaps(LOGPIXELSX), 120);
    SetScreenDeviceCaps(saved);
}

TEST(Mapping, TextModeIsPixelsWithMovableOrigins)
{
    Surface s(20, 20, PixelFormat::Indexed8);
    TClientDC dc(s);
    EXPECT_EQ(dc.SetMapMode(MM_TEXT), MM_TEXT);
    TPoint p(3, 4);
    ASSERT_TRUE(dc.LPtoDP(&p));
    EXPECT_EQ(p, TPoint(3, 4));

    dc.SetViewportOrg(TPoint(10, 5));
    dc.SetWindowExt(TSize(100, 100)); // no effect in MM_TEXT
    p = TPoint(3, 4);
    dc.LPtoDP(&p);
    EXPECT_EQ(p, TPoint(13, 9));
    dc.SetPixel(0, 0, TColor::White);
    EXPECT_EQ(s.ColorAt(10, 5), RGB(255, 255, 255));
    EXPECT_EQ(dc.SetMapMode(42), 0);
}

TEST(Mapping, AnisotropicScalesDrawingAndLPtoDP)
{
    Surface s(20, 20, PixelFormat::Rgb32);
    TClientDC dc(s);
    EXPECT_EQ(dc.SetMapMode(MM_ANISOTROPIC), MM_TEXT);
    dc.SetWindowExt(TSize(1000, 1000));
    dc.SetViewportExt(TSize(10, 20));
    TPoint points[2] = {{500, 250}, {0, 0}};
    ASSERT_TRUE(dc.LPtoDP(points, 2));
    EXPECT_EQ(points[0], TPoint(5, 5));
    POINT raw = {300, 300};
    EXPECT_EQ(LPtoDP(dc, &raw, 1), TRUE);
    EXPECT_EQ(raw.x, 3);
    EXPECT_EQ(raw.y, 6);

    dc.FillRect(TRect(100, 100, 400, 200), TBrush(TColor::LtGreen));
    EXPECT_EQ(PictureOf(s, TRect(0, 0, 6, 5)), Rows({
                                                   "......",
                                                   "......",
                                                   ".ggg..",
                                                   ".ggg..",
                                                   "......",
                                               }));
    EXPECT_EQ(dc.GetClipBox(), TRect(0, 0, 2000, 1000));
    dc.SetMapMode(MM_TEXT);
    TPoint back(7, 7);
    dc.LPtoDP(&back);
    EXPECT_EQ(back, TPoint(7, 7)) << "text mode resets the extents";
}

TEST(SelectedObjects, RestoreGoesBackToWhatWasThereFirst)
{
    Surface s(6, 3, PixelFormat::Rgb32);
    TClientDC dc(s);
    dc.SelectObject(TPen(TColor::LtRed));
    dc.SelectObject(TPen(TColor::LtGreen));
    dc.RestorePen();
    EXPECT_EQ(dc.GetPen().GetColor(), TColor::Black) << "the context's own pen";

    dc.SelectObject(TPen(TColor::LtRed));
    dc.SelectObject(TBrush(TColor::LtBlue));
    dc.SelectObject(TFont("Times New Roman", 20));
    dc.RestoreObjects();
    EXPECT_EQ(dc.GetBrush().GetColor(), TColor::White);
    EXPECT_EQ(dc.GetFont().GetFaceName(), "Arial");
    dc.RestoreObjects(); // nothing left to restore
    dc.SelectObject(TPen(TColor::White));
    dc.MoveTo(0, 1);
    dc.LineTo(5, 1);
    EXPECT_EQ(PictureOf(s), Rows({"......", "#####.", "......"}));
}

TEST(SelectedObjects, AttributesSetReturnTheOldValue)
{
    Surface s(2, 2, PixelFormat::Rgb32);
    TClientDC dc(s);
    EXPECT_EQ(dc.SetTextColor(TColor::LtRed), TColor::Black);
    EXPECT_EQ(dc.SetBkColor(TColor::LtBlue), TColor::White);
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(dc.SetBkMode(7), 0);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(dc.SetStretchBltMode(COLORONCOLOR), BLACKONWHITE);
    EXPECT_EQ(SetTextColor(dc, RGB(1, 2, 3)), RGB(255, 0, 0));
    EXPECT_EQ(SetBkColor(dc, RGB(1, 2, 3)), RGB(0, 0, 255));
    EXPECT_EQ(SetBkMode(dc, OPAQUE), TRANSPARENT);
    EXPECT_EQ(SetStretchBltMode(dc, HALFTONE), COLORONCOLOR);
    EXPECT_EQ(dc.RealizePalette(), 256u);
    EXPECT_EQ(RealizePalette(dc), 256u);
}

TEST(MemoryContext, DrawsOnTheSelectedBitmapOnly)
{
    TMemoryDC dc;
    EXPECT_EQ(dc.GetSurface().Width(), 1);
    TBitmap bitmap(4, 2, PixelFormat::Indexed8);
    ASSERT_TRUE(dc.SelectObject(bitmap));
    dc.FillRect(TRect(0, 0, 2, 2), TBrush(TColor::LtYellow));
    EXPECT_EQ(PictureOf(bitmap.GetObject()->GetSurface()), Rows({"yy..", "yy.."}));
    dc.RestoreBitmap();
    EXPECT_EQ(dc.GetSurface().Width(), 1);

    Surface s(2, 2, PixelFormat::Rgb32);
    TClientDC client(s);
    EXPECT_FALSE(client.SelectObject(bitmap)) << "only memory contexts take bitmaps";
    TBitmap none(static_cast<HBITMAP>(nullptr));
    EXPECT_FALSE(dc.SelectObject(none));
}

class Target : public DrawingTarget
{
public:
    Surface& GetDrawingSurface() override { return Pixels; }
    void DrawingDone() override { ++nDone; }

    Surface Pixels{3, 3, PixelFormat::Rgb32};
    int nDone = 0;
};

TEST(ClientContext, TellsItsTargetWhenDone)
{
    Target target;
    {
        TClientDC dc(target);
        dc.SetPixel(1, 1, TColor::LtRed);
        EXPECT_EQ(target.nDone, 0);
    }
    EXPECT_EQ(target.nDone, 1);
    EXPECT_EQ(target.Pixels.ColorAt(1, 1), RGB(255, 0, 0));
}

TEST(PlainCalls, WorkOnHandlesAndRefuseANullContext)
{
    Surface s(6, 3, PixelFormat::Indexed8);
    TClientDC dc(s);
    dc.SelectObject(TPen(TColor::White));
    POINT old{};
    EXPECT_EQ(MoveToEx(dc, 1, 1, &old), TRUE);
    EXPECT_EQ(LineTo(dc, 4, 1), TRUE);
    EXPECT_EQ(MoveToEx(dc, 0, 0, &old), TRUE);
    EXPECT_EQ(old.x, 4);
    EXPECT_EQ(SetPixel(dc, 5, 2, RGB(255, 0, 0)), RGB(255, 0, 0));
    EXPECT_EQ(GetPixel(dc, 5, 2), RGB(255, 0, 0));
    RECT r = {0, 2, 2, 3};
    EXPECT_EQ(InvertRect(dc, &r), TRUE);
    EXPECT_EQ(PictureOf(s), Rows({"......", ".###..", "##...r"}));

    SIZE size{};
    EXPECT_EQ(GetTextExtentPoint32A(dc, "ab", 2, &size), TRUE);
    EXPECT_GT(size.cx, 0);
    TEXTMETRIC m{};
    EXPECT_EQ(GetTextMetricsA(dc, &m), TRUE);
    EXPECT_EQ(m.tmHeight, size.cy);

    HDC none = nullptr;
    EXPECT_EQ(SetPixel(none, 0, 0, 0), CLR_INVALID);
    EXPECT_EQ(LineTo(none, 1, 1), FALSE);
    EXPECT_EQ(BitBlt(none, 0, 0, 1, 1, dc, 0, 0, SRCCOPY), FALSE);
    EXPECT_EQ(TextOutA(none, 0, 0, "x", 1), FALSE);
    EXPECT_EQ(GetDeviceCaps(none, LOGPIXELSX), 0);
    EXPECT_EQ(StretchDIBits(none, 0, 0, 1, 1, 0, 0, 1, 1, nullptr, nullptr, 0, SRCCOPY), 0);
    EXPECT_EQ(GetObjectA(&s, sizeof(BITMAP), &m), 0) << "not a handle";
    EXPECT_EQ(DeleteObject(nullptr), FALSE);
}

TEST(PlainCalls, FiguresAndTextMatchTheMembers)
{
    Surface a(12, 12, PixelFormat::Rgb32), b(12, 12, PixelFormat::Rgb32);
    TClientDC da(a), db(b);
    for (TDC* dc : {&da, &db}) {
        dc->SelectObject(TPen(TColor::LtRed));
        dc->SelectObject(TBrush(TColor::LtGreen));
    }
    Rectangle(da, 0, 0, 4, 4);
    Ellipse(da, 4, 0, 10, 5);
    Pie(da, 0, 5, 6, 11, 6, 8, 3, 5);
    Arc(da, 6, 6, 12, 12, 0, 0, 0, 0);
    RoundRect(da, 1, 1, 11, 3, 4, 2);
    POINT line[] = {{0, 11}, {11, 11}, {11, 0}};
    Polyline(da, line, 3);
    TextOutA(da, 2, 2, "ab", 2);
    RECT clip = {0, 0, 6, 6};
    ExtTextOutA(da, 0, 6, ETO_CLIPPED, &clip, "xyz", 3, nullptr);

    db.Rectangle(0, 0, 4, 4);
    db.Ellipse(4, 0, 10, 5);
    db.Pie(0, 5, 6, 11, 6, 8, 3, 5);
    db.Arc(6, 6, 12, 12, 0, 0, 0, 0);
    db.RoundRect(1, 1, 11, 3, 4, 2);
    TPoint tline[] = {{0, 11}, {11, 11}, {11, 0}};
    db.Polyline(tline, 3);
    db.TextOut(2, 2, "ab", 2);
    TRect tclip(0, 0, 6, 6);
    db.ExtTextOut(0, 6, ETO_CLIPPED, &tclip, "xyz", 3);
    EXPECT_EQ(ColorsOf(a), ColorsOf(b));
}

} // namespace
