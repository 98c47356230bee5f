#include "config/check/command_check.h"

#include "config/check/installation_files.h"
#include "config/element_kind.h"
#include "config/menu_diagnosis.h"
#include "config/shortcut_fault.h"
#include "config/suggestion.h"
#include "varnhold/letter_case.h"

#include <algorithm>
#include <map>

namespace {

/// What the registry knows of a keyword.
struct Command {
    const GatheredElement* first = nullptr;
    std::wstring cmd;
    std::wstring param;
    /// Empty when a later element may still give one.
    std::wstring help;
    bool isPopup = false;
    /// Whether an element of a ribbon has the keyword.
    bool isOfRibbon = false;
    /// What was different in later elements, and the number of the finding about it.
    std::map<std::wstring, std::size_t> reported = {};
};

constexpr std::wstring_view kStatusSeparator = L"Separator";

bool IsNo(std::wstring_view value) { return varnhold::EqualsIgnoringCase(value, L"N"); }

bool IsRegistered(const MetElement& element) {
    switch (element.role) {
    case ElementRole::Category:
        // A value that is neither was reported, and means one of the two.
        return element.ValueOf(AttributeUse::CateTab).empty() || IsNo(element.ValueOf(AttributeUse::CateTab));
    case ElementRole::RibbonElement:
    case ElementRole::SubItem:
    case ElementRole::ToolBarButton:
    case ElementRole::Popup:
        return true;
    case ElementRole::MenuItem:
        return element.ValueOf(AttributeUse::Keyword) != kRecentFilesKeyword;
    default:
        return false;
    }
}

bool IsOfRibbon(const MetElement& element) {
    return element.role == ElementRole::Category || element.role == ElementRole::RibbonElement ||
           element.role == ElementRole::SubItem;
}

/// A TYPE that is unknown was reported, and is meant to be one of the others.
bool MayStandInQuickAccess(const MetElement& element) {
    if (element.role != ElementRole::RibbonElement && element.role != ElementRole::SubItem) {
        return false;
    }
    const ElementKind kind = KindOfElement(element.ValueOf(AttributeUse::Type));
    return kind != ElementKind::Slider && kind != ElementKind::Label && kind != ElementKind::Edit &&
           kind != ElementKind::Group;
}

/// An element that names a command without registering it.
bool Refers(const MetElement& element) {
    return element.role == ElementRole::QuickAccessItem || element.role == ElementRole::StatusButton;
}

/// Of a status-bar button: what has no known TYPE is a button.
bool ShowsNothing(const MetElement& element) {
    const ElementKind kind = KindOfElement(element.ValueOf(AttributeUse::Type));
    const bool showsIcon = kind != ElementKind::Label && !element.ValueOf(AttributeUse::Icon).empty();
    return kind != ElementKind::Slider && !showsIcon && !element.Has(AttributeUse::Name);
}

/// What is said of the one element that differs from the first; of the first, where several differ in the same way; and
/// of those then.
struct DifferenceTexts {
    std::wstring ofOne;
    std::wstring ofFirst;
    std::wstring ofOthers;
};

class CommandCheck {
public:
    CommandCheck(bool isComplete, const std::set<std::wstring>& meant, DiagnosticsSink& sink)
        : m_isComplete(isComplete), m_meant(meant), m_sink(sink) {}

    void Run(std::span<const GatheredElement> elements) {
        for (std::size_t i = 0; i < elements.size(); ++i) {
            Take(elements[i]);
            const bool endsFile = i + 1 == elements.size() || elements[i + 1].file != elements[i].file;
            if (endsFile) {
                CheckReferences(m_quickAccess, "unknown-quick-access",
                                L"no element of the ribbon files up to this one has this keyword");
            }
        }
        CheckReferences(m_statusButtons, "unknown-status-button", L"no element of any file has this keyword");
        ReportDifferences();
    }

private:
    void Take(const GatheredElement& gathered) {
        const MetElement& element = gathered.element;
        if (element.isPassedOver || element.IsReported(AttributeUse::Keyword)) {
            m_passedOver.insert(std::wstring(element.ValueOf(AttributeUse::Keyword)));
            m_passedOver.insert(element.otherKeywords.begin(), element.otherKeywords.end());
            return;
        }
        if (Refers(element)) {
            Refer(gathered);
            return;
        }
        Inherit(element);
        const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
        if (element.role == ElementRole::Category || element.role == ElementRole::Panel) {
            m_containers.try_emplace(keyword, &gathered);
        }
        if (keyword.empty() || !IsRegistered(element)) {
            CheckShortcut(gathered, nullptr);
            return;
        }
        if (MayStandInQuickAccess(element)) {
            m_forQuickAccess.insert(keyword);
        }
        const auto [found, isNew] = m_commands.try_emplace(keyword);
        Command& command = found->second;
        if (isNew) {
            command = MakeCommand(gathered);
        }
        if (isNew || element.role != ElementRole::ToolBarButton) {
            TakeIcon(gathered);
        }
        if (isNew || IsAsRegistered(command, gathered)) {
            CheckShortcut(gathered, isNew ? nullptr : &command);
        }
        command.isOfRibbon = command.isOfRibbon || IsOfRibbon(element);
    }

