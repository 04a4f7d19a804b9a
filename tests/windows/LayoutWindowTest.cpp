// Layout metrics: edges tied to the parent or to siblings, as the component window places the
// status panel, the finder and the map beside each other.
#include "HeadlessFixture.h"
#include "platform/DialogTemplate.h"
#include "platform/TLayoutWindow.h"

namespace {

// The frame of the component: up to two side windows and the map.
class Frame : public TLayoutWindow
{
public:
    Frame() : TLayoutWindow(nullptr, "Frame")
    {
        Attr.X = 0;
        Attr.Y = 0;
        Attr.W = 1000;
        Attr.H = 600;
        pStatus = new TWindow(this, "status");
        pFinder = new TWindow(this, "finder");
        pMap = new TWindow(this, "map");
    }
    TWindow* pStatus;
    TWindow* pFinder;
    TWindow* pMap;
    int nGap = 4;
    int nBezel = 2;

    TLayoutMetrics Fresh(const TWindow& w) const
    {
        TLayoutMetrics m;
        GetChildLayoutMetrics(w, m);
        m.SetMeasurementUnits(lmPixels);
        return m;
    }

    void PlaceMapRightOf(TWindow* side)
    {
        TLayoutMetrics map = Fresh(*pMap);
        if (side) {
            map.X.Set(lmLeft, lmRightOf, side, lmRight, nGap + nBezel);
        } else {
            map.X.Set(lmLeft, lmRightOf, lmParent, lmLeft, nBezel);
        }
        map.Y.Set(lmTop, lmBelow, lmParent, lmTop, nBezel);
        map.Width.Set(lmRight, lmLeftOf, lmParent, lmRight, nBezel);
        map.Height.Set(lmBottom, lmAbove, lmParent, lmBottom, nBezel);
        SetChildLayoutMetrics(*pMap, map);
    }

    // Status and finder both present.
    void LayOutBoth()
    {
        TLayoutMetrics status = Fresh(*pStatus);
        status.X.Set(lmLeft, lmSameAs, lmParent, lmLeft);
        status.Y.Set(lmTop, lmSameAs, lmParent, lmTop);
        status.Width.Set(lmRight, lmPercentOf, lmParent, lmRight, 20);
        status.Height.Set(lmBottom, lmSameAs, lmParent, lmBottom);
        SetChildLayoutMetrics(*pStatus, status);

        TLayoutMetrics finder = Fresh(*pFinder);
        finder.X.Set(lmLeft, lmRightOf, pStatus, lmRight, 0);
        finder.Y.Set(lmTop, lmSameAs, lmParent, lmTop);
        finder.Width.Set(lmRight, lmPercentOf, lmParent, lmRight, 40);
        finder.Height.Set(lmBottom, lmSameAs, lmParent, lmBottom);
        SetChildLayoutMetrics(*pFinder, finder);
        PlaceMapRightOf(pFinder);
    }

