#include "tests/support/import_spy.h"
#include "tests/support/module_imports.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

int g_invalidated = 0;

BOOL WINAPI CountInvalidation(HWND window, const RECT* rect, BOOL erases) {
    ++g_invalidated;
    return ::InvalidateRect(window, rect, erases);
}

/// Counts what the framework invalidates while it lives.
class InvalidationCounter {
public:
    InvalidationCounter() { g_invalidated = 0; }
    int Count() const { return g_invalidated; }

private:
    ImportSpy<decltype(CountInvalidation)> m_spy{*FindImport(::GetModuleHandleW(L"bwframework.dll"), "InvalidateRect"),
                                                 &CountInvalidation};
};

void AddTwentyButtons(CMFCRibbonBar& bar) {
    constexpr UINT first = 1500;
    for (UINT index = 0; index < 20; ++index) {
        bar.GetCategory(0)->GetPanel(0)->Add(new CMFCRibbonButton(first + index, L"B"));
    }
}

TEST_F(RibbonBarTest, ManyChangesAskForOnePaint) {
    Bar().UpdateWindow();
    for (int round = 0; round < 2; ++round) {
        const InvalidationCounter counter;
        AddTwentyButtons(Bar());
        EXPECT_EQ(counter.Count(), 1) << "in round " << round;
        CRect update;
        EXPECT_TRUE(Bar().GetUpdateRect(update));
        Bar().UpdateWindow();
        EXPECT_FALSE(Bar().GetUpdateRect(update));
    }
}

TEST_F(RibbonBarTest, ChangesOfABarThatNobodySeesAskForNoPaintUntilItIsShown) {
    m_frame->ShowWindow(SW_HIDE);
    const InvalidationCounter counter;
    AddTwentyButtons(Bar());
    EXPECT_EQ(counter.Count(), 0);
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    CRect update;
    EXPECT_TRUE(Bar().GetUpdateRect(update));
    Bar().UpdateWindow();
    Element(1501).SetText(L"Another text than before");
    EXPECT_TRUE(Bar().GetUpdateRect(update));
}

TEST_F(RibbonBarTest, IdleTimeEnablesAndChecksWhatTheHandlersSay) {
    m_frame->disabledCommand = commands::cut;
    m_frame->checkedCommand = commands::options;
    RunIdle();
    EXPECT_TRUE(Element(commands::cut).IsDisabled());
    EXPECT_FALSE(Element(commands::paste).IsDisabled());
    EXPECT_TRUE(Element(commands::options).IsChecked());
    EXPECT_FALSE(Element(commands::bold).IsChecked());
    m_frame->disabledCommand = 0;
    m_frame->checkedCommand = commands::bold;
    RunIdle();
    EXPECT_FALSE(Element(commands::cut).IsDisabled());
    EXPECT_TRUE(Element(commands::bold).IsChecked()) << "buttons inside groups are updated too";
    EXPECT_FALSE(Element(commands::options).IsChecked());
}

TEST_F(RibbonBarTest, ACommandWithoutHandlerIsDisabled) {
    Bar().SetActiveCategory(Bar().GetCategory(1));
    PumpPending();
    RunIdle();
    EXPECT_TRUE(Element(commands::noHandler).IsDisabled());
    EXPECT_FALSE(Element(commands::find).IsDisabled());
}

TEST_F(RibbonBarTest, ElementsOfOtherCategoriesAreNotUpdated) {
    m_frame->disabledCommand = commands::find;
    RunIdle();
    EXPECT_FALSE(Element(commands::find).IsDisabled());
    Bar().SetActiveCategory(Bar().GetCategory(1));
    RunIdle();
    EXPECT_TRUE(Element(commands::find).IsDisabled());
}

TEST_F(RibbonBarTest, QuickAccessCopiesAreUpdatedWithoutTheirCategory) {
    Bar().SetQuickAccessCommands(CommandList{commands::find});
    m_frame->disabledCommand = commands::find;
    RunIdle();
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    Bar().GetElementsByID(commands::find, elements);
    ASSERT_EQ(elements.GetSize(), 2);
    EXPECT_FALSE(elements[0]->IsDisabled());
    EXPECT_TRUE(elements[1]->IsDisabled());
}

TEST_F(RibbonBarTest, AnUpdateThatChangesNothingDrawsNothing) {
    RunIdle();
    Bar().UpdateWindow();
    RunIdle();
    CRect update;
    EXPECT_FALSE(Bar().GetUpdateRect(update));
}

TEST_F(RibbonBarTest, ANewTextLaysTheBarOutBeforeItIsNextDrawn) {
    const int before = Element(commands::cut).GetRect().Width();
    const CRect neighbour = Bar().GetCategory(0)->GetPanel(1)->GetRect();
    Element(commands::cut).SetText(L"Cut out and keep what was chosen");
    Bar().UpdateWindow();
    EXPECT_GT(Element(commands::cut).GetRect().Width(), before);
    EXPECT_GT(Bar().GetCategory(0)->GetPanel(1)->GetRect().left, neighbour.left);
}

TEST_F(RibbonBarTest, ATextFromAnUpdateHandlerLaysTheBarOutOnce) {
    const int before = Element(commands::cut).GetRect().Width();
    m_frame->renamedCommand = commands::cut;
    m_frame->newName = L"Cut out and keep what was chosen";
    RunIdle();
    Bar().UpdateWindow();
    EXPECT_GT(Element(commands::cut).GetRect().Width(), before);
    RunIdle();
    CRect update;
    EXPECT_FALSE(Bar().GetUpdateRect(update)) << "the same text again";
}

TEST_F(RibbonBarTest, AHiddenElementGivesUpItsPlaceAndGetsItBack) {
    CMFCRibbonBaseElement& cut = Element(commands::cut);
    const CRect place = cut.GetRect();
    const CRect below = Element(commands::copy).GetRect();
    cut.SetVisible(FALSE);
    Bar().UpdateWindow();
    EXPECT_TRUE(cut.GetRect().IsRectEmpty());
    EXPECT_EQ(Element(commands::copy).GetRect().TopLeft(), place.TopLeft());
    cut.SetVisible(TRUE);
    Bar().UpdateWindow();
    EXPECT_EQ(cut.GetRect(), place);
    EXPECT_EQ(Element(commands::copy).GetRect(), below);
}

/// Shows another text than its own while it draws.
class LendingButton : public CMFCRibbonButton {
public:
    using CMFCRibbonButton::CMFCRibbonButton;
    void OnDraw(CDC* dc) override {
        const CString own = GetText();
        SetText(L"Shown instead");
        CMFCRibbonButton::OnDraw(dc);
        SetText(own);
    }
};

TEST_F(RibbonBarTest, ATextThatIsLentForADrawDrawsNothingAgain) {
    Bar().GetCategory(0)->GetPanel(0)->Add(new LendingButton(commands::firstHandled + 500, L"Own"));
    Bar().UpdateWindow();
    CRect update;
    EXPECT_FALSE(Bar().GetUpdateRect(update));
}

} // namespace
