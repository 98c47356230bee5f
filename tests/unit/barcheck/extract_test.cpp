#include "checked_installation.h"
#include "config/check/translation_extract.h"
#include "extract.h"
#include "sample_installation.h"

#include <varnhold/xml.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

class Extracting : public testing::Test {
protected:
    std::string Extract(const std::wstring& language) const {
        BarcheckOptions options;
        options.directory = m_installation.Directory().Prefix();
        options.extract = language;
        std::wstring message;
        const bool isWritten = ExtractTexts(options, message);
        return (isWritten ? "" : "not: ") + wstring2String(message);
    }
    std::string Read(const std::string& name) const {
        std::string text;
        varnhold::ReadXmlText(m_installation.Directory().Prefix() + string2wstring(name), text);
        return text;
    }
    bool Has(const std::string& name, const std::string& text) const {
        return Read(name).find(text) != std::string::npos;
    }
    CheckedInstallation m_installation;
};

TEST_F(Extracting, ANewTableHasAllTextsWithTheirPlacesAndTheEnglishSources) {
    WriteSample(m_installation);
    EXPECT_EQ(Extract(L"fr"), "lang/fr/commands.xlf: 31 new, 0 kept, 0 unused");
    const std::string table = Read("lang/fr/commands.xlf");
    EXPECT_NE(table.find("srcLang=\"en\" trgLang=\"fr\""), std::string::npos);
    EXPECT_NE(
        table.find("<unit id=\"Save\" name=\"Save\"><notes><note category=\"place\">cfg/ribbon.xml, tab CatMap, panel "
                   "PanelFile, small button: one line</note></notes><segment><source>Save</source></segment></unit>"),
        std::string::npos)
        << table;
    for (const char* const note :
         {"cfg/ribbon.xml, tab: one line, cut where all tabs have no room in the window",
          "tab CatMap, caption of a panel: one line below it", "tab CatMap, panel PanelFile, large button: two lines",
          "panel PanelZoom, item of a button or group: one line", "panel PanelZoom, label: one line",
          "panel PanelZoom, field: 90 pixels at 100 %", "panel PanelZoom, field; its tooltip: broken into lines",
          "panel PanelZoom, combo: one line in front of its list", "panel PanelZoom, slider; its tooltip",
          "status bar, slider: not drawn, but read out", "status bar, button; its tooltip",
          "status bar, label: one line; left out where the bar has no room", "cfg/menu.xml, menu bar, popup: one line",
          "menu MenuFile, popup: one line", "menu MenuFile, item: one line, with the shortcut behind it",
          "menu MenuFile, item; its tooltip: broken into lines"}) {
        EXPECT_NE(table.find(note), std::string::npos) << note;
    }
    for (const Diagnostic& finding : m_installation.Check()) {
        EXPECT_EQ(finding.code, "untranslated-text");
    }
}

TEST_F(Extracting, WhatIsTranslatedStaysAndASecondRunChangesNothing) {
    WriteSample(m_installation);
    EXPECT_EQ(Extract(L"DE"), "lang/de/a.xlf: 0 new, 31 kept, 0 unused");
    EXPECT_TRUE(Has("lang/de/a.xlf", "<target>de Save</target>"));
    const std::string once = Read("lang/de/a.xlf");
    Extract(L"de");
    EXPECT_EQ(Read("lang/de/a.xlf"), once);
    EXPECT_EQ(m_installation.Findings(), "");
}

TEST_F(Extracting, ATextThatStandsInManyPlacesHasANoteForEach) {
    WriteSample(m_installation);
    Extract(L"fr");
    EXPECT_TRUE(Has("lang/fr/commands.xlf",
                    "name=\"Open\"><notes><note category=\"place\">cfg/ribbon.xml, tab CatMap, panel PanelFile, large "
                    "button: two lines</note><note category=\"place\">cfg/menu.xml, menu MenuFile, item: one "
                    "line</note></notes>"))
        << Read("lang/fr/commands.xlf");
    const std::string once = Read("lang/fr/commands.xlf");
    Extract(L"fr");
    EXPECT_EQ(Read("lang/fr/commands.xlf"), once);
}

