// The page on which the menu of the frame is put back and the context menus are changed.
#include "afxcontextmenumanager.h"
#include "afxmenubar.h"
#include "core/framework_text.h"
#include "fx/registered_messages.h"
#include "fx/window_guard.h"
#include "toolbar/customize_page.h"
#include "toolbar/menu_items.h"

#include <functional>

namespace toolbar {

namespace {

enum Item : int { kResetFrame = 1001, kMenus, kResetMenu, kPlace, kHint };

constexpr DWORD kPush = BS_PUSHBUTTON | WS_TABSTOP;

constexpr fx::DialogItem kItems[] = {
    {-1, kFrameMenuText, 7, 7, 248, 8},
    {-1, kFrameMenuHint, 14, 22, 174, 8},
    {kResetFrame, kResetFrameMenuText, 195, 19, 60, 14, fx::DialogControl::Button, kPush},
    {-1, kContextMenusText, 7, 48, 248, 8},
    {kMenus, 0, 14, 61, 174, 120, fx::DialogControl::ComboBox, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP},
    {kResetMenu, kResetContextMenuText, 195, 60, 60, 14, fx::DialogControl::Button, kPush},
    {kHint, kEditMenuText, 14, 81, 241, 36},
    {kPlace, 0, 14, 122, 241, 18},
};

bool HasSameItems(HMENU one, HMENU other) {
    const int count = ::GetMenuItemCount(one);
    if (count != ::GetMenuItemCount(other)) {
        return false;
    }
    for (int position = 0; position < count; ++position) {
        MenuItem first;
        MenuItem second;
        ReadMenuItem(one, position, first);
        ReadMenuItem(other, position, second);
        const bool isSame = first.id == second.id && first.text == second.text &&
                            ((first.style ^ second.style) & (TBBS_SEPARATOR | TBBS_BREAK | kColumnLine)) == 0 &&
                            (first.submenu != nullptr) == (second.submenu != nullptr);
        if (!isSame || (first.submenu != nullptr && !HasSameItems(first.submenu, second.submenu))) {
            return false;
        }
    }
    return true;
}

/// Shows one context menu as the menu of a button, which opens as those of a menu bar do while toolbars are customized:
/// commands are dragged into it, within it and off it.
class ContextMenuBar : public CMFCMenuBar {
public:
    /// Called when the menu has closed.
    std::function<void()> onClosed;

    void Show(const CString& name, HMENU popup) {
        RemoveAllButtons();
        if (popup != nullptr) {
            CMFCToolBarMenuButton button(static_cast<UINT>(-1), popup, -1, name);
            button.m_bText = TRUE;
            InsertButton(button);
        }
        AdjustLayout();
        Invalidate();
    }
    /// The menu's items as they are now; destroyed by the caller. NULL: there are none.
    HMENU MakeMenu() const {
        const auto* const button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetButton(0));
        return button != nullptr ? button->CreateMenu() : nullptr;
    }
    BOOL CanBeRestored() const override { return FALSE; }

protected:
    // A menu bar takes the menu of its frame.
    afx_msg int OnCreate(LPCREATESTRUCT create) { return CMFCToolBar::OnCreate(create); }
    DECLARE_MESSAGE_MAP()

    void OnMenuClosed(CMFCToolBarMenuButton* button, BOOL isByEscape) override {
        const fx::WindowGuard guard(this);
        CMFCMenuBar::OnMenuClosed(button, isByEscape);
        if (guard.IsAlive() && onClosed) {
            onClosed();
        }
    }
};

BEGIN_MESSAGE_MAP(ContextMenuBar, CMFCMenuBar)
ON_WM_CREATE()
END_MESSAGE_MAP()

CMFCMenuBar* MenuBarOf(const CFrameWnd* frame, const CMFCMenuBar& except) {
    for (POSITION position = CMFCToolBar::GetAllToolbars().GetHeadPosition(); position != nullptr;) {
        const CObject* const bar = CMFCToolBar::GetAllToolbars().GetNext(position);
        const auto* const menuBar = DYNAMIC_DOWNCAST(CMFCMenuBar, bar);
        if (menuBar != nullptr && menuBar != &except && frame != nullptr && menuBar->GetTopLevelFrame() == frame) {
            return const_cast<CMFCMenuBar*>(menuBar);
        }
    }
    return nullptr;
}

/// Handlers of the program run when a menu is put back: they may end the frame and with it the dialog.
class MenusPage : public CustomizePage {
public:
    explicit MenusPage(CMFCToolBarsCustomizeDialog& dialog) : CustomizePage(dialog, kMenusTab, kItems) {}

