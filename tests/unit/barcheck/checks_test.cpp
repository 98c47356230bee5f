#include "bench/support/scenario.h"
#include "checked_installation.h"
#include "sample_installation.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <ctime>

namespace {

constexpr const char* kButton = "<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"";

TEST(CheckedConfiguration, ABrokenFileHidesNothingInTheOthersAndHasNoFollowers) {
    const CheckedInstallation installation;
    WriteSample(installation);
    installation.Write("cfg/ribbon.xml", "<ribbon>");
    installation.Write("cfg/menu.xml", MenuWith("<item KEYWORD=\"Undo\" MENUNAME=\"\" HOTKEY=\"F5\"/>"));
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:1:8 xml-syntax\ncfg/menu.xml:3:8 missing-text\n"
                                       "cfg/menu.xml:4:34 shortcut-syntax\n");
}

TEST(CheckedConfiguration, ABrokenTableIsSaidOnceAndItsLanguageLacksNothing) {
    const CheckedInstallation installation;
    WriteSample(installation);
    installation.Write("lang/de/a.xlf", "<xliff");
    EXPECT_EQ(installation.Findings(), "lang/de/a.xlf:1:6 xml-syntax\n");
}

TEST(CheckedConfiguration, ColumnsCountCharactersInAnyEncoding) {
    const CheckedInstallation installation;
    const std::string chinese = "\xE5\x9C\xB0\xE5\x9B\xBE"; // two letters
    installation.Write("cfg/ribbon.xml",
                       "\xEF\xBB\xBF<r><r>\r\n\t<c KEYWORD='" + chinese + "' NAME='' colour='1'/></r></r>");
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:2:26 unknown-attribute\n");
    installation.Write("cfg/ribbon.xml",
                       "<?xml version='1.0' encoding='GBK'?><r><r>\r<c KEYWORD='\xB5\xD8\xCD\xBC' NAME='' "
                       "colour='1'/></r></r>");
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:2:25 unknown-attribute\n");
}

TEST(CheckedConfiguration, FilesThatAreNamedAreTheOnlyOnes) {
    const CheckedInstallation installation;
    WriteSample(installation);
    installation.Write("cfg/menu.xml", "<menu>");
    installation.Write("other/bars.xml", ToolBarWith("<item TYPE=\"butttn\" KEYWORD=\"a\"/>"));
    installation.Write("other/items.xml", MenuWith("<item KEYWORD=\"Undo\" MENUNAME=\"\" HOTKEY=\"F5\"/>"));
    EXPECT_EQ(installation.Findings({L"cfg\\ribbon.xml"}), "");
    EXPECT_EQ(installation.Findings({L"CFG/Ribbon.XML"}), "");
    EXPECT_EQ(installation.Findings({L"other/bars.xml"}), "other/bars.xml:4:7 unknown-type\n");
    EXPECT_EQ(installation.Findings({L"other\\items.xml"}),
              "other/items.xml:3:8 missing-text\nother/items.xml:4:34 shortcut-syntax\n");
    EXPECT_EQ(installation.Findings({L"cfg/none.xml"}), "cfg/none.xml:1:1 missing-file\n");
}

TEST(CheckedConfiguration, ADirectoryWithoutFilesLacksThem) {
    const CheckedInstallation installation;
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:1:1 missing-file\n");
}

TEST(CheckedConfiguration, OneLanguageIsLookedAtAloneWhenItIsAskedFor) {
    const CheckedInstallation installation;
    installation.Write("cfg/ribbon.xml", RibbonWith(std::string(kButton) + "/>"));
    const std::string own = CheckedInstallation::Unit("Map", "Map");
    installation.WriteTable("en", own + CheckedInstallation::Unit("In", "In"));
    installation.Write("lang/de/a.xlf", CheckedInstallation::Table(own, "de"));
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:4:4 missing-text\n");
    EXPECT_EQ(installation.Findings({}, L"EN"), "");
    EXPECT_EQ(installation.Findings({}, L"de"), "cfg/ribbon.xml:4:4 missing-text\n");
    EXPECT_EQ(installation.Findings({}, L"fr"), "lang/fr:1:1 missing-file\n");
}

