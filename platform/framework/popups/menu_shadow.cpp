#include "popups/menu_shadow.h"

#include "afxglobals.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/window_dc.h"

using toolbar::MenuShadow;

BEGIN_MESSAGE_MAP(MenuShadow, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_NCHITTEST()
ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

void MenuShadow::Show(HWND menu, const CRect& rectMenu, int nDepth) {
    Hide();
    if (nDepth <= 0 || rectMenu.IsRectEmpty() || !afxGlobalData.Is32BitIcons() || afxGlobalData.IsHighContrastMode()) {
        return;
    }
    m_depth = nDepth;
    m_rectMenu = rectMenu;
    m_rect = CRect(rectMenu.left, rectMenu.top, rectMenu.right + nDepth, rectMenu.bottom + nDepth);
    Capture();
    if (!m_hWnd) {
        const LPCTSTR className = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW));
        if (!CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT, className, nullptr,
                      WS_POPUP | WS_DISABLED, m_rect.left, m_rect.top, 0, 0, ::GetWindow(menu, GW_OWNER), nullptr)) {
            return;
        }
    }
    // Only the two strips are there: the rest would cover what the pop-up shows while it appears.
    CRgn strips, side;
    strips.CreateRectRgn(nDepth, rectMenu.Height(), m_rect.Width(), m_rect.Height());
    side.CreateRectRgn(rectMenu.Width(), nDepth, m_rect.Width(), m_rect.Height());
    strips.CombineRgn(&strips, &side, RGN_OR);
    SetWindowRgn(static_cast<HRGN>(strips.Detach()), FALSE);
    ::SetWindowPos(m_hWnd, menu, m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(),
                   SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER);
}

void MenuShadow::Hide() {
    if (m_hWnd) {
        ShowWindow(SW_HIDE);
    }
    m_picture.DeleteObject();
    m_rect.SetRectEmpty();
}

void MenuShadow::Capture() {
    CWindowDC screen(nullptr);
    CDC memory;
    if (!memory.CreateCompatibleDC(&screen) ||
        !m_picture.CreateCompatibleBitmap(&screen, m_rect.Width(), m_rect.Height())) {
        return;
    }
    const fx::DcSelection selected(memory, &m_picture);
    memory.BitBlt(0, 0, m_rect.Width(), m_rect.Height(), &screen, m_rect.left, m_rect.top, SRCCOPY);
    constexpr int lightest = 100, darkest = 60; // per cent of brightness, outer edge and inner
    const CRect menu(CPoint(0, 0), m_rectMenu.Size());
    CMFCVisualManager::GetInstance()->OnDrawMenuShadow(&memory, menu, CRect(0, 0, 0, 0), m_depth, lightest, darkest,
                                                       nullptr, nullptr, FALSE);
}

void MenuShadow::OnPaint() {
    CPaintDC dc(this);
    if (!m_picture.GetSafeHandle()) {
        return;
    }
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    const fx::DcSelection selected(memory, &m_picture);
    dc.BitBlt(0, 0, m_rect.Width(), m_rect.Height(), &memory, 0, 0, SRCCOPY);
}

BOOL MenuShadow::OnEraseBkgnd(CDC*) { return TRUE; }

LRESULT MenuShadow::OnNcHitTest(CPoint) { return HTTRANSPARENT; }

int MenuShadow::OnMouseActivate(CWnd*, UINT, UINT) { return MA_NOACTIVATE; }
