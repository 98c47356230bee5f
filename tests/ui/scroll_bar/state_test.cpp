// The scroll bar's state: direction, places, sizes, the order of its virtual operations.
#include "tests/ui/scroll_bar/bar_fixture.h"

#include <bit>

namespace {

class ScrollBarState : public ScrollBarTest {};

TEST_F(ScrollBarState, A20PixelWideBarTallerThanWideIsVertical) {
    Open(CSize(20, 200));
    EXPECT_TRUE(m_bar.m_isVertical);
}

TEST_F(ScrollBarState, ASquareBarIsVerticalToo) {
    Open(CSize(20, 20));
    EXPECT_TRUE(m_bar.m_isVertical);
}

TEST_F(ScrollBarState, ABarWiderThanTallIsHorizontal) {
    Open(CSize(200, 20));
    EXPECT_FALSE(m_bar.m_isVertical);
    EXPECT_EQ(m_bar.m_firstArrow, CRect(0, 1, 18, 19));
    EXPECT_EQ(m_bar.m_secondArrow, CRect(182, 1, 200, 19));
    EXPECT_EQ(m_bar.m_track, CRect(18, 1, 182, 19));
    EXPECT_EQ(m_bar.m_thumb, CRect(18, 0, 100, 18));
}

TEST_F(ScrollBarState, PartsAreWhereTheGeometryPutsThem) {
    Open();
    EXPECT_EQ(m_bar.m_client, CRect(0, 0, 20, 200));
    EXPECT_EQ(m_bar.m_firstArrow, CRect(1, 0, 19, 18));
    EXPECT_EQ(m_bar.m_secondArrow, CRect(1, 182, 19, 200));
    EXPECT_EQ(m_bar.m_track, CRect(1, 18, 19, 182));
    EXPECT_EQ(m_bar.m_thumb, CRect(0, 18, 18, 100));
}

TEST_F(ScrollBarState, APositionPutsTheThumbAtItsShareOfTheRoom) {
    m_bar.position = 50;
    Open();
    EXPECT_DOUBLE_EQ(m_bar.m_pixelsPerStep, 82 / 100.0);
    EXPECT_EQ(m_bar.m_thumbPosition, 18 + 41);
    EXPECT_EQ(m_bar.m_lastThumbPosition, 18 + 41);
    EXPECT_EQ(m_bar.m_thumb, CRect(0, 59, 18, 141));
}

TEST_F(ScrollBarState, TheThumbIsNeverShorterThan15Pixels) {
    Open(CSize(20, 200), 1000000);
    EXPECT_EQ(m_bar.m_thumb.Height(), 15);
}

TEST_F(ScrollBarState, ALengthOrALimitBelow0IsNot0AndHasTheShortestThumb) {
    Open(CSize(20, 200), -400);
    EXPECT_EQ(m_bar.m_thumb, CRect(0, 18, 18, 33));
    m_bar.limit = -10;
    m_bar.SetTotalLength(1000000);
    EXPECT_EQ(m_bar.m_thumb, CRect(0, 18, 18, 33));
}

TEST_F(ScrollBarState, APositionBeyondTheLimitLeavesTheThumbInTheTrack) {
    m_bar.position = 5000;
    Open();
    EXPECT_EQ(m_bar.m_thumb.bottom, m_bar.m_track.bottom);
}

TEST_F(ScrollBarState, AScrollWidthOf20Gives18PixelArrows) {
    EXPECT_EQ(m_bar.GetScrollWidth(), 20) << "at first";
    m_bar.SetScrollWidth(30);
    m_bar.SetScrollWidth(20);
    EXPECT_EQ(m_bar.GetScrollWidth(), 20);
    Open();
    EXPECT_EQ(m_bar.m_firstArrow.Size(), CSize(18, 18));
}

TEST_F(ScrollBarState, AScrollWidthOf30Gives28PixelArrows) {
    m_bar.SetScrollWidth(30);
    Open(CSize(30, 200));
    EXPECT_EQ(m_bar.m_secondArrow, CRect(1, 172, 29, 200));
}

TEST_F(ScrollBarState, TheSizeTakenLastIsNotTakenAgain) {
    Open();
    m_bar.position = 100;
    m_bar.InitThumb();
    EXPECT_EQ(m_bar.m_thumb.top, 18) << "nothing happens in a bar of the same size";
    m_bar.MoveWindow(0, 0, 20, 240);
    m_bar.InitThumb();
    EXPECT_EQ(m_bar.m_client, CRect(0, 0, 20, 240));
    EXPECT_EQ(m_bar.m_thumb.bottom, m_bar.m_track.bottom) << "a new size takes the position as well";
}

TEST_F(ScrollBarState, ABarThatTurnsOverTakesTheImagesOfItsNewDirection) {
    Open();
    m_bar.MoveWindow(0, 0, 200, 20);
    m_bar.InitThumb();
    EXPECT_FALSE(m_bar.m_isVertical);
    EXPECT_NE(m_bar.m_currentPaths[0].Find(L"leftArrow.png"), -1);
}

TEST_F(ScrollBarState, AnEmptyWindowAndOneWithoutASizeAreHarmless) {
    Open(CSize(0, 0));
    Press(CPoint(0, 0));
    Move(CPoint(5, 5));
    Release();
    EXPECT_TRUE(m_bar.moves.empty());
    m_bar.MoveWindow(0, 0, 1, 1);
    m_bar.InitThumb();
    m_bar.RedrawWindow();
    EXPECT_TRUE(m_bar.m_isVertical);
}

TEST_F(ScrollBarState, OperationsWithoutAWindowAreHarmless) {
    m_bar.InitThumb();
    m_bar.SetSkin(1);
    m_bar.SetTotalLength(40);
    m_bar.OnMouseWheelScroll();
    EXPECT_EQ(m_bar.m_totalLength, 40);
    EXPECT_EQ(m_bar.m_skin, 1U);
}

TEST_F(ScrollBarState, WhatIsScrolledByTheWheelMovesTheThumb) {
    Open();
    m_bar.position = 100;
    m_bar.OnMouseWheelScroll();
    EXPECT_EQ(m_bar.m_thumb.bottom, 182);
}

TEST_F(ScrollBarState, ANewTotalLengthPlacesTheThumbAnew) {
    m_bar.position = 100;
    Open();
    m_bar.SetTotalLength(200);
    EXPECT_EQ(m_bar.m_thumb, CRect(0, 18, 18, 182));
}

TEST(ScrollBarDefaults, StepsAreOneLongAndNothingIsToBeScrolled) {
    CScrollBarBase bar;
    EXPECT_EQ(bar.GetStepLength(), 1);
    EXPECT_EQ(bar.GetBaseScrollLimit(), 0);
    EXPECT_EQ(bar.GetBaseScrollPos(), 0);
    bar.ScrollBaseMove(5);
    EXPECT_EQ(bar.GetBaseScrollPos(), 0);
    EXPECT_EQ(bar.GetScrollWidth(), 20);
}

/// Where in its class's table of virtual operations one stands, in pointers.
template <class Member>
std::size_t SlotOf(Member member) {
    struct Raw {
        std::uintptr_t offsetAndOne;
        std::intptr_t adjustment;
    };
    static_assert(sizeof(Raw) == sizeof member);
    return (std::bit_cast<Raw>(member).offsetAndOne - 1) / sizeof(void*);
}

TEST(ScrollBarVirtuals, FollowThoseOfTheWindowInTheirOrder) {
    const std::array slots = {SlotOf(&CScrollBarBase::GetBaseScrollPos), SlotOf(&CScrollBarBase::GetBaseScrollLimit),
                              SlotOf(&CScrollBarBase::ScrollBaseMove),   SlotOf(&CScrollBarBase::UpdatePoint),
                              SlotOf(&CScrollBarBase::GetStepLength),    SlotOf(&CScrollBarBase::InitThumb),
                              SlotOf(&CScrollBarBase::SetTotalLength),   SlotOf(&CScrollBarBase::SetSkin)};
    EXPECT_GT(slots[0], SlotOf(&CWnd::PreTranslateMessage));
    for (std::size_t i = 1; i < slots.size(); ++i) {
        EXPECT_EQ(slots[i], slots[i - 1] + 1) << i;
    }
}

} // namespace
