#include "panes/drag_preview.h"

#include "afxglobals.h"
#include "fx/window_dc.h"

namespace panes {

BEGIN_MESSAGE_MAP(DragPreview, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

namespace {

constexpr int kLine = 3; // at 96 DPI

} // namespace

DragPreview::~DragPreview() { DestroyWindow(); }

void DragPreview::Show(const CRect& rect) {
    if (rect.IsRectEmpty()) {
        if (m_hWnd != nullptr) {
            ShowWindow(SW_HIDE);
        }
        return;
    }
    constexpr DWORD style = WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_TRANSPARENT | WS_EX_NOACTIVATE;
    if (m_hWnd == nullptr && !CreateEx(style, AfxRegisterWndClass(0), nullptr, WS_POPUP, rect, nullptr, 0)) {
        return;
    }
    const int line = afxGlobalData.ScalePixels(kLine);
    const HRGN outline = ::CreateRectRgn(0, 0, rect.Width(), rect.Height());
    const HRGN hole = ::CreateRectRgn(line, line, rect.Width() - line, rect.Height() - line);
    ::CombineRgn(outline, outline, hole, RGN_DIFF);
    ::DeleteObject(hole);
    SetWindowRgn(outline, TRUE); // the system's from now on
    SetWindowPos(&wndTopMost, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void DragPreview::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(client, ::GetSysColor(COLOR_HIGHLIGHT));
}

} // namespace panes
