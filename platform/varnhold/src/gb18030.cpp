#include "src/gb18030.h"

#include "src/unicode.h"

#include <algorithm>
#include <array>
#include <vector>

namespace varnhold {

namespace {

constexpr std::size_t kTrailCount = 190;
constexpr std::size_t kTwoByteCount = 126 * kTrailCount;

// The characters of all two-byte codes in the order of the codes, as the standard of 2000 has them.
constexpr char16_t kTwoByte[] =
#include "src/gb18030_table.inc"
    ;
static_assert(std::size(kTwoByte) == kTwoByteCount + 1);

/// Characters that had no code point in 2000 and were held in the private use area; later editions name the real ones.
struct Renamed {
    char16_t from;
    char16_t to;
};
constexpr Renamed kRenamed[] = {
    {0xE78D, 0xFE10}, {0xE78E, 0xFE12}, {0xE78F, 0xFE11}, {0xE790, 0xFE13}, {0xE791, 0xFE14},
    {0xE792, 0xFE15}, {0xE793, 0xFE16}, {0xE794, 0xFE17}, {0xE795, 0xFE18}, {0xE796, 0xFE19},
    {0xE7C7, 0x1E3F}, {0xE81E, 0x9FB4}, {0xE826, 0x9FB5}, {0xE82B, 0x9FB6}, {0xE82C, 0x9FB7},
    {0xE832, 0x9FB8}, {0xE843, 0x9FB9}, {0xE854, 0x9FBA}, {0xE864, 0x9FBB},
};

char32_t FromTwoBytes(unsigned char lead, unsigned char trail) {
    if (trail < 0x40 || trail == 0x7F || trail == 0xFF) {
        return kReplacement;
    }
    const std::size_t column = trail - (trail < 0x7F ? 0x40 : 0x41);
    const char16_t c = kTwoByte[(lead - 0x81) * kTrailCount + column];
    const auto* renamed =
        std::find_if(std::begin(kRenamed), std::end(kRenamed), [c](const Renamed& entry) { return entry.from == c; });
    return renamed == std::end(kRenamed) ? c : renamed->to;
}

/// The four-byte codes count, from 81 30 81 30 on, those characters of the basic plane that have no shorter code.
const std::vector<char16_t>& FourByteCharacters() {
    static const std::vector<char16_t> characters = [] {
        std::vector<bool> taken(0x10000);
        for (std::size_t i = 0; i < kTwoByteCount; ++i) {
            taken[kTwoByte[i]] = true;
        }
        std::vector<char16_t> free;
        for (char32_t c = 0x80; c < 0x10000; ++c) {
            if (!taken[c] && IsScalarValue(c)) {
                free.push_back(static_cast<char16_t>(c));
            }
        }
        return free;
    }();
    return characters;
}

char32_t FromFourBytes(const unsigned char* b) {
    const std::size_t index =
        ((std::size_t(b[0] - 0x81) * 10 + (b[1] - 0x30)) * 126 + (b[2] - 0x81)) * 10 + (b[3] - 0x30);
    const auto& basicPlane = FourByteCharacters();
    if (index < basicPlane.size()) {
        return basicPlane[index];
    }
    constexpr std::size_t firstOfOtherPlanes = 189000; // 90 30 81 30
    if (index < firstOfOtherPlanes || index - firstOfOtherPlanes > 0xFFFFF) {
        return kReplacement;
    }
    return static_cast<char32_t>(0x10000 + (index - firstOfOtherPlanes));
}

bool IsLead(unsigned char byte) { return byte >= 0x81 && byte <= 0xFE; }
bool IsDigit(unsigned char byte) { return byte >= 0x30 && byte <= 0x39; }

char32_t NextFromGb18030(std::string_view bytes, std::size_t& at) {
    const auto* b = reinterpret_cast<const unsigned char*>(bytes.data()) + at;
    const std::size_t left = bytes.size() - at;
    if (b[0] < 0x80 || !IsLead(b[0]) || left < 2) {
        ++at;
        return b[0] < 0x80 ? b[0] : b[0] == 0x80 ? 0x20AC : kReplacement;
    }
    if (IsDigit(b[1])) {
        const bool complete = left >= 4 && IsLead(b[2]) && IsDigit(b[3]);
        at += complete ? 4 : 1;
        return complete ? FromFourBytes(b) : kReplacement;
    }
    const char32_t c = FromTwoBytes(b[0], b[1]);
    at += c == kReplacement && b[1] < 0x80 ? 1 : 2;
    return c;
}

} // namespace

std::string Gb18030ToUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 2);
    for (std::size_t at = 0; at < bytes.size();) {
        AppendUtf8(text, NextFromGb18030(bytes, at));
    }
    return text;
}

} // namespace varnhold
