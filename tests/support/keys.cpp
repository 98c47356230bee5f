#include "tests/support/keys.h"

#include "afxwin.h"

namespace {

void SetKeyState(UINT key, bool isDown) {
    BYTE state[256];
    ::GetKeyboardState(state);
    state[key] = isDown ? 0x80 : 0;
    ::SetKeyboardState(state);
}

LPARAM KeyData(UINT key, bool isUp, bool isAltHeld) {
    constexpr LPARAM AltHeld = 1 << 29;
    constexpr LPARAM WasDown = 1 << 30;
    constexpr LPARAM GoesUp = LPARAM{1} << 31;
    LPARAM data = 1 | (static_cast<LPARAM>(::MapVirtualKey(key, MAPVK_VK_TO_VSC)) << 16);
    data |= isAltHeld ? AltHeld : 0;
    data |= isUp ? WasDown | GoesUp : 0;
    return data;
}

} // namespace

Keys::~Keys() {
    for (UINT& key : m_heldKeys) {
        if (key != 0) {
            SetKeyState(key, false);
        }
    }
}

HWND Keys::Target() const { return m_window != nullptr ? m_window : ::GetFocus(); }

void Keys::Deliver(UINT message, UINT key, LPARAM lParam) {
    MSG queued = {Target(), message, key, lParam, ::GetTickCount(), {}};
    if (queued.hwnd != nullptr && !AfxPreTranslateMessage(&queued)) {
        ::DispatchMessage(&queued);
    }
}

void Keys::Press(UINT key) {
    Down(key);
    Up(key);
}

void Keys::Down(UINT key) {
    const bool isAltHeld = ::GetKeyState(VK_MENU) < 0 && ::GetKeyState(VK_CONTROL) >= 0;
    Deliver(isAltHeld || key == VK_MENU || key == VK_F10 ? WM_SYSKEYDOWN : WM_KEYDOWN, key,
            KeyData(key, false, isAltHeld));
}

void Keys::Up(UINT key) {
    const bool isAltHeld = ::GetKeyState(VK_MENU) < 0 && ::GetKeyState(VK_CONTROL) >= 0;
    Deliver(isAltHeld || key == VK_MENU || key == VK_F10 ? WM_SYSKEYUP : WM_KEYUP, key, KeyData(key, true, isAltHeld));
}

void Keys::Type(std::wstring_view text) {
    for (const wchar_t character : text) {
        Deliver(WM_CHAR, character, 1);
    }
}

void Keys::Hold(UINT key) {
    SetKeyState(key, true);
    for (UINT& held : m_heldKeys) {
        if (held == 0 || held == key) {
            held = key;
            return;
        }
    }
}

void Keys::Let(UINT key) {
    SetKeyState(key, false);
    for (UINT& held : m_heldKeys) {
        held = held == key ? 0 : held;
    }
}
