// Messages of the keyboard and the mouse as the steps of keyboard_table.
#include <algorithm>
#include <iterator>
#include <utility>

#include "afxribbonbar.h"
#include "core/letters.h"
#include "ribbon/keyboard.h"

using ribbon::AwaitedRelease;
using ribbon::KeyAction;
using ribbon::KeyInput;
using ribbon::KeyPlace;
using ribbon::KeySituation;

namespace {

constexpr LPARAM kAltIsHeld = LPARAM{1} << 29;
constexpr LPARAM kIsRepeated = LPARAM{1} << 30;

struct NamedKey {
    UINT key;
    KeyInput input;
};

constexpr NamedKey kNamedKeys[] = {
    {VK_ESCAPE, KeyInput::Escape},    {VK_UP, KeyInput::UpOrDown},       {VK_DOWN, KeyInput::UpOrDown},
    {VK_LEFT, KeyInput::LeftOrRight}, {VK_RIGHT, KeyInput::LeftOrRight}, {VK_TAB, KeyInput::Tab},
    {VK_HOME, KeyInput::HomeOrEnd},   {VK_END, KeyInput::HomeOrEnd},     {VK_RETURN, KeyInput::Enter},
    {VK_SPACE, KeyInput::Enter},      {VK_F4, KeyInput::DropDown},       {VK_F6, KeyInput::NextPane},
};

bool IsHeld(int key) { return ::GetKeyState(key) < 0; }

// The character that the layout writes with the key alone; 0 for none. MapVirtualKey names Latin letters in every
// layout.
wchar_t WrittenBy(UINT key) {
    constexpr UINT kLeavesDeadKeys = 1 << 2;
    constexpr BYTE kNothingHeld[256] = {};
    wchar_t written[8] = {};
    const UINT scan = ::MapVirtualKeyW(key, MAPVK_VK_TO_VSC);
    const int count = ::ToUnicodeEx(key, scan, kNothingHeld, written, static_cast<int>(std::size(written)),
                                    kLeavesDeadKeys, ::GetKeyboardLayout(0));
    return count == 1 ? written[0] : L'\0';
}

// What a key writes: in the layout that is on, and on the key itself, so that Latin letters work in every layout.
std::wstring CharactersOf(UINT key) {
    if (key >= VK_NUMPAD0 && key <= VK_NUMPAD9) {
        return {static_cast<wchar_t>(L'0' + (key - VK_NUMPAD0))};
    }
    std::wstring characters;
    if (const wchar_t written = fx::UpperCase(WrittenBy(key)); written > L' ') {
        characters += written;
    }
    const bool isPlain = (key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9');
    if (isPlain && characters != std::wstring(1, static_cast<wchar_t>(key))) {
        characters += static_cast<wchar_t>(key);
    }
    return characters;
}

KeyInput InputOf(UINT key) {
    if (key == VK_CONTROL || key == VK_SHIFT) {
        return KeyInput::Modifier;
    }
    if (IsHeld(VK_CONTROL)) {
        return KeyInput::Shortcut;
    }
    const auto* named = std::find_if(std::begin(kNamedKeys), std::end(kNamedKeys),
                                     [key](const NamedKey& candidate) { return candidate.key == key; });
    if (named != std::end(kNamedKeys)) {
        return named->input;
    }
    return CharactersOf(key).empty() ? KeyInput::Other : KeyInput::Letter;
}

} // namespace

// ---- the situation

// Alt and F10 are the ribbon's in a frame without a menu of its own, while nobody holds the mouse.
bool RibbonKeyboard::CanStart() const {
    const CWnd* frame = m_bar.GetTopLevelFrame();
    return m_areTipsEnabled && m_bar.GetSafeHwnd() != nullptr && m_bar.IsWindowVisible() && frame != nullptr &&
           frame->IsWindowEnabled() && ::GetMenu(frame->GetSafeHwnd()) == nullptr && ::GetCapture() == nullptr &&
           (m_bar.GetHideFlags() & AFX_RIBBONBAR_HIDE_ALL) == 0;
}

bool RibbonKeyboard::CanOpen() const {
    const CMFCRibbonBaseElement* focused = m_bar.GetFocused();
    return IsEditing() || (focused != nullptr && focused->HasDropDown());
}

KeyPlace RibbonKeyboard::PlaceOf(HWND window) const {
    if (window != m_bar.GetSafeHwnd() && ::IsChild(m_bar.GetSafeHwnd(), window)) {
        return KeyPlace::Edit;
    }
    return m_levels.GetPopup() != nullptr ? KeyPlace::Popup : KeyPlace::Bar;
}

KeySituation RibbonKeyboard::Situation() const {
    KeySituation situation;
    situation.state = m_state;
    situation.awaited = m_awaited;
    return situation;
}

KeySituation RibbonKeyboard::AltSituation(LPARAM flags) const {
    KeySituation situation = Situation();
    situation.isRepeated = (flags & kIsRepeated) != 0;
    situation.canStart = CanStart();
    situation.canOpen = CanOpen();
    return situation;
}

void RibbonKeyboard::ForgetAltAlone() {
    if (m_awaited == AwaitedRelease::AltAlone) {
        m_awaited = AwaitedRelease::Nothing;
    }
}

// ---- messages

bool RibbonKeyboard::OnSysKeyDown(UINT key, LPARAM flags) {
    if (key == VK_MENU) {
        return OnInput(KeyInput::Alt, key, AltSituation(flags));
    }
    const bool isAltHeld = (flags & kAltIsHeld) != 0;
    if (key == VK_F10 && !isAltHeld && !IsHeld(VK_SHIFT) && !IsHeld(VK_CONTROL)) {
        return OnInput(KeyInput::F10, key, AltSituation(flags));
    }
    if (!isAltHeld) {
        ForgetAltAlone();
        return false;
    }
    return OnInput(key == VK_DOWN ? KeyInput::AltDownArrow : KeyInput::AltOther, key, Situation());
}

bool RibbonKeyboard::OnSysKeyUp(UINT key) {
    switch (key) {
    case VK_MENU:
        return OnInput(KeyInput::AltUp, key, AltSituation(0));
    case VK_F10:
        return OnInput(KeyInput::F10Up, key, Situation());
    default:
        return false;
    }
}

bool RibbonKeyboard::OnKeyDown(const MSG& message) {
    const auto key = static_cast<UINT>(message.wParam);
    if (!IsActive()) {
        ForgetAltAlone();
        return false;
    }
    KeySituation situation = Situation();
    situation.place = PlaceOf(message.hwnd);
    const KeyInput input = InputOf(key);
    if (ribbon::IsOfferedToElement(input, situation) && OfferToFocused(key)) {
        return true;
    }
    return OnInput(input, key, situation);
}

void RibbonKeyboard::OnMouseButton(HWND window) {
    ForgetAltAlone();
    if (!IsActive()) {
        return;
    }
    // A click beside an edit's text, on its drop button for example, is still the edit's.
    const bool isInBar = window == m_bar.GetSafeHwnd() || ::IsChild(m_bar.GetSafeHwnd(), window);
    const CWnd* popup = m_levels.GetPopup();
    if ((IsEditing() && isInBar) || (popup != nullptr && window == popup->GetSafeHwnd())) {
        HideTips();
        return;
    }
    Deactivate(Focus::GiveBack);
}

// ---- steps

bool RibbonKeyboard::OnInput(KeyInput input, UINT key, const KeySituation& situation) {
    const ribbon::KeyStep step = ribbon::StepFor(input, situation);
    m_awaited = step.awaited;
    if (step.hidesTips) {
        HideTips();
    }
    return Do(step.action, key);
}

bool RibbonKeyboard::Do(KeyAction action, UINT key) {
    switch (action) {
    case KeyAction::Pass:
        return false;
    case KeyAction::LeaveAndPass:
        Deactivate(Focus::GiveBack);
        return false;
    case KeyAction::TypeWithAlt:
        return TypeWithAlt(key);
    default:
        Take(action, key);
        return true;
    }
}

// Each comes last: it may have ended the bar.
void RibbonKeyboard::Take(KeyAction action, UINT key) {
    switch (action) {
    case KeyAction::Start:
        return Start();
    case KeyAction::Leave:
        return Deactivate(Focus::GiveBack);
    case KeyAction::StepBack:
        return StepBack();
    case KeyAction::MoveByArrow:
        return MoveByArrow(key);
    case KeyAction::MoveInOrder:
        return MoveInOrder(!IsHeld(VK_SHIFT));
    case KeyAction::MoveToEnd:
        return MoveToEnd(key == VK_END);
    case KeyAction::Execute:
        return ExecuteFocused();
    case KeyAction::DropDown:
        return DropDownFocused();
    case KeyAction::GoToNextPane:
        return GoToNextPane(!IsHeld(VK_SHIFT));
    case KeyAction::Type:
        return TypeKey(key);
    case KeyAction::Beep:
        ::MessageBeep(MB_OK);
        return;
    default:
        return;
    }
}

void RibbonKeyboard::Start() {
    Activate();
    ShowLevel(&m_bar);
}

void RibbonKeyboard::StepBack() {
    if (m_levels.IsTyping()) {
        m_levels.ForgetTyped();
        ShowMatchingTips();
    } else if (m_levels.GetCount() > 1) {
        m_levels.Pop();
        ShowMatchingTips();
    } else {
        Deactivate(Focus::GiveBack);
    }
}

// ---- letters

void RibbonKeyboard::TypeKey(UINT key) {
    for (const wchar_t character : CharactersOf(key)) {
        if (Type(character)) {
            return;
        }
    }
    ::MessageBeep(MB_OK);
}

bool RibbonKeyboard::TypeWithAlt(UINT key) {
    for (const wchar_t character : CharactersOf(key)) {
        // The release of Alt belongs to this letter, and the letter's command may end the bar.
        const AwaitedRelease former = std::exchange(m_awaited, AwaitedRelease::AltTaken);
        if (OnCharacter(character)) {
            return true;
        }
        m_awaited = former;
    }
    return false;
}

bool RibbonKeyboard::OnCharacter(wchar_t character) {
    const wchar_t capital = fx::UpperCase(character);
    if (AreTipsShown()) {
        return Type(capital);
    }
    if (!CanStart()) {
        return false;
    }
    m_bar.EnsureLayout();
    if (!m_levels.LeadsOn(capital)) {
        return false;
    }
    Start();
    return Type(capital);
}

bool RibbonKeyboard::Type(wchar_t capital) {
    const RibbonKeyTipLevels::Typed typed = m_levels.Type(capital);
    if (typed.match == RibbonKeyTipLevels::Match::None) {
        return false;
    }
    if (typed.element != nullptr && !typed.element->IsDisabled()) {
        Execute(*typed.element, typed.isMenu);
        return true;
    }
    if (typed.element != nullptr) {
        ::MessageBeep(MB_OK);
        m_levels.ForgetTyped();
    }
    ShowMatchingTips();
    return true;
}
