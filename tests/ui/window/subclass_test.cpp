#include "tests/support/ui_test.h"

namespace {

/// Counts the characters that it lets through to the control below.
class Filter : public CWnd {
public:
    int m_chars = 0;
    int m_preSubclass = 0;
    int m_postNcDestroy = 0;

protected:
    void PreSubclassWindow() override { ++m_preSubclass; }
    void PostNcDestroy() override { ++m_postNcDestroy; }
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags) {
        ++m_chars;
        if (character != L'#') {
            CWnd::OnChar(character, repeat, flags);
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Filter, CWnd)
ON_WM_CHAR()
END_MESSAGE_MAP()

class Subclassing : public ::testing::Test {
protected:
    void SetUp() override {
        m_edit = ::CreateWindowEx(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, m_parent.m_hWnd,
                                  reinterpret_cast<HMENU>(UINT_PTR{9}), nullptr, nullptr);
        ASSERT_NE(m_edit, nullptr);
        m_before = Procedure();
    }
    WNDPROC Procedure() const { return reinterpret_cast<WNDPROC>(::GetWindowLongPtr(m_edit, GWLP_WNDPROC)); }
    std::wstring Text() const {
        wchar_t text[32] = {};
        ::GetWindowText(m_edit, text, 32);
        return text;
    }

    TestWindow m_parent;
    HWND m_edit = nullptr;
    WNDPROC m_before = nullptr;
};

TEST_F(Subclassing, MessagesReachTheObjectAndThenTheControl) {
    Filter filter;
    ASSERT_TRUE(filter.SubclassWindow(m_edit));
    EXPECT_EQ(filter.m_preSubclass, 1);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_edit), &filter);
    ::SendMessage(m_edit, WM_CHAR, L'a', 1);
    ::SendMessage(m_edit, WM_CHAR, L'#', 1);
    EXPECT_EQ(filter.m_chars, 2);
    EXPECT_EQ(Text(), L"a");
    filter.UnsubclassWindow();
}

TEST_F(Subclassing, UnsubclassingGivesTheProcedureBackAndLeavesTheWindow) {
    Filter filter;
    ASSERT_TRUE(filter.SubclassWindow(m_edit));
    EXPECT_NE(Procedure(), m_before);
    EXPECT_EQ(filter.UnsubclassWindow(), m_edit);
    EXPECT_EQ(filter.m_hWnd, nullptr);
    EXPECT_EQ(Procedure(), m_before);
    ::SendMessage(m_edit, WM_CHAR, L'b', 1);
    EXPECT_EQ(filter.m_chars, 0);
    EXPECT_EQ(Text(), L"b");
}

TEST_F(Subclassing, TheWindowsEndEndsTheSubclass) {
    Filter filter;
    ASSERT_TRUE(filter.SubclassWindow(m_edit));
    ::DestroyWindow(m_edit);
    EXPECT_EQ(filter.m_hWnd, nullptr);
    EXPECT_EQ(filter.m_postNcDestroy, 1);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_edit), nullptr);
}

TEST_F(Subclassing, ADialogItemIsFoundByItsId) {
    Filter filter;
    EXPECT_FALSE(filter.SubclassDlgItem(8, &m_parent));
    EXPECT_TRUE(filter.SubclassDlgItem(9, &m_parent));
    EXPECT_EQ(filter.m_hWnd, m_edit);
    filter.UnsubclassWindow();
}

} // namespace
