// What users change in the menus of bars: buttons dropped among their items, items dragged out of them.
#include "tests/ui/toolbar/bar_frame.h"
#include "toolbar/menu_pairs.h"

#include <functional>

#include <commctrl.h>

namespace {

/// May veto what leaves its menus.
class VetoMenuBar : public CMFCMenuBar {
public:
    std::function<BOOL(CMFCToolBarButton*)> onRemove;

    BOOL OnBeforeRemoveButton(CMFCToolBarButton* button, DROPEFFECT effect) override {
        return onRemove ? onRemove(button) : CMFCMenuBar::OnBeforeRemoveButton(button, effect);
    }
};

CString Describe(const CObList& buttons) {
    CString text;
    for (POSITION position = buttons.GetHeadPosition(); position != nullptr;) {
        const auto& button = *static_cast<const CMFCToolBarButton*>(buttons.GetNext(position));
        const auto* const opener = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, &button);
        CString part(L"|");
        if (opener != nullptr && !opener->GetCommands().IsEmpty()) {
            part = opener->m_strText + L"(" + Describe(opener->GetCommands()) + L")";
        } else if ((button.m_nStyle & TBBS_SEPARATOR) == 0) {
            part.Format(L"%u", button.m_nID);
        }
        text += (text.IsEmpty() ? L"" : L" ") + part;
    }
    return text;
}

HMENU PopupOf(std::initializer_list<UINT> commands) {
    const HMENU popup = ::CreatePopupMenu();
    for (const UINT command : commands) {
        CString text;
        text.Format(L"Item %u", command);
        ::AppendMenuW(popup, command == 0 ? MF_SEPARATOR : MF_STRING, command, text);
    }
    return popup;
}

/// "File(3101 3102 | Recent(3103)) Edit(3104)" in a menu bar above the toolbar "3001 3002 | 3003".
class MenuCustomizeTest : public ToolBarTest {
protected:
    MenuCustomizeTest() {
        const HMENU file = PopupOf({3101, 3102, 0});
        ::AppendMenuW(file, MF_POPUP, reinterpret_cast<UINT_PTR>(PopupOf({3103})), L"Recent");
        ::AppendMenuW(m_menu, MF_POPUP, reinterpret_cast<UINT_PTR>(file), L"File");
        ::AppendMenuW(m_menu, MF_POPUP, reinterpret_cast<UINT_PTR>(PopupOf({3104})), L"Edit");
        m_menuBar.Create(m_frame);
        m_menuBar.CreateFromMenu(m_menu, TRUE, TRUE);
        LayOut();
        m_menuBar.AdjustLocations();
        CMFCToolBar::SetCustomizeMode();
    }
    ~MenuCustomizeTest() override {
        CMFCToolBar::EnableQuickCustomization(FALSE);
        CMFCToolBar::SetCustomizeMode(FALSE);
        CMFCPopupMenu::CloseAll();
        m_menuBar.DestroyWindow();
        ::DestroyMenu(m_menu);
    }

    CString Menus() { return Describe(m_menuBar.GetAllButtons()); }
    static CPoint OnScreen(CMFCToolBar& bar, int index, double part = 0.5) {
        CRect rect;
        bar.GetItemRect(index, rect);
        bar.ClientToScreen(&rect);
        return CPoint(rect.CenterPoint().x, rect.top + static_cast<int>(rect.Height() * part));
    }
    static CPoint OnRow(CMFCPopupMenu& menu, int row, double part = 0.5) {
        return OnScreen(*menu.GetMenuBar(), row, part);
    }
    void Take(CMFCToolBar& bar, int index) {
        m_pointer.MoveTo(OnScreen(bar, index));
        m_pointer.Press();
    }
    void Drop() {
        m_pointer.Release();
        PumpPending();
    }
    /// With something in the hand the pointer rests there until another menu is open.
    CMFCPopupMenu* RestAt(CPoint screen) {
        const CMFCPopupMenu* const before = CMFCPopupMenu::GetActiveMenu();
        m_pointer.MoveTo(screen);
        EXPECT_TRUE(PumpUntil([before] { return CMFCPopupMenu::GetActiveMenu() != before; }));
        return CMFCPopupMenu::GetActiveMenu();
    }
    CMFCPopupMenu* OpenByClick(int index) {
        m_pointer.Click(m_menuBar.m_hWnd, CenterIn(m_menuBar, index));
        PumpPending();
        return CMFCPopupMenu::GetActiveMenu();
    }
    static CPoint CenterIn(CMFCToolBar& bar, int index) {
        CRect rect;
        bar.GetItemRect(index, rect);
        return rect.CenterPoint();
    }