TEST(CheckedConfiguration, AMissingTextNamesItsLanguagesAndWhatTheyLack) {
    const CheckedInstallation installation;
    installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" NAME=\"\" TOOLTIP=\"\" TYPE=\"BUTTON\"/>"));
    const std::string own = CheckedInstallation::Unit("Map", "Map");
    installation.WriteTable("en", own + CheckedInstallation::Unit("In", "In"));
    installation.Write("lang/de/a.xlf", CheckedInstallation::Table(own, "de"));
    const std::vector<Diagnostic> findings = installation.Check();
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].text, L"for \"In\" de has no name and no tooltip; en has no tooltip");
}

TEST(CheckedConfiguration, AMisspeltKeywordIsOneFindingThatNamesTheOneThatWasMeant) {
    const CheckedInstallation installation;
    WriteSample(installation);
    std::string ribbon = SampleRibbon();
    const std::string before = "<item KEYWORD=\"ZoomIn\" NAME";
    ribbon.replace(ribbon.find(before), before.size(), "<item KEYWORD=\"ZomIn\" NAME");
    installation.Write("cfg/ribbon.xml", ribbon);
    const std::vector<Diagnostic> findings = installation.Check();
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0].fix, L"did you mean \"ZoomIn\"?");
}

TEST(CheckedConfiguration, AStatusButtonOfNoCommandNeedsNoText) {
    const CheckedInstallation installation;
    installation.Write("cfg/ribbon.xml", "<r><r KEYWORD='StatusEx_btns'>\n<i KEYWORD='Nothing' NAME=''/></r></r>");
    installation.WriteTable("en", "");
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:2:4 unknown-status-button\n");
}

TEST(CheckedConfiguration, TheTextOfAKeywordThatWasLostIsNotUnusedBesides) {
    const CheckedInstallation installation;
    WriteSample(installation);
    std::string ribbon = SampleRibbon();
    const std::string keyword = "KEYWORD=\"ScaleLabel\" ";
    ribbon.erase(ribbon.find(keyword), keyword.size());
    installation.Write("cfg/ribbon.xml", ribbon);
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:28:9 missing-keyword\n");
}

TEST(CheckedConfiguration, OtherUnusedTextsAreToldBesideALostKeyword) {
    const CheckedInstallation installation;
    installation.Write("cfg/ribbon.xml", RibbonWith("<i NAME=\"\" TYPE=\"BUTTON\"/>"));
    const std::string own = CheckedInstallation::Unit("Map", "Map");
    const std::string lost = CheckedInstallation::Unit("In", "In");
    installation.WriteTable("en", own + lost + CheckedInstallation::Unit("Old", "Old"));
    installation.Write("lang/de/a.xlf", CheckedInstallation::Table(own + lost, "de"));
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:4:1 missing-keyword\nlang/en/a.xlf:5:1 unused-text\n");
    // Two that every language has: nobody knows which was lost.
    installation.Write("lang/de/a.xlf",
                       CheckedInstallation::Table(own + lost + CheckedInstallation::Unit("Old", "Alt"), "de"));
    EXPECT_EQ(installation.Check().size(), 3u);
}

TEST(CheckedConfiguration, LettersClashPerLanguageByTheTranslatedText) {
    const CheckedInstallation installation;
    installation.Write("cfg/menu.xml", MenuWith("<i KEYWORD=\"A\" MENUNAME=\"\"/>\n<i KEYWORD=\"B\" MENUNAME=\"\"/>"));
    const std::string own = CheckedInstallation::Unit("Edit", "Edit");
    installation.WriteTable("en", own + CheckedInstallation::Unit("A", "&amp;Save") +
                                      CheckedInstallation::Unit("B", "S&amp;end &amp;&amp; &amp;go"));
    installation.Write("lang/de/a.xlf",
                       CheckedInstallation::Table(own + CheckedInstallation::Unit("A", "&amp;Sichern") +
                                                      CheckedInstallation::Unit("B", "&amp;Senden"),
                                                  "de"));
    const std::vector<Diagnostic> findings = installation.Check();
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(CheckedInstallation::Describe(findings[0]), "cfg/menu.xml:5:4 access-key-clash\n");
    EXPECT_TRUE(findings[0].text.ends_with(L" in de")) << wstring2String(findings[0].text);
}

