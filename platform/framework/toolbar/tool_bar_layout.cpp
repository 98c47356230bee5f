// Where a toolbar's buttons lie.
#include "afxtoolbar.h"

#include "afxcustomizebutton.h"
#include "afxglobals.h"
#include "afxPaneFrameWnd.h"
#include "fx/dc_scope.h"
#include "fx/window_dc.h"
#include "toolbar/metrics.h"

#include <algorithm>
#include <vector>

using toolbar::Scaled;

namespace {

bool IsSeparator(const CMFCToolBarButton& button) { return (button.m_nStyle & TBBS_SEPARATOR) != 0; }

} // namespace

CFont* CMFCToolBar::SelectToolBarFont(CDC* pDC, BOOL) const { return pDC->SelectObject(&afxGlobalData.fontRegular); }

int CMFCToolBar::CalcMaxButtonHeight() {
    int height = GetRowHeight();
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        const auto* button = static_cast<const CMFCToolBarButton*>(m_Buttons.GetNext(position));
        height = std::max<int>(height, button->m_rect.Height());
    }
    return height;
}

// Leaves each button's size in its rectangle; its place stays.
void CMFCToolBar::MeasureButtons(CDC* pDC, BOOL bHorz) {
    CFont* const former = SelectToolBarFont(pDC, bHorz);
    const CSize sizeDefault(GetColumnWidth(), GetRowHeight());
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        auto& button = *static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        CSize size(0, 0);
        if (IsSeparator(button)) {
            button.m_bHorz = bHorz;
            const int run = button.m_bIsHidden ? 0 : Scaled(toolbar::SeparatorSize);
            size = bHorz ? CSize(run, sizeDefault.cy) : CSize(sizeDefault.cx, run);
        } else {
            size = button.OnCalculateSize(pDC, sizeDefault, bHorz);
        }
        button.m_rect.right = button.m_rect.left + size.cx;
        button.m_rect.bottom = button.m_rect.top + size.cy;
    }
    if (former) {
        pDC->SelectObject(former);
    }
}

// Puts measured buttons into rows (columns of a vertical bar); the room they take. A row ends behind a button with
// m_bWrap or before the one that would go beyond the width.
CSize CMFCToolBar::PlaceButtons(int nWidth, BOOL bHorz, BOOL bMove) {
    const int rowHeight = bHorz ? CalcMaxButtonHeight() : 0;
    CPoint place(0, 0);
    CSize all(0, 0);
    const bool hasGripper = (GetPaneStyle() & CBRS_GRIPPER) != 0 && !IsFloating();
    const int gripper = hasGripper ? Scaled(toolbar::GripperSize) : 0;
    const CPoint start(m_rectBorders.left + (bHorz ? gripper : 0), m_rectBorders.top + (bHorz ? 0 : gripper));
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        auto& button = *static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        CSize size = button.m_rect.Size();
        if (bHorz) {
            if (place.x > 0 && nWidth > 0 && place.x + size.cx > nWidth) {
                place = CPoint(0, place.y + rowHeight);
            }
            size.cy = size.cx > 0 ? rowHeight : 0;
        }
        if (bMove) {
            button.SetRect(CRect(start + place, size));
        }
        all.cx = std::max<int>(all.cx, place.x + size.cx);
        all.cy = std::max<int>(all.cy, place.y + size.cy);
        if (!bHorz) {
            place.y += size.cy;
        } else if (button.m_bWrap && nWidth > 0) {
            place = CPoint(0, place.y + rowHeight);
        } else {
            place.x += size.cx;
        }
    }
    if (all == CSize(0, 0)) {
        all = CSize(GetColumnWidth(), GetRowHeight());
    }
    const int ends = gripper + (HasCustomizeMenu() && IsDocked() ? Scaled(toolbar::OverflowSize) : 0);
    all.cx += m_rectBorders.left + m_rectBorders.right + (bHorz ? ends : 0);
    all.cy += m_rectBorders.top + m_rectBorders.bottom + (bHorz ? 0 : ends);
    return all;
}

// Only asks: the buttons stay where they are.
CSize CMFCToolBar::CalcSize(BOOL bVertDock) {
    std::vector<CRect> places;
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        places.push_back(static_cast<const CMFCToolBarButton*>(m_Buttons.GetNext(position))->m_rect);
    }
    CClientDC dc(m_hWnd ? this : nullptr);
    MeasureButtons(&dc, !bVertDock);
    const CSize size = PlaceButtons(0, !bVertDock, FALSE);
    if (IsHorizontal() == bVertDock) {
        MeasureButtons(&dc, IsHorizontal());
    }
    std::size_t index = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position))->m_rect = places[index++];
    }
    return size;
}

