#include "config/check/translation_extract.h"

#include "config/check/text_check.h"
#include "config/ribbon_attributes.h"

#include <varnhold/language_files.h>
#include <varnhold/markup.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <tuple>

namespace {

constexpr std::string_view kPlaceNote = "<note category=\"place\">";
constexpr std::string_view kUnusedNote = "<note category=\"unused\">";
constexpr std::string_view kNoteEnd = "</note>";
constexpr std::string_view kUnitEnd = "</unit>";
constexpr std::string_view kFileEnd = "</file>";

using varnhold::EscapedMarkup;

std::string EscapedMarkup(const std::wstring& text) { return EscapedMarkup(wstring2String(text)); }

/// The units of a table, with the places where they begin.
class UnitList : public varnhold::TranslationFileVisitor {
public:
    struct Unit {
        std::string section;
        std::wstring key;
        std::wstring text;
        varnhold::TextPosition position;
    };

    void VisitUnit(const varnhold::TranslationUnit& unit, const varnhold::TextPlace& place) override {
        units.push_back({std::string(unit.section), string2wstring(unit.key), unit.text, place.GetPosition()});
    }
    void VisitProblem(varnhold::TranslationProblem /*problem*/, varnhold::TextPosition /*position*/,
                      const std::wstring& /*text*/) override {}

    std::vector<Unit> units;
};

bool ReadUnits(std::string_view table, UnitList& list) { return varnhold::ReadTranslationText(table, {}, list); }

/// Where lines and columns are in a text; they are asked for in their order.
class OffsetFinder {
public:
    explicit OffsetFinder(std::string_view text) : m_text(text) {}

    std::size_t Find(varnhold::TextPosition position) {
        for (; m_line < position.line && m_start < m_text.size(); ++m_start) {
            const bool isAlone = m_text[m_start] == '\r' && m_text.substr(m_start + 1, 1) != "\n";
            m_line += m_text[m_start] == '\n' || isAlone ? 1 : 0;
        }
        std::size_t at = m_start;
        for (std::size_t column = 1; column < position.column && at < m_text.size(); ++column) {
            do {
                ++at;
            } while (at < m_text.size() && (static_cast<unsigned char>(m_text[at]) & 0xC0) == 0x80);
        }
        return at;
    }

private:
    std::string_view m_text;
    std::size_t m_line = 1;
    std::size_t m_start = 0;
};

/// Behind the ">" of the tag that begins at `at`; npos for a tag that closes itself or does not end.
std::size_t BehindStartTag(std::string_view text, std::size_t at) {
    char quote = 0;
    for (; at < text.size(); ++at) {
        if (quote != 0) {
            quote = text[at] == quote ? '\0' : quote;
        } else if (text[at] == '"' || text[at] == '\'') {
            quote = text[at];
        } else if (text[at] == '>') {
            return at > 0 && text[at - 1] == '/' ? std::string_view::npos : at + 1;
        }
    }
    return std::string_view::npos;
}

/// Takes the notes of both categories out of a unit, and what is empty without them.
void RemoveOwnNotes(std::string& unit) {
    constexpr std::string_view noNotes = "<notes></notes>";
    bool isAnyRemoved = false;
    for (const std::string_view start : {kPlaceNote, kUnusedNote}) {
        for (std::size_t note = unit.find(start); note != std::string::npos; note = unit.find(start, note)) {
            const std::size_t end = unit.find(kNoteEnd, note);
            if (end == std::string::npos) {
                return;
            }
            unit.erase(note, end + kNoteEnd.size() - note);
            isAnyRemoved = true;
        }
    }
    const std::size_t empty = unit.find(noNotes);
    if (isAnyRemoved && empty != std::string::npos) {
        unit.erase(empty, noNotes.size());
    }
}

std::string PlaceNote(const std::wstring& text) {
    return std::string(kPlaceNote) + EscapedMarkup(text) + std::string(kNoteEnd);
}

/// A note for each place; of many the first ones, and how many there are besides.
std::string PlaceNotes(const AskedText& asked) {
    std::string notes;
    for (std::size_t i = 0; i < std::min(asked.places.size(), kMostPlaces); ++i) {
        notes += PlaceNote(asked.places[i]);
    }
    if (asked.places.size() > kMostPlaces) {
        notes += PlaceNote(L"and in " + std::to_wstring(asked.places.size() - kMostPlaces) + L" more places");
    }
    return notes;
}

void AddNotes(std::string& unit, const std::string& note) {
    constexpr std::string_view notes = "<notes>";
    const std::size_t inside = BehindStartTag(unit, 0);
    if (inside == std::string::npos) {
        return;
    }
    const std::size_t next = unit.find_first_not_of(" \t\r\n", inside);
    if (next != std::string::npos && unit.compare(next, notes.size(), notes) == 0) {
        unit.insert(next + notes.size(), note);
    } else {
        unit.insert(inside, "<notes>" + note + "</notes>");
    }
}

/// The values of all attributes of the name "id".
std::set<std::string> IdsIn(std::string_view table) {
    constexpr std::string_view name = "id=";
    constexpr std::string_view blanks = " \t\r\n";
    std::set<std::string> ids;
    for (std::size_t at = table.find(name); at != table.npos; at = table.find(name, at + 1)) {
        const std::size_t start = at + name.size() + 1;
        if (at > 0 && blanks.find(table[at - 1]) != blanks.npos && start < table.size()) {
            const std::size_t end = table.find(table[start - 1], start);
            ids.emplace(table.substr(start, std::min(end, table.size()) - start));
        }
    }
    return ids;
}

/// Gives new units ids that no other one has.
class FreeIds {
public:
    explicit FreeIds(std::string_view table) : m_taken(IdsIn(table)) {}

