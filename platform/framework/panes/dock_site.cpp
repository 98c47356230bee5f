#include "afxDockSite.h"

#include "afxDockingManager.h"
#include "afxDockingPanesRow.h"
#include "afxPane.h"
#include "afxPaneFrameWnd.h"
#include "afxvisualmanager.h"
#include "fx/scoped_change.h"
#include "panes/dock_rows.h"
#include "panes/row_place.h"
#include "window/bar_strip.h"

#include <utility>

IMPLEMENT_DYNCREATE(CDockSite, CBasePane)

BEGIN_MESSAGE_MAP(CDockSite, CBasePane)
ON_WM_CREATE()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {

panes::PaneKey KeyOf(const CPane* pane) { return reinterpret_cast<panes::PaneKey>(pane); }

CPane* PaneOf(panes::PaneKey key) { return reinterpret_cast<CPane*>(key); }

} // namespace

CDockSite::CDockSite() : m_rows(std::make_unique<panes::DockRows>()) {}

CDockSite::~CDockSite() {
    DestroyWindow();
    while (!m_lstDockBarRows.IsEmpty()) {
        delete m_lstDockBarRows.RemoveHead();
    }
}

BOOL CDockSite::CreateEx(DWORD dwStyleEx, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, DWORD dwControlBarStyle,
                         CCreateContext* pContext) {
    const UINT id = panes::DockBarOf(dwStyle & CBRS_ALIGN_ANY);
    return CBasePane::CreateEx(dwStyleEx, nullptr, nullptr, dwStyle | WS_CLIPCHILDREN, rect, pParentWnd, id,
                               dwControlBarStyle, pContext);
}

// A site is none of the frame's panes: the docking manager places it by itself.
int CDockSite::OnCreate(LPCREATESTRUCT) {
    if (Default() == -1) {
        return -1;
    }
    m_pDockSiteFrame = DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
    return 0;
}

UINT CDockSite::GetDockSiteID() const { return panes::DockBarOf(GetCurrentAlignment()); }

BOOL CDockSite::CanAcceptPane(const CBasePane* pBar) const {
    return pBar != nullptr && pBar->IsKindOf(RUNTIME_CLASS(CPane)) &&
           (pBar->GetEnabledAlignment() & GetCurrentAlignment()) != 0;
}

panes::DockedPane CDockSite::Describe(CPane& pane) const {
    const BOOL isHorizontal = IsHorizontal();
    CSize smallest(0, 0);
    pane.GetMinSize(smallest);
    const CSize size = pane.CalcFixedLayout(FALSE, isHorizontal);
    panes::DockedPane described;
    described.key = KeyOf(&pane);
    described.length = isHorizontal ? size.cx : size.cy;
    described.thickness = isHorizontal ? size.cy : size.cx;
    described.smallest = std::min<int>(described.length, isHorizontal ? smallest.cx : smallest.cy);
    described.isVisible = pane.IsVisible() != FALSE;
    described.wantsWholeRow = pane.GetExclusiveRowMode() || !pane.DoesAllowSiblingBars();
    return described;
}

void CDockSite::Adopt(CPane& pane) {
    if (CPaneFrameWnd* const miniFrame = pane.GetParentMiniFrame(TRUE)) {
        miniFrame->RemovePane(&pane);
    } else if (CDockSite* const former = pane.GetParentDockSite(); former != nullptr && former != this) {
        former->RemovePane(&pane, DM_UNKNOWN);
    }
    pane.SetPaneAlignment(GetCurrentAlignment());
    panes::ChangeParent(pane, *this);
    pane.m_bIsDocked = TRUE;
    if (!m_lstControlBars.Find(&pane)) {
        m_lstControlBars.AddTail(&pane);
    }
}

void CDockSite::DockPane(CPane* pWnd, AFX_DOCK_METHOD, LPCRECT lpRect) {
    Adopt(*pWnd);
    m_rows->Remove(KeyOf(pWnd));
    panes::DockedPane described = Describe(*pWnd);
    if (lpRect == nullptr) {
        described.flows = true;
        m_rows->AddLast(described, GetRowLength());
    } else {
        const CRect place(*lpRect);
        described.offset = AcrossAndAlong(place.TopLeft()).y;
        m_rows->AddAt(described, m_rows->RowAt(AcrossAndAlong(place.CenterPoint()).x), GetRowLength());
    }
    UpdateRowObjects();
}

