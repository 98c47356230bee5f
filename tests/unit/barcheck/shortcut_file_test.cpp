// Files that programs name themselves: shortcuts, which are loaded before all others, and rows of the status bar.
#include "checked_installation.h"
#include "config/check/translation_extract.h"
#include "model.h"
#include "sample_installation.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kMeasure =
    "<item KEYWORD=\"Measure\" MENUNAME=\"\" TOOLTIP=\"\" HOTKEY=\"Ctrl+M\" CMD=\"measure\"/>";

/// A menu file without popups; the first item stands in line 3, column 1.
std::string Keys(const std::string& items) { return "<menu>\n<group>\n" + items + "\n</group>\n</menu>\n"; }

std::string WithReplaced(std::string text, const std::string& before, const std::string& after) {
    const std::size_t at = text.find(before);
    return at == std::string::npos ? "not there: " + before : text.replace(at, before.size(), after);
}

class ShortcutFile : public testing::Test {
protected:
    ShortcutFile() {
        WriteSample(m_installation);
        m_installation.Write("cfg/keys.xml", Keys(kMeasure));
    }
    std::string FindingsWithKeys(const std::string& items) const {
        m_installation.Write("cfg/keys.xml", Keys(items));
        return m_installation.Findings();
    }

    const CheckedInstallation m_installation;
};

TEST_F(ShortcutFile, IsReadWithTheOthersAndCleanWhenItSaysWhatTheySay) {
    EXPECT_EQ(m_installation.Findings(), "");
    EXPECT_EQ(m_installation.Findings({L"cfg\\keys.xml"}), "");
    EXPECT_EQ(
        FindingsWithKeys(kMeasure + std::string("<item colour=\"1\" KEYWORD=\"Undo\" MENUNAME=\"\" CMD=\"undo\"/>")),
        "cfg/menu.xml:14:53 lost-shortcut\ncfg/keys.xml:3:85 unknown-attribute\n");
}

TEST_F(ShortcutFile, HasTheFindingsOfAMenuFileInTheirPlaces) {
    const struct {
        const char* item;
        const char* finding;
    } faults[] = {
        {"<item KEYWORD=\"Measure\" MENUNAME=\"\" HOTKY=\"Ctrl+M\" CMD=\"measure\"/>", "3:37 unknown-attribute"},
        {"<item KEYWORD=\"Measure\" MENUNAME=\"\" HOTKEY=\"F5\" CMD=\"measure\"/>", "3:37 shortcut-syntax"},
        {"<item KEYWORD=\"Measure\" MENUNAME=\"\" HOTKEY=\"Ctrl+\" CMD=\"measure\"/>", "3:37 shortcut-syntax"},
        {"<item KEYWORD=\"Measur\" MENUNAME=\"\" HOTKEY=\"Ctrl+M\" CMD=\"measure\"/>", "3:7 missing-text"},
        {"<item KEYWORD=\"Measure\" HOTKEY=\"Ctrl+M\" CMD=\"measure\"/>", "3:1 missing-caption"},
        {"<item MENUNAME=\"\" KEYWORD=\"Measure\" HOTKEY=\"Ctrl+M\" CMD=\"measure\"/>", "3:7 attribute-order"},
        {"<item KEYWORD=\"Measure\" MENUNAME=\"\" HOTKEY=\"Ctrl+M\" CMD=\"measure\"></itm>", "3:67 xml-syntax"},
    };
    for (const auto& fault : faults) {
        EXPECT_EQ(FindingsWithKeys(fault.item), "cfg/keys.xml:" + std::string(fault.finding) + "\n") << fault.item;
    }
}

TEST_F(ShortcutFile, AFaultThatAnEditorsEndingMakesIsSaid) {
    std::filesystem::rename(m_installation.Directory().Path() / "cfg/keys.xml",
                            m_installation.Directory().Path() / "cfg/keys.xml.txt");
    EXPECT_EQ(m_installation.Findings(), "cfg/keys.xml.txt:1:1 missing-file\n");
}

TEST_F(ShortcutFile, WhatItRegistersIsLostInTheOthersWhereTheyDiffer) {
    EXPECT_EQ(FindingsWithKeys("<item KEYWORD=\"Measure\" MENUNAME=\"\" HOTKEY=\"Ctrl+M\" CMD=\"measur\"/>"),
              "cfg/ribbon.xml:37:15 duplicate-keyword\n");
    // Without CMD the command has none.
    EXPECT_EQ(FindingsWithKeys("<item KEYWORD=\"Measure\" MENUNAME=\"\" HOTKEY=\"Ctrl+M\"/>"),
              "cfg/ribbon.xml:37:15 duplicate-keyword\n");
    // Where all others agree it is mended here.
    m_installation.Write("cfg/menu.xml", WithReplaced(SampleMenu(), "<item KEYWORD=\"Open\" MENUNAME=\"\"",
                                                      "<item KEYWORD=\"Open\" MENUNAME=\"\" CMD=\"open\""));
    EXPECT_EQ(FindingsWithKeys("<item KEYWORD=\"Open\" MENUNAME=\"\" HOTKEY=\"Ctrl+O\" CMD=\"oppen\"/>"),
              "cfg/keys.xml:3:7 duplicate-keyword\n");
}