    HMENU m_menu = ::CreateMenu();
    VetoMenuBar m_menuBar;
    Keys m_keys;
};

TEST_F(MenuCustomizeTest, AButtonThatRestsOnAMenuIsDroppedBeforeTheRowWhoseMiddleLiesBeyondThePointer) {
    Take(Bar(), 0);
    CMFCPopupMenu* const file = RestAt(OnScreen(m_menuBar, 0));
    ASSERT_NE(file, nullptr);
    m_pointer.MoveTo(OnRow(*file, 1, 0.3));
    Drop();
    EXPECT_EQ(Menus(), L"File(3101 3001 3102 | Recent(3103)) Edit(3104)");
    EXPECT_EQ(Contents(), L"3002 | 3003");
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(MenuCustomizeTest, TheDroppedItemSendsItsCommandOnceTheModeHasEnded) {
    Take(Bar(), 1);
    CMFCPopupMenu* const file = RestAt(OnScreen(m_menuBar, 0));
    ASSERT_NE(file, nullptr);
    m_pointer.MoveTo(OnRow(*file, 0, 0.3));
    Drop();
    ASSERT_EQ(Menus(), L"File(3002 3101 3102 | Recent(3103)) Edit(3104)");
    CMFCToolBar::SetCustomizeMode(FALSE);
    CMFCPopupMenu* const again = OpenByClick(0);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->GetMenuItem(0)->m_strText, L"T&wo");
    m_pointer.MoveTo(OnRow(*again, 0));
    m_pointer.Press();
    Drop();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{3002});
}

TEST_F(MenuCustomizeTest, WithCtrlACopyIsDroppedAndBehindTheLastRowIsTheEnd) {
    m_keys.Hold(VK_CONTROL);
    Take(Bar(), 0);
    CMFCPopupMenu* const edit = RestAt(OnScreen(m_menuBar, 1));
    ASSERT_NE(edit, nullptr);
    m_pointer.MoveTo(OnRow(*edit, 0, 0.8));
    Drop();
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104 3001)");
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

TEST_F(MenuCustomizeTest, OutsideOfTheModeAltDragsIntoMenusAndItsRepeatedKeyClosesNone) {
    CMFCToolBar::SetCustomizeMode(FALSE);
    CMFCToolBar::EnableQuickCustomization();
    m_keys.Hold(VK_MENU);
    Take(Bar(), 0);
    CMFCPopupMenu* const edit = RestAt(OnScreen(m_menuBar, 1));
    ASSERT_NE(edit, nullptr);
    Keys(m_frame->m_hWnd).Down(VK_MENU);
    ASSERT_EQ(CMFCPopupMenu::GetActiveMenu(), edit);
    m_pointer.MoveTo(OnRow(*edit, 0, 0.2));
    Drop();
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3001 3104)");
    EXPECT_EQ(Contents(), L"3002 | 3003");
}

TEST_F(MenuCustomizeTest, AMenuBelowAnotherOpensUnderThePointerTooAndTakesTheButton) {
    Take(Bar(), 0);
    CMFCPopupMenu* const file = RestAt(OnScreen(m_menuBar, 0));
    ASSERT_NE(file, nullptr);
    CMFCPopupMenu* const recent = RestAt(OnRow(*file, 3));
    ASSERT_NE(recent, nullptr);
    ASSERT_EQ(recent->GetParentPopupMenu(), file);
    m_pointer.MoveTo(OnRow(*recent, 0, 0.2));
    Drop();
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3001 3103)) Edit(3104)");
}

TEST_F(MenuCustomizeTest, OnTheMenuBarItselfNothingIsDroppedAndNothingRemoved) {
    Take(Bar(), 0);
    m_pointer.MoveTo(OnScreen(m_menuBar, 1));
    Drop();
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104)");
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

