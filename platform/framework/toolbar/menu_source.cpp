#include "toolbar/menu_source.h"

#include "afxcommandmanager.h"
#include "afxpopupmenu.h"
#include "toolbar/button_copy.h"
#include "toolbar/choose_buttons.h"
#include "toolbar/menu_pairs.h"

#include <algorithm>
#include <vector>

namespace toolbar {

namespace {

MenuKey KeyOf(const CMFCToolBarButton& button) {
    if ((button.m_nStyle & TBBS_SEPARATOR) != 0) {
        return {MenuKey::Kind::Line, 0, {}};
    }
    const auto* const item = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, &button);
    if (item != nullptr && !item->GetCommands().IsEmpty()) {
        const int tabulator = item->m_strText.Find(L'\t');
        const CString label = tabulator >= 0 ? item->m_strText.Left(tabulator) : item->m_strText;
        return {MenuKey::Kind::Popup, 0, static_cast<LPCTSTR>(label)};
    }
    return {MenuKey::Kind::Command, button.m_nID, {}};
}

std::vector<MenuKey> KeysOf(const CObList& buttons) {
    std::vector<MenuKey> keys;
    for (POSITION position = buttons.GetHeadPosition(); position != nullptr;) {
        keys.push_back(KeyOf(*static_cast<const CMFCToolBarButton*>(buttons.GetNext(position))));
    }
    return keys;
}

/// The lists are const for their readers; what is in them belongs to the buttons, which users change.
CMFCToolBarMenuButton* ItemOf(const CObject* listed) {
    return static_cast<CMFCToolBarMenuButton*>(const_cast<CObject*>(listed));
}

CObList& ItemsOf(CMFCToolBarMenuButton& owner) { return const_cast<CObList&>(owner.GetCommands()); }

/// Calls `visit` at the item and at all below it until it answers true. Menus may lie in each other to any depth.
template <class Visit>
bool AnyWithin(CMFCToolBarMenuButton& top, Visit visit) {
    std::vector<CMFCToolBarMenuButton*> left{&top};
    while (!left.empty()) {
        CMFCToolBarMenuButton* const item = left.back();
        left.pop_back();
        if (visit(*item)) {
            return true;
        }
        const CObList& below = item->GetCommands();
        for (POSITION position = below.GetHeadPosition(); position != nullptr;) {
            left.push_back(ItemOf(below.GetNext(position)));
        }
    }
    return false;
}

bool MayBeChanged(const CMFCToolBar& bar, const CMFCToolBarMenuButton& button) {
    return !bar.IsLocked() && !bar.IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBar)) && bar.ButtonToIndex(&button) >= 0 &&
           button.IsEditable() && button.CanBeStored();
}

} // namespace

MenuSource SourceOf(CMFCPopupMenu& menu) {
    std::vector<CMFCPopupMenu*> chain;
    for (CMFCPopupMenu* each = &menu; each != nullptr; each = each->GetParentPopupMenu()) {
        chain.push_back(each);
    }
    MenuSource source{chain.back()->GetParentToolBar(), chain.back()->GetParentButton()};
    if (source.bar == nullptr || !MayBeChanged(*source.bar, *source.owner)) {
        return {};
    }
    // From the first one on: each was opened by a row of the one before.
    for (std::size_t index = chain.size() - 1; index > 0 && source; --index) {
        const CMFCPopupMenuBar& rows = *chain[index]->GetMenuBar();
        source.owner = ItemOfRow(rows, *source.owner, rows.ButtonToIndex(chain[index - 1]->GetParentButton()));
    }
    if (!source || source.owner->GetCommands().IsEmpty() || menu.GetMenuBar()->HasRows()) {
        return {};
    }
    return source;
}

