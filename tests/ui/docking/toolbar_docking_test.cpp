// Toolbars in rows and mini frames: upright, in rows of buttons, with a button for what has no room.
#include "tests/ui/docking/docking_fixture.h"

namespace {

constexpr int kButtons = 10;
constexpr UINT kFirstCommand = 3001;

class DockedBar : public CMFCToolBar {
public:
    using CMFCToolBar::GetGripperRect;
    using CMFCToolBar::OnLButtonDown;
};

class CommandFrame : public CFrameWndEx {
public:
    std::vector<UINT> commands;

protected:
    afx_msg void OnBarCommand(UINT id) { commands.push_back(id); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandFrame, CFrameWndEx)
ON_COMMAND_RANGE(3000, 3999, OnBarCommand)
END_MESSAGE_MAP()

class ToolBarDockingTest : public ::testing::Test {
protected:
    ToolBarDockingTest() : m_frame(new CommandFrame) {
        m_frame->Create(nullptr, L"Bars", WS_OVERLAPPEDWINDOW, CRect(100, 80, 700, 480));
        m_window = m_frame->m_hWnd;
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        m_bar.Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 77);
        m_bar.SetWindowText(L"Tools");
        for (int index = 0; index < kButtons; ++index) {
            m_bar.InsertButton(CMFCToolBarButton(kFirstCommand + static_cast<UINT>(index), -1, L"Text"));
        }
        m_bar.EnableDocking(CBRS_ALIGN_ANY);
        m_frame->DockPane(&m_bar);
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        m_frame->RecalcLayout();
        PumpPending();
    }
    ~ToolBarDockingTest() override {
        CMFCPopupMenu::CloseAll();
        if (::IsWindow(m_window)) {
            ::DestroyWindow(m_window);
        }
        PumpPending();
    }
    void Resize(int width) {
        CRect window;
        m_frame->GetWindowRect(&window);
        m_frame->SetWindowPos(nullptr, 0, 0, width, window.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        PumpPending();
    }
    CRect ButtonRect(int index) const {
        CRect rect;
        m_bar.GetItemRect(index, rect);
        return rect;
    }
    CRect Client(const CWnd& window) const {
        CRect client;
        window.GetClientRect(&client);
        return client;
    }
    int ShownButtons() const {
        int shown = 0;
        for (int index = 0; index < kButtons; ++index) {
            shown += ButtonRect(index).IsRectEmpty() ? 0 : 1;
        }
        return shown;
    }
    CommandFrame* m_frame;
    HWND m_window;
    DockedBar m_bar;
    Pointer m_pointer;
};

TEST_F(ToolBarDockingTest, ADockedBarIsAsLongAsItsButtons) {
    EXPECT_EQ(Client(m_bar).Size(), m_bar.CalcFixedLayout(FALSE, TRUE));
    EXPECT_TRUE(m_bar.GetOverflowRect().IsRectEmpty());
    EXPECT_FALSE(m_bar.GetGripperRect().IsRectEmpty());
    EXPECT_LE(m_bar.GetGripperRect().right, ButtonRect(0).left);
}

TEST_F(ToolBarDockingTest, AtALeftSideTheButtonsLieUnderEachOther) {
    m_frame->DockPane(&m_bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_FALSE(m_bar.IsHorizontal());
    EXPECT_EQ(ButtonRect(0).left, ButtonRect(1).left);
    EXPECT_EQ(ButtonRect(0).bottom, ButtonRect(1).top);
    EXPECT_LE(m_bar.GetGripperRect().bottom, ButtonRect(0).top);
}

TEST_F(ToolBarDockingTest, AFloatingBarHasNoGripperAndItsButtonsInOneRow) {
    ASSERT_TRUE(m_bar.FloatPane(CRect(CPoint(200, 200), CSize(0, 0))));
    EXPECT_TRUE(m_bar.IsFloating());
    EXPECT_TRUE(m_bar.GetGripperRect().IsRectEmpty());
    EXPECT_EQ(ButtonRect(0).top, ButtonRect(kButtons - 1).top);
    EXPECT_LE(ButtonRect(kButtons - 1).right, Client(m_bar).right);
    EXPECT_EQ(Client(m_bar).Size(), m_bar.StretchPane(10000, FALSE));
    EXPECT_EQ(m_bar.GetParentMiniFrame()->GetCaptionText(), L"Tools");
}

TEST_F(ToolBarDockingTest, ANarrowerMiniFrameBreaksTheButtonsIntoRows) {
    ASSERT_TRUE(m_bar.FloatPane(CRect(CPoint(200, 200), CSize(0, 0))));
    CPaneFrameWnd& miniFrame = *m_bar.GetParentMiniFrame();
    CRect before;
    miniFrame.GetWindowRect(&before);
    const CRect client = Client(miniFrame);
    const CPoint edge(client.right - 1, client.bottom / 2);
    m_pointer.Drag(miniFrame.m_hWnd, edge, edge - CSize(before.Width() / 2, 0));
    CRect after;
    miniFrame.GetWindowRect(&after);
    EXPECT_EQ(after.TopLeft(), before.TopLeft());
    EXPECT_LT(after.Width(), before.Width() * 2 / 3);
    EXPECT_GT(after.Height(), before.Height());
    EXPECT_GT(ButtonRect(kButtons - 1).top, ButtonRect(0).top);
    for (int index = 0; index < kButtons; ++index) {
        CRect inside;
        inside.IntersectRect(Client(m_bar), ButtonRect(index));
        EXPECT_EQ(inside, ButtonRect(index)) << index;
    }
}

TEST_F(ToolBarDockingTest, AHigherMiniFrameBreaksTheButtonsAsFarAsItsHeightLetsThem) {
    ASSERT_TRUE(m_bar.FloatPane(CRect(CPoint(200, 200), CSize(0, 0))));
    CPaneFrameWnd& miniFrame = *m_bar.GetParentMiniFrame();
    const CRect client = Client(miniFrame);
    const CPoint edge(client.right / 2, client.bottom - 1);
    m_pointer.Drag(miniFrame.m_hWnd, edge, edge + CSize(0, m_bar.GetRowHeight() + 4));
    EXPECT_EQ(ButtonRect(kButtons - 1).top, ButtonRect(0).top + ButtonRect(0).Height());
}

TEST_F(ToolBarDockingTest, AMiniFrameStaysAsWideAsItWasForTheNextTime) {
    ASSERT_TRUE(m_bar.FloatPane(CRect(CPoint(200, 200), CSize(0, 0))));
    const CSize narrow = m_bar.GetParentMiniFrame()->SizeAround(m_bar.StretchPane(100, FALSE));
    ASSERT_TRUE(m_bar.FloatPane(CRect(CPoint(200, 200), narrow)));
    m_bar.OnProcessDblClk();
    ASSERT_TRUE(m_bar.IsDocked());
    m_bar.OnProcessDblClk();
    CRect window;
    m_bar.GetParentMiniFrame()->GetWindowRect(&window);
    EXPECT_EQ(window, CRect(CPoint(200, 200), narrow));
}

TEST_F(ToolBarDockingTest, AButtonMoreMakesTheMiniFrameLarger) {
    ASSERT_TRUE(m_bar.FloatPane(CRect(CPoint(200, 200), CSize(0, 0))));
    m_bar.InsertButton(CMFCToolBarButton(3100, -1, L"A rather long text"));
    m_bar.AdjustLayout();
    CRect inside;
    inside.IntersectRect(Client(m_bar), ButtonRect(kButtons));
    EXPECT_EQ(inside, ButtonRect(kButtons));
}

TEST_F(ToolBarDockingTest, WhatHasNoRoomIsLeftOutAndAButtonForItAppears) {
    Resize(200);
    ASSERT_FALSE(m_bar.GetOverflowRect().IsRectEmpty());
    EXPECT_EQ(m_bar.GetOverflowRect().right, Client(m_bar).right);
    EXPECT_GT(ShownButtons(), 0);
    EXPECT_LT(ShownButtons(), kButtons);
    EXPECT_LE(ButtonRect(ShownButtons() - 1).right, m_bar.GetOverflowRect().left);
    Resize(800);
    EXPECT_TRUE(m_bar.GetOverflowRect().IsRectEmpty());
    EXPECT_EQ(ShownButtons(), kButtons);
}

TEST_F(ToolBarDockingTest, ALayoutThatChangesNothingLeavesTheButtonsWhereTheyAre) {
    Resize(200);
    const int shown = ShownButtons();
    const CRect first = ButtonRect(0);
    m_frame->RecalcLayout();
    m_bar.CalcFixedLayout(FALSE, FALSE);
    EXPECT_EQ(ShownButtons(), shown);
    EXPECT_EQ(ButtonRect(0), first);
    EXPECT_TRUE(m_bar.GetButton(0)->IsHorizontal());
    EXPECT_EQ(m_bar.HitTest(CPoint(1, 1)), -1);
}

TEST_F(ToolBarDockingTest, ABarThatIsAsLongAsItsRowBeforeItIsDockedLeavesItsRestOutToo) {
    CMFCToolBar bar;
    bar.Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 78);
    for (UINT index = 0; index < 100; ++index) {
        bar.InsertButton(CMFCToolBarButton(kFirstCommand + index, -1, L"Text"));
    }
    bar.EnableDocking(CBRS_ALIGN_ANY);
    m_frame->RecalcLayout();
    m_frame->DockPane(&bar);
    EXPECT_EQ(Client(bar).Width(), Client(*m_frame).Width());
    EXPECT_FALSE(bar.GetOverflowRect().IsRectEmpty());
}

TEST_F(ToolBarDockingTest, TheMenuOfTheRestHoldsTheButtonsThatWereLeftOutAndSendsTheirCommands) {
    Resize(200);
    const int left = kButtons - ShownButtons();
    m_pointer.Click(m_bar.m_hWnd, m_bar.GetOverflowRect().CenterPoint());
    CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->GetMenuItemCount(), left);
    const UINT last = kFirstCommand + kButtons - 1;
    EXPECT_EQ(menu->GetMenuItem(left - 1)->m_nID, last);
    EXPECT_EQ(menu->GetMenuItem(0)->m_nID, last - static_cast<UINT>(left) + 1);
    CRect row;
    menu->GetMenuBar()->GetItemRect(left - 1, row);
    m_pointer.Click(menu->GetMenuBar()->m_hWnd, row.CenterPoint());
    PumpPending();
    EXPECT_EQ(m_frame->commands, (std::vector<UINT>{last}));
}

TEST_F(ToolBarDockingTest, TheMenuOfTheRestOfAMirroredBarRunsFromTheRightBelowTheRightEdgeOfItsButton) {
    m_frame->ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    m_bar.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    Resize(200);
    CRect button = m_bar.GetOverflowRect();
    m_pointer.Click(m_bar.m_hWnd, button.CenterPoint());
    const CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(menu, nullptr);
    m_bar.ClientToScreen(&button);
    button.NormalizeRect();
    CRect place;
    menu->GetWindowRect(&place);
    EXPECT_TRUE(menu->GetExStyle() & WS_EX_LAYOUTRTL);
    EXPECT_NEAR(place.right, button.right, 1);
    EXPECT_EQ(place.top, button.bottom);
}

CString NameOf(UINT command) {
    CString name;
    name.Format(L"Name of %u", command);
    return name;
}

/// Knows what its buttons are called.
class NamingBar : public CMFCToolBar {
public:
    std::function<void()> onAsked;

