#include "ribbon/keyboard_table.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace ribbon;

namespace ribbon {

std::ostream& operator<<(std::ostream& out, const KeyStep& step) {
    return out << "action " << static_cast<int>(step.action) << (step.hidesTips ? ", tips hidden" : "") << ", awaited "
               << static_cast<int>(step.awaited);
}

} // namespace ribbon

namespace {

constexpr KeyState kStates[] = {KeyState::Idle, KeyState::Announced, KeyState::Tips, KeyState::Walk, KeyState::List};
constexpr KeyState kActiveStates[] = {KeyState::Tips, KeyState::Walk, KeyState::List};
constexpr KeyState kRestingStates[] = {KeyState::Idle, KeyState::Announced};
constexpr KeyPlace kPlaces[] = {KeyPlace::Bar, KeyPlace::Edit, KeyPlace::Popup};
constexpr KeyInput kPlainInputs[] = {KeyInput::Modifier,    KeyInput::Shortcut, KeyInput::Escape,    KeyInput::UpOrDown,
                                     KeyInput::LeftOrRight, KeyInput::Tab,      KeyInput::HomeOrEnd, KeyInput::Enter,
                                     KeyInput::DropDown,    KeyInput::NextPane, KeyInput::Letter,    KeyInput::Other};

KeySituation In(KeyState state, KeyPlace place = KeyPlace::Bar) {
    KeySituation situation;
    situation.state = state;
    situation.place = place;
    return situation;
}

KeySituation Awaiting(KeyState state, AwaitedRelease awaited, bool canStart = true) {
    KeySituation situation = In(state);
    situation.awaited = awaited;
    situation.canStart = canStart;
    return situation;
}

KeyAction ActionFor(KeyInput input, const KeySituation& situation) { return StepFor(input, situation).action; }

// ---- events

struct Event {
    KeyEvent event;
    KeyState after[5];
};

TEST(KeyboardStates, FollowWhatHappens) {
    using enum KeyState;
    constexpr Event kEvents[] = {
        {KeyEvent::TipsShown, {Announced, Announced, Tips, Tips, Tips}},
        {KeyEvent::TipsHidden, {Idle, Idle, Walk, Walk, Walk}},
        {KeyEvent::FocusTaken, {Walk, Tips, Tips, Walk, List}},
        {KeyEvent::FocusGiven, {Idle, Announced, Idle, Idle, Idle}},
        {KeyEvent::ListOpened, {Idle, Announced, List, Walk, List}},
    };
    for (const Event& event : kEvents) {
        for (std::size_t from = 0; from < std::size(kStates); ++from) {
            EXPECT_EQ(After(kStates[from], event.event), event.after[from])
                << "event " << static_cast<int>(event.event) << " from " << from;
        }
    }
}

TEST(KeyboardStates, TheFocusIsTakenAndGivenByItsEventsAlone) {
    for (const KeyState state : kStates) {
        EXPECT_TRUE(IsActive(After(state, KeyEvent::FocusTaken)));
        EXPECT_FALSE(IsActive(After(state, KeyEvent::FocusGiven)));
        for (const KeyEvent event : {KeyEvent::TipsShown, KeyEvent::TipsHidden, KeyEvent::ListOpened}) {
            EXPECT_EQ(IsActive(After(state, event)), IsActive(state));
        }
    }
}

TEST(KeyboardStates, TipsAreShownAfterTheyWereShownAndHiddenAfterTheyWereHidden) {
    for (const KeyState state : kStates) {
        EXPECT_TRUE(AreTipsShown(After(state, KeyEvent::TipsShown)));
        EXPECT_FALSE(AreTipsShown(After(state, KeyEvent::TipsHidden)));
    }
}

// ---- Alt and F10

TEST(AltKey, StartsWhenItIsLetGoAlone) {
    for (const KeyState state : kRestingStates) {
        EXPECT_EQ(StepFor(KeyInput::Alt, Awaiting(state, AwaitedRelease::Nothing)),
                  (KeyStep{KeyAction::Pass, false, AwaitedRelease::AltAlone}));
        EXPECT_EQ(StepFor(KeyInput::AltUp, Awaiting(state, AwaitedRelease::AltAlone)),
                  (KeyStep{KeyAction::Start, false, AwaitedRelease::Nothing}));
    }
}

TEST(AltKey, DoesNotStartWhereTheRibbonMayNot) {
    for (const KeyState state : kRestingStates) {
        EXPECT_EQ(StepFor(KeyInput::Alt, Awaiting(state, AwaitedRelease::Nothing, false)),
                  (KeyStep{KeyAction::Pass, false, AwaitedRelease::Nothing}));
        EXPECT_EQ(StepFor(KeyInput::AltUp, Awaiting(state, AwaitedRelease::AltAlone, false)),
                  (KeyStep{KeyAction::Pass, false, AwaitedRelease::Nothing}));
        EXPECT_EQ(ActionFor(KeyInput::F10, Awaiting(state, AwaitedRelease::Nothing, false)), KeyAction::Pass);
    }
}

TEST(AltKey, LeavesAtOnceAndItsReleaseIsTaken) {
    for (const KeyState state : kActiveStates) {
        EXPECT_EQ(StepFor(KeyInput::Alt, Awaiting(state, AwaitedRelease::Nothing)),
                  (KeyStep{KeyAction::Leave, false, AwaitedRelease::AltTaken}));
    }
    for (const KeyState state : kStates) {
        EXPECT_EQ(StepFor(KeyInput::AltUp, Awaiting(state, AwaitedRelease::AltTaken)),
                  (KeyStep{KeyAction::Take, false, AwaitedRelease::Nothing}));
    }
}

TEST(AltKey, WaitsForAnArrowOnWhatDropsDownAndLeavesWithoutOne) {
    for (const KeyState state : {KeyState::Walk, KeyState::List}) {
        KeySituation situation = In(state);
        situation.canOpen = true;
        EXPECT_EQ(StepFor(KeyInput::Alt, situation), (KeyStep{KeyAction::Pass, false, AwaitedRelease::AltAlone}));
        situation.awaited = AwaitedRelease::AltAlone;
        EXPECT_EQ(StepFor(KeyInput::AltDownArrow, situation),
                  (KeyStep{KeyAction::DropDown, false, AwaitedRelease::AltTaken}));
        EXPECT_EQ(ActionFor(KeyInput::AltUp, situation), KeyAction::Leave);
    }
    KeySituation tips = In(KeyState::Tips);
    tips.canOpen = true;
    EXPECT_EQ(ActionFor(KeyInput::Alt, tips), KeyAction::Leave) << "with tips nothing can be meant but the end";
}

TEST(AltKey, HeldRepeatsWhatItsPressWas) {
    for (const KeyState state : kStates) {
        for (const AwaitedRelease awaited :
             {AwaitedRelease::Nothing, AwaitedRelease::AltAlone, AwaitedRelease::AltTaken}) {
            KeySituation situation = Awaiting(state, awaited);
            situation.isRepeated = true;
            const KeyAction expected = awaited == AwaitedRelease::AltTaken ? KeyAction::Take : KeyAction::Pass;
            EXPECT_EQ(StepFor(KeyInput::Alt, situation), (KeyStep{expected, false, awaited}));
        }
    }
}

TEST(AltKey, IsNotAloneOnceAnotherKeyWentDown) {
    for (const KeyState state : kStates) {
        for (const KeyPlace place : kPlaces) {
            for (const KeyInput input : kPlainInputs) {
                KeySituation situation = In(state, place);
                situation.awaited = AwaitedRelease::AltAlone;
                EXPECT_EQ(StepFor(input, situation).awaited, AwaitedRelease::Nothing) << static_cast<int>(input);
                situation.awaited = AwaitedRelease::AltTaken;
                EXPECT_EQ(StepFor(input, situation).awaited, AwaitedRelease::AltTaken) << static_cast<int>(input);
            }
        }
        EXPECT_EQ(StepFor(KeyInput::AltOther, Awaiting(state, AwaitedRelease::AltAlone)),
                  (KeyStep{KeyAction::TypeWithAlt, false, AwaitedRelease::Nothing}));
    }
}

TEST(F10Key, StartsAndLeavesAtOnce) {
    for (const KeyState state : kRestingStates) {
        EXPECT_EQ(StepFor(KeyInput::F10, Awaiting(state, AwaitedRelease::AltAlone)),
                  (KeyStep{KeyAction::Start, false, AwaitedRelease::F10Taken}));
    }
    for (const KeyState state : kActiveStates) {
        EXPECT_EQ(StepFor(KeyInput::F10, Awaiting(state, AwaitedRelease::Nothing, false)),
                  (KeyStep{KeyAction::Leave, false, AwaitedRelease::F10Taken}));
    }
    EXPECT_EQ(StepFor(KeyInput::F10Up, Awaiting(KeyState::Tips, AwaitedRelease::F10Taken)),
              (KeyStep{KeyAction::Take, false, AwaitedRelease::Nothing}));
    EXPECT_EQ(StepFor(KeyInput::F10Up, Awaiting(KeyState::Idle, AwaitedRelease::AltAlone)),
              (KeyStep{KeyAction::Pass, false, AwaitedRelease::AltAlone}));
}

// ---- plain keys

TEST(PlainKeys, AreTheDocumentsWhileTheRibbonHasNotTheFocus) {
    for (const KeyState state : kRestingStates) {
        for (const KeyPlace place : kPlaces) {
            for (const KeyInput input : kPlainInputs) {
                EXPECT_EQ(StepFor(input, In(state, place)), KeyStep()) << static_cast<int>(input);
            }
        }
    }
}

struct Key {
    KeyInput input;
    KeyAction tips; // in state Tips
    KeyAction walk; // in the states Walk and List
    bool hidesTips;
};

void ExpectIn(KeyPlace place, const Key& key) {
    for (const KeyState state : kActiveStates) {
        const KeyAction expected = state == KeyState::Tips ? key.tips : key.walk;
        EXPECT_EQ(StepFor(key.input, In(state, place)), (KeyStep{expected, key.hidesTips, AwaitedRelease::Nothing}))
            << "key " << static_cast<int>(key.input) << " in state " << static_cast<int>(state);
    }
}

TEST(PlainKeys, InTheBarMoveOpenAndType) {
    using enum KeyAction;
    constexpr Key kKeys[] = {
        {KeyInput::Modifier, Pass, Pass, false},
        {KeyInput::Shortcut, LeaveAndPass, LeaveAndPass, false},
        {KeyInput::Escape, StepBack, Leave, false},
        {KeyInput::UpOrDown, MoveByArrow, MoveByArrow, true},
        {KeyInput::LeftOrRight, MoveByArrow, MoveByArrow, true},
        {KeyInput::Tab, MoveInOrder, MoveInOrder, true},
        {KeyInput::HomeOrEnd, MoveToEnd, MoveToEnd, true},
        {KeyInput::Enter, Execute, Execute, true},
        {KeyInput::DropDown, DropDown, DropDown, false},
        {KeyInput::NextPane, GoToNextPane, GoToNextPane, false},
        {KeyInput::Letter, Type, Beep, false},
        {KeyInput::Other, Pass, Pass, false},
    };
    static_assert(std::size(kKeys) == std::size(kPlainInputs));
    for (const Key& key : kKeys) {
        ExpectIn(KeyPlace::Bar, key);
    }
}

TEST(PlainKeys, InAnEditAreItsOwnButForThoseThatLeadOn) {
    using enum KeyAction;
    for (const KeyInput input : kPlainInputs) {
        const KeyAction expected = input == KeyInput::UpOrDown   ? MoveByArrow
                                   : input == KeyInput::Tab      ? MoveInOrder
                                   : input == KeyInput::NextPane ? GoToNextPane
                                                                 : Pass;
        ExpectIn(KeyPlace::Edit, {input, expected, expected, false});
    }
}

TEST(PlainKeys, InAPopUpAreItsOwnButForTheLettersOfTips) {
    using enum KeyAction;
    for (const KeyInput input : kPlainInputs) {
        switch (input) {
        case KeyInput::Modifier:
        case KeyInput::Escape:
            ExpectIn(KeyPlace::Popup, {input, Pass, Pass, false});
            break;
        case KeyInput::Shortcut:
            ExpectIn(KeyPlace::Popup, {input, LeaveAndPass, LeaveAndPass, false});
            break;
        case KeyInput::Letter:
            EXPECT_EQ(StepFor(input, In(KeyState::Tips, KeyPlace::Popup)), KeyStep{Type});
            EXPECT_EQ(StepFor(input, In(KeyState::Walk, KeyPlace::Popup)), (KeyStep{Pass, true}));
            break;
        default:
            ExpectIn(KeyPlace::Popup, {input, Pass, Pass, true});
            break;
        }
    }
}

TEST(PlainKeys, AreOfferedToTheElementWithTheFocusWhileArrowsMoveIt) {
    for (const KeyInput input : kPlainInputs) {
        const bool isForElements = input != KeyInput::Modifier && input != KeyInput::Shortcut;
        EXPECT_EQ(IsOfferedToElement(input, In(KeyState::Walk)), isForElements) << static_cast<int>(input);
        EXPECT_EQ(IsOfferedToElement(input, In(KeyState::List)), isForElements) << static_cast<int>(input);
        for (const KeyState state : {KeyState::Idle, KeyState::Announced, KeyState::Tips}) {
            EXPECT_FALSE(IsOfferedToElement(input, In(state)));
        }
        EXPECT_FALSE(IsOfferedToElement(input, In(KeyState::Walk, KeyPlace::Edit)));
        EXPECT_FALSE(IsOfferedToElement(input, In(KeyState::Walk, KeyPlace::Popup)));
    }
}

} // namespace