    /// The key itself where it may be an id and is free.
    std::string TakeFor(const std::string& key) {
        constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789._-";
        if (key.find_first_not_of(plain) == std::string::npos && m_taken.insert(key).second) {
            return key;
        }
        std::string id;
        do {
            id = "new-" + std::to_string(++m_last);
        } while (!m_taken.insert(id).second);
        return id;
    }

private:
    std::set<std::string> m_taken;
    std::size_t m_last = 0;
};

std::string NewUnit(const AskedText& asked, const std::wstring& source, const std::string& id) {
    const std::string key = wstring2String(asked.key);
    return "    <unit id=\"" + id + "\" name=\"" + EscapedMarkup(key) + "\"><notes>" + PlaceNotes(asked) +
           "</notes><segment><source>" + EscapedMarkup(source) + "</source></segment></unit>";
}

/// As the table ends its lines.
std::string_view LineEndOf(std::string_view table) {
    const std::size_t end = table.find('\n');
    return end != table.npos && end > 0 && table[end - 1] == '\r' ? "\r\n" : "\n";
}

/// Nothing that was in the table may be another one afterwards, and what was asked for is there: a table can hold a
/// comment that looks like the place where units belong.
bool IsCompleted(const UnitList& before, const TableCompletion& completion, std::string_view after) {
    UnitList list;
    if (!ReadUnits(after, list)) {
        return false;
    }
    std::set<std::tuple<std::string, std::wstring, std::wstring>> present;
    std::set<std::wstring> keys = completion.elsewhere;
    for (const UnitList::Unit& unit : list.units) {
        present.emplace(unit.section, unit.key, unit.text);
        if (unit.section == kRibbonSection) {
            keys.insert(unit.key);
        }
    }
    return std::ranges::all_of(before.units,
                               [&](const UnitList::Unit& unit) {
                                   return present.contains({unit.section, unit.key, unit.text});
                               }) &&
           std::ranges::all_of(completion.asked, [&](const AskedText& text) { return keys.contains(text.key); });
}

/// Writes a table anew, piece by piece.
class Completing {
public:
    Completing(const std::string& table, const UnitList& list, const TableCompletion& completion,
               CompletionCounts& counts)
        : m_table(table), m_list(list), m_completion(completion), m_counts(counts) {
        for (const AskedText& text : completion.asked) {
            m_asked.emplace(text.key, &text);
        }
    }

    std::string Run() {
        OffsetFinder finder(m_table);
        std::size_t from = m_table.find("<file id=\"" + std::string(kRibbonSection) + "\"");
        for (const UnitList::Unit& unit : m_list.units) {
            if (unit.section == kRibbonSection) {
                from = finder.Find(unit.position);
                CopyUpTo(from);
                CopyUnit(unit);
            }
        }
        AddNew(from);
        CopyUpTo(m_table.size());
        return std::move(m_out);
    }

private:
    void CopyUpTo(std::size_t end) {
        m_out.append(m_table, m_copied, end - m_copied);
        m_copied = end;
    }