TEST_F(MenuCustomizeTest, EscEndsTheDragAndClosesTheMenu) {
    Take(Bar(), 0);
    CMFCPopupMenu* const file = RestAt(OnScreen(m_menuBar, 0));
    ASSERT_NE(file, nullptr);
    m_pointer.MoveTo(OnRow(*file, 0));
    Keys(m_frame->m_hWnd).Press(VK_ESCAPE);
    Drop();
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104)");
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

TEST_F(MenuCustomizeTest, AClickOpensAMenuWhoseItemsDoNothing) {
    CMFCPopupMenu* const file = OpenByClick(0);
    ASSERT_NE(file, nullptr);
    m_pointer.MoveTo(OnRow(*file, 0));
    m_pointer.Press();
    Drop();
    Keys(m_frame->m_hWnd).Press(VK_DOWN);
    Keys(m_frame->m_hWnd).Press(VK_RETURN);
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104)");
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), file) << "it is there to be changed";
}

TEST_F(MenuCustomizeTest, AnItemMovesWithinItsMenu) {
    CMFCPopupMenu* const file = OpenByClick(0);
    ASSERT_NE(file, nullptr);
    m_pointer.MoveTo(OnRow(*file, 0));
    m_pointer.Press();
    m_pointer.MoveTo(OnRow(*file, 1, 0.8));
    Drop();
    EXPECT_EQ(Menus(), L"File(3102 3101 | Recent(3103)) Edit(3104)");
}

TEST_F(MenuCustomizeTest, AnItemBecomesAButtonOfAToolbar) {
    CMFCPopupMenu* const edit = OpenByClick(1);
    ASSERT_NE(edit, nullptr);
    m_keys.Hold(VK_CONTROL); // a copy
    m_pointer.MoveTo(OnRow(*edit, 0));
    m_pointer.Press();
    m_pointer.MoveTo(OnScreen(Bar(), 0) + CSize(-6, 0));
    Drop();
    EXPECT_EQ(Contents(), L"3104 3001 3002 | 3003");
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104)");
    EXPECT_FALSE(Bar().GetButton(0)->IsKindOf(RUNTIME_CLASS(CMFCToolBarMenuButton)));
    EXPECT_EQ(Bar().GetButton(0)->m_strText, L"Item 3104");
}

TEST_F(MenuCustomizeTest, AWholeMenuBecomesAButtonThatOpensIt) {
    CMFCPopupMenu* const file = OpenByClick(0);
    ASSERT_NE(file, nullptr);
    m_pointer.MoveTo(OnRow(*file, 3));
    m_pointer.Press();
    CMFCPopupMenu* const edit = RestAt(OnScreen(m_menuBar, 1));
    ASSERT_NE(edit, nullptr) << "which uncovers the left of the toolbar";
    m_pointer.MoveTo(OnScreen(Bar(), 0) + CSize(-6, 0));
    Drop();
    EXPECT_EQ(Describe(Bar().GetAllButtons()), L"Recent(3103) 3001 3002 | 3003");
    EXPECT_EQ(Menus(), L"File(3101 3102 |) Edit(3104)");
}

TEST_F(MenuCustomizeTest, BesideBarsAndMenusAnItemIsRemovedUnlessItsBarKeepsIt) {
    UINT asked = 0;
    m_menuBar.onRemove = [&asked](CMFCToolBarButton* item) {
        asked = item->m_nID;
        return item->m_nID != 3101;
    };
    for (const int row : {0, 1}) {
        CMFCPopupMenu* const file = OpenByClick(0);
        ASSERT_NE(file, nullptr);
        m_pointer.MoveTo(OnRow(*file, row));
        m_pointer.Press();
        m_pointer.MoveTo(CPoint(600, 440));
        Drop();
        EXPECT_EQ(asked, 3101u + static_cast<UINT>(row));
    }
    EXPECT_EQ(Menus(), L"File(3101 | Recent(3103)) Edit(3104)");
}

