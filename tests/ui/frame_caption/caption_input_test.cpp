// The caption under the real pointer and keyboard.
#include "tests/ui/frame_caption/caption_frame.h"

namespace {

class CaptionInput : public ::testing::Test {
protected:
    CaptionInput() { frame.Show(); }
    RibbonFrameWithCaption frame;
};

TEST_F(CaptionInput, ADragMovesTheFrame) {
    const CRect before = frame.WindowRect();
    const CPoint from = frame.CaptionPoint();
    StartDrag(from, from + CPoint(60, 45));
    EXPECT_TRUE(PumpUntil([&] { return frame.WindowRect().TopLeft() == before.TopLeft() + CPoint(60, 45); }))
        << frame.WindowRect().left << ' ' << frame.WindowRect().top;
    EXPECT_EQ(frame.WindowRect().Size(), before.Size());
}

TEST_F(CaptionInput, ADoubleClickMaximizes) {
    const CPoint point = frame.CaptionPoint();
    SendClick(point);
    SendClick(point);
    EXPECT_TRUE(PumpUntil([&] { return frame.IsZoomed() != FALSE; }));
}

TEST_F(CaptionInput, ADragOfTheBorderResizes) {
    const CRect before = frame.WindowRect();
    const CPoint from(before.right - 1, before.CenterPoint().y + 60);
    StartDrag(from, from - CPoint(50, 0));
    EXPECT_TRUE(PumpUntil([&] { return frame.WindowRect().Width() == before.Width() - 50; }))
        << frame.WindowRect().Width();
    EXPECT_EQ(frame.WindowRect().TopLeft(), before.TopLeft());
}

TEST_F(CaptionInput, ARightClickOpensTheSystemMenu) {
    const CountingPopupMenu menus;
    SendClick(frame.CaptionPoint(), MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    EXPECT_TRUE(PumpUntil([&] { return menus.Count() == 1; }));
}

TEST_F(CaptionInput, AltSpaceOpensTheSystemMenu) {
    const CountingPopupMenu menus;
    INPUT keys[4]{};
    for (INPUT& key : keys) {
        key.type = INPUT_KEYBOARD;
    }
    keys[0].ki.wVk = keys[3].ki.wVk = VK_MENU;
    keys[1].ki.wVk = keys[2].ki.wVk = VK_SPACE;
    keys[2].ki.dwFlags = keys[3].ki.dwFlags = KEYEVENTF_KEYUP;
    ASSERT_EQ(::SendInput(4, keys, sizeof(INPUT)), 4u);
    EXPECT_TRUE(PumpUntil([&] { return menus.Count() == 1; }));
}

TEST_F(CaptionInput, TheCloseButtonLightsUpUnderThePointerAndCloses) {
    const CPoint close = frame.OnScreen(frame.Button(SC_CLOSE)->GetRect().CenterPoint());
    SendMouse(close, 0);
    EXPECT_TRUE(PumpUntil([&] { return frame.Button(SC_CLOSE)->IsHighlighted() != FALSE; }));
    SendMouse(frame.CaptionPoint(), 0);
    EXPECT_TRUE(PumpUntil([&] { return frame.Button(SC_CLOSE)->IsHighlighted() == FALSE; }));
    const HWND window = frame.m_hWnd;
    SendClick(close);
    EXPECT_TRUE(PumpUntil([&] { return ::IsWindow(window) == FALSE; }));
}

} // namespace
