#include "config/syntax_hint.h"

#include <varnhold/strings.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace {

using varnhold::TextPosition;

constexpr std::wstring_view kTypographicQuotes = L"\u201C\u201D\u201E\u201F\u2018\u2019\u201A\u00AB\u00BB";
/// They look like a blank, or like nothing.
constexpr std::wstring_view kOtherBlanks = L"\u00A0\u2007\u202F\u3000\u200B\u2060\uFEFF";

/// Signs of markup as a Chinese or Japanese keyboard writes them.
constexpr std::wstring_view kWideSigns = L"\uFF1C\uFF1E\uFF1D\uFF0F\uFF02\uFF07";
constexpr std::wstring_view kNarrowSigns = L"<>=/\"'";

std::wstring HintForWideSign(wchar_t sign) {
    const std::size_t at = kWideSigns.find(sign);
    return std::wstring(L"write the narrow sign ") + kNarrowSigns[at] + L": the one that stands here is " + sign +
           L", as a Chinese keyboard has it";
}

bool IsLetter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || c == L'_'; }
bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
bool IsQuote(wchar_t c) { return c == L'"' || c == L'\''; }

/// Where the text at an offset stands.
TextPosition PositionOf(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0
    const auto isStart = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return {1 + static_cast<std::size_t>(std::ranges::count(before, '\n')),
            1 + static_cast<std::size_t>(std::ranges::count_if(before.substr(lineStart), isStart))};
}

/// A comment that lacks its end goes on to the end of the next one.
std::optional<SyntaxHint> FindSwallowingComment(std::string_view text, TextPosition noticed) {
    constexpr std::string_view opening = "<!--";
    constexpr std::string_view closing = "-->";
    for (std::size_t at = text.find(opening); at != std::string_view::npos; at = text.find(opening, at)) {
        const std::size_t start = at + opening.size();
        const std::size_t end = std::min(text.find(closing, start), text.size());
        const TextPosition position = PositionOf(text, at);
        if (position.line > noticed.line) {
            break;
        }
        if (text.substr(start, end - start).find(opening) != std::string_view::npos || end == text.size()) {
            return SyntaxHint{position, L"does it lack its end, -->?",
                              L"this comment goes on to the end of the next one, or of the file"};
        }
        at = end + closing.size();
    }
    return std::nullopt;
}

/// The line, and 0 where it has no such character.
struct Place {
    std::wstring line;
    std::size_t column;

    wchar_t At(std::size_t index) const { return index >= 1 && index <= line.size() ? line[index - 1] : L'\0'; }
    wchar_t Here() const { return At(column); }
    wchar_t Before() const { return At(column - 1); }
    bool IsPair(bool (*isFirst)(wchar_t), bool (*isSecond)(wchar_t)) const {
        return (isFirst(Before()) && isSecond(Here())) || (isFirst(At(column - 2)) && isSecond(Before()));
    }
    bool Has(std::wstring_view signs) const {
        return (Here() != 0 && signs.find(Here()) != signs.npos) ||
               (Before() != 0 && signs.find(Before()) != signs.npos);
    }
};

Place PlaceAt(std::string_view text, TextPosition position) {
    std::size_t start = 0;
    for (std::size_t line = 1; line < position.line && start < text.size(); ++line) {
        start = std::min(text.find('\n', start), text.size() - 1) + 1;
    }
    const std::string_view line = text.substr(start, text.find('\n', start) - start);
    return {string2wstring(std::string(line)), position.column};
}

/// Where the last quotation mark of the line before stands, when that line has an odd number of them: the value that it
/// opens goes on to the first one of the line that was refused.
std::optional<TextPosition> FindOpenQuote(std::string_view text, TextPosition noticed) {
    if (noticed.line < 2) {
        return std::nullopt;
    }
    const std::wstring before = PlaceAt(text, {noticed.line - 1, 1}).line;
    const std::size_t last = before.rfind(L'"');
    if (std::ranges::count(before, L'"') % 2 == 0 || !before.substr(0, last).ends_with(L"=")) {
        return std::nullopt;
    }
    return TextPosition{noticed.line - 1, last + 1};
}

