#include "config/ribbon_file.h"
#include "tests/support/growth.h"
#include "tests/support/translation_tables.h"

#include <varnhold/xml.h>

#include <gtest/gtest.h>

namespace {

RibbonRecords ReadRows(const std::string& xml, DiagnosticsSink& sink = DroppedDiagnostics()) {
    CXmlDocumentWrapper document;
    EXPECT_TRUE(document.LoadFromMemory(xml)) << xml;
    return ReadRibbonRows(varnhold::XmlCursor(document), FileDiagnostics(L"f.xml", sink));
}

/// Every record as "depth:keyword", in reading order.
void Describe(std::span<const RibbonRecord> records, int depth, std::wstring& out) {
    for (const RibbonRecord& record : records) {
        out += std::to_wstring(depth) + L":" + std::wstring(record.info.keyword) + L" ";
        Describe(record.children, depth + 1, out);
    }
}

std::wstring Outline(const std::string& xml) {
    std::wstring outline;
    Describe(ReadRows(xml).top, 1, outline);
    return outline;
}

const RibbonRecord& Below(const RibbonRecords& rows, std::initializer_list<std::size_t> path) {
    std::span<const RibbonRecord> records = rows.top;
    const RibbonRecord* record = nullptr;
    for (const std::size_t index : path) {
        record = &records[index];
        records = record->children;
    }
    return *record;
}

TEST(RibbonFileWalk, DepthAloneSaysWhatAnElementIs) {
    EXPECT_EQ(
        Outline("<any><row KEYWORD='r'><x KEYWORD='c'><row KEYWORD='p'><x KEYWORD='e'><y KEYWORD='s'/></x></row></x>"
                "</row></any>"),
        L"1:r 2:c 3:p 4:e 5:s ");
}

TEST(RibbonFileWalk, ChildrenAreVisitedInDocumentOrder) {
    EXPECT_EQ(Outline("<d><r KEYWORD='1'><c KEYWORD='a'><p KEYWORD='b'/><p KEYWORD='c'/></c><c KEYWORD='d'/></r>"
                      "<r KEYWORD='2'><c KEYWORD='e'/></r></d>"),
              L"1:1 2:a 3:b 3:c 2:d 1:2 2:e ");
}

TEST(RibbonFileWalk, ElementsBelowSubItemsAreNotRead) {
    EXPECT_EQ(
        Outline("<d><r KEYWORD='1'><r KEYWORD='2'><r KEYWORD='3'><r KEYWORD='4'><r KEYWORD='5'><r KEYWORD='6'/></r>"
                "</r></r></r></r></d>"),
        L"1:1 2:2 3:3 4:4 5:5 ");
}

TEST(RibbonFileWalk, TextsAndCommentsAreNoElements) {
    EXPECT_EQ(Outline("<d>text<!-- c --><r KEYWORD='1'>text<?pi?><c KEYWORD='2'/><![CDATA[<c/>]]></r></d>"),
              L"1:1 2:2 ");
}

TEST(RibbonFileWalk, DocumentElementsOwnAttributesAreNotRead) {
    EXPECT_EQ(
        Outline("<d KEYWORD='QK_Rbbion_QAToolbar' SIZE='x'><r KEYWORD='1'><c KEYWORD='2'><p KEYWORD='3'/></c></r></d>"),
        L"1:1 2:2 3:3 ");
}

TEST(RibbonFileWalk, EmptyDocumentHasNoRows) {
    EXPECT_EQ(Outline("<d/>"), L"");
    EXPECT_TRUE(
        ReadRibbonRows(varnhold::XmlCursor(CXmlNodeWrapper()), FileDiagnostics({}, DroppedDiagnostics())).top.empty());
}

TEST(RibbonFileWalk, RowKindsAreComparedWithLetterCase) {
    EXPECT_EQ(KindOfRow(L"QK_Rbbion_QAToolbar"), RibbonRowKind::QuickAccess);
    EXPECT_EQ(KindOfRow(L"StatusEx_btns"), RibbonRowKind::StatusButtons);
    for (const wchar_t* keyword : {L"", L"QK_Ribbon_QAToolbar", L"qk_rbbion_qatoolbar", L"StatusEx_Btns",
                                   L"statusex_btns", L"QK_Rbbion_QAToolbar "}) {
        EXPECT_EQ(KindOfRow(keyword), RibbonRowKind::Categories) << keyword;
    }
}

TEST(RibbonFileWalk, QuickAccessAndStatusRowsHaveOneLevel) {
    EXPECT_EQ(Outline("<d><r KEYWORD='QK_Rbbion_QAToolbar'><i KEYWORD='a'><p KEYWORD='no'/></i><i KEYWORD='b'/></r>"
                      "<r KEYWORD='StatusEx_btns'><i KEYWORD='c'><p KEYWORD='no'/></i></r>"
                      "<r KEYWORD='plain'><i KEYWORD='d'><p KEYWORD='yes'/></i></r></d>"),
              L"1:QK_Rbbion_QAToolbar 2:a 2:b 1:StatusEx_btns 2:c 1:plain 2:d 3:yes ");
}

TEST(RibbonFileWalk, RowWithoutAttributesHoldsCategories) {
    EXPECT_EQ(Outline("<d><r><c KEYWORD='a'><p KEYWORD='b'/></c></r></d>"), L"1: 2:a 3:b ");
}

TEST(RibbonFileWalk, IdKeyOfARowNamesItsKind) {
    EXPECT_EQ(Outline("<d><r IDKEY='StatusEx_btns'><i KEYWORD='a'><p KEYWORD='no'/></i></r>"
                      "<r idkey='QK_Rbbion_QAToolbar'><i KEYWORD='b'><p KEYWORD='no'/></i></r></d>"),
              L"1:StatusEx_btns 2:a 1:QK_Rbbion_QAToolbar 2:b ");
}

TEST(RibbonFileWalk, RowIsReadLikeAnyElement) {
    // After a number that is none nothing is read, so that the row has no keyword and holds categories.
    EXPECT_EQ(Outline("<d><r SIZE='x' KEYWORD='StatusEx_btns'><c KEYWORD='a'><p KEYWORD='b'/></c></r></d>"),
              L"1: 2:a 3:b ");
    EXPECT_EQ(Outline("<d><r SIZE='1' KEYWORD='StatusEx_btns' WIDTH='x'><c KEYWORD='a'><p KEYWORD='b'/></c></r></d>"),
              L"1:StatusEx_btns 2:a ");
    const auto rows = ReadRows("<d><r KEYWORD='r' TYPE='t' CMD='c' SIZE='7' help='h'/></d>");
    const RibbonTexts& row = Below(rows, {0}).info;
    EXPECT_EQ(row.type, L"t");
    EXPECT_EQ(row.cmd, L"c");
    EXPECT_EQ(row.size, 7);
    EXPECT_EQ(row.help, L"h");
}

TEST(RibbonFileWalk, ElementsThatCannotBeReadKeepTheirPlace) {
    EXPECT_EQ(Outline("<d><r KEYWORD='1'><c/><c SIZE='x' KEYWORD='no'><p KEYWORD='p'/></c></r></d>"),
              L"1:1 2: 2: 3:p ");
}

TEST(RibbonFileCarryOver, PanelKeepsItsCategorysPictureCommandAndParameter) {
    const auto rows = ReadRows("<d><r><c KEYWORD='c' NAME='' CMD='do' PARAM='with' PICDisPATH='grey' TYPE='t' SIZE='3'>"
                               "<p KEYWORD='p'/></c></r></d>");
    const RibbonTexts& panel = Below(rows, {0, 0, 0}).info;
    EXPECT_EQ(panel.cmd, L"do");
    EXPECT_EQ(panel.param, L"with");
    EXPECT_EQ(panel.picDisPath, L"grey");
    EXPECT_EQ(panel.type, L"");
    EXPECT_EQ(panel.size, 0);
}

TEST(RibbonFileCarryOver, PanelKeepsThoseOfThePanelBefore) {
    const auto rows = ReadRows("<d><r><c CMD='1' PARAM='c'><p KEYWORD='a' CMD='2'/><p KEYWORD='b'/><p/></c></r></d>");
    EXPECT_EQ(Below(rows, {0, 0, 1}).info.cmd, L"2");
    EXPECT_EQ(Below(rows, {0, 0, 1}).info.param, L"c");
    EXPECT_EQ(Below(rows, {0, 0, 2}).info.cmd, L"2");
}

TEST(RibbonFileCarryOver, CategoryStartsFresh) {
    const auto rows = ReadRows("<d><r CMD='row'><c CMD='1' PARAM='x'/><c KEYWORD='b'/></r></d>");
    EXPECT_EQ(Below(rows, {0, 0}).info.cmd, L"1");
    EXPECT_EQ(Below(rows, {0, 1}).info.cmd, L"");
    EXPECT_EQ(Below(rows, {0, 1}).info.param, L"");
}

TEST(RibbonFileCarryOver, ElementStartsFresh) {
    const auto rows =
        ReadRows("<d><r><c CMD='1'><p CMD='2' PARAM='x'><e KEYWORD='a' CMD='3'/><e KEYWORD='b'/></p></c></r></d>");
    EXPECT_EQ(Below(rows, {0, 0, 0, 0}).info.cmd, L"3");
    EXPECT_EQ(Below(rows, {0, 0, 0, 0}).info.param, L"");
    EXPECT_EQ(Below(rows, {0, 0, 0, 1}).info.cmd, L"");
}

TEST(RibbonFileCarryOver, SubItemKeepsThoseOfItsElementAndOfTheSubItemBefore) {
    const auto rows =
        ReadRows("<d><r><c><p><e CMD='1' PARAM='x'><s KEYWORD='a'/><s CMD='2'/><s KEYWORD='c'/></e></p></c></r></d>");
    EXPECT_EQ(Below(rows, {0, 0, 0, 0, 0}).info.cmd, L"1");
    EXPECT_EQ(Below(rows, {0, 0, 0, 0, 2}).info.cmd, L"2");
    EXPECT_EQ(Below(rows, {0, 0, 0, 0, 2}).info.param, L"x");
}

TEST(RibbonFileCarryOver, SingleElementIsReadLikeOneOfAFile) {
    CXmlDocumentWrapper document;
    ASSERT_TRUE(
        document.LoadFromMemory("<e KEYWORD='e' CMD='1'><s KEYWORD='a'><x KEYWORD='no'/></s><s CMD='2'/><s/></e>"));
    const RibbonRecords read =
        ReadRibbonElement(document.GetDocumentElement(), FileDiagnostics({}, DroppedDiagnostics()));
    const RibbonRecord& element = read.top[0];
    EXPECT_EQ(element.info.keyword, L"e");
    ASSERT_EQ(element.children.size(), 3u);
    EXPECT_EQ(element.children[0].info.cmd, L"1");
    EXPECT_TRUE(element.children[0].children.empty());
    EXPECT_EQ(element.children[2].info.cmd, L"2");
}

class CollectingSink : public DiagnosticsSink {
public:
    void Report(const Diagnostic& diagnostic) override {
        m_seen += std::string(diagnostic.code) + "@" + std::to_string(diagnostic.position.line) + ":" +
                  std::to_string(diagnostic.position.column) + " ";
        m_last = diagnostic;
    }
    std::string m_seen;
    Diagnostic m_last;
};

class CountingSink : public DiagnosticsSink {
public:
    void Report(const Diagnostic& diagnostic) override {
        ++m_count;
        m_lastColumn = std::max(m_lastColumn, diagnostic.position.column);
    }
    std::size_t m_count = 0;
    std::size_t m_lastColumn = 0;
};

struct DiagnosticCase {
    const char* xml;
    const char* expected;
};

constexpr DiagnosticCase diagnosticCases[] = {
    // Rows, categories and panels. Empty ones are filled by the program.
    {"<d><r><c KEYWORD='a' NAME=''><p KEYWORD='p'><e TYPE='group'><s KEYWORD='s' NAME='' "
     "TYPE='button'/></e></p></c></r></d>",
     ""},
    {"<d><r/></d>", ""},
    {"<d><r><c KEYWORD='a' NAME=''/></r></d>", ""},
    {"<d><r><c KEYWORD='a' NAME=''><p KEYWORD='p'/></c></r></d>", ""},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' colour='red'/></r></d>", "unknown-attribute@1:46 "},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' SIZE='16px'/></r></d>", "bad-number@1:46 "},
    {"<d><r KEYWORD='StatusEx_btns'><c NAME='' TOOLTIP='' KEYWORD='a'/></r></d>", "attribute-order@1:34 "},
    {"<d><r KEYWORD='StatusEx_btns'>\n <c KEYWORD='a' GROUPBEFORE='Y' CMD=''/></r></d>", "attribute-order@2:17 "},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' CMD='' GROUPBEFORE='Y'/></r></d>", ""},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' GROUPBEFORE='N' CMD=''/></r></d>", ""},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' GROUPBEFORE='yes'/></r></d>", "bad-flag@1:46 "},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' AcceptF1='0'/></r></d>", "bad-flag@1:46 "},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' AcceptF1='y' GROUPBEFORE=''/></r></d>", ""},
    {"<d><r><c KEYWORD='a' NAME='' CateTab='maybe'/></r></d>", "bad-flag@1:30 "},
    {"<d><r><c/></r></d>", "no-attributes@1:7 "},
    {"<d><r><c NAME=''><p/></c></r></d>", "missing-keyword@1:7 no-attributes@1:18 "},
    {"<d><r><c KEYWORD='' NAME=''><p NAME=''/></c></r></d>", "missing-keyword@1:10 missing-keyword@1:29 "},
    {"<d><r><c KEYWORD='a'><p CMD=''/></c></r></d>", "missing-caption@1:7 "},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a'><p/></c></r></d>", "children-lost@1:31 "},
    {"<d><r KEYWORD='QK_Rbbion_QAToolbar'><c KEYWORD='a'><p/></c><c CMD=''/></r></d>",
     "children-lost@1:37 missing-keyword@1:60 "},
    {"<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' IDKEY='b' keyword='c'/></r></d>",
     "duplicate-attribute@1:46 duplicate-attribute@1:56 "},
    // Levels.
    {"<d><r TYPE='BUTTON'><c/></r></d>", "wrong-depth@1:7 "},
    {"<d><r CATETAB='Y'><c/></r></d>", "wrong-depth@1:7 "},
    {"<d><r><c KEYWORD='StatusEx_btns'><p/></c></r></d>", "wrong-depth@1:10 "},
    {"<d><r><c KEYWORD='a' NAME=''><p KEYWORD='p' TYPE='BUTTON'><e/></p></c></r></d>", "wrong-depth@1:45 "},
};

