#include "attribute_guide.h"
#include "checked_installation.h"
#include "config/diagnostic_codes.h"
#include "config/menu_attributes.h"
#include "config/ribbon_attributes.h"
#include "config/toolbar_file.h"

#include <varnhold/language.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <tuple>

namespace {

constexpr ConfigurationKind kKinds[] = {ConfigurationKind::Ribbon, ConfigurationKind::Menu,
                                        ConfigurationKind::ToolBars};

/// An element whose attribute is wrong, in the frame of its file; empty lines of others are there, too.
struct WrongValue {
    ConfigurationKind kind;
    AttributeUse use;
    std::string_view code;
    std::string_view lines;
};

using enum AttributeUse;
constexpr ConfigurationKind kRibbon = ConfigurationKind::Ribbon;
constexpr ConfigurationKind kMenu = ConfigurationKind::Menu;
constexpr ConfigurationKind kToolBars = ConfigurationKind::ToolBars;

constexpr std::string_view kTwoOfOneKeyword =
    R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" CMD="a"/><item KEYWORD="A" NAME="" TYPE="BUTTON" CMD="b"/>)";

/// For each code that the reference names at an attribute: a value that has it. Ribbon: elements of a panel, or a whole
/// file; menu: items of a popup; toolbars: buttons of a toolbar, or a whole file.
constexpr WrongValue kWrongValues[] = {
    {kRibbon, Keyword, "missing-keyword", R"(<item NAME="" TYPE="BUTTON"/>)"},
    {kRibbon, Keyword, "duplicate-keyword", kTwoOfOneKeyword},
    {kRibbon, Keyword, "unknown-quick-access",
     R"(<ribbon><row KEYWORD="QK_Rbbion_QAToolbar"><item KEYWORD="B"/></row><row KEYWORD="Main"/></ribbon>)"},
    {kRibbon, Keyword, "unknown-status-button",
     R"(<ribbon><row KEYWORD="StatusEx_btns"><item KEYWORD="B"/></row><row KEYWORD="Main"/></ribbon>)"},
    {kRibbon, Keyword, "quick-access-kind",
     R"(<ribbon><row KEYWORD="QK_Rbbion_QAToolbar"><item KEYWORD="A"/></row><row KEYWORD="Main"><category KEYWORD="C" )"
     R"(NAME=""><panel KEYWORD="P"><item KEYWORD="A" NAME="" TYPE="label"/></panel></category></row></ribbon>)"},
    {kRibbon, Name, "attribute-order", R"(<item NAME="" KEYWORD="A" TYPE="BUTTON"/>)"},
    {kRibbon, Name, "missing-caption", R"(<item KEYWORD="A" TYPE="BUTTON"/>)"},
    {kRibbon, Name, "missing-text", R"(<item KEYWORD="Nowhere" NAME="" TYPE="BUTTON"/>)"},
    {kRibbon, Name, "ignored-text", R"(<item KEYWORD="A" NAME="Nearer" TYPE="BUTTON"/>)"},
    {kRibbon, ToolTip, "attribute-order", R"(<item TOOLTIP="" KEYWORD="A" NAME="" TYPE="BUTTON"/>)"},
    {kRibbon, ToolTip, "missing-text", R"(<item KEYWORD="B" NAME="" TOOLTIP="" TYPE="BUTTON"/>)"},
    {kRibbon, ToolTip, "ignored-text", R"(<item KEYWORD="A" NAME="" TOOLTIP="Nearer" TYPE="BUTTON"/>)"},
    {kRibbon, Type, "missing-type", R"(<item KEYWORD="A" NAME=""/>)"},
    {kRibbon, Type, "unknown-type", R"(<item KEYWORD="A" NAME="" TYPE="push"/>)"},
    {kRibbon, Size, "bad-number", R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" SIZE="16px"/>)"},
    {kRibbon, Size, "odd-size", R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" SIZE="24"/>)"},
    {kRibbon, Icon, "missing-icon", R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic\none.ico"/>)"},
    {kRibbon, Icon, "icon-format", R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic\text.ico"/>)"},
    {kRibbon, Icon, "icon-size", R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic\small.ico"/>)"},
    {kRibbon, Icon, "path-separator", R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic/a.ico"/>)"},
    {kRibbon, DisabledIcon, "inherited-value",
     R"(<item KEYWORD="A" NAME="" TYPE="BUTTON"><item KEYWORD="B" NAME="" TYPE="BUTTON" PICDisPATH="pic\a.ico"/>)"
     R"(<item KEYWORD="C" NAME="" TYPE="BUTTON"/></item>)"},
    {kRibbon, Width, "bad-number", R"(<item KEYWORD="A" NAME="" TYPE="edit" WIDTH="wide"/>)"},
    {kRibbon, Width, "odd-size", R"(<item KEYWORD="A" NAME="" TYPE="edit" WIDTH="-1"/>)"},
    {kRibbon, Width, "long-text", R"(<item KEYWORD="Map" NAME="" TYPE="edit" WIDTH="12"/>)"},
    {kRibbon, Command, "inherited-value",
     R"(<item KEYWORD="A" NAME="" TYPE="BUTTON"><item KEYWORD="B" NAME="" TYPE="BUTTON" CMD="b"/>)"
     R"(<item KEYWORD="C" NAME="" TYPE="BUTTON"/></item>)"},
    {kRibbon, Command, "duplicate-keyword", kTwoOfOneKeyword},
    {kRibbon, Parameter, "inherited-value",
     R"(<item KEYWORD="A" NAME="" TYPE="BUTTON"><item KEYWORD="B" NAME="" TYPE="BUTTON" PARAM="b"/>)"
     R"(<item KEYWORD="C" NAME="" TYPE="BUTTON"/></item>)"},
    {kRibbon, Parameter, "duplicate-keyword",
     R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" PARAM="a"/><item KEYWORD="A" NAME="" TYPE="BUTTON" PARAM="b"/>)"},
    {kRibbon, Help, "duplicate-keyword",
     R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" help="a.swf"/><item KEYWORD="A" NAME="" TYPE="BUTTON" help="b.swf"/>)"},
    {kRibbon, AcceptF1, "bad-flag", R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" AcceptF1="no"/>)"},
    {kRibbon, CateTab, "bad-flag",
     R"(<ribbon><row KEYWORD="Main"><category KEYWORD="C" NAME="" CateTab="yes"/></row></ribbon>)"},
    {kRibbon, GroupBefore, "attribute-order", R"(<item KEYWORD="A" NAME="" GROUPBEFORE="Y" TYPE="BUTTON"/>)"},
    {kRibbon, GroupBefore, "bad-flag", R"(<item KEYWORD="A" NAME="" TYPE="BUTTON" GROUPBEFORE="1"/>)"},

    {kMenu, Keyword, "missing-keyword", R"(<item MENUNAME=""/>)"},
    {kMenu, Keyword, "duplicate-keyword",
     R"(<item KEYWORD="A" MENUNAME="" CMD="a"/><item KEYWORD="A" MENUNAME="" CMD="b"/>)"},
    {kMenu, Name, "attribute-order", R"(<item MENUNAME="" KEYWORD="A"/>)"},
    {kMenu, Name, "missing-caption", R"(<item KEYWORD="A"/>)"},
    {kMenu, Name, "missing-text", R"(<item KEYWORD="Nowhere" MENUNAME=""/>)"},
    {kMenu, Name, "ignored-text", R"(<item KEYWORD="A" MENUNAME="Nearer"/>)"},
    {kMenu, ToolTip, "attribute-order", R"(<item TOOLTIP="" KEYWORD="A" MENUNAME=""/>)"},
    {kMenu, ToolTip, "missing-text", R"(<item KEYWORD="B" MENUNAME="" TOOLTIP=""/>)"},
    {kMenu, ToolTip, "ignored-text", R"(<item KEYWORD="A" MENUNAME="" TOOLTIP="Nearer"/>)"},
    {kMenu, ShortKey, "access-key-syntax", R"(<item KEYWORD="A" MENUNAME="" SHORTKEY="Ctrl+S"/>)"},
    {kMenu, ShortKey, "access-key-clash",
     R"(<item KEYWORD="A" MENUNAME="" SHORTKEY="S"/><item KEYWORD="B" MENUNAME="" SHORTKEY="s"/>)"},
    {kMenu, HotKey, "shortcut-syntax", R"(<item KEYWORD="A" MENUNAME="" HOTKEY="F5"/>)"},
    {kMenu, HotKey, "shortcut-clash",
     R"(<item KEYWORD="A" MENUNAME="" HOTKEY="Ctrl+S"/><item KEYWORD="B" MENUNAME="" HOTKEY="ctrl+s"/>)"},
    {kMenu, HotKey, "lost-shortcut",
     R"(<popup KEYWORD="A" MENUNAME="" HOTKEY="Alt+F"><item KEYWORD="B" MENUNAME=""/></popup>)"},
    {kMenu, Command, "duplicate-keyword",
     R"(<item KEYWORD="A" MENUNAME="" CMD="a"/><item KEYWORD="A" MENUNAME="" CMD="b"/>)"},
    {kMenu, Parameter, "duplicate-keyword",
     R"(<item KEYWORD="A" MENUNAME="" Param="a"/><item KEYWORD="A" MENUNAME="" Param="b"/>)"},
    {kMenu, Icon, "missing-icon", R"(<item KEYWORD="A" MENUNAME="" PicPath="pic\none.ico"/>)"},
    {kMenu, Icon, "icon-format", R"(<item KEYWORD="A" MENUNAME="" PicPath="pic\text.ico"/>)"},
    {kMenu, Icon, "icon-size", R"(<item KEYWORD="A" MENUNAME="" PicPath="pic\small.ico"/>)"},
    {kMenu, Icon, "path-separator", R"(<item KEYWORD="A" MENUNAME="" PicPath="pic/a.ico"/>)"},

    {kToolBars, Keyword, "missing-keyword", R"(<item TYPE="button" PROMPT="A"/>)"},
    {kToolBars, Prompt, "missing-caption", R"(<item TYPE="button" KEYWORD="A"/>)"},
    {kToolBars, Type, "missing-type", R"(<item KEYWORD="A" PROMPT="A"/>)"},
    {kToolBars, Type, "unknown-type", R"(<item TYPE="push" KEYWORD="A" PROMPT="A"/>)"},
    {kToolBars, Type, "wrong-depth",
     R"(<toolbars><group KEYWORD="G"><bar PROMPT="P" TYPE="button"/></group></toolbars>)"},
    {kToolBars, Icon, "missing-icon", R"(<item TYPE="button" KEYWORD="A" PROMPT="A" PICPATH="pic\none.ico"/>)"},
    {kToolBars, Icon, "icon-format", R"(<item TYPE="button" KEYWORD="A" PROMPT="A" PICPATH="pic\text.ico"/>)"},
    {kToolBars, Icon, "icon-size", R"(<item TYPE="button" KEYWORD="A" PROMPT="A" PICPATH="pic\small.ico"/>)"},
    {kToolBars, Icon, "path-separator", R"(<item TYPE="button" KEYWORD="A" PROMPT="A" PICPATH="pic/a.ico"/>)"},
};

std::set<std::string> CodesIn(const WrongValue& value) {
    const CheckedInstallation installation;
    installation.WriteIcon("pic", "a.ico");
    installation.Write("pic/16/text.ico", "no icon");
    installation.Write("pic/16/small.ico", MakeIconFile(8, {0, 0}));
    std::string units;
    for (const char* const key : {"A", "A.tooltip", "B", "C", "Edit", "Map"}) {
        units += CheckedInstallation::Unit(key, key);
    }
    installation.WriteTable("en", units);
    const std::string lines(value.lines);
    const bool isWhole = lines.starts_with("<ribbon") || lines.starts_with("<toolbars");
    const bool isRibbon = value.kind == kRibbon;
    const bool isMenu = value.kind == kMenu;
    installation.Write(isRibbon ? "cfg/ribbon.xml"
                       : isMenu ? "cfg/menu.xml"
                                : "cfg/toolbar.xml",
                       isWhole    ? lines
                       : isRibbon ? RibbonWith(lines)
                       : isMenu   ? MenuWith(lines)
                                  : ToolBarWith(lines));
    std::set<std::string> codes;
    for (const Diagnostic& finding : installation.Check()) {
        codes.emplace(finding.code);
    }
    codes.erase("unused-text"); // the table is for all of them
    return codes;
}

TEST(AttributeReference, EveryAttributeOfTheReadersIsThereAndNoOther) {
    for (const ConfigurationKind kind : kKinds) {
        std::set<AttributeUse> known;
        for (const AttributeRule& rule : AttributeRules(kind)) {
            known.insert(rule.use);
        }
        std::set<AttributeUse> told;
        for (const AttributeGuide& guide : AttributeGuides(kind)) {
            EXPECT_TRUE(told.insert(guide.use).second);
            for (const std::string_view text : {guide.elements, guide.type, guide.missing, guide.meaning}) {
                EXPECT_FALSE(text.empty());
            }
            for (const std::string_view code : guide.codes) {
                EXPECT_NE(FindDiagnosticCode(code), nullptr) << code;
            }
        }
        EXPECT_EQ(told, known);
    }
}

TEST(AttributeReference, WhatItSaysOfWrongValuesTheCheckerFinds) {
    for (const ConfigurationKind kind : kKinds) {
        for (const AttributeGuide& guide : AttributeGuides(kind)) {
            for (const std::string_view code : guide.codes) {
                if (code == "similar-keyword") { // needs two files; it has its own test
                    continue;
                }
                const auto* const value = std::ranges::find_if(kWrongValues, [&](const WrongValue& one) {
                    return one.kind == kind && one.use == guide.use && one.code == code;
                });
                ASSERT_NE(value, std::end(kWrongValues)) << "no example of " << code << " at " << guide.meaning;
                EXPECT_TRUE(CodesIn(*value).contains(std::string(code))) << code << ": " << value->lines;
            }
        }
    }
}

RibbonInfo ReadRibbon(const std::string& attributes) {
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.LoadFromMemory("<r IDKEY=\"K\" " + attributes + "/>"));
    RibbonInfo info;
    ReadRibbonInfo(document.GetDocumentElement(), info, FileDiagnostics(L"f.xml", DroppedDiagnostics()));
    return info;
}