CSize CMFCToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int asLongAsThereIs = 32767;
    CSize size = CalcSize(!bHorz);
    if (bStretch) {
        (bHorz ? size.cx : size.cy) = asLongAsThereIs;
    }
    return size;
}

CSize CMFCToolBar::StretchPane(int nLength, BOOL bVert) {
    if (!IsFloating()) {
        CSize size = CalcSize(bVert);
        (bVert ? size.cy : size.cx) = nLength;
        return size;
    }
    CClientDC dc(this);
    MeasureButtons(&dc, TRUE);
    const int borders = m_rectBorders.left + m_rectBorders.right;
    if (!bVert) {
        return PlaceButtons(std::max(1, nLength - borders), TRUE, FALSE);
    }
    // The narrowest width at which the rows are no higher than that.
    int low = 1;
    int high = std::max(1, static_cast<int>(PlaceButtons(0, TRUE, FALSE).cx));
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (PlaceButtons(middle, TRUE, FALSE).cy <= nLength) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    return PlaceButtons(low, TRUE, FALSE);
}

int CMFCToolBar::WrapToolBar(int nWidth, int, CDC* pDC, int, int) {
    if (pDC) {
        MeasureButtons(pDC, TRUE);
    } else {
        CClientDC dc(m_hWnd ? this : nullptr);
        MeasureButtons(&dc, TRUE);
    }
    int rows = 1;
    int x = 0;
    CMFCToolBarButton* before = nullptr;
    CMFCToolBarButton* separator = nullptr;
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        auto* button = static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        button->m_bWrap = FALSE;
        const int width = button->m_rect.Width();
        if (before && x + width > nWidth) {
            before->m_bWrap = TRUE;
            x = 0;
            ++rows;
        }
        x += width;
        // A hidden button ends no row.
        before = width > 0 ? button : before;
        separator = IsSeparator(*button) ? button : separator;
    }
    return rows;
}

void CMFCToolBar::AdjustLocations() {
    if (!m_hWnd) {
        return;
    }
    const BOOL isHorizontal = IsHorizontal();
    CClientDC dc(this);
    MeasureButtons(&dc, isHorizontal);
    CRect client;
    GetClientRect(&client);
    const int rowWidth = client.Width() - m_rectBorders.left - m_rectBorders.right;
    PlaceButtons(IsFloating() ? std::max(1, rowWidth) : 0, isHorizontal, TRUE);
    CutOverflow(isHorizontal);
    if (m_customizeButton) {
        m_customizeButton->SetRect(m_rectOverflow);
    }
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position))->OnSize(SIZE_RESTORED);
    }
}

void CMFCToolBar::AdjustLayout() {
    if (!m_hWnd) {
        return;
    }
    AdjustSize();
    AdjustLocations();
    if (CFrameWnd* frame = static_cast<CFrameWnd*>(m_pDockSiteFrame)) {
        frame->DelayRecalcLayout();
    }
    Invalidate();
}

void CMFCToolBar::AdjustSize() {
    if (!m_hWnd || GetParentDockSite()) {
        return; // the site gives it its size
    }
    if (CPaneFrameWnd* const miniFrame = GetParentMiniFrame(TRUE)) {
        miniFrame->OnPaneRecalcLayout();
        return;
    }
    const CSize size = CalcFixedLayout(FALSE, IsHorizontal());
    CRect window;
    GetWindowRect(&window);
    // Along its run a docked bar keeps the room that the frame gave it.
    const CSize wanted = !m_pDockSiteFrame ? size
                         : IsHorizontal()  ? CSize(window.Width(), size.cy)
                                           : CSize(size.cx, window.Height());
    if (window.Size() != wanted) {
        SetWindowPos(nullptr, 0, 0, wanted.cx, wanted.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE, nullptr);
    }
}

void CMFCToolBar::AdjustDockedLayout() {
    AdjustLocations();
    AdjustDockingLayout();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void CMFCToolBar::OnSize(UINT nType, int cx, int cy) {
    CMFCBaseToolBar::OnSize(nType, cx, cy);
    AdjustLocations();
}
