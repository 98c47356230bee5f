#include "config/load_watch.h"

#include "config/check/configuration_check.h"
#include "config/menu_file.h"
#include "config/ribbon_file.h"
#include "config/toolbar_file.h"
#include "configuration_problems.h"
#include "menu_id_mgr.h"
#include "tests/unit/barcheck/sample_installation.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iterator>
#include <set>
#include <string_view>

namespace {

class MenuReading : public MenuFileVisitor {
    void VisitItem(const MenuInfo& /*info*/, std::size_t /*level*/) override {}
    void VisitPopup(const MenuInfo& /*info*/, std::size_t /*level*/) override {}
    void LeaveBranch() override {}
};

class ToolBarReading : public ToolBarFileVisitor {
    void VisitGroup(const ToolBarInfo& /*info*/) override {}
    bool VisitToolBar(const ToolBarInfo& /*info*/) override { return true; }
    void VisitButton(const ToolBarInfo& /*info*/) override {}
};

/// The sample installation, checked by the checker and loaded by a program that listens.
class SinkAndChecker : public testing::Test {
protected:
    SinkAndChecker() : m_appPath(m_installation.Directory().Prefix()) { WriteSample(m_installation); }
    ~SinkAndChecker() override {
        CMultiLanguageMgr::SetLanguage(L"");
        CMenuIdMgr::Destroy();
    }

    /// "file:line:column code", one a line, of all files as a program loads them, in one language.
    std::string Heard(const std::wstring& language) {
        std::string text;
        CMenuIdMgr::Destroy();
        CMultiLanguageMgr::SetLanguage(L"");
        CMultiLanguageMgr::SetLanguage(language);
        const ConfigurationProblemSink earlier =
            SetConfigurationProblemSink([this, &text](const ConfigurationProblem& problem) {
                std::wstring file = problem.file.substr(m_installation.Directory().Prefix().size());
                std::ranges::replace(file, L'\\', L'/');
                text += wstring2String(file) + ":" + std::to_string(problem.line) + ":" +
                        std::to_string(problem.column) + " " + problem.code + "\n";
            });
        Load(L"ribbon", [](const std::wstring& path, DiagnosticsSink& sink) {
            RibbonRecords records;
            LoadRibbonFile(path, records, sink);
        });
        Load(L"menu", [](const std::wstring& path, DiagnosticsSink& sink) {
            MenuReading reading;
            LoadMenuFile(path, reading, sink);
        });
        Load(L"toolbar", [](const std::wstring& path, DiagnosticsSink& sink) {
            ToolBarReading reading;
            LoadToolBarFile(path, reading, sink);
        });
        SetConfigurationProblemSink(earlier);
        return text;
    }

    const CheckedInstallation m_installation;

private:
    /// Reads a file as a builder does, which registers its commands.
    void Load(const std::wstring& name,
              const std::function<void(const std::wstring& path, DiagnosticsSink& sink)>& read) const {
        const std::wstring directory = m_installation.Directory().Prefix();
        const std::wstring file = L"cfg/" + name + L".xml";
        {
            LoadWatch watch;
            read(directory + file, watch.Sink());
        }
        GatheringSink gathered;
        GatherConfiguration({directory, {file}, {}}, gathered);
        static int id = CMenuIdMgr::s_AddBeginID;
        for (const GatheredElement& one : gathered.Elements()) {
            const ElementRole role = one.element.role;
            if (role != ElementRole::QuickAccessItem && role != ElementRole::StatusButton) {
                CMenuIdMgr::Ins()->Add(std::wstring(one.element.ValueOf(AttributeUse::Keyword)), ++id, L"", L"", L"",
                                       L"", L"");
            }
        }
    }

