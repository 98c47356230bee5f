// Menus that are none, commands that no message can carry, and the application's own commands.
#include "frame_fixture.h"

#include "afxpriv.h"
#include "afxres.h"

#include <chrono>

namespace {

class CommandRange : public ::testing::Test {
protected:
    CommandRange() {
        g_route = {};
        m_frame.Create(nullptr, L"Frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200));
    }
    Owned<CFrameWnd> m_frame;
};

TEST_F(CommandRange, OpeningMenuThatIsNoneIsLeftAlone) {
    const HMENU destroyed = ::CreatePopupMenu();
    ::DestroyMenu(destroyed);
    const auto start = std::chrono::steady_clock::now();
    for (const HMENU menu : {destroyed, reinterpret_cast<HMENU>(0x12345), reinterpret_cast<HMENU>(-1)}) {
        m_frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(0, FALSE));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

/// Destroys the menu whose item it is asked for.
class MenuEndingFrame : public Owned<CFrameWnd> {
public:
    afx_msg void OnUpdate(CCmdUI* state) {
        ++updates;
        ::DestroyMenu(state->m_pMenu->m_hMenu);
    }
    int updates = 0;
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(MenuEndingFrame, CFrameWnd)
ON_UPDATE_COMMAND_UI(ID_TEST_COMMAND, &MenuEndingFrame::OnUpdate)
END_MESSAGE_MAP()

TEST_F(CommandRange, HandlerMayDestroyTheMenuThatOpens) {
    MenuEndingFrame frame;
    frame.Create(nullptr, L"Frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200));
    const HMENU menu = ::CreatePopupMenu();
    ::AppendMenuW(menu, MF_STRING, ID_TEST_COMMAND, L"One");
    ::AppendMenuW(menu, MF_STRING, ID_TEST_OTHER, L"Two");
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(0, FALSE));
    EXPECT_EQ(frame.updates, 1);
}

TEST_F(CommandRange, ItemWhoseCommandNoMessageCanCarryIsDisabled) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 0x10000 + ID_TEST_COMMAND, L"Beyond");
    m_frame.m_bAutoMenuEnable = FALSE;
    m_frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), MAKELPARAM(0, FALSE));
    EXPECT_TRUE(menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED);
}

/// Refuses to close, and counts.
class StayingFrame : public Owned<CFrameWnd> {
public:
    int closes = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CLOSE) {
            ++closes;
            return 0;
        }
        return Owned<CFrameWnd>::WindowProc(message, wParam, lParam);
    }
};

TEST_F(CommandRange, ExitOfTheApplicationIsEnabledAndClosesTheMainWindow) {
    StayingFrame staying;
    staying.Create(nullptr, L"Frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200));
    const MainWindowScope main(&staying);
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_APP_EXIT, L"Exit");
    m_frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), MAKELPARAM(0, FALSE));
    EXPECT_FALSE(menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED);
    m_frame.SendMessage(WM_COMMAND, ID_APP_EXIT);
    EXPECT_EQ(staying.closes, 1);
}

/// Answers the request for help, or does not.
class HelpFrame : public Owned<CFrameWnd> {
public:
    afx_msg LRESULT OnCommandHelp(WPARAM, LPARAM) {
        ++requests;
        return answers;
    }
    afx_msg void OnDefaultHelp() { ++defaults; }
    int requests = 0;
    int defaults = 0;
    BOOL answers = FALSE;
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(HelpFrame, CFrameWnd)
ON_MESSAGE(WM_COMMANDHELP, &HelpFrame::OnCommandHelp)
ON_COMMAND(ID_DEFAULT_HELP, &HelpFrame::OnDefaultHelp)
END_MESSAGE_MAP()

class HelpCommand : public ::testing::Test {
protected:
    HelpCommand() { m_frame.Create(nullptr, L"Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 300, 200)); }
    HelpFrame m_frame;
    const MainWindowScope m_main{&m_frame};
};

/// Its map names the documented handler, as a program's does.
class HelpTarget : public CWinApp {
public:
    static void Ask() { (g_application.*(&HelpTarget::OnHelp))(); }
};

TEST_F(HelpCommand, IsTheDefaultHelpWhereNoWindowAnswers) {
    HelpTarget::Ask();
    EXPECT_EQ(m_frame.requests, 1);
    EXPECT_EQ(m_frame.defaults, 1);
}

TEST_F(HelpCommand, EndsAtTheWindowThatAnswers) {
    m_frame.answers = TRUE;
    HelpTarget::Ask();
    EXPECT_EQ(m_frame.requests, 1);
    EXPECT_EQ(m_frame.defaults, 0);
}

} // namespace
