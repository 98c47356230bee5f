// What answers after foreign code has run whether a window is still there.
#include "tests/support/ui_test.h"

#include <fx/window_guard.h>

#include <memory>

namespace {

TEST(WindowGuard, SaysAliveWhileTheWindowStandsAndGoneOnceItIsDestroyed) {
    TestWindow window;
    const fx::WindowGuard byObject(&window);
    const fx::WindowGuard byHandle(window.m_hWnd);
    EXPECT_TRUE(byObject.IsAlive());
    EXPECT_TRUE(byHandle.IsAlive());
    EXPECT_FALSE(byObject.IsGone());
    EXPECT_EQ(byObject.Handle(), window.m_hWnd);
    window.DestroyWindow();
    EXPECT_TRUE(byObject.IsGone());
    EXPECT_TRUE(byHandle.IsGone());
}

TEST(WindowGuard, SaysGoneAfterTheObjectIsDeletedWithoutTouchingIt) {
    auto window = std::make_unique<TestWindow>();
    const fx::WindowGuard guard(window.get());
    window.reset();
    EXPECT_TRUE(guard.IsGone());
}

TEST(WindowGuard, OfAnObjectSaysGoneWhenTheObjectLetsGoOfALivingWindow) {
    TestWindow window;
    const fx::WindowGuard byObject(&window);
    const fx::WindowGuard byHandle(window.m_hWnd);
    const HWND handle = window.Detach();
    EXPECT_TRUE(byObject.IsGone());
    EXPECT_TRUE(byHandle.IsAlive());
    {
        CWnd other;
        other.Attach(handle);
        EXPECT_TRUE(byObject.IsGone()) << "another object has the window now";
        other.Detach();
    }
    window.Attach(handle);
    EXPECT_TRUE(byObject.IsAlive());
}

TEST(WindowGuard, OfAnObjectSaysGoneWhenTheObjectMadeAnotherWindow) {
    CWnd window;
    const CString windowClass = AfxRegisterWndClass(0);
    ASSERT_TRUE(window.CreateEx(0, windowClass, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    const fx::WindowGuard guard(&window);
    window.DestroyWindow();
    ASSERT_TRUE(window.CreateEx(0, windowClass, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    EXPECT_TRUE(guard.IsGone());
    window.DestroyWindow();
}

TEST(WindowGuard, OfATemporaryObjectWatchesTheWindowAlone) {
    const HWND handle = ::CreateWindowEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(handle, nullptr);
    const fx::WindowGuard guard(CWnd::FromHandle(handle));
    CWnd::DeleteTempMap();
    EXPECT_TRUE(guard.IsAlive());
    ::DestroyWindow(handle);
    EXPECT_TRUE(guard.IsGone());
}

TEST(WindowGuard, SaysGoneOfWhatWasNeverCreated) {
    const CWnd never;
    EXPECT_TRUE(fx::WindowGuard(&never).IsGone());
    EXPECT_TRUE(fx::WindowGuard(static_cast<const CWnd*>(nullptr)).IsGone());
    EXPECT_TRUE(fx::WindowGuard(HWND{}).IsGone());
}

} // namespace
