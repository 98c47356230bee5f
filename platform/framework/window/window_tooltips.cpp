// Tooltips of windows with EnableToolTips: one tooltip control for each thread, whose single tool is what
// OnToolHitTest found under the pointer.
#include "fx/app.h"
#include "window/thread_state.h"

#include <cstdlib>

namespace {

using fx::ToolTipState;

bool IsMouseMove(UINT message) { return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE; }
bool IsMouseButton(UINT message) {
    return (message > WM_MOUSEMOVE && message <= WM_MBUTTONDBLCLK) ||
           (message > WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK);
}

/// Creates the control, again after its owner took it down. False when the system refuses.
bool EnsureControl(ToolTipState& state, HWND window) {
    if (state.control != nullptr && ::IsWindow(state.control)) {
        return true;
    }
    INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    state = {};
    state.control = ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                                     CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                     ::GetAncestor(window, GA_ROOT), nullptr, AfxGetInstanceHandle(), nullptr);
    return state.control != nullptr;
}

void RemoveTool(ToolTipState& state) {
    if (state.hit == -1 || !::IsWindow(state.control)) {
        return;
    }
    if (state.isTracking) {
        ::SendMessage(state.control, TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&state.tool));
    }
    ::SendMessage(state.control, TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&state.tool));
    state.hit = -1;
}

void AddTool(ToolTipState& state, TOOLINFO& tool, bool isTracking) {
    if (isTracking) {
        tool.uFlags |= TTF_TRACK | TTF_ABSOLUTE;
    }
    ::SendMessage(state.control, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    if (isTracking) {
        ::SendMessage(state.control, TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
    }
    // In front of whatever menu or palette is topmost as well.
    ::SetWindowPos(state.control, HWND_TOP, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOMOVE | SWP_NOOWNERZORDER);
}

void FreeText(TOOLINFO& tool) {
    if (tool.lpszText != LPSTR_TEXTCALLBACK) {
        std::free(tool.lpszText);
    }
    tool.lpszText = LPSTR_TEXTCALLBACK;
}

/// Where the pointer is, in client co-ordinates of the window. Beside a client area messages bring the point on the
/// screen.
CPoint PointIn(HWND window, const MSG& message) {
    CPoint point(static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam)));
    ::MapWindowPoints(message.message == WM_MOUSEMOVE ? message.hwnd : nullptr, window, &point, 1);
    return point;
}

/// Instead of the tool so far. Frees the tool's text.
void TakeTool(ToolTipState& state, HWND window, INT_PTR hit, TOOLINFO& tool, bool isTracking) {
    RemoveTool(state);
    ::SendMessage(state.control, TTM_ACTIVATE, TRUE, 0);
    AddTool(state, tool, isTracking);
    FreeText(tool);
    state.window = window;
    state.hit = hit;
    state.tool = tool;
    state.isTracking = isTracking;
}

/// Hands a movement on to the control, which compares window and point of the message with the tool's.
void Relay(const ToolTipState& state, const MSG& message, CPoint point) {
    if (state.isTracking) {
        ::SendMessage(state.control, TTM_TRACKPOSITION, 0, MAKELPARAM(message.pt.x, message.pt.y));
    }
    MSG relayed = message;
    if ((state.tool.uFlags & TTF_IDISHWND) == 0) {
        relayed.hwnd = state.window;
        relayed.message = WM_MOUSEMOVE;
        relayed.lParam = MAKELPARAM(point.x, point.y);
    }
    ::SendMessage(state.control, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

} // namespace

BOOL CWnd::EnableToolTips(BOOL bEnable) {
    m_hasToolTips = bEnable != FALSE;
    if (!bEnable && fx::CurrentThread().toolTip.window == m_hWnd) {
        RemoveTool(fx::CurrentThread().toolTip);
    }
    return TRUE;
}

BOOL CWnd::EnableTrackingToolTips(BOOL bEnable) {
    m_hasTrackingToolTips = bEnable != FALSE;
    return EnableToolTips(bEnable);
}

void PASCAL CWnd::CancelToolTips(BOOL bKeys) {
    ToolTipState& state = fx::CurrentThread().toolTip;
    // Modifier keys do not take a tip away.
    if (bKeys && (::GetKeyState(VK_MENU) < 0 || ::GetKeyState(VK_CONTROL) < 0 || ::GetKeyState(VK_SHIFT) < 0)) {
        return;
    }
    if (state.control != nullptr && ::IsWindow(state.control)) {
        ::SendMessage(state.control, TTM_ACTIVATE, FALSE, 0);
        RemoveTool(state);
    }
}

void CWnd::FilterToolTipMessage(MSG* pMsg) {
    ToolTipState& state = fx::CurrentThread().toolTip;
    if (IsMouseButton(pMsg->message) || pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN) {
        CancelToolTips(pMsg->message == WM_KEYDOWN);
        return;
    }
    const bool isOurs = pMsg->hwnd == m_hWnd || ::IsChild(m_hWnd, pMsg->hwnd);
    if (!IsMouseMove(pMsg->message) || !isOurs) {
        return;
    }
    const CPoint point = PointIn(m_hWnd, *pMsg);
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE; // which every version of the controls takes
    tool.hwnd = m_hWnd;
    tool.lpszText = LPSTR_TEXTCALLBACK;
    const INT_PTR hit = OnToolHitTest(point, &tool);
    if (hit == -1) {
        FreeText(tool);
        if (state.window == m_hWnd) {
            RemoveTool(state);
        }
        return;
    }
    if (!EnsureControl(state, m_hWnd)) {
        FreeText(tool);
        return;
    }
    if (state.hit != hit || state.window != m_hWnd) {
        TakeTool(state, m_hWnd, hit, tool, m_hasTrackingToolTips);
    } else {
        FreeText(tool);
    }
    Relay(state, *pMsg, point);
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (child == nullptr || child == m_hWnd) {
        return -1;
    }
    if (pTI != nullptr) {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
        // A disabled control gets no mouse messages of its own: its area is the tool then.
        if (!::IsWindowEnabled(child)) {
            pTI->uFlags &= ~static_cast<UINT>(TTF_IDISHWND);
            pTI->uId = static_cast<UINT_PTR>(::GetDlgCtrlID(child));
            ::GetWindowRect(child, &pTI->rect);
            ScreenToClient(&pTI->rect);
        }
    }
    return ::GetDlgCtrlID(child);
}
