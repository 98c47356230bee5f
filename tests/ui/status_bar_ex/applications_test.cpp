// What SetExEleApp shows, and when it lays out and redraws.
#include "extended_status.h"

namespace {

class SetExEleApp : public ExtendedStatus {};

TEST_F(SetExEleApp, ShowsTheElementsOfTheApplicationAndHidesAllOthers) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "11100");
    bar.SetExEleApp(L"two");
    EXPECT_EQ(Shown(), "00011");
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "11100");
}

TEST_F(SetExEleApp, AnEmptyNameChangesNothingAndBuildsNothing) {
    TwoApplications();
    const int layouts = bar.layouts;
    bar.SetExEleApp(L"");
    EXPECT_EQ(bar.GetExCount(), 0);
    EXPECT_EQ(bar.layouts, layouts);
    bar.SetExEleApp(L"one");
    bar.SetExEleApp(L"");
    EXPECT_EQ(Shown(), "11100");
}

TEST_F(SetExEleApp, BuildsTheElementsOnce) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    CMFCRibbonBaseElement* const first = bar.GetExElement(0);
    bar.SetExEleApp(L"two");
    bar.SetExEleApp(L"one");
    EXPECT_EQ(bar.GetExCount(), 5);
    EXPECT_EQ(bar.GetExElement(0), first);
}

TEST_F(SetExEleApp, TheShownApplicationIsNeitherLaidOutNorDrawnAgain) {
    TwoApplications();
    Application(L"ONE", {}, L"One");
    CAddRibbonBar::m_smStatusExBtns[L"one"].first = L"oNE";
    bar.SetExEleApp(L"one");
    const int layouts = bar.layouts;
    const int paints = bar.paints;
    bar.SetExEleApp(L"one");
    bar.SetExEleApp(L"ONE"); // another key whose name differs in letter case only
    EXPECT_EQ(bar.layouts, layouts);
    EXPECT_EQ(bar.paints, paints);
}

TEST_F(SetExEleApp, AnotherApplicationIsLaidOutAndDrawnAtOnce) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    const int layouts = bar.layouts;
    const int paints = bar.paints;
    bar.SetExEleApp(L"two");
    EXPECT_GT(bar.layouts, layouts);
    EXPECT_GT(bar.paints, paints);
    EXPECT_TRUE(bar.GetExElement(0)->GetRect().IsRectEmpty());
    EXPECT_FALSE(bar.GetExElement(4)->GetRect().IsRectEmpty());
}

TEST_F(SetExEleApp, NamesOfOneLetterCaseApartAreShownTogether) {
    Register(L"Place", 501);
    Register(L"Light", 503);
    Application(L"a", {Row(L"Place", L"label")}, L"Map");
    Application(L"b", {Row(L"Light", L"button")}, L"MAP");
    Application(L"c", {Row(L"Place", L"label")}, L"Other");
    bar.SetExEleApp(L"a");
    EXPECT_EQ(Shown(), "110"); // in the order of the keys
}

TEST_F(SetExEleApp, AnUnknownApplicationHidesAllAndTheCurrentOneStays) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    bar.SetExEleApp(L"nowhere");
    EXPECT_EQ(Shown(), "00000");
    // The current name is still that of the first one, so it counts as shown.
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "00000");
    bar.SetExEleApp(L"two");
    EXPECT_EQ(Shown(), "00011");
}

TEST_F(SetExEleApp, AnUnknownApplicationAtFirstBuildsTheElementsAndLeavesThemAsTheyAre) {
    TwoApplications();
    bar.SetExEleApp(L"nowhere");
    EXPECT_EQ(Shown(), "11111");
}

TEST_F(SetExEleApp, BeforeAnythingWasLoadedItBuildsNothingAndTheNextOneDoes) {
    bar.SetExEleApp(L"one");
    EXPECT_EQ(bar.GetExCount(), 0);
    TwoApplications();
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "11100");
}

TEST_F(SetExEleApp, AnApplicationWithoutANameIsTheOneThatIsShownAtFirst) {
    TwoApplications();
    CAddRibbonBar::m_smStatusExBtns[L"one"].first = L"";
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "11111") << "no name was shown, and none is asked for";
    bar.SetExEleApp(L"two");
    EXPECT_EQ(Shown(), "00011");
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "11100");
}

TEST_F(SetExEleApp, TheKeyIsComparedWithItsLetterCase) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    bar.SetExEleApp(L"TWO");
    EXPECT_EQ(Shown(), "00000");
}

TEST_F(SetExEleApp, WorksBeforeTheBarHasAWindow) {
    TwoApplications();
    OpenStatusBarEx unborn;
    unborn.SetExEleApp(L"one");
    EXPECT_EQ(unborn.GetExCount(), 5);
    EXPECT_FALSE(unborn.GetExElement(3)->IsVisible());
    EXPECT_EQ(unborn.layouts, 1);
}

TEST_F(SetExEleApp, OneWithoutElementsHidesThoseOfTheOthers) {
    TwoApplications();
    Application(L"none", {});
    bar.SetExEleApp(L"one");
    bar.SetExEleApp(L"none");
    EXPECT_EQ(Shown(), "00000");
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "11100");
}

TEST_F(SetExEleApp, AnElementThatTheHostRemovedIsNoLongerItsApplications) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    ASSERT_TRUE(bar.RemoveElement(501));
    EXPECT_EQ(Shown(), "1100");
    bar.SetExEleApp(L"two");
    EXPECT_EQ(Shown(), "0011");
    ASSERT_TRUE(bar.RemoveElement(502)); // the slider that the other one was copied from
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "100");
}

TEST_F(SetExEleApp, WhatTheHostPutsInThePlaceOfRemovedElementsIsItsOwn) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    bar.RemoveAll();
    // As many as there were, so that the memory is used again.
    for (int index = 0; index < 40; ++index) {
        bar.AddExtendedElement(new CMFCRibbonLabelEx(L"host's"), L"");
    }
    bar.SetExEleApp(L"two");
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), std::string(40, '1'));
}

TEST_F(SetExEleApp, AnElementThatTheHostRemovesInTheMiddleOfASwitchHarmsNobody) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    bar.onLayout = [this] { bar.RemoveElement(503); };
    bar.SetExEleApp(L"two");
    EXPECT_EQ(Shown(), "0001");
    bar.SetExEleApp(L"one");
    EXPECT_EQ(Shown(), "1110");
}

TEST_F(SetExEleApp, AKeyInOtherLettersIsAnotherEntry) {
    Register(L"Place", 501);
    Register(L"Light", 503);
    Application(L"app", {Row(L"Place", L"label")}, L"Name");
    Application(L"APP", {Row(L"Light", L"button")}, L"Other");
    bar.SetExEleApp(L"app");
    EXPECT_EQ(Shown(), "01") << "capital letters come first in the order of the keys";
    bar.SetExEleApp(L"APP");
    EXPECT_EQ(Shown(), "10");
}

TEST_F(SetExEleApp, AnEntryThatCameAfterTheElementsWereBuiltHidesAll) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    Application(L"late", {Row(L"Place", L"label")});
    bar.SetExEleApp(L"late");
    EXPECT_EQ(Shown(), "00000") << "they are built once for a bar";
    bar.SetExEleApp(L"two");
    EXPECT_EQ(Shown(), "00011");
}

} // namespace