struct PanelCase {
    const char* elements;
    /// Columns count from the first element.
    const char* expected;
};

constexpr PanelCase panelCases[] = {
    {"<e KEYWORD='e' NAME='' TYPE='button'/>", ""},
    {"<e KEYWORD='e' PICPATH='a' TYPE='button'/>", ""},
    {"<e KEYWORD='e' TYPE='BUTTON'/>", "missing-caption@1:1 "},
    {"<e KEYWORD='e' TYPE='label'/>", "missing-caption@1:1 "},
    {"<e KEYWORD='e' TYPE='slider'/>", ""},
    {"<e KEYWORD='e' NAME='' TYPE='lamp'/>", "unknown-type@1:24 "},
    {"<e KEYWORD='e' NAME='' TYPE='lamp'><x/></e>", "unknown-type@1:24 "},
    {"<e KEYWORD='e' NAME=''><x/></e>", "missing-type@1:1 "},
    {"<e KEYWORD='e' NAME='' TYPE=''/>", "missing-type@1:24 "},
    {"<e NAME='' TYPE='edit'/>", "missing-keyword@1:1 "},
    {"<e TYPE='group'/>", "empty-group@1:1 "},
    {"<e NAME='' TYPE='group'><s KEYWORD='s' NAME='' TYPE='group'/></e>", "missing-keyword@1:1 empty-group@1:25 "},
    {"<e KEYWORD='e' NAME='' TYPE='LABEL'><s/></e>", "children-lost@1:1 "},
    {"<e KEYWORD='e' NAME='' TYPE='button'><s KEYWORD='s' NAME='' TYPE='button'><t/></s></e>", "children-lost@1:38 "},
    {"<e KEYWORD='e' NAME='' TYPE='button' SIZE='24'/>", "odd-size@1:38 "},
    {"<e KEYWORD='e' NAME='' TYPE='button' SIZE='32'/>", ""},
    {"<e KEYWORD='e' TYPE='slider' WIDTH='-3'/>", "odd-size@1:30 "},
    {"<e KEYWORD='e' NAME='' TYPE='button' CATETAB='Y'/>", "wrong-depth@1:38 "},
    // What is misspelt is not missing besides.
    {"<e KEYWRD='e' NAME='' TYPE='button'/>", "unknown-attribute@1:4 "},
    {"<e KEYWORD='e' NAME='' TYYPE='button'/>", "unknown-attribute@1:24 "},
    {"<e KEYWORD='e' NNAME='' TYPE='button'/>", "unknown-attribute@1:16 "},
    // Nor is what stands behind a bad number.
    {"<e SIZE='x' KEYWORD='e' NAME='' TYPE='button'/>", "bad-number@1:4 "},
    // Sub-items that say less than the one before.
    {"<e KEYWORD='e' NAME='' TYPE='button' CMD='x'><s KEYWORD='s' NAME='' TYPE='button'/></e>", ""},
    {"<e KEYWORD='e' NAME='' TYPE='button'><s KEYWORD='s' NAME='' TYPE='button' CMD='x' PARAM='y'/>"
     "<s KEYWORD='t' NAME='' TYPE='button' PARAM=''/><s KEYWORD='u' NAME='' TYPE='button'/></e>",
     "inherited-value@1:94 inherited-value@1:141 "},
};

