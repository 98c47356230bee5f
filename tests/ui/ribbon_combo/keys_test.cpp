#include <gmock/gmock.h>

#include <string>

#include "tests/ui/ribbon_combo/combo_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ComboKeys : public RibbonComboTest {
protected:
    static constexpr UINT kLong = 1202;

    /// A list of a hundred rows, 12 of them seen, open.
    SpyCombo& OpenLong() {
        SpyCombo& combo = Add(kLong, FALSE, 100);
        combo.SetDropDownHeight(12 * afxGlobalData.GetTextHeight() + 10);
        LayOut();
        ClickButton(combo);
        return combo;
    }
    static int FirstShown() { return ListBar().HitTest(CPoint(5, 0)); }
    /// The last row that is seen whole.
    static int LastShown() {
        CRect client;
        ListBar().GetClientRect(client);
        const int row = ListBar().GetRowHeight();
        return ListBar().HitTest(CPoint(5, client.Height() / row * row - 1));
    }
    void FocusOn(CMFCRibbonComboBox& combo) {
        m_pointer.Click(combo.GetEditWnd()->GetSafeHwnd(), CPoint(3, 3));
        combo.GetEditWnd()->SetFocus();
        PumpPending();
    }
};

TEST_F(ComboKeys, ArrowsMoveWithoutGoingRound) {
    ClickButton(Plain());
    EXPECT_EQ(ListBar().GetHotRow(), -1);
    Press(VK_DOWN);
    EXPECT_EQ(ListBar().GetHotRow(), 0);
    Press(VK_UP);
    EXPECT_EQ(ListBar().GetHotRow(), 0);
    Press(VK_DOWN);
    Press(VK_RIGHT);
    EXPECT_EQ(ListBar().GetHotRow(), 2);
    Press(VK_LEFT);
    EXPECT_EQ(ListBar().GetHotRow(), 1);
    Press(VK_END);
    EXPECT_EQ(ListBar().GetHotRow(), 9);
    Press(VK_DOWN);
    EXPECT_EQ(ListBar().GetHotRow(), 9);
    Press(VK_HOME);
    EXPECT_EQ(ListBar().GetHotRow(), 0);
    EXPECT_EQ(Plain().GetCurSel(), -1) << "nothing is chosen yet";
}

TEST_F(ComboKeys, PagesMoveByWhatIsSeenAndScroll) {
    OpenLong();
    ASSERT_EQ(LastShown(), 11);
    Press(VK_DOWN);
    Press(VK_NEXT);
    EXPECT_EQ(ListBar().GetHotRow(), 11);
    EXPECT_EQ(FirstShown(), 0);
    Press(VK_NEXT);
    EXPECT_EQ(ListBar().GetHotRow(), 22);
    EXPECT_EQ(LastShown(), 22);
    Press(VK_DOWN);
    EXPECT_EQ(LastShown(), 23);
    Press(VK_PRIOR);
    EXPECT_EQ(ListBar().GetHotRow(), 12);
    EXPECT_EQ(FirstShown(), 12);
    Press(VK_END);
    EXPECT_EQ(LastShown(), 99);
    EXPECT_EQ(FirstShown(), 88);
}

TEST_F(ComboKeys, EnterChoosesTheHotRow) {
    ClickButton(Plain());
    Press(VK_DOWN);
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Plain().GetCurSel(), 1);
    EXPECT_THAT(m_frame->commands, ElementsAre(kPlain));
}

