#include "ribbon/menu_items.h"

#include <algorithm>

#include "core/mnemonic.h"
#include "fx/menu.h"

namespace {

/// What came from a menu, and goes with it; its copies are of its class.
class MenuItem : public CMFCRibbonButton {
    DECLARE_DYNCREATE(MenuItem)

public:
    MenuItem() = default;
    MenuItem(UINT id, LPCTSTR text) : CMFCRibbonButton(id, text) {}
};

class MenuSeparator : public CMFCRibbonSeparator {
    DECLARE_DYNCREATE(MenuSeparator)

public:
    MenuSeparator() : CMFCRibbonSeparator(TRUE) {}
};

IMPLEMENT_DYNCREATE(MenuItem, CMFCRibbonButton)
IMPLEMENT_DYNCREATE(MenuSeparator, CMFCRibbonSeparator)

int CountOf(HMENU menu) { return menu != nullptr ? std::max(::GetMenuItemCount(menu), 0) : 0; }

bool IsSeparator(const CMenu& menu, int position) {
    return menu.GetSubMenu(position) == nullptr &&
           (menu.GetMenuState(static_cast<UINT>(position), MF_BYPOSITION) & MF_SEPARATOR) != 0;
}

std::unique_ptr<CMFCRibbonBaseElement> MakeItem(const CMenu& menu, int position) {
    if (IsSeparator(menu, position)) {
        return std::make_unique<MenuSeparator>();
    }
    CMenu* submenu = menu.GetSubMenu(position);
    CString text;
    menu.GetMenuString(static_cast<UINT>(position), text, MF_BYPOSITION);
    const UINT id = submenu != nullptr ? 0 : menu.GetMenuItemID(position);
    auto item = std::make_unique<MenuItem>(id, text);
    item->SetKeys(nullptr, MnemonicOf(text));
    if (submenu != nullptr) {
        for (auto& inner : MakeMenuItems(submenu->GetSafeHmenu())) {
            item->AddSubItem(inner.release()); // the item owns it from here
        }
        return item;
    }
    const UINT state = menu.GetMenuState(static_cast<UINT>(position), MF_BYPOSITION);
    item->SetDisabled((state & (MF_GRAYED | MF_DISABLED)) != 0);
    item->SetChecked((state & MF_CHECKED) != 0);
    return item;
}

} // namespace

CString MnemonicOf(const CString& text) {
    const wchar_t letter = fx::MnemonicOf({text, static_cast<std::size_t>(text.GetLength())});
    return letter != 0 ? CString(letter) : CString();
}

void AskHostForMenu(CWnd* target, HMENU menu) {
    if (target != nullptr && target->GetSafeHwnd() != nullptr && ::IsMenu(menu)) {
        ::SendMessageW(target->GetSafeHwnd(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
    }
}

std::vector<std::unique_ptr<CMFCRibbonBaseElement>> MakeMenuItems(HMENU menu) {
    std::vector<std::unique_ptr<CMFCRibbonBaseElement>> items;
    const int count = CountOf(menu);
    items.reserve(static_cast<std::size_t>(count));
    for (int position = 0; position < count; ++position) {
        items.push_back(MakeItem(*CMenu::FromHandle(menu), position));
    }
    return items;
}

bool IsMenuItem(const CMFCRibbonBaseElement& element) {
    return element.IsKindOf(RUNTIME_CLASS(MenuItem)) || element.IsKindOf(RUNTIME_CLASS(MenuSeparator));
}

CString ContentOf(HMENU menu) {
    CString content;
    for (int position = 0; position < CountOf(menu); ++position) {
        const CMenu& source = *CMenu::FromHandle(menu);
        CString text;
        source.GetMenuString(static_cast<UINT>(position), text, MF_BYPOSITION);
        CMenu* submenu = source.GetSubMenu(position);
        CString one;
        one.Format(L"%u%c", source.GetMenuItemID(position), IsSeparator(source, position) ? L'-' : L' ');
        content += one + text + L"\n";
        if (submenu != nullptr) {
            content += L"{" + ContentOf(submenu->GetSafeHmenu()) + L"}";
        }
    }
    return content;
}

void TakeMenuState(CMFCRibbonBaseElement& element, HMENU menu) {
    auto* item = IsMenuItem(element) ? DYNAMIC_DOWNCAST(CMFCRibbonButton, &element) : nullptr;
    if (item == nullptr) {
        return;
    }
    for (INT_PTR index = 0; index < item->GetSubItems().GetSize(); ++index) {
        TakeMenuState(*item->GetSubItems()[index], menu);
    }
    const UINT state = item->GetID() != 0 ? ::GetMenuState(menu, item->GetID(), MF_BYCOMMAND) : static_cast<UINT>(-1);
    if (state != static_cast<UINT>(-1)) {
        item->SetDisabled((state & (MF_GRAYED | MF_DISABLED)) != 0);
        item->SetChecked((state & MF_CHECKED) != 0);
    }
}
