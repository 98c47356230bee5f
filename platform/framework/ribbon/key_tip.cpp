#include "afxribbonkeytip.h"

#include "afxbaseribbonelement.h"
#include "fx/window_dc.h"
#include "ribbon/paint_buffer.h"

IMPLEMENT_DYNAMIC(CMFCRibbonKeyTip, CWnd)

BEGIN_MESSAGE_MAP(CMFCRibbonKeyTip, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_NCHITTEST()
END_MESSAGE_MAP()

CMFCRibbonKeyTip::CMFCRibbonKeyTip(CMFCRibbonBaseElement* pElement, BOOL bIsMenu)
    : m_pElement(pElement), m_bIsMenu(bIsMenu) {}

CMFCRibbonKeyTip::~CMFCRibbonKeyTip() {
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
}

BOOL CMFCRibbonKeyTip::Show() {
    CWnd* parent = m_pElement != nullptr ? m_pElement->GetParentWnd() : nullptr;
    if (parent == nullptr || parent->GetSafeHwnd() == nullptr || m_strKeys.IsEmpty() || !m_pElement->IsVisible() ||
        m_pElement->GetRect().IsRectEmpty()) {
        Hide();
        return FALSE;
    }
    CRect rect;
    {
        CClientDC dc(parent);
        rect = m_pElement->GetKeyTipRect(&dc, m_bIsMenu);
    }
    if (rect.IsRectEmpty()) {
        Hide();
        return FALSE;
    }
    parent->ClientToScreen(rect);
    constexpr DWORD kNoInput = WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT;
    if (GetSafeHwnd() == nullptr &&
        !CreateEx(kNoInput, AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), m_strKeys, WS_POPUP | WS_DISABLED,
                  rect, parent->GetTopLevelParent(), 0)) {
        return FALSE;
    }
    SetWindowPos(&wndTopMost, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return TRUE;
}

void CMFCRibbonKeyTip::Hide() {
    if (GetSafeHwnd() != nullptr) {
        ShowWindow(SW_HIDE);
    }
}

void CMFCRibbonKeyTip::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    RibbonPaintBuffer buffer(dc, client);
    if (m_pElement != nullptr) {
        m_pElement->OnDrawKeyTip(&buffer.GetDC(), client, m_bIsMenu);
    }
}

BOOL CMFCRibbonKeyTip::OnEraseBkgnd(CDC* /*pDC*/) { return TRUE; }

LRESULT CMFCRibbonKeyTip::OnNcHitTest(CPoint /*point*/) { return HTTRANSPARENT; }