    /// A button of a toolbar has no CMD of its own: with a keyword of its own it is a command that only the program
    /// knows. One that looks like the command with the same icon was meant to be that.
    void TakeIcon(const GatheredElement& gathered) {
        const MetElement& element = gathered.element;
        const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
        const std::wstring icon = FoldedPath(element.ValueOf(AttributeUse::Icon));
        if (icon.empty()) {
            return;
        }
        // What many commands share says nothing about one of them.
        constexpr std::size_t few = 8;
        std::vector<std::wstring>& known = m_keywordsByIcon[icon];
        if (element.role != ElementRole::ToolBarButton) {
            if (known.size() <= few && std::ranges::find(known, keyword) == known.end()) {
                known.push_back(keyword);
            }
            return;
        }
        const std::wstring meant = known.size() <= few ? ClosestWord(keyword, known) : std::wstring();
        if (m_isComplete && !meant.empty() && !m_meant.contains(keyword) && !m_passedOver.contains(keyword)) {
            ReportTogether(
                m_sink, *gathered.file, PlaceOf(element, AttributeUse::Keyword), "similar-keyword",
                L"no element of a ribbon or menu file has this keyword, but one with the same icon has nearly "
                L"the same: this button is another command, without CMD",
                DidYouMean(meant), {PlaceOf(*m_commands.at(meant).first, AttributeUse::Keyword, L"this one")});
        }
    }

    void Refer(const GatheredElement& gathered) {
        const std::wstring_view keyword = gathered.element.ValueOf(AttributeUse::Keyword);
        const bool isQuickAccess = gathered.element.role == ElementRole::QuickAccessItem;
        if (!keyword.empty() && (isQuickAccess || !varnhold::EqualsIgnoringCase(keyword, kStatusSeparator))) {
            if (isQuickAccess) {
                CheckQuickAccessTwice(gathered);
            }
            (isQuickAccess ? m_quickAccess : m_statusButtons).push_back(&gathered);
        }
    }

    void CheckQuickAccessTwice(const GatheredElement& gathered) const {
        const std::wstring_view keyword = gathered.element.ValueOf(AttributeUse::Keyword);
        const auto earlier = std::ranges::find_if(m_quickAccess, [keyword](const GatheredElement* const other) {
            return other->element.ValueOf(AttributeUse::Keyword) == keyword;
        });
        if (earlier != m_quickAccess.end()) {
            ReportTogether(m_sink, *gathered.file, PlaceOf(gathered.element, AttributeUse::Keyword),
                           "duplicate-keyword", L"a command stands in the quick access toolbar once",
                           L"remove one of the two", {PlaceOf(**earlier, AttributeUse::Keyword, L"the earlier one")});
        }
    }

    /// Sub-items have CMD and PARAM of what was read before them.
    void Inherit(const MetElement& element) {
        const bool isSubItem = element.role == ElementRole::SubItem;
        for (const auto& [use, value] :
             {std::pair(AttributeUse::Command, &m_cmd), std::pair(AttributeUse::Parameter, &m_param)}) {
            const MetAttribute* const own = element.Find(use);
            if (own || !isSubItem) {
                *value = own ? own->value : std::wstring();
            }
        }
    }

    Command MakeCommand(const GatheredElement& gathered) const {
        const MetElement& element = gathered.element;
        Command command{&gathered, m_cmd, m_param, std::wstring(element.ValueOf(AttributeUse::Help)),
                        element.role == ElementRole::Popup};
        const bool hasDefaultHelp = IsOfRibbon(element) && !IsNo(element.ValueOf(AttributeUse::AcceptF1));
        if (command.help.empty() && hasDefaultHelp) {
            command.help = L"(the name).swf";
        }
        return command;
    }

