#include "fx/window_dc.h"

#include "fx/exceptions.h"
#include "fx/image_list.h"
#include "fx/wnd.h"
#include "window/paint_round.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {
HWND SafeWindow(const CWnd* window) { return window == nullptr ? nullptr : window->m_hWnd; }

void Require(BOOL attached) {
    if (!attached) {
        AfxThrowResourceException();
    }
}
} // namespace

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(SafeWindow(pWnd)) { Require(Attach(::GetDC(m_hWnd))); }
CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(SafeWindow(pWnd)) { Require(Attach(::GetWindowDC(m_hWnd))); }
CWindowDC::~CWindowDC() { ::ReleaseDC(m_hWnd, Detach()); }

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(SafeWindow(pWnd)) {
    Require(Attach(::BeginPaint(m_hWnd, &m_ps)));
    BeginPaintRound();
}
CPaintDC::~CPaintDC() {
    EndPaintRound();
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CWnd* CDC::GetWindow() const { return CWnd::FromHandle(::WindowFromDC(m_hDC)); }
int CDC::ExcludeUpdateRgn(CWnd* pWnd) { return ::ExcludeUpdateRgn(m_hDC, SafeWindow(pWnd)); }

BOOL PASCAL CImageList::DragEnter(CWnd* pWndLock, CPoint point) {
    return ::ImageList_DragEnter(SafeWindow(pWndLock), point.x, point.y);
}
BOOL PASCAL CImageList::DragLeave(CWnd* pWndLock) { return ::ImageList_DragLeave(SafeWindow(pWndLock)); }
