#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"

namespace {

/// Two tools side by side, one of them answered by a notification handler.
class Tipped : public TestWindow {
public:
    Tipped() : TestWindow(200, 100) { EnableToolTips(); }

    mutable int m_hitTests = 0;
    std::vector<UINT> m_askedIds;
    std::vector<UINT_PTR> m_askedTools;

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) const override {
        ++m_hitTests;
        if (point.y >= 50) {
            return -1;
        }
        const int index = point.x / 100;
        tool->hwnd = m_hWnd;
        tool->uId = 10 + static_cast<UINT_PTR>(index);
        tool->rect = CRect(index * 100, 0, index * 100 + 100, 50);
        tool->lpszText = LPSTR_TEXTCALLBACK;
        return 10 + index;
    }

protected:
    afx_msg BOOL OnNeedText(UINT id, NMHDR* header, LRESULT*) {
        m_askedIds.push_back(id);
        m_askedTools.push_back(header->idFrom);
        reinterpret_cast<NMTTDISPINFO*>(header)->lpszText = const_cast<LPTSTR>(L"a tip");
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Tipped, CWnd)
ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &Tipped::OnNeedText)
END_MESSAGE_MAP()

/// The tooltip control asks the real cursor before it shows a tip: the messages alone are not enough.
void HoverAt(Pointer& pointer, const CWnd& window, CPoint client) {
    CPoint screen = client;
    window.ClientToScreen(&screen);
    ::SetCursorPos(screen.x, screen.y);
    pointer.MoveTo(window.m_hWnd, client);
}

TEST(ToolTips, TheTextIsAskedForWithIdZeroAndTheToolsNumber) {
    Tipped window;
    Pointer pointer;
    HoverAt(pointer, window, {20, 20});
    EXPECT_GE(window.m_hitTests, 1);
    ASSERT_TRUE(PumpUntil([&] { return !window.m_askedIds.empty(); }));
    EXPECT_EQ(window.m_askedIds.front(), 0u);
    EXPECT_EQ(window.m_askedTools.front(), 10u);
}

TEST(ToolTips, AnotherToolAsksForItsOwnText) {
    Tipped window;
    Pointer pointer;
    HoverAt(pointer, window, {20, 20});
    ASSERT_TRUE(PumpUntil([&] { return !window.m_askedIds.empty(); }));
    window.m_askedTools.clear();
    HoverAt(pointer, window, {120, 20});
    ASSERT_TRUE(PumpUntil([&] { return !window.m_askedTools.empty(); }));
    EXPECT_EQ(window.m_askedTools.back(), 11u);
}

TEST(ToolTips, AWindowWithoutToolTipsIsNotAsked) {
    Tipped window;
    window.EnableToolTips(FALSE);
    Pointer pointer;
    pointer.MoveTo(window.m_hWnd, {20, 20});
    EXPECT_EQ(window.m_hitTests, 0);
}

TEST(ToolTips, TheDefaultHitTestFindsAChildByItsId) {
    TestWindow window(200, 100);
    CWnd child;
    ASSERT_TRUE(child.Create(L"BUTTON", L"", WS_VISIBLE, CRect(10, 10, 60, 40), &window, 33));
    TOOLINFO tool = {};
    EXPECT_EQ(window.OnToolHitTest(CPoint(20, 20), &tool), 33);
    EXPECT_TRUE(tool.uFlags & TTF_IDISHWND);
    EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(child.m_hWnd));
    EXPECT_EQ(window.OnToolHitTest(CPoint(150, 80), &tool), -1);
}

TEST(ToolTips, ADisabledChildIsAnAreaInstead) {
    TestWindow window(200, 100);
    CWnd child;
    ASSERT_TRUE(child.Create(L"BUTTON", L"", WS_VISIBLE | WS_DISABLED, CRect(10, 10, 60, 40), &window, 33));
    TOOLINFO tool = {};
    EXPECT_EQ(window.OnToolHitTest(CPoint(20, 20), &tool), 33);
    EXPECT_FALSE(tool.uFlags & TTF_IDISHWND);
    EXPECT_EQ(CRect(tool.rect), CRect(10, 10, 60, 40));
}

} // namespace
