// What letters and keys do with a combo box: one that is typed into gets the caret, the other one opens its list.
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

#include "afxribboncombobox.h"
#include "afxribbonpanelmenu.h"

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr UINT kChoice = commands::firstHandled + 310;
constexpr UINT kTyped = commands::firstHandled + 311;

class ComboKeyTest : public KeyboardTest {
protected:
    ComboKeyTest() {
        CMFCRibbonPanel& panel = *Bar().GetCategory(0)->GetPanel(1);
        for (const auto& [id, hasEditBox] : {std::pair(kChoice, FALSE), std::pair(kTyped, TRUE)}) {
            auto* combo = new CMFCRibbonComboBox(id, hasEditBox, 60);
            for (const wchar_t* item : {L"one", L"two", L"three"}) {
                combo->AddItem(item);
            }
            panel.Add(combo);
        }
        Element(kChoice).SetKeys(L"QC");
        Element(kTyped).SetKeys(L"QT");
        panel.SetKeys(L"QP");
        Bar().RecalcLayout();
        PumpPending();
    }

    CMFCRibbonComboBox& Choice() { return static_cast<CMFCRibbonComboBox&>(Element(kChoice)); }
    CMFCRibbonComboBox& Typed() { return static_cast<CMFCRibbonComboBox&>(Element(kTyped)); }
    void CollapsePanelOfCombos() { Collapse(1); }
};

