#include "config/load_watch.h"

#include "config/check/configuration_check.h"
#include "config/check/kept_readings.h"
#include "config/diagnostic_codes.h"
#include "config/to_problem.h"
#include "configuration_problems.h"
#include "menu_id_mgr.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <set>
#include <span>
#include <tuple>
#include <utility>
#include <vector>

namespace {

ConfigurationProblemSink& HostSink() {
    static ConfigurationProblemSink sink;
    return sink;
}

/// From one load to the next, as long as somebody listens.
KeptReadings& Readings() {
    static KeptReadings readings;
    return readings;
}

/// What quick access items and status-bar buttons of the file refer to, where it is registered, by whomever.
std::set<std::wstring> RegisteredReferences(std::span<const GatheredElement> elements) {
    std::set<std::wstring> registered;
    for (const GatheredElement& gathered : elements) {
        const ElementRole role = gathered.element.role;
        std::wstring keyword(gathered.element.ValueOf(AttributeUse::Keyword));
        int id = 0;
        if ((role == ElementRole::QuickAccessItem || role == ElementRole::StatusButton) &&
            CMenuIdMgr::Ins()->GetMenuId(keyword, id)) {
            registered.insert(std::move(keyword));
        }
    }
    return registered;
}

std::vector<Diagnostic> FindProblems(GatheringSink& gathered) {
    const std::vector<GatheredElement>& elements = gathered.Elements();
    std::wstring directory;
    if (elements.empty() || !FileOp::GetAppPath(directory)) {
        return std::move(gathered.Findings());
    }
    return CheckLoadedFile(directory, {gathered, CMultiLanguageMgr::GetLanguage(), RegisteredReferences(elements)},
                           Readings());
}

} // namespace

DiagnosticsSink& LoadWatch::Sink() { return HostSink() ? m_gathered : DroppedDiagnostics(); }

LoadWatch::~LoadWatch() {
    if (!HostSink()) {
        return;
    }
    std::vector<Diagnostic> findings = FindProblems(m_gathered);
    // Those of the file first; a text that has no room stands in a table.
    const std::wstring file = m_gathered.Elements().empty() ? std::wstring() : *m_gathered.Elements().front().file;
    const auto place = [&file](const Diagnostic& finding) {
        const bool isElsewhere = !file.empty() && finding.file != file;
        return std::tuple(isElsewhere, isElsewhere ? finding.file : std::wstring(), finding.position.line,
                          finding.position.column);
    };
    std::ranges::stable_sort(findings, {}, place);
    // A copy: the sink may be replaced meanwhile.
    const ConfigurationProblemSink sink = HostSink();
    for (const Diagnostic& finding : findings) {
        sink(ToProblem(finding));
    }
}

ConfigurationProblemSink SetConfigurationProblemSink(const ConfigurationProblemSink& sink) {
    if (!sink) {
        Readings() = {};
    }
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
