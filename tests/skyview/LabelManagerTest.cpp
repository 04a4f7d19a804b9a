// Laying out the labels of a view: the places a label tries, what it must keep clear of, what
// the manager draws, and that its grid finds exactly the places a search of every label would.
// On a 96-dpi surface, where the rings of places lie 6, 9, 12 and 15 pixels from an object,
// with the test font, in which "X" is 8 by 14 pixels.
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <random>
#include <vector>

#include "MarkedObject.h"
#include "SkyCanvas.h"
#include "catalogues/AstroList.h"
#include "skyview/LabelManager.h"

namespace {

class LabelManagerTest : public ::testing::Test
{
protected:
    ~LabelManagerTest() override
    {
        Manager.Flush();
        Owned.clear();
        Font->Release();
    }

    // An object on the map, in the list the manager is given.
    MarkedObject& Add(const TPoint& point, const std::string& text, const TRect& picture = TRect())
    {
        Owned.push_back(std::make_unique<MarkedObject>(point, text, *Font, picture));
        Objects.Add(Owned.back().get());
        return *Owned.back();
    }

    // What the map does when the labels are dirty.
    void Lay(const TRect& avoid = TRect())
    {
        Manager.SetAvoidRect(avoid);
        Manager.Flush();
        Manager.LoadLabels(Canvas.Parameters, Objects);
        Manager.Arrange(Canvas.Parameters);
    }

    // Where the manager put an object's label; empty when hidden.
    TRect RectOf(const MarkedObject& object) const
    {
        for (const Label* label : Manager) {
            if (label->GetObject() == &object) {
                return label->GetDisplayRect();
            }
        }
        ADD_FAILURE() << "no label";
        return TRect();
    }

    SkyCanvas Canvas{256, 200};
    FontRef* Font = NewTestLabelFont();
    std::vector<std::unique_ptr<MarkedObject>> Owned;
    AstroList Objects{50, 100};
    LabelManager Manager;
};

} // namespace

TEST_F(LabelManagerTest, AFreeStarHasItsTextSixPixelsRightWithALineThatOutlivesTheStar)
{
    MarkedObject& star = Add(TPoint(100, 100), "X");
    Add(TPoint(100, 40), "");
    Add(TPoint(100, 160), "X").GiveNoLabel();
    Objects.Add(nullptr);
    Lay();
    ASSERT_EQ(Manager.size(), 1u) << "only labelled objects that have a label to give";
    EXPECT_EQ(RectOf(star), TRect(106, 93, 114, 107));
    // The line runs from the text's left edge back to the star, leaving the star's own pixel;
    // the manager's copy is drawn after the star went.
    Objects.Flush();
    Owned.clear();
    Manager.Draw(Canvas.GetDC());
    EXPECT_EQ(Canvas.Picture(TRect(99, 100, 107, 101)), "..######\n");
}

TEST_F(LabelManagerTest, TheEdgeOfTheAvoidedRectangleIsFreeButCrossingItHidesTheLabelAtOnce)
{
    MarkedObject& star = Add(TPoint(100, 100), "X");
    // The first place ends at x = 114, where the status text begins.
    Lay(TRect(114, 0, 256, 200));
    EXPECT_EQ(RectOf(star), TRect(106, 93, 114, 107));
    // One pixel further left the first place crosses it: the free place on the left is never
    // tried.
    Lay(TRect(113, 0, 256, 200));
    EXPECT_TRUE(RectOf(star).IsEmpty());

    // With the first place under a picture the second, on the left, is tried: it may touch the
    // status text but not cross it.
    Add(TPoint(200, 10), "", TRect(105, 95, 110, 99));
    Lay(TRect(0, 0, 86, 200));
    EXPECT_EQ(RectOf(star), TRect(86, 93, 94, 107));
    Lay(TRect(0, 0, 87, 200));
    EXPECT_TRUE(RectOf(star).IsEmpty());
}

