#include "config/ribbon_attributes.h"

#include "config/text_case.h"

#include <varnhold/language.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <iterator>

namespace {

constexpr std::wstring_view kHelpExtension = L".swf";

/// One attribute on its way into the record.
struct Attribute {
    const varnhold::XmlCursor& element;
    const varnhold::XmlAttributeView& written;
    bool isLast;
    RibbonTexts& info;
    const RibbonReading& reading;
    /// The keyword read so far, as it stands in the file: translations are looked up under it.
    std::string_view& keyword;

    varnhold::TextPosition Position() const { return element.GetAttributePosition(written); }
    std::string_view Value() const { return written.value; }
    void Warn(std::string_view code, std::wstring text) const {
        if (reading.diagnostics.IsListening()) {
            reading.diagnostics.Warn(Position(), code, std::move(text));
        }
    }
};

/// False: the rest of the element must not be read.
using Taker = bool (*)(const Attribute& attribute);

template <std::wstring_view RibbonTexts::*field>
bool TakeText(const Attribute& attribute) {
    attribute.info.*field = attribute.reading.arena.Widen(attribute.Value());
    return true;
}

bool TakeKeyword(const Attribute& attribute) {
    attribute.keyword = attribute.Value();
    return TakeText<&RibbonTexts::keyword>(attribute);
}

template <std::wstring_view RibbonTexts::*field, int number>
bool TakeTranslation(const Attribute& attribute) {
    if (attribute.keyword.empty()) {
        attribute.Warn("text-before-keyword", L"the text is looked up under the keyword, which must stand before it");
    }
    if (const std::wstring* text = attribute.reading.translations.Find(attribute.keyword, number)) {
        attribute.info.*field = attribute.reading.arena.Join(*text, {});
    } else if (CTranslationSection::ShowsMissingKey(number)) {
        attribute.info.*field = attribute.info.keyword;
    } else {
        attribute.info.*field = L"";
    }
    return true;
}

/// The whole text, without blanks; a sign may stand before the digits.
bool ToNumber(std::string_view text, std::int32_t& number) {
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end;
}

template <std::int32_t RibbonTexts::*field>
bool TakeNumber(const Attribute& attribute) {
    std::int32_t number = 0;
    if (!ToNumber(attribute.Value(), number)) {
        const FileDiagnostics& diagnostics = attribute.reading.diagnostics;
        if (diagnostics.IsListening()) {
            diagnostics.Fail(attribute.Position(), "not-a-number",
                             L"\"" + string2wstring(attribute.Value()) +
                                 L"\" is not a decimal number of 32 bits; the attributes after it are not read");
        }
        return false;
    }
    attribute.info.*field = number;
    return true;
}

bool TakeGroupBefore(const Attribute& attribute) {
    attribute.info.groupBefore = EqualsIgnoringCase(attribute.Value(), "Y");
    if (attribute.info.groupBefore && !attribute.isLast) {
        attribute.Warn("group-before-not-last", L"GROUPBEFORE has an effect only as the last attribute");
    }
    return true;
}

bool TakeCateTab(const Attribute& attribute) {
    const std::string_view value = attribute.Value();
    if (EqualsIgnoringCase(value, "Y")) {
        attribute.info.cateTab = true;
    } else if (EqualsIgnoringCase(value, "N")) {
        attribute.info.cateTab = false;
    } else {
        attribute.Warn("not-yes-or-no", L"\"" + string2wstring(value) + L"\" is neither Y nor N");
    }
    return true;
}

bool TakeAcceptF1(const Attribute& attribute) {
    if (EqualsIgnoringCase(attribute.Value(), "N")) {
        attribute.info.acceptF1 = false;
    }
    return true;
}

bool TakeValueGroup(const Attribute& attribute) {
    TextArena& arena = attribute.reading.arena;
    std::string_view rest = attribute.Value();
    const auto commas = static_cast<std::size_t>(std::count(rest.begin(), rest.end(), ','));
    const std::span<std::wstring_view> pieces = arena.MakeArray<std::wstring_view>(commas + 1);
    for (std::wstring_view& piece : pieces) {
        const std::size_t comma = std::min(rest.find(','), rest.size());
        piece = arena.Widen(rest.substr(0, comma));
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    attribute.info.valueGroup = pieces;
    return true;
}

struct KnownAttribute {
    std::string_view name;
    Taker take;
};

constexpr std::size_t kLetterSlots = 32;

/// Where a name's first letter, in either case, has its slot. Other characters share slots with letters.
constexpr std::size_t SlotOf(char letter) { return static_cast<unsigned char>(letter) % kLetterSlots; }

// Those of one first letter stand together, the more frequent ones first.
constexpr KnownAttribute attributes[] = {
    {"KEYWORD", TakeKeyword},
    {"IDKEY", TakeKeyword},
    {"NAME", TakeTranslation<&RibbonTexts::name, -1>},
    {"TYPE", TakeText<&RibbonTexts::type>},
    {"TOOLTIP", TakeTranslation<&RibbonTexts::tooltip, 0>},
    {"PICPATH", TakeText<&RibbonTexts::picPath>},
    {"PARAM", TakeText<&RibbonTexts::param>},
    {"PICDisPATH", TakeText<&RibbonTexts::picDisPath>},
    {"SIZE", TakeNumber<&RibbonTexts::size>},
    {"GROUPBEFORE", TakeGroupBefore},
    {"VALUEGROUP", TakeValueGroup},
    {"WIDTH", TakeNumber<&RibbonTexts::width>},
    {"CMD", TakeText<&RibbonTexts::cmd>},
    {"CateTab", TakeCateTab},
    {"help", TakeText<&RibbonTexts::help>},
    {"AcceptF1", TakeAcceptF1},
};

struct Span {
    std::uint8_t begin = 0;
    std::uint8_t end = 0;
};

/// The attributes of each first letter.
constexpr std::array<Span, kLetterSlots> MakeSpans() {
    std::array<Span, kLetterSlots> spans{};
    for (std::size_t i = 0; i < std::size(attributes); ++i) {
        Span& span = spans[SlotOf(attributes[i].name.front())];
        if (span.end == 0) {
            span.begin = static_cast<std::uint8_t>(i);
        }
        span.end = static_cast<std::uint8_t>(i + 1);
    }
    return spans;
}
constexpr std::array<Span, kLetterSlots> kSpans = MakeSpans();

const KnownAttribute* FindAttribute(std::string_view name) {
    const Span span = kSpans[name.empty() ? 0 : SlotOf(name.front())];
    for (std::size_t i = span.begin; i < span.end; ++i) {
        const std::string_view known = attributes[i].name;
        // Nearly every name is written as it stands here.
        if (known.size() == name.size() && (known == name || EqualsIgnoringCase(known, name))) {
            return &attributes[i];
        }
    }
    return nullptr;
}

} // namespace

bool ReadRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const FileDiagnostics& diagnostics) {
    TextArena arena;
    RibbonTexts texts;
    texts.picDisPath = info.picDisPath;
    texts.cmd = info.cmd;
    texts.param = info.param;
    varnhold::XmlCursor element(node);
    const bool complete = ReadNewRibbonInfo(element, texts, {CTranslationSection(kRibbonSection), arena, diagnostics});
    Assign(info, texts);
    return complete;
}

bool ReadNewRibbonInfo(varnhold::XmlCursor& element, RibbonTexts& info, const RibbonReading& reading) {
    const std::span<const varnhold::XmlAttributeView> read = element.ReadAttributes();
    if (read.empty()) {
        return false;
    }
    std::string_view keyword;
    for (std::size_t i = 0; i < read.size(); ++i) {
        const Attribute attribute{element, read[i], i + 1 == read.size(), info, reading, keyword};
        // Every attribute takes it back, so GROUPBEFORE counts only where it is the last one.
        info.groupBefore = false;
        if (const KnownAttribute* known = FindAttribute(read[i].name)) {
            if (!known->take(attribute)) {
                return false;
            }
        } else if (reading.diagnostics.IsListening()) {
            attribute.Warn("unknown-attribute",
                           L"\"" + string2wstring(read[i].name) + L"\" is not an attribute of a ribbon file");
        }
    }
    if (info.help.empty() && info.acceptF1) {
        info.help = reading.arena.Join(info.name, kHelpExtension);
    }
    return true;
}
