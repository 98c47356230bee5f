#include "afxpriv.h"
#include "tests/support/ui_test.h"

namespace {

constexpr UINT EndNow = WM_APP + 1;

class Modal : public TestWindow {
public:
    int m_kicks = 0;

protected:
    afx_msg LRESULT OnEndNow(WPARAM wParam, LPARAM) {
        EndModalLoop(static_cast<int>(wParam));
        return 0;
    }
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM count) {
        ++m_kicks;
        return count < 2;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Modal, CWnd)
ON_MESSAGE(EndNow, &Modal::OnEndNow)
ON_MESSAGE(WM_KICKIDLE, &Modal::OnKickIdle)
END_MESSAGE_MAP()

TEST(ModalLoop, ItRunsUntilItIsEndedAndGivesTheResult) {
    Modal window;
    window.PostMessage(EndNow, 17);
    EXPECT_EQ(window.RunModalLoop(), 17);
    window.PostMessage(EndNow, 18);
    EXPECT_EQ(window.RunModalLoop(), 18);
}

TEST(ModalLoop, AHiddenWindowShowsItselfAtTheFirstIdleTime) {
    class Hidden : public Modal {
    public:
        Hidden() { ShowWindow(SW_HIDE); }

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_SHOWWINDOW && wParam != 0) {
                PostMessage(EndNow, 3);
            }
            return Modal::WindowProc(message, wParam, lParam);
        }
    };
    Hidden window;
    EXPECT_EQ(window.RunModalLoop(MLF_SHOWONIDLE), 3);
    EXPECT_TRUE(window.IsWindowVisible());
}

TEST(ModalLoop, TheEndOfTheProgramEndsItAndStaysInTheQueue) {
    Modal window;
    ::PostQuitMessage(5);
    EXPECT_EQ(window.RunModalLoop(), -1);
    MSG message;
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 5u);
}

TEST(ModalLoop, TheWindowIsKickedWhileIdleUntilItHasEnough) {
    class Kicked : public Modal {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            const LRESULT result = Modal::WindowProc(message, wParam, lParam);
            if (message == WM_KICKIDLE && lParam == 2) {
                EndModalLoop(1);
            }
            return result;
        }
    };
    Kicked window;
    EXPECT_EQ(window.RunModalLoop(), 1);
    EXPECT_GE(window.m_kicks, 3);
}

TEST(ModalLoop, AModalStateDisablesTheWindow) {
    TestWindow window;
    window.BeginModalState();
    EXPECT_FALSE(window.IsWindowEnabled());
    window.EndModalState();
    EXPECT_TRUE(window.IsWindowEnabled());
}

TEST(ModalLoop, ItEndsWithItsWindow) {
    class Vanishing : public Modal {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_APP + 2) {
                DestroyWindow();
                return 0;
            }
            return Modal::WindowProc(message, wParam, lParam);
        }
    };
    Vanishing window;
    window.PostMessage(WM_APP + 2);
    EXPECT_EQ(window.RunModalLoop(), -1);
    EXPECT_EQ(window.m_hWnd, nullptr);
}

} // namespace