TEST_F(LabelManagerTest, OtherLabelsTextsAndPointsAndPicturesAreAvoided)
{
    // The second's first place would cover the right of the first's text.
    MarkedObject& textA = Add(TPoint(100, 20), "X");
    MarkedObject& textB = Add(TPoint(96, 20), "X");
    // The second's first place only touches the first's text but holds the first's point.
    MarkedObject& pointA = Add(TPoint(100, 60), "X");
    MarkedObject& pointB = Add(TPoint(92, 60), "X");
    // The points of labels placed later count as well: the first leaves the second's point.
    MarkedObject& laterA = Add(TPoint(100, 100), "X");
    MarkedObject& laterB = Add(TPoint(110, 100), "X");
    // A planet drawn 40 by 20 has its label 3 + 20 pixels out; a picture without a label still
    // keeps labels off. Between them a star finds its first ring full and takes the second
    // ring's place above left.
    MarkedObject& planet = Add(TPoint(100, 160), "X", TRect(80, 150, 120, 170));
    Add(TPoint(160, 160), "", TRect(150, 150, 170, 170));
    MarkedObject& star = Add(TPoint(140, 160), "X");
    Lay();

    EXPECT_EQ(RectOf(textA), TRect(106, 13, 114, 27));
    EXPECT_EQ(RectOf(textB), TRect(82, 13, 90, 27));
    EXPECT_EQ(RectOf(pointA), TRect(106, 53, 114, 67));
    EXPECT_EQ(RectOf(pointB), TRect(78, 53, 86, 67));
    EXPECT_EQ(RectOf(laterA), TRect(86, 93, 94, 107));
    EXPECT_EQ(RectOf(laterB), TRect(116, 93, 124, 107));
    EXPECT_EQ(RectOf(planet), TRect(123, 153, 131, 167));
    EXPECT_EQ(RectOf(star), TRect(123, 137, 131, 151));
    // A label left of its object has its line leave from its right edge, not across the text.
    Manager.Draw(Canvas.GetDC());
    EXPECT_EQ(Canvas.Picture(TRect(90, 20, 97, 21)), "######.\n");
    EXPECT_EQ(Canvas.Picture(TRect(82, 20, 84, 21)), "..\n");
}

TEST_F(LabelManagerTest, TheGridPlacesEveryLabelWhereCheckingEveryEarlierOneWould)
{
    // Two thousand names crowd the canvas and spill over its edges, among pictures, with some
    // fixed names and the status text in a corner: most find no place, and those that do must
    // find the same one either way.
    std::mt19937 random(15);
    std::uniform_int_distribution<int> x(-30, 285), y(-30, 229), letters(1, 9), side(2, 40);
    for (int i = 0; i < 2000; ++i) {
        const TPoint point(x(random), y(random));
        const int half = i % 10 == 0 ? side(random) / 2 : 0;
        Add(point, std::string(std::size_t(letters(random)), char('a' + i % 26)),
            TRect(point.x - half, point.y - half, point.x + half, point.y + half));
    }
    LabelManager direct(std::numeric_limits<std::size_t>::max());
    LabelManager grid(0);
    for (LabelManager* manager : {&direct, &grid}) {
        manager->SetAvoidRect(TRect(0, 0, 90, 14));
        manager->LoadLabels(Canvas.Parameters, Objects);
        for (std::size_t i = 0; i < manager->size(); i += 50) {
            (*manager)[i]->SetFixedPoint((*manager)[i]->GetObjectPoint(), true);
        }
        manager->Arrange(Canvas.Parameters);
    }
    ASSERT_EQ(direct.size(), grid.size());
    int shown = 0;
    for (std::size_t i = 0; i < direct.size(); ++i) {
        EXPECT_EQ(direct[i]->GetDisplayRect(), grid[i]->GetDisplayRect()) << direct[i]->GetText();
        shown += direct[i]->IsHidden() ? 0 : 1;
    }
    EXPECT_GT(shown, 100);
    direct.Flush();
    grid.Flush();
}

TEST_F(LabelManagerTest, LabelsAndPicturesOfObjectsLeftOutTakeNoRoom)
{
    // Below a line at y = 100 nothing counts: the picture there no longer pushes the star's
    // label to the left, and the object there loses its label.
    MarkedObject& star = Add(TPoint(100, 90), "X");
    Add(TPoint(200, 150), "", TRect(105, 83, 110, 110));
    Add(TPoint(50, 150), "X");
    Manager.LoadLabels(Canvas.Parameters, Objects);
    Manager.LeaveOut([](const TPoint& point) { return point.y > 100; });
    Manager.Arrange(Canvas.Parameters);
    ASSERT_EQ(Manager.size(), 1u);
    EXPECT_EQ(RectOf(star), TRect(106, 83, 114, 97));
}
