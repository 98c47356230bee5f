#include "popups/menu_shadow.h"

#include "afxglobals.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/window_dc.h"
#include "visual/canvas.h"
#include "window/window_picture.h"

#include <dwmapi.h>

#include <algorithm>
#include <utility>

using toolbar::MenuShadow;

BEGIN_MESSAGE_MAP(MenuShadow, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_NCHITTEST()
ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

namespace {

/// Darkest at the menu's lower edge; a dark skin's manager doubles it.
constexpr int g_lightest = 100, g_darkest = 80; // per cent of brightness

/// A 32-bit picture with a context to draw on.
class Picture {
public:
    explicit Picture(CSize size) : m_dc(::CreateCompatibleDC(nullptr)) {
        m_bitmap = visual::MakeBitmap32(static_cast<int>(size.cx), static_cast<int>(size.cy), &m_pixels);
        m_before = ::SelectObject(m_dc, m_bitmap);
    }
    ~Picture() {
        ::DeleteObject(Detach());
        ::DeleteDC(m_dc);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    bool IsValid() const { return m_dc != nullptr && m_pixels != nullptr; }
    HDC Dc() const { return m_dc; }
    std::uint32_t* Pixels() const { return m_pixels; }
    /// The bitmap, the caller's from here.
    HBITMAP Detach() {
        ::SelectObject(m_dc, m_before);
        m_pixels = nullptr;
        return std::exchange(m_bitmap, nullptr);
    }

private:
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
    std::uint32_t* m_pixels = nullptr;
};

bool IsTooltip(HWND window) {
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return ::lstrcmpiW(name, TOOLTIPS_CLASSW) == 0;
}

/// A window of this thread whose picture belongs under a shadow. A tooltip goes before the menu does.
bool IsBelowShadows(HWND window, const CRect& area) {
    CRect rect, common;
    return ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId() && ::IsWindowVisible(window) &&
           !::IsIconic(window) && ::GetWindowRect(window, rect) && common.IntersectRect(rect, area) &&
           !IsTooltip(window);
}

bool IsLayered(HWND window) { return (::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYERED) != 0; }

/// Nothing below it is seen in the area.
bool Covers(HWND window, const CRect& area) {
    CRect rect, common;
    ::GetWindowRect(window, rect);
    const bool isShadow = dynamic_cast<const MenuShadow*>(CWnd::FromHandlePermanent(window)) != nullptr;
    return !isShadow && !IsLayered(window) && common.IntersectRect(rect, area) && common == area;
}

void CopyWindow(HDC target, HWND window, const CRect& area) {
    CRect rect;
    ::GetWindowRect(window, rect);
    DrawWindowPicture(target, window, static_cast<int>(rect.left - area.left), static_cast<int>(rect.top - area.top));
}

/// A place along a side as a shorter side has it: both ends are the same, the middle repeats.
int Folded(int at, int length, int foldedLength) {
    const int end = foldedLength / 2;
    return at < end ? at : at >= length - end ? at - length + foldedLength : end;
}

std::uint32_t Darker(std::uint32_t pixel, unsigned darkness) {
    return visual::Mix(pixel | 0xFF000000u, 0xFF000000u, static_cast<int>(darkness), 255);
}

} // namespace

MenuShadow::MenuShadow() = default;

MenuShadow::~MenuShadow() { DestroyWindow(); }

bool MenuShadow::CopiesWindows() {
    BOOL isComposed = FALSE;
    return FAILED(::DwmIsCompositionEnabled(&isComposed)) || !isComposed;
}

bool MenuShadow::MakeWindow(HWND menu) {
    if (m_hWnd) {
        return true;
    }
    const LPCTSTR className = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW));
    const DWORD layer = CopiesWindows() ? 0 : WS_EX_LAYERED;
    return CreateEx(layer | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT, className, nullptr,
                    WS_POPUP | WS_DISABLED, 0, 0, 0, 0, ::GetWindow(menu, GW_OWNER), nullptr) != FALSE;
}

void MenuShadow::Show(HWND menu, const CRect& rectMenu, int depth) {
    const bool isPossible =
        depth > 0 && !rectMenu.IsRectEmpty() && afxGlobalData.Is32BitIcons() && !afxGlobalData.IsHighContrastMode();
    if (!isPossible || !MakeWindow(menu)) {
        Hide();
        return;
    }
    m_rect = rectMenu;
    m_rect.InflateRect(depth, depth);
    MeasureDarkness(rectMenu, depth);
    if (GetExStyle() & WS_EX_LAYERED) {
        ShowLayer();
    } else {
        ShowCopy(menu, rectMenu);
    }
    ::SetWindowPos(m_hWnd, menu, m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(),
                   SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER);
    UpdateWindow();
}

