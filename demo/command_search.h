#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// A command as a person looks for it.
struct SearchCommand {
    unsigned int id = 0;
    std::wstring keyword;
    std::wstring name;                    ///< In the language in force.
    std::vector<std::wstring> otherNames; ///< In the other languages.
    std::wstring place;                   ///< Where it lives: tab and panel, or the menus that lead to it.
    std::wstring keys;                    ///< Its shortcut; empty: none.
    std::wstring icon;                    ///< The file of its icon; empty: none.
    bool isEnabled = true;
    bool isChecked = false;
};

struct SearchHit {
    std::size_t command = 0;
    std::wstring otherName; ///< The name in another language by which it was found; empty: by what is shown.
};

/// A text of a bar as it is read: without the mark of its mnemonic ("&Open", "打开(&O)") and the keys behind a
/// tabulator; "&&" is one "&".
std::wstring PlainMenuText(std::wstring text);

/// Brings a text to the form in which texts are compared: letter case and accents taken off.
using SearchFold = std::function<std::wstring(const std::wstring&)>;

/// The commands in which every word of `query` is found, the best first: by the name that is shown, then by a name in
/// another language, then by the keyword; within each by the beginning of the name, then by the beginning of a word in
/// it, then anywhere. Of equals those come first that can be run now, then those that stand first in `commands`. An
/// empty query finds all in their order.
std::vector<SearchHit> FindCommands(const std::vector<SearchCommand>& commands, const std::wstring& query,
                                    const SearchFold& fold);
