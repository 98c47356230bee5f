// Combo boxes in the pop-up of a collapsed panel and in the quick access toolbar.
#include <afxribbonpanelmenu.h>

#include <gmock/gmock.h>

#include "tests/ui/ribbon_combo/combo_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ComboInPanelPopup : public RibbonComboTest {
protected:
    ComboInPanelPopup() {
        m_pointer.Click(Bar().GetSafeHwnd(), Collapse(0).GetDefaultButton().GetRect().CenterPoint());
        PumpPending();
        m_panel = CMFCRibbonPanelMenu::GetDeepest();
    }
    bool IsPanelOpen() const { return CMFCRibbonPanelMenu::GetDeepest() != nullptr; }
    void HighlightPlain() {
        for (int step = 0; step < 20 && m_panel->GetRibbonMenuBar().GetHighlighted() != &Plain(); ++step) {
            Press(VK_TAB);
        }
        ASSERT_EQ(m_panel->GetRibbonMenuBar().GetHighlighted(), &Plain());
    }
    static bool IsListOpen() {
        return DYNAMIC_DOWNCAST(CMFCDropDownListBox, CMFCPopupMenu::GetActiveMenu()) != nullptr;
    }
    CMFCRibbonPanelMenu* m_panel = nullptr;
};

TEST_F(ComboInPanelPopup, OpensItsListAndThePopupStays) {
    ASSERT_NE(m_panel, nullptr);
    ASSERT_EQ(Plain().GetParentWnd(), &m_panel->GetRibbonMenuBar());
    ClickButton(Plain());
    ASSERT_TRUE(IsListOpen());
    EXPECT_TRUE(IsPanelOpen());
    EXPECT_EQ(List().GetParentPopupMenu(), m_panel);
    EXPECT_EQ(ScreenRect(List()).TopLeft(), CPoint(BoxOnScreen(Plain()).left, BoxOnScreen(Plain()).bottom));
    EXPECT_GT(ListBar().GetRowCount(), 0);
}

TEST_F(ComboInPanelPopup, AChoiceClosesBothAndSendsTheCommandOnce) {
    ClickButton(Plain());
    ClickRow(2);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Plain().GetCurSel(), 2);
    EXPECT_THAT(m_frame->commands, ElementsAre(kPlain));
}

TEST_F(ComboInPanelPopup, EscAndAnotherClickCloseTheListAlone) {
    ClickButton(Plain());
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(IsPanelOpen());
    ClickButton(Plain());
    ASSERT_TRUE(IsListOpen());
    ClickButton(Plain());
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(IsPanelOpen());
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(ComboInPanelPopup, AClickElsewhereInThePopupClosesTheList) {
    ClickButton(Plain());
    m_pointer.MoveTo(Edit().GetParentWnd()->GetSafeHwnd(), CPoint(Edit().GetRect().left + 2, Edit().GetRect().top + 2));
    m_pointer.Press();
    EXPECT_FALSE(IsListOpen());
    m_pointer.Release();
    EXPECT_TRUE(IsPanelOpen());
}

TEST_F(ComboInPanelPopup, AClickOutsideClosesBoth) {
    ClickButton(Plain());
    m_pointer.Click(m_window, CPoint(20, 400));
    PumpPending();
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(IsPanelOpen());
}

TEST_F(ComboInPanelPopup, KeysLeadToItAndOpenIt) {
    HighlightPlain();
    Press(VK_RETURN);
    ASSERT_TRUE(IsListOpen());
    Press(VK_DOWN);
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_EQ(Plain().GetCurSel(), 1);
    EXPECT_THAT(m_frame->commands, ElementsAre(kPlain));
}

TEST_F(ComboInPanelPopup, F4AndAltWithAnArrowOpenTheList) {
    HighlightPlain();
    Press(VK_F4);
    ASSERT_TRUE(IsListOpen());
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsListOpen());
    for (const UINT arrow : {VK_DOWN, VK_UP}) {
        Keys keys;
        keys.Down(VK_MENU);
        keys.Hold(VK_MENU);
        ASSERT_TRUE(IsPanelOpen());
        keys.Press(arrow);
        EXPECT_TRUE(IsListOpen()) << arrow;
        keys.Press(arrow);
        EXPECT_FALSE(IsListOpen()) << arrow;
        keys.Let(VK_MENU);
        keys.Up(VK_MENU);
        PumpPending();
        EXPECT_TRUE(IsPanelOpen()) << arrow;
    }
    Press(VK_MENU);
    EXPECT_FALSE(IsPanelOpen()) << "alone it leaves";
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboInPanelPopup, WhatElseAltGoesWithIsTheFrames) {
    HighlightPlain();
    PressWith(VK_MENU, VK_F4);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(ComboInPanelPopup, AltLeavesAtOnceWhereNothingDropsDown) {
    ASSERT_FALSE(m_panel->GetRibbonMenuBar().CanDropDown());
    Keys(m_window).Down(VK_MENU);
    EXPECT_FALSE(IsPanelOpen());
}

TEST_F(ComboInPanelPopup, AnEditKeepsTheFocusUnderItsList) {
    ClickButton(Edit());
    ASSERT_TRUE(IsListOpen());
    EXPECT_TRUE(IsPanelOpen());
    EXPECT_TRUE(Edit().HasFocus());
    Type(L"Item 5");
    EXPECT_EQ(ListBar().GetHotRow(), 5);
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Edit().GetCurSel(), 5);
    EXPECT_THAT(m_frame->commands, ElementsAre(kEdit));
}

TEST_F(ComboInPanelPopup, TheCommandMayEndTheFrame) {
    m_frame->onCommand = [this] { m_frame->DestroyWindow(); };
    ClickButton(Plain());
    ClickRow(2);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(ComboInPanelPopup, ThePanelMayGoWhileTheListIsOpen) {
    ClickButton(Plain());
    Bar().RemoveCategory(0);
    PumpPending();
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(IsPanelOpen());
}

TEST_F(RibbonComboTest, ACopyInTheQuickAccessToolbarOpensItsOwnList) {
    AddToQuickAccess(kPlain);
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> copies;
    Bar().GetElementsByID(kPlain, copies);
    ASSERT_EQ(copies.GetSize(), 2);
    auto& first = static_cast<CMFCRibbonComboBox&>(*copies[0]);
    auto& second = static_cast<CMFCRibbonComboBox&>(*copies[1]);
    CMFCRibbonComboBox& copy = first.IsQATMode() ? first : second;
    ASSERT_TRUE(copy.IsQATMode());
    ASSERT_FALSE(copy.GetRect().IsRectEmpty());
    ClickButton(copy);
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(List().GetParentCombo(), &copy);
    ClickRow(6);
    EXPECT_EQ(Plain().GetCurSel(), 6);
    EXPECT_THAT(m_frame->commands, ElementsAre(kPlain));
}

} // namespace
