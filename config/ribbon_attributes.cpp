#include "config/ribbon_attributes.h"

#include "varnhold/letter_case.h"

#include <varnhold/language.h>
#include <varnhold/strings.h>
#include <varnhold/xml.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace {

constexpr std::wstring_view kHelpExtension = L".swf"; // stands for the help of a command without a name, too

/// Equal, letter case included. Names and most values are short: calling for a comparison costs more than making it.
inline bool AreSame(std::string_view a, std::string_view b) {
    using Word = std::uint64_t;
    const auto differ = [&](std::size_t at, auto word) {
        auto other = word;
        std::memcpy(&word, a.data() + at, sizeof word);
        std::memcpy(&other, b.data() + at, sizeof other);
        return word != other;
    };
    const std::size_t size = a.size();
    if (size != b.size() || size > 2 * sizeof(Word)) {
        return a == b;
    }
    if (size >= sizeof(Word)) { // two words that may overlap
        return !differ(0, Word()) && !differ(size - sizeof(Word), Word());
    }
    if (size >= sizeof(std::uint32_t)) {
        return !differ(0, std::uint32_t()) && !differ(size - sizeof(std::uint32_t), std::uint32_t());
    }
    return std::equal(a.begin(), a.end(), b.begin());
}

/// One attribute on its way into the record.
struct Attribute {
    const varnhold::XmlCursor& element;
    RibbonTexts& info;
    const RibbonReading& reading;
    const varnhold::XmlAttributeView* written; // the next of the same element takes its place
    const varnhold::XmlAttributeView* last;
    /// The keyword read so far, as it stands in the file: translations are looked up under it.
    std::string_view keyword;

    varnhold::TextPosition Position() const { return element.GetAttributePosition(*written); }
    std::string_view Value() const { return written->value; }
    /// Whether nothing follows but the same attribute again, which is reported as that.
    bool IsLast() const {
        return std::all_of(written + 1, last + 1, [this](const varnhold::XmlAttributeView& later) {
            return varnhold::EqualsIgnoringCase(later.name, written->name);
        });
    }
    bool IsWatched() const { return reading.diagnostics.IsListening(); }
    void Report(std::string_view code, const std::wstring& text, const std::wstring& fix) const {
        if (!element.IsOddlyWritten(*written)) { // otherwise it was reported
            reading.diagnostics.Report(code, Position(), text, fix);
        }
    }
    /// For what is neither Y nor N; an attribute without a value says nothing.
    void CheckFlag(bool isYes, bool isNo) const {
        if (!isYes && !isNo && !Value().empty() && IsWatched()) {
            Report("bad-flag", L"\"" + string2wstring(Value()) + L"\" is neither Y nor N", L"write Y or N");
        }
    }
};

/// False: the rest of the element must not be read.
using Taker = bool (*)(Attribute& attribute);

template <std::wstring_view RibbonTexts::*field, LastText LastTexts::*lastField>
bool TakeText(Attribute& attribute) {
    LastText& last = attribute.reading.last.*lastField;
    if (!AreSame(attribute.Value(), last.read)) {
        last = {attribute.Value(), attribute.reading.arena.Widen(attribute.Value())};
    }
    attribute.info.*field = last.text;
    return true;
}

bool TakeKeyword(Attribute& attribute) {
    attribute.keyword = attribute.Value();
    attribute.info.keyword = attribute.reading.arena.Widen(attribute.Value());
    return true;
}

