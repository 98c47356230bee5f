// Views that are larger than their window.
#include "frame_fixture.h"

namespace {

class LargeView : public CScrollView {
    DECLARE_DYNCREATE(LargeView)
public:
    using CScrollView::OnPrepareDC;

protected:
    void OnDraw(CDC*) override {}
};
IMPLEMENT_DYNCREATE(LargeView, CScrollView)

class ScrollView : public testing::Test {
protected:
    static constexpr int kWidth = 300, kHeight = 200;

    void SetUp() override {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(LargeView);
        ASSERT_TRUE(m_frame.Create(nullptr, L"views", WS_OVERLAPPEDWINDOW, CRect(10, 10, 10 + kWidth, 10 + kHeight),
                                   nullptr, nullptr, 0, &context));
        m_frame.InitialUpdateFrame(nullptr, TRUE);
    }
    LargeView& View() { return *DYNAMIC_DOWNCAST(LargeView, m_frame.GetActiveView()); }
    CSize ClientSize() {
        CRect client;
        View().GetClientRect(&client);
        return client.Size();
    }
    std::pair<bool, bool> Bars() {
        BOOL hasHorizontal = FALSE, hasVertical = FALSE;
        View().CheckScrollBars(hasHorizontal, hasVertical);
        return {hasHorizontal != FALSE, hasVertical != FALSE};
    }
    void Scroll(UINT message, UINT code) { View().SendMessage(message, code); }

