#include "tests/ui/popup_menu/menu_frame.h"

class PopupMenuKeyTest : public PopupMenuTest {
protected:
    Keys m_keys{m_window};
    CString HotText() {
        CMFCToolBarMenuButton* item = Active() ? Active()->GetSelItem() : nullptr;
        return item ? item->m_strText : CString();
    }
};

TEST_F(PopupMenuKeyTest, ArrowsWalkOverEnabledItemsAndAround) {
    Open();
    EXPECT_EQ(HotText(), L"");
    const LPCTSTR down[] = {L"&Open", L"&Recent", L"C&hecked", L"&Open"};
    for (const LPCTSTR expected : down) {
        m_keys.Press(VK_DOWN);
        EXPECT_EQ(HotText(), expected);
    }
    m_keys.Press(VK_UP);
    EXPECT_EQ(HotText(), L"C&hecked");
    m_keys.Press(VK_HOME);
    EXPECT_EQ(HotText(), L"&Open");
    m_keys.Press(VK_END);
    EXPECT_EQ(HotText(), L"C&hecked");
}

TEST_F(PopupMenuKeyTest, RightOpensAChildWithItsFirstItemHotAndLeftComesBack) {
    CMFCPopupMenu* menu = Open();
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_RIGHT);
    ASSERT_NE(Active(), menu);
    EXPECT_EQ(HotText(), L"&First");
    m_keys.Press(VK_UP);
    EXPECT_EQ(HotText(), L"&More");
    m_keys.Press(VK_LEFT);
    EXPECT_EQ(Active(), menu);
    EXPECT_EQ(HotText(), L"&Recent");
}

TEST_F(PopupMenuKeyTest, EscClosesOneMenuAtATime) {
    CMFCPopupMenu* menu = Open();
    CMFCPopupMenu* child = OpenChild(menu, L"&Recent");
    OpenChild(child, L"&More");
    m_keys.Press(VK_ESCAPE);
    EXPECT_EQ(Active(), child);
    m_keys.Press(VK_ESCAPE);
    EXPECT_EQ(Active(), menu);
    m_keys.Press(VK_ESCAPE);
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuKeyTest, EnterChoosesTheHotItem) {
    Open();
    m_keys.Press(VK_DOWN);
    m_keys.Press(VK_RETURN);
    PumpPending();
    EXPECT_EQ(Active(), nullptr);
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::open});
}

TEST_F(PopupMenuKeyTest, AMnemonicChoosesAtOnceAndOpensSubmenus) {
    Open();
    m_keys.Type(L"r");
    EXPECT_EQ(HotText(), L"&First");
    m_keys.Type(L"s");
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::second});
    EXPECT_EQ(Active(), nullptr);
}

TEST_F(PopupMenuKeyTest, AMnemonicGoesBeforeTheFirstLetterOfAnotherItem) {
    CMFCPopupMenu* menu = Open();
    menu->InsertItem(CMFCToolBarMenuButton(7002, nullptr, -1, L"Other"), 0);
    Keys(m_window).Type(L"o");
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::open});
}

TEST_F(PopupMenuKeyTest, AMnemonicOfAnyScriptIsFoundInAnyCase) {
    struct Marked {
        LPCTSTR text;
        LPCTSTR typed;
    };
    // German, Russian, Greek; the last has no mark: its first letter counts.
    constexpr Marked kMarked[] = {{L"&\x00D6"
                                   L"ffnen",
                                   L"\x00F6"},
                                  {L"&\x0444\x0430\x0439\x043B", L"\x0424"},
                                  {L"\x0388&\x03BE\x03BF\x03B4\x03BF\x03C2", L"\x03BE"},
                                  {L"\x00E9"
                                   L"diter",
                                   L"\x00C9"}};
    for (const Marked& marked : kMarked) {
        SCOPED_TRACE(static_cast<int>(marked.typed[0]));
        CMenu items;
        items.CreatePopupMenu();
        items.AppendMenu(MF_STRING, menu_ids::first, L"First");
        items.AppendMenu(MF_STRING, menu_ids::open, marked.text);
        m_frame->commands.clear();
        ASSERT_TRUE((new CMFCPopupMenu)->Create(m_frame, 200, 200, items.Detach()));
        m_keys.Type(marked.typed);
        PumpPending();
        EXPECT_EQ(m_frame->commands, std::vector<UINT>{menu_ids::open});
        CMFCPopupMenu::CloseAll();
    }
}

TEST_F(PopupMenuKeyTest, AnUnknownCharacterDoesNothingAndReachesNobody) {
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), m_frame, 7);
    CMFCPopupMenu* menu = Open();
    Keys(edit.m_hWnd).Type(L"x");
    EXPECT_EQ(Active(), menu);
    EXPECT_EQ(edit.GetWindowTextLength(), 0);
    menu->CloseMenu();
    Keys(edit.m_hWnd).Type(L"x");
    EXPECT_EQ(edit.GetWindowTextLength(), 1);
}

TEST_F(PopupMenuKeyTest, AMenuOpenedByAKeyBeginsWithItsFirstItemHot) {
    auto* menu = new CMFCPopupMenu;
    menu->SetOpenedByKey();
    ASSERT_TRUE(menu->Create(m_frame, 200, 200, MakeMenu()));
    EXPECT_EQ(HotText(), L"&Open");
    EXPECT_TRUE(menu->GetMenuBar()->ShowsMnemonics());
}

TEST_F(PopupMenuKeyTest, TheWheelStaysInTheMenu) {
    Open();
    MSG wheel = {m_window, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0, 0, {0, 0}};
    EXPECT_TRUE(AfxPreTranslateMessage(&wheel));
    Active()->CloseMenu();
    EXPECT_FALSE(AfxPreTranslateMessage(&wheel));
}
