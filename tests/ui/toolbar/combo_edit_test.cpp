// The edit of a combo box on a toolbar: typing, keys, commands.
#include "afxtoolbarcomboboxbutton.h"
#include "tests/ui/toolbar/field_fixture.h"

namespace {

using Commands = std::vector<UINT>;
using Codes = std::vector<int>;

class ComboEditTest : public FieldTest {
protected:
    ComboEditTest() {
        CMFCToolBarComboBoxButton button(kFieldCommand, 3, CBS_DROPDOWN, 120);
        button.AddItem(L"red", 10);
        button.AddItem(L"green", 20);
        button.AddItem(L"blue", 30);
        button.SelectItem(1, FALSE);
        Bar().InsertButton(button);
        LayOut();
    }
    CMFCToolBarComboBoxButton& Combo() { return *CMFCToolBarComboBoxButton::GetByCmd(kFieldCommand); }
    CEdit& Edit() { return *Combo().GetEditCtrl(); }
};

TEST_F(ComboEditTest, TheButtonMakesAnEditOverTheComboBoxWithItsText) {
    auto* const edit = dynamic_cast<CMFCToolBarComboBoxEdit*>(Combo().GetEditCtrl());
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(::GetParent(edit->m_hWnd), Bar().m_hWnd);
    EXPECT_EQ(TextOf(edit), L"green");
    EXPECT_TRUE(edit->IsWindowVisible());
    CRect window;
    edit->GetWindowRect(&window);
    Bar().ScreenToClient(&window);
    CRect button = Combo().Rect();
    CRect inside;
    EXPECT_TRUE(inside.IntersectRect(window, button) && inside == window) << "inside of the button";
    EXPECT_LT(window.right, button.right - ::GetSystemMetrics(SM_CXVSCROLL)) << "beside the drop button";
}

TEST_F(ComboEditTest, AListWithoutATypedTextHasNoEdit) {
    Bar().InsertButton(CMFCToolBarComboBoxButton(3051, 3, CBS_DROPDOWNLIST));
    EXPECT_EQ(CMFCToolBarComboBoxButton::GetByCmd(3051)->GetEditCtrl(), nullptr);
}

TEST_F(ComboEditTest, WithoutTheFlatModeTheComboBoxHasItsOwnEdit) {
    CMFCToolBarComboBoxButton::SetFlatMode(FALSE);
    Bar().InsertButton(CMFCToolBarComboBoxButton(3051, 3, CBS_DROPDOWN));
    CMFCToolBarComboBoxButton::SetFlatMode(TRUE);
    CMFCToolBarComboBoxButton& plain = *CMFCToolBarComboBoxButton::GetByCmd(3051);
    ASSERT_NE(plain.GetEditCtrl(), nullptr);
    EXPECT_EQ(::GetParent(plain.GetEditCtrl()->m_hWnd), plain.GetHwnd());
}

TEST_F(ComboEditTest, WhatIsTypedIsTheTextOfTheButtonAndTellsTheOwner) {
    CodeList owner;
    Edit().SetFocus();
    Edit().SetSel(0, -1);
    Bar().SetOwner(&owner);
    m_keys.Type(L"ab");
    EXPECT_EQ(owner.Taken(), (Codes{CBN_EDITCHANGE, CBN_EDITCHANGE}));
    Bar().SetOwner(m_frame);
    EXPECT_EQ(CString(Combo().GetText()), L"ab");
    EXPECT_EQ(TextOf(Combo().GetComboBox()), L"ab");
    EXPECT_EQ(Combo().GetCurSel(), -1);
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(ComboEditTest, TypingTheTextOfAnItemSelectsIt) {
    Edit().SetFocus();
    Edit().SetSel(0, -1);
    m_keys.Type(L"blue");
    EXPECT_EQ(Combo().GetCurSel(), 2);
    EXPECT_EQ(TextOf(&Edit()), L"blue");
}

TEST_F(ComboEditTest, EnterSendsTheCommandOnceAndKeepsTheText) {
    Edit().SetFocus();
    Edit().SetSel(0, -1);
    m_keys.Type(L"mauve");
    m_keys.Press(VK_RETURN);
    EXPECT_EQ(TakeCommands(), Commands{kFieldCommand});
    EXPECT_EQ(TextOf(&Edit()), L"mauve");
    EXPECT_EQ(CString(CMFCToolBarComboBoxButton::GetTextAll(kFieldCommand)), L"mauve");
}

TEST_F(ComboEditTest, EscGivesBackTheTextAndTheFocus) {
    Edit().SetFocus();
    Edit().SetSel(0, -1);
    m_keys.Type(L"mauve");
    m_keys.Press(VK_ESCAPE);
    EXPECT_EQ(TextOf(&Edit()), L"green");
    EXPECT_EQ(Combo().GetCurSel(), 1);
    EXPECT_EQ(::GetFocus(), m_frame->m_hWnd);
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(ComboEditTest, ArrowsChooseInTheClosedListAndSendTheCommand) {
    Edit().SetFocus();
    m_keys.Press(VK_DOWN);
    EXPECT_EQ(TextOf(&Edit()), L"blue");
    EXPECT_EQ(TakeCommands(), Commands{kFieldCommand});
    m_keys.Press(VK_DOWN);
    EXPECT_TRUE(TakeCommands().empty()) << "there is none below the last";
    m_keys.Press(VK_PRIOR);
    EXPECT_EQ(TextOf(&Edit()), L"red");
    EXPECT_EQ(Combo().GetCurSel(), 0);
}

TEST_F(ComboEditTest, TheOpenListIsWalkedWithoutACommandAndEnterChooses) {
    Edit().SetFocus();
    m_keys.Press(VK_F4);
    ASSERT_TRUE(Combo().IsDroppedDown());
    m_keys.Press(VK_DOWN);
    EXPECT_TRUE(TakeCommands().empty());
    m_keys.Press(VK_RETURN);
    EXPECT_FALSE(Combo().IsDroppedDown());
    EXPECT_EQ(TakeCommands(), Commands{kFieldCommand});
    EXPECT_EQ(TextOf(&Edit()), L"blue");
    EXPECT_EQ(Combo().GetCurSel(), 2);
}

TEST_F(ComboEditTest, EscClosesTheListWithoutAChoice) {
    Edit().SetFocus();
    m_keys.Press(VK_F4);
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_ESCAPE);
    EXPECT_FALSE(Combo().IsDroppedDown());
    EXPECT_EQ(Combo().GetCurSel(), 1);
    EXPECT_EQ(TextOf(&Edit()), L"green");
    EXPECT_TRUE(TakeCommands().empty());
    EXPECT_EQ(::GetFocus(), Edit().m_hWnd) << "the first Esc is the list's";
}

TEST_F(ComboEditTest, AltWithAnArrowOpensAndClosesTheList) {
    Edit().SetFocus();
    m_keys.Hold(VK_MENU);
    m_keys.Press(VK_DOWN);
    EXPECT_TRUE(Combo().IsDroppedDown());
    m_keys.Press(VK_UP);
    EXPECT_FALSE(Combo().IsDroppedDown());
    m_keys.Let(VK_MENU);
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(ComboEditTest, ThePressOnTheDropButtonOpensTheListAndFocusesTheEdit) {
    CRect rect = Combo().Rect();
    const CPoint dropButton(rect.right - 8, rect.CenterPoint().y);
    m_pointer.Click(Bar().m_hWnd, dropButton);
    EXPECT_TRUE(Combo().IsDroppedDown());
    EXPECT_TRUE(Combo().HasFocus());
    m_pointer.Click(Bar().m_hWnd, dropButton);
    EXPECT_FALSE(Combo().IsDroppedDown());
    EXPECT_EQ(::GetFocus(), Edit().m_hWnd);
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(ComboEditTest, KeysForTheListThatTheMouseHasOpenedChooseAndTheEditHasTheFocusAgain) {
    CRect rect = Combo().Rect();
    m_pointer.Click(Bar().m_hWnd, CPoint(rect.right - 8, rect.CenterPoint().y));
    ASSERT_TRUE(Combo().IsDroppedDown());
    m_keys.Press(VK_DOWN);
    EXPECT_TRUE(TakeCommands().empty());
    m_keys.Press(VK_RETURN);
    EXPECT_FALSE(Combo().IsDroppedDown());
    EXPECT_EQ(TakeCommands(), Commands{kFieldCommand});
    EXPECT_EQ(TextOf(&Edit()), L"blue");
    EXPECT_EQ(::GetFocus(), Edit().m_hWnd);
}

TEST_F(ComboEditTest, AClickInTheListIsTheCommandOnceAndTheTextOfTheEdit) {
    Edit().SetFocus();
    m_keys.Press(VK_F4);
    COMBOBOXINFO info{};
    Combo().GetComboBox()->GetComboBoxInfo(&info);
    RECT row{};
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    m_pointer.Click(info.hwndList, {row.left + 20, row.top + 3});
    EXPECT_EQ(TakeCommands(), Commands{kFieldCommand});
    EXPECT_EQ(TextOf(&Edit()), L"red");
}

TEST_F(ComboEditTest, AcceleratorsDoNotTakeWhatIsTyped) {
    Edit().SetFocus();
    m_keys.Press('V');
    m_keys.Press(VK_DELETE);
    m_keys.Hold(VK_CONTROL);
    m_keys.Press('C');
    m_keys.Let(VK_CONTROL);
    EXPECT_TRUE(TakeCommands().empty());
    m_keys.Press(VK_F7);
    EXPECT_EQ(TakeCommands(), Commands{kStolenCommand}) << "a key that nobody types stays the frame's";
    m_frame->SetFocus();
    m_keys.Press('V');
    EXPECT_EQ(TakeCommands(), Commands{kStolenCommand});
}

TEST_F(ComboEditTest, FocusIsTheButtonsAndTellsTheOwner) {
    CodeList owner;
    Bar().SetOwner(&owner);
    Edit().SetFocus();
    EXPECT_TRUE(Combo().HasFocus());
    EXPECT_EQ(CMFCToolBarComboBoxButton::GetByCmd(kFieldCommand, TRUE), &Combo());
    m_frame->SetFocus();
    EXPECT_FALSE(Combo().HasFocus());
    EXPECT_EQ(owner.Taken(), (Codes{CBN_SETFOCUS, CBN_KILLFOCUS}));
    Bar().SetOwner(m_frame);
}

TEST_F(ComboEditTest, TheUpdateHandlerDisablesTheEdit) {
    m_frame->disabled = kFieldCommand;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_FALSE(Edit().IsWindowEnabled());
    m_frame->disabled = 0;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_TRUE(Edit().IsWindowEnabled());
}

TEST_F(ComboEditTest, AHiddenButtonHidesTheEdit) {
    Combo().Show(FALSE);
    LayOut();
    EXPECT_FALSE(Edit().IsWindowVisible());
    Combo().Show(TRUE);
    LayOut();
    EXPECT_TRUE(Edit().IsWindowVisible());
}

TEST_F(ComboEditTest, RemovingTheButtonDestroysTheEdit) {
    const HWND edit = Edit().m_hWnd;
    Edit().SetFocus();
    Bar().RemoveButton(Bar().CommandToIndex(kFieldCommand));
    EXPECT_FALSE(::IsWindow(edit));
}

TEST_F(ComboEditTest, TheCommandMayDestroyTheBar) {
    class Closer : public CWnd {
    public:
        CFrameWnd* victim = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_COMMAND && wParam == kFieldCommand) {
                victim->DestroyWindow();
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } owner;
    ASSERT_TRUE(owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    owner.victim = m_frame;
    Edit().SetFocus();
    Bar().SetOwner(&owner);
    m_keys.Press(VK_RETURN);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(ComboEditTest, AHostMayMakeAnEditOfItsOwn) {
    class NumberEdit : public CMFCToolBarComboBoxEdit {
    public:
        using CMFCToolBarComboBoxEdit::CMFCToolBarComboBoxEdit;
    };
    class NumberCombo : public CMFCToolBarComboBoxButton {
    public:
        NumberCombo() : CMFCToolBarComboBoxButton(3052, 3, CBS_DROPDOWN) {}
        CMFCToolBarComboBoxEdit* CreateEdit(CWnd* parent, const CRect& rect, DWORD style) override {
            auto edit = std::make_unique<NumberEdit>(*this);
            return edit->Create(style | ES_NUMBER, rect, parent, m_nID) ? edit.release() : nullptr;
        }
    };
    auto* const button = new NumberCombo;
    Bar().InsertButton(button);
    ASSERT_NE(button->GetEditCtrl(), nullptr);
    EXPECT_NE(dynamic_cast<NumberEdit*>(button->GetEditCtrl()), nullptr);
    EXPECT_TRUE(button->GetEditCtrl()->GetStyle() & ES_NUMBER);
}

TEST(ComboButtonStatics, TellThatThereIsNoSuchButtonOrItem) {
    EXPECT_EQ(CMFCToolBarComboBoxButton::GetItemDataPtrAll(3998, 0), nullptr);
    EXPECT_EQ(CMFCToolBarComboBoxButton::GetItemDataAll(3998, 0), static_cast<DWORD_PTR>(CB_ERR));
}

TEST_F(ComboEditTest, ItemDataOfTheFirstButtonWithTheCommandIsAnsweredAsAPointer) {
    EXPECT_EQ(reinterpret_cast<DWORD_PTR>(CMFCToolBarComboBoxButton::GetItemDataPtrAll(kFieldCommand)), 20u);
    EXPECT_EQ(CMFCToolBarComboBoxButton::GetItemDataPtrAll(kFieldCommand, 7), reinterpret_cast<void*>(-1));
}

TEST_F(ComboEditTest, AnItemThatIsThereAlreadyTakesTheNewData) {
    Combo().AddItem(L"red", 99);
    EXPECT_EQ(Combo().GetCount(), 3);
    EXPECT_EQ(Combo().GetItemData(0), 99u);
    EXPECT_EQ(Combo().GetComboBox()->GetItemData(0), 99u);
}

} // namespace
