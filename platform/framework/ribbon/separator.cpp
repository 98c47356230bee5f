#include <afxbaseribbonelement.h>

#include <afxribbonbar.h>
#include <afxribbonpanelmenu.h>
#include <afxvisualmanager.h>

#include "ribbon/element_metrics.h"
#include "ribbon/menu_geometry.h"
#include <oleacc.h>

IMPLEMENT_DYNCREATE(CMFCRibbonSeparator, CMFCRibbonBaseElement)

namespace {
constexpr int kThickness = 8; // at 96 DPI, with the space on both sides of the line
}

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
        visual->OnDrawSeparator(pDC, GetTopLevelRibbonBar(), m_rect, !m_bIsHoriz);
    }
}

// ---- for assistive programs

BOOL CMFCRibbonSeparator::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_SEPARATOR;
    return TRUE;
}
