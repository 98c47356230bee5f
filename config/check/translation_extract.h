#pragma once

#include "config/check/gathered_elements.h"

#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

/// A text that the files ask for, and what a translator should know of it.
struct AskedText {
    /// The unit's key: the keyword, or "KEYWORD.tooltip".
    std::wstring key;
    /// Where it stands and what room it has there, each place once, in reading order:
    /// "cfg/ribbon.xml, tab CatMap, panel PanelZoom, large button: two lines".
    std::vector<std::wstring> places;
};

/// All texts that the elements ask for, each once, in the order of their first places. Files are named relative to the
/// directory.
std::vector<AskedText> CollectAskedTexts(std::span<const GatheredElement> elements, const std::wstring& directory);

/// What a table is completed with.
struct TableCompletion {
    std::vector<AskedText> asked;
    /// The source texts of new units, by key; a key without one is its own.
    std::map<std::wstring, std::wstring> sources;
    /// Of all elements: a unit of one of them is not unused, even where no element asks for it.
    std::set<std::wstring> keywords;
    /// Keys that are in another table of the language, or belong into one.
    std::set<std::wstring> elsewhere;
};

struct CompletionCounts {
    std::size_t added = 0;
    std::size_t kept = 0;
    std::size_t unused = 0;
};

/// Completes section RibbonBarCfg of a translation table (UTF-8): units that the files use get a note of the category
/// "place" for each place, up to kMostPlaces and one that counts the others; units that no file uses get one of the
/// category "unused"; both are renewed each time. Units that are missing are put at the section's end. Nothing else
/// changes. False, with the table as it was, for what is no such table and where the place of the section cannot be
/// told.
bool CompleteTable(std::string& table, const TableCompletion& completion, CompletionCounts& counts);

inline constexpr std::size_t kMostPlaces = 8;

/// The keys in section RibbonBarCfg of a table, in its order; empty for what is no table.
std::vector<std::wstring> CommandKeysOf(const std::string& table);

/// Which of a language's tables each text belongs into, as an index: the one that has it; a new one the table of the
/// text that is asked for next before it, or, where there is none before, next behind it. `keys`: of each table; not
/// empty.
std::vector<std::size_t> TablesForTexts(std::span<const AskedText> asked,
                                        std::span<const std::vector<std::wstring>> keys);

/// A table of a language without units.
std::string EmptyTable(const std::wstring& sourceLanguage, const std::wstring& language);
