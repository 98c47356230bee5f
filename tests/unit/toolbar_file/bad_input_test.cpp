// Toolbar files that are broken, hostile or huge: refused whole, or read as far as they mean something.
#include "config/toolbar_file.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string goodFile = R"(<?xml version="1.0" encoding="UTF-8"?>
<toolbars>
  <group KEYWORD="first">
    <toolbar PROMPT="Map">
      <button TYPE="button" PROMPT="Open" PICPATH="pic\open.ico" KEYWORD="Open" TOOLTIP="opens a file"/>
      <button TYPE="separate"/>
      <button TYPE="qkLayerCheckCtrl" KEYWORD="Layers"/>
    </toolbar>
  </group>
  <group KEYWORD="second"><toolbar PROMPT="Lights"/></group>
</toolbars>
)";

/// Counts what is visited and keeps the last of each.
class Count : public ToolBarFileVisitor {
public:
    void VisitFile() override { ++files; }
    void VisitGroup(const ToolBarInfo& info) override {
        ++groups;
        group = info;
    }
    bool VisitToolBar(const ToolBarInfo& info) override {
        ++toolBars;
        toolBar = info;
        return true;
    }
    void VisitButton(const ToolBarInfo& info) override {
        ++buttons;
        button = info;
    }
    int Visits() const { return files + groups + toolBars + buttons; }

    int files = 0;
    int groups = 0;
    int toolBars = 0;
    int buttons = 0;
    ToolBarInfo group;
    ToolBarInfo toolBar;
    ToolBarInfo button;
};

class BadToolBarFile : public testing::Test {
protected:
    bool LoadPath(const std::wstring& path) {
        count = Count();
        return LoadToolBarFile(path, count, DroppedDiagnostics());
    }
    bool Load(const std::string& bytes) { return LoadPath(m_directory.Write("file.xml", bytes)); }
    /// Nothing is built of a file that is refused.
    void ExpectRefused(const std::string& bytes, const std::string& what) {
        EXPECT_FALSE(Load(bytes)) << what;
        EXPECT_EQ(count.Visits(), 0) << what;
    }
    static std::string Nested(std::size_t levels) {
        std::string bytes;
        for (std::size_t i = 0; i < levels; ++i) {
            bytes += "<a>";
        }
        for (std::size_t i = 0; i < levels; ++i) {
            bytes += "</a>";
        }
        return bytes;
    }

    TemporaryDirectory m_directory;
    Count count;
};

TEST_F(BadToolBarFile, AGoodOneIsReadWhole) {
    ASSERT_TRUE(Load(goodFile));
    EXPECT_EQ(count.groups, 2);
    EXPECT_EQ(count.toolBars, 2);
    EXPECT_EQ(count.buttons, 3);
}

TEST_F(BadToolBarFile, MalformedXmlIsRefused) {
    for (const char* xml :
         {"", " ", "text", "<", "<d", "<d>", "<d></e>", "<d><g></d></g>", "<d a></d>", "<d a=1/>", "<d a='1></d>",
          "<d/><d/>", "<d/>text", "<!-- <d/>", "<?xml version='1.0'?>", "<d><g><b><i TYPE='button'/></b></d>"}) {
        ExpectRefused(xml, xml);
    }
}

TEST_F(BadToolBarFile, AFileCutAtEveryTenthByteIsRefused) {
    const std::size_t end = goodFile.rfind("</toolbars>") + std::string("</toolbars>").size();
    for (std::size_t length = 0; length < end; length += 10) {
        ExpectRefused(goodFile.substr(0, length), "cut at " + std::to_string(length));
    }
    EXPECT_TRUE(Load(goodFile.substr(0, end)));
}

TEST_F(BadToolBarFile, AFileDamagedAtManyPlacesNeitherCrashesNorBuildsMoreThanItHas) {
    for (std::size_t place = 0; place < goodFile.size(); place += 5) {
        for (const char damage : {'\0', '<', '>', '"', '&', '\xFF'}) {
            std::string bytes = goodFile;
            bytes[place] = damage;
            const bool isLoaded = Load(bytes);
            EXPECT_LE(count.groups + count.toolBars + count.buttons, 7) << place;
            EXPECT_EQ(count.files, isLoaded ? 1 : 0) << place;
        }
    }
}

TEST_F(BadToolBarFile, UnknownEncodingsAndMixedOnesAreRefused) {
    ExpectRefused("<?xml version='1.0' encoding='no-such'?><d><g/></d>", "unknown encoding");
    std::string bytes;
    for (const char byte : goodFile) {
        bytes += byte;
        bytes += '\0';
    }
    bytes.insert(0, "<?xml version='1.0' encoding='UTF-8'?>");
    ExpectRefused(bytes, "mixed encodings");
}

