#include "config/menu_attributes.h"

#include "config/shortcut_fault.h"
#include "varnhold/letter_case.h"

#include <varnhold/language.h>
#include <varnhold/strings.h>

#include <array>
#include <iterator>

namespace {

constexpr std::string_view kSeparatorName = "SEPARATOR";

struct Attribute {
    const varnhold::XmlCursor& element;
    MenuInfo& info;
    const CTranslationSection& translations;
    const FileDiagnostics& diagnostics;
    const varnhold::XmlAttributeView* written;
    /// The keyword read so far, as it stands in the file.
    std::string_view keyword;

    std::string_view Value() const { return written->value; }
    void Report(std::string_view code, const std::wstring& text, const std::wstring& fix) const {
        if (!element.IsOddlyWritten(*written)) { // otherwise it was reported
            diagnostics.Report(code, element.GetAttributePosition(*written), text, fix);
        }
    }
};

/// False: the rest of the element must not be read.
using Taker = bool (*)(Attribute& attribute);

template <std::wstring MenuInfo::*field>
bool TakeText(Attribute& attribute) {
    string2wstring(attribute.Value(), attribute.info.*field);
    return true;
}

bool TakeKeyword(Attribute& attribute) {
    attribute.keyword = attribute.Value();
    return TakeText<&MenuInfo::strKeyword>(attribute);
}

template <std::wstring MenuInfo::*field, int number>
bool TakeTranslation(Attribute& attribute) {
    attribute.translations.Translate(attribute.keyword, number, attribute.info.*field);
    return true;
}

bool TakeMenuName(Attribute& attribute) {
    if (varnhold::EqualsIgnoringCase(attribute.Value(), kSeparatorName)) {
        attribute.info.bSeparator = true;
        return false;
    }
    return TakeTranslation<&MenuInfo::strName, -1>(attribute);
}

bool TakeHotKey(Attribute& attribute) {
    TakeText<&MenuInfo::strHotKey>(attribute);
    if (attribute.diagnostics.IsListening() && !attribute.Value().empty()) {
        if (const ShortcutFault fault = FindShortcutFault(attribute.info.strHotKey); !fault.text.empty()) {
            attribute.Report("shortcut-syntax", fault.text, fault.fix);
        }
    }
    return true;
}

struct KnownAttribute {
    std::string_view name;
    AttributeUse use;
    Taker take;
};

constexpr KnownAttribute kAttributes[] = {
    {"KEYWORD", AttributeUse::Keyword, TakeKeyword},
    {"MENUNAME", AttributeUse::Name, TakeMenuName},
    {"SHORTKEY", AttributeUse::ShortKey, TakeText<&MenuInfo::strShortKey>},
    {"HOTKEY", AttributeUse::HotKey, TakeHotKey},
    {"TOOLTIP", AttributeUse::ToolTip, TakeTranslation<&MenuInfo::strToolTip, 0>},
    {"CMD", AttributeUse::Command, TakeText<&MenuInfo::strCmd>},
    {"Param", AttributeUse::Parameter, TakeText<&MenuInfo::strParam>},
    {"PicPath", AttributeUse::Icon, TakeText<&MenuInfo::strPicPath>},
};

Taker TakerOf(std::string_view name) {
    for (const KnownAttribute& known : kAttributes) {
        if (varnhold::EqualsIgnoringCase(known.name, name)) {
            return known.take;
        }
    }
    return nullptr;
}

constexpr std::array<AttributeRule, std::size(kAttributes)> MakeRules() {
    std::array<AttributeRule, std::size(kAttributes)> rules{};
    for (std::size_t i = 0; i < std::size(kAttributes); ++i) {
        rules[i] = {kAttributes[i].name, kAttributes[i].use};
    }
    return rules;
}
constexpr std::array<AttributeRule, std::size(kAttributes)> kRules = MakeRules();

} // namespace

std::span<const AttributeRule> MenuAttributeRules() { return kRules; }

bool ReadMenuInfo(varnhold::XmlCursor& element, MenuInfo& info, const CTranslationSection& translations,
                  const FileDiagnostics& diagnostics) {
    const std::span<const varnhold::XmlAttributeView> read = element.ReadAttributes();
    if (read.empty()) {
        return false;
    }
    info.bSeparator = false;
    Attribute attribute{element, info, translations, diagnostics, nullptr, {}};
    for (const varnhold::XmlAttributeView& written : read) {
        attribute.written = &written;
        const Taker take = TakerOf(written.name);
        if (take && !take(attribute)) {
            return true;
        }
    }
    info.strText = info.strName;
    if (!info.strShortKey.empty()) {
        info.strText += L"(&" + info.strShortKey + L")";
    }
    return true;
}
