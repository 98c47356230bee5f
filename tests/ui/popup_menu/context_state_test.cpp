// Context menus from one run to the next.
#include "tests/ui/popup_menu/menu_frame.h"

#include <commctrl.h>

namespace {

class ContextStateTest : public PopupMenuTest {
protected:
    ContextStateTest() { m_manager.AddMenu(L"First", 301); }
    ~ContextStateTest() override { App().CleanState(App().GetRegSectionPath(kProfile)); }
    static CWinAppEx& App() { return *static_cast<CWinAppEx*>(AfxGetApp()); }
    /// Texts and ids, submenus in brackets.
    static std::wstring Describe(HMENU menu) {
        std::wstring text;
        for (int position = 0; position < ::GetMenuItemCount(menu); ++position) {
            wchar_t name[64] = {};
            ::GetMenuStringW(menu, static_cast<UINT>(position), name, 64, MF_BYPOSITION);
            const HMENU inside = ::GetSubMenu(menu, position);
            text += (text.empty() ? L"" : L" ") + std::wstring(*name != 0 ? name : L"-");
            text += inside != nullptr ? L"(" + Describe(inside) + L")" : L"";
        }
        return text;
    }
    std::wstring Shown() const { return Describe(m_manager.GetMenuByName(L"First")); }
    void Add(UINT id, LPCTSTR text) const {
        ::AppendMenuW(::GetSubMenu(m_manager.GetMenuById(301), 0), MF_STRING, id, text);
    }

    static constexpr LPCTSTR kProfile = L"ContextState";
    static constexpr wchar_t kOriginal[] = L"Popup(&One - &Inner(T&wo))";
    CContextMenuManager m_manager;
};

TEST_F(ContextStateTest, AChangedMenuComesBackWithItsChangesAndItsInnerMenus) {
    ASSERT_EQ(Shown(), kOriginal);
    Add(3103, L"Three");
    ::CheckMenuItem(m_manager.GetMenuById(301), 3103, MF_CHECKED);
    ASSERT_TRUE(m_manager.SaveState(kProfile));
    CContextMenuManager next;
    next.AddMenu(L"First", 301);
    ASSERT_TRUE(next.LoadState(kProfile));
    const HMENU menu = next.GetMenuByName(L"First");
    EXPECT_EQ(Describe(menu), L"Popup(&One - &Inner(T&wo) Three)");
    EXPECT_EQ(::GetMenuItemID(::GetSubMenu(menu, 0), 0), 3101u);
    EXPECT_TRUE(::GetMenuState(menu, 3103, MF_BYCOMMAND) & MF_CHECKED);
}

TEST_F(ContextStateTest, ColumnsComeBackWhereTheyBegan) {
    ::AppendMenuW(::GetSubMenu(m_manager.GetMenuById(301), 0), MF_STRING | MF_MENUBREAK, 3103, L"Three");
    ::AppendMenuW(::GetSubMenu(m_manager.GetMenuById(301), 0), MF_STRING | MF_MENUBARBREAK, 3104, L"Four");
    ASSERT_TRUE(m_manager.SaveState(kProfile));
    CContextMenuManager next;
    next.AddMenu(L"First", 301);
    ASSERT_TRUE(next.LoadState(kProfile));
    const HMENU menu = next.GetMenuByName(L"First");
    constexpr UINT kBreaks = MF_MENUBREAK | MF_MENUBARBREAK;
    EXPECT_EQ(::GetMenuState(menu, 3101, MF_BYCOMMAND) & kBreaks, 0u);
    EXPECT_EQ(::GetMenuState(menu, 3103, MF_BYCOMMAND) & kBreaks, static_cast<UINT>(MF_MENUBREAK));
    EXPECT_EQ(::GetMenuState(menu, 3104, MF_BYCOMMAND) & kBreaks, static_cast<UINT>(MF_MENUBARBREAK));
}

TEST_F(ContextStateTest, AMenuThatTheNextRunDoesNotHaveIsPassedOver) {
    ASSERT_TRUE(m_manager.SaveState(kProfile));
    CContextMenuManager next;
    EXPECT_TRUE(next.LoadState(kProfile));
    EXPECT_EQ(next.GetMenuById(301), nullptr);
}

TEST_F(ContextStateTest, WithoutAStateMenusStayAsTheyAre) {
    EXPECT_FALSE(m_manager.LoadState(kProfile));
    EXPECT_EQ(Shown(), kOriginal);
}

TEST_F(ContextStateTest, EveryDamageLeavesTheMenusAsTheyAre) {
    ASSERT_TRUE(m_manager.SaveState(kProfile));
    const CString section = CString(kProfile) + L"\\ContextMenuManager";
    LPBYTE data = nullptr;
    UINT size = 0;
    ASSERT_TRUE(App().GetSectionBinary(section, L"Menus", &data, &size));
    const std::vector<BYTE> whole(data, data + size);
    delete[] data;
    for (UINT length = 0; length < size; ++length) {
        std::vector<BYTE> cut(whole.begin(), whole.begin() + length);
        cut.reserve(1);
        App().WriteSectionBinary(section, L"Menus", cut.data(), length);
        EXPECT_FALSE(m_manager.LoadState(kProfile)) << length;
        ASSERT_EQ(Shown(), kOriginal) << length;
    }
}

TEST_F(ContextStateTest, AResetTakesTheMenusFromTheResourcesAndTellsTheFrameOfEach) {
    static std::vector<WPARAM> told;
    told.clear();
    CWnd* const before = std::exchange(App().m_pMainWnd, m_frame);
    ::SetWindowSubclass(
        m_frame->m_hWnd,
        [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
            if (message == AFX_WM_RESETCONTEXTMENU) {
                told.push_back(wParam);
                ::AppendMenuW(::GetSubMenu(reinterpret_cast<HMENU>(lParam), 0), MF_STRING, 3104, L"Put in");
            }
            return ::DefSubclassProc(window, message, wParam, lParam);
        },
        1, 0);
    Add(3103, L"Three");
    EXPECT_TRUE(m_manager.ResetState());
    EXPECT_EQ(told, std::vector<WPARAM>{301});
    EXPECT_EQ(Shown(), L"Popup(&One - &Inner(T&wo) Put in)");
    App().m_pMainWnd = before;
}

} // namespace
