// Pop-ups of buttons: sub-items, menus by handle, split buttons.
#include <gmock/gmock.h>

#include "tests/ui/ribbon_drawing/drawn_texts.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SubItems : public RibbonPopupTest {};

TEST_F(SubItems, APressOpensThemAndTheButtonIsDroppedDown) {
    Click(Shapes());
    EXPECT_EQ(OpenCount(), 1);
    EXPECT_TRUE(Shapes().IsDroppedDown());
    EXPECT_EQ(Bar().GetDroppedDown(), &Shapes());
    EXPECT_EQ(Popup().GetOpener(), &Shapes());
    EXPECT_TRUE(PopupBar().IsMenuMode());
    EXPECT_TRUE(PopupBar().IsRibbonPanel());
    EXPECT_FALSE(PopupBar().IsRibbonPanelInRegularMode());
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(SubItems, LieOneBelowTheOtherAndHiddenOnesTakeNoPlace) {
    Click(Shapes());
    for (int index = 1; index < 5; ++index) {
        EXPECT_EQ(SubItem(index).GetRect().top, SubItem(index - 1).GetRect().bottom);
        EXPECT_EQ(SubItem(index).GetRect().Width(), SubItem(0).GetRect().Width());
    }
    EXPECT_TRUE(SubItem(5).GetRect().IsRectEmpty());
    EXPECT_EQ(PopupBar().HitTest(SubItem(1).GetRect().CenterPoint()), &SubItem(1));
    EXPECT_EQ(PopupBar().HitTestEx(SubItem(1).GetRect().CenterPoint()), 1);
}

TEST_F(SubItems, LieBelowTheirButtonOnTheScreen) {
    Click(Shapes());
    CRect button = Shapes().GetRect();
    Bar().ClientToScreen(button);
    CRect popup;
    Popup().GetWindowRect(popup);
    EXPECT_EQ(popup.left, button.left);
    EXPECT_EQ(popup.top, button.bottom);
}

TEST_F(SubItems, AClickSendsTheCommandOnceAndClosesEverything) {
    Click(Shapes());
    Click(SubItem(1));
    EXPECT_THAT(m_frame->commands, ElementsAre(kStar));
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_FALSE(Shapes().IsDroppedDown());
}

TEST_F(SubItems, GoBackUnchangedWhenThePopupCloses) {
    Click(Shapes());
    EXPECT_EQ(SubItem(0).GetParentMenu(), &PopupBar());
    EXPECT_EQ(SubItem(0).GetParentWnd(), &PopupBar());
    EXPECT_TRUE(SubItem(0).IsMenuMode());
    MoveOver(SubItem(0));
    EXPECT_TRUE(SubItem(0).IsHighlighted());
    CMFCRibbonPanelMenu::DismissAll();
    EXPECT_EQ(SubItem(0).GetParentMenu(), nullptr);
    EXPECT_EQ(SubItem(0).GetParentWnd(), &Bar());
    EXPECT_FALSE(SubItem(0).IsMenuMode());
    EXPECT_FALSE(SubItem(0).IsHighlighted());
    EXPECT_TRUE(SubItem(0).GetRect().IsRectEmpty());
}

TEST_F(SubItems, ADisabledRowDoesNothing) {
    Click(Shapes());
    EXPECT_TRUE(SubItem(4).IsDisabled()) << "the host's update handlers were asked";
    Click(SubItem(4));
    EXPECT_THAT(m_frame->commands, IsEmpty());
    EXPECT_EQ(OpenCount(), 1);
}

TEST_F(SubItems, TheHostSetsChecksOfRowsWhileTheyAreShown) {
    m_frame->checkedCommand = kLine;
    Click(Shapes());
    EXPECT_TRUE(SubItem(0).IsChecked());
    m_frame->checkedCommand = kStar;
    RunIdle();
    EXPECT_FALSE(SubItem(0).IsChecked());
    EXPECT_TRUE(SubItem(1).IsChecked());
}

TEST_F(SubItems, ANestedRowOpensBesideItByAClick) {
    Click(Shapes());
    CRect row = SubItem(3).GetRect();
    PopupBar().ClientToScreen(row);
    Click(SubItem(3));
    ASSERT_EQ(OpenCount(), 2);
    CRect nested;
    Popup().GetWindowRect(nested);
    EXPECT_EQ(nested.left, row.right);
    EXPECT_EQ(nested.top, row.top);
    Click(*SubItem(3).GetSubItems()[0]);
    EXPECT_THAT(m_frame->commands, ElementsAre(kCircle));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(SubItems, ANestedRowOpensWhenThePointerRestsOnIt) {
    Click(Shapes());
    MoveOver(SubItem(3));
    EXPECT_TRUE(PumpUntil([] { return OpenCount() == 2; }));
    MoveOver(SubItem(0));
    EXPECT_TRUE(PumpUntil([] { return OpenCount() == 1; })) << "another row closes it again";
}

TEST_F(SubItems, AnotherPressOnTheButtonClosesThem) {
    Click(Shapes());
    Click(Shapes());
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_FALSE(Shapes().IsDroppedDown());
}

TEST_F(SubItems, APressElsewhereClosesThemAndIsNotLost) {
    Click(Shapes());
    Click(Element(commands::paste));
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(SubItems, ADisabledButtonOpensNothing) {
    Shapes().SetDisabled(TRUE);
    Shapes().OnShowPopupMenu();
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(SubItems, AnotherProgramsActivationClosesThem) {
    Click(Shapes());
    ::SendMessage(Popup(), WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(SubItems, AListLongerThanTheScreenScrollsToItsLastRow) {
    for (UINT index = 0; index < 200; ++index) {
        Shapes().AddSubItem(new CMFCRibbonButton(2000 + index, L"Row"));
    }
    Click(Shapes());
    CMFCRibbonBaseElement& last = *Shapes().GetSubItems()[Shapes().GetSubItems().GetUpperBound()];
    EXPECT_TRUE(last.GetRect().IsRectEmpty());
    CRect window;
    Popup().GetWindowRect(window);
    EXPECT_LE(window.Height(), ::GetSystemMetrics(SM_CYSCREEN));
    while (PopupBar().Scroll(1)) {
    }
    EXPECT_FALSE(last.GetRect().IsRectEmpty());
    Click(last);
    EXPECT_THAT(m_frame->commands, ElementsAre(2199u));
}

TEST_F(SubItems, TheWheelScrollsAsManyRowsAsTheUserHasSet) {
    for (UINT index = 0; index < 200; ++index) {
        Shapes().AddSubItem(new CMFCRibbonButton(2000 + index, L"Row"));
    }
    Click(Shapes());
    UINT lines = 0;
    ASSERT_TRUE(::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0));
    ASSERT_GT(lines, 1u);
    const auto isShown = [this](UINT row) {
        return !Shapes().GetSubItems()[static_cast<INT_PTR>(row)]->GetRect().IsRectEmpty();
    };
    ASSERT_TRUE(isShown(0));
    EXPECT_TRUE(PopupBar().OnWheel(-WHEEL_DELTA));
    EXPECT_FALSE(isShown(lines - 1));
    EXPECT_TRUE(isShown(lines));
    EXPECT_TRUE(PopupBar().OnWheel(WHEEL_DELTA));
    EXPECT_TRUE(isShown(0));
}

/// A button that has a menu of three items: two commands, between them a submenu of one.
class MenuOfAHandle : public RibbonPopupTest {
protected:
    MenuOfAHandle() {
        m_menu.CreatePopupMenu();
        m_menu.AppendMenu(MF_STRING, kLine, L"&One\tCtrl+1");
        m_menu.AppendMenu(MF_SEPARATOR);
        CMenu inner;
        inner.CreatePopupMenu();
        inner.AppendMenu(MF_STRING, kCircle, L"Inner");
        m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(inner.Detach()), L"&More");
        m_menu.AppendMenu(MF_STRING, kOff, L"Off");
        Shapes().RemoveAllSubItems();
        Shapes().SetMenu(m_menu.GetSafeHmenu());
    }
    std::vector<UINT> ShownIds() {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> rows;
        PopupBar().GetElements(rows);
        std::vector<UINT> ids;
        for (INT_PTR index = 0; index < rows.GetSize(); ++index) {
            ids.push_back(rows[index]->IsSeparator() ? 0 : rows[index]->GetID());
        }
        return ids;
    }

    CMenu m_menu;
};

TEST_F(MenuOfAHandle, MakesSubItemsWithTextsKeysAndSubmenus) {
    Click(Shapes());
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> rows;
    PopupBar().GetElements(rows);
    ASSERT_EQ(rows.GetSize(), 4);
    EXPECT_STREQ(rows[0]->GetText(), L"&One\tCtrl+1");
    EXPECT_STREQ(rows[0]->GetMenuKeys(), L"O");
    EXPECT_TRUE(rows[1]->IsSeparator());
    EXPECT_TRUE(rows[2]->HasMenu());
    EXPECT_TRUE(rows[3]->IsDisabled());
    EXPECT_EQ(Shapes().GetSubItems()[0], rows[0]);
    Click(*rows[0]);
    EXPECT_THAT(m_frame->commands, ElementsAre(kLine));
}

TEST_F(MenuOfAHandle, TakesSubItemsBesideItsOwn) {
    EXPECT_EQ(Shapes().GetSubItems().GetSize(), 4);
    EXPECT_EQ(Shapes().FindSubItemIndexByID(kOff), 3);
    EXPECT_NE(Bar().FindByID(kCircle, FALSE), nullptr) << "those of its submenu too";
    Shapes().AddSubItem(new CMFCRibbonButton(kStar, L"Star"), 1);
    Shapes().AddSubItem(new CMFCRibbonButton(kSquare, L"Square"));
    Click(Shapes());
    EXPECT_THAT(ShownIds(), ElementsAre(kLine, kStar, 0u, 0u, kOff, kSquare));
    Click(*Shapes().GetSubItems()[1]);
    EXPECT_THAT(m_frame->commands, ElementsAre(kStar));
}

TEST_F(MenuOfAHandle, LeavesOutWhatWasRemovedFromIt) {
    EXPECT_TRUE(Shapes().RemoveSubItem(0));
    Click(Shapes());
    EXPECT_THAT(ShownIds(), ElementsAre(0u, 0u, kOff));
    CMFCRibbonPanelMenu::DismissAll();
    Click(Shapes());
    EXPECT_EQ(ShownIds().size(), 3u) << "not only once";
}

TEST_F(MenuOfAHandle, ShowsWhatTheHostHasMadeOfItMeanwhile) {
    Shapes().AddSubItem(new CMFCRibbonButton(kSquare, L"Square"));
    m_menu.CheckMenuItem(kLine, MF_BYCOMMAND | MF_CHECKED);
    Shapes().OnShowPopupMenu();
    EXPECT_THAT(ShownIds(), ElementsAre(kLine, 0u, 0u, kOff, kSquare));
    CMFCRibbonPanelMenu::DismissAll();
    m_menu.AppendMenu(MF_STRING, kStar, L"Star");
    Click(Shapes());
    EXPECT_THAT(ShownIds(), ElementsAre(kLine, 0u, 0u, kOff, kStar, kSquare)) << "the host's own stays behind them";
}

TEST_F(MenuOfAHandle, GoesWithItsItemsAndLeavesThoseOfTheHost) {
    Shapes().AddSubItem(new CMFCRibbonButton(kSquare, L"Square"));
    Shapes().SetMenu(static_cast<HMENU>(nullptr));
    ASSERT_EQ(Shapes().GetSubItems().GetSize(), 1);
    EXPECT_EQ(Shapes().GetSubItems()[0]->GetID(), kSquare);
    Shapes().RemoveSubItem(0);
    EXPECT_FALSE(Shapes().HasMenu());
}

TEST_F(MenuOfAHandle, ComesToACopyOnTheQuickAccessToolbarWithAllChanges) {
    Bar().SetQuickAccessCommands(CommandList{kShapes});
    auto* copy = DYNAMIC_DOWNCAST(CMFCRibbonButton, Bar().HitTest(Bar().GetQATCommandsLocation().CenterPoint()));
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->GetSubItems().GetSize(), 4);
    m_menu.AppendMenu(MF_STRING, kStar, L"Star");
    Shapes().RemoveSubItem(0);
    EXPECT_EQ(copy->GetSubItems().GetSize(), 3);
    Click(*copy);
    EXPECT_THAT(ShownIds(), ElementsAre(kLine, 0u, 0u, kOff, kStar)) << "the menu has changed: all of it is new";
    EXPECT_EQ(Shapes().GetSubItems().GetSize(), 5);
}

TEST_F(SubItems, WhatIsNoMenuHasNoItems) {
    Shapes().RemoveAllSubItems();
    Shapes().SetMenu(reinterpret_cast<HMENU>(0x1234));
    Click(Shapes());
    EXPECT_TRUE(Shapes().GetSubItems().IsEmpty());
}

TEST_F(SubItems, MarksOfMnemonicsAreNotDrawn) {
    SubItem(0).SetText(L"Groups && Subitems");
    SubItem(1).SetText(L"E&xit\tAlt+F4");
    Click(Shapes());
    std::vector<std::wstring> drawn;
    for (const DrawnText& text : TextsDrawnBy([this](CDC& dc) {
             SubItem(0).OnDraw(&dc);
             SubItem(1).OnDraw(&dc);
         })) {
        drawn.push_back(text.text);
    }
    EXPECT_THAT(drawn, ElementsAre(L"Groups & Subitems", L"Exit", L"Alt+F4"));
}

class SplitButton : public RibbonPopupTest {};

TEST_F(SplitButton, TheCommandPartSendsAndTheMenuPartOpens) {
    Click(Split(), Split().GetCommandRect().CenterPoint());
    EXPECT_THAT(m_frame->commands, ElementsAre(kSplit));
    EXPECT_EQ(OpenCount(), 0);
    Click(Split(), Split().GetMenuRect().CenterPoint());
    ASSERT_EQ(OpenCount(), 1);
    Click(*Split().GetSubItems()[0]);
    EXPECT_THAT(m_frame->commands, ElementsAre(kSplit, kOne));
}

TEST_F(SplitButton, ARightAlignedMenuEndsAtTheButtonsRightEdge) {
    Split().SetRightAlignMenu();
    Split().SetRect(CRect(400, 20, 600, 42)); // wide enough, and far enough from the screen's edge
    Bar().ClientToScreen(CRect());
    Split().OnShowPopupMenu();
    CRect button = Split().GetRect();
    Bar().ClientToScreen(button);
    CRect popup;
    Popup().GetWindowRect(popup);
    EXPECT_EQ(popup.right, button.right);
}

TEST_F(SplitButton, ARowWithACommandOfItsOwnHasBothParts) {
    SubItem(3).SetDefaultCommand();
    Click(Shapes());
    EXPECT_FALSE(SubItem(3).GetCommandRect().IsRectEmpty());
    EXPECT_FALSE(SubItem(3).GetMenuRect().IsRectEmpty());
    Click(SubItem(3), SubItem(3).GetMenuRect().CenterPoint());
    EXPECT_EQ(OpenCount(), 2);
    CMFCRibbonPanelMenu::DismissAll();
    Click(Shapes());
    Click(SubItem(3), SubItem(3).GetCommandRect().CenterPoint());
    EXPECT_THAT(m_frame->commands, ElementsAre(kMore));
    EXPECT_EQ(OpenCount(), 0);
}

/// What host bars post for an element after its context menu.
constexpr auto kContextMenuShown = static_cast<UINT>(-11);

TEST_F(SubItems, AMenuCommandOfAnElementInTheBarClosesWhatItHasOpenAndSendsNothing) {
    Click(Shapes());
    ASSERT_EQ(OpenCount(), 1);
    Shapes().PostMenuCommand(kContextMenuShown);
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_FALSE(Shapes().IsDroppedDown());
    MSG message;
    EXPECT_FALSE(::PeekMessageW(&message, nullptr, WM_COMMAND, WM_COMMAND, PM_NOREMOVE));
    PumpPending();
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(SubItems, AMenuCommandOfAnElementInAPopUpClosesThePopUpLater) {
    Click(Shapes());
    SubItem(0).PostMenuCommand(kContextMenuShown);
    EXPECT_EQ(OpenCount(), 1) << "whoever calls still runs in it";
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_FALSE(Shapes().IsDroppedDown());
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

} // namespace
