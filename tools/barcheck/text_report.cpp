#include "config/diagnostic_codes.h"
#include "config/to_problem.h"
#include "problem_report.h"
#include "reports.h"

#include <varnhold/strings.h>

#include <algorithm>

std::string TextReport(const std::vector<Diagnostic>& findings, const std::wstring& directory) {
    ProblemReport lines(directory);
    std::wstring report;
    for (const Diagnostic& finding : findings) {
        report += lines.Of(ToProblem(finding));
    }
    return wstring2String(report);
}

std::string Summary(const std::vector<Diagnostic>& findings) {
    std::string summary;
    for (const DiagnosticSeverity severity :
         {DiagnosticSeverity::Error, DiagnosticSeverity::Warning, DiagnosticSeverity::Note}) {
        const auto count = std::ranges::count(findings, severity, &Diagnostic::severity);
        summary += (summary.empty() ? "" : ", ") + std::to_string(count) + " " + std::string(NameOf(severity)) +
                   (count == 1 ? "" : "s");
    }
    return summary;
}
