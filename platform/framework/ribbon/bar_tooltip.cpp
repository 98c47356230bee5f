// Tooltips of a ribbon bar: one tool that follows the element under the pointer.
#include "afxribbonbar.h"

#include "afxtooltipmanager.h"
#include "popups/tooltip_width.h"
#include "ribbon/bar_parts.h"
#include "ribbon/element_tip.h"

namespace {

constexpr UINT_PTR kTool = 1;

} // namespace

void CMFCRibbonBar::EnableToolTips(BOOL bEnable, BOOL bEnableDescr) {
    m_parts->tooltips = bEnable != FALSE;
    m_parts->tooltipDescriptions = bEnableDescr != FALSE;
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    CTooltipManager::DeleteToolTip(m_pToolTip);
    if (!bEnable || !CTooltipManager::CreateToolTip(m_pToolTip, this, AFX_TOOLTIP_TYPE_RIBBON)) {
        return;
    }
    m_pToolTip->SetMaxTipWidth(tooltip::WidestText());
    m_pToolTip->AddTool(this, LPSTR_TEXTCALLBACK, CRect(0, 0, 0, 0), kTool);
    if (CMFCToolTipCtrl* tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, m_pToolTip)) {
        tooltip->SetFixedWidth(m_parts->tooltipWidthRegular, m_parts->tooltipWidthLargeImage);
    }
    PlaceTooltip();
}

BOOL CMFCRibbonBar::IsToolTipEnabled() const { return m_parts->tooltips; }

BOOL CMFCRibbonBar::IsToolTipDescrEnabled() const { return m_parts->tooltipDescriptions; }

int CMFCRibbonBar::GetTooltipFixedWidthRegular() const { return m_parts->tooltipWidthRegular; }

int CMFCRibbonBar::GetTooltipFixedWidthLargeImage() const { return m_parts->tooltipWidthLargeImage; }

void CMFCRibbonBar::SetTooltipFixedWidth(int nWidthRegular, int nWidthLargeImage) {
    m_parts->tooltipWidthRegular = nWidthRegular;
    m_parts->tooltipWidthLargeImage = nWidthLargeImage;
    if (CMFCToolTipCtrl* tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, m_pToolTip)) {
        tooltip->SetFixedWidth(nWidthRegular, nWidthLargeImage);
    }
}

void CMFCRibbonBar::PopTooltip() {
    if (m_pToolTip != nullptr && m_pToolTip->GetSafeHwnd() != nullptr) {
        m_pToolTip->Pop();
    }
}

// A layout gives every element a place; what has moved is seen at its end.
void CMFCRibbonBar::HideTip() {
    if (!m_parts->isLayingOut) {
        PopTooltip();
    }
}

RibbonTips CMFCRibbonBar::GetTips() const {
    return {m_parts->tooltips, m_parts->tooltipDescriptions, m_parts->tooltipWidthRegular,
            m_parts->tooltipWidthLargeImage};
}

void CMFCRibbonBar::PlaceTooltip() {
    if (m_pToolTip == nullptr || m_pToolTip->GetSafeHwnd() == nullptr) {
        return;
    }
    CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
    const CRect rect = hot != nullptr ? hot->GetRect() : CRect(0, 0, 0, 0);
    m_pToolTip->SetToolRect(this, kTool, rect);
    m_parts->tooltipPlace = rect;
    m_parts->editTool.Follow(*m_pToolTip, *this, hot);
    m_pToolTip->Pop();
    CMFCToolTipCtrl* tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, m_pToolTip);
    if (tooltip == nullptr) {
        return;
    }
    tooltip->SetHotRibbonButton(nullptr);
    CPoint location(-1, -1);
    if (hot != nullptr && hot->IsShowTooltipOnBottom() && !m_parts->arrangement.category.IsEmpty()) {
        // Below the bar, so that it hides no other element.
        location = CPoint(rect.left, hot->GetParentPanel() != nullptr ? m_parts->arrangement.height
                                                                      : static_cast<int>(rect.bottom));
        ClientToScreen(&location);
    }
    tooltip->SetLocation(location);
}

BOOL CMFCRibbonBar::OnNeedTipText(UINT /*id*/, NMHDR* pNMH, LRESULT* pResult) {
    *pResult = 0;
    if (!m_parts->tooltips) {
        return TRUE;
    }
    if (m_pToolTip == nullptr || pNMH->hwndFrom != m_pToolTip->GetSafeHwnd() || GetDroppedDown() != nullptr) {
        return FALSE;
    }
    // The tool lies on the element under the pointer.
    CMFCRibbonBaseElement* hit = m_parts->pointer.GetHot();
    if (hit == nullptr) {
        return TRUE;
    }
    const CString text = hit->GetToolTipText();
    if (text.IsEmpty()) {
        return TRUE;
    }
    FillRibbonTooltip(*m_pToolTip, *pNMH, *hit, m_parts->tooltipDescriptions, m_parts->tooltipText);
    return TRUE;
}

LRESULT CMFCRibbonBar::OnUpdateToolTips(WPARAM wp, LPARAM /*lp*/) {
    if ((wp & AFX_TOOLTIP_TYPE_RIBBON) != 0 && m_parts->tooltips) {
        EnableToolTips(TRUE, m_parts->tooltipDescriptions);
    }
    return 0;
}
