// States of the pointer over a ribbon, without a window.
#include "ribbon/pointer_state.h"

#include <gtest/gtest.h>

namespace {

struct Part {};

class Pointer : public testing::Test {
protected:
    Part m_one;
    Part m_other;
    ribbon::PointerState<Part> m_state;
};

TEST_F(Pointer, LightsWhatItIsOver) {
    EXPECT_EQ(m_state.HotOver(&m_one), &m_one);
    EXPECT_EQ(m_state.SetHot(&m_one), nullptr);
    EXPECT_EQ(m_state.SetHot(&m_other), &m_one) << "the former one is told";
    EXPECT_EQ(m_state.Hot(), &m_other);
}

TEST_F(Pointer, LightsOnlyWhatItHolds) {
    m_state.Press(m_one);
    EXPECT_EQ(m_state.HotOver(&m_one), &m_one);
    EXPECT_EQ(m_state.HotOver(&m_other), nullptr);
    EXPECT_EQ(m_state.HotOver(nullptr), nullptr);
}

TEST_F(Pointer, ReleasesWhatItPressedOnce) {
    m_state.Press(m_one);
    EXPECT_EQ(m_state.BeginRelease(), &m_one);
    EXPECT_FALSE(m_state.IsPressed()) << "the command may press again";
    EXPECT_TRUE(m_state.IsReleasing());
    EXPECT_EQ(m_state.EndRelease(), &m_one);
    EXPECT_EQ(m_state.BeginRelease(), nullptr);
}

TEST_F(Pointer, KnowsWhatIsGoneNoMore) {
    m_state.SetHot(&m_one);
    m_state.Press(m_one);
    m_state.Forget(&m_other);
    EXPECT_EQ(m_state.Pressed(), &m_one);
    m_state.Forget(&m_one);
    EXPECT_EQ(m_state.Hot(), nullptr);
    EXPECT_FALSE(m_state.IsPressed());

    m_state.Press(m_one);
    m_state.BeginRelease();
    m_state.Forget(&m_one);
    EXPECT_EQ(m_state.EndRelease(), nullptr);

    m_state.Press(m_one);
    m_state.Drop();
    m_state.Forget(&m_one);
    EXPECT_EQ(m_state.ReleaseDropped(), nullptr);
}

TEST_F(Pointer, EndsThePressThatOpenedAPopup) {
    m_state.Press(m_one);
    EXPECT_EQ(m_state.Drop(), &m_one);
    EXPECT_FALSE(m_state.IsPressed());
    EXPECT_EQ(m_state.ReleaseDropped(), &m_one) << "the button that is still down";
    EXPECT_EQ(m_state.ReleaseDropped(), nullptr);
}

TEST_F(Pointer, CancelsAPressAndItsDrop) {
    m_state.Press(m_one);
    EXPECT_EQ(m_state.Cancel(), &m_one);
    EXPECT_EQ(m_state.Cancel(), nullptr);
    m_state.Press(m_one);
    m_state.Drop();
    EXPECT_EQ(m_state.Cancel(), nullptr);
    EXPECT_EQ(m_state.ReleaseDropped(), nullptr);
}

TEST(FirstRepeat, WaitsAsLongAsAHeldKeyDoes) {
    EXPECT_EQ(ribbon::FirstRepeatDelay(0, 100), 250u);
    EXPECT_EQ(ribbon::FirstRepeatDelay(1, 100), 500u);
    EXPECT_EQ(ribbon::FirstRepeatDelay(3, 100), 1000u);
}

TEST(FirstRepeat, TakesAnySettingAndIsNeverQuickerThanTheOthers) {
    EXPECT_EQ(ribbon::FirstRepeatDelay(-5, 100), 250u);
    EXPECT_EQ(ribbon::FirstRepeatDelay(99, 100), 1000u);
    EXPECT_EQ(ribbon::FirstRepeatDelay(0, 400), 400u);
}

} // namespace
