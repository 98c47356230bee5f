#include "config/toolbar_file.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// Writes down what is visited: "[G" for a group, "(title" for a toolbar, "type:keyword" for a button.
class Outline : public ToolBarFileVisitor {
public:
    void VisitFile() override { ++files; }
    void VisitGroup(const ToolBarInfo& info) override { Note(L"[" + info.strKeyword); }
    bool VisitToolBar(const ToolBarInfo& info) override {
        Note(L"(" + info.strPrompt);
        return info.strPrompt != L"closed";
    }
    void VisitButton(const ToolBarInfo& info) override {
        Note(info.strType + L":" + info.strKeyword);
        last = info;
    }

    int files = 0;
    std::wstring text;
    ToolBarInfo last;

private:
    void Note(const std::wstring& what) { text += (text.empty() ? L"" : L" ") + what; }
};

class CodeSink : public DiagnosticsSink {
public:
    void Report(const Diagnostic& diagnostic) override {
        codes.push_back(std::string(diagnostic.code) + "@" + std::to_string(diagnostic.position.column));
    }
    std::vector<std::string> codes;
};

class ToolBarFile : public testing::Test {
protected:
    bool Load(const std::string& bytes) {
        return LoadToolBarFile(m_directory.Write("toolbar.xml", bytes), outline, sink);
    }
    TemporaryDirectory m_directory;
    Outline outline;
    CodeSink sink;
};

TEST_F(ToolBarFile, GroupsToolbarsAndButtonsAreThreeLevelsWhateverTheirNames) {
    ASSERT_TRUE(Load("<x><a KEYWORD='G'><b PROMPT='1'><c TYPE='button' KEYWORD='A' PROMPT='a'/><d TYPE='separate'/></b>"
                     "<b PROMPT='2'/></a><a KEYWORD='H'/></x>"));
    EXPECT_EQ(outline.text, L"[G (1 button:A separate: (2 [H");
    EXPECT_TRUE(sink.codes.empty());
}

TEST_F(ToolBarFile, AFourthLevelIsNotRead) {
    ASSERT_TRUE(Load(
        "<x><a KEYWORD='g'><b PROMPT='p'><c TYPE='button' KEYWORD='A' PROMPT='a'><d TYPE='button' KEYWORD='B'/></c></b>"
        "</a></x>"));
    EXPECT_EQ(outline.text, L"[g (p button:A");
    EXPECT_EQ(sink.codes, (std::vector<std::string>{"children-lost@33"}));
}

TEST_F(ToolBarFile, TheButtonsOfARefusedToolbarAreNotRead) {
    ASSERT_TRUE(Load("<x><a><b PROMPT='closed'><c TYPE='button' KEYWORD='A'/></b><b PROMPT='2'/></a></x>"));
    EXPECT_EQ(outline.text, L"[ (closed (2");
}

TEST_F(ToolBarFile, AttributeNamesAreReadInAnyCase) {
    ASSERT_TRUE(Load("<x><a><b><c type='Button' Prompt='p' picPath='i' KEYword='k' toolTIP='t'/></b></a></x>"));
    EXPECT_EQ(outline.last.strType, L"Button");
    EXPECT_EQ(outline.last.strPrompt, L"p");
    EXPECT_EQ(outline.last.strPicPath, L"i");
    EXPECT_EQ(outline.last.strKeyword, L"k");
    EXPECT_EQ(outline.last.strToolTip, L"t");
}

TEST_F(ToolBarFile, FieldsOfOneElementDoNotReachTheNext) {
    ASSERT_TRUE(Load("<x><a><b PROMPT='p'><c TYPE='button' PROMPT='p' PICPATH='i' KEYWORD='k' TOOLTIP='t'/>"
                     "<c TYPE='separate'/></b></a></x>"));
    EXPECT_EQ(outline.last.strPrompt + outline.last.strPicPath + outline.last.strKeyword + outline.last.strToolTip,
              L"");
}

