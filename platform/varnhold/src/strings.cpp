#include "varnhold/strings.h"

#include "src/unicode.h"

#include <algorithm>
#include <cstdint>

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

// Lengths that the compiler turns into a few vector instructions.
constexpr std::size_t kBlockLength = 64;
constexpr std::size_t kLongStep = 16;
constexpr std::size_t kShortStep = 4;

bool IsAscii(const char* text, std::size_t length) {
    unsigned char bits = 0;
    for (std::size_t i = 0; i < length; ++i) {
        bits |= static_cast<unsigned char>(text[i]);
    }
    return bits < 0x80;
}

template <std::size_t length>
bool WidenStep(const char* text, wchar_t* letters) {
    if (!IsAscii(text, length)) {
        return false;
    }
    for (std::size_t i = 0; i < length; ++i) {
        letters[i] = static_cast<wchar_t>(static_cast<unsigned char>(text[i]));
    }
    return true;
}

} // namespace

std::size_t CountAscii(std::string_view text, std::size_t at) {
    const std::size_t start = at;
    for (; at + kBlockLength <= text.size() && IsAscii(text.data() + at, kBlockLength); at += kBlockLength) {
    }
    while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80) {
        ++at;
    }
    return at - start;
}

std::size_t FindNul(std::string_view text) {
    std::size_t at = 0;
    for (; at + kBlockLength <= text.size(); at += kBlockLength) {
        unsigned char least = 0xFF;
        for (std::size_t i = 0; i < kBlockLength; ++i) {
            least = std::min(least, static_cast<unsigned char>(text[at + i]));
        }
        if (least == 0) {
            break;
        }
    }
    while (at < text.size() && text[at] != '\0') {
        ++at;
    }
    return at;
}

std::size_t WidenAscii(std::string_view text, wchar_t* letters) {
    const std::size_t size = text.size();
    std::size_t at = 0;
    for (; at + kLongStep <= size; at += kLongStep) {
        if (!WidenStep<kLongStep>(text.data() + at, letters + at)) {
            break;
        }
    }
    for (; at + kShortStep <= size; at += kShortStep) {
        if (!WidenStep<kShortStep>(text.data() + at, letters + at)) {
            break;
        }
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
    wchar_t* end = letters + at;
    while (at < text.size()) {
        end = varnhold::PutWide(end, varnhold::NextFromUtf8(text, at));
    }
    return static_cast<std::size_t>(end - letters);
}
