// The way of a message: window procedure, maps, commands and notifications, reflection, default.
#include "fx/app.h"
#include "fx/cmdui.h"
#include "fx/exceptions.h"
#include "fx/message_shapes.h"
#include "fx/scoped_change.h"
#include "fx/window_guard.h"
#include "window/message_map.h"
#include "window/thread_state.h"

#include <new>

namespace {

/// Makes a message the current one for a scope: Default and GetCurrentMessage look at it.
class CurrentMessageScope {
public:
    CurrentMessageScope(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(fx::CurrentThread()), m_before(m_state.handled) {
        m_state.handled = {window, message, wParam, lParam, m_state.pumped.time, m_state.pumped.pt};
    }
    ~CurrentMessageScope() { m_state.handled = m_before; }

private:
    fx::ThreadState& m_state;
    MSG m_before;
    fx::ScopedChange<int> m_depth{fx::HandlerDepth(), fx::HandlerDepth() + 1};
};

bool IsControlColour(UINT message) { return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC; }

/// The answer to one question only: is the command enabled?
class EnabledProbe : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        m_isEnabled = bOn != FALSE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}

    bool m_isEnabled = true;
};

/// Tooltips are nobody's dialog item: handlers name them by id 0, whatever stands in the notification.
UINT NotifyId(const NMHDR& header) {
    if (header.hwndFrom == nullptr || !::IsWindow(header.hwndFrom)) {
        return static_cast<UINT>(header.idFrom);
    }
    const bool isChild = (::GetWindowLongPtr(header.hwndFrom, GWL_STYLE) & WS_CHILD) != 0;
    return isChild ? static_cast<UINT>(::GetDlgCtrlID(header.hwndFrom)) : 0;
}

/// What the thread says to an exception that left a window procedure, which is deleted.
LRESULT Answer(CException* exception) {
    const MSG message = fx::CurrentThread().handled;
    CWinThread* thread = AfxGetThread();
    const LRESULT result = thread != nullptr ? thread->ProcessWndProcException(exception, &message) : 0;
    exception->Delete();
    return result;
}

} // namespace

