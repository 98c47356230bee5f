#include "ribbon/menu_items.h"

#include "fx/menu.h"

namespace {

void SetParents(CMFCRibbonBaseElement& element, const CMFCRibbonButton& button) {
    element.SetParentCategory(button.GetParentCategory());
    element.SetParentRibbonBar(button.GetTopLevelRibbonBar());
}

std::unique_ptr<CMFCRibbonBaseElement> MakeItem(const CMenu& menu, int position, const CMFCRibbonButton& button) {
    const UINT state = menu.GetMenuState(static_cast<UINT>(position), MF_BYPOSITION);
    CMenu* submenu = menu.GetSubMenu(position);
    if (submenu == nullptr && (state & MF_SEPARATOR) != 0) {
        auto separator = std::make_unique<CMFCRibbonSeparator>(TRUE);
        SetParents(*separator, button);
        return separator;
    }
    CString text;
    CString key;
    menu.GetMenuString(static_cast<UINT>(position), text, MF_BYPOSITION);
    text = TakeMnemonic(text, key);
    const UINT id = submenu != nullptr ? 0 : menu.GetMenuItemID(position);
    auto item = std::make_unique<CMFCRibbonButton>(id, text);
    SetParents(*item, button);
    item->SetKeys(nullptr, key);
    if (submenu != nullptr) {
        for (auto& inner : MakeMenuItems(submenu->GetSafeHmenu(), *item)) {
            item->AddSubItem(inner.release()); // the item owns it from here
        }
        return item;
    }
    item->SetDisabled((state & (MF_GRAYED | MF_DISABLED)) != 0);
    item->SetChecked((state & MF_CHECKED) != 0);
    return item;
}

} // namespace

CString TakeMnemonic(const CString& text, CString& key) {
    CString plain;
    for (int index = 0; index < text.GetLength(); ++index) {
        if (text[index] == L'&' && index + 1 < text.GetLength()) {
            ++index;
            if (text[index] != L'&' && key.IsEmpty()) {
                key = CString(text[index]);
            }
        }
        plain += text[index];
    }
    return plain;
}

void AskHostForMenu(CWnd* target, HMENU menu) {
    if (target != nullptr && target->GetSafeHwnd() != nullptr) {
        ::SendMessageW(target->GetSafeHwnd(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
    }
}

std::vector<std::unique_ptr<CMFCRibbonBaseElement>> MakeMenuItems(HMENU menu, const CMFCRibbonButton& button) {
    std::vector<std::unique_ptr<CMFCRibbonBaseElement>> items;
    const CMenu* source = CMenu::FromHandle(menu);
    const int count = source != nullptr ? static_cast<int>(source->GetMenuItemCount()) : 0;
    items.reserve(static_cast<std::size_t>(count));
    for (int position = 0; position < count; ++position) {
        items.push_back(MakeItem(*source, position, button));
    }
    return items;
}
