// Layout metrics tied in a circle leave the windows where they are, and a window that goes takes
// its metrics out of the solving. The component window's own layout, the status panel and the
// map beside it, is checked in tests/shell.
#include "HeadlessFixture.h"
#include "platform/TLayoutWindow.h"

namespace {

using Layouts = HeadlessTest;

TEST_F(Layouts, CircularConstraintsLeaveTheWindowsWhereTheyAre)
{
    TLayoutWindow parent(nullptr);
    auto* a = new TWindow(&parent, "a");
    auto* b = new TWindow(&parent, "b");
    a->Attr.X = 5;
    b->Attr.X = 50;
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

} // namespace
