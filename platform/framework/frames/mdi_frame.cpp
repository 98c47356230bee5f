#include "afxwin.h"

#include "afxext.h"
#include "fx/doc_template.h"
#include "fx/document.h"
#include "fx/window_guard.h"

#include <vector>

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
ON_WM_DESTROY()
ON_COMMAND(ID_WINDOW_NEW, &CMDIFrameWnd::OnWindowNew)
ON_UPDATE_COMMAND_UI(ID_WINDOW_NEW, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
ON_UPDATE_COMMAND_UI(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
ON_UPDATE_COMMAND_UI(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
ON_COMMAND_EX(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnMDIWindowCmd)
ON_COMMAND_EX(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnMDIWindowCmd)
ON_COMMAND_EX(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnMDIWindowCmd)
ON_COMMAND_EX(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnMDIWindowCmd)
END_MESSAGE_MAP()

CMDIFrameWnd::CMDIFrameWnd() = default;

BOOL CMDIFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    if (!CFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext)) {
        return FALSE;
    }
    // The frame keeps its menu when a maximised child brings its own.
    if (!m_hMenuDefault) {
        m_hMenuDefault = ::GetMenu(m_hWnd);
    }
    return TRUE;
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*) {
    CMenu* windowMenu = CMenu::FromHandle(GetWindowMenuPopup(::GetMenu(m_hWnd)));
    return CreateClient(lpcs, windowMenu);
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu) {
    DWORD style = WS_VISIBLE | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | MDIS_ALLCHILDSTYLES;
    // Scroll bars asked for with the frame belong to the area where the children are.
    style |= static_cast<DWORD>(lpCreateStruct->style) & (WS_HSCROLL | WS_VSCROLL);
    ModifyStyle(WS_HSCROLL | WS_VSCROLL, 0, SWP_NOREDRAW | SWP_FRAMECHANGED);

    CLIENTCREATESTRUCT create{pWindowMenu->GetSafeHmenu(), AFX_IDM_FIRST_MDICHILD};
    m_hWndMDIClient = ::CreateWindowExW(WS_EX_CLIENTEDGE, L"MDICLIENT", nullptr, style, 0, 0, 0, 0, m_hWnd,
                                        reinterpret_cast<HMENU>(AFX_IDW_PANE_FIRST), AfxGetInstanceHandle(), &create);
    if (!m_hWndMDIClient) {
        return FALSE;
    }
    ::BringWindowToTop(m_hWndMDIClient);
    return TRUE;
}

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar) {
    if (!hMenuBar) {
        return nullptr;
    }
    for (int bar = ::GetMenuItemCount(hMenuBar) - 1; bar >= 0; --bar) {
        const HMENU popup = ::GetSubMenu(hMenuBar, bar);
        for (int item = popup ? ::GetMenuItemCount(popup) - 1 : -1; item >= 0; --item) {
            const UINT id = ::GetMenuItemID(popup, item);
            if (id >= ID_WINDOW_NEW && id <= ID_WINDOW_TILE_VERT) {
                return popup;
            }
        }
    }
    return nullptr;
}

CMDIChildWnd* CMDIFrameWnd::CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu, HACCEL hAccel) {
    auto* child = static_cast<CMDIChildWnd*>(pClass->CreateObject());
    if (!child) {
        return nullptr;
    }
    child->SetHandles(hMenu, hAccel);
    CCreateContext context;
    context.m_pCurrentFrame = this;
    if (!child->LoadFrame(nResource, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, this, &context)) {
        return nullptr; // deleted itself
    }
    child->SetTitle(m_strTitle);
    child->ActivateFrame();
    return child;
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProcW(m_hWnd, m_hWndMDIClient, nMsg, wParam, lParam);
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CMDIChildWnd* child = MDIGetActive()) {
        const fx::WindowGuard guard(child);
        LeaveApplicationOut(*child, TRUE);
        const BOOL isHandled = child->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
        // Whoever was asked may have destroyed the child; one that did not pass the command on has not used the flag
        // up.
        if (guard.IsAlive()) {
            LeaveApplicationOut(*child, FALSE);
        }
        if (isHandled) {
            return TRUE;
        }
    }
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg) {
    // With the focus in one of the frame's own bars the active child's keys work all the same.
    CMDIChildWnd* child = MDIGetActive();
    const bool isForChild = child && (child->m_hWnd == pMsg->hwnd || ::IsChild(child->m_hWnd, pMsg->hwnd));
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    if (child && !isForChild && isKey && child->m_hAccelTable &&
        ::TranslateAcceleratorW(m_hWnd, child->m_hAccelTable, pMsg)) {
        return TRUE;
    }
    if (CFrameWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    return m_hWndMDIClient && (pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN) &&
           ::TranslateMDISysAccel(m_hWndMDIClient, pMsg);
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
    CMDIChildWnd* child = MDIGetActive();
    return child ? static_cast<CFrameWnd*>(child) : this;
}

void CMDIFrameWnd::OnUpdateFrameMenu(HMENU hMenuAlt) {
    if (CMDIChildWnd* child = MDIGetActive()) {
        child->OnUpdateFrameMenu(hMenuAlt);
        return;
    }
    const HMENU menu = hMenuAlt ? hMenuAlt : m_hMenuDefault;
    if (!ShowInMenuBar(menu) && menu && GetMenuBarState() != AFX_MBS_HIDDEN) {
        MDISetMenu(CMenu::FromHandle(menu), CMenu::FromHandle(GetWindowMenuPopup(menu)));
    }
}

void CMDIFrameWnd::DelayUpdateFrameMenu(HMENU hMenuAlt) { OnUpdateFrameMenu(hMenuAlt); }

namespace {

// Before the client: not every system's client knows how many children it still had when it goes first.
void DestroyChildren(HWND client) {
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(client, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        children.push_back(child);
    }
    for (const HWND child : children) {
        if (::IsWindow(child)) {
            ::SendMessageW(client, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child), 0);
        }
    }
}

} // namespace