TEST_F(ComboKeyTest, LettersOpenTheListOfAComboWithoutATextAndEnterChooses) {
    Press({VK_MENU, 'H', 'Q', 'C'});
    EXPECT_NE(Choice().GetDropDownList(), nullptr);
    EXPECT_THAT(ShownTips(), IsEmpty());
    EXPECT_FALSE(AreTipsShown());
    Press({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(Choice().GetCurSel(), 1);
    EXPECT_THAT(m_frame->commands, ElementsAre(kChoice));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_THAT(ShownTips(), IsEmpty());
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(ComboKeyTest, WhatClosesTheListWithoutAChoiceGoesBackToTheLetters) {
    for (const UINT key : {VK_ESCAPE, VK_F4, VK_TAB}) {
        Press({VK_MENU, 'H', 'Q', 'C', VK_DOWN, key});
        EXPECT_EQ(Choice().GetDropDownList(), nullptr) << key;
        EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), 1) << key;
        EXPECT_THAT(ShownTips(), Contains(L"QC")) << key;
        Press({VK_ESCAPE, VK_ESCAPE});
        EXPECT_THAT(ShownTips(), IsEmpty()) << key;
        EXPECT_EQ(::GetFocus(), Document()) << key;
    }
    EXPECT_EQ(Choice().GetCurSel(), -1);
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(ComboKeyTest, TheSameLettersOpenTheListAgain) {
    Press({VK_MENU, 'H', 'Q', 'C', VK_ESCAPE, 'Q', 'C'});
    EXPECT_NE(Choice().GetDropDownList(), nullptr);
    Press({VK_DOWN, VK_RETURN});
    EXPECT_EQ(Choice().GetCurSel(), 0);
}

TEST_F(ComboKeyTest, LettersGiveTheCaretToAComboWithATextWhoseListOpensByAnArrow) {
    Press({VK_MENU, 'H', 'Q', 'T'});
    EXPECT_EQ(::GetFocus(), Typed().GetEditWnd()->GetSafeHwnd());
    EXPECT_EQ(Typed().GetDropDownList(), nullptr);
    Press(VK_DOWN);
    ASSERT_NE(Typed().GetDropDownList(), nullptr);
    Press({VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(Typed().GetDropDownList(), nullptr);
    EXPECT_EQ(::GetFocus(), Typed().GetEditWnd()->GetSafeHwnd()) << "Escape leaves the list first";
    EXPECT_THAT(ShownTips(), IsEmpty());
    Press({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(Typed().GetEditText(), L"one");
    EXPECT_THAT(m_frame->commands, ElementsAre(kTyped));
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(ComboKeyTest, AListThatAKeyOpenedOnTheFocusLeavesTheFocusThere) {
    Press({VK_MENU, VK_DOWN});
    while (Bar().GetFocused() != &Choice()) {
        ASSERT_NE(FocusedText(), L"Home") << "went round";
        Press(VK_TAB);
    }
    for (const UINT opens : {VK_F4, VK_RETURN, VK_SPACE, VK_MENU}) {
        if (opens == VK_MENU) {
            Chord(VK_MENU, VK_DOWN);
        } else {
            Press(opens);
        }
        EXPECT_NE(Choice().GetDropDownList(), nullptr) << opens;
        Press(VK_ESCAPE);
        EXPECT_EQ(Choice().GetDropDownList(), nullptr) << opens;
        EXPECT_EQ(Bar().GetFocused(), &Choice()) << opens;
        EXPECT_THAT(ShownTips(), IsEmpty()) << opens;
    }
    Press(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(ComboKeyTest, AltWithAnArrowOpensTheListOfATextAndAltLeavesAsEver) {
    Press({VK_MENU, 'H', 'Q', 'T'});
    Chord(VK_MENU, VK_DOWN);
    ASSERT_NE(Typed().GetDropDownList(), nullptr);
    Press(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), Typed().GetEditWnd()->GetSafeHwnd());
    Press(VK_MENU);
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_FALSE(AreTipsShown());
    Press(VK_MENU);
    EXPECT_TRUE(AreTipsShown());
}

TEST_F(ComboKeyTest, InThePopUpOfACollapsedPanelLettersOpenTheListAndEscapeGoesBackToThem) {
    CollapsePanelOfCombos();
    Press({VK_MENU, 'H', 'Q', 'P', 'Q', 'C'});
    ASSERT_NE(Choice().GetDropDownList(), nullptr);
    EXPECT_THAT(ShownTips(), IsEmpty());
    Press(VK_ESCAPE);
    EXPECT_EQ(Choice().GetDropDownList(), nullptr);
    EXPECT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    EXPECT_THAT(ShownTips(), Contains(L"QC"));
    Press({'Q', 'C', VK_DOWN, VK_RETURN});
    EXPECT_EQ(Choice().GetCurSel(), 0);
    EXPECT_THAT(m_frame->commands, ElementsAre(kChoice));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(ComboKeyTest, InThePopUpOfACollapsedPanelLettersGiveTheCaretToAComboWithAText) {
    CollapsePanelOfCombos();
    Press({VK_MENU, 'H', 'Q', 'P', 'Q', 'T'});
    ASSERT_NE(Typed().GetEditWnd(), nullptr);
    EXPECT_EQ(::GetFocus(), Typed().GetEditWnd()->GetSafeHwnd());
    Press({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(Typed().GetEditText(), L"one");
    EXPECT_THAT(m_frame->commands, ElementsAre(kTyped));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_EQ(::GetFocus(), Document());
}

TEST_F(ComboKeyTest, InThePopUpOfACollapsedPanelF4AndAltWithAnArrowOpenTheList) {
    CollapsePanelOfCombos();
    Press({VK_MENU, 'H', 'Q', 'P'});
    CMFCRibbonPanelMenu* popup = CMFCRibbonPanelMenu::GetDeepest();
    ASSERT_NE(popup, nullptr);
    for (int step = 0; step < 20 && popup->GetRibbonMenuBar().GetHighlighted() != &Choice(); ++step) {
        Press(VK_TAB);
    }
    ASSERT_EQ(popup->GetRibbonMenuBar().GetHighlighted(), &Choice());
    Press(VK_F4);
    EXPECT_NE(Choice().GetDropDownList(), nullptr);
    Press(VK_ESCAPE);
    EXPECT_EQ(Choice().GetDropDownList(), nullptr);
    Chord(VK_MENU, VK_DOWN);
    ASSERT_NE(Choice().GetDropDownList(), nullptr);
    Chord(VK_MENU, VK_DOWN);
    EXPECT_EQ(Choice().GetDropDownList(), nullptr);
    ASSERT_EQ(CMFCRibbonPanelMenu::GetDeepest(), popup);
    Press(VK_MENU);
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr) << "alone it leaves";
    EXPECT_EQ(::GetFocus(), Document());
    EXPECT_FALSE(AreTipsShown());
}

TEST_F(ComboKeyTest, TheHandlerOfAChoiceMayDestroyTheFrame) {
    m_frame->onCommand = [this] { m_frame->DestroyWindow(); };
    Press({VK_MENU, 'H', 'Q', 'C', VK_DOWN, VK_RETURN});
    EXPECT_FALSE(::IsWindow(m_window));
}

} // namespace
