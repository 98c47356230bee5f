#include "command_index.h"

#include "language_names.h"
#include "menu_event.h"
#include "menu_id_mgr.h"
#include "ribbon_icon_button.h"
#include "ribbon_lookup.h"
#include "viewer_text.h"

#include "varnhold/language.h"

#include <afxkeyboardmanager.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

namespace {

constexpr wchar_t kStep[] = L" \u203A "; // a single guillemet, which turns round in texts from right to left
constexpr UINT kFirstCommand = 41000;

using Places = std::map<UINT, std::wstring>;

std::wstring Joined(const std::wstring& path, const std::wstring& name) {
    return path.empty() ? name : name.empty() ? path : path + kStep + name;
}

// ---- the ribbon

bool IsPlainButton(const CMFCRibbonBaseElement& element) {
    return element.IsKindOf(RUNTIME_CLASS(CMFCRibbonButton)) && !element.IsKindOf(RUNTIME_CLASS(CMFCRibbonEdit)) &&
           !element.IsKindOf(RUNTIME_CLASS(CMFCRibbonLabel));
}

/// Notes an element and those below it. The registry keeps the names of the language in which they were first read.
void AddElement(const CMFCRibbonBaseElement& element, const std::wstring& path, Places& places) {
    if (const auto* const group = DYNAMIC_DOWNCAST(CMFCRibbonButtonsGroup, &element)) {
        for (int i = 0; i < group->GetCount(); ++i) {
            AddElement(*group->GetButton(i), path, places);
        }
        return;
    }
    if (!IsPlainButton(element)) {
        return;
    }
    places.try_emplace(element.GetID(), path);
    std::wstring keyword;
    CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(element.GetID()), keyword);
    const auto& items = static_cast<const CMFCRibbonButton&>(element).GetSubItems();
    for (int i = 0; i < static_cast<int>(items.GetSize()); ++i) {
        AddElement(*items[i], Joined(path, PlainMenuText(BarText(keyword))), places);
    }
}

void AddCategory(CMFCRibbonCategory& category, Places& places) {
    for (int i = 0; i < category.GetPanelCount(); ++i) {
        CMFCRibbonPanel* const panel = category.GetPanel(i);
        const std::wstring path = Joined(PlainMenuText(category.GetName()), PlainMenuText(panel->GetName()));
        for (int j = 0; j < panel->GetCount(); ++j) {
            AddElement(*panel->GetElement(j), path, places);
        }
    }
}

Places PlacesInRibbon(const CMFCRibbonBar& ribbon) {
    Places places;
    for (int index = 0; index < ribbon.GetCategoryCount(); ++index) {
        AddCategory(*ribbon.GetCategory(index), places);
    }
    if (ribbon.GetMainCategory() != nullptr) {
        AddCategory(*ribbon.GetMainCategory(), places);
    }
    return places;
}

// ---- the menu

std::wstring ItemText(HMENU menu, int position) {
    std::array<wchar_t, 256> text = {};
    ::GetMenuStringW(menu, static_cast<UINT>(position), text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
    return PlainMenuText(text.data());
}

void AddMenu(HMENU menu, const std::wstring& path, Places& places) {
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position) {
        if (const HMENU popup = ::GetSubMenu(menu, position)) {
            AddMenu(popup, Joined(path, ItemText(menu, position)), places);
        } else {
            places.try_emplace(::GetMenuItemID(menu, position), path);
        }
    }
}

// ---- states

/// Asks for a command's state as a bar does.
class StateQuestion : public CCmdUI {
public:
    explicit StateQuestion(UINT id) { m_nID = id; }
    void Enable(BOOL isOn) override {
        m_isEnabled = isOn != FALSE;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int check) override { m_isChecked = check != 0; }
    void SetRadio(BOOL isOn) override { m_isChecked = isOn != FALSE; }
    void SetText(LPCTSTR) override {}

    bool IsEnabled() const { return m_isEnabled; }
    bool IsChecked() const { return m_isChecked; }

private:
    bool m_isEnabled = true;
    bool m_isChecked = false;
};

} // namespace

std::vector<SearchCommand> CollectCommands(const CommandPlaces& places) {
    const Places inRibbon = PlacesInRibbon(*places.ribbon);
    Places inMenu;
    AddMenu(places.menu, L"", inMenu);
    const Places& first = places.prefersMenu ? inMenu : inRibbon;
    const Places& second = places.prefersMenu ? inRibbon : inMenu;

    std::vector<SearchCommand> commands;
    std::set<std::pair<std::wstring, std::wstring>> known;
    const auto& registry = *CMenuIdMgr::Ins();
    for (UINT id = kFirstCommand; id < CMenuIdMgr::s_AddBeginID; ++id) {
        SearchCommand command;
        command.id = id;
        std::wstring text, parameter;
        const auto isThere = [id](const Places& some) { return some.find(id) != some.end(); };
        if (!registry.GetMenuMark(static_cast<int>(id), command.keyword) ||
            !registry.GetCmd(static_cast<int>(id), text) || (!isThere(first) && !isThere(second))) {
            continue;
        }
        registry.GetCmdParam(static_cast<int>(id), parameter);
        command.name = PlainMenuText(BarText(command.keyword));
        if (command.name.empty() || !known.emplace(text, parameter).second) {
            continue;
        }
        command.place = isThere(first) ? first.at(id) : second.at(id);
        command.otherNames = places.names->OtherNames(command.keyword, CMultiLanguageMgr::GetLanguage());
        CString keys;
        if (CKeyboardManager::FindDefaultAccelerator(id, keys, places.frame, TRUE)) {
            command.keys = keys.GetString();
        }
        command.icon = CommandIconFile(*places.ribbon, id, places.iconSet.c_str()).GetString();
        StateQuestion question(id);
        CMenuEvtHandleMgr::Ins()->Update(&question);
        command.isEnabled = question.IsEnabled();
        command.isChecked = question.IsChecked();
        commands.push_back(std::move(command));
    }
    return commands;
}

std::wstring FoldForSearch(const std::wstring& text) {
    constexpr wchar_t firstMark = 0x300, lastMark = 0x36F; // of those that stand behind the letters they belong to
    const auto length = static_cast<int>(text.size());
    std::wstring parts(std::max(0, ::NormalizeString(NormalizationKD, text.c_str(), length, nullptr, 0)), L'\0');
    parts.resize(static_cast<std::size_t>(std::max(
        0, ::NormalizeString(NormalizationKD, text.c_str(), length, parts.data(), static_cast<int>(parts.size())))));
    std::erase_if(parts, [](wchar_t c) { return c >= firstMark && c <= lastMark; });
    std::wstring folded(parts.size(), L'\0');
    ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, parts.c_str(), static_cast<int>(parts.size()),
                    folded.data(), static_cast<int>(folded.size()), nullptr, nullptr, 0);
    return folded;
}

CString CommandIconFile(const CMFCRibbonBar& ribbon, UINT id, const wchar_t* set) {
    std::wstring keyword;
    if (!CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(id), keyword)) {
        return {};
    }
    const auto* const button = FindElement<CMFCRibbonUNIcoButton>(ribbon, keyword.c_str());
    CString file = button != nullptr ? button->GetIconPath(FALSE) : CString();
    if (file.IsEmpty() && button != nullptr) {
        file = button->GetIconPath(TRUE);
    }
    file.Replace(L"\\32\\", L"\\16\\");
    file.Replace(L"\\modle\\", set);
    return file;
}
