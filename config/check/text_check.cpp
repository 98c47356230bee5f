#include "config/check/text_check.h"

#include "config/suggestion.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace {

constexpr std::wstring_view kToolTipSuffix = L".tooltip";
constexpr std::wstring_view kSection = L"RibbonBarCfg";

/// What all elements with one keyword ask for.
struct Asked {
    const GatheredElement* first = nullptr;
    bool name = false;
    bool toolTip = false;
};

bool AsksTables(ElementRole role) {
    switch (role) {
    case ElementRole::Row:
    case ElementRole::QuickAccessItem:
    case ElementRole::ToolBarGroup:
    case ElementRole::ToolBar:
    case ElementRole::ToolBarButton:
    case ElementRole::ToolBarSeparator:
        return false;
    default:
        return true;
    }
}

class TextCheck {
public:
    TextCheck(std::span<const LanguageTexts> languages, std::set<std::wstring> meant, DiagnosticsSink& sink)
        : m_languages(languages), m_sink(sink), m_meant(std::move(meant)) {}

    void Take(const GatheredElement& gathered) {
        const MetElement& element = gathered.element;
        const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
        if (keyword.empty()) {
            return;
        }
        m_keywords.insert(keyword);
        m_keywords.insert(element.otherKeywords.begin(), element.otherKeywords.end());
        m_byFile[gathered.file].insert(keyword);
        if (element.isPassedOver || element.IsReported(AttributeUse::Keyword)) {
            m_ofRibbon.insert(keyword);
            m_ofRibbon.insert(element.otherKeywords.begin(), element.otherKeywords.end());
            return;
        }
        if (element.role == ElementRole::QuickAccessItem || element.role == ElementRole::StatusButton) {
            m_references.insert(keyword);
        } else if (element.role == ElementRole::RibbonElement || element.role == ElementRole::SubItem) {
            m_ofRibbon.insert(keyword);
        }
        m_isCommand[keyword] = m_isCommand[keyword] || element.role != ElementRole::StatusButton;
        const bool name = AsksTables(element.role) && element.Has(AttributeUse::Name);
        const bool toolTip = AsksTables(element.role) && element.Has(AttributeUse::ToolTip);
        if (!name && !toolTip) {
            return;
        }
        const auto [asked, isNew] = m_asked.try_emplace(keyword, Asked{&gathered, name, toolTip});
        if (isNew) {
            m_inOrder.push_back(keyword);
        } else {
            asked->second.name = asked->second.name || name;
            asked->second.toolTip = asked->second.toolTip || toolTip;
        }
    }

    void ReportMissing() {
        FindLostLanguages();
        for (const std::wstring& keyword : m_inOrder) {
            const Asked& asked = m_asked.at(keyword);
            if (!m_isCommand[keyword]) {
                continue; // a status-bar button that stands for nothing is not made
            }
            Missing missing{&keyword, &asked, {}, {}, {}};
            for (const LanguageTexts& language : m_languages) {
                const std::wstring what =
                    m_lost.contains(language.code) ? std::wstring() : MissingIn(language, keyword, asked);
                if (!what.empty()) {
                    missing.text += (missing.text.empty() ? L"" : L"; ") + language.code + L" has no " + what;
                    missing.languages.push_back(&language);
                }
            }
            if (!missing.text.empty() && !ReportInTable(missing)) {
                m_missing.push_back(std::move(missing));
            }
        }
        FindMeant();
        for (const Missing& missing : m_missing) {
            Report(missing);
        }
    }

    /// One finding for all texts of one keyword, in all languages. So many elements as `lost` do not have their
    /// keyword, which was reported: where that explains all keywords that every language has and no element, these are
    /// not spoken of.
    void ReportUnused(std::size_t lost) const {
        std::map<std::wstring, std::vector<const PlacedText*>> unused;
        for (const LanguageTexts& language : m_languages) {
            for (const auto& [key, text] : language.commands) {
                const std::wstring keyword = KeywordOf(key);
                if (!m_keywords.contains(keyword) && !m_keywords.contains(key) && !m_meant.contains(keyword)) {
                    unused[keyword].push_back(&text);
                }
            }
        }
        const auto isEverywhere = [this](const auto& entry) {
            return std::ranges::all_of(m_languages, [&entry](const LanguageTexts& language) {
                return !language.isUsable || language.commands.contains(entry.first) ||
                       language.commands.contains(entry.first + std::wstring(kToolTipSuffix));
            });
        };
        if (static_cast<std::size_t>(std::ranges::count_if(unused, isEverywhere)) <= lost) {
            std::erase_if(unused, isEverywhere);
        }
        constexpr std::size_t few = 8;
        if (m_ofRibbon.empty() && unused.size() > few) {
            const PlacedText& first = *unused.begin()->second.front();
            ReportTogether(m_sink, first.file, first.position, "unused-text",
                           L"no element of the configuration has the keywords of " + std::to_wstring(unused.size()) +
                               L" texts, and no ribbon file has any element",
                           L"put the ribbon file to the others");
            return;
        }
        for (const auto& [keyword, texts] : unused) {
            std::vector<RelatedPlace> others;
            for (std::size_t i = 1; i < texts.size(); ++i) {
                others.push_back({texts[i]->file, texts[i]->position, L"so is this"});
            }
            ReportTogether(m_sink, texts.front()->file, texts.front()->position, "unused-text",
                           L"no element of the configuration has the keyword " + Quoted(keyword), {},
                           std::move(others));
        }
    }

