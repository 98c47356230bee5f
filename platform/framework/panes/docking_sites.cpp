// The docking manager's four sides, its mini frames and the drag of a pane.
#include "afxDockingManager.h"

#include "afxDockSite.h"
#include "afxglobals.h"
#include "afxPane.h"
#include "afxPaneFrameWnd.h"
#include "panes/pane_drag.h"
#include "panes/row_place.h"
#include "window/bar_strip.h"

#include <iterator>

namespace {

/// In the order in which the sides take their room: top and bottom reach over the whole width.
constexpr DWORD kSides[] = {CBRS_ALIGN_TOP, CBRS_ALIGN_BOTTOM, CBRS_ALIGN_LEFT, CBRS_ALIGN_RIGHT};

std::size_t IndexOf(DWORD alignment) {
    for (std::size_t index = 0; index < std::size(kSides); ++index) {
        if (kSides[index] == (alignment & CBRS_ALIGN_ANY)) {
            return index;
        }
    }
    return std::size(kSides);
}

} // namespace

BOOL CDockingManager::EnableDocking(DWORD dwStyle) {
    m_dwEnabledAlignment |= dwStyle & CBRS_ALIGN_ANY;
    for (const DWORD side : kSides) {
        if ((m_dwEnabledAlignment & side) != 0) {
            SiteFor(side);
        }
    }
    return m_dwEnabledAlignment != 0;
}

BOOL CDockingManager::EnableAutoHidePanes(DWORD dwStyle) {
    m_dwEnabledAutoHideAlignment |= dwStyle & CBRS_ALIGN_ANY;
    return m_dwEnabledAutoHideAlignment != 0;
}

CDockSite* CDockingManager::FindDockSite(DWORD dwAlignment, BOOL) {
    const std::size_t index = IndexOf(dwAlignment);
    CDockSite* const site = index < m_sites.size() ? m_sites[index].get() : nullptr;
    return site != nullptr && site->m_hWnd != nullptr ? site : nullptr;
}

CDockSite* CDockingManager::FindDockSiteByPane(CPane* pTargetBar) {
    return pTargetBar != nullptr ? pTargetBar->GetParentDockSite() : nullptr;
}

CDockSite* CDockingManager::SiteFor(DWORD dwAlignment) {
    const std::size_t index = IndexOf(dwAlignment);
    if (index == m_sites.size() || m_pParentWnd == nullptr || m_pParentWnd->m_hWnd == nullptr) {
        return nullptr;
    }
    std::unique_ptr<CDockSite>& site = m_sites[index];
    if (site == nullptr || site->m_hWnd == nullptr) {
        site = std::make_unique<CDockSite>();
        CRect rest;
        m_pParentWnd->GetClientRect(&rest);
        rest = m_rectClientArea.IsRectEmpty() ? rest : m_rectClientArea;
        RECT area = rest;
        const CRect line = frame_bars::TakeStrip(area, frame_bars::SideOfAlignment(dwAlignment), 0);
        if (!site->CreateEx(0, WS_CHILD | WS_VISIBLE | kSides[index], line, m_pParentWnd, 0)) {
            site.reset();
        }
    }
    return site.get();
}

void CDockingManager::DockPane(CBasePane* pBar, UINT nDockBarID, LPCRECT lpRect) {
    const auto* const pane = DYNAMIC_DOWNCAST(CPane, pBar);
    DWORD alignment = nDockBarID != 0 ? panes::AlignmentOfDockBar(nDockBarID) : pBar->GetCurrentAlignment();
    if (alignment == 0 && nDockBarID == 0 && pane != nullptr) {
        alignment = pane->m_recentDockInfo.m_dwRecentAlignment; // it floats
    }
    if ((alignment & pBar->GetEnabledAlignment() & m_dwEnabledAlignment) == 0) {
        return;
    }
    AddPane(pBar);
    CBasePane* const site = SiteFor(alignment);
    if (pane == nullptr || site == nullptr) {
        pBar->SetPaneAlignment(alignment);
    }
    pBar->DockPane(site, lpRect, lpRect ? DM_RECT : DM_STANDARD);
}

BOOL CDockingManager::DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar) {
    CDockSite* const site = FindDockSiteByPane(pTargetBar);
    if (site == nullptr || !site->DockPaneLeftOf(pBarToDock, pTargetBar)) {
        return FALSE;
    }
    AddPane(pBarToDock);
    InsertPane(pBarToDock, pTargetBar, FALSE);
    AdjustDockingLayout();
    pBarToDock->RememberPlace();
    return TRUE;
}

void CDockingManager::LeavePlace(CPane& pane) {
    if (m_drag != nullptr) {
        m_drag->Forget(&pane);
    }
    if (CDockSite* const site = pane.GetParentDockSite()) {
        site->RemovePane(&pane, DM_UNKNOWN);
    } else if (CPaneFrameWnd* const miniFrame = pane.GetParentMiniFrame(TRUE)) {
        miniFrame->RemovePane(&pane);
    }
}

