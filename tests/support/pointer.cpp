#include "tests/support/pointer.h"

#include "afxwin.h"

namespace {

struct Button {
    UINT key;
    UINT flag;
    UINT down;
    UINT up;
    UINT doubleClick;
    UINT ncDown;
    UINT ncUp;
    UINT ncDoubleClick;
};

constexpr Button buttons[] = {
    {VK_LBUTTON, MK_LBUTTON, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_NCLBUTTONDOWN, WM_NCLBUTTONUP,
     WM_NCLBUTTONDBLCLK},
    {VK_RBUTTON, MK_RBUTTON, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_RBUTTONDBLCLK, WM_NCRBUTTONDOWN, WM_NCRBUTTONUP,
     WM_NCRBUTTONDBLCLK},
    {VK_MBUTTON, MK_MBUTTON, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MBUTTONDBLCLK, WM_NCMBUTTONDOWN, WM_NCMBUTTONUP,
     WM_NCMBUTTONDBLCLK},
};

const Button& ButtonOf(UINT key) {
    for (const Button& button : buttons) {
        if (button.key == key) {
            return button;
        }
    }
    return buttons[0];
}

/// What the thread's loop does with a message: PreTranslateMessage first.
LRESULT Deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam, POINT position) {
    MSG queued = {window, message, wParam, lParam, ::GetTickCount(), position};
    return AfxPreTranslateMessage(&queued) ? 0 : ::SendMessage(window, message, wParam, lParam);
}

/// Where the window has a region, it is there only within it. The region runs the way its window does.
bool IsInShape(HWND window, const RECT& rect, POINT screen) {
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    const bool isShaped = ::GetWindowRgn(window, region) != ERROR;
    const bool isMirrored = (::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
    const LONG x = isMirrored ? rect.right - 1 - screen.x : screen.x - rect.left;
    const bool isInside = !isShaped || ::PtInRegion(region, x, screen.y - rect.top);
    ::DeleteObject(region);
    return isInside;
}

bool IsUnder(HWND window, POINT screen) {
    RECT rect;
    return ::IsWindowVisible(window) && ::IsWindowEnabled(window) && ::GetWindowRect(window, &rect) &&
           ::PtInRect(&rect, screen) && IsInShape(window, rect, screen);
}

bool LetsThrough(HWND window, POINT screen) {
    return ::SendMessage(window, WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y)) == HTTRANSPARENT;
}

/// The window itself or its deepest child under the point; null when it lets the pointer through.
HWND DeepestUnder(HWND window, POINT screen) {
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (IsUnder(child, screen)) {
            if (const HWND found = DeepestUnder(child, screen)) {
                return found;
            }
        }
    }
    return LetsThrough(window, screen) ? nullptr : window;
}

} // namespace

HWND Pointer::Target() const {
    if (HWND capture = ::GetCapture()) {
        return capture;
    }
    // Not WindowFromPoint: another test's window may lie above ours on the desktop that all share.
    for (HWND window = ::GetTopWindow(nullptr); window != nullptr; window = ::GetWindow(window, GW_HWNDNEXT)) {
        if (::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId() && IsUnder(window, m_position)) {
            if (const HWND found = DeepestUnder(window, m_position)) {
                return found;
            }
        }
    }
    return nullptr;
}

WPARAM Pointer::ButtonFlags() const { return m_held; }

LRESULT Pointer::Send(UINT clientMessage, UINT nonClientMessage) {
    const HWND target = Target();
    if (target == nullptr) {
        return 0;
    }
    m_last = target;
    const LPARAM screen = MAKELPARAM(m_position.x, m_position.y);
    const LRESULT hit = ::GetCapture() == target ? HTCLIENT : ::SendMessage(target, WM_NCHITTEST, 0, screen);
    if (::GetCapture() != target) {
        ::SendMessage(target, WM_SETCURSOR, reinterpret_cast<WPARAM>(target), MAKELPARAM(hit, clientMessage));
    }
    if (hit != HTCLIENT) {
        return Deliver(target, nonClientMessage, static_cast<WPARAM>(hit), screen, m_position);
    }
    POINT client = m_position;
    ::ScreenToClient(target, &client);
    return Deliver(target, clientMessage, ButtonFlags(), MAKELPARAM(client.x, client.y), m_position);
}

void Pointer::MoveTo(POINT screen) {
    m_position = screen;
    Send(WM_MOUSEMOVE, WM_NCMOUSEMOVE);
}

void Pointer::MoveTo(HWND window, POINT client) {
    ::ClientToScreen(window, &client);
    MoveTo(client);
}

void Pointer::Press(UINT button) {
    const Button& pressed = ButtonOf(button);
    m_held |= pressed.flag;
    Send(pressed.down, pressed.ncDown);
}

void Pointer::Release(UINT button) {
    const Button& released = ButtonOf(button);
    m_held &= ~released.flag;
    Send(released.up, released.ncUp);
}

void Pointer::Click(HWND window, POINT client, UINT button) {
    MoveTo(window, client);
    Press(button);
    Release(button);
}

void Pointer::DoubleClick(HWND window, POINT client, UINT button) {
    Click(window, client, button);
    const HWND target = Target();
    const bool doubles = target != nullptr && (::GetClassLongPtr(target, GCL_STYLE) & CS_DBLCLKS) != 0;
    const Button& pressed = ButtonOf(button);
    m_held |= pressed.flag;
    // The non-client area doubles whatever the class says.
    Send(doubles ? pressed.doubleClick : pressed.down, pressed.ncDoubleClick);
    Release(button);
}

void Pointer::Drag(HWND window, POINT from, POINT to) {
    MoveTo(window, from);
    Press();
    const POINT middle = {(from.x + to.x) / 2, (from.y + to.y) / 2};
    MoveTo(window, middle);
    MoveTo(window, to);
    Release();
}

void Pointer::Wheel(int notches) {
    if (const HWND target = Target()) {
        Deliver(target, WM_MOUSEWHEEL, MAKEWPARAM(ButtonFlags(), notches * WHEEL_DELTA),
                MAKELPARAM(m_position.x, m_position.y), m_position);
    }
}

void Pointer::SendLeave() {
    if (m_last != nullptr && ::IsWindow(m_last)) {
        ::SendMessage(m_last, WM_MOUSELEAVE, 0, 0);
    }
    m_last = nullptr;
}
