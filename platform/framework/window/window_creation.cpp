// How a window comes to its object: classes, the creation hook, attaching, subclassing, the end.
#include "fx/app.h"
#include "window/thread_state.h"

#include <map>
#include <mutex>
#include <tuple>

namespace fx {

struct CreationHookAccess {
    static void Attach(HWND window) {
        WindowCreationHook* hook = CurrentThread().creation;
        if (hook == nullptr || hook->m_attached) {
            return;
        }
        // Before the first PreSubclassWindow: it may create a window itself.
        hook->m_attached = TRUE;
        CWnd* wnd = hook->m_wnd;
        wnd->Attach(window);
        wnd->PreSubclassWindow();
        const auto before = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
        if (before != &AfxWndProc) {
            wnd->m_pfnSuper = before;
        }
    }
};

namespace {

/// Input-method windows come up beside the thread's first window and are nobody's.
bool IsInputMethodClass(HWND window) { return (::GetClassLongPtr(window, GCL_STYLE) & CS_IME) != 0; }

LRESULT CALLBACK OnWindowCreated(int code, WPARAM wParam, LPARAM lParam) noexcept {
    if (code == HCBT_CREATEWND && !IsInputMethodClass(reinterpret_cast<HWND>(wParam))) {
        CreationHookAccess::Attach(reinterpret_cast<HWND>(wParam));
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

WindowCreationHook::WindowCreationHook(CWnd* wnd)
    : m_wnd(wnd),
      m_outer(CurrentThread().creation),
      m_hook(::SetWindowsHookEx(WH_CBT, OnWindowCreated, nullptr, ::GetCurrentThreadId())) {
    CurrentThread().creation = this;
}

WindowCreationHook::~WindowCreationHook() {
    if (m_hook != nullptr) {
        ::UnhookWindowsHookEx(m_hook);
    }
    CurrentThread().creation = m_outer;
}

} // namespace fx

namespace {

using ClassKey = std::tuple<HINSTANCE, UINT, HCURSOR, HBRUSH, HICON>;

std::mutex g_classLock;

bool IsRegistered(HINSTANCE instance, LPCTSTR name) {
    WNDCLASS existing;
    return ::GetClassInfo(instance, name, &existing) != FALSE;
}

} // namespace

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    // The names live as long as the process: callers keep the pointers.
    static std::map<ClassKey, std::wstring>& names = *new std::map<ClassKey, std::wstring>;
    const HINSTANCE instance = AfxGetInstanceHandle();
    std::lock_guard<std::mutex> lock(g_classLock);
    std::wstring& name = names[ClassKey(instance, nClassStyle, hCursor, hbrBackground, hIcon)];
    if (name.empty()) {
        name = L"Framework:" + std::to_wstring(names.size());
    }
    if (!IsRegistered(instance, name.c_str())) {
        WNDCLASS windowClass = {};
        windowClass.style = nClassStyle;
        windowClass.lpfnWndProc = ::DefWindowProc;
        windowClass.hInstance = instance;
        windowClass.hIcon = hIcon;
        windowClass.hCursor = hCursor;
        windowClass.hbrBackground = hbrBackground;
        windowClass.lpszClassName = name.c_str();
        if (::RegisterClass(&windowClass) == 0) {
            AfxThrowResourceException();
        }
    }
    return name.c_str();
}

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass) {
    std::lock_guard<std::mutex> lock(g_classLock);
    return IsRegistered(lpWndClass->hInstance, lpWndClass->lpszClassName) || ::RegisterClass(lpWndClass) != 0;
}

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::CWnd() = default;
CWnd::CWnd(HWND special) : m_hWnd(special) {}

CWnd::~CWnd() {
    const bool isSpecial = this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost;
    if (m_hWnd != nullptr && !isSpecial) {
        DestroyWindow();
    }
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID, CCreateContext* pContext) {
    ASSERT(pParentWnd != nullptr);
    ASSERT((dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    ASSERT(m_hWnd == nullptr);
    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    bool hasAttached = false;
    HWND window = nullptr;
    {
        fx::WindowCreationHook hook(this);
        window = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                                  cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
        hasAttached = hook.HasAttached() != FALSE;
    }
    // An object that deletes itself does so in PostNcDestroy; a window that came to life has already called it.
    if (!hasAttached) {
        PostNcDestroy();
    }
    return window != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    }
    return TRUE;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr) {
        return FALSE;
    }
    const HWND window = m_hWnd;
    auto& windows = fx::CurrentThread().windows;
    const bool isPermanent = windows.LookupPermanent(window) == this;
    // A permanent object loses its handle in WM_NCDESTROY and may be deleted there.
    const BOOL result = ::DestroyWindow(window);
    if (!isPermanent && result) {
        m_hWnd = nullptr;
    }
    return result;
}

BOOL CWnd::Attach(HWND hWndNew) {
    ASSERT(m_hWnd == nullptr);
    if (hWndNew == nullptr) {
        return FALSE;
    }
    m_hWnd = hWndNew;
    fx::CurrentThread().windows.SetPermanent(hWndNew, this);
    return TRUE;
}

HWND CWnd::Detach() {
    fx::CurrentThread().windows.RemovePermanent(m_hWnd, this);
    return std::exchange(m_hWnd, nullptr);
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    return fx::CurrentThread().windows.FromHandle(hWnd, RUNTIME_CLASS(CWnd), fx::HandlerDepth());
}
CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) { return fx::CurrentThread().windows.LookupPermanent(hWnd); }
void PASCAL CWnd::DeleteTempMap() { fx::CurrentThread().windows.DeleteTemp(); }
HWND CWnd::GetSafeHwnd() const { return this == nullptr ? nullptr : m_hWnd; }
CWnd::operator HWND() const { return m_hWnd; }
BOOL CWnd::operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
BOOL CWnd::operator!=(const CWnd& wnd) const { return wnd.m_hWnd != m_hWnd; }

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!Attach(hWnd)) {
        return FALSE;
    }
    PreSubclassWindow();
    const auto before =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (before != &AfxWndProc) {
        m_pfnSuper = before;
    }
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    const HWND item = ::GetDlgItem(pParent->m_hWnd, static_cast<int>(nID));
    return item != nullptr && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow() {
    if (m_pfnSuper != nullptr) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
        m_pfnSuper = nullptr;
    }
    return Detach();
}

void CWnd::OnNcDestroy() {
    fx::ThreadState& state = fx::CurrentThread();
    if (CWinThread* thread = state.thread) {
        if (thread->m_pMainWnd == this) {
            thread->m_pMainWnd = nullptr;
            ::PostQuitMessage(0);
        }
        if (thread->m_pActiveWnd == this) {
            thread->m_pActiveWnd = nullptr;
        }
    }
    if (state.toolTip.window == m_hWnd) {
        CancelToolTips(FALSE);
        state.toolTip.window = nullptr;
    }
    m_continuesModal = false; // a loop that ran for this window would wait for ever
    const HWND window = m_hWnd;
    const WNDPROC super = m_pfnSuper;
    Default();
    // The default handler may have been another subclass that took itself off; give the procedure back only where ours
    // is still in place.
    if (super != nullptr &&
        reinterpret_cast<WNDPROC>(::GetWindowLongPtr(window, GWLP_WNDPROC)) == static_cast<WNDPROC>(&AfxWndProc)) {
        ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(super));
    }
    m_pfnSuper = nullptr;
    Detach();
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}
