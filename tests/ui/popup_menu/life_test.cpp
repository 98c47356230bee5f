#include "tests/support/gui_objects.h"
#include "tests/ui/popup_menu/menu_frame.h"

TEST_F(PopupMenuTest, ANewMenuIsTheActiveOneAndTellsTheFrame) {
    CMFCPopupMenu* menu = Open();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(Active(), menu);
    EXPECT_EQ(m_frame->GetActivePopup(), menu);
    EXPECT_TRUE(menu->IsWindowVisible());
    EXPECT_EQ(menu->GetMenuItemCount(), 6);
    EXPECT_EQ(menu->GetParentPopupMenu(), nullptr);
    EXPECT_EQ(m_frame->shown, 1);
}

TEST_F(PopupMenuTest, AMenuDoesNotTakeTheActivation) {
    m_frame->SetActiveWindow();
    CMFCPopupMenu* menu = Open();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(::GetActiveWindow(), m_window);
    m_pointer.MoveTo(menu->GetMenuBar()->m_hWnd, CPoint(30, 30));
    EXPECT_EQ(menu->GetMenuBar()->SendMessage(WM_MOUSEACTIVATE, 0, 0), MA_NOACTIVATE);
}

TEST_F(PopupMenuTest, AFrameCanForbidMenus) {
    m_frame->allowsMenus = false;
    EXPECT_EQ(Open(), nullptr);
    EXPECT_EQ(Active(), nullptr);
    EXPECT_EQ(m_frame->GetActivePopup(), nullptr);
}

TEST_F(PopupMenuTest, AnItemWithAMenuOpensAChild) {
    CMFCPopupMenu* menu = Open();
    CMFCPopupMenu* child = OpenChild(menu, L"&Recent");
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child->GetParentPopupMenu(), menu);
    EXPECT_EQ(menu->GetChildPopupMenu(), child);
    EXPECT_EQ(child->GetParentButton(), menu->GetMenuItem(2));
    EXPECT_TRUE(menu->GetMenuItem(2)->IsDroppedDown());
    EXPECT_EQ(menu->GetMenuItem(2)->GetPopupMenu(), child);
    EXPECT_EQ(child->GetRootPopupMenu(), menu);
    CMFCPopupMenu* grandchild = OpenChild(child, L"&More");
    ASSERT_NE(grandchild, nullptr);
    EXPECT_EQ(grandchild->GetRootPopupMenu(), menu);
    EXPECT_EQ(grandchild->GetMenuItemCount(), 1);
}

TEST_F(PopupMenuTest, ClosingAMenuClosesWhatItOpened) {
    CMFCPopupMenu* menu = Open();
    CMFCPopupMenu* child = OpenChild(menu, L"&Recent");
    const HWND childWindow = child->m_hWnd;
    OpenChild(child, L"&More");
    menu->CloseMenu();
    EXPECT_EQ(Active(), nullptr);
    EXPECT_FALSE(::IsWindow(childWindow));
    EXPECT_EQ(m_frame->closed, 3);
    EXPECT_EQ(m_frame->GetActivePopup(), nullptr);
}

TEST_F(PopupMenuTest, ClosingAChildLeavesItsParentActive) {
    CMFCPopupMenu* menu = Open();
    CMFCPopupMenu* child = OpenChild(menu, L"&Recent");
    child->SendMessage(WM_CLOSE);
    EXPECT_EQ(Active(), menu);
    EXPECT_EQ(menu->GetChildPopupMenu(), nullptr);
    EXPECT_FALSE(menu->GetMenuItem(2)->IsDroppedDown());
}

TEST_F(PopupMenuTest, AnotherMenuClosesTheChain) {
    CMFCPopupMenu* menu = Open();
    const HWND window = menu->m_hWnd;
    OpenChild(menu, L"&Recent");
    CMFCPopupMenu* other = Open(CPoint(200, 100));
    ASSERT_NE(other, nullptr);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(Active(), other);
    EXPECT_EQ(other->GetParentPopupMenu(), nullptr);
}

TEST_F(PopupMenuTest, AClickOutsideClosesTheChainAndReachesTheWindow) {
    CWnd child;
    child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(300, 200, 500, 300), m_frame, 5);
    OpenChild(Open(), L"&Recent");
    m_pointer.Click(child.m_hWnd, CPoint(100, 80));
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuTest, AClickInsideTheParentMenuClosesNothing) {
    CMFCPopupMenu* menu = Open();
    OpenChild(menu, L"&Recent");
    ClickItem(menu, L"&Close"); // disabled
    EXPECT_NE(Active(), nullptr);
}

