#include "config/diagnostic_codes.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace {

using enum DiagnosticSeverity;
using enum ExampleFrame;

constexpr DiagnosticCode kCodes[] = {
    // The file as a whole.
    {"xml-syntax", Error, "The file is not well-formed XML.",
     "The file is not loaded at all: the library says so in a message box, or builds no toolbars. Only a \"<\" in a "
     "value is taken as it is, and a declaration that does not begin the file and two dashes within a comment are "
     "passed "
     "over.",
     "Mend the markup at the place that is named, or a little before it: what is missing is noticed late.", RibbonFile,
     "<ribbon>\n  <row KEYWORD=\"Main\"\n</ribbon>",
     "<ribbon>\n  <row KEYWORD=\"Main\"><category KEYWORD=\"Map\" NAME=\"\"><panel KEYWORD=\"Zoom\"><item "
     "KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/></panel></category></row>\n</ribbon>"},
    {"xml-encoding", Error,
     "The file's encoding is not known, is not the one it names, or the file holds bytes that it does not have.",
     "A file of unknown encoding is not loaded. Where a byte-order mark stands it counts, whatever the first line "
     "says. Bytes that the encoding does not have are read as U+FFFD.",
     "Save the file as UTF-8 and let its first line say so.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"\xFF\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"zoom\"/>"},
    {"xml-doctype", Warning, "The file has a document type definition.",
     "It is skipped: entities that it declares are not replaced, attributes that it gives a value have none.",
     "Remove it and write the texts themselves.", RibbonFile,
     "<!DOCTYPE ribbon>\n<ribbon>\n  <row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"Separator\"/></row>\n</ribbon>",
     "<ribbon>\n  <row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"Separator\"/></row>\n</ribbon>"},
    {"xml-reference", Warning, "A \"&\" stands where it begins no reference that is known.",
     "It stays as it is written. Other programs refuse the file.", "Write &amp;amp; for the sign itself.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"a&b\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"a&amp;b\"/>"},
    {"stray-text", Warning, "There is text between the tags.",
     "It is skipped. Often it was meant to be an element, and a \"<\" is missing.",
     "Remove it, or make it an element or a comment.", Panel,
     "item KEYWORD=\"Out\" NAME=\"\" TYPE=\"BUTTON\"/>\n<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>",
     "<item KEYWORD=\"Out\" NAME=\"\" TYPE=\"BUTTON\"/>\n<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"empty-file", Error, "The file holds no element, or nothing below its document element.",
     "Nothing is built from it; without a document element it is not even loaded.",
     "Write what it should hold, or remove it.", RibbonFile, "<ribbon>\n</ribbon>",
     "<ribbon>\n  <row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"Separator\"/></row>\n</ribbon>"},
    {"missing-file", Error,
     "A file that was named, or that the others show to be needed, is not there, or its name ends in .xml.txt: the "
     "ribbon file, where status-bar buttons lead nowhere or many texts have no element; one that lies there under "
     "nearly its name; the folder lang with the tables.",
     "The library shows a message box that asks whether the file exists, or builds no toolbars. Without tables every "
     "text shows as its keyword.",
     "Put the file there or mend the name.", Files, "cfg\\menu.xml\ncfg\\ribon.xml", "cfg\\menu.xml\ncfg\\ribbon.xml"},
    {"unreadable-file", Error, "The file cannot be read: no permission, no plain file, or longer than 256 MB.",
     "It is not loaded.", "Mend what the message says.", Files, "cfg\\menu.xml\ncfg\\ribbon.xml (257 MB)",
     "cfg\\menu.xml\ncfg\\ribbon.xml"},

    {kWrongKind, Error,
     "A ribbon, menu or toolbar file has the name, or stands in the place, of one of another kind, or a web page does.",
     "It is read as what it is not: hardly anything is built from it. Nothing else is said of it, and what refers to "
     "the file that should be there is not spoken of.",
     "Put the right file there. The names of the files begin with ribbon, menu and toolbar.", RibbonFile,
     "<menu>\n  <group>\n    <popup KEYWORD=\"Edit\" MENUNAME=\"\"><item KEYWORD=\"Undo\" MENUNAME=\"\" "
     "HOTKEY=\"Ctrl+Z\"/></popup>\n  </group>\n</menu>",
     "<ribbon>\n  <row KEYWORD=\"Main\"><category KEYWORD=\"Edit\" NAME=\"\"><panel KEYWORD=\"Last\"><item "
     "KEYWORD=\"Undo\" NAME=\"\" TYPE=\"BUTTON\"/></panel></category></row>\n</ribbon>"},

    // Attributes.
    {"unknown-attribute", Warning, "No attribute of this kind of file has that name.", "It is ignored.",
     "Mend the name; letter case does not count.", Panel, "<item KEYWORD=\"In\" NAME=\"\" TYP=\"BUTTON\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"duplicate-attribute", Warning,
     "Two attributes of an element say the same thing: the same name twice, or KEYWORD and IDKEY.",
     "The last one counts. Other programs refuse the file.", "Remove one of the two.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"edit\" type=\"BUTTON\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"attribute-order", Warning,
     "Attributes are read from left to right, and this one stands where it cannot do what it should: NAME, MENUNAME or "
     "TOOLTIP before the keyword, or GROUPBEFORE=\"Y\" that is not the last.",
     "The text is looked up under an empty keyword, and nothing is shown; no separator stands before the element.",
     "Put KEYWORD first and GROUPBEFORE last.", Panel, "<item NAME=\"\" KEYWORD=\"In\" TYPE=\"BUTTON\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"bad-number", Error, "SIZE or WIDTH is not a whole decimal number.",
     "The reading of the element ends there: the attributes behind it do not count, and neither does its default help "
     "file.",
     "Write digits alone, without a unit or blanks.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16px\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\"/>"},
    {"odd-size", Warning, "SIZE of a button is neither 16 nor 32, or WIDTH of a slider or an edit is less than 1.",
     "Any SIZE but 16 makes a large button with icons of 32 pixels; a WIDTH below 1 counts as 50.",
     "Write the size that is meant.", Panel, "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"24\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"32\"/>"},
    {"bad-flag", Warning, "GROUPBEFORE, CateTab or AcceptF1 is neither Y nor N.", "It counts as if it were not there.",
     "Write Y or N.", Panel, "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" AcceptF1=\"no\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" AcceptF1=\"N\"/>"},

    {"odd-quotes", Warning, "A value that is no text for people stands between typographic quotation marks.",
     "They belong to the value: the keyword, command or word is another one.",
     "Remove them; the straight ones around the value stay.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"\u201Czoom\u201D\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"zoom\"/>"},

    // Elements.
    {"no-attributes", Warning, "An element has no attributes.",
     "It describes nothing: a menu item is left out, a ribbon element is not shown, a panel or popup has no caption.",
     "Describe it, or remove it.", Panel, "<item/>\n<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"unknown-type", Warning, "TYPE is no kind of element that this file, or the status bar, may have.",
     "Nothing is shown, and what lies below it vanishes, too.", "Mend the word; letter case does not count.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTOM1\"/>", "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"missing-type", Warning, "An element of a ribbon's panel or a button of a toolbar has no TYPE.",
     "Nothing is shown, and what lies below it vanishes, too.", "Say what it is.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\"/>", "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"missing-keyword", Warning, "An element that stands for a command, or asks for a text, has no keyword.",
     "A menu item is not shown. Elsewhere the command leads nowhere and its text is empty.",
     "Give it a KEYWORD of its own.", Panel, "<item NAME=\"\" TYPE=\"BUTTON\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"missing-caption", Warning,
     "Nothing asks for the text that shows the element: a category, a label, a button without an icon, also of the "
     "status bar, a popup or an item of a menu without NAME (MENUNAME), a toolbar without PROMPT.",
     "It is there, but shows nothing.", "Add NAME=\"\" (MENUNAME=\"\" in a menu), or the PROMPT of the toolbar.", Panel,
     "<item KEYWORD=\"In\" TYPE=\"BUTTON\"/>", "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"children-lost", Warning,
     "There are elements below one that takes none: a slider, a label, an edit, a combo, a sub-item, a quick access "
     "item, a status-bar button or a button of a toolbar.",
     "They are not read; a slider, a label, an edit or a combo vanishes with them.",
     "Move them beside it, or make it a BUTTON or a GROUP.", Panel,
     "<item KEYWORD=\"Scale\" NAME=\"\" TYPE=\"label\"><item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/></item>",
     "<item KEYWORD=\"Scale\" NAME=\"\" TYPE=\"label\"/>\n<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"empty-group", Warning, "A GROUP has no elements, or stands inside another element.", "It is not shown.",
     "Fill it, or remove it.", Panel, "<group KEYWORD=\"Moves\" TYPE=\"GROUP\"/>",
     "<group KEYWORD=\"Moves\" TYPE=\"GROUP\"><item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/></group>"},
    {"wrong-depth", Warning,
     "Only the depth says what an element is, and this one has attributes of another depth: a level is missing around "
     "it, or is too many.",
     "It is read as what its depth says: a button as a panel, a popup of the menu bar as a group without caption.",
     "Put the missing level around it, or take the surplus one away.", RibbonFile,
     "<ribbon>\n  <row KEYWORD=\"Main\"><category KEYWORD=\"Map\" NAME=\"\"><item KEYWORD=\"In\" NAME=\"\" "
     "TYPE=\"BUTTON\"/></category></row>\n</ribbon>",
     "<ribbon>\n  <row KEYWORD=\"Main\"><category KEYWORD=\"Map\" NAME=\"\"><panel KEYWORD=\"Zoom\"><item "
     "KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/></panel></category></row>\n</ribbon>"},
    {"row-keyword", Warning, "The KEYWORD of a row is nearly QK_Rbbion_QAToolbar or StatusEx_btns.",
     "The row counts as one of categories: what is in it is read as categories without panels.",
     "Write the keyword exactly so, letter case included.", RibbonFile,
     "<ribbon>\n  <row KEYWORD=\"StatusEx_Btns\"><item KEYWORD=\"Separator\"/></row>\n</ribbon>",
     "<ribbon>\n  <row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"Separator\"/></row>\n</ribbon>"},
    {"inherited-value", Note,
     "A panel or a sub-item does not set CMD, PARAM or PICDisPATH, and the one before it does.",
     "It has the value of the one before it.", "Write the value, or an empty one.", Panel,
     "<item KEYWORD=\"Views\" NAME=\"\" TYPE=\"BUTTON\">\n  <item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" "
     "CMD=\"zoom\"/>\n  <item KEYWORD=\"Out\" NAME=\"\" TYPE=\"BUTTON\"/>\n</item>",
     "<item KEYWORD=\"Views\" NAME=\"\" TYPE=\"BUTTON\">\n  <item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" "
     "CMD=\"zoom\"/>\n  <item KEYWORD=\"Out\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"\"/>\n</item>"},

    // Commands.
    {"duplicate-keyword", Warning,
     "Two elements have one keyword, in one file or in two, and the second one sets CMD, PARAM or help to something "
     "else; or a popup takes the keyword of a command; or a quick access row names a command twice; or there are two "
     "categories in a row, panels with NAME in a category or popups in a menu of one keyword, two toolbars of one "
     "PROMPT in a group, or two rows StatusEx_btns in a file.",
     "The registry keeps what the first one said, in the order keys, ribbon, menu, toolbars: both lead to its command. "
     "A popup's keyword replaces the command's id by none. The quick access toolbar shows a command once. Of two "
     "categories, panels or popups both show, under one caption; a toolbar's title leads to the first one; of two rows "
     "of status-bar buttons the first is lost.",
     "Give one of them another keyword or title, or the same values; or make one of the two.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"zoom\"/>\n<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" "
     "CMD=\"open\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" CMD=\"zoom\"/>\n<item KEYWORD=\"Open\" NAME=\"\" TYPE=\"BUTTON\" "
     "CMD=\"open\"/>"},
    {"unknown-quick-access", Warning,
     "No element of the ribbon files up to this one has the keyword of a quick access item.", "The item is left out.",
     "Mend the keyword.", RibbonFile,
     "<ribbon>\n  <row KEYWORD=\"QK_Rbbion_QAToolbar\"><item KEYWORD=\"Inn\" NAME=\"\"/></row>\n  <row "
     "KEYWORD=\"Main\"><category KEYWORD=\"Map\" NAME=\"\"><panel KEYWORD=\"Zoom\"><item KEYWORD=\"In\" NAME=\"\" "
     "TYPE=\"BUTTON\"/></panel></category></row>\n</ribbon>",
     "<ribbon>\n  <row KEYWORD=\"QK_Rbbion_QAToolbar\"><item KEYWORD=\"In\"/></row>\n  <row KEYWORD=\"Main\"><category "
     "KEYWORD=\"Map\" NAME=\"\"><panel KEYWORD=\"Zoom\"><item KEYWORD=\"In\" NAME=\"\" "
     "TYPE=\"BUTTON\"/></panel></category></row>\n</ribbon>"},
    {"unknown-status-button", Warning, "No element of any file has the keyword of an extra status-bar button.",
     "The button is left out.", "Mend the keyword; Separator stands for a separator.", RibbonFile,
     "<ribbon>\n  <row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"Inn\" NAME=\"\"/></row>\n  <row "
     "KEYWORD=\"Main\"><category "
     "KEYWORD=\"Map\" NAME=\"\"><panel KEYWORD=\"Zoom\"><item KEYWORD=\"In\" NAME=\"\" "
     "TYPE=\"BUTTON\"/></panel></category></row>\n</ribbon>",
     "<ribbon>\n  <row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"In\" NAME=\"\"/></row>\n  <row "
     "KEYWORD=\"Main\"><category "
     "KEYWORD=\"Map\" NAME=\"\"><panel KEYWORD=\"Zoom\"><item KEYWORD=\"In\" NAME=\"\" "
     "TYPE=\"BUTTON\"/></panel></category></row>\n</ribbon>"},
    {"quick-access-kind", Warning,
     "The quick access row names an element that is neither a button nor a combo: a slider, a label, an edit, a "
     "category or a panel.",
     "It is left out of the quick access toolbar.", "Remove it, or give the command a button.", RibbonFile,
     "<ribbon>\n  <row KEYWORD=\"QK_Rbbion_QAToolbar\"><item KEYWORD=\"In\"/></row>\n  <row KEYWORD=\"Main\"><category "
     "KEYWORD=\"Map\" NAME=\"\"><panel KEYWORD=\"Zoom\"><item KEYWORD=\"In\" NAME=\"\" "
     "TYPE=\"label\"/></panel></category></row>\n</ribbon>",
     "<ribbon>\n  <row KEYWORD=\"QK_Rbbion_QAToolbar\"><item KEYWORD=\"In\"/></row>\n  <row KEYWORD=\"Main\"><category "
     "KEYWORD=\"Map\" NAME=\"\"><panel KEYWORD=\"Zoom\"><item KEYWORD=\"In\" NAME=\"\" "
     "TYPE=\"BUTTON\"/></panel></category></row>\n</ribbon>"},
    {"similar-keyword", Warning,
     "A button of a toolbar has a keyword that no ribbon or menu file has, but nearly that of the command with the "
     "same icon.",
     "It is a command of its own, without CMD: only a program that knows the keyword does something.",
     "Write the keyword as the command has it.", Twin,
     "<item TYPE=\"button\" KEYWORD=\"Opne\" PROMPT=\"Open\" PICPATH=\"pic\\example.ico\"/>",
     "<item TYPE=\"button\" KEYWORD=\"Open\" PROMPT=\"Open\" PICPATH=\"pic\\example.ico\"/>"},
    {"shortcut-syntax", Error,
     "HOTKEY is read as something else than it says. Only Ctrl, Shift and Alt, each once and joined by \"+\" without "
     "blanks, may stand before the key, and only the first character of the key counts.",
     "F5 is the key of F, Del that of D, \"Ctrl + S\" that of C; Ctrl+Shift names no key and is left out; Ctrl+ ends "
     "the loading of the whole file with an exception.",
     "Write one letter, digit or sign behind the modifiers: Ctrl+Shift+S.", Popup,
     "<item KEYWORD=\"Redraw\" MENUNAME=\"\" HOTKEY=\"F5\"/>",
     "<item KEYWORD=\"Redraw\" MENUNAME=\"\" HOTKEY=\"Ctrl+R\"/>"},
    {"shortcut-clash", Warning, "Two items of a menu file have the same shortcut.", "The first one gets it.",
     "Give one of them another shortcut.", Popup,
     "<item KEYWORD=\"Save\" MENUNAME=\"\" HOTKEY=\"Ctrl+S\"/>\n<item KEYWORD=\"Send\" MENUNAME=\"\" "
     "HOTKEY=\"ctrl+s\"/>",
     "<item KEYWORD=\"Save\" MENUNAME=\"\" HOTKEY=\"Ctrl+S\"/>\n<item KEYWORD=\"Send\" MENUNAME=\"\" "
     "HOTKEY=\"Ctrl+E\"/>"},
    {"lost-shortcut", Warning,
     "A HOTKEY stands where none is taken: on a popup, or on an item whose keyword an earlier element has registered, "
     "in a ribbon file for instance.",
     "There is no such shortcut.",
     "Give the shortcut to the first item of that keyword; a command of the ribbon has none from a menu file, so "
     "remove it.",
     MenuFile,
     "<menu>\n  <group>\n    <popup KEYWORD=\"File\" MENUNAME=\"\" HOTKEY=\"Alt+F\"><item KEYWORD=\"Save\" "
     "MENUNAME=\"\"/></popup>\n  </group>\n</menu>",
     "<menu>\n  <group>\n    <popup KEYWORD=\"File\" MENUNAME=\"\" SHORTKEY=\"F\"><item KEYWORD=\"Save\" "
     "MENUNAME=\"\"/></popup>\n  </group>\n</menu>"},
    {"access-key-syntax", Warning, "SHORTKEY is more than one letter or digit, a blank or \"&\".",
     "It stands in brackets behind the caption as it is; its first letter opens the item.",
     "Write one letter; a shortcut such as Ctrl+S belongs into HOTKEY.", Popup,
     "<item KEYWORD=\"Save\" MENUNAME=\"\" SHORTKEY=\"Ctrl+S\"/>",
     "<item KEYWORD=\"Save\" MENUNAME=\"\" SHORTKEY=\"S\"/>"},
    {"access-key-clash", Warning,
     "Two items of one menu have the same letter, by SHORTKEY or by \"&\" in the translated text.",
     "The letter chooses between them instead of opening one.", "Give one of them another letter.", Popup,
     "<item KEYWORD=\"Save\" MENUNAME=\"\" SHORTKEY=\"S\"/>\n<item KEYWORD=\"Send\" MENUNAME=\"\" SHORTKEY=\"s\"/>",
     "<item KEYWORD=\"Save\" MENUNAME=\"\" SHORTKEY=\"S\"/>\n<item KEYWORD=\"Send\" MENUNAME=\"\" SHORTKEY=\"e\"/>"},

    // Icons.
    {"missing-icon", Warning,
     "An icon file is not there. A path a\\b.ico is the files a\\16\\b.ico and a\\32\\b.ico: a large button needs "
     "both, everything else the first.",
     "The place of the icon stays empty.", "Put the file there, or mend the path.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\" PICPATH=\"pic\\examples.ico\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\" PICPATH=\"pic\\example.ico\"/>"},
    {"icon-format", Warning,
     "A file that should be an icon is none, has no picture, ends within one, or has one of more than 1,024 pixels a "
     "side.",
     "It counts as missing: the place of the icon stays empty.",
     "Save it as an icon file (.ico); another format with that ending is none.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\" PICPATH=\"pic\\text.ico\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\" PICPATH=\"pic\\example.ico\"/>"},
    {"icon-size", Warning, "An icon file has no picture as large as the folder says that it lies in.",
     "A smaller one is enlarged, and looks coarse.", "Put the picture of that size into the file.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\" PICPATH=\"pic\\small.ico\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\" PICPATH=\"pic\\example.ico\"/>"},
    {"path-separator", Warning,
     "An icon path is divided by \"/\", is an address, or leads out of the installation directory.",
     "The folder of the size is put before the part behind the last backslash, so no file is found; outside nothing is "
     "looked for.",
     "Write backslashes, and a path below the installation directory.", Panel,
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\" PICPATH=\"pic/example.ico\"/>",
     "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" SIZE=\"16\" PICPATH=\"pic\\example.ico\"/>"},

    // Texts.
    {"ignored-text", Note, "NAME, MENUNAME or TOOLTIP has a text.",
     "It is not shown: these attributes only ask for the text that the tables have under the keyword.",
     "Put the text into the tables below lang, and leave the attribute empty.", Panel,
     "<item KEYWORD=\"In\" NAME=\"Nearer\" TYPE=\"BUTTON\"/>", "<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"},
    {"missing-text", Warning,
     "An element asks for a text (NAME, MENUNAME, TOOLTIP) that a language's tables do not have under its keyword.",
     "The keyword itself is shown for a name, nothing for a tooltip.",
     "Add the unit KEYWORD or KEYWORD.tooltip to section RibbonBarCfg, or do not ask for the text.", ToolTip,
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>",
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>\n<unit id=\"b\" "
     "name=\"In.tooltip\"><segment><source>Shows less, larger</source></segment></unit>"},
    {"duplicate-text", Warning, "A language's tables have two units of one key in one section.",
     "The later one counts, in the order of the files' names.", "Remove one of the two.", Table,
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>\n<unit id=\"b\" "
     "name=\"In\"><segment><source>Nearer</source></segment></unit>",
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>"},
    {"long-text", Warning,
     "A text is wider at 100 % than the field that shows it, than a window of 1,280 pixels with what stands beside it "
     "there (a combo's list, a menu item's shortcut), or as a tooltip than 45 lines of 640 pixels; or the status-bar "
     "buttons of a row are together wider than 1,920 pixels. Widths are estimated, and only what is clearly wider is "
     "said.",
     "It is cut off, its panel shows as a button alone, or the status bar leaves it out.",
     "Shorten the text, or give the edit a larger WIDTH.", Field,
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>\n<unit id=\"b\" "
     "name=\"Place\"><segment><source>Name of a place</source></segment></unit>",
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>\n<unit id=\"b\" "
     "name=\"Place\"><segment><source>Place</source></segment></unit>"},
    {"unused-text", Note, "No element of the configuration has the keyword of a unit of section RibbonBarCfg.",
     "Nothing, unless the program asks for it itself.", "Remove it, or mend the key.", Table,
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>\n<unit id=\"b\" "
     "name=\"Reverse\"><segment><source>Back</source></segment></unit>",
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>"},
    {"untranslated-text", Note, "A unit of a table with a foreign source language has no target.",
     "The source is shown.", "Translate it.", Table,
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>",
     "<unit id=\"a\" name=\"In\"><segment><source>In</source><target>Hinein</target></segment></unit>"},
    {"bad-table", Warning,
     "A translation table, or a unit of it, is not what it should be: no XLIFF 2 file, a trgLang that is not its "
     "folder, a file element without id, a unit without key or segment, a segment with two sources or targets, a text "
     "with an element that XLIFF 2 does not have there; texts whose letters were lost when the file was saved, or read "
     "in "
     "another encoding; or it lies where no table is read, or ends in .xliff, .xlif or "
     ".xlf.txt instead of .xlf.",
     "A file that is no XLIFF 2 keeps the whole language from being used; of the others the faulty part is skipped.",
     "Mend what the message says.", Table,
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>\n<unit id=\"b\"/>",
     "<unit id=\"a\" name=\"In\"><segment><source>In</source></segment></unit>"},
};

} // namespace

std::span<const DiagnosticCode> DiagnosticCodes() { return kCodes; }

const DiagnosticCode* FindDiagnosticCode(std::string_view code) {
    const auto* const found = std::ranges::find(kCodes, code, &DiagnosticCode::code);
    return found == std::end(kCodes) ? nullptr : found;
}

DiagnosticSeverity SeverityOf(std::string_view code) {
    const DiagnosticCode* const found = FindDiagnosticCode(code);
    if (!found) {
        throw std::logic_error("no such code: " + std::string(code));
    }
    return found->severity;
}

std::string_view NameOf(DiagnosticSeverity severity) {
    switch (severity) {
    case Error:
        return "error";
    case Warning:
        return "warning";
    case Note:
        break;
    }
    return "note";
}