    void CopyUnit(const UnitList::Unit& unit) {
        const std::size_t end = m_table.find(kUnitEnd, m_copied);
        if (end == std::string::npos) {
            return;
        }
        const auto asked = m_asked.find(unit.key);
        const bool isAsked = asked != m_asked.end();
        const bool isUsed = isAsked || m_completion.keywords.contains(KeywordOf(unit.key));
        std::string text = m_table.substr(m_copied, end - m_copied);
        RemoveOwnNotes(text);
        if (isAsked) {
            AddNotes(text, PlaceNotes(*asked->second));
        } else if (!isUsed) {
            AddNotes(text, std::string(kUnusedNote) + "no file of the configuration uses it" + std::string(kNoteEnd));
        }
        ++(isUsed ? m_counts.kept : m_counts.unused);
        m_out += text;
        m_copied = end;
        m_present.insert(unit.key);
    }

    /// `from`: where the section's last unit begins, or the section itself; npos when there is none.
    void AddNew(std::size_t from) {
        const std::string lineEnd(LineEndOf(m_table));
        FreeIds ids(m_table);
        std::string added;
        for (const AskedText& text : m_completion.asked) {
            if (!m_present.contains(text.key) && !m_completion.elsewhere.contains(text.key)) {
                const auto source = m_completion.sources.find(text.key);
                ++m_counts.added;
                added += NewUnit(text, source == m_completion.sources.end() ? text.key : source->second,
                                 ids.TakeFor(wstring2String(text.key))) +
                         lineEnd;
            }
        }
        if (added.empty()) {
            return;
        }
        const std::size_t end = from == std::string::npos ? from : m_table.find(kFileEnd, from);
        if (end == std::string::npos) {
            const std::size_t close = m_table.rfind("</xliff>");
            if (close == std::string::npos) {
                return; // <xliff/>, or written in another way: what was asked for is not there then
            }
            CopyUpTo(std::max(m_copied, close));
            m_out += "  <file id=\"" + std::string(kRibbonSection) + "\">" + lineEnd + added + "  </file>" + lineEnd;
            return;
        }
        // In a line of its own, before the one that ends the section.
        const std::size_t line = m_table.rfind('\n', end) + 1;
        const bool isAlone = line >= m_copied && m_table.find_first_not_of(" \t", line) == end;
        CopyUpTo(isAlone ? line : end);
        m_out += (isAlone ? "" : lineEnd) + added;
    }

    const std::string& m_table;
    const UnitList& m_list;
    const TableCompletion& m_completion;
    CompletionCounts& m_counts;
    std::map<std::wstring, const AskedText*> m_asked;
    std::set<std::wstring> m_present;
    std::string m_out;
    std::size_t m_copied = 0;
};

} // namespace

bool CompleteTable(std::string& table, const TableCompletion& completion, CompletionCounts& counts) {
    UnitList list;
    if (!ReadUnits(table, list)) {
        return false;
    }
    std::string completed = Completing(table, list, completion, counts).Run();
    if (!IsCompleted(list, completion, completed)) {
        return false;
    }
    table = std::move(completed);
    return true;
}

std::vector<std::wstring> CommandKeysOf(const std::string& table) {
    std::vector<std::wstring> keys;
    UnitList list;
    if (!ReadUnits(table, list)) {
        return keys;
    }
    for (UnitList::Unit& unit : list.units) {
        if (unit.section == kRibbonSection) {
            keys.push_back(std::move(unit.key));
        }
    }
    return keys;
}

std::vector<std::size_t> TablesForTexts(std::span<const AskedText> asked,
                                        std::span<const std::vector<std::wstring>> keys) {
    std::map<std::wstring, std::size_t> tableOf;
    for (std::size_t table = 0; table < keys.size(); ++table) {
        for (const std::wstring& key : keys[table]) {
            tableOf.emplace(key, table);
        }
    }
    const auto known = [&tableOf](const AskedText& text) { return tableOf.find(text.key); };
    const auto first = std::ranges::find_if(asked, [&](const AskedText& text) { return known(text) != tableOf.end(); });
    std::size_t nearest = first == asked.end() ? 0 : known(*first)->second;
    std::vector<std::size_t> tables;
    tables.reserve(asked.size());
    for (const AskedText& text : asked) {
        const auto own = known(text);
        nearest = own == tableOf.end() ? nearest : own->second;
        tables.push_back(nearest);
    }
    return tables;
}

std::string EmptyTable(const std::wstring& sourceLanguage, const std::wstring& language) {
    const std::string target = sourceLanguage == language ? "" : " trgLang=\"" + EscapedMarkup(language) + "\"";
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\" srcLang=\"" +
           EscapedMarkup(sourceLanguage) + "\"" + target + ">\n  <file id=\"" + kRibbonSection +
           "\">\n  </file>\n</xliff>\n";
}
