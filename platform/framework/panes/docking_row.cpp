#include "afxDockingPanesRow.h"

#include "afxDockSite.h"
#include "afxPane.h"
#include "panes/row_place.h"

#include <algorithm>
#include <functional>

IMPLEMENT_DYNAMIC(CDockingPanesRow, CObject)

namespace {

void ForEachPane(const CObList& panes, const std::function<void(CPane&)>& done) {
    for (POSITION position = panes.GetHeadPosition(); position != nullptr;) {
        const CObject* const pane = panes.GetNext(position);
        done(*static_cast<CPane*>(const_cast<CObject*>(pane)));
    }
}

int VisiblePanes(const CObList& panes) {
    int count = 0;
    ForEachPane(panes, [&count](const CPane& pane) { count += pane.IsVisible() ? 1 : 0; });
    return count;
}

} // namespace

CDockingPanesRow::CDockingPanesRow(CDockSite* pParentDockBar, int nOffset, int nHeight)
    : m_pParentDockBar(pParentDockBar), m_nRowOffset(nOffset), m_nRowHeight(nHeight) {}

CDockingPanesRow::~CDockingPanesRow() = default;

DWORD CDockingPanesRow::GetRowAlignment() const { return m_pParentDockBar->GetCurrentAlignment(); }

bool CDockingPanesRow::IsHorizontal() const { return m_pParentDockBar->IsHorizontal() != FALSE; }

BOOL CDockingPanesRow::HasPane(CBasePane* pControlBar) { return m_lstControlBars.Find(pControlBar) != nullptr; }

int CDockingPanesRow::GetVisibleCount() { return VisiblePanes(m_lstControlBars); }

BOOL CDockingPanesRow::IsVisible() const { return VisiblePanes(m_lstControlBars) > 0; }

BOOL CDockingPanesRow::IsExclusiveRow() const {
    BOOL isExclusive = FALSE;
    ForEachPane(m_lstControlBars,
                [&isExclusive](const CPane& pane) { isExclusive = isExclusive || pane.GetExclusiveRowMode(); });
    return isExclusive;
}

BOOL CDockingPanesRow::ShowPane(CPane* pControlBar, BOOL bShow, BOOL bDelay) {
    if (!HasPane(pControlBar)) {
        return FALSE;
    }
    pControlBar->ShowPane(bShow, bDelay, FALSE);
    return TRUE;
}

int CDockingPanesRow::GetMaxPaneSize(BOOL bSkipHiddenBars) const {
    int thickest = 0;
    ForEachPane(m_lstControlBars, [&](CPane& pane) {
        if (pane.IsVisible() || !bSkipHiddenBars) {
            const CSize size = pane.CalcFixedLayout(FALSE, IsHorizontal());
            thickest = std::max<int>(thickest, IsHorizontal() ? size.cy : size.cx);
        }
    });
    return thickest;
}

int CDockingPanesRow::GetAvailableLength(BOOL) const {
    int used = 0;
    ForEachPane(m_lstControlBars, [&](const CPane& pane) {
        CRect window;
        pane.GetWindowRect(&window);
        used += pane.IsVisible() ? (IsHorizontal() ? window.Width() : window.Height()) : 0;
    });
    return std::max(0, m_pParentDockBar->GetRowLength() - used);
}

void CDockingPanesRow::GetClientRect(CRect& rect) const {
    CRect site;
    m_pParentDockBar->GetClientRect(&site);
    rect = panes::RectInSite(site, frame_bars::SideOfAlignment(GetRowAlignment()), {m_nRowOffset, m_nRowHeight},
                             {0, m_pParentDockBar->GetRowLength()});
}

void CDockingPanesRow::GetWindowRect(CRect& rect) const {
    GetClientRect(rect);
    m_pParentDockBar->ClientToScreen(&rect);
}

void CDockingPanesRow::ScreenToClient(CRect& rect) const { m_pParentDockBar->ScreenToClient(&rect); }

void CDockingPanesRow::RedrawAll() {
    CRect rect;
    GetClientRect(rect);
    m_pParentDockBar->RedrawWindow(rect, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}
