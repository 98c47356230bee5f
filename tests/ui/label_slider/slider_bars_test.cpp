// One slider in several places: bars of their own, copies that the framework makes.
#include "tests/ui/label_slider/slider_fixture.h"

namespace {

/// The root is in one frame's bar and its copy in another's.
class SliderBars : public testing::Test {
protected:
    void SetUp() override {
        m_root = &m_first.Add(MakeSlider());
        m_copy = &m_second.Add(MakeSlider());
        m_copy->SetOriginal(m_root);
    }
    /// A click on the channel of the copy.
    void ClickCopyAt(int pos) {
        m_copy->Press(m_copy->PointOf(pos));
        m_copy->OnLButtonUp(m_copy->PointOf(pos));
    }

    RibbonHost m_first;
    RibbonHost m_second;
    OpenSlider* m_root = nullptr;
    OpenSlider* m_copy = nullptr;
};

TEST_F(SliderBars, ACopyInAnotherBarSendsTheCommandToTheOwnerOfTheRootsBarOnly) {
    ClickCopyAt(30);
    EXPECT_EQ(m_copy->GetPos(), 30);
    EXPECT_EQ(m_root->GetPos(), 30);
    EXPECT_EQ(m_first.Frame().CountCommands(sliderId), 1);
    EXPECT_EQ(m_second.Frame().CountCommands(sliderId), 0);
}

TEST_F(SliderBars, AChangeOfTheRootIsSeenInTheOtherBar) {
    m_root->Press(m_root->PointOf(35));
    m_root->OnLButtonUp(m_root->PointOf(35));
    EXPECT_EQ(m_copy->GetPos(), 35);
    EXPECT_EQ(TipOf(*m_copy), L"35");
    EXPECT_EQ(m_first.Frame().CountCommands(sliderId), 1);
    EXPECT_EQ(m_second.Frame().CountCommands(sliderId), 0);
}

TEST_F(SliderBars, TheRootsBarMayGo) {
    m_first.Destroy();
    PumpPending();
    const CountedFaults faults;
    ClickCopyAt(30);
    EXPECT_EQ(m_copy->GetPos(), 30);
    EXPECT_EQ(m_second.Frame().CountCommands(sliderId), 1) << "the copy is the root now";
    EXPECT_EQ(faults.Get(), 0);
}

TEST_F(SliderBars, WhereTheRootIsInNoBarAllMoveAndNobodyIsTold) {
    CMFCRibbonSliderSync loose(sliderId + 1);
    loose.SetRange(0, 40);
    m_root->SetOriginal(&loose);
    ClickCopyAt(30);
    for (const CMFCRibbonSliderSync* const slider :
         {static_cast<const CMFCRibbonSliderSync*>(&loose), static_cast<const CMFCRibbonSliderSync*>(m_root),
          static_cast<const CMFCRibbonSliderSync*>(m_copy)}) {
        EXPECT_EQ(slider->GetPos(), 30);
    }
    EXPECT_TRUE(m_first.Frame().received.empty());
    EXPECT_TRUE(m_second.Frame().received.empty());
}

TEST_F(SliderBars, WhereTheRootIsDisabledAllMoveAndNobodyIsTold) {
    m_root->SetDisabled(TRUE);
    ClickCopyAt(30);
    EXPECT_EQ(m_root->GetPos(), 30);
    EXPECT_EQ(m_copy->GetPos(), 30);
    EXPECT_TRUE(m_first.Frame().received.empty());
    EXPECT_TRUE(m_second.Frame().received.empty());
}

/// A copy that the framework makes: that of a sub-item, when its button goes onto the quick access toolbar.
TEST_F(SliderBars, ASubItemsCopyOnTheQuickAccessToolbarMovesWithTheSubItem) {
    constexpr UINT buttonId = 620;
    auto button = std::make_unique<CMFCRibbonButton>(buttonId, L"Scale");
    CMFCRibbonSliderSync* const item = MakeSlider(buttonId + 1, 100).release();
    button->AddSubItem(item);
    item->SetOriginal(m_root);
    m_first.Add(std::move(button));
    CList<UINT, UINT> commands;
    commands.AddTail(buttonId);
    m_first.Bar().SetQuickAccessCommands(commands, TRUE);
    PumpPending();
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    m_first.Bar().GetElementsByID(buttonId, elements);
    CMFCRibbonSliderSync* copy = nullptr;
    for (INT_PTR i = 0; i < elements.GetSize(); ++i) {
        if (elements[i]->IsQATMode()) {
            copy =
                DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, dynamic_cast<CMFCRibbonButton&>(*elements[i]).GetSubItems()[0]);
        }
    }
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->GetOriginal(), item);
    copy->SetPosSync(12, TRUE);
    for (const CMFCRibbonSliderSync* const slider :
         {item, static_cast<CMFCRibbonSliderSync*>(m_root), static_cast<CMFCRibbonSliderSync*>(m_copy)}) {
        EXPECT_EQ(slider->GetPos(), 12);
    }
    m_copy->SetPosSync(13, TRUE);
    EXPECT_EQ(copy->GetPos(), 13);
    EXPECT_EQ(TipOf(*copy), L"13");
    copy->NotifyCommandSync();
    EXPECT_EQ(m_first.Frame().CountCommands(sliderId), 1) << "the root's";
    EXPECT_EQ(m_first.Frame().CountCommands(buttonId + 1), 0);
}

} // namespace
