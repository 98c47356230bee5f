#include "config/ribbon_file.h"
#include "tests/support/translation_tables.h"

#include <gtest/gtest.h>

namespace {

const std::string goodFile = R"(<?xml version="1.0" encoding="UTF-8"?>
<ribbon>
  <row KEYWORD="QK_Rbbion_QAToolbar"><item KEYWORD="K1"/><item KEYWORD="K2"/></row>
  <row KEYWORD="StatusEx_btns"><item KEYWORD="S1" NAME="" TYPE="BUTTON" PICPATH="pic\s.ico" SIZE="16"/></row>
  <row KEYWORD="main">
    <category KEYWORD="C1" NAME="" CMD="c1">
      <panel KEYWORD="P1" NAME="">
        <element KEYWORD="K1" NAME="" TOOLTIP="" TYPE="BUTTON" PICPATH="pic\modle\a.ico" CMD="do" PARAM="1" GROUPBEFORE="Y"/>
        <element KEYWORD="K2" NAME="" TYPE="GROUP"><sub KEYWORD="K3" TYPE="BUTTON" SIZE="16"/></element>
      </panel>
    </category>
  </row>
</ribbon>
)";

/// Keeps rows that were read before, so that a test sees whether a refused file left them alone.
class BadRibbonFile : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(Load(goodFile));
        ASSERT_EQ(m_rows.top.size(), 3u);
    }

    bool Load(const std::string& bytes) { return LoadPath(m_directory.Write("file.xml", bytes)); }
    bool LoadPath(const std::wstring& path) { return LoadRibbonFile(path, m_rows, DroppedDiagnostics()); }

    void ExpectRefused(const std::string& bytes, const std::string& what) {
        EXPECT_FALSE(Load(bytes)) << what;
        ExpectEarlierRows(what);
    }
    void ExpectEarlierRows(const std::string& what) const {
        ASSERT_EQ(m_rows.top.size(), 3u) << what;
        EXPECT_EQ(m_rows.top[2].children[0].info.keyword, L"C1") << what;
    }

    TemporaryDirectory m_directory;
    RibbonRecords m_rows;
};

TEST_F(BadRibbonFile, MalformedXmlIsRefusedAndTheEarlierRowsStay) {
    for (const char* xml :
         {"", " ", "text", "<", "<d", "<d>", "<d></e>", "<d><r></d></r>", "<d a></d>", "<d a=1/>", "<d a='1></d>",
          "<d/><d/>", "<d/>text", "<!-- <d/>", "<?xml version='1.0'?>", "<d><![CDATA[</d>"}) {
        ExpectRefused(xml, xml);
    }
}

TEST_F(BadRibbonFile, FileCutAtEvery50thByteIsRefused) {
    const std::size_t end = goodFile.rfind("</ribbon>") + std::string("</ribbon>").size();
    for (std::size_t length = 0; length < end; length += 50) {
        ExpectRefused(goodFile.substr(0, length), "cut at " + std::to_string(length));
    }
    EXPECT_TRUE(Load(goodFile.substr(0, end)));
}

TEST_F(BadRibbonFile, FileDamagedAtEveryPlaceNeitherCrashesNorHangs) {
    for (std::size_t place = 0; place < goodFile.size(); place += 7) {
        for (const char damage : {'\0', '<', '>', '"', '&', '\xFF'}) {
            std::string bytes = goodFile;
            bytes[place] = damage;
            RibbonRecords rows;
            LoadRibbonFile(m_directory.Write("damaged.xml", bytes), rows, DroppedDiagnostics());
        }
    }
}

TEST_F(BadRibbonFile, UnknownEncodingIsRefused) {
    ExpectRefused("<?xml version='1.0' encoding='no-such'?><d><r/></d>", "unknown encoding");
}

TEST_F(BadRibbonFile, Utf16BytesThatCallThemselvesUtf8AreRefused) {
    std::string bytes;
    for (const char byte : goodFile) {
        bytes += byte;
        bytes += '\0';
    }
    bytes.insert(0, "<?xml version='1.0' encoding='UTF-8'?>");
    ExpectRefused(bytes, "mixed encodings");
}

TEST_F(BadRibbonFile, BytesOfAnotherEncodingBecomeReplacementCharacters) {
    EXPECT_TRUE(Load("<?xml version='1.0' encoding='UTF-8'?><d><r KEYWORD='\xB1\xA3\xB4\xE6'/></d>"));
    ASSERT_EQ(m_rows.top.size(), 1u);
    EXPECT_NE(m_rows.top[0].info.keyword.find(L'\uFFFD'), std::wstring::npos);
}

