// One label: its measure, where the line to its object leaves the text, and the pixels it
// draws on the map's 8-bit surface.
#include <gtest/gtest.h>

#include <algorithm>

#include "MarkedObject.h"
#include "SkyCanvas.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "state/CmdLineStateContainer.h"

namespace {

class LabelTest : public ::testing::Test
{
protected:
    LabelTest() : Canvas(64, 32), Font(NewTestLabelFont()) {}
    ~LabelTest() override { Font->Release(); }

    // A label for an object at `objectPoint`, measured on the canvas.
    Label Measured(const std::string& text, const TPoint& objectPoint)
    {
        Label label(text, objectPoint, *Font, TColor::White);
        label.Measure(Canvas.GetDC());
        return label;
    }

    SkyCanvas Canvas;
    FontRef* Font;
};

} // namespace

TEST_F(LabelTest, MeasuresInItsOwnFontAndLeavesTheSurfaceFontAlone)
{
    const std::string before = Canvas.GetDC().GetFont().GetFaceName();
    Label label("X", TPoint(5, 5), *Font, TColor::White);
    EXPECT_FALSE(label.IsMeasured());
    label.SetDisplayPoint(TPoint(20, 3));
    label.Measure(Canvas.GetDC());
    EXPECT_TRUE(label.IsMeasured());
    EXPECT_EQ(label.GetSize(), TSize(8, 14));
    EXPECT_EQ(label.GetDisplayRect(), TRect(20, 3, 28, 17));
    EXPECT_EQ(Canvas.GetDC().GetFont().GetFaceName(), before);

    // Hidden, it takes no room; shown again, its rectangle is back.
    label.Hide();
    EXPECT_EQ(label.GetSize(), TSize(0, 0));
    EXPECT_TRUE(label.GetDisplayRect().IsEmpty());
    label.Show();
    EXPECT_EQ(label.GetDisplayRect(), TRect(20, 3, 28, 17));
}

TEST_F(LabelTest, LineLeavesFromTheNearerSideAndTheRowFacingTheObject)
{
    struct Case
    {
        TPoint Object;
        TPoint Line;
    };
    // The text "X" stands at (20, 10) to (28, 24).
    const Case cases[] = {
        {TPoint(14, 17), TPoint(20, 17)}, // left, level with the text: middle row
        {TPoint(34, 17), TPoint(28, 17)}, // right
        {TPoint(14, 10), TPoint(20, 10)}, // level with the top row
        {TPoint(30, 2), TPoint(28, 10)},  // above
        {TPoint(14, 24), TPoint(20, 24)}, // level with the bottom edge
        {TPoint(30, 30), TPoint(28, 24)}, // below
        {TPoint(24, 9), TPoint(28, 10)},  // half way across: the right side
        {TPoint(23, 9), TPoint(20, 10)},  // one nearer the left
        {TPoint(24, 11), TPoint(28, 17)}, // within the text: the middle row
    };
    for (const Case& c : cases) {
        Label label = Measured("X", c.Object);
        label.SetDisplayPoint(TPoint(20, 10));
        EXPECT_EQ(label.GetLinePoint(), c.Line) << c.Object.x << ", " << c.Object.y;
    }
}

TEST_F(LabelTest, ObjectPointFollowsTheObjectUnlessFixed)
{
    MarkedObject star(TPoint(10, 12), "Vega", *Font);
    Label label("Vega", star, *Font, TColor::White);
    EXPECT_EQ(label.GetObject(), &star);
    EXPECT_EQ(label.GetObjectPoint(), TPoint(10, 12));
    star.SetDisplayPoint(TPoint(40, 2));
    label.UpdateObjectPoint();
    EXPECT_EQ(label.GetObjectPoint(), TPoint(40, 2));

    label.SetFixedPoint(TPoint(7, 8), true);
    EXPECT_TRUE(label.IsFixed());
    EXPECT_EQ(label.GetObjectPoint(), TPoint(7, 8));

    // A label of a point without an object keeps that point.
    Label free("Here", TPoint(3, 4), *Font, TColor::White);
    free.UpdateObjectPoint();
    EXPECT_EQ(free.GetObjectPoint(), TPoint(3, 4));
    EXPECT_EQ(free.GetObject(), nullptr);
}

