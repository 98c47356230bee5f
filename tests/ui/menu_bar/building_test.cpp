// What a menu bar is built from.
#include "tests/ui/menu_bar/bar_menu_frame.h"

namespace {

class OwnMenuButton : public CMFCToolBarMenuButton {
    DECLARE_SERIAL(OwnMenuButton)
};
IMPLEMENT_SERIAL(OwnMenuButton, CMFCToolBarMenuButton, 1)

/// The items of a button's menu, a bar for a separator.
CString ItemsOf(const CMFCToolBarButton* button) {
    CString items;
    const auto* menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
    for (POSITION position = menuButton->GetCommands().GetHeadPosition(); position;) {
        const auto* item = static_cast<const CMFCToolBarButton*>(menuButton->GetCommands().GetNext(position));
        items += (items.IsEmpty() ? L"" : L" ") + item->m_strText;
    }
    return items;
}

} // namespace

class MenuBarBuildingTest : public MenuBarTest {};

TEST_F(MenuBarBuildingTest, ThePopupsAndItemsOfTheMenuAreItsButtons) {
    EXPECT_EQ(Texts(), L"&File &Edit &Run &View");
    EXPECT_EQ(ItemsOf(Bar().GetMenuItem(1)), L"&Copy &Paste");
    EXPECT_EQ(Bar().GetItemID(2), bar_ids::run);
    EXPECT_EQ(Bar().GetMenuItem(4), nullptr);
    EXPECT_EQ(Bar().GetHMenu(), m_menu);
}

TEST_F(MenuBarBuildingTest, TheMenuStaysTheCallers) {
    Bar().CreateFromMenu(nullptr);
    EXPECT_EQ(Bar().GetCount(), 0);
    EXPECT_TRUE(::IsMenu(m_menu));
    EXPECT_EQ(::GetMenuItemCount(m_menu), 4);
}

TEST_F(MenuBarBuildingTest, AHandleThatIsNoMenuLeavesTheBarEmpty) {
    const HMENU gone = ::CreateMenu();
    ::DestroyMenu(gone);
    Bar().CreateFromMenu(gone);
    EXPECT_EQ(Bar().GetCount(), 0);
}

TEST_F(MenuBarBuildingTest, TheSameMenuIsReadAgainOnlyWhenForced) {
    ::AppendMenuW(m_menu, MF_STRING, bar_ids::zoom, L"Added");
    Bar().CreateFromMenu(m_menu);
    EXPECT_EQ(Bar().GetCount(), 4);
    Bar().CreateFromMenu(m_menu, FALSE, TRUE);
    EXPECT_EQ(Bar().GetCount(), 5);
}

TEST_F(MenuBarBuildingTest, RestoreOriginalstateGoesBackToTheDefaultMenu) {
    EXPECT_EQ(Bar().GetDefaultMenu(), m_menu);
    const HMENU other = ::CreateMenu();
    ::AppendMenuW(other, MF_STRING, bar_ids::zoom, L"Other");
    Bar().CreateFromMenu(other);
    EXPECT_EQ(Texts(), L"Other");
    EXPECT_TRUE(Bar().CanBeRestored());
    EXPECT_TRUE(Bar().RestoreOriginalstate());
    EXPECT_EQ(Texts(), L"&File &Edit &Run &View");
    ::DestroyMenu(other);
}

TEST_F(MenuBarBuildingTest, WithoutADefaultMenuThereIsNothingToRestore) {
    const HMENU gone = ::CreateMenu();
    Bar().CreateFromMenu(gone, TRUE);
    ::DestroyMenu(gone);
    EXPECT_FALSE(Bar().CanBeRestored());
    EXPECT_FALSE(Bar().RestoreOriginalstate());
}

TEST_F(MenuBarBuildingTest, ButtonsAreOfTheClassThatWasSet) {
    Bar().SetMenuButtonRTC(RUNTIME_CLASS(OwnMenuButton));
    Bar().CreateFromMenu(m_menu, FALSE, TRUE);
    EXPECT_TRUE(Bar().GetButton(0)->IsKindOf(RUNTIME_CLASS(OwnMenuButton)));
}

