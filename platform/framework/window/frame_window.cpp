#include "afxwin.h"

#include "afxext.h"
#include "fx/document.h"
#include "fx/window_guard.h"
#include "window/frame_title.h"

#include <utility>

// The frame's life: creation, accelerator table, modal state, command route, closing.

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_DESTROY()
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_ACTIVATE()
ON_WM_QUERYENDSESSION()
ON_WM_ENDSESSION()
ON_WM_INITMENUPOPUP()
ON_WM_MENUSELECT()
ON_WM_SYSCOMMAND()
ON_WM_EXITMENULOOP()
ON_WM_DROPFILES()
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnPopMessageString)
ON_NOTIFY_EX(TTN_NEEDTEXTW, 0, &CFrameWnd::OnToolTipText)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_KANA, &CFrameWnd::OnUpdateKeyIndicator)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd() {
    EndWindow();
    if (m_isAccelTableOwned && m_hAccelTable) {
        ::DestroyAcceleratorTable(m_hAccelTable);
    }
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                       LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName) {
        menu = ::LoadMenuW(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (!menu) {
            PostNcDestroy();
            return FALSE;
        }
    }
    return CreateWithMenu(lpszClassName, lpszWindowName, dwStyle, rect, pParentWnd, menu, dwExStyle, pContext);
}

BOOL CFrameWnd::CreateWithMenu(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent,
                               HMENU menu, DWORD exStyle, CCreateContext* context) {
    m_strTitle = title;
    const bool isDefault = rect.left == CW_USEDEFAULT;
    const int width = isDefault ? CW_USEDEFAULT : static_cast<int>(rect.right - rect.left);
    const int height = isDefault ? CW_USEDEFAULT : static_cast<int>(rect.bottom - rect.top);
    if (CreateEx(exStyle, className, title, style, rect.left, rect.top, width, height, parent->GetSafeHwnd(), menu,
                 context)) {
        return TRUE;
    }
    if (menu) {
        ::DestroyMenu(menu);
    }
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    m_nIDHelp = nIDResource;
    const LPCTSTR resource = MAKEINTRESOURCE(nIDResource);
    const HINSTANCE menuModule = AfxFindResourceHandle(resource, RT_MENU);
    const bool hasMenu = ::FindResourceW(menuModule, resource, RT_MENU) != nullptr;
    const HMENU menu = hasMenu ? ::LoadMenuW(menuModule, resource) : nullptr;
    if (!CreateWithMenu(GetIconWndClass(dwDefaultStyle, nIDResource), fx::FrameTitleOf(nIDResource), dwDefaultStyle,
                        rectDefault, pParentWnd, menu, 0, pContext)) {
        return FALSE;
    }
    if (!m_hMenuDefault) { // else a ribbon bar has hidden it already
        m_hMenuDefault = ::GetMenu(m_hWnd);
    }
    LoadAccelTable(resource);
    if (!pContext) {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    }
    return TRUE;
}

LPCTSTR CFrameWnd::GetIconWndClass(DWORD, UINT resourceId) {
    const LPCTSTR resource = MAKEINTRESOURCE(resourceId);
    const HINSTANCE module = AfxFindResourceHandle(resource, RT_GROUP_ICON);
    if (!::FindResourceW(module, resource, RT_GROUP_ICON)) {
        return nullptr;
    }
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                               reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), ::LoadIconW(module, resource));
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass) {
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), ::LoadIconW(nullptr, IDI_APPLICATION));
    }
    if (cs.style & FWS_ADDTOTITLE) {
        cs.style |= FWS_PREFIXTITLE;
    }
    return CWnd::PreCreateWindow(cs);
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    auto* context = static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (!OnCreateClient(lpCreateStruct, context)) {
        return -1;
    }
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    return 0;
}

void CFrameWnd::PostNcDestroy() {
    if (!m_isEnding) {
        delete this;
    }
}

void CFrameWnd::EndWindow() {
    m_isEnding = true;
    DestroyWindow();
}

void CFrameWnd::OnDestroy() {
    // The window destroys the menu that it shows: that must be the frame's own, never one that it only borrowed.
    const HMENU shown = ::GetMenu(m_hWnd);
    if (m_hMenuDefault && shown != m_hMenuDefault) {
        ::SetMenu(m_hWnd, m_hMenuDefault);
    }
    m_hMenuDefault = nullptr;
    CWnd::OnDestroy();
}