TEST_F(ComboKeys, EscTabAndF4CloseAndChangeNothing) {
    Plain().SelectItem(4);
    for (const UINT key : {VK_ESCAPE, VK_TAB, VK_F4}) {
        ClickButton(Plain());
        Press(VK_DOWN);
        EXPECT_EQ(ListBar().GetHotRow(), 5);
        Press(key);
        EXPECT_FALSE(IsOpen()) << key;
    }
    EXPECT_EQ(Plain().GetCurSel(), 4);
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(ComboKeys, AltWithAnArrowClosesAndAltAloneDoesNot) {
    ClickButton(Plain());
    Press(VK_MENU);
    EXPECT_TRUE(IsOpen());
    PressWith(VK_MENU, VK_UP);
    EXPECT_FALSE(IsOpen());
    ClickButton(Plain());
    PressWith(VK_MENU, VK_DOWN);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboKeys, TheWheelScrollsWholeRowsAndStopsAtTheEnds) {
    OpenLong();
    m_pointer.MoveTo(ListBar().GetSafeHwnd(), CPoint(20, 20));
    m_pointer.Wheel(-1);
    EXPECT_EQ(FirstShown(), 3);
    EXPECT_EQ(ListBar().GetRowRect(3).top, 0);
    m_pointer.Wheel(-100);
    EXPECT_EQ(LastShown(), 99);
    m_pointer.Wheel(1);
    EXPECT_EQ(LastShown(), 96);
    m_pointer.Wheel(100);
    EXPECT_EQ(FirstShown(), 0);
}

TEST_F(ComboKeys, TheWheelScrollsWhatTheUserHasSet) {
    struct WheelLines {
        explicit WheelLines(UINT lines) {
            ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &before, 0);
            isSet = ::SystemParametersInfo(SPI_SETWHEELSCROLLLINES, lines, nullptr, 0) != FALSE;
        }
        ~WheelLines() { ::SystemParametersInfo(SPI_SETWHEELSCROLLLINES, before, nullptr, 0); }
        UINT before = 3;
        bool isSet = false;
    };
    OpenLong();
    m_pointer.MoveTo(ListBar().GetSafeHwnd(), CPoint(20, 20));
    for (const auto& [lines, first] :
         {std::pair(1u, 1), std::pair(5u, 6), std::pair(WHEEL_PAGESCROLL, 18), std::pair(0u, 18), std::pair(40u, 30)}) {
        const WheelLines setting(lines);
        ASSERT_TRUE(setting.isSet);
        m_pointer.Wheel(-1);
        EXPECT_EQ(FirstShown(), first) << lines;
    }
}

TEST_F(ComboKeys, PartsOfAWheelsNotchAddUp) {
    OpenLong();
    const auto turn = [](short delta) {
        MSG message{List().GetSafeHwnd(), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0, 0, {}};
        AfxPreTranslateMessage(&message);
    };
    turn(-30);
    EXPECT_EQ(FirstShown(), 0);
    turn(-30);
    EXPECT_EQ(FirstShown(), 1);
    turn(-60);
    EXPECT_EQ(FirstShown(), 3);
}