TEST_F(Extracting, OfManyPlacesTheFirstAreNotedAndTheOthersCounted) {
    std::string panels;
    for (const char name : std::string("ABCDEFGHIJK")) {
        panels += "<p KEYWORD=\"" + std::string(1, name) + "\"><i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>" +
                  "<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/></p>";
    }
    m_installation.Write("cfg/ribbon.xml", "<r><r><c KEYWORD=\"Map\" NAME=\"\">" + panels + "</c></r></r>");
    m_installation.WriteTable("en", "<unit id=\"In\"><segment><source>In</source></segment></unit>");
    Extract(L"en");
    EXPECT_TRUE(Has("lang/en/a.xlf", "panel H, large button: two lines</note><note category=\"place\">and in 3 more "
                                     "places</note></notes>"));
    EXPECT_FALSE(Has("lang/en/a.xlf", "panel I"));
    m_installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    Extract(L"en");
    EXPECT_FALSE(Has("lang/en/a.xlf", "panel A"));
    EXPECT_FALSE(Has("lang/en/a.xlf", "more places"));
}

TEST_F(Extracting, OfSeveralTablesEachIsCompletedAndANewTextGoesWhereTheOneBeforeItStands) {
    m_installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"
                                                      "<i KEYWORD=\"New1\" NAME=\"\" TYPE=\"BUTTON\"/>"
                                                      "<i KEYWORD=\"Out\" NAME=\"\" TYPE=\"BUTTON\"/>"
                                                      "<i KEYWORD=\"New2\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    const auto table = [](const std::string& units) {
        return "\xEF\xBB\xBF<xliff version=\"2.0\" srcLang=\"en\" trgLang=\"de\">\n<file id=\"RibbonBarCfg\">\n" +
               units +
               "</file>\n<file id=\"Common\"><unit id=\"c\"><segment><source>c</source></segment></unit>"
               "</file>\n</xliff>\n";
    };
    const auto unit = [](const std::string& key) {
        return "<unit id=\"" + key + "\"><notes><note>mine</note></notes><segment><source>" + key +
               "</source><target>de " + key + "</target></segment></unit>\n";
    };
    m_installation.Write("lang/de/a.xlf", table(unit("Out") + unit("Old")));
    m_installation.Write("lang/de/b.xlf", table(unit("In")));
    m_installation.Write("lang/de/c.xlf", "<xliff version=\"2.0\" srcLang=\"en\"><file id=\"Common\"/></xliff>");
    const std::string untouched = Read("lang/de/c.xlf");
    EXPECT_EQ(Extract(L"de"), "lang/de/a.xlf: 1 new, 1 kept, 1 unused\nlang/de/b.xlf: 2 new, 1 kept, 0 unused");
    const std::string place = "<notes><note category=\"place\">cfg/ribbon.xml, tab Map, panel Views";
    EXPECT_TRUE(Has("lang/de/a.xlf", "<unit id=\"Out\">" + place));
    EXPECT_TRUE(Has("lang/de/a.xlf", "<unit id=\"Old\"><notes><note category=\"unused\">"));
    EXPECT_TRUE(Has("lang/de/a.xlf", "name=\"New2\">" + place));
    EXPECT_TRUE(Has("lang/de/b.xlf", "<unit id=\"In\">" + place));
    EXPECT_TRUE(Has("lang/de/b.xlf", "name=\"New1\">" + place));
    EXPECT_TRUE(Has("lang/de/b.xlf", "name=\"Map\">")); // none is asked for before it
    for (const char* const kept : {"<target>de Out</target>", "<target>de Old</target>", "<note>mine</note>",
                                   "<unit id=\"c\"><segment><source>c</source>"}) {
        EXPECT_TRUE(Has("lang/de/a.xlf", kept)) << kept;
    }
    EXPECT_EQ(Read("lang/de/c.xlf"), untouched);
    const std::string once = Read("lang/de/a.xlf") + Read("lang/de/b.xlf");
    Extract(L"de");
    EXPECT_EQ(Read("lang/de/a.xlf") + Read("lang/de/b.xlf"), once);
}

TEST_F(Extracting, ATableOfCommandsInAnotherEncodingStopsItBeforeAnythingIsWritten) {
    m_installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    m_installation.Write("lang/en/a.xlf",
                         "<xliff version=\"2.0\" srcLang=\"en\"><file id=\"RibbonBarCfg\"><unit id=\"In\">"
                         "<segment><source>In</source></segment></unit></file></xliff>");
    m_installation.Write("lang/en/b.xlf",
                         "<?xml version='1.0' encoding='GBK'?><xliff version='2.0' srcLang='en'><file "
                         "id='RibbonBarCfg'><unit id='Map'><segment><source>\xB5\xD8</source></segment></unit>"
                         "</file></xliff>");
    EXPECT_EQ(Extract(L"en"), "not: lang/en/b.xlf is not in UTF-8: save it so first");
    EXPECT_FALSE(Has("lang/en/a.xlf", "note"));
}

