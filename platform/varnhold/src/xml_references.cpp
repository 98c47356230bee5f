#include "src/xml_references.h"

#include "src/unicode.h"

#include <algorithm>
#include <iterator>

namespace varnhold {

namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kReferenceStart = "&#";
constexpr std::string_view kPredefined[] = {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};
constexpr std::string_view kDocumentTypeStart = "<!DOCTYPE";

/// The digit's value; `base` or more for anything else.
unsigned ToDigit(char c) {
    constexpr unsigned noDigit = 16;
    if (c >= '0' && c <= '9') {
        return static_cast<unsigned>(c - '0');
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? static_cast<unsigned>(lower - 'a') + 10 : noDigit;
}

/// Whether what begins at `at` with "&#" is a whole reference, and to no character.
bool RefersToNoCharacter(std::string_view text, std::size_t at) {
    constexpr unsigned tooLarge = 0x110000;
    at += kReferenceStart.size();
    const bool isHexadecimal = at < text.size() && text[at] == 'x';
    const unsigned base = isHexadecimal ? 16 : 10;
    at += isHexadecimal ? 1 : 0;
    const std::size_t digits = at;
    unsigned value = 0;
    for (; at < text.size() && ToDigit(text[at]) < base; ++at) {
        value = std::min(value * base + ToDigit(text[at]), tooLarge);
    }
    const bool isWhole = at > digits && at < text.size() && text[at] == ';';
    return isWhole && (value == 0 || !IsScalarValue(value));
}

std::size_t FindCandidate(std::string_view text, std::size_t from) {
    std::size_t at = text.find(kReferenceStart, from);
    while (at != kNone && !RefersToNoCharacter(text, at)) {
        at = text.find(kReferenceStart, at + 1);
    }
    return at;
}

/// Whether a predefined entity or a whole character reference begins at `at`.
bool IsKnownReference(std::string_view text, std::size_t at) {
    const std::string_view rest = text.substr(at);
    if (!rest.starts_with(kReferenceStart)) {
        return std::any_of(std::begin(kPredefined), std::end(kPredefined),
                           [rest](std::string_view entity) { return rest.starts_with(entity); });
    }
    const bool isHexadecimal = rest.substr(kReferenceStart.size()).starts_with('x');
    const std::size_t digits = kReferenceStart.size() + (isHexadecimal ? 1 : 0);
    std::size_t end = digits;
    while (end < rest.size() && ToDigit(rest[end]) < (isHexadecimal ? 16u : 10u)) {
        ++end;
    }
    return end > digits && end < rest.size() && rest[end] == ';';
}

/// Behind the next `end`; the text's length when there is none.
std::size_t SkipPast(std::string_view text, std::string_view end, std::size_t from) {
    const std::size_t found = text.find(end, from);
    return found == kNone ? text.size() : found + end.size();
}

struct Section {
    std::string_view start;
    std::string_view end;
};
/// Markup in which a reference is not replaced.
constexpr Section kSections[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};

/// Behind the comment, section or instruction that begins at `at`; `at` when none does.
std::size_t SkipSection(std::string_view text, std::size_t at) {
    const auto* const found = std::find_if(std::begin(kSections), std::end(kSections), [&](const Section& section) {
        return text.substr(at).starts_with(section.start);
    });
    return found == std::end(kSections) ? at : SkipPast(text, found->end, at + found->start.size());
}

/// Behind the ">" that closes the "<" at `at`. Quoted texts count as one, and so does markup within a document type.
std::size_t SkipMarkup(std::string_view text, std::size_t at) {
    std::size_t depth = 0;
    while (at < text.size()) {
        const char c = text[at];
        if (c == '"' || c == '\'') {
            at = SkipPast(text, text.substr(at, 1), at + 1);
            continue;
        }
        if (c == '<' && depth > 0) {
            if (const std::size_t behind = SkipSection(text, at); behind != at) {
                at = behind;
                continue;
            }
        }
        depth += c == '<' ? 1 : 0;
        ++at;
        if (c == '>' && --depth == 0) {
            break;
        }
    }
    return at;
}

/// Behind the piece of the document that begins at `at`, where no reference is replaced; `at` where one may be.
std::size_t SkipUnreplaced(std::string_view text, std::size_t at) {
    if (text[at] != '<') {
        return at;
    }
    return text.substr(at).starts_with(kDocumentTypeStart) ? SkipMarkup(text, at) : SkipSection(text, at);
}

} // namespace

std::vector<OpenTag> FindOpenTags(std::string_view document) {
    std::vector<OpenTag> open;
    for (std::size_t at = document.find('<'); at < document.size(); at = document.find('<', at)) {
        const std::size_t start = at;
        at = SkipUnreplaced(document, start);
        if (at != start) {
            continue;
        }
        at = SkipMarkup(document, start);
        const std::string_view tag = document.substr(start, at - start);
        if (tag.starts_with("</")) {
            if (!open.empty()) {
                open.pop_back();
            }
        } else if (!tag.ends_with("/>")) {
            const std::string_view rest = tag.substr(1);
            open.push_back({rest.substr(0, std::min(rest.find_first_of("/> \t\r\n"), rest.size())), start});
        }
    }
    return open;
}

std::vector<std::size_t> FindUnknownReferences(std::string_view document) {
    std::vector<std::size_t> found;
    std::size_t candidate = document.find('&');
    for (std::size_t at = 0; candidate != kNone;) {
        if (const std::size_t behind = SkipUnreplaced(document, at); behind != at) {
            at = behind;
            candidate = candidate < at ? document.find('&', at) : candidate;
            continue;
        }
        at = document[at] == '<' ? SkipMarkup(document, at) : std::min(document.find('<', at), document.size());
        for (; candidate < at; candidate = document.find('&', candidate + 1)) {
            if (!IsKnownReference(document, candidate)) {
                found.push_back(candidate);
            }
        }
    }
    return found;
}

bool NamesEntity(std::string_view document, std::size_t at) {
    constexpr std::string_view noName = "&;<>\"' \t\r\n";
    const std::size_t end = document.find_first_of(noName, at + 1);
    return end != kNone && end > at + 1 && document[end] == ';';
}

bool HasUnknownReference(std::string_view value) {
    std::size_t at = value.find('&');
    while (at != kNone && IsKnownReference(value, at)) {
        at = value.find('&', at + 1);
    }
    return at != kNone;
}

std::size_t FindReferenceToNoCharacter(std::string_view document) {
    // Nearly no document has one, and then nothing else is looked at.
    std::size_t candidate = FindCandidate(document, 0);
    for (std::size_t at = 0; candidate != kNone && at <= candidate;) {
        if (const std::size_t behind = SkipUnreplaced(document, at); behind != at) {
            at = behind;
        } else if (document[at] == '<') {
            // A tag: its values are replaced, and what looks like markup in them is none.
            at = SkipMarkup(document, at);
            if (candidate < at) {
                return candidate;
            }
        } else {
            at = std::min(document.find('<', at), document.size());
            if (candidate < at) {
                return candidate;
            }
        }
        if (candidate < at) {
            candidate = FindCandidate(document, at);
        }
    }
    return candidate;
}

} // namespace varnhold
