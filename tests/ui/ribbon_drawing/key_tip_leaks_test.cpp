// Key tips are windows of their own: shown and hidden hundreds of times they leave nothing behind.
#include "tests/support/gui_objects.h"
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

namespace {

TEST_F(KeyboardTest, KeyTipsShownAndHiddenLeaveNothingBehind) {
    int failed = 0;
    EXPECT_TRUE(RepeatedLeavesNothingBehind(30, 500, [&](int) {
        Press({VK_MENU});
        failed += ShownTips().empty() ? 1 : 0;
        Press({VK_MENU});
        failed += ShownTips().empty() ? 0 : 1;
    }));
    EXPECT_EQ(failed, 0) << "did not come or did not go";
}

} // namespace
