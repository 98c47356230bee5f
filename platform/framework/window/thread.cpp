#include "fx/thread.h"

#include "afxmsg_.h"
#include "afxpriv.h"
#include "fx/app.h"
#include "fx/exceptions.h"
#include "fx/frame.h"
#include "fx/gdi_objects.h"
#include "window/input_filter.h"
#include "window/message_map.h"
#include "window/thread_state.h"

#include <process.h>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

CWinThread::CWinThread() = default;
CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pfnThreadProc(pfnThreadProc), m_pThreadParams(pParam) {}

CWinThread::~CWinThread() {
    // The application's object stands for a thread that the framework did not start.
    if (m_hThread != nullptr && m_hThread != ::GetCurrentThread()) {
        ::CloseHandle(m_hThread);
    }
    fx::ThreadState& state = fx::CurrentThread();
    if (state.thread == this) {
        state.thread = nullptr;
    }
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    ASSERT(m_hThread == nullptr);
    // Suspended at first: the members have to be there before the thread runs, which may end and delete this object.
    unsigned id = 0;
    const HANDLE thread = reinterpret_cast<HANDLE>(
        ::_beginthreadex(lpSecurityAttrs, nStackSize, ThreadEntry, this, CREATE_SUSPENDED, &id));
    m_hThread = thread;
    m_nThreadID = id;
    if (thread != nullptr && (dwCreateFlags & CREATE_SUSPENDED) == 0) {
        ::ResumeThread(thread);
    }
    return thread != nullptr;
}

unsigned __stdcall CWinThread::ThreadEntry(void* thread) {
    return static_cast<unsigned>(static_cast<CWinThread*>(thread)->RunThread());
}

int CWinThread::RunThread() {
    fx::CurrentThread().thread = this;
    int result = 0;
    if (m_pfnThreadProc != nullptr) {
        result = static_cast<int>(m_pfnThreadProc(m_pThreadParams));
    } else {
        fx::CurrentThread().messageFilter = std::make_unique<fx::MessageFilterHook>();
        result = InitInstance() ? Run() : ExitInstance();
    }
    if (CWnd* main = std::exchange(m_pMainWnd, nullptr)) {
        main->DestroyWindow();
    }
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    fx::CurrentThread().messageFilter.reset();
    fx::CurrentThread().thread = nullptr;
    if (m_bAutoDelete) {
        delete this;
    }
    return result;
}

DWORD CWinThread::SuspendThread() { return ::SuspendThread(m_hThread); }
DWORD CWinThread::ResumeThread() { return ::ResumeThread(m_hThread); }
int CWinThread::GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
BOOL CWinThread::SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}
CWinThread::operator HANDLE() const { return this == nullptr ? nullptr : m_hThread; }

BOOL CWinThread::InitInstance() { return FALSE; }

int CWinThread::ExitInstance() { return static_cast<int>(fx::CurrentThread().pumped.wParam); }

int CWinThread::Run() {
    MSG& pumped = fx::CurrentThread().pumped;
    MSG next;
    bool isIdle = true;
    LONG count = 0;
    for (;;) {
        while (isIdle && !::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE)) {
            if (!OnIdle(count++)) {
                isIdle = false;
            }
        }
        do {
            if (!PumpMessage()) {
                // The end of the session has taken it beforehand, while there was time.
                return std::exchange(m_hasEndedWithSession, false) ? static_cast<int>(pumped.wParam) : ExitInstance();
            }
            if (IsIdleMessage(&pumped)) {
                isIdle = true;
                count = 0;
            }
        } while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE));
    }
}

void CWinThread::EndSession() {
    m_hasEndedWithSession = true;
    ExitInstance();
}

void CWinThread::RunIdle() {
    MSG next;
    for (LONG count = 0; OnIdle(count) && !::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE); ++count) {
    }
}

BOOL CWinThread::PumpMessage() {
    MSG& pumped = fx::CurrentThread().pumped;
    if (::GetMessage(&pumped, nullptr, 0, 0) <= 0) {
        return FALSE;
    }
    if (pumped.message != WM_KICKIDLE && !AfxPreTranslateMessage(&pumped)) {
        // A copy: handlers may pump further messages.
        const MSG message = pumped;
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount <= 0) {
        // The main window, and every other visible frame of the thread.
        CWnd* main = m_pMainWnd;
        std::vector<HWND> frames;
        if (main != nullptr && main->m_hWnd != nullptr) {
            frames.push_back(main->m_hWnd);
        }
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM list) -> BOOL {
                CWnd* wnd = CWnd::FromHandlePermanent(window);
                auto* found = reinterpret_cast<std::vector<HWND>*>(list);
                const bool isKnown = !found->empty() && found->front() == window;
                if (!isKnown && wnd != nullptr && wnd->IsKindOf(RUNTIME_CLASS(CFrameWnd))) {
                    found->push_back(window);
                }
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&frames));
        for (HWND window : frames) {
            if (::IsWindow(window) && ::IsWindowVisible(window)) {
                AfxWndProc(window, WM_IDLEUPDATECMDUI, TRUE, 0);
                CWnd::SendMessageToDescendants(window, WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
            }
        }
    } else if (lCount == 1) {
        fx::DeleteReleasedTemporaries();
    }
    return lCount <= 0;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        // The system repeats moves without a move when windows appear.
        if (m_ptCursorLast.x == pMsg->pt.x && m_ptCursorLast.y == pMsg->pt.y && m_nMsgLast == pMsg->message) {
            return FALSE;
        }
        m_ptCursorLast = pMsg->pt;
        m_nMsgLast = pMsg->message;
        return TRUE;
    }
    constexpr UINT CaretBlink = 0x0118;
    return pMsg->message != WM_PAINT && pMsg->message != WM_TIMER && pMsg->message != CaretBlink;
}

