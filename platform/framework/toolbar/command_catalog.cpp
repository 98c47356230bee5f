#include "toolbar/command_catalog.h"

#include "afxtoolbar.h"
#include "toolbar/button_copy.h"
#include "toolbar/choose_buttons.h"

#include <algorithm>

namespace toolbar {

namespace {

bool IsRecentFile(UINT command) { return command >= ID_FILE_MRU_FIRST && command <= ID_FILE_MRU_LAST; }

bool IsOfferable(const CMFCToolBarButton& button) {
    return (button.m_nStyle & TBBS_SEPARATOR) == 0 && !IsRecentFile(button.m_nID) &&
           CMFCToolBar::IsCommandPermitted(button.m_nID);
}

bool HasCommand(const CMFCToolBarButton& button) { return button.m_nID != 0 && button.m_nID != static_cast<UINT>(-1); }

/// Buttons with menus have no command; their texts tell them apart.
bool IsSame(const CMFCToolBarButton& left, const CMFCToolBarButton& right) {
    return left.m_nID == right.m_nID && (HasCommand(left) || left.m_strText == right.m_strText);
}

auto HasName(const CString& name) {
    return [&name](const CommandCatalog::Category& category) { return category.name == name; };
}

} // namespace

CommandCatalog::Category* CommandCatalog::Find(const CString& name) {
    const auto found = std::ranges::find_if(m_categories, HasName(name));
    return found != m_categories.end() ? &*found : nullptr;
}

const CommandCatalog::Category* CommandCatalog::Find(const CString& name) const {
    return const_cast<CommandCatalog*>(this)->Find(name);
}

bool CommandCatalog::Add(const CString& category, const CMFCToolBarButton& button, int before) {
    if (category.IsEmpty() || !IsOfferable(button)) {
        return false;
    }
    Category* place = Find(category);
    const auto isSame = [&button](const auto& known) { return IsSame(*known, button); };
    if (place != nullptr && std::ranges::any_of(place->buttons, isSame)) {
        return false;
    }
    std::unique_ptr<CMFCToolBarButton> copy = CopyOf(button);
    if (!copy) {
        return false;
    }
    if (place == nullptr) {
        m_categories.push_back({category, {}});
        place = &m_categories.back();
    }
    const auto size = static_cast<int>(place->buttons.size());
    CMFCToolBarButton& added = *copy;
    place->buttons.insert(place->buttons.begin() + (before < 0 ? size : std::min(before, size)), std::move(copy));
    added.OnAddToCustomizePage();
    return true;
}

int CommandCatalog::Remove(const CString& category, UINT command) {
    Category* const place = Find(category);
    if (place == nullptr) {
        return -1;
    }
    const auto hasCommand = [command](const auto& known) { return known->m_nID == command; };
    const auto found = std::ranges::find_if(place->buttons, hasCommand);
    if (found == place->buttons.end()) {
        return -1;
    }
    const auto index = static_cast<int>(found - place->buttons.begin());
    place->buttons.erase(found);
    return index;
}

void CommandCatalog::Replace(UINT command, const CMFCToolBarButton& button) {
    for (Category& category : m_categories) {
        for (auto& known : category.buttons) {
            std::unique_ptr<CMFCToolBarButton> copy = known->m_nID == command ? CopyOf(button) : nullptr;
            if (copy) {
                known = std::move(copy);
                known->OnAddToCustomizePage();
            }
        }
    }
}

bool CommandCatalog::Rename(const CString& before, const CString& after) {
    Category* const category = Find(before);
    if (category == nullptr || after.IsEmpty() || Find(after) != nullptr) {
        return false;
    }
    category->name = after;
    return true;
}

bool CommandCatalog::SetUserCategory(const CString& name) {
    const auto found = std::ranges::find_if(m_categories, HasName(name));
    if (found == m_categories.end()) {
        return false;
    }
    std::rotate(found, found + 1, m_categories.end());
    return true;
}

const CMFCToolBarButton* CommandCatalog::FindCommand(UINT command) const {
    for (const Category& category : m_categories) {
        for (const auto& button : category.buttons) {
            if (button->m_nID == command) {
                return button.get();
            }
        }
    }
    return nullptr;
}

std::vector<CMFCToolBarButton*> CommandCatalog::AllCommands() const {
    std::vector<CMFCToolBarButton*> all;
    for (const Category& category : m_categories) {
        for (const auto& button : category.buttons) {
            const auto isSame = [&button](const CMFCToolBarButton* known) { return IsSame(*known, *button); };
            if (std::ranges::none_of(all, isSame)) {
                all.push_back(button.get());
            }
        }
    }
    std::ranges::stable_sort(all, [](const CMFCToolBarButton* left, const CMFCToolBarButton* right) {
        return ReadableText(*left).CollateNoCase(ReadableText(*right)) < 0;
    });
    return all;
}

const CString& CommandCatalog::NameOf(UINT command) const {
    const CMFCToolBarButton* const button = FindCommand(command);
    m_name = button != nullptr ? ReadableText(*button) : CString();
    return m_name;
}

} // namespace toolbar
