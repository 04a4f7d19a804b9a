// Fonts and text: the faces that stand in for the Windows fonts, their Windows-style metrics,
// and how text lands on both surface formats.
#include <gtest/gtest.h>

#include <cstring>
#include <set>

#include "PictureText.h"
#include "platform/TClientDC.h"
#include "platform/TFont.h"

namespace {

// The box of pixels that differ from `background`; empty when none do.
TRect InkBox(const Surface& s, COLORREF background)
{
    TRect box(s.Width(), s.Height(), 0, 0);
    for (int y = 0; y < s.Height(); ++y) {
        for (int x = 0; x < s.Width(); ++x) {
            if (s.ColorAt(x, y) != background) {
                box = TRect(std::min(box.left, LONG(x)), std::min(box.top, LONG(y)),
                            std::max(box.right, LONG(x + 1)), std::max(box.bottom, LONG(y + 1)));
            }
        }
    }
    return box.IsEmpty() ? TRect() : box;
}

std::set<COLORREF> ColoursIn(const Surface& s)
{
    std::vector<COLORREF> all = ColorsOf(s);
    return std::set<COLORREF>(all.begin(), all.end());
}

TEST(Fonts, WindowsFacesResolveToTheLiberationFonts)
{
    struct Case
    {
        TFont Font;
        const char* Family;
        const char* Style;
    };
    const Case cases[] = {
        {TFont("Arial", 10), "Liberation Sans", "Regular"},
        {TFont("Times New Roman", 15), "Liberation Serif", "Regular"},
        {TFont("Courier", 10, 10), "Liberation Mono", "Regular"},
        {TFont("Courier New", 10), "Liberation Mono", "Regular"},
        {TFont("Arial Italic", 10), "Liberation Sans", "Italic"},
        {TFont("Arial", 10, 0, 0, 0, FW_NORMAL, 0, true), "Liberation Sans", "Italic"},
        {TFont("Arial", 10, 0, 0, 0, FW_BOLD), "Liberation Sans", "Bold"},
        {TFont("arial bold italic", 10), "Liberation Sans", "Bold Italic"},
    };
    for (const Case& c : cases) {
        const auto& instance = c.Font.GetInstance();
        ASSERT_TRUE(instance) << c.Font.GetFaceName();
        EXPECT_EQ(instance->GetFamilyName(), c.Family) << c.Font.GetFaceName();
        EXPECT_EQ(instance->GetStyleName(), c.Style) << c.Font.GetFaceName();
    }
    EXPECT_EQ(TFont("Arial Italic", 10).GetInstance()->GetMetrics().tmItalic, 1);
}

// Liberation Sans has 2048 units per em, a Windows ascent of 1854 and descent of 434, as Arial.
TEST(Fonts, MetricsFollowTheWindowsRules)
{
    Surface s(4, 4, PixelFormat::Rgb32);
    TClientDC dc(s);
    TEXTMETRIC m{};

    dc.SelectObject(TFont("Arial", -13)); // character height: 13 pixels per em
    ASSERT_TRUE(dc.GetTextMetrics(m));
    EXPECT_EQ(m.tmHeight, 15);
    EXPECT_EQ(m.tmAscent, 12);
    EXPECT_EQ(m.tmDescent, 3);
    EXPECT_EQ(m.tmInternalLeading, 2);

    dc.SelectObject(TFont("Arial", 10)); // cell height: 9 pixels per em
    dc.GetTextMetrics(m);
    EXPECT_EQ(m.tmHeight, 10);
    EXPECT_EQ(m.tmAscent, 8);
    EXPECT_EQ(m.tmDescent, 2);
    EXPECT_EQ(m.tmInternalLeading, 1);
    EXPECT_EQ(m.tmWeight, FW_NORMAL);
    EXPECT_EQ(m.tmPitchAndFamily & 0xF0, FF_SWISS);
    EXPECT_EQ(m.tmPitchAndFamily & 1, 1) << "variable pitch";

    dc.SelectObject(TFont("Times New Roman", 15));
    dc.GetTextMetrics(m);
    EXPECT_EQ(m.tmHeight, 15);
    EXPECT_EQ(m.tmAscent, 12);
    EXPECT_EQ(m.tmDescent, 3);

    dc.SelectObject(TFont("Courier", 10));
    dc.GetTextMetrics(m);
    EXPECT_EQ(m.tmAveCharWidth, m.tmMaxCharWidth) << "fixed pitch";
    EXPECT_EQ(m.tmPitchAndFamily & 1, 0);
}

TEST(Fonts, ExtentOfXInArialTen)
{
    // "X" is 1366 units wide in Arial and Liberation Sans: 6 pixels at 9 pixels per em.
    for (PixelFormat format : {PixelFormat::Indexed8, PixelFormat::Rgb32}) {
        Surface s(4, 4, format);
        TClientDC dc(s);
        dc.SelectObject(TFont("Arial", 10, 0, 0, 0, 400, 0, 0, 0, 0, 1));
        EXPECT_EQ(dc.GetTextExtent("X"), TSize(6, 10));
        EXPECT_EQ(dc.GetTextExtent("XX", 2), TSize(12, 10));
        EXPECT_EQ(dc.GetTextExtent(""), TSize(0, 10));
    }
}

TEST(Fonts, ExtentOfALabelInTimesNewRoman)
{
    // Times widths per 1000 of the em: J 389, u 500, p 500, i 278, t 278, e 444, r 333. At 14
    // pixels per em (cell height 15) they round to 5, 7, 7, 4, 4, 6, 5.
    Surface s(4, 4, PixelFormat::Indexed8);
    TClientDC dc(s);
    dc.SelectObject(TFont("Times New Roman", 15, 0, 0, 0, 400, 0, 0, 0, 0, 1));
    EXPECT_EQ(dc.GetTextExtent("Jupiter"), TSize(38, 15));
    int sum = 0;
    for (const char* c = "Jupiter"; *c; ++c) {
        sum += dc.GetTextExtent(c, 1).cx;
    }
    EXPECT_EQ(sum, 38);
    TSize size;
    EXPECT_TRUE(dc.GetTextExtent("Jupiter", 3, size));
    EXPECT_EQ(size, TSize(19, 15));
}

TEST(Fonts, UnknownFaceFallsBackAndStillMeasures)
{
    Surface s(4, 4, PixelFormat::Rgb32);
    TClientDC dc(s);
    dc.SelectObject(TFont("No Such Face Anywhere", -12));
    EXPECT_GT(dc.GetTextExtent("abc").cx, 0);
    dc.SelectObject(TFont("", -12, 0, 0, 0, 400, FF_ROMAN));
    EXPECT_EQ(dc.GetFont().GetInstance()->GetFamilyName(), "Liberation Serif");
}

TEST(Fonts, WindowsLatinCharactersHaveGlyphs)
{
    TFont font("Arial", -13);
    const auto& instance = font.GetInstance();
    for (BYTE c : {BYTE(0xB0), BYTE(0x80), BYTE(0xE9), BYTE('W')}) {
        EXPECT_GT(instance->Advance(c), 0) << int(c);
        EXPECT_FALSE(instance->GetGlyph(c, false).Coverage.empty()) << int(c);
    }
}

class Text : public ::testing::TestWithParam<PixelFormat>
{
protected:
    Text() : Canvas(60, 24, GetParam()), Dc(Canvas)
    {
        Dc.SelectObject(TFont("Arial", -13));
        Dc.SetTextColor(TColor::LtYellow);
        Dc.SetBkColor(TColor::LtBlue);
    }

