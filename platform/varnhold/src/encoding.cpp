#include "src/encoding.h"

#include "src/gb18030.h"
#include "src/unicode.h"
#include "varnhold/letter_case.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace varnhold {

namespace {

enum class Encoding { Utf8, Utf16, Utf16LittleEndian, Utf16BigEndian, Ascii, Latin1, Gb18030 };

struct EncodingName {
    const char* name; // lower case
    Encoding encoding;
};
constexpr EncodingName kEncodingNames[] = {
    {"utf-8", Encoding::Utf8},
    {"utf8", Encoding::Utf8},
    {"utf-16", Encoding::Utf16},
    {"utf16", Encoding::Utf16},
    {"utf-16le", Encoding::Utf16LittleEndian},
    {"utf-16be", Encoding::Utf16BigEndian},
    {"us-ascii", Encoding::Ascii},
    {"ascii", Encoding::Ascii},
    {"iso-8859-1", Encoding::Latin1},
    {"iso_8859-1", Encoding::Latin1},
    {"latin1", Encoding::Latin1},
    {"l1", Encoding::Latin1},
    {"gb2312", Encoding::Gb18030},
    {"gb_2312-80", Encoding::Gb18030},
    {"euc-cn", Encoding::Gb18030},
    {"gbk", Encoding::Gb18030},
    {"cp936", Encoding::Gb18030},
    {"ms936", Encoding::Gb18030},
    {"windows-936", Encoding::Gb18030},
    {"gb18030", Encoding::Gb18030},
};

constexpr std::string_view kBlanks = " \t\r\n";

bool IsBlank(char c) { return kBlanks.find(c) != std::string_view::npos; }

/// The value of `encoding` in the XML declaration at the start of `text`. False when the declaration is malformed;
/// empty when there is no declaration or it names none.
bool ReadDeclaredEncoding(std::string_view text, std::string& name) {
    name.clear();
    if (!text.starts_with("<?xml") || text.size() < 6 || !IsBlank(text[5])) {
        return true;
    }
    const std::size_t end = text.find("?>");
    if (end == std::string_view::npos) {
        return false;
    }
    text = text.substr(5, end - 5);
    while (true) {
        const std::size_t start = text.find_first_not_of(kBlanks);
        if (start == std::string_view::npos) {
            return true;
        }
        const std::size_t equals = text.find('=', start);
        if (equals == std::string_view::npos) {
            return false;
        }
        std::string_view key = text.substr(start, equals - start);
        key = key.substr(0, key.find_last_not_of(kBlanks) + 1);
        const std::size_t quote = text.find_first_not_of(kBlanks, equals + 1);
        if (quote == std::string_view::npos || (text[quote] != '"' && text[quote] != '\'')) {
            return false;
        }
        const std::size_t closing = text.find(text[quote], quote + 1);
        if (closing == std::string_view::npos) {
            return false;
        }
        if (key == "encoding") {
            name = text.substr(quote + 1, closing - quote - 1);
        }
        text.remove_prefix(closing + 1);
    }
}

std::string Utf16ToUtf8(std::string_view bytes, Encoding order) {
    const std::size_t high = order == Encoding::Utf16BigEndian ? 0 : 1;
    const auto unit = [&](std::size_t at) {
        return static_cast<char32_t>(static_cast<unsigned char>(bytes[at + high]) << 8 |
                                     static_cast<unsigned char>(bytes[at + 1 - high]));
    };
    std::string text;
    text.reserve(bytes.size());
    std::size_t at = 0;
    for (; at + 1 < bytes.size(); at += 2) {
        char32_t c = unit(at);
        if (c >= 0xD800 && c <= 0xDBFF && at + 3 < bytes.size()) {
            const char32_t low = unit(at + 2);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                at += 2;
            }
        }
        AppendUtf8(text, c);
    }
    if (at < bytes.size()) {
        AppendUtf8(text, kReplacement);
    }
    return text;
}