TEST(CheckedConfiguration, TheSameLetterInTwoMenusIsNoClash) {
    const CheckedInstallation installation;
    installation.Write("cfg/menu.xml",
                       "<m><g><p KEYWORD='P' MENUNAME='' SHORTKEY='P'><i KEYWORD='A' MENUNAME='' SHORTKEY='P'/>"
                       "</p><p KEYWORD='Q' MENUNAME='' SHORTKEY='Q'><i KEYWORD='B' MENUNAME='' "
                       "SHORTKEY='P'/></p></g></m>");
    EXPECT_EQ(installation.Findings(), "");
}

TEST(CheckedConfiguration, AnItemMayRepeatTheShortcutOfItsOwnCommand) {
    const CheckedInstallation installation;
    installation.Write("cfg/menu.xml", MenuWith("<i KEYWORD=\"A\" MENUNAME=\"\" HOTKEY=\"Ctrl+A\"/>\n"
                                                "<i KEYWORD=\"A\" MENUNAME=\"\" HOTKEY=\"ctrl+a\"/>\n"
                                                "<i KEYWORD=\"A\" MENUNAME=\"\" HOTKEY=\"Ctrl+B\"/>"));
    EXPECT_EQ(installation.Findings(), "cfg/menu.xml:6:28 lost-shortcut\n");
}

TEST(CheckedConfiguration, ALoneLetterIsAnotherShortcutThanItsKey) {
    const CheckedInstallation installation;
    installation.Write("cfg/menu.xml", MenuWith("<i KEYWORD=\"A\" MENUNAME=\"\" HOTKEY=\"A\"/>\n"
                                                "<i KEYWORD=\"B\" MENUNAME=\"\" HOTKEY=\"a\"/>\n"
                                                "<i KEYWORD=\"C\" MENUNAME=\"\" HOTKEY=\"Shift+A\"/>"));
    EXPECT_EQ(installation.Findings(), "");
}

TEST(CheckedConfiguration, HelpIsLostWhereTheFirstElementHasSome) {
    const CheckedInstallation installation;
    const std::string second = "/>\n<i KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\" help=\"a.swf\"/>";
    installation.Write("cfg/ribbon.xml", RibbonWith(kButton + second));
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:5:4 duplicate-keyword\n");
    installation.Write("cfg/ribbon.xml", RibbonWith(kButton + std::string(" AcceptF1=\"N\"") + second));
    EXPECT_EQ(installation.Findings(), "");
    installation.Write("cfg/ribbon.xml", RibbonWith(kButton + std::string(" help=\"a.swf\"") + second));
    EXPECT_EQ(installation.Findings(), "");
}

TEST(CheckedConfiguration, AFileThatIsNamedTwiceIsReadOnce) {
    const CheckedInstallation installation;
    WriteSample(installation);
    EXPECT_EQ(installation.Findings({L"cfg/menu.xml", L"cfg\\menu.xml", L"CFG/./Menu.xml"}), "");
    EXPECT_EQ(installation.Findings({L"cfg/none.xml", L"cfg/none.xml"}), "cfg/none.xml:1:1 missing-file\n");
}

