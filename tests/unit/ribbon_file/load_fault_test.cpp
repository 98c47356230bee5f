#include "configuration_problems.h"
#include "menu_id_mgr.h"
#include "tests/support/translation_tables.h"

#include <gtest/gtest.h>
#include <varnhold/strings.h>

#include <algorithm>

namespace {

class LoadFaults : public testing::Test {
protected:
    ~LoadFaults() override { CMenuIdMgr::Destroy(); }

    /// "name:line:column code" for each, one a line.
    static std::string Told(const std::vector<ConfigurationProblem>& faults) {
        std::string text;
        for (const ConfigurationProblem& fault : faults) {
            text += wstring2String(fault.file.substr(fault.file.find_last_of(L"\\/") + 1)) + ":" +
                    std::to_string(fault.line) + ":" + std::to_string(fault.column) + " " + fault.code + "\n";
        }
        return text;
    }
    std::string Of(const std::string& text, ConfiguredBars bars) const {
        return Told(FindLoadFaults(m_installation.Directory().Write("file.xml", text), bars));
    }
    std::string OfMenu(const std::string& items) const { return Of("<m>" + items + "</m>", ConfiguredBars::Menu); }

    TranslatedInstallation m_installation;
};

constexpr auto kAllBars = {ConfiguredBars::Ribbon, ConfiguredBars::Menu, ConfiguredBars::ToolBars};

TEST_F(LoadFaults, AFileThatIsNoXmlOrIsNotThereCannotBeLoaded) {
    for (const ConfiguredBars bars : kAllBars) {
        EXPECT_EQ(Of("<a>\n<b></a>", bars), "file.xml:2:4 xml-syntax\n");
        EXPECT_EQ(Of("", bars), "file.xml:1:1 empty-file\n");
        EXPECT_EQ(Told(FindLoadFaults(m_installation.Directory().Prefix() + L"none.xml", bars)),
                  "none.xml:1:1 missing-file\n");
    }
}

TEST_F(LoadFaults, OfAFileWithoutAnElementNothingWouldBeBuilt) {
    for (const ConfiguredBars bars : kAllBars) {
        EXPECT_EQ(Of("<!-- soon -->\n<ribbon/>", bars), "file.xml:2:1 empty-file\n");
        EXPECT_EQ(Of("<a>words</a>", bars), "file.xml:1:1 empty-file\n");
    }
}

TEST_F(LoadFaults, AShortcutThatNamesNoKeyIsOneOfAMenuFileWhereverItsItemStands) {
    EXPECT_EQ(OfMenu("<i KEYWORD='A' HOTKEY='Ctrl+'/>"), "file.xml:1:19 shortcut-syntax\n");
    EXPECT_EQ(OfMenu("<g><p KEYWORD='P'>\n<i KEYWORD='A' hotkey='+'/>\n<i HOTKEY='Ctrl++'/></p></g>"),
              "file.xml:2:16 shortcut-syntax\nfile.xml:3:4 shortcut-syntax\n");
    const std::string oneItem = "<m><g><i KEYWORD='A' HOTKEY='Ctrl+'/></g></m>";
    EXPECT_EQ(Of(oneItem, ConfiguredBars::Ribbon), "");
    EXPECT_EQ(Of(oneItem, ConfiguredBars::ToolBars), "");
}

TEST_F(LoadFaults, WhatIsWrongWithoutEndingTheLoadIsNone) {
    EXPECT_EQ(OfMenu("<g><i KEYWORD='A' MENUNAME='' HOTKEY='F5' COLOUR=''/><i/></g>"), "");
    EXPECT_EQ(OfMenu("<i KEYWORD='A' MENUNAME='' HOTKEY='Ctrl'/><i KEYWORD='B' HOTKEY=''/>"), "");
    // Popups and separators take no shortcut.
    EXPECT_EQ(OfMenu("<g><p KEYWORD='P' HOTKEY='Ctrl+'><i KEYWORD='A'/></p></g>"), "");
    EXPECT_EQ(OfMenu("<i MENUNAME='SEPARATOR' HOTKEY='Ctrl+'/>"), "");
    EXPECT_EQ(Of("<r><c KEYWORD='A'/></r>", ConfiguredBars::Ribbon), "");
}

TEST_F(LoadFaults, NothingIsRegistered) {
    OfMenu("<i KEYWORD='A' MENUNAME=''/><i KEYWORD='B' HOTKEY='Ctrl+'/>");
    int id = 0;
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetMenuId(L"A", id));
    EXPECT_FALSE(CMenuIdMgr::Ins()->GetMenuId(L"B", id));
}

TEST_F(LoadFaults, OfALanguageTheyAreTheTablesThatTheServiceRefuses) {
    ASSERT_TRUE(m_installation.Translate("A"));
    EXPECT_EQ(Told(FindLanguageFaults(L"en")), "");
    EXPECT_EQ(Told(FindLanguageFaults(L"")), "");
    m_installation.Directory().Write("lang/en/broken.xlf", "<xliff version='2.0'>\n<file></xliff>");
    m_installation.Directory().Write("lang/en/other.xlf", "<words/>");
    m_installation.Directory().Write("lang/en/note.xlf.txt", "no table");
    EXPECT_EQ(Told(FindLanguageFaults(L"en")), "broken.xlf:2:7 xml-syntax\nother.xlf:1:1 bad-table\n");
    EXPECT_FALSE(CMultiLanguageMgr::SetLanguage(L"en"));
    EXPECT_EQ(Told(FindLanguageFaults(L"fr")), "fr:1:1 missing-file\n");
    EXPECT_FALSE(CMultiLanguageMgr::SetLanguage(L"fr"));
}

TEST_F(LoadFaults, WhatIsOddInATableThatIsReadIsNone) {
    m_installation.Directory().Write("lang/en/a.xlf", "<xliff version='2.0' trgLang='de'><file><unit/></file></xliff>");
    EXPECT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    EXPECT_EQ(Told(FindLanguageFaults(L"en")), "");
}

} // namespace