TEST(RibbonFileDiagnostics, EveryProblemIsReportedWithItsPlace) {
    for (const DiagnosticCase& diagnosticCase : diagnosticCases) {
        CollectingSink sink;
        ReadRows(diagnosticCase.xml, sink);
        EXPECT_EQ(sink.m_seen, diagnosticCase.expected) << diagnosticCase.xml;
    }
}

TEST(RibbonFileDiagnostics, EveryProblemOfAnElementIsReportedOnce) {
    const std::string before = "<d><r><c KEYWORD='c' NAME=''><p KEYWORD='p'>\n";
    for (const PanelCase& panelCase : panelCases) {
        CollectingSink sink;
        ReadRows(before + panelCase.elements + "</p></c></r></d>", sink);
        std::string expected = panelCase.expected;
        for (std::size_t at = expected.find("@1:"); at != std::string::npos; at = expected.find("@1:")) {
            expected.replace(at, 3, "@2:");
        }
        EXPECT_EQ(sink.m_seen, expected) << panelCase.elements;
    }
}

TEST(RibbonFileDiagnostics, PanelThatHasTheCommandOfTheOneBeforeIsNoted) {
    CollectingSink sink;
    const std::string element = "<e KEYWORD='e' NAME='' TYPE='button'/>";
    ReadRows("<d><r><c KEYWORD='c' NAME='' CMD='x'>\n<p KEYWORD='p'>" + element + "</p>\n<p KEYWORD='q' CMD='y'>" +
                 element + "</p>\n<p KEYWORD='r'>" + element + "</p></c>\n<c KEYWORD='d' NAME=''><p KEYWORD='s'>" +
                 element + "</p></c></r></d>",
             sink);
    EXPECT_EQ(sink.m_seen, "inherited-value@4:1 ");
    EXPECT_EQ(sink.m_last.severity, DiagnosticSeverity::Note);
}

