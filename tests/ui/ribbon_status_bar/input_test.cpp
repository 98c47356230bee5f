#include "status_frame.h"

#include "tests/support/keys.h"
#include "tests/support/pointer.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class StatusBarInput : public StatusBarTest {
protected:
    explicit StatusBarInput(DWORD extendedStyle = 0) : StatusBarTest(WS_OVERLAPPEDWINDOW | WS_VISIBLE, extendedStyle) {}
    void Click(const CMFCRibbonBaseElement& element) {
        Pointer pointer;
        pointer.Click(Bar().GetSafeHwnd(), element.GetRect().CenterPoint());
        PumpPending();
    }
    /// A key as the message loop hands it on.
    bool Key(UINT key) {
        MSG message{Bar().GetSafeHwnd(), WM_KEYDOWN, key, 1, 0, {}};
        return Bar().PreTranslateMessage(&message) != FALSE;
    }
    LRESULT NcHit(CPoint client) {
        Bar().ClientToScreen(&client);
        return Bar().SendMessage(WM_NCHITTEST, 0, MAKELPARAM(client.x, client.y));
    }
};

class MirroredStatusBar : public StatusBarInput {
protected:
    MirroredStatusBar() : StatusBarInput(WS_EX_LAYOUTRTL) {}
};

/// Counts how often it is told to go.
class CountingTip : public CMFCToolTipCtrl {
    DECLARE_DYNCREATE(CountingTip)

public:
    static inline int s_pops = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        s_pops += message == TTM_POP ? 1 : 0;
        return CMFCToolTipCtrl::WindowProc(message, wParam, lParam);
    }
};
IMPLEMENT_DYNCREATE(CountingTip, CMFCToolTipCtrl)

class StatusBarTip : public StatusBarInput {
protected:
    StatusBarTip() {
        CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, RUNTIME_CLASS(CountingTip));
        Bar().EnableToolTips(TRUE);
    }
    ~StatusBarTip() override { CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, nullptr); }
};

class SilentLabel : public CMFCRibbonLabel {
public:
    explicit SilentLabel(LPCTSTR text) : CMFCRibbonLabel(text) {}
};

TEST_F(StatusBarInput, AClickSendsTheElementsCommandToTheFrame) {
    const CMFCRibbonButton& main = AddButton(11, L"One");
    const CMFCRibbonButton& extended = AddExtendedButton(12, L"Two");
    Click(main);
    Click(extended);
    EXPECT_THAT(m_frame->commands, ElementsAre(11, 12));
}

