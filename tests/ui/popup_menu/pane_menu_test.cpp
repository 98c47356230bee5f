// The item of a menu that EnablePaneMenu puts the panes in the place of.
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

    static std::vector<CString> TextsOf(CMFCPopupMenu* menu) {
        std::vector<CString> texts;
        for (int index = 0; index < menu->GetMenuItemCount(); ++index) {
            texts.push_back(menu->GetMenuItem(index)->m_strText);
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

} // namespace