void CMDIFrameWnd::OnDestroy() {
    if (m_hMenuDefault && m_hWndMDIClient && ::GetMenu(m_hWnd) != m_hMenuDefault) {
        ::SendMessageW(m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(m_hMenuDefault), 0);
    }
    DestroyChildren(m_hWndMDIClient);
    CFrameWnd::OnDestroy();
}

void CMDIFrameWnd::OnUpdateMDIWindowCmd(CCmdUI* pCmdUI) { pCmdUI->Enable(MDIGetActive() != nullptr); }

BOOL CMDIFrameWnd::OnMDIWindowCmd(UINT nID) {
    switch (nID) {
    case ID_WINDOW_ARRANGE:
        MDIIconArrange();
        return TRUE;
    case ID_WINDOW_CASCADE:
        MDICascade();
        return TRUE;
    case ID_WINDOW_TILE_HORZ:
        MDITile(MDITILE_HORIZONTAL);
        return TRUE;
    case ID_WINDOW_TILE_VERT:
        MDITile(MDITILE_VERTICAL);
        return TRUE;
    default:
        return FALSE;
    }
}

void CMDIFrameWnd::OnWindowNew() {
    CMDIChildWnd* const active = MDIGetActive();
    CDocument* const document = active != nullptr ? active->GetActiveDocument() : nullptr;
    CDocTemplate* const kind = document != nullptr ? document->GetDocTemplate() : nullptr;
    if (kind == nullptr) {
        return;
    }
    if (CFrameWnd* const frame = kind->CreateNewFrame(document, active)) {
        kind->InitialUpdateFrame(frame, document);
    }
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate) {
    ::SendMessageW(m_hWndMDIClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(pWndActivate->m_hWnd), 0);
}

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const {
    BOOL isMaximized = FALSE;
    HWND active = nullptr;
    if (m_hWndMDIClient) {
        active = reinterpret_cast<HWND>(
            ::SendMessageW(m_hWndMDIClient, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&isMaximized)));
    }
    CMDIChildWnd* child = active ? DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(active)) : nullptr;
    // A child that is being destroyed may still be the system's active one, but nobody shall work with it.
    if (child && (child->GetStyle() & WS_VISIBLE) == 0) {
        child = nullptr;
    }
    if (pbMaximized) {
        *pbMaximized = child ? isMaximized : FALSE;
    }
    return child;
}

void CMDIFrameWnd::MDICascade() { MDICascade(0); }

void CMDIFrameWnd::MDICascade(int nType) {
    ::SendMessageW(m_hWndMDIClient, WM_MDICASCADE, static_cast<WPARAM>(nType), 0);
}

void CMDIFrameWnd::MDITile() { MDITile(MDITILE_HORIZONTAL); }

void CMDIFrameWnd::MDITile(int nType) { ::SendMessageW(m_hWndMDIClient, WM_MDITILE, static_cast<WPARAM>(nType), 0); }

void CMDIFrameWnd::MDIIconArrange() { ::SendMessageW(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0); }

void CMDIFrameWnd::MDIMaximize(CWnd* pWnd) {
    ::SendMessageW(m_hWndMDIClient, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}

void CMDIFrameWnd::MDIRestore(CWnd* pWnd) {
    ::SendMessageW(m_hWndMDIClient, WM_MDIRESTORE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}

void CMDIFrameWnd::MDINext() { ::SendMessageW(m_hWndMDIClient, WM_MDINEXT, 0, FALSE); }

void CMDIFrameWnd::MDIPrev() { ::SendMessageW(m_hWndMDIClient, WM_MDINEXT, 0, TRUE); }

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu) {
    const LRESULT former =
        ::SendMessageW(m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(pFrameMenu->GetSafeHmenu()),
                       reinterpret_cast<LPARAM>(pWindowMenu->GetSafeHmenu()));
    DrawMenuBar();
    return CMenu::FromHandle(reinterpret_cast<HMENU>(former));
}
