// What comes to the bar is never seen enabled and unchecked first: its commands are asked before it is drawn.
#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

/// Notes in which states it was drawn.
class Witness : public CMFCRibbonButton {
public:
    using CMFCRibbonButton::CMFCRibbonButton;
    void OnDraw(CDC* pDC) override {
        ++draws;
        wrongDraws += IsDisabled() && IsChecked() ? 0 : 1;
        CMFCRibbonButton::OnDraw(pDC);
    }
    int draws = 0;
    int wrongDraws = 0;
};

class FirstStates : public RibbonBarTest {
protected:
    static constexpr UINT kCommand = commands::firstHandled + 2500;

    FirstStates() {
        m_frame->disabledCommand = kCommand;
        m_frame->checkedCommand = kCommand;
        RunIdle();
        Bar().UpdateWindow();
    }
    Witness& AddWitness(CMFCRibbonCategory& category) {
        auto* const witness = new Witness(kCommand, L"Witness");
        category.AddPanel(L"Panel")->Add(witness);
        return *witness;
    }
    CMFCRibbonCategory& AddCategory() { return *Bar().AddCategory(L"New", 0, 0); }
    static void ExpectSeenRight(const Witness& witness) {
        EXPECT_GT(witness.draws, 0);
        EXPECT_EQ(witness.wrongDraws, 0) << "of " << witness.draws;
    }
};

TEST_F(FirstStates, OfARibbonThatIsBuiltAnew) {
    Bar().RemoveAllCategories();
    const Witness& witness = AddWitness(AddCategory());
    Bar().ForceRecalcLayout();
    ExpectSeenRight(witness);
}

TEST_F(FirstStates, OfARibbonThatThePaintLaysOut) {
    Bar().RemoveAllCategories();
    const Witness& witness = AddWitness(AddCategory());
    Bar().UpdateWindow();
    ExpectSeenRight(witness);
}

TEST_F(FirstStates, OfATabThatIsSwitchedTo) {
    CMFCRibbonCategory& category = AddCategory();
    const Witness& witness = AddWitness(category);
    RunIdle();
    EXPECT_EQ(witness.draws, 0);
    Bar().SetActiveCategory(&category);
    Bar().UpdateWindow();
    ExpectSeenRight(witness);
}

TEST_F(FirstStates, OfATabWhoseCommandsHaveChangedWhileAnotherOneWasShown) {
    CMFCRibbonCategory& category = AddCategory();
    Witness& witness = AddWitness(category);
    Bar().SetActiveCategory(&category);
    RunIdle();
    Bar().UpdateWindow();
    Bar().SetActiveCategory(Bar().GetCategory(0));
    m_frame->disabledCommand = 0;
    RunIdle();
    Bar().UpdateWindow();
    witness.wrongDraws = 0;
    Bar().SetActiveCategory(&category);
    Bar().UpdateWindow();
    EXPECT_GT(witness.wrongDraws, 0) << "it is enabled now";
    EXPECT_FALSE(witness.IsDisabled());
}

TEST_F(FirstStates, OfAnElementThatIsAddedToAPanelThatIsShown) {
    auto* const witness = new Witness(kCommand, L"Witness");
    Bar().GetCategory(0)->GetPanel(0)->Add(witness);
    Bar().RecalcLayout();
    Bar().UpdateWindow();
    ExpectSeenRight(*witness);
}

TEST_F(FirstStates, OfARibbonThatIsNoLongerMinimised) {
    const Witness& witness = AddWitness(*Bar().GetCategory(0));
    Bar().ToggleMimimizeState();
    RunIdle();
    Bar().UpdateWindow();
    EXPECT_EQ(witness.draws, 0);
    Bar().ToggleMimimizeState();
    Bar().UpdateWindow();
    ExpectSeenRight(witness);
}

TEST_F(FirstStates, AreAskedOnceAndNotAtEveryPaint) {
    int asked = 0;
    AddWitness(*Bar().GetCategory(0));
    m_frame->onUpdate = [&asked] { ++asked; };
    Bar().UpdateWindow();
    EXPECT_GT(asked, 0);
    asked = 0;
    for (int paint = 0; paint < 5; ++paint) {
        Bar().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    EXPECT_EQ(asked, 0);
}

TEST_F(FirstStates, AnAnswerThatIsNeverTwiceTheSameIsNotAskedForWithoutEnd) {
    int asked = 0;
    m_frame->renamedCommand = kCommand;
    m_frame->onUpdate = [&] { m_frame->newName = CString(L'm', 1 + ++asked % 40); };
    AddWitness(*Bar().GetCategory(0));
    Bar().UpdateWindow();
    const int once = asked;
    EXPECT_GT(once, 0);
    for (int paint = 0; paint < 5; ++paint) {
        Bar().UpdateWindow();
    }
    EXPECT_EQ(asked, once);
}

TEST_F(FirstStates, AnAnswerMayLayTheBarOut) {
    AddWitness(*Bar().GetCategory(0));
    m_frame->onUpdate = [&] { Bar().RecalcLayout(); };
    Bar().UpdateWindow();
    RunIdle();
}

} // namespace