BOOL CDockSite::DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar) {
    if (pBarToDock == pTargetBar || !m_lstControlBars.Find(pTargetBar)) {
        return FALSE;
    }
    const panes::DockRows before = *m_rows;
    m_rows->Remove(KeyOf(pBarToDock));
    if (!m_rows->AddBefore(Describe(*pBarToDock), KeyOf(pTargetBar))) {
        *m_rows = before;
        return FALSE;
    }
    Adopt(*pBarToDock);
    UpdateRowObjects();
    return TRUE;
}

void CDockSite::DockAt(CPane& pane, const panes::RowPlace& place, int offset) {
    if (pane.GetParentDockSite() == this && m_rows->Contains(KeyOf(&pane))) {
        m_rows->MoveTo(KeyOf(&pane), place, offset, GetRowLength());
    } else {
        Adopt(pane);
        panes::DockedPane described = Describe(pane);
        described.offset = offset;
        m_rows->AddAt(described, place, GetRowLength());
    }
    UpdateRowObjects();
}

void CDockSite::DockBack(CPane& pane, int rowId, int rowIndex, int offset) {
    const std::size_t row = m_rows->RowWithId(rowId);
    if (row < m_rows->Rows().size()) {
        DockAt(pane, {row, false}, offset);
    } else {
        DockAt(pane, {static_cast<std::size_t>(std::max(0, rowIndex)), true}, offset);
    }
}

void CDockSite::Append(CPane& pane, bool inNewRow, int offset) {
    m_rows->Remove(KeyOf(&pane));
    Adopt(pane);
    panes::DockedPane described = Describe(pane);
    described.offset = offset;
    m_rows->Append(described, inNewRow);
    UpdateRowObjects();
}

void CDockSite::RemovePane(CPane* pWnd, AFX_DOCK_METHOD) {
    if (const POSITION position = m_lstControlBars.Find(pWnd)) {
        m_lstControlBars.RemoveAt(position);
        m_rows->Remove(KeyOf(pWnd));
        m_movedPane = m_movedPane == pWnd ? nullptr : m_movedPane;
        pWnd->m_bIsDocked = FALSE;
        UpdateRowObjects();
    }
}

BOOL CDockSite::ReplacePane(CPane* pOldBar, CPane* pNewBar) {
    const panes::DockedPane* const found = m_rows->Find(KeyOf(pOldBar));
    if (found == nullptr || pNewBar == nullptr || pNewBar == pOldBar) {
        return FALSE;
    }
    const panes::RowPlace place{m_rows->RowOf(KeyOf(pOldBar)), false};
    const int offset = found->offset;
    DockAt(*pNewBar, place, offset);
    RemovePane(pOldBar, DM_UNKNOWN);
    return TRUE;
}

BOOL CDockSite::MovePane(CPane* pWnd, UINT, CPoint ptOffset) {
    const panes::PaneKey key = KeyOf(pWnd);
    const std::size_t row = m_rows->RowOf(key);
    if (row == m_rows->Rows().size()) {
        return FALSE;
    }
    // From where it lies, not from where it would lie if the others let it.
    int offset = m_rows->Find(key)->offset;
    for (const panes::PlacedPane& placed : m_rows->Place(GetRowLength())[row].panes) {
        offset = placed.key == key ? placed.span.offset : offset;
    }
    offset += static_cast<int>(IsHorizontal() ? ptOffset.x : ptOffset.y);
    m_rows->MoveTo(key, {row, false}, offset, GetRowLength());
    m_rows->KeepPlaces(m_rows->RowOf(key), GetRowLength(), key);
    UpdateRowObjects();
    CBasePane::AdjustDockingLayout();
    return TRUE;
}

BOOL CDockSite::ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate) {
    if (!m_lstControlBars.Find(pBar)) {
        return FALSE;
    }
    pBar->ShowPane(bShow, bDelay, bActivate);
    return TRUE;
}