TEST_F(BadToolBarFile, BytesOfAnotherEncodingBecomeReplacementCharactersAndNationalEncodingsAreRead) {
    ASSERT_TRUE(Load("<?xml version='1.0' encoding='UTF-8'?><d><g KEYWORD='\xB1\xA3\xB4\xE6'/></d>"));
    EXPECT_NE(count.group.strKeyword.find(L'\uFFFD'), std::wstring::npos);
    ASSERT_TRUE(Load("<?xml version='1.0' encoding='GB2312'?><d><g KEYWORD='\xB1\xA3\xB4\xE6'/></d>"));
    EXPECT_EQ(count.group.strKeyword, L"\u4FDD\u5B58");
}

TEST_F(BadToolBarFile, NulBytesAreRefused) {
    ExpectRefused(std::string("<d><g KEYWORD='a\0b'/></d>", 25), "NUL in a value");
    ExpectRefused(std::string("<d>\0</d>", 8), "NUL between tags");
    ExpectRefused(std::string("<d/>\0\0\0", 7), "NUL at the end");
}

TEST_F(BadToolBarFile, TenMegabytesOfNestingAreRefused) {
    constexpr std::size_t levels = 10 * 1024 * 1024 / 7;
    const std::string bytes = Nested(levels);
    ExpectRefused(bytes, "closed nesting");
    ExpectRefused(bytes.substr(0, levels * 3), "open nesting");
}

TEST_F(BadToolBarFile, DeepNestingThatTheParserTakesIsReadToTheThirdLevel) {
    ASSERT_TRUE(Load(Nested(90000)));
    EXPECT_EQ(count.groups, 1);
    EXPECT_EQ(count.toolBars, 1);
    EXPECT_EQ(count.buttons, 1);
}

TEST_F(BadToolBarFile, FiftyThousandElementsOfEachLevelAreRead) {
    std::string groups;
    std::string bars;
    std::string buttons;
    for (int i = 0; i < 50000; ++i) {
        const std::string number = std::to_string(i);
        groups += "<g KEYWORD='G" + number + "'/>";
        bars += "<b PROMPT='B" + number + "'/>";
        buttons += "<i TYPE='button' KEYWORD='K" + number + "'/>";
    }
    ASSERT_TRUE(Load("<d>" + groups + "<g>" + bars + "</g><g><b>" + buttons + "</b></g></d>"));
    EXPECT_EQ(count.groups, 50002);
    EXPECT_EQ(count.toolBars, 50001);
    EXPECT_EQ(count.buttons, 50000);
    EXPECT_EQ(count.button.strKeyword, L"K49999");
}

TEST_F(BadToolBarFile, ValuesOfAMegabyteAreReadAsTheyAre) {
    const std::string value(1 << 20, 'x');
    ASSERT_TRUE(Load("<d><g KEYWORD='" + value + "'><b PROMPT='" + value + "'><i TYPE='" + value + "' KEYWORD='k'/>" +
                     "</b></g></d>"));
    EXPECT_EQ(count.group.strKeyword.size(), value.size());
    EXPECT_EQ(count.toolBar.strPrompt.size(), value.size());
    EXPECT_EQ(count.button.strType.size(), value.size());
    EXPECT_EQ(ToolBarItemKindOf(count.button.strType), ToolBarItemKind::Unknown);
}

TEST_F(BadToolBarFile, ThousandsOfAttributesOfOneElementAreReadAndTheKnownOnesTaken) {
    std::string attributes;
    for (int i = 0; i < 20000; ++i) {
        attributes += " a" + std::to_string(i) + "='1'";
    }
    ASSERT_TRUE(Load("<d><g" + attributes + " KEYWORD='k'/></d>"));
    EXPECT_EQ(count.group.strKeyword, L"k");
}

TEST_F(BadToolBarFile, TheLastOfSeveralAttributesWithOneNameCounts) {
    ASSERT_TRUE(Load("<d><g KEYWORD='1' keyword='2' Keyword='3'/></d>"));
    EXPECT_EQ(count.group.strKeyword, L"3");
}

TEST_F(BadToolBarFile, AnEntityBombIsNotExpanded) {
    ASSERT_TRUE(Load("<!DOCTYPE d [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;'>]><d><g KEYWORD='&b;'/></d>"));
    EXPECT_EQ(count.group.strKeyword, L"&b;");
}

TEST_F(BadToolBarFile, TextsAndCommentsAreNoElements) {
    ASSERT_TRUE(Load("<d>text<!-- <g/> --><g>text<b>text<![CDATA[<i/>]]><?i ?></b></g></d>"));
    EXPECT_EQ(count.groups, 1);
    EXPECT_EQ(count.toolBars, 1);
    EXPECT_EQ(count.buttons, 0);
}

TEST_F(BadToolBarFile, MissingFilesAndDirectoriesAreRefused) {
    m_directory.Write("folder.xml/inside.txt", "x");
    for (const wchar_t* const name : {L"missing.xml", L"missing/file.xml", L"folder.xml", L""}) {
        EXPECT_FALSE(LoadPath(m_directory.Prefix() + name));
        EXPECT_EQ(count.Visits(), 0);
    }
    EXPECT_FALSE(LoadPath(L""));
}

} // namespace
