#include "tests/support/ending_frame.h"
#include "tests/ui/popup_menu/menu_frame.h"

using PopupMenuCommandTest = PopupMenuTest;

TEST_F(PopupMenuCommandTest, AClickSendsTheCommandOfAChildToTheFrameAndClosesTheChain) {
    CMFCPopupMenu* child = OpenChild(Open(), L"&Recent");
    ClickItem(child, L"&First");
    EXPECT_EQ(Active(), nullptr);
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::first});
}

TEST_F(PopupMenuCommandTest, ItemsAreUpToDateWhenTheMenuOpens) {
    CMFCPopupMenu* menu = Open();
    const auto styleOf = [menu](LPCTSTR text) { return menu->GetMenuBar()->GetButtonStyle(IndexOf(menu, text)); };
    EXPECT_EQ(styleOf(L"&Open") & TBBS_DISABLED, 0u);
    EXPECT_NE(styleOf(L"&Close") & TBBS_DISABLED, 0u);
    EXPECT_NE(styleOf(L"C&hecked") & TBBS_CHECKED, 0u);
    EXPECT_NE(styleOf(L"&Unhandled") & TBBS_DISABLED, 0u);
    EXPECT_EQ(styleOf(L"&Recent") & TBBS_DISABLED, 0u);
    RunIdle();
    EXPECT_NE(styleOf(L"&Unhandled") & TBBS_DISABLED, 0u);
    EXPECT_NE(styleOf(L"C&hecked") & TBBS_CHECKED, 0u);
}

TEST_F(PopupMenuCommandTest, ACommandThatNoMessageCanCarryIsNotSentAsAnother) {
    CMFCPopupMenu* menu = Open();
    EXPECT_FALSE(menu->PostCommand(0x10000 + menu_ids::open));
    EXPECT_TRUE(menu->PostCommand(menu_ids::open));
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::open});
}

TEST_F(PopupMenuCommandTest, ADisabledItemIsNotChosen) {
    CMFCPopupMenu* menu = Open();
    ClickItem(menu, L"&Close");
    PumpPending();
    EXPECT_EQ(Active(), menu);
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(PopupMenuCommandTest, ASeparatorIsHitByNothing) {
    CMFCPopupMenu* menu = Open();
    EXPECT_EQ(menu->GetMenuBar()->HitTest(CenterOf(menu, 1)), -1);
    EXPECT_EQ(menu->GetMenuBar()->HitTest(CenterOf(menu, 0)), 0);
}

TEST_F(PopupMenuCommandTest, OwnMessagesGoToTheWindowNotToItsFrame) {
    class Receiver : public CWnd {
    public:
        std::vector<UINT> commands;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM) override {
            commands.push_back(LOWORD(wParam));
            return TRUE;
        }
    } receiver;
    receiver.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), m_frame, 5);
    auto* menu = new CMFCPopupMenu;
    ASSERT_TRUE(menu->Create(&receiver, 150, 150, MakeMenu(), FALSE, TRUE));
    CMFCPopupMenu* child = OpenChild(menu, L"&Recent");
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child->GetMessageWnd(), &receiver);
    ClickItem(child, L"&Second\tCtrl+2");
    PumpPending();
    EXPECT_EQ(receiver.commands, std::vector<UINT>{menu_ids::second});
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(PopupMenuCommandTest, AWindowWithoutHandlersDisablesNothing) {
    CWnd receiver;
    receiver.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), m_frame, 5);
    auto* menu = new CMFCPopupMenu;
    ASSERT_TRUE(menu->Create(&receiver, 150, 150, MakeMenu(), FALSE, TRUE));
    RunIdle();
    EXPECT_EQ(menu->GetMenuBar()->GetButtonStyle(IndexOf(menu, L"&Unhandled")) & TBBS_DISABLED, 0u);
}

TEST_F(PopupMenuCommandTest, TheReleaseOfTheButtonThatOpenedTheMenuChoosesNothing) {
    CMFCPopupMenu* menu = Open();
    const CPoint point = CenterOf(menu, 0);
    menu->GetMenuBar()->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(Active(), menu);
    menu->GetMenuBar()->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(point.x, point.y));
    menu->GetMenuBar()->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuCommandTest, AHostThatEndsItselfInTheCommandIsSafe) {
    auto* const frame = EndingFrame<MenuFrame>::Make();
    ASSERT_NE(frame, nullptr);
    const HWND window = frame->m_hWnd;
    auto* menu = new CMFCPopupMenu;
    ASSERT_TRUE(menu->Create(frame, 150, 150, MakeMenu()));
    ClickItem(menu, L"&Open");
    PumpPending();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuCommandTest, AMenuThatItsOwnHandlerClosesSendsNothing) {
    class ClosingMenu : public CMFCPopupMenu {
    protected:
        void OnChooseItem(UINT) override { CloseMenu(); }
    };
    auto* menu = new ClosingMenu;
    ASSERT_TRUE(menu->Create(m_frame, 150, 150, MakeMenu()));
    ClickItem(menu, L"&Open");
    PumpPending();
    EXPECT_EQ(Active(), nullptr);
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(PopupMenuCommandTest, TheHotItemIsToldAsTheSystemsMenusDo) {
    CMFCPopupMenu* menu = Open();
    m_pointer.MoveTo(menu->GetMenuBar()->m_hWnd, CenterOf(menu, 0));
    EXPECT_EQ(m_frame->hotItems, std::vector<UINT>{menu_ids::open});
    menu->CloseMenu();
    EXPECT_EQ(m_frame->hotItems.back(), 0u);
}

TEST_F(PopupMenuCommandTest, HoveringOpensAChildAfterTheSystemsDelayAndMovingAwayClosesIt) {
    CMFCPopupMenu* menu = Open();
    m_pointer.MoveTo(menu->GetMenuBar()->m_hWnd, CenterOf(menu, 2));
    EXPECT_EQ(Active(), menu);
    EXPECT_TRUE(PumpUntil([menu] { return Active() != menu; }));
    m_pointer.MoveTo(menu->GetMenuBar()->m_hWnd, CenterOf(menu, 0));
    EXPECT_NE(Active(), menu);
    EXPECT_TRUE(PumpUntil([menu] { return Active() == menu; }));
}
