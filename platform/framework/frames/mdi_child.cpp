#include "afxwin.h"

#include "afxext.h"
#include "fx/doc_template.h"
#include "fx/window_guard.h"
#include "window/frame_title.h"

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
ON_WM_CREATE()
ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()

CMDIChildWnd::CMDIChildWnd() = default;

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                          CMDIFrameWnd* pParentWnd, CCreateContext* pContext) {
    if (!pParentWnd) {
        pParentWnd = DYNAMIC_DOWNCAST(CMDIFrameWnd, AfxGetMainWnd());
    }
    if (!pParentWnd || !pParentWnd->m_hWndMDIClient) {
        PostNcDestroy();
        return FALSE;
    }
    m_strTitle = lpszWindowName;

    const bool isDefault = rect.left == CW_USEDEFAULT;
    CREATESTRUCT cs{};
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = rect.left;
    cs.y = rect.top;
    cs.cx = isDefault ? CW_USEDEFAULT : static_cast<int>(rect.right - rect.left);
    cs.cy = isDefault ? CW_USEDEFAULT : static_cast<int>(rect.bottom - rect.top);
    cs.hInstance = AfxGetInstanceHandle();
    cs.hwndParent = pParentWnd->m_hWnd;
    cs.lpCreateParams = pContext;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }

    MDICREATESTRUCTW create{};
    create.szClass = cs.lpszClass;
    create.szTitle = cs.lpszName;
    create.hOwner = cs.hInstance;
    create.x = cs.x;
    create.y = cs.y;
    create.cx = cs.cx;
    create.cy = cs.cy;
    create.style = static_cast<DWORD>(cs.style) & ~(WS_MAXIMIZE | WS_VISIBLE);
    create.lParam = reinterpret_cast<LPARAM>(cs.lpCreateParams);
    HWND window = nullptr;
    {
        const fx::WindowCreationHook hook(this);
        window = reinterpret_cast<HWND>(
            ::SendMessageW(pParentWnd->m_hWndMDIClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&create)));
        if (!window && !hook.HasAttached()) {
            PostNcDestroy();
        }
    }
    if (!window) {
        return FALSE;
    }
    if (cs.style & WS_VISIBLE) {
        ::BringWindowToTop(window);
        ShowWindow((cs.style & WS_MINIMIZE) ? SW_SHOWMINIMIZED : SW_SHOWNORMAL);
        pParentWnd->MDIActivate(this);
        ::SendMessageW(pParentWnd->m_hWndMDIClient, WM_MDIREFRESHMENU, 0, 0);
    }
    return TRUE;
}

BOOL CMDIChildWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    m_nIDHelp = nIDResource;
    if (pContext != nullptr && pContext->m_pNewDocTemplate != nullptr) {
        HMENU menu = nullptr;
        HACCEL keys = nullptr;
        pContext->m_pNewDocTemplate->GetSharedHandles(menu, keys);
        if (menu != nullptr || keys != nullptr) {
            SetHandles(menu, keys);
        }
    }
    auto* parent = DYNAMIC_DOWNCAST(CMDIFrameWnd, pParentWnd);
    return Create(GetIconWndClass(dwDefaultStyle, nIDResource), fx::FrameTitleOf(nIDResource), dwDefaultStyle,
                  rectDefault, parent, pContext);
}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= WS_CHILD;
    return CFrameWnd::PreCreateWindow(cs);
}

int CMDIChildWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    // The MDI client wraps what the creator passed.
    CREATESTRUCT unwrapped = *lpCreateStruct;
    if (const auto* create = static_cast<const MDICREATESTRUCTW*>(lpCreateStruct->lpCreateParams)) {
        unwrapped.lpCreateParams = reinterpret_cast<LPVOID>(create->lParam);
    }
    return CFrameWnd::OnCreate(&unwrapped);
}

LRESULT CMDIChildWnd::DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProcW(m_hWnd, nMsg, wParam, lParam);
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() {
    const HWND client = ::GetParent(m_hWnd);
    return DYNAMIC_DOWNCAST(CMDIFrameWnd, CWnd::FromHandlePermanent(::GetParent(client)));
}

void CMDIChildWnd::MDIActivate() {
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIDestroy() {
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIMaximize() {
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIRestore() {
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIRESTORE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::SetHandles(HMENU hMenu, HACCEL hAccel) {
    m_hMenuShared = hMenu;
    if (m_isAccelTableOwned) {
        ReplaceAccelTable(nullptr);
    }
    m_hAccelTable = hAccel;
    m_isAccelTableOwned = FALSE;
}

BOOL CMDIChildWnd::DestroyWindow() {
    if (!m_hWnd) {
        return FALSE;
    }
    // Only the client may destroy a child: it activates the next one and puts the menu right.
    const fx::WindowGuard guard(this);
    MDIDestroy();
    return guard.IsGone();
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST) {
        return FALSE;
    }
    // The command goes to the MDI frame, which offers it to this child first.
    const HACCEL table = GetDefaultAccelerator();
    CMDIFrameWnd* frame = GetMDIFrame();
    return table && frame && ::TranslateAcceleratorW(frame->m_hWnd, table, pMsg) != 0;
}

CWnd* CMDIChildWnd::GetMessageBar() {
    CMDIFrameWnd* frame = GetMDIFrame();
    return frame ? frame->GetMessageBar() : nullptr;
}

void CMDIChildWnd::OnUpdateFrameMenu(HMENU hMenuAlt) {
    CMDIFrameWnd* frame = GetMDIFrame();
    if (!frame) {
        return;
    }
    HMENU menu = hMenuAlt ? hMenuAlt : m_hMenuShared;
    if (!menu) {
        menu = frame->m_hMenuDefault;
    }
    if (!frame->ShowInMenuBar(menu) && menu && frame->GetMenuBarState() != AFX_MBS_HIDDEN) {
        frame->MDISetMenu(CMenu::FromHandle(menu), CMenu::FromHandle(frame->GetWindowMenuPopup(menu)));
    }
}

void CMDIChildWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if (CMDIFrameWnd* const frame = GetMDIFrame()) {
        frame->OnUpdateFrameTitle(bAddToTitle);
    }
    const CString title = DocumentTitle();
    if ((GetStyle() & FWS_ADDTOTITLE) != 0 && !title.IsEmpty()) {
        fx::SetTitle(*this, title);
    }
}

void CMDIChildWnd::ActivateFrame(int nCmdShow) {
    if (!IsWindowVisible() || nCmdShow != -1) {
        CFrameWnd::ActivateFrame(nCmdShow);
    }
    MDIActivate();
}

void CMDIChildWnd::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd) {
    CWnd::OnMDIActivate(bActivate, pActivateWnd, pDeactivateWnd);
    CMDIFrameWnd* frame = GetMDIFrame();
    if (!frame) {
        return;
    }
    if (bActivate) {
        OnUpdateFrameMenu(nullptr);
    } else if (const HMENU menu = frame->m_hMenuDefault;
               !pActivateWnd && !frame->ShowInMenuBar(menu) && menu && frame->GetMenuBarState() != AFX_MBS_HIDDEN) {
        frame->MDISetMenu(CMenu::FromHandle(menu), CMenu::FromHandle(frame->GetWindowMenuPopup(menu)));
    }
    frame->DelayUpdateTitle();
    frame->DelayRecalcLayout();
}
