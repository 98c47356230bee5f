// Keys and steps of the framework's slider.
#include "tests/support/pointer.h"
#include "tests/support/ribbon_host.h"

#include <afxribbonslider.h>

#include <climits>

namespace {

class OpenSlider : public CMFCRibbonSlider {
public:
    OpenSlider() : CMFCRibbonSlider(7, 100) {}
    BOOL Key(UINT key) { return OnProcessKey(key); }
};

struct KeyStep {
    UINT key;
    int expected;
};

TEST(SliderKeys, MoveByAnIncrementAPageOrToTheEnds) {
    // From 50 of 0 to 100 by 3; a page is a fifth of the range.
    for (const KeyStep step : {KeyStep{VK_LEFT, 47},
                               {VK_DOWN, 47},
                               {VK_RIGHT, 53},
                               {VK_UP, 53},
                               {VK_PRIOR, 70},
                               {VK_NEXT, 30},
                               {VK_HOME, 0},
                               {VK_END, 100}}) {
        OpenSlider slider;
        slider.SetZoomIncrement(3);
        slider.SetPos(50);
        EXPECT_TRUE(slider.Key(step.key));
        EXPECT_EQ(slider.GetPos(), step.expected) << step.key;
    }
}

TEST(SliderKeys, StopAtTheEndsWhateverTheStep) {
    OpenSlider slider;
    slider.SetRange(INT_MIN, INT_MAX);
    slider.SetZoomIncrement(INT_MAX);
    slider.SetPos(INT_MAX - 1);
    slider.Key(VK_RIGHT);
    EXPECT_EQ(slider.GetPos(), INT_MAX);
    slider.SetPos(INT_MIN + 1);
    slider.Key(VK_LEFT);
    EXPECT_EQ(slider.GetPos(), INT_MIN);
    slider.Key(VK_PRIOR);
    EXPECT_EQ(slider.GetPos(), -1) << "an increment of half the range is the larger page";
}

TEST(SliderKeys, APageIsNeverLessThanAnIncrement) {
    OpenSlider slider;
    slider.SetRange(0, 10);
    slider.SetZoomIncrement(4);
    slider.Key(VK_PRIOR);
    EXPECT_EQ(slider.GetPos(), 4);
}

TEST(SliderKeys, OtherKeysAndADisabledSliderAreLeftAlone) {
    OpenSlider slider;
    slider.SetPos(50);
    EXPECT_FALSE(slider.Key(VK_RETURN));
    EXPECT_FALSE(slider.Key('A'));
    slider.SetDisabled(TRUE);
    EXPECT_FALSE(slider.Key(VK_HOME));
    EXPECT_EQ(slider.GetPos(), 50);
}

} // namespace
