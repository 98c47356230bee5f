// The accounting that leak tests stand on: it must see every kind of object, wrapped or not.
#include "tests/support/gui_objects.h"
#include "tests/support/ui_test.h"

#include "fx/gdi_objects.h"

namespace {

HICON MakeIcon() {
    const BYTE bits[32] = {};
    return ::CreateIcon(nullptr, 16, 16, 1, 1, bits, bits);
}

TEST(GuiObjects, NothingDoneChangesNothing) {
    const GuiObjects before = CountGuiObjects();
    EXPECT_EQ(CountGuiObjects(), before);
}

TEST(GuiObjects, EveryKindOfGdiObjectIsSeenThoughNoWrapperOwnsIt) {
    const HDC screen = ::GetDC(nullptr);
    const GuiObjects before = CountGuiObjects();
    const HGDIOBJ objects[] = {::CreatePen(PS_SOLID, 3, RGB(1, 2, 3)), ::CreateSolidBrush(RGB(9, 8, 7)),
                               ::CreateFont(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial"),
                               ::CreateCompatibleBitmap(screen, 4, 4), ::CreateRectRgn(0, 0, 2, 2)};
    const HDC memory = ::CreateCompatibleDC(screen);
    EXPECT_EQ(CountGuiObjects().gdi, before.gdi + 6);
    EXPECT_EQ(CountGuiObjects().wrapped, before.wrapped);
    ::DeleteDC(memory);
    for (const HGDIOBJ object : objects) {
        EXPECT_TRUE(::DeleteObject(object));
    }
    EXPECT_EQ(CountGuiObjects(), before);
    ::ReleaseDC(nullptr, screen);
}

TEST(GuiObjects, WrappedObjectsAreSeenInBothCounts) {
    const GuiObjects before = CountGuiObjects();
    {
        const CPen pen(PS_SOLID, 1, RGB(1, 1, 1));
        const GuiObjects during = CountGuiObjects();
        EXPECT_EQ(during.wrapped, before.wrapped + 1);
        EXPECT_EQ(during.gdi, before.gdi + 1);
    }
    EXPECT_EQ(CountGuiObjects(), before);
}

TEST(GuiObjects, IconsMenusAndWindowsAreSeen) {
    const GuiObjects before = CountGuiObjects();
    const HICON icon = MakeIcon();
    const HMENU menu = ::CreatePopupMenu();
    const HWND window = ::CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    const HWND child = ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, window, nullptr, nullptr, nullptr);
    EXPECT_NE(child, nullptr);
    const GuiObjects during = CountGuiObjects();
    EXPECT_EQ(during.icons, before.icons + 1);
    EXPECT_EQ(during.menus, before.menus + 1);
    // The system gives a thread's first window an input method window beside it.
    EXPECT_GE(during.windows, before.windows + 2);
    ::DestroyWindow(window);
    ::DestroyMenu(menu);
    ::DestroyIcon(icon);
    const GuiObjects after = CountGuiObjects();
    EXPECT_EQ(after.icons, before.icons);
    EXPECT_EQ(after.menus, before.menus);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.gdi, before.gdi + 1) << "at most the theme or font that the system keeps for the first window";
}

} // namespace
