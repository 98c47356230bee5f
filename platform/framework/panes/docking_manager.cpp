#include "afxDockingManager.h"

#include "afxDockSite.h"
#include "afxext.h"
#include "afxPane.h"
#include "afxPaneFrameWnd.h"
#include "fx/handle_bits.h"
#include "fx/scoped_change.h"
#include "panes/pane_drag.h"
#include "panes/pane_layout.h"
#include "panes/pane_menu.h"
#include "panes/row_place.h"

#include <algorithm>
#include <utility>

AFX_DOCK_TYPE CDockingManager::m_dockModeGlobal = DT_STANDARD;
int CDockingManager::m_nDockSensitivity = 15;

namespace {

panes::PaneRequest RequestOf(CBasePane& pane) {
    const auto* row = DYNAMIC_DOWNCAST(CPane, &pane);
    const bool isAlone = !pane.IsDocked() || (row && row->GetExclusiveRowMode());
    const CSize size = pane.CalcFixedLayout(isAlone, pane.IsHorizontal());
    return {frame_bars::SideOfAlignment(pane.GetCurrentAlignment()), size, isAlone};
}

/// Of panes that were docked before they had their places.
void RememberDockedPlaces(const CObList& panes) {
    for (POSITION position = panes.GetHeadPosition(); position;) {
        auto* const pane = const_cast<CPane*>(DYNAMIC_DOWNCAST(CPane, panes.GetNext(position)));
        if (pane && pane->IsDocked()) {
            pane->RememberPlace();
        }
    }
}

} // namespace

CDockingManager::CDockingManager() = default;

CDockingManager::~CDockingManager() = default;

BOOL CDockingManager::Create(CFrameWnd* pParentWnd) {
    m_pParentWnd = pParentWnd;
    return pParentWnd != nullptr;
}

BOOL CDockingManager::AddPane(CBasePane* pWnd, BOOL bTail, BOOL, BOOL bInsertForOuterEdge) {
    if (!pWnd || m_lstControlBars.Find(pWnd)) {
        return FALSE;
    }
    if (bTail && !bInsertForOuterEdge) {
        m_lstControlBars.AddTail(pWnd);
    } else {
        m_lstControlBars.AddHead(pWnd);
    }
    return TRUE;
}

BOOL CDockingManager::InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter) {
    const POSITION target = m_lstControlBars.Find(pTarget);
    if (!target || pControlBar == pTarget) {
        return FALSE;
    }
    if (const POSITION former = m_lstControlBars.Find(pControlBar)) {
        m_lstControlBars.RemoveAt(former);
    }
    if (bAfter) {
        m_lstControlBars.InsertAfter(target, pControlBar);
    } else {
        m_lstControlBars.InsertBefore(target, pControlBar);
    }
    return TRUE;
}

void CDockingManager::MoveToEndOfSide(CBasePane* pane) {
    if (const POSITION position = m_lstControlBars.Find(pane)) {
        m_lstControlBars.RemoveAt(position);
        m_lstControlBars.AddTail(pane);
    }
}

void CDockingManager::MoveToStartOfSide(CBasePane* pane) {
    if (const POSITION position = m_lstControlBars.Find(pane)) {
        m_lstControlBars.RemoveAt(position);
        m_lstControlBars.AddHead(pane);
    }
}

void CDockingManager::RemovePaneFromDockManager(CBasePane* pWnd, BOOL bDestroy, BOOL bAdjustLayout, BOOL,
                                                CBasePane* pBarReplacement) {
    if (const POSITION hidden = m_hiddenPanes.Find(pWnd)) {
        m_hiddenPanes.RemoveAt(hidden);
    }
    const POSITION position = m_lstControlBars.Find(pWnd);
    if (!position) {
        return;
    }
    if (auto* const pane = DYNAMIC_DOWNCAST(CPane, pWnd)) {
        LeavePlace(*pane);
    }
    if (pBarReplacement && !m_lstControlBars.Find(pBarReplacement)) {
        m_lstControlBars.SetAt(position, pBarReplacement);
    } else {
        m_lstControlBars.RemoveAt(position);
    }
    if (bDestroy) {
        pWnd->DestroyWindow();
    }
    if (bAdjustLayout) {
        AdjustDockingLayout();
    }
}

CBasePane* CDockingManager::FindPaneByID(UINT uBarID, BOOL) {
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position;) {
        auto* pane = static_cast<CBasePane*>(m_lstControlBars.GetNext(position));
        if (static_cast<UINT>(pane->GetDlgCtrlID()) == uBarID) {
            return pane;
        }
    }
    return nullptr;
}

void CDockingManager::GetPaneList(CObList& lstBars, BOOL, CRuntimeClass* pRTCFilter, BOOL) {
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position;) {
        CObject* pane = m_lstControlBars.GetNext(position);
        if (!pRTCFilter || pane->IsKindOf(pRTCFilter)) {
            lstBars.AddTail(pane);
        }
    }
}

CBasePane* CDockingManager::PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar, CRuntimeClass* pRTCBarType,
                                          BOOL bCheckVisibility, const CBasePane* pBarToIgnore) const {
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position;) {
        auto* pane = static_cast<CBasePane*>(m_lstControlBars.GetNext(position));
        if (pane == pBarToIgnore || (bCheckVisibility && !pane->IsVisible())) {
            continue;
        }
        if (pRTCBarType && !(bExactBar ? pane->GetRuntimeClass() == pRTCBarType : pane->IsKindOf(pRTCBarType))) {
            continue;
        }
        CRect window;
        pane->GetWindowRect(&window);
        window.InflateRect(nSensitivity, nSensitivity);
        if (window.PtInRect(point)) {
            return pane;
        }
    }
    return nullptr;
}