    const std::set<std::wstring>& Meant() const { return m_meant; }

private:
    /// A keyword with texts that some languages do not have.
    struct Missing {
        const std::wstring* keyword;
        const Asked* asked;
        std::wstring text;
        std::vector<const LanguageTexts*> languages;
        /// The keyword that was probably meant.
        std::wstring meant;
    };

    /// A language that has none of the texts lacks the section, not each of them. One with units that lost their keys,
    /// which was reported, may have there what it lacks.
    void FindLostLanguages() {
        constexpr std::size_t few = 3;
        for (const LanguageTexts& language : m_languages) {
            std::size_t missing = 0;
            std::size_t texts = 0;
            for (const std::wstring& keyword : m_inOrder) {
                const std::size_t count = CountMissing(language, keyword, m_asked.at(keyword));
                missing += count > 0 ? 1 : 0;
                texts += count;
            }
            if (texts > 0 && texts <= language.lostUnits) {
                m_lost.insert(language.code);
            } else if (m_inOrder.size() >= few && missing == m_inOrder.size()) {
                m_lost.insert(language.code);
                ReportLost(language);
            }
        }
    }

    /// What was meant by each keyword without texts; m_meant has them afterwards.
    void FindMeant() {
        std::vector<Missing*> strange;
        for (Missing& missing : m_missing) {
            missing.meant = ClosestWord(*missing.keyword, DanglingKeywords());
            if (missing.meant.empty()) {
                missing.meant = ClosestWord(*missing.keyword, KnownElsewhere(missing.asked->first->file));
            }
            if (missing.meant.empty()) {
                strange.push_back(&missing);
            } else {
                m_meant.insert(missing.meant);
            }
        }
        if (strange.size() == 1) {
            strange.front()->meant = OnlyLeftOver(*strange.front());
            if (!strange.front()->meant.empty()) {
                m_meant.insert(strange.front()->meant);
            }
        }
    }

    /// The keyword that no element has, although all languages have the texts for it that this one lacks in all of
    /// them: it was here before. Empty when there is none, or several.
    std::wstring OnlyLeftOver(const Missing& missing) {
        const auto usable = std::ranges::count_if(m_languages, &LanguageTexts::isUsable);
        if (static_cast<std::size_t>(usable) != missing.languages.size()) {
            return {};
        }
        std::wstring only;
        for (const std::wstring& keyword : DanglingKeywords()) {
            const bool fits =
                !m_meant.contains(keyword) && std::ranges::all_of(m_languages, [&](const LanguageTexts& language) {
                    const bool hasToolTip = language.commands.contains(keyword + std::wstring(kToolTipSuffix));
                    return !language.isUsable || (language.commands.contains(keyword) == missing.asked->name &&
                                                  hasToolTip == missing.asked->toolTip);
                });
            if (fits && !only.empty()) {
                return {};
            }
            only = fits ? keyword : only;
        }
        return only;
    }

    void ReportLost(const LanguageTexts& language) {
        if (language.hasLostSection) {
            return; // and this was said
        }
        for (const auto& [section, text] : language.otherSections) {
            if (!ClosestWord(section, {std::wstring(kSection)}).empty()) {
                ReportTogether(m_sink, text.file, text.position, "bad-table",
                               L"the section " + Quoted(section) +
                                   L" of this text is not the one of commands: they have no text in " + language.code,
                               DidYouMean(std::wstring(kSection)),
                               {PlaceOf(*m_asked.at(m_inOrder.front()).first, AttributeUse::Keyword,
                                        L"the first that asks for one")});
                return;
            }
        }
        const Asked& asked = m_asked.at(m_inOrder.front());
        ReportTogether(m_sink, *asked.first->file, PlaceOf(asked.first->element, AttributeUse::Keyword), "missing-text",
                       language.code + L" has none of the texts that are asked for here and below",
                       L"barcheck DIR --extract " + language.code + L" writes the table");
    }