    // The finder alone, with its desired width.
    void LayOutFinder(int desiredWidth)
    {
        pStatus->Show(SW_HIDE);
        RemoveChildLayoutMetrics(*pStatus);
        int cx = GetClientRect().Width();
        TLayoutMetrics side = Fresh(*pFinder);
        side.X.Set(lmLeft, lmRightOf, lmParent, lmLeft, cx / 60);
        side.Y.Set(lmTop, lmSameAs, lmParent, lmTop);
        if (desiredWidth > 0.01 * cx * 20) {
            side.Width.Absolute(desiredWidth);
        } else {
            side.Width.Set(lmRight, lmPercentOf, lmParent, lmRight, 20);
        }
        side.Height.Set(lmBottom, lmSameAs, lmParent, lmBottom);
        SetChildLayoutMetrics(*pFinder, side);
        PlaceMapRightOf(pFinder);
    }
};

using Layouts = HeadlessTest;

TEST_F(Layouts, StatusFinderAndMapStandSideBySide)
{
    Frame frame;
    frame.LayOutBoth();
    frame.Create();
    EXPECT_EQ(frame.pStatus->GetRect(), TRect(0, 0, 200, 600));
    EXPECT_EQ(frame.pFinder->GetRect(), TRect(200, 0, 400, 600));
    EXPECT_EQ(frame.pMap->GetRect(), TRect(406, 2, 998, 598));

    // A new size lays them out again.
    frame.SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(frame.pStatus->GetRect(), TRect(0, 0, 100, 300));
    EXPECT_EQ(frame.pFinder->GetRect(), TRect(100, 0, 200, 300));
    EXPECT_EQ(frame.pMap->GetRect(), TRect(206, 2, 498, 298));
    frame.Destroy();
}

TEST_F(Layouts, FinderAloneTakesAFifthOrItsDesiredWidth)
{
    Frame frame;
    frame.Create();
    frame.LayOutFinder(200);
    frame.Layout();
    // The margin at a width of 1000 is 1000 / 60 = 16.
    EXPECT_EQ(frame.pFinder->GetRect(), TRect(16, 0, 200, 600));
    EXPECT_EQ(frame.pMap->GetRect(), TRect(206, 2, 998, 598));

    frame.LayOutFinder(201);
    frame.Layout();
    EXPECT_EQ(frame.pFinder->GetRect(), TRect(16, 0, 217, 600)) << "201 is wider than 20 per cent";
    EXPECT_EQ(frame.pMap->GetRect(), TRect(223, 2, 998, 598));
    frame.Destroy();
}

TEST_F(Layouts, MapAloneIsInsetByTheBezel)
{
    Frame frame;
    frame.nBezel = 3;
    frame.PlaceMapRightOf(nullptr);
    frame.Create();
    EXPECT_EQ(frame.pMap->GetRect(), TRect(3, 3, 997, 597));
    EXPECT_EQ(frame.pStatus->GetRect(), TRect(0, 0, 0, 0)) << "no metrics, no move";
    frame.Destroy();
}

TEST_F(Layouts, CentreSizeAndAsIsCombine)
{
    TLayoutWindow parent(nullptr);
    parent.Attr.W = 300;
    parent.Attr.H = 200;
    auto* bar = new TWindow(&parent, "bar");
    bar->Attr.W = 120;
    bar->Attr.H = 30;
    TLayoutMetrics m;
    m.X.Set(lmCenter, lmSameAs, lmParent, lmCenter);
    m.Width.AsIs();
    m.Y.Set(lmBottom, lmAbove, lmParent, lmBottom, 4);
    m.Height.AsIs();
    parent.SetChildLayoutMetrics(*bar, m);

    auto* label = new TWindow(&parent, "label");
    TLayoutMetrics l;
    l.X.SameAs(bar, lmLeft);
    l.Width.PercentOf(bar, 50);
    l.Y.Above(bar, 6);
    l.Height.Absolute(20);
    parent.SetChildLayoutMetrics(*label, l);
    parent.Create();
    EXPECT_EQ(bar->GetRect(), TRect(90, 166, 210, 196));
    EXPECT_EQ(label->GetRect(), TRect(90, 140, 150, 160)) << "placed after the window it follows";
    parent.Destroy();
}

TEST_F(Layouts, CircularConstraintsLeaveTheWindowsWhereTheyAre)
{
    TLayoutWindow parent(nullptr);
    auto* a = new TWindow(&parent, "a");
    auto* b = new TWindow(&parent, "b");
    a->Attr.X = 5;
    a->Attr.W = 10;
    a->Attr.H = 10;
    b->Attr.X = 50;
    b->Attr.W = 10;
    b->Attr.H = 10;
    TLayoutMetrics ma;
    ma.X.RightOf(b, 1);
    TLayoutMetrics mb;
    mb.X.RightOf(a, 1);
    parent.SetChildLayoutMetrics(*a, ma);
    parent.SetChildLayoutMetrics(*b, mb);
    parent.Create();
    EXPECT_EQ(a->GetRect().left, 5);
    EXPECT_EQ(b->GetRect().left, 50);

    // A window that goes takes its metrics out of the solving.
    delete b;
    ma.X.SameAs(lmParent, lmLeft, 7);
    parent.SetChildLayoutMetrics(*a, ma);
    parent.Layout();
    EXPECT_EQ(a->GetRect().left, 7);
    parent.Destroy();
}

TEST_F(Layouts, LayoutUnitsFollowTheParentsFont)
{
    TLayoutWindow parent(nullptr);
    auto* child = new TWindow(&parent, "child");
    TLayoutMetrics m;
    m.X.Absolute(lmLeft, 8);
    m.Y.Absolute(lmTop, 16);
    m.Width.Absolute(40);
    m.Height.Absolute(8);
    m.SetMeasurementUnits(lmLayoutUnits);
    parent.SetChildLayoutMetrics(*child, m);
    parent.Create();
    DialogBaseUnits units = DialogBaseUnits::Of(parent.GetWindowFont());
    EXPECT_EQ(child->GetRect(), TRect(units.ToPixelsX(8), units.ToPixelsY(16),
                                      units.ToPixelsX(8) + units.ToPixelsX(40),
                                      units.ToPixelsY(16) + units.ToPixelsY(8)));
    parent.Destroy();
}

} // namespace