TEST_F(MenuCustomizeTest, AMenuCannotComeToLieInItself) {
    CMFCPopupMenu* const file = OpenByClick(0);
    ASSERT_NE(file, nullptr);
    m_pointer.MoveTo(OnRow(*file, 3));
    m_pointer.Press();
    m_pointer.MoveTo(OnRow(*file, 0));
    CMFCPopupMenu* const recent = RestAt(OnRow(*file, 3));
    ASSERT_NE(recent, nullptr);
    m_pointer.MoveTo(OnRow(*recent, 0));
    Drop();
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104)");
}

TEST_F(MenuCustomizeTest, AWholeMenuMovesIntoAnother) {
    CMFCPopupMenu* const file = OpenByClick(0);
    ASSERT_NE(file, nullptr);
    m_pointer.MoveTo(OnRow(*file, 3));
    m_pointer.Press();
    CMFCPopupMenu* const edit = RestAt(OnScreen(m_menuBar, 1));
    ASSERT_NE(edit, nullptr);
    m_pointer.MoveTo(OnRow(*edit, 0, 0.8));
    Drop();
    EXPECT_EQ(Menus(), L"File(3101 3102 |) Edit(3104 Recent(3103))");
}

TEST_F(MenuCustomizeTest, TheMenuOfAToolbarsButtonTakesButtonsToo) {
    CMFCToolBarMenuButton more(static_cast<UINT>(-1), nullptr, -1, L"More");
    const HMENU popup = PopupOf({3105});
    more.CreateFromMenu(popup);
    ::DestroyMenu(popup);
    Bar().InsertButton(more);
    LayOut();
    Take(Bar(), 0);
    CMFCPopupMenu* const open = RestAt(OnScreen(Bar(), 4));
    ASSERT_NE(open, nullptr);
    m_pointer.MoveTo(OnRow(*open, 0, 0.2));
    Drop();
    EXPECT_EQ(Describe(Bar().GetAllButtons()), L"3002 | 3003 More(3001 3105)");
    ASSERT_TRUE(Bar().RestoreOriginalState());
    EXPECT_EQ(Describe(Bar().GetAllButtons()), L"3001 3002 | 3003 More(3105)");
}

TEST_F(MenuCustomizeTest, ResetAllPutsTheMenusBack) {
    CMFCPopupMenu* const edit = OpenByClick(1);
    ASSERT_NE(edit, nullptr);
    m_pointer.MoveTo(OnRow(*edit, 0));
    m_pointer.Press();
    m_pointer.MoveTo(CPoint(600, 440));
    Drop();
    ASSERT_NE(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104)");
    CMFCToolBar::ResetAll();
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104)");
}

TEST_F(MenuCustomizeTest, WhatMenusHoldIsKeptForTheNextRun) {
    Take(Bar(), 0);
    CMFCPopupMenu* const edit = RestAt(OnScreen(m_menuBar, 1));
    ASSERT_NE(edit, nullptr);
    m_pointer.MoveTo(OnRow(*edit, 0, 0.2));
    Drop();
    ASSERT_TRUE(m_menuBar.SaveState(L"Menus"));
    m_menuBar.RestoreOriginalState();
    ASSERT_TRUE(m_menuBar.LoadState(L"Menus"));
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3001 3104)");
    m_menuBar.RemoveStateFromRegistry(L"Menus");
}

TEST_F(MenuCustomizeTest, AMenuThatBelongsToNoBarTakesNothingAndKeepsTheButtonFromBeingRemoved) {
    Take(Bar(), 0);
    m_pointer.MoveTo(OnScreen(Bar(), 1));
    auto* const context = new CMFCPopupMenu;
    ASSERT_TRUE(context->Create(m_frame, 500, 300, PopupOf({3106})));
    m_pointer.MoveTo(OnRow(*context, 0));
    Drop();
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
}

TEST_F(MenuCustomizeTest, ABarMayEndWhileItIsAskedForAnItem) {
    CMFCPopupMenu* const file = OpenByClick(0);
    ASSERT_NE(file, nullptr);
    m_menuBar.onRemove = [this](CMFCToolBarButton*) { return m_menuBar.DestroyWindow(); };
    m_pointer.MoveTo(OnRow(*file, 0));
    m_pointer.Press();
    m_pointer.MoveTo(CPoint(600, 440));
    Drop();
    EXPECT_EQ(m_menuBar.m_hWnd, nullptr);
    EXPECT_EQ(Menus(), L"File(3101 3102 | Recent(3103)) Edit(3104)") << "nobody has touched it since";
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
}

