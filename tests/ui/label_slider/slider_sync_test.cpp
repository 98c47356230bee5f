// Sliders that stay at one position.
#include "tests/ui/label_slider/slider_fixture.h"

#include <gmock/gmock.h>

namespace {

class SliderSync : public LooseSliders {};

TEST_F(SliderSync, IsAPlainSliderWithItsIdAndWidth) {
    CMFCRibbonSliderSync slider(7, 80);
    EXPECT_EQ(slider.GetID(), 7u);
    EXPECT_EQ(slider.GetWidth(), 80);
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CMFCRibbonSliderSync)->CreateObject());
    EXPECT_NE(DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, made.get()), nullptr);
}

TEST_F(SliderSync, TheTooltipIsThePosition) {
    CMFCRibbonSliderSync slider(7);
    slider.SetRange(-100, 100);
    slider.SetPos(-42);
    slider.setTooltipFromPos();
    EXPECT_EQ(TipOf(slider), L"-42");
}

TEST_F(SliderSync, SettingAnyOneMovesAllAndTheirTooltips) {
    MakeChain();
    m_root.AddLinkedSlider(&m_third);
    ExpectToFollowEach({&m_root, &m_first, &m_second}, {&m_root, &m_first, &m_second, &m_third});
}

TEST_F(SliderSync, APositionOutsideOfTheRangeIsItsNearestEndInEveryCopyAndTooltip) {
    m_first.SetOriginal(&m_root);
    m_first.SetPosSync(INT_MAX, TRUE);
    ExpectAt(100, {&m_root, &m_first});
    m_first.SetPosSync(INT_MIN, TRUE);
    ExpectAt(0, {&m_root, &m_first});
}

// ---- with a window

TEST_F(SliderSyncInput, TheButtonsStepAndTellOnce) {
    m_copy->SetPosSync(10, TRUE);
    m_pointer.Click(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    ExpectAllAt(15);
    EXPECT_EQ(Commands(), 1);
    m_pointer.Click(m_host.BarWindow(), m_root->CenterOf(RibbonSliderPart::Decrease));
    ExpectAllAt(10);
    EXPECT_EQ(Commands(), 2);
}

TEST_F(SliderSyncInput, ADragTellsEachPositionThatThePointerReaches) {
    m_copy->SetPosSync(10, TRUE);
    std::vector<int> told;
    m_host.Frame().onMessage = [&](const HostMessage&) -> LRESULT {
        told.push_back(m_root->GetPos());
        return 0;
    };
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->ThumbCenter());
    m_pointer.Press();
    for (int pos = 11; pos <= 14; ++pos) {
        m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(pos));
        m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(pos)); // no change, no command
    }
    EXPECT_THAT(told, testing::ElementsAre(11, 12, 13, 14));
    m_pointer.Release();
    ExpectAllAt(14);
}

TEST_F(SliderSyncInput, AMoveWithoutAPressOnlyLightsThePart) {
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    EXPECT_EQ(Commands(), 0);
    EXPECT_EQ(m_copy->GetPos(), 0);
}

TEST_F(SliderSyncInput, IsDrawnAnewWhenAnotherPartBecomesHotAndOnlyThen) {
    const auto isDrawnAnew = [this](CPoint point) {
        PumpPending();
        m_host.Bar().ValidateRect(nullptr);
        m_copy->OnMouseMove(point);
        return ::GetUpdateRect(m_host.BarWindow(), nullptr, FALSE) != FALSE;
    };
    EXPECT_TRUE(isDrawnAnew(m_copy->CenterOf(RibbonSliderPart::Increase)));
    EXPECT_FALSE(isDrawnAnew(m_copy->CenterOf(RibbonSliderPart::Increase) + CSize(1, 0)));
    EXPECT_TRUE(isDrawnAnew(m_copy->CenterOf(RibbonSliderPart::Decrease)));
    m_host.Frame().disabledCommand = sliderId; // or the next update enables it again
    m_copy->SetDisabled(TRUE);
    EXPECT_FALSE(isDrawnAnew(m_copy->CenterOf(RibbonSliderPart::Increase)));
}

