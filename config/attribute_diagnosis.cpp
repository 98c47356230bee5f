#include "config/attribute_diagnosis.h"

#include "config/configuration_kind.h"
#include "config/depth_walker.h"
#include "varnhold/letter_case.h"

#include <varnhold/strings.h>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

struct OtherName {
    std::wstring_view name;
    AttributeUse use;
};
/// What people write who know the attributes of other files.
constexpr OtherName kOtherNames[] = {
    {L"NAME", AttributeUse::Name},          {L"TEXT", AttributeUse::Name},          {L"CAPTION", AttributeUse::Name},
    {L"LABEL", AttributeUse::Name},         {L"ICON", AttributeUse::Icon},          {L"IMAGE", AttributeUse::Icon},
    {L"PICTURE", AttributeUse::Icon},       {L"PIC", AttributeUse::Icon},           {L"COMMAND", AttributeUse::Command},
    {L"ACTION", AttributeUse::Command},     {L"ARGUMENT", AttributeUse::Parameter}, {L"SHORTCUT", AttributeUse::HotKey},
    {L"ACCELERATOR", AttributeUse::HotKey}, {L"HINT", AttributeUse::ToolTip},       {L"ID", AttributeUse::Keyword},
    {L"KEY", AttributeUse::Keyword},        {L"KIND", AttributeUse::Type},          {L"TITLE", AttributeUse::Name},
    {L"MENUNAME", AttributeUse::Name},      {L"PROMPT", AttributeUse::Name},
};

/// The same in a toolbar file, which has no texts of the tables.
AttributeUse UseInToolBars(AttributeUse use) {
    return use == AttributeUse::Name ? AttributeUse::Prompt : use == AttributeUse::ToolTip ? AttributeUse::Hint : use;
}

std::optional<AttributeUse> UseMeantBy(const std::wstring& name) {
    for (const OtherName& other : kOtherNames) {
        if (varnhold::EqualsIgnoringCase(other.name, name)) {
            return other.use;
        }
    }
    return std::nullopt;
}

/// XML has them, in any element: xmlns, xml:space and so on.
bool IsOfXml(std::string_view name) {
    return name == "xmlns" || name.starts_with("xmlns:") || name.starts_with("xml:");
}

/// Of a menu; misspelt it is reported there.
bool IsSeparatorWord(const std::wstring& text) { return !ClosestWord(text, {L"SEPARATOR"}).empty(); }

class Description {
public:
    Description(varnhold::XmlCursor& element, std::span<const AttributeRule> rules, std::wstring_view fileName,
                const FileDiagnostics& diagnostics)
        : m_element(element), m_rules(rules), m_fileName(fileName), m_diagnostics(diagnostics) {}

    MetElement Make() {
        m_met.position = m_element.GetPosition();
        m_met.hasChildren = m_element.HasChildren();
        for (const varnhold::XmlAttributeView& written : m_element.ReadAttributes()) {
            if (const AttributeRule* const rule = FindRule(written.name)) {
                Take(*rule, written);
            } else if (!IsOfXml(written.name)) {
                m_unknown.push_back(written);
            }
        }
        CheckOrder();
        CheckIgnoredTexts();
        if (!ReportAsOfOtherKind()) {
            for (const varnhold::XmlAttributeView& written : m_unknown) {
                ReportUnknown(written);
            }
        }
        return std::move(m_met);
    }

private:
    const AttributeRule* FindRule(std::string_view name) const {
        const auto found = std::ranges::find_if(
            m_rules, [name](const AttributeRule& rule) { return varnhold::EqualsIgnoringCase(rule.name, name); });
        return found == m_rules.end() ? nullptr : &*found;
    }

    void Take(const AttributeRule& rule, const varnhold::XmlAttributeView& written) {
        const varnhold::TextPosition position = m_element.GetAttributePosition(written);
        const auto earlier = std::ranges::find(m_met.attributes, rule.use, &MetAttribute::use);
        std::wstring value = string2wstring(written.value);
        const bool isOdd = m_element.IsOddlyWritten(written) || ReportQuotes(rule, value, position);
        if (earlier == m_met.attributes.end()) {
            m_met.attributes.push_back({rule.use, std::move(value), position, false, isOdd});
            return;
        }
        m_diagnostics.Report("duplicate-attribute", position,
                             Quoted(string2wstring(written.name)) +
                                 L" says again what an earlier attribute of the element says; the last one counts",
                             L"remove one of the two", {{m_diagnostics.File(), earlier->position, L"the earlier one"}});
        earlier->isReported = earlier->isReported || isOdd || earlier->value != value;
        if (rule.use == AttributeUse::Keyword && earlier->value != value) {
            m_met.otherKeywords.push_back(earlier->value);
        }
        earlier->value = std::move(value);
    }

    /// Whether typographic quotation marks stand around a value that is no text for people, which is reported; those
    /// of numbers, flags and shortcuts are told of as such.
    bool ReportQuotes(const AttributeRule& rule, const std::wstring& value, varnhold::TextPosition position) const {
        constexpr AttributeUse looked[] = {AttributeUse::Keyword,   AttributeUse::Type,    AttributeUse::Icon,
                                           AttributeUse::Command,   AttributeUse::Help,    AttributeUse::DisabledIcon,
                                           AttributeUse::Parameter, AttributeUse::ShortKey};
        if (std::ranges::find(looked, rule.use) == std::end(looked) || value.size() < 2 ||
            !IsTypographicQuote(value.front()) || !IsTypographicQuote(value.back())) {
            return false;
        }
        m_diagnostics.Report("odd-quotes", position,
                             Quoted(value) + L" has typographic quotation marks, which belong to the value",
                             L"write \"" + value.substr(1, value.size() - 2) + L"\"");
        return true;
    }

