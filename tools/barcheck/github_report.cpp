#include "config/diagnostic_codes.h"
#include "reports.h"

#include <varnhold/strings.h>

namespace {

std::string Escaped(std::string_view text, std::string_view signs) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string escaped;
    for (const char c : text) {
        if (signs.find(c) == std::string_view::npos) {
            escaped += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            escaped += {'%', digits[byte / 16], digits[byte % 16]};
        }
    }
    return escaped;
}

std::string CommandOf(DiagnosticSeverity severity) {
    return severity == DiagnosticSeverity::Note ? "notice" : std::string(NameOf(severity));
}

} // namespace

std::string GithubReport(const std::vector<Diagnostic>& findings, const std::wstring& folder) {
    constexpr std::string_view inText = "%\r\n";
    constexpr std::string_view inProperty = "%\r\n:,";
    std::string report;
    for (const Diagnostic& finding : findings) {
        const std::wstring text = finding.fix.empty() ? finding.text : finding.text + L" (" + finding.fix + L")";
        report += "::" + CommandOf(finding.severity) +
                  " file=" + Escaped(wstring2String(folder + finding.file), inProperty) +
                  ",line=" + std::to_string(finding.position.line) + ",col=" + std::to_string(finding.position.column) +
                  ",title=" + std::string(finding.code) + "::" + Escaped(wstring2String(text), inText) + "\n";
    }
    return report;
}
