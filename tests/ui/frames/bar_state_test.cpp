// Which control bars a frame shows, from one run to the next.
#include "frame_fixture.h"

namespace {

class BarStateTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.Load());
        ASSERT_TRUE(first.Create(&frame, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 0xE810));
        ASSERT_TRUE(second.Create(&frame, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 0xE811));
    }
    ~BarStateTest() override {
        for (const LPCTSTR section : {L"State-Bar0", L"State-Bar1"}) {
            g_application.WriteProfileString(section, nullptr, nullptr);
        }
    }

    Owned<CFrameWnd> frame;
    CStatusBar first;
    CStatusBar second;
};

TEST_F(BarStateTest, AHiddenBarIsHiddenAgainAndAShownOneShown) {
    frame.ShowControlBar(&first, FALSE, FALSE);
    frame.SaveBarState(L"State");
    frame.ShowControlBar(&first, TRUE, FALSE);
    frame.ShowControlBar(&second, FALSE, FALSE);
    frame.LoadBarState(L"State");
    EXPECT_FALSE(first.IsVisible());
    EXPECT_TRUE(second.IsVisible());
}

TEST_F(BarStateTest, ABarOfWhichNothingIsKnownStaysAsItIs) {
    second.DestroyWindow();
    frame.SaveBarState(L"State");
    CStatusBar later;
    ASSERT_TRUE(later.Create(&frame, WS_CHILD | CBRS_BOTTOM, 0xE812));
    frame.LoadBarState(L"State");
    EXPECT_FALSE(later.IsVisible());
    EXPECT_TRUE(first.IsVisible());
}

TEST_F(BarStateTest, AnUnknownProfileAndADamagedValueChangeNothing) {
    frame.LoadBarState(L"NobodyHasKeptThis");
    frame.SaveBarState(L"State");
    g_application.WriteProfileInt(L"State-Bar0", L"Visible", 7);
    frame.ShowControlBar(&first, FALSE, FALSE);
    frame.LoadBarState(L"State");
    EXPECT_FALSE(first.IsVisible());
}

} // namespace
