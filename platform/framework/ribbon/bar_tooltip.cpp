// Tooltips of a ribbon bar: one tool that follows the element under the pointer.
#include "afxribbonbar.h"

#include "afxkeyboardmanager.h"
#include "afxtooltipmanager.h"
#include "popups/tooltip_width.h"
#include "ribbon/bar_parts.h"

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

void CMFCRibbonBar::PlaceTooltip() {
    if (m_pToolTip == nullptr || m_pToolTip->GetSafeHwnd() == nullptr) {
        return;
    }
    const CRect rect = m_parts->hot != nullptr ? m_parts->hot->GetRect() : CRect(0, 0, 0, 0);
    m_pToolTip->SetToolRect(this, kTool, rect);
    m_parts->editTool.Follow(*m_pToolTip, *this, m_parts->hot);
    m_pToolTip->Pop();
    CMFCToolTipCtrl* tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, m_pToolTip);
    if (tooltip == nullptr) {
        return;
    }
    tooltip->SetHotRibbonButton(nullptr);
    CPoint location(-1, -1);
    if (m_parts->hot != nullptr && m_parts->hot->IsShowTooltipOnBottom() && !m_parts->arrangement.category.IsEmpty()) {
        // Below the bar, so that it hides no other element.
        location = CPoint(rect.left, m_parts->hot->GetParentPanel() != nullptr ? m_parts->arrangement.height
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
    CMFCRibbonBaseElement* hit = m_parts->hot;
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

namespace {

struct TipTexts {
    CString title;
    CString description;
};

/// "Open (Ctrl+O)". A text from a menu may carry its keys behind a tab.
CString WithKeys(const CString& name, const CMFCRibbonBaseElement& element) {
    const int tab = name.Find(L'\t');
    CString keys = tab < 0 ? CString() : name.Mid(tab + 1);
    const CMFCRibbonBar* bar = element.GetTopLevelRibbonBar();
    CFrameWnd* frame = bar != nullptr && bar->GetSafeHwnd() != nullptr
                           ? DYNAMIC_DOWNCAST(CFrameWnd, bar->GetTopLevelFrame())
                           : nullptr;
    if (keys.IsEmpty() && frame != nullptr && element.GetID() != 0) {
        CKeyboardManager::FindDefaultAccelerator(element.GetID(), keys, frame, TRUE);
    }
    const CString shown = tab < 0 ? name : name.Left(tab);
    return keys.IsEmpty() ? shown : shown + L" (" + keys + L")";
}

/// The tip says more than the name: the name is the title then, and what else there is to say stands below.
TipTexts TextsOf(const CMFCRibbonBaseElement& element) {
    const CString name = element.GetShownText();
    const CString tip = element.GetToolTipText();
    TipTexts texts{WithKeys(name, element), element.GetDescription()};
    if (name.IsEmpty() || !element.IsKindOf(RUNTIME_CLASS(CMFCRibbonButton))) {
        texts.title = tip;
    } else if (tip != name && texts.description.IsEmpty()) {
        texts.description = tip;
    } else if (tip != name && texts.description != tip) {
        texts.description = tip + L"\n" + texts.description;
    }
    return texts;
}

} // namespace

void FillRibbonTooltip(CToolTipCtrl& control, NMHDR& request, CMFCRibbonBaseElement& element, bool showsDescription,
                       CString& lent) {
    lent = element.GetToolTipText();
    if (CMFCToolTipCtrl* tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, &control)) {
        CMFCRibbonButton* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, &element);
        tooltip->SetHotRibbonButton(button != nullptr && button->IsDrawTooltipImage() ? button : nullptr);
        const TipTexts texts = showsDescription ? TextsOf(element) : TipTexts{lent, CString()};
        lent = texts.title;
        tooltip->SetDescription(texts.description);
    }
    reinterpret_cast<NMTTDISPINFO&>(request).lpszText = const_cast<LPTSTR>(static_cast<LPCTSTR>(lent));
}

LRESULT CMFCRibbonBar::OnUpdateToolTips(WPARAM wp, LPARAM /*lp*/) {
    if ((wp & AFX_TOOLTIP_TYPE_RIBBON) != 0 && m_parts->tooltips) {
        EnableToolTips(TRUE, m_parts->tooltipDescriptions);
    }
    return 0;
}
