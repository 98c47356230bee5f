// A menu bar that is laid out from the right, and its menus.
#include "tests/ui/menu_bar/bar_menu_frame.h"

namespace {

class MirroredMenuBarTest : public MenuBarTest {
protected:
    MirroredMenuBarTest() {
        m_frame->ModifyStyleEx(0, WS_EX_LAYOUTRTL);
        Bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
        m_frame->RecalcLayout();
        PumpPending();
    }
    static CRect PlaceOf(const CMFCPopupMenu& menu) {
        CRect window;
        menu.GetWindowRect(&window);
        return window;
    }
    CRect ButtonOnScreen(int index) {
        CRect rect;
        Bar().GetItemRect(index, rect);
        Bar().ClientToScreen(&rect);
        rect.NormalizeRect();
        return rect;
    }
};

TEST_F(MirroredMenuBarTest, AMenuRunsFromTheRightAndEndsBelowTheRightEdgeOfItsButton) {
    ASSERT_GT(ButtonOnScreen(0).left, ButtonOnScreen(1).left) << "the first button is the rightmost";
    ClickButton(0);
    ASSERT_NE(Active(), nullptr);
    EXPECT_TRUE(Active()->GetExStyle() & WS_EX_LAYOUTRTL);
    EXPECT_TRUE(Active()->GetMenuBar()->GetExStyle() & WS_EX_LAYOUTRTL);
    EXPECT_NEAR(PlaceOf(*Active()).right, ButtonOnScreen(0).right, 1);
    EXPECT_GE(PlaceOf(*Active()).top, ButtonOnScreen(0).bottom - 1);
}

TEST_F(MirroredMenuBarTest, AnInnerMenuOpensAtTheLeftByTheKeyToTheLeftAndClosesByTheOther) {
    ClickButton(0);
    CMFCPopupMenu* const outer = Active();
    ASSERT_NE(outer, nullptr);
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_LEFT);
    PumpPending();
    ASSERT_NE(Active(), nullptr);
    ASSERT_NE(Active(), outer) << "the menu of the third item";
    EXPECT_TRUE(Active()->GetExStyle() & WS_EX_LAYOUTRTL);
    EXPECT_LE(PlaceOf(*Active()).right, PlaceOf(*outer).left + 8);
    m_keys.Press(VK_RIGHT);
    PumpPending();
    EXPECT_EQ(Active(), outer);
}

TEST_F(MirroredMenuBarTest, TheKeysToTheSidesWalkTheWayThatTheyPoint) {
    PressAlt();
    ASSERT_EQ(HotIndex(), 0);
    m_keys.Press(VK_LEFT);
    EXPECT_EQ(HotIndex(), 1) << "at the left of the first";
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(HotIndex(), 0);
    m_keys.Press(VK_DOWN);
    PumpPending();
    ASSERT_EQ(OpenIndex(), 0);
    m_keys.Press(VK_LEFT);
    PumpPending();
    EXPECT_EQ(OpenIndex(), 1);
}

} // namespace
