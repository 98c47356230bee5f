// Who follows whom among synchronised sliders, and what is left when one goes.
#include "tests/ui/label_slider/slider_fixture.h"

namespace {

TEST(SliderChain, CopiesAndRootMayGoInAnyOrder) {
    auto root = std::make_unique<CMFCRibbonSliderSync>(sliderId);
    auto first = std::make_unique<CMFCRibbonSliderSync>(sliderId);
    auto second = std::make_unique<CMFCRibbonSliderSync>(sliderId);
    first->SetOriginal(root.get());
    second->SetOriginal(first.get());
    first.reset();
    EXPECT_EQ(second->GetOriginal(), root.get());
    second->SetPosSync(30, FALSE);
    EXPECT_EQ(root->GetPos(), 30);
    root.reset();
    EXPECT_EQ(second->GetOriginal(), nullptr);
    second->SetPosSync(20, FALSE);
    EXPECT_EQ(second->GetPos(), 20);
}

TEST(SliderChain, TheFirstCopyOfARootThatGoesBecomesTheRootOfTheOthers) {
    auto root = std::make_unique<Buried<CMFCRibbonSliderSync>>(sliderId);
    CMFCRibbonSliderSync first(sliderId);
    CMFCRibbonSliderSync second(sliderId);
    CMFCRibbonSliderSync below(sliderId);
    CMFCRibbonSliderSync linked(sliderId);
    root->AddLinkedSlider(&linked);
    first.SetOriginal(root.get());
    second.SetOriginal(root.get());
    below.SetOriginal(&second);
    root.reset();
    EXPECT_EQ(first.GetOriginal(), nullptr);
    EXPECT_EQ(second.GetOriginal(), &first);
    EXPECT_EQ(below.GetOriginal(), &second);
    int pos = 10;
    for (CMFCRibbonSliderSync* const moved : {&second, &first, &below}) {
        moved->SetPosSync(++pos, FALSE);
        for (const CMFCRibbonSliderSync* slider : {&first, &second, &below, &linked})
            EXPECT_EQ(slider->GetPos(), pos);
    }
}

TEST(SliderChain, TheCopiesOfALinkedSliderThatGoesFollowItsLeader) {
    CMFCRibbonSliderSync leader(sliderId);
    auto linked = std::make_unique<Buried<CMFCRibbonSliderSync>>(sliderId);
    CMFCRibbonSliderSync first(sliderId);
    CMFCRibbonSliderSync second(sliderId);
    leader.AddLinkedSlider(linked.get());
    first.SetOriginal(linked.get());
    second.SetOriginal(linked.get());
    second.SetPosSync(3, FALSE);
    EXPECT_EQ(second.GetPos(), 3);
    EXPECT_EQ(first.GetPos(), 3);
    linked.reset();
    leader.SetPosSync(4, FALSE);
    EXPECT_EQ(first.GetPos(), 4);
    EXPECT_EQ(second.GetPos(), 4);
    second.SetPosSync(5, FALSE);
    EXPECT_EQ(first.GetPos(), 5);
    EXPECT_EQ(leader.GetPos(), 4);
}

TEST(SliderChain, ACopyFollowsItsOriginalAlone) {
    CMFCRibbonSliderSync root(sliderId);
    CMFCRibbonSliderSync other(sliderId);
    CMFCRibbonSliderSync copy(sliderId);
    copy.SetOriginal(&root);
    other.AddLinkedSlider(&copy);
    other.SetPosSync(5, FALSE);
    EXPECT_EQ(copy.GetPos(), 0);
    copy.SetPosSync(6, FALSE);
    EXPECT_EQ(root.GetPos(), 6);
    EXPECT_EQ(copy.GetPos(), 6);
}

TEST(SliderChain, AnOriginalOfAnotherClassMayGoFirst) {
    auto plain = std::make_unique<Buried<CMFCRibbonSlider>>(sliderId);
    CMFCRibbonSliderSync root(sliderId);
    CMFCRibbonSliderSync copy(sliderId);
    root.SetOriginal(plain.get());
    copy.SetOriginal(&root);
    plain.reset();
    copy.SetPosSync(5, FALSE);
    EXPECT_EQ(root.GetPos(), 5);
    root.AddLinkedSlider(&copy);
}

TEST(SliderChain, SlidersOfDifferentRangesEndAtOnePosition) {
    CMFCRibbonSliderSync root(sliderId);
    CMFCRibbonSliderSync middle(sliderId);
    CMFCRibbonSliderSync last(sliderId);
    middle.SetRange(0, 50);
    middle.SetOriginal(&root);
    last.SetOriginal(&middle);
    last.SetPos(80);
    last.NotifyCommandSync();
    for (const CMFCRibbonSliderSync* slider : {&root, &middle, &last}) {
        EXPECT_EQ(slider->GetPos(), 50);
        EXPECT_EQ(TipOf(*slider), L"50");
    }
}

TEST(SliderChain, ASliderIsLinkedOnceAndNeverToItself) {
    CMFCRibbonSliderSync root(sliderId);
    {
        CMFCRibbonSliderSync copy(sliderId);
        root.AddLinkedSlider(&copy);
        root.AddLinkedSlider(&copy);
        root.AddLinkedSlider(&root);
        root.AddLinkedSlider(nullptr);
    }
    root.SetPosSync(5, FALSE);
    EXPECT_EQ(root.GetPos(), 5);
}

TEST(SliderChain, NeverBecomesARing) {
    CMFCRibbonSliderSync root(sliderId);
    CMFCRibbonSliderSync first(sliderId);
    CMFCRibbonSliderSync second(sliderId);
    first.SetOriginal(&root);
    second.SetOriginal(&first);
    root.SetOriginal(&root);
    root.SetOriginal(&first);
    root.SetOriginal(&second);
    EXPECT_EQ(root.GetOriginal(), nullptr);
    first.SetOriginal(&first);
    EXPECT_EQ(first.GetOriginal(), &root);
    first.SetOriginal(&second);
    EXPECT_EQ(first.GetOriginal(), &root);
    first.CopyStateFrom(&second);
    EXPECT_EQ(first.GetOriginal(), &root);
    second.SetPosSync(5, FALSE);
    EXPECT_EQ(root.GetPos(), 5);
    EXPECT_EQ(first.GetPos(), 5);
}

TEST(SliderChain, NeverBecomesARingByLinksAlone) {
    CMFCRibbonSliderSync first(sliderId);
    CMFCRibbonSliderSync second(sliderId);
    first.AddLinkedSlider(&second);
    second.AddLinkedSlider(&first);
    first.SetOriginal(&second);
    EXPECT_EQ(first.GetOriginal(), nullptr);
    first.SetPosSync(5, FALSE);
    EXPECT_EQ(second.GetPos(), 5);
    second.SetPosSync(6, FALSE);
    EXPECT_EQ(first.GetPos(), 5) << "who was linked only follows";
}

TEST(SliderChain, ACopyThatGetsAnotherOriginalFollowsThatOne) {
    CMFCRibbonSliderSync first(sliderId);
    CMFCRibbonSliderSync second(sliderId);
    CMFCRibbonSliderSync copy(sliderId);
    copy.SetOriginal(&first);
    copy.SetOriginal(&second);
    first.SetPosSync(5, FALSE);
    EXPECT_EQ(copy.GetPos(), 0);
    second.SetPosSync(6, FALSE);
    EXPECT_EQ(copy.GetPos(), 6);
    copy.SetOriginal(nullptr);
    second.SetPosSync(7, FALSE);
    EXPECT_EQ(copy.GetPos(), 6);
}

TEST(SliderChain, WhoeverFollowedACopyFollowsItsRoot) {
    CMFCRibbonSliderSync root(sliderId);
    CMFCRibbonSliderSync middle(sliderId);
    CMFCRibbonSliderSync last(sliderId);
    last.SetOriginal(&middle);
    middle.SetOriginal(&root);
    root.SetPosSync(8, FALSE);
    EXPECT_EQ(last.GetPos(), 8);
}

TEST(SliderChain, AnOriginalOfAnotherClassIsNoSource) {
    CMFCRibbonSlider plain(sliderId);
    CMFCRibbonSliderSync slider(sliderId);
    slider.SetOriginal(&plain);
    slider.SetPosSync(5, FALSE);
    EXPECT_EQ(slider.GetPos(), 5);
    EXPECT_EQ(plain.GetPos(), 0);
}

} // namespace
