#include "panes/pane_drag.h"

#include "afxDockingManager.h"
#include "afxDockSite.h"
#include "afxglobals.h"
#include "afxPaneFrameWnd.h"
#include "panes/drag_preview.h"
#include "panes/row_place.h"

#include <algorithm>
#include <utility>

namespace panes {

namespace {

constexpr DWORD kAlignments[] = {CBRS_ALIGN_TOP, CBRS_ALIGN_BOTTOM, CBRS_ALIGN_LEFT, CBRS_ALIGN_RIGHT};

} // namespace

PaneDrag::PaneDrag(CDockingManager& manager, CPane& pane, CPoint screen)
    : m_manager(manager),
      m_pane(&pane),
      m_start(screen),
      m_isImmediate(pane.GetDockingMode() == DT_IMMEDIATE),
      m_siteBefore(pane.GetParentDockSite()) {
    CWnd* const moved = pane.GetParentMiniFrame(TRUE);
    CRect window;
    (moved != nullptr ? moved : &pane)->GetWindowRect(&window);
    m_hot = screen - window.TopLeft();
    const bool isMirrored = (pane.GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    m_hotFromStart = isMirrored ? window.right - screen.x : m_hot.x;
    pane.SetClientHotSpot(m_hot);
    m_floatBefore = moved != nullptr ? window : CRect(0, 0, 0, 0);
    if (m_siteBefore != nullptr) {
        m_toMiddle = m_siteBefore->AcrossAndAlong(window.CenterPoint()).x - m_siteBefore->AcrossAndAlong(screen).x;
    }
    pane.RememberPlace();
    m_recentBefore = pane.m_recentDockInfo;
    for (const DWORD alignment : kAlignments) {
        if (CDockSite* const site = manager.FindDockSite(alignment, TRUE)) {
            m_sitesBefore.push_back({site, site->Rows()});
        }
    }
}

PaneDrag::~PaneDrag() {
    End();
    DestroyWindow();
}

bool PaneDrag::Begin() {
    if (!TakeMouse(m_manager.GetDockSiteFrameWnd())) {
        m_pane = nullptr;
    }
    return IsUnderWay();
}

CPane* PaneDrag::End() {
    CPane* const pane = std::exchange(m_pane, nullptr);
    m_preview.reset();
    if (pane != nullptr) {
        ReleaseMouse();
        for (const SiteBefore& before : m_sitesBefore) {
            before.site->SetMovedPane(nullptr);
        }
    }
    return pane;
}

void PaneDrag::Forget(const CPane* pane) {
    if (IsOf(pane)) {
        End();
    }
}

void PaneDrag::Cancel() {
    if (IsUnderWay()) {
        const bool hasMoved = m_isMoving && m_isImmediate;
        CPane* const pane = m_pane;
        End();
        if (hasMoved) {
            m_pane = pane;
            PutBack();
            m_pane = nullptr;
        }
    }
}

void PaneDrag::MoveTo(CPoint screen) {
    const CSize moved = screen - m_start;
    m_isMoving = m_isMoving || std::abs(moved.cx) >= ::GetSystemMetrics(SM_CXDRAG) ||
                 std::abs(moved.cy) >= ::GetSystemMetrics(SM_CYDRAG);
    if (!m_isMoving) {
        return;
    }
    const Target target = FindTarget(screen);
    if (m_isImmediate) {
        Apply(target);
        return;
    }
    if (m_preview == nullptr) {
        m_preview = std::make_unique<DragPreview>();
    }
    m_preview->Show(Outline(target));
}

// The side where the pane lies is asked first: where two meet it does not jump from one to the other.
CDockSite* PaneDrag::FindSite(CPoint screen) const {
    const DWORD allowed = m_pane->GetEnabledAlignment() & m_manager.GetEnabledAlignment();
    const int reach = afxGlobalData.ScalePixels(CDockingManager::m_nDockSensitivity);
    std::vector<CDockSite*> sites;
    for (const DWORD alignment : kAlignments) {
        if ((alignment & allowed) != 0 && m_manager.SiteFor(alignment) != nullptr) {
            sites.push_back(m_manager.SiteFor(alignment));
        }
    }
    std::ranges::stable_partition(sites, [this](CDockSite* site) { return site == m_pane->GetParentDockSite(); });
    for (CDockSite* const site : sites) {
        CRect rect;
        site->GetWindowRect(&rect);
        rect.InflateRect(reach, reach);
        if (rect.PtInRect(screen) && site->CanAcceptPane(m_pane)) {
            return site;
        }
    }
    return nullptr;
}

PaneDrag::Target PaneDrag::InSite(CDockSite& site, CPoint screen) const {
    const CPoint acrossAndAlong = site.AcrossAndAlong(screen);
    const CSize size = m_pane->CalcFixedLayout(FALSE, site.IsHorizontal());
    const int length = std::max(1, static_cast<int>(site.IsHorizontal() ? size.cx : size.cy));
    const int hot = m_siteBefore != nullptr && !m_siteBefore->IsHorizontal() ? m_hot.y : m_hotFromStart;
    Target target;
    target.site = &site;
    // By which edge the user took the pane makes no difference in the rows where it lay. The rows as they were say
    // which one is meant: those that the pane has moved aside come back when it goes on.
    const int across = acrossAndAlong.x + (&site == m_siteBefore ? m_toMiddle : 0);
    const auto before =
        std::ranges::find_if(m_sitesBefore, [&site](const SiteBefore& known) { return known.site == &site; });
    target.place = before != m_sitesBefore.end() ? site.Rows().Translated(before->rows.RowAt(across), before->rows)
                                                 : site.Rows().RowAt(across);
    target.offset = acrossAndAlong.y - std::clamp(hot, 0, length - 1);
    return target;
}

PaneDrag::Target PaneDrag::FindTarget(CPoint screen) const {
    const bool mayDock = ::GetKeyState(VK_CONTROL) >= 0;
    CDockSite* const site = mayDock ? FindSite(screen) : nullptr;
    if (site != nullptr) {
        return InSite(*site, screen);
    }
    Target target;
    if (const CPaneFrameWnd* const miniFrame = m_pane->GetParentMiniFrame(TRUE)) {
        miniFrame->GetWindowRect(&target.rect);
    } else {
        target.rect = m_pane->CalcFloatingRect({0, 0});
    }
    // By the caption, which is what the mouse has in its hand from now on.
    const CSize size = target.rect.Size();
    const int caption = afxGlobalData.ScalePixels(CDockingManager::m_nDockSensitivity);
    const bool hasFloated = !m_floatBefore.IsRectEmpty();
    const CPoint hot(std::clamp<int>(m_hot.x, 0, std::max<int>(0, size.cx - caption)),
                     hasFloated ? m_hot.y : caption * 2 / 3);
    target.rect = CRect(CPoint(screen.x - hot.x, screen.y - hot.y), size);
    return target;
}

CRect PaneDrag::Outline(const Target& target) const {
    if (target.site == nullptr) {
        return m_pane->CanFloat() ? target.rect : CRect(0, 0, 0, 0);
    }
    const CSize size = m_pane->CalcFixedLayout(FALSE, target.site->IsHorizontal());
    const bool isHorizontal = target.site->IsHorizontal() != FALSE;
    int rowOffset = target.site->Rows().Thickness();
    for (const PlacedRow& row : target.site->Rows().Place(target.site->GetRowLength())) {
        if (target.place.row < target.site->Rows().Rows().size() &&
            row.id == target.site->Rows().Rows()[target.place.row].id) {
            rowOffset = row.offset;
        }
    }
    CRect site;
    target.site->GetClientRect(&site);
    const Span row{rowOffset, static_cast<int>(isHorizontal ? size.cy : size.cx)};
    const Span along{target.offset, static_cast<int>(isHorizontal ? size.cx : size.cy)};
    CRect rect = RectInSite(site, frame_bars::SideOfAlignment(target.site->GetCurrentAlignment()), row, along);
    target.site->ClientToScreen(&rect);
    return rect;
}

void PaneDrag::Apply(const Target& target) {
    CPane& pane = *m_pane;
    if (target.site != nullptr) {
        if (pane.DockByDrag(*target.site, target.place, target.offset) && IsOf(&pane)) {
            target.site->SetMovedPane(&pane);
            m_manager.AdjustDockingLayout();
        }
        return;
    }
    if (CPaneFrameWnd* const miniFrame = pane.GetParentMiniFrame(TRUE)) {
        miniFrame->SetWindowPos(nullptr, target.rect.left, target.rect.top, 0, 0,
                                SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    } else if (pane.CanFloat()) {
        pane.FloatPane(target.rect, DM_MOUSE);
    }
}

void PaneDrag::Finish(CPoint screen) {
    MoveTo(screen);
    if (!IsUnderWay()) {
        return; // whoever was told of the move has taken the pane away
    }
    const bool hasMoved = m_isMoving;
    if (hasMoved && !m_isImmediate) {
        Apply(FindTarget(screen));
    }
    if (CDockSite* const site = hasMoved && IsUnderWay() ? m_pane->GetParentDockSite() : nullptr) {
        site->KeepPlaces();
    }
    CPane* const pane = End();
    if (pane == nullptr || !hasMoved) {
        return;
    }
    if (CPaneFrameWnd* const miniFrame = pane->GetParentMiniFrame(TRUE)) {
        // The sites that it passed on its way do not count.
        pane->m_recentDockInfo = m_recentBefore;
        pane->RememberPlace();
        m_manager.BringToFront(*miniFrame);
        m_manager.GetDockSiteFrameWnd()->OnMoveMiniFrame(miniFrame);
    } else {
        pane->RememberPlace();
    }
}

void PaneDrag::PutBack() {
    if (m_siteBefore != nullptr) {
        m_siteBefore->DockAt(*m_pane, {0, true}, 0);
    } else if (!m_floatBefore.IsRectEmpty()) {
        m_pane->FloatPane(m_floatBefore, DM_MOUSE);
    }
    for (const SiteBefore& before : m_sitesBefore) {
        before.site->SetRows(before.rows);
    }
    m_pane->RememberPlace();
    m_manager.AdjustDockingLayout();
}

} // namespace panes