    ScopedAppPath m_appPath;
};

/// Whether a place is in a file that is loaded, and not in a table.
bool IsInConfiguration(const std::wstring& file) { return file.starts_with(L"cfg/"); }

/// What the checker finds and the sink tells, as well: not what is wrong with a table by itself, which no file that is
/// loaded has to do with.
std::string FoundForFiles(const CheckedInstallation& installation, const std::wstring& language,
                          std::set<std::string>& ofTables) {
    std::string text;
    for (const Diagnostic& finding : installation.Check({}, language)) {
        if (IsInConfiguration(finding.file) || std::ranges::any_of(finding.related, [](const RelatedPlace& place) {
                return IsInConfiguration(place.file);
            })) {
            text += CheckedInstallation::Describe(finding);
        } else {
            ofTables.emplace(finding.code);
        }
    }
    return text;
}

TEST_F(SinkAndChecker, EachPlantedFaultIsHeardAsItIsFound) {
    EXPECT_EQ(Heard(L"de"), "");
    std::set<std::string> ofTables;
    for (const PlantedFault& fault : kPlantedFaults) {
        m_installation.Write(fault.file, TextWithFault(fault));
        const std::wstring language = std::string_view(fault.file).starts_with("lang/en") ? L"en" : L"de";
        const std::string found = FoundForFiles(m_installation, language, ofTables);
        EXPECT_TRUE(!found.empty() || std::string_view(fault.file).starts_with("lang/")) << fault.code;
        EXPECT_EQ(Heard(language), found) << fault.code << " " << fault.before << "\n-> " << fault.after;
        for (const SampleFile& file : SampleFiles()) {
            m_installation.Write(file.name, file.text);
        }
    }
    // What the documentation says that only the checker tells.
    const std::set<std::string> expected = {"bad-table",         "duplicate-text", "stray-text",
                                            "untranslated-text", "unused-text",    "xml-doctype",
                                            "xml-encoding",      "xml-reference",  "xml-syntax"};
    EXPECT_EQ(ofTables, expected);
}

TEST_F(SinkAndChecker, ATextWithoutRoomIsHeardWhenTheFileIsLoadedThatShowsIt) {
    std::string table = SampleTable("de");
    const std::string before = "<target>de Filter</target>";
    table.replace(table.find(before), before.size(), "<target>Something that is much longer than its field</target>");
    m_installation.Write("lang/de/a.xlf", table);
    const std::string found = m_installation.Findings({}, L"de");
    EXPECT_NE(found.find("lang/de/a.xlf"), std::string::npos);
    EXPECT_NE(found.find("long-text"), std::string::npos);
    EXPECT_EQ(Heard(L"de"), found);
}

TEST_F(SinkAndChecker, WhatStandsTwiceIsHeard) {
    const std::string popup = "    <popup KEYWORD=\"MenuEdit\" MENUNAME=\"\" SHORTKEY=\"E\">\n";
    std::string menu = SampleMenu();
    menu.insert(menu.find(popup), "    <popup KEYWORD=\"MenuEdit\" MENUNAME=\"\"/>\n");
    m_installation.Write("cfg/menu.xml", menu);
    const std::string found = m_installation.Findings({}, L"de");
    EXPECT_NE(found.find("duplicate-keyword"), std::string::npos) << found;
    EXPECT_EQ(Heard(L"de"), found);
}

TEST_F(SinkAndChecker, WithoutALanguageNoTextIsMissed) {
    std::filesystem::remove_all(m_installation.Directory().Path() / "lang");
    EXPECT_EQ(Heard(L""), "");
}

TEST_F(SinkAndChecker, AFileThatAnotherOneContradictsIsToldWhenItIsLoaded) {
    const std::string item = "<item KEYWORD=\"Open\" MENUNAME=\"\"";
    std::string menu = SampleMenu();
    menu.insert(menu.find(item) + item.size(), " CMD=\"other\"");
    m_installation.Write("cfg/menu.xml", menu);
    EXPECT_EQ(Heard(L"en"), m_installation.Findings({}, L"en"));
    EXPECT_NE(Heard(L"en").find("cfg/menu.xml:5:13 duplicate-keyword"), std::string::npos);
}

} // namespace
