#pragma once

#include "menu_event.h"

#include <functional>
#include <map>
#include <string>

class CCmdUI;

/// A reactor that serves the commands whose configured command text (attribute CMD) stands in its table. The configured
/// parameter tells commands of one text apart.
class CCommandReactor : public CMenuReactor {
public:
    typedef std::function<void(const std::wstring& parameter)> Action;
    typedef std::function<bool(const std::wstring& parameter)> Question;

    /// `run` does the command. `isChecked` and `isEnabled` may be empty: never checked, always enabled.
    void Serve(const std::wstring& command, Action run, Question isChecked = nullptr, Question isEnabled = nullptr);

protected:
    bool MenuClick(unsigned int id) const override;
    bool Update(CCmdUI* commandUi) const override;

private:
    struct Entry {
        Action run;
        Question isChecked;
        Question isEnabled;
    };

    const Entry* Find(unsigned int id, std::wstring& parameter) const;

    std::map<std::wstring, Entry> m_entries;
};
