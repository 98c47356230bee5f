#include <afxbaseribbonelement.h>

#include <afxribbonbar.h>
#include <afxribbonpanelmenu.h>
#include <afxribbonstatusbar.h>
#include <afxvisualmanager.h>

#include <algorithm>
#include <climits>

#include "ribbon/element_metrics.h"
#include "ribbon/menu_geometry.h"
#include <oleacc.h>

IMPLEMENT_DYNCREATE(CMFCRibbonSeparator, CMFCRibbonBaseElement)

namespace {
constexpr int kThickness = 8; // at 96 DPI, with the space on both sides of the line

/// The separator's own place, moved to the middle of what lies between its neighbours: a bar may leave more room on one
/// side than on the other.
CRect BetweenNeighbours(const CRect& place, CMFCRibbonStatusBar& bar) {
    LONG before = LONG_MIN, behind = LONG_MAX;
    const auto look = [&](const CMFCRibbonBaseElement& element) {
        const CRect rect = element.GetRect();
        if (rect.IsRectEmpty()) {
            return;
        }
        before = rect.right <= place.left ? std::max(before, rect.right) : before;
        behind = rect.left >= place.right ? std::min(behind, rect.left) : behind;
    };
    for (int index = 0; index < bar.GetCount(); ++index) {
        look(*bar.GetElement(index));
    }
    for (int index = 0; index < bar.GetExCount(); ++index) {
        look(*bar.GetExElement(index));
    }
    CRect moved = place;
    // From the first or the last one no way leads to a neighbour; the two areas of the bar are none of each other.
    if (before != LONG_MIN && behind != LONG_MAX) {
        const LONG roomBefore = place.left - before, roomBehind = behind - place.right;
        const bool isBeside = std::max(roomBefore, roomBehind) <= place.Width();
        moved.OffsetRect(isBeside ? static_cast<int>(roomBehind - roomBefore) / 2 : 0, 0);
    }
    return moved;
}

} // namespace

CMFCRibbonSeparator::CMFCRibbonSeparator(BOOL bIsHoriz) : m_bIsHoriz(bIsHoriz) {}

void CMFCRibbonSeparator::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonBaseElement::CopyFrom(src);
    if (const auto* separator = dynamic_cast<const CMFCRibbonSeparator*>(&src); separator != nullptr) {
        m_bIsHoriz = separator->m_bIsHoriz;
    }
}

CSize CMFCRibbonSeparator::GetRegularSize(CDC* /*pDC*/) {
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    if (IsMenuMode()) {
        return {0, ribbon::MenuSeparatorHeight(metrics)};
    }
    const int thickness = metrics.Scaled(kThickness);
    return m_bIsHoriz ? CSize(thickness, thickness) : CSize(thickness, metrics.RowHeight());
}

void CMFCRibbonSeparator::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    CMFCVisualManager* visual = CMFCVisualManager::GetInstance();
    if (IsMenuMode()) {
        visual->OnDrawSeparator(pDC, m_pParentMenu, m_rect, FALSE);
    } else if (IsQATMode()) {
        visual->OnDrawRibbonQuickAccessToolBarSeparator(pDC, this, m_rect);
    } else {
        CMFCRibbonBar* const bar = GetTopLevelRibbonBar();
        auto* const status = DYNAMIC_DOWNCAST(CMFCRibbonStatusBar, bar);
        const CRect place = status != nullptr ? BetweenNeighbours(m_rect, *status) : m_rect;
        visual->OnDrawSeparator(pDC, bar, place, !m_bIsHoriz);
    }
}

// ---- for assistive programs

BOOL CMFCRibbonSeparator::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_SEPARATOR;
    return TRUE;
}
