// Which element lies under the real cursor.
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

namespace {

class ElementUnderCursor : public ExtendedBarTest {
protected:
    void PutOn(CMFCRibbonBaseElement& element) { PutCursor(OnScreen(element.GetRect())); }
};

TEST_F(ElementUnderCursor, AnElementOfTheActiveCategoryIsFound) {
    PutOn(Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(0), &Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(1), &Button(0, 1));
}

TEST_F(ElementUnderCursor, ATabIsFound) {
    PutCursor(OnScreen(Bar().GetCategory(2)->GetTabRect()));
    const CMFCRibbonBaseElement* const found = Bar().GetCursonOn(0);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->GetParentCategory(), Bar().GetCategory(2));
}

TEST_F(ElementUnderCursor, OutsideOfEverythingThereIsNone) {
    PutCursor(CPoint(700, 550));
    EXPECT_EQ(Bar().GetCursonOn(0), nullptr);
}

TEST_F(ElementUnderCursor, TheCaptionOfAPanelIsNoElement) {
    CRect caption = Bar().GetCategory(0)->GetPanel(0)->GetRect();
    caption.top = caption.bottom - 6;
    PutCursor(OnScreen(caption));
    EXPECT_EQ(Bar().GetCursonOn(0), nullptr);
}

TEST_F(ElementUnderCursor, ADisabledElementIsFoundOnlyWhenItNeedNotBeEnabled) {
    Button(0, 1).SetDisabled(TRUE);
    PutOn(Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(0), &Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(1), nullptr);
    EXPECT_EQ(Bar().GetCursonOn(-1), nullptr) << "any number but 0 asks for it";
}

TEST_F(ElementUnderCursor, ABarWithoutAWindowHasNone) {
    CMFCRibbonBarEx bar;
    EXPECT_EQ(bar.GetCursonOn(0), nullptr);
}

/// The page of a category in a pop-up, over an empty place of the bar's frame.
class ElementUnderCursorOfPopup : public ElementUnderCursor {
protected:
    ElementUnderCursorOfPopup() {
        Bar().ToggleMimimizeState();
        LayOut();
        m_pointer.Click(Bar(), TabOf(0));
        m_menu = DYNAMIC_DOWNCAST(CMFCRibbonPanelMenu, CMFCPopupMenu::GetActiveMenu());
    }
    void PutOnPopup(CMFCRibbonBaseElement& element) {
        CPoint point = CRect(element.GetRect()).CenterPoint();
        m_menu->GetRibbonMenuBar().ClientToScreen(&point);
        PutCursor(point);
    }
    CMFCRibbonPanelMenu* m_menu = nullptr;
};

TEST_F(ElementUnderCursorOfPopup, AnElementOfAnOpenPopUpIsFound) {
    ASSERT_NE(m_menu, nullptr);
    PutOnPopup(Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(0), &Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(1), &Button(0, 1));
}

TEST_F(ElementUnderCursorOfPopup, ADisabledElementOfAPopUpIsFoundOnlyWhenItNeedNotBeEnabled) {
    ASSERT_NE(m_menu, nullptr);
    Button(0, 1).SetDisabled(TRUE);
    PutOnPopup(Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(0), &Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(1), nullptr);
}

TEST_F(ElementUnderCursorOfPopup, BesideThePopUpTheBarsOwnElementIsFound) {
    ASSERT_NE(m_menu, nullptr);
    PutCursor(OnScreen(Bar().GetCategory(3)->GetTabRect()));
    const CMFCRibbonBaseElement* const found = Bar().GetCursonOn(1);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->GetParentCategory(), Bar().GetCategory(3));
}

TEST_F(ElementUnderCursor, AMenuThatIsNoneOfTheRibbonsIsNotLookedAt) {
    const HMENU items = ::CreatePopupMenu();
    ::AppendMenuW(items, MF_STRING, 8001, L"Row");
    auto* const menu = new CMFCPopupMenu;
    const CRect button = Button(0, 1).GetRect();
    CPoint below(button.left, button.bottom + 60);
    Bar().ClientToScreen(&below);
    ASSERT_TRUE(menu->Create(m_frame, below.x, below.y, items));
    PutCursor(below + CSize(10, 10));
    EXPECT_EQ(Bar().GetCursonOn(0), nullptr);
    PutOn(Button(0, 1));
    EXPECT_EQ(Bar().GetCursonOn(0), &Button(0, 1));
    menu->CloseMenu();
}

} // namespace
