// The helpers themselves: what they claim to send.
#include "tests/support/keys.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"
#include <fx/scoped_change.h>

namespace {

class Recorder : public TestWindow {
public:
    using TestWindow::TestWindow;
    std::vector<std::pair<UINT, CPoint>> m_mouse;
    std::wstring m_text;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
            m_mouse.emplace_back(message,
                                 CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))));
        } else if (message == WM_CHAR) {
            m_text += static_cast<wchar_t>(wParam);
        }
        return TestWindow::WindowProc(message, wParam, lParam);
    }
};

TEST(Support, AClickIsMoveDownAndUpInClientCoordinates) {
    Recorder window;
    Pointer pointer;
    pointer.Click(window.m_hWnd, {30, 40});
    ASSERT_EQ(window.m_mouse.size(), 3u);
    EXPECT_EQ(window.m_mouse[0], std::make_pair(UINT{WM_MOUSEMOVE}, CPoint(30, 40)));
    EXPECT_EQ(window.m_mouse[1].first, static_cast<UINT>(WM_LBUTTONDOWN));
    EXPECT_EQ(window.m_mouse[2].first, static_cast<UINT>(WM_LBUTTONUP));
}

TEST(Support, TheCaptureGetsWhatHappensElsewhere) {
    Recorder window;
    window.SetCapture();
    Pointer pointer;
    pointer.MoveTo(window.m_hWnd, {-20, 900});
    ::ReleaseCapture();
    ASSERT_EQ(window.m_mouse.size(), 1u);
    EXPECT_EQ(window.m_mouse[0].second, CPoint(-20, 900));
}

TEST(Support, ADoubleClickIsOneForAClassThatWantsThem) {
    Recorder window;
    Pointer pointer;
    pointer.DoubleClick(window.m_hWnd, {5, 5});
    EXPECT_EQ(window.m_mouse[3].first, static_cast<UINT>(WM_LBUTTONDBLCLK));
}

namespace {

/// Takes a hole out of the window, 20 pixels wide and high, 40 from the corner where its co-ordinates begin.
void CutHole(CWnd& window) {
    CRect rect;
    window.GetWindowRect(&rect);
    CRgn shape;
    shape.CreateRectRgn(0, 0, rect.Width(), rect.Height());
    CRgn hole;
    hole.CreateRectRgn(40, 40, 60, 60);
    shape.CombineRgn(&shape, &hole, RGN_DIFF);
    window.SetWindowRgn(static_cast<HRGN>(shape.Detach()), FALSE);
}

} // namespace

TEST(Support, AClickThroughTheHoleOfAShapedWindowReachesWhatLiesBelow) {
    Recorder below;
    Recorder above;
    CRect rect;
    below.GetWindowRect(&rect);
    above.SetWindowPos(&CWnd::wndTop, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOACTIVATE);
    CutHole(above);
    Pointer pointer;
    pointer.MoveTo(rect.TopLeft() + CSize(50, 50));
    EXPECT_EQ(pointer.Target(), below.m_hWnd);
    EXPECT_EQ(below.m_mouse.size(), 1u);
    pointer.MoveTo(rect.TopLeft() + CSize(65, 50));
    EXPECT_EQ(pointer.Target(), above.m_hWnd) << "beside the hole";
}

TEST(Support, TheHoleOfAMirroredWindowIsCountedFromItsRightEdge) {
    Recorder below;
    Recorder above;
    CRect rect;
    below.GetWindowRect(&rect);
    above.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    above.SetWindowPos(&CWnd::wndTop, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOACTIVATE);
    CutHole(above);
    Pointer pointer;
    pointer.MoveTo(CPoint(rect.right - 50, rect.top + 50));
    EXPECT_EQ(pointer.Target(), below.m_hWnd);
    pointer.MoveTo(CPoint(rect.left + 50, rect.top + 50));
    EXPECT_EQ(pointer.Target(), above.m_hWnd);
}

TEST(Support, TypedTextArrivesCharacterByCharacter) {
    Recorder window;
    Keys(window.m_hWnd).Type(L"Öl 1");
    EXPECT_EQ(window.m_text, L"Öl 1");
}

TEST(Support, AHeldKeyIsSeenByGetKeyStateUntilTheHelperEnds) {
    {
        Keys keys;
        keys.Hold(VK_CONTROL);
        EXPECT_LT(::GetKeyState(VK_CONTROL), 0);
    }
    EXPECT_GE(::GetKeyState(VK_CONTROL), 0);
}

TEST(Support, PumpUntilGivesUpWhenNothingComes) {
    EXPECT_FALSE(PumpUntil([] { return false; }, std::chrono::milliseconds(30)));
    EXPECT_TRUE(PumpUntil([] { return true; }));
}

TEST(Support, AScopedValueComesBack) {
    int value = 1;
    {
        fx::ScopedChange<int> other(value, 2);
        EXPECT_EQ(value, 2);
    }
    EXPECT_EQ(value, 1);
}

} // namespace
