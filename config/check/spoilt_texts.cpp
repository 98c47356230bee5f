#include "config/check/spoilt_texts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string>

namespace {

constexpr unsigned kFirstHigh = 0x80;

/// What the western encoding of Windows has at 0x80 to 0x9F; 0 where it has nothing.
constexpr std::array<wchar_t, 32> kWestern = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                              0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

/// The byte that a letter was read from; nothing for a letter that the encoding does not have.
std::optional<unsigned char> ByteOf(wchar_t letter) {
    const auto code = static_cast<unsigned>(letter);
    if (code <= 0xFF) {
        return static_cast<unsigned char>(code);
    }
    const auto* const found = std::ranges::find(kWestern, letter);
    return found == kWestern.end() ? std::nullopt
                                   : std::optional(static_cast<unsigned char>(
                                         kFirstHigh + static_cast<unsigned>(found - kWestern.begin())));
}

/// How many bytes follow one that begins a letter in UTF-8; none for a byte that begins none of several bytes.
std::optional<std::size_t> BytesBehind(unsigned char first) {
    if (first >= 0xC2 && first <= 0xDF) {
        return 1;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return 2;
    }
    return first >= 0xF0 && first <= 0xF4 ? std::optional<std::size_t>(3) : std::nullopt;
}

/// Whether all that is not ASCII is UTF-8, and there is any.
bool IsMisread(std::wstring_view text) {
    bool isAny = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = ByteOf(text[at]);
        if (!byte) {
            return false;
        }
        if (*byte < kFirstHigh) {
            continue;
        }
        const auto behind = BytesBehind(*byte);
        if (!behind || at + *behind >= text.size()) {
            return false;
        }
        for (std::size_t i = 1; i <= *behind; ++i) {
            const auto next = ByteOf(text[at + i]);
            if (!next || (*next & 0xC0U) != kFirstHigh) {
                return false;
            }
        }
        at += *behind;
        isAny = true;
    }
    return isAny;
}

/// Whether there are several question marks side by side, and beside them neither letters nor other signs of a
/// language.
bool IsLost(std::wstring_view text) {
    const auto isLetter = [](wchar_t c) {
        return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || static_cast<unsigned>(c) >= kFirstHigh;
    };
    return text.find(L"??") != text.npos && std::ranges::none_of(text, isLetter);
}

void Count(SpoiltTexts::Kind& kind, varnhold::TextPosition position) {
    if (kind.count++ == 0) {
        kind.first = position;
    }
}

} // namespace

void SpoiltTexts::Take(std::wstring_view text, varnhold::TextPosition position) {
    if (IsMisread(text)) {
        Count(m_misread, position);
    } else if (IsLost(text)) {
        Count(m_lost, position);
    }
}

const SpoiltTexts::Kind& SpoiltTexts::Lost() const {
    constexpr std::size_t few = 2;
    static constexpr Kind s_none;
    return m_lost.count > few ? m_lost : s_none;
}