TEST(CheckedConfiguration, CommandsOfFilesThatAreNotNamedAreKnown) {
    const CheckedInstallation installation;
    WriteSample(installation);
    installation.Write("cfg/status.xml", "<r><r KEYWORD='StatusEx_btns'>\n<i KEYWORD='ScaleLabel' NAME=''/>"
                                         "<i KEYWORD='Exit' NAME=''/></r>"
                                         "<r KEYWORD='QK_Rbbion_QAToolbar'>\n<i KEYWORD='ZoomIn'/></r></r>");
    EXPECT_EQ(installation.Findings({L"cfg/status.xml"}), "");
    installation.Write("cfg/status.xml", "<r><r KEYWORD='StatusEx_btns'>\n<i KEYWORD='Nowhere' NAME=''/></r></r>");
    EXPECT_EQ(installation.Findings({L"cfg/status.xml"}), "cfg/status.xml:2:4 unknown-status-button\n");
    // Where one of them cannot be read, nobody knows.
    installation.Write("cfg/ribbon.xml", "<ribbon>");
    EXPECT_EQ(installation.Findings({L"cfg/status.xml"}), "");
}

TEST(CheckedConfiguration, TablesThatAreNamedAreSpokenOfAlone) {
    const CheckedInstallation installation;
    WriteSample(installation);
    const std::string fault = CheckedInstallation::Table("<unit/>");
    installation.Write("lang/en/b.xlf", fault);
    installation.Write("lang/de/b.xlf", fault);
    installation.Write("cfg/menu.xml", MenuWith("<item KEYWORD=\"Undo\" MENUNAME=\"\" HOTKEY=\"F5\"/>"));
    installation.Write("cfg/toolbar.xml", "<toolbars>");
    EXPECT_EQ(installation.Findings({L"lang/de/b.xlf"}), "lang/de/b.xlf:3:1 bad-table\n");
    EXPECT_EQ(installation.Findings({L"lang\\EN\\A.xlf"}), "");
    EXPECT_EQ(installation.Findings({L"cfg/menu.xml", L"lang/en/b.xlf"}),
              "cfg/menu.xml:4:34 shortcut-syntax\nlang/en/b.xlf:3:1 bad-table\n");
    EXPECT_EQ(installation.Findings({L"lang/en/none.xlf"}), "lang/en/none.xlf:1:1 missing-file\n");
}

TEST(CheckedConfiguration, ATableWhereNobodyReadsItIsTold) {
    const CheckedInstallation installation;
    WriteSample(installation);
    installation.Write("lang/more.xlf", CheckedInstallation::Table(""));
    installation.Write("lang/en/more.xliff", CheckedInstallation::Table(""));
    installation.Write("lang/en/readme.txt", "For translators.");
    EXPECT_EQ(installation.Findings(), "lang/en/more.xliff:1:1 bad-table\nlang/more.xlf:1:1 bad-table\n");
}

TEST(CheckedConfiguration, AFaultyValueHasNoFollowersInOtherFiles) {
    for (const char* const faulty : {"CMD=\"go&now\"", "CMD=\"went\" CMD=\"gone\"", "CMD=\"<go\""}) {
        const CheckedInstallation installation;
        installation.Write("cfg/ribbon.xml", RibbonWith(kButton + std::string(" ") + faulty + "/>"));
        installation.Write("cfg/menu.xml", MenuWith("<i KEYWORD=\"In\" MENUNAME=\"\" CMD=\"go\"/>"));
        const std::vector<Diagnostic> findings = installation.Check();
        ASSERT_EQ(findings.size(), 1u) << faulty << '\n' << installation.Findings();
        EXPECT_EQ(findings[0].file, L"cfg/ribbon.xml");
    }
}

TEST(CheckedConfiguration, ElementsThatDifferFromTheFirstInTheSameWayAreOneFindingThere) {
    const CheckedInstallation installation;
    const auto button = [](const std::string& command) { return kButton + (" CMD=\"" + command + "\"/>\n"); };
    installation.Write("cfg/ribbon.xml", RibbonWith(button("goo") + button("go") + button("go") + button("leave")));
    installation.Write("cfg/menu.xml", MenuWith("<i KEYWORD=\"In\" MENUNAME=\"\" CMD=\"go\"/>"));
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:4:4 duplicate-keyword\ncfg/ribbon.xml:7:4 duplicate-keyword\n");
    const std::vector<RelatedPlace> related = installation.Check().front().related;
    ASSERT_EQ(related.size(), 3u);
    EXPECT_EQ(related[0].position.line, 5u);
    EXPECT_EQ(related[1].position.line, 6u);
    EXPECT_EQ(related[2].file, L"cfg/menu.xml");
}