struct fx::WindowProcAccess {
    static LRESULT Call(CWnd& wnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return wnd.WindowProc(message, wParam, lParam);
    }
};

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) noexcept {
    CWnd* wnd = CWnd::FromHandlePermanent(hWnd);
    if (wnd == nullptr) {
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    }
    CurrentMessageScope scope(hWnd, nMsg, wParam, lParam);
    try {
        // The object may be gone afterwards.
        return fx::WindowProcAccess::Call(*wnd, nMsg, wParam, lParam);
    } catch (CException* e) {
        return Answer(e);
    } catch (const std::bad_alloc&) {
        // The same to the user as the framework's own: the operation failed, the program goes on.
        try {
            AfxThrowMemoryException();
        } catch (CMemoryException* e) {
            return Answer(e);
        }
    }
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result)) {
        result = DefWindowProc(message, wParam, lParam);
    }
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_pfnSuper != nullptr ? ::CallWindowProc(m_pfnSuper, m_hWnd, message, wParam, lParam)
                                 : ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& message = fx::CurrentThread().handled;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage() {
    MSG& handled = fx::CurrentThread().handled;
    handled.time = static_cast<DWORD>(::GetMessageTime());
    const DWORD position = ::GetMessagePos();
    handled.pt = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    return &handled;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT result = 0;
    BOOL isHandled = FALSE;
    if (message == WM_COMMAND) {
        isHandled = OnCommand(wParam, lParam);
        result = 1;
    } else if (message == WM_NOTIFY) {
        isHandled = lParam != 0 && OnNotify(wParam, lParam, &result);
    } else {
        fx::Call call;
        call.message = message;
        call.wParam = wParam;
        call.lParam = lParam;
        // A map names the seven questions for a colour as one, or one of them by its own number.
        isHandled = fx::InvokeMessage(GetMessageMap(), this, message, call) ||
                    (IsControlColour(message) && fx::InvokeMessage(GetMessageMap(), this, fx::ControlColour, call));
        result = call.result;
    }
    if (isHandled && pResult != nullptr) {
        *pResult = result;
    }
    return isHandled;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control == nullptr) {
        if (id == 0) {
            return FALSE;
        }
        // Accelerators of bars without a menu are not checked by the system: a disabled command stays undone.
        EnabledProbe probe;
        probe.m_nID = id;
        OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &probe, nullptr);
        return !probe.m_isEnabled || OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
    }
    if (m_hWnd == fx::CurrentThread().exchanging) {
        return TRUE;
    }
    // Like WM_NOTIFY, the control's own handler comes first: an _EX one decides whether the parent gets it as well.
    CWnd* child = FromHandlePermanent(control);
    if (child != nullptr && child->OnChildNotify(WM_COMMAND, wParam, lParam, nullptr)) {
        return TRUE;
    }
    return id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    CWnd* child = FromHandlePermanent(header->hwndFrom);
    if (child != nullptr && child->OnChildNotify(WM_NOTIFY, wParam, lParam, pResult)) {
        return TRUE;
    }
    AFX_NOTIFY notify = {pResult, header};
    return OnCmdMsg(NotifyId(*header), MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_COMMAND:
        return fx::InvokeCommand(GetMessageMap(), this, fx::Reflect + WM_COMMAND, LOWORD(wParam), HIWORD(wParam),
                                 nullptr, nullptr);
    case WM_NOTIFY: {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        LRESULT ignored = 0;
        AFX_NOTIFY notify = {pResult != nullptr ? pResult : &ignored, header};
        return fx::InvokeCommand(GetMessageMap(), this, fx::Reflect + WM_NOTIFY, LOWORD(header->idFrom),
                                 MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
    }
    default:
        break;
    }
    fx::Call call;
    call.message = message;
    call.wParam = wParam;
    call.lParam = lParam;
    const UINT entry = fx::Reflect + (IsControlColour(message) ? fx::ControlColour : message);
    const BOOL isHandled = fx::InvokeMessage(GetMessageMap(), this, entry, call);
    if (isHandled && pResult != nullptr) {
        *pResult = call.result;
    }
    return isHandled;
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG message = fx::CurrentThread().handled;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::PreTranslateMessage(MSG* pMsg) {
    if (m_hasToolTips) {
        FilterToolTipMessage(pMsg);
    }
    return FALSE;
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND window = pMsg->hwnd; window != nullptr; window = ::GetParent(window)) {
        CWnd* wnd = FromHandlePermanent(window);
        if (wnd != nullptr && wnd->PreTranslateMessage(pMsg)) {
            return TRUE;
        }
        if (window == hWndStop) {
            break;
        }
    }
    return FALSE;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}

void CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    for (HWND child = ::GetTopWindow(hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const fx::WindowGuard guard(child);
        if (!bOnlyPerm) {
            ::SendMessage(child, message, wParam, lParam);
        } else if (FromHandlePermanent(child) != nullptr) {
            AfxWndProc(child, message, wParam, lParam);
        }
        if (guard.IsGone()) {
            break;
        }
        if (bDeep && ::GetTopWindow(child) != nullptr) {
            SendMessageToDescendants(child, message, wParam, lParam, bDeep, bOnlyPerm);
        }
    }
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    CCmdUI item;
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd* wnd = FromHandle(child);
        item.m_nID = LOWORD(::GetDlgCtrlID(child));
        item.m_pOther = wnd;
        item.m_bEnableChanged = FALSE;
        if (fx::InvokeCommand(wnd->GetMessageMap(), wnd, fx::Reflect + WM_COMMAND, item.m_nID, CN_UPDATE_COMMAND_UI,
                              &item, nullptr) ||
            CWnd::OnCmdMsg(item.m_nID, CN_UPDATE_COMMAND_UI, &item, nullptr)) {
            continue;
        }
        // Only push buttons are commands; an edit field without a handler stays usable.
        const bool isPushButton = (::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0 &&
                                  (::GetWindowLongPtr(child, GWL_STYLE) & BS_TYPEMASK) <= BS_DEFPUSHBUTTON;
        item.DoUpdate(pTarget, bDisableIfNoHndler && isPushButton);
    }
}

void CWnd::DoDataExchange(CDataExchange*) {}
