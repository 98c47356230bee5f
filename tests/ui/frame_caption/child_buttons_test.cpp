#include "tests/ui/frame_caption/caption_frame.h"

namespace {

class ChildButtons : public ::testing::Test {
protected:
    void SetUp() override {
        frame.Show();
        child = new CMDIChildWndEx;
        ASSERT_TRUE(child->Create(nullptr, L"Sheet", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 100),
                                  &frame));
        window = child->m_hWnd;
        PumpPending();
    }
    void Click(UINT command) {
        pointer.Click(frame.bar.m_hWnd, frame.Button(command, true)->GetRect().CenterPoint());
        PumpPending();
    }

    RibbonMdiFrameWithCaption frame;
    CMDIChildWnd* child = nullptr;
    HWND window = nullptr;
    Pointer pointer;
};

TEST_F(ChildButtons, OnlyAMaximizedChildShowsItsThree) {
    EXPECT_EQ(frame.Button(SC_RESTORE, true), nullptr);
    child->MDIMaximize();
    PumpPending();
    for (const UINT command : {SC_MINIMIZE, SC_RESTORE, SC_CLOSE}) {
        CMFCRibbonCaptionButton* button = frame.Button(command, true);
        ASSERT_NE(button, nullptr) << command;
        EXPECT_EQ(button->GetMDIChild(), window);
        EXPECT_GE(button->GetRect().top, frame.bar.GetCaptionHeight()) << "they lie in the row of tabs";
    }
    EXPECT_NE(frame.Button(SC_MAXIMIZE), nullptr) << "the frame keeps its own";
}

TEST_F(ChildButtons, RestoreTakesThemAway) {
    child->MDIMaximize();
    PumpPending();
    Click(SC_RESTORE);
    EXPECT_FALSE(child->IsZoomed());
    EXPECT_EQ(frame.Button(SC_RESTORE, true), nullptr);
}

TEST_F(ChildButtons, CloseClosesTheChildAndNotTheFrame) {
    child->MDIMaximize();
    PumpPending();
    Click(SC_CLOSE);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_TRUE(::IsWindow(frame.m_hWnd));
    EXPECT_EQ(frame.Button(SC_CLOSE, true), nullptr);
}

TEST_F(ChildButtons, TheTitleNamesTheMaximizedChild) {
    child->MDIMaximize();
    PumpPending();
    CString title;
    frame.GetWindowText(title);
    EXPECT_NE(title.Find(L"Sheet"), -1) << std::wstring(title).size();
}

} // namespace
