#include "config/menu_file.h"
#include "tests/support/translation_tables.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// Writes down what is visited: "0 K" for an item, "1 -" for a separator, "0 K>" for a popup, "." at the end of a
/// branch.
class Outline : public MenuFileVisitor {
public:
    void VisitItem(const MenuInfo& info, std::size_t level) override {
        Note(level, info.bSeparator ? L"-" : info.strKeyword);
    }
    void VisitPopup(const MenuInfo& info, std::size_t level) override { Note(level, info.strKeyword + L">"); }
    void LeaveBranch() override { m_text += L"."; }

    std::wstring m_text;

private:
    void Note(std::size_t level, const std::wstring& what) {
        m_text += L" " + std::to_wstring(level) + what;
        m_deepest = std::max(m_deepest, level);
    }

public:
    std::size_t m_deepest = 0;
};

class MenuFile : public testing::Test {
protected:
    bool Load(const std::string& bytes, Outline& outline) {
        return LoadMenuFile(m_directory.Write("menu.xml", bytes), outline, DroppedDiagnostics());
    }
    std::wstring Load(const std::string& branches) {
        Outline outline;
        EXPECT_TRUE(Load("<menu>" + branches + "</menu>", outline));
        return outline.m_text;
    }

    TemporaryDirectory m_directory;
};

TEST_F(MenuFile, ChildWithoutChildrenIsAnItemOfTheTopMenu) {
    EXPECT_EQ(Load("<i KEYWORD='A'/><i MENUNAME='SEPARATOR'/><i KEYWORD='B'/>"), L" 0A. 0-. 0B.");
}

TEST_F(MenuFile, ChildWithChildrenIsAGroupThatDoesNotShow) {
    EXPECT_EQ(Load("<g KEYWORD='G'><i KEYWORD='A'/><i KEYWORD='B'/><i KEYWORD='C'/></g>"), L" 0A 0B 0C.");
}

TEST_F(MenuFile, BelowAGroupEveryElementWithChildrenIsAPopup) {
    EXPECT_EQ(Load("<g><p KEYWORD='P'><i KEYWORD='A'/><q KEYWORD='Q'><i KEYWORD='B'/></q><i KEYWORD='C'/></p>"
                   "<i KEYWORD='D'/></g><i KEYWORD='E'/>"),
              L" 0P> 1A 1Q> 2B 1C 0D. 0E.");
}

TEST_F(MenuFile, ElementNamesCommentsAndTextsDoNotCount) {
    EXPECT_EQ(Load("text<SEPARATOR KEYWORD='A'><!-- no child -->text</SEPARATOR>"), L" 0A.");
}

TEST_F(MenuFile, ItemWithoutAttributesIsLeftOutAndAPopupStays) {
    EXPECT_EQ(Load("<g><i/><p><i KEYWORD='A'/><i/></p></g><i/>"), L" 0> 1A..");
}

TEST_F(MenuFile, EmptyDocumentElementGivesAnEmptyMenu) { EXPECT_EQ(Load(""), L""); }

TEST_F(MenuFile, NestingOf5000IsReadWithoutTheStack) {
    std::string open;
    std::string close;
    for (int depth = 0; depth < 5000; ++depth) {
        open += "<p KEYWORD='P'>";
        close += "</p>";
    }
    Outline outline;
    ASSERT_TRUE(Load("<menu>" + open + "<i KEYWORD='A'/>" + close + "</menu>", outline));
    EXPECT_EQ(outline.m_deepest, 4999u);
}

TEST_F(MenuFile, FileThatCannotBeReadVisitsNothing) {
    Outline outline;
    EXPECT_FALSE(Load("<menu><i KEYWORD='A'/>", outline));
    EXPECT_FALSE(LoadMenuFile(m_directory.Prefix() + L"missing.xml", outline, DroppedDiagnostics()));
    EXPECT_EQ(outline.m_text, L"");
}

TEST_F(MenuFile, FieldsOfOneElementDoNotReachTheNext) {
    class Second : public Outline {
        void VisitItem(const MenuInfo& info, std::size_t level) override {
            Outline::VisitItem(info, level);
            m_last = info;
        }

    public:
        MenuInfo m_last;
    } visitor;
    ASSERT_TRUE(Load("<m><i KEYWORD='A' MENUNAME='' SHORTKEY='s' HOTKEY='h' TOOLTIP='' CMD='c' Param='p' PicPath='i'/>"
                     "<i KEYWORD='B'/></m>",
                     visitor));
    const MenuInfo& info = visitor.m_last;
    EXPECT_EQ(info.strKeyword, L"B");
    EXPECT_EQ(info.strName + info.strShortKey + info.strHotKey + info.strText + info.strCmd + info.strToolTip +
                  info.strPicPath + info.strParam,
              L"");
}

class CodeSink : public DiagnosticsSink {
public:
    void Report(const Diagnostic& diagnostic) override {
        m_codes.push_back(std::string(diagnostic.code) + "@" + std::to_string(diagnostic.position.column));
    }
    std::vector<std::string> m_codes;
};

struct DiagnosticCase {
    const char* xml;
    std::vector<std::string> expected;
};

TEST_F(MenuFile, EveryProblemIsReportedOnceWithItsPlace) {
    const DiagnosticCase cases[] = {
        {"<g><p KEYWORD='P' MENUNAME=''><i KEYWORD='A' MENUNAME=''/><i MENUNAME='separator'/></p></g>", {}},
        {"<i KEYWORD='QK_DEF_ZJWJ'/>", {}},
        {"<g KEYWORD='G'><i KEYWORD='A' MENUNAME=''/></g>", {}},
        {"<g KEYWORD='G' MENUNAME='' SHORTKEY='G'><i KEYWORD='A' MENUNAME=''/></g>", {"wrong-depth@16"}},
        {"<i/>", {"no-attributes@1"}},
        {"<g><p><i KEYWORD='A' MENUNAME=''/></p></g>", {"no-attributes@4"}},
        {"<i MENUNAME=''/>", {"missing-keyword@1"}},
        {"<i KEYWORD='' MENUNAME=''/>", {"missing-keyword@4"}},
        {"<i KEYWORD='A'/>", {"missing-caption@1"}},
        {"<g><p KEYWORD='P'><i KEYWORD='A' MENUNAME=''/></p></g>", {"missing-caption@4"}},
        {"<g><p MENUNAME=''><i KEYWORD='A' MENUNAME=''/></p></g>", {"missing-keyword@4"}},
        {"<i MENUNAME='' KEYWORD='A'/>", {"attribute-order@4"}},
        {"<i KEYWORD='A' MENUNAM=''/>", {"unknown-attribute@16"}},
        {"<i KEYWORD='A' MENUNAME='' menuname=''/>", {"duplicate-attribute@28"}},
        {"<i KEYWORD='A' MENUNAME='' HOTKEY='F5'/>", {"shortcut-syntax@28"}},
        {"<g><p KEYWORD='P' MENUNAME='' HOTKEY='Ctrl+P'><i KEYWORD='A' MENUNAME=''/></p></g>", {"lost-shortcut@31"}},
        {"text<i KEYWORD='A' MENUNAME=''/>", {"stray-text@1"}},
    };
    for (const DiagnosticCase& diagnosticCase : cases) {
        CodeSink sink;
        Outline outline;
        const std::string bytes = "<menu>\n" + std::string(diagnosticCase.xml) + "</menu>";
        ASSERT_TRUE(LoadMenuFile(m_directory.Write("menu.xml", bytes), outline, sink));
        EXPECT_EQ(sink.m_codes, diagnosticCase.expected) << diagnosticCase.xml;
    }
}

} // namespace
