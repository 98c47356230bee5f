#include "frame_fixture.h"

#include "afxframewndex.h"
#include "afxMDIFrameWndEx.h"
#include "afxribbonbar.h"

namespace {

/// A shown frame with a ribbon of two categories.
template <class Frame>
class WheelTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.Load());
        ASSERT_TRUE(bar.Create(&frame));
        bar.AddCategory(L"First", 0, 0);
        bar.AddCategory(L"Second", 0, 0);
        // Above the windows of the tests that run at the same time.
        frame.SetWindowPos(&CWnd::wndTopMost, 50, 50, 500, 400, 0);
        frame.ShowWindow(SW_SHOWNA);
        frame.RecalcLayout();
        bar.GetWindowRect(&area);
        ASSERT_GT(area.Height(), 10);
    }
    /// A turn towards the user as the queue gives it: to the focus, wherever the pointer is.
    BOOL Turn(HWND focus, CPoint screen) {
        MSG message{};
        message.hwnd = focus;
        message.message = WM_MOUSEWHEEL;
        message.wParam = MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA));
        message.lParam = MAKELPARAM(screen.x, screen.y);
        return frame.PreTranslateMessage(&message);
    }
    int Active() { return bar.GetCategoryIndex(bar.GetActiveCategory()); }

    Owned<Frame> frame;
    CMFCRibbonBar bar;
    CRect area;
};

using RibbonFrames = ::testing::Types<CFrameWndEx, CMDIFrameWndEx>;
TYPED_TEST_SUITE(WheelTest, RibbonFrames);

TYPED_TEST(WheelTest, AboveTheRibbonReachesItWhoeverHasTheFocus) {
    EXPECT_TRUE(this->Turn(this->frame.m_hWnd, this->area.CenterPoint()));
    EXPECT_EQ(this->Active(), 1);
}

TYPED_TEST(WheelTest, ElsewhereIsLeftToTheFocus) {
    EXPECT_FALSE(this->Turn(this->frame.m_hWnd, CPoint(this->area.CenterPoint().x, this->area.bottom + 50)));
    EXPECT_EQ(this->Active(), 0);
}

TYPED_TEST(WheelTest, OnItsWayToTheRibbonIsNotSentTwice) {
    EXPECT_FALSE(this->Turn(this->bar.m_hWnd, this->area.CenterPoint()));
    EXPECT_EQ(this->Active(), 0);
}

TYPED_TEST(WheelTest, BehindAModalDialogDoesNothing) {
    this->frame.EnableWindow(FALSE);
    EXPECT_FALSE(this->Turn(this->frame.m_hWnd, this->area.CenterPoint()));
    EXPECT_EQ(this->Active(), 0);
}

TYPED_TEST(WheelTest, BelongsToTheWindowThatHasTheCapture) {
    this->frame.SetCapture();
    EXPECT_FALSE(this->Turn(this->frame.m_hWnd, this->area.CenterPoint()));
    ::ReleaseCapture();
    EXPECT_EQ(this->Active(), 0);
}

} // namespace
