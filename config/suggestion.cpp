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

std::wstring Quoted(std::wstring_view text) {
    constexpr std::size_t longest = 80;
    return L'"' + std::wstring(text.substr(0, longest)) + (text.size() > longest ? L"...\"" : L"\"");
}

std::wstring DidYouMean(std::wstring_view word) {
    return word.empty() ? std::wstring() : L"did you mean " + Quoted(word) + L"?";
}