TEST_F(MenuCustomizeTest, AFrameMayEndWhileAMenuOpensUnderADragAndTheNextMenuWorksAsEver) {
    const auto endsFrame = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
        if (message == WM_INITMENUPOPUP) {
            ::DestroyWindow(window);
            return 0;
        }
        return ::DefSubclassProc(window, message, wParam, lParam);
    };
    ::SetWindowSubclass(m_window, endsFrame, 1, 0);
    Take(Bar(), 0);
    m_pointer.MoveTo(OnScreen(m_menuBar, 0));
    EXPECT_TRUE(PumpUntil([this] { return !::IsWindow(m_window); }));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    auto* const other = new CFrameWnd; // deletes itself with its window
    ASSERT_TRUE(other->Create(nullptr, L"Another", WS_OVERLAPPEDWINDOW, CRect(100, 80, 500, 300)));
    auto* const menu = new CMFCPopupMenu;
    ASSERT_TRUE(menu->Create(other, 200, 150, PopupOf({3106})));
    Keys(other->m_hWnd).Press(VK_ESCAPE);
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr) << "the drag that has ended still took the keys";
    other->DestroyWindow();
}

// ---- rows and items

using toolbar::MenuKey;
using toolbar::PairRows;
using toolbar::PlaceBeforeRow;

MenuKey Command(std::uint32_t id) { return {MenuKey::Kind::Command, id, {}}; }
MenuKey Popup(const wchar_t* label) { return {MenuKey::Kind::Popup, 0, label}; }
MenuKey Line() { return {MenuKey::Kind::Line, 0, {}}; }

TEST(MenuPairs, RowsFindTheItemsThatTheyWereMadeFrom) {
    const std::vector<MenuKey> items{Command(1), Line(), Command(2), Popup(L"More"), Command(1)};
    EXPECT_EQ(PairRows(items, items), (std::vector<int>{0, -1, 2, 3, 4}));
    EXPECT_EQ(PairRows({Command(1), Command(1)}, items), (std::vector<int>{0, 4})) << "one command twice";
    EXPECT_EQ(PairRows({Popup(L"Other"), Command(2)}, items), (std::vector<int>{-1, 2}));
    EXPECT_EQ(PairRows({}, items), std::vector<int>{});
    EXPECT_EQ(PairRows({Command(7)}, {}), std::vector<int>{-1});
}

TEST(MenuPairs, WhatTheProgramPutIntoTheOpenMenuIsPassedOver) {
    const std::vector<MenuKey> items{Command(1), Command(57616), Command(2)};
    const std::vector<MenuKey> rows{Command(1), Command(57616), Command(57617), Command(57618), Command(2)};
    EXPECT_EQ(PairRows(rows, items), (std::vector<int>{0, 1, -1, -1, 2}));
    EXPECT_EQ(PlaceBeforeRow(rows, items, 3), 2) << "behind the item that all of them stand for";
    EXPECT_EQ(PlaceBeforeRow(rows, items, 4), 2);
    EXPECT_EQ(PlaceBeforeRow(rows, items, 5), 3);
}

TEST(MenuPairs, APlaceBeforeALineIsBeforeItAndOneBehindItBehindIt) {
    const std::vector<MenuKey> items{Command(1), Line(), Command(2), Line()};
    EXPECT_EQ(PlaceBeforeRow(items, items, 1), 1);
    EXPECT_EQ(PlaceBeforeRow(items, items, 2), 2);
    EXPECT_EQ(PlaceBeforeRow(items, items, 3), 3);
    EXPECT_EQ(PlaceBeforeRow(items, items, 4), 4);
}

TEST(MenuPairs, WithoutAnyItemBeforeItAPlaceIsTheFirst) {
    EXPECT_EQ(PlaceBeforeRow({Command(8), Command(9)}, {Command(1)}, 1), 0);
    EXPECT_EQ(PlaceBeforeRow({}, {}, 0), 0);
    EXPECT_EQ(PlaceBeforeRow({Command(1)}, {Command(1)}, -1), 0);
    EXPECT_EQ(PlaceBeforeRow({Command(1)}, {Command(1)}, 99), 1);
}

} // namespace
