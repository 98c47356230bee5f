// The page of menus in the customize dialog: context menus are changed by the real mouse and put back.
#include "tests/ui/toolbar/customize_pages.h"

#include <commctrl.h>

namespace {

constexpr int kResetFrame = 1001;
constexpr int kMenus = 1002;
constexpr int kResetMenu = 1003;
constexpr UINT kMenuResource = 310;

class CustomizeMenusTest : public CustomizePageTest {
protected:
    CustomizeMenusTest() {
        m_before = std::exchange(afxContextMenuManager, nullptr);
        m_manager = std::make_unique<CContextMenuManager>();
        m_manager->AddMenu(L"Map", kMenuResource);
    }
    ~CustomizeMenusTest() override {
        Close();
        m_manager.reset();
        afxContextMenuManager = m_before;
    }
    HMENU Popup() const { return ::GetSubMenu(m_manager->GetMenuByName(L"Map"), 0); }
    std::vector<UINT> Shown() const {
        std::vector<UINT> ids;
        for (int position = 0; position < ::GetMenuItemCount(Popup()); ++position) {
            ids.push_back(::GetMenuItemID(Popup(), position));
        }
        return ids;
    }
    /// The bar on the page.
    CMFCToolBar& HostBar() {
        for (POSITION position = CMFCToolBar::GetAllToolbars().GetHeadPosition(); position != nullptr;) {
            auto* const bar = const_cast<CMFCToolBar*>(
                static_cast<const CMFCToolBar*>(CMFCToolBar::GetAllToolbars().GetNext(position)));
            if (::GetParent(bar->m_hWnd) == m_dialog->GetActivePage()->m_hWnd) {
                return *bar;
            }
        }
        ADD_FAILURE() << "there is none";
        return Bar();
    }
    static CPoint OnScreen(const CMFCToolBar& bar, int index) {
        CRect rect;
        bar.GetItemRect(index, rect);
        bar.ClientToScreen(&rect);
        return rect.CenterPoint();
    }
    CPoint OnTab(LPCTSTR text) {
        CTabCtrl& tabs = *m_dialog->GetTabControl();
        CRect rect(0, 0, 0, 0);
        tabs.GetItemRect(FindTab(text), &rect);
        tabs.ClientToScreen(&rect);
        return rect.CenterPoint();
    }
    CString TextOf(UINT position) const {
        wchar_t text[100] = {};
        ::GetMenuStringW(Popup(), position, text, 100, MF_BYPOSITION);
        return text;
    }
    static void Mouse(CPoint screen, DWORD flags) {
        SendMouse(screen, flags);
        PumpPending();
    }
    CMFCPopupMenuBar* OpenMenu() {
        const CPoint at = OnScreen(HostBar(), 0);
        Mouse(at, 0);
        Mouse(at, MOUSEEVENTF_LEFTDOWN);
        Mouse(at, MOUSEEVENTF_LEFTUP);
        CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
        return menu != nullptr ? menu->GetMenuBar() : nullptr;
    }
    static void Drag(CPoint from, CPoint to) {
        Mouse(from, 0);
        Mouse(from, MOUSEEVENTF_LEFTDOWN);
        for (int step = 1; step <= 8; ++step) {
            Mouse(CPoint(from.x + (to.x - from.x) * step / 8, from.y + (to.y - from.y) * step / 8), 0);
        }
        Mouse(to, MOUSEEVENTF_LEFTUP);
    }

