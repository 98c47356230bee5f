// Paths: which categories a path shows, and which one is active.
#include "tests/support/collapsed_panel.h"
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

#include <climits>

namespace {

class RibbonPaths : public ExtendedBarTest {
protected:
    RibbonPaths() {
        Bar().setPath(L"browse", 0, 2, {});
        Bar().setPath(L"edit", 2, 4, {});
    }
    void Activate(int category) { ASSERT_TRUE(Bar().SetActiveCategory(Bar().GetCategory(category))); }
};

TEST_F(RibbonPaths, NoPathIsShownUntilOneWasShownWithSuccess) {
    EXPECT_EQ(Bar().Path(), L"");
    EXPECT_FALSE(Bar().ShowPath(L"unknown"));
    EXPECT_EQ(Bar().Path(), L"");
    EXPECT_TRUE(Bar().ShowPath(L"browse"));
    EXPECT_EQ(Bar().Path(), L"browse");
}

TEST_F(RibbonPaths, APathIsKnownByItsExactNameOnceItHasARange) {
    EXPECT_TRUE(Bar().havPath(L"browse"));
    EXPECT_FALSE(Bar().havPath(L"Browse"));
    EXPECT_FALSE(Bar().havPath(L""));
    Bar().UpdateCurQATollBar(L"print"); // quick access commands alone make no path
    EXPECT_FALSE(Bar().havPath(L"print"));
}

TEST_F(RibbonPaths, DeclaringPathsChangesNothingOnTheBar) { EXPECT_EQ(Shown(), "[0]12345"); }

TEST_F(RibbonPaths, AllCategoriesFromTheFirstToTheLastAreShownAndAllOthersHidden) {
    EXPECT_TRUE(Bar().ShowPath(L"browse"));
    EXPECT_EQ(Shown(), "[0]12");
    EXPECT_TRUE(Bar().ShowPath(L"edit"));
    EXPECT_EQ(Shown(), "[2]34");
    EXPECT_TRUE(Bar().ShowPath(L"browse"));
    EXPECT_EQ(Shown(), "[0]12");
}

TEST_F(RibbonPaths, TheFirstTimeAPathActivatesItsFirstCategory) {
    Activate(4);
    EXPECT_TRUE(Bar().ShowPath(L"edit"));
    EXPECT_EQ(Shown(), "[2]34");
}

TEST_F(RibbonPaths, TheCategoryThatWasActiveWhenThePathWasLeftIsActiveAgain) {
    Bar().ShowPath(L"browse");
    Activate(1);
    Bar().ShowPath(L"edit");
    Activate(4);
    Bar().ShowPath(L"browse");
    EXPECT_EQ(Shown(), "0[1]2");
    Bar().ShowPath(L"edit");
    EXPECT_EQ(Shown(), "23[4]");
}

TEST_F(RibbonPaths, ShowingThePathThatIsShownKeepsItsActiveCategory) {
    Bar().ShowPath(L"edit");
    Activate(3);
    EXPECT_TRUE(Bar().ShowPath(L"edit"));
    EXPECT_EQ(Shown(), "2[3]4");
}

TEST_F(RibbonPaths, AnUnknownNameLeavesTheCategoriesAsTheyWere) {
    Bar().ShowPath(L"browse");
    Activate(1);
    EXPECT_FALSE(Bar().ShowPath(L"unknown"));
    EXPECT_EQ(Shown(), "0[1]2");
    EXPECT_EQ(Bar().Path(), L"browse");
}

TEST_F(RibbonPaths, AfterAnUnknownNameTheActiveCategoryIsStillRemembered) {
    Bar().ShowPath(L"browse");
    Activate(1);
    EXPECT_FALSE(Bar().ShowPath(L"unknown"));
    // Left behind the bar's back.
    Bar().RemoveCategory(5);
    Activate(1);
    Bar().ShowPath(L"edit");
    Bar().ShowPath(L"browse");
    EXPECT_EQ(Shown(), "0[1]2");
}

TEST_F(RibbonPaths, AKnownPathKeepsItsFirstRange) {
    Bar().setPath(L"browse", 3, 5, {});
    Bar().ShowPath(L"browse");
    EXPECT_EQ(Shown(), "[0]12");
}

TEST_F(RibbonPaths, DeclaringAPathAgainKeepsItsRememberedCategory) {
    Bar().ShowPath(L"browse");
    Activate(2);
    Bar().ShowPath(L"edit");
    Bar().setPath(L"browse", 3, 5, {});
    Bar().ShowPath(L"browse");
    EXPECT_EQ(Shown(), "01[2]");
}

TEST_F(RibbonPaths, ARememberedCategoryOutsideTheRangeGivesWayToTheFirst) {
    Bar().ShowPath(L"browse");
    Bar().ShowCategory(5, TRUE);
    Activate(5); // the host went elsewhere
    Bar().ShowPath(L"edit");
    Bar().ShowPath(L"browse");
    EXPECT_EQ(Shown(), "[0]12");
}

TEST_F(RibbonPaths, APathLeftWithoutAnActiveCategoryComesBackWithItsFirst) {
    Bar().ShowPath(L"edit");
    for (int index = 0; index < kCategories; ++index) {
        Bar().ShowCategory(index, FALSE);
    }
    ASSERT_EQ(Bar().GetActiveCategory(), nullptr);
    Bar().ShowPath(L"browse");
    Bar().ShowPath(L"edit");
    EXPECT_EQ(Shown(), "[2]34");
}

TEST_F(RibbonPaths, ANamedCategoryOfTheRangeBecomesActive) {
    const std::set<std::wstring> names = {L"C3"};
    EXPECT_TRUE(Bar().ShowPath(L"edit", &names));
    EXPECT_EQ(Shown(), "2[3]4");
}

TEST_F(RibbonPaths, OfSeveralNamedCategoriesTheLastBecomesActive) {
    const std::set<std::wstring> names = {L"C2", L"C3", L"C5"};
    Bar().ShowPath(L"edit", &names);
    EXPECT_EQ(Shown(), "2[3]4") << "C5 is no category of the path";
}

TEST_F(RibbonPaths, ANamedCategoryWinsOverTheRememberedOne) {
    Bar().ShowPath(L"edit");
    Activate(4);
    Bar().ShowPath(L"browse");
    const std::set<std::wstring> names = {L"C3"};
    Bar().ShowPath(L"edit", &names);
    EXPECT_EQ(Shown(), "2[3]4");
}

TEST_F(RibbonPaths, AnEmptySetOfNamesAndNoneMeanTheRememberedCategory) {
    Bar().ShowPath(L"edit");
    Activate(3);
    Bar().ShowPath(L"browse");
    const std::set<std::wstring> names;
    Bar().ShowPath(L"edit", &names);
    EXPECT_EQ(Shown(), "2[3]4");
}

TEST_F(RibbonPaths, NamesOutsideTheRangeAndUnknownNamesChangeNothing) {
    const std::set<std::wstring> names = {L"C0", L"", L"c3", L"unknown"};
    Bar().ShowPath(L"edit", &names);
    EXPECT_EQ(Shown(), "[2]34");
}

TEST_F(RibbonPaths, APathOfOneCategoryShowsIt) {
    Bar().setPath(L"one", 5, 5, {});
    EXPECT_TRUE(Bar().ShowPath(L"one"));
    EXPECT_EQ(Shown(), "[5]");
}

// ---- ranges that make no sense

struct OddRange {
    const char* what;
    int first;
    int last;
    const char* shown;
};

class OddRibbonPaths : public RibbonPaths, public testing::WithParamInterface<OddRange> {};

TEST_P(OddRibbonPaths, AnOddRangeShowsWhatItHasAndTheBarWorksOn) {
    const OddRange& range = GetParam();
    Bar().setPath(L"odd", range.first, range.last, {1000});
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(Bar().ShowPath(L"odd"));
        EXPECT_EQ(Shown(), range.shown) << round;
        LayOut();
        EXPECT_TRUE(Bar().ShowPath(L"edit"));
        EXPECT_EQ(Shown(), "[2]34") << round;
    }
}

