// A combo box on a docked toolbar.
#include "afxtoolbarcomboboxbutton.h"

#include "tests/ui/toolbar/bar_frame.h"

#include <string>

namespace {

constexpr UINT comboCommand = 3050;

/// Writes down the codes of the notifications that reach the toolbar's owner.
class CodeWatcher : public CWnd {
public:
    std::vector<int> codes;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND && LOWORD(wParam) == comboCommand) {
            codes.push_back(HIWORD(wParam));
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class ComboButtonTest : public ToolBarTest {
protected:
    ComboButtonTest() {
        CMFCToolBarComboBoxButton button(comboCommand, 3, CBS_DROPDOWNLIST, 120);
        button.AddItem(L"red", 10);
        button.AddItem(L"green", 20);
        button.AddItem(L"blue", 30);
        button.SelectItem(1, FALSE);
        Bar().InsertButton(button);
        LayOut();
    }
    CMFCToolBarComboBoxButton& Combo() { return *CMFCToolBarComboBoxButton::GetByCmd(comboCommand); }
    CRect WindowInBar() {
        CRect rect;
        Combo().GetComboBox()->GetWindowRect(&rect);
        Bar().ScreenToClient(&rect);
        return rect;
    }
    /// On the drop button, which is the toolbar's.
    CPoint DropButton() {
        const CRect rect = WindowInBar();
        return CPoint(rect.right - 6, rect.CenterPoint().y);
    }
};

TEST_F(ComboButtonTest, TheToolbarsCopyHasAWindowWithTheItemsAndTheSelection) {
    ASSERT_NE(Combo().GetComboBox(), nullptr);
    EXPECT_EQ(::GetParent(Combo().GetHwnd()), Bar().m_hWnd);
    EXPECT_EQ(Combo().GetComboBox()->GetCount(), 3);
    EXPECT_EQ(Combo().GetComboBox()->GetCurSel(), 1);
    EXPECT_EQ(Combo().GetComboBox()->GetItemData(2), 30u);
    EXPECT_EQ(CString(Combo().GetText()), L"green");
    EXPECT_TRUE(Combo().IsWindowVisible());
}

TEST_F(ComboButtonTest, TheWindowLiesInsideTheButtonAndHasItsWidth) {
    const CRect window = WindowInBar();
    CRect button = Combo().Rect();
    EXPECT_GE(window.left, button.left);
    EXPECT_LE(window.right, button.right);
    EXPECT_GE(window.top, button.top);
    EXPECT_LE(window.bottom, button.bottom);
    EXPECT_EQ(window.Width(), afxGlobalData.ScalePixels(120));
}

TEST_F(ComboButtonTest, TheWindowFollowsTheButton) {
    const int before = WindowInBar().left;
    Bar().RemoveButton(0);
    LayOut();
    EXPECT_LT(WindowInBar().left, before);
    EXPECT_GE(WindowInBar().left, Combo().Rect().left);
}

TEST_F(ComboButtonTest, AHiddenButtonHidesTheWindow) {
    Combo().Show(FALSE);
    LayOut();
    EXPECT_FALSE(Combo().IsWindowVisible());
    Combo().Show(TRUE);
    LayOut();
    EXPECT_TRUE(Combo().IsWindowVisible());
}

TEST_F(ComboButtonTest, RemovingTheButtonDestroysTheWindow) {
    const HWND window = Combo().GetHwnd();
    Bar().RemoveButton(Bar().CommandToIndex(comboCommand));
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(ComboButtonTest, TheUpdateHandlerDisablesTheWindow) {
    m_frame->disabled = comboCommand;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_FALSE(::IsWindowEnabled(Combo().GetHwnd()));
    m_frame->disabled = 0;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_TRUE(::IsWindowEnabled(Combo().GetHwnd()));
}

TEST_F(ComboButtonTest, APressOnTheDropButtonOpensTheListAndSendsNoCommand) {
    m_pointer.Click(Bar().m_hWnd, DropButton());
    EXPECT_TRUE(Combo().IsDroppedDown());
    EXPECT_TRUE(m_frame->commands.empty());
    m_pointer.Click(Bar().m_hWnd, DropButton());
    EXPECT_FALSE(Combo().IsDroppedDown());
}

TEST_F(ComboButtonTest, AChoiceInTheListIsTheCommandOnce) {
    CComboBox& window = *Combo().GetComboBox();
    window.ShowDropDown(TRUE);
    COMBOBOXINFO info{};
    window.GetComboBoxInfo(&info);
    RECT row{};
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&row));
    m_pointer.Click(info.hwndList, {row.left + 20, row.top + 3});
    EXPECT_EQ(m_frame->commands, (std::vector<UINT>{comboCommand}));
    EXPECT_EQ(Combo().GetCurSel(), 2);
    EXPECT_EQ(CString(Combo().GetText()), L"blue");
}

TEST_F(ComboButtonTest, NotificationsReachTheOwnerWithTheirCodes) {
    CodeWatcher owner;
    ASSERT_TRUE(owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    Bar().SetOwner(&owner);
    const WPARAM changed = MAKEWPARAM(comboCommand, CBN_SELCHANGE);
    ::SendMessageW(Bar().m_hWnd, WM_COMMAND, changed, reinterpret_cast<LPARAM>(Combo().GetHwnd()));
    EXPECT_EQ(owner.codes, (std::vector<int>{CBN_SELCHANGE}));
    const WPARAM chosen = MAKEWPARAM(comboCommand, CBN_SELENDOK);
    ::SendMessageW(Bar().m_hWnd, WM_COMMAND, chosen, reinterpret_cast<LPARAM>(Combo().GetHwnd()));
    EXPECT_EQ(owner.codes, (std::vector<int>{CBN_SELCHANGE, CBN_SELENDOK, 0}));
    Bar().SetOwner(m_frame);
}

TEST_F(ComboButtonTest, AnOwnerMayDestroyTheBarInAnyNotification) {
    for (const int destroyAt : {1, 2}) {
        auto* const bar = new CMFCToolBar;
        ASSERT_TRUE(bar->Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 0x9000));
        CMFCToolBarComboBoxButton button(comboCommand, 3);
        button.AddItem(L"red");
        bar->InsertButton(button);
        auto* const combo = static_cast<CMFCToolBarComboBoxButton*>(bar->GetButton(0));
        combo->GetComboBox()->SetCurSel(0);

        class Destroyer : public CWnd {
        public:
            CMFCToolBar* victim = nullptr;
            int at = 0;

        protected:
            LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
                if (message == WM_COMMAND && --at == 0) {
                    delete victim;
                }
                return CWnd::WindowProc(message, wParam, lParam);
            }
        } owner;
        ASSERT_TRUE(owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
        owner.victim = bar;
        owner.at = destroyAt;
        bar->SetOwner(&owner);
        const HWND window = bar->m_hWnd;
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(comboCommand, CBN_SELENDOK),
                       reinterpret_cast<LPARAM>(combo->GetHwnd()));
        EXPECT_FALSE(::IsWindow(window));
    }
}