    /// A text that is asked for before the keyword is looked up under none.
    void CheckOrder() const {
        const MetAttribute* const keyword = m_met.Find(AttributeUse::Keyword);
        for (const MetAttribute& attribute : m_met.attributes) {
            if (!keyword || &attribute == keyword) {
                return;
            }
            if (attribute.use == AttributeUse::Name || attribute.use == AttributeUse::ToolTip) {
                m_diagnostics.Report("attribute-order", attribute.position,
                                     L"the text is looked up under the keyword, which stands behind it",
                                     L"put the keyword first",
                                     {{m_diagnostics.File(), keyword->position, L"the keyword"}});
                return;
            }
        }
    }

    /// Texts come from the tables; what is written here is seen by nobody.
    void CheckIgnoredTexts() const {
        for (const MetAttribute& attribute : m_met.attributes) {
            const bool isAsked = attribute.use == AttributeUse::Name || attribute.use == AttributeUse::ToolTip;
            if (isAsked && !attribute.isReported && !attribute.value.empty() && !IsSeparatorWord(attribute.value)) {
                m_diagnostics.Report("ignored-text", attribute.position,
                                     Quoted(attribute.value) +
                                         L" is not shown: the text is looked up under the keyword",
                                     L"put it into the tables below lang, and leave this empty");
            }
        }
    }

    /// An element that was written for a file of another kind is one fault. Whether it was reported as that.
    bool ReportAsOfOtherKind() {
        std::vector<std::string_view> names;
        std::wstring quoted;
        for (const varnhold::XmlAttributeView& written : m_unknown) {
            names.push_back(written.name);
            quoted += (quoted.empty() ? L"" : L", ") + Quoted(string2wstring(written.name));
        }
        const auto kind = KindWithAttributes(names);
        if (names.size() < 2 || !kind) {
            return false;
        }
        std::wstring meant;
        for (const varnhold::XmlAttributeView& written : m_unknown) {
            if (const std::wstring name = TakeMeant(written); !name.empty()) {
                meant += (meant.empty() ? L"write " : L", ") + name + L" for " + string2wstring(written.name);
            }
        }
        m_diagnostics.Report("unknown-attribute", m_element.GetAttributePosition(m_unknown.front()),
                             quoted + L" are attributes of a " + std::wstring(NameOf(*kind)) + L", not of " +
                                 std::wstring(m_fileName) + L"; they are ignored",
                             meant.empty() ? L"remove them" : meant + L"; remove what is left");
        return true;
    }

    /// What was meant by an unknown name, which the element has from now on; empty when nobody knows.
    std::wstring TakeMeant(const varnhold::XmlAttributeView& written) {
        const std::wstring name = string2wstring(written.name);
        std::vector<std::wstring> free;
        for (const AttributeRule& rule : m_rules) {
            if (!m_met.Has(rule.use)) {
                free.push_back(string2wstring(rule.name));
            }
        }
        std::wstring meant = ClosestWord(name, free);
        if (const auto use = UseMeantBy(name); meant.empty() && use) {
            meant = FreeNameFor(*use);
        }
        m_met.hasUnknown = m_met.hasUnknown || meant.empty();
        if (!meant.empty()) {
            m_met.attributes.push_back({FindRule(wstring2String(meant))->use, string2wstring(written.value),
                                        m_element.GetAttributePosition(written), true});
        }
        return meant;
    }

    void ReportUnknown(const varnhold::XmlAttributeView& written) {
        const std::wstring meant = TakeMeant(written);
        const std::string_view name = written.name;
        const auto kind = KindWithAttributes({&name, 1});
        m_diagnostics.Report("unknown-attribute", m_element.GetAttributePosition(written),
                             Quoted(string2wstring(written.name)) + L" is not an attribute of " +
                                 std::wstring(m_fileName) + L"; it is ignored",
                             meant.empty() && kind ? L"it belongs into a " + std::wstring(NameOf(*kind))
                                                   : DidYouMean(meant));
    }

    /// The attribute of this file that has the use, where the element has it not yet.
    std::wstring FreeNameFor(AttributeUse use) const {
        for (const AttributeUse one : {use, UseInToolBars(use)}) {
            const auto rule = std::ranges::find(m_rules, one, &AttributeRule::use);
            if (rule != m_rules.end()) {
                return m_met.Has(one) ? std::wstring() : string2wstring(rule->name);
            }
        }
        return {};
    }

    varnhold::XmlCursor& m_element;
    std::span<const AttributeRule> m_rules;
    std::wstring_view m_fileName;
    const FileDiagnostics& m_diagnostics;
    std::vector<varnhold::XmlAttributeView> m_unknown;
    MetElement m_met;
};

} // namespace

MetElement DescribeElement(varnhold::XmlCursor& element, std::span<const AttributeRule> rules,
                           std::wstring_view fileName, const FileDiagnostics& diagnostics) {
    return Description(element, rules, fileName, diagnostics).Make();
}

void PassOverBelow(const varnhold::XmlCursor& element, std::span<const AttributeRule> rules,
                   const FileDiagnostics& diagnostics) {
    WalkBelow(element, [&](varnhold::XmlCursor& below, std::size_t /*depth*/) {
        MetElement met = DescribeElement(below, rules, {}, Unreported());
        met.isPassedOver = true;
        diagnostics.Meet(met);
        return true;
    });
}

void ReportAt(const FileDiagnostics& diagnostics, const MetElement& element, AttributeUse use, std::string_view code,
              std::wstring text, std::wstring fix) {
    const MetAttribute* const attribute = element.Find(use);
    if (attribute && attribute->isReported) {
        return;
    }
    diagnostics.Report(code, attribute ? attribute->position : element.position, std::move(text), std::move(fix));
}