TEST_F(ComboKeys, TypedCharactersGoToTheNextRowThatBeginsWithThem) {
    Plain().RemoveAllItems();
    for (const wchar_t* text : {L"Alpha", L"Beta", L"Bravo", L"New Delhi", L"New York"}) {
        Plain().AddItem(text);
    }
    ClickButton(Plain());
    Type(L"b");
    EXPECT_EQ(ListBar().GetHotRow(), 1);
    Type(L"R");
    EXPECT_EQ(ListBar().GetHotRow(), 2);
    CMFCPopupMenu::CloseAll();
    ClickButton(Plain());
    Type(L"new y");
    EXPECT_EQ(ListBar().GetHotRow(), 4);
    Type(L"x");
    EXPECT_EQ(ListBar().GetHotRow(), 4);
    CMFCPopupMenu::CloseAll();
    ClickButton(Plain());
    Type(L"bbb");
    EXPECT_EQ(ListBar().GetHotRow(), 1) << "one letter walks through the rows and round";
    EXPECT_TRUE(IsOpen());
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(ComboKeys, TheSpaceBarIsOfferedToTheCombo) {
    ClickButton(Plain());
    Press(VK_SPACE);
    EXPECT_THAT(Plain().toggled, IsEmpty()) << "no row is hot";
    Press(VK_DOWN);
    Plain().takesSpace = true;
    Plain().drawn.clear();
    Press(VK_SPACE);
    EXPECT_THAT(Plain().toggled, ElementsAre(0));
    ListBar().UpdateWindow();
    EXPECT_THAT(Plain().drawn, ElementsAre(0)) << "that row is drawn anew";
    EXPECT_TRUE(IsOpen());
    Type(L"i");
    Press(VK_SPACE);
    EXPECT_THAT(Plain().toggled, ElementsAre(0)) << "in the middle of a word it is a character";
}

TEST_F(ComboKeys, AHeldSpaceBarSwitchesOnce) {
    ClickButton(Plain());
    Press(VK_DOWN);
    Plain().takesSpace = true;
    const auto hold = [this](int repeats) {
        MSG message{m_window, WM_KEYDOWN, VK_SPACE, 1, 0, {}};
        AfxPreTranslateMessage(&message);
        message.lParam |= 1 << 30;
        for (int i = 0; i < repeats; ++i) {
            AfxPreTranslateMessage(&message);
        }
    };
    hold(5);
    EXPECT_THAT(Plain().toggled, ElementsAre(0));
    hold(0);
    EXPECT_THAT(Plain().toggled, ElementsAre(0, 0)) << "another press";
}

TEST_F(ComboKeys, WhileTypingTheSpaceBarIsOfferedWithCtrl) {
    Edit().takesSpace = true;
    FocusOn(Edit());
    Press(VK_F4);
    Type(L"item");
    ASSERT_EQ(ListBar().GetHotRow(), 0);
    Press(VK_SPACE);
    EXPECT_THAT(Edit().toggled, IsEmpty()) << "it is written";
    PressWith(VK_CONTROL, VK_SPACE);
    EXPECT_THAT(Edit().toggled, ElementsAre(0));
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(Edit().HasFocus());
    EXPECT_EQ(Edit().GetEditText(), L"item");
}

TEST_F(ComboKeys, InTheMiddleOfAWordCtrlStillOffersTheSpaceBar) {
    ClickButton(Plain());
    Type(L"i");
    ASSERT_EQ(ListBar().GetHotRow(), 0);
    PressWith(VK_CONTROL, VK_SPACE);
    EXPECT_THAT(Plain().toggled, ElementsAre(0));
}

TEST_F(ComboKeys, AltWithF4ClosesTheListAndIsTheFrames) {
    ClickButton(Plain());
    PressWith(VK_MENU, VK_F4);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(ComboKeys, HeldAltAndArrowDoNotOpenAndCloseInTurns) {
    ClickButton(Plain());
    MSG message{m_window, WM_SYSKEYDOWN, VK_DOWN, 1 | 1 << 29 | 1 << 30, 0, {}};
    EXPECT_TRUE(AfxPreTranslateMessage(&message));
    EXPECT_TRUE(IsOpen());
}

TEST_F(ComboKeys, KeysDoNotReachTheHostWhileTheListIsOpen) {
    ClickButton(Plain());
    const HWND focus = ::GetFocus();
    Press('A');
    Press(VK_DELETE);
    Press(VK_F1);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(::GetFocus(), focus) << "the list takes no focus";
}

TEST_F(ComboKeys, F4AndArrowsInTheEditWindowOpenTheList) {
    FocusOn(Edit());
    Press(VK_F4);
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(Edit().HasFocus());
    Press(VK_F4);
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Edit().HasFocus());
    Press(VK_DOWN);
    EXPECT_TRUE(IsOpen());
    PressWith(VK_MENU, VK_UP);
    EXPECT_FALSE(IsOpen());
    PressWith(VK_MENU, VK_DOWN);
    EXPECT_TRUE(IsOpen());
}

TEST_F(ComboKeys, AltIsNoMoreThanTheFirstHalfOfAltAndDown) {
    FocusOn(Edit());
    Keys keys;
    keys.Down(VK_MENU);
    keys.Hold(VK_MENU);
    EXPECT_TRUE(Edit().HasFocus());
    keys.Press(VK_DOWN);
    EXPECT_TRUE(IsOpen());
    keys.Let(VK_MENU);
    keys.Up(VK_MENU);
    EXPECT_TRUE(IsOpen());
    Press(VK_ESCAPE);
    EXPECT_TRUE(Edit().HasFocus());
    Press(VK_MENU);
    EXPECT_FALSE(Edit().HasFocus()) << "alone it leaves the ribbon";
}

TEST_F(ComboKeys, TheEditWindowKeepsTheFocusAndItsOwnKeys) {
    FocusOn(Edit());
    Press(VK_F4);
    ASSERT_TRUE(List().IsEditFocused());
    Type(L"item 3");
    EXPECT_EQ(Edit().GetEditText(), L"item 3");
    EXPECT_EQ(ListBar().GetHotRow(), 3) << "the list follows what is typed";
    Press(VK_HOME);
    EXPECT_EQ(ListBar().GetHotRow(), 3);
    Press(VK_DOWN);
    EXPECT_EQ(ListBar().GetHotRow(), 4);
    EXPECT_EQ(Edit().GetEditText(), L"item 3");
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Edit().GetEditText(), L"Item 4");
    EXPECT_EQ(Edit().GetCurSel(), 4);
    EXPECT_THAT(m_frame->commands, ElementsAre(kEdit));
    EXPECT_FALSE(Edit().HasFocus());
}