    BOOL OnUserToolTip(CMFCToolBarButton* button, CString& text) const override {
        if (onAsked) {
            onAsked();
        }
        text = NameOf(button->m_nID);
        return TRUE;
    }
};

TEST_F(ToolBarDockingTest, AFieldThatWasLeftOutIsCalledInTheMenuOfTheRestWhatItsTooltipSays) {
    NamingBar bar;
    bar.Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 79);
    for (UINT index = 0; index < 3; ++index) {
        bar.InsertButton(CMFCToolBarComboBoxButton(kFirstCommand + index, -1, CBS_DROPDOWNLIST, 150));
    }
    bar.InsertButton(CMFCToolBarButton(kFirstCommand + 3, -1, L"Text"));
    bar.EnableDocking(CBRS_ALIGN_ANY);
    m_frame->RecalcLayout();
    m_frame->DockPane(&bar);
    Resize(200);
    m_pointer.Click(bar.m_hWnd, bar.GetOverflowRect().CenterPoint());
    CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->GetMenuItemCount(), 3);
    EXPECT_EQ(menu->GetMenuItem(0)->m_strText, NameOf(kFirstCommand + 1));
    EXPECT_EQ(menu->GetMenuItem(1)->m_strText, NameOf(kFirstCommand + 2));
    EXPECT_EQ(menu->GetMenuItem(2)->m_strText, L"Text");
    CMFCPopupMenu::CloseAll();
    PumpPending();
    bar.onAsked = [&bar] { bar.DestroyWindow(); };
    m_pointer.Click(bar.m_hWnd, bar.GetOverflowRect().CenterPoint());
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr) << "the host ended the bar when it was asked";
}

