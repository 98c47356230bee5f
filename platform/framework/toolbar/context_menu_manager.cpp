#include "afxcontextmenumanager.h"

#include "afxpopupmenu.h"
#include "core/handler_depth.h"
#include "fx/scoped_change.h"

CContextMenuManager* afxContextMenuManager = nullptr;

CContextMenuManager::CContextMenuManager() {
    if (!afxContextMenuManager) {
        afxContextMenuManager = this;
    }
}

CContextMenuManager::~CContextMenuManager() {
    for (const NamedMenu& named : m_menus) {
        ::DestroyMenu(named.menu);
    }
    if (afxContextMenuManager == this) {
        afxContextMenuManager = nullptr;
    }
}

const CContextMenuManager::NamedMenu* CContextMenuManager::Find(LPCTSTR lpszName) const {
    for (const NamedMenu& named : m_menus) {
        if (named.name == lpszName) {
            return &named;
        }
    }
    return nullptr;
}

BOOL CContextMenuManager::AddMenu(UINT uiMenuNameResId, UINT uiMenuResId) {
    CString name;
    return name.LoadString(uiMenuNameResId) && AddMenu(name, uiMenuResId);
}

BOOL CContextMenuManager::AddMenu(LPCTSTR lpszName, UINT uiMenuResId) {
    const LPCTSTR resource = MAKEINTRESOURCE(uiMenuResId);
    if (Find(lpszName)) {
        return FALSE;
    }
    const HMENU menu = ::LoadMenuW(AfxFindResourceHandle(resource, RT_MENU), resource);
    if (!menu) {
        return FALSE;
    }
    m_menus.push_back({lpszName, uiMenuResId, menu});
    return TRUE;
}

HMENU CContextMenuManager::GetMenuById(UINT nMenuResId) const {
    for (const NamedMenu& named : m_menus) {
        if (named.resourceId == nMenuResId) {
            return named.menu;
        }
    }
    return nullptr;
}

HMENU CContextMenuManager::GetMenuByName(LPCTSTR lpszName, UINT* puiOrigResID) const {
    const NamedMenu* named = Find(lpszName);
    if (named && puiOrigResID) {
        *puiOrigResID = named->resourceId;
    }
    return named ? named->menu : nullptr;
}

void CContextMenuManager::GetMenuNames(CStringList& listOfNames) const {
    listOfNames.RemoveAll();
    for (const NamedMenu& named : m_menus) {
        listOfNames.AddTail(named.name);
    }
}

namespace {

/// The point for a menu that a key asked for: of a window in a mirrored frame its right corner.
CPoint KeyPoint(CWnd* owner) {
    CRect client(0, 0, 0, 0);
    bool isMirrored = false;
    if (owner && owner->GetSafeHwnd()) {
        owner->GetClientRect(&client);
        owner->ClientToScreen(&client);
        client.NormalizeRect();
        const CFrameWnd* const frame = owner->GetTopLevelFrame();
        isMirrored = ((owner->GetExStyle() | (frame ? frame->GetExStyle() : 0)) & WS_EX_LAYOUTRTL) != 0;
    }
    return CPoint(isMirrored ? client.right : client.left, client.top);
}

} // namespace

BOOL CContextMenuManager::ShowPopupMenu(UINT uiMenuResId, int x, int y, CWnd* pWndOwner, BOOL bOwnMessage,
                                        BOOL bRightAlign) {
    // The first pop-up of a kept menu, else of the resource.
    HMENU loaded = nullptr;
    HMENU menu = GetMenuById(uiMenuResId);
    if (!menu) {
        const LPCTSTR resource = MAKEINTRESOURCE(uiMenuResId);
        menu = loaded = ::LoadMenuW(AfxFindResourceHandle(resource, RT_MENU), resource);
    }
    const HMENU popup = menu ? ::GetSubMenu(menu, 0) : nullptr;
    if (!popup) {
        ::DestroyMenu(loaded);
        return FALSE;
    }
    if (loaded) {
        // The pop-up lives on without the menu that it came from.
        ::RemoveMenu(loaded, 0, MF_BYPOSITION);
        ::DestroyMenu(loaded);
    }
    if (ShowPopupMenu(popup, x, y, pWndOwner, bOwnMessage, loaded != nullptr, bRightAlign)) {
        return TRUE;
    }
    if (loaded) {
        ::DestroyMenu(popup);
    }
    return FALSE;
}

CMFCPopupMenu* CContextMenuManager::ShowPopupMenu(HMENU hmenuPopup, int x, int y, CWnd* pWndOwner, BOOL bOwnMessage,
                                                  BOOL bAutoDestroy, BOOL bRightAlign) {
    if (!::IsMenu(hmenuPopup)) {
        return nullptr;
    }
    const bool isByKey = x == -1 && y == -1;
    const CPoint point = isByKey ? KeyPoint(pWndOwner) : CPoint(x, y);
    if (!m_bDontCloseActiveMenu) {
        CMFCPopupMenu::CloseAll();
    }
    auto* menu = new CMFCPopupMenu;
    // Until it is shown the handle is the caller's.
    menu->SetAutoDestroy(FALSE);
    menu->SetRightAlign(bRightAlign);
    menu->SetOpenedByKey(isByKey);
    if (!menu->Create(pWndOwner, point.x, point.y, hmenuPopup, FALSE, bOwnMessage)) {
        return nullptr;
    }
    menu->SetAutoDestroy(bAutoDestroy);
    return menu;
}

UINT CContextMenuManager::TrackPopupMenu(HMENU hmenuPopup, int x, int y, CWnd* pWndOwner, BOOL bRightAlign) {
    if (!::IsMenu(hmenuPopup)) {
        return 0;
    }
    CMFCPopupMenu::CloseAll();
    UINT result = 0;
    auto* menu = new CMFCPopupMenu;
    menu->SetAutoDestroy(FALSE);
    menu->SetRightAlign(bRightAlign);
    menu->SetTrackMode(&result);
    if (!menu->Create(pWndOwner, x, y, hmenuPopup, FALSE, TRUE)) {
        return 0;
    }
    // Closing clears the chain; the window's handle says when.
    const HWND window = menu->m_hWnd;
    const fx::ScopedChange<int> depth(fx::HandlerDepth(), fx::HandlerDepth() + 1);
    while (::IsWindow(window)) {
        MSG next;
        if (!::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE) && AfxGetThread()) {
            AfxGetThread()->OnIdle(0);
            AfxGetThread()->OnIdle(1);
        }
        if (!AfxPumpMessage()) {
            // The end of the program: the loop around this one must hear of it, too.
            CMFCPopupMenu::CloseAll();
            ::PostQuitMessage(static_cast<int>(result));
            return 0;
        }
    }
    return result;
}