TEST_F(ShortcutFile, TakesTheShortcutsOfMenuFiles) {
    EXPECT_EQ(FindingsWithKeys("<item KEYWORD=\"Undo\" MENUNAME=\"\" HOTKEY=\"Ctrl+U\" CMD=\"undo\"/>"),
              "cfg/menu.xml:14:53 lost-shortcut\n");
    EXPECT_EQ(FindingsWithKeys("<item KEYWORD=\"Undo\" MENUNAME=\"\" HOTKEY=\"Ctrl+Z\" CMD=\"undo\"/>"), "");
    EXPECT_EQ(FindingsWithKeys("<item KEYWORD=\"Measure\" MENUNAME=\"\" HOTKEY=\"Ctrl+Z\" CMD=\"measure\"/>"),
              "cfg/menu.xml:14:53 shortcut-clash\n");
}

TEST_F(ShortcutFile, AKeywordThatWasCopiedIsOneFinding) {
    EXPECT_EQ(FindingsWithKeys(kMeasure + std::string("\n<item KEYWORD=\"Measure\" MENUNAME=\"\" HOTKEY=\"Ctrl+O\" "
                                                      "CMD=\"open\"/>")),
              "cfg/keys.xml:4:7 duplicate-keyword\n");
}

TEST_F(ShortcutFile, APopupWithTheKeywordOfACommandOfManyElementsIsOneFindingThere) {
    EXPECT_EQ(FindingsWithKeys("<popup KEYWORD=\"Open\" MENUNAME=\"\">" + std::string(kMeasure) + "</popup>"),
              "cfg/keys.xml:3:8 duplicate-keyword\n");
}

TEST_F(ShortcutFile, IsNoMenuWhoseLettersClash) {
    EXPECT_EQ(FindingsWithKeys("<item KEYWORD=\"Open\" MENUNAME=\"\" SHORTKEY=\"O\" HOTKEY=\"Ctrl+O\" CMD=\"open\"/>\n"
                               "<item KEYWORD=\"Save\" MENUNAME=\"\" SHORTKEY=\"O\" HOTKEY=\"Ctrl+S\" CMD=\"save\" "
                               "Param=\"all\"/>"),
              "");
}

TEST_F(ShortcutFile, AMisspeltElementOfTheRibbonHasNoFollowersThroughIt) {
    m_installation.Write("cfg/keys.xml",
                         Keys("<item KEYWORD=\"ZoomIn\" MENUNAME=\"\" HOTKEY=\"Ctrl+I\" CMD=\"zoom\" Param=\"2\"/>"));
    ASSERT_EQ(m_installation.Findings(), "");
    m_installation.Write("cfg/ribbon.xml",
                         WithReplaced(SampleRibbon(), "<item KEYWORD=\"ZoomIn\" NAME", "<item KEYWORD=\"ZomIn\" NAME"));
    EXPECT_EQ(m_installation.Findings(), "cfg/ribbon.xml:20:15 missing-text\n");
    m_installation.Write("cfg/ribbon.xml",
                         WithReplaced(SampleRibbon(), "<item KEYWORD=\"ZoomIn\" NAME", "<item KEYWORD=\"Save\" NAME"));
    EXPECT_EQ(m_installation.Findings(), "cfg/ribbon.xml:20:15 duplicate-keyword\n");
}

TEST_F(ShortcutFile, IsNotAmongWhatIsBuilt) {
    const std::wstring directory = m_installation.Directory().Prefix();
    const std::string with = ModelOf(directory, L"en").dump();
    std::filesystem::remove(m_installation.Directory().Path() / "cfg/keys.xml");
    EXPECT_EQ(with, ModelOf(directory, L"en").dump());
}

TEST_F(ShortcutFile, PlacesOfTextsAreThoseWhereTheyShow) {
    GatheringSink sink;
    ASSERT_TRUE(GatherConfiguration({m_installation.Directory().Prefix(), {}, {}}, sink));
    bool isFound = false;
    for (const AskedText& asked : CollectAskedTexts(sink.Elements(), m_installation.Directory().Prefix())) {
        if (asked.key == L"Measure") {
            isFound = true;
            for (const std::wstring& place : asked.places) {
                EXPECT_TRUE(place.starts_with(L"cfg/ribbon.xml")) << wstring2String(place);
            }
            EXPECT_FALSE(asked.places.empty());
        }
    }
    EXPECT_TRUE(isFound);
}

class StatusFile : public testing::Test {
protected:
    StatusFile() { WriteSample(m_installation); }
    std::string FindingsWith(const std::string& row) const {
        m_installation.Write("cfg/status-edit.xml", "<ribbon>\n" + row + "\n</ribbon>\n");
        return m_installation.Findings();
    }
    const CheckedInstallation m_installation;
};

TEST_F(StatusFile, IsReadWithTheOthers) {
    EXPECT_EQ(FindingsWith("<row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"Open\" NAME=\"\"/></row>"), "");
    EXPECT_EQ(FindingsWith("<row KEYWORD=\"StatusEx_btns\"><item KEYWORD=\"Oppen\" NAME=\"\"/></row>"),
              "cfg/status-edit.xml:2:36 unknown-status-button\n");
    EXPECT_EQ(FindingsWith("<row KEYWORD=\"StatusExbtns\"><item KEYWORD=\"Open\" NAME=\"\"/></row>"),
              "cfg/status-edit.xml:2:6 row-keyword\n");
}

} // namespace
