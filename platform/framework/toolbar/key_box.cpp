#include "toolbar/key_box.h"

#include "afxacceleratorkey.h"
#include "afxkeyboardmanager.h"

#include <algorithm>
#include <iterator>

namespace toolbar {

namespace {

bool IsHeld(int key) { return ::GetKeyState(key) < 0; }

bool IsModifier(WPARAM key) {
    constexpr WPARAM kModifiers[] = {VK_SHIFT, VK_CONTROL, VK_MENU, VK_LWIN, VK_RWIN, VK_CAPITAL, VK_NUMLOCK};
    return std::ranges::find(kModifiers, key) != std::end(kModifiers);
}

/// Of the dialog: they lead on, and end it.
bool IsDialogKey(WPARAM key) {
    const bool isPlain = !IsHeld(VK_CONTROL) && !IsHeld(VK_MENU);
    return isPlain && (key == VK_TAB || ((key == VK_ESCAPE || key == VK_RETURN) && !IsHeld(VK_SHIFT)));
}

} // namespace

bool KeyBox::HasKey() const {
    const bool isText = (m_key.fVirt & (FCONTROL | FALT)) == 0 && CKeyboardManager::IsKeyPrintable(m_key.key);
    return m_key.key != 0 && !isText;
}

void KeyBox::Clear() {
    m_key = {};
    SetWindowText(L"");
}

void KeyBox::Take(WORD key) {
    m_key.fVirt = static_cast<BYTE>(FVIRTKEY | (IsHeld(VK_CONTROL) ? FCONTROL : 0) | (IsHeld(VK_MENU) ? FALT : 0) |
                                    (IsHeld(VK_SHIFT) ? FSHIFT : 0));
    m_key.key = key;
    CString name;
    CMFCAcceleratorKey(&m_key).Format(name);
    SetWindowText(name); // the page hears EN_CHANGE
    SetSel(name.GetLength(), name.GetLength());
}

BOOL KeyBox::PreTranslateMessage(MSG* pMsg) {
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    if (!isKey || pMsg->hwnd != m_hWnd || IsDialogKey(pMsg->wParam)) {
        return CEdit::PreTranslateMessage(pMsg);
    }
    const bool isDown = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    if (isDown && !IsModifier(pMsg->wParam)) {
        Take(static_cast<WORD>(pMsg->wParam));
    }
    return TRUE; // nothing is typed, and no accelerator runs
}

} // namespace toolbar