TEST_F(SliderSyncInput, AClickIntoTheChannelTakesThePositionThere) {
    m_pointer.Click(m_host.BarWindow(), m_copy->PointOf(33));
    ExpectAllAt(33);
    EXPECT_EQ(Commands(), 1);
}

TEST_F(SliderSyncInput, AReleaseOnAnotherPartDoesNothing) {
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    m_pointer.Press();
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Decrease));
    m_pointer.Release();
    EXPECT_EQ(Commands(), 0);
    EXPECT_EQ(m_copy->GetPos(), 0);
}

TEST_F(SliderSyncInput, APressThatIsTakenBackDoesNothing) {
    m_copy->SetPosSync(20, TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    m_pointer.Press();
    ::SendMessageW(m_host.BarWindow(), WM_CANCELMODE, 0, 0);
    m_pointer.Release();
    ExpectAllAt(20);
    EXPECT_EQ(Commands(), 0);
}

TEST_F(SliderSyncInput, AHeldButtonRepeats) {
    m_copy->SetPosSync(10, TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    m_pointer.Press();
    EXPECT_TRUE(m_copy->OnAutoRepeat());
    ExpectAllAt(15);
    EXPECT_TRUE(PumpUntil([this] { return m_root->GetPos() >= 25; })) << "the bar's timer repeats too";
    m_pointer.Release();
    EXPECT_GE(Commands(), 4);
    PumpPending();
    const int pos = m_root->GetPos();
    EXPECT_TRUE(m_copy->OnAutoRepeat()) << "no button is held: it goes on, and does nothing";
    EXPECT_EQ(m_root->GetPos(), pos);
}

TEST_F(SliderSyncInput, ADisabledSliderNeitherMovesNorRepeats) {
    m_copy->SetDisabled(TRUE);
    m_copy->Press(m_copy->CenterOf(RibbonSliderPart::Increase));
    EXPECT_FALSE(m_copy->OnAutoRepeat());
    m_copy->OnMouseMove(m_copy->PointOf(30));
    m_copy->OnLButtonUp(m_copy->PointOf(30));
    EXPECT_EQ(m_copy->GetPos(), 0);
    EXPECT_EQ(Commands(), 0);
}

TEST_F(SliderSyncInput, DisablingEndsADrag) {
    m_copy->SetPosSync(10, TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->ThumbCenter());
    m_pointer.Press();
    m_copy->SetDisabled(TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    m_pointer.Release();
    EXPECT_EQ(m_copy->GetPos(), 10);
    EXPECT_EQ(Commands(), 0);
}

TEST_F(SliderSyncInput, TheCommandIsTheRootsOne) {
    OpenSlider& other = m_host.Add(MakeSlider(501));
    other.SetOriginal(m_root);
    m_pointer.Click(m_host.BarWindow(), other.PointOf(33));
    EXPECT_EQ(Commands(), 1);
    EXPECT_EQ(m_host.Frame().CountCommands(501), 0);
}

TEST_F(SliderSyncInput, KeysMoveAllOfThem) {
    m_copy->SetPosSync(10, TRUE);
    EXPECT_TRUE(m_copy->Key(VK_RIGHT));
    ExpectAllAt(15);
    EXPECT_TRUE(m_copy->Key(VK_END));
    ExpectAllAt(40);
    EXPECT_EQ(Commands(), 2);
    EXPECT_TRUE(m_copy->Key(VK_END));
    EXPECT_EQ(Commands(), 2) << "nothing changed";
}

TEST_F(SliderSyncInput, AHostMaySetThePositionInTheCommand) {
    m_host.Frame().onMessage = [this](const HostMessage&) -> LRESULT {
        m_root->SetPosSync(12, TRUE);
        return 0;
    };
    m_pointer.Click(m_host.BarWindow(), m_copy->PointOf(33));
    ExpectAllAt(12);
}

} // namespace
