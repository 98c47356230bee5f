#pragma once

#include "fx/cmdtarget.h"

class CException;
class CFrameWnd;
class CWinThread;
class CWnd;

/// A thread's function; its result is the thread's exit code.
typedef UINT(AFX_CDECL* AFX_THREADPROC)(LPVOID);

/// Code of ProcessMessageFilter, as WH_MSGFILTER hooks get it.
#ifndef MSGF_DDEMGR
#define MSGF_DDEMGR 0x8001
#endif

/// A thread of the program. One derived object is the application itself (CWinApp); others come from AfxBeginThread.
class FRAMEWORK_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    /// A user-interface thread: overrides of InitInstance and Run do its work.
    CWinThread();
    /// A worker thread.
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);
    ~CWinThread() override;

    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
    DWORD SuspendThread();
    DWORD ResumeThread();
    int GetThreadPriority();
    BOOL SetThreadPriority(int nPriority);
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);
    operator HANDLE() const;

    virtual BOOL InitInstance();
    virtual int ExitInstance();
    /// Pumps messages until WM_QUIT; calls OnIdle while nothing waits. Returns ExitInstance's result.
    virtual int Run();
    /// Gets, translates and dispatches one message; FALSE on WM_QUIT.
    virtual BOOL PumpMessage();
    /// Counts up from 0 after the queue ran empty; TRUE: wants to be called again. 0 updates command items, 1 deletes
    /// temporary objects.
    virtual BOOL OnIdle(LONG lCount);
    /// FALSE for messages that do not change anything idle processing looks at (timers, paints, repeated mouse moves).
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Offers the message to the windows from its target up to the main window. TRUE: it is not to be dispatched.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Called for messages in the system's modal loops (menus, message boxes, dialogs). TRUE: processed. The base makes
    /// F1 the help command, ID_HELP, where somebody handles it.
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    /// What a window's handler threw ends here. The result goes to the message's sender. The exception is deleted by
    /// the caller.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd();

    CWnd* m_pMainWnd = nullptr;   ///< when this window is destroyed, the thread ends
    CWnd* m_pActiveWnd = nullptr; ///< the container's window while an in-place server is active
    BOOL m_bAutoDelete = TRUE;    ///< the object deletes itself when its thread ends
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;

protected:
    DECLARE_MESSAGE_MAP()
    BOOL DispatchThreadMessage(MSG* pMsg);
    /// One round of idle calls until a message waits or OnIdle has no more to do.
    void RunIdle();

    AFX_THREADPROC m_pfnThreadProc = nullptr;
    LPVOID m_pThreadParams = nullptr;
    POINT m_ptCursorLast = {};
    UINT m_nMsgLast = 0;

private:
    static unsigned __stdcall ThreadEntry(void* thread);
    int RunThread();
    /// The system ends the program as soon as it likes: calls ExitInstance now. A loop that still comes to its end does
    /// not do it again.
    void EndSession();
    friend class CWnd;
    friend class CFrameWnd;

    bool m_hasEndedWithSession = false;
};

/// The object of the calling thread; null in a thread that was not started through the framework.
FRAMEWORK_API CWinThread* AfxGetThread();
/// Starts a thread; null when it could not be started. The object deletes itself unless m_bAutoDelete is cleared.
FRAMEWORK_API CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                         int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                         DWORD dwCreateFlags = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
FRAMEWORK_API CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                         UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                         LPSECURITY_ATTRIBUTES lpSecurityAttrs = NULL);
/// Ends the calling thread; bDelete also deletes its object.
FRAMEWORK_API void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);
/// One message of the calling thread's loop; FALSE on WM_QUIT. Works in threads without an object too.
FRAMEWORK_API BOOL AFXAPI AfxPumpMessage();
FRAMEWORK_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
