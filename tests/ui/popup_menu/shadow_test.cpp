// What shows through the shadow of a pop-up. Programs without display read it from the shadow's own window.
#include <algorithm>
#include <vector>

#include "tests/support/canvas.h"
#include "tests/ui/popup_menu/menu_frame.h"

namespace {

constexpr COLORREF ground = RGB(40, 160, 220);
constexpr COLORREF alarming = RGB(255, 0, 128); // of what was there before

/// A child that is one colour all over.
class PlainWindow : public CWnd {
public:
    PlainWindow(CWnd& parent, COLORREF colour) : m_colour(colour) {
        Create(AfxRegisterWndClass(0), nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 1000, 1000), &parent, 1);
    }
    ~PlainWindow() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_ERASEBKGND) {
            CRect client;
            GetClientRect(client);
            CDC::FromHandle(reinterpret_cast<HDC>(wParam))->FillSolidRect(client, m_colour);
            return TRUE;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    COLORREF m_colour;
};

/// The pop-up that paints itself in one colour.
class AlarmingMenu : public CMFCPopupMenu {
protected:
    void DrawFrame(CDC* pDC) override {
        CRect client;
        GetClientRect(client);
        pDC->FillSolidRect(client, alarming);
    }
};

class PopupShadowTest : public PopupMenuTest {
protected:
    PopupShadowTest() {
        m_frame->UpdateWindow();
        PumpPending();
    }

    /// The window that lies below the pop-up and around it.
    static HWND ShadowOf(const CMFCPopupMenu& menu) {
        CRect place, rect;
        menu.GetWindowRect(place);
        for (HWND window = ::GetWindow(menu.m_hWnd, GW_HWNDNEXT); window; window = ::GetWindow(window, GW_HWNDNEXT)) {
            ::GetWindowRect(window, rect);
            const bool isAround = rect.left <= place.left && rect.right >= place.right && rect.bottom > place.bottom;
            if (isAround && ::IsWindowVisible(window) && (::GetWindowLongW(window, GWL_STYLE) & WS_DISABLED)) {
                return window;
            }
        }
        return nullptr;
    }

    /// The shadow's picture, its corner at the shadow window's.
    static void ReadShadow(HWND shadow, Canvas& canvas) {
        const HDC source = ::GetWindowDC(shadow);
        ::BitBlt(canvas.Dc()->GetSafeHdc(), 0, 0, canvas.Size().cx, canvas.Size().cy, source, 0, 0, SRCCOPY);
        ::ReleaseDC(shadow, source);
    }

    static CSize SizeOf(HWND window) {
        CRect rect;
        ::GetWindowRect(window, rect);
        return rect.Size();
    }

    CMFCPopupMenu* OpenAt(CPoint offset, CMFCPopupMenu* menu) const {
        m_frame->ClientToScreen(&offset);
        return menu->Create(m_frame, offset.x, offset.y, MakeMenu()) ? menu : nullptr;
    }

    PlainWindow m_ground{*m_frame, ground};
};

std::uint32_t Darkened(COLORREF colour, int percent) {
    const auto part = [percent](int value) { return static_cast<std::uint32_t>(value * (100 - percent) / 100); };
    return part(GetRValue(colour)) << 16 | part(GetGValue(colour)) << 8 | part(GetBValue(colour));
}

int Difference(std::uint32_t left, std::uint32_t right) {
    int most = 0;
    for (const int shift : {0, 8, 16}) {
        const int a = static_cast<int>(left >> shift & 0xFF), b = static_cast<int>(right >> shift & 0xFF);
        most = std::max(most, std::abs(a - b));
    }
    return most;
}

} // namespace