TEST(CheckedConfiguration, OneNameInTwoPlacesIsNoTwin) {
    const CheckedInstallation installation;
    WriteSample(installation);
    const auto with = [](std::string text, const std::string& before, const std::string& after) {
        return text.replace(text.find(before), before.size(), after);
    };
    // A tab of two working modes, a panel of two tabs, panels without caption, a popup of two menus, a bar of two
    // groups.
    installation.Write("cfg/ribbon.xml",
                       with(with(with(SampleRibbon(), "<row KEYWORD=\"Main\">",
                                      "<row KEYWORD=\"Other\"><category KEYWORD=\"CatMap\" NAME=\"\"/></row>\n<row "
                                      "KEYWORD=\"Main\">"),
                                 "<panel KEYWORD=\"PanelTools\"",
                                 "<panel KEYWORD=\"PanelZoom\" NAME=\"\"/><panel KEYWORD=\"PanelTools\""),
                            "<panel KEYWORD=\"PanelFile\"",
                            "<panel KEYWORD=\"Space\"/><panel KEYWORD=\"Space\"/><panel KEYWORD=\"PanelFile\""));
    installation.Write("cfg/menu.xml",
                       with(SampleMenu(), "<item KEYWORD=\"Undo\"",
                            "<popup KEYWORD=\"MenuRecent\" MENUNAME=\"\"><item KEYWORD=\"QK_DEF_ZJWJ\"/></popup>\n"
                            "<item KEYWORD=\"Undo\""));
    installation.Write("cfg/toolbar.xml", with(SampleToolBars(), "<group KEYWORD=\"Main\">",
                                               "<group KEYWORD=\"More\"><bar PROMPT=\"Layers\"/></group>\n<group "
                                               "KEYWORD=\"Main\">"));
    EXPECT_EQ(installation.Findings(), "");
}

TEST(CheckedConfiguration, ARowThatIsACopyIsOneFinding) {
    const CheckedInstallation installation;
    WriteSample(installation);
    const std::string ribbon = SampleRibbon();
    const std::size_t start = ribbon.find("  <row KEYWORD=\"Main\">");
    const std::string row = ribbon.substr(start, ribbon.find("</ribbon>") - start);
    installation.Write("cfg/ribbon.xml", ribbon.substr(0, start) + row + row + "</ribbon>\n");
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:41:8 duplicate-keyword\n");
}

TEST(CheckedConfiguration, AKeywordOfNoTextIsTheOneWhoseTextsAreLeftOver) {
    const CheckedInstallation installation;
    installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"Zqwx\" NAME=\"\" TYPE=\"BUTTON\"/>"));
    const std::string map = CheckedInstallation::Unit("Map", "Map");
    const std::string in = CheckedInstallation::Unit("In", "In");
    installation.WriteTable("en", map + in);
    ASSERT_EQ(installation.Check().size(), 1u);
    EXPECT_EQ(installation.Check().front().fix, L"did you mean \"In\"?");
    // Texts that fit less, or two that fit, are others.
    installation.WriteTable("en", map + in + CheckedInstallation::Unit("In.tooltip", "Nearer"));
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:4:4 missing-text\nlang/en/a.xlf:4:1 unused-text\n");
    installation.WriteTable("en", map + in + CheckedInstallation::Unit("Far", "Far"));
    EXPECT_EQ(installation.Check().size(), 3u);
}