TEST_F(ComboKeys, TypedTextWithoutARowIsSentByEnter) {
    FocusOn(Edit());
    Press(VK_F4);
    Type(L"other");
    EXPECT_EQ(ListBar().GetHotRow(), -1);
    Press(VK_RETURN);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Edit().GetEditText(), L"other");
    EXPECT_EQ(Edit().GetCurSel(), -1);
    EXPECT_THAT(m_frame->commands, ElementsAre(kEdit));
}

TEST_F(ComboKeys, TypedTextThatIsAnItemsSelectsIt) {
    FocusOn(Edit());
    Edit().GetEditWnd()->SetSel(0, -1);
    Type(L"Item 6");
    Press(VK_RETURN);
    EXPECT_EQ(Edit().GetCurSel(), 6);
    EXPECT_THAT(m_frame->commands, ElementsAre(kEdit));
}

TEST_F(ComboKeys, TheListClosesWhenTheEditWindowLosesTheFocus) {
    FocusOn(Edit());
    Press(VK_F4);
    ASSERT_TRUE(IsOpen());
    m_frame->SetFocus();
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboKeys, EscInTheListLeavesTheTypedText) {
    FocusOn(Edit());
    Press(VK_F4);
    Type(L"text");
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Edit().HasFocus());
    EXPECT_EQ(Edit().GetEditText(), L"text");
}

TEST_F(ComboKeys, OpeningTheListOfAnEditSelectsItsText) {
    Edit().SetEditText(L"text");
    ClickButton(Edit());
    ASSERT_TRUE(IsOpen());
    EXPECT_TRUE(Edit().HasFocus());
    long start = 0;
    long end = 0;
    Edit().GetEditWnd()->GetSel(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_GE(end, 4);
}

TEST_F(ComboKeys, TheFocusOfTheRibbonsKeyboardOpensAPlainCombo) {
    for (const UINT key : {VK_RETURN, VK_SPACE, VK_F4}) {
        Press(VK_F10);
        for (int step = 0; step < 30 && !Plain().IsFocused(); ++step) {
            Press(VK_TAB);
        }
        ASSERT_TRUE(Plain().IsFocused());
        Press(key);
        EXPECT_TRUE(IsOpen()) << key;
        Press(VK_ESCAPE);
        EXPECT_FALSE(IsOpen()) << key;
        EXPECT_TRUE(Plain().IsFocused()) << "the focus is where it was";
        Press(VK_F10);
    }
    Press(VK_F10);
    for (int step = 0; step < 30 && !Plain().IsFocused(); ++step) {
        Press(VK_TAB);
    }
    Press(VK_RETURN);
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_EQ(Plain().GetCurSel(), 0);
    EXPECT_THAT(m_frame->commands, ElementsAre(kPlain));
    EXPECT_FALSE(Plain().IsFocused()) << "a choice gives the focus back to the host";
}

} // namespace
