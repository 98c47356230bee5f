// Every path has a quick access toolbar of its own.
#include "tests/support/command_list.h"
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

namespace {

using Ids = std::vector<UINT>;

class PathQuickAccess : public ExtendedBarTest {
protected:
    PathQuickAccess() {
        Bar().setPath(L"browse", 0, 2, {1000, 1001});
        Bar().setPath(L"edit", 2, 4, {1020, 1000});
    }
};

TEST_F(PathQuickAccess, ShowingAPathShowsItsCommandsInTheirOrder) {
    Bar().ShowPath(L"browse");
    EXPECT_EQ(QuickAccess(), (Ids{1000, 1001}));
    Bar().ShowPath(L"edit");
    EXPECT_EQ(QuickAccess(), (Ids{1020, 1000}));
}

TEST_F(PathQuickAccess, AnEmptyListEmptiesTheToolbar) {
    Bar().setPath(L"print", 5, 5, {});
    Bar().ShowPath(L"browse");
    Bar().ShowPath(L"print");
    EXPECT_EQ(QuickAccess(), Ids{});
}

TEST_F(PathQuickAccess, AKnownPathTakesTheSecondList) {
    Bar().setPath(L"browse", 3, 5, {1010, 1011, 1012});
    Bar().ShowPath(L"browse");
    EXPECT_EQ(Shown(), "[0]12");
    EXPECT_EQ(QuickAccess(), (Ids{1010, 1011, 1012}));
}

TEST_F(PathQuickAccess, TheListOfThePathIsTheToolbarsDefaultState) {
    Bar().ShowPath(L"browse");
    // What the toolbar's menu offers, checked or not, is the default state.
    Bar().OnShowRibbonQATMenu(&Bar(), 100, 100, nullptr);
    auto* const menu = DYNAMIC_DOWNCAST(CMFCRibbonPanelMenu, CMFCPopupMenu::GetActiveMenu());
    ASSERT_NE(menu, nullptr);
    std::vector<std::wstring> checked;
    for (const CMFCRibbonBaseElement* const row : menu->GetRibbonMenuBar().GetShown()) {
        if (row->IsChecked()) {
            checked.emplace_back(row->GetText());
        }
    }
    EXPECT_EQ(checked, (std::vector<std::wstring>{L"Button 1000", L"Button 1001"}));
    menu->CloseMenu();
}

TEST_F(PathQuickAccess, WhatTheUserChoseSurvivesTheSwitchWhenTheHostAsksForIt) {
    Bar().ShowPath(L"browse");
    Bar().SetQuickAccessCommands(CommandList{1002, 1000});
    Bar().UpdateCurQATollBar(L"");
    Bar().ShowPath(L"edit");
    EXPECT_EQ(QuickAccess(), (Ids{1020, 1000})) << "of the other path, although somebody has chosen commands";
    Bar().ShowPath(L"browse");
    EXPECT_EQ(QuickAccess(), (Ids{1002, 1000}));
}

TEST_F(PathQuickAccess, WithoutAskingTheDeclaredCommandsComeBack) {
    Bar().ShowPath(L"browse");
    Bar().SetQuickAccessCommands(CommandList{1002});
    Bar().ShowPath(L"edit");
    Bar().ShowPath(L"browse");
    EXPECT_EQ(QuickAccess(), (Ids{1000, 1001}));
}

TEST_F(PathQuickAccess, AToolbarWithSeparatorsIsStoredWithoutThem) {
    Bar().ShowPath(L"browse");
    Bar().SetQuickAccessCommands(CommandList{1002, 0, 1001, 0});
    Bar().UpdateCurQATollBar(L"");
    Bar().ShowPath(L"edit");
    Bar().ShowPath(L"browse");
    EXPECT_EQ(QuickAccess(), (Ids{1002, 1001}));
    // The default state has none either: no space between the two.
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> copies;
    Bar().GetElementsByID(0, copies);
    for (INT_PTR index = 0; index < copies.GetSize(); ++index) {
        EXPECT_FALSE(copies[index]->IsSeparator());
    }
}

TEST_F(PathQuickAccess, BeforeAPathIsShownTheFallbackGetsTheCommands) {
    Bar().SetQuickAccessCommands(CommandList{1012, 1011});
    Bar().UpdateCurQATollBar(L"edit");
    Bar().SetQuickAccessCommands(CommandList{1000});
    Bar().ShowPath(L"edit");
    EXPECT_EQ(QuickAccess(), (Ids{1012, 1011}));
}

TEST_F(PathQuickAccess, WhileAPathIsShownTheFallbackIsNotUsed) {
    Bar().ShowPath(L"browse");
    Bar().SetQuickAccessCommands(CommandList{1012});
    Bar().UpdateCurQATollBar(L"edit");
    Bar().ShowPath(L"edit");
    EXPECT_EQ(QuickAccess(), (Ids{1020, 1000}));
}

TEST_F(PathQuickAccess, WithoutAPathAndAFallbackNothingIsStored) {
    Bar().setPath(L"", 0, 5, {1001});
    Bar().SetQuickAccessCommands(CommandList{1012});
    Bar().UpdateCurQATollBar(L"");
    Bar().ShowPath(L"");
    EXPECT_EQ(QuickAccess(), Ids{1001});
}

TEST_F(PathQuickAccess, AFallbackThatIsDeclaredLaterTakesTheDeclaredList) {
    Bar().SetQuickAccessCommands(CommandList{1012});
    Bar().UpdateCurQATollBar(L"late");
    Bar().setPath(L"late", 0, 1, {1001});
    Bar().ShowPath(L"late");
    EXPECT_EQ(QuickAccess(), Ids{1001});
}

TEST_F(PathQuickAccess, SavingTheToolbarChangesNothing) {
    Bar().ShowPath(L"browse");
    Bar().SetQuickAccessCommands(CommandList{1002});
    Bar().SaveQAToolBar();
    EXPECT_EQ(QuickAccess(), Ids{1002});
    EXPECT_EQ(Bar().Path(), L"browse");
    EXPECT_EQ(Shown(), "[0]12");
    Bar().ShowPath(L"edit");
    Bar().ShowPath(L"browse");
    EXPECT_EQ(QuickAccess(), (Ids{1000, 1001})) << "saving has stored nothing";
}

TEST_F(PathQuickAccess, CommandsThatNoElementHasAreLeftOutUntilOneHasThem) {
    Bar().setPath(L"late", 0, 5, {1000, 5555});
    Bar().ShowPath(L"late");
    EXPECT_EQ(QuickAccess(), Ids{1000});
    Bar().GetCategory(0)->GetPanel(0)->Add(new WatchedButton(5555, L"Late"));
    LayOut();
    EXPECT_EQ(QuickAccess(), (Ids{1000, 5555}));
}

TEST_F(PathQuickAccess, ACommandThatIsListedTwiceOrZeroIsShownOnce) {
    Bar().setPath(L"odd", 0, 5, {1000, 0, 1000, 1001});
    Bar().ShowPath(L"odd");
    EXPECT_EQ(QuickAccess(), (Ids{1000, 1001}));
}

} // namespace
