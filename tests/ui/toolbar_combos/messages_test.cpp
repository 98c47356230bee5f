// What the combos of a toolbar tell the frame, docked and floating, by mouse and keys.
#include "tests/ui/toolbar_combos/told_bar.h"

namespace {

template <class Button>
Heard OnBar(BarPlace place, ComboGesture gesture) {
    ToldBar made;
    made.Make<Button>(place);
    if (testing::Test::HasFatalFailure()) {
        return {L"no bar"};
    }
    gesture(made.Combo().m_hWnd);
    return made.told.heard;
}

/// The same combo in a window of its own.
template <class Combo>
Heard InWindow(ComboGesture gesture) {
    ComboHost host;
    Combo combo;
    host.Place(combo);
    AddColours(combo);
    combo.SetCurSel(1);
    host.heard.clear();
    gesture(combo.m_hWnd);
    return host.heard;
}

class ToolbarMessages : public testing::TestWithParam<BarPlace> {};

struct Case {
    ComboGesture gesture;
    Heard told;
};

template <class Button>
void ExpectTold(BarPlace place, const std::vector<Case>& cases) {
    int number = 0;
    for (const Case& one : cases) {
        EXPECT_EQ(OnBar<Button>(place, one.gesture), one.told) << "gesture " << number;
        ++number;
    }
}

/// What the user does on the marks is told as by a combo that lies in no toolbar.
template <class Button, class Combo>
void ExpectToldAsInAWindow(BarPlace place, std::initializer_list<ComboGesture> gestures) {
    int number = 0;
    for (const ComboGesture gesture : gestures) {
        const Heard inWindow = InWindow<Combo>(gesture);
        EXPECT_EQ(OnBar<Button>(place, gesture), inWindow) << "gesture " << number;
        EXPECT_FALSE(inWindow.empty()) << "gesture " << number;
        ++number;
    }
}

/// A choice is the command once, besides what a combo in a window tells.
template <class Button, class Combo>
void ExpectChoices(BarPlace place, std::initializer_list<ComboGesture> gestures) {
    int number = 0;
    for (const ComboGesture gesture : gestures) {
        Heard onBar = OnBar<Button>(place, gesture);
        EXPECT_EQ(std::erase(onBar, Command(0)), 1u) << "gesture " << number;
        EXPECT_EQ(onBar, InWindow<Combo>(gesture)) << "gesture " << number;
        ++number;
    }
}

TEST_P(ToolbarMessages, AClosedCheckCombosMarkTellsCheckAndCommand) {
    const Heard once{L"check green 1", Command(0)};
    ExpectTold<CMFCCheckCombo>(GetParam(),
                               {{&ClickFirstMark, once},
                                {&DoubleClickFirstMark, {L"check green 1", Command(0), L"check green 0", Command(0)}},
                                {&PressSpace, once},
                                {&PressBarAtFirstMark, once}});
}

TEST_P(ToolbarMessages, ACommandWhoseIdNoMessageCanCarryIsNotToldAsAnother) {
    for (const ComboGesture gesture : {&ClickFirstMark, &PressSpace, &OpenAndChooseByMouse, &OpenAndTick}) {
        ToldBar made;
        made.Make<CMFCCheckCombo>(GetParam());
        ASSERT_FALSE(HasFatalFailure());
        constexpr UINT kBeyond = 0x10000 + ComboHost::comboId;
        made.Shown()->m_nID = kBeyond;
        ::SetWindowLongPtrW(made.Combo().m_hWnd, GWLP_ID, kBeyond);
        gesture(made.Combo().m_hWnd);
        PumpPending();
        for (const std::wstring& words : made.told.heard) {
            EXPECT_FALSE(words.starts_with(L"command")) << words.c_str();
        }
    }
}

TEST_P(ToolbarMessages, AClosedMultiCombosMarksAskTheFrame) {
    ExpectTold<CMFCMultiCombo>(GetParam(), {{&ClickFirstMark, {L"colour 1 0"}},
                                            {&ClickSecondMark, {L"light green 1"}},
                                            {&DoubleClickFirstMark, {L"colour 1 0", L"colour 1 0"}},
                                            {&PressBarAtFirstMark, {L"colour 1 0"}},
                                            {&PressBarAtSecondMark, {L"light green 1"}}});
}

TEST_P(ToolbarMessages, AClosedLightCombosMarkTellsTheNewLight) {
    ExpectTold<CMFCMultiCombo2>(GetParam(), {{&ClickFirstMark, {L"ves green 1"}},
                                             {&DoubleClickFirstMark, {L"ves green 1", L"ves green 0"}},
                                             {&PressBarAtFirstMark, {L"ves green 1"}}});
}

TEST_P(ToolbarMessages, AnOpenChecklistsMarksTellWhatTheyTellInAWindow) {
    ExpectToldAsInAWindow<CMFCCheckCombo, CCheckComboBox>(GetParam(),
                                                          {&OpenAndTick, &OpenAndTickAll, &OpenAndPressSpace});
}

TEST_P(ToolbarMessages, AChoiceIsTheCommandOnce) {
    const auto choices = {&StepDown, &OpenAndChooseByMouse, &OpenStepAndEnter};
    ExpectChoices<CMFCCheckCombo, CCheckComboBox>(GetParam(), choices);
    ExpectChoices<CMFCMultiCombo, CMultiCombo>(GetParam(), choices);
    ExpectChoices<CMFCMultiCombo2, CVesMultiCombo>(GetParam(), choices);
}

TEST_P(ToolbarMessages, TheFrameStaysTheOwnerWhereverTheBarGoes) {
    ToldBar made;
    made.Make<CMFCCheckCombo>(GetParam());
    made.Float();
    made.Dock(AFX_IDW_DOCKBAR_BOTTOM);
    made.Float();
    PumpPending();
    EXPECT_EQ(made.Combo().GetOwner()->GetSafeHwnd(), made.FrameWindow());
    made.told.heard.clear();
    ClickFirstMark(made.Combo().m_hWnd);
    EXPECT_EQ(made.told.heard, (Heard{L"check green 1", Command(0)}));
}

TEST_P(ToolbarMessages, TheFrameIsTheOwnerOfAComboThatIsMadeLater) {
    ToldBar made;
    made.Make<CMFCMultiCombo>(GetParam());
    CMFCCheckCombo later(ComboHost::comboId + 1, -1);
    later.AddItem(L"grey");
    made.bar.InsertButton(later);
    made.bar.AdjustLayout();
    const auto& shown = static_cast<const CMFCCheckCombo&>(*made.bar.GetButton(1));
    ASSERT_NE(shown.GetComboBox(), nullptr);
    EXPECT_EQ(shown.GetComboBox()->GetOwner()->GetSafeHwnd(), made.FrameWindow());
}

TEST_P(ToolbarMessages, StatesStayWhereverTheBarGoes) {
    ToldBar made;
    made.Make<CMFCCheckCombo>(GetParam());
    auto& button = static_cast<CMFCCheckCombo&>(*made.Shown());
    button.SetCheck(3, 1, 1);
    for (const UINT side : {AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_BOTTOM, AFX_IDW_DOCKBAR_RIGHT, AFX_IDW_DOCKBAR_TOP}) {
        made.Dock(side);
        EXPECT_TRUE(button.GetCheck(3)) << side;
        made.Float();
        EXPECT_TRUE(button.GetCheck(3)) << side;
    }
    EXPECT_FALSE(button.GetCheck(2));
}

INSTANTIATE_TEST_SUITE_P(Everywhere, ToolbarMessages, testing::Values(BarPlace::Docked, BarPlace::Floating));

// ---- an upright bar shows a button in the combo's place

template <class Button>
bool IsMarkSwitchedInAnUprightBar() {
    ToldBar made;
    made.Make<Button>(BarPlace::Docked);
    CRect face;
    made.Combo().GetWindowRect(&face);
    made.Dock(AFX_IDW_DOCKBAR_LEFT);
    PumpPending();
    EXPECT_FALSE(made.Combo().GetStyle() & WS_VISIBLE);
    made.Combo().GetWindowRect(&face);
    ::SetCursorPos(face.left + 5, face.CenterPoint().y);
    made.told.heard.clear();
    EXPECT_FALSE(made.Shown()->OnClick(&made.bar));
    EXPECT_FALSE(made.Combo().GetDroppedState());
    return !made.told.heard.empty();
}

TEST(UprightToolbar, APressWhereTheHiddenCombosMarksLieSwitchesNothing) {
    EXPECT_FALSE(IsMarkSwitchedInAnUprightBar<CMFCCheckCombo>());
    EXPECT_FALSE(IsMarkSwitchedInAnUprightBar<CMFCMultiCombo>());
    EXPECT_FALSE(IsMarkSwitchedInAnUprightBar<CMFCMultiCombo2>());
}

// ---- hosts that act in a message

using Act = void (*)(ToldBar& made);

void RemoveButton(ToldBar& made) {
    if (made.bar.GetCount() > 0) {
        made.bar.RemoveButton(0);
    }
}
void RemoveItems(ToldBar& made) {
    if (made.Shown() != nullptr) {
        made.Shown()->RemoveAllItems();
    }
}
void DestroyBar(ToldBar& made) { made.bar.DestroyWindow(); }
void DestroyFrame(ToldBar& made) { made.DestroyFrame(); }
void TakeBarElsewhere(ToldBar& made) {
    if (made.bar.m_hWnd == nullptr) {
        return;
    }
    if (made.bar.IsFloating()) {
        made.Dock(AFX_IDW_DOCKBAR_LEFT);
    } else {
        made.Float();
    }
}

class HostileToolbarHosts : public testing::TestWithParam<Act> {
protected:
    /// Acts in the message with that number, for each number until there are no more messages. How many there were.
    template <class Button>
    int RunEach(BarPlace place, ComboGesture gesture) {
        int messages = 0;
        for (int at = -1; at < messages; ++at) { // the first time it only counts
            SCOPED_TRACE("message " + std::to_string(at));
            ToldBar made;
            made.Make<Button>(place);
            if (HasFatalFailure()) {
                return 0;
            }
            int count = 0;
            made.told.onMessage = [&] {
                if (count++ == at) {
                    GetParam()(made);
                }
            };
            gesture(made.Combo().m_hWnd);
            messages = std::max(messages, count);
            if (messages > 40) {
                ADD_FAILURE() << "too many messages";
                return messages;
            }
        }
        return messages;
    }
    /// All gestures on a docked bar, the last one on a floating bar too.
    template <class Button>
    void RunAll(std::initializer_list<ComboGesture> gestures) {
        int number = 0;
        for (const ComboGesture gesture : gestures) {
            EXPECT_GE(RunEach<Button>(BarPlace::Docked, gesture), 1) << "gesture " << number;
            ++number;
        }
        EXPECT_GE(RunEach<Button>(BarPlace::Floating, *(gestures.end() - 1)), 1);
    }
};

TEST_P(HostileToolbarHosts, MayActInAnyMessageOfACheckCombo) {
    RunAll<CMFCCheckCombo>({&PressSpace, &PressBarAtFirstMark, &OpenAndTickAll, &OpenAndChooseByMouse, &OpenAndTick});
}

TEST_P(HostileToolbarHosts, MayActInAnyMessageOfAMultiCombo) {
    RunAll<CMFCMultiCombo>({&ClickFirstMark, &PressBarAtSecondMark, &ClickSecondMark});
}

TEST_P(HostileToolbarHosts, MayActInAnyMessageOfALightCombo) {
    RunAll<CMFCMultiCombo2>({&PressBarAtFirstMark, &StepDown, &ClickFirstMark});
}

INSTANTIATE_TEST_SUITE_P(EveryKind, HostileToolbarHosts,
                         testing::Values(&RemoveButton, &RemoveItems, &DestroyBar, &DestroyFrame, &TakeBarElsewhere));

} // namespace