void CFrameWnd::OnClose() {
    CWinApp* const application = AfxGetApp();
    const bool isMainFrame = application != nullptr && application->m_pMainWnd == this;
    const fx::WindowGuard guard(this);
    CDocument* const document = GetActiveDocument();
    if (document != nullptr && !document->CanCloseFrame(this)) {
        return;
    }
    if (guard.IsGone()) {
        return;
    }
    if (isMainFrame) {
        if (document == nullptr && !application->SaveAllModified()) {
            return;
        }
        application->HideApplication();
        application->CloseAllDocuments(FALSE); // with their frames: this may be one
    } else {
        LeaveDocument();
    }
    if (guard.IsAlive()) {
        DestroyWindow();
    }
}

// The last frame of a document closes it.
void CFrameWnd::LeaveDocument() {
    CDocument* const document = GetActiveDocument();
    if (document == nullptr) {
        return;
    }
    for (POSITION place = document->GetFirstViewPosition(); place != nullptr;) {
        if (document->GetNextView(place)->GetParentFrame() != this) {
            document->PreCloseFrame(this);
            return;
        }
    }
    document->OnCloseDocument();
}

BOOL CFrameWnd::OnQueryEndSession() {
    CWinApp* application = AfxGetApp();
    return !application || application->m_pMainWnd != this || application->SaveAllModified();
}

void CFrameWnd::OnEndSession(BOOL bEnding) {
    CWinApp* application = AfxGetApp();
    if (!bEnding || !application || application->m_pMainWnd != this) {
        CWnd::OnEndSession(bEnding);
        return;
    }
    DestroyWindow(); // deletes the frame
    application->EndSession();
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    if (m_hAccelTable) {
        return FALSE;
    }
    m_hAccelTable = ::LoadAcceleratorsW(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    m_isAccelTableOwned = m_hAccelTable != nullptr;
    return m_isAccelTableOwned;
}

void CFrameWnd::ReplaceAccelTable(HACCEL newTable) {
    if (m_hAccelTable && m_isAccelTableOwned && m_hAccelTable != newTable) {
        ::DestroyAcceleratorTable(m_hAccelTable);
    }
    m_hAccelTable = newTable;
    m_isAccelTableOwned = newTable != nullptr;
}

HACCEL CFrameWnd::GetDefaultAccelerator() { return m_hAccelTable; }

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) {
        return TRUE;
    }
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST) {
        return FALSE;
    }
    const HACCEL table = GetDefaultAccelerator();
    return table && ::TranslateAcceleratorW(m_hWnd, table, pMsg) != 0;
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const bool asksApplication = !std::exchange(m_leavesApplicationOut, FALSE);
    if (m_pViewActive != nullptr && m_pViewActive->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinApp* application = asksApplication ? AfxGetApp() : nullptr;
    return application && application->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

CFrameWnd* CFrameWnd::GetActiveFrame() { return this; }

void CFrameWnd::ActivateFrame(int nCmdShow) {
    if (nCmdShow == -1) {
        nCmdShow = IsIconic() ? SW_RESTORE : SW_SHOW;
    }
    if (nCmdShow != SW_HIDE) {
        BringWindowToTop();
    }
    ShowWindow(nCmdShow);
    if (nCmdShow != SW_HIDE) {
        BringWindowToTop();
    }
}

namespace {

struct ModalSearch {
    HWND frame;
    std::vector<HWND>* windows;
};

BOOL CALLBACK CollectEnabledPopup(HWND window, LPARAM lParam) {
    const auto* search = reinterpret_cast<const ModalSearch*>(lParam);
    if (window != search->frame && ::IsWindowEnabled(window) && ::IsWindowVisible(window)) {
        search->windows->push_back(window);
    }
    return TRUE;
}

} // namespace

void CFrameWnd::BeginModalState() {
    if (++m_modalDepth > 1) {
        return;
    }
    ModalSearch search{m_hWnd, &m_disabledWindows};
    ::EnumThreadWindows(::GetCurrentThreadId(), CollectEnabledPopup, reinterpret_cast<LPARAM>(&search));
    for (const HWND window : m_disabledWindows) {
        ::EnableWindow(window, FALSE);
    }
}

void CFrameWnd::EndModalState() {
    if (m_modalDepth == 0 || --m_modalDepth > 0) {
        return;
    }
    for (const HWND window : std::exchange(m_disabledWindows, {})) {
        if (::IsWindow(window)) {
            ::EnableWindow(window, TRUE);
        }
    }
}

void CFrameWnd::ShowOwnedWindows(BOOL bShow) { ::ShowOwnedPopups(m_hWnd, bShow); }
