#include "attribute_guide.h"

#include "config/menu_attributes.h"
#include "config/ribbon_attributes.h"
#include "config/toolbar_file.h"

namespace {

using enum AttributeUse;

constexpr std::string_view kText = "text";
constexpr std::string_view kNumber = "whole decimal number";
constexpr std::string_view kFlag = "`Y` or `N`, in either case";
constexpr std::string_view kIconPath = "path below the installation directory, divided by backslashes";
constexpr std::string_view kRequest = "empty; asks for a translated text";

const std::vector<AttributeGuide>& RibbonGuides() {
    static const std::vector<AttributeGuide> guides = {
        {Keyword,
         "all",
         kText,
         kNoDefault,
         "an id without a name: the registry cannot be asked for it, and no text is found",
         "The command's key in the registry and in the translation tables. On a row it says what its children are: "
         "`QK_Rbbion_QAToolbar` quick access items, `StatusEx_btns` extra status-bar buttons, anything else "
         "categories. A keyword that was met before is that command again.",
         {"missing-keyword", "duplicate-keyword", "unknown-quick-access", "unknown-status-button",
          "quick-access-kind"}},
        {Name,
         "categories, panels, elements, sub-items, status-bar buttons",
         kRequest,
         kNoDefault,
         "no text",
         "Asks for the text that the tables have under the keyword, so it stands behind that. The written value is "
         "not used. The name of an edit is what its field holds at first; that of a slider or a group is not shown.",
         {"attribute-order", "missing-caption", "missing-text", "ignored-text"}},
        {ToolTip,
         "elements, sub-items, status-bar buttons",
         kRequest,
         kNoDefault,
         "no tooltip of its own",
         "Asks for the text that the tables have under the keyword with `.tooltip`, so it stands behind that.",
         {"attribute-order", "missing-text", "ignored-text"}},
        {Type,
         "elements, sub-items, status-bar buttons",
         "one of the words below, in any letter case",
         "",
         "nothing is shown; in the status bar a button",
         "The kind of the element.",
         {"missing-type", "unknown-type"}},
        {Size,
         "buttons",
         kNumber,
         "0",
         "a large button",
         "16 makes a small button with an icon of 16 pixels, anything else a large one with an icon of 32.",
         {"bad-number", "odd-size"}},
        {Icon,
         "buttons, status-bar buttons",
         kIconPath,
         "",
         "no icon",
         "The path without the folder of the size: `a\\b.ico` is the files `a\\16\\b.ico` and `a\\32\\b.ico`; a large "
         "button needs both, a small one the first.",
         {"missing-icon", "icon-format", "icon-size", "path-separator"}},
        {DisabledIcon,
         "panels, elements, sub-items",
         kIconPath,
         "",
         "none; on a panel or a sub-item that of the one before it",
         "Kept in the record for the host. Buttons grey their own icon.",
         {"inherited-value"}},
        {Width,
         "sliders and edits, in the status bar too",
         kNumber,
         "0",
         "50",
         "In pixels at 96 DPI. Less than 1 counts as 50.",
         {"bad-number", "odd-size", "long-text"}},
        {Command,
         "categories, panels, elements, sub-items",
         kText,
         "",
         "empty; on a panel or a sub-item that of the one before it",
         "The command text that the reactors are given.",
         {"inherited-value", "duplicate-keyword"}},
        {Parameter,
         "categories, panels, elements, sub-items",
         kText,
         "",
         "empty; on a panel or a sub-item that of the one before it",
         "The parameter that the reactors are given with the command text.",
         {"inherited-value", "duplicate-keyword"}},
        {Help,
         "elements, sub-items",
         "name of a file",
         kNoDefault,
         "the name followed by `.swf`",
         "The help file of the command, below the folder that the host names.",
         {"duplicate-keyword"}},
        {AcceptF1,
         "elements, sub-items",
         kFlag,
         "Y",
         "`Y`",
         "`N`: no F1 hint, and no help file but one that `help` names.",
         {"bad-flag"}},
        {CateTab,
         "categories",
         kFlag,
         "N",
         "`N`",
         "`Y`: an ordinary tab instead of one that carries a command id for the host.",
         {"bad-flag"}},
        {ValueGroup,
         "elements, sub-items",
         "texts divided by commas",
         kNoDefault,
         "no texts",
         "Kept in the record for the host.",
         {}},
        {GroupBefore,
         "elements",
         kFlag,
         "N",
         "`N`",
         "`Y`: a separator stands before the element. It counts only as the last attribute.",
         {"attribute-order", "bad-flag"}},
    };
    return guides;
}

const std::vector<AttributeGuide>& MenuGuides() {
    static const std::vector<AttributeGuide> guides = {
        {Keyword,
         "popups, items",
         kText,
         "",
         "an item is not shown; a popup has no caption",
         "The command's key in the registry and in the translation tables. `QK_DEF_ZJWJ` stands for the list of "
         "recent files.",
         {"missing-keyword", "duplicate-keyword"}},
        {Name,
         "popups, items",
         "empty, which asks for a translated text; or `SEPARATOR`",
         kNoDefault,
         "no caption",
         "`SEPARATOR`, in any letter case, makes a line, and nothing behind it is read. Anything else asks for the "
         "text that the tables have under the keyword, so it stands behind that.",
         {"attribute-order", "missing-caption", "missing-text", "ignored-text"}},
        {ToolTip,
         "items",
         kRequest,
         kNoDefault,
         "no tooltip",
         "Asks for the text that the tables have under the keyword with `.tooltip`, so it stands behind that.",
         {"attribute-order", "missing-text", "ignored-text"}},
        {ShortKey,
         "popups, items",
         "one letter or digit",
         "",
         "none",
         "Is shown in brackets behind the caption, and opens the item.",
         {"access-key-syntax", "access-key-clash"}},
        {HotKey,
         "items",
         "`Ctrl`, `Shift`, `Alt` and one letter, digit or sign, joined by `+`",
         "",
         "none",
         "The command's shortcut. It is taken where the keyword is registered for the first time.",
         {"shortcut-syntax", "shortcut-clash", "lost-shortcut"}},
        {Command, "items", kText, "", "empty", "The command text that the reactors are given.", {"duplicate-keyword"}},
        {Parameter,
         "items",
         kText,
         "",
         "empty",
         "The parameter that the reactors are given with the command text.",
         {"duplicate-keyword"}},
        {Icon,
         "items",
         kIconPath,
         "",
         "no icon",
         "The path without the folder of the size: `a\\b.ico` is the file `a\\16\\b.ico`. Used where the command is "
         "registered already and has no picture yet.",
         {"missing-icon", "icon-format", "icon-size", "path-separator"}},
    };
    return guides;
}

const std::vector<AttributeGuide>& ToolBarGuides() {
    static const std::vector<AttributeGuide> guides = {
        {Keyword,
         "groups, buttons",
         kText,
         "",
         "a group has an empty name; a button leads to no command",
         "The group's name for the host; the command's key in the registry.",
         {"missing-keyword", "similar-keyword"}},
        {Prompt,
         "toolbars, buttons",
         "text that is shown as it is written",
         "",
         "a toolbar without a title; a button without a text",
         "The toolbar's title, or the text of a button that has no icon.",
         {"missing-caption"}},
        {Type,
         "buttons",
         "one of the words below, in any letter case",
         "",
         "nothing is shown",
         "The kind of the button. A group or a toolbar has none.",
         {"missing-type", "unknown-type", "wrong-depth"}},
        {Icon,
         "buttons",
         kIconPath,
         "",
         "the text of `PROMPT` alone",
         "The path without the folder of the size: `a\\b.ico` is the file `a\\16\\b.ico`.",
         {"missing-icon", "icon-format", "icon-size", "path-separator"}},
        {Hint, "buttons", "text that is shown as it is written", "", "no tooltip", "The button's tooltip.", {}},
    };
    return guides;
}

} // namespace

std::span<const AttributeGuide> AttributeGuides(ConfigurationKind kind) {
    switch (kind) {
    case ConfigurationKind::Ribbon:
        return RibbonGuides();
    case ConfigurationKind::Menu:
        return MenuGuides();
    case ConfigurationKind::ToolBars:
        break;
    }
    return ToolBarGuides();
}

std::span<const AttributeRule> AttributeRules(ConfigurationKind kind) {
    switch (kind) {
    case ConfigurationKind::Ribbon:
        return RibbonAttributeRules();
    case ConfigurationKind::Menu:
        return MenuAttributeRules();
    case ConfigurationKind::ToolBars:
        break;
    }
    return ToolBarAttributeRules();
}
