// Context menus in the user's settings.
#include "afxcontextmenumanager.h"

#include "afxtoolbarbutton.h"
#include "fx/app.h"
#include "fx/archive.h"
#include "fx/registered_messages.h"
#include "fx/state_store.h"
#include "toolbar/menu_items.h"

#include <algorithm>
#include <memory>
#include <type_traits>

namespace {

constexpr LPCTSTR kEntry = L"Menus";
/// Deeper than any that users read; a damaged one must not exhaust the stack.
constexpr int kDeepest = 50;

CString SectionOf(LPCTSTR profile) { return CString(profile != nullptr ? profile : L"") + L"\\ContextMenuManager"; }

fx::StateStore* Store() {
    CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->GetStateStore() : nullptr;
}

struct MenuDestroyer {
    void operator()(HMENU menu) const { ::DestroyMenu(menu); }
};
using OwnedMenu = std::unique_ptr<std::remove_pointer_t<HMENU>, MenuDestroyer>;

void WriteMenu(CArchive& ar, HMENU menu, int depth) {
    const int count = depth < kDeepest ? std::max(0, ::GetMenuItemCount(menu)) : 0;
    ar << static_cast<DWORD>(count);
    for (int position = 0; position < count; ++position) {
        toolbar::MenuItem item;
        toolbar::ReadMenuItem(menu, position, item);
        ar << static_cast<DWORD>(item.id) << static_cast<DWORD>(item.style) << static_cast<DWORD>(item.isRadio)
           << static_cast<BYTE>(item.submenu != nullptr) << item.text;
        if (item.submenu != nullptr) {
            WriteMenu(ar, item.submenu, depth + 1);
        }
    }
}

/// Throws when it is damaged.
OwnedMenu ReadMenu(CArchive& ar, HMENU empty, int depth) {
    OwnedMenu menu(empty);
    DWORD count = 0;
    ar >> count;
    fx::ArchiveChecks::RequireElements(ar, count);
    if (depth > kDeepest || !menu) {
        AfxThrowArchiveException(CArchiveException::badIndex);
    }
    for (DWORD position = 0; position < count; ++position) {
        DWORD id = 0;
        DWORD style = 0;
        DWORD isRadio = 0;
        BYTE hasSubmenu = 0;
        CString text;
        ar >> id >> style >> isRadio >> hasSubmenu >> text;
        if (hasSubmenu > 1 || isRadio > 1) {
            AfxThrowArchiveException(CArchiveException::badIndex);
        }
        OwnedMenu submenu = hasSubmenu != 0 ? ReadMenu(ar, ::CreatePopupMenu(), depth + 1) : OwnedMenu();
        toolbar::AppendMenuItem(menu.get(), {id, text, style, static_cast<BOOL>(isRadio), submenu.get()});
        submenu.release(); // the menu has taken it over
    }
    return menu;
}

/// Every menu with the resource that it came from.
class KeptMenus : public CObject {
public:
    struct Kept {
        DWORD resourceId;
        OwnedMenu menu;
    };
    std::vector<std::pair<UINT, HMENU>> written; ///< not owned
    std::vector<Kept> read;

    void Serialize(CArchive& ar) override {
        auto count = static_cast<DWORD>(written.size());
        if (!ar.IsLoading()) {
            ar << count;
            for (const auto& [resourceId, menu] : written) {
                ar << static_cast<DWORD>(resourceId);
                WriteMenu(ar, menu, 0);
            }
            ar << count;
            return;
        }
        ar >> count;
        fx::ArchiveChecks::RequireElements(ar, count);
        for (DWORD index = 0; index < count; ++index) {
            DWORD resourceId = 0;
            ar >> resourceId;
            read.push_back({resourceId, ReadMenu(ar, ::CreateMenu(), 0)});
        }
        DWORD countAgain = 0;
        ar >> countAgain;
        if (countAgain != count) {
            AfxThrowArchiveException(CArchiveException::badIndex);
        }
    }
};

} // namespace

BOOL CContextMenuManager::SaveState(LPCTSTR lpszProfileName) {
    fx::StateStore* const store = Store();
    KeptMenus kept;
    for (const NamedMenu& named : m_menus) {
        kept.written.emplace_back(named.resourceId, named.menu);
    }
    return store != nullptr && store->WriteObject(SectionOf(lpszProfileName), kEntry, kept);
}

BOOL CContextMenuManager::LoadState(LPCTSTR lpszProfileName) {
    fx::StateStore* const store = Store();
    KeptMenus kept;
    if (store == nullptr || !store->ReadObject(SectionOf(lpszProfileName), kEntry, kept)) {
        return FALSE;
    }
    for (KeptMenus::Kept& found : kept.read) {
        for (NamedMenu& named : m_menus) {
            if (named.resourceId == found.resourceId && found.menu) {
                ::DestroyMenu(named.menu);
                named.menu = found.menu.release();
            }
        }
    }
    return TRUE;
}

BOOL CContextMenuManager::ResetState() {
    BOOL isComplete = TRUE;
    std::vector<std::pair<UINT, HMENU>> reset;
    for (NamedMenu& named : m_menus) {
        const LPCTSTR resource = MAKEINTRESOURCE(named.resourceId);
        const HMENU menu = ::LoadMenuW(AfxFindResourceHandle(resource, RT_MENU), resource);
        if (menu == nullptr) {
            isComplete = FALSE;
            continue;
        }
        ::DestroyMenu(named.menu);
        named.menu = menu;
        reset.emplace_back(named.resourceId, menu);
    }
    // The handler may add menus, and end the window.
    const HWND frame = AfxGetMainWnd()->GetSafeHwnd();
    for (const auto& [resourceId, menu] : reset) {
        ::SendMessageW(frame, AFX_WM_RESETCONTEXTMENU, resourceId, reinterpret_cast<LPARAM>(menu));
    }
    return isComplete;
}
