#include "map_window.h"

#include <cmath>

CMapWindow::CMapWindow(MapState& state, const MapData& data) : m_state(state), m_painter(data) {}

BEGIN_MESSAGE_MAP(CMapWindow, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

BOOL CMapWindow::Create(CWnd* parent, UINT id) {
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CWnd::Create(windowClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), parent, id)) {
        return FALSE;
    }
    // West stays on the left, whichever way the reader's language runs.
    ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
    return TRUE;
}

void CMapWindow::SetStyle(const MapPaintStyle& style) {
    m_style = style;
    m_drawnVersion = 0;
    if (GetSafeHwnd()) {
        Invalidate(FALSE);
    }
}

void CMapWindow::ShowState() {
    if (m_shownVersion == m_state.Version() || !GetSafeHwnd()) {
        return;
    }
    m_shownVersion = m_state.Version();
    Invalidate(FALSE);
}

void CMapWindow::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    if (m_drawnVersion != m_state.Version() || !m_picture.GetSafeHandle()) {
        BITMAP size = {};
        if (m_picture.GetSafeHandle()) {
            m_picture.GetBitmap(&size);
        }
        if (size.bmWidth != client.Width() || size.bmHeight != client.Height()) {
            m_picture.DeleteObject();
            m_picture.CreateCompatibleBitmap(&dc, std::max(client.Width(), 1), std::max(client.Height(), 1));
        }
        CBitmap* const earlier = memory.SelectObject(&m_picture);
        m_painter.Paint(memory.GetSafeHdc(), m_state, m_style);
        memory.SelectObject(earlier);
        m_drawnVersion = m_state.Version();
    }
    CBitmap* const earlier = memory.SelectObject(&m_picture);
    dc.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(earlier);
}

BOOL CMapWindow::MakePicture(CBitmap& picture) {
    CClientDC screen(this);
    CRect client;
    GetClientRect(client);
    if (client.IsRectEmpty() || !picture.CreateCompatibleBitmap(&screen, client.Width(), client.Height())) {
        return FALSE;
    }
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap* const earlier = memory.SelectObject(&picture);
    m_painter.Paint(memory.GetSafeHdc(), m_state, m_style);
    memory.SelectObject(earlier);
    return TRUE;
}

BOOL CMapWindow::OnEraseBkgnd(CDC*) { return TRUE; }

void CMapWindow::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    if (width > 0 && height > 0) {
        m_state.SetWindowSize(width, height);
    }
    Invalidate(FALSE);
}

void CMapWindow::OnLButtonDown(UINT, CPoint point) {
    SetFocus();
    SetCapture();
    m_dragging = true;
    m_dragFrom = point;
}

void CMapWindow::OnMouseMove(UINT, CPoint point) {
    if (m_pointerListener) {
        m_pointerListener(m_state.ToPlace(point.x, point.y));
    }
    if (!m_dragging) {
        return;
    }
    m_state.Drag(m_dragFrom.x - point.x, point.y - m_dragFrom.y);
    m_dragFrom = point;
    ShowState();
}

void CMapWindow::OnLButtonUp(UINT, CPoint) {
    if (m_dragging) {
        ReleaseCapture();
    }
}

void CMapWindow::OnCaptureChanged(CWnd*) {
    if (!m_dragging) {
        return;
    }
    m_dragging = false;
    m_state.EndDrag();
    ShowState();
}

void CMapWindow::OnLButtonDblClk(UINT, CPoint point) { ZoomAt(point, 2); }

BOOL CMapWindow::OnMouseWheel(UINT, short delta, CPoint point) {
    ScreenToClient(&point);
    ZoomAt(point, std::pow(1.25, delta / static_cast<double>(WHEEL_DELTA)));
    return TRUE;
}

void CMapWindow::ZoomAt(CPoint client, double factor) {
    m_state.Zoom(factor, client.x - m_state.WindowWidth() / 2.0, client.y - m_state.WindowHeight() / 2.0);
    ShowState();
}
