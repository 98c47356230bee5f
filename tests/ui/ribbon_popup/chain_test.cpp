// Pop-ups of the ribbon are menus like all others: one chain, known to the frame, that other menus may belong to.
#include <gmock/gmock.h>

#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PopupChain : public RibbonPopupTest {
protected:
    static constexpr UINT kFirst = 1301;
    static constexpr UINT kSecond = 1302;

    static CMFCPopupMenu* Active() { return CMFCPopupMenu::GetActiveMenu(); }
    /// A menu that is no ribbon pop-up, opened for a window and, as a list of an element's, for that element.
    CMFCPopupMenu* OpenForeign(CWnd& parent, CMFCRibbonBaseElement* element) {
        CMenu items;
        items.CreatePopupMenu();
        items.AppendMenu(MF_STRING, kFirst, L"First");
        items.AppendMenu(MF_STRING, kSecond, L"Second");
        CPoint at(30, 80);
        parent.ClientToScreen(&at);
        auto* menu = new CMFCPopupMenu;
        menu->SetParentRibbonElement(element);
        return menu->Create(&parent, at.x, at.y, items.Detach()) ? menu : nullptr;
    }
    void ClickRow(CMFCPopupMenu& menu, int row) {
        CRect rect;
        menu.GetMenuBar()->GetItemRect(row, rect);
        m_pointer.Click(*menu.GetMenuBar(), rect.CenterPoint());
        PumpPending();
    }
};

TEST_F(PopupChain, ARibbonPopupIsTheActiveMenuAndTheFrameKnowsIt) {
    Click(Shapes());
    EXPECT_EQ(Active(), &Popup());
    EXPECT_EQ(Active()->GetMenuBar(), &PopupBar());
    EXPECT_EQ(Active()->GetParentPopupMenu(), nullptr);
    EXPECT_EQ(Active()->GetParentRibbonElement(), &Shapes());
    EXPECT_TRUE(Active()->IsShown());
    EXPECT_EQ(Active()->GetMessageWnd(), m_frame);
    EXPECT_EQ(m_frame->popupsShown, 1);
    EXPECT_EQ(m_frame->GetActivePopup(), Active());
    Click(SubItem(0));
    EXPECT_EQ(Active(), nullptr);
    EXPECT_EQ(m_frame->popupsClosed, 1);
    EXPECT_EQ(m_frame->GetActivePopup(), nullptr);
}

TEST_F(PopupChain, ANestedPopupHangsOnTheOneBeforeIt) {
    Click(Shapes());
    CMFCRibbonPanelMenu& first = Popup();
    Click(SubItem(3));
    ASSERT_NE(Active(), &first);
    EXPECT_EQ(Active()->GetParentPopupMenu(), &first);
    EXPECT_EQ(first.GetChildPopupMenu(), Active());
    EXPECT_EQ(Active()->GetRootPopupMenu(), &first);
    EXPECT_EQ(Active()->GetDropDirection(), CMFCPopupMenu::DROP_DIRECTION_RIGHT);
    EXPECT_EQ(first.GetDropDirection(), CMFCPopupMenu::DROP_DIRECTION_BOTTOM);
    Active()->CloseMenu();
    EXPECT_EQ(Active(), &first);
    EXPECT_EQ(first.GetChildPopupMenu(), nullptr);
    EXPECT_EQ(m_frame->popupsClosed, 1);
    Click(SubItem(3));
    first.CloseMenu();
    EXPECT_EQ(Active(), nullptr);
    EXPECT_EQ(m_frame->popupsClosed, 3);
}

TEST_F(PopupChain, TheFrameMayForbidAPopupAndNothingStaysLent) {
    m_frame->allowsPopups = false;
    Click(Shapes());
    EXPECT_EQ(Active(), nullptr);
    EXPECT_FALSE(Shapes().IsDroppedDown());
    EXPECT_EQ(SubItem(0).GetParentMenu(), nullptr);
    EXPECT_EQ(SubItem(0).GetParentWnd(), &Bar());
}

TEST_F(PopupChain, TheFramesSizeOrActivationClosesIt) {
    Click(Shapes());
    m_frame->SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(Active(), nullptr);
    Click(Shapes());
    m_frame->EnableWindow(FALSE);
    EXPECT_EQ(Active(), nullptr);
    m_frame->EnableWindow(TRUE);
}

TEST_F(PopupChain, ClosingAllClosesRibbonPopups) {
    Click(Shapes());
    Click(SubItem(3));
    CMFCPopupMenu::CloseAll();
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_FALSE(Shapes().IsDroppedDown());
    EXPECT_FALSE(SubItem(3).IsDroppedDown());
}

