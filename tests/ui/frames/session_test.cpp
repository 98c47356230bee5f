#include "frame_fixture.h"

namespace {

class Session : public ::testing::Test {
protected:
    void SetUp() override {
        g_application.saves = g_application.exits = 0;
        g_application.canSave = TRUE;
        ASSERT_TRUE(main.Load());
        ASSERT_TRUE(other.Load());
    }

    Owned<CFrameWnd> main;
    Owned<CFrameWnd> other;
    MainWindowScope scope{&main};
};

TEST_F(Session, TheMainFrameLetsItEndWhenTheApplicationHasSavedWhatWasChanged) {
    EXPECT_TRUE(main.SendMessage(WM_QUERYENDSESSION));
    EXPECT_EQ(g_application.saves, 1);
    g_application.canSave = FALSE;
    EXPECT_FALSE(main.SendMessage(WM_QUERYENDSESSION));
    EXPECT_NE(main.m_hWnd, nullptr);
    EXPECT_EQ(g_application.exits, 0);
}

TEST_F(Session, AnotherFrameHasNoObjection) {
    g_application.canSave = FALSE;
    EXPECT_TRUE(other.SendMessage(WM_QUERYENDSESSION));
    EXPECT_EQ(g_application.saves, 0);
}

TEST_F(Session, ItsEndDestroysTheMainFrameAndTheApplicationExitsOnce) {
    const HWND window = main.m_hWnd;
    ::SendMessageW(window, WM_ENDSESSION, TRUE, 0);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(g_application.exits, 1) << "while there is time";
    EXPECT_EQ(g_application.saves, 0) << "nobody is asked any more";
    EXPECT_EQ(g_application.Run(), 0);
    EXPECT_EQ(g_application.exits, 1) << "the loop's end does not exit again";
}

TEST_F(Session, AnEndThatSomebodyRefusedChangesNothing) {
    main.SendMessage(WM_ENDSESSION, FALSE);
    EXPECT_NE(main.m_hWnd, nullptr);
    EXPECT_EQ(g_application.exits, 0);
}

TEST_F(Session, AnotherFrameLeavesTheEndToTheMainFrame) {
    other.SendMessage(WM_ENDSESSION, TRUE);
    EXPECT_NE(main.m_hWnd, nullptr);
    EXPECT_EQ(g_application.exits, 0);
}

TEST_F(Session, ALoopThatEndsOtherwiseStillExits) {
    ::PostQuitMessage(4);
    EXPECT_EQ(g_application.Run(), 4);
    EXPECT_EQ(g_application.exits, 1);
}

} // namespace