// A row of a menu is one pop-up's place, then another's shadow: no time passes in between that would repaint it.
TEST_F(PopupShadowTest, NothingOfAPopupThatWasThereBeforeShowsInAShadow) {
    auto* before = OpenAt(CPoint(60, 60), new AlarmingMenu);
    ASSERT_NE(before, nullptr);
    PumpPending();
    CRect was;
    before->GetWindowRect(was);
    const CSize step(was.Width() / 2, was.Height() / 2);
    // The new one's right and lower shadow lie over the middle of the one that closes now.
    CPoint corner(60 + step.cx - was.Width(), 60 + step.cy - was.Height());
    auto* menu = OpenAt(CPoint(std::max(corner.x, 0L), std::max(corner.y, 0L)), new CMFCPopupMenu);
    ASSERT_NE(menu, nullptr);
    const HWND shadow = ShadowOf(*menu);
    ASSERT_NE(shadow, nullptr);
    if (::GetWindowLongW(shadow, GWL_EXSTYLE) & WS_EX_LAYERED) {
        return; // it has no picture of what lies below at all
    }
    Canvas picture(SizeOf(shadow));
    ReadShadow(shadow, picture);
    CRect place, frame, around;
    menu->GetWindowRect(place);
    ::GetWindowRect(shadow, around);
    m_ground.GetWindowRect(frame);
    int seen = 0;
    for (int y = around.top; y < around.bottom; ++y) {
        for (int x = around.left; x < around.right; ++x) {
            const CPoint at(x, y);
            if (place.PtInRect(at) || !frame.PtInRect(at)) {
                continue;
            }
            const std::uint32_t pixel = picture.At(x - around.left, y - around.top);
            // Any darkness of the ground, and of nothing else: its blue stays the most, its red the least.
            const int red = static_cast<int>(pixel >> 16), green = static_cast<int>(pixel >> 8 & 0xFF);
            const int blue = static_cast<int>(pixel & 0xFF);
            ASSERT_NEAR(red * 220, blue * 40, 600) << x << ' ' << y << ' ' << std::hex << pixel;
            ASSERT_NEAR(green * 220, blue * 160, 600) << x << ' ' << y << ' ' << std::hex << pixel;
            ++seen;
        }
    }
    EXPECT_GT(seen, 500);
}

TEST_F(PopupShadowTest, AShadowIsTwelvePixelsWideAndFadesFromAFifthOfBlack) {
    CMFCPopupMenu* menu = OpenAt(CPoint(60, 40), new CMFCPopupMenu);
    ASSERT_NE(menu, nullptr);
    const HWND shadow = ShadowOf(*menu);
    ASSERT_NE(shadow, nullptr);
    CRect place, around;
    menu->GetWindowRect(place);
    ::GetWindowRect(shadow, around);
    EXPECT_EQ(around.bottom, place.bottom + 12);
    if (::GetWindowLongW(shadow, GWL_EXSTYLE) & WS_EX_LAYERED) {
        return;
    }
    Canvas picture(SizeOf(shadow));
    ReadShadow(shadow, picture);
    const auto below = [&](int distance) {
        return picture.At(place.CenterPoint().x - around.left, place.bottom + distance - around.top);
    };
    EXPECT_LE(Difference(below(0), Darkened(ground, 20)), 6);
    EXPECT_LE(Difference(below(11), Darkened(ground, 0)), 2);
    for (int distance = 1; distance < 12; ++distance) {
        EXPECT_GE(below(distance) & 0xFF, below(distance - 1) & 0xFF) << distance;
    }
    const int right = place.right - around.left, middle = place.CenterPoint().y - around.top;
    EXPECT_GT(Difference(picture.At(right, middle), Darkened(ground, 0)), 8) << "at the sides, too";
}

TEST_F(PopupShadowTest, AShadowGrowsWithTheScale) {
    afxGlobalData.SetRibbonImageScale(2.0);
    CMFCPopupMenu* menu = OpenAt(CPoint(60, 40), new CMFCPopupMenu);
    ASSERT_NE(menu, nullptr);
    CRect place, around;
    menu->GetWindowRect(place);
    ::GetWindowRect(ShadowOf(*menu), around);
    EXPECT_EQ(around.bottom, place.bottom + 24);
    afxGlobalData.SetRibbonImageScale(1.0);
}

TEST_F(PopupShadowTest, AShadowGoesWithItsPopup) {
    CMFCPopupMenu* menu = OpenAt(CPoint(60, 40), new CMFCPopupMenu);
    ASSERT_NE(menu, nullptr);
    const HWND shadow = ShadowOf(*menu);
    ASSERT_NE(shadow, nullptr);
    menu->CloseMenu();
    EXPECT_FALSE(::IsWindow(shadow));
}