HDWP CDockingManager::PlaceSites(HDWP deferred, CRect& rest) {
    RECT area = rest;
    for (const std::unique_ptr<CDockSite>& site : m_sites) {
        if (site == nullptr || site->m_hWnd == nullptr) {
            continue;
        }
        const int length = site->IsHorizontal() ? area.right - area.left : area.bottom - area.top;
        const auto side = frame_bars::SideOfAlignment(site->GetCurrentAlignment());
        const RECT strip = frame_bars::TakeStrip(area, side, site->Measure(length));
        if (m_pParentWnd->IsWindowVisible()) {
            site->Settle(); // the user has seen the rows
        }
        deferred = panes::DeferMove(deferred, site->m_hWnd, strip);
    }
    rest = area;
    return deferred;
}

// The sites have their places now; one whose size is as before has not placed its panes by itself.
void CDockingManager::PlacePanesOfSites() {
    for (const std::unique_ptr<CDockSite>& site : m_sites) {
        if (site != nullptr && site->m_hWnd != nullptr) {
            CRect client;
            site->GetClientRect(&client);
            site->RepositionPanes(client);
        }
    }
}

CRect CDockingManager::GetSiteRect(DWORD dwAlignment) const {
    CRect rect(0, 0, 0, 0);
    const std::size_t index = IndexOf(dwAlignment);
    if (index < m_sites.size() && m_sites[index] != nullptr && m_sites[index]->m_hWnd != nullptr) {
        m_sites[index]->GetWindowRect(&rect);
    }
    return rect;
}

BOOL CDockingManager::IsPointNearDockSite(CPoint point, DWORD& dwBarAlignment, BOOL& bOuterEdge) const {
    const int reach = afxGlobalData.ScalePixels(m_nDockSensitivity);
    for (const DWORD side : kSides) {
        CRect rect = GetSiteRect(side);
        if ((m_dwEnabledAlignment & side) == 0 || rect.IsRectNull()) {
            continue;
        }
        rect.InflateRect(reach, reach);
        if (rect.PtInRect(point)) {
            dwBarAlignment = side;
            bOuterEdge = TRUE;
            return TRUE;
        }
    }
    return FALSE;
}

BOOL CDockingManager::AddMiniFrame(CPaneFrameWnd* pWnd) {
    if (pWnd == nullptr || m_lstMiniFrames.Find(pWnd) != nullptr) {
        return FALSE;
    }
    m_lstMiniFrames.AddHead(pWnd);
    return TRUE;
}

BOOL CDockingManager::RemoveMiniFrame(CPaneFrameWnd* pWnd) {
    const POSITION position = m_lstMiniFrames.Find(pWnd);
    if (position == nullptr) {
        return FALSE;
    }
    m_lstMiniFrames.RemoveAt(position);
    return TRUE;
}

void CDockingManager::BringToFront(CPaneFrameWnd& miniFrame) {
    if (RemoveMiniFrame(&miniFrame)) {
        m_lstMiniFrames.AddHead(&miniFrame);
    }
    miniFrame.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

CPaneFrameWnd* CDockingManager::FrameFromPoint(CPoint pt, CPaneFrameWnd* pFrameToExclude, BOOL) const {
    for (POSITION position = m_lstMiniFrames.GetHeadPosition(); position != nullptr;) {
        const CObject* const object = m_lstMiniFrames.GetNext(position);
        auto* const frame = static_cast<CPaneFrameWnd*>(const_cast<CObject*>(object));
        CRect window;
        frame->GetWindowRect(&window);
        if (frame != pFrameToExclude && frame->IsWindowVisible() && window.PtInRect(pt)) {
            return frame;
        }
    }
    return nullptr;
}

BOOL CDockingManager::SendMessageToMiniFrames(UINT uMessage, WPARAM wParam, LPARAM lParam) {
    std::vector<HWND> frames;
    for (POSITION position = m_lstMiniFrames.GetHeadPosition(); position != nullptr;) {
        frames.push_back(static_cast<CPaneFrameWnd*>(m_lstMiniFrames.GetNext(position))->m_hWnd);
    }
    for (const HWND frame : frames) {
        if (::IsWindow(frame)) {
            ::SendMessageW(frame, uMessage, wParam, lParam);
            CWnd::SendMessageToDescendants(frame, uMessage, wParam, lParam, TRUE, TRUE);
        }
    }
    return TRUE;
}

BOOL CDockingManager::StartDrag(CPane& pane, CPoint screen) {
    CancelDrag();
    m_drag = std::make_unique<panes::PaneDrag>(*this, pane, screen);
    return m_drag->Begin();
}

void CDockingManager::CancelDrag() {
    if (m_drag != nullptr) {
        m_drag->Cancel();
    }
}

BOOL CDockingManager::IsDragging(const CPane* pane) const { return m_drag != nullptr && m_drag->IsOf(pane); }
