#include "tests/support/keys.h"
#include "tests/support/ui_test.h"
#include <fx/scoped_change.h>

namespace {

using Log = std::vector<std::wstring>;
Log g_log;

class Translator : public CWnd {
public:
    explicit Translator(LPCTSTR name) : m_name(name) {}
    ~Translator() override { DestroyWindow(); }
    BOOL PreTranslateMessage(MSG* message) override {
        if (message->message == WM_KEYDOWN) {
            g_log.push_back(m_name);
            return m_takes;
        }
        return CWnd::PreTranslateMessage(message);
    }

    std::wstring m_name;
    BOOL m_takes = FALSE;
    int m_keys = 0;

protected:
    afx_msg void OnKeyDown(UINT, UINT, UINT) { ++m_keys; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Translator, CWnd)
ON_WM_KEYDOWN()
END_MESSAGE_MAP()

/// main > middle > leaf, and a popup that the main window owns.
class PreTranslate : public ::testing::Test {
protected:
    void SetUp() override {
        g_log.clear();
        ASSERT_TRUE(m_main.CreateEx(0, nullptr, L"", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr));
        ASSERT_TRUE(m_middle.Create(nullptr, L"", 0, CRect(0, 0, 50, 50), &m_main, 1));
        ASSERT_TRUE(m_leaf.Create(nullptr, L"", 0, CRect(0, 0, 5, 5), &m_middle, 2));
        ASSERT_TRUE(m_popup.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 10, 10, m_main.m_hWnd, nullptr));
        ASSERT_TRUE(m_stranger.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    }

    Translator m_main{L"main"};
    Translator m_middle{L"middle"};
    Translator m_leaf{L"leaf"};
    Translator m_popup{L"popup"};
    Translator m_stranger{L"stranger"};
    fx::ScopedChange<CWnd*> m_mainWindow{AfxGetApp()->m_pMainWnd, &m_main};
};

TEST_F(PreTranslate, TheWalkGoesFromTheTargetUpToTheMainWindow) {
    Keys(m_leaf.m_hWnd).Down(L'A');
    EXPECT_EQ(g_log, (Log{L"leaf", L"middle", L"main"}));
    EXPECT_EQ(m_leaf.m_keys, 1);
}

TEST_F(PreTranslate, WhoAnswersTrueEndsTheWalkAndTheMessage) {
    m_middle.m_takes = TRUE;
    Keys(m_leaf.m_hWnd).Down(L'A');
    EXPECT_EQ(g_log, (Log{L"leaf", L"middle"}));
    EXPECT_EQ(m_leaf.m_keys, 0);
}

TEST_F(PreTranslate, AnOwnedPopupIsFollowedByItsOwner) {
    Keys(m_popup.m_hWnd).Down(L'A');
    EXPECT_EQ(g_log, (Log{L"popup", L"main"}));
}

TEST_F(PreTranslate, TheMainWindowSeesTheKeysOfOtherTopLevelWindowsToo) {
    Keys(m_stranger.m_hWnd).Down(L'A');
    EXPECT_EQ(g_log, (Log{L"stranger", L"main"}));
}

TEST_F(PreTranslate, TheWalkMayStopAtAWindow) {
    MSG message = {m_leaf.m_hWnd, WM_KEYDOWN, L'A', 1, 0, {}};
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(m_middle.m_hWnd, &message));
    EXPECT_EQ(g_log, (Log{L"leaf", L"middle"}));
}

} // namespace
