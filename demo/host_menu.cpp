#include "host_menu.h"

#include "menu_id_mgr.h"

#include "varnhold/language.h"

#include <string>
#include <utility>
#include <vector>

namespace {

using Rows = std::vector<const wchar_t*>;

/// Keywords of the rows; null: a separator.
const Rows kRightClick = {L"ModeBrowse",  L"ModeEdit",       L"ModePrint",        nullptr, L"SkinSwitch",  nullptr,
                          L"ClassicBars", L"RibbonMinimize", L"QuickAccessBelow", nullptr, L"KeyboardHelp"};
const Rows kHelp = {L"CommandSearch", L"KeyboardHelp", nullptr, L"About"};
constexpr wchar_t kHelpTitle[] = L"PanelHelp";

// The registry keeps the names of the language in which the commands were first read.
std::wstring NameOf(const wchar_t* keyword) { return CMultiLanguageMgr::translation(keyword, "RibbonBarCfg"); }

void Append(HMENU menu, const Rows& rows) {
    bool wantsSeparator = false;
    bool hasRows = false;
    for (const wchar_t* const keyword : rows) {
        int id = 0;
        if (keyword == nullptr) {
            wantsSeparator = hasRows;
        } else if (CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
            if (std::exchange(wantsSeparator, false)) {
                ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
            }
            hasRows = ::AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(id), NameOf(keyword).c_str()) || hasRows;
        }
    }
}

} // namespace

HostMenu::~HostMenu() { ::DestroyMenu(m_menu); }

HMENU HostMenu::Build() {
    ::DestroyMenu(std::exchange(m_menu, m_kind == Kind::Help ? ::CreateMenu() : ::CreatePopupMenu()));
    if (m_kind == Kind::RightClick) {
        Append(m_menu, kRightClick);
        return m_menu;
    }
    const HMENU popup = ::CreatePopupMenu();
    Append(popup, kHelp);
    ::AppendMenuW(m_menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), (NameOf(kHelpTitle) + L"(&H)").c_str());
    return m_menu;
}