TEST(CheckedConfiguration, AMisspeltToolTipIsToldInTheTableOfAnyNumberOfLanguages) {
    const CheckedInstallation installation;
    installation.Write("cfg/ribbon.xml", RibbonWith("<i KEYWORD=\"In\" NAME=\"\" TOOLTIP=\"\" TYPE=\"BUTTON\"/>"));
    installation.WriteTable("en", CheckedInstallation::Unit("Map", "Map") + CheckedInstallation::Unit("In", "In") +
                                      CheckedInstallation::Unit("In.toltip", "Nearer"));
    EXPECT_EQ(installation.Findings(), "lang/en/a.xlf:5:1 missing-text\n");
    EXPECT_EQ(installation.Check().front().fix, L"did you mean \"In.tooltip\"?");
}

TEST(CheckedConfiguration, AnUnknownReferenceToWhatHasNoTextIsToldBesideALostKeyword) {
    const CheckedInstallation installation;
    WriteSample(installation);
    std::string ribbon = SampleRibbon();
    const auto replace = [&ribbon](const std::string& before, const std::string& after) {
        ribbon.replace(ribbon.find(before), before.size(), after);
    };
    replace("KEYWORD=\"ScaleLabel\" ", "");
    replace("<item KEYWORD=\"ZoomIn\"/>", "<item KEYWORD=\"Nowhere\"/>");
    installation.Write("cfg/ribbon.xml", ribbon);
    EXPECT_EQ(installation.Findings(),
              "cfg/ribbon.xml:5:11 unknown-quick-access\ncfg/ribbon.xml:28:9 missing-keyword\n");
}

class CheckedIcon : public testing::Test {
protected:
    std::string Findings(const std::string& size) const {
        m_installation.Write("cfg/ribbon.xml",
                             RibbonWith(kButton + (" SIZE=\"" + size + "\" PICPATH=\"pic\\a.ico\"/>\n") + kButton +
                                        " PICPATH=\"PIC\\A.ICO\" SIZE=\"" + size + "\"/>"));
        return m_installation.Findings();
    }
    CheckedInstallation m_installation;
};

TEST_F(CheckedIcon, ALargeButtonNeedsBothFilesAndASmallOneTheFirst) {
    EXPECT_EQ(Findings("32"), "cfg/ribbon.xml:4:49 missing-icon\n"); // once for all that name the file
    m_installation.Write("pic/16/A.ico", MakeIconFile(16, {0, 0}));
    EXPECT_EQ(Findings("16"), "");
    EXPECT_EQ(m_installation.Check().size(), 0u);
    EXPECT_NE(Findings("32"), "");
    m_installation.Write("pic/32/a.ico", MakeIconFile(32, {0, 0}));
    EXPECT_EQ(Findings("32"), "");
}

TEST_F(CheckedIcon, WhatCannotBeDrawnIsNoIcon) {
    const std::string place = "cfg/ribbon.xml:4:49 ";
    for (const std::string& bytes : {std::string(), std::string("\x89PNG\r\n\x1A\n and more"), MakeIconFile({})}) {
        m_installation.Write("pic/16/a.ico", bytes);
        EXPECT_TRUE(Findings("16").starts_with(place + "icon-format\n")) << bytes.size();
    }
    m_installation.Write("pic/16/a.ico", MakeIconFile(1025, {0, 0}));
    EXPECT_TRUE(Findings("16").starts_with(place + "icon-format\n"));
    m_installation.Write("pic/16/a.ico", MakeIconFile(15, {0, 0}));
    EXPECT_TRUE(Findings("16").starts_with(place + "icon-size\n"));
}

TEST(CheckedConfiguration, AnIconThatManyCommandsShareSaysNothingOfAKeywordLikeTheirs) {
    for (const int commands : {2, 20}) {
        const CheckedInstallation installation;
        installation.WriteIcon("pic", "a.ico");
        std::string elements;
        for (int i = 0; i < commands; ++i) {
            elements += "<i KEYWORD=\"Layer" + std::string(1, static_cast<char>('A' + i)) +
                        "Shown\" NAME=\"\" TYPE=\"BUTTON\" PICPATH=\"pic\\a.ico\"/>\n";
        }
        installation.Write("cfg/ribbon.xml", RibbonWith(elements));
        installation.Write(
            "cfg/toolbar.xml",
            ToolBarWith("<i TYPE=\"button\" KEYWORD=\"LayerAShow\" PROMPT=\"x\" PICPATH=\"pic\\a.ico\"/>"));
        EXPECT_EQ(installation.Findings(), commands == 2 ? "cfg/toolbar.xml:4:18 similar-keyword\n" : "");
    }
}

