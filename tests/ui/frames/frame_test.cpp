#include "frame_fixture.h"

#include "afxframewndex.h"
#include "afxMDIFrameWndEx.h"
#include "afxpriv.h"

namespace {

class RouteFrame : public Owned<CFrameWnd> {
public:
    BOOL OnTestCommand(UINT) { return g_route.Ask("frame"); }
    afx_msg void OnUpdateOther(CCmdUI* item) {
        ++updates;
        item->SetCheck(1);
        item->Enable(TRUE);
    }
    int updates = 0;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(RouteFrame, CFrameWnd)
ON_COMMAND_EX(ID_TEST_COMMAND, &RouteFrame::OnTestCommand)
ON_UPDATE_COMMAND_UI(ID_TEST_OTHER, &RouteFrame::OnUpdateOther)
END_MESSAGE_MAP()

class FrameTest : public ::testing::Test {
protected:
    void SetUp() override {
        g_route = Route();
        ASSERT_TRUE(frame.Load());
    }
    /// What the frame gives to a tooltip control that needs the text of a tool; empty when it gives none.
    std::wstring TipOf(UINT_PTR tool, UINT flags = 0) {
        NMTTDISPINFOW need{};
        need.hdr.code = TTN_NEEDTEXTW;
        need.hdr.idFrom = tool;
        need.hdr.hwndFrom = frame.m_hWnd;
        need.uFlags = flags;
        frame.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&need));
        return need.lpszText != nullptr ? need.lpszText : L"";
    }
    RouteFrame frame;
};

TEST_F(FrameTest, LoadFrameTakesTitleMenuAndTableFromTheResources) {
    EXPECT_STREQ(frame.GetTitle(), L"Test frame");
    CString caption;
    frame.GetWindowText(caption);
    EXPECT_STREQ(caption, L"Test frame");
    ASSERT_NE(frame.GetMenu(), nullptr);
    EXPECT_EQ(frame.GetMenu()->GetMenuItemCount(), 2u);
    EXPECT_NE(frame.m_hAccelTable, nullptr);
}

TEST_F(FrameTest, ACommandAsksTheFrameFirstAndThenTheApplication) {
    frame.SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"frame", "application"}));
}

TEST_F(FrameTest, ACommandThatTheFrameHandlesDoesNotReachTheApplication) {
    g_route.handlers = {"frame"};
    frame.SendMessage(WM_COMMAND, ID_TEST_COMMAND);
    EXPECT_EQ(g_route.asked, (std::vector<std::string>{"frame"}));
}

TEST_F(FrameTest, AnOpeningMenuIsUpdatedAndCommandsWithoutHandlerAreDisabled) {
    CMenu* popup = frame.GetMenu()->GetSubMenu(0);
    popup->AppendMenu(MF_STRING, ID_TEST_LONG, L"Nobody");
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), MAKELPARAM(0, FALSE));
    EXPECT_EQ(frame.updates, 1);
    EXPECT_TRUE(popup->GetMenuState(ID_TEST_OTHER, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_FALSE(popup->GetMenuState(ID_TEST_COMMAND, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED));
    EXPECT_TRUE(popup->GetMenuState(ID_TEST_LONG, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED));
}

TEST_F(FrameTest, WithoutAutoEnableCommandsWithoutHandlerStayEnabled) {
    frame.m_bAutoMenuEnable = FALSE;
    CMenu* popup = frame.GetMenu()->GetSubMenu(0);
    popup->AppendMenu(MF_STRING, ID_TEST_LONG, L"Nobody");
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), MAKELPARAM(0, FALSE));
    EXPECT_FALSE(popup->GetMenuState(ID_TEST_LONG, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED));
}

TEST_F(FrameTest, TheSystemMenuIsNotUpdated) {
    CMenu* popup = frame.GetMenu()->GetSubMenu(0);
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), MAKELPARAM(0, TRUE));
    EXPECT_EQ(frame.updates, 0);
}

TEST_F(FrameTest, APromptIsTheFirstLineOfTheCommandsText) {
    CString prompt;
    frame.GetMessageString(ID_TEST_COMMAND, prompt);
    EXPECT_STREQ(prompt, L"Does the command");
    frame.GetMessageString(0x8F00, prompt);
    EXPECT_STREQ(prompt, L"");
}

TEST_F(FrameTest, ATooltipIsTheSecondLineOfTheCommandsText) { EXPECT_EQ(TipOf(ID_TEST_COMMAND), L"Command tip"); }

TEST_F(FrameTest, ATooltipMayBeLongerThanTheNotificationsOwnRoom) {
    EXPECT_GT(TipOf(ID_TEST_LONG).size(), 80u);
    EXPECT_TRUE(TipOf(ID_TEST_LONG).ends_with(L"lent"));
}