TEST_F(Extracting, AByteOrderMarkStaysAndNothingElseLiesBesideTheTable) {
    m_installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    m_installation.Write("lang/en/a.xlf",
                         "\xEF\xBB\xBF<xliff version=\"2.0\" srcLang=\"en\"><file id=\"RibbonBarCfg\"><unit "
                         "id=\"In\"><segment><source>In</source></segment></unit></file></xliff>");
    EXPECT_EQ(Extract(L"en"), "lang/en/a.xlf: 1 new, 1 kept, 0 unused");
    std::ifstream stream(m_installation.Directory().Path() / "lang/en/a.xlf", std::ios::binary);
    std::string start(3, ' ');
    stream.read(start.data(), 3);
    EXPECT_EQ(start, "\xEF\xBB\xBF");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_installation.Directory().Path() / "lang/en"), {}), 1);
}

TEST_F(Extracting, WhatNoFileUsesIsMarkedUntilOneDoes) {
    m_installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" TYPE=\"slider\"/>"));
    m_installation.WriteTable("en",
                              "<unit id=\"Old\"><notes><note>mine</note></notes><segment><source>Old</source></segment>"
                              "</unit>\n<unit id=\"In\"><segment><source>In</source></segment></unit>");
    EXPECT_EQ(Extract(L"en"), "lang/en/a.xlf: 1 new, 1 kept, 1 unused");
    EXPECT_TRUE(Has("lang/en/a.xlf",
                    "<notes><note category=\"unused\">no file of the configuration uses it</note><note>mine"
                    "</note></notes>"));
    EXPECT_TRUE(Has("lang/en/a.xlf", "<unit id=\"In\"><segment>")); // nobody asks for it, but it has an element
    m_installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"Old\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    EXPECT_EQ(Extract(L"en"), "lang/en/a.xlf: 0 new, 2 kept, 1 unused");
    EXPECT_TRUE(Has("lang/en/a.xlf",
                    "<notes><note category=\"place\">cfg/ribbon.xml, tab Map, panel Views, large button: two "
                    "lines</note><note>mine</note></notes>"));
    EXPECT_FALSE(Has("lang/en/a.xlf", "name=\"Old\"><notes><note category=\"unused\""));
}

TEST_F(Extracting, OtherSectionsFilesAndSignsAreRespected) {
    m_installation.Write("cfg/ribbon.xml",
                         RibbonWith("<i KEYWORD=\"a &lt; b\" NAME=\"\" TYPE=\"BUTTON\"/><i KEYWORD=\"In\" NAME=\"\" "
                                    "TYPE=\"BUTTON\"/>"));
    m_installation.Write("lang/en/a.xlf",
                         "<xliff version=\"2.0\" srcLang=\"en\"><file id=\"Common\"><unit id=\"t\"><segment>"
                         "<source>x</source></segment></unit></file></xliff>");
    m_installation.Write("lang/en/b.xlf",
                         "<xliff version=\"2.0\" srcLang=\"en\"><file id=\"RibbonBarCfg\"><unit id=\"In\">"
                         "<segment><source>In</source></segment></unit></file></xliff>");
    EXPECT_EQ(Extract(L"en"), "lang/en/b.xlf: 2 new, 1 kept, 0 unused");
    EXPECT_TRUE(Has("lang/en/b.xlf", "name=\"a &lt; b\""));
    EXPECT_FALSE(Has("lang/en/a.xlf", "note"));
    EXPECT_EQ(m_installation.Findings(), "");
}

TEST_F(Extracting, ATableOfOtherSectionsKeepsThem) {
    m_installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    m_installation.Write("lang/fr/commands.xlf",
                         "<xliff version=\"2.0\" srcLang=\"en\" trgLang=\"fr\">\n<file id=\"Common\"><unit id=\"t\">"
                         "<segment><source>x</source><target>y</target></segment></unit></file>\n</xliff>");
    EXPECT_TRUE(Extract(L"fr").starts_with("lang/fr/commands.xlf: "));
    EXPECT_TRUE(Has("lang/fr/commands.xlf", "<target>y</target>"));
    EXPECT_TRUE(Has("lang/fr/commands.xlf", "name=\"In\""));
}

