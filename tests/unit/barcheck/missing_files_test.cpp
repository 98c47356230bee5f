#include "sample_installation.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

const fs::path kSource = BARWRIGHT_SOURCE;

class MissingFile : public testing::Test {
protected:
    void SetUp() override {
        for (const char* folder : {"cfg", "lang"}) {
            fs::copy(kSource / "demo" / folder, Path(folder), fs::copy_options::recursive);
        }
        WriteMissingIcons(m_installation);
        ASSERT_EQ(m_installation.Findings(), "");
    }
    fs::path Path(const char* name) const { return m_installation.Directory().Path() / name; }

    /// That this is the only finding, and what its mend says.
    void ExpectOne(const std::string& place, std::wstring_view mend) const {
        EXPECT_EQ(m_installation.Findings(), place + ":1:1 missing-file\n");
        for (const Diagnostic& finding : m_installation.Check()) {
            EXPECT_NE(finding.fix.find(mend), std::wstring::npos) << wstring2String(finding.fix);
        }
    }

    CheckedInstallation m_installation{WithoutTables::IsReported};
};

TEST_F(MissingFile, TheRibbonThatTheStatusBarAndTheTablesNeedIsOneFinding) {
    fs::remove(Path("cfg/ribbon.xml"));
    ExpectOne("cfg/ribbon.xml", L"put the ribbon file to the others");
}

TEST_F(MissingFile, WithoutTablesItIsTheStatusBarThatShowsThatTheRibbonIsMissing) {
    fs::remove(Path("cfg/ribbon.xml"));
    fs::remove(Path("cfg/menu.xml"));
    fs::remove(Path("cfg/keys.xml"));
    fs::remove(Path("cfg/toolbar.xml"));
    fs::remove_all(Path("lang"));
    EXPECT_EQ(m_installation.Findings().substr(0, 31), "cfg/ribbon.xml:1:1 missing-file");
    EXPECT_EQ(m_installation.Findings().find("unknown-"), std::string::npos);
}

TEST_F(MissingFile, OneOfNearlyThatNameIsNamed) {
    constexpr const char* names[][3] = {
        {"cfg/ribbon.xml", "cfg/ribon.xml", "ribon.xml"},        {"cfg/ribbon.xml", "cfg/Ribbbon.xml", "Ribbbon.xml"},
        {"cfg/ribbon.xml", "cfg/ribbon.xm", "ribbon.xm"},        {"cfg/ribbon.xml", "cfg/bars.xml", "bars.xml"},
        {"cfg/ribbon.xml", "ribbon.xml", "into the folder cfg"}, {"cfg/menu.xml", "cfg/meun.xml", "meun.xml"},
        {"cfg/toolbar.xml", "cfg/tolbar.xml", "tolbar.xml"}};
    for (const auto& [name, other, mend] : names) {
        SCOPED_TRACE(other);
        fs::rename(Path(name), Path(other));
        ExpectOne(name, string2wstring(mend));
        fs::rename(Path(other), Path(name));
    }
}

TEST_F(MissingFile, OneOfNearlyThatNameIsNamedWhereNothingElseIsThere) {
    for (const char* name : {"menu.xml", "toolbar.xml", "keys.xml", "status-edit.xml", "status-print.xml"}) {
        fs::remove(Path("cfg") / name);
    }
    fs::rename(Path("cfg/ribbon.xml"), Path("cfg/ribon.xml"));
    ExpectOne("cfg/ribbon.xml", L"ribon.xml");
}

TEST_F(MissingFile, AFileThatAProgramNamesItselfIsNotOneOfTheOthers) {
    m_installation.Write("cfg/bars.xml", MenuWith("<item KEYWORD=\"Undo\" MENUNAME=\"\"/>"));
    m_installation.Write("cfg/menus.txt", "the menus");
    EXPECT_EQ(m_installation.Findings(), "");
}

TEST(MissingFiles, AProgramMayHaveOnlySomeOfThem) {
    const std::string unit = CheckedInstallation::Unit("Undo", "Undo") + CheckedInstallation::Unit("Edit", "Edit");
    const CheckedInstallation installation(WithoutTables::IsReported);
    installation.WriteTable("en", unit);
    installation.Write("cfg/menu.xml", MenuWith("<item KEYWORD=\"Undo\" MENUNAME=\"\"/>"));
    EXPECT_EQ(installation.Findings(), "");
    installation.Write("cfg/status.xml",
                       "<ribbon><row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"Undo\" NAME=\"\"/><item "
                       "KEYWORD=\"Undo\" NAME=\"\"/><item KEYWORD=\"Unddo\" NAME=\"\"/></row></ribbon>");
    EXPECT_EQ(installation.Findings(), "cfg/status.xml:1:104 unknown-status-button\n"); // a slip, and no lost ribbon
}

TEST_F(MissingFile, TheFolderOfTheTablesIsOneFinding) {
    fs::rename(Path("lang"), Path("languages"));
    ExpectOne("lang", L"call the folder \"languages\" lang");
    fs::rename(Path("languages"), Path("elsewhere"));
    ExpectOne("lang", L"--extract LANG");
    fs::create_directories(Path("lang/en"));
    ExpectOne("lang", L"--extract LANG");
}

TEST_F(MissingFile, WithoutTablesOtherFaultsAreSaidAsEver) {
    fs::remove_all(Path("lang"));
    fs::remove(Path("cfg/status-edit.xml"));
    m_installation.Write("cfg/status-edit.xml",
                         "<ribbon><row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"None\" NAME=\"\"/></row></ribbon>");
    EXPECT_EQ(m_installation.Findings(), "cfg/status-edit.xml:1:44 unknown-status-button\nlang:1:1 missing-file\n");
}

TEST(MissingFiles, WhatAsksForNoTextNeedsNoTables) {
    const CheckedInstallation installation(WithoutTables::IsReported);
    installation.Write("cfg/toolbar.xml", ToolBarWith("<item TYPE=\"qkLayerCheckCtrl\" KEYWORD=\"List\"/>"));
    EXPECT_EQ(installation.Findings(), "");
    installation.Write("cfg/ribbon.xml", "<ribbon><row><category KEYWORD=\"In\" NAME=\"\"/></row></ribbon>");
    EXPECT_EQ(installation.Findings(), "lang:1:1 missing-file\n");
    EXPECT_EQ(installation.Findings({L"cfg/ribbon.xml"}), ""); // one file is looked at by itself
}

TEST(MissingFiles, TablesThatNobodyReadsAreTheirOwnFault) {
    const CheckedInstallation installation(WithoutTables::IsReported);
    WriteSample(installation);
    fs::rename(installation.Directory().Path() / "lang" / "en" / "a.xlf",
               installation.Directory().Path() / "lang" / "en" / "a.xliff");
    fs::remove_all(installation.Directory().Path() / "lang" / "de");
    EXPECT_EQ(installation.Findings(), "lang/en/a.xliff:1:1 bad-table\n");
}

} // namespace
