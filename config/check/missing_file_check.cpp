#include "config/check/missing_file_check.h"

#include "config/check/file_kind.h"
#include "config/check/text_check.h"
#include "config/configuration_kind.h"
#include "config/suggestion.h"

#include <varnhold/letter_case.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <vector>

namespace {

constexpr std::wstring_view kExtension = L".xml";

constexpr std::array kKinds = {ConfigurationKind::Ribbon, ConfigurationKind::Menu, ConfigurationKind::ToolBars};

bool BeginsWith(std::wstring_view name, std::wstring_view start) {
    return varnhold::EqualsIgnoringCase(name.substr(0, start.size()), start);
}

bool IsThere(const InstallationFiles& files, ConfigurationKind kind) {
    return std::ranges::any_of(ShownFiles(files), [kind](const std::wstring& path) {
        return BeginsWith(std::wstring_view(path).substr(path.rfind(L'\\') + 1), FileNameStart(kind));
    });
}

std::wstring UsualName(ConfigurationKind kind) { return std::wstring(FileNameStart(kind)) + std::wstring(kExtension); }

/// Whether the file at the path, relative to the directory, is XML with attributes of that kind.
bool Holds(const InstallationFiles& files, const std::wstring& path, ConfigurationKind kind) {
    const std::optional<std::wstring> found = files.Find(path);
    CXmlDocumentWrapper document;
    if (!found || !document.Load(*found)) {
        return false;
    }
    const varnhold::XmlCursor root(document);
    const std::optional<ConfigurationKind> other = OtherKindOf(root, kind);
    return KindByAttributes(root) == kind && !other;
}

/// Files in cfg that no name makes a configuration file.
std::vector<std::wstring> OtherFiles(const InstallationFiles& files) {
    std::vector<std::wstring> others = files.FilesIn(L"cfg");
    const std::vector<std::wstring> known = ConfigurationFiles(files);
    std::erase_if(others, [&known](const std::wstring& name) {
        return std::ranges::find(known, L"cfg\\" + name) != known.end();
    });
    return others;
}

/// A file of nearly the usual name that holds what the kind has; empty when there is none.
std::wstring MisspeltFile(const InstallationFiles& files, ConfigurationKind kind) {
    const std::wstring name = ClosestWord(UsualName(kind), OtherFiles(files));
    return !name.empty() && Holds(files, L"cfg\\" + name, kind) ? L"cfg\\" + name : std::wstring();
}

/// Any file that holds what the kind has, as it lies there; empty when there is none.
std::wstring FileOfKind(const InstallationFiles& files, ConfigurationKind kind) {
    if (std::wstring misspelt = MisspeltFile(files, kind); !misspelt.empty()) {
        return misspelt;
    }
    std::wstring usual = UsualName(kind);
    if (Holds(files, usual, kind)) {
        return usual;
    }
    for (const std::wstring& name : OtherFiles(files)) {
        if (Holds(files, L"cfg\\" + name, kind)) {
            return L"cfg\\" + name;
        }
    }
    return {};
}

std::wstring MendFor(const std::wstring& file, ConfigurationKind kind) {
    if (file.empty()) {
        return L"put the " + std::wstring(NameOf(kind)) + L" to the others";
    }
    const std::wstring usual = UsualName(kind);
    return file == usual ? L"put " + Quoted(file) + L" into the folder cfg" : L"call " + Quoted(file) + L" " + usual;
}

struct Evidence {
    std::size_t lostReferences = 0;
    std::size_t lostTexts = 0;
};

/// What leads to elements that are not there, where more does than the odd slip explains.
Evidence CountLost(std::span<const GatheredElement> elements, std::span<const LanguageTexts> languages,
                   std::size_t lostKeywords) {
    std::set<std::wstring> known;
    std::vector<std::wstring> references;
    for (const GatheredElement& gathered : elements) {
        const MetElement& element = gathered.element;
        const std::wstring keyword(element.ValueOf(AttributeUse::Keyword));
        const bool isQuickAccess = element.role == ElementRole::QuickAccessItem;
        if (!isQuickAccess && element.role != ElementRole::StatusButton) {
            known.insert(keyword);
            known.insert(element.otherKeywords.begin(), element.otherKeywords.end());
        } else if (!keyword.empty() && !varnhold::EqualsIgnoringCase(keyword, L"Separator")) {
            references.push_back(keyword);
        }
    }
    const std::vector<std::wstring> words(known.begin(), known.end());
    Evidence evidence;
    evidence.lostReferences = static_cast<std::size_t>(std::ranges::count_if(
        references, [&](const std::wstring& one) { return !known.contains(one) && ClosestWord(one, words).empty(); }));
    if (2 * evidence.lostReferences <= references.size() || evidence.lostReferences <= lostKeywords) {
        evidence.lostReferences = 0;
    }
    std::set<std::wstring> unused;
    for (const LanguageTexts& language : languages) {
        for (const auto& [key, text] : language.commands) {
            if (!known.contains(KeywordOf(key)) && !known.contains(key)) {
                unused.insert(KeywordOf(key));
            }
        }
    }
    constexpr std::size_t few = 8;
    evidence.lostTexts = unused.size() > few + lostKeywords ? unused.size() : 0;
    return evidence;
}

} // namespace