    Surface Canvas;
    TClientDC Dc;
};

INSTANTIATE_TEST_SUITE_P(BothFormats, Text,
                         ::testing::Values(PixelFormat::Indexed8, PixelFormat::Rgb32), FormatName);

TEST_P(Text, TransparentTextStaysInsideItsExtentFromTheTopLeft)
{
    Dc.SetBkMode(TRANSPARENT);
    ASSERT_TRUE(Dc.TextOut(5, 4, "Mars"));
    TSize extent = Dc.GetTextExtent("Mars");
    TRect ink = InkBox(Canvas, RGB(0, 0, 0));
    EXPECT_FALSE(ink.IsEmpty());
    EXPECT_EQ(ink & TRect(TPoint(5, 4), extent), ink) << "ink outside the cell";
    EXPECT_LE(ink.left, 6) << "the M starts near the left edge";
    std::set<COLORREF> colours = ColoursIn(Canvas);
    EXPECT_EQ(colours.count(RGB(0, 0, 255)), 0u) << "no background drawn";
}

TEST_P(Text, SmoothedOnlyOnRgb)
{
    Dc.SetBkMode(TRANSPARENT);
    Dc.TextOut(2, 2, "Saturn");
    std::set<COLORREF> colours = ColoursIn(Canvas);
    if (GetParam() == PixelFormat::Indexed8) {
        EXPECT_EQ(colours, (std::set<COLORREF>{RGB(0, 0, 0), RGB(255, 255, 0)}));
    } else {
        EXPECT_GT(colours.size(), 2u) << "shades between text and background";
    }

    Surface plain(60, 24, GetParam());
    TClientDC plainDc(plain);
    plainDc.SelectObject(
        TFont("Arial", -13, 0, 0, 0, 400, 0, 0, 0, 0, 1, 0, 0, NONANTIALIASED_QUALITY));
    plainDc.SetTextColor(TColor::LtYellow);
    plainDc.SetBkMode(TRANSPARENT);
    plainDc.TextOut(2, 2, "Saturn");
    EXPECT_EQ(ColoursIn(plain).size(), 2u);
}

TEST_P(Text, OpaqueTextFillsExactlyItsCell)
{
    EXPECT_EQ(Dc.GetBkMode(), OPAQUE);
    Dc.TextOut(3, 2, "Venus");
    TSize extent = Dc.GetTextExtent("Venus");
    EXPECT_EQ(InkBox(Canvas, RGB(0, 0, 0)), TRect(TPoint(3, 2), extent));
    EXPECT_EQ(Canvas.ColorAt(3, 2), RGB(0, 0, 255));
}

TEST_P(Text, ExtTextOutFillsAndClipsToItsRectangle)
{
    Dc.SetBkMode(TRANSPARENT);
    TRect box(10, 5, 30, 14);
    ASSERT_TRUE(Dc.ExtTextOut(12, 3, ETO_CLIPPED | ETO_OPAQUE, &box, "Pointer Position"));
    TRect ink = InkBox(Canvas, RGB(0, 0, 0));
    EXPECT_EQ(ink, box) << "the whole rectangle takes the background colour, text stays inside";
    std::set<COLORREF> colours = ColoursIn(Canvas);
    EXPECT_TRUE(colours.count(RGB(255, 255, 0))) << "some text is visible";

    Surface unclipped(60, 24, GetParam());
    TClientDC other(unclipped);
    other.SelectObject(TFont("Arial", -13));
    other.SetBkMode(TRANSPARENT);
    other.SetTextColor(TColor::White);
    other.ExtTextOut(12, 3, 0, &box, "Pointer Position");
    EXPECT_GT(InkBox(unclipped, RGB(0, 0, 0)).right, box.right) << "without ETO_CLIPPED";
}

TEST(TextOnAScaledContext, MeasuresInLogicalUnits)
{
    Surface s(200, 100, PixelFormat::Rgb32);
    TClientDC dc(s);
    dc.SelectObject(TFont("Arial", -40));
    TSize plain = dc.GetTextExtent("Chart");
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(TSize(4, 4));
    dc.SetViewportExt(TSize(1, 1));
    TSize scaled = dc.GetTextExtent("Chart");
    EXPECT_NEAR(scaled.cx, plain.cx, 4);
    EXPECT_NEAR(scaled.cy, plain.cy, 4);
    TEXTMETRIC m{};
    dc.GetTextMetrics(m);
    EXPECT_NEAR(m.tmHeight, plain.cy, 4);
    dc.SetTextColor(TColor::White);
    dc.SetBkMode(TRANSPARENT);
    dc.TextOut(40, 40, "Chart");
    TRect ink = InkBox(s, RGB(0, 0, 0));
    EXPECT_NEAR(ink.right, 10 + plain.cx / 4, 3) << "drawn a quarter of the size";
}

} // namespace
