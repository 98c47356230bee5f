#include "config/check/file_kind.h"
#include "config/check/gathered_elements.h"
#include "config/check/language_texts.h"
#include "config/depth_walker.h"
#include "config/load_document.h"
#include "config/menu_attributes.h"
#include "config/ribbon_attributes.h"
#include "config/shortcut_fault.h"
#include "config/shortcut_text.h"
#include "config/to_problem.h"
#include "configuration_problems.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>
#include <varnhold/language_files.h>
#include <varnhold/letter_case.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>

namespace {

constexpr std::string_view kShortcutAttribute = "HOTKEY";

ConfigurationKind KindOf(ConfiguredBars bars) {
    switch (bars) {
    case ConfiguredBars::Menu:
        return ConfigurationKind::Menu;
    case ConfiguredBars::ToolBars:
        return ConfigurationKind::ToolBars;
    default:
        return ConfigurationKind::Ribbon;
    }
}

bool IsReadable(const std::wstring& shortcut) {
    try {
        ReadShortcutText(shortcut);
        return true;
    } catch (const std::out_of_range&) {
        return false;
    }
}

/// Looks at the items of a menu file as its builder meets them: one shortcut without a key ends the loading.
class ShortcutSearch {
public:
    explicit ShortcutSearch(const FileDiagnostics& diagnostics) : m_diagnostics(diagnostics) {}

    void LookBelow(const varnhold::XmlCursor& documentElement) {
        ForEachChild(documentElement, [this](varnhold::XmlCursor& branch) {
            if (!branch.HasChildren()) {
                LookAt(branch);
                return;
            }
            WalkBelow(branch, [this](varnhold::XmlCursor& element, std::size_t) {
                if (!element.HasChildren()) {
                    LookAt(element);
                }
                return true;
            });
        });
    }

private:
    void LookAt(varnhold::XmlCursor& item) {
        MenuInfo info;
        info.bSeparator = false;
        if (!ReadMenuInfo(item, info, m_translations, Unreported()) || info.bSeparator || info.strHotKey.empty() ||
            IsReadable(info.strHotKey)) {
            return;
        }
        varnhold::TextPosition place = item.GetPosition();
        for (const varnhold::XmlAttributeView& attribute : item.ReadAttributes()) {
            if (varnhold::EqualsIgnoringCase(attribute.name, kShortcutAttribute)) {
                place = item.GetAttributePosition(attribute);
            }
        }
        const ShortcutFault fault = FindShortcutFault(info.strHotKey);
        m_diagnostics.Report("shortcut-syntax", place, fault.text, fault.fix);
    }

    const FileDiagnostics& m_diagnostics;
    const CTranslationSection m_translations{kRibbonSection};
};

class NobodyReads : public varnhold::TranslationFileVisitor {
public:
    void VisitUnit(const varnhold::TranslationUnit&, const varnhold::TextPlace&) override {}
    void VisitProblem(varnhold::TranslationProblem, varnhold::TextPosition, const std::wstring&) override {}
};

std::vector<ConfigurationProblem> ToProblems(const std::vector<Diagnostic>& findings) {
    std::vector<ConfigurationProblem> problems;
    std::ranges::transform(findings, std::back_inserter(problems), ToProblem);
    return problems;
}

} // namespace

std::vector<ConfigurationProblem> FindLoadFaults(const std::wstring& path, ConfiguredBars bars) {
    GatheringSink gathered;
    FileDiagnostics diagnostics(path, gathered);
    CXmlDocumentWrapper document;
    if (!LoadDocument(path, KindOf(bars), diagnostics, document)) {
        return ToProblems(gathered.Findings());
    }
    GatheringSink faults;
    const FileDiagnostics report(path, faults);
    const varnhold::XmlCursor documentElement(document);
    if (!documentElement.HasChildren()) {
        report.Report("empty-file", documentElement.GetPosition(),
                      L"there is no element in the document element; nothing is built");
    } else if (bars == ConfiguredBars::Menu) {
        ShortcutSearch(report).LookBelow(documentElement);
    }
    return ToProblems(faults.Findings());
}

std::vector<ConfigurationProblem> FindLanguageFaults(const std::wstring& code) {
    std::wstring directory;
    if (code.empty() || !FileOp::GetAppPath(directory)) {
        return {};
    }
    GatheringSink gathered;
    const std::vector<LanguageTexts> languages = ReadLanguages(InstallationFiles(directory), code, gathered);
    if (std::ranges::all_of(languages, &LanguageTexts::isUsable) && !languages.empty()) {
        return {};
    }
    if (languages.empty()) {
        return ToProblems({gathered.Findings().back()}); // that there are no tables
    }
    std::set<std::wstring> files;
    for (const Diagnostic& finding : gathered.Findings()) {
        if (IsTableName(finding.file)) {
            files.insert(finding.file);
        }
    }
    // What ends the reading of a table is the last thing that is said of it.
    std::vector<ConfigurationProblem> faults;
    NobodyReads nobody;
    for (const std::wstring& file : files) {
        if (!varnhold::ReadTranslationFile(file, code, nobody)) {
            const auto last = std::find_if(gathered.Findings().rbegin(), gathered.Findings().rend(),
                                           [&file](const Diagnostic& finding) { return finding.file == file; });
            faults.push_back(ToProblem(*last));
        }
    }
    return faults;
}
