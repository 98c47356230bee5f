// The panels of a minimised ribbon in a pop-up.
#include <gmock/gmock.h>

#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;

class Minimized : public RibbonPopupTest {
protected:
    Minimized() {
        Bar().ToggleMimimizeState();
        PumpPending();
    }
    void ClickTab(int category) {
        m_pointer.Click(Bar(), Bar().GetCategory(category)->GetTabRect().CenterPoint());
        PumpPending();
    }
};

TEST_F(Minimized, ATabShowsItsPanelsBelowTheTabsAndAnotherClickHidesThem) {
    ClickTab(0);
    ASSERT_EQ(OpenCount(), 1);
    CMFCRibbonCategory* home = Bar().GetCategory(0);
    EXPECT_EQ(PopupBar().GetCategory(), home);
    EXPECT_EQ(home->GetParentMenuBar(), &PopupBar());
    CRect tab = home->GetTabRect();
    Bar().ClientToScreen(tab);
    CRect popup;
    Popup().GetWindowRect(popup);
    CRect bar;
    Bar().GetWindowRect(bar);
    EXPECT_EQ(popup.top, tab.bottom);
    EXPECT_EQ(popup.Width(), bar.Width());
    EXPECT_FALSE(Element(commands::paste).GetRect().IsRectEmpty());
    EXPECT_EQ(PopupBar().HitTest(CenterOf(commands::paste)), &Element(commands::paste));
    EXPECT_EQ(Bar().HitTest(CPoint(20, 60), TRUE), nullptr) << "not in the bar";
    ClickTab(0);
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_TRUE(Element(commands::paste).GetRect().IsRectEmpty());
    EXPECT_NE(Bar().GetHideFlags() & AFX_RIBBONBAR_HIDE_ELEMENTS, 0u) << "it stays minimised";
}

TEST_F(Minimized, ACommandIsSentOnceAndClosesIt) {
    ClickTab(0);
    Click(Element(commands::paste));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(Minimized, AnotherTabShowsItsOwnPanels) {
    ClickTab(0);
    ClickTab(1);
    ASSERT_EQ(OpenCount(), 1);
    EXPECT_EQ(PopupBar().GetCategory(), Bar().GetCategory(1));
    EXPECT_EQ(m_frame->categoryChanges, 1);
    Click(Element(commands::find));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::find));
}

TEST_F(Minimized, TheHostMayActivateAnotherCategoryMeanwhile) {
    ClickTab(0);
    EXPECT_TRUE(Bar().SetActiveCategory(Bar().GetCategory(1)));
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(Minimized, SubItemsOpenFromIt) {
    ClickTab(0);
    Click(Shapes());
    ASSERT_EQ(OpenCount(), 2);
    Click(SubItem(0));
    EXPECT_THAT(m_frame->commands, ElementsAre(kLine));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(Minimized, ACollapsedPanelOpensFromItAndGivesItsElementsBackToIt) {
    Bar().ToggleMimimizeState();
    CMFCRibbonPanel& panel = Collapse(0);
    Bar().ToggleMimimizeState();
    PumpPending();
    ClickTab(0);
    ASSERT_TRUE(panel.IsCollapsed());
    CMFCRibbonPanelMenuBar& outer = PopupBar();
    Click(panel.GetDefaultButton());
    ASSERT_EQ(OpenCount(), 2);
    EXPECT_EQ(panel.GetElement(0)->GetParentMenu(), &PopupBar());
    Press(VK_ESCAPE);
    EXPECT_EQ(OpenCount(), 1);
    EXPECT_EQ(panel.GetElement(0)->GetParentMenu(), &outer);
    Click(panel.GetDefaultButton());
    Click(*panel.GetElement(0));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(Minimized, TheCategoryMayGoWhileItIsShown) {
    ClickTab(0);
    Bar().RemoveCategory(0);
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(Minimized, RestoredWhileATabHasDroppedDownItTakesThePanelsBackIntoTheBar) {
    ClickTab(0);
    ASSERT_EQ(OpenCount(), 1);
    Bar().ToggleMimimizeState(); // as the second click of a double click does
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_EQ(Bar().HitTest(CenterOf(commands::paste), TRUE), &Element(commands::paste));
    Click(Element(commands::paste));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(Minimized, RestoredItShowsThePanelsInTheBarAgain) {
    ClickTab(0);
    CMFCRibbonPanelMenu::DismissAll();
    Bar().ToggleMimimizeState();
    PumpPending();
    EXPECT_EQ(Bar().HitTest(CenterOf(commands::paste), TRUE), &Element(commands::paste));
    Click(Element(commands::paste));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

} // namespace
