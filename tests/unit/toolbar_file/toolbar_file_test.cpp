#include "config/toolbar_file.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// Writes down what is visited: "[G" for a group, "(title" for a toolbar, "type:keyword" for a button.
class Outline : public ToolBarFileVisitor {
public:
    void VisitGroup(const ToolBarInfo& info) override { Note(L"[" + info.strKeyword); }
    bool VisitToolBar(const ToolBarInfo& info) override {
        Note(L"(" + info.strPrompt);
        return info.strPrompt != L"closed";
    }
    void VisitButton(const ToolBarInfo& info) override {
        Note(info.strType + L":" + info.strKeyword);
        last = info;
    }

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
    ASSERT_TRUE(Load("<x><a KEYWORD='G'><b PROMPT='1'><c TYPE='button' KEYWORD='A'/><d TYPE='separate'/></b>"
                     "<b PROMPT='2'/></a><a KEYWORD='H'/></x>"));
    EXPECT_EQ(outline.text, L"[G (1 button:A separate: (2 [H");
    EXPECT_TRUE(sink.codes.empty());
}

TEST_F(ToolBarFile, AFourthLevelIsNotRead) {
    ASSERT_TRUE(Load("<x><a><b><c TYPE='button' KEYWORD='A'><d TYPE='button' KEYWORD='B'/></c></b></a></x>"));
    EXPECT_EQ(outline.text, L"[ ( button:A");
    EXPECT_EQ(sink.codes, (std::vector<std::string>{"children-ignored@10"}));
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

TEST_F(ToolBarFile, WhatHasNoEffectIsReported) {
    ASSERT_TRUE(Load("<x><a><b><c TYPE='slider' KEYWORD='A'/><c TYPE='button'/><c TYPE='separate' WIDTH='1'/></b></a>"
                     "</x>"));
    EXPECT_EQ(sink.codes, (std::vector<std::string>{"unknown-type@10", "no-keyword@40", "unknown-attribute@77"}));
}

TEST_F(ToolBarFile, AFileThatCannotBeReadVisitsNothing) {
    EXPECT_FALSE(Load("<x><a KEYWORD='G'>"));
    EXPECT_FALSE(LoadToolBarFile(m_directory.Prefix() + L"missing.xml", outline, sink));
    EXPECT_EQ(outline.text, L"");
    ASSERT_EQ(sink.codes.size(), 2u);
    EXPECT_EQ(sink.codes[0].substr(0, 15), "unreadable-file");
}

} // namespace
