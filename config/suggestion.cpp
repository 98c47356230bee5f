#include "config/suggestion.h"

#include "varnhold/letter_case.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t kLongestWord = 64;
constexpr std::size_t kLettersPerChange = 3;

using Row = std::array<std::size_t, kLongestWord + 1>;

bool AreSameLetter(wchar_t a, wchar_t b) { return varnhold::EqualsIgnoringCase({&a, 1}, {&b, 1}); }

/// Both words are not longer than kLongestWord.
std::size_t CountChanges(std::wstring_view a, std::wstring_view b) {
    std::array<Row, 3> rows{};
    Row* beforeLast = &rows[0];
    Row* last = &rows[1];
    Row* current = &rows[2];
    for (std::size_t j = 0; j <= b.size(); ++j) {
        (*last)[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        (*current)[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = AreSameLetter(a[i - 1], b[j - 1]) ? 0 : 1;
            std::size_t best = std::min({(*last)[j] + 1, (*current)[j - 1] + 1, (*last)[j - 1] + change});
            if (i > 1 && j > 1 && AreSameLetter(a[i - 1], b[j - 2]) && AreSameLetter(a[i - 2], b[j - 1])) {
                best = std::min(best, (*beforeLast)[j - 2] + 1);
            }
            (*current)[j] = best;
        }
        std::swap(beforeLast, last);
        std::swap(last, current);
    }
    return (*last)[b.size()];
}

} // namespace

std::wstring ClosestWord(std::wstring_view misspelt, const std::vector<std::wstring>& words) {
    if (misspelt.empty() || misspelt.size() > kLongestWord) {
        return {};
    }
    const std::size_t most = std::max<std::size_t>(1, misspelt.size() / kLettersPerChange);
    std::size_t fewest = most + 1;
    std::wstring closest;
    for (const std::wstring& word : words) {
        const std::size_t lengths = std::max(word.size(), misspelt.size()) - std::min(word.size(), misspelt.size());
        if (word.size() > kLongestWord || lengths > most) {
            continue;
        }
        const std::size_t changes = CountChanges(misspelt, word);
        if (changes < fewest) {
            fewest = changes;
            closest = word;
        } else if (changes == fewest && word != closest) {
            closest.clear();
        }
    }
    return fewest <= most ? closest : std::wstring();
}

namespace {

/// They look like a blank, or like nothing.
constexpr std::wstring_view kUnseen = L"\u00A0\u00AD\u200B\u200E\u200F\u2060\uFEFF";

bool IsUnseen(wchar_t c) { return kUnseen.find(c) != kUnseen.npos; }
bool IsLatin(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }
/// Greek and Cyrillic letters: many look like Latin ones.
bool IsLikeLatin(wchar_t c) { return c >= 0x370 && c <= 0x52F; }
bool IsOfWord(wchar_t c) { return IsLatin(c) || IsLikeLatin(c) || (c >= L'0' && c <= L'9') || c == L'_'; }

/// Whether the word that the character belongs to has Latin letters, too.
bool IsAmongLatin(std::wstring_view text, std::size_t at) {
    for (std::size_t i = at; i > 0 && IsOfWord(text[i - 1]); --i) {
        if (IsLatin(text[i - 1])) {
            return true;
        }
    }
    for (std::size_t i = at + 1; i < text.size() && IsOfWord(text[i]); ++i) {
        if (IsLatin(text[i])) {
            return true;
        }
    }
    return false;
}

std::wstring Numbered(wchar_t c) {
    constexpr std::wstring_view digits = L"0123456789ABCDEF";
    std::wstring text = L"<U+";
    for (int shift = 12; shift >= 0; shift -= 4) {
        text += digits[(static_cast<unsigned>(c) >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text + L">";
}

} // namespace

std::wstring Quoted(std::wstring_view text) {
    constexpr std::size_t longest = 80;
    std::wstring shown = L"\"";
    for (std::size_t at = 0; at < std::min(text.size(), longest); ++at) {
        const bool isHidden = IsUnseen(text[at]) || (IsLikeLatin(text[at]) && IsAmongLatin(text, at));
        shown += isHidden ? Numbered(text[at]) : std::wstring(1, text[at]);
    }
    return shown + (text.size() > longest ? L"...\"" : L"\"");
}

bool IsTypographicQuote(wchar_t c) {
    constexpr std::wstring_view quotes = L"\u201C\u201D\u201E\u201F\uFF02";
    return quotes.find(c) != quotes.npos;
}

std::wstring DidYouMean(std::wstring_view word) {
    return word.empty() ? std::wstring() : L"did you mean " + Quoted(word) + L"?";
}
