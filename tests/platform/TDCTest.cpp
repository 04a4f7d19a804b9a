// What a device context keeps besides pixels: the screen's resolution and size, the mapping of
// logical to device units, selected objects and how they are restored, and the plain calls on
// handles, which refuse a null context.
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

TEST(PlainCalls, WorkOnHandlesAndRefuseANullContext)
{
    Surface s(6, 3, PixelFormat::Indexed8);
    TClientDC dc(s);
    dc.SelectObject(TPen(TColor::White));
    POINT old{};
    EXPECT_EQ(MoveToEx(dc, 1, 1, &old), TRUE);
    EXPECT_EQ(LineTo(dc, 4, 1), TRUE);
    EXPECT_EQ(SetPixel(dc, 5, 2, RGB(255, 0, 0)), RGB(255, 0, 0));
    RECT r = {0, 2, 2, 3};
    EXPECT_EQ(InvertRect(dc, &r), TRUE);
    EXPECT_EQ(PictureOf(s), Rows({"......", ".###..", "##...r"}));

    HDC none = nullptr;
    EXPECT_EQ(SetPixel(none, 0, 0, 0), CLR_INVALID);
    EXPECT_EQ(LineTo(none, 1, 1), FALSE);
    EXPECT_EQ(BitBlt(none, 0, 0, 1, 1, dc, 0, 0, SRCCOPY), FALSE);
    EXPECT_EQ(TextOutA(none, 0, 0, "x", 1), FALSE);
    EXPECT_EQ(GetDeviceCaps(none, LOGPIXELSX), 0);
    EXPECT_EQ(StretchDIBits(none, 0, 0, 1, 1, 0, 0, 1, 1, nullptr, nullptr, 0, SRCCOPY), 0);
    EXPECT_EQ(GetObjectA(&s, sizeof(BITMAP), &old), 0) << "not a handle";
    EXPECT_EQ(DeleteObject(nullptr), FALSE);
}

} // namespace