TEST_F(MenuBarBuildingTest, AClassThatIsNoMenuButtonIsRefused) {
    EXPECT_THROW(Bar().SetMenuButtonRTC(RUNTIME_CLASS(CMFCToolBarButton)), CInvalidArgException*);
    EXPECT_EQ(Bar().GetMenuButtonRTC(), RUNTIME_CLASS(CMFCToolBarMenuButton));
}

TEST_F(MenuBarBuildingTest, SeparatorsOfTheMenuAreNoButtons) {
    ::AppendMenuW(m_menu, MF_SEPARATOR, 0, nullptr);
    Bar().CreateFromMenu(m_menu, FALSE, TRUE);
    EXPECT_EQ(Bar().GetCount(), 4);
}

TEST_F(MenuBarBuildingTest, ABarMadeInAFrameTakesThePlaceOfTheFramesMenu) {
    auto* frame = new CFrameWndEx;
    frame->Create(nullptr, L"Own menu", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300));
    const HMENU menu = MakeMenu();
    ::SetMenu(frame->m_hWnd, menu);
    CMFCMenuBar bar;
    ASSERT_TRUE(bar.Create(frame));
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    EXPECT_EQ(bar.GetDefaultMenu(), menu);
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_TRUE(frame->IsMenuBarAvailable());
    EXPECT_EQ(frame->GetMenuBar(), &bar);
    frame->DestroyWindow();
    EXPECT_FALSE(::IsMenu(menu)) << "the frame destroys it at its end";
}

TEST_F(MenuBarBuildingTest, ItCannotBeClosedAndIsNotOfferedForIt) {
    EXPECT_FALSE(Bar().CanBeClosed());
    EXPECT_FALSE(Bar().AllowShowOnPaneMenu());
    EXPECT_FALSE(Bar().AllowChangeTextLabels());
    EXPECT_FALSE(Bar().IsButtonExtraSizeAvailable());
}

TEST_F(MenuBarBuildingTest, ItLiesAboveTheRestInTheFramesWholeWidth) {
    CRect bar, client;
    Bar().GetWindowRect(&bar);
    m_frame->GetClientRect(&client);
    m_frame->ClientToScreen(&client);
    EXPECT_EQ(bar.left, client.left);
    EXPECT_EQ(bar.top, client.top);
    EXPECT_EQ(bar.right, client.right);
}

TEST_F(MenuBarBuildingTest, ANarrowFrameGivesItMoreRows) {
    CRect before, after;
    Bar().GetWindowRect(&before);
    m_frame->SetWindowPos(nullptr, 0, 0, 140, 400, SWP_NOMOVE | SWP_NOZORDER);
    PumpPending();
    Bar().GetWindowRect(&after);
    EXPECT_GT(after.Height(), before.Height());
    CRect client, last;
    Bar().GetClientRect(&client);
    Bar().GetItemRect(3, last);
    EXPECT_LE(last.right, client.right);
    EXPECT_LE(last.bottom, client.bottom);
}

TEST_F(MenuBarBuildingTest, ButtonsHaveAnArrowOnlyWhenItIsForced) {
    CRect plain, forced;
    Bar().GetItemRect(0, plain);
    Bar().SetForceDownArrows(TRUE);
    EXPECT_TRUE(Bar().GetForceDownArrows());
    Bar().GetItemRect(0, forced);
    EXPECT_GT(forced.Width(), plain.Width());
}

TEST_F(MenuBarBuildingTest, SettingsOfAllMenusAreKept) {
    EXPECT_FALSE(CMFCMenuBar::IsRecentlyUsedMenus());
    CMFCMenuBar::SetRecentlyUsedMenus(TRUE);
    EXPECT_TRUE(CMFCMenuBar::IsRecentlyUsedMenus());
    CMFCMenuBar::SetRecentlyUsedMenus(FALSE);
    EXPECT_TRUE(CMFCMenuBar::IsShowAllCommands());
    EXPECT_EQ(static_cast<HFONT>(const_cast<CFont&>(CMFCMenuBar::GetMenuFont()).GetSafeHandle()),
              static_cast<HFONT>(afxGlobalData.fontRegular.GetSafeHandle()));
}