CPane* CDockSite::FindPaneByID(UINT nID) {
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position != nullptr;) {
        auto* const pane = static_cast<CPane*>(m_lstControlBars.GetNext(position));
        if (static_cast<UINT>(pane->GetDlgCtrlID()) == nID) {
            return pane;
        }
    }
    return nullptr;
}

CPane* CDockSite::PaneFromPoint(CPoint pt) {
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position != nullptr;) {
        auto* const pane = static_cast<CPane*>(m_lstControlBars.GetNext(position));
        CRect window;
        pane->GetWindowRect(&window);
        if (pane->IsVisible() && window.PtInRect(pt)) {
            return pane;
        }
    }
    return nullptr;
}

int CDockSite::FindRowIndex(CDockingPanesRow* pRow) {
    int index = 0;
    for (POSITION position = m_lstDockBarRows.GetHeadPosition(); position != nullptr; ++index) {
        if (m_lstDockBarRows.GetNext(position) == pRow) {
            return index;
        }
    }
    return -1;
}

bool CDockSite::IsLastRow(CDockingPanesRow* pRow) const {
    return !m_lstDockBarRows.IsEmpty() && m_lstDockBarRows.GetTail() == pRow;
}

CDockingPanesRow* CDockSite::RowOfPane(const CPane* pane) const {
    for (POSITION position = m_lstDockBarRows.GetHeadPosition(); position != nullptr;) {
        const CObject* const row = m_lstDockBarRows.GetNext(position);
        auto* const found = static_cast<CDockingPanesRow*>(const_cast<CObject*>(row));
        if (found->GetPaneList().Find(const_cast<CPane*>(pane)) != nullptr) {
            return found;
        }
    }
    return nullptr;
}

void CDockSite::UpdateRowObjects() {
    CObList former;
    while (!m_lstDockBarRows.IsEmpty()) {
        former.AddTail(m_lstDockBarRows.RemoveHead());
    }
    for (const panes::DockRow& row : m_rows->Rows()) {
        CDockingPanesRow* object = nullptr;
        for (POSITION position = former.GetHeadPosition(); position != nullptr && object == nullptr;) {
            const POSITION here = position;
            auto* const candidate = static_cast<CDockingPanesRow*>(former.GetNext(position));
            if (candidate->m_nID == row.id) {
                object = candidate;
                former.RemoveAt(here);
            }
        }
        if (object == nullptr) {
            object = new CDockingPanesRow(this, 0, 0);
            object->m_nID = row.id;
        }
        object->m_lstControlBars.RemoveAll();
        for (const panes::DockedPane& pane : row.panes) {
            object->m_lstControlBars.AddTail(PaneOf(pane.key));
        }
        m_lstDockBarRows.AddTail(object);
    }
    while (!former.IsEmpty()) {
        delete former.RemoveHead();
    }
}

void CDockSite::SetRows(const panes::DockRows& rows) {
    panes::DockRows taken = rows;
    for (const panes::DockRow& row : rows.Rows()) {
        for (const panes::DockedPane& pane : row.panes) {
            if (!m_rows->Contains(pane.key)) {
                taken.Remove(pane.key);
            }
        }
    }
    for (const panes::DockRow& row : m_rows->Rows()) {
        for (const panes::DockedPane& pane : row.panes) {
            if (!taken.Contains(pane.key)) {
                taken.AddLast(pane, GetRowLength());
            }
        }
    }
    *m_rows = taken;
    UpdateRowObjects();
}

void CDockSite::SetMovedPane(const CPane* pane) { m_movedPane = pane; }

void CDockSite::KeepPlaces() {
    if (m_movedPane != nullptr) {
        const panes::PaneKey key = KeyOf(std::exchange(m_movedPane, nullptr));
        m_rows->KeepPlaces(m_rows->RowOf(key), GetRowLength(), key);
    }
}

void CDockSite::Settle() { m_isSettled = true; }

int CDockSite::GetRowLength() const {
    CRect client(0, 0, 0, 0);
    if (m_hWnd != nullptr) {
        GetClientRect(&client);
    }
    return IsHorizontal() ? client.Width() : client.Height();
}

