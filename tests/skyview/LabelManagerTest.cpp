// Laying out the labels of a view: the places a label tries, what it must keep clear of, the
// fixed labels, and what the manager keeps and draws. All on a 96-dpi surface, where the
// rings of places lie 6, 9, 12 and 15 pixels from an object, and with the test font, in
// which "X" is 8 by 14 pixels.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "MarkedObject.h"
#include "SkyCanvas.h"
#include "catalogues/AstroList.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "skyview/LabelManager.h"

namespace {

class LabelManagerTest : public ::testing::Test
{
protected:
    LabelManagerTest() : Canvas(256, 200), Font(NewTestLabelFont()), Objects(50, 100) {}
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

    // The manager's label of an object; null when it has none.
    const Label* LabelOf(const MarkedObject& object) const
    {
        for (const Label* label : Manager) {
            if (label->GetObject() == &object) {
                return label;
            }
        }
        return nullptr;
    }
    TRect RectOf(const MarkedObject& object) const { return LabelOf(object)->GetDisplayRect(); }

    SkyCanvas Canvas;
    FontRef* Font;
    std::vector<std::unique_ptr<MarkedObject>> Owned;
    AstroList Objects;
    LabelManager Manager;
};

} // namespace

TEST(LabelCandidates, SixPlacesOnEachRingAndTwoOnTheFourth)
{
    const TPoint anchor(100, 100);
    const TSize size(8, 14);
    struct Case
    {
        int Attempt;
        TPoint TopLeft;
    };
    const Case cases[] = {
        {0, TPoint(106, 93)},   {1, TPoint(86, 93)},    {2, TPoint(86, 80)},
        {3, TPoint(106, 80)},   {4, TPoint(86, 106)},   {5, TPoint(106, 106)},
        {6, TPoint(109, 93)},   {11, TPoint(109, 109)}, {12, TPoint(112, 93)},
        {17, TPoint(112, 112)}, {18, TPoint(115, 93)},  {19, TPoint(77, 93)},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(LabelManager::Candidate(c.Attempt, anchor, size, 3, 3), TRect(c.TopLeft, size))
            << "attempt " << c.Attempt;
    }
    // A first distance of 20 moves every ring out by it.
    EXPECT_EQ(LabelManager::Candidate(0, anchor, size, 20, 3).TopLeft(), TPoint(123, 93));
}

TEST_F(LabelManagerTest, FreeStarHasItsTextSixPixelsRightCentredWithALineFromTheLeftEdge)
{
    MarkedObject& star = Add(TPoint(100, 100), "X");
    Lay();
    EXPECT_FALSE(Manager.IsDirty());
    ASSERT_EQ(Manager.size(), 1u);
    EXPECT_EQ(RectOf(star), TRect(106, 93, 114, 107));
    EXPECT_EQ(LabelOf(star)->GetLinePoint(), TPoint(106, 100));

    Manager.Draw(Canvas.GetDC());
    // The line runs from the text's left edge back to the star, leaving the star's own pixel.
    EXPECT_EQ(Canvas.Picture(TRect(99, 100, 107, 101)), "..######\n");
}

TEST_F(LabelManagerTest, RingsStepByAThirtySecondOfAnInch)
{
    // At 192 dpi the step and the first distance are 6: the first place is 12 pixels out.
    Surface surface(256, 200, PixelFormat::Indexed8);
    DeviceCaps caps;
    caps.LogPixelsX = caps.LogPixelsY = 192;
    TDC dc(surface, caps);
    Canvas.Parameters.pDC = &dc;
    MarkedObject& star = Add(TPoint(100, 100), "X");
    Lay();
    EXPECT_EQ(RectOf(star).TopLeft(), TPoint(112, 93));
}

TEST_F(LabelManagerTest, EdgeOfTheAvoidedRectangleIsFreeButCrossingItHidesTheLabelAtOnce)
{
    MarkedObject& star = Add(TPoint(100, 100), "X");
    // The first place ends at x = 114, where the status text begins.
    Lay(TRect(114, 0, 256, 200));
    EXPECT_EQ(RectOf(star), TRect(106, 93, 114, 107));

    // One pixel further left: the first place crosses it, and the free place on the left is
    // never tried.
    Lay(TRect(113, 0, 256, 200));
    EXPECT_TRUE(LabelOf(star)->IsHidden());
    EXPECT_TRUE(RectOf(star).IsEmpty());

    // With the first place under a picture, the second, on the left, is tried: it may touch
    // the status text but not cross it.
    Add(TPoint(200, 10), "", TRect(105, 95, 110, 99));
    Lay(TRect(0, 0, 86, 200));
    EXPECT_EQ(RectOf(star), TRect(86, 93, 94, 107));
    Lay(TRect(0, 0, 87, 200));
    EXPECT_TRUE(LabelOf(star)->IsHidden());
}