struct SuggestionCase {
    const char* element;
    const wchar_t* fix;
};

TEST(RibbonFileDiagnostics, MisspeltWordsAreSetRight) {
    constexpr SuggestionCase cases[] = {
        {"<e KEYWORD='e' NAME='' TYPE='button' PICPAHT=''/>", L"did you mean \"PICPATH\"?"},
        {"<e KEYWORD='e' NAME='' TYPE='button' colour=''/>", L""},
        {"<e KEYWORD='e' NAME='' TYPE='Buton'/>", L"did you mean \"BUTTON\"?"},
        {"<e KEYWORD='e' NAME='' TYPE='qkRibbonMultiCmb2'/>", L"did you mean \"qkRibbonMultiComb2\"?"},
    };
    for (const SuggestionCase& suggestion : cases) {
        CollectingSink sink;
        ReadRows(std::string("<d><r><c KEYWORD='c' NAME=''><p KEYWORD='p'>") + suggestion.element + "</p></c></r></d>",
                 sink);
        EXPECT_EQ(sink.m_last.fix, suggestion.fix) << suggestion.element;
    }
}

TEST(RibbonFileDiagnostics, ManyUnknownAttributesOfOneElementAreReportedInLinearTime) {
    const auto measure = [](std::size_t count) {
        std::string xml = "<d><r KEYWORD='r'";
        for (std::size_t i = 0; i < count; ++i) {
            xml += " x=''";
        }
        xml += "/></d>";
        CXmlDocumentWrapper document;
        EXPECT_TRUE(document.LoadFromMemory(xml));
        CountingSink sink;
        const double seconds =
            MeasureSeconds([&] { ReadRibbonRows(varnhold::XmlCursor(document), FileDiagnostics(L"f.xml", sink)); });
        EXPECT_EQ(sink.m_count, count);
        EXPECT_EQ(sink.m_lastColumn, 18 + 5 * (count - 1) + 1);
        return seconds;
    };
    constexpr std::size_t few = 10000;
    // 4 where time is linear, 16 where it is quadratic.
    const double growth = MeasureGrowth(
        4, [&] { return measure(few); }, [&] { return measure(4 * few); });
    EXPECT_LT(growth, 9.0);
}

