#include "tests/support/ending_frame.h"
#include "tests/ui/toolbar/bar_frame.h"

TEST_F(ToolBarTest, AClickSendsTheCommandToTheOwner) {
    m_pointer.Click(Bar().m_hWnd, CenterOf(1));
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{3002});
    EXPECT_TRUE(CMFCToolBar::IsLastCommandFromButton(Bar().GetButton(1)));
    TestWindow other;
    Bar().SetOwner(&other);
    m_pointer.Click(Bar().m_hWnd, CenterOf(1));
    EXPECT_EQ(m_frame->commands.size(), 1u);
}

TEST_F(ToolBarTest, APressedButtonLetGoElsewhereSendsNothing) {
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(0));
    m_pointer.Press();
    EXPECT_NE(Bar().GetButtonStyle(0) & TBBS_PRESSED, 0u);
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(1));
    EXPECT_EQ(Bar().GetButtonStyle(0) & TBBS_PRESSED, 0u);
    m_pointer.Release();
    EXPECT_TRUE(m_frame->commands.empty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ToolBarTest, IdleUpdatesEnableAndCheck) {
    m_frame->disabled = 3001;
    m_frame->checked = 3003;
    RunIdle();
    EXPECT_NE(Bar().GetButtonStyle(0) & TBBS_DISABLED, 0u);
    EXPECT_NE(Bar().GetButtonStyle(3) & TBBS_CHECKED, 0u);
    m_pointer.Click(Bar().m_hWnd, CenterOf(0));
    EXPECT_TRUE(m_frame->commands.empty());
    m_frame->disabled = 0;
    RunIdle();
    EXPECT_EQ(Bar().GetButtonStyle(0) & TBBS_DISABLED, 0u);
}

TEST_F(ToolBarTest, StatesAreKnownAsSoonAsTheFrameIsShown) {
    m_frame->ShowWindow(SW_HIDE);
    m_frame->disabled = 3001;
    m_frame->checked = 3003;
    ASSERT_EQ(Bar().GetButtonStyle(0) & TBBS_DISABLED, 0u);
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    EXPECT_NE(Bar().GetButtonStyle(0) & TBBS_DISABLED, 0u);
    EXPECT_NE(Bar().GetButtonStyle(3) & TBBS_CHECKED, 0u);
}

TEST_F(ToolBarTest, AnAnswerMayEndTheBarWhileTheFrameIsShown) {
    class BarEndsWhenAsked : public BarFrame {
    public:
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
            if (code == CN_UPDATE_COMMAND_UI && id == 3001) {
                bar.DestroyWindow();
            }
            return BarFrame::OnCmdMsg(id, code, extra, info);
        }
    };
    auto* const frame = new BarEndsWhenAsked; // deletes itself with its window
    ASSERT_TRUE(frame->Create(nullptr, L"Bars", WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 300)));
    frame->bar.InsertButton(CMFCToolBarButton(3001, 0, L"One"));
    frame->bar.InsertButton(CMFCToolBarButton(3002, 0, L"Two"));
    frame->ShowWindow(SW_SHOWNOACTIVATE);
    EXPECT_EQ(frame->bar.GetSafeHwnd(), nullptr);
    PumpPending();
    frame->DestroyWindow();
}

TEST_F(ToolBarTest, ACommandWithoutAHandlerIsDisabled) {
    const int index = Bar().InsertButton(CMFCToolBarButton(4711, 0));
    RunIdle();
    EXPECT_NE(Bar().GetButtonStyle(index) & TBBS_DISABLED, 0u);
    EXPECT_FALSE(Bar().ProcessCommand(Bar().GetButton(index)));
    EXPECT_TRUE(Bar().ProcessCommand(Bar().GetButton(0)));
}

TEST_F(ToolBarTest, TheButtonUnderTheMouseIsHotUntilItLeaves) {
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(1));
    EXPECT_EQ(Bar().GetHighlightedButton(), Bar().GetButton(1));
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(2)); // a separator
    EXPECT_EQ(Bar().GetHighlightedButton(), nullptr);
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(3));
    m_pointer.SendLeave();
    EXPECT_EQ(Bar().GetHighlightedButton(), nullptr);
}