TEST_F(LabelManagerTest, OtherLabelsTextsAndPointsAreAvoided)
{
    // The second's first place would cover the right of the first's text.
    MarkedObject& textA = Add(TPoint(100, 40), "X");
    MarkedObject& textB = Add(TPoint(96, 40), "X");
    // The second's first place, (98, 93) to (106, 107), only touches the first's text but
    // holds the first's point.
    MarkedObject& pointA = Add(TPoint(100, 100), "X");
    MarkedObject& pointB = Add(TPoint(92, 100), "X");
    // The points of labels placed later count as well: the first leaves the second's point.
    MarkedObject& laterA = Add(TPoint(100, 160), "X");
    MarkedObject& laterB = Add(TPoint(110, 160), "X");
    Lay();

    EXPECT_EQ(RectOf(textA), TRect(106, 33, 114, 47));
    EXPECT_EQ(RectOf(textB), TRect(82, 33, 90, 47));
    EXPECT_EQ(RectOf(pointA), TRect(106, 93, 114, 107));
    EXPECT_EQ(RectOf(pointB), TRect(78, 93, 86, 107));
    EXPECT_EQ(RectOf(laterA), TRect(86, 153, 94, 167));
    EXPECT_EQ(RectOf(laterB), TRect(116, 153, 124, 167));
}

TEST_F(LabelManagerTest, PicturesPushTheirOwnLabelOutAndBlockOthers)
{
    // A planet drawn 40 by 20: its label starts 3 + 20 pixels out.
    MarkedObject& planet = Add(TPoint(100, 100), "X", TRect(80, 90, 120, 110));
    // A picture without a label still keeps labels off.
    MarkedObject& picture = Add(TPoint(160, 100), "", TRect(150, 90, 170, 110));
    // Between them a star finds its first ring full: right under the picture, left on the
    // planet's text, the corners on either. On the second ring, above left is free.
    MarkedObject& star = Add(TPoint(140, 100), "X");
    Lay();

    EXPECT_EQ(Manager.size(), 2u);
    ASSERT_EQ(Manager.GetObjectsToAvoid().GetCount(), 2u);
    EXPECT_EQ(Manager.GetObjectsToAvoid()[0], &planet);
    EXPECT_EQ(Manager.GetObjectsToAvoid()[1], &picture);
    EXPECT_EQ(RectOf(planet), TRect(123, 93, 131, 107));
    EXPECT_EQ(RectOf(star), TRect(123, 77, 131, 91));
}

TEST_F(LabelManagerTest, LabelWithNoFreePlaceIsHidden)
{
    MarkedObject& star = Add(TPoint(150, 150), "X");
    Add(TPoint(0, 0), "", TRect(100, 100, 200, 200));
    Lay();
    EXPECT_TRUE(LabelOf(star)->IsHidden());
    EXPECT_EQ(LabelOf(star)->GetSize(), TSize(0, 0));
    EXPECT_EQ(Manager.FindLabelAt(TPoint(0, 0)), nullptr);

    Manager.Draw(Canvas.GetDC());
    EXPECT_EQ(Canvas.Picture(TRect(0, 0, 256, 200)).find('#'), std::string::npos);
}

TEST_F(LabelManagerTest, HiddenLabelsAndAnUnsetAvoidedRectangleTakeNoRoomAtTheOrigin)
{
    // Hidden under a picture.
    MarkedObject& hidden = Add(TPoint(150, 150), "X");
    Add(TPoint(0, 0), "", TRect(100, 100, 200, 200));
    // The first place of this one spans the origin.
    MarkedObject& corner = Add(TPoint(-10, 0), "X");
    Lay();
    ASSERT_TRUE(LabelOf(hidden)->IsHidden());
    EXPECT_EQ(RectOf(corner), TRect(-4, -7, 4, 7));
}

TEST_F(LabelManagerTest, FixedLabelsAreCentredAndHiddenWhenTheyLeaveTheDrawRectangle)
{
    Canvas.Parameters.SetDrawRect(TRect(0, 0, 64, 64));
    MarkedObject& inside = Add(TPoint(60, 50), "X");
    MarkedObject& outside = Add(TPoint(58, 8), "X");
    // Half of an odd width is cut with the coordinate: 30 - 1.5 gives 28.
    MarkedObject& odd = Add(TPoint(30, 20), "I");
    MarkedObject& status = Add(TPoint(20, 50), "X");
    for (MarkedObject* object : {&inside, &outside, &odd, &status}) {
        object->MakeFixed();
    }
    outside.SetDisplayPoint(TPoint(61, 8)); // one pixel past the right edge
    Lay(TRect(0, 56, 17, 64));

    EXPECT_EQ(RectOf(inside), TRect(56, 43, 64, 57));
    EXPECT_TRUE(LabelOf(outside)->IsHidden());
    EXPECT_EQ(RectOf(odd), TRect(28, 13, 31, 27));
    // (16, 43) to (24, 57) crosses the status text by its corner pixel.
    EXPECT_TRUE(LabelOf(status)->IsHidden());

    // A fixed label draws no line.
    Manager.Draw(Canvas.GetDC());
    EXPECT_EQ(Canvas.Picture(TRect(54, 48, 56, 53)), Rows({"..", "..", "..", "..", ".."}));
}

