#include "config/load_watch.h"

#include "config/menu_file.h"
#include "config/ribbon_file.h"
#include "menu_id_mgr.h"
#include "tests/support/heard_problems.h"
#include "tests/support/translation_tables.h"

#include <gtest/gtest.h>

namespace {

class LoadingWatched : public testing::Test {
protected:
    ~LoadingWatched() override { CMenuIdMgr::Destroy(); }

    /// Reads a ribbon file as a builder does.
    void Load(const std::string& rows) const {
        const std::wstring path = m_installation.Directory().Write("ribbon.xml", "<ribbon>\n" + rows + "</ribbon>");
        LoadWatch watch;
        RibbonRecords records;
        LoadRibbonFile(path, records, watch.Sink());
    }
    TranslatedInstallation m_installation;
};

TEST_F(LoadingWatched, NobodyListensUntilAHostDoes) {
    EXPECT_FALSE(LoadWatch().Sink().IsListening());
    HeardProblems problems;
    EXPECT_TRUE(LoadWatch().Sink().IsListening());
    EXPECT_EQ(problems.text, "");
}

TEST_F(LoadingWatched, ProblemsAreToldInTheOrderOfTheirPlaces) {
    HeardProblems problems;
    Load("<r><c KEYWORD='A' NAME=''>\n<p KEYWORD='p'><i KEYWORD='B' NAME='' TYPE='BUTTON' PICPATH='a\\b.ico'/>\n"
         "<i KEYWORD='C' colour='' NAME='' TYPE='BUTTON'/></p></c></r>");
    EXPECT_EQ(problems.text, "3:53 missing-icon\n4:16 unknown-attribute\n");
    EXPECT_TRUE(problems.last.file.ends_with(L"ribbon.xml"));
    EXPECT_EQ(problems.last.severity, ConfigurationProblem::Severity::Warning);
}

TEST_F(LoadingWatched, TextsAreLookedUpInTheLanguageInForce) {
    ASSERT_TRUE(m_installation.Translate("A B"));
    HeardProblems problems;
    Load("<r><c KEYWORD='A' NAME=''/><c KEYWORD='X' NAME=''/></r>");
    EXPECT_EQ(problems.text, "2:31 missing-text\n");
}

TEST_F(LoadingWatched, ReferencesToCommandsOfEarlierFilesLeadSomewhere) {
    CMenuIdMgr::Ins()->Add(L"Earlier", 41000, L"", L"", L"", L"", L"");
    HeardProblems problems;
    Load("<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='Earlier'/><i KEYWORD='Never'/></r>"
         "<r KEYWORD='StatusEx_btns'><i KEYWORD='Later'/></r>");
    EXPECT_EQ(problems.text, "2:59 unknown-quick-access\n");
}

TEST_F(LoadingWatched, AKeywordThatIsMisspeltOrLostIsOneProblem) {
    ASSERT_TRUE(m_installation.Translate("A Save"));
    HeardProblems problems;
    const std::string before = "<r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='Save'/></r>"
                               "<r><c KEYWORD='A' NAME=''><p KEYWORD='P'>\n";
    Load(before + "<i KEYWORD='Saev' NAME='' TYPE='BUTTON'/></p></c></r>");
    EXPECT_EQ(problems.text, "3:4 missing-text\n");
    problems.text.clear();
    Load(before + "<i NAME='' TYPE='BUTTON'/></p></c></r>");
    EXPECT_EQ(problems.text, "3:1 missing-keyword\n");
}

TEST_F(LoadingWatched, AFileThatIsNotLoadedIsTold) {
    HeardProblems problems;
    Load("<r>");
    EXPECT_EQ(problems.text, "2:4 xml-syntax\n");
}

TEST_F(LoadingWatched, ProblemsAreWrittenAsTheCheckerWritesThem) {
    const ConfigurationProblem problem{L"a.xml",     3,   4, ConfigurationProblem::Severity::Error, "bad-number",
                                       L"no number", L"", {}};
    EXPECT_EQ(FormatConfigurationProblem(problem), L"a.xml:3:4: error: no number [bad-number]");
    ConfigurationProblem mended = problem;
    mended.severity = ConfigurationProblem::Severity::Note;
    mended.fix = L"write one";
    EXPECT_EQ(FormatConfigurationProblem(mended), L"a.xml:3:4: note: no number [bad-number] (write one)");
}

} // namespace
