#include "map_menu.h"

#include "menu_id_mgr.h"
#include "resource.h"
#include "viewer_text.h"

#include <afxcontrolbars.h>

#include <string>

namespace {

/// The resource counts its items below this; commands are beyond it.
constexpr UINT kFirstCommand = ID_TOOLS_ENTRY;
constexpr UINT kPlaceholder = 1;

std::wstring TextOf(HMENU menu, UINT position) {
    std::wstring text(static_cast<std::size_t>(::GetMenuStringW(menu, position, nullptr, 0, MF_BYPOSITION)), L'\0');
    ::GetMenuStringW(menu, position, text.data(), static_cast<int>(text.size()) + 1, MF_BYPOSITION);
    return text;
}

bool IsSeparator(HMENU menu, int position) {
    return (::GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & MF_SEPARATOR) != 0;
}

/// False: no file has the item's command.
bool FillItem(HMENU menu, UINT position) {
    int id = static_cast<int>(::GetMenuItemID(menu, static_cast<int>(position)));
    std::wstring keyword;
    if (static_cast<UINT>(id) < kFirstCommand) {
        keyword = TextOf(menu, position);
        if (!CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
            return false;
        }
    } else if (!CMenuIdMgr::Ins()->GetMenuMark(id, keyword)) {
        return true; // not one of the files'
    }
    const std::wstring name = BarText(keyword);
    ::ModifyMenuW(menu, position, MF_BYPOSITION | MF_STRING, static_cast<UINT_PTR>(id), name.c_str());
    return true;
}

/// The contrary of Fill.
void PutKeywords(HMENU menu) {
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position) {
        std::wstring keyword;
        if (const HMENU popup = ::GetSubMenu(menu, position)) {
            PutKeywords(popup);
        } else if (CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(::GetMenuItemID(menu, position)), keyword)) {
            ::ModifyMenuW(menu, static_cast<UINT>(position), MF_BYPOSITION | MF_STRING, kPlaceholder, keyword.c_str());
        }
    }
}

/// Null: it has not been added.
HMENU Kept() { return afxContextMenuManager->GetMenuById(IDR_MAP_MENU); }

} // namespace

void map_menu::Fill(HMENU menu) {
    for (int position = ::GetMenuItemCount(menu) - 1; position >= 0; --position) {
        if (const HMENU popup = ::GetSubMenu(menu, position)) {
            Fill(popup);
        } else if (!IsSeparator(menu, position) && !FillItem(menu, static_cast<UINT>(position))) {
            ::DeleteMenu(menu, static_cast<UINT>(position), MF_BYPOSITION);
        }
    }
}

void map_menu::Load() {
    afxContextMenuManager->LoadState();
    Fill(Kept());
}

void map_menu::Save() {
    PutKeywords(Kept());
    afxContextMenuManager->SaveState();
    Fill(Kept());
}

void map_menu::Add() {
    if (Kept() == nullptr) {
        afxContextMenuManager->AddMenu(BarText(L"CatMap").c_str(), IDR_MAP_MENU);
    }
    Fill(Kept());
}