template <std::wstring_view RibbonTexts::*field, int number>
bool TakeTranslation(Attribute& attribute) {
    if (const std::wstring* text = attribute.reading.translations.Find(attribute.keyword, number)) {
        attribute.info.*field = attribute.reading.arena.Join(*text, {});
    } else if (CTranslationSection::ShowsMissingKey(number)) {
        attribute.info.*field = attribute.info.keyword;
    } else {
        attribute.info.*field = kNoText;
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
bool TakeNumber(Attribute& attribute) {
    std::int32_t number = 0;
    if (!ToNumber(attribute.Value(), number)) {
        if (attribute.IsWatched()) {
            attribute.Report("bad-number",
                             L"\"" + string2wstring(attribute.Value()) +
                                 L"\" is not a whole decimal number; the attributes after it are not read",
                             L"write the digits 0 to 9 alone");
        }
        return false;
    }
    attribute.info.*field = number;
    return true;
}

bool IsYes(std::string_view value) { return varnhold::EqualsIgnoringCase(value, "Y"); }
bool IsNo(std::string_view value) { return varnhold::EqualsIgnoringCase(value, "N"); }

bool TakeGroupBefore(Attribute& attribute) {
    const bool isYes = IsYes(attribute.Value());
    attribute.info.groupBefore = isYes;
    attribute.CheckFlag(isYes, IsNo(attribute.Value()));
    if (isYes && attribute.IsWatched() && !attribute.IsLast()) {
        attribute.Report("attribute-order", L"GROUPBEFORE has an effect only as the last attribute",
                         L"put it behind the others");
    }
    return true;
}

bool TakeCateTab(Attribute& attribute) {
    const bool isYes = IsYes(attribute.Value());
    const bool isNo = IsNo(attribute.Value());
    if (isYes || isNo) {
        attribute.info.cateTab = isYes;
    }
    attribute.CheckFlag(isYes, isNo);
    return true;
}

bool TakeAcceptF1(Attribute& attribute) {
    const bool isNo = IsNo(attribute.Value());
    if (isNo) {
        attribute.info.acceptF1 = false;
    }
    attribute.CheckFlag(IsYes(attribute.Value()), isNo);
    return true;
}

bool TakeValueGroup(Attribute& attribute) {
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
    AttributeUse use;
    Taker take;
};

constexpr KnownAttribute attributes[] = {
    {"KEYWORD", AttributeUse::Keyword, TakeKeyword},
    {"IDKEY", AttributeUse::Keyword, TakeKeyword},
    {"NAME", AttributeUse::Name, TakeTranslation<&RibbonTexts::name, -1>},
    {"TYPE", AttributeUse::Type, TakeText<&RibbonTexts::type, &LastTexts::type>},
    {"TOOLTIP", AttributeUse::ToolTip, TakeTranslation<&RibbonTexts::tooltip, 0>},
    {"PICPATH", AttributeUse::Icon, TakeText<&RibbonTexts::picPath, &LastTexts::picPath>},
    {"PARAM", AttributeUse::Parameter, TakeText<&RibbonTexts::param, &LastTexts::param>},
    {"PICDisPATH", AttributeUse::DisabledIcon, TakeText<&RibbonTexts::picDisPath, &LastTexts::picDisPath>},
    {"SIZE", AttributeUse::Size, TakeNumber<&RibbonTexts::size>},
    {"GROUPBEFORE", AttributeUse::GroupBefore, TakeGroupBefore},
    {"VALUEGROUP", AttributeUse::ValueGroup, TakeValueGroup},
    {"WIDTH", AttributeUse::Width, TakeNumber<&RibbonTexts::width>},
    {"CMD", AttributeUse::Command, TakeText<&RibbonTexts::cmd, &LastTexts::cmd>},
    {"CateTab", AttributeUse::CateTab, TakeCateTab},
    {"help", AttributeUse::Help, TakeText<&RibbonTexts::help, &LastTexts::help>},
    {"AcceptF1", AttributeUse::AcceptF1, TakeAcceptF1},
};

constexpr std::size_t kLetters = 32;
constexpr std::size_t kLengths = 16;

/// No two known names begin with the same letter, in either case, and are of the same length: that gives each a slot.
/// Other names share slots with them.
constexpr std::size_t SlotOf(std::string_view name) {
    return name.empty() ? 0 : (static_cast<unsigned char>(name.front()) % kLetters) * kLengths + name.size() % kLengths;
}

/// One more than the place of the slot's attribute; 0 for none.
constexpr std::array<std::uint8_t, kLetters * kLengths> MakeSlots() {
    std::array<std::uint8_t, kLetters * kLengths> slots{};
    for (std::size_t i = 0; i < std::size(attributes); ++i) {
        std::uint8_t& slot = slots[SlotOf(attributes[i].name)];
        slot = slot == 0 ? static_cast<std::uint8_t>(i + 1) : throw "two names with one slot";
    }
    return slots;
}
constexpr std::array<std::uint8_t, kLetters* kLengths> kSlots = MakeSlots();

const KnownAttribute* FindAttribute(std::string_view name) {
    const std::uint8_t slot = kSlots[SlotOf(name)];
    if (slot == 0) {
        return nullptr;
    }
    const KnownAttribute& known = attributes[slot - 1];
    // Nearly every name is written as it stands here.
    return AreSame(known.name, name) || varnhold::EqualsIgnoringCase(known.name, name) ? &known : nullptr;
}

constexpr std::array<AttributeRule, std::size(attributes)> MakeRules() {
    std::array<AttributeRule, std::size(attributes)> rules{};
    for (std::size_t i = 0; i < std::size(attributes); ++i) {
        rules[i] = {attributes[i].name, attributes[i].use};
    }
    return rules;
}
constexpr std::array<AttributeRule, std::size(attributes)> kRules = MakeRules();

} // namespace

std::span<const AttributeRule> RibbonAttributeRules() { return kRules; }

bool ReadRibbonInfo(const CXmlNodeWrapper& node, RibbonInfo& info, const FileDiagnostics& diagnostics) {
    TextArena arena;
    LastTexts last;
    RibbonTexts texts;
    texts.picDisPath = info.picDisPath;
    texts.cmd = info.cmd;
    texts.param = info.param;
    varnhold::XmlCursor element(node);
    const bool complete =
        ReadNewRibbonInfo(element, texts, {CTranslationSection(kRibbonSection), arena, last, diagnostics});
    Assign(info, texts);
    return complete;
}

bool ReadNewRibbonInfo(varnhold::XmlCursor& element, RibbonTexts& info, const RibbonReading& reading) {
    const std::span<const varnhold::XmlAttributeView> read = element.ReadAttributes();
    if (read.empty()) {
        return false;
    }
    Attribute attribute{element, info, reading, &read.front(), &read.back(), {}};
    for (const varnhold::XmlAttributeView& written : read) {
        attribute.written = &written;
        // Every attribute takes it back, so GROUPBEFORE counts only where it is the last one.
        info.groupBefore = false;
        if (const KnownAttribute* known = FindAttribute(written.name)) {
            if (!known->take(attribute)) {
                return false;
            }
        }
    }
    if (info.help.empty() && info.acceptF1) {
        info.help = info.name.empty() ? kHelpExtension : reading.arena.Join(info.name, kHelpExtension);
    }
    return true;
}
