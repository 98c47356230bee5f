// The tooltip of a toolbar is of the kind and look that the application's tooltip manager has for toolbars.
#include "tests/ui/toolbar/bar_frame.h"

#include <afxtooltipmanager.h>

namespace {

/// A host's own tooltip.
class OwnTooltip : public CMFCToolTipCtrl {
    DECLARE_DYNCREATE(OwnTooltip)
};
IMPLEMENT_DYNCREATE(OwnTooltip, CMFCToolTipCtrl)

class ToolBarTooltip : public ToolBarTest {
protected:
    ToolBarTooltip() { MoveTo(CPoint(0, 0)); } // a bar without a pointer has none
    ~ToolBarTooltip() override { m_manager.SetTooltipParams(AFX_TOOLTIP_TYPE_ALL, nullptr); }

    CToolTipCtrl* Tooltip() { return Bar().m_pToolTip; }
    void MoveTo(CPoint point) {
        MSG message{Bar().m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y), 0, {}};
        Bar().PreTranslateMessage(&message);
    }
    /// What the tooltip is told to show; empty: nothing.
    CString AskedText() {
        NMTTDISPINFOW need = {};
        need.hdr.hwndFrom = Tooltip()->m_hWnd;
        need.hdr.code = TTN_NEEDTEXTW;
        need.hdr.idFrom = 1;
        Bar().SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&need));
        return need.lpszText;
    }

    CTooltipManager m_manager;
};

TEST_F(ToolBarTooltip, IsOfTheClassThatTheHostChose) {
    m_manager.SetTooltipParams(AFX_TOOLTIP_TYPE_TOOLBAR, RUNTIME_CLASS(OwnTooltip));
    ASSERT_NE(Tooltip(), nullptr);
    EXPECT_TRUE(Tooltip()->IsKindOf(RUNTIME_CLASS(OwnTooltip)));
}

TEST_F(ToolBarTooltip, HasTheLookThatTheHostChose) {
    CMFCToolTipInfo look;
    look.m_bBalloonTooltip = TRUE;
    look.m_clrFill = RGB(1, 2, 3);
    m_manager.SetTooltipParams(AFX_TOOLTIP_TYPE_TOOLBAR, RUNTIME_CLASS(CMFCToolTipCtrl), &look);
    auto* const tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, Tooltip());
    ASSERT_NE(tooltip, nullptr);
    EXPECT_EQ(tooltip->GetParams().m_clrFill, RGB(1, 2, 3));
    EXPECT_TRUE(tooltip->GetStyle() & TTS_BALLOON);
}

TEST_F(ToolBarTooltip, OfOtherBarsChangesNothing) {
    const CToolTipCtrl* const before = Tooltip();
    m_manager.SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, RUNTIME_CLASS(OwnTooltip));
    EXPECT_EQ(Tooltip(), before);
}

TEST_F(ToolBarTooltip, FollowsTheButtonUnderThePointer) {
    MoveTo(CenterOf(0));
    EXPECT_EQ(AskedText(), L"One");
    MoveTo(CenterOf(1));
    EXPECT_EQ(AskedText(), L"Two");
    CToolInfo tool;
    ASSERT_TRUE(Tooltip()->GetToolInfo(tool, &Bar(), 1));
    CRect button;
    Bar().GetItemRect(1, button);
    EXPECT_EQ(CRect(tool.rect), button);
}

TEST_F(ToolBarTooltip, IsSilentOnSeparatorsAndWhereTooltipsAreOff) {
    MoveTo(CenterOf(2));
    EXPECT_EQ(AskedText(), L"");
    CMFCToolBar::SetShowTooltips(FALSE);
    MoveTo(CenterOf(0));
    EXPECT_EQ(AskedText(), L"");
    CMFCToolBar::SetShowTooltips(TRUE);
}

TEST_F(ToolBarTooltip, IsSilentWhileTheButtonsMenuIsOpen) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 3010, L"Ten");
    const int index = Bar().InsertButton(CMFCToolBarMenuButton(3020, menu, -1, L"Menu"));
    LayOut();
    MoveTo(CenterOf(index));
    EXPECT_EQ(AskedText(), L"Menu");
    auto* const button = static_cast<CMFCToolBarMenuButton*>(Bar().GetButton(index));
    ASSERT_TRUE(button->OpenPopupMenu(&Bar()));
    EXPECT_EQ(AskedText(), L"");
    CMFCPopupMenu::CloseAll();
    EXPECT_EQ(AskedText(), L"Menu");
}

TEST_F(ToolBarTooltip, GoesWithTheBar) {
    const HWND window = Tooltip()->m_hWnd;
    Bar().DestroyWindow();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(Tooltip(), nullptr);
}

} // namespace
