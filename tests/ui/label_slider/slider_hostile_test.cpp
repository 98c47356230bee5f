// Hosts that end everything in a slider's command.
#include "tests/ui/label_slider/slider_fixture.h"

namespace {

class SliderHost : public SliderSyncInput {
protected:
    void Answer(std::function<void()> deed) {
        m_host.Frame().onMessage = [this, deed](const HostMessage&) -> LRESULT {
            m_host.Frame().onMessage = nullptr;
            ++m_deeds;
            deed();
            return 0;
        };
    }
    void ExpectQuietEnd() {
        PumpPending();
        EXPECT_EQ(m_deeds, 1);
        EXPECT_EQ(m_faults.Get(), 0);
    }

    int m_deeds = 0;
    const CountedFaults m_faults;
};

TEST_F(SliderHost, MayCloseItsWindowInTheCommandOfADrag) {
    Answer([this] { m_host.Destroy(); });
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->ThumbCenter());
    m_pointer.Press();
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    EXPECT_FALSE(m_host.IsAlive());
    ExpectQuietEnd();
}

TEST_F(SliderHost, MayCloseItsWindowInTheCommandOfARelease) {
    Answer([this] { m_host.Destroy(); });
    m_pointer.Click(m_host.BarWindow(), m_copy->PointOf(30));
    EXPECT_FALSE(m_host.IsAlive());
    ExpectQuietEnd();
}

TEST_F(SliderHost, MayCloseItsWindowWhileAButtonRepeats) {
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    m_pointer.Press();
    Answer([this] { m_host.Destroy(); });
    EXPECT_TRUE(PumpUntil([this] { return !m_host.IsAlive(); }));
    ExpectQuietEnd();
}

TEST_F(SliderHost, MayCloseItsWindowInTheCommandOfAKey) {
    Answer([this] { m_host.Destroy(); });
    EXPECT_TRUE(m_copy->Key(VK_RIGHT));
    EXPECT_FALSE(m_host.IsAlive());
    ExpectQuietEnd();
}

TEST_F(SliderHost, MayRemoveTheSlidersInTheCommandOfADrag) {
    Answer([this] { m_host.Bar().RemoveAllCategories(); });
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->ThumbCenter());
    m_pointer.Press();
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    m_pointer.Release();
    EXPECT_EQ(m_host.Bar().GetCategoryCount(), 0);
    ExpectQuietEnd();
}

TEST_F(SliderHost, MayRemoveTheSlidersWhileAButtonRepeats) {
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    m_pointer.Press();
    Answer([this] { m_host.Bar().RemoveAllCategories(); });
    EXPECT_TRUE(PumpUntil([this] { return m_deeds > 0; }));
    m_pointer.Release();
    ExpectQuietEnd();
}

} // namespace