TEST_F(LabelManagerTest, FixedLabelsArePlacedFirstAndTheRestFollowInSwappedOrder)
{
    MarkedObject& a = Add(TPoint(100, 100), "X");
    MarkedObject& b = Add(TPoint(100, 108), "X");
    MarkedObject& fixed = Add(TPoint(120, 150), "X");
    fixed.MakeFixed();
    MarkedObject& d = Add(TPoint(105, 150), "X");
    Lay();

    // The fixed label changed places with the first: B now goes before A.
    ASSERT_EQ(Manager.size(), 4u);
    EXPECT_EQ(Manager[0]->GetObject(), &fixed);
    EXPECT_EQ(Manager[1]->GetObject(), &b);
    EXPECT_EQ(Manager[2]->GetObject(), &a);
    EXPECT_EQ(Manager[3]->GetObject(), &d);
    EXPECT_EQ(RectOf(b), TRect(106, 101, 114, 115));
    EXPECT_EQ(RectOf(a), TRect(86, 93, 94, 107));
    // The fixed text, (116, 143) to (124, 157), is in the way of D's first place.
    EXPECT_EQ(RectOf(fixed), TRect(116, 143, 124, 157));
    EXPECT_EQ(RectOf(d), TRect(91, 143, 99, 157));
}

TEST_F(LabelManagerTest, OnlyLabelledObjectsGiveLabelsAndTheCopiesOutliveThem)
{
    MarkedObject& star = Add(TPoint(100, 100), "X");
    Add(TPoint(100, 40), "");
    Add(TPoint(100, 160), "X").GiveNoLabel();
    Objects.Add(nullptr);
    Lay();
    ASSERT_EQ(Manager.size(), 1u);
    EXPECT_NE(Manager[0], &star.GetOwnLabel());
    EXPECT_EQ(Manager[0]->GetText(), "X");
    EXPECT_TRUE(Manager.GetObjectsToAvoid().IsEmpty());

    // The object goes; its label is still drawn where it was placed.
    Objects.Flush();
    Owned.clear();
    Manager.Draw(Canvas.GetDC());
    EXPECT_EQ(Canvas.Picture(TRect(99, 100, 107, 101)), "..######\n");
}

TEST_F(LabelManagerTest, HiddenObjectsLabelIsNotDrawnButStillFound)
{
    MarkedObject& blinking = Add(TPoint(100, 100), "X");
    MarkedObject& other = Add(TPoint(100, 40), "X");
    Lay();
    Manager.SetHiddenObject(&blinking);
    Manager.Draw(Canvas.GetDC());
    const std::string blinkingArea = Canvas.Picture(TRect(100, 93, 114, 107));
    EXPECT_EQ(blinkingArea.find('#'), std::string::npos);
    EXPECT_NE(Canvas.Picture(RectOf(other)).find('#'), std::string::npos);

    const Label* found = Manager.FindLabelAt(TPoint(110, 100));
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->GetObject(), &blinking);
    EXPECT_EQ(Manager.FindLabelAt(TPoint(114, 100)), nullptr);

    Manager.SetHiddenObject(nullptr);
    Manager.Draw(Canvas.GetDC());
    EXPECT_NE(Canvas.Picture(TRect(100, 93, 114, 107)).find('#'), std::string::npos);
}

TEST_F(LabelManagerTest, WithoutASurfaceNothingIsPlacedAndTheLabelsStayDirty)
{
    MarkedObject& star = Add(TPoint(100, 100), "X");
    TDC* surface = Canvas.Parameters.pDC;
    Canvas.Parameters.pDC = nullptr;
    EXPECT_TRUE(Manager.IsDirty());
    Lay();
    EXPECT_TRUE(LabelOf(star)->IsHidden());
    EXPECT_TRUE(Manager.IsDirty());

    Canvas.Parameters.pDC = surface;
    Lay();
    EXPECT_EQ(RectOf(star), TRect(106, 93, 114, 107));
    EXPECT_FALSE(Manager.IsDirty());
    Manager.SetDirty();
    EXPECT_TRUE(Manager.IsDirty());
}

TEST_F(LabelManagerTest, FlushForgetsLabelsAndPictures)
{
    Add(TPoint(100, 100), "X", TRect(90, 90, 110, 110));
    Lay();
    ASSERT_EQ(Manager.size(), 1u);
    ASSERT_EQ(Manager.GetObjectsToAvoid().GetCount(), 1u);
    Manager.Flush();
    EXPECT_TRUE(Manager.empty());
    EXPECT_TRUE(Manager.GetObjectsToAvoid().IsEmpty());
}