TEST_F(ToolBarDockingTest, ASecondClickOnTheButtonOfTheRestClosesTheMenu) {
    Resize(200);
    m_pointer.Click(m_bar.m_hWnd, m_bar.GetOverflowRect().CenterPoint());
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    m_pointer.Click(m_bar.m_hWnd, m_bar.GetOverflowRect().CenterPoint());
    PumpPending();
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
}

TEST_F(ToolBarDockingTest, AnUprightBarHasItsButtonOfTheRestAtTheBottom) {
    m_frame->DockPane(&m_bar, AFX_IDW_DOCKBAR_RIGHT);
    CRect window;
    m_frame->GetWindowRect(&window);
    m_frame->SetWindowPos(nullptr, 0, 0, window.Width(), 180, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_FALSE(m_bar.GetOverflowRect().IsRectEmpty());
    EXPECT_EQ(m_bar.GetOverflowRect().bottom, Client(m_bar).bottom);
    EXPECT_LT(ShownButtons(), kButtons);
}

TEST_F(ToolBarDockingTest, AFloatingBarSendsItsCommandsToTheFrame) {
    ASSERT_TRUE(m_bar.FloatPane(CRect(CPoint(200, 200), CSize(0, 0))));
    m_pointer.Click(m_bar.m_hWnd, ButtonRect(3).CenterPoint());
    EXPECT_EQ(m_frame->commands, (std::vector<UINT>{kFirstCommand + 3}));
}

TEST_F(ToolBarDockingTest, ABarIsTakenByItsGripperAndNotByItsButtons) {
    m_pointer.MoveTo(m_bar.m_hWnd, ButtonRect(1).CenterPoint());
    m_pointer.Press();
    EXPECT_FALSE(m_bar.IsDragMode());
    m_pointer.MoveTo({20, 20});
    m_pointer.Release();
    m_pointer.MoveTo(m_bar.m_hWnd, m_bar.GetGripperRect().CenterPoint());
    m_pointer.Press();
    EXPECT_TRUE(m_bar.IsDragMode());
    m_pointer.Release();
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(ToolBarDockingTest, ADraggedBarMovesAtOnce) {
    CPoint grip = m_bar.GetGripperRect().CenterPoint();
    m_bar.ClientToScreen(&grip);
    m_pointer.MoveTo(grip);
    m_pointer.Press();
    m_pointer.MoveTo({grip.x + 60, grip.y + 150});
    EXPECT_TRUE(m_bar.IsFloating());
    m_pointer.MoveTo({grip.x + 60, grip.y});
    EXPECT_TRUE(m_bar.IsDocked());
    m_pointer.Release();
    EXPECT_TRUE(m_bar.IsDocked());
}

} // namespace
