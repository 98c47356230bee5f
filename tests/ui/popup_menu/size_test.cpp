#include "afxglobals.h"
#include "tests/ui/popup_menu/menu_frame.h"

using PopupMenuSizeTest = PopupMenuTest;

TEST_F(PopupMenuSizeTest, TheBarLiesInsideTheBorderAndTheRowsFillIt) {
    CMFCPopupMenu* menu = Open();
    CRect window, bar;
    menu->GetWindowRect(window);
    menu->GetMenuBar()->GetWindowRect(bar);
    const int border = menu->GetBorderSize();
    CRect inside = window;
    inside.DeflateRect(border, border);
    EXPECT_EQ(bar, inside);
    int bottom = 0;
    for (int i = 0; i < menu->GetMenuItemCount(); ++i) {
        CRect row;
        menu->GetMenuBar()->GetItemRect(i, row);
        EXPECT_EQ(row.top, bottom);
        EXPECT_EQ(row.Width(), bar.Width());
        bottom = row.bottom;
    }
    EXPECT_EQ(bottom, bar.Height());
}

TEST_F(PopupMenuSizeTest, ALongerTextMakesAWiderMenu) {
    CMFCPopupMenu* menu = Open();
    CRect before, after;
    menu->GetWindowRect(before);
    menu->InsertItem(CMFCToolBarMenuButton(menu_ids::open, nullptr, -1, L"A text that is longer than all the others"));
    menu->RecalcLayout();
    menu->GetWindowRect(after);
    EXPECT_GT(after.Width(), before.Width());
    EXPECT_EQ(after.Height(), before.Height() + menu->GetMenuBar()->GetRowHeight());
}

TEST_F(PopupMenuSizeTest, LimitsOfWidthAndHeightHold) {
    auto* menu = new CMFCPopupMenu;
    menu->SetMaxWidth(70);
    menu->SetMaxHeight(100);
    ASSERT_TRUE(menu->Create(m_frame, 200, 200, MakeMenu()));
    CRect window;
    menu->GetWindowRect(window);
    EXPECT_EQ(window.Size(), CSize(70, 100));
    EXPECT_TRUE(menu->IsScrollable());
}

TEST_F(PopupMenuSizeTest, AScrolledMenuReachesItsLastItemByKeyAndWheel) {
    auto* menu = new CMFCPopupMenu;
    menu->SetMaxHeight(100);
    ASSERT_TRUE(menu->Create(m_frame, 200, 200, MakeMenu()));
    CMFCPopupMenuBar& bar = *menu->GetMenuBar();
    CRect client, row;
    bar.GetClientRect(client);
    Keys(m_window).Press(VK_END);
    bar.GetItemRect(4, row);
    EXPECT_LE(row.bottom, client.bottom);
    EXPECT_GT(bar.GetOffset(), 0);
    MSG up = {m_window, WM_MOUSEWHEEL, MAKEWPARAM(0, 10 * WHEEL_DELTA), 0, 0, {0, 0}};
    AfxPreTranslateMessage(&up);
    EXPECT_EQ(bar.GetOffset(), 0);
    MSG down = {m_window, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-10 * WHEEL_DELTA)), 0, 0, {0, 0}};
    AfxPreTranslateMessage(&down);
    EXPECT_EQ(bar.GetOffset(), bar.GetContentHeight() - client.Height());
}

TEST_F(PopupMenuSizeTest, SmallTurnsOfTheWheelAddUpToWhatOneLargeTurnScrolls) {
    auto* menu = new CMFCPopupMenu;
    menu->SetMaxHeight(80);
    ASSERT_TRUE(menu->Create(m_frame, 200, 200, MakeMenu()));
    CMFCPopupMenuBar& bar = *menu->GetMenuBar();
    const auto turn = [this](int delta) {
        MSG wheel = {m_window, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0, 0, {0, 0}};
        AfxPreTranslateMessage(&wheel);
    };
    turn(-40);
    const int offset = bar.GetOffset();
    EXPECT_GT(offset, 0);
    turn(40);
    ASSERT_EQ(bar.GetOffset(), 0);
    for (int part = 0; part < 40; ++part) {
        turn(-1);
    }
    EXPECT_EQ(bar.GetOffset(), offset);
}