/// Checks a generated installation, which is clean, and says how long that took: of the processor's time, as the
/// machine may have much else to do.
void CheckInTime(const ScenarioDirectory& scenario) {
    const std::clock_t start = std::clock();
    std::vector<Diagnostic> findings = CheckConfiguration({(scenario.Path() / "").wstring(), {}, {}});
    std::erase_if(findings,
                  [](const Diagnostic& finding) { return finding.file == L"lang"; }); // not every one has tables
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    ASSERT_TRUE(findings.empty()) << CheckedInstallation::Describe(findings.front());
    testing::Test::RecordProperty("milliseconds", static_cast<int>(seconds * 1000));
#if defined(NDEBUG) && !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LT(seconds, 1.0);
#else
    EXPECT_LT(seconds, 60.0); // a slower program, or slower files
#endif
}

TEST(CheckedScenario, TheGeneratedRibbonOfFiveThousandButtonsIsCleanAndCheckedInASecond) {
    ScenarioDirectory scenario;
    scenario.AddRibbonFile(5000, 50);
    CheckInTime(scenario);
}

TEST(CheckedScenario, FiveThousandCommandsInThreeFilesAndFourLanguagesAreCleanAndCheckedInASecond) {
    ScenarioDirectory scenario;
    scenario.AddInstallation(5000, 50, 4);
    CheckInTime(scenario);
}

/// What is said of the sample with some lines of a file left out.
std::string FindingsWithout(const std::string& file, const std::vector<std::string>& lines) {
    const CheckedInstallation installation;
    WriteSample(installation);
    for (const SampleFile& sample : SampleFiles()) {
        if (sample.name != file) {
            continue;
        }
        std::string text = sample.text;
        for (const std::string& line : lines) {
            for (std::size_t at = text.find(line); at != std::string::npos; at = text.find(line, at)) {
                text.erase(at, line.size());
            }
        }
        installation.Write(file, text);
    }
    return installation.Findings();
}

TEST(CheckedConfiguration, ALevelThatIsMissingIsSaidOnce) {
    EXPECT_EQ(FindingsWithout("cfg/menu.xml", {"  <group>\n", "  </group>\n"}), "cfg/menu.xml:3:31 wrong-depth\n");
    EXPECT_EQ(FindingsWithout("cfg/toolbar.xml", {"  <group KEYWORD=\"Main\">\n", "  </group>\n"}),
              "cfg/toolbar.xml:3:10 wrong-depth\n");
    EXPECT_EQ(FindingsWithout("cfg/ribbon.xml", {"KEYWORD=\"StatusEx_btns\""}), "cfg/ribbon.xml:8:5 missing-caption\n");
}

/// What is said of the sample with the levels of a file changed.
std::string FindingsWith(const std::string& file, const std::vector<std::pair<std::string, std::string>>& changes) {
    const CheckedInstallation installation;
    WriteSample(installation);
    for (const SampleFile& sample : SampleFiles()) {
        if (sample.name == file) {
            std::string text = sample.text;
            for (const auto& [before, after] : changes) {
                for (std::size_t at = text.find(before); at != std::string::npos;
                     at = text.find(before, at + after.size())) {
                    text.replace(at, before.size(), after);
                }
            }
            installation.Write(file, text);
        }
    }
    return installation.Findings();
}

