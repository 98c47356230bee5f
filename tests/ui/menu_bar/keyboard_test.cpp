// Keys over a menu bar, as the frame hands them on.
#include "tests/ui/menu_bar/bar_menu_frame.h"

class MenuBarKeyTest : public MenuBarTest {
protected:
    ~MenuBarKeyTest() override {
        if (m_table) {
            m_frame->ReplaceAccelTable(nullptr);
        }
    }
    void SetAccelerator(BYTE flags, WORD key, WORD command) {
        ACCEL entry = {flags, key, command};
        m_table = ::CreateAcceleratorTableW(&entry, 1);
        m_frame->ReplaceAccelTable(m_table);
    }
    bool IsTakenByFrame(UINT message, UINT key) {
        MSG queued = {m_window, message, key, 1, 0, {}};
        return m_frame->PreTranslateMessage(&queued) != FALSE;
    }
    HACCEL m_table = nullptr;
};

TEST_F(MenuBarKeyTest, AltAloneMakesTheFirstButtonHotAndAltAgainEndsIt) {
    PressAlt();
    EXPECT_TRUE(Bar().IsKeyboardActive());
    EXPECT_EQ(HotIndex(), 0);
    EXPECT_EQ(Active(), nullptr);
    PressAlt();
    EXPECT_FALSE(Bar().IsKeyboardActive());
    EXPECT_EQ(HotIndex(), -1);
}

TEST_F(MenuBarKeyTest, F10DoesTheSame) {
    m_keys.Press(VK_F10);
    EXPECT_EQ(HotIndex(), 0);
    m_keys.Press(VK_F10);
    EXPECT_FALSE(Bar().IsKeyboardActive());
    m_keys.Press(VK_F10);
    EXPECT_TRUE(Bar().IsKeyboardActive());
}

// Whatever the bar leaves alone goes to the system, which may wait for the mouse in a menu of its own: these ask the
// frame alone.
TEST_F(MenuBarKeyTest, ShiftWithF10IsNotTheBars) {
    m_keys.Hold(VK_SHIFT);
    EXPECT_FALSE(IsTakenByFrame(WM_SYSKEYDOWN, VK_F10));
    m_keys.Let(VK_SHIFT);
    EXPECT_TRUE(IsTakenByFrame(WM_SYSKEYDOWN, VK_F10));
}

TEST_F(MenuBarKeyTest, AHiddenBarTakesNoKeys) {
    Bar().ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(IsTakenByFrame(WM_SYSKEYDOWN, VK_MENU));
    EXPECT_FALSE(IsTakenByFrame(WM_SYSKEYUP, VK_MENU));
    EXPECT_FALSE(IsTakenByFrame(WM_SYSCHAR, L'f'));
    EXPECT_FALSE(IsTakenByFrame(WM_SYSKEYDOWN, VK_F10));
}

TEST_F(MenuBarKeyTest, TheSystemMenusKeyIsNotTheBars) {
    EXPECT_FALSE(IsTakenByFrame(WM_SYSCHAR, L' '));
    PressAlt();
    EXPECT_FALSE(IsTakenByFrame(WM_SYSKEYDOWN, VK_SPACE));
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarKeyTest, AltWithAnotherKeyIsNotAltAlone) {
    m_keys.Down(VK_MENU);
    m_keys.Hold(VK_MENU);
    m_keys.Press(VK_F5);
    m_keys.Let(VK_MENU);
    m_keys.Up(VK_MENU);
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarKeyTest, AltWithAClickIsNotAltAlone) {
    m_keys.Down(VK_MENU);
    m_pointer.Click(m_window, CPoint(200, 200));
    m_keys.Up(VK_MENU);
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarKeyTest, ArrowsWalkAroundAndEscLeaves) {
    PressAlt();
    for (const int expected : {1, 2, 3, 0}) {
        m_keys.Press(VK_RIGHT);
        EXPECT_EQ(HotIndex(), expected);
    }
    m_keys.Press(VK_LEFT);
    EXPECT_EQ(HotIndex(), 3);
    m_keys.Press(VK_HOME);
    EXPECT_EQ(HotIndex(), 0);
    m_keys.Press(VK_END);
    EXPECT_EQ(HotIndex(), 3);
    m_keys.Press(VK_ESCAPE);
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarKeyTest, DownAndEnterOpenTheMenuWithItsFirstItemHot) {
    for (const UINT key : {VK_DOWN, VK_UP, VK_RETURN}) {
        PressAlt();
        m_keys.Press(VK_RIGHT);
        m_keys.Press(key);
        EXPECT_EQ(OpenIndex(), 1);
        EXPECT_EQ(HotItem(), L"&Copy");
        CMFCPopupMenu::CloseAll();
    }
}

TEST_F(MenuBarKeyTest, AltWithALetterOpensTheMenuWithThatMnemonic) {
    PressAltWith(L'e');
    EXPECT_EQ(OpenIndex(), 1);
    EXPECT_EQ(HotItem(), L"&Copy");
    m_keys.Type(L"p");
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{bar_ids::paste});
    EXPECT_FALSE(Bar().IsKeyboardActive());
    EXPECT_EQ(HotIndex(), -1);
}

TEST_F(MenuBarKeyTest, AnAcceleratorComesBeforeAMnemonic) {
    SetAccelerator(FVIRTKEY | FALT, 'E', bar_ids::zoom);
    m_keys.Down(VK_MENU);
    m_keys.Hold(VK_MENU);
    m_keys.Down('E');
    m_keys.Let(VK_MENU);
    m_keys.Up(VK_MENU);
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{bar_ids::zoom});
    EXPECT_EQ(OpenIndex(), -1);
}

