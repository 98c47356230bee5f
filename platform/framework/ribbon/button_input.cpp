// Input, popup and command update of a ribbon button.
#include <afxribbonbutton.h>

#include "ribbon/access_texts.h"
#include <afxribbonbar.h>
#include <oleacc.h>

void CMFCRibbonButton::OnMouseMove(CPoint point) {
    const BOOL isMenuHot = IsSplit() && m_rectMenu.PtInRect(point);
    if (!m_bMenuAreaHighlighted == !isMenuHot) {
        return;
    }
    m_bMenuAreaHighlighted = isMenuHot;
    Redraw();
}

void CMFCRibbonButton::OnHighlight(BOOL bHighlight) {
    if (!bHighlight) {
        m_bMenuAreaHighlighted = FALSE;
    }
}

// A menu opens on the press, a command is sent on the release. A press that opened a menu is over with it.
void CMFCRibbonButton::OnLButtonDown(CPoint point) {
    m_bIsPressed = FALSE;
    if (IsDisabled() || !m_rect.PtInRect(point)) {
        return;
    }
    if (HasMenu() && (!IsSplit() || m_rectMenu.PtInRect(point))) {
        OnShowPopupMenu();
        return;
    }
    m_bIsPressed = TRUE;
    Redraw();
}

// The click may delete this button; it comes last.
void CMFCRibbonButton::OnLButtonUp(CPoint point) {
    const BOOL wasPressed = m_bIsPressed;
    m_bIsPressed = FALSE;
    Redraw();
    if (wasPressed && !IsDisabled() && m_rect.PtInRect(point)) {
        OnClick(point);
    }
}

// A derived bar hears of the click first, and must leave the button alive; the command's handler need not.
void CMFCRibbonButton::OnClick(CPoint point) {
    if (CMFCRibbonBar* bar = GetTopLevelRibbonBar(); bar != nullptr) {
        bar->OnClickButton(this, point);
    }
    CloseParentMenus();
    NotifyCommand();
}

BOOL CMFCRibbonButton::OnKey(BOOL bIsMenuKey) {
    if (IsDisabled()) {
        return FALSE;
    }
    if (HasMenu() && (bIsMenuKey || !IsSplit())) {
        OnShowPopupMenu();
    } else {
        OnClick(m_rect.CenterPoint());
    }
    return TRUE;
}

BOOL CMFCRibbonButton::OnProcessKey(UINT nChar) {
    switch (nChar) {
    case VK_RETURN:
    case VK_SPACE:
        return OnKey(FALSE);
    case VK_DOWN:
        if (!HasMenu() || IsDisabled()) {
            return FALSE;
        }
        OnShowPopupMenu();
        return TRUE;
    default:
        return FALSE;
    }
}

void CMFCRibbonButton::ClosePopupMenu() {
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        m_arSubItems[i]->ClosePopupMenu();
    }
    CMFCRibbonBaseElement::ClosePopupMenu();
}

// A button that only opens a menu needs no handler for its own id.
void CMFCRibbonButton::OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    const BOOL isMenuOnly = HasMenu() && !IsSplit();
    CMFCRibbonBaseElement::OnUpdateCmdUI(pCmdUI, pTarget, bDisableIfNoHndler && !isMenuOnly);
    for (int i = 0; i < m_arSubItems.GetSize(); ++i) {
        m_arSubItems[i]->OnUpdateCmdUI(pCmdUI, pTarget, bDisableIfNoHndler);
    }
}

// ---- for assistive programs

BOOL CMFCRibbonButton::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    const BOOL opens = HasMenu() && !IsSplit();
    data.m_nRole = IsSplit() ? ROLE_SYSTEM_SPLITBUTTON : opens ? ROLE_SYSTEM_BUTTONMENU : ROLE_SYSTEM_PUSHBUTTON;
    data.m_strDefaultAction = RibbonAccessText(opens ? RibbonAccessTextId::Open : RibbonAccessTextId::Press);
    return TRUE;
}
