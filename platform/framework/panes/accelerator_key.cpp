#include "afxacceleratorkey.h"

#include "core/letters.h"
#include "panes/frame_keys_list.h"

#include <algorithm>
#include <iterator>

namespace {

struct KeyName {
    WORD key;
    LPCTSTR name;
};

/// Keys whose names the keyboard layout does not tell, or tells too long for a menu.
constexpr KeyName namedKeys[] = {
    {VK_BACK, L"Backspace"}, {VK_TAB, L"Tab"},        {VK_RETURN, L"Enter"},   {VK_ESCAPE, L"Esc"},
    {VK_SPACE, L"Space"},    {VK_PRIOR, L"Page Up"},  {VK_NEXT, L"Page Down"}, {VK_END, L"End"},
    {VK_HOME, L"Home"},      {VK_LEFT, L"Left"},      {VK_UP, L"Up"},          {VK_RIGHT, L"Right"},
    {VK_DOWN, L"Down"},      {VK_INSERT, L"Ins"},     {VK_DELETE, L"Del"},     {VK_ADD, L"Num +"},
    {VK_SUBTRACT, L"Num -"}, {VK_MULTIPLY, L"Num *"}, {VK_DIVIDE, L"Num /"},   {VK_PAUSE, L"Pause"},
};

CString NameOfKey(WORD key) {
    const auto* named = std::find_if(std::begin(namedKeys), std::end(namedKeys),
                                     [key](const KeyName& candidate) { return candidate.key == key; });
    if (named != std::end(namedKeys)) {
        return named->name;
    }
    CString name;
    if (key >= VK_F1 && key <= VK_F24) {
        name.Format(L"F%d", key - VK_F1 + 1);
        return name;
    }
    if (const UINT character = ::MapVirtualKeyW(key, MAPVK_VK_TO_CHAR) & 0x7FFF) {
        name = fx::UpperCase(static_cast<wchar_t>(character));
    }
    return name;
}

CString TextOf(const ACCEL& entry) {
    CString text;
    if (entry.fVirt & FCONTROL) {
        text += L"Ctrl+";
    }
    if (entry.fVirt & FALT) {
        text += L"Alt+";
    }
    if (entry.fVirt & FSHIFT) {
        text += L"Shift+";
    }
    if (entry.fVirt & FVIRTKEY) {
        return text + NameOfKey(entry.key);
    }
    // A table for characters names control characters by their number.
    if (entry.key < L' ') {
        return text + L"Ctrl+" + static_cast<wchar_t>(entry.key + L'@');
    }
    return text + static_cast<wchar_t>(entry.key);
}

} // namespace

void CMFCAcceleratorKey::SetAccelerator(LPACCEL lpAccel) {
    m_hasKey = lpAccel != nullptr;
    m_key = m_hasKey ? *lpAccel : ACCEL{};
}

void CMFCAcceleratorKey::Format(CString& str) const { str = m_hasKey ? TextOf(m_key) : CString(); }

std::vector<ACCEL> panes::KeysOf(const CFrameWnd* frame) {
    const HACCEL table = frame != nullptr ? frame->m_hAccelTable : nullptr;
    const int count = table != nullptr ? ::CopyAcceleratorTableW(table, nullptr, 0) : 0;
    std::vector<ACCEL> keys(static_cast<std::size_t>(count));
    if (count > 0) {
        ::CopyAcceleratorTableW(table, keys.data(), count);
    }
    return keys;
}

bool panes::IsSameKey(const ACCEL& left, const ACCEL& right) {
    const auto meaning = [](const ACCEL& key) { return key.fVirt & (FVIRTKEY | FSHIFT | FCONTROL | FALT); };
    return left.key == right.key && meaning(left) == meaning(right);
}