TEST_F(StatusBarInput, ADisabledElementSendsNothing) {
    CMFCRibbonButton& button = AddButton(11, L"One");
    m_frame->disabledCommand = 11;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    ASSERT_TRUE(button.IsDisabled());
    Click(button);
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(StatusBarInput, ThePointerLightsWhatItIsOver) {
    const CMFCRibbonButton& button = AddButton(11, L"One");
    Pointer pointer;
    pointer.MoveTo(Bar().GetSafeHwnd(), button.GetRect().CenterPoint());
    EXPECT_TRUE(button.IsHighlighted());
    pointer.Press();
    EXPECT_TRUE(button.IsPressed());
    pointer.Release();
    EXPECT_FALSE(button.IsPressed());
    pointer.SendLeave();
    EXPECT_FALSE(button.IsHighlighted());
}

TEST_F(StatusBarInput, HitTestAnswersTheElementUnderThePoint) {
    CMFCRibbonButton& main = AddButton(11, L"One");
    CMFCRibbonButton& extended = AddExtendedButton(12, L"Two");
    EXPECT_EQ(Bar().HitTest(main.GetRect().CenterPoint()), &main);
    EXPECT_EQ(Bar().HitTest(extended.GetRect().CenterPoint(), TRUE, TRUE), &extended);
    EXPECT_EQ(Bar().HitTest(CPoint(main.GetRect().right + 20, 5)), nullptr);
}

TEST_F(StatusBarInput, HiddenElementsAreNotHit) {
    CMFCRibbonButton& button = AddButton(11, L"One");
    const CPoint middle = button.GetRect().CenterPoint();
    button.SetVisible(FALSE);
    EXPECT_EQ(Bar().HitTest(middle), nullptr);
}

TEST_F(StatusBarInput, ThePressOfASliderSendsEachChange) {
    auto* const slider = new CMFCRibbonSlider(20, 100);
    Bar().AddExtendedElement(slider, L"");
    LayOut();
    const CRect rect = slider->GetRect();
    Pointer pointer;
    pointer.Click(Bar().GetSafeHwnd(), CPoint(rect.right - 12, rect.CenterPoint().y));
    EXPECT_THAT(m_frame->commands, ElementsAre(20));
    EXPECT_GT(slider->GetPos(), 50);
}

TEST_F(StatusBarInput, TheGripSizesTheFrame) {
    const CPoint grip = Bar().m_rectSizeGrip.CenterPoint();
    EXPECT_EQ(NcHit(grip), HTBOTTOMRIGHT);
    EXPECT_EQ(NcHit(CPoint(5, 5)), HTCLIENT);
    CPoint screen = grip;
    Bar().ClientToScreen(&screen);
    Bar().SendMessage(WM_NCLBUTTONDOWN, HTBOTTOMRIGHT, MAKELPARAM(screen.x, screen.y));
    EXPECT_THAT(m_frame->sizingHits, ElementsAre(HTBOTTOMRIGHT));
}

TEST_F(MirroredStatusBar, TheGripIsInTheLeftCornerOfTheScreen) {
    CRect grip = Bar().m_rectSizeGrip;
    EXPECT_EQ(grip.right, Client().right);
    EXPECT_EQ(NcHit(grip.CenterPoint()), HTBOTTOMLEFT);
    Bar().ClientToScreen(grip);
    CRect bar;
    Bar().GetWindowRect(bar);
    EXPECT_EQ(std::min(grip.left, grip.right), bar.left);
}

TEST_F(StatusBarInput, TheCoveredBorderSizesTheFrame) {
    Bar().m_bIsBottomFrame = TRUE;
    Bar().MarkLayoutDirty();
    LayOut();
    EXPECT_EQ(NcHit(CPoint(5, Client().bottom - 1)), HTBOTTOM);
    EXPECT_EQ(NcHit(CPoint(5, 5)), HTCLIENT);
}

TEST_F(StatusBarInput, TheBarTakesTheFocusOnlyWhereAnElementCanHaveIt) {
    EXPECT_FALSE(Bar().LeadsFocusItself());
    Bar().AddElement(new SilentLabel(L"Ready"), L"");
    LayOut();
    EXPECT_FALSE(Bar().LeadsFocusItself());
    AddButton(11, L"One");
    EXPECT_TRUE(Bar().LeadsFocusItself());
}

TEST_F(StatusBarInput, ArrowsMoveTheFocusAndEnterSendsTheCommand) {
    const CMFCRibbonButton& first = AddButton(11, L"One");
    const CMFCRibbonButton& second = AddButton(12, L"Two");
    const CMFCRibbonButton& third = AddExtendedButton(13, L"Three");
    Bar().SetFocus();
    EXPECT_TRUE(first.IsFocused());
    EXPECT_TRUE(Key(VK_RIGHT));
    EXPECT_TRUE(second.IsFocused());
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_TRUE(third.IsFocused());
    EXPECT_TRUE(Key(VK_RETURN));
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(13));
    EXPECT_EQ(Bar().GetFocused(), nullptr);
}

TEST_F(StatusBarInput, HomeAndEndLeadToItsEnds) {
    const CMFCRibbonButton& first = AddButton(11, L"One");
    AddButton(12, L"Two");
    const CMFCRibbonButton& last = AddExtendedButton(13, L"Three");
    Bar().SetFocus();
    EXPECT_TRUE(Key(VK_END));
    EXPECT_TRUE(last.IsFocused());
    EXPECT_TRUE(Key(VK_HOME));
    EXPECT_TRUE(first.IsFocused());
}

TEST_F(StatusBarInput, ArrowsMoveASliderThatHasTheFocus) {
    auto* const slider = new CMFCRibbonSlider(20, 100);
    slider->SetZoomIncrement(5);
    Bar().AddExtendedElement(slider, L"");
    LayOut();
    Bar().SetFocus();
    ASSERT_TRUE(slider->IsFocused());
    EXPECT_TRUE(Key(VK_RIGHT));
    EXPECT_EQ(slider->GetPos(), 5);
    EXPECT_THAT(m_frame->commands, ElementsAre(20));
}