BOOL CWinThread::DispatchThreadMessage(MSG* pMsg) {
    fx::Call call;
    call.message = pMsg->message;
    call.wParam = pMsg->wParam;
    call.lParam = pMsg->lParam;
    return fx::InvokeMessage(GetMessageMap(), this, fx::ThreadMessage + pMsg->message, call);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    // Open pop-up menus come before every window.
    if (fx::FilterInput(pMsg)) {
        return TRUE;
    }
    if (pMsg->hwnd == nullptr && DispatchThreadMessage(pMsg)) {
        return TRUE;
    }
    CWnd* main = GetMainWnd();
    if (CWnd::WalkPreTranslateTree(main->GetSafeHwnd(), pMsg)) {
        return TRUE;
    }
    // A palette's or modeless dialog's keys may be the main window's accelerators.
    if (main != nullptr && main->m_hWnd != nullptr && pMsg->hwnd != nullptr) {
        HWND top = pMsg->hwnd;
        while (HWND parent = ::GetParent(top)) {
            top = parent;
        }
        if (top != main->m_hWnd) {
            return main->PreTranslateMessage(pMsg);
        }
    }
    return FALSE;
}

BOOL CWinThread::ProcessMessageFilter(int code, LPMSG lpMsg) {
    return lpMsg != nullptr && fx::HandleHelpKey(code, *lpMsg);
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE) {
        return -1;
    }
    if (pMsg->message == WM_PAINT) {
        // Else the message would come back at once, and the exception with it.
        ::ValidateRect(pMsg->hwnd, nullptr);
        return 0;
    }
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) {
        e->ReportError(MB_ICONEXCLAMATION | MB_SYSTEMMODAL);
    }
    // A command counts as done, so that nobody tries it again.
    return pMsg->message == WM_COMMAND ? TRUE : 0;
}

CWnd* CWinThread::GetMainWnd() { return m_pActiveWnd != nullptr ? m_pActiveWnd : m_pMainWnd; }

CWinThread* AfxGetThread() { return fx::CurrentThread().thread; }

CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                           DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    auto thread = std::make_unique<CWinThread>(pfnThreadProc, pParam);
    if (!thread->CreateThread(dwCreateFlags | CREATE_SUSPENDED, nStackSize, lpSecurityAttrs)) {
        return nullptr;
    }
    thread->SetThreadPriority(nPriority);
    // From here on the thread owns its object.
    CWinThread* started = thread.release();
    if ((dwCreateFlags & CREATE_SUSPENDED) == 0) {
        started->ResumeThread();
    }
    return started;
}

CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                           LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    std::unique_ptr<CWinThread> thread(static_cast<CWinThread*>(pThreadClass->CreateObject()));
    if (thread == nullptr || !thread->CreateThread(dwCreateFlags | CREATE_SUSPENDED, nStackSize, lpSecurityAttrs)) {
        return nullptr;
    }
    thread->SetThreadPriority(nPriority);
    CWinThread* started = thread.release();
    if ((dwCreateFlags & CREATE_SUSPENDED) == 0) {
        started->ResumeThread();
    }
    return started;
}

void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete) {
    fx::ThreadState& state = fx::CurrentThread();
    CWinThread* thread = std::exchange(state.thread, nullptr);
    if (thread != nullptr && bDelete && thread->m_bAutoDelete) {
        delete thread;
    }
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    ::_endthreadex(nExitCode);
}

BOOL AFXAPI AfxPumpMessage() {
    if (CWinThread* thread = AfxGetThread()) {
        return thread->PumpMessage();
    }
    MSG& pumped = fx::CurrentThread().pumped;
    if (::GetMessage(&pumped, nullptr, 0, 0) <= 0) {
        return FALSE;
    }
    if (!AfxPreTranslateMessage(&pumped)) {
        const MSG message = pumped;
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg) {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->PreTranslateMessage(pMsg)
                             : fx::FilterInput(pMsg) || CWnd::WalkPreTranslateTree(nullptr, pMsg);
}
