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

constexpr std::string_view kStatusTypes[] = {"BUTTON", "SLIDER", "label"};
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
    for (const std::wstring& word : words) {
        narrow.push_back(wstring2String(word));
    }
    return narrow;
}

/// In a row of status-bar buttons, which has fewer kinds.
std::string WithStatusTypes(std::string attributes) {
    constexpr std::string_view of = "type=\"type\"";
    const std::size_t at = attributes.find(of);
    return at == std::string::npos ? attributes : attributes.replace(at, of.size(), "type=\"statusType\"");
}

std::string TypeWithPattern(std::string_view name, const std::string& pattern) {
    return "  <xs:simpleType name=\"" + std::string(name) +
           "\">\n    <xs:restriction base=\"xs:string\">\n      <xs:pattern value=\"" + pattern +
           "\"/>\n    </xs:restriction>\n  </xs:simpleType>\n";
}

std::string_view TypeOf(AttributeUse use) {
    switch (use) {
    case AttributeUse::Type:
        return "type";
    case AttributeUse::Size:
    case AttributeUse::Width:
        return "number";
    case AttributeUse::GroupBefore:
    case AttributeUse::CateTab:
    case AttributeUse::AcceptF1:
        return "flag";
    case AttributeUse::Icon:
    case AttributeUse::DisabledIcon:
        return "icon";
    case AttributeUse::HotKey:
        return "shortcut";
    default:
        return "xs:string";
    }
}

std::string Attribute(const std::string& name, AttributeUse use, bool isRequired) {
    return "    <xs:attribute name=\"" + name + "\" type=\"" + std::string(TypeOf(use)) + "\"" +
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

std::string RibbonSchema() {
    using enum AttributeUse;
    const std::span<const AttributeRule> rules = RibbonAttributeRules();
    const auto attributes = [&](std::initializer_list<AttributeUse> leftOut,
                                std::initializer_list<AttributeUse> required) {
        return Attributes(rules, leftOut, required);
    };
    return Schema(
        "ribbon",
        ComplexType("ribbon", {{"row", "row"}}, "") +
            ComplexType("row", {{"category", "category"}, {"item", "reference"}}, attributes({Type, CateTab}, {})) +
            ComplexType("reference", {}, WithStatusTypes(attributes({CateTab}, {Keyword}))) +
            ComplexType("category", {{"panel", "panel"}}, attributes({Type}, {Keyword, Name})) +
            ComplexType("panel", {{"item", "element"}, {"group", "group"}}, attributes({Type, CateTab}, {})) +
            ComplexType("element", {{"item", "subItem"}}, attributes({CateTab}, {Keyword, Type})) +
            ComplexType("group", {{"item", "subItem"}}, attributes({CateTab}, {Type})) +
            ComplexType("subItem", {}, attributes({CateTab}, {Keyword, Type})) +
            TypeWithPattern("type", OneOf(Narrow(ElementTypes()))) +
            TypeWithPattern("statusType", OneOf(kStatusTypes)) + TypeWithPattern("number", "[+\\-]?[0-9]{1,10}") +
            TypeWithPattern("flag", "[YyNn]?") + kIconType);
}

std::string MenuSchema() {
    const std::string attributes = Attributes(MenuAttributeRules(), {}, {});
    return Schema("menu", ComplexType("menu", {{"group", "group"}, {"item", "item"}}, "") +
                              ComplexType("group", {{"popup", "popup"}, {"item", "item"}}, "") +
                              ComplexType("popup", {{"popup", "popup"}, {"item", "item"}},
                                          Attributes(MenuAttributeRules(), {AttributeUse::HotKey},
                                                     {AttributeUse::Keyword, AttributeUse::Name})) +
                              ComplexType("item", {}, attributes) +
                              TypeWithPattern("shortcut", "|[!-~]|((" + OneOf(kModifiers) + ")\\+)+[!-*,-~]") +
                              kIconType);
}

std::string ToolBarSchema() {
    using enum AttributeUse;
    const std::span<const AttributeRule> rules = ToolBarAttributeRules();
    return Schema(
        "toolbars",
        ComplexType("toolbars", {{"group", "group"}}, "") +
            ComplexType("group", {{"toolbar", "toolbar"}, {"bar", "toolbar"}}, Attributes(rules, {Type}, {Keyword})) +
            ComplexType("toolbar", {{"button", "button"}, {"item", "button"}}, Attributes(rules, {Type}, {Prompt})) +
            ComplexType("button", {}, Attributes(rules, {}, {Type})) +
            TypeWithPattern("type", OneOf(Narrow(ToolBarItemTypes()))) + kIconType);
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