TEST_F(PopupChain, AMenuOfAnotherKindOpenedFromAPopupBelongsToTheChain) {
    OpenCollapsedPanel();
    CMFCRibbonPanelMenu& popup = Popup();
    CMFCPopupMenu* foreign = OpenForeign(PopupBar(), &Split());
    ASSERT_NE(foreign, nullptr);
    EXPECT_EQ(Active(), foreign);
    EXPECT_EQ(foreign->GetParentPopupMenu(), &popup);
    EXPECT_EQ(CMFCRibbonPanelMenu::GetDeepest(), &popup);
    EXPECT_TRUE(CMFCRibbonPanelMenu::IsPopupWindow(*foreign->GetMenuBar()));
    EXPECT_TRUE(Split().IsDroppedDown());
    EXPECT_EQ(m_frame->popupsShown, 2);
    const HWND window = foreign->GetSafeHwnd();
    popup.CloseMenu();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_FALSE(Split().IsDroppedDown());
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupChain, APressInAMenuOfAnotherKindClosesNothingAndAChoiceClosesAll) {
    OpenCollapsedPanel();
    CMFCPopupMenu* foreign = OpenForeign(PopupBar(), &Split());
    ASSERT_NE(foreign, nullptr);
    m_pointer.MoveTo(*foreign, CPoint(0, 0)); // its border
    m_pointer.Press();
    m_pointer.Release();
    EXPECT_EQ(Active(), foreign);
    EXPECT_EQ(OpenCount(), 1);
    ClickRow(*foreign, 1);
    EXPECT_EQ(Active(), nullptr);
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_THAT(m_frame->commands, ElementsAre(kSecond));
}

TEST_F(PopupChain, APressInThePopupClosesTheMenuOpenedFromItOnly) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    ASSERT_NE(OpenForeign(PopupBar(), &Split()), nullptr);
    MoveOver(*panel.GetElement(0));
    m_pointer.Press();
    EXPECT_EQ(Active(), &Popup());
    EXPECT_EQ(OpenCount(), 1);
    m_pointer.Release();
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(PopupChain, AMenuOfAnotherKindOfAnElementInTheBarIsClosedByAPressElsewhere) {
    CMFCPopupMenu* foreign = OpenForeign(Bar(), &Split());
    ASSERT_NE(foreign, nullptr);
    EXPECT_EQ(foreign->GetParentPopupMenu(), nullptr);
    EXPECT_TRUE(Split().IsDroppedDown());
    Click(Element(commands::cut));
    EXPECT_EQ(Active(), nullptr);
    EXPECT_FALSE(Split().IsDroppedDown());
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::cut));
}

TEST_F(PopupChain, ARibbonPopupReplacesAMenuOfAnotherKindAndTheOtherWayRound) {
    ASSERT_NE(OpenForeign(Bar(), nullptr), nullptr);
    Shapes().OnShowPopupMenu();
    EXPECT_EQ(Active(), &Popup());
    EXPECT_EQ(m_frame->popupsClosed, 1);
    CMFCPopupMenu* foreign = OpenForeign(Bar(), nullptr);
    EXPECT_EQ(Active(), foreign);
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_FALSE(Shapes().IsDroppedDown());
    CMFCPopupMenu::CloseAll();
}

TEST_F(PopupChain, TheEndOfItsElementClosesAMenuOfAnotherKind) {
    ASSERT_NE(OpenForeign(Bar(), &Split()), nullptr);
    CMFCRibbonPanel& panel = *Bar().GetCategory(0)->GetPanel(0);
    panel.Remove(panel.GetCount() - 1);
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupChain, AContextMenuOnAnElementIsClosedByAPressOnIt) {
    CMFCRibbonBaseElement& paste = Element(commands::paste);
    CPoint at = paste.GetRect().BottomRight();
    Bar().ClientToScreen(&at);
    Bar().OnShowRibbonContextMenu(&Bar(), at.x, at.y, &paste);
    ASSERT_EQ(OpenCount(), 1);
    Click(paste, paste.GetRect().TopLeft() + CPoint(2, 2));
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(PopupChain, LaysItselfOutAgainWhenAskedTo) {
    Click(Shapes());
    CRect before;
    Popup().GetWindowRect(before);
    SubItem(0).SetText(L"A line with a name that is a great deal longer than before");
    Popup().RecalcLayout();
    CRect after;
    Popup().GetWindowRect(after);
    EXPECT_GT(after.Width(), before.Width());
    CRect bar;
    PopupBar().GetWindowRect(bar);
    after.DeflateRect(Popup().GetBorderSize(), Popup().GetBorderSize());
    EXPECT_EQ(bar, after);
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

} // namespace
