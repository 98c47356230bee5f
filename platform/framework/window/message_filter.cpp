#include "window/message_filter.h"

#include "afxres.h"
#include "fx/app.h"
#include "fx/exceptions.h"

namespace {

BOOL AskThread(int code, MSG& message) {
    CWinThread* thread = AfxGetThread();
    if (thread == nullptr) {
        return FALSE;
    }
    try {
        return thread->ProcessMessageFilter(code, &message);
    } catch (CException* e) {
        // Nothing may leave into the system's loop.
        thread->ProcessWndProcException(e, &message);
        e->Delete();
        return FALSE;
    }
}

LRESULT CALLBACK OnFilterMessage(int code, WPARAM wParam, LPARAM lParam) noexcept {
    if (code >= 0 && AskThread(code, *reinterpret_cast<MSG*>(lParam))) {
        return TRUE;
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

bool IsHelpKey(const MSG& message) {
    constexpr LPARAM repeated = 1 << 30;
    const auto isDown = [](int key) { return ::GetKeyState(key) < 0; };
    return message.message == WM_KEYDOWN && message.wParam == VK_F1 && (message.lParam & repeated) == 0 &&
           !isDown(VK_SHIFT) && !isDown(VK_CONTROL) && !isDown(VK_MENU);
}

} // namespace

fx::MessageFilterHook::MessageFilterHook()
    : m_hook(::SetWindowsHookExW(WH_MSGFILTER, OnFilterMessage, nullptr, ::GetCurrentThreadId())) {}

fx::MessageFilterHook::~MessageFilterHook() { ::UnhookWindowsHookEx(m_hook); }

BOOL fx::HandleHelpKey(int code, const MSG& message) {
    if ((code != MSGF_MENU && code != MSGF_DIALOGBOX) || !IsHelpKey(message)) {
        return FALSE;
    }
    CWnd* window = CWnd::FromHandlePermanent(::GetAncestor(message.hwnd, GA_ROOT));
    if (window == nullptr) {
        window = AfxGetMainWnd();
    }
    AFX_CMDHANDLERINFO handler{};
    if (window == nullptr || !window->OnCmdMsg(ID_HELP, CN_COMMAND, nullptr, &handler)) {
        return FALSE; // the system's WM_HELP follows
    }
    window->SendMessage(WM_COMMAND, ID_HELP);
    return TRUE;
}