INSTANTIATE_TEST_SUITE_P(, OddRibbonPaths,
                         testing::Values(OddRange{"Inverted", 4, 1, ""}, OddRange{"BeyondTheLast", 4, 99, "[4]5"},
                                         OddRange{"WhollyBeyond", 50, 99, ""}, OddRange{"Negative", -9, -3, ""},
                                         // Nothing can be made active at -9, and the first that is shown stays active.
                                         OddRange{"FromNegative", -9, 1, "[0]1"},
                                         OddRange{"Everything", INT_MIN, INT_MAX, "[0]12345"}),
                         [](const auto& info) { return info.param.what; });

TEST_F(RibbonPaths, APathWithAnEmptyNameIsAPathLikeAnyOther) {
    Bar().setPath(L"", 1, 3, {});
    EXPECT_TRUE(Bar().havPath(L""));
    EXPECT_TRUE(Bar().ShowPath(L""));
    EXPECT_EQ(Shown(), "[1]23");
}

TEST_F(RibbonPaths, ABarWithoutAWindowSwitchesItsPathsToo) {
    CMFCRibbonBarEx bar(FALSE);
    bar.AddCategory(L"One", 0, 0);
    bar.AddCategory(L"Two", 0, 0);
    bar.setPath(L"second", 1, 1, {});
    EXPECT_TRUE(bar.ShowPath(L"second"));
    EXPECT_FALSE(bar.GetCategory(0)->IsVisible());
    EXPECT_EQ(bar.GetActiveCategory(), bar.GetCategory(1));
}

