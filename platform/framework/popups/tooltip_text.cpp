#include "popups/tooltip_text.h"

#include <algorithm>

namespace tooltip {

namespace {

bool IsSpace(wchar_t c) { return c == L' ' || c == L'\t' || c == 0x3000; }

bool IsIdeograph(wchar_t c) {
    return (c >= 0x2E80 && c <= 0x9FFF) || (c >= 0xAC00 && c <= 0xD7AF) || (c >= 0xF900 && c <= 0xFAFF) ||
           (c >= 0xFF00 && c <= 0xFFEF) || (c >= 0xD800 && c <= 0xDBFF);
}

bool IsOneOf(wchar_t c, std::wstring_view set) { return set.find(c) != std::wstring_view::npos; }

// Closing marks never begin a line.
constexpr std::wstring_view g_notAtStart =
    L"!),.:;?]}\u00B7\u2019\u201D\u2026\u2014\u3001\u3002\u3003\u3005\u3009\u300B"
    L"\u300D\u300F\u3011\u3015\u3017\uFF01\uFF09\uFF0C\uFF0E\uFF1A\uFF1B\uFF1F"
    L"\uFF3D\uFF5D";
// Opening marks never end one.
constexpr std::wstring_view g_notAtEnd = L"([{\u2018\u201C\u3008\u300A\u300C\u300E\u3010\u3014\u3016\uFF08\uFF3B\uFF5B";

void WrapParagraph(std::wstring_view text, const FitText& fit, std::vector<std::wstring>& lines) {
    if (text.empty()) {
        lines.emplace_back();
        return;
    }
    while (!text.empty()) {
        const std::size_t count = std::clamp<std::size_t>(fit(text), 1, text.size());
        std::size_t end = count;
        if (count < text.size()) {
            while (end > 0 && !CanBreakBefore(text, end)) {
                --end;
            }
            end = end == 0 ? count : end;
            // The halves of a pair stay together.
            if (end > 1 && text[end] >= 0xDC00 && text[end] <= 0xDFFF) {
                --end;
            }
        }
        std::wstring_view line = text.substr(0, end);
        text.remove_prefix(end);
        while (!line.empty() && IsSpace(line.back())) {
            line.remove_suffix(1);
        }
        while (!text.empty() && IsSpace(text.front())) {
            text.remove_prefix(1);
        }
        lines.emplace_back(line);
    }
}

} // namespace

bool CanBreakBefore(std::wstring_view text, std::size_t index) {
    if (index == 0 || index >= text.size()) {
        return false;
    }
    const wchar_t before = text[index - 1], after = text[index];
    if (IsSpace(after) || IsSpace(before)) {
        return true;
    }
    if (IsOneOf(after, g_notAtStart) || IsOneOf(before, g_notAtEnd)) {
        return false;
    }
    return IsIdeograph(before) || IsIdeograph(after);
}

std::vector<std::wstring> WrapText(std::wstring_view text, const FitText& fit) {
    std::vector<std::wstring> lines;
    while (true) {
        const std::size_t end = text.find(L'\n');
        std::wstring_view paragraph = text.substr(0, end);
        if (!paragraph.empty() && paragraph.back() == L'\r') {
            paragraph.remove_suffix(1);
        }
        WrapParagraph(paragraph, fit, lines);
        if (end == std::wstring_view::npos) {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

std::wstring WithoutKeyMarks(std::wstring_view text) {
    std::wstring plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'&' && i + 1 < text.size()) {
            ++i;
        }
        plain += text[i];
    }
    return plain;
}

} // namespace tooltip
