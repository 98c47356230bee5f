#include <afxbaseribbonelement.h>

#include <afxribbonbar.h>
#include <afxribbonpanelmenu.h>
#include <afxvisualmanager.h>

#include <algorithm>
#include <climits>

#include "ribbon/element_metrics.h"
#include "ribbon/menu_geometry.h"
#include <oleacc.h>

IMPLEMENT_DYNCREATE(CMFCRibbonSeparator, CMFCRibbonBaseElement)

namespace {
constexpr int kThickness = 8; // at 96 DPI, with the space on both sides of the line

/// The separator's own place, moved to the middle of what lies between its neighbours on the bar: one that leaves more
/// room on one side than on the other is a status bar, in its extended area.
CRect BetweenNeighbours(const CRect& place, const CMFCRibbonBar& bar) {
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    bar.GetBarElements(elements);
    LONG before = LONG_MIN, behind = LONG_MAX;
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        const CRect rect = elements[index]->GetRect();
        if (!rect.IsRectEmpty()) {
            before = rect.right <= place.left ? std::max(before, rect.right) : before;
            behind = rect.left >= place.right ? std::min(behind, rect.left) : behind;
        }
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
        const bool isOnBar = bar != nullptr && GetParentPanel() == nullptr;
        const CRect place = isOnBar ? BetweenNeighbours(m_rect, *bar) : m_rect;
        visual->OnDrawSeparator(pDC, bar, place, !m_bIsHoriz);
    }
}

// ---- for assistive programs

BOOL CMFCRibbonSeparator::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_SEPARATOR;
    return TRUE;
}
