// The mouse over a menu bar.
#include "tests/ui/menu_bar/bar_menu_frame.h"

class MenuBarMouseTest : public MenuBarTest {
protected:
    void HoverOver(int index) { m_pointer.MoveTo(Bar().m_hWnd, CenterOf(index)); }
    static int ItemIndex(CMFCPopupMenu* menu, LPCTSTR text) {
        for (int i = 0; i < menu->GetMenuItemCount(); ++i) {
            if (menu->GetMenuBar()->GetButtonText(i) == text) {
                return i;
            }
        }
        return -1;
    }
};

TEST_F(MenuBarMouseTest, AClickOpensTheMenuBelowItsButtonAndAnotherClosesIt) {
    ClickButton(0);
    ASSERT_NE(Active(), nullptr);
    EXPECT_EQ(OpenIndex(), 0);
    EXPECT_EQ(Active()->GetMenuItemCount(), 5);
    CRect button, menu;
    Bar().GetItemRect(0, button);
    Bar().ClientToScreen(&button);
    Active()->GetWindowRect(&menu);
    EXPECT_EQ(menu.left, button.left);
    EXPECT_GE(menu.top, button.bottom - 1);
    ClickButton(0);
    EXPECT_EQ(Active(), nullptr);
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarMouseTest, WhileAMenuIsOpenThePointerOpensThatOfTheButtonBelowIt) {
    ClickButton(0);
    HoverOver(1);
    EXPECT_EQ(OpenIndex(), 1);
    EXPECT_EQ(HotItem(), L"") << "the mouse makes no item hot";
    HoverOver(3);
    EXPECT_EQ(OpenIndex(), 3);
    HoverOver(0);
    EXPECT_EQ(OpenIndex(), 0);
}

TEST_F(MenuBarMouseTest, WhileNoneIsOpenThePointerOpensNothing) {
    HoverOver(1);
    EXPECT_EQ(HotIndex(), 1);
    EXPECT_EQ(Active(), nullptr);
    m_pointer.SendLeave();
    EXPECT_EQ(HotIndex(), -1);
}

TEST_F(MenuBarMouseTest, AClickClosesTheMenuThatThePointerHasOpened) {
    ClickButton(0);
    HoverOver(3);
    m_pointer.Press();
    m_pointer.Release();
    EXPECT_EQ(OpenIndex(), -1);
    ClickButton(3);
    EXPECT_EQ(OpenIndex(), 3);
}

TEST_F(MenuBarMouseTest, ACommandIsSentOnceAndTheBarIsAtRest) {
    ClickButton(0);
    CMFCPopupMenu* menu = Active();
    CRect item;
    menu->GetMenuBar()->GetItemRect(ItemIndex(menu, L"&New"), item);
    m_pointer.Click(menu->GetMenuBar()->m_hWnd, item.CenterPoint());
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{bar_ids::create});
    EXPECT_EQ(Active(), nullptr);
    EXPECT_EQ(HotIndex(), -1);
}

TEST_F(MenuBarMouseTest, UpdateHandlersSetTheStatesAsTheMenuOpens) {
    ClickButton(0);
    CMFCPopupMenu* menu = Active();
    const CMFCToolBarButton* closed = menu->GetMenuItem(ItemIndex(menu, L"&Close"));
    const CMFCToolBarButton* checked = menu->GetMenuItem(ItemIndex(menu, L"C&hecked"));
    EXPECT_TRUE(closed->m_nStyle & TBBS_DISABLED);
    EXPECT_TRUE(checked->m_nStyle & TBBS_CHECKED);
}

TEST_F(MenuBarMouseTest, AnItemOfTheBarSendsItsCommandOnRelease) {
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(2));
    m_pointer.Press();
    EXPECT_TRUE(m_frame->commands.empty());
    m_pointer.Release();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{bar_ids::run});
}

TEST_F(MenuBarMouseTest, ArrowsGoOnFromAMenuOfTheMouse) {
    ClickButton(0);
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(OpenIndex(), 1);
    EXPECT_EQ(HotItem(), L"&Copy");
}

TEST_F(MenuBarMouseTest, WhatTheHostPutsIntoTheMenuAsItOpensIsShown) {
    // As a list of recent files does, in the handler of its first command.
    m_frame->onUpdate = [](CCmdUI& state) { state.m_pMenu->AppendMenu(MF_STRING, bar_ids::zoom, L"Recent file"); };
    ClickButton(1);
    ASSERT_NE(Active(), nullptr);
    EXPECT_EQ(Active()->GetMenuItemCount(), 3);
    EXPECT_GE(ItemIndex(Active(), L"Recent file"), 0);
}