TEST_F(Extracting, EveryUnitHasAnIdOfItsOwn) {
    const auto write = [this](const std::string& keywords) {
        std::string elements;
        for (const char keyword : keywords) {
            elements += "<i KEYWORD=\"for " + std::string(1, keyword) + "\" NAME=\"\" TYPE=\"BUTTON\"/>\n";
        }
        m_installation.Write("cfg/ribbon.xml", RibbonWith(elements + "<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    };
    m_installation.WriteTable("en", "<unit id='In' name='Other'><segment><source>x</source></segment></unit>");
    write("ab");
    Extract(L"en");
    write("abcd"); // their keys are no ids, and some are there already
    Extract(L"en");
    for (const char* const id :
         {"id='In'", "id=\"new-1\"", "id=\"new-2\"", "id=\"new-3\"", "id=\"new-4\"", "id=\"new-5\""}) {
        const std::string table = Read("lang/en/a.xlf");
        const std::size_t at = table.find(id);
        ASSERT_NE(at, std::string::npos) << id << table;
        EXPECT_EQ(table.find(id, at + 1), std::string::npos) << id << table;
    }
}

TEST_F(Extracting, NewUnitsEndTheirLinesAsTheTableDoes) {
    m_installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    m_installation.Write("lang/en/commands.xlf",
                         "<xliff version=\"2.0\" srcLang=\"en\">\r\n  <file id=\"RibbonBarCfg\">\r\n"
                         "  </file>\r\n</xliff>\r\n");
    EXPECT_EQ(Extract(L"en"), "lang/en/commands.xlf: 2 new, 0 kept, 0 unused");
    const std::string table = Read("lang/en/commands.xlf");
    EXPECT_EQ(std::ranges::count(table, '\n'), 6);
    EXPECT_EQ(std::ranges::count(table, '\r'), 6);
}

TEST_F(Extracting, NothingIsWrittenWhereACommentLooksLikeTheSection) {
    std::string table = "<xliff version=\"2.0\" srcLang=\"en\"><!-- <file id=\"RibbonBarCfg\"> </file> --></xliff>";
    const std::string before = table;
    TableCompletion completion;
    completion.asked = {{L"In", {L"cfg/ribbon.xml"}}};
    CompletionCounts counts;
    EXPECT_FALSE(CompleteTable(table, completion, counts));
    EXPECT_EQ(table, before);
}

TEST_F(Extracting, NothingIsWrittenWhereTheDocumentElementHasNoEndTagOfItsOwn) {
    for (const char* const before : {"<xliff version=\"2.0\" srcLang=\"en\"/>",
                                     "<xliff version=\"2.0\" srcLang=\"en\"><file id=\"Other\"/></xliff >"}) {
        std::string table = before;
        TableCompletion completion;
        completion.asked = {{L"In", {L"cfg/ribbon.xml"}}};
        CompletionCounts counts;
        EXPECT_FALSE(CompleteTable(table, completion, counts));
        EXPECT_EQ(table, before);
    }
}

TEST_F(Extracting, NothingIsWrittenWhereSomethingCannotBeRead) {
    WriteSample(m_installation);
    const std::string before = Read("lang/de/a.xlf");
    m_installation.Write("cfg/menu.xml", "<menu>");
    EXPECT_TRUE(Extract(L"de").starts_with("not: a file could not be read"));
    EXPECT_EQ(Read("lang/de/a.xlf"), before);
    m_installation.Write("cfg/menu.xml", SampleMenu());
    m_installation.Write("lang/de/a.xlf", "<xliff>");
    EXPECT_TRUE(Extract(L"de").starts_with("not: a table of this language is broken"));
    m_installation.Write("lang/de/a.xlf",
                         "<?xml version='1.0' encoding='GBK'?><xliff version='2.0' srcLang='en'><file "
                         "id='RibbonBarCfg'><unit id='In'><segment><source>\xB5\xD8</source></segment></unit>"
                         "</file></xliff>");
    EXPECT_EQ(Extract(L"de"), "not: lang/de/a.xlf is not in UTF-8: save it so first");
}

} // namespace