/// A menu that has no room for all of its items, with strips that scroll it.
class PopupMenuStripTest : public PopupMenuTest {
protected:
    PopupMenuStripTest() {
        m_menu->SetMaxHeight(100);
        EXPECT_TRUE(m_menu->Create(m_frame, 200, 200, MakeMenu()));
    }
    CMFCPopupMenuBar& Bar() { return *m_menu->GetMenuBar(); }
    void PressStripBelow() {
        CRect client;
        m_menu->GetClientRect(client);
        m_pointer.Click(m_menu->m_hWnd, CPoint(client.Width() / 2, client.bottom - m_menu->GetBorderSize() - 3));
    }
    void PressStripAbove() {
        CRect client;
        m_menu->GetClientRect(client);
        m_pointer.Click(m_menu->m_hWnd, CPoint(client.Width() / 2, m_menu->GetBorderSize() + 3));
    }
    int TopOf(int index) {
        CRect row;
        Bar().GetItemRect(index, row);
        return row.top;
    }

    CMFCPopupMenu* m_menu = new CMFCPopupMenu;
};

TEST_F(PopupMenuStripTest, AClickScrollsByAnItemThatBeginsAtTheUpperEdgeThen) {
    PressStripBelow();
    EXPECT_EQ(TopOf(1), 0) << "the separator";
    PressStripBelow();
    EXPECT_EQ(TopOf(2), 0);
    PressStripAbove();
    EXPECT_EQ(TopOf(1), 0);
    PressStripAbove();
    PressStripAbove();
    EXPECT_EQ(Bar().GetOffset(), 0);
}

TEST_F(PopupMenuStripTest, WhileThePointerRestsItScrollsItemByItemUntilThePointerLeaves) {
    constexpr UINT_PTR timer = 0xF101;
    CRect client;
    m_menu->GetClientRect(client);
    CPoint strip(client.Width() / 2, client.bottom - m_menu->GetBorderSize() - 3);
    m_menu->ClientToScreen(&strip);
    ASSERT_TRUE(::SetCursorPos(strip.x, strip.y));
    m_pointer.MoveTo(strip);
    EXPECT_EQ(Bar().GetOffset(), 0) << "not at once";
    for (const int top : {1, 2}) {
        m_menu->SendMessage(WM_TIMER, timer);
        EXPECT_EQ(TopOf(top), 0);
    }
    ::SetCursorPos(0, 0);
    m_menu->SendMessage(WM_TIMER, timer);
    EXPECT_EQ(TopOf(2), 0);
}

TEST_F(PopupMenuStripTest, ThePopUpOfAnItemClosesWhenTheItemMovesAway) {
    CMFCPopupMenu* child = OpenChild(m_menu, L"&Recent");
    ASSERT_NE(child, nullptr);
    ASSERT_EQ(Active(), child);
    PressStripBelow();
    EXPECT_EQ(Active(), m_menu);
    EXPECT_GT(Bar().GetOffset(), 0);
}

TEST_F(PopupMenuStripTest, AtTheEndNothingMovesAndNothingCloses) {
    ASSERT_EQ(Bar().GetOffset(), 0);
    CMFCPopupMenu* child = OpenChild(m_menu, L"&Recent");
    PressStripAbove();
    EXPECT_EQ(Active(), child);
}

