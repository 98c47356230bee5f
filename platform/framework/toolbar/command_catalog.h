#pragma once

#include "afxtoolbarbutton.h"

#include <memory>
#include <vector>

namespace toolbar {

/// The commands that a customize dialog offers, by category, in the order in which they came. Owns copies of the
/// buttons; pointers to them hold until the command is removed or replaced.
class CommandCatalog {
public:
    using Buttons = std::vector<std::unique_ptr<CMFCToolBarButton>>;
    struct Category {
        CString name;
        Buttons buttons;
    };

    /// False: separators, recent files, what is not permitted, what cannot be copied, and what the category has.
    bool Add(const CString& category, const CMFCToolBarButton& button, int before);
    /// The index that it had, -1: it was not there.
    int Remove(const CString& category, UINT command);
    void Replace(UINT command, const CMFCToolBarButton& button);
    bool Rename(const CString& before, const CString& after);
    bool SetUserCategory(const CString& name);

    /// The user's category comes last.
    const std::vector<Category>& Categories() const { return m_categories; }
    /// Null: there is none.
    const Category* Find(const CString& name) const;
    /// The first button with the command; null: there is none.
    const CMFCToolBarButton* FindCommand(UINT command) const;
    /// Each command once, by name in the order of the user's language.
    std::vector<CMFCToolBarButton*> AllCommands() const;
    /// Empty: the command is not known.
    const CString& NameOf(UINT command) const;

private:
    Category* Find(const CString& name);

    std::vector<Category> m_categories;
    mutable CString m_name; ///< what NameOf answered last
};

} // namespace toolbar