CMFCToolBarMenuButton* ItemOfRow(const CMFCPopupMenuBar& menu, const CMFCToolBarMenuButton& owner, int row) {
    const std::vector<int> pairs = PairRows(KeysOf(menu.GetAllButtons()), KeysOf(owner.GetCommands()));
    const bool isRow = row >= 0 && row < static_cast<int>(pairs.size());
    const int index = isRow ? pairs[static_cast<std::size_t>(row)] : -1;
    return index >= 0 ? ItemOf(owner.GetCommands().GetAt(owner.GetCommands().FindIndex(index))) : nullptr;
}

int PlaceBeforeRow(const CMFCPopupMenuBar& menu, const CMFCToolBarMenuButton& owner, int row) {
    return PlaceBeforeRow(KeysOf(menu.GetAllButtons()), KeysOf(owner.GetCommands()), row);
}

CMFCToolBarMenuButton* OwnerOf(const CMFCToolBar& bar, const CMFCToolBarMenuButton* item) {
    CMFCToolBarMenuButton* owner = nullptr;
    for (int index = 0; index < bar.GetCount() && owner == nullptr; ++index) {
        if (auto* const button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar.GetButton(index))) {
            AnyWithin(*button, [&owner, item](CMFCToolBarMenuButton& each) {
                const bool hasIt = each.GetCommands().Find(const_cast<CMFCToolBarMenuButton*>(item)) != nullptr;
                owner = hasIt ? &each : nullptr;
                return hasIt;
            });
        }
    }
    return owner;
}

bool IsWithin(const CMFCToolBarMenuButton& item, const CMFCToolBarMenuButton* part) {
    return AnyWithin(const_cast<CMFCToolBarMenuButton&>(item),
                     [part](const CMFCToolBarMenuButton& each) { return &each == part; });
}

void InsertItem(CMFCToolBarMenuButton& owner, std::unique_ptr<CMFCToolBarMenuButton> item, int nBefore) {
    CObList& items = ItemsOf(owner);
    if (const POSITION place = nBefore >= 0 ? items.FindIndex(nBefore) : nullptr) {
        items.InsertBefore(place, item.release());
    } else {
        items.AddTail(item.release());
    }
}

bool RemoveItem(CMFCToolBarMenuButton& owner, const CMFCToolBarMenuButton* item) {
    CObList& items = ItemsOf(owner);
    const POSITION place = items.Find(const_cast<CMFCToolBarMenuButton*>(item));
    if (place != nullptr) {
        delete items.GetAt(place);
        items.RemoveAt(place);
    }
    return place != nullptr;
}

CMFCPopupMenu* MenuAt(CPoint screen) {
    for (HWND window = ::WindowFromPoint(screen); window != nullptr; window = ::GetAncestor(window, GA_PARENT)) {
        if (auto* const menu = DYNAMIC_DOWNCAST(CMFCPopupMenu, CWnd::FromHandlePermanent(window))) {
            return menu;
        }
    }
    return nullptr;
}

std::unique_ptr<CMFCToolBarMenuButton> MenuItemFor(const CMFCToolBarButton& button) {
    std::unique_ptr<CMFCToolBarMenuButton> item;
    if (button.IsKindOf(RUNTIME_CLASS(CMFCToolBarMenuButton))) {
        item.reset(static_cast<CMFCToolBarMenuButton*>(CopyOf(button).release()));
    } else {
        const int image = button.IsLocked() ? -1 : button.GetImage();
        item = std::make_unique<CMFCToolBarMenuButton>(button.m_nID, nullptr, image, button.m_strText,
                                                       button.m_bUserButton);
        button.ExportToMenuButton(*item);
        item->m_nStyle = button.m_nStyle & ~static_cast<UINT>(TBBS_PRESSED);
    }
    return item;
}

std::unique_ptr<CMFCToolBarButton> BarButtonFor(const CMFCToolBarMenuButton& item) {
    if (!item.GetCommands().IsEmpty()) {
        return CopyOf(item);
    }
    auto button = std::make_unique<CMFCToolBarButton>(item.m_nID, GetCmdMgr()->GetCmdImage(item.m_nID, FALSE),
                                                      ReadableText(item));
    button->m_nStyle = item.m_nStyle;
    return button;
}

} // namespace toolbar