/// The first sign of markup that is a wide one between the place and the last value, or tag, before it.
std::optional<std::size_t> FindWideSign(const Place& place) {
    const std::wstring_view line = place.line;
    const std::size_t last = line.substr(0, std::min(place.column - 1, line.size())).find_last_of(L"\"'<");
    const std::size_t found =
        line.substr(0, std::min(place.column + 1, line.size())).find_first_of(kWideSigns, last + 1); // npos + 1 is 0
    return found == line.npos ? std::nullopt : std::optional(found);
}

/// What programs write who know nothing of XML; in the text bytes that are no UTF-8 have been replaced.
struct ForeignStart {
    std::string_view start;
    const wchar_t* fix;
};
constexpr ForeignStart kForeignStarts[] = {
    {"PK\x03\x04", L"this is an archive, or a document of an office program: save it as plain text"},
    {"%PDF", L"this is a PDF document: a configuration file is plain text"},
    {"\x89PNG", L"this is a picture: a configuration file is plain text"},
    {"\xEF\xBF\xBDPNG", L"this is a picture: a configuration file is plain text"},
};

/// A file that holds NULs is another program's, or its end was never written.
SyntaxHint HintForNul(std::string_view text, TextPosition noticed) {
    const auto* const foreign =
        std::ranges::find_if(kForeignStarts, [text](const ForeignStart& one) { return text.starts_with(one.start); });
    if (foreign != std::end(kForeignStarts)) {
        return {{1, 1}, foreign->fix};
    }
    return {noticed, L"the file was not written to its end: save it again, or take an earlier copy"};
}

/// Whether the file ends before the tag at the place does.
bool EndsInTag(std::string_view text, TextPosition noticed) {
    std::size_t start = 0;
    for (std::size_t line = 1; line < noticed.line && start < text.size(); ++line) {
        start = std::min(text.find('\n', start), text.size() - 1) + 1;
    }
    const std::string_view lines = text.substr(start);
    const std::size_t open = lines.rfind('<');
    return lines.find('\n') >= lines.find_last_not_of("\r\n") && open != lines.npos &&
           lines.find('>', open) == lines.npos;
}

/// Whether a tool for versions left the line where two of them differ.
bool IsMergeMark(std::wstring_view line) {
    constexpr std::wstring_view marks[] = {L"<<<<<<<", L"=======", L">>>>>>>", L"|||||||"};
    return std::ranges::any_of(marks, [line](std::wstring_view mark) { return line.starts_with(mark); });
}
constexpr const wchar_t* kMergeHint =
    L"this is the mark of a merge conflict: keep one of the two versions, and remove the marks";

struct Slip {
    bool (*isMade)(const Place& place);
    const wchar_t* fix;
};
/// What is wrong is often noticed one character behind.
constexpr Slip kSlips[] = {
    {[](const Place& place) { return place.Has(kTypographicQuotes); },
     L"write the straight quotation mark (\") instead of the typographic one"},
    {[](const Place& place) { return place.Has(kOtherBlanks); },
     L"write a common blank: the one that stands here is another character, as word processors put it"},
    {[](const Place& place) { return place.IsPair([](wchar_t c) { return c == L':'; }, IsQuote); },
     L"write = between name and value"},
    {[](const Place& place) { return IsQuote(place.Before()) && IsLetter(place.Here()); },
     L"put a blank between the attributes, or close the value before where it ends"},
    {[](const Place& place) { return place.Before() == L'=' && !IsQuote(place.Here()); },
     L"put the value between quotation marks"},
    {[](const Place& place) { return IsQuote(place.Here()); },
     L"is a quotation mark missing, before this place or in the line before?"},
    {[](const Place& place) { return place.Here() == L'<' && place.At(place.column + 1) == L'!'; },
     L"a comment cannot stand within a tag: put it before"},
    {[](const Place& place) { return place.Before() == L'<' && (place.Here() == L' ' || place.Here() == L'='); },
     L"write &lt; for the sign itself, or the name of an element right behind it"},
    {[](const Place& place) { return IsDigit(place.Here()) && place.Before() == L'<'; },
     L"the name of an element begins with a letter"},
    {[](const Place& place) {
         return (place.Here() == L'>' || place.Here() == L'/') && (IsLetter(place.Before()) || place.Before() == L'/');
     },
     L"an attribute is NAME=\"VALUE\": is the value missing before this place?"},
    {[](const Place& place) { return place.IsPair([](wchar_t c) { return c == L' ' || c == L'\t'; }, IsLetter); },
     L"an attribute is NAME=\"VALUE\": is the value missing before this place?"},
};

} // namespace