    Owned<CFrameWnd> m_frame;
};

TEST_F(ScrollView, HasBarsOnlyInTheDirectionsThatNeedThem) {
    View().SetScrollSizes(MM_TEXT, CSize(50, 50));
    EXPECT_EQ(Bars(), std::pair(false, false));
    View().SetScrollSizes(MM_TEXT, CSize(50, 5000));
    EXPECT_EQ(Bars(), std::pair(false, true));
    View().SetScrollSizes(MM_TEXT, CSize(5000, 50));
    EXPECT_EQ(Bars(), std::pair(true, false));
    View().SetScrollSizes(MM_TEXT, CSize(5000, 5000));
    EXPECT_EQ(Bars(), std::pair(true, true));
    EXPECT_EQ(View().GetTotalSize(), CSize(5000, 5000));
}

TEST_F(ScrollView, OneBarTakesTheRoomThatMakesTheOtherNecessary) {
    View().SetScrollSizes(MM_TEXT, CSize(50, 50));
    const CSize whole = ClientSize();
    View().SetScrollSizes(MM_TEXT, CSize(whole.cx, whole.cy + 1));
    EXPECT_EQ(Bars(), std::pair(true, true));
    View().SetScrollSizes(MM_TEXT, whole);
    EXPECT_EQ(Bars(), std::pair(false, false));
}

TEST_F(ScrollView, APageIsATenthOfTheWholeAndALineATenthOfAPageUnlessTold) {
    View().SetScrollSizes(MM_TEXT, CSize(4000, 5000));
    int mode = 0;
    SIZE total{}, page{}, line{};
    View().GetDeviceScrollSizes(mode, total, page, line);
    EXPECT_EQ(mode, MM_TEXT);
    EXPECT_EQ(CSize(page), CSize(400, 500));
    EXPECT_EQ(CSize(line), CSize(40, 50));
    View().SetScrollSizes(MM_TEXT, CSize(4000, 5000), CSize(70, 80), CSize(3, 4));
    View().GetDeviceScrollSizes(mode, total, page, line);
    EXPECT_EQ(CSize(page), CSize(70, 80));
    EXPECT_EQ(CSize(line), CSize(3, 4));
}

TEST_F(ScrollView, TheBarsMoveByLinesPagesAndToTheEnds) {
    View().SetScrollSizes(MM_TEXT, CSize(4000, 5000), CSize(70, 80), CSize(3, 4));
    Scroll(WM_VSCROLL, SB_LINEDOWN);
    Scroll(WM_HSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(View().GetScrollPosition(), CPoint(70, 4));
    Scroll(WM_VSCROLL, SB_PAGEDOWN);
    Scroll(WM_HSCROLL, SB_LINEUP);
    EXPECT_EQ(View().GetScrollPosition(), CPoint(67, 84));
    Scroll(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(View().GetScrollPosition(), CPoint(67, 5000 - ClientSize().cy));
    Scroll(WM_VSCROLL, SB_TOP);
    Scroll(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(View().GetScrollPosition().y, 0) << "nothing lies before the beginning";
    EXPECT_EQ(View().GetScrollPos(SB_HORZ), 67);
}

TEST_F(ScrollView, APositionGoesAsFarAsThereIsSomething) {
    View().SetScrollSizes(MM_TEXT, CSize(400, 5000));
    View().ScrollToPosition(CPoint(9000, 9000));
    EXPECT_EQ(View().GetScrollPosition(), CPoint(400 - ClientSize().cx, 5000 - ClientSize().cy));
    View().ScrollToPosition(CPoint(-5, 12));
    EXPECT_EQ(View().GetScrollPosition(), CPoint(0, 12));
    View().SetScrollSizes(MM_TEXT, CSize(20, 20));
    EXPECT_EQ(View().GetDeviceScrollPosition(), CPoint(0, 0)) << "a smaller whole moves the view back";
}

TEST_F(ScrollView, DrawingIsMovedByWhatIsScrolled) {
    View().SetScrollSizes(MM_TEXT, CSize(4000, 5000));
    View().ScrollToPosition(CPoint(30, 40));
    CClientDC dc(&View());
    View().OnPrepareDC(&dc);
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(-30, -40));
}

TEST_F(ScrollView, OtherMapModesCountInTheirUnitsUpwards) {
    View().SetScrollSizes(MM_LOENGLISH, CSize(5000, 5000));
    View().ScrollToPosition(CPoint(100, -200));
    CClientDC dc(&View());
    const int dpi = dc.GetDeviceCaps(LOGPIXELSX);
    EXPECT_NEAR(View().GetDeviceScrollPosition().x, dpi, 8) << "a hundred hundredths of an inch";
    EXPECT_NEAR(View().GetScrollPosition().x, 100, 2);
    EXPECT_NEAR(View().GetScrollPosition().y, -200, 2);
}

TEST_F(ScrollView, AWholeThatScalesNeedsNoBars) {
    View().SetScrollSizes(MM_TEXT, CSize(4000, 5000));
    View().ScrollToPosition(CPoint(30, 40));
    View().SetScaleToFitSize(CSize(1000, 1000));
    EXPECT_EQ(Bars(), std::pair(false, false));
    EXPECT_EQ(View().GetScrollPosition(), CPoint(0, 0));
    CClientDC dc(&View());
    View().OnPrepareDC(&dc);
    CPoint corner(1000, 1000);
    dc.LPtoDP(&corner);
    EXPECT_EQ(corner, CPoint(0, 0) + ClientSize());
}

TEST_F(ScrollView, TheFrameShrinksToTheWholeAndGrowsOnlyWhenAsked) {
    View().SetScrollSizes(MM_TEXT, CSize(150, 90));
    View().ResizeParentToFit();
    EXPECT_EQ(ClientSize(), CSize(150, 90));
    View().SetScrollSizes(MM_TEXT, CSize(250, 120));
    View().ResizeParentToFit();
    EXPECT_NE(ClientSize(), CSize(250, 120));
    View().ResizeParentToFit(FALSE);
    EXPECT_EQ(ClientSize(), CSize(250, 120));
}

TEST_F(ScrollView, TheWheelMovesByLines) {
    View().SetScrollSizes(MM_TEXT, CSize(100, 5000), CSize(70, 80), CSize(3, 4));
    UINT lines = 0;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    View().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_EQ(View().GetScrollPosition().y, 4 * static_cast<int>(lines));
    View().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(View().GetScrollPosition().y, 0);
}

TEST_F(ScrollView, WhatLiesOutsideOfTheWholeIsFilled) {
    View().SetScrollSizes(MM_TEXT, CSize(40, 30));
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    const HBITMAP bitmap = ::CreateBitmap(kWidth, kHeight, 1, 32, nullptr);
    const HGDIOBJ former = ::SelectObject(memory.m_hDC, bitmap);
    memory.FillSolidRect(CRect(0, 0, kWidth, kHeight), RGB(1, 2, 3));
    CBrush brush(RGB(200, 100, 50));
    View().FillOutsideRect(&memory, &brush);
    EXPECT_EQ(memory.GetPixel(39, 29), RGB(1, 2, 3));
    EXPECT_EQ(memory.GetPixel(40, 29), RGB(200, 100, 50));
    EXPECT_EQ(memory.GetPixel(39, 30), RGB(200, 100, 50));
    ::SelectObject(memory.m_hDC, former);
    ::DeleteObject(bitmap);
}

} // namespace
