// The real cursor: what the bar lights and tells when the pointer leaves, while a command runs, and in an edit.
#include "afxRibbonEdit.h"
#include "afxvisualmanageroffice2007.h"
#include "tests/support/real_mouse.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

class RealCursorTest : public RibbonBarTest {
protected:
    RealCursorTest() {
        m_frame->SetForegroundWindow();
        SetCursor(OutsideBar());
        PumpPending();
    }

    /// The system tells that the pointer has left with some delay.
    static bool GoesDark(const CMFCRibbonBaseElement& element) {
        return PumpUntil([&] { return !element.IsHighlighted(); }, std::chrono::seconds(5));
    }
    static void SetCursor(CPoint screen) { ::SetCursorPos(screen.x, screen.y); }
    void MoveTo(CPoint screen) {
        SetCursor(screen);
        PumpPending();
    }
    CPoint OnScreen(UINT id) {
        CPoint point = CenterOf(id);
        Bar().ClientToScreen(&point);
        return point;
    }
    CPoint OutsideBar() {
        CRect client;
        m_frame->GetClientRect(client);
        CPoint point(client.CenterPoint().x, client.bottom - 20);
        m_frame->ClientToScreen(&point);
        return point;
    }
    void Click(UINT id) {
        const CPoint at = OnScreen(id);
        MoveTo(at);
        for (const DWORD change : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
            SendMouse(at, change);
            PumpPending();
        }
    }
};

TEST_F(RealCursorTest, AButtonIsDarkAfterADialogThatThePointerWentInto) {
    TestWindow dialog(300, 200);
    dialog.ShowWindow(SW_HIDE);
    m_frame->onCommand = [&] {
        dialog.SetWindowPos(&CWnd::wndTop, 0, 0, 300, 200, SWP_NOMOVE | SWP_SHOWWINDOW);
        MoveTo(OutsideBar()); // the loop of the dialog
        dialog.ShowWindow(SW_HIDE);
    };
    Click(commands::paste);
    ASSERT_EQ(m_frame->commands.size(), 1u);
    EXPECT_FALSE(Element(commands::paste).IsHighlighted());
    EXPECT_FALSE(Bar().GetCategory(0)->GetPanel(0)->IsHighlighted());
}

TEST_F(RealCursorTest, AButtonIsDarkWhenThePointerLeftDuringASlowCommand) {
    m_frame->onCommand = [&] { SetCursor(OutsideBar()); };
    Click(commands::paste);
    ASSERT_EQ(m_frame->commands.size(), 1u);
    EXPECT_FALSE(Element(commands::paste).IsHighlighted());
}

TEST_F(RealCursorTest, AfterACommandTheElementUnderThePointerIsLit) {
    m_frame->onCommand = [&] { MoveTo(OnScreen(commands::cut)); };
    Click(commands::paste);
    EXPECT_FALSE(Element(commands::paste).IsHighlighted());
    EXPECT_TRUE(Element(commands::cut).IsHighlighted());
    m_frame->onCommand = nullptr;
    Click(commands::paste);
    EXPECT_TRUE(Element(commands::paste).IsHighlighted()) << "the pointer stayed";
    MoveTo(OutsideBar());
    EXPECT_TRUE(GoesDark(Element(commands::paste)));
}

TEST_F(RealCursorTest, AButtonUnderAClosedDialogIsLitUntilThePointerLeaves) {
    m_frame->onCommand = [&] {
        TestWindow dialog(300, 200);
        const CPoint cursor = OnScreen(commands::paste);
        dialog.SetWindowPos(&CWnd::wndTopMost, cursor.x - 100, cursor.y - 100, 300, 200, SWP_SHOWWINDOW);
        MoveTo(cursor + CSize(1, 1));
        Bar().SendMessage(WM_MOUSELEAVE); // what the bar has asked for comes once
        EXPECT_FALSE(Element(commands::paste).IsHighlighted());
        MoveTo(cursor);
    };
    Click(commands::paste);
    EXPECT_TRUE(Element(commands::paste).IsHighlighted());
    MoveTo(OutsideBar());
    EXPECT_TRUE(GoesDark(Element(commands::paste)));
}