auto Fields(const RibbonInfo& info) {
    return std::tie(info.groupBefore, info.name, info.type, info.tooltip, info.keyword, info.picPath, info.picDisPath,
                    info.size, info.cmd, info.param, info.help, info.acceptF1, info.cateTab, info.valueGroup,
                    info.width);
}

MenuInfo ReadMenu(const std::string& attributes) {
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.LoadFromMemory("<m TOOLTIP=\"\" " + attributes + "/>"));
    MenuInfo info;
    varnhold::XmlCursor cursor(document);
    ReadMenuInfo(cursor, info, CTranslationSection(kRibbonSection), FileDiagnostics(L"f.xml", DroppedDiagnostics()));
    return info;
}

auto Fields(const MenuInfo& info) {
    return std::tie(info.bSeparator, info.strName, info.strKeyword, info.strShortKey, info.strHotKey, info.strText,
                    info.strCmd, info.strToolTip, info.strPicPath, info.strParam);
}

ToolBarInfo ReadToolBar(const std::string& attributes) {
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.LoadFromMemory("<t " + attributes + "/>"));
    ToolBarInfo info;
    varnhold::XmlCursor cursor(document);
    ReadToolBarInfo(cursor, info);
    return info;
}

auto Fields(const ToolBarInfo& info) {
    return std::tie(info.strType, info.strPrompt, info.strPicPath, info.strKeyword, info.strToolTip);
}