TEST_F(PopupMenuTest, AltClosesTheChain) {
    OpenChild(Open(), L"&Recent");
    Keys keys(m_window);
    keys.Down(VK_MENU);
    EXPECT_EQ(Active(), nullptr);
    keys.Up(VK_MENU);
}

TEST_F(PopupMenuTest, AnotherApplicationsActivationClosesTheChain) {
    OpenChild(Open(), L"&Recent");
    m_frame->SendMessage(WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuTest, ADeactivatedFrameClosesTheChain) {
    m_frame->SetActiveWindow();
    OpenChild(Open(), L"&Recent");
    TestWindow other;
    other.SetActiveWindow();
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuTest, AResizedFrameClosesTheChain) {
    OpenChild(Open(), L"&Recent");
    m_frame->SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuTest, AMovedFrameClosesTheChain) {
    OpenChild(Open(), L"&Recent");
    m_frame->SetWindowPos(nullptr, 30, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuTest, ADisabledFrameClosesTheChain) {
    OpenChild(Open(), L"&Recent");
    m_frame->EnableWindow(FALSE);
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuTest, TheEndOfTheFrameClosesTheChain) {
    CMFCPopupMenu* menu = Open();
    const HWND window = menu->m_hWnd;
    const HWND child = OpenChild(menu, L"&Recent")->m_hWnd;
    ::DestroyWindow(m_window);
    EXPECT_EQ(Active(), nullptr);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_FALSE(::IsWindow(child));
}

TEST_F(PopupMenuTest, TheEndOfTheWindowItWasOpenedForClosesTheMenu) {
    CWnd owner;
    owner.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), m_frame, 5);
    auto* menu = new CMFCPopupMenu;
    ASSERT_TRUE(menu->Create(&owner, 150, 150, MakeMenu(), FALSE, TRUE));
    EXPECT_EQ(menu->GetMessageWnd(), &owner);
    owner.DestroyWindow();
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuTest, AButtonThatGoesAwayClosesItsMenu) {
    CMFCPopupMenu* menu = Open();
    OpenChild(menu, L"&Recent");
    menu->GetMenuBar()->RemoveButton(2);
    EXPECT_EQ(Active(), menu);
}

TEST_F(PopupMenuTest, ADerivedBarIsUsedEverywhere) {
    class OtherBar : public CMFCPopupMenuBar {
    public:
        BOOL ImportFromMenu(HMENU menu, BOOL all) override {
            ++imports;
            return CMFCPopupMenuBar::ImportFromMenu(menu, all);
        }
        int imports = 0;
    };
    class OtherMenu : public CMFCPopupMenu {
    public:
        CMFCPopupMenuBar* GetMenuBar() override { return &bar; }
        OtherBar bar;
    };
    auto* menu = new OtherMenu;
    ASSERT_TRUE(menu->Create(m_frame, 200, 200, MakeMenu()));
    EXPECT_EQ(menu->bar.imports, 1);
    EXPECT_EQ(menu->GetMenuItemCount(), 6);
    EXPECT_TRUE(menu->bar.IsWindowVisible());
    Keys(m_window).Press(VK_DOWN);
    EXPECT_TRUE(menu->bar.IsButtonHighlighted(0));
    EXPECT_FALSE(menu->FindSubItemByCommand(menu_ids::open) == nullptr);
}

TEST_F(PopupMenuTest, ItemsCanBeAddedToAMenuWithoutAHandle) {
    class OwnMenu : public CMFCPopupMenu {
    protected:
        BOOL InitMenuBar() override {
            return CMFCPopupMenu::InitMenuBar() &&
                   InsertItem(CMFCToolBarMenuButton(menu_ids::open, nullptr, -1, L"Own")) == 0 &&
                   InsertSeparator() == 1;
        }
    };
    auto* menu = new OwnMenu;
    ASSERT_TRUE(menu->Create(m_frame, 200, 200, nullptr));
    EXPECT_EQ(menu->GetMenuItemCount(), 2);
    ClickItem(menu, L"Own");
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::open});
}

TEST_F(PopupMenuTest, FiveHundredMenusLeaveNoObjectBehind) {
    const auto openAndClose = [this] {
        CMFCPopupMenu* menu = Open();
        ASSERT_NE(menu, nullptr);
        ASSERT_NE(OpenChild(menu, L"&Recent"), nullptr);
        menu->CloseMenu();
        PumpPending();
    };
    for (int i = 0; i < 5; ++i) {
        openAndClose();
    }
    EXPECT_TRUE(LeavesNothingBehind([&] {
        for (int i = 0; i < 500; ++i) {
            openAndClose();
        }
    }));
}
