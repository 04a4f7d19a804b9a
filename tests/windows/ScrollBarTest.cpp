// The scroll bar: its range, page and position, and what it tells its parent when the user
// works it.
#include "ControlHost.h"
#include "HeadlessFixture.h"
#include "platform/TScrollBar.h"
#include "platform/WindowCalls.h"

namespace {

class ScrollBars : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        pBar = new TScrollBar(&Host, 0x65, 10, 10, 17, 200, false);
        Host.Create();
        Pump();
    }
    void TearDown() override
    {
        Host.Destroy();
        HeadlessTest::TearDown();
    }
    ControlHost Host;
    TScrollBar* pBar = nullptr;
};

TEST_F(ScrollBars, ScrollInfoKeepsThePositionInTheRangeLessThePage)
{
    SCROLLINFO info{sizeof(SCROLLINFO), SIF_RANGE | SIF_POS, 0, 1000, 0, 250, 0};
    EXPECT_EQ(SetScrollInfo(pBar->HWindow, SB_CTL, &info, TRUE), 250);
    info = SCROLLINFO{sizeof(SCROLLINFO), SIF_POS, 0, 0, 0, 2000, 0};
    EXPECT_EQ(SetScrollInfo(pBar->HWindow, SB_CTL, &info, TRUE), 1000);
    info = SCROLLINFO{sizeof(SCROLLINFO), SIF_PAGE, 0, 0, 100, 0, 0};
    EXPECT_EQ(SetScrollInfo(pBar->HWindow, SB_CTL, &info, TRUE), 901) << "max less page plus one";
    SCROLLINFO read{sizeof(SCROLLINFO), SIF_ALL, 0, 0, 0, 0, 0};
    ASSERT_TRUE(GetScrollInfo(pBar->HWindow, SB_CTL, &read));
    EXPECT_EQ(read.nMin, 0);
    EXPECT_EQ(read.nMax, 1000);
    EXPECT_EQ(read.nPage, 100u);
    EXPECT_EQ(read.nPos, 901);
    EXPECT_EQ(pBar->SetPosition(-5), 901);
    EXPECT_EQ(pBar->GetPosition(), 0);
}

TEST_F(ScrollBars, ArrowsAndTrackTellTheParentWhichWayToGo)
{
    pBar->SetRange(0, 1000);
    pBar->SetPosition(500);
    Desk().Click(*pBar, TPoint(8, 5));
    Desk().Click(*pBar, TPoint(8, 195));
    Desk().Click(*pBar, TPoint(8, 30));
    Desk().Click(*pBar, TPoint(8, 170));
    std::vector<UINT> codes;
    for (auto [code, position] : Host.Scrolls) {
        codes.push_back(code);
    }
    EXPECT_EQ(codes, (std::vector<UINT>{SB_LINEUP, SB_ENDSCROLL, SB_LINEDOWN, SB_ENDSCROLL,
                                        SB_PAGEUP, SB_ENDSCROLL, SB_PAGEDOWN, SB_ENDSCROLL}));
    EXPECT_EQ(pBar->GetPosition(), 500) << "the parent moves it, not the bar";
}

TEST_F(ScrollBars, HeldArrowRepeatsWhileTimePasses)
{
    Desk().MouseDown(pBar->ClientToScreen(TPoint(8, 195)));
    Desk().AdvanceTime(400 + 50 * 4);
    Desk().MouseUp(pBar->ClientToScreen(TPoint(8, 195)));
    int downs = 0;
    for (auto [code, position] : Host.Scrolls) {
        downs += code == SB_LINEDOWN;
    }
    EXPECT_EQ(downs, 1 + 1 + 4) << "the press, after the delay, then every 50 ms";
}

TEST_F(ScrollBars, DraggingTheThumbTracksThePosition)
{
    pBar->SetRange(0, 100);
    pBar->SetPosition(0);
    // The thumb starts just below the upper arrow.
    Desk().Drag(*pBar, TPoint(8, 17 + 8), TPoint(8, 200), 4);
    ASSERT_GE(Host.Scrolls.size(), 3u);
    EXPECT_EQ(Host.Scrolls[Host.Scrolls.size() - 2], (std::pair<UINT, int>{SB_THUMBPOSITION, 100}));
    EXPECT_EQ(Host.Scrolls.front().first, UINT(SB_THUMBTRACK));
}

} // namespace