    BOOL OnInitDialog() override {
        CustomizePage::OnInitDialog();
        m_menus.SubclassDlgItem(kMenus, this);
        CStringList names;
        if (afxContextMenuManager != nullptr) {
            afxContextMenuManager->GetMenuNames(names);
        }
        for (POSITION position = names.GetHeadPosition(); position != nullptr;) {
            m_menus.AddString(names.GetNext(position));
        }
        m_menus.SetCurSel(0);
        CRect place;
        ::GetWindowRect(::GetDlgItem(m_hWnd, kPlace), &place);
        ScreenToClient(&place);
        if (m_bar.Create(this, WS_CHILD | WS_VISIBLE)) {
            m_bar.SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                               SWP_NOZORDER | SWP_NOACTIVATE);
            m_bar.onClosed = [this] { Keep(); };
        }
        ShowItem(kPlace, false);
        for (const int id : {kMenus, kHint}) {
            EnableItem(id, !names.IsEmpty());
        }
        return TRUE;
    }
    BOOL OnSetActive() override {
        ShowMenu();
        return CustomizePage::OnSetActive();
    }

protected:
    afx_msg void OnResetFrame();
    afx_msg void OnMenu() { ShowMenu(); }
    afx_msg void OnResetMenu();
    DECLARE_MESSAGE_MAP()

private:
    CString Name() const {
        CString name;
        if (m_menus.GetCurSel() >= 0) {
            m_menus.GetLBText(m_menus.GetCurSel(), name);
        }
        return name;
    }
    /// The manager's menu, whose first popup is shown; NULL: there is none.
    HMENU Menu(UINT* resourceId = nullptr) const {
        return afxContextMenuManager != nullptr ? afxContextMenuManager->GetMenuByName(Name(), resourceId) : nullptr;
    }
    void ShowMenu();
    /// What the user has made of the menu becomes the manager's.
    void Keep();

    CComboBox m_menus;
    ContextMenuBar m_bar;
};

BEGIN_MESSAGE_MAP(MenusPage, CustomizePage)
ON_BN_CLICKED(kResetFrame, &MenusPage::OnResetFrame)
ON_CBN_SELCHANGE(kMenus, &MenusPage::OnMenu)
ON_BN_CLICKED(kResetMenu, &MenusPage::OnResetMenu)
END_MESSAGE_MAP()

void MenusPage::ShowMenu() {
    const HMENU menu = Menu();
    m_bar.Show(Name(), menu != nullptr ? ::GetSubMenu(menu, 0) : nullptr);
    m_bar.ShowWindow(menu != nullptr ? SW_SHOWNA : SW_HIDE);
    EnableItem(kResetMenu, menu != nullptr);
    const CMFCMenuBar* const frames = MenuBarOf(Dialog().Frame(), m_bar);
    EnableItem(kResetFrame, frames != nullptr && frames->CanBeRestored());
}

void MenusPage::Keep() {
    const HMENU menu = Menu();
    const HMENU popup = menu != nullptr ? ::GetSubMenu(menu, 0) : nullptr;
    const HMENU changed = m_bar.MakeMenu();
    if (popup == nullptr || changed == nullptr || HasSameItems(popup, changed)) {
        ::DestroyMenu(changed);
        return;
    }
    MenuItem place;
    ReadMenuItem(menu, 0, place);
    const UINT defaultItem = ::GetMenuDefaultItem(popup, FALSE, GMDI_USEDISABLED);
    if (defaultItem != static_cast<UINT>(-1)) {
        ::SetMenuDefaultItem(changed, defaultItem, FALSE);
    }
    ::InsertMenuW(menu, 0, MF_BYPOSITION | MF_POPUP, reinterpret_cast<UINT_PTR>(changed), place.text);
    ::DeleteMenu(menu, 1, MF_BYPOSITION);
}

void MenusPage::OnResetFrame() {
    if (!IsConfirmed(kAskResetMenuText)) {
        return;
    }
    const fx::WindowGuard guard(this);
    if (CMFCMenuBar* const bar = MenuBarOf(Dialog().Frame(), m_bar)) {
        bar->RestoreOriginalstate();
    }
    if (guard.IsAlive()) {
        ShowMenu();
    }
}

// In the manager's menu, whose handle others may hold.
void MenusPage::OnResetMenu() {
    UINT resourceId = 0;
    if (!IsConfirmed(kAskResetMenuText) || Menu(&resourceId) == nullptr) {
        return;
    }
    const HMENU menu = Menu();
    const LPCTSTR resource = MAKEINTRESOURCE(resourceId);
    const HMENU original = ::LoadMenuW(AfxFindResourceHandle(resource, RT_MENU), resource);
    MenuItem first;
    if (original != nullptr && ReadMenuItem(original, 0, first) && first.submenu != nullptr) {
        ::RemoveMenu(original, 0, MF_BYPOSITION);
        ::InsertMenuW(menu, 0, MF_BYPOSITION | MF_POPUP, reinterpret_cast<UINT_PTR>(first.submenu), first.text);
        ::DeleteMenu(menu, 1, MF_BYPOSITION);
    }
    ::DestroyMenu(original);
    const fx::WindowGuard guard(this);
    ::SendMessageW(Dialog().Frame()->GetSafeHwnd(), AFX_WM_RESETCONTEXTMENU, resourceId,
                   reinterpret_cast<LPARAM>(menu));
    if (guard.IsAlive()) {
        ShowMenu();
    }
}

} // namespace

std::unique_ptr<CPropertyPage> MakeMenusPage(CMFCToolBarsCustomizeDialog& dialog) {
    return std::make_unique<MenusPage>(dialog);
}

} // namespace toolbar
