// Commands, input hooks and command updates of ribbon elements.
#include <afxbaseribbonelement.h>

#include <afxribbonbar.h>
#include <afxribbonpanelmenu.h>

#include "fx/registered_messages.h"
#include "window/command_id.h"

namespace {

CWnd* OwnerOf(CWnd& window) {
    CWnd* owner = window.GetOwner();
    return owner != nullptr ? owner : &window;
}

} // namespace

CWnd* CMFCRibbonBaseElement::GetCommandTarget() const {
    if (CMFCRibbonBar* bar = GetTopLevelRibbonBar(); bar != nullptr && bar->GetSafeHwnd() != nullptr) {
        return OwnerOf(*bar);
    }
    CWnd* parent = GetParentWnd();
    return parent != nullptr && parent->GetSafeHwnd() != nullptr ? OwnerOf(*parent) : nullptr;
}

// The handler of the command may delete this element: nothing here looks at it after sending.
BOOL CMFCRibbonBaseElement::NotifyCommand(BOOL bWithDelay) {
    const UINT id = GetNotifyID();
    if (!fx::IsSendableCommand(id) || IsDisabled()) {
        return FALSE;
    }
    CWnd* target = GetCommandTarget();
    if (target == nullptr || target->GetSafeHwnd() == nullptr) {
        return FALSE;
    }
    if (bWithDelay) {
        return ::PostMessageW(target->GetSafeHwnd(), WM_COMMAND, id, 0);
    }
    ::SendMessageW(target->GetSafeHwnd(), WM_COMMAND, id, 0);
    return TRUE;
}

void CMFCRibbonBaseElement::PostMenuCommand(UINT /*uiCmdId*/) {
    const HWND parent = m_pParentMenu != nullptr ? m_pParentMenu->GetPopupWindow() : nullptr;
    ClosePopupMenu();
    if (parent != nullptr && ::IsWindow(parent)) {
        ::PostMessageW(parent, WM_CLOSE, 0, 0);
    }
}

void CMFCRibbonBaseElement::OnShowPopupMenu() {
    if (RibbonBarHost* bar = GetBarHost()) {
        bar->HideTip();
    }
}

void CMFCRibbonBaseElement::ClosePopupMenu() {
    CWnd* popup = m_pPopup;
    auto* menu = dynamic_cast<CMFCPopupMenu*>(popup);
    // An open one tells this element itself when it has closed. Until then both know each other: the host, which hears
    // of the closing first, may delete this element.
    if (menu != nullptr && menu->GetSafeHwnd() != nullptr && menu->GetParentRibbonElement() == this) {
        menu->CloseMenu();
        return;
    }
    SetDroppedDown(nullptr);
    if (menu != nullptr) {
        menu->CloseMenu();
    } else if (popup != nullptr && popup->GetSafeHwnd() != nullptr) {
        ::SendMessageW(popup->GetSafeHwnd(), WM_CLOSE, 0, 0);
    }
}

void CMFCRibbonBaseElement::CloseParentMenus() {
    if (m_pParentMenu != nullptr) {
        RibbonPopups::Get().DismissAll();
    }
}

void CMFCRibbonBaseElement::NotifyHighlightListItem(int nIndex) {
    // The handler may delete this element: nothing here looks at it after sending.
    if (const CWnd* const target = GetCommandTarget(); target->GetSafeHwnd() != nullptr) {
        ::SendMessage(target->m_hWnd, AFX_WM_HIGHLIGHT_RIBBON_LIST_ITEM, static_cast<WPARAM>(nIndex),
                      reinterpret_cast<LPARAM>(this));
    }
}

void CMFCRibbonBaseElement::NotifyAccessibility(DWORD dwEvent) {
    if (RibbonElementHost* host = GetHost()) {
        host->NotifyElementEvent(dwEvent, *this);
    }
}

void CMFCRibbonBaseElement::DestroyCtrl() {}
void CMFCRibbonBaseElement::OnMenuCommandHook(int /*nCommand*/) {}

void CMFCRibbonBaseElement::OnMouseMove(CPoint /*point*/) {}
void CMFCRibbonBaseElement::OnLButtonDown(CPoint /*point*/) {}
void CMFCRibbonBaseElement::OnLButtonUp(CPoint /*point*/) {}

// The second press of a double click is a press.
void CMFCRibbonBaseElement::OnLButtonDblClk(CPoint point) { OnLButtonDown(point); }

BOOL CMFCRibbonBaseElement::OnAutoRepeat() { return FALSE; }

BOOL CMFCRibbonBaseElement::OnKey(BOOL /*bIsMenuKey*/) { return FALSE; }

BOOL CMFCRibbonBaseElement::OnMenuKey(UINT /*nUpperChar*/) { return FALSE; }

BOOL CMFCRibbonBaseElement::OnProcessKey(UINT /*nChar*/) { return FALSE; }

void CMFCRibbonBaseElement::OnSetFocus(BOOL /*bSet*/) {}
void CMFCRibbonBaseElement::OnHighlight(BOOL /*bHighlight*/) {}
void CMFCRibbonBaseElement::OnChangeMenuHighlight(CMFCRibbonPanelMenuBar* /*pPanelMenuBar*/,
                                                  CMFCRibbonBaseElement* /*pHot*/) {}
void CMFCRibbonBaseElement::OnEnable(BOOL /*bEnable*/) {}
void CMFCRibbonBaseElement::OnCheck(BOOL /*bCheck*/) {}
void CMFCRibbonBaseElement::OnShow(BOOL /*bShow*/) {}
void CMFCRibbonBaseElement::OnRTLChanged(BOOL /*bIsRTL*/) {}

void CMFCRibbonBaseElement::OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    if (pCmdUI == nullptr || m_nID == 0 || m_nID == static_cast<UINT>(-1)) {
        return;
    }
    pCmdUI->m_nID = m_nID;
    pCmdUI->m_pUpdated = this;
    pCmdUI->DoUpdate(pTarget, bDisableIfNoHndler);
    pCmdUI->m_pUpdated = nullptr;
}

// ---- the update object

CMFCRibbonCmdUI::CMFCRibbonCmdUI() = default;

void CMFCRibbonCmdUI::Enable(BOOL bOn) {
    m_bEnableChanged = TRUE;
    if (m_pUpdated != nullptr) {
        m_pUpdated->SetDisabled(!bOn);
    }
}

void CMFCRibbonCmdUI::SetCheck(int nCheck) {
    if (m_pUpdated != nullptr) {
        m_pUpdated->SetChecked(nCheck != 0);
    }
}

void CMFCRibbonCmdUI::SetRadio(BOOL bOn) {
    if (m_pUpdated != nullptr) {
        m_pUpdated->SetChecked(bOn, TRUE);
    }
}

void CMFCRibbonCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pUpdated == nullptr || lpszText == nullptr || CString(lpszText) == m_pUpdated->GetText()) {
        return;
    }
    m_pUpdated->SetText(lpszText);
    m_pUpdated->Redraw();
}
