// Loops that run until a window says that it is done.
#include "afxpriv.h"
#include "fx/app.h"
#include "fx/scoped_change.h"
#include "window/thread_state.h"

namespace {

/// The caret's blink: an undocumented system timer message that comes while a dialog is still being built up.
constexpr UINT SystemTimer = 0x0118;

} // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
    ASSERT(m_hWnd != nullptr && !m_isInModalLoop);
    const fx::ScopedChange<bool> inLoop(m_isInModalLoop, true);
    const fx::ScopedChange<bool> continues(m_continuesModal, true); // ends with the scope, as it began
    // Whoever runs the loop may hold temporary objects.
    const fx::ScopedChange<int> depth(fx::HandlerDepth(), fx::HandlerDepth() + 1);
    m_nModalResult = -1;
    bool isHidden = (dwFlags & MLF_SHOWONIDLE) != 0 && (GetStyle() & WS_VISIBLE) == 0;
    bool isIdle = true;
    LONG idleCount = 0;
    const HWND parent = ::GetParent(m_hWnd);
    MSG next;
    const auto show = [&] {
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
        isHidden = false;
    };
    while (ContinueModal()) {
        while (isIdle && !::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE)) {
            if (isHidden) {
                show();
            }
            if ((dwFlags & MLF_NOIDLEMSG) == 0 && parent != nullptr && idleCount == 0) {
                ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
            }
            if ((dwFlags & MLF_NOKICKIDLE) != 0 ||
                ::SendMessage(m_hWnd, WM_KICKIDLE, MSGF_DIALOGBOX, idleCount++) == 0) {
                isIdle = false;
                fx::DeleteReleasedTemporaries();
            }
        }
        do {
            if (!ContinueModal()) {
                break;
            }
            if (!AfxPumpMessage()) {
                // The outer loop has to see the end of the program as well.
                ::PostQuitMessage(static_cast<int>(fx::CurrentThread().pumped.wParam));
                return -1;
            }
            MSG& pumped = fx::CurrentThread().pumped;
            if (isHidden && (pumped.message == SystemTimer || pumped.message == WM_SYSKEYDOWN)) {
                show();
            }
            CWinThread* thread = AfxGetThread();
            if (thread == nullptr || thread->IsIdleMessage(&pumped)) {
                isIdle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE));
    }
    return m_nModalResult;
}

BOOL CWnd::ContinueModal() { return m_continuesModal; }

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (m_continuesModal) {
        m_continuesModal = false;
        // Wakes the loop when nothing else does.
        PostMessage(WM_NULL);
    }
}

void CWnd::BeginModalState() { ::EnableWindow(m_hWnd, FALSE); }
void CWnd::EndModalState() { ::EnableWindow(m_hWnd, TRUE); }

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return fx::RunMessageBox(GetSafeHwnd(), lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}
