// One label: where the line to its object leaves the text. How it is drawn and where it is
// placed is told in LabelManagerTest.
#include <gtest/gtest.h>

#include "MarkedObject.h"
#include "SkyCanvas.h"

namespace {

class LabelTest : public ::testing::Test
{
protected:
    ~LabelTest() override { Font->Release(); }

    // A measured label of an object at `object`, its text placed at `at`.
    Label Placed(const std::string& text, const TPoint& object, const TPoint& at)
    {
        Label label(text, object, *Font, TColor::White);
        label.Measure(Canvas.GetDC());
        label.SetDisplayPoint(at);
        return label;
    }

    SkyCanvas Canvas{64, 32};
    FontRef* Font = NewTestLabelFont();
};

} // namespace

TEST_F(LabelTest, TheLineLeavesFromTheNearerSideAndTheRowFacingTheObject)
{
    // The text "X" stands at (20, 10) to (28, 24). Left or right level with it: the middle row;
    // level with its top or above: the top; level with its bottom edge or below: the bottom.
    for (const auto& [object, line] : std::vector<std::pair<TPoint, TPoint>>{
             {{14, 17}, {20, 17}},
             {{34, 17}, {28, 17}},
             {{14, 10}, {20, 10}},
             {{30, 2}, {28, 10}},
             {{14, 24}, {20, 24}},
             {{30, 30}, {28, 24}},
             {{24, 9}, {28, 10}}, // half way across: the right side
             {{23, 9}, {20, 10}},
             {{24, 11}, {28, 17}}, // within the text
         }) {
        EXPECT_EQ(Placed("X", object, TPoint(20, 10)).GetLinePoint(), line)
            << object.x << ", " << object.y;
    }
}