TEST_F(StatusBarInput, EscapeGivesTheFocusBack) {
    AddButton(11, L"One");
    m_frame->SetFocus();
    const HWND before = ::GetFocus();
    Bar().SetFocus();
    EXPECT_TRUE(Key(VK_ESCAPE));
    EXPECT_EQ(::GetFocus(), before);
    EXPECT_EQ(Bar().GetFocused(), nullptr);
}

TEST_F(StatusBarInput, KeysPassWhileTheBarDoesNotHaveTheFocus) {
    AddButton(11, L"One");
    EXPECT_FALSE(Key(VK_RIGHT));
    EXPECT_FALSE(Key(VK_RETURN));
}

TEST_F(StatusBarInput, F6LeadsFromTheDocumentToTheStatusBarAndBack) {
    AddButton(11, L"One");
    CDockingManager* const manager = m_frame->GetDockingManager();
    EXPECT_EQ(manager->FindNextFocus(m_window, TRUE), Bar().GetSafeHwnd());
    EXPECT_NE(manager->FindNextFocus(Bar().GetSafeHwnd(), TRUE), Bar().GetSafeHwnd());
}

TEST_F(StatusBarInput, TheContextMenuListsTheElementsThatHaveALabel) {
    AddButton(11, L"One", L"First");
    AddButton(12, L"Two");
    Bar().AddExtendedElement(new CMFCRibbonButton(13, L"Three"), L"Third", FALSE);
    LayOut();
    Bar().OnPaneContextMenu(m_frame, CPoint(20, 20));
    auto* const menu = DYNAMIC_DOWNCAST(CMFCRibbonPanelMenu, CMFCPopupMenu::GetActiveMenu());
    ASSERT_NE(menu, nullptr);
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> rows;
    menu->GetRibbonMenuBar().GetElements(rows);
    ASSERT_EQ(rows.GetSize(), 2);
    EXPECT_STREQ(rows[0]->GetText(), L"First");
    EXPECT_TRUE(rows[0]->IsChecked());
    EXPECT_STREQ(rows[1]->GetText(), L"Third");
    EXPECT_FALSE(rows[1]->IsChecked());
    rows[1]->OnKey(FALSE);
    PumpPending();
    EXPECT_TRUE(Bar().GetExElement(0)->IsVisible());
    EXPECT_FALSE(Bar().GetExElement(0)->GetRect().IsRectEmpty());
}

TEST_F(StatusBarTip, StaysWhileOtherElementsChange) {
    const CMFCRibbonButton& hot = AddButton(11, L"One");
    CMFCRibbonButton& other = AddButton(12, L"Two");
    Pointer pointer;
    pointer.MoveTo(Bar().GetSafeHwnd(), hot.GetRect().CenterPoint());
    ASSERT_TRUE(hot.IsHighlighted());
    ASSERT_NE(DYNAMIC_DOWNCAST(CountingTip, Bar().GetToolTipCtrl()), nullptr);
    CountingTip::s_pops = 0;
    const int layouts = Bar().layouts;
    other.SetText(L"Two and a little more");
    Bar().EnsureLayout();
    EXPECT_GT(Bar().layouts, layouts);
    EXPECT_EQ(CountingTip::s_pops, 0);
}

TEST_F(StatusBarTip, GoesWhenItsElementMoves) {
    CMFCRibbonButton& before = AddButton(11, L"One");
    const CMFCRibbonButton& hot = AddButton(12, L"Two");
    Pointer pointer;
    pointer.MoveTo(Bar().GetSafeHwnd(), hot.GetRect().CenterPoint());
    ASSERT_TRUE(hot.IsHighlighted());
    CountingTip::s_pops = 0;
    before.SetText(L"One and a little more");
    Bar().EnsureLayout();
    EXPECT_GT(CountingTip::s_pops, 0);
}

TEST_F(StatusBarInput, WithoutLabelsThereIsNoContextMenu) {
    AddButton(11, L"One");
    EXPECT_FALSE(Bar().OnShowRibbonContextMenu(&Bar(), 20, 20, nullptr));
}

} // namespace