void CDockingManager::RecalcLayout(BOOL) { AdjustDockingLayout(); }

void CDockingManager::AdjustDockingLayout(HDWP hdwp) {
    if (m_nLockCount > 0) {
        m_isLayoutPending = true;
        return;
    }
    // A pane that is resized may ask for a layout itself; it is in the middle of one.
    if (m_bIsInAdjustLayout || !m_pParentWnd || !m_pParentWnd->m_hWnd || m_pParentWnd->IsIconic()) {
        return;
    }
    const fx::ScopedChange<BOOL> adjusting(m_bIsInAdjustLayout, TRUE);
    PlacePanes(hdwp);
}

std::vector<CBasePane*> CDockingManager::PanesToPlace() const {
    std::vector<CBasePane*> panes;
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position;) {
        auto* pane = static_cast<CBasePane*>(m_lstControlBars.GetNext(position));
        const bool isInFrame = fx::IsSameHandle(::GetParent(pane->m_hWnd), m_pParentWnd->m_hWnd);
        if (isInFrame && pane->IsVisible() && pane->GetCurrentAlignment() != 0) {
            panes.push_back(pane);
        }
    }
    // The ribbon stands in for caption and menu: nothing goes above it. Bars that keep to an edge lie outside the rows
    // of docked ones.
    std::stable_sort(panes.begin(), panes.end(), [](const CBasePane* first, const CBasePane* second) {
        const auto rank = [](const CBasePane* pane) { return pane->IsFrameRibbon() ? 0 : pane->IsDocked() ? 2 : 1; };
        return rank(first) < rank(second);
    });
    return panes;
}

void CDockingManager::PlacePanes(HDWP deferred) {
    m_pParentWnd->GetClientRect(&m_rectOuter);
    m_rectOuter.DeflateRect(m_rectMargins.left, m_rectMargins.top, m_rectMargins.right, m_rectMargins.bottom);

    const std::vector<CBasePane*> placed = PanesToPlace();
    constexpr int clientSitesAndControlBars = 12;
    const bool isOwnBatch = deferred == nullptr;
    HDWP batch =
        isOwnBatch ? ::BeginDeferWindowPos(static_cast<int>(placed.size()) + clientSitesAndControlBars) : deferred;

    AFX_SIZEPARENTPARAMS bars{batch, m_rectOuter, {0, 0}, TRUE};
    m_pParentWnd->PlaceControlBars(bars);
    batch = bars.hDWP;

    std::vector<panes::PaneRequest> requests;
    requests.reserve(placed.size());
    for (CBasePane* pane : placed) {
        requests.push_back(RequestOf(*pane));
    }
    const panes::PaneLayout layout = panes::LayOutPanes(bars.rect, requests);
    for (size_t index = 0; index < placed.size(); ++index) {
        batch = panes::DeferMove(batch, placed[index]->m_hWnd, layout.panes[index]);
    }
    m_rectClientArea = layout.rest;
    batch = PlaceSites(batch, m_rectClientArea);
    if (const HWND client = ::GetDlgItem(m_pParentWnd->m_hWnd, AFX_IDW_PANE_FIRST)) {
        batch = panes::DeferMove(batch, client, m_rectClientArea);
    }
    if (isOwnBatch && batch) {
        ::EndDeferWindowPos(batch);
    }
    PlacePanesOfSites();
}

void CDockingManager::LockUpdate(BOOL bLock) {
    m_nLockCount += bLock ? 1 : -1;
    if (m_nLockCount <= 0) {
        m_nLockCount = 0;
        if (std::exchange(m_isLayoutPending, false)) {
            AdjustDockingLayout();
            RememberDockedPlaces(m_lstControlBars);
        }
    }
}

BOOL CDockingManager::ShowPanes(BOOL bShow) {
    CObList& source = bShow ? m_hiddenPanes : m_lstControlBars;
    std::vector<CBasePane*> changed;
    for (POSITION position = source.GetHeadPosition(); position;) {
        auto* pane = static_cast<CBasePane*>(source.GetNext(position));
        if (pane->IsVisible() != bShow) {
            changed.push_back(pane);
        }
    }
    m_hiddenPanes.RemoveAll();
    for (CBasePane* pane : changed) {
        if (!bShow) {
            m_hiddenPanes.AddTail(pane);
        }
        pane->ShowPane(bShow, TRUE, FALSE);
    }
    AdjustDockingLayout();
    return !changed.empty();
}

void CDockingManager::SetDockingMode(AFX_DOCK_TYPE dockMode, AFX_SMARTDOCK_THEME) { m_dockModeGlobal = dockMode; }

void CDockingManager::EnablePaneContextMenu(BOOL bEnable, UINT uiCustomizeCmd, const CString& strCustomizeText,
                                            BOOL bToolbarsOnly) {
    m_hasPaneMenu = bEnable != FALSE;
    m_customizeCommand = uiCustomizeCmd;
    m_customizeText = strCustomizeText;
    m_paneMenuOfToolbarsOnly = bToolbarsOnly != FALSE;
}

void CDockingManager::OnPaneContextMenu(CPoint point) {
    if (!m_hasPaneMenu || !m_pParentWnd) {
        return;
    }
    ShowPaneMenu(*m_pParentWnd, point,
                 {PanesForMenu(m_lstControlBars, m_paneMenuOfToolbarsOnly), m_customizeCommand, m_customizeText});
}
