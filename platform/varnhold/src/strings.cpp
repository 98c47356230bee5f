#include "varnhold/strings.h"

#include "src/unicode.h"

#include <emmintrin.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace varnhold {

namespace {

/// What a lead byte promises: the number of bytes that follow and the range of the first of them, which is what keeps
/// overlong forms, surrogates and values above U+10FFFF out.
struct LeadByte {
    int following = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
};

LeadByte ReadLeadByte(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return {1};
    }
    if (lead == 0xE0) {
        return {2, 0xA0, 0xBF};
    }
    if (lead == 0xED) {
        return {2, 0x80, 0x9F};
    }
    if (lead >= 0xE1 && lead <= 0xEF) {
        return {2};
    }
    if (lead == 0xF0) {
        return {3, 0x90, 0xBF};
    }
    if (lead == 0xF4) {
        return {3, 0x80, 0x8F};
    }
    if (lead >= 0xF1 && lead <= 0xF3) {
        return {3};
    }
    return {0};
}

// Bytes are looked at in words, a block of them at once.
constexpr std::size_t kWordLength = sizeof(std::uint64_t);
constexpr std::size_t kBlockLength = 8 * kWordLength;
constexpr std::uint64_t kOnes = 0x0101010101010101;
constexpr std::uint64_t kHighBits = 0x8080808080808080;

std::uint64_t ReadWord(const char* text) {
    std::uint64_t word = 0;
    std::memcpy(&word, text, sizeof word);
    return word;
}

bool IsAsciiBlock(const char* text) {
    std::uint64_t bits = 0;
#pragma GCC unroll 8
    for (std::size_t i = 0; i < kBlockLength; i += kWordLength) {
        bits |= ReadWord(text + i);
    }
    return (bits & kHighBits) == 0;
}

/// False for a block without a NUL; true for one with a NUL, and for some with bytes above 7F.
bool MayHoldNul(const char* text) {
    std::uint64_t bits = 0;
#pragma GCC unroll 8
    for (std::size_t i = 0; i < kBlockLength; i += kWordLength) {
        bits |= ReadWord(text + i) - kOnes;
    }
    return (bits & kHighBits) != 0;
}

/// Widens the bytes of a word, and says whether all were ASCII.
bool WidenWord(const char* text, wchar_t* letters) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i word = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(text));
    const __m128i wide = _mm_unpacklo_epi8(word, zero);
    auto* const to = reinterpret_cast<__m128i*>(letters);
    if constexpr (sizeof(wchar_t) == 2) {
        _mm_storeu_si128(to, wide);
    } else {
        _mm_storeu_si128(to, _mm_unpacklo_epi16(wide, zero));
        _mm_storeu_si128(to + 1, _mm_unpackhi_epi16(wide, zero));
    }
    return (ReadWord(text) & kHighBits) == 0;
}

} // namespace

std::size_t CountAscii(std::string_view text, std::size_t at) {
    const std::size_t start = at;
    for (; at + kBlockLength <= text.size() && IsAsciiBlock(text.data() + at); at += kBlockLength) {
    }
    while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80) {
        ++at;
    }
    return at - start;
}

std::size_t FindNul(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t left = text.size() - at;
        if (left >= kBlockLength && !MayHoldNul(text.data() + at)) {
            at += kBlockLength;
            continue;
        }
        const std::size_t length = std::min(left, kBlockLength);
        const std::size_t nul = text.substr(at, length).find('\0');
        if (nul != std::string_view::npos) {
            return at + nul;
        }
        at += length;
    }
    return at;
}

std::size_t WidenAscii(std::string_view text, wchar_t* letters) {
    const std::size_t size = text.size();
    std::size_t at = 0;
    while (at + kWordLength <= size && WidenWord(text.data() + at, letters + at)) {
        at += kWordLength;
    }
    // The last word overlaps the one before it.
    const bool isWordLeft = at > 0 && at + kWordLength > size;
    if (isWordLeft && WidenWord(text.data() + size - kWordLength, letters + size - kWordLength)) {
        return size;
    }
    for (; at < size && static_cast<unsigned char>(text[at]) < 0x80; ++at) {
        letters[at] = static_cast<wchar_t>(text[at]);
    }
    return at;
}

char32_t NextFromUtf8(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80) {
        return lead;
    }
    LeadByte rule = ReadLeadByte(lead);
    if (rule.following == 0) {
        return kReplacement;
    }
    char32_t c = lead & (0x3F >> rule.following);
    for (int i = 0; i < rule.following; ++i) {
        if (at == text.size()) {
            return kReplacement;
        }
        const auto byte = static_cast<unsigned char>(text[at]);
        if (byte < rule.low || byte > rule.high) {
            return kReplacement;
        }
        c = c << 6 | (byte & 0x3F);
        rule.low = 0x80;
        rule.high = 0xBF;
        ++at;
    }
    return c;
}

void AppendUtf8(std::string& text, char32_t c) {
    if (!IsScalarValue(c)) {
        c = kReplacement;
    }
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | c >> 6);
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0 | c >> 12);
        text += static_cast<char>(0x80 | (c >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        text += static_cast<char>(0xF0 | c >> 18);
        text += static_cast<char>(0x80 | (c >> 12 & 0x3F));
        text += static_cast<char>(0x80 | (c >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    }
}

wchar_t* PutWide(wchar_t* at, char32_t c) {
    if (!IsScalarValue(c)) {
        c = kReplacement;
    }
    if (sizeof(wchar_t) == 2 && c >= 0x10000) {
        *at++ = static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
        *at++ = static_cast<wchar_t>(0xDC00 + (c & 0x3FF));
    } else {
        *at++ = static_cast<wchar_t>(c);
    }
    return at;
}

} // namespace varnhold

std::string wstring2String(std::wstring_view text) {
    if (std::all_of(text.begin(), text.end(), [](wchar_t c) { return static_cast<std::uint32_t>(c) < 0x80; })) {
        return std::string(text.begin(), text.end());
    }
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto c = static_cast<char32_t>(text[i]);
        if (sizeof(wchar_t) == 2 && c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size()) {
            const auto low = static_cast<char32_t>(text[i + 1]);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        varnhold::AppendUtf8(result, c);
    }
    return result;
}

std::wstring string2wstring(std::string_view text) {
    std::wstring wide;
    string2wstring(text, wide);
    return wide;
}

void string2wstring(std::string_view text, std::wstring& wide) {
    constexpr std::size_t shortLength = 64;
    if (text.size() <= shortLength) {
        // One heap block at most: nearly every text is short.
        wchar_t letters[shortLength];
        const std::size_t length = string2wstring(text, letters);
        if (length <= wide.capacity()) {
            wide.assign(letters, length);
        } else {
            wide = std::wstring(letters, length); // a block of the right size, not of twice the old one
        }
        return;
    }
    wide.resize(text.size());
    wide.resize(string2wstring(text, wide.data()));
}

std::size_t string2wstring(std::string_view text, wchar_t* letters) {
    std::size_t at = varnhold::WidenAscii(text, letters);
    if (at == text.size()) {
        return at;
    }
    wchar_t* end = letters + at;
    while (at < text.size()) {
        end = varnhold::PutWide(end, varnhold::NextFromUtf8(text, at));
    }
    return static_cast<std::size_t>(end - letters);
}