TEST_F(FrameTest, ATooltipForAWindowIsThatOfItsControlId) {
    CStatic control;
    ASSERT_TRUE(control.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &frame, ID_TEST_COMMAND));
    EXPECT_EQ(TipOf(reinterpret_cast<UINT_PTR>(control.m_hWnd), TTF_IDISHWND), L"Command tip");
}

TEST_F(FrameTest, ACommandTextWithoutSecondLineMakesNoTooltip) { EXPECT_EQ(TipOf(ID_TEST_OTHER), L""); }

TEST_F(FrameTest, TheMessageBarShowsPromptsAndPlainTexts) {
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(&frame));
    const UINT panes[] = {ID_SEPARATOR, ID_TEST_COMMAND};
    ASSERT_TRUE(bar.SetIndicators(panes, 2));
    frame.SetMessageText(L"plain");
    EXPECT_STREQ(bar.GetPaneText(0), L"plain");
    frame.SetMessageText(ID_TEST_COMMAND);
    EXPECT_STREQ(bar.GetPaneText(0), L"Does the command");
    frame.SendMessage(WM_MENUSELECT, MAKEWPARAM(ID_TEST_OTHER, MF_HILITE), 1);
    EXPECT_STREQ(bar.GetPaneText(0), L"No tip here");
    frame.SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    EXPECT_STREQ(bar.GetPaneText(0), L"");
}

TEST_F(FrameTest, AHiddenMenuBarComesBackWithTheSameMenu) {
    const HMENU menu = ::GetMenu(frame.m_hWnd);
    EXPECT_TRUE(frame.SetMenuBarState(AFX_MBS_HIDDEN));
    EXPECT_EQ(::GetMenu(frame.m_hWnd), nullptr);
    EXPECT_FALSE(frame.SetMenuBarState(AFX_MBS_HIDDEN)) << "nothing changed";
    EXPECT_TRUE(frame.SetMenuBarState(AFX_MBS_VISIBLE));
    EXPECT_EQ(::GetMenu(frame.m_hWnd), menu);
}

TEST_F(FrameTest, AModalStateDisablesTheOtherWindowsUntilItsEnd) {
    TestWindow other;
    frame.BeginModalState();
    frame.BeginModalState();
    EXPECT_FALSE(other.IsWindowEnabled());
    EXPECT_TRUE(frame.InModalState());
    frame.EndModalState();
    EXPECT_FALSE(other.IsWindowEnabled()) << "counted";
    frame.EndModalState();
    EXPECT_TRUE(other.IsWindowEnabled());
}

TEST_F(FrameTest, ClosingTheMainWindowEndsTheMessageLoop) {
    const MainWindowScope scope(&frame);
    frame.PostMessage(WM_CLOSE);
    MSG message;
    int count = 0;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0 && ++count < 1000) {
        ::DispatchMessageW(&message);
    }
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(frame.m_hWnd, nullptr);
}

TEST_F(FrameTest, ClosingAnotherFrameDoesNotEndTheLoop) {
    RouteFrame second;
    ASSERT_TRUE(second.Load());
    const MainWindowScope scope(&frame);
    second.SendMessage(WM_CLOSE);
    EXPECT_EQ(second.m_hWnd, nullptr);
    MSG message;
    bool hasEnded = false;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        hasEnded |= message.message == WM_QUIT;
    }
    EXPECT_FALSE(hasEnded);
}

TEST(FrameObject, DeletesItselfAfterItsWindow) {
    static int deleted;
    deleted = 0;
    class Counted : public CFrameWnd {
    public:
        ~Counted() override { ++deleted; }
    };
    auto* frame = new Counted;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME));
    frame->DestroyWindow();
    EXPECT_EQ(deleted, 1);
}

/// A frame of a host that deletes it, and whose destructor destroys the window while it is still of this class.
template <class Frame>
class DeletedFrame : public Frame {
public:
    explicit DeletedFrame(int& ends) : m_ends(ends) {}
    ~DeletedFrame() override {
        ++m_ends;
        if (m_ends == 1) {
            this->EndWindow();
        }
    }

private:
    int& m_ends;
};

template <class Frame>
class DeletedFrameTest : public ::testing::Test {};
using DeletedFrames = ::testing::Types<CFrameWnd, CFrameWndEx, CMDIFrameWnd, CMDIFrameWndEx>;
TYPED_TEST_SUITE(DeletedFrameTest, DeletedFrames);

TYPED_TEST(DeletedFrameTest, ItsWindowGoesAndItIsNotDeletedTwice) {
    int ends = 0;
    HWND window = nullptr;
    {
        DeletedFrame<TypeParam> frame(ends);
        ASSERT_TRUE(frame.LoadFrame(IDR_TEST_FRAME));
        window = frame.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(ends, 1);
}

} // namespace