    /// Whether the registry keeps of the element what it kept of the first one; otherwise it is reported.
    bool IsAsRegistered(Command& command, const GatheredElement& gathered) {
        const MetElement& element = gathered.element;
        const bool isPopup = element.role == ElementRole::Popup;
        if (isPopup || command.isPopup) {
            const bool isSame = isPopup == command.isPopup;
            if (!isSame) {
                ReportDifferent(gathered, command,
                                {L"a popup and a command have one keyword: the command's id is lost",
                                 L"this popup has the keyword of a command, whose id is lost", L"the command"});
            }
            return isSame;
        }
        std::wstring differences;
        const auto compare = [&](AttributeUse use, const wchar_t* name, const std::wstring& kept) {
            const std::wstring_view own = element.ValueOf(use);
            const bool isClear = !element.IsReported(use) && !command.first->element.IsReported(use);
            if (isClear && !own.empty() && own != kept) {
                differences += (differences.empty() ? L"" : L", ") + std::wstring(name) + L" " + Quoted(own) +
                               (kept.empty() ? L" instead of none" : L" instead of " + Quoted(kept));
            }
        };
        compare(AttributeUse::Command, L"CMD", command.cmd);
        compare(AttributeUse::Parameter, L"PARAM", command.param);
        if (command.help.empty()) {
            command.help = element.ValueOf(AttributeUse::Help);
        }
        compare(AttributeUse::Help, L"help", command.help);
        if (!differences.empty()) {
            ++m_unclearKeywords;
            ReportDifferent(
                gathered, command,
                {L"this keyword was registered before, and what is different here is lost: " + differences,
                 L"this keyword is registered here, and what all later elements have instead is lost: " + differences,
                 L"different in the same way"});
        }
        return differences.empty();
    }

    /// Where several elements differ from the first in the same way, that one is probably wrong: one fault, and its
    /// place is there.
    void ReportDifferent(const GatheredElement& gathered, Command& command, DifferenceTexts texts) {
        const auto [earlier, isNew] = command.reported.try_emplace(texts.ofOne, m_different.size());
        if (isNew) {
            m_different.push_back({&command, std::move(texts), {&gathered}});
        } else {
            m_different[earlier->second].elements.push_back(&gathered);
        }
    }

    void ReportDifferences() const {
        for (const Different& one : m_different) {
            const bool isFirstWrong = one.elements.size() > 1;
            const GatheredElement& wrong = isFirstWrong ? *one.command->first : *one.elements.front();
            std::vector<RelatedPlace> related;
            if (isFirstWrong) {
                for (const GatheredElement* const element : one.elements) {
                    related.push_back(PlaceOf(*element, AttributeUse::Keyword, one.texts.ofOthers));
                }
            } else {
                related.push_back(PlaceOf(*one.command->first, AttributeUse::Keyword, L"registered here"));
            }
            ReportTogether(m_sink, *wrong.file, PlaceOf(wrong.element, AttributeUse::Keyword), "duplicate-keyword",
                           isFirstWrong ? one.texts.ofFirst : one.texts.ofOne,
                           isFirstWrong ? L"mend this one, or take another keyword for it"
                                        : L"take another keyword for one of them",
                           std::move(related));
        }
    }

    /// `earlier`: what has the keyword already; null for a new one, or for an item that registers none.
    void CheckShortcut(const GatheredElement& gathered, const Command* earlier) {
        const MetElement& element = gathered.element;
        const MetAttribute* const written = element.Find(AttributeUse::HotKey);
        if (element.role != ElementRole::MenuItem || !written || written->isReported || written->value.empty() ||
            !FindShortcutFault(written->value).text.empty()) {
            return;
        }
        const std::wstring shortcut = CanonicalShortcut(written->value);
        const auto holder = m_shortcuts.find(shortcut);
        const std::wstring_view keyword = element.ValueOf(AttributeUse::Keyword);
        if (earlier) {
            const bool hasIt =
                holder != m_shortcuts.end() && holder->second->element.ValueOf(AttributeUse::Keyword) == keyword;
            if (!hasIt) {
                ReportTogether(m_sink, *gathered.file, written->position, "lost-shortcut",
                               L"the keyword was registered before, and then no shortcut is taken from here",
                               L"give the shortcut where the keyword stands first, or remove it",
                               {PlaceOf(*earlier->first, AttributeUse::Keyword, L"registered here")});
            }
        } else if (holder != m_shortcuts.end()) {
            ReportTogether(m_sink, *gathered.file, written->position, "shortcut-clash",
                           Quoted(written->value) + L" is the shortcut of an earlier item, which gets it",
                           L"take another shortcut for one of them",
                           {PlaceOf(*holder->second, AttributeUse::HotKey, L"the earlier one")});
        } else {
            m_shortcuts.emplace(shortcut, &gathered);
        }
    }