TEST_F(ToolBarTest, AMenuButtonOpensItsMenuAndASecondClickClosesIt) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 3010, L"Ten");
    const int index = Bar().InsertButton(CMFCToolBarMenuButton(static_cast<UINT>(-1), menu, -1, L"Menu"));
    LayOut();
    m_pointer.Click(Bar().m_hWnd, CenterOf(index));
    CMFCPopupMenu* popup = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetParentToolBar(), &Bar());
    EXPECT_EQ(Bar().GetDroppedDownMenu(), Bar().GetButton(index));
    CRect button, window;
    Bar().GetItemRect(index, button);
    Bar().ClientToScreen(button);
    popup->GetWindowRect(window);
    EXPECT_EQ(window.TopLeft(), CPoint(button.left, button.bottom));
    m_pointer.Click(Bar().m_hWnd, CenterOf(index));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    m_pointer.Click(Bar().m_hWnd, CenterOf(index));
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    Keys keys(m_window);
    keys.Press(VK_DOWN);
    keys.Press(VK_RETURN);
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{3010});
}

TEST_F(ToolBarTest, AMnemonicPressesItsButton) {
    EXPECT_TRUE(Bar().TranslateChar(L'w'));
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{3002});
    EXPECT_FALSE(Bar().TranslateChar(L'x'));
}

TEST_F(ToolBarTest, ACommandThatNoMessageCanCarryIsNotSentAsAnother) {
    const int index = Bar().InsertButton(CMFCToolBarButton(0x10000 + 3001, 0, L"Beyond"));
    EXPECT_FALSE(Bar().ProcessCommand(Bar().GetButton(index)));
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(ToolBarTest, AMnemonicOfAnyScriptPressesItsButton) {
    for (const LPCTSTR text : {L"&\x00D6"
                               L"ffnen",
                               L"&\x0424\x0430\x0439\x043B", L"&\x03A9\x03BC\x03AD"}) {
        m_frame->commands.clear();
        Bar().SetButtonText(1, text);
        const wchar_t capital = text[1];
        EXPECT_TRUE(Bar().TranslateChar(capital));
        wchar_t small[2] = {capital, 0};
        ::CharLowerW(small);
        EXPECT_TRUE(Bar().TranslateChar(small[0]));
        EXPECT_EQ(m_frame->commands, (std::vector<UINT>{3002, 3002})) << static_cast<int>(capital);
    }
}

TEST_F(ToolBarTest, TheTooltipIsTheTextWithoutMnemonic) {
    CString text;
    EXPECT_TRUE(Bar().OnUserToolTip(Bar().GetButton(1), text));
    EXPECT_EQ(text, L"Two");
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    EXPECT_EQ(Bar().OnToolHitTest(CenterOf(1), &tool), 2);
    EXPECT_EQ(Bar().OnToolHitTest(CenterOf(2), nullptr), -1);
    TestWindow toolTip(10, 10, WS_POPUP);
    NMTTDISPINFOW need = {};
    need.hdr.hwndFrom = toolTip.m_hWnd;
    need.hdr.code = TTN_NEEDTEXTW;
    need.hdr.idFrom = 2;
    Bar().SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&need));
    EXPECT_STREQ(need.lpszText, L"Two");
}

TEST_F(ToolBarTest, AHostThatDestroysTheBarInTheCommandIsSafe) {
    auto* const frame = EndingFrame<BarFrame>::Make();
    ASSERT_NE(frame, nullptr);
    const HWND window = frame->m_hWnd;
    frame->bar.InsertButton(CMFCToolBarButton(3001, 0));
    frame->ShowWindow(SW_SHOWNOACTIVATE);
    frame->RecalcLayout();
    frame->bar.AdjustLocations();
    CRect rect;
    frame->bar.GetItemRect(0, rect);
    m_pointer.Click(frame->bar.m_hWnd, rect.CenterPoint());
    EXPECT_FALSE(::IsWindow(window));
}