TEST_F(PopupMenuStripTest, AFrameThatDestroysTheMenuWhenAPopUpClosesIsSurvived) {
    OpenChild(m_menu, L"&Recent");
    const HWND window = m_menu->m_hWnd;
    m_frame->onClose = [window] { ::DestroyWindow(window); };
    PressStripBelow();
    m_frame->onClose = nullptr;
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(PopupMenuSizeTest, AScrollBarReplacesTheArrows) {
    auto* menu = new CMFCPopupMenu;
    menu->SetMaxHeight(80);
    menu->EnableScrollBar();
    ASSERT_TRUE(menu->Create(m_frame, 200, 200, MakeMenu()));
    const HWND scrollBar = ::FindWindowExW(menu->m_hWnd, nullptr, L"ScrollBar", nullptr);
    ASSERT_NE(scrollBar, nullptr);
    menu->SendMessage(WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(scrollBar));
    EXPECT_EQ(menu->GetMenuBar()->GetOffset(), menu->GetMenuBar()->GetRowHeight());
    menu->SendMessage(WM_VSCROLL, SB_TOP, reinterpret_cast<LPARAM>(scrollBar));
    EXPECT_EQ(menu->GetMenuBar()->GetOffset(), 0);
}

TEST_F(PopupMenuSizeTest, TheGripAtTheBottomResizesWithinItsLimits) {
    auto* menu = new CMFCPopupMenu;
    menu->SetMaxHeight(120);
    menu->EnableVertResize(60);
    ASSERT_TRUE(menu->Create(m_frame, 200, 100, MakeMenu()));
    EXPECT_TRUE(menu->IsResizeble());
    CRect before;
    menu->GetWindowRect(before);
    const CPoint grip(before.Width() / 2, before.Height() - menu->GetBorderSize() - 2);
    m_pointer.Drag(menu->m_hWnd, grip, CPoint(grip.x + 30, grip.y + 40));
    CRect after;
    menu->GetWindowRect(after);
    EXPECT_EQ(after, CRect(before.left, before.top, before.right, before.bottom + 40));
    EXPECT_TRUE(menu->HasBeenResized());
    m_pointer.Drag(menu->m_hWnd, CPoint(grip.x, grip.y + 40), CPoint(grip.x, grip.y - 400));
    menu->GetWindowRect(after);
    EXPECT_EQ(after.Height(), 60);
    EXPECT_NE(Active(), nullptr);
}

TEST_F(PopupMenuSizeTest, TheShadowFollowsTheMenusPlaceAndSize) {
    CMFCPopupMenu* menu = Open();
    const auto isBesideShadow = [menu] {
        CRect window;
        menu->GetWindowRect(&window);
        return menu->CheckArea(CPoint(window.right, window.bottom - 3)) == CMFCPopupMenu::SHADOW_RIGHT &&
               menu->CheckArea(CPoint(window.right - 3, window.bottom)) == CMFCPopupMenu::SHADOW_BOTTOM;
    };
    ASSERT_TRUE(isBesideShadow());
    menu->MoveTo(CPoint(230, 140));
    EXPECT_TRUE(isBesideShadow());
    menu->GetMenuItem(0)->m_strText = L"An item with a name that is a great deal longer than it was before";
    menu->RecalcLayout();
    EXPECT_TRUE(isBesideShadow());
    menu->SetWindowPos(nullptr, 0, 0, 330, 140, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(isBesideShadow());
    menu->SetWindowPos(nullptr, 260, 90, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(isBesideShadow());
    menu->SetWindowPos(nullptr, 240, 120, 300, 160, SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(isBesideShadow());
}

TEST_F(PopupMenuSizeTest, AMenuGrowsWithTheScale) {
    CMFCPopupMenu* menu = Open();
    const int row = menu->GetMenuBar()->GetRowHeight();
    const CSize image = menu->GetMenuBar()->GetCurrentMenuImageSize();
    menu->CloseMenu();
    afxGlobalData.SetRibbonImageScale(1.5);
    menu = Open();
    EXPECT_GT(menu->GetMenuBar()->GetRowHeight(), row * 5 / 4);
    EXPECT_EQ(menu->GetMenuBar()->GetCurrentMenuImageSize().cx, image.cx * 3 / 2);
    afxGlobalData.SetRibbonImageScale(0);
}

TEST_F(PopupMenuSizeTest, AMenuAtTheScreensEdgeStaysInTheWorkArea) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfoW(::MonitorFromWindow(m_window, MONITOR_DEFAULTTONEAREST), &info);
    const CRect work = info.rcWork;
    const CPoint corners[] = {CPoint(work.right - 1, work.bottom - 1), CPoint(work.left, work.bottom - 1),
                              CPoint(work.right - 1, work.top), CPoint(work.left, work.top)};
    for (const CPoint corner : corners) {
        auto* menu = new CMFCPopupMenu;
        ASSERT_TRUE(menu->Create(m_frame, corner.x, corner.y, MakeMenu()));
        CRect window, common;
        menu->GetWindowRect(window);
        common.IntersectRect(window, work);
        EXPECT_EQ(common, window);
        EXPECT_EQ(menu->GetDropDirection(),
                  corner.y == work.top ? CMFCPopupMenu::DROP_DIRECTION_BOTTOM : CMFCPopupMenu::DROP_DIRECTION_TOP);
    }
}