bool ReportMissingKinds(std::span<const GatheredElement> elements, const InstallationFiles& files,
                        std::span<const LanguageTexts> languages, std::size_t lostKeywords, DiagnosticsSink& sink) {
    bool isAnyMissing = false;
    for (const ConfigurationKind kind : kKinds) {
        if (IsThere(files, kind)) {
            continue;
        }
        std::wstring file = MisspeltFile(files, kind);
        std::wstring text = L"there is no cfg\\" + std::wstring(FileNameStart(kind)) + L"*.xml";
        bool isMissing = !file.empty();
        if (kind == ConfigurationKind::Ribbon) {
            const Evidence evidence = CountLost(elements, languages, lostKeywords);
            const auto add = [&text](std::size_t count, const wchar_t* what) {
                text += count > 0 ? std::wstring(L"; ") + what + std::to_wstring(count) : std::wstring();
            };
            add(evidence.lostReferences, L"items of the quick access row and the status bar that lead nowhere: ");
            add(evidence.lostTexts, L"keywords of the tables that no element has: ");
            isMissing = isMissing || evidence.lostReferences > 0 || evidence.lostTexts > 0;
            file = isMissing ? FileOfKind(files, kind) : file;
        }
        if (isMissing) {
            ReportTogether(sink, files.FullPath(L"cfg\\" + UsualName(kind)), {1, 1}, "missing-file", std::move(text),
                           MendFor(file, kind));
            isAnyMissing = true;
        }
    }
    return isAnyMissing;
}

void ReportMissingTables(std::span<const GatheredElement> elements, const InstallationFiles& files,
                         DiagnosticsSink& sink) {
    std::set<std::wstring> asked;
    for (const GatheredElement& gathered : elements) {
        const MetElement& element = gathered.element;
        const bool asksTables =
            element.role != ElementRole::QuickAccessItem && element.role < ElementRole::ToolBarGroup;
        const bool asks = element.Has(AttributeUse::Name) || element.Has(AttributeUse::ToolTip);
        if (asksTables && asks && !element.isPassedOver && element.role != ElementRole::Row) {
            asked.emplace(element.ValueOf(AttributeUse::Keyword));
        }
    }
    if (asked.empty()) {
        return;
    }
    std::wstring mend = L"put the tables there; barcheck DIR --extract LANG writes one to begin with";
    for (const std::wstring& folder : files.FoldersIn(L"")) {
        const bool isNear = BeginsWith(folder, L"lang") || !ClosestWord(L"lang", {folder}).empty();
        if (isNear && !varnhold::EqualsIgnoringCase(folder, L"lang")) {
            mend = L"call the folder " + Quoted(folder) + L" lang";
        }
    }
    ReportTogether(sink, files.FullPath(L"lang"), {1, 1}, "missing-file",
                   L"there are no translation tables: " + std::to_wstring(asked.size()) +
                       (asked.size() == 1 ? L" text that is asked for shows as its keyword"
                                          : L" texts that are asked for show as their keywords"),
                   mend);
}

std::wstring MendOfMissingConfiguration(const InstallationFiles& files) {
    for (const ConfigurationKind kind : kKinds) {
        if (const std::wstring file = FileOfKind(files, kind); !file.empty()) {
            return MendFor(file, kind);
        }
    }
    return {};
}
