#include "window/drag_window.h"

#include "window/input_filter.h"

namespace fx {

BEGIN_MESSAGE_MAP(DragWindow, CWnd)
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONUP()
ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

namespace {

thread_local DragWindow* t_current = nullptr;

} // namespace

// With Alt held, which some drags ask for, the key comes as the system's.
BOOL DragWindow::CancelByEscape(MSG* message) {
    const bool isKey = message->message == WM_KEYDOWN || message->message == WM_SYSKEYDOWN;
    if (t_current == nullptr || !isKey || message->wParam != VK_ESCAPE) {
        return FALSE;
    }
    t_current->Cancel();
    return TRUE;
}

[[maybe_unused]] const bool DragWindow::kIsFilterAdded = [] {
    AddInputFilter(&DragWindow::CancelByEscape);
    return true;
}();

DragWindow::~DragWindow() {
    if (t_current == this) {
        t_current = nullptr;
    }
}

DragWindow* DragWindow::Current() { return t_current; }

bool DragWindow::TakeMouse(CWnd* parent) {
    if (parent == nullptr || !CreateEx(0, AfxRegisterWndClass(0), nullptr, WS_CHILD, CRect(0, 0, 0, 0), parent, 0)) {
        return false;
    }
    t_current = this;
    SetCapture();
    return true;
}

void DragWindow::ReleaseMouse() {
    if (t_current == this) {
        t_current = nullptr;
    }
    if (::GetCapture() == m_hWnd) {
        ::ReleaseCapture();
    }
}

CPoint DragWindow::ToScreen(CPoint point) const {
    ClientToScreen(&point);
    return point;
}

void DragWindow::OnMouseMove(UINT, CPoint point) {
    if (IsUnderWay()) {
        MoveTo(ToScreen(point));
    }
}

void DragWindow::OnLButtonUp(UINT, CPoint point) {
    if (IsUnderWay()) {
        Finish(ToScreen(point));
    }
}

void DragWindow::OnCaptureChanged(CWnd*) { Cancel(); }

} // namespace fx
