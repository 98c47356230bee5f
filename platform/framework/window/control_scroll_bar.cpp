#include "fx/scroll_bar.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::CScrollBar() = default;

CScrollBar::~CScrollBar() { DestroyWindow(); }

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_SCROLLBAR, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CScrollBar::EnableScrollBar(UINT nArrowFlags) { return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags); }

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const {
    pScrollInfo->cbSize = sizeof(SCROLLBARINFO);
    return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, pScrollInfo);
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit() {
    SCROLLINFO info{};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE)) {
        return 0;
    }
    return info.nPage > 0 ? info.nMax - static_cast<int>(info.nPage) + 1 : info.nMax;
}

int CScrollBar::GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

int CScrollBar::SetScrollPos(int nPos, BOOL bRedraw) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw) {
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
}

void CScrollBar::ShowScrollBar(BOOL bShow) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