TEST_F(MenuBarKeyTest, ALetterInAnActiveBarOpensItsMenu) {
    PressAlt();
    m_keys.Type(L"v");
    EXPECT_EQ(OpenIndex(), 3);
    EXPECT_EQ(HotItem(), L"&Zoom");
}

TEST_F(MenuBarKeyTest, ALetterWithoutAMenuLeavesTheBarActive) {
    PressAlt();
    m_keys.Type(L"q");
    EXPECT_TRUE(Bar().IsKeyboardActive());
    EXPECT_EQ(HotIndex(), 0);
}

TEST_F(MenuBarKeyTest, AmongSeveralWithOneMnemonicTheNextBecomesHot) {
    ::AppendMenuW(m_menu, MF_STRING, bar_ids::zoom, L"&Find");
    Bar().CreateFromMenu(m_menu, FALSE, TRUE);
    PressAlt();
    m_keys.Type(L"f");
    EXPECT_EQ(HotIndex(), 4);
    EXPECT_EQ(OpenIndex(), -1);
    m_keys.Type(L"f");
    EXPECT_EQ(HotIndex(), 0);
}

TEST_F(MenuBarKeyTest, RightInAMenuGoesToTheNextOfTheBarAndLeftBack) {
    PressAltWith(L'f');
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(OpenIndex(), 1);
    EXPECT_EQ(HotItem(), L"&Copy");
    m_keys.Press(VK_LEFT);
    EXPECT_EQ(OpenIndex(), 0);
    EXPECT_EQ(HotItem(), L"&New");
    m_keys.Press(VK_LEFT);
    EXPECT_EQ(OpenIndex(), 3);
}

TEST_F(MenuBarKeyTest, AnItemOfTheBarOnTheWayIsHotAndTheWayGoesOn) {
    PressAltWith(L'e');
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(OpenIndex(), -1);
    EXPECT_EQ(HotIndex(), 2);
    EXPECT_TRUE(Bar().IsKeyboardActive());
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(HotIndex(), 3);
}

TEST_F(MenuBarKeyTest, RightOpensASubmenuFirst) {
    PressAltWith(L'f');
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_DOWN);
    EXPECT_EQ(HotItem(), L"&Recent");
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(HotItem(), L"&First");
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(OpenIndex(), 1) << "from the innermost menu on to the next of the bar";
}

TEST_F(MenuBarKeyTest, EscInTheFirstMenuComesBackToTheBarAndEscAgainLeavesIt) {
    PressAltWith(L'e');
    m_keys.Press(VK_ESCAPE);
    EXPECT_EQ(Active(), nullptr);
    EXPECT_TRUE(Bar().IsKeyboardActive());
    EXPECT_EQ(HotIndex(), 1);
    m_keys.Press(VK_ESCAPE);
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarKeyTest, EscComesBackToTheBarFromAMenuOfTheMouseToo) {
    ClickButton(1);
    m_keys.Press(VK_ESCAPE);
    EXPECT_TRUE(Bar().IsKeyboardActive());
    EXPECT_EQ(HotIndex(), 1);
}

TEST_F(MenuBarKeyTest, AltInAnOpenMenuEndsAll) {
    PressAltWith(L'e');
    PressAlt();
    EXPECT_EQ(Active(), nullptr);
    EXPECT_FALSE(Bar().IsKeyboardActive());
    EXPECT_EQ(HotIndex(), -1);
}

TEST_F(MenuBarKeyTest, EnterOnAnItemOfTheBarSendsItsCommandOnce) {
    PressAlt();
    m_keys.Press(VK_RIGHT);
    m_keys.Press(VK_RIGHT);
    m_keys.Press(VK_RETURN);
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{bar_ids::run});
    EXPECT_FALSE(Bar().IsKeyboardActive());
    PressAltWith(L'r');
    EXPECT_EQ(m_frame->commands.size(), 2u);
}

TEST_F(MenuBarKeyTest, AShortcutWorksInAnActiveBarAndEndsIt) {
    SetAccelerator(FVIRTKEY | FCONTROL, 'O', bar_ids::open);
    PressAlt();
    m_keys.Hold(VK_CONTROL);
    m_keys.Press('O');
    m_keys.Let(VK_CONTROL);
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{bar_ids::open});
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarKeyTest, TheFocusStaysWhereItIs) {
    CWnd child;
    child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(10, 100, 50, 140), m_frame, 99);
    child.SetFocus();
    PressAlt();
    m_keys.Press(VK_DOWN);
    EXPECT_NE(Active(), nullptr);
    EXPECT_EQ(::GetFocus(), child.m_hWnd);
    CMFCPopupMenu::CloseAll();
    child.DestroyWindow();
}

TEST_F(MenuBarKeyTest, AnInactiveFrameEndsIt) {
    PressAlt();
    m_frame->SendMessage(WM_ACTIVATE, WA_INACTIVE, 0);
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarKeyTest, AClickBesideTheBarEndsIt) {
    PressAlt();
    m_pointer.Click(m_window, CPoint(200, 200));
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(MenuBarKeyTest, ADisabledButtonIsNotOnTheWay) {
    Bar().SetButtonStyle(1, TBBS_DISABLED);
    PressAlt();
    m_keys.Press(VK_RIGHT);
    EXPECT_EQ(HotIndex(), 2);
    EXPECT_FALSE(Bar().TranslateChar(L'e'));
}
