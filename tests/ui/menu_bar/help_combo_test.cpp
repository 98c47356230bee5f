// The field of a menu bar in which the user asks for help.
#include "tests/ui/menu_bar/bar_menu_frame.h"

namespace {

constexpr UINT kAsk = bar_ids::zoom + 1; // a command that the frame notes

class HelpComboTest : public MenuBarTest {
protected:
    HelpComboTest() {
        Bar().EnableHelpCombobox(kAsk, L"Type a question", 120);
        LayOut();
    }
    void LayOut() {
        m_frame->RecalcLayout();
        Bar().AdjustLocations();
        PumpPending();
    }
    CMFCToolBarComboBoxButton& Help() { return *Bar().GetHelpCombobox(); }
    CEdit& Edit() { return *Help().GetEditCtrl(); }
    CRect ClientOfBar() {
        CRect client;
        Bar().GetClientRect(&client);
        return client;
    }
    /// Pixels of the field that differ from its ground.
    int Inked() {
        CRect client;
        Edit().GetClientRect(&client);
        Edit().Invalidate();
        Edit().UpdateWindow();
        CClientDC dc(&Edit());
        int inked = 0;
        for (int y = 0; y < client.Height(); ++y) {
            for (int x = 0; x < client.Width(); ++x) {
                inked += dc.GetPixel(x, y) != ::GetSysColor(COLOR_WINDOW) ? 1 : 0;
            }
        }
        return inked;
    }
    void TypeInto(const wchar_t* text) {
        Edit().SetFocus();
        Keys(Edit().m_hWnd).Type(text);
        PumpPending();
    }
};

TEST_F(HelpComboTest, LiesAtTheRightEndOfTheBarWhateverItsWidth) {
    ASSERT_NE(Bar().GetHelpCombobox(), nullptr);
    for (const int width : {700, 500, 620}) {
        m_frame->SetWindowPos(nullptr, 0, 0, width, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        LayOut();
        const CRect place = Help().Rect();
        EXPECT_NEAR(place.right, ClientOfBar().right, 3) << width;
        EXPECT_NEAR(place.Width(), 120, 8);
        CRect edit;
        Edit().GetWindowRect(&edit);
        Bar().ScreenToClient(&edit);
        EXPECT_TRUE(place.PtInRect(edit.CenterPoint())) << "the field itself, too";
    }
    EXPECT_EQ(Bar().ButtonToIndex(&Help()), Bar().GetCount() - 1) << "the menu's buttons keep their indexes";
}

TEST_F(HelpComboTest, WhereTheMenusNeedTheRoomItHasARowOfItsOwn) {
    m_frame->SetWindowPos(nullptr, 0, 0, 220, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    LayOut();
    CRect last;
    Bar().GetItemRect(Bar().GetCount() - 2, last);
    EXPECT_GE(Help().Rect().top, last.bottom - 1);
    EXPECT_NEAR(Help().Rect().right, ClientOfBar().right, 3);
}

TEST_F(HelpComboTest, EnterSendsTheCommandWithWhatWasTyped) {
    TypeInto(L"How do I save?");
    EXPECT_TRUE(m_frame->commands.empty());
    Keys(Edit().m_hWnd).Press(VK_RETURN);
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{kAsk});
    EXPECT_STREQ(Help().GetText(), L"How do I save?");
}

TEST_F(HelpComboTest, EscapeGivesTheKeyboardBackToTheFrameAndTakesTheTextBack) {
    TypeInto(L"abc");
    Keys(Edit().m_hWnd).Press(VK_ESCAPE);
    PumpPending();
    EXPECT_STREQ(Help().GetText(), L"");
    EXPECT_FALSE(Help().HasFocus());
}

TEST_F(HelpComboTest, ShowsItsPromptWhileItIsEmptyAndInactive) {
    m_frame->SetFocus();
    const int prompt = Inked();
    EXPECT_GT(prompt, 20);
    Edit().SetFocus();
    Edit().HideCaret();
    EXPECT_LT(Inked(), prompt / 2) << "gone while one types";
    m_frame->SetFocus();
    EXPECT_EQ(Inked(), prompt) << "and back";
    Bar().EnableHelpCombobox(kAsk);
    LayOut();
    EXPECT_EQ(Inked(), 0) << "without a prompt there is none";
}

TEST_F(HelpComboTest, TheKeyboardWalksToItAndEntersIt) {
    PressAlt();
    m_keys.Press(VK_END);
    EXPECT_EQ(HotIndex(), Bar().GetCount() - 1);
    m_keys.Press(VK_RETURN);
    EXPECT_TRUE(Help().HasFocus());
    EXPECT_FALSE(Bar().IsKeyboardActive());
}

TEST_F(HelpComboTest, OpenMenusPassItBy) {
    ClickButton(0);
    ASSERT_EQ(OpenIndex(), 0);
    m_keys.Press(VK_LEFT);
    EXPECT_EQ(OpenIndex(), Bar().GetCount() - 2) << "the last menu";
    m_pointer.MoveTo(Bar().m_hWnd, CenterOf(Bar().GetCount() - 1));
    EXPECT_EQ(OpenIndex(), Bar().GetCount() - 2) << "the pointer over the field leaves it open";
}

TEST_F(HelpComboTest, KeepsItsTextAndItsListWhenTheMenuIsBuiltAnew) {
    Help().AddItem(L"Printing");
    TypeInto(L"abc");
    Bar().CreateFromMenu(Bar().GetHMenu(), TRUE, TRUE);
    LayOut();
    ASSERT_NE(Bar().GetHelpCombobox(), nullptr);
    EXPECT_STREQ(Help().GetText(), L"abc");
    EXPECT_STREQ(Help().GetItem(0), L"Printing");
    EXPECT_EQ(Help().GetPrompt(), L"Type a question");
    EXPECT_NEAR(Help().Rect().right, ClientOfBar().right, 3);
}

TEST_F(HelpComboTest, SettingsNeitherKeepItNorTakeItAway) {
    ASSERT_TRUE(Bar().SaveState(L"HelpCombo"));
    ASSERT_TRUE(Bar().LoadState(L"HelpCombo"));
    EXPECT_NE(Bar().GetHelpCombobox(), nullptr);
    Bar().EnableHelpCombobox(0);
    ASSERT_TRUE(Bar().LoadState(L"HelpCombo"));
    EXPECT_EQ(Bar().GetHelpCombobox(), nullptr) << "a program that shows none gets none";
    Bar().RemoveStateFromRegistry(L"HelpCombo");
}

TEST_F(HelpComboTest, ZeroTakesItAwayAndAnotherCommandTakesItsPlace) {
    const int count = Bar().GetCount();
    Bar().EnableHelpCombobox(kAsk + 1, L"Other");
    EXPECT_EQ(Bar().GetCount(), count);
    EXPECT_EQ(Help().m_nID, kAsk + 1);
    Bar().EnableHelpCombobox(0);
    EXPECT_EQ(Bar().GetHelpCombobox(), nullptr);
    EXPECT_EQ(Bar().GetCount(), count - 1);
}

// ---- items that cannot be chosen

TEST_F(MenuBarTest, DisabledItemsAreHotUnderThePointerWhenTheProgramWantsIt) {
    EXPECT_FALSE(CMFCMenuBar::IsHighlightDisabledItems());
    for (const BOOL highlights : {FALSE, TRUE}) {
        CMFCMenuBar::HighlightDisabledItems(highlights);
        ClickButton(0);
        RunIdle();
        CMFCPopupMenuBar& menu = *Active()->GetMenuBar();
        const int row = menu.CommandToIndex(bar_ids::close);
        ASSERT_TRUE(menu.GetButtonStyle(row) & TBBS_DISABLED);
        CRect rect;
        menu.GetItemRect(row, rect);
        m_pointer.MoveTo(menu.m_hWnd, CPoint(2, 2));
        m_pointer.MoveTo(menu.m_hWnd, rect.CenterPoint());
        EXPECT_EQ(menu.IsButtonHighlighted(row), highlights);
        m_pointer.Click(menu.m_hWnd, rect.CenterPoint());
        PumpPending();
        EXPECT_TRUE(m_frame->commands.empty()) << "it does nothing all the same";
        CMFCPopupMenu::CloseAll();
        PumpPending();
    }
    CMFCMenuBar::HighlightDisabledItems(FALSE);
}

} // namespace