std::string RepairUtf8(std::string bytes) {
    // Almost every file is valid: only then is nothing copied.
    std::size_t at = 0;
    const std::string_view view = bytes;
    while ((at += CountAscii(view, at)) < view.size()) {
        const std::size_t start = at;
        if (NextFromUtf8(view, at) == kReplacement && view.substr(start, at - start) != "\xEF\xBF\xBD") {
            at = start;
            break;
        }
    }
    if (at == view.size()) {
        return bytes;
    }
    std::string text(view.substr(0, at));
    while (at < view.size()) {
        AppendUtf8(text, NextFromUtf8(view, at));
    }
    return text;
}

std::string SingleBytesToUtf8(std::string_view bytes, unsigned char last) {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto c = static_cast<unsigned char>(byte);
        AppendUtf8(text, c <= last ? c : kReplacement);
    }
    return text;
}

std::string Decode(std::string bytes, Encoding encoding) {
    switch (encoding) {
    case Encoding::Utf16LittleEndian:
    case Encoding::Utf16BigEndian:
        return Utf16ToUtf8(bytes, encoding);
    case Encoding::Ascii:
        return SingleBytesToUtf8(bytes, 0x7F);
    case Encoding::Latin1:
        return SingleBytesToUtf8(bytes, 0xFF);
    case Encoding::Gb18030:
        return Gb18030ToUtf8(bytes);
    default:
        return RepairUtf8(std::move(bytes));
    }
}

struct Signature {
    std::string_view bytes;
    Encoding encoding;
    std::size_t markLength;
};
using namespace std::string_view_literals;
// Byte order marks, then the way "<" and "<?" look in UTF-16 without one.
constexpr Signature kSignatures[] = {
    {"\xEF\xBB\xBF"sv, Encoding::Utf8, 3},       {"\xFF\xFE"sv, Encoding::Utf16LittleEndian, 2},
    {"\xFE\xFF"sv, Encoding::Utf16BigEndian, 2}, {"<\0"sv, Encoding::Utf16LittleEndian, 0},
    {"\0<"sv, Encoding::Utf16BigEndian, 0},
};
constexpr std::string_view kUtf32Marks[] = {"\xFF\xFE\0\0"sv, "\0\0\xFE\xFF"sv, "<\0\0\0"sv, "\0\0\0<"sv};

} // namespace

bool DecodeXml(std::string bytes, std::string& utf8, std::wstring& reason) {
    for (const std::string_view mark : kUtf32Marks) {
        if (bytes.starts_with(mark)) {
            reason = L"the encoding UTF-32 is not supported";
            return false;
        }
    }
    for (const Signature& signature : kSignatures) {
        if (bytes.starts_with(signature.bytes)) {
            bytes.erase(0, signature.markLength);
            utf8 = Decode(std::move(bytes), signature.encoding);
            return true;
        }
    }
    std::string name;
    if (!ReadDeclaredEncoding(bytes, name)) {
        reason = L"the XML declaration is malformed";
        return false;
    }
    if (name.empty()) {
        utf8 = Decode(std::move(bytes), Encoding::Utf8);
        return true;
    }
    const auto* known =
        std::find_if(std::begin(kEncodingNames), std::end(kEncodingNames),
                     [&name](const EncodingName& entry) { return varnhold::EqualsIgnoringCase(name, entry.name); });
    if (known == std::end(kEncodingNames)) {
        reason = L"the encoding \"" + string2wstring(name) + L"\" is not known";
        return false;
    }
    // A declaration that can be read byte by byte cannot be in UTF-16.
    if (known->encoding == Encoding::Utf16 || known->encoding == Encoding::Utf16LittleEndian ||
        known->encoding == Encoding::Utf16BigEndian) {
        reason = L"the declaration says " + string2wstring(name) + L", but the bytes are not UTF-16";
        return false;
    }
    utf8 = Decode(std::move(bytes), known->encoding);
    return true;
}

} // namespace varnhold
