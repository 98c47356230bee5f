// What the mouse does with a mini frame: close button, moving (which may dock it), resizing.
#include "afxPaneFrameWnd.h"

#include "afxDockingManager.h"
#include "afxglobals.h"
#include "afxPane.h"
#include "panes/mini_frame_place.h"

#include <utility>

namespace {

/// Near a corner both borders are meant.
constexpr int kCorner = 8;

LPCTSTR CursorOf(LRESULT hit) {
    switch (hit) {
    case HTLEFT:
    case HTRIGHT:
        return IDC_SIZEWE;
    case HTTOP:
    case HTBOTTOM:
        return IDC_SIZENS;
    case HTTOPLEFT:
    case HTBOTTOMRIGHT:
        return IDC_SIZENWSE;
    case HTTOPRIGHT:
    case HTBOTTOMLEFT:
        return IDC_SIZENESW;
    default:
        return nullptr;
    }
}

} // namespace

CPoint CPaneFrameWnd::ToScreen(CPoint point) const {
    ClientToScreen(&point);
    return point;
}

LRESULT CPaneFrameWnd::HitTest(CPoint point, BOOL bDetectCaption) {
    CPoint inside = point;
    ScreenToClient(&inside);
    CRect window;
    GetClientRect(&window);
    if (!window.PtInRect(inside)) {
        return HTNOWHERE;
    }
    if (m_closeButton.GetRect().PtInRect(inside)) {
        return HTCLOSE;
    }
    CRect border;
    CalcBorderSize(border);
    if (const int hit = panes::BorderAt(window, border, afxGlobalData.ScalePixels(kCorner), inside)) {
        const bool isResizable = m_pPane != nullptr && m_pPane->CanBeResized();
        return isResizable ? hit : HTBORDER;
    }
    CRect caption;
    GetCaptionRect(caption);
    return bDetectCaption && caption.PtInRect(inside) ? HTCAPTION : HTCLIENT;
}

// A click on a floating pane leaves the focus in the document.
int CPaneFrameWnd::OnMouseActivate(CWnd*, UINT, UINT) {
    if (m_pDockManager != nullptr) {
        m_pDockManager->BringToFront(*this);
    }
    return MA_NOACTIVATE;
}

BOOL CPaneFrameWnd::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint cursor;
    ::GetCursorPos(&cursor);
    const LPCTSTR shape = pWnd == this ? CursorOf(HitTest(cursor, TRUE)) : nullptr;
    if (shape != nullptr) {
        ::SetCursor(::LoadCursorW(nullptr, shape));
        return TRUE;
    }
    return CWnd::OnSetCursor(pWnd, nHitTest, message);
}

void CPaneFrameWnd::UpdateCloseButton(CPoint point) {
    const BOOL isOver = m_closeButton.GetRect().PtInRect(point) && m_capturedHit != HTCAPTION;
    const BOOL isPushed = isOver && m_capturedHit == HTCLOSE;
    if (m_closeButton.m_bFocused != isOver || m_closeButton.m_bPushed != isPushed) {
        m_closeButton.m_bFocused = isOver;
        m_closeButton.m_bPushed = isPushed;
        InvalidateRect(m_closeButton.GetRect());
    }
}

void CPaneFrameWnd::OnMouseMove(UINT nFlags, CPoint point) {
    CWnd::OnMouseMove(nFlags, point);
    if (m_capturedHit != HTNOWHERE && m_capturedHit != HTCLOSE) {
        ResizeTo(ToScreen(point));
        return;
    }
    UpdateCloseButton(point);
    if (!m_bTracked) {
        TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, m_hWnd, 0};
        m_bTracked = ::TrackMouseEvent(&track);
    }
}

void CPaneFrameWnd::OnMouseLeave() {
    m_bTracked = FALSE;
    UpdateCloseButton({-1, -1});
}

void CPaneFrameWnd::OnLButtonDown(UINT nFlags, CPoint point) {
    CWnd::OnLButtonDown(nFlags, point);
    const CPoint screen = ToScreen(point);
    const LRESULT hit = HitTest(screen, TRUE);
    if (hit == HTCAPTION) {
        if (m_pPane != nullptr && m_pDockManager != nullptr) {
            m_pDockManager->StartDrag(*m_pPane, screen);
        }
        return;
    }
    if (hit == HTCLOSE || CursorOf(hit) != nullptr) {
        m_capturedHit = hit;
        m_ptHot = point;
        SetCapture();
        UpdateCloseButton(point);
    }
}

void CPaneFrameWnd::OnLButtonUp(UINT nFlags, CPoint point) {
    CWnd::OnLButtonUp(nFlags, point);
    const LRESULT hit = m_capturedHit;
    if (hit == HTNOWHERE) {
        return;
    }
    ::ReleaseCapture();
    if (hit == HTCLOSE && m_closeButton.GetRect().PtInRect(point)) {
        SendMessage(WM_CLOSE); // this object may be gone afterwards
    }
}

void CPaneFrameWnd::OnCaptureChanged(CWnd*) { EndCapture(); }

void CPaneFrameWnd::EndCapture() {
    m_capturedHit = HTNOWHERE;
    UpdateCloseButton({-1, -1});
}

void CPaneFrameWnd::OnLButtonDblClk(UINT, CPoint point) {
    if (HitTest(ToScreen(point), TRUE) == HTCAPTION) {
        OnDockToRecentPos();
    }
}

void CPaneFrameWnd::OnRButtonUp(UINT, CPoint point) {
    if (m_pPane != nullptr) {
        m_pPane->OnShowControlBarMenu(ToScreen(point));
    }
}

BOOL CPaneFrameWnd::IsCaptured() const {
    return m_capturedHit != HTNOWHERE || (m_pDockManager != nullptr && m_pDockManager->IsDragging(m_pPane));
}

void CPaneFrameWnd::OnDockToRecentPos() {
    if (m_pPane != nullptr && OnBeforeDock()) {
        m_pPane->OnProcessDblClk(); // the mini frame closes
    }
}

void CPaneFrameWnd::StoreRecentDockSiteInfo(CPane* pBar) { pBar->RememberPlace(); }

// The pane says how large it wants to be with the width, or the height, that the mouse asks for.
void CPaneFrameWnd::ResizeTo(CPoint screen) {
    CRect window;
    GetWindowRect(&window);
    const CRect wanted = panes::Resized(window, static_cast<int>(m_capturedHit), screen);
    const CSize around = SizeAround(CSize(0, 0));
    const bool isUpright = m_capturedHit == HTTOP || m_capturedHit == HTBOTTOM;
    const CSize pane = isUpright ? m_pPane->StretchPane(std::max<int>(1, wanted.Height() - around.cy), TRUE)
                                 : m_pPane->StretchPane(std::max<int>(1, wanted.Width() - around.cx), FALSE);
    const CRect place = panes::Anchored(window, static_cast<int>(m_capturedHit), SizeAround(pane));
    if (place != window) {
        SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
        m_pPane->RememberPlace();
    }
}
