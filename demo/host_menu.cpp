#include "host_menu.h"

#include "menu_id_mgr.h"

#include "varnhold/language.h"

#include <array>
#include <string>
#include <utility>

namespace {

/// Keywords of the rows; null: a separator.
constexpr std::array<const wchar_t*, 10> kRows = {L"ModeBrowse", L"ModeEdit",    L"ModePrint",      nullptr,
                                                  L"SkinSwitch", nullptr,        L"RibbonMinimize", L"QuickAccessBelow",
                                                  nullptr,       L"KeyboardHelp"};

} // namespace

HostMenu::~HostMenu() { ::DestroyMenu(m_menu); }

HMENU HostMenu::Build() {
    ::DestroyMenu(std::exchange(m_menu, ::CreatePopupMenu()));
    bool wantsSeparator = false;
    bool hasRows = false;
    for (const wchar_t* const keyword : kRows) {
        int id = 0;
        if (keyword == nullptr) {
            wantsSeparator = hasRows;
        } else if (CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
            if (std::exchange(wantsSeparator, false)) {
                ::AppendMenuW(m_menu, MF_SEPARATOR, 0, nullptr);
            }
            // The registry keeps the names of the language in which the commands were first read.
            const std::wstring name = CMultiLanguageMgr::translation(keyword, "RibbonBarCfg");
            hasRows = ::AppendMenuW(m_menu, MF_STRING, static_cast<UINT_PTR>(id), name.c_str()) || hasRows;
        }
    }
    return m_menu;
}
