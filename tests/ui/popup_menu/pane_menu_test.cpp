// The menus of panes that EnablePaneMenu gives: in the place of an item of a menu, and by a right click on a pane.
#include "tests/ui/popup_menu/menu_frame.h"

namespace {

class PaneMenu : public PopupMenuTest {
protected:
    PaneMenu() {
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        for (CMFCToolBar* bar : {&m_first, &m_second}) {
            bar->Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, bar == &m_first ? 0xE850 : 0xE851);
            bar->EnableDocking(CBRS_ALIGN_ANY);
            m_frame->DockPane(bar);
        }
        m_first.SetWindowText(L"First bar");
        m_second.SetWindowText(L"Second bar");
        m_second.ShowPane(FALSE, FALSE, FALSE);
    }
    ~PaneMenu() override { CMFCPopupMenu::CloseAll(); }

    CMFCPopupMenu* RightClick() {
        CRect pane;
        m_first.GetWindowRect(pane);
        m_first.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_first.m_hWnd),
                            MAKELPARAM(pane.left + 2, pane.top + 2));
        return Active();
    }
    static std::vector<CString> TextsOf(CMFCPopupMenu* menu) {
        std::vector<CString> texts;
        for (int index = 0; index < menu->GetMenuItemCount(); ++index) {
            const CMFCToolBarMenuButton* const item = menu->GetMenuItem(index); // null for a separator
            texts.push_back(item ? item->m_strText : CString());
        }
        return texts;
    }

    CMFCToolBar m_first, m_second;
};

TEST_F(PaneMenu, ItemBecomesOneForEachPane) {
    m_frame->EnablePaneMenu(TRUE, 0, L"", menu_ids::open);
    CMFCPopupMenu* const menu = Open();
    EXPECT_EQ(IndexOf(menu, L"&Open"), -1);
    ASSERT_EQ(IndexOf(menu, L"First bar"), 0);
    ASSERT_EQ(IndexOf(menu, L"Second bar"), 1);
    EXPECT_TRUE(menu->GetMenuBar()->GetButtonStyle(0) & TBBS_CHECKED);
    EXPECT_FALSE(menu->GetMenuBar()->GetButtonStyle(1) & TBBS_CHECKED);
}

TEST_F(PaneMenu, ChoiceShowsAndHidesThePane) {
    m_frame->EnablePaneMenu(TRUE, 0, L"", menu_ids::open);
    ClickItem(Open(), L"Second bar");
    EXPECT_TRUE(m_second.IsVisible());
    EXPECT_EQ(Active(), nullptr);
    ClickItem(Open(), L"First bar");
    EXPECT_FALSE(m_first.IsVisible());
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(PaneMenu, ThatIsOffLeavesTheItem) {
    m_frame->EnablePaneMenu(TRUE, 0, L"", menu_ids::open);
    m_frame->EnablePaneMenu(FALSE, 0, L"", menu_ids::open);
    EXPECT_EQ(IndexOf(Open(), L"&Open"), 0);
}

TEST_F(PaneMenu, WithoutThatItemIsAsItWas) {
    m_frame->EnablePaneMenu(TRUE, 0, L"", 9999);
    CMFCPopupMenu* const menu = Open();
    EXPECT_EQ(IndexOf(menu, L"&Open"), 0);
    EXPECT_EQ(IndexOf(menu, L"First bar"), -1);
}

TEST_F(PaneMenu, ARightClickOnAPaneOffersThePanesAndTheCommandThatChangesThem) {
    m_frame->EnablePaneMenu(TRUE, menu_ids::open, L"Change...", 0, TRUE);
    CMFCPopupMenu* const menu = RightClick();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(TextsOf(menu), (std::vector<CString>{L"First bar", L"Second bar", L"", L"Change..."}));
    EXPECT_TRUE(menu->GetMenuBar()->GetButtonStyle(0) & TBBS_CHECKED);
    EXPECT_FALSE(menu->GetMenuBar()->GetButtonStyle(1) & TBBS_CHECKED);
    RunIdle();
    for (const int index : {0, 1, 3}) {
        EXPECT_FALSE(menu->GetMenuBar()->GetButtonStyle(index) & TBBS_DISABLED) << index;
    }
    ClickItem(menu, L"Second bar");
    EXPECT_TRUE(m_second.IsVisible());
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PaneMenu, ItsCommandGoesToTheFrameOnce) {
    m_frame->EnablePaneMenu(TRUE, menu_ids::open, L"Change...", 0, TRUE);
    ClickItem(RightClick(), L"Change...");
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::open});
}

TEST_F(PaneMenu, WithoutPanesAndWithoutACommandThereIsNone) {
    m_frame->EnablePaneMenu(TRUE, 0, L"", 0, TRUE);
    m_first.SetWindowText(L"");
    m_second.SetWindowText(L"");
    EXPECT_EQ(RightClick(), nullptr);
}

} // namespace
