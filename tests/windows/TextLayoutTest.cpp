// Text in a rectangle: line breaks, word wrapping, alignment, mnemonic marks, ellipses and
// measuring, as DrawText does them.
#include <gtest/gtest.h>

#include "platform/Surface.h"
#include "platform/TClientDC.h"
#include "platform/TextLayout.h"

namespace {

class TextInRectangle : public ::testing::Test
{
protected:
    Surface Pixels{300, 200, PixelFormat::Rgb32};
    TClientDC Dc{Pixels};
    int Width(const std::string& text) const { return Dc.GetTextExtent(text).cx; }
    // The leftmost and rightmost columns that hold ink, in a band of rows.
    std::pair<int, int> Ink(int top, int bottom) const
    {
        int left = 1000;
        int right = -1;
        for (int y = top; y < bottom; ++y) {
            for (int x = 0; x < Pixels.Width(); ++x) {
                if (Pixels.ColorAt(x, y) != RGB(255, 255, 255)) {
                    left = std::min(left, x);
                    right = std::max(right, x);
                }
            }
        }
        return {left, right};
    }
    void Clear() { Dc.FillRect(Pixels.Bounds(), TBrush(TColor::White)); }
};

TEST_F(TextInRectangle, WordsWrapAtTheWidthAndLineFeedsBreak)
{
    int width = Width("Orion Taurus") + 2;
    TextLayout layout(Dc, "Orion Taurus Gemini\nCancer", width, DT_WORDBREAK);
    EXPECT_EQ(layout.GetLines(), (std::vector<std::string>{"Orion Taurus", "Gemini", "Cancer"}));
    EXPECT_EQ(layout.GetHeight(), 3 * layout.GetLineHeight());
    EXPECT_LE(layout.GetWidth(), width);

    TextLayout unwrapped(Dc, "Orion Taurus Gemini\nCancer", width, 0);
    EXPECT_EQ(unwrapped.GetLines().size(), 2u) << "without DT_WORDBREAK only line feeds break";
    TextLayout single(Dc, "Orion\nCancer", width, DT_SINGLELINE);
    EXPECT_EQ(single.GetLines(), std::vector<std::string>{"Orion Cancer"});
}

TEST_F(TextInRectangle, WordWiderThanTheLineIsCut)
{
    TextLayout layout(Dc, "Andromeda", Width("Andro"), DT_WORDBREAK);
    ASSERT_GE(layout.GetLines().size(), 2u);
    std::string joined;
    for (const std::string& line : layout.GetLines()) {
        EXPECT_LE(Width(line), Width("Andro"));
        joined += line;
    }
    EXPECT_EQ(joined, "Andromeda") << "no letter lost";
}

TEST_F(TextInRectangle, MnemonicMarksAreNotDrawnUnlessAsked)
{
    EXPECT_EQ(TextLayout::StripPrefix("&Yes"), "Yes");
    EXPECT_EQ(TextLayout::StripPrefix("Save && quit"), "Save & quit");
    EXPECT_EQ(TextLayout(Dc, "&No", 100, 0).GetLines().front(), "No");
    EXPECT_EQ(TextLayout(Dc, "&No", 100, DT_NOPREFIX).GetLines().front(), "&No");
}

TEST_F(TextInRectangle, EllipsisShortensALineThatDoesNotFit)
{
    int width = Width("Cassiopeia");
    TextLayout layout(Dc, "Cassiopeia and Cepheus", width, DT_SINGLELINE | DT_END_ELLIPSIS);
    const std::string& line = layout.GetLines().front();
    EXPECT_EQ(line.substr(line.size() - 3), "...");
    EXPECT_LE(Width(line), width);
}

TEST_F(TextInRectangle, AlignmentPlacesTheInk)
{
    Clear();
    RECT box{10, 10, 290, 40};
    Dc.SetBkMode(TRANSPARENT);
    DrawTextA(Dc, "Lyra", -1, &box, DT_LEFT | DT_SINGLELINE);
    auto [left, right] = Ink(10, 40);
    EXPECT_GE(left, 10);
    EXPECT_LT(left, 14);
    Clear();
    DrawTextA(Dc, "Lyra", -1, &box, DT_RIGHT | DT_SINGLELINE);
    std::tie(left, right) = Ink(10, 40);
    EXPECT_LT(right, 290);
    EXPECT_GT(right, 284);
    Clear();
    DrawTextA(Dc, "Lyra", -1, &box, DT_CENTER | DT_SINGLELINE);
    std::tie(left, right) = Ink(10, 40);
    EXPECT_NEAR((left + right) / 2, 150, 3);
}

TEST_F(TextInRectangle, CalcRectMeasuresWithoutDrawing)
{
    Clear();
    RECT box{5, 5, 5 + Width("Ursa Major") + 1, 100};
    int height = DrawTextA(Dc, "Ursa Major Ursa Minor", -1, &box, DT_WORDBREAK | DT_CALCRECT);
    TextLayout expected(Dc, "Ursa Major Ursa Minor", Width("Ursa Major") + 1, DT_WORDBREAK);
    EXPECT_EQ(height, expected.GetHeight());
    EXPECT_EQ(box.bottom, 5 + height);
    EXPECT_EQ(box.right, 5 + expected.GetWidth());
    EXPECT_EQ(Ink(0, 200).second, -1) << "nothing drawn";
    EXPECT_EQ(DrawTextA(nullptr, "x", -1, &box, 0), 0);
}

} // namespace
