#pragma once

#include <windows.h>

/// A mouse made of messages: each operation sends what the system would send to the window under the point, or to the
/// window that has the capture, through the thread's PreTranslateMessage. The real cursor does not move.
///
/// What it cannot show: GetCursorPos and GetKeyState still answer the real mouse; WM_MOUSELEAVE and hover do not come
/// by themselves (SendLeave); activation by a click, drag detection and menus' own modal loops, which read input
/// directly, need SendInput. Points are screen co-ordinates unless an operation takes a window, then that window's
/// client area.
class Pointer {
public:
    /// WM_NCHITTEST, WM_SETCURSOR and WM_MOUSEMOVE (or its non-client form).
    void MoveTo(POINT screen);
    void MoveTo(HWND window, POINT client);
    void Press(UINT button = VK_LBUTTON);
    void Release(UINT button = VK_LBUTTON);
    /// MoveTo, Press, Release.
    void Click(HWND window, POINT client, UINT button = VK_LBUTTON);
    /// Down, up, double-click, up: what the system sends; the class decides whether the third is a double-click.
    void DoubleClick(HWND window, POINT client, UINT button = VK_LBUTTON);
    void Drag(HWND window, POINT from, POINT to);
    /// Notches towards the user are negative. Goes to the window under the point, as on Windows 10.
    void Wheel(int notches);
    /// WM_MOUSELEAVE to the window that the pointer was over last.
    void SendLeave();

    POINT Position() const { return m_position; }
    /// Who would get a message now: the capture, else the deepest enabled window under the point, in whose region the
    /// point lies; null when none of this thread's windows is there.
    HWND Target() const;

private:
    LRESULT Send(UINT clientMessage, UINT nonClientMessage);
    WPARAM ButtonFlags() const;

    POINT m_position = {};
    HWND m_last = nullptr;
    UINT m_held = 0;
};