    /// Where other languages have the text, or this one has the name to a tooltip, and this one has it under nearly
    /// that key, the key is wrong.
    bool ReportInTable(const Missing& missing) {
        if (missing.languages.size() != 1) {
            return false;
        }
        const LanguageTexts& language = *missing.languages.front();
        const std::wstring& keyword = *missing.keyword;
        const bool isToolTip = !LacksName(language, keyword, *missing.asked);
        const bool isKnownKeyword = isToolTip && language.commands.contains(keyword);
        if (!isKnownKeyword && m_languages.size() - m_lost.size() < 2) {
            return false;
        }
        const auto nameOf = [isToolTip](const std::wstring& key) { return isToolTip ? key : KeywordOf(key); };
        std::vector<std::wstring> unused;
        for (const auto& [key, placed] : language.commands) {
            if (!m_keywords.contains(KeywordOf(key)) && !m_keywords.contains(key)) {
                unused.push_back(nameOf(key));
            }
        }
        const std::wstring wanted = isToolTip ? keyword + std::wstring(kToolTipSuffix) : keyword;
        std::wstring written = ClosestWord(wanted, unused);
        if (written.empty() && !isToolTip) {
            written = OnlyStrange(language);
        }
        const auto found = std::ranges::find_if(
            language.commands, [&](const auto& entry) { return !written.empty() && nameOf(entry.first) == written; });
        if (found == language.commands.end()) {
            return false;
        }
        m_meant.insert(KeywordOf(written));
        ReportTogether(
            m_sink, found->second.file, found->second.position, "missing-text",
            L"no element has the keyword " + Quoted(written) + L", and for " + Quoted(keyword) + L" " + missing.text,
            DidYouMean(wanted), {PlaceOf(*missing.asked->first, AttributeUse::Keyword, L"it is asked for here")});
        return true;
    }

    /// The one keyword of a language that neither an element nor another language has, where it also lacks one alone:
    /// whoever lost the one wrote the other. Empty when there are none or several.
    std::wstring OnlyStrange(const LanguageTexts& language) const {
        const auto lacking = std::ranges::count_if(m_inOrder, [&](const std::wstring& keyword) {
            return CountMissing(language, keyword, m_asked.at(keyword)) > 0;
        });
        std::set<std::wstring> strange;
        for (const auto& entry : language.commands) {
            const std::wstring& key = entry.first;
            const bool isElsewhere = std::ranges::any_of(m_languages, [&](const LanguageTexts& other) {
                return &other != &language && other.commands.contains(key);
            });
            if (!isElsewhere && !m_keywords.contains(KeywordOf(key)) && !m_keywords.contains(key)) {
                strange.insert(KeywordOf(key));
            }
        }
        return lacking == 1 && strange.size() == 1 ? *strange.begin() : std::wstring();
    }

    static bool Lacks(const LanguageTexts& language, const std::wstring& key) {
        return language.isUsable && !language.hasUnread && !language.commands.contains(key) &&
               !language.leftOut.contains(key);
    }
    static bool LacksName(const LanguageTexts& language, const std::wstring& keyword, const Asked& asked) {
        return asked.name && Lacks(language, keyword);
    }
    static bool LacksToolTip(const LanguageTexts& language, const std::wstring& keyword, const Asked& asked) {
        return asked.toolTip && Lacks(language, keyword + std::wstring(kToolTipSuffix));
    }
    static std::size_t CountMissing(const LanguageTexts& language, const std::wstring& keyword, const Asked& asked) {
        return (LacksName(language, keyword, asked) ? 1u : 0u) + (LacksToolTip(language, keyword, asked) ? 1u : 0u);
    }
    static std::wstring MissingIn(const LanguageTexts& language, const std::wstring& keyword, const Asked& asked) {
        const bool lacksName = LacksName(language, keyword, asked);
        const bool lacksToolTip = LacksToolTip(language, keyword, asked);
        if (lacksName && lacksToolTip) {
            return L"name and no tooltip";
        }
        return lacksName ? L"name" : lacksToolTip ? L"tooltip" : L"";
    }

