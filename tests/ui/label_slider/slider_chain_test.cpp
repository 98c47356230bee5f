// Who follows whom among synchronised sliders, and what is left when one goes.
#include "tests/ui/label_slider/slider_fixture.h"

namespace {

class SliderChain : public LooseSliders {
protected:
    using Leaving = Buried<CMFCRibbonSliderSync>;

    static std::unique_ptr<Leaving> MakeLeaving() { return std::make_unique<Leaving>(sliderId); }
};

TEST_F(SliderChain, CopiesAndRootMayGoInAnyOrder) {
    auto root = MakeLeaving();
    auto first = MakeLeaving();
    first->SetOriginal(root.get());
    m_second.SetOriginal(first.get());
    first.reset();
    EXPECT_EQ(m_second.GetOriginal(), root.get());
    m_second.SetPosSync(30, FALSE);
    EXPECT_EQ(root->GetPos(), 30);
    root.reset();
    EXPECT_EQ(m_second.GetOriginal(), nullptr);
    m_second.SetPosSync(20, FALSE);
    EXPECT_EQ(m_second.GetPos(), 20);
}

TEST_F(SliderChain, TheFirstCopyOfARootThatGoesBecomesTheRootOfTheOthers) {
    auto root = MakeLeaving();
    CMFCRibbonSliderSync linked(sliderId);
    root->AddLinkedSlider(&linked);
    m_first.SetOriginal(root.get());
    m_second.SetOriginal(root.get());
    m_third.SetOriginal(&m_second);
    root.reset();
    EXPECT_EQ(m_first.GetOriginal(), nullptr);
    EXPECT_EQ(m_second.GetOriginal(), &m_first);
    EXPECT_EQ(m_third.GetOriginal(), &m_second);
    ExpectToFollowEach({&m_second, &m_first, &m_third}, {&m_first, &m_second, &m_third, &linked});
}

TEST_F(SliderChain, TheCopiesOfALinkedSliderThatGoesFollowItsLeader) {
    auto linked = MakeLeaving();
    m_root.AddLinkedSlider(linked.get());
    m_first.SetOriginal(linked.get());
    m_second.SetOriginal(linked.get());
    m_second.SetPosSync(3, FALSE);
    ExpectAt(3, {&m_first, &m_second});
    linked.reset();
    m_root.SetPosSync(4, FALSE);
    ExpectAt(4, {&m_first, &m_second});
    m_second.SetPosSync(5, FALSE);
    EXPECT_EQ(m_first.GetPos(), 5);
    EXPECT_EQ(m_root.GetPos(), 4);
}

TEST_F(SliderChain, ACopyFollowsItsOriginalAlone) {
    m_first.SetOriginal(&m_root);
    m_second.AddLinkedSlider(&m_first);
    m_second.SetPosSync(5, FALSE);
    EXPECT_EQ(m_first.GetPos(), 0);
    m_first.SetPosSync(6, FALSE);
    ExpectAt(6, {&m_root, &m_first});
}

TEST_F(SliderChain, AnOriginalOfAnotherClassMayGoFirst) {
    auto plain = std::make_unique<Buried<CMFCRibbonSlider>>(sliderId);
    m_root.SetOriginal(plain.get());
    m_first.SetOriginal(&m_root);
    plain.reset();
    m_first.SetPosSync(5, FALSE);
    EXPECT_EQ(m_root.GetPos(), 5);
    m_root.AddLinkedSlider(&m_first);
}

TEST_F(SliderChain, SlidersOfDifferentRangesEndAtOnePosition) {
    m_first.SetRange(0, 50);
    MakeChain();
    m_second.SetPos(80);
    m_second.NotifyCommandSync();
    ExpectAt(50, {&m_root, &m_first, &m_second});
}

TEST_F(SliderChain, ASliderIsLinkedOnceAndNeverToItself) {
    auto linked = MakeLeaving();
    m_root.AddLinkedSlider(linked.get());
    m_root.AddLinkedSlider(linked.get());
    m_root.AddLinkedSlider(&m_root);
    m_root.AddLinkedSlider(nullptr);
    linked.reset();
    m_root.SetPosSync(5, FALSE);
    EXPECT_EQ(m_root.GetPos(), 5);
}

TEST_F(SliderChain, NeverBecomesARing) {
    MakeChain();
    for (CMFCRibbonSliderSync* below : {&m_root, &m_first, &m_second}) {
        m_root.SetOriginal(below);
    }
    EXPECT_EQ(m_root.GetOriginal(), nullptr);
    for (CMFCRibbonSliderSync* below : {&m_first, &m_second}) {
        m_first.SetOriginal(below);
        EXPECT_EQ(m_first.GetOriginal(), &m_root);
    }
    m_first.CopyStateFrom(&m_second);
    EXPECT_EQ(m_first.GetOriginal(), &m_root);
    m_second.SetPosSync(5, FALSE);
    ExpectAt(5, {&m_root, &m_first});
}

TEST_F(SliderChain, NeverBecomesARingByLinksAlone) {
    m_first.AddLinkedSlider(&m_second);
    m_second.AddLinkedSlider(&m_first);
    m_first.SetOriginal(&m_second);
    EXPECT_EQ(m_first.GetOriginal(), nullptr);
    m_first.SetPosSync(5, FALSE);
    EXPECT_EQ(m_second.GetPos(), 5);
    m_second.SetPosSync(6, FALSE);
    EXPECT_EQ(m_first.GetPos(), 5) << "who was linked only follows";
}

TEST_F(SliderChain, ACopyThatGetsAnotherOriginalFollowsThatOne) {
    m_third.SetOriginal(&m_first);
    m_third.SetOriginal(&m_second);
    m_first.SetPosSync(5, FALSE);
    EXPECT_EQ(m_third.GetPos(), 0);
    m_second.SetPosSync(6, FALSE);
    EXPECT_EQ(m_third.GetPos(), 6);
    m_third.SetOriginal(nullptr);
    m_second.SetPosSync(7, FALSE);
    EXPECT_EQ(m_third.GetPos(), 6);
}

TEST_F(SliderChain, WhoeverFollowedACopyFollowsItsRoot) {
    m_second.SetOriginal(&m_first);
    m_first.SetOriginal(&m_root);
    m_root.SetPosSync(8, FALSE);
    EXPECT_EQ(m_second.GetPos(), 8);
}

TEST_F(SliderChain, AnOriginalOfAnotherClassIsNoSource) {
    CMFCRibbonSlider plain(sliderId);
    m_root.SetOriginal(&plain);
    m_root.SetPosSync(5, FALSE);
    EXPECT_EQ(m_root.GetPos(), 5);
    EXPECT_EQ(plain.GetPos(), 0);
}

} // namespace
