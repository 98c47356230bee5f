#include "afxpriv.h"
#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"
#include <fx/scoped_change.h>

namespace {

class IdleCounter : public CWnd {
public:
    ~IdleCounter() override { DestroyWindow(); }
    int m_updates = 0;
    bool m_dies = false;

protected:
    afx_msg LRESULT OnIdleUpdate(WPARAM disableIfNoHandler, LPARAM) {
        m_updates += disableIfNoHandler != 0 ? 1 : 0;
        if (m_dies) {
            DestroyWindow();
        }
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(IdleCounter, CWnd)
ON_MESSAGE(WM_IDLEUPDATECMDUI, &IdleCounter::OnIdleUpdate)
END_MESSAGE_MAP()

class Idle : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(
            m_main.CreateEx(0, nullptr, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, nullptr, nullptr));
        ASSERT_TRUE(m_bar.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 50, 20), &m_main, 1));
        ASSERT_TRUE(m_button.Create(nullptr, L"", WS_VISIBLE, CRect(0, 0, 5, 5), &m_bar, 2));
    }

    IdleCounter m_main;
    IdleCounter m_bar;
    IdleCounter m_button;
    fx::ScopedChange<CWnd*> m_mainWindow{AfxGetApp()->m_pMainWnd, &m_main};
};

TEST_F(Idle, TheMainWindowAndAllItsDescendantsUpdateTheirItems) {
    RunIdle();
    EXPECT_EQ(m_main.m_updates, 1);
    EXPECT_EQ(m_bar.m_updates, 1);
    EXPECT_EQ(m_button.m_updates, 1);
}

TEST_F(Idle, AHiddenMainWindowIsLeftAlone) {
    m_main.ShowWindow(SW_HIDE);
    RunIdle();
    EXPECT_EQ(m_main.m_updates, 0);
    EXPECT_EQ(m_bar.m_updates, 0);
}

TEST_F(Idle, TheFirstRoundAsksForASecondAndTheSecondEnds) {
    EXPECT_TRUE(AfxGetApp()->OnIdle(0));
    EXPECT_FALSE(AfxGetApp()->OnIdle(1));
}

TEST_F(Idle, AWindowMayEndInItsUpdate) {
    m_bar.m_dies = true;
    RunIdle();
    EXPECT_EQ(m_bar.m_hWnd, nullptr);
    EXPECT_EQ(m_main.m_updates, 1);
}

TEST_F(Idle, TimersPaintsAndRepeatedMovesDoNotStartIdleProcessing) {
    CWinApp* app = AfxGetApp();
    MSG message = {m_main.m_hWnd, WM_TIMER, 0, 0, 0, {3, 4}};
    EXPECT_FALSE(app->IsIdleMessage(&message));
    message.message = WM_PAINT;
    EXPECT_FALSE(app->IsIdleMessage(&message));
    message.message = WM_MOUSEMOVE;
    EXPECT_TRUE(app->IsIdleMessage(&message));
    EXPECT_FALSE(app->IsIdleMessage(&message));
    message.pt.x = 30;
    EXPECT_TRUE(app->IsIdleMessage(&message));
    message.message = WM_KEYDOWN;
    EXPECT_TRUE(app->IsIdleMessage(&message));
}

} // namespace
