#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

#include "afxkeyboardmanager.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class KeyRoutingTest : public KeyboardTest {
protected:
    CString DocumentText() {
        CString text;
        m_document.GetWindowText(text);
        return text;
    }
};

TEST_F(KeyRoutingTest, AltWithALetterGoesToTheTipOfTheLetter) {
    Chord(VK_MENU, 'V');
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
    EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), 1) << "the release of Alt does not leave";
    EXPECT_EQ(DocumentText(), L"");
}

TEST_F(KeyRoutingTest, AltWithALetterThatLeadsNowhereShowsNothing) {
    Chord(VK_MENU, 'Z');
    EXPECT_FALSE(AreTipsShown());
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyRoutingTest, AnAcceleratorComesBeforeTheTips) {
    ACCEL entry{FVIRTKEY | FALT, 'V', commands::find};
    m_frame->ReplaceAccelTable(::CreateAcceleratorTable(&entry, 1));
    Chord(VK_MENU, 'V');
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find));
    EXPECT_FALSE(AreTipsShown());
}

TEST_F(KeyRoutingTest, TheTipsComeBeforeAcceleratorsWhileTheyAreShown) {
    ACCEL entries[] = {{FVIRTKEY, VK_ESCAPE, commands::find}, {FVIRTKEY, 'H', commands::find}};
    m_frame->ReplaceAccelTable(::CreateAcceleratorTable(entries, 2));
    Press({VK_MENU, 'H', VK_ESCAPE, VK_ESCAPE});
    EXPECT_THAT(m_frame->commands, IsEmpty());
    Press(VK_ESCAPE);
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find));
}

TEST_F(KeyRoutingTest, AShortcutLeavesAndWorks) {
    ACCEL entry{FVIRTKEY | FCONTROL, 'F', commands::find};
    m_frame->ReplaceAccelTable(::CreateAcceleratorTable(&entry, 1));
    Press(VK_MENU);
    Chord(VK_CONTROL, 'F');
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find));
    EXPECT_FALSE(AreTipsShown());
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyRoutingTest, ControlF1MinimisesAndRestores) {
    Chord(VK_CONTROL, VK_F1);
    EXPECT_EQ(Bar().GetHideFlags(), AFX_RIBBONBAR_HIDE_ELEMENTS);
    Chord(VK_CONTROL, VK_F1);
    EXPECT_EQ(Bar().GetHideFlags(), 0u);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyRoutingTest, WithoutTheRibbonsKeysTheDocumentGetsWhatIsTyped) {
    Press({'A', 'B'});
    EXPECT_EQ(DocumentText(), L"ab");
}

TEST_F(KeyRoutingTest, WhatIsTypedWithTipsDoesNotReachTheDocument) {
    Press({VK_MENU, 'Z', VK_ESCAPE, 'C'});
    EXPECT_EQ(DocumentText(), L"c");
}

TEST_F(KeyRoutingTest, AFrameWithAMenuKeepsAlt) {
    CMenu menu;
    menu.CreateMenu();
    menu.AppendMenu(MF_STRING, commands::find, L"&Find");
    m_frame->SetMenu(&menu);
    EXPECT_FALSE(Bar().OnSysKeyDown(m_frame, VK_F10, 1));
    Bar().OnSysKeyDown(m_frame, VK_MENU, 1 << 29);
    EXPECT_FALSE(Bar().OnSysKeyUp(m_frame, VK_MENU, 0));
    EXPECT_FALSE(AreTipsShown());
    m_frame->SetMenu(nullptr);
}

TEST_F(KeyRoutingTest, AltDuringADragIsNotTheRibbons) {
    m_document.SetCapture();
    EXPECT_FALSE(Bar().OnSysKeyDown(m_frame, VK_F10, 1));
    EXPECT_FALSE(AreTipsShown());
    ::ReleaseCapture();
}

TEST_F(KeyRoutingTest, TheKeysOfAnotherTopLevelWindowAreItsOwn) {
    CWnd palette;
    ASSERT_TRUE(palette.CreateEx(0, AfxRegisterWndClass(0), L"Palette", WS_POPUP | WS_VISIBLE, CRect(0, 0, 90, 90),
                                 m_frame, 0));
    palette.SetFocus();
    Press(VK_F10);
    EXPECT_FALSE(AreTipsShown());
    palette.DestroyWindow();
}

TEST_F(KeyRoutingTest, TheFocusGoesToTheFrameWhenItsFormerWindowIsGone) {
    Press(VK_MENU);
    m_document.DestroyWindow();
    Press(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), m_frame->GetSafeHwnd());
}

TEST_F(KeyRoutingTest, ALossOfTheFocusLeaves) {
    Press({VK_MENU, 'H'});
    m_document.SetFocus();
    PumpPending();
    EXPECT_FALSE(AreTipsShown());
    EXPECT_EQ(FocusedText(), L"");
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(KeyRoutingTest, DeactivateKeyboardFocusGivesTheFocusBackWhenItIsAskedTo) {
    Press(VK_MENU);
    Bar().DeactivateKeyboardFocus(FALSE);
    EXPECT_FALSE(AreTipsShown());
    EXPECT_EQ(::GetFocus(), Bar().GetSafeHwnd());
    m_document.SetFocus();
    Press(VK_MENU);
    Bar().DeactivateKeyboardFocus();
    EXPECT_EQ(::GetFocus(), Document());
}

} // namespace
