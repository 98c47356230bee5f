// Tooltips in ribbon pop-ups: one tool that follows the element under the pointer, as in the bar.
#include "afxribbonpanelmenu.h"

#include "afxtooltipmanager.h"
#include "popups/tooltip_width.h"
#include "ribbon/edit_tool.h"
#include "ribbon/element_tip.h"
#include "ribbon/panel_menu_parts.h"
#include "ribbon/shown_text.h"

namespace {

constexpr UINT_PTR kTool = 1;

} // namespace

CMFCRibbonBar* CMFCRibbonPanelMenuBar::GetRibbonBar() const {
    const CMFCRibbonPanelMenu* menu = GetMenu();
    return menu != nullptr ? menu->GetRibbonBar() : nullptr;
}

// Outside of a bar as in a bar that nobody has changed.
RibbonTips CMFCRibbonPanelMenuBar::GetBarTips() const {
    const RibbonBarHost* bar = GetRibbonBar();
    return bar != nullptr ? bar->GetTips() : RibbonTips();
}

void CMFCRibbonPanelMenuBar::HideTip() { PopTooltip(); }

CToolTipCtrl* CMFCRibbonPanelMenuBar::GetToolTipCtrl() const { return m_parts->tooltip; }

// Made when the pointer first comes to an element: many pop-ups never need one.
void CMFCRibbonPanelMenuBar::CreateTooltip() {
    const RibbonTips tips = GetBarTips();
    if (m_parts->tooltip != nullptr || !tips.areShown ||
        !CTooltipManager::CreateToolTip(m_parts->tooltip, this, AFX_TOOLTIP_TYPE_RIBBON)) {
        return;
    }
    m_parts->tooltip->SetMaxTipWidth(tooltip::WidestText());
    m_parts->tooltip->AddTool(this, LPSTR_TEXTCALLBACK, CRect(0, 0, 0, 0), kTool);
    CMFCToolTipCtrl* tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, m_parts->tooltip);
    if (tooltip != nullptr && GetRibbonBar() != nullptr) {
        tooltip->SetFixedWidth(tips.widthRegular, tips.widthLargeImage);
    }
}

void CMFCRibbonPanelMenuBar::PopTooltip() {
    if (m_parts->tooltip != nullptr && m_parts->tooltip->GetSafeHwnd() != nullptr) {
        m_parts->tooltip->Pop();
    }
}

void CMFCRibbonPanelMenuBar::PlaceTooltip() {
    CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
    if (hot != nullptr && (m_parts->pointer.TracksLeave() || IsPointerInEdit(hot))) {
        CreateTooltip();
    }
    if (m_parts->tooltip == nullptr || m_parts->tooltip->GetSafeHwnd() == nullptr) {
        return;
    }
    const CRect rect = hot != nullptr ? hot->GetRect() : CRect(0, 0, 0, 0);
    m_parts->tooltip->SetToolRect(this, kTool, rect);
    m_parts->editTool.Follow(*m_parts->tooltip, *this, hot);
    m_parts->tooltip->Pop();
    CMFCToolTipCtrl* tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, m_parts->tooltip);
    if (tooltip == nullptr) {
        return;
    }
    tooltip->SetHotRibbonButton(nullptr);
    CPoint location(-1, -1);
    if (hot != nullptr && hot->IsShowTooltipOnBottom() && !IsMenuMode()) {
        // Below the pop-up, so that it hides no other element.
        CRect client;
        GetClientRect(client);
        location = CPoint(rect.left, client.bottom);
        ClientToScreen(&location);
    }
    tooltip->SetLocation(location);
}

// A row shows its text itself: only what says more is a tip.
BOOL CMFCRibbonPanelMenuBar::OnNeedTipText(UINT /*id*/, NMHDR* pNMH, LRESULT* pResult) {
    *pResult = 0;
    CMFCRibbonBaseElement* hot = m_parts->pointer.GetHot();
    const CMFCRibbonPanelMenu* menu = GetMenu();
    if (m_parts->tooltip == nullptr || pNMH->hwndFrom != m_parts->tooltip->GetSafeHwnd()) {
        return FALSE;
    }
    if (hot == nullptr || menu == nullptr || menu->GetChildPopupMenu() != nullptr) {
        return TRUE;
    }
    const bool showsDescription = GetBarTips().haveDescriptions;
    const CString text = hot->GetToolTipText();
    const bool saysMore = text != ribbon::PlainTextOf(*hot) || (showsDescription && !hot->GetDescription().IsEmpty());
    if (text.IsEmpty() || (IsMenuMode() && !saysMore)) {
        return TRUE;
    }
    FillRibbonTooltip(*m_parts->tooltip, *pNMH, *hot, showsDescription, m_parts->tooltipText);
    return TRUE;
}

// Made again, in the new class and looks, when the pointer next needs it.
LRESULT CMFCRibbonPanelMenuBar::OnUpdateToolTips(WPARAM wp, LPARAM /*lp*/) {
    if ((wp & AFX_TOOLTIP_TYPE_RIBBON) != 0) {
        CTooltipManager::DeleteToolTip(m_parts->tooltip);
    }
    return 0;
}

BOOL CMFCRibbonPanelMenuBar::PreTranslateMessage(MSG* pMsg) {
    const bool isMouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    const bool hasTool = pMsg->hwnd == m_hWnd || m_parts->editTool.IsOf(pMsg->hwnd);
    if (isMouse && m_parts->tooltip != nullptr && hasTool) {
        m_parts->tooltip->RelayEvent(pMsg);
    }
    return CMFCPopupMenuBar::PreTranslateMessage(pMsg);
}

void CMFCRibbonPanelMenuBar::OnDestroy() {
    CTooltipManager::DeleteToolTip(m_parts->tooltip);
    CMFCPopupMenuBar::OnDestroy();
}
