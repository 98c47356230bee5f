#include "config/load_watch.h"

#include "config/check/configuration_check.h"
#include "config/check/read_file.h"
#include "configuration_problems.h"
#include "menu_id_mgr.h"
#include "tests/unit/barcheck/sample_installation.h"

#include "tests/support/heard_problems.h"

#include <varnhold/file_op.h>
#include <varnhold/language.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string_view>

namespace {

namespace fs = std::filesystem;

/// The sample installation, checked by the checker and loaded by a program that listens all the time.
class SinkAndChecker : public testing::Test {
protected:
    SinkAndChecker() : m_appPath(m_installation.Directory().Prefix()) {
        WriteSample(m_installation);
        for (const SampleFile& file : SampleFiles()) {
            WriteLongAgo(file.name, file.text);
        }
    }
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
        Load(L"ribbon", ConfigurationKind::Ribbon);
        Load(L"menu", ConfigurationKind::Menu);
        Load(L"toolbar", ConfigurationKind::ToolBars);
        SetConfigurationProblemSink(earlier);
        return text;
    }

    /// As a file that was written some hours ago, each later than the one before: what is read of such files is kept.
    void WriteLongAgo(const std::string& name, const std::string& text) {
        m_installation.Write(name, text);
        SetTime(name, ++m_written);
    }
    /// `seconds`: from a time that lies some hours back.
    void SetTime(const std::string& name, int seconds) const {
        fs::last_write_time(m_installation.Directory().Path() / name, m_longAgo + std::chrono::seconds(seconds));
    }

    const CheckedInstallation m_installation;

private:
    /// Reads a file as a builder does, which registers its commands.
    void Load(const std::wstring& name, ConfigurationKind kind) const {
        const std::wstring directory = m_installation.Directory().Prefix();
        const std::wstring file = L"cfg/" + name + L".xml";
        {
            LoadWatch watch;
            ReadConfigurationFile(directory + file, kind, watch.Sink());
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
    const HeardProblems m_listener;
    const fs::file_time_type m_longAgo = fs::file_time_type::clock::now() - std::chrono::hours(10);
    int m_written = 0;
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
        WriteLongAgo(fault.file, TextWithFault(fault));
        const std::wstring language = std::string_view(fault.file).starts_with("lang/en") ? L"en" : L"de";
        const std::string found = FoundForFiles(m_installation, language, ofTables);
        EXPECT_TRUE(!found.empty() || std::string_view(fault.file).starts_with("lang/")) << fault.code;
        EXPECT_EQ(Heard(language), found) << fault.code << " " << fault.before << "\n-> " << fault.after;
        for (const SampleFile& file : SampleFiles()) {
            WriteLongAgo(file.name, file.text);
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
    fs::remove_all(m_installation.Directory().Path() / "lang");
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

/// A change that leaves the file's length as it is. What is wrong then is told by another file, or about the file that
/// is loaded, and not by its own reading.
struct QuietChange {
    const char* file;
    const char* before;
    const char* after;
    const char* heard;
};
const QuietChange kQuietChanges[] = {
    {"cfg/ribbon.xml", "CMD=\"open\"", "CMD=\"load\"", "cfg/menu.xml:5:13 duplicate-keyword\n"},
    {"lang/de/a.xlf", "id=\"Print\"", "id=\"Paint\"", "cfg/menu.xml:6:13 missing-text\n"},
    {"pic/icon/16/save.ico", "\x01", "\x03", "cfg/ribbon.xml:17:73 icon-format\n"}, // which says that it is an icon
};

class KeptReading : public SinkAndChecker {
protected:
    KeptReading() {
        std::string menu = SampleMenu();
        const std::string item = "<item KEYWORD=\"Open\" MENUNAME=\"\"";
        WriteLongAgo("cfg/menu.xml", menu.insert(menu.find(item) + item.size(), " CMD=\"open\""));
    }
    /// Without a trace in the file's length and time.
    void ChangeQuietly(const QuietChange& change) const {
        const fs::path path = m_installation.Directory().Path() / change.file;
        const fs::file_time_type time = fs::last_write_time(path);
        std::string text = Contents(path);
        const std::size_t place = text.find(change.before);
        ASSERT_NE(place, std::string::npos) << change.before;
        text.replace(place, std::strlen(change.before), change.after);
        m_installation.Write(change.file, text);
        fs::last_write_time(path, time);
    }

private:
    static std::string Contents(const fs::path& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

TEST_F(KeptReading, AFileOfTheSameLengthAndTimeIsNotReadAgainByTheLoadOfAnother) {
    SetTime("pic/icon/16/save.ico", 0);
    for (const QuietChange& change : kQuietChanges) {
        EXPECT_EQ(Heard(L"de"), "") << change.file;
        ChangeQuietly(change);
        EXPECT_EQ(Heard(L"de"), "") << change.file;
        SetTime(change.file, -1);
        EXPECT_EQ(Heard(L"de"), change.heard);
        ChangeQuietly({change.file, change.after, change.before, ""});
        SetTime(change.file, -2);
    }
}

TEST_F(KeptReading, AFileThatWasWrittenAMomentAgoIsReadAgain) {
    for (const QuietChange& change : kQuietChanges) {
        fs::last_write_time(m_installation.Directory().Path() / change.file, fs::file_time_type::clock::now());
        EXPECT_EQ(Heard(L"de"), "") << change.file;
        ChangeQuietly(change);
        EXPECT_EQ(Heard(L"de"), change.heard);
        ChangeQuietly({change.file, change.after, change.before, ""});
    }
}

TEST_F(KeptReading, WhatIsAddedAndTakenAwayIsNoticed) {
    EXPECT_EQ(Heard(L"de"), "");
    const fs::path folder = m_installation.Directory().Path();
    fs::rename(folder / "lang/de/a.xlf", folder / "lang/de/b.txt");
    WriteLongAgo("lang/de/c.xlf", CheckedInstallation::Table(CheckedInstallation::Unit("Open", "Auf"), "de"));
    const std::string without = Heard(L"de");
    EXPECT_NE(without.find("missing-text"), std::string::npos);
    EXPECT_EQ(without, m_installation.Findings({}, L"de"));
    fs::rename(folder / "lang/de/b.txt", folder / "lang/de/d.xlf");
    EXPECT_EQ(Heard(L"de"), "");
    WriteLongAgo("cfg/status.xml", RibbonWith("<item KEYWORD=\"Undo\" TYPE=\"BUTTON\"/>"));
    EXPECT_EQ(Heard(L"de"), "cfg/menu.xml:14:13 duplicate-keyword\n");
    fs::remove(folder / "cfg/status.xml");
    EXPECT_EQ(Heard(L"de"), "");
}

TEST_F(KeptReading, NothingIsKeptForNobody) {
    SetConfigurationProblemSink({});
    EXPECT_EQ(Heard(L"de"), "");
    ChangeQuietly(kQuietChanges[1]);
    EXPECT_EQ(Heard(L"de"), kQuietChanges[1].heard);
}

} // namespace
