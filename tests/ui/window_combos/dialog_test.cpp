// The combos in a dialog: what a user does is told as in any other window, and the dialog's own keys leave them alone.
#include "tests/ui/window_combos/combo_host.h"

namespace {

/// A dialog without controls of its own, and a combo in it.
template <class Combo>
class ComboDialog : public CDialog {
public:
    Combo combo;
    std::vector<std::wstring> heard;
    int confirmed = 0;
    int cancelled = 0;

    BOOL Open() {
        struct {
            DLGTEMPLATE dialog;
            WORD menu, windowClass, title;
        } form = {{WS_POPUP | WS_CAPTION | WS_VISIBLE, 0, 0, 10, 10, 160, 100}, 0, 0, 0};
        return CreateIndirect(&form.dialog);
    }

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        combo.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, CRect(10, 10, 210, 200), this,
                     ComboHost::comboId);
        AddColours(combo);
        combo.SetCurSel(1);
        combo.SetFocus();
        heard.clear();
        return FALSE;
    }
    void OnOK() override { ++confirmed; }
    void OnCancel() override { ++cancelled; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (std::wstring words = ComboHost::WordsFor(message, wParam, lParam); !words.empty()) {
            heard.push_back(std::move(words));
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }
};

using Gesture = void (*)(CComboBox& combo);

template <class Combo>
Heard InDialog(Gesture gesture) {
    ComboDialog<Combo> dialog;
    if (!dialog.Open()) {
        return {L"no dialog"};
    }
    dialog.heard.clear();
    gesture(dialog.combo);
    const Heard heard = dialog.heard;
    dialog.DestroyWindow();
    return heard;
}

template <class Combo>
Heard InWindow(Gesture gesture) {
    ComboHost host;
    Combo combo;
    host.Place(combo);
    AddColours(combo);
    combo.SetCurSel(1);
    combo.SetFocus();
    host.heard.clear();
    gesture(combo);
    return host.heard;
}

void ClickMark(CComboBox& combo) { Pointer().Click(combo.m_hWnd, {5, 10}); }
void ClickSecondMark(CComboBox& combo) { Pointer().Click(combo.m_hWnd, {30, 10}); }
void DoubleClickMark(CComboBox& combo) { Pointer().DoubleClick(combo.m_hWnd, {5, 10}); }
void PressSpace(CComboBox& combo) {
    Keys keys(combo.m_hWnd);
    keys.Down(VK_SPACE);
    keys.Type(L" ");
    keys.Up(VK_SPACE);
}
void StepDown(CComboBox& combo) { Keys(combo.m_hWnd).Press(VK_DOWN); }
void OpenAndChooseByMouse(CComboBox& combo) {
    combo.ShowDropDown();
    Pointer().Click(ListOf(combo), InRow(ListOf(combo), 3, 100));
}
void OpenStepAndEnter(CComboBox& combo) {
    combo.ShowDropDown();
    Keys keys(combo.m_hWnd);
    keys.Press(VK_DOWN);
    keys.Press(VK_RETURN);
}

class CombosInADialog : public ::testing::Test {};

template <class Combo>
void ExpectTheSame(std::initializer_list<Gesture> gestures) {
    int number = 0;
    for (const Gesture gesture : gestures) {
        const Heard inWindow = InWindow<Combo>(gesture);
        EXPECT_EQ(InDialog<Combo>(gesture), inWindow) << "gesture " << number;
        EXPECT_FALSE(inWindow.empty()) << "gesture " << number;
        ++number;
    }
}

} // namespace

TEST_F(CombosInADialog, AMarkTellsADialogWhatItTellsAnyWindow) {
    ExpectTheSame<CCheckComboBox>({&ClickMark, &DoubleClickMark, &PressSpace});
    ExpectTheSame<CMultiCombo>({&ClickMark, &ClickSecondMark, &DoubleClickMark});
    ExpectTheSame<CVesMultiCombo>({&ClickMark, &DoubleClickMark});
}

TEST_F(CombosInADialog, AChoiceIsToldByMouseAndKeysAsInAnyWindow) {
    ExpectTheSame<CCheckComboBox>({&StepDown, &OpenAndChooseByMouse, &OpenStepAndEnter});
    ExpectTheSame<CMultiCombo>({&StepDown, &OpenAndChooseByMouse, &OpenStepAndEnter});
    ExpectTheSame<CVesMultiCombo>({&StepDown, &OpenAndChooseByMouse, &OpenStepAndEnter});
}

TEST_F(CombosInADialog, EnterAndEscCloseAnOpenListAndNotTheDialog) {
    ComboDialog<CCheckComboBox> dialog;
    ASSERT_TRUE(dialog.Open());
    for (const UINT key : {VK_RETURN, VK_ESCAPE}) {
        dialog.combo.ShowDropDown();
        Keys(dialog.combo.m_hWnd).Press(key);
        EXPECT_FALSE(dialog.combo.GetDroppedState()) << key;
    }
    EXPECT_EQ(dialog.confirmed, 0);
    EXPECT_EQ(dialog.cancelled, 0);
    Keys(dialog.combo.m_hWnd).Press(VK_ESCAPE);
    EXPECT_EQ(dialog.cancelled, 1);
    dialog.DestroyWindow();
}

TEST_F(CombosInADialog, TheDialogMayEndInAMessageOfItsCombo) {
    class EndingDialog : public ComboDialog<CCheckComboBox> {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_COMBO_CHECK_CHANGED) {
                DestroyWindow();
                return 0;
            }
            return ComboDialog::WindowProc(message, wParam, lParam);
        }
    };
    EndingDialog dialog;
    ASSERT_TRUE(dialog.Open());
    ClickMark(dialog.combo);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.combo.m_hWnd, nullptr);
}
