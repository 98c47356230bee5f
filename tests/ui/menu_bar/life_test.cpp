// Hosts that end things while the menu bar is at work.
#include "tests/support/churn_memory.h"
#include "tests/ui/menu_bar/bar_menu_frame.h"

class MenuBarLifeTest : public MenuBarTest {};

TEST_F(MenuBarLifeTest, TheFrameMayBeDestroyedAsAMenuOpens) {
    m_frame->onShow = [this] {
        m_frame->DestroyWindow();
        ChurnMemory();
    };
    ClickButton(0);
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(MenuBarLifeTest, TheFrameMayBeDestroyedAsThePointerSwitchesMenus) {
    ClickButton(0);
    m_frame->onClose = [this] {
        m_frame->DestroyWindow();
        ChurnMemory();
    };
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(1));
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(MenuBarLifeTest, TheFrameMayBeDestroyedAsAKeySwitchesMenus) {
    PressAltWith(L'f');
    m_frame->onClose = [this] {
        m_frame->DestroyWindow();
        ChurnMemory();
    };
    m_keys.Press(VK_RIGHT);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(MenuBarLifeTest, TheBarMayBeBuiltAnewWhileAMenuIsOpen) {
    ClickButton(0);
    m_keys.Press(VK_DOWN);
    Bar().CreateFromMenu(m_menu, FALSE, TRUE);
    EXPECT_EQ(Active(), nullptr);
    EXPECT_EQ(Bar().GetCount(), 4);
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarLifeTest, TheBarMayBeBuiltAnewAsAMenuOpens) {
    m_frame->onShow = [this] {
        Bar().CreateFromMenu(m_menu, FALSE, TRUE);
        ChurnMemory();
    };
    PressAltWith(L'f');
    EXPECT_EQ(Bar().GetCount(), 4);
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(MenuBarLifeTest, TheBarMayBeHiddenWhileItIsActive) {
    PressAlt();
    Bar().ShowPane(FALSE, FALSE, FALSE);
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(MenuBarLifeTest, BuildingAnewAThousandTimesKeepsNothing) {
    const DWORD before = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
    for (int i = 0; i < 1000; ++i) {
        Bar().CreateFromMenu(m_menu, FALSE, TRUE);
    }
    EXPECT_LE(::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS), before + 5);
    EXPECT_EQ(Bar().GetCount(), 4);
}
