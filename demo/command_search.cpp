#include "command_search.h"

#include <algorithm>
#include <cwctype>
#include <optional>
#include <tuple>

namespace {

/// How well a text meets a query; smaller is better.
enum class Meeting { Beginning, Word, Inside, None };
/// By which text a command was found; earlier is better.
enum class By { Name, OtherName, Keyword };

struct Rank {
    By by = By::Keyword;
    Meeting meeting = Meeting::None;
    std::wstring otherName;
};

bool IsWordEnd(wchar_t c) { return !std::iswalnum(static_cast<std::wint_t>(c)) && c < 0x80; }

std::vector<std::wstring> WordsOf(const std::wstring& text) {
    std::vector<std::wstring> words(1);
    for (const wchar_t c : text) {
        if (!std::iswspace(static_cast<std::wint_t>(c))) {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    if (words.back().empty()) {
        words.pop_back();
    }
    return words;
}

Meeting MeetingOf(const std::wstring& text, const std::wstring& word) {
    Meeting best = Meeting::None;
    for (std::size_t at = text.find(word); at != std::wstring::npos; at = text.find(word, at + 1)) {
        best = std::min(best, at == 0 ? Meeting::Beginning : IsWordEnd(text[at - 1]) ? Meeting::Word : Meeting::Inside);
    }
    return best;
}

/// Of all words the worst, as all of them have to be found; the first one may be the beginning of the text.
Meeting MeetingOf(const std::wstring& text, const std::vector<std::wstring>& words) {
    Meeting worst = Meeting::Beginning;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const Meeting meeting = MeetingOf(text, words[i]);
        worst = std::max(worst, i > 0 && meeting == Meeting::Word ? Meeting::Beginning : meeting);
    }
    return worst;
}

std::optional<Rank> RankOf(const SearchCommand& command, const std::vector<std::wstring>& words,
                           const SearchFold& fold) {
    if (const Meeting meeting = MeetingOf(fold(command.name), words); meeting != Meeting::None) {
        return Rank{By::Name, meeting, L""};
    }
    Rank best;
    for (const std::wstring& name : command.otherNames) {
        const Meeting meeting = MeetingOf(fold(name), words);
        if (meeting < best.meeting) {
            best = {By::OtherName, meeting, name};
        }
    }
    if (best.meeting != Meeting::None) {
        return best;
    }
    const Meeting meeting = MeetingOf(fold(command.keyword), words);
    return meeting != Meeting::None ? std::optional(Rank{By::Keyword, meeting, L""}) : std::nullopt;
}

} // namespace

std::wstring PlainMenuText(std::wstring text) {
    text.resize(std::min(text.size(), text.find(L'\t')));
    const std::size_t bracket = text.find(L"(&");
    if (bracket != std::wstring::npos && bracket + 3 < text.size() && text[bracket + 3] == L')') {
        text.erase(bracket, 4);
    }
    std::wstring plain;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (text[place] == L'&' && ++place == text.size()) {
            break;
        }
        plain += text[place];
    }
    return plain;
}

std::vector<SearchHit> FindCommands(const std::vector<SearchCommand>& commands, const std::wstring& query,
                                    const SearchFold& fold) {
    const std::vector<std::wstring> words = WordsOf(fold(query));
    struct Found {
        std::size_t command;
        Rank rank;
    };
    std::vector<Found> found;
    for (std::size_t i = 0; i < commands.size(); ++i) {
        if (auto rank = RankOf(commands[i], words, fold)) {
            found.push_back({i, std::move(*rank)});
        }
    }
    if (!words.empty()) {
        const auto order = [&commands](const Found& one) {
            return std::make_tuple(one.rank.by, one.rank.meeting, !commands[one.command].isEnabled);
        };
        std::stable_sort(found.begin(), found.end(),
                         [&order](const Found& a, const Found& b) { return order(a) < order(b); });
    }
    std::vector<SearchHit> hits;
    hits.reserve(found.size());
    for (Found& one : found) {
        hits.push_back({one.command, std::move(one.rank.otherName)});
    }
    return hits;
}
