#include "frame_fixture.h"

namespace {

int g_children = 0;

class RouteChild : public CMDIChildWnd {
    DECLARE_DYNCREATE(RouteChild)
public:
    RouteChild() { ++g_children; }
    ~RouteChild() override { --g_children; }
    BOOL OnTestCommand(UINT) { return g_route.Ask("child"); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(RouteChild, CMDIChildWnd)

BEGIN_MESSAGE_MAP(RouteChild, CMDIChildWnd)
ON_COMMAND_EX(ID_TEST_COMMAND, &RouteChild::OnTestCommand)
END_MESSAGE_MAP()

class RouteFrame : public Owned<CMDIFrameWnd> {
public:
    BOOL OnTestCommand(UINT) { return g_route.Ask("frame"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(RouteFrame, CMDIFrameWnd)
ON_COMMAND_EX(ID_TEST_COMMAND, &RouteFrame::OnTestCommand)
END_MESSAGE_MAP()

class MdiTest : public ::testing::Test {
protected:
    void SetUp() override {
        g_route = Route();
        ASSERT_TRUE(frame.Load());
    }
    RouteChild* NewChild() {
        return static_cast<RouteChild*>(frame.CreateNewChild(RUNTIME_CLASS(RouteChild), IDR_TEST_FRAME));
    }
    RouteFrame frame;
};

TEST_F(MdiTest, WithoutChildTheRouteIsFrameThenApplication) {
    EXPECT_EQ(frame.MDIGetActive(), nullptr);
    frame.SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"frame", "application"}));
}

TEST_F(MdiTest, TheActiveChildIsAskedFirstAndTheApplicationOnceAndLast) {
    ASSERT_NE(NewChild(), nullptr);
    frame.SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"child", "frame", "application"}));
}

TEST_F(MdiTest, ACommandGivenToTheChildItselfStillReachesTheApplication) {
    RouteChild* child = NewChild();
    ASSERT_NE(child, nullptr);
    frame.SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    g_route.asked.clear();
    child->SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"child", "application"}));
}

TEST_F(MdiTest, TheLastCreatedChildIsActiveAndActivationMovesOn) {
    RouteChild* first = NewChild();
    RouteChild* second = NewChild();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(frame.MDIGetActive(), second);
    EXPECT_EQ(frame.GetActiveFrame(), second);
    first->MDIActivate();
    EXPECT_EQ(frame.MDIGetActive(), first);
    frame.MDINext();
    EXPECT_EQ(frame.MDIGetActive(), second);
    EXPECT_EQ(second->GetMDIFrame(), &frame);
}

TEST_F(MdiTest, AClosedChildIsDeletedAndTheOtherBecomesActive) {
    RouteChild* first = NewChild();
    RouteChild* second = NewChild();
    ASSERT_EQ(g_children, 2);
    second->SendMessage(WM_CLOSE);
    EXPECT_EQ(g_children, 1);
    EXPECT_EQ(frame.MDIGetActive(), first);
    first->DestroyWindow();
    EXPECT_EQ(g_children, 0);
    EXPECT_EQ(frame.MDIGetActive(), nullptr);
}

TEST_F(MdiTest, AChildBringsItsMenuAndTheFramesComesBackAfterTheLastChild) {
    const HMENU own = ::GetMenu(frame.m_hWnd);
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_TEST_FRAME));
    CMDIChildWnd* child = frame.CreateNewChild(RUNTIME_CLASS(RouteChild), IDR_TEST_FRAME, menu.m_hMenu);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(::GetMenu(frame.m_hWnd), menu.m_hMenu);
    child->DestroyWindow();
    EXPECT_EQ(::GetMenu(frame.m_hWnd), own);
}

TEST_F(MdiTest, TheActiveChildsKeysWorkWithTheFocusInTheFrame) {
    ACCEL entry{FVIRTKEY, VK_F6, ID_TEST_COMMAND};
    const HACCEL table = ::CreateAcceleratorTableW(&entry, 1);
    ASSERT_NE(frame.CreateNewChild(RUNTIME_CLASS(RouteChild), IDR_TEST_FRAME, nullptr, table), nullptr);
    g_route.handlers = {"child"};
    MSG message{};
    message.hwnd = frame.m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = VK_F6;
    EXPECT_TRUE(frame.PreTranslateMessage(&message));
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"child"}));
    frame.DestroyWindow();
    EXPECT_EQ(::CopyAcceleratorTableW(table, nullptr, 0), 1) << "a shared table stays with its owner";
    ::DestroyAcceleratorTable(table);
}

TEST_F(MdiTest, WindowCommandsAreEnabledOnlyWithAChild) {
    CMenu* popup = frame.GetMenu()->GetSubMenu(1);
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), MAKELPARAM(1, FALSE));
    EXPECT_TRUE(popup->GetMenuState(ID_WINDOW_CASCADE, MF_BYCOMMAND) & MF_GRAYED);
    ASSERT_NE(NewChild(), nullptr);
    popup = frame.GetMenu()->GetSubMenu(1);
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), MAKELPARAM(1, FALSE));
    EXPECT_FALSE(popup->GetMenuState(ID_WINDOW_CASCADE, MF_BYCOMMAND) & MF_GRAYED);
}

TEST_F(MdiTest, TheWindowPopupIsTheOneWithWindowCommands) {
    const HMENU menu = ::GetMenu(frame.m_hWnd);
    EXPECT_EQ(frame.GetWindowMenuPopup(menu), ::GetSubMenu(menu, 1));
}

/// A child that does the command itself and passes nothing on.
class SelfReliantChild : public CMDIChildWnd {
    DECLARE_DYNCREATE(SelfReliantChild)
public:
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        return m_takesAll || CMDIChildWnd::OnCmdMsg(id, code, extra, info);
    }
    bool m_takesAll = true;
};
IMPLEMENT_DYNCREATE(SelfReliantChild, CMDIChildWnd)

TEST_F(MdiTest, ACommandThatAChildKeptDoesNotHideTheApplicationFromTheNext) {
    auto* const child =
        static_cast<SelfReliantChild*>(frame.CreateNewChild(RUNTIME_CLASS(SelfReliantChild), IDR_TEST_FRAME));
    ASSERT_NE(child, nullptr);
    frame.SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_TRUE(g_route.asked.empty());
    child->m_takesAll = false;
    child->SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"application"}));
}

} // namespace
