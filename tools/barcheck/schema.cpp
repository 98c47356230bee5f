#include "schema.h"

#include "config/element_kind.h"
#include "config/menu_attributes.h"
#include "config/ribbon_attributes.h"
#include "config/toolbar_file.h"

#include <varnhold/strings.h>

#include <algorithm>
#include <span>
#include <string_view>

namespace {

constexpr std::string_view kModifiers[] = {"Ctrl", "Shift", "Alt"};

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// A pattern for the word in any letter case.
std::string InAnyCase(std::string_view word) {
    std::string pattern;
    for (const char c : word) {
        pattern += IsLetter(c) ? std::string("[") + Upper(c) + Lower(c) + "]" : std::string(1, c);
    }
    return pattern;
}

template <class Words>
std::string OneOf(const Words& words) {
    std::string pattern;
    for (const auto& word : words) {
        pattern += (pattern.empty() ? "" : "|") + InAnyCase(word);
    }
    return pattern;
}

std::vector<std::string> Narrow(const std::vector<std::wstring>& words) {
    std::vector<std::string> narrow;
    narrow.reserve(words.size());
    for (const std::wstring& word : words) {
        narrow.push_back(wstring2String(word));
    }
    return narrow;
}

/// The words of ElementTypes that a row of status-bar buttons knows.
std::vector<std::wstring> StatusTypes() {
    std::vector<std::wstring> types = ElementTypes();
    std::erase_if(types, [](const std::wstring& type) {
        const ElementKind kind = KindOfElement(type);
        return kind != ElementKind::Button && kind != ElementKind::Label && kind != ElementKind::Slider;
    });
    return types;
}

/// The same attributes where one of them has another type.
std::string Retyped(std::string attributes, std::string_view type, std::string_view other) {
    const std::string before = "type=\"" + std::string(type) + "\"";
    const std::string after = "type=\"" + std::string(other) + "\"";
    for (std::size_t at = attributes.find(before); at != std::string::npos;
         at = attributes.find(before, at + after.size())) {
        attributes.replace(at, before.size(), after);
    }
    return attributes;
}

std::string TypeWithPattern(std::string_view name, const std::string& pattern) {
    return "  <xs:simpleType name=\"" + std::string(name) +
           "\">\n    <xs:restriction base=\"xs:string\">\n      <xs:pattern value=\"" + pattern +
           "\"/>\n    </xs:restriction>\n  </xs:simpleType>\n";
}

/// The words, which editors complete, and what the pattern takes besides.
std::string TypeWithWords(std::string_view name, const std::vector<std::string>& words, const std::string& pattern) {
    constexpr std::string_view open = "      <xs:simpleType>\n        <xs:restriction base=\"xs:string\">\n";
    constexpr std::string_view close = "        </xs:restriction>\n      </xs:simpleType>\n";
    std::string text = "  <xs:simpleType name=\"" + std::string(name) + "\">\n    <xs:union>\n" + std::string(open);
    for (const std::string& word : words) {
        text += "          <xs:enumeration value=\"" + word + "\"/>\n";
    }
    text += std::string(close) + std::string(open) + "          <xs:pattern value=\"" + pattern + "\"/>\n";
    return text + std::string(close) + "    </xs:union>\n  </xs:simpleType>\n";
}

/// The words, in any letter case.
std::string TypeOfWords(std::string_view name, const std::vector<std::wstring>& wide) {
    const std::vector<std::string> words = Narrow(wide);
    return TypeWithWords(name, words, OneOf(words));
}

std::string_view TypeOf(AttributeUse use) {
    switch (use) {
    case AttributeUse::Type:
        return "type";
    case AttributeUse::Size:
        return "size";
    case AttributeUse::Width:
        return "width";
    case AttributeUse::GroupBefore:
    case AttributeUse::CateTab:
    case AttributeUse::AcceptF1:
        return "flag";
    case AttributeUse::Icon:
    case AttributeUse::DisabledIcon:
        return "icon";
    case AttributeUse::HotKey:
        return "shortcut";
    case AttributeUse::ShortKey:
        return "letter";
    default:
        return "xs:string";
    }
}

std::string Attribute(const std::string& name, AttributeUse use, bool isRequired) {
    // An empty keyword, or title of a toolbar, is none; a name is empty as a rule, as its text stands in the tables.
    const bool isNeeded = isRequired && (use == AttributeUse::Keyword || use == AttributeUse::Prompt);
    return "    <xs:attribute name=\"" + name + "\" type=\"" + std::string(isNeeded ? "needed" : TypeOf(use)) + "\"" +
           (isRequired ? " use=\"required\"" : "") + "/>\n";
}

/// Each attribute of the table, as it is written there and in capitals, but for the left-out ones.
std::string Attributes(std::span<const AttributeRule> rules, std::initializer_list<AttributeUse> leftOut,
                       std::initializer_list<AttributeUse> required) {
    std::string text;
    for (const AttributeRule& rule : rules) {
        if (std::ranges::find(leftOut, rule.use) != leftOut.end()) {
            continue;
        }
        const std::string name(rule.name);
        std::string capitals = name;
        std::ranges::transform(capitals, capitals.begin(), Upper);
        const bool isRequired =
            name == capitals && name != "IDKEY" && std::ranges::find(required, rule.use) != required.end();
        text += Attribute(name, rule.use, isRequired);
        if (capitals != name) {
            text += Attribute(capitals, rule.use, false);
        }
    }
    return text;
}

struct Child {
    std::string_view name;
    std::string_view type;
};

/// An element's type: any number of the children, in any order, and the attributes.
std::string ComplexType(std::string_view name, std::initializer_list<Child> children, const std::string& attributes) {
    std::string text = "  <xs:complexType name=\"" + std::string(name) + "\">\n";
    if (children.size() > 0) {
        text += "    <xs:choice minOccurs=\"0\" maxOccurs=\"unbounded\">\n";
        for (const Child& child : children) {
            text += "      <xs:element name=\"" + std::string(child.name) + "\" type=\"" + std::string(child.type) +
                    "\"/>\n";
        }
        text += "    </xs:choice>\n";
    }
    return text + attributes + "  </xs:complexType>\n";
}

std::string Schema(std::string_view root, const std::string& types) {
    const std::string name(root);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!-- Made by barcheck from the tables of its readers. -->\n"
           "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">\n"
           "  <xs:element name=\"" +
           name + "\" type=\"" + name + "\"/>\n" + types + "</xs:schema>\n";
}

const std::string kIconType = TypeWithPattern("icon", R"((.*\\)?[^/\\]*)");

const std::string kNeededType = TypeWithPattern("needed", ".+");

std::string RibbonSchema() {
    using enum AttributeUse;
    const std::span<const AttributeRule> rules = RibbonAttributeRules();
    const auto attributes = [&](std::initializer_list<AttributeUse> leftOut,
                                std::initializer_list<AttributeUse> required) {
        return Attributes(rules, leftOut, required);
    };
    // Where a size says nothing, any number will do.
    const auto unsized = [&](std::initializer_list<AttributeUse> leftOut,
                             std::initializer_list<AttributeUse> required) {
        return Retyped(Retyped(attributes(leftOut, required), "size", "number"), "width", "number");
    };
    return Schema(
        "ribbon",
        ComplexType("ribbon", {{"row", "row"}}, "") +
            ComplexType("row", {{"category", "category"}, {"item", "reference"}}, unsized({Type, CateTab}, {})) +
            ComplexType("reference", {},
                        Retyped(Retyped(attributes({CateTab}, {Keyword}), "type", "statusType"), "size", "number")) +
            ComplexType("category", {{"panel", "panel"}}, unsized({Type}, {Keyword, Name})) +
            ComplexType("panel", {{"item", "element"}, {"group", "group"}}, unsized({Type, CateTab}, {})) +
            ComplexType("element", {{"item", "subItem"}}, attributes({CateTab}, {Keyword, Type})) +
            ComplexType("group", {{"item", "subItem"}}, unsized({CateTab}, {Type})) +
            ComplexType("subItem", {}, attributes({CateTab}, {Keyword, Type})) + TypeOfWords("type", ElementTypes()) +
            TypeOfWords("statusType", StatusTypes()) + TypeWithWords("size", {"16", "32"}, "\\+?0*(16|32)") +
            TypeWithPattern("number", "[+\\-]?[0-9]{1,10}") + TypeWithPattern("width", "\\+?0*[1-9][0-9]{0,9}") +
            TypeWithWords("flag", {"Y", "N"}, "[yn]?") + kNeededType + kIconType);
}

std::string MenuSchema() {
    const std::string attributes = Attributes(MenuAttributeRules(), {}, {});
    return Schema("menu",
                  ComplexType("menu", {{"group", "group"}, {"item", "item"}}, "") +
                      ComplexType("group", {{"popup", "popup"}, {"item", "item"}}, "") +
                      ComplexType("popup", {{"popup", "popup"}, {"item", "item"}},
                                  Attributes(MenuAttributeRules(), {AttributeUse::HotKey},
                                             {AttributeUse::Keyword, AttributeUse::Name})) +
                      ComplexType("item", {}, attributes) + TypeWithPattern("letter", "[^ &amp;]?") + kNeededType +
                      TypeWithPattern("shortcut", "|[!-~]|((" + OneOf(kModifiers) + ")\\+)+[!-*,-~]") + kIconType);
}

std::string ToolBarSchema() {
    using enum AttributeUse;
    const std::span<const AttributeRule> rules = ToolBarAttributeRules();
    return Schema(
        "toolbars",
        ComplexType("toolbars", {{"group", "group"}}, "") +
            ComplexType("group", {{"toolbar", "toolbar"}, {"bar", "toolbar"}}, Attributes(rules, {Type}, {Keyword})) +
            ComplexType("toolbar", {{"button", "button"}, {"item", "button"}}, Attributes(rules, {Type}, {Prompt})) +
            ComplexType("button", {}, Attributes(rules, {}, {Type})) + TypeOfWords("type", ToolBarItemTypes()) +
            kNeededType + kIconType);
}

} // namespace

std::string SchemaOf(ConfigurationKind kind) {
    switch (kind) {
    case ConfigurationKind::Ribbon:
        return RibbonSchema();
    case ConfigurationKind::Menu:
        return MenuSchema();
    case ConfigurationKind::ToolBars:
        break;
    }
    return ToolBarSchema();
}
