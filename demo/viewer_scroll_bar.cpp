#include "viewer_scroll_bar.h"

#include <afxglobals.h>

#include <utility>

namespace {

constexpr int kBreadth = 20; // at 96 DPI

} // namespace

BOOL CViewerScrollBar::Create(CWnd* parent, UINT id) {
    SetScrollWidth(afxGlobalData.ScalePixels(kBreadth));
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CScrollBarBase::Create(windowClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0),
                                parent, id)) {
        return FALSE;
    }
    // Its images point where they point, whichever way the reader's language runs.
    ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
    return TRUE;
}

void CViewerScrollBar::ShowScroll(const MapScroll& scroll) {
    if (std::exchange(m_shown, scroll) == scroll) {
        return;
    }
    SetTotalLength(scroll.length);
}

BEGIN_MESSAGE_MAP(CMapScrollBar, CViewerScrollBar)
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

CMapScrollBar::CMapScrollBar(MapState& state, MapAxis axis, std::function<void()> scrolled)
    : m_state(state), m_axis(axis), m_scrolled(std::move(scrolled)) {}

void CMapScrollBar::ScrollBaseMove(int steps) {
    ScrollBy(m_state, m_axis, steps);
    m_scrolled();
}

// Where the user let go is a place to come back to.
void CMapScrollBar::OnLButtonUp(UINT flags, CPoint point) {
    CViewerScrollBar::OnLButtonUp(flags, point);
    m_state.EndDrag();
    m_scrolled();
}
