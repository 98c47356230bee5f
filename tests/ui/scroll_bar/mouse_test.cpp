// What the mouse does with the arrows and where it only passes.
#include "tests/support/message_pump.h"
#include "tests/ui/scroll_bar/bar_fixture.h"

namespace {

constexpr UINT_PTR kRepeat = 1;
constexpr UINT_PTR kDelay = 2;
using Moves = std::vector<int>;

class ScrollBarMouse : public ScrollBarTest {
protected:
    void SetUp() override {
        Open();
        m_bar.position = 50;
        m_bar.OnMouseWheelScroll();
    }
    CPoint First() const { return m_bar.m_firstArrow.CenterPoint(); }
    CPoint Second() const { return m_bar.m_secondArrow.CenterPoint(); }
};

TEST_F(ScrollBarMouse, APressedArrowMovesOneStepAtOnce) {
    Press(First());
    EXPECT_EQ(m_bar.moves, (Moves{-1}));
    EXPECT_TRUE(m_bar.m_firstArrowPressed);
    Release();
    Press(Second());
    EXPECT_EQ(m_bar.moves, (Moves{-1, 1}));
    EXPECT_TRUE(m_bar.m_secondArrowPressed);
    EXPECT_EQ(m_bar.m_thumbPosition, 18 + 41);
}

TEST_F(ScrollBarMouse, AHeldArrowMovesAtOnceThenAfter250MillisecondsEvery50) {
    Press(Second());
    m_clock.Advance(249);
    EXPECT_EQ(m_bar.moves.size(), 1U);
    m_clock.Advance(1);
    EXPECT_EQ(m_bar.moves.size(), 1U) << "the delay's end starts the repetition";
    EXPECT_FALSE(m_clock.IsRunning(kDelay));
    EXPECT_EQ(m_clock.PeriodOf(kRepeat), 50U);
    m_clock.Advance(49);
    EXPECT_EQ(m_bar.moves.size(), 1U);
    m_clock.Advance(1);
    EXPECT_EQ(m_bar.moves.size(), 2U);
    m_clock.Advance(500);
    EXPECT_EQ(m_bar.moves, Moves(12, 1));
    EXPECT_EQ(m_bar.m_thumbPosition, 18 + static_cast<int>(62 * 0.82)) << "the thumb keeps up";
}

TEST_F(ScrollBarMouse, AHeldFirstArrowRepeatsTowardsTheBeginning) {
    Press(First());
    m_clock.Advance(250 + 3 * 50);
    EXPECT_EQ(m_bar.moves, Moves(4, -1));
}

TEST_F(ScrollBarMouse, WhereBothArrowsArePressedTheSecondOneRepeats) {
    Press(First());
    m_bar.m_secondArrowPressed = true;
    m_clock.Advance(250 + 50);
    EXPECT_EQ(m_bar.moves, (Moves{-1, 1}));
}

TEST_F(ScrollBarMouse, AReleasedArrowRepeatsNoMore) {
    Press(Second());
    m_clock.Advance(300);
    Release(Second());
    EXPECT_FALSE(m_clock.IsRunning(kRepeat));
    m_clock.Advance(1000);
    EXPECT_EQ(m_bar.moves.size(), 2U);
}

TEST_F(ScrollBarMouse, TheDelayGoesOnAfterAShortClickAndDoesNothing) {
    Press(Second());
    Release(Second());
    EXPECT_TRUE(m_clock.IsRunning(kDelay));
    m_clock.Advance(1000);
    EXPECT_EQ(m_bar.moves.size(), 1U);
    EXPECT_TRUE(m_clock.IsRunning(kDelay));
    EXPECT_FALSE(m_clock.IsRunning(kRepeat));
}

TEST_F(ScrollBarMouse, WithTheSystemsClockAHeldArrowRepeatsToo) {
    ScrollTimers::Use(nullptr);
    Press(Second());
    const ULONGLONG start = ::GetTickCount64();
    EXPECT_TRUE(PumpUntil([this] { return m_bar.moves.size() >= 3; }));
    EXPECT_GE(::GetTickCount64() - start, 300U);
    Release(Second());
}

TEST_F(ScrollBarMouse, TheButtonTakesTheCaptureAndGivesItBack) {
    Press(Second());
    EXPECT_EQ(::GetCapture(), m_bar.m_hWnd);
    Release();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(m_bar.m_thumbPressed || m_bar.m_firstArrowPressed || m_bar.m_secondArrowPressed);
}

TEST_F(ScrollBarMouse, WhoeverTakesTheCaptureEndsThePress) {
    Press(Second());
    m_clock.Advance(300);
    m_parent.SetCapture();
    EXPECT_FALSE(m_bar.m_secondArrowPressed);
    m_clock.Advance(1000);
    EXPECT_EQ(m_bar.moves.size(), 2U);
    ::ReleaseCapture();
}

TEST_F(ScrollBarMouse, AClickOnTheTrackDoesNotPage) {
    const CPoint below(m_bar.m_track.CenterPoint().x, m_bar.m_thumb.bottom + 10);
    Press(below);
    EXPECT_EQ(m_bar.m_dragOrigin, below);
    m_clock.Advance(1000);
    Move(below + CPoint(0, 20));
    Release();
    EXPECT_TRUE(m_bar.moves.empty());
    EXPECT_FALSE(m_bar.m_thumbPressed);
}

TEST_F(ScrollBarMouse, ADoubleClickOnAnArrowIsOneMoreStepWithoutTimers) {
    SendMouse(m_bar, WM_LBUTTONDBLCLK, Second());
    EXPECT_EQ(m_bar.moves, (Moves{1}));
    EXPECT_FALSE(m_clock.IsRunning(kDelay));
    SendMouse(m_bar, WM_LBUTTONDBLCLK, First());
    EXPECT_EQ(m_bar.moves, (Moves{1, -1}));
    SendMouse(m_bar, WM_LBUTTONDBLCLK, m_bar.ThumbMiddle());
    SendMouse(m_bar, WM_LBUTTONDBLCLK, CPoint(10, m_bar.m_thumb.bottom + 5));
    EXPECT_EQ(m_bar.moves.size(), 2U);
}

TEST_F(ScrollBarMouse, WhereNothingIsToBeScrolledThereAreNoArrowsToPress) {
    m_bar.limit = 0;
    Press(First());
    Release();
    SendMouse(m_bar, WM_LBUTTONDBLCLK, Second());
    Press(m_bar.ThumbMiddle());
    EXPECT_FALSE(m_bar.m_thumbPressed);
    EXPECT_TRUE(m_bar.moves.empty());
    EXPECT_FALSE(m_clock.IsRunning(kDelay));
}

TEST_F(ScrollBarMouse, ThePointerIsOnTheThumbOrOverTheBarOrGone) {
    EXPECT_EQ(m_bar.m_hover, 0);
    Move(CPoint(10, m_bar.m_thumb.bottom + 5));
    EXPECT_EQ(m_bar.m_hover, 1);
    Move(m_bar.ThumbMiddle());
    EXPECT_EQ(m_bar.m_hover, 2);
    Move(First());
    EXPECT_EQ(m_bar.m_hover, 1);
    Leave();
    EXPECT_EQ(m_bar.m_hover, 0);
}

TEST_F(ScrollBarMouse, ALeaveNoticeIsAskedForOnce) {
    EXPECT_FALSE(m_bar.m_isTracking);
    Move(First());
    EXPECT_TRUE(m_bar.m_isTracking);
    Leave();
    EXPECT_FALSE(m_bar.m_isTracking);
    Move(First());
    EXPECT_TRUE(m_bar.m_isTracking);
}

TEST_F(ScrollBarMouse, AWindowThatGoesWhileItsContentMovesIsHarmless) {
    m_bar.onMove = [this] { m_bar.DestroyWindow(); };
    Press(Second());
    EXPECT_EQ(m_bar.m_hWnd, nullptr);
    EXPECT_EQ(m_bar.moves.size(), 1U);
    EXPECT_FALSE(m_clock.IsRunning(kDelay));
}

} // namespace
