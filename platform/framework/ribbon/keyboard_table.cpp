#include "ribbon/keyboard_table.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace ribbon {
namespace {

using enum KeyState;

// ---- events

struct EventRow {
    KeyEvent event;
    std::array<KeyState, 5> after; // from Idle, Announced, Tips, Walk, List
};

constexpr EventRow kEvents[] = {
    {KeyEvent::TipsShown, {Announced, Announced, Tips, Tips, Tips}},
    {KeyEvent::TipsHidden, {Idle, Idle, Walk, Walk, Walk}},
    {KeyEvent::FocusTaken, {Walk, Tips, Tips, Walk, List}},
    {KeyEvent::FocusGiven, {Idle, Announced, Idle, Idle, Idle}},
    {KeyEvent::ListOpened, {Idle, Announced, List, Walk, List}},
};

// ---- keys

using Set = unsigned;

constexpr Set Only(KeyState state) { return 1U << static_cast<unsigned>(state); }
constexpr Set kTips = Only(Tips);
constexpr Set kQuiet = Only(Walk) | Only(List);
constexpr Set kActive = kTips | kQuiet;
constexpr Set kResting = Only(Idle) | Only(Announced);
constexpr Set kAlways = kActive | kResting;

// What must be true for a rule.
constexpr Set kAnyhow = 0;
constexpr Set kRepeats = 1U << 0;
constexpr Set kCanStart = 1U << 1;
constexpr Set kCanOpen = 1U << 2;
constexpr Set kAltAlone = 1U << 3;
constexpr Set kAltTaken = 1U << 4;
constexpr Set kF10Taken = 1U << 5;
constexpr Set kInEdit = 1U << 6;
constexpr Set kInPopup = 1U << 7;
constexpr Set kNotInEdit = 1U << 8;

constexpr std::optional<KeyInput> kAnyKey;

enum class TipsAre { Kept, Hidden };

// The release that is waited for from now on. Kept forgets Alt alone: something else happened.
enum class Await { Kept, AsItWas, Nothing, AltAlone, AltTaken, F10Taken };

struct Rule {
    std::optional<KeyInput> input;
    Set states;
    Set facts;
    KeyAction action;
    TipsAre tips = TipsAre::Kept;
    Await await = Await::Kept;
};

// The first rule that fits counts; without one the key is passed on.
constexpr Rule kRules[] = {
    // Alt acts when it is let go, F10 at once.
    {KeyInput::Alt, kAlways, kRepeats | kAltTaken, KeyAction::Take, TipsAre::Kept, Await::AsItWas},
    {KeyInput::Alt, kAlways, kRepeats, KeyAction::Pass, TipsAre::Kept, Await::AsItWas},
    {KeyInput::Alt, kQuiet, kCanOpen, KeyAction::Pass, TipsAre::Kept, Await::AltAlone},
    {KeyInput::Alt, kActive, kAnyhow, KeyAction::Leave, TipsAre::Kept, Await::AltTaken},
    {KeyInput::Alt, kResting, kCanStart, KeyAction::Pass, TipsAre::Kept, Await::AltAlone},
    {KeyInput::Alt, kResting, kAnyhow, KeyAction::Pass, TipsAre::Kept, Await::Nothing},
    {KeyInput::F10, kAlways, kRepeats | kF10Taken, KeyAction::Take},
    {KeyInput::F10, kAlways, kRepeats, KeyAction::Pass},
    {KeyInput::F10, kActive, kAnyhow, KeyAction::Leave, TipsAre::Kept, Await::F10Taken},
    {KeyInput::F10, kResting, kCanStart, KeyAction::Start, TipsAre::Kept, Await::F10Taken},
    {KeyInput::F10, kResting, kAnyhow, KeyAction::Pass, TipsAre::Kept, Await::Nothing},
    {KeyInput::AltUp, kAlways, kAltTaken, KeyAction::Take, TipsAre::Kept, Await::Nothing},
    {KeyInput::AltUp, kActive, kAltAlone, KeyAction::Leave, TipsAre::Kept, Await::Nothing},
    {KeyInput::AltUp, kResting, kAltAlone | kCanStart, KeyAction::Start, TipsAre::Kept, Await::Nothing},
    {KeyInput::AltUp, kAlways, kAnyhow, KeyAction::Pass},
    {KeyInput::F10Up, kAlways, kF10Taken, KeyAction::Take, TipsAre::Kept, Await::Nothing},
    {KeyInput::F10Up, kAlways, kAnyhow, KeyAction::Pass, TipsAre::Kept, Await::AsItWas},
    {KeyInput::AltDownArrow, kActive, kAnyhow, KeyAction::DropDown, TipsAre::Kept, Await::AltTaken},
    {KeyInput::AltDownArrow, kResting, kAnyhow, KeyAction::Pass},
    {KeyInput::AltOther, kAlways, kAnyhow, KeyAction::TypeWithAlt},

    // The keys of a ribbon that has none of them.
    {kAnyKey, kResting, kAnyhow, KeyAction::Pass},
    {KeyInput::Modifier, kActive, kAnyhow, KeyAction::Pass},
    // A shortcut means the document, unless it means the text in an edit.
    {KeyInput::Shortcut, kActive, kNotInEdit, KeyAction::LeaveAndPass},

    // An edit keeps its letters and what moves its caret; Enter and Escape it has taken before.
    {KeyInput::UpOrDown, kActive, kInEdit, KeyAction::MoveByArrow},
    {KeyInput::Tab, kActive, kInEdit, KeyAction::MoveInOrder},
    {KeyInput::NextPane, kActive, kInEdit, KeyAction::GoToNextPane},
    {kAnyKey, kActive, kInEdit, KeyAction::Pass},

    // A pop-up has keys of its own. Arrows walk; what walks shows no tips.
    {KeyInput::Letter, kTips, kInPopup, KeyAction::Type},
    {KeyInput::Escape, kActive, kInPopup, KeyAction::Pass},
    {kAnyKey, kActive, kInPopup, KeyAction::Pass, TipsAre::Hidden},

    // The bar itself.
    {KeyInput::Escape, kTips, kAnyhow, KeyAction::StepBack},
    {KeyInput::Escape, kQuiet, kAnyhow, KeyAction::Leave},
    {KeyInput::UpOrDown, kActive, kAnyhow, KeyAction::MoveByArrow, TipsAre::Hidden},
    {KeyInput::LeftOrRight, kActive, kAnyhow, KeyAction::MoveByArrow, TipsAre::Hidden},
    {KeyInput::Tab, kActive, kAnyhow, KeyAction::MoveInOrder, TipsAre::Hidden},
    {KeyInput::HomeOrEnd, kActive, kAnyhow, KeyAction::MoveToEnd, TipsAre::Hidden},
    {KeyInput::Enter, kActive, kAnyhow, KeyAction::Execute, TipsAre::Hidden},
    {KeyInput::DropDown, kActive, kAnyhow, KeyAction::DropDown},
    {KeyInput::NextPane, kActive, kAnyhow, KeyAction::GoToNextPane},
    {KeyInput::Letter, kTips, kAnyhow, KeyAction::Type},
    {KeyInput::Letter, kQuiet, kAnyhow, KeyAction::Beep},
};

Set FactsOf(const KeySituation& situation) {
    const auto when = [](bool isTrue, Set fact) { return isTrue ? fact : kAnyhow; };
    return when(situation.isRepeated, kRepeats) | when(situation.canStart, kCanStart) |
           when(situation.canOpen, kCanOpen) | when(situation.awaited == AwaitedRelease::AltAlone, kAltAlone) |
           when(situation.awaited == AwaitedRelease::AltTaken, kAltTaken) |
           when(situation.awaited == AwaitedRelease::F10Taken, kF10Taken) |
           when(situation.place == KeyPlace::Edit, kInEdit) | when(situation.place == KeyPlace::Popup, kInPopup) |
           when(situation.place != KeyPlace::Edit, kNotInEdit);
}

AwaitedRelease Awaited(Await await, AwaitedRelease former) {
    switch (await) {
    case Await::AsItWas:
        return former;
    case Await::Nothing:
        return AwaitedRelease::Nothing;
    case Await::AltAlone:
        return AwaitedRelease::AltAlone;
    case Await::AltTaken:
        return AwaitedRelease::AltTaken;
    case Await::F10Taken:
        return AwaitedRelease::F10Taken;
    case Await::Kept:
        break;
    }
    return former == AwaitedRelease::AltAlone ? AwaitedRelease::Nothing : former;
}

} // namespace

KeyState After(KeyState state, KeyEvent event) {
    const auto* row = std::find_if(std::begin(kEvents), std::end(kEvents),
                                   [event](const EventRow& candidate) { return candidate.event == event; });
    return row->after[static_cast<std::size_t>(state)];
}

KeyStep StepFor(KeyInput input, const KeySituation& situation) {
    const Set facts = FactsOf(situation);
    const auto* rule = std::find_if(std::begin(kRules), std::end(kRules), [&](const Rule& candidate) {
        return (!candidate.input || *candidate.input == input) && (candidate.states & Only(situation.state)) != 0 &&
               (candidate.facts & ~facts) == 0;
    });
    if (rule == std::end(kRules)) {
        return {KeyAction::Pass, false, Awaited(Await::Kept, situation.awaited)};
    }
    return {rule->action, rule->tips == TipsAre::Hidden, Awaited(rule->await, situation.awaited)};
}

bool IsOfferedToElement(KeyInput input, const KeySituation& situation) {
    const bool isForElements = input >= KeyInput::Escape;
    return isForElements && situation.place == KeyPlace::Bar && (kQuiet & Only(situation.state)) != 0;
}

} // namespace ribbon
