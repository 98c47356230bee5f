#include "frame_fixture.h"

#include "tests/support/keys.h"

#include <algorithm>

namespace {

class HelpFrame : public Owned<CFrameWnd> {
public:
    void OnHelpKey() { ++helps; }
    int helps = 0;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(HelpFrame, CFrameWnd)
ON_COMMAND(ID_HELP, &HelpFrame::OnHelpKey)
END_MESSAGE_MAP()

/// A frame that knows the system's help alone.
class PlainFrame : public Owned<CFrameWnd> {
public:
    BOOL OnHelpInfo(HELPINFO*) {
        ++systemHelps;
        return TRUE;
    }
    int systemHelps = 0;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PlainFrame, CFrameWnd)
ON_WM_HELPINFO()
END_MESSAGE_MAP()

MSG KeyDown(HWND window, UINT key) {
    MSG message{};
    message.hwnd = window;
    message.message = WM_KEYDOWN;
    message.wParam = key;
    message.lParam = 1;
    return message;
}

BOOL Filter(MSG message, int code) { return ::CallMsgFilterW(&message, code); }

bool WasFiltered(int code) {
    const std::vector<int>& codes = g_application.filtered;
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

class MessageFilter : public ::testing::Test {
protected:
    void SetUp() override { g_application.filtered.clear(); }

    /// Opens the frame's first menu; what waits in the queue is for it.
    static void TrackMenu(CFrameWnd& frame) {
        const HMENU menu = ::GetSubMenu(::GetMenu(frame.m_hWnd), 0);
        ::TrackPopupMenu(menu, TPM_LEFTALIGN, 10, 10, 0, frame.m_hWnd, nullptr);
    }
};

TEST_F(MessageFilter, F1InAMenuIsTheHelpCommandOfTheFrame) {
    HelpFrame frame;
    ASSERT_TRUE(frame.Load());
    EXPECT_TRUE(Filter(KeyDown(frame.m_hWnd, VK_F1), MSGF_MENU));
    EXPECT_EQ(frame.helps, 1);
    EXPECT_EQ(g_application.filtered, std::vector<int>{MSGF_MENU});
}

TEST_F(MessageFilter, TheSystemsMenuAsksTheApplicationForEachMessage) {
    HelpFrame frame;
    ASSERT_TRUE(frame.Load());
    frame.ShowWindow(SW_SHOW);
    frame.PostMessage(WM_KEYDOWN, VK_F1, 1);
    frame.PostMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    TrackMenu(frame);
    EXPECT_TRUE(WasFiltered(MSGF_MENU));
    EXPECT_EQ(frame.helps, 1);
}

TEST_F(MessageFilter, WithoutAHandlerOfTheHelpCommandTheSystemAsksForHelp) {
    PlainFrame frame;
    ASSERT_TRUE(frame.Load());
    EXPECT_FALSE(Filter(KeyDown(frame.m_hWnd, VK_F1), MSGF_MENU));
    frame.ShowWindow(SW_SHOW);
    frame.PostMessage(WM_KEYDOWN, VK_F1, 1);
    frame.PostMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    TrackMenu(frame);
    EXPECT_EQ(frame.systemHelps, 1);
}

TEST_F(MessageFilter, OtherKeysAndF1WithAModifierAreLeftToTheMenu) {
    HelpFrame frame;
    ASSERT_TRUE(frame.Load());
    EXPECT_FALSE(Filter(KeyDown(frame.m_hWnd, VK_F2), MSGF_MENU));
    Keys keys;
    keys.Hold(VK_SHIFT);
    EXPECT_FALSE(Filter(KeyDown(frame.m_hWnd, VK_F1), MSGF_MENU));
    keys.Let(VK_SHIFT);
    EXPECT_EQ(frame.helps, 0);
}

TEST_F(MessageFilter, F1InADialogReachesTheFrameThatOwnsIt) {
    HelpFrame frame;
    ASSERT_TRUE(frame.Load());
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST_DIALOG, &frame));
    Keys(::GetDlgItem(dialog.m_hWnd, IDC_TEST_EDIT)).Down(VK_F1);
    EXPECT_TRUE(WasFiltered(MSGF_DIALOGBOX));
    EXPECT_EQ(frame.helps, 1);
}

TEST_F(MessageFilter, AThreadOfTheFrameworkIsAskedToo) {
    class Asked : public CWinThread {
    public:
        BOOL InitInstance() override {
            MSG message = KeyDown(nullptr, VK_F2);
            isTaken = ::CallMsgFilterW(&message, MSGF_MENU);
            return FALSE;
        }
        BOOL ProcessMessageFilter(int code, LPMSG message) override {
            seen = code == MSGF_MENU && message->wParam == VK_F2;
            return TRUE;
        }
        BOOL isTaken = FALSE;
        bool seen = false;
    };
    Asked thread;
    thread.m_bAutoDelete = FALSE;
    ASSERT_TRUE(thread.CreateThread());
    ASSERT_EQ(::WaitForSingleObject(thread.m_hThread, 20000), WAIT_OBJECT_0);
    EXPECT_TRUE(thread.seen);
    EXPECT_TRUE(thread.isTaken);
    EXPECT_TRUE(g_application.filtered.empty());
}

} // namespace