int CDockSite::Measure(int length) {
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position != nullptr;) {
        auto* const pane = static_cast<CPane*>(m_lstControlBars.GetNext(position));
        panes::DockedPane* const known = m_rows->Find(KeyOf(pane));
        const panes::DockedPane now = Describe(*pane);
        known->length = now.length;
        known->smallest = now.smallest;
        known->thickness = now.thickness;
        known->isVisible = now.isVisible;
        known->wantsWholeRow = now.wantsWholeRow;
    }
    if (!m_isSettled) {
        m_rows->Flow(length);
        UpdateRowObjects();
    }
    return m_rows->Thickness();
}

CSize CDockSite::CalcFixedLayout(BOOL, BOOL bHorz) {
    constexpr int asLongAsThereIs = 32767;
    const int thickness = m_rows->Thickness();
    return bHorz ? CSize(asLongAsThereIs, thickness) : CSize(thickness, asLongAsThereIs);
}

CPoint CDockSite::AcrossAndAlong(CPoint screen) const {
    CRect client;
    GetClientRect(&client);
    CPoint point = screen;
    ScreenToClient(&point);
    switch (frame_bars::SideOfAlignment(GetCurrentAlignment())) {
    case frame_bars::Side::Bottom:
        return {client.bottom - 1 - point.y, point.x};
    case frame_bars::Side::Left:
        return {point.x, point.y};
    case frame_bars::Side::Right:
        return {client.right - 1 - point.x, point.y};
    default:
        return {point.y, point.x};
    }
}

// One batch, so that panes that change their places never lie on each other.
void CDockSite::RepositionPanes(CRect& rectNewClientArea) {
    if (m_isPlacing) {
        return;
    }
    const fx::ScopedChange<bool> placing(m_isPlacing, true);
    const auto side = frame_bars::SideOfAlignment(GetCurrentAlignment());
    HDWP batch = ::BeginDeferWindowPos(static_cast<int>(m_lstControlBars.GetCount()));
    POSITION position = m_lstDockBarRows.GetHeadPosition();
    for (const panes::PlacedRow& row : m_rows->Place(GetRowLength(), KeyOf(m_movedPane))) {
        auto* const object = static_cast<CDockingPanesRow*>(m_lstDockBarRows.GetNext(position));
        object->m_nRowOffset = row.offset;
        object->m_nRowHeight = row.thickness;
        for (const panes::PlacedPane& placed : row.panes) {
            const CRect place = panes::RectInSite(rectNewClientArea, side, {row.offset, row.thickness}, placed.span);
            batch = panes::DeferMove(batch, PaneOf(placed.key)->m_hWnd, place);
        }
    }
    if (batch != nullptr) {
        ::EndDeferWindowPos(batch);
    }
}

void CDockSite::OnSize(UINT nType, int cx, int cy) {
    CBasePane::OnSize(nType, cx, cy);
    CRect client(0, 0, cx, cy);
    RepositionPanes(client);
}

void CDockSite::DoPaint(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CRect clip;
    pDC->GetClipBox(&clip);
    for (POSITION position = m_lstDockBarRows.GetHeadPosition(); position != nullptr;) {
        const auto* const row = static_cast<const CDockingPanesRow*>(m_lstDockBarRows.GetNext(position));
        CRect rect;
        row->GetClientRect(rect);
        CRect shown;
        if (shown.IntersectRect(rect, clip)) {
            CMFCVisualManager::GetInstance()->OnFillBarBackground(pDC, this, rect, shown);
        }
    }
}

int __stdcall CDockSite::RectSideFromPoint(const CRect& rect, const CPoint& point) {
    if (!rect.PtInRect(point)) {
        return 0;
    }
    const CPoint middle = rect.CenterPoint();
    // Both distances as parts of the rectangle's extent, without dividing.
    const long long aside = static_cast<long long>(point.x - middle.x) * rect.Height();
    const long long down = static_cast<long long>(point.y - middle.y) * rect.Width();
    if (std::abs(aside) >= std::abs(down)) {
        return aside < 0 ? 1 : 2;
    }
    return down < 0 ? 3 : 4;
}