    void Report(const Missing& missing) const {
        const GatheredElement& first = *missing.asked->first;
        ReportTogether(m_sink, *first.file, PlaceOf(first.element, AttributeUse::Keyword), "missing-text",
                       L"for " + Quoted(*missing.keyword) + L" " + missing.text,
                       missing.meant.empty() ? L"add what is missing to section RibbonBarCfg of the tables"
                                             : DidYouMean(missing.meant));
    }

    /// Keywords with texts that no element of the file has: those of other files.
    std::vector<std::wstring> KnownElsewhere(const std::wstring* file) const {
        std::set<std::wstring> known;
        for (const LanguageTexts& language : m_languages) {
            for (const auto& [key, text] : language.commands) {
                known.insert(KeywordOf(key));
            }
        }
        const std::set<std::wstring>& own = m_byFile.at(file);
        std::vector<std::wstring> elsewhere;
        std::ranges::set_difference(known, own, std::back_inserter(elsewhere));
        return elsewhere;
    }

    /// Keywords that somebody waits for: the tables have texts for them that no element uses, or a quick access item or
    /// status-bar button refers to them and no element of the ribbon has them.
    const std::vector<std::wstring>& DanglingKeywords() {
        if (m_dangling.empty()) {
            std::set<std::wstring> dangling;
            for (const LanguageTexts& language : m_languages) {
                for (const auto& [key, text] : language.commands) {
                    if (!m_keywords.contains(KeywordOf(key))) {
                        dangling.insert(KeywordOf(key));
                    }
                }
            }
            std::ranges::set_difference(m_references, m_ofRibbon, std::inserter(dangling, dangling.end()));
            m_dangling.assign(dangling.begin(), dangling.end());
        }
        return m_dangling;
    }

    std::span<const LanguageTexts> m_languages;
    DiagnosticsSink& m_sink;
    std::set<std::wstring> m_keywords;
    std::map<const std::wstring*, std::set<std::wstring>> m_byFile;
    /// Languages without any of the texts.
    std::set<std::wstring> m_lost;
    std::map<std::wstring, Asked> m_asked;
    std::vector<std::wstring> m_inOrder;
    std::vector<Missing> m_missing;
    std::set<std::wstring> m_references;
    std::set<std::wstring> m_ofRibbon;
    /// Whether anything but status-bar buttons has the keyword.
    std::map<std::wstring, bool> m_isCommand;
    std::vector<std::wstring> m_dangling;
    std::set<std::wstring> m_meant;
};

} // namespace

std::wstring KeywordOf(const std::wstring& key) {
    const std::size_t dot = key.rfind(L'.');
    if (dot == std::wstring::npos || dot == 0) {
        return key;
    }
    const std::wstring_view suffix = std::wstring_view(key).substr(dot);
    const bool isNumber = suffix.size() > 1 && suffix.find_first_not_of(L"0123456789", 1) == suffix.npos;
    return suffix == kToolTipSuffix || isNumber ? key.substr(0, dot) : key;
}

std::set<std::wstring> CheckTexts(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                                  DiagnosticsSink& sink) {
    TextCheck check(languages, {}, sink);
    for (const GatheredElement& gathered : elements) {
        check.Take(gathered);
    }
    check.ReportMissing();
    return check.Meant();
}

void CheckUnusedTexts(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                      const std::set<std::wstring>& meant, std::size_t lostKeywords, DiagnosticsSink& sink) {
    TextCheck check(languages, meant, sink);
    for (const GatheredElement& gathered : elements) {
        check.Take(gathered);
    }
    check.ReportUnused(lostKeywords);
}

std::size_t CountLostKeywords(GatheringSink& sink) {
    constexpr std::string_view losing[] = {"missing-keyword", "no-attributes", "stray-text"};
    constexpr std::size_t all = 1'000'000; // there are never so many
    std::size_t lost = 0;
    for (const Diagnostic& finding : sink.Findings()) {
        const bool isUnclear = finding.code == "unknown-attribute" && finding.fix.empty();
        lost += isUnclear || std::ranges::find(losing, finding.code) != std::end(losing) ? 1 : 0;
        if (finding.code == "empty-file" || finding.code == "wrong-depth") {
            return all;
        }
    }
    const auto reported = std::ranges::count_if(sink.Elements(), [](const GatheredElement& gathered) {
        return gathered.element.IsReported(AttributeUse::Keyword);
    });
    return lost + static_cast<std::size_t>(reported);
}

void AddKeywordsWithTexts(std::span<const LanguageTexts> languages, std::set<std::wstring>& keywords) {
    for (const LanguageTexts& language : languages) {
        for (const auto& [key, text] : language.commands) {
            keywords.insert(KeywordOf(key));
        }
    }
}