TEST_F(ToolBarFile, TypesAreComparedInAnyCase) {
    EXPECT_EQ(ToolBarItemKindOf(L"SEPARATE"), ToolBarItemKind::Separator);
    EXPECT_EQ(ToolBarItemKindOf(L"Button"), ToolBarItemKind::Button);
    EXPECT_EQ(ToolBarItemKindOf(L"qklayercheckctrl"), ToolBarItemKind::CheckCombo);
    EXPECT_EQ(ToolBarItemKindOf(L"QkLayerMultiCtrl"), ToolBarItemKind::MultiCombo);
    EXPECT_EQ(ToolBarItemKindOf(L"QKLAYERMULTICTRL2"), ToolBarItemKind::MultiCombo2);
    EXPECT_EQ(ToolBarItemKindOf(L"buttons"), ToolBarItemKind::Unknown);
    EXPECT_EQ(ToolBarItemKindOf(L""), ToolBarItemKind::Unknown);
}

struct DiagnosticCase {
    const char* xml;
    std::vector<std::string> expected;
};

TEST_F(ToolBarFile, EveryProblemIsReportedOnceWithItsPlace) {
    const DiagnosticCase cases[] = {
        {"<a KEYWORD='g'><b PROMPT='p'><c TYPE='Separate'/></b></a>", {}},
        {"<a><b><c TYPE='separate'/></b></a>", {"missing-keyword@1", "missing-caption@4"}},
        {"<a KEYWORD='g'><b PROMPT='p'><c TYPE='slider' KEYWORD='A'/></b></a>", {"unknown-type@33"}},
        {"<a KEYWORD='g'><b PROMPT='p'><c KEYWORD='A'/></b></a>", {"missing-type@30"}},
        {"<a KEYWORD='g'><b PROMPT='p'><c TYPE='button'/></b></a>", {"missing-keyword@30"}},
        {"<a KEYWORD='g'><b PROMPT='p'><c TYPE='button' KEYWORD='k'/></b></a>", {"missing-caption@30"}},
        {"<a KEYWORD='g'><b PROMPT='p'><c/></b></a>", {"no-attributes@30"}},
        {"<a KEYWORD='g'><b PROMPT='p'><c TYPE='separate' WIDTH='1'/></b></a>", {"unknown-attribute@49"}},
        {"<a KEYWORD='g'><b PROMPT='p'><c TYPE='button' KEYWORD='k' KEYWORD='l' PROMPT='a'/></b></a>",
         {"duplicate-attribute@59"}},
        {"<a KEYWORD='g' TYPE='button'><b><c/></b></a>", {"wrong-depth@16"}},
        {"<a KEYWORD='g'><b TYPE='button' KEYWORD='k'><c/></b></a>", {"wrong-depth@19"}},
    };
    for (const DiagnosticCase& diagnosticCase : cases) {
        sink.codes.clear();
        ASSERT_TRUE(Load("<x>\n" + std::string(diagnosticCase.xml) + "</x>"));
        EXPECT_EQ(sink.codes, diagnosticCase.expected) << diagnosticCase.xml;
    }
}

TEST_F(ToolBarFile, AFileThatCannotBeReadVisitsNothing) {
    EXPECT_FALSE(Load("<x><a KEYWORD='G'>"));
    EXPECT_FALSE(LoadToolBarFile(m_directory.Prefix() + L"missing.xml", outline, sink));
    EXPECT_EQ(outline.text, L"");
    EXPECT_EQ(outline.files, 0);
    EXPECT_EQ(sink.codes, (std::vector<std::string>{"xml-syntax@18", "missing-file@1"}));
}

TEST_F(ToolBarFile, AFileThatCanBeReadIsVisitedOnceAlsoWithoutGroups) {
    ASSERT_TRUE(Load("<x/>"));
    EXPECT_EQ(outline.files, 1);
    EXPECT_EQ(outline.text, L"");
}

} // namespace