TEST_F(RibbonPaths, ABarWithoutCategoriesShowsItsPathsAllTheSame) {
    Bar().RemoveAllCategories();
    EXPECT_TRUE(Bar().ShowPath(L"edit"));
    EXPECT_EQ(Bar().Path(), L"edit");
    EXPECT_EQ(Bar().GetActiveCategory(), nullptr);
}

TEST_F(RibbonPaths, TheTabsOfOtherPathsAreNotOnTheBar) {
    Bar().ShowPath(L"edit");
    LayOut();
    EXPECT_TRUE(CRect(Bar().GetCategory(0)->GetTabRect()).IsRectEmpty());
    for (const int shown : {2, 3, 4}) {
        EXPECT_FALSE(CRect(Bar().GetCategory(shown)->GetTabRect()).IsRectEmpty()) << shown;
    }
}

class PathsOfAMinimizedBar : public RibbonPaths {
protected:
    /// The page of the first category, in its pop-up.
    PathsOfAMinimizedBar() {
        Bar().ShowPath(L"browse");
        Bar().ToggleMimimizeState();
        LayOut();
        m_pointer.Click(Bar(), TabOf(0));
        if (CMFCPopupMenu::GetActiveMenu() != nullptr) {
            m_popup = CMFCPopupMenu::GetActiveMenu()->GetSafeHwnd();
        }
    }
    HWND m_popup = nullptr;
};

TEST_F(PathsOfAMinimizedBar, ThePageOfACategoryThatIsHiddenCloses) {
    ASSERT_TRUE(::IsWindow(m_popup));
    EXPECT_TRUE(Bar().ShowPath(L"edit"));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    PumpPending();
    EXPECT_FALSE(::IsWindow(m_popup));
    EXPECT_EQ(Shown(), "[2]34");
}

TEST_F(PathsOfAMinimizedBar, AHostThatEndsItsWindowMeanwhileEndsTheSwitch) {
    ASSERT_TRUE(::IsWindow(m_popup));
    m_frame->onPopupClosed = [this] { m_frame->DestroyWindow(); };
    EXPECT_TRUE(Bar().ShowPath(L"edit")); // and then touches nothing
    EXPECT_FALSE(IsAlive());
}

TEST_F(PathsOfAMinimizedBar, AHostThatRemovesTheCategoriesMeanwhileIsLeftWithNone) {
    ASSERT_TRUE(::IsWindow(m_popup));
    m_frame->onPopupClosed = [this] { Bar().RemoveAllCategories(); };
    EXPECT_TRUE(Bar().ShowPath(L"edit"));
    EXPECT_EQ(Bar().GetCategoryCount(), 0);
    EXPECT_EQ(Bar().Path(), L"edit");
}

TEST_F(RibbonPaths, ThePopUpOfACollapsedPanelClosesWithItsCategory) {
    Bar().ShowPath(L"browse");
    CMFCRibbonPanel* const other = Bar().GetCategory(0)->AddPanel(L"Other");
    for (UINT id = 1900; id < 1906; ++id) {
        other->Add(new WatchedButton(id, L"A button with a very long name"));
    }
    LayOut();
    CMFCRibbonPanel& panel = CollapsePanel(*Bar().GetCategory(0), 0, [this](int width) {
        m_frame->SetWindowPos(nullptr, 0, 0, width, 500, SWP_NOMOVE | SWP_NOZORDER);
        LayOut();
    });
    m_pointer.Click(Bar(), panel.GetDefaultButton().GetRect().CenterPoint());
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    Bar().ShowPath(L"edit");
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
}

} // namespace
