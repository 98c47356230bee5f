#pragma once

#include <windows.h>

#include <string_view>

/// A keyboard made of messages, given to the thread's PreTranslateMessage and then dispatched, as the loop would do.
///
/// What it cannot show: GetKeyState and GetAsyncKeyState know nothing of the keys held here, except those that SetHeld
/// puts into the thread's keyboard state; input methods, dead keys, hot keys and the keyboard layout play no part. Goes
/// to the window with the focus, or to the one that was named.
class Keys {
public:
    explicit Keys(HWND window = nullptr) : m_window(window) {}
    ~Keys();
    Keys(const Keys&) = delete;
    Keys& operator=(const Keys&) = delete;

    /// WM_KEYDOWN and WM_KEYUP; WM_SYSKEYDOWN and so on while VK_MENU is held.
    void Press(UINT key);
    void Down(UINT key);
    void Up(UINT key);
    /// One WM_CHAR for each character.
    void Type(std::wstring_view text);
    /// Holds shift, control or alt in the thread's keyboard state, which accelerator tables read. Given back at the
    /// end.
    void Hold(UINT key);
    void Let(UINT key);

private:
    void Deliver(UINT message, UINT key, LPARAM lParam);
    HWND Target() const;

    HWND m_window;
    UINT m_heldKeys[3] = {};
};
