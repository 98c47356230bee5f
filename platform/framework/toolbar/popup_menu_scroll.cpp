// How a pop-up scrolls: by its bar's wish, by the strips at its ends, or by a scroll bar in their place.
#include "afxpopupmenu.h"

#include "fx/to_rect.h"
#include "fx/window_guard.h"
#include "toolbar/popup_parts.h"

#include <algorithm>

namespace {

constexpr UINT_PTR scrollTimer = 0xF101;

} // namespace

// Of a bar of that height.
void CMFCPopupMenu::UpdateScrollRange(int nHeight) {
    CMFCPopupMenuBar* bar = GetMenuBar();
    Parts& parts = *m_parts;
    if (!parts.scrollBar.GetSafeHwnd()) {
        InvalidateStrips();
        return;
    }
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    info.nMax = std::max(0, bar->GetContentHeight() - 1);
    info.nPage = static_cast<UINT>(bar->GetPageHeight(nHeight));
    info.nPos = std::min(bar->GetOffset(), bar->GetLowestOffset(nHeight));
    parts.scrollBar.SetScrollInfo(&info);
}

void CMFCPopupMenu::ScrollTo(int nOffset) {
    CMFCPopupMenuBar* bar = GetMenuBar();
    const int offset = std::clamp(nOffset, 0, bar->GetLowestOffset(m_rectBar.Height()));
    if (offset == bar->GetOffset()) {
        return;
    }
    bar->SetOffset(offset);
    if (m_parts->scrollBar.GetSafeHwnd()) {
        m_parts->scrollBar.SetScrollPos(offset);
    }
    InvalidateStrips();
}

void CMFCPopupMenu::ScrollBy(int nPixels) { ScrollTo(GetMenuBar()->GetOffset() + nPixels); }

void CMFCPopupMenu::ScrollRows(int nRows) {
    const int offset = GetMenuBar()->GetOffsetAfter(nRows);
    if (offset == GetMenuBar()->GetOffset()) {
        return;
    }
    const fx::WindowGuard guard(this);
    if (CMFCToolBarMenuButton* open = GetMenuBar()->GetDroppedDownMenu()) {
        open->OnCancelMode(); // the frame hears of it and may do anything
    }
    if (guard.IsAlive()) {
        ScrollTo(offset);
    }
}

void CMFCPopupMenu::OnVScroll(UINT nSBCode, UINT, CScrollBar* pScrollBar) {
    if (!pScrollBar) {
        return;
    }
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    pScrollBar->GetScrollInfo(&info, SIF_ALL);
    const int line = std::max(1, GetMenuBar()->GetRowHeight());
    const int page = std::max(line, GetMenuBar()->GetPageHeight(m_rectBar.Height()));
    const int offset = GetMenuBar()->GetOffset();
    switch (nSBCode) {
    case SB_LINEUP:
        return ScrollBy(-line);
    case SB_LINEDOWN:
        return ScrollBy(line);
    case SB_PAGEUP:
        return ScrollBy(-page);
    case SB_PAGEDOWN:
        return ScrollBy(page);
    case SB_TOP:
        return ScrollBy(-offset);
    case SB_BOTTOM:
        return ScrollBy(info.nMax);
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        // Whole rows, so that none is cut at the top.
        return ScrollBy(info.nTrackPos / line * line - offset);
    default:
        return;
    }
}

// ---- strips

void CMFCPopupMenu::InvalidateStrips() {
    InvalidateRect(fx::ToRect(m_parts->strips.Up()));
    InvalidateRect(fx::ToRect(m_parts->strips.Down()));
}

void CMFCPopupMenu::LightStripAt(CPoint point) {
    if (!m_parts->strips.Light(fx::FromPoint(point))) {
        return;
    }
    InvalidateStrips();
    if (m_parts->strips.Rows() != 0) {
        SetTimer(scrollTimer, toolbar::ScrollStrips::kInterval, nullptr);
    } else {
        KillTimer(scrollTimer);
    }
}

// Nobody says that the pointer has left for the bar, which is a window of its own.
void CMFCPopupMenu::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent != scrollTimer) {
        CMiniFrameWnd::OnTimer(nIDEvent);
        return;
    }
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ScreenToClient(&cursor);
    LightStripAt(cursor);
    ScrollRows(m_parts->strips.Rows());
}