TEST_F(ComboButtonTest, SelectingNotifiesOnlyWhenItIsAskedTo) {
    EXPECT_TRUE(Combo().SelectItem(0, FALSE));
    EXPECT_TRUE(m_frame->commands.empty());
    EXPECT_TRUE(Combo().SelectItem(L"blue"));
    EXPECT_EQ(m_frame->commands, (std::vector<UINT>{comboCommand}));
    EXPECT_EQ(Combo().GetComboBox()->GetCurSel(), 2);
    EXPECT_FALSE(Combo().SelectItem(3, FALSE));
    EXPECT_FALSE(Combo().SelectItem(L"grey"));
}

TEST_F(ComboButtonTest, AllBarsSelectAlong) {
    auto second = std::make_unique<CMFCToolBar>();
    ASSERT_TRUE(second->Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 0x9001));
    second->InsertButton(Combo());
    auto* const copy = static_cast<CMFCToolBarComboBoxButton*>(second->GetButton(0));
    EXPECT_TRUE(CMFCToolBarComboBoxButton::SelectItemAll(comboCommand, 0));
    EXPECT_EQ(copy->GetCurSel(), 0);
    EXPECT_EQ(Combo().GetCurSel(), 0);
    EXPECT_FALSE(CMFCToolBarComboBoxButton::SelectItemAll(comboCommand, L"grey"));
    EXPECT_TRUE(m_frame->commands.empty());
    second->DestroyWindow();
}

TEST_F(ComboButtonTest, SettingsKeepItemsSelectionAndWidth) {
    ASSERT_TRUE(Bar().SaveState(L"Combo"));
    Bar().RemoveAllButtons();
    ASSERT_TRUE(Bar().LoadState(L"Combo"));
    LayOut();
    EXPECT_EQ(Combo().GetCount(), 3);
    EXPECT_EQ(Combo().GetCurSel(), 1);
    EXPECT_EQ(Combo().GetItemData(2), 30u);
    EXPECT_EQ(Combo().GetComboBox()->GetCount(), 3);
    EXPECT_EQ(WindowInBar().Width(), afxGlobalData.ScalePixels(120));
    Bar().RemoveStateFromRegistry(L"Combo");
}

TEST(ComboButtonItems, AreUniqueAndKeepTheirData) {
    CMFCToolBarComboBoxButton button(comboCommand, -1);
    EXPECT_EQ(button.AddItem(L"b", 1), 0);
    EXPECT_EQ(button.AddItem(L"a", 2), 1);
    EXPECT_EQ(button.AddItem(L"b", 3), 0);
    EXPECT_EQ(button.GetCount(), 2);
    EXPECT_EQ(button.GetItemData(0), 3u) << "the data of the text that was given last";
    EXPECT_EQ(button.FindItem(L"a"), 1);
    EXPECT_EQ(button.FindItem(L"A"), -1);
    EXPECT_EQ(button.GetItem(), nullptr) << "nothing is selected";
    EXPECT_EQ(button.GetItem(2), nullptr);
    EXPECT_TRUE(button.DeleteItem(L"b"));
    EXPECT_FALSE(button.DeleteItem(5));
    EXPECT_EQ(button.GetCount(), 1);
}

TEST(ComboButtonItems, ASortedItemTakesItsPlaceAndTheSelectionFollows) {
    CMFCToolBarComboBoxButton button(comboCommand, -1);
    EXPECT_EQ(button.AddSortedItem(L"m"), 0);
    button.SelectItem(0, FALSE);
    EXPECT_EQ(button.AddSortedItem(L"a"), 0);
    EXPECT_EQ(button.AddSortedItem(L"z"), 2);
    EXPECT_EQ(CString(button.GetItem()), L"m");
}

TEST(ComboButtonItems, DeletingBeforeTheSelectionMovesItAlong) {
    CMFCToolBarComboBoxButton button(comboCommand, -1);
    button.AddItem(L"a");
    button.AddItem(L"b");
    button.SelectItem(1, FALSE);
    button.DeleteItem(0);
    EXPECT_EQ(button.GetCurSel(), 0);
    EXPECT_EQ(CString(button.GetText()), L"b");
    button.DeleteItem(0);
    EXPECT_EQ(button.GetCurSel(), -1);
}

} // namespace
