#include "ribbon/text_break.h"

#include <algorithm>
#include <limits>

namespace ribbon {
namespace {

struct CharacterRange {
    wchar_t first;
    wchar_t last;
};

// Scripts written without spaces.
constexpr CharacterRange kUnspaced[] = {
    {L'\x2E80', L'\x9FFF'}, // radicals, ideographic punctuation, kana, ideographs
    {L'\xF900', L'\xFAFF'}, // compatibility ideographs
    {L'\xFF01', L'\xFFEF'}, // full and half width forms
};

constexpr std::wstring_view kNeverFirst =
    L"!%),.:;?]}\x00A2\x2019\x201D\x2026\x3001\x3002\x3005\x3009\x300B\x300D\x300F\x3011\x3015\x3017\x3041\x3043"
    L"\x3045\x3047\x3049\x3063\x3083\x3085\x3087\x30A1\x30A3\x30A5\x30A7\x30A9\x30C3\x30E3\x30E5\x30E7\x30FB\x30FC"
    L"\xFF01"
    L"\xFF05\xFF09\xFF0C\xFF0E\xFF1A\xFF1B\xFF1F\xFF3D\xFF5D";
constexpr std::wstring_view kNeverLast = L"$([{\x00A3\x00A5\x2018\x201C\x3008\x300A\x300C\x300E\x3010\x3014\x3016\xFF04"
                                         L"\xFF08\xFF3B\xFF5B\xFFE5";
constexpr std::wstring_view kBreakAfter = L"-/";
constexpr size_t kShortText = 4;

bool IsSpace(wchar_t character) { return character == L' ' || character == L'\t' || character == L'\x3000'; }

bool IsUnspaced(wchar_t character) {
    return std::any_of(std::begin(kUnspaced), std::end(kUnspaced), [character](const CharacterRange& range) {
        return character >= range.first && character <= range.last;
    });
}

// A button grows hardly by the one ideograph that would stand alone.
bool LeavesOneAlone(std::wstring_view text, std::wstring_view first, std::wstring_view second) {
    const auto isOne = [](std::wstring_view line) { return line.size() == 1 && IsUnspaced(line.front()); };
    return text.size() <= kShortText && (isOne(first) || isOne(second));
}

bool IsIn(std::wstring_view set, wchar_t character) { return set.find(character) != std::wstring_view::npos; }

std::wstring_view TrimRight(std::wstring_view text) {
    while (!text.empty() && IsSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

size_t SkipSpaces(std::wstring_view text, size_t index) {
    while (index < text.size() && IsSpace(text[index])) {
        ++index;
    }
    return index;
}

} // namespace

bool CanBreakBefore(std::wstring_view text, size_t index) {
    if (index == 0 || index >= text.size()) {
        return false;
    }
    const wchar_t before = text[index - 1];
    const wchar_t after = text[index];
    if (IsSpace(after)) {
        return false;
    }
    if (IsSpace(before)) {
        return true;
    }
    if (IsIn(kNeverFirst, after) || IsIn(kNeverLast, before)) {
        return false;
    }
    return IsUnspaced(before) || IsUnspaced(after) || IsIn(kBreakAfter, before);
}

TextBreak BreakInTwo(std::wstring_view text, const TextMeasure& measure, int singleLineWidth, int secondLineExtra) {
    TextBreak best{text.size(), text.size(), measure(text), 0};
    if (best.firstWidth <= singleLineWidth) {
        return best;
    }

    int bestWidth = std::numeric_limits<int>::max();
    for (size_t index = text.size(); index-- > 1;) {
        if (!CanBreakBefore(text, index)) {
            continue;
        }
        const std::wstring_view first = TrimRight(text.substr(0, index));
        const size_t secondStart = SkipSpaces(text, index);
        if (first.empty() || secondStart == text.size() || LeavesOneAlone(text, first, text.substr(secondStart))) {
            continue;
        }
        const TextBreak candidate{first.size(), secondStart, measure(first), measure(text.substr(secondStart))};
        const int width = std::max(candidate.firstWidth, candidate.secondWidth + secondLineExtra);
        if (width < bestWidth) {
            bestWidth = width;
            best = candidate;
        }
    }
    return best;
}

} // namespace ribbon