template <class Read>
void ExpectDefaults(ConfigurationKind kind, Read read) {
    const auto missing = read("");
    for (const AttributeGuide& guide : AttributeGuides(kind)) {
        if (guide.defaultValue == kNoDefault) {
            continue;
        }
        const auto* const rule = &*std::ranges::find(AttributeRules(kind), guide.use, &AttributeRule::use);
        const std::string written = std::string(rule->name) + "=\"" + std::string(guide.defaultValue) + "\"";
        const auto info = read(written);
        EXPECT_EQ(Fields(info), Fields(missing)) << written;
    }
}

TEST(AttributeReference, WritingTheDefaultIsTheSameAsLeavingItOut) {
    ExpectDefaults(kRibbon, ReadRibbon);
    ExpectDefaults(kMenu, ReadMenu);
    ExpectDefaults(kToolBars, ReadToolBar);
}

TEST(AttributeReference, ThePageIsWhatTheTablesSay) {
    std::ifstream stream(std::filesystem::path(BARWRIGHT_SOURCE) / "docs" / "attributes.md", std::ios::binary);
    const std::string page((std::istreambuf_iterator<char>(stream)), {});
    EXPECT_EQ(page, AttributeReference()) << "build/native/bin/barcheck --attributes > docs/attributes.md";
}

} // namespace
