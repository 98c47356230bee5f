#pragma once

#include <cstdint>

/// What each key does in each state of a ribbon bar's keyboard, as tables: no window, no class of the bar.
/// RibbonKeyboard finds out what the situation is, asks here, and carries the answer out.
namespace ribbon {

enum class KeyState : std::uint8_t {
    Idle,      // the keys are the document's
    Announced, // tips are shown for a host that asked for them; the focus is elsewhere
    Tips,      // the ribbon has the focus and shows tips: letters lead on
    Walk,      // the ribbon has the focus without tips: arrows move it
    List,      // letters have opened a list: the tips wait for its end
};

constexpr bool AreTipsShown(KeyState state) { return state == KeyState::Announced || state == KeyState::Tips; }
constexpr bool IsActive(KeyState state) { return state >= KeyState::Tips; }

/// What happens to the keyboard beside keys.
enum class KeyEvent : std::uint8_t { TipsShown, TipsHidden, FocusTaken, FocusGiven, ListOpened };

KeyState After(KeyState state, KeyEvent event);

/// A key, by what it means.
enum class KeyInput : std::uint8_t {
    Alt,
    AltUp,
    F10,
    F10Up,
    AltDownArrow,
    AltOther,
    Modifier, // Shift or Control alone
    Shortcut, // with Control
    Escape,
    UpOrDown,
    LeftOrRight,
    Tab,
    HomeOrEnd,
    Enter, // or Space
    DropDown,
    NextPane,
    Letter, // what writes something
    Other,
};

/// Which release is waited for, and what it will do.
enum class AwaitedRelease : std::uint8_t {
    Nothing,
    AltAlone, // Alt went down and nothing happened since: its release starts or ends the keyboard
    AltTaken, // the press had its effect: the release must not open the window's menu
    F10Taken,
};

/// Whose window the key goes to.
enum class KeyPlace : std::uint8_t { Bar, Edit, Popup };

struct KeySituation {
    KeyState state = KeyState::Idle;
    KeyPlace place = KeyPlace::Bar;
    AwaitedRelease awaited = AwaitedRelease::Nothing;
    bool isRepeated = false; // the key is held
    bool canStart = false;   // the ribbon may take Alt and F10
    bool canOpen = false;    // Alt may be the first half of Alt and an arrow, which opens what drops down
};

enum class KeyAction : std::uint8_t {
    Pass, // the key is not the ribbon's
    Take, // it is, and does nothing
    Start,
    Leave,
    LeaveAndPass,
    StepBack, // what was typed, then a level, then all
    MoveByArrow,
    MoveInOrder,
    MoveToEnd,
    Execute,
    DropDown,
    GoToNextPane,
    Type,
    TypeWithAlt,
    Beep,
};

struct KeyStep {
    KeyAction action = KeyAction::Pass;
    bool hidesTips = false; // before the action
    AwaitedRelease awaited = AwaitedRelease::Nothing;
    bool operator==(const KeyStep&) const = default;
};

KeyStep StepFor(KeyInput input, const KeySituation& situation);

/// The element with the focus may use the key before the step is made.
bool IsOfferedToElement(KeyInput input, const KeySituation& situation);

} // namespace ribbon