TEST_F(LabelTest, CopyTakesEveryMember)
{
    MarkedObject star(TPoint(5, 16), "", *Font);
    Label original("I-", star, *Font, TColor::LtYellow);
    original.Measure(Canvas.GetDC());
    original.SetDisplayPoint(TPoint(11, 10));
    original.SetFixedPoint(TPoint(6, 15), true);
    original.Hide();

    Label copy;
    copy.Copy(original);
    EXPECT_EQ(copy.GetObject(), &star);
    EXPECT_EQ(copy.GetText(), "I-");
    EXPECT_EQ(copy.GetColor(), TColor::LtYellow);
    EXPECT_EQ(copy.GetObjectPoint(), TPoint(6, 15));
    EXPECT_EQ(copy.GetDisplayPoint(), TPoint(11, 10));
    EXPECT_EQ(copy.GetLinePoint(), original.GetLinePoint());
    EXPECT_TRUE(copy.IsMeasured());
    EXPECT_TRUE(copy.IsFixed());
    EXPECT_TRUE(copy.IsHidden());
    copy.Show();
    EXPECT_EQ(copy.GetDisplayRect(), TRect(11, 10, 18, 24));
}

// "I-" is 7 pixels wide: the stem of the I in its second column, the hyphen's two pixels in
// the fifth and sixth, on the row of the text's middle.
TEST_F(LabelTest, DrawsTheTextAndALineToTheObjectWithoutItsLastPixel)
{
    Label label = Measured("I-", TPoint(5, 16));
    label.SetDisplayPoint(TPoint(11, 10));
    ASSERT_EQ(label.GetLinePoint(), TPoint(11, 17));
    label.Draw(Canvas.GetDC());
    EXPECT_EQ(Canvas.Picture(TRect(4, 10, 20, 24)), Rows({
                                                        "................",
                                                        "................",
                                                        "........#.......",
                                                        "........#.......",
                                                        "........#.......",
                                                        "........#.......",
                                                        "..###...#.......",
                                                        ".....####..##...",
                                                        "........#.......",
                                                        "........#.......",
                                                        "........#.......",
                                                        "................",
                                                        "................",
                                                        "................",
                                                    }));
    // Nothing outside the text and the line.
    const std::string all = Canvas.Picture(TRect(0, 0, 64, 32));
    EXPECT_EQ(std::count(all.begin(), all.end(), '#'), 17);
}

TEST_F(LabelTest, FixedLabelHasNoLineAndHiddenLabelDrawsNothing)
{
    Label fixed = Measured("I-", TPoint(5, 16));
    fixed.SetFixedPoint(TPoint(5, 16), true);
    fixed.SetDisplayPoint(TPoint(11, 10));
    fixed.Draw(Canvas.GetDC());
    EXPECT_EQ(Canvas.Picture(TRect(4, 16, 20, 18)), Rows({
                                                        "........#.......",
                                                        "........#..##...",
                                                    }));

    Label hidden = Measured("I-", TPoint(40, 16));
    hidden.SetDisplayPoint(TPoint(44, 10));
    hidden.Hide();
    hidden.Draw(Canvas.GetDC());
    EXPECT_EQ(Canvas.Picture(TRect(30, 0, 64, 32)).find('#'), std::string::npos);
}

TEST_F(LabelTest, ColourIsTheTextsAndTheLinesOnThePalette)
{
    Label label("-", TPoint(2, 17), *Font, TColor::LtYellow);
    label.Measure(Canvas.GetDC());
    label.SetDisplayPoint(TPoint(8, 10));
    label.Draw(Canvas.GetDC());
    const unsigned yellow = Canvas.Parameters.GetPaletteIndex(TColor::LtYellow);
    ASSERT_NE(yellow, 0u);
    // The line from (8, 17) back to the object's (2, 17), then the hyphen at 9 and 10.
    EXPECT_EQ(Canvas.Picture(TRect(2, 17, 12, 18), {{yellow, 'y'}}), ".yyyyyyyy.\n");
}

TEST(LabelState, ColourGoesIntoALevelOfItsOwn)
{
    FontRef* font = NewTestLabelFont();
    Label label(*font, TColor(255, 128, 0));
    CmdLineStateContainer writer;
    writer << AstroKey("Label") << label;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Label=<Color=<R=255 G=128 B=0>>");

    Label back;
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("Label") >> back;
    EXPECT_EQ(back.GetColor(), TColor(255, 128, 0));
    font->Release();
}
