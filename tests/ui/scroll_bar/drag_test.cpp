// The thumb in the hand.
#include "tests/ui/scroll_bar/bar_fixture.h"

namespace {

using Moves = std::vector<int>;

/// Ten pixels a step: a track of 164 pixels, a thumb of 64, ten steps.
class ScrollBarDrag : public ScrollBarTest {
protected:
    void SetUp() override {
        m_bar.limit = 10;
        Open(CSize(20, 200), 511); // 164 * 200 / 511 = 64.2
        ASSERT_EQ(m_bar.m_thumb.Height(), 64);
        m_grip = m_bar.ThumbMiddle();
        Press(m_grip);
        ASSERT_TRUE(m_bar.m_thumbPressed);
    }
    void DragTo(int delta) { Move(m_grip + CPoint(0, delta)); }

    CPoint m_grip;
};

TEST_F(ScrollBarDrag, LessThanSixTenthsOfAStepMoveNothing) {
    for (int delta = -5; delta <= 5; ++delta) {
        DragTo(delta);
    }
    EXPECT_TRUE(m_bar.moves.empty());
    EXPECT_EQ(m_bar.m_dragOrigin, m_grip);
}

TEST_F(ScrollBarDrag, FromSixTenthsOfAStepOnItMovesOne) {
    DragTo(6);
    EXPECT_EQ(m_bar.moves, (Moves{1}));
}

TEST_F(ScrollBarDrag, ADragGoesStepByStepAndTheOriginFollowsTheThumb) {
    DragTo(6);
    EXPECT_EQ(m_bar.m_thumbPosition, 28);
    EXPECT_EQ(m_bar.m_dragOrigin, m_grip + CPoint(0, 10));
    DragTo(15);
    EXPECT_EQ(m_bar.moves, (Moves{1})) << "half a step from where the thumb really went";
    DragTo(16);
    EXPECT_EQ(m_bar.moves, (Moves{1, 1}));
    DragTo(50);
    EXPECT_EQ(m_bar.moves, (Moves{1, 1, 3}));
    EXPECT_EQ(m_bar.position, 5);
    DragTo(44);
    EXPECT_EQ(m_bar.moves, (Moves{1, 1, 3, -1}));
}

TEST_F(ScrollBarDrag, BetweenTwoStepsTheThumbFollowsThePointerAndThenStandsWhereTheContentDoes) {
    DragTo(5);
    EXPECT_EQ(m_bar.m_thumb.top, 23);
    Release();
    EXPECT_EQ(m_bar.m_thumb.top, 18);
    EXPECT_FALSE(m_bar.m_thumbPressed);
}

TEST_F(ScrollBarDrag, MoreStepsThanThereAreMoveNothing) {
    DragTo(400);
    EXPECT_TRUE(m_bar.moves.empty());
    DragTo(100);
    EXPECT_EQ(m_bar.moves, (Moves{10})) << "all that there are are made";
}

TEST_F(ScrollBarDrag, TowardsTheBeginningMoreStepsThanThereAreAreMade) {
    DragTo(-400);
    EXPECT_EQ(m_bar.moves, (Moves{-40})) << "only steps above their number are left out";
}

TEST_F(ScrollBarDrag, TheThumbStaysInTheTrackHoweverFarThePointerGoes) {
    DragTo(5000);
    EXPECT_EQ(m_bar.m_thumb.bottom, m_bar.m_track.bottom);
    DragTo(-5000);
    EXPECT_EQ(m_bar.m_thumb.top, m_bar.m_track.top);
}

TEST_F(ScrollBarDrag, AContentThatDoesNotGoHoldsTheThumb) {
    m_bar.onMove = [this] { m_bar.position = 0; };
    DragTo(20);
    EXPECT_EQ(m_bar.moves, (Moves{2}));
    EXPECT_EQ(m_bar.m_thumb.top, 18);
    EXPECT_EQ(m_bar.m_dragOrigin, m_grip);
}

TEST_F(ScrollBarDrag, AContentThatTellsTheBarOfItsMoveIsDraggedJustTheSame) {
    m_bar.onMove = [this] { m_bar.OnMouseWheelScroll(); };
    DragTo(6);
    EXPECT_EQ(m_bar.m_dragOrigin, m_grip + CPoint(0, 10));
    DragTo(16);
    EXPECT_EQ(m_bar.position, 2);
}

TEST_F(ScrollBarDrag, AStepLengthMakesEachStepThatManyPositions) {
    Release();
    m_bar.limit = 30;
    m_bar.stepLength = 3;
    m_bar.OnMouseWheelScroll();
    Press(m_grip);
    DragTo(6);
    EXPECT_EQ(m_bar.moves, (Moves{1})) << "ten steps of three positions are ten pixels each";
    EXPECT_EQ(m_bar.m_thumbPosition, 28);
    DragTo(16);
    EXPECT_EQ(m_bar.position, 6);
}

TEST_F(ScrollBarDrag, AnUnusableStepLengthMovesNothing) {
    for (const int length : {0, -3}) {
        m_bar.stepLength = length;
        DragTo(50);
    }
    EXPECT_TRUE(m_bar.moves.empty());
}

TEST_F(ScrollBarDrag, IsShownAsPressed) {
    DragTo(1);
    EXPECT_EQ(m_bar.m_hover, 2);
    Move(CPoint(300, 300));
    EXPECT_EQ(m_bar.m_hover, 2) << "wherever the pointer is";
}

TEST_F(ScrollBarDrag, AContentThatNoLongerScrollsStopsIt) {
    m_bar.limit = 0;
    DragTo(50);
    EXPECT_TRUE(m_bar.moves.empty());
}

TEST_F(ScrollBarDrag, AThumbWithoutRoomMovesNothing) {
    Release();
    m_bar.MoveWindow(0, 0, 20, 51);
    m_bar.InitThumb();
    Press(m_bar.ThumbMiddle());
    DragTo(50);
    EXPECT_TRUE(m_bar.moves.empty());
}

TEST(ScrollBarDragAcross, AHorizontalThumbGoesSideways) {
    TestWindow parent;
    const FakeClock clock;
    TestBar bar;
    bar.limit = 10;
    ASSERT_TRUE(bar.MakeIn(parent, CSize(200, 20)));
    bar.SetTotalLength(511);
    bar.InitThumb();
    const CPoint grip = bar.ThumbMiddle();
    SendMouse(bar, WM_LBUTTONDOWN, grip);
    SendMouse(bar, WM_MOUSEMOVE, grip + CPoint(5, 60));
    EXPECT_TRUE(bar.moves.empty());
    SendMouse(bar, WM_MOUSEMOVE, grip + CPoint(6, -60));
    EXPECT_EQ(bar.moves, (Moves{1}));
    EXPECT_EQ(bar.m_dragOrigin, grip + CPoint(10, 0));
    SendMouse(bar, WM_LBUTTONUP, grip);
}

} // namespace