void MenuShadow::ShowLayer() {
    const Picture picture(m_rect.Size());
    if (!picture.IsValid()) {
        return;
    }
    for (std::size_t at = 0; at < m_darkness.size(); ++at) {
        picture.Pixels()[at] = static_cast<std::uint32_t>(m_darkness[at]) << 24;
    }
    POINT corner = m_rect.TopLeft();
    POINT origin = {0, 0};
    SIZE size = m_rect.Size();
    BLENDFUNCTION over{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::UpdateLayeredWindow(m_hWnd, nullptr, &corner, &size, picture.Dc(), &origin, 0, &over, ULW_ALPHA);
}

void MenuShadow::ShowCopy(HWND menu, const CRect& rectMenu) {
    Picture picture(m_rect.Size());
    if (!picture.IsValid()) {
        return;
    }
    CopyWindowsBelow(menu, picture.Pixels(), picture.Dc());
    for (std::size_t at = 0; at < m_darkness.size(); ++at) {
        if (m_darkness[at] > 0) {
            picture.Pixels()[at] = Darker(picture.Pixels()[at], m_darkness[at]);
        }
    }
    m_copy.DeleteObject();
    m_copy.Attach(picture.Detach());
    // The menu's own place stays free: the menu may be transparent while it appears.
    CRgn around, inside;
    around.CreateRectRgn(0, 0, m_rect.Width(), m_rect.Height());
    const CRect menuPlace = rectMenu - m_rect.TopLeft();
    inside.CreateRectRgnIndirect(menuPlace);
    around.CombineRgn(&around, &inside, RGN_DIFF);
    SetWindowRgn(static_cast<HRGN>(around.Detach()), FALSE);
    Invalidate();
}

void MenuShadow::Hide() {
    if (m_hWnd) {
        ShowWindow(SW_HIDE);
    }
    m_copy.DeleteObject();
    m_darkness.clear();
    m_rect.SetRectEmpty();
}

/// What the visual manager's shadow takes from white. A long side is like a short one with more of its middle: the
/// shadow of a small menu is drawn, whatever the size of this one.
void MenuShadow::MeasureDarkness(const CRect& rectMenu, int depth) {
    const CSize size = m_rect.Size();
    m_darkness.assign(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy), 0);
    const int longest = 6 * depth + 1;
    const CSize small(std::min<int>(size.cx, longest), std::min<int>(size.cy, longest));
    const Picture white(small);
    if (!white.IsValid()) {
        return;
    }
    std::fill_n(white.Pixels(), small.cx * small.cy, 0xFFFFFFFFu);
    CRect smallMenu(CPoint(0, 0), small);
    smallMenu.DeflateRect(depth, depth);
    CDC dc;
    dc.Attach(white.Dc());
    CMFCVisualManager::GetInstance()->OnDrawMenuShadow(&dc, smallMenu, CRect(0, 0, 0, 0), depth, g_lightest, g_darkest,
                                                       nullptr, nullptr, FALSE);
    dc.Detach();
    ::GdiFlush();
    const CRect menu = rectMenu - m_rect.TopLeft();
    for (int y = 0; y < size.cy; ++y) {
        const std::uint32_t* const row = white.Pixels() + Folded(y, size.cy, small.cy) * small.cx;
        for (int x = 0; x < size.cx; ++x) {
            const std::uint32_t pixel = row[Folded(x, size.cx, small.cx)];
            const unsigned lightest = std::max({visual::RedOf(pixel), visual::GreenOf(pixel), visual::BlueOf(pixel)});
            const auto at = static_cast<std::size_t>(y * size.cx + x);
            m_darkness[at] = static_cast<std::uint8_t>(menu.PtInRect(CPoint(x, y)) ? 0 : 255 - lightest);
        }
    }
}

// Ours from the lowest to the one below the menu; where they leave a gap, other programs' as they are on the screen.
void MenuShadow::CopyWindowsBelow(HWND menu, std::uint32_t* pixels, HDC picture) const {
    std::vector<HWND> below;
    bool isCovered = false;
    for (HWND window = ::GetWindow(menu, GW_HWNDNEXT); window && !isCovered;
         window = ::GetWindow(window, GW_HWNDNEXT)) {
        if (window != m_hWnd && IsBelowShadows(window, m_rect)) {
            below.push_back(window);
            isCovered = Covers(window, m_rect);
        }
    }
    if (!isCovered) {
        const HDC screen = ::GetDC(nullptr);
        ::BitBlt(picture, 0, 0, m_rect.Width(), m_rect.Height(), screen, m_rect.left, m_rect.top, SRCCOPY);
        ::ReleaseDC(nullptr, screen);
    }
    for (auto window = below.rbegin(); window != below.rend(); ++window) {
        if (const auto* shadow = dynamic_cast<const MenuShadow*>(CWnd::FromHandlePermanent(*window))) {
            ::GdiFlush();
            shadow->Darken(pixels, m_rect);
        } else if (!IsLayered(*window)) {
            CopyWindow(picture, *window, m_rect);
        }
    }
    ::GdiFlush();
}

/// Where this shadow lies in the area (screen), over a picture of it.
void MenuShadow::Darken(std::uint32_t* pixels, const CRect& area) const {
    CRect common;
    if (m_darkness.empty() || !common.IntersectRect(m_rect, area)) {
        return;
    }
    for (int y = common.top; y < common.bottom; ++y) {
        for (int x = common.left; x < common.right; ++x) {
            std::uint32_t& pixel = pixels[(y - area.top) * area.Width() + x - area.left];
            const auto at = static_cast<std::size_t>((y - m_rect.top) * m_rect.Width() + x - m_rect.left);
            pixel = Darker(pixel, m_darkness[at]);
        }
    }
}

void MenuShadow::OnPaint() {
    CPaintDC dc(this);
    if (!m_copy.GetSafeHandle()) {
        return;
    }
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    const fx::DcSelection selected(memory, m_copy);
    dc.BitBlt(0, 0, m_rect.Width(), m_rect.Height(), &memory, 0, 0, SRCCOPY);
}

BOOL MenuShadow::OnEraseBkgnd(CDC*) { return TRUE; }

LRESULT MenuShadow::OnNcHitTest(CPoint) { return HTTRANSPARENT; }

int MenuShadow::OnMouseActivate(CWnd*, UINT, UINT) { return MA_NOACTIVATE; }