TEST_F(BadRibbonFile, NationalEncodingsAreRead) {
    EXPECT_TRUE(Load("<?xml version='1.0' encoding='GB2312'?><d><r KEYWORD='\xB1\xA3\xB4\xE6'/></d>"));
    ASSERT_EQ(m_rows.top.size(), 1u);
    EXPECT_EQ(m_rows.top[0].info.keyword, L"\u4FDD\u5B58");
}

TEST_F(BadRibbonFile, NulBytesAreRefused) {
    ExpectRefused(std::string("<d><r KEYWORD='a\0b'/></d>", 25), "NUL in a value");
    ExpectRefused(std::string("<d>\0</d>", 8), "NUL between tags");
    ExpectRefused(std::string("<d/>\0\0\0", 7), "NUL at the end");
}

TEST_F(BadRibbonFile, TenMegabytesOfNestingAreRefused) {
    constexpr std::size_t levels = 10 * 1024 * 1024 / 7;
    std::string bytes;
    for (std::size_t i = 0; i < levels; ++i) {
        bytes += "<a>";
    }
    for (std::size_t i = 0; i < levels; ++i) {
        bytes += "</a>";
    }
    ExpectRefused(bytes, "closed nesting");
    ExpectRefused(bytes.substr(0, levels * 3), "open nesting");
}

TEST_F(BadRibbonFile, DeepNestingThatTheParserTakesIsReadToTheFifthLevel) {
    constexpr std::size_t levels = 90000;
    std::string bytes;
    for (std::size_t i = 0; i < levels; ++i) {
        bytes += "<a>";
    }
    for (std::size_t i = 0; i < levels; ++i) {
        bytes += "</a>";
    }
    ASSERT_TRUE(Load(bytes));
    std::span<const RibbonRecord> records = m_rows.top;
    std::size_t depth = 0;
    for (; !records.empty(); records = records.front().children) {
        ++depth;
    }
    EXPECT_EQ(depth, 5u);
}

TEST_F(BadRibbonFile, FiftyThousandElementsAreRead) {
    std::string bytes = "<d><r><c><p>";
    for (int i = 0; i < 50000; ++i) {
        bytes += "<e KEYWORD='K" + std::to_string(i) + "' TYPE='BUTTON' SIZE='16'/>";
    }
    ASSERT_TRUE(Load(bytes + "</p></c></r></d>"));
    const std::span<const RibbonRecord> elements = m_rows.top[0].children[0].children[0].children;
    ASSERT_EQ(elements.size(), 50000u);
    EXPECT_EQ(elements.back().info.keyword, L"K49999");
}

TEST_F(BadRibbonFile, ValueOfAMegabyteIsRead) {
    ASSERT_TRUE(Load("<d><r><c CMD='" + std::string(1 << 20, 'x') + "' VALUEGROUP='" + std::string(1 << 20, ',') +
                     "'/></r></d>"));
    EXPECT_EQ(m_rows.top[0].children[0].info.cmd.size(), std::size_t(1) << 20);
    EXPECT_EQ(m_rows.top[0].children[0].info.valueGroup.size(), (std::size_t(1) << 20) + 1);
}

TEST_F(BadRibbonFile, NumberOfAMegabyteIsRefusedAlone) {
    ASSERT_TRUE(
        Load("<d><r><c KEYWORD='a' SIZE='" + std::string(1 << 20, '9') + "' CMD='no'/><c KEYWORD='b'/></r></d>"));
    ASSERT_EQ(m_rows.top[0].children.size(), 2u);
    EXPECT_EQ(m_rows.top[0].children[0].info.cmd, L"");
    EXPECT_EQ(m_rows.top[0].children[1].info.keyword, L"b");
}

TEST_F(BadRibbonFile, EntityBombIsNotExpanded) {
    ASSERT_TRUE(Load("<!DOCTYPE d [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;'>]><d><r KEYWORD='&b;'/></d>"));
    EXPECT_EQ(m_rows.top[0].info.keyword, L"&b;");
}

TEST_F(BadRibbonFile, MissingFileIsRefused) {
    EXPECT_FALSE(LoadPath(m_directory.Prefix() + L"missing.xml"));
    EXPECT_FALSE(LoadPath(m_directory.Prefix() + L"missing/file.xml"));
    EXPECT_FALSE(LoadPath(L""));
    ExpectEarlierRows("missing file");
}

TEST_F(BadRibbonFile, DirectoryInPlaceOfTheFileIsRefused) {
    m_directory.Write("folder.xml/inside.txt", "x");
    EXPECT_FALSE(LoadPath(m_directory.Prefix() + L"folder.xml"));
    EXPECT_FALSE(LoadPath(m_directory.Prefix()));
    ExpectEarlierRows("directory");
}

} // namespace
