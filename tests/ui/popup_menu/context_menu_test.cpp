#include "tests/ui/popup_menu/menu_frame.h"

class ContextMenuTest : public PopupMenuTest {
protected:
    ContextMenuTest() : m_menu(MakeMenu()) {}
    ~ContextMenuTest() override {
        if (::IsMenu(m_menu)) {
            ::DestroyMenu(m_menu);
        }
    }

    CContextMenuManager m_manager;
    HMENU m_menu;
};

TEST_F(ContextMenuTest, TrackingAnswersTheChosenCommandAndSendsNone) {
    m_frame->PostMessage(WM_KEYDOWN, VK_DOWN);
    m_frame->PostMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(m_manager.TrackPopupMenu(m_menu, 200, 200, m_frame), menu_ids::open);
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
    EXPECT_TRUE(::IsMenu(m_menu));
}

TEST_F(ContextMenuTest, TrackingAnswersACommandOfASubmenu) {
    for (const UINT key : {VK_DOWN, VK_DOWN, VK_RIGHT, VK_DOWN, VK_RETURN}) {
        m_frame->PostMessage(WM_KEYDOWN, key);
    }
    EXPECT_EQ(m_manager.TrackPopupMenu(m_menu, 200, 200, m_frame), menu_ids::second);
}

TEST_F(ContextMenuTest, ADismissedMenuAnswersZero) {
    m_frame->PostMessage(WM_KEYDOWN, VK_DOWN);
    m_frame->PostMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(m_manager.TrackPopupMenu(m_menu, 200, 200, m_frame), 0u);
    EXPECT_EQ(m_manager.TrackPopupMenu(nullptr, 200, 200, m_frame), 0u);
}

TEST_F(ContextMenuTest, TheEndOfTheProgramEndsTracking) {
    ::PostQuitMessage(7);
    EXPECT_EQ(m_manager.TrackPopupMenu(m_menu, 200, 200, m_frame), 0u);
    MSG quit;
    EXPECT_TRUE(::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(ContextMenuTest, AShownMenuSendsItsCommandToTheFrame) {
    CMFCPopupMenu* menu = m_manager.ShowPopupMenu(m_menu, 200, 200, m_frame);
    ASSERT_NE(menu, nullptr);
    ClickItem(menu, L"&Open");
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::open});
    EXPECT_FALSE(::IsMenu(m_menu)); // taken over
}

TEST_F(ContextMenuTest, AMenuThatIsNotTakenOverStaysTheCallers) {
    CMFCPopupMenu* menu = m_manager.ShowPopupMenu(m_menu, 200, 200, m_frame, FALSE, FALSE);
    ASSERT_NE(menu, nullptr);
    menu->CloseMenu();
    EXPECT_TRUE(::IsMenu(m_menu));
    m_frame->allowsMenus = false;
    EXPECT_EQ(m_manager.ShowPopupMenu(m_menu, 200, 200, m_frame), nullptr);
    EXPECT_TRUE(::IsMenu(m_menu));
}

TEST_F(ContextMenuTest, ARightAlignedMenuEndsAtThePoint) {
    CMFCPopupMenu* menu = m_manager.ShowPopupMenu(m_menu, 400, 200, m_frame, FALSE, TRUE, TRUE);
    ASSERT_NE(menu, nullptr);
    CRect window;
    menu->GetWindowRect(window);
    EXPECT_EQ(window.right, 400);
    EXPECT_EQ(window.top, 200);
}

TEST_F(ContextMenuTest, TheApplicationMakesItsManagerWhenAsked) {
    auto* application = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp());
    ASSERT_NE(application, nullptr);
    CContextMenuManager* manager = application->GetContextMenuManager();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(application->GetContextMenuManager(), manager);
    EXPECT_FALSE(application->InitContextMenuManager());
}

TEST_F(ContextMenuTest, TheFirstManagerIsTheProgramsOne) {
    EXPECT_EQ(afxContextMenuManager, &m_manager);
    EXPECT_FALSE(m_manager.AddMenu(L"Missing", 4711));
    EXPECT_EQ(m_manager.GetMenuByName(L"Missing"), nullptr);
}

// ---- from right to left

class MirroredContextMenuTest : public ContextMenuTest {
protected:
    MirroredContextMenuTest() { m_frame->ModifyStyleEx(0, WS_EX_LAYOUTRTL); }
    static CRect PlaceOf(const CWnd& window) {
        CRect place;
        window.GetWindowRect(&place);
        return place;
    }
};

TEST_F(MirroredContextMenuTest, AMenuOfAMirroredFrameRunsFromTheRightAndEndsAtThePoint) {
    const CMFCPopupMenu* const menu = m_manager.ShowPopupMenu(m_menu, 500, 200, m_frame, FALSE, FALSE);
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->GetExStyle() & WS_EX_LAYOUTRTL);
    EXPECT_EQ(PlaceOf(*menu).right, 500);
    EXPECT_EQ(PlaceOf(*menu).top, 200);
}

TEST_F(MirroredContextMenuTest, SoDoesTheMenuOfAWindowInItThatIsNotMirrored) {
    CWnd map;
    ASSERT_TRUE(map.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(20, 80, 220, 180), m_frame, 1));
    map.ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
    const CMFCPopupMenu* menu = m_manager.ShowPopupMenu(m_menu, 500, 200, &map, FALSE, FALSE);
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->GetExStyle() & WS_EX_LAYOUTRTL);
    menu = m_manager.ShowPopupMenu(m_menu, -1, -1, &map, FALSE, FALSE);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(PlaceOf(*menu).right, PlaceOf(map).right) << "a key's menu begins at the corner where lines begin";
    EXPECT_EQ(PlaceOf(*menu).top, PlaceOf(map).top);
}
