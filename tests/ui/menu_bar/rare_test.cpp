// Menus that hide what is seldom used.
#include "tests/ui/menu_bar/bar_menu_frame.h"

namespace {

class RareItemsTest : public MenuBarTest {
protected:
    RareItemsTest() {
        CMFCToolBar::SaveParameters(kBefore);
        CMFCMenuBar::SetRecentlyUsedMenus(TRUE);
        CMFCMenuBar::SetShowAllCommands(FALSE);
        SetBasic({bar_ids::open});
        CMFCToolBar::SetCommandUsageOptions(0, 20);
        for (int i = 0; i < 10; ++i) {
            CMFCToolBar::AddCommandUsage(kOften);
        }
    }
    ~RareItemsTest() override {
        CMFCPopupMenu::CloseAll();
        CMFCMenuBar::SetRecentlyUsedMenus(FALSE);
        CMFCMenuBar::SetShowAllCommands(TRUE);
        SetBasic({});
        SetForbidden({});
        CMFCToolBar::LoadParameters(kBefore); // what was counted before
        CMFCToolBar::SetCommandUsageOptions(0);
    }

    static void SetBasic(const std::vector<UINT>& commands) {
        CList<UINT, UINT> list;
        for (const UINT command : commands) {
            list.AddTail(command);
        }
        CMFCToolBar::SetBasicCommands(list);
    }
    static void SetForbidden(const std::vector<UINT>& commands) {
        CList<UINT, UINT> list;
        for (const UINT command : commands) {
            list.AddTail(command);
        }
        CMFCToolBar::SetNonPermittedCommands(list);
    }
    /// The texts that the innermost open menu shows, with a bar between them; "v": the row that shows the others.
    static CString Shown() {
        CString texts;
        const CMFCPopupMenuBar* const bar = Active()->GetMenuBar();
        for (int index = 0; index < bar->GetCount(); ++index) {
            const CMFCToolBarButton* const button = bar->GetButton(index);
            if (button->IsHidden()) {
                continue;
            }
            const bool isLine = (button->m_nStyle & TBBS_SEPARATOR) != 0;
            const int tabulator = button->m_strText.Find(L'\t');
            const CString label = tabulator >= 0 ? button->m_strText.Left(tabulator) : button->m_strText;
            const CString text = isLine ? CString(L"-") : label;
            texts += (texts.IsEmpty() ? L"" : L"|") + (text == L"Show All Commands" ? CString(L"v") : text);
        }
        return texts;
    }
    static constexpr UINT kOften = 30001; ///< stands in no menu
    static constexpr LPCTSTR kBefore = L"BeforeRareItems";
};

TEST_F(RareItemsTest, AMenuOfTheBarShowsBasicCommandsAndARowForTheRest) {
    ClickButton(0);
    ASSERT_NE(Active(), nullptr);
    EXPECT_TRUE(Active()->HideRarelyUsedCommands());
    EXPECT_FALSE(Active()->AreAllCommandsShown());
    EXPECT_EQ(Shown(), L"&Open|v");
}

TEST_F(RareItemsTest, NothingIsHiddenUnlessTheProgramHasAskedForIt) {
    CMFCMenuBar::SetRecentlyUsedMenus(FALSE);
    ClickButton(0);
    EXPECT_FALSE(Active()->HideRarelyUsedCommands());
    EXPECT_TRUE(Active()->AreAllCommandsShown());
    EXPECT_EQ(Active()->GetMenuItemCount(), 5);
    CMFCPopupMenu::CloseAll();
    CMFCMenuBar::SetRecentlyUsedMenus(TRUE);
    CMFCMenuBar::SetShowAllCommands(TRUE);
    ClickButton(0);
    EXPECT_TRUE(Active()->AreAllCommandsShown());
}

TEST_F(RareItemsTest, NothingIsHiddenBeforeThereWereEnoughChoices) {
    CMFCToolBar::SetCommandUsageOptions(1000000, 20);
    ClickButton(0);
    EXPECT_TRUE(Active()->AreAllCommandsShown());
}

TEST_F(RareItemsTest, APercentageOfAHundredOrMoreIsRefused) {
    EXPECT_FALSE(CMFCToolBar::SetCommandUsageOptions(0, 100));
    EXPECT_TRUE(CMFCToolBar::IsCommandRarelyUsed(bar_ids::create)) << "the options are as they were";
    EXPECT_TRUE(CMFCToolBar::SetCommandUsageOptions(0, 99));
}

TEST_F(RareItemsTest, WhatIsChosenOftenIsShown) {
    for (int i = 0; i < 5; ++i) {
        CMFCToolBar::AddCommandUsage(bar_ids::create);
    }
    EXPECT_FALSE(CMFCToolBar::IsCommandRarelyUsed(bar_ids::create));
    ClickButton(0);
    EXPECT_EQ(Shown(), L"&New|&Open|v");
}

TEST_F(RareItemsTest, AChoiceInAMenuCounts) {
    CMFCToolBar::SetCommandUsageOptions(0, 1);
    ASSERT_TRUE(CMFCToolBar::IsCommandRarelyUsed(bar_ids::zoom));
    ClickButton(3);
    Active()->ShowAllCommands();
    m_keys.Type(L"z");
    PumpPending();
    ASSERT_EQ(m_frame->commands, std::vector<UINT>{bar_ids::zoom});
    EXPECT_FALSE(CMFCToolBar::IsCommandRarelyUsed(bar_ids::zoom));
}

TEST_F(RareItemsTest, AClickOnTheLastRowShowsAllAndLeavesTheMenuOpen) {
    ClickButton(0);
    CMFCPopupMenu* const menu = Active();
    CRect before;
    menu->GetWindowRect(&before);
    CRect row;
    menu->GetMenuBar()->GetItemRect(menu->GetMenuItemCount() - 1, row);
    m_pointer.Click(menu->GetMenuBar()->m_hWnd, row.CenterPoint());
    ASSERT_EQ(Active(), menu);
    EXPECT_TRUE(menu->AreAllCommandsShown());
    EXPECT_EQ(menu->GetMenuItemCount(), 5);
    EXPECT_EQ(Shown().Find(L"v"), -1);
    CRect after;
    menu->GetWindowRect(&after);
    EXPECT_GT(after.Height(), before.Height());
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(RareItemsTest, TheKeyboardReachesTheLastRowAndEnterShowsAll) {
    PressAltWith(L'f');
    ASSERT_NE(Active(), nullptr);
    m_keys.Press(VK_END);
    m_keys.Press(VK_RETURN);
    ASSERT_NE(Active(), nullptr);
    EXPECT_TRUE(Active()->AreAllCommandsShown());
    EXPECT_EQ(HotItem(), L"&New");
}

TEST_F(RareItemsTest, MenusOfAnItemHideNothingOnceAllWasAskedFor) {
    ClickButton(0);
    Active()->ShowAllCommands();
    CMFCToolBarMenuButton* recent = nullptr;
    for (int index = 0; index < Active()->GetMenuItemCount(); ++index) {
        CMFCToolBarMenuButton* const item = Active()->GetMenuItem(index);
        recent = item != nullptr && !item->GetCommands().IsEmpty() ? item : recent;
    }
    ASSERT_NE(recent, nullptr);
    ASSERT_TRUE(recent->OpenPopupMenu());
    EXPECT_FALSE(Active()->HideRarelyUsedCommands());
    EXPECT_TRUE(Active()->AreAllCommandsShown());
}

TEST_F(RareItemsTest, AMenuOfRareCommandsAloneShowsAll) {
    SetBasic({});
    ClickButton(1);
    EXPECT_EQ(Shown(), L"v");
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_RETURN);
    EXPECT_EQ(Active()->GetMenuItemCount(), 2);
}

TEST_F(RareItemsTest, CommandsThatAreNotPermittedStandInNoMenuAndCannotBeGiven) {
    CMFCMenuBar::SetRecentlyUsedMenus(FALSE);
    SetForbidden({bar_ids::open});
    EXPECT_FALSE(CMFCToolBar::IsCommandPermitted(bar_ids::open));
    ClickButton(0);
    EXPECT_EQ(Active()->GetMenuItemCount(), 4);
    EXPECT_EQ(Active()->FindSubItemByCommand(bar_ids::open), nullptr);
    CMFCPopupMenu::CloseAll();
    SetForbidden({bar_ids::run});
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_TRUE(Bar().GetButtonStyle(2) & TBBS_DISABLED);
    SetForbidden({});
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_FALSE(Bar().GetButtonStyle(2) & TBBS_DISABLED);
}

TEST_F(RareItemsTest, BasicCommandsAreASet) {
    SetBasic({1, 2});
    CMFCToolBar::AddBasicCommand(2);
    CMFCToolBar::AddBasicCommand(3);
    EXPECT_EQ(CMFCToolBar::GetBasicCommands().GetCount(), 3);
    EXPECT_TRUE(CMFCToolBar::IsBasicCommand(3));
    EXPECT_FALSE(CMFCToolBar::IsBasicCommand(4));
}

TEST_F(RareItemsTest, SettingsKeepWhatWasCounted) {
    ASSERT_TRUE(CMFCToolBar::SaveParameters(L"Rare"));
    for (int i = 0; i < 50; ++i) {
        CMFCToolBar::AddCommandUsage(bar_ids::copy);
    }
    ASSERT_FALSE(CMFCToolBar::IsCommandRarelyUsed(bar_ids::copy));
    CMFCMenuBar::SetRecentlyUsedMenus(FALSE);
    ASSERT_TRUE(CMFCToolBar::LoadParameters(L"Rare"));
    EXPECT_TRUE(CMFCToolBar::IsCommandRarelyUsed(bar_ids::copy));
    EXPECT_TRUE(CMFCMenuBar::IsRecentlyUsedMenus());
    EXPECT_FALSE(CMFCToolBar::LoadParameters(L"NeverSaved"));
}

} // namespace
