#include "afxpriv.h"
#include "tests/support/ui_test.h"

namespace {

/// Takes a strip off the top of what is left.
class Strip : public CWnd {
public:
    explicit Strip(int height) : m_height(height) {}
    ~Strip() override { DestroyWindow(); }

protected:
    afx_msg LRESULT OnSizeParent(WPARAM, LPARAM lParam) {
        auto* layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
        if (layout->hDWP != nullptr) {
            layout->hDWP =
                ::DeferWindowPos(layout->hDWP, m_hWnd, nullptr, layout->rect.left, layout->rect.top,
                                 layout->rect.right - layout->rect.left, m_height, SWP_NOZORDER | SWP_NOACTIVATE);
        }
        layout->rect.top += m_height;
        layout->sizeTotal.cy += m_height;
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    int m_height;
};

BEGIN_MESSAGE_MAP(Strip, CWnd)
ON_MESSAGE(WM_SIZEPARENT, &Strip::OnSizeParent)
END_MESSAGE_MAP()

CRect PlaceInParent(const CWnd& wnd) {
    CRect rect;
    wnd.GetWindowRect(&rect);
    wnd.GetParent()->ScreenToClient(&rect);
    return rect;
}

constexpr UINT FirstBar = 100;
constexpr UINT SecondBar = 101;
constexpr UINT Rest = 200;

class Bars : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_first.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 1, 1), &m_parent, FirstBar));
        ASSERT_TRUE(m_second.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 1, 1), &m_parent, SecondBar));
        ASSERT_TRUE(m_rest.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 1, 1), &m_parent, Rest));
    }

    TestWindow m_parent{300, 200};
    Strip m_first{30};
    Strip m_second{20};
    CWnd m_rest;
};

TEST_F(Bars, EachBarTakesItsPartAndTheRestGoesToTheLeftOverWindow) {
    m_parent.RepositionBars(FirstBar, SecondBar, Rest);
    EXPECT_EQ(PlaceInParent(m_rest), CRect(0, 50, 300, 200));
    EXPECT_EQ(PlaceInParent(m_first).Height(), 30);
    EXPECT_EQ(PlaceInParent(m_second).Height(), 20);
}

TEST_F(Bars, AQueryMovesNothing) {
    CRect left;
    m_parent.RepositionBars(FirstBar, SecondBar, Rest, CWnd::reposQuery, &left);
    EXPECT_EQ(left, CRect(0, 50, 300, 200));
    EXPECT_EQ(PlaceInParent(m_rest), CRect(0, 0, 1, 1));
}

TEST_F(Bars, ABarOutsideTheRangeIsLeftAlone) {
    m_parent.RepositionBars(FirstBar, FirstBar, Rest);
    EXPECT_EQ(PlaceInParent(m_rest), CRect(0, 30, 300, 200));
}

TEST_F(Bars, ExtraSpaceIsKeptFreeAroundTheRest) {
    CRect extra(1, 2, 3, 4);
    m_parent.RepositionBars(FirstBar, SecondBar, Rest, CWnd::reposExtra, &extra);
    EXPECT_EQ(PlaceInParent(m_rest), CRect(1, 52, 297, 196));
}

TEST(Place, AChildIsCentredInItsParentAndStaysInside) {
    TestWindow parent(200, 100);
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 40, 20), &parent, 1));
    child.CenterWindow();
    EXPECT_EQ(PlaceInParent(child), CRect(80, 40, 120, 60));
    child.MoveWindow(0, 0, 300, 20);
    child.CenterWindow();
    EXPECT_EQ(PlaceInParent(child).left, 0);
}

TEST(Place, AnOwnedPopupIsCentredOverItsOwner) {
    TestWindow owner(300, 200);
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 50, 40, owner.m_hWnd, nullptr));
    popup.CenterWindow();
    CRect around;
    CRect rect;
    owner.GetWindowRect(&around);
    popup.GetWindowRect(&rect);
    EXPECT_NEAR(rect.CenterPoint().x, around.CenterPoint().x, 1);
    EXPECT_NEAR(rect.CenterPoint().y, around.CenterPoint().y, 1);
}

TEST(Place, ModifyStyleAnswersWhetherAnythingChanged) {
    TestWindow window;
    EXPECT_TRUE(window.ModifyStyle(0, WS_VSCROLL));
    EXPECT_TRUE(window.GetStyle() & WS_VSCROLL);
    EXPECT_FALSE(window.ModifyStyle(0, WS_VSCROLL));
    EXPECT_TRUE(window.ModifyStyle(WS_VSCROLL, 0, SWP_FRAMECHANGED));
    EXPECT_FALSE(window.GetStyle() & WS_VSCROLL);
    EXPECT_TRUE(window.ModifyStyleEx(0, WS_EX_TOPMOST | WS_EX_ACCEPTFILES));
}

TEST(Scroll, TheLimitLeavesAWholePage) {
    TestWindow window(200, 200, WS_OVERLAPPEDWINDOW | WS_VSCROLL | WS_VISIBLE);
    SCROLLINFO info = {};
    info.fMask = SIF_ALL;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 40;
    EXPECT_TRUE(window.SetScrollInfo(SB_VERT, &info));
    EXPECT_EQ(window.GetScrollPos(SB_VERT), 40);
    EXPECT_EQ(window.GetScrollLimit(SB_VERT), 90);
    int low = -1;
    int high = -1;
    window.GetScrollRange(SB_VERT, &low, &high);
    EXPECT_EQ(low, 0);
    EXPECT_EQ(high, 99);
}

} // namespace