TEST(RibbonFileDiagnostics, ReportNamesTheFile) {
    CollectingSink sink;
    ReadRows("<d><r KEYWORD='StatusEx_btns'><c KEYWORD='a' SIZE='x'/></r></d>", sink);
    EXPECT_EQ(sink.m_last.file, L"f.xml");
    EXPECT_EQ(sink.m_last.severity, DiagnosticSeverity::Error);
    EXPECT_NE(sink.m_last.text, L"");
}

TEST(RibbonFileDiagnostics, LibrarysOwnSinkDropsEverything) {
    EXPECT_FALSE(DroppedDiagnostics().IsListening());
    DroppedDiagnostics().Report({});
}

TEST(RibbonFileDiagnostics, RecordsAreTheSameWhetherSomebodyListensOrNot) {
    for (const DiagnosticCase& diagnosticCase : diagnosticCases) {
        CollectingSink sink;
        std::wstring heard;
        Describe(ReadRows(diagnosticCase.xml, sink).top, 1, heard);
        EXPECT_EQ(heard, Outline(diagnosticCase.xml)) << diagnosticCase.xml;
    }
}

TEST(RibbonFileDiagnostics, FileThatIsNotLoadedIsReportedOnceWithItsPlace) {
    const TemporaryDirectory directory;
    CollectingSink sink;
    RibbonRecords rows;
    EXPECT_FALSE(LoadRibbonFile(directory.Write("f.xml", "<d>\n<r></d>"), rows, sink));
    EXPECT_TRUE(sink.m_seen.starts_with("xml-syntax@2:")) << sink.m_seen;
    EXPECT_EQ(sink.m_seen.find(' '), sink.m_seen.size() - 1);
}

} // namespace
