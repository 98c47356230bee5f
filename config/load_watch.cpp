#include "config/load_watch.h"

#include "config/check/command_check.h"
#include "config/check/icon_check.h"
#include "config/check/text_check.h"
#include "config/diagnostic_codes.h"
#include "config/to_problem.h"
#include "configuration_problems.h"
#include "menu_id_mgr.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

ConfigurationProblemSink& HostSink() {
    static ConfigurationProblemSink sink;
    return sink;
}

/// The keywords of references that lead somewhere: the command is registered, or may be before it is needed.
std::set<std::wstring> KnownReferences(std::span<const GatheredElement> elements) {
    std::set<std::wstring> known;
    for (const GatheredElement& gathered : elements) {
        const std::wstring keyword(gathered.element.ValueOf(AttributeUse::Keyword));
        int id = 0;
        // Status-bar buttons are made later.
        if (gathered.element.role == ElementRole::StatusButton || CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
            known.insert(keyword);
        }
    }
    return known;
}

void CheckWhole(GatheringSink& gathered) {
    const std::vector<GatheredElement>& elements = gathered.Elements();
    std::wstring directory;
    if (elements.empty() || !FileOp::GetAppPath(directory)) {
        return;
    }
    const InstallationFiles files(directory);
    std::vector<LanguageTexts> languages;
    if (const std::wstring language = CMultiLanguageMgr::GetLanguage(); !language.empty()) {
        languages = ReadLanguages(files, language, DroppedDiagnostics()); // the service has told its problems
    }
    JoinShiftedLevels(gathered);
    std::set<std::wstring> known = KnownReferences(elements);
    if (CountLostKeywords(gathered) > 0) {
        AddKeywordsWithTexts(languages, known);
    }
    known.merge(CheckTexts(elements, languages, gathered));
    CheckCommands(elements, true, known, gathered);
    CheckAccessKeys(elements, languages, gathered);
    CheckIcons(elements, files, gathered);
}

} // namespace

DiagnosticsSink& LoadWatch::Sink() { return HostSink() ? m_gathered : DroppedDiagnostics(); }

LoadWatch::~LoadWatch() {
    if (!HostSink()) {
        return;
    }
    CheckWhole(m_gathered);
    const auto place = [](const Diagnostic& finding) {
        return std::tuple(finding.position.line, finding.position.column);
    };
    std::ranges::stable_sort(m_gathered.Findings(), {}, place);
    // A copy: the sink may be replaced meanwhile.
    const ConfigurationProblemSink sink = HostSink();
    for (const Diagnostic& finding : m_gathered.Findings()) {
        sink(ToProblem(finding));
    }
}

ConfigurationProblemSink SetConfigurationProblemSink(const ConfigurationProblemSink& sink) {
    return std::exchange(HostSink(), sink);
}

std::wstring FormatConfigurationProblem(const ConfigurationProblem& problem) {
    const auto severity = static_cast<DiagnosticSeverity>(problem.severity);
    std::wstring text = problem.file + L':' + std::to_wstring(problem.line) + L':' + std::to_wstring(problem.column) +
                        L": " + string2wstring(NameOf(severity)) + L": " + problem.text + L" [" +
                        string2wstring(problem.code) + L"]";
    if (!problem.fix.empty()) {
        text += L" (" + problem.fix + L")";
    }
    return text;
}
