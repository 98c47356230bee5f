// Hosts that take away what a pop-up shows, from inside its commands and otherwise.
#include <gmock/gmock.h>

#include <functional>

#include "tests/support/churn_memory.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;

class HostileHost : public RibbonPopupTest {
protected:
    void OnCommand(std::function<void()> action) {
        m_frame->onCommand = [action] {
            action();
            ChurnMemory();
        };
    }
};

TEST_F(HostileHost, TheCommandMayCloseTheFrame) {
    OnCommand([this] { m_frame->DestroyWindow(); });
    Click(Shapes());
    Click(SubItem(0));
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(HostileHost, TheCommandOfANestedRowMayCloseTheFrame) {
    OnCommand([this] { m_frame->DestroyWindow(); });
    OpenCollapsedPanel();
    Click(Shapes());
    Click(SubItem(3));
    ASSERT_EQ(OpenCount(), 3);
    Click(*SubItem(3).GetSubItems()[0]);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(HostileHost, TheCommandMayDestroyTheBar) {
    OnCommand([this] { Bar().DestroyWindow(); });
    Click(Shapes());
    Click(SubItem(0));
    EXPECT_EQ(Bar().GetSafeHwnd(), nullptr);
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(HostileHost, TheCommandMayRemoveTheCategory) {
    OnCommand([this] { Bar().RemoveCategory(0); });
    Click(Shapes());
    Click(SubItem(0));
    EXPECT_EQ(Bar().GetCategoryCount(), 1);
}

TEST_F(HostileHost, TheCommandMayLoadTheBarAgain) {
    OnCommand([this] {
        Bar().RemoveAllCategories();
        FillBar();
    });
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    Click(*panel.GetElement(0));
    EXPECT_EQ(Bar().GetCategoryCount(), 2);
    SetClientWidth(1000);
    m_frame->onCommand = nullptr;
    Click(Element(commands::cut));
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste, commands::cut));
}

TEST_F(HostileHost, TheCommandMayRemoveItsOwnSubItem) {
    OnCommand([this] { Shapes().RemoveAllSubItems(); });
    Click(Shapes());
    Click(SubItem(1));
    EXPECT_FALSE(Shapes().HasMenu());
}

TEST_F(HostileHost, TheCategoryMayGoWhileAPopupIsOpen) {
    Click(Shapes());
    Click(SubItem(3));
    Bar().RemoveCategory(0);
    ChurnMemory();
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
    Press(VK_DOWN);
}

TEST_F(HostileHost, ACollapsedPanelMayGoWhileItsPopupIsOpen) {
    OpenCollapsedPanel();
    Bar().GetCategory(0)->RemovePanel(0);
    ChurnMemory();
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(HostileHost, SubItemsMayGoWhileTheyAreShown) {
    Click(Shapes());
    MoveOver(SubItem(1));
    CMFCRibbonPanelMenuBar& bar = PopupBar();
    Shapes().RemoveSubItem(1);
    ChurnMemory();
    PumpPending();
    EXPECT_EQ(bar.GetHighlighted(), nullptr);
    Click(SubItem(0));
    EXPECT_THAT(m_frame->commands, ElementsAre(kLine));
}

TEST_F(HostileHost, AnElementTakenOutOfItsPanelLeavesThePopup) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    CMFCRibbonBaseElement* paste = panel.GetElement(0);
    panel.Remove(0, FALSE);
    EXPECT_EQ(paste->GetParentMenu(), nullptr);
    delete paste;
    ChurnMemory();
    PumpPending();
    CMFCRibbonPanelMenu::DismissAll();
    SetClientWidth(1000);
}

TEST_F(HostileHost, AnUpdateHandlerMayCloseThePopups) {
    Click(Shapes());
    m_frame->onUpdate = [] { CMFCRibbonPanelMenu::DismissAll(); };
    RunIdle();
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
    m_frame->onUpdate = nullptr;
}

TEST_F(HostileHost, APressMayEndWithThePopupGone) {
    Click(Shapes());
    m_pointer.MoveTo(PopupBar(), SubItem(0).GetRect().CenterPoint());
    m_pointer.Press();
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
    m_pointer.Release();
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
    EXPECT_FALSE(SubItem(0).IsPressed());
}

} // namespace