    void CheckReferences(std::vector<const GatheredElement*>& references, std::string_view code, const wchar_t* text) {
        for (const GatheredElement* const reference : references) {
            const std::wstring keyword(reference->element.ValueOf(AttributeUse::Keyword));
            const auto command = m_commands.find(keyword);
            const bool isQuickAccess = reference->element.role == ElementRole::QuickAccessItem;
            const bool isThere = command != m_commands.end() && (!isQuickAccess || command->second.isOfRibbon);
            if (isThere) {
                CheckReferred(*reference, command->second);
                continue;
            }
            if (!m_isComplete || m_meant.contains(keyword) || m_passedOver.contains(keyword) || IsExplained(keyword)) {
                continue;
            }
            const auto container = m_containers.find(keyword);
            if (command != m_commands.end()) {
                ReportKind(*reference, *command->second.first);
                continue;
            }
            if (isQuickAccess && container != m_containers.end()) {
                ReportKind(*reference, *container->second);
                continue;
            }
            std::vector<std::wstring> known;
            if (!isQuickAccess) {
                known.emplace_back(kStatusSeparator);
            }
            for (const auto& [name, one] : m_commands) {
                known.push_back(name);
            }
            ReportTogether(m_sink, *reference->file, PlaceOf(reference->element, AttributeUse::Keyword), code, text,
                           DidYouMean(ClosestWord(keyword, known)));
        }
        references.clear();
    }

    /// Whether what refers to a command can show it.
    void CheckReferred(const GatheredElement& reference, const Command& command) const {
        const MetElement& element = reference.element;
        if (element.role == ElementRole::StatusButton) {
            if (ShowsNothing(element)) {
                ReportTogether(m_sink, *reference.file, element.position, "missing-caption",
                               L"without NAME or PICPATH of its own nothing is shown here: text and icon are not "
                               L"taken from the command",
                               L"add NAME=\"\" or PICPATH",
                               {PlaceOf(*command.first, AttributeUse::Keyword, L"registered here")});
            }
        } else if (!m_forQuickAccess.contains(std::wstring(element.ValueOf(AttributeUse::Keyword)))) {
            ReportKind(reference, *command.first);
        }
    }

    void ReportKind(const GatheredElement& reference, const GatheredElement& shown) const {
        ReportTogether(m_sink, *reference.file, PlaceOf(reference.element, AttributeUse::Keyword), "quick-access-kind",
                       L"only buttons and combos of a ribbon can stand in the quick access toolbar; this is left out",
                       L"remove it", {PlaceOf(shown, AttributeUse::Keyword, L"this has the keyword")});
    }

    /// Whether an element that has another's keyword, which was reported, may be the one of this keyword.
    bool IsExplained(const std::wstring& keyword) {
        if (m_explained.contains(keyword) || m_unclearKeywords == 0) {
            return m_explained.contains(keyword);
        }
        --m_unclearKeywords;
        return m_explained.insert(keyword).second;
    }

    /// Elements that differ from the first one of their keyword in one way.
    struct Different {
        const Command* command;
        DifferenceTexts texts;
        std::vector<const GatheredElement*> elements;
    };

    bool m_isComplete;
    const std::set<std::wstring>& m_meant;
    DiagnosticsSink& m_sink;
    std::map<std::wstring, Command> m_commands;
    std::vector<Different> m_different;
    /// Categories and panels, which may be no commands.
    std::map<std::wstring, const GatheredElement*> m_containers;
    /// They will be commands when what is around them is mended.
    std::set<std::wstring> m_passedOver;
    /// What is built in a way that can be copied to the quick access toolbar.
    std::set<std::wstring> m_forQuickAccess;
    /// Of the commands of ribbon and menu files, by the icon's path in small letters.
    std::map<std::wstring, std::vector<std::wstring>> m_keywordsByIcon;
    /// How many elements have the keyword of another command, and so perhaps not their own.
    std::size_t m_unclearKeywords = 0;
    std::set<std::wstring> m_explained;
    std::map<std::wstring, const GatheredElement*> m_shortcuts;
    std::vector<const GatheredElement*> m_quickAccess;
    std::vector<const GatheredElement*> m_statusButtons;
    std::wstring m_cmd;
    std::wstring m_param;
};

} // namespace

void CheckCommands(std::span<const GatheredElement> elements, bool isComplete, const std::set<std::wstring>& meant,
                   DiagnosticsSink& sink) {
    CommandCheck(isComplete, meant, sink).Run(elements);
}