TEST(CheckedConfiguration, ALevelThatIsTooManyIsSaidOnce) {
    EXPECT_EQ(FindingsWith("cfg/ribbon.xml", {{"<ribbon>", "<x><ribbon>"}, {"</ribbon>", "</ribbon></x>"}}),
              "cfg/ribbon.xml:3:8 wrong-depth\n");
    EXPECT_EQ(FindingsWith("cfg/toolbar.xml", {{"<toolbars>", "<x><toolbars>"}, {"</toolbars>", "</toolbars></x>"}}),
              "cfg/toolbar.xml:2:4 wrong-depth\n");
    EXPECT_EQ(FindingsWith("cfg/toolbar.xml",
                           {{"<group KEYWORD=\"Main\">", "<group KEYWORD=\"Main\"><x>"}, {"</group>", "</x></group>"}}),
              "cfg/toolbar.xml:3:25 wrong-depth\n");
}

TEST(CheckedConfiguration, ALevelThatIsMissingAllOverIsSaidOnce) {
    // No panels: buttons, groups and their like stand in the categories.
    EXPECT_EQ(FindingsWith("cfg/ribbon.xml", {{"<panel KEYWORD=\"PanelFile\" NAME=\"\" CMD=\"file\">", ""},
                                              {"<panel KEYWORD=\"PanelZoom\" NAME=\"\" CMD=\"zoom\">", ""},
                                              {"<panel KEYWORD=\"PanelTools\" NAME=\"\">", ""},
                                              {"</panel>", ""}}),
              "cfg/ribbon.xml:16:49 wrong-depth\n");
}

TEST(CheckedConfiguration, ALanguageWithoutItsTextsIsSaidOnce) {
    const CheckedInstallation installation;
    WriteSample(installation);
    installation.WriteTable("en", "");
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:9:11 missing-text\n");
    EXPECT_EQ(installation.Check().front().text, L"en has none of the texts that are asked for here and below");
}

TEST(CheckedConfiguration, AnInstallationWithoutItsRibbonDoesNotNameEveryText) {
    const CheckedInstallation installation;
    WriteSample(installation);
    std::filesystem::remove(installation.Directory().Path() / "cfg/ribbon.xml");
    EXPECT_EQ(installation.Findings({}, L"en"), "cfg/ribbon.xml:1:1 missing-file\n");
}

TEST(MissingIcon, AFolderThatIsMissingIsSaidOnce) {
    const CheckedInstallation installation;
    WriteSample(installation);
    std::filesystem::remove_all(installation.Directory().Path() / "pic/icon/16");
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:10:40 missing-icon\n");
}

TEST(MissingIcon, AFolderThatIsMissingWithBothSizesIsSaidOnce) {
    const CheckedInstallation installation;
    WriteSample(installation);
    std::filesystem::remove_all(installation.Directory().Path() / "pic");
    EXPECT_EQ(installation.Findings(), "cfg/ribbon.xml:10:40 missing-icon\n");
}

TEST(MissingIcon, WhatPeopleWriteInItsPlaceIsRecognised) {
    for (const char* const written : {"zoom.ico", "pic\\icon\\16\\zoom.ico", "pic\\icon\\zoom", " pic\\icon\\zoom.ico ",
                                      "C:\\work\\zoom.ico", "pic\\icon\\zom.ico"}) {
        const CheckedInstallation installation;
        installation.WriteIcon("pic/icon", "zoom.ico");
        const auto button = [](const std::string& keyword, const std::string& path) {
            return "<i KEYWORD='" + keyword + "' NAME='' TYPE='BUTTON' PICPATH='" + path + "'/>\n";
        };
        installation.Write("cfg/ribbon.xml", RibbonWith(button("A", written) + button("B", "pic\\icon\\zoom.ico")));
        const std::vector<Diagnostic> findings = installation.Check();
        ASSERT_EQ(findings.size(), 1u) << written;
        EXPECT_EQ(findings[0].code, "missing-icon");
        EXPECT_EQ(findings[0].fix, L"did you mean \"pic\\icon\\zoom.ico\"?") << written;
    }
}

} // namespace
