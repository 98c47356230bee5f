#include "config/diagnostic_codes.h"
#include "reports.h"

#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <array>
#include <map>

namespace {

constexpr std::size_t kLongestLine = 200; // letters that are shown

/// The lines of the files that have findings. Each file is read once.
class SourceLines {
public:
    explicit SourceLines(std::wstring directory) : m_directory(std::move(directory)) {}

    /// Empty for a line that there is not.
    std::wstring Get(const std::wstring& file, std::size_t line) {
        const auto [found, isNew] = m_files.try_emplace(file);
        if (isNew) {
            found->second = Read(file);
        }
        return line >= 1 && line <= found->second.size() ? string2wstring(found->second[line - 1]) : std::wstring();
    }

private:
    std::vector<std::string> Read(const std::wstring& file) const {
        std::vector<std::string> lines;
        std::string text;
        if (!varnhold::ReadXmlText(m_directory + file, text)) {
            return lines;
        }
        std::size_t start = 0;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] == '\n' || (text[at] == '\r' && text.substr(at + 1, 1) != "\n")) {
                const bool isPair = text[at] == '\n' && at > start && text[at - 1] == '\r';
                lines.push_back(text.substr(start, at - start - (isPair ? 1 : 0)));
                start = at + 1;
            }
        }
        lines.push_back(text.substr(start));
        return lines;
    }

    std::wstring m_directory;
    std::map<std::wstring, std::vector<std::string>> m_files;
};

/// Whether a terminal gives the letter two places.
bool IsWide(wchar_t letter) {
    const auto c = static_cast<std::uint32_t>(letter);
    return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7A3) ||
           (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFE30 && c <= 0xFE6F) || (c >= 0xFF00 && c <= 0xFF60) ||
           (c >= 0x20000 && c <= 0x3FFFD);
}

bool IsSecondHalf(wchar_t letter) { return sizeof(wchar_t) == 2 && (letter & 0xFC00) == 0xDC00; }

bool IsControl(wchar_t letter) { return letter < L' ' && letter != L'\t'; }

/// The part of the line around the column, and below it a caret; tabs stay, so that it stands right.
std::wstring ShowPlace(std::wstring line, std::size_t column) {
    std::ranges::replace_if(line, IsControl, L' ');
    std::size_t at = 0;
    for (std::size_t character = 1; at < line.size() && character < column; ++at) {
        character += at + 1 < line.size() && IsSecondHalf(line[at + 1]) ? 0 : 1;
    }
    const std::size_t start = line.size() <= kLongestLine || at < kLongestLine / 2 ? 0 : at - kLongestLine / 2;
    std::wstring below;
    for (std::size_t i = start; i < at; ++i) {
        below += IsSecondHalf(line[i]) ? L"" : line[i] == L'\t' ? L"\t" : IsWide(line[i]) ? L"  " : L" ";
    }
    return L"    " + line.substr(start, kLongestLine) + L"\n    " + below + L"^\n";
}

std::wstring Place(const std::wstring& file, varnhold::TextPosition position) {
    return file + L':' + std::to_wstring(position.line) + L':' + std::to_wstring(position.column) + L": ";
}

} // namespace

std::string TextReport(const std::vector<Diagnostic>& findings, const std::wstring& directory) {
    SourceLines lines(directory);
    std::wstring report;
    for (const Diagnostic& finding : findings) {
        report += Place(finding.file, finding.position) + string2wstring(NameOf(finding.severity)) + L": " +
                  finding.text + L" [" + string2wstring(finding.code) + L"]\n";
        const std::wstring line = lines.Get(finding.file, finding.position.line);
        if (!line.empty()) {
            report += ShowPlace(line, finding.position.column);
        }
        if (!finding.fix.empty()) {
            report += L"    fix: " + finding.fix + L"\n";
        }
        for (const RelatedPlace& place : finding.related) {
            report += L"    " + Place(place.file, place.position) + place.text + L"\n";
        }
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
