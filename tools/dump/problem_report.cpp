#include "problem_report.h"

#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <algorithm>

namespace {

constexpr std::size_t kLongestLine = 200; // letters that are shown

/// The lines of a file; none where it cannot be read.
std::vector<std::string> ReadLines(const std::wstring& path) {
    std::vector<std::string> lines;
    std::string text;
    if (!varnhold::ReadXmlText(path, text)) {
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

std::wstring Place(const std::wstring& file, std::size_t line, std::size_t column) {
    return file + L':' + std::to_wstring(line) + L':' + std::to_wstring(column) + L": ";
}

const wchar_t* NameOf(ConfigurationProblem::Severity severity) {
    using enum ConfigurationProblem::Severity;
    return severity == Error ? L"error" : severity == Warning ? L"warning" : L"note";
}

} // namespace

std::wstring ProblemReport::RelativeName(const std::wstring& file) const {
    const auto withSlashes = [](std::wstring path) {
        std::ranges::replace(path, L'\\', L'/');
        return path;
    };
    const std::wstring name = withSlashes(file);
    return name.starts_with(withSlashes(m_directory)) ? name.substr(m_directory.size()) : name;
}

std::wstring ProblemReport::LineOf(const std::wstring& file, std::size_t line) {
    const auto [found, isNew] = m_lines.try_emplace(file);
    if (isNew) {
        found->second = ReadLines(m_directory + file);
    }
    return line >= 1 && line <= found->second.size() ? string2wstring(found->second[line - 1]) : std::wstring();
}

std::wstring ProblemReport::Of(const ConfigurationProblem& problem) {
    const std::wstring file = RelativeName(problem.file);
    std::wstring report = Place(file, problem.line, problem.column) + NameOf(problem.severity) + L": " + problem.text +
                          L" [" + string2wstring(problem.code) + L"]\n";
    if (const std::wstring line = LineOf(file, problem.line); !line.empty()) {
        report += ShowPlace(line, problem.column);
    }
    if (!problem.fix.empty()) {
        report += L"    fix: " + problem.fix + L"\n";
    }
    for (const ConfigurationProblem::Place& place : problem.related) {
        report += L"    " + Place(RelativeName(place.file), place.line, place.column) + place.text + L"\n";
    }
    return report;
}

std::wstring ProblemReport::InShort(const ConfigurationProblem& problem) const {
    return Place(RelativeName(problem.file), problem.line, problem.column) + problem.text;
}