TEST_F(RealCursorTest, ACommandThatUsedUpTheNoticeOfLeavingIsFollowedByAnotherRequest) {
    m_frame->onCommand = [&] {
        PumpPending(); // the move that follows the end of the capture
        TRACKMOUSEEVENT former{sizeof(former), TME_CANCEL | TME_LEAVE, Bar(), 0};
        ASSERT_TRUE(::TrackMouseEvent(&former));
        Bar().SendMessage(WM_MOUSELEAVE);
    };
    Click(commands::paste);
    ASSERT_TRUE(Element(commands::paste).IsHighlighted());
    MoveTo(OutsideBar());
    EXPECT_TRUE(GoesDark(Element(commands::paste)));
}

class EditTipTest : public RealCursorTest {
protected:
    EditTipTest() {
        CMFCVisualManagerOffice2007::SetStyle(CMFCVisualManagerOffice2007::Office2007_Silver);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        Bar().EnableToolTips(TRUE); // of that manager's kind
        Edit().SetToolTipText(L"Size of the text");
        Edit().SetDescription(L"In points");
    }
    ~EditTipTest() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
    }
    CMFCRibbonEdit& Edit() { return static_cast<CMFCRibbonEdit&>(Element(commands::size)); }
    CPoint InEdit() {
        CRect rect;
        Edit().GetEditWnd()->GetWindowRect(rect);
        return rect.CenterPoint();
    }
    CToolTipCtrl& Tip() { return *Bar().GetToolTipCtrl(); }
    /// Rests there until the tip with the text shows; false when it never does.
    bool ShowsTipAt(CPoint screen, LPCTSTR expected) {
        MoveTo(screen - CSize(1, 0));
        MoveTo(screen);
        return PumpUntil(
            [&] {
                CString text;
                Tip().GetWindowText(text);
                return Tip().IsWindowVisible() != FALSE && text == expected;
            },
            std::chrono::seconds(5));
    }
};

TEST_F(EditTipTest, TheEditWindowShowsTheTipOfItsElement) {
    ASSERT_EQ(CWnd::WindowFromPoint(InEdit()), Edit().GetEditWnd());
    ASSERT_TRUE(ShowsTipAt(InEdit(), Edit().GetText()));
    CRect bar, tip;
    Bar().GetWindowRect(bar);
    Tip().GetWindowRect(tip);
    EXPECT_EQ(tip.left, bar.left + Edit().GetRect().left) << "below the bar, at the element, as for every other";
    EXPECT_GE(tip.top, bar.bottom);
    MoveTo(OutsideBar());
    EXPECT_TRUE(PumpUntil([&] { return Tip().IsWindowVisible() == FALSE; }, std::chrono::seconds(5)));
}

TEST_F(EditTipTest, TheEditAndItsNeighboursShowTheirOwnTipsInTurn) {
    EXPECT_TRUE(ShowsTipAt(InEdit(), Edit().GetText()));
    EXPECT_TRUE(ShowsTipAt(OnScreen(commands::paste), L"Paste"));
    EXPECT_TRUE(ShowsTipAt(InEdit(), Edit().GetText())) << "again";
}

TEST_F(EditTipTest, TheEditAndItsPanelAreLitWhileThePointerIsInTheEditWindow) {
    CMFCRibbonPanel& panel = *Bar().GetCategory(0)->GetPanel(1);
    MoveTo(OnScreen(commands::paste));
    MoveTo(InEdit());
    EXPECT_TRUE(Edit().IsHighlighted());
    EXPECT_TRUE(panel.IsHighlighted());
    EXPECT_FALSE(Element(commands::paste).IsHighlighted());
    MoveTo(OutsideBar());
    EXPECT_TRUE(GoesDark(Edit()));
    EXPECT_FALSE(panel.IsHighlighted());
}

} // namespace
