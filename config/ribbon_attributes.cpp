#include "config/ribbon_attributes.h"

#include "config/text_case.h"

#include <varnhold/language.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <iterator>

namespace {

constexpr std::wstring_view c_helpExtension = L".swf";

/// One attribute on its way into the record.
struct Reading {
    const CXmlNodeWrapper& node;
    std::size_t index;
    std::string_view utf8;
    RibbonInfo& info;
    const CTranslationSection& texts;
    const FileDiagnostics& diagnostics;
    /// The keyword read so far, as it stands in the file: translations are looked up under it.
    std::string_view& keyword;

    std::wstring Value() const { return string2wstring(utf8); }
    void Warn(std::string_view code, std::wstring text) const {
        if (diagnostics.IsListening())
            diagnostics.Warn(node.GetAttributePosition(index), code, std::move(text));
    }
};

/// False: the rest of the element must not be read.
using Taker = bool (*)(const Reading& reading);

template <std::wstring RibbonInfo::*field>
bool TakeText(const Reading& reading) {
    string2wstring(reading.utf8, reading.info.*field);
    return true;
}

bool TakeKeyword(const Reading& reading) {
    reading.keyword = reading.utf8;
    return TakeText<&RibbonInfo::keyword>(reading);
}

template <std::wstring RibbonInfo::*field, int number>
bool TakeTranslation(const Reading& reading) {
    if (reading.keyword.empty())
        reading.Warn("text-before-keyword", L"the text is looked up under the keyword, which must stand before it");
    reading.texts.Translate(reading.keyword, number, reading.info.*field);
    return true;
}

/// The whole text, without blanks; a sign may stand before the digits.
bool ToNumber(std::string_view text, std::int32_t& number) {
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end;
}

template <std::int32_t RibbonInfo::*field>
bool TakeNumber(const Reading& reading) {
    std::int32_t number = 0;
    if (!ToNumber(reading.utf8, number)) {
        if (reading.diagnostics.IsListening())
            reading.diagnostics.Fail(
                reading.node.GetAttributePosition(reading.index), "not-a-number",
                L"\"" + reading.Value() +
                    L"\" is not a decimal number of 32 bits; the attributes after it are not read");
        return false;
    }
    reading.info.*field = number;
    return true;
}

bool TakeGroupBefore(const Reading& reading) {
    reading.info.groupBefore = EqualsIgnoringCase(reading.utf8, "Y");
    if (reading.info.groupBefore && reading.index + 1 < reading.node.GetAttributeCount())
        reading.Warn("group-before-not-last", L"GROUPBEFORE has an effect only as the last attribute");
    return true;
}

bool TakeCateTab(const Reading& reading) {
    const std::string_view value = reading.utf8;
    if (EqualsIgnoringCase(value, "Y"))
        reading.info.cateTab = true;
    else if (EqualsIgnoringCase(value, "N"))
        reading.info.cateTab = false;
    else
        reading.Warn("not-yes-or-no", L"\"" + reading.Value() + L"\" is neither Y nor N");
    return true;
}

bool TakeAcceptF1(const Reading& reading) {
    if (EqualsIgnoringCase(reading.utf8, "N"))
        reading.info.acceptF1 = false;
    return true;
}

bool TakeValueGroup(const Reading& reading) {
    const std::wstring value = reading.Value();
    reading.info.valueGroup.clear();
    std::size_t begin = 0;
    for (std::size_t comma; (comma = value.find(L',', begin)) != std::wstring::npos; begin = comma + 1)
        reading.info.valueGroup.push_back(value.substr(begin, comma - begin));
    reading.info.valueGroup.push_back(value.substr(begin));
    return true;
}

struct Attribute {
    std::string_view name;
    Taker take;
};

constexpr std::size_t c_letterSlots = 32;

/// Where a name's first letter, in either case, has its slot. Other characters share slots with letters.
constexpr std::size_t SlotOf(char letter) { return static_cast<unsigned char>(letter) % c_letterSlots; }

// Those of one first letter stand together, the more frequent ones first.
constexpr Attribute attributes[] = {
    {"KEYWORD", TakeKeyword},
    {"IDKEY", TakeKeyword},
    {"NAME", TakeTranslation<&RibbonInfo::name, -1>},
    {"TYPE", TakeText<&RibbonInfo::type>},
    {"TOOLTIP", TakeTranslation<&RibbonInfo::tooltip, 0>},
    {"PICPATH", TakeText<&RibbonInfo::picPath>},
    {"PARAM", TakeText<&RibbonInfo::param>},
    {"PICDisPATH", TakeText<&RibbonInfo::picDisPath>},
    {"SIZE", TakeNumber<&RibbonInfo::size>},
    {"GROUPBEFORE", TakeGroupBefore},
    {"VALUEGROUP", TakeValueGroup},
    {"WIDTH", TakeNumber<&RibbonInfo::width>},
    {"CMD", TakeText<&RibbonInfo::cmd>},
    {"CateTab", TakeCateTab},
    {"help", TakeText<&RibbonInfo::help>},
    {"AcceptF1", TakeAcceptF1},
};

struct Span {
    std::uint8_t begin = 0;
    std::uint8_t end = 0;
};

/// The attributes of each first letter.
constexpr std::array<Span, c_letterSlots> MakeSpans() {
    std::array<Span, c_letterSlots> spans{};
    for (std::size_t i = 0; i < std::size(attributes); ++i) {
        Span& span = spans[SlotOf(attributes[i].name.front())];
        if (span.end == 0)
            span.begin = static_cast<std::uint8_t>(i);
        span.end = static_cast<std::uint8_t>(i + 1);
    }
    return spans;
}
constexpr std::array<Span, c_letterSlots> c_spans = MakeSpans();

const Attribute* FindAttribute(std::string_view name) {
    const Span span = c_spans[name.empty() ? 0 : SlotOf(name.front())];
    for (std::size_t i = span.begin; i < span.end; ++i) {
        const std::string_view known = attributes[i].name;
        // Nearly every name is written as it stands here.
        if (known.size() == name.size() && (known == name || EqualsIgnoringCase(known, name)))
            return &attributes[i];
    }
    return nullptr;
}

void Reset(RibbonInfo& info) {
    info.groupBefore = false;
    info.cateTab = false;
    info.acceptF1 = true;
    for (std::wstring RibbonInfo::*field : {&RibbonInfo::name, &RibbonInfo::type, &RibbonInfo::tooltip,
                                            &RibbonInfo::keyword, &RibbonInfo::picPath, &RibbonInfo::help})
        (info.*field).clear();
    info.size = 0;
    info.width = 0;
    info.valueGroup.clear();
}

} // namespace

bool ReadRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const FileDiagnostics& diagnostics) {
    Reset(info);
    return ReadNewRibbonInfo(node, info, CTranslationSection(c_ribbonSection), diagnostics);
}

bool ReadNewRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const CTranslationSection& texts,
                       const FileDiagnostics& diagnostics) {
    const std::size_t count = node.GetAttributeCount();
    if (count == 0)
        return false;
    std::string_view keyword;
    for (std::size_t i = 0; i < count; ++i) {
        const varnhold::XmlAttributeView read = node.GetAttributeUtf8(i);
        const Reading reading{node, i, read.value, info, texts, diagnostics, keyword};
        // Every attribute takes it back, so GROUPBEFORE counts only where it is the last one.
        info.groupBefore = false;
        if (const Attribute* attribute = FindAttribute(read.name)) {
            if (!attribute->take(reading))
                return false;
        } else if (diagnostics.IsListening()) {
            reading.Warn("unknown-attribute",
                         L"\"" + node.GetAttributeName(i) + L"\" is not an attribute of a ribbon file");
        }
    }
    if (info.help.empty() && info.acceptF1) {
        info.help.reserve(info.name.size() + c_helpExtension.size());
        info.help.append(info.name).append(c_helpExtension);
    }
    return true;
}
