#include "attribute_guide.h"

#include "config/diagnostic_codes.h"
#include "config/element_kind.h"
#include "config/toolbar_file.h"

#include <varnhold/strings.h>

namespace {

struct FilePage {
    ConfigurationKind kind;
    std::string_view title;
    std::string_view guide;
    std::string_view picture; ///< of what the viewer's file becomes
};
constexpr FilePage kFiles[] = {
    {ConfigurationKind::Ribbon, "The ribbon file",
     "How the levels of the file are read tells [its guide](ribbon-file.md).",
     "![What the map viewer's ribbon file becomes: a category with panels, buttons, a slider and an edit]"
     "(pictures/ribbon-file.png)"},
    {ConfigurationKind::Menu, "The menu file", "How popups and items are read tells [its guide](menu-file.md).",
     "![What the map viewer's menu file becomes: popups along a menu bar, one of them open]"
     "(pictures/menu-file.png)"},
    {ConfigurationKind::ToolBars, "The toolbar file",
     "The document element holds groups, a group toolbars, a toolbar buttons: [its guide](toolbar-file.md) tells "
     "more.",
     "![What the map viewer's toolbar file becomes: toolbars with buttons, separators and combos]"
     "(pictures/toolbar-file.png)"},
};

/// A line of a table: "| a | b |".
std::string Line(std::initializer_list<std::string_view> cells) {
    std::string line = "|";
    for (const std::string_view cell : cells) {
        line += " " + std::string(cell) + " |";
    }
    return line + "\n";
}

std::string InCode(std::string_view text) { return "`" + std::string(text) + "`"; }

/// "`KEYWORD` or `IDKEY`": as the reader has them.
std::string NamesOf(ConfigurationKind kind, AttributeUse use) {
    std::string names;
    for (const AttributeRule& rule : AttributeRules(kind)) {
        if (rule.use == use) {
            names += (names.empty() ? "" : " or ") + InCode(rule.name);
        }
    }
    return names;
}

std::string CodeLink(std::string_view code) {
    return "[" + InCode(code) + "](diagnostics.md#" + std::string(code) + ")";
}

std::string Section(ConfigurationKind kind, const AttributeGuide& guide) {
    std::string text = "### " + NamesOf(kind, guide.use) + "\n\n" + std::string(guide.meaning) + "\n\n";
    text += "- On: " + std::string(guide.elements) + "\n- Value: " + std::string(guide.type) +
            "\n- Without it: " + std::string(guide.missing) + "\n";
    for (const std::string_view code : guide.codes) {
        if (const DiagnosticCode* const known = FindDiagnosticCode(code)) {
            text +=
                "- " + CodeLink(code) + ": " + std::string(known->meaning) + " " + std::string(known->effect) + "\n";
        }
    }
    return text + "\n";
}

std::string TypesOf(ConfigurationKind kind) {
    const std::vector<std::wstring> types = kind == ConfigurationKind::Ribbon     ? ElementTypes()
                                            : kind == ConfigurationKind::ToolBars ? ToolBarItemTypes()
                                                                                  : std::vector<std::wstring>();
    std::string text;
    for (const std::wstring& type : types) {
        text += (text.empty() ? "The words of `TYPE`: " : ", ") + InCode(wstring2String(type));
    }
    return text.empty() ? text : text + ".\n\n";
}

std::string FileReference(const FilePage& file) {
    std::string text = "## " + std::string(file.title) + "\n\n" + std::string(file.guide) + "\n\n" +
                       std::string(file.picture) + "\n\n" + Line({"attribute", "on", "value", "without it"}) +
                       "|---|---|---|---|\n";
    for (const AttributeGuide& guide : AttributeGuides(file.kind)) {
        text += Line({NamesOf(file.kind, guide.use), guide.elements, guide.type, guide.missing});
    }
    text += "\n" + TypesOf(file.kind);
    for (const AttributeGuide& guide : AttributeGuides(file.kind)) {
        text += Section(file.kind, guide);
    }
    return text;
}

} // namespace

std::string AttributeReference() {
    std::string text =
        "# Reference of the configuration files\n\n"
        "Every attribute of the ribbon, menu and toolbar files: where it counts, what it may hold, what is read where "
        "it "
        "is\n"
        "missing, and what happens when it is wrong. Names of attributes may be written in any letter case. This page "
        "is\n"
        "written by `barcheck --attributes` from the tables that the readers use.\n\n"
        "Two faults any attribute can have: " +
        CodeLink("unknown-attribute") + ", a misspelt name, is ignored; of " + CodeLink("duplicate-attribute") +
        ", one that stands\ntwice, the last counts. A value is never the reason for a message to the user: the library "
        "passes over what it\ncannot use, and [barcheck](barcheck.md) says so, by the codes below.\n\n";
    for (const FilePage& file : kFiles) {
        text += FileReference(file);
    }
    text.pop_back();
    return text;
}