    CContextMenuManager* m_before = nullptr;
    std::unique_ptr<CContextMenuManager> m_manager;
};

using Ids = std::vector<UINT>;

TEST_F(CustomizeMenusTest, ACommandThatIsDraggedOffAnOpenContextMenuIsGoneFromItAndComesBackWithReset) {
    ASSERT_EQ(Shown(), (Ids{3041, 3042, 3043}));
    Open();
    ASSERT_TRUE(GoTo(L"Menu"));
    CMFCPopupMenuBar* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    const HMENU handle = m_manager->GetMenuByName(L"Map");
    Drag(OnScreen(*menu, 1), CPoint(20, 20));
    CMFCPopupMenu::CloseAll();
    PumpPending();
    EXPECT_EQ(Shown(), (Ids{3041, 3043}));
    EXPECT_EQ(m_manager->GetMenuByName(L"Map"), handle) << "who holds the menu holds it still";
    EXPECT_TRUE(IsOpen());
    ClickAndAnswer(kResetMenu, IDNO);
    EXPECT_EQ(Shown(), (Ids{3041, 3043}));
    ClickAndAnswer(kResetMenu, IDYES);
    EXPECT_EQ(Shown(), (Ids{3041, 3042, 3043}));
    EXPECT_EQ(m_manager->GetMenuByName(L"Map"), handle);
}

TEST_F(CustomizeMenusTest, ACommandMovesWithinAnOpenContextMenuAndTheDefaultItemStaysIt) {
    ::SetMenuDefaultItem(Popup(), 3043, FALSE);
    Open();
    ASSERT_TRUE(GoTo(L"Menu"));
    CMFCPopupMenuBar* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    Drag(OnScreen(*menu, 2), OnScreen(*menu, 0) + CSize(0, -5));
    CMFCPopupMenu::CloseAll();
    PumpPending();
    EXPECT_EQ(Shown(), (Ids{3043, 3041, 3042}));
    EXPECT_EQ(::GetMenuDefaultItem(Popup(), FALSE, 0), 3043u);
}

TEST_F(CustomizeMenusTest, ACommandOfTheCommandsPageComesOverTheTabOfTheMenuPageIntoItsContextMenu) {
    CMFCToolBarsCustomizeDialog& dialog = Open();
    dialog.AddButton(L"More", CMFCToolBarButton(3099, -1, L"Ninety-nine"));
    constexpr int kCategories = 1001;
    constexpr int kCommands = 1002;
    dialog.FillCategoriesListBox(*static_cast<CListBox*>(dialog.GetActivePage()->GetDlgItem(kCategories)), FALSE);
    Select(kCategories, 1);
    CRect row;
    ::SendMessageW(Item(kCommands), LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    ::MapWindowPoints(Item(kCommands), nullptr, reinterpret_cast<POINT*>(&row), 2);
    const CPoint from(row.left + 20, row.CenterPoint().y);
    Mouse(from, 0);
    Mouse(from, MOUSEEVENTF_LEFTDOWN);
    Mouse(from + CSize(0, 10), 0);
    ASSERT_NE(::GetCapture(), nullptr);
    const CPropertyPage* const before = dialog.GetActivePage();
    Mouse(OnTab(L"Menu"), 0);
    EXPECT_EQ(dialog.GetActivePage(), before) << "only where the pointer rests";
    ASSERT_TRUE(PumpUntil([&] { return dialog.GetActivePage() != before; }));
    ASSERT_NE(::GetCapture(), nullptr) << "the command is still in the hand";
    Mouse(OnScreen(HostBar(), 0), 0);
    ASSERT_TRUE(PumpUntil([] { return CMFCPopupMenu::GetActiveMenu() != nullptr; }));
    CMFCPopupMenuBar& menu = *CMFCPopupMenu::GetActiveMenu()->GetMenuBar();
    const CPoint to = OnScreen(menu, 1) + CSize(0, -5);
    Mouse(to, 0);
    Mouse(to, MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(Shown(), (Ids{3041, 3099, 3042, 3043}));
    EXPECT_EQ(TextOf(1), L"Ninety-nine");
    EXPECT_TRUE(IsOpen());
}

TEST_F(CustomizeMenusTest, ColumnsOfAContextMenuStayWhereTheyBeginWhenItIsChanged) {
    ::ModifyMenuW(Popup(), 1, MF_BYPOSITION | MF_STRING | MF_MENUBREAK, 3042, L"Two");
    ::ModifyMenuW(Popup(), 2, MF_BYPOSITION | MF_STRING | MF_MENUBARBREAK, 3043, L"Three");
    ::AppendMenuW(Popup(), MF_SEPARATOR | MF_MENUBREAK, 0, nullptr);
    ::AppendMenuW(Popup(), MF_STRING, 3044, L"Four");
    constexpr UINT kBreaks = MFT_MENUBREAK | MFT_MENUBARBREAK;
    const auto breaks = [this] {
        std::vector<UINT> found;
        for (int position = 0; position < ::GetMenuItemCount(Popup()); ++position) {
            MENUITEMINFOW info{};
            info.cbSize = sizeof(info);
            info.fMask = MIIM_FTYPE;
            ::GetMenuItemInfoW(Popup(), static_cast<UINT>(position), TRUE, &info);
            found.push_back(info.fType & kBreaks);
        }
        return found;
    };
    ASSERT_EQ(breaks(), (std::vector<UINT>{0, MFT_MENUBREAK, MFT_MENUBARBREAK, MFT_MENUBREAK, 0}));
    Open();
    ASSERT_TRUE(GoTo(L"Menu"));
    CMFCPopupMenuBar* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    Drag(OnScreen(*menu, 0), CPoint(20, 20));
    CMFCPopupMenu::CloseAll();
    PumpPending();
    EXPECT_EQ(Shown(), (Ids{3042, 3043, 0, 3044}));
    EXPECT_EQ(breaks(), (std::vector<UINT>{MFT_MENUBREAK, MFT_MENUBARBREAK, MFT_MENUBREAK, 0}));
}

TEST_F(CustomizeMenusTest, AMenuThatOnlyOpensAndClosesStaysTheSame) {
    Open();
    ASSERT_TRUE(GoTo(L"Menu"));
    const HMENU popup = Popup();
    ASSERT_NE(OpenMenu(), nullptr);
    CMFCPopupMenu::CloseAll();
    PumpPending();
    EXPECT_EQ(Popup(), popup);
    EXPECT_EQ(Contents(), L"3001 3002 | 3003") << "the frame's bars";
}

TEST_F(CustomizeMenusTest, WithoutContextMenusAndAMenuBarThereIsNothingToPutBack) {
    m_manager.reset();
    Open();
    ASSERT_TRUE(GoTo(L"Menu"));
    EXPECT_FALSE(IsEnabled(kMenus));
    EXPECT_FALSE(IsEnabled(kResetMenu));
    EXPECT_FALSE(IsEnabled(kResetFrame));
}

TEST_F(CustomizeMenusTest, TheDialogOfAMirroredFrameRunsFromTheRight) {
    m_frame->ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    const CMFCToolBarsCustomizeDialog& dialog = Open();
    EXPECT_TRUE(dialog.GetExStyle() & WS_EX_LAYOUTRTL);
    ASSERT_TRUE(GoTo(L"Menu"));
    CRect list;
    CRect button;
    ::GetWindowRect(Item(kMenus), &list);
    ::GetWindowRect(Item(kResetMenu), &button);
    EXPECT_LT(button.right, list.left) << "what is behind the list lies at its left";
}

TEST_F(CustomizeMenusTest, TheMenuBarOfTheFrameIsPutBack) {
    CMFCMenuBar menuBar;
    ASSERT_TRUE(menuBar.Create(m_frame));
    const HMENU menu = ::LoadMenuW(AfxGetResourceHandle(), MAKEINTRESOURCEW(kMenuResource));
    menuBar.CreateFromMenu(menu, TRUE, TRUE);
    ASSERT_EQ(menuBar.GetCount(), 1);
    menuBar.InsertButton(CMFCToolBarButton(3001, -1, L"Added"));
    Open();
    ASSERT_TRUE(GoTo(L"Menu"));
    ASSERT_TRUE(IsEnabled(kResetFrame));
    ClickAndAnswer(kResetFrame, IDYES);
    EXPECT_EQ(menuBar.GetCount(), 1);
    Close();
    menuBar.DestroyWindow();
    ::DestroyMenu(menu);
}

} // namespace
