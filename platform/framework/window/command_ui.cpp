#include "fx/cmdui.h"

#include "fx/menu.h"
#include "fx/wnd.h"
#include "window/command_id.h"
#include "window/menu_items.h"

namespace {

bool IsButton(CWnd* wnd) { return (wnd->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0; }

/// Whether the item at the place is a separator or opens a submenu: neither has a state of its own.
bool IsPlainItem(HMENU menu, UINT position) {
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_SUBMENU;
    return ::GetMenuItemInfo(menu, position, TRUE, &info) && !(info.fType & MFT_SEPARATOR) && info.hSubMenu == nullptr;
}

} // namespace

CCmdUI::CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn) {
    m_bEnableChanged = TRUE;
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
        }
    } else if (m_pOther != nullptr && m_pOther->m_hWnd != nullptr) {
        // A disabled window with the focus would leave the keyboard dead.
        if (!bOn && ::GetFocus() == m_pOther->m_hWnd) {
            if (CWnd* parent = m_pOther->GetParent()) {
                ::SendMessage(parent->m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
            }
        }
        m_pOther->EnableWindow(bOn);
    }
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck != 0 ? MF_CHECKED : MF_UNCHECKED));
        }
    } else if (m_pOther != nullptr && m_pOther->m_hWnd != nullptr && IsButton(m_pOther)) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn) {
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr) {
        return;
    }
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    if (m_pMenu->GetMenuItemInfo(m_nIndex, &info, TRUE)) {
        info.fType |= MFT_RADIOCHECK;
        m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
    }
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            MENUITEMINFO info = {};
            info.cbSize = sizeof(info);
            info.fMask = MIIM_STRING;
            info.dwTypeData = const_cast<LPTSTR>(lpszText);
            m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
        }
    } else if (m_pOther != nullptr && m_pOther->m_hWnd != nullptr) {
        CString before;
        m_pOther->GetWindowText(before);
        if (before != lpszText) {
            m_pOther->SetWindowText(lpszText);
        }
    }
}

void CCmdUI::ContinueRouting() { m_bContinueRouting = TRUE; }

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    constexpr UINT NoCommand = 0xFFFF;
    if (m_nID == 0 || LOWORD(m_nID) == NoCommand) {
        return TRUE;
    }
    m_bEnableChanged = FALSE;
    if (!fx::IsSendableCommand(m_nID)) {
        Enable(FALSE);
        return TRUE;
    }
    const BOOL updated = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info = {};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return updated;
}

namespace fx {

void UpdateMenuItems(CMenu* popup, CCmdTarget* target, BOOL disableIfNoHandler) {
    CCmdUI item;
    item.m_pMenu = popup;
    item.m_nIndexMax = fx::ItemCountOf(*popup);
    for (item.m_nIndex = 0; item.m_nIndex < item.m_nIndexMax; ++item.m_nIndex) {
        if (!IsPlainItem(popup->m_hMenu, item.m_nIndex)) {
            continue;
        }
        item.m_nID = popup->GetMenuItemID(static_cast<int>(item.m_nIndex));
        item.DoUpdate(target, disableIfNoHandler);
        // A handler may put items in before its own (a recent-file list does) or take some out.
        item.m_nIndexMax = fx::ItemCountOf(*popup);
    }
}

} // namespace fx