SyntaxHint HintForSyntax(std::string_view text, TextPosition noticed, std::wstring_view reason) {
    const Place place = PlaceAt(text, noticed);
    if (reason.find(L"NUL") != reason.npos) {
        return HintForNul(text, noticed);
    }
    if (IsMergeMark(place.line)) {
        return {{noticed.line, 1}, kMergeHint};
    }
    if (const auto wide = FindWideSign(place)) {
        return {{noticed.line, *wide + 1}, HintForWideSign(place.line[*wide])};
    }
    if (EndsInTag(text, noticed)) {
        return {noticed, L"the file ends within this tag: save it again, or take an earlier copy"};
    }
    if (auto comment = FindSwallowingComment(text, noticed)) {
        return std::move(*comment);
    }
    if (const auto open = FindOpenQuote(text, noticed)) {
        return {*open, L"a second quotation mark is missing: the one here closes nothing before the next line",
                L"the value that begins here does not end in its line"};
    }
    if (reason.find(L"does not end") != reason.npos) {
        return {noticed, L"is the \"/\" of that tag missing, or an end tag too many?"};
    }
    if (reason.find(L"is not ended") != reason.npos) {
        return {noticed, L"is its end tag missing, or was the file not written to its end?"};
    }
    if (reason.find(L"ends no element") != reason.npos) {
        return {noticed, L"the document element has ended before: remove what follows, or an end tag too many above"};
    }
    if (reason.find(L"text outside") != reason.npos && noticed.line == 1 && noticed.column == 1) {
        return {noticed, L"a configuration file begins with \"<\": is this a file of another kind?"};
    }
    const auto* const slip = std::ranges::find_if(kSlips, [&place](const Slip& one) { return one.isMade(place); });
    return {noticed, slip == std::end(kSlips) ? std::wstring() : slip->fix};
}

SyntaxHint HintForSyntax(const std::wstring& fullPath, TextPosition noticed, std::wstring_view reason) {
    std::string text;
    return varnhold::ReadXmlText(fullPath, text) ? HintForSyntax(text, noticed, reason) : SyntaxHint{noticed, {}};
}

std::wstring HintForLooseText(const std::wstring& fullPath, TextPosition position) {
    std::string text;
    if (!varnhold::ReadXmlText(fullPath, text)) {
        return {};
    }
    const Place place = PlaceAt(text, position);
    if (IsMergeMark(place.line)) {
        return kMergeHint;
    }
    if (std::wstring_view(place.line).substr(position.column - 1).starts_with(L"-->")) {
        return L"a comment ends at its first -->: none can stand within another";
    }
    if (place.Here() != 0 && kWideSigns.find(place.Here()) != kWideSigns.npos) {
        return HintForWideSign(place.Here());
    }
    return place.Here() != 0 && kOtherBlanks.find(place.Here()) != kOtherBlanks.npos
               ? L"remove the character that stands here, although nobody sees it"
               : L"";
}
