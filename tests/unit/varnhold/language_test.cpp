#include "varnhold/language.h"

#include "temp_folder.h"
#include "varnhold/file_op.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace {

std::string Xliff(const std::string& content, const std::string& attributes = "") {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" "
           "version=\"2.0\" srcLang=\"en\"" +
           attributes + ">" + content + "</xliff>";
}

std::string Section(const std::string& id, const std::string& units) {
    return "<file id=\"" + id + "\">" + units + "</file>";
}

std::string Unit(const std::string& key, const std::string& source, const std::string& target = "") {
    return "<unit id=\"u\" name=\"" + key + "\"><segment><source>" + source + "</source><target>" + target +
           "</target></segment></unit>";
}

/// An installation directory of its own; leaves the service as it found it: without a language.
class Language : public ::testing::Test {
protected:
    Language() : m_appPath(m_folder.GetAppPath()) {
        m_sink = CMultiLanguageMgr::SetProblemSink([this](const std::wstring& problem) {
            // Only the file's name: the folder is a different one each time.
            m_problems.push_back(wstring2String(problem.substr(problem.find_last_of(L"\\/") + 1)));
        });
    }
    ~Language() override {
        CMultiLanguageMgr::SetLanguage(L"");
        CMultiLanguageMgr::SetProblemSink(m_sink);
    }

    void Write(const std::string& name, const std::string& text) {
        m_folder.Write(std::filesystem::path("lang") / name, text);
    }

    /// Loads one table with these units in section "S".
    void LoadUnits(const std::string& units) {
        Write("en/a.xlf", Xliff(Section("S", units)));
        ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    }

    static std::string Text(const std::string& key, int number = -1, const std::string& section = "S") {
        return wstring2String(CMultiLanguageMgr::translationW(key, number, section));
    }

    TempFolder m_folder;
    ScopedAppPath m_appPath;
    CMultiLanguageMgr::ProblemSink m_sink;
    std::vector<std::string> m_problems;
};

TEST_F(Language, KeepsSectionsNamesAndTooltipsApart) {
    Write("zh-CN/a.xlf", Xliff(Section("RibbonBarCfg", Unit("Zoom", "Zoom", "缩放") +
                                                           Unit("Zoom.tooltip", "Make it larger", "放大地图") +
                                                           Unit("Zoom.3", "third", "三")) +
                               Section("Common", Unit("Zoom", "Zoom", "比例"))));
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"zh-CN"));
    EXPECT_EQ(Text("Zoom", -1, "RibbonBarCfg"), "缩放");
    EXPECT_EQ(Text("Zoom", 0, "RibbonBarCfg"), "放大地图");
    EXPECT_EQ(Text("Zoom", 3, "RibbonBarCfg"), "三");
    EXPECT_EQ(Text("Zoom", -1, "Common"), "比例");
    EXPECT_TRUE(m_problems.empty());
}

TEST_F(Language, WideKeysAreLookedUpLikeNarrowOnes) {
    LoadUnits(Unit("图层", "Layers") + Unit("图层.tooltip", "Shown layers"));
    EXPECT_EQ(CMultiLanguageMgr::translation(L"\x56FE\x5C42", "S", -1), L"Layers");
    EXPECT_EQ(CMultiLanguageMgr::translation(std::wstring(L"\x56FE\x5C42"), "S"), L"Layers");
    EXPECT_EQ(CMultiLanguageMgr::translation(std::wstring(L"\x56FE\x5C42"), "S", 0), L"Shown layers");
    EXPECT_EQ(CMultiLanguageMgr::translation(static_cast<const wchar_t*>(nullptr), "S"), L"");
}

TEST_F(Language, AMissingNameIsItsKeyAndAMissingTooltipIsEmpty) {
    EXPECT_EQ(Text("Zoom"), "Zoom"); // no language yet
    EXPECT_EQ(Text("Zoom", 0), "");
    LoadUnits(Unit("Other", "x"));
    EXPECT_EQ(Text("Zoom"), "Zoom");
    EXPECT_EQ(Text("Zoom", 0), "");
    EXPECT_EQ(Text("Zoom", 2), "");
    EXPECT_EQ(Text("Other", -1, "NoSuchSection"), "Other");
    EXPECT_EQ(Text(""), "");
}

TEST_F(Language, AFallbackIsAskedForMissingEntriesOnly) {
    LoadUnits(Unit("Known", "known text"));
    std::vector<std::string> asked;
    const CMultiLanguageMgr::Fallback fallback = [&](const std::string& key, int number, const std::string& section) {
        asked.push_back(section + "/" + key + "/" + std::to_string(number));
        return std::wstring(L"answer");
    };
    EXPECT_EQ(CMultiLanguageMgr::translationW("Known", -1, "S", fallback), L"known text");
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(CMultiLanguageMgr::translationW("Known", 0, "S", fallback), L"answer");
    EXPECT_EQ(CMultiLanguageMgr::translationW("Missing", -1, "T", fallback), L"answer");
    EXPECT_EQ(asked, (std::vector<std::string>{"S/Known/0", "T/Missing/-1"}));
}

TEST_F(Language, AnEmptyOrMissingTargetFallsBackToTheSource) {
    LoadUnits(Unit("Empty", "from source", "") +
              "<unit id='None'><segment><source>only source</source></segment></unit>"
              "<unit id='Mixed'><segment><source>A</source><target>1</target></segment>"
              "<segment><source>B</source></segment></unit>");
    EXPECT_EQ(Text("Empty"), "from source");
    EXPECT_EQ(Text("None"), "only source");
    EXPECT_EQ(Text("Mixed"), "1B");
}

TEST_F(Language, TheNameOfAUnitOutweighsItsId) {
    LoadUnits("<unit id='u1' name='A key: with blanks'><segment><source>x</source></segment></unit>"
              "<unit id='u2'><segment><source>y</source></segment></unit>");
    EXPECT_EQ(Text("A key: with blanks"), "x");
    EXPECT_EQ(Text("u1"), "u1");
    EXPECT_EQ(Text("u2"), "y");
}

TEST_F(Language, GroupsNotesAndForeignElementsDoNotMatter) {
    LoadUnits("<skeleton>s</skeleton><notes><note>n</note></notes><group id='g'><notes><note>n</note></notes>"
              "<group id='h'><unit id='Deep'><notes><note>no</note></notes><originalData><data id='d'>no</data>"
              "</originalData><m:x xmlns:m='m'>no</m:x><segment><source>yes</source></segment></unit></group></group>" +
              Unit("After", "after"));
    EXPECT_EQ(Text("Deep"), "yes");
    EXPECT_EQ(Text("After"), "after");
    EXPECT_TRUE(m_problems.empty());
}

TEST_F(Language, InlineCodesKeepTheTextInsideSpansAndDropPlaceholders) {
    LoadUnits("<unit id='k'><segment><source>a <pc id='1'>b <mrk id='m'>c</mrk></pc> <ph id='2'/>d<sc id='3'/>e"
              "<ec startRef='3'/><cp hex='0041'/><!-- no --><![CDATA[<f>]]></source></segment></unit>");
    EXPECT_EQ(Text("k"), "a b c deA<f>");
}

TEST_F(Language, SegmentsAreJoinedInTheOrderThatTheTranslationAsksFor) {
    LoadUnits("<unit id='plain'><segment><source>One.</source></segment><ignorable><source> </source></ignorable>"
              "<segment><source>Two.</source></segment></unit>"
              "<unit id='turned'><segment><source>1</source><target order='3'>A</target></segment>"
              "<ignorable><source>-</source></ignorable>"
              "<segment><source>2</source><target order='1'>B</target></segment></unit>");
    EXPECT_EQ(Text("plain"), "One. Two.");
    EXPECT_EQ(Text("turned"), "B-A");
}

TEST_F(Language, LineBreaksOfTheFileFoldUnlessBlanksArePreserved) {
    LoadUnits("<unit id='folded'><segment><source>\n    one\n    two  three \n</source></segment></unit>"
              "<unit id='kept'><segment><source xml:space='preserve'> one\n two </source></segment></unit>"
              "<group id='g' xml:space='preserve'><unit id='inherited'><segment><source>a\nb</source></segment></unit>"
              "<unit id='undone' xml:space='default'><segment><source>a\nb</source></segment></unit></group>"
              "<unit id='blank'><segment><source>: </source></segment></unit>"
              "<unit id='alone'><segment><source> </source></segment></unit>");
    EXPECT_EQ(Text("folded"), "one two  three");
    EXPECT_EQ(Text("kept"), " one\n two ");
    EXPECT_EQ(Text("inherited"), "a\nb");
    EXPECT_EQ(Text("undone"), "a b");
    EXPECT_EQ(Text("blank"), ": ");
    EXPECT_EQ(Text("alone"), " ");
}

TEST_F(Language, AllFilesOfTheFolderCountInNameOrder) {
    Write("en/b.xlf", Xliff(Section("S", Unit("Both", "from b") + Unit("B", "b"))));
    Write("en/a.XLF", Xliff(Section("S", Unit("Both", "from a") + Unit("A", "a"))));
    Write("en/notes.txt", "not a table");
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    EXPECT_EQ(Text("A"), "a");
    EXPECT_EQ(Text("B"), "b");
    EXPECT_EQ(Text("Both"), "from b");
    EXPECT_EQ(m_problems,
              std::vector<std::string>{"b.xlf:2:94: the unit \"Both\" was there before; the later one counts"});
}

TEST_F(Language, SwitchesAtRunTime) {
    Write("en/a.xlf", Xliff(Section("S", Unit("Map", "Map") + Unit("OnlyEnglish", "English"))));
    Write("zh-CN/a.xlf", Xliff(Section("S", Unit("Map", "Map", "地图")), " trgLang=\"zh-CN\""));
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    EXPECT_EQ(Text("Map"), "Map");
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"zh-CN"));
    EXPECT_EQ(CMultiLanguageMgr::GetLanguage(), L"zh-CN");
    EXPECT_EQ(Text("Map"), "地图");
    EXPECT_EQ(Text("OnlyEnglish"), "OnlyEnglish"); // nothing of the other language shines through
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L""));
    EXPECT_EQ(CMultiLanguageMgr::GetLanguage(), L"");
    EXPECT_EQ(Text("Map"), "Map");
}

TEST_F(Language, ASectionAnswersLikeTheServiceAndKeepsTheLanguageItWasMadeIn) {
    const auto text = [](const CTranslationSection& section, const std::string& key, int number) {
        std::wstring answer = L"what was there before";
        section.Translate(key, number, answer);
        return wstring2String(answer);
    };
    const CTranslationSection without("S");
    LoadUnits(Unit("Map", "the map") + Unit("Map.tooltip", "shows the map") + Unit("Map.2", "two"));
    const CTranslationSection section("S");
    for (const char* key : {"Map", "Missing", ""}) {
        for (const int number : {-1, 0, 1, 2}) {
            EXPECT_EQ(text(section, key, number), Text(key, number)) << key << " " << number;
        }
    }
    EXPECT_EQ(text(section, "Map", 0), "shows the map");
    EXPECT_EQ(text(CTranslationSection("T"), "Map", -1), "Map");
    EXPECT_EQ(text(without, "Map", 0), "");

    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L""));
    EXPECT_EQ(text(section, "Map", 2), "two");
}

TEST_F(Language, SettingTheSameLanguageReadsItsFilesAnew) {
    LoadUnits(Unit("k", "old"));
    LoadUnits(Unit("k", "new"));
    EXPECT_EQ(Text("k"), "new");
}

TEST_F(Language, ListsTheFoldersWithTables) {
    Write("zh-CN/a.xlf", Xliff(""));
    Write("en/a.xlf", Xliff(""));
    Write("empty/readme.txt", "");
    Write("loose.xlf", Xliff(""));
    EXPECT_EQ(CMultiLanguageMgr::Languages(), (std::vector<std::wstring>{L"en", L"zh-CN"}));
}

TEST_F(Language, CodesAreComparedWithoutCaseAndTakeTheFoldersSpelling) {
    Write("zh-CN/a.xlf", Xliff(Section("S", Unit("k", "x")), " trgLang=\"ZH-cn\""));
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"ZH-cn"));
    EXPECT_EQ(CMultiLanguageMgr::GetLanguage(), L"zh-CN");
    EXPECT_TRUE(m_problems.empty());
}

TEST_F(Language, ABrokenOrMissingLanguageLeavesTheEarlierOneInForce) {
    Write("en/a.xlf", Xliff(Section("S", Unit("k", "good"))));
    Write("half/a.xlf", Xliff(Section("S", Unit("k", "bad"))));
    Write("half/b.xlf", "<xliff version='2.0'>");
    Write("foreign/a.xlf", "<xliff version='1.2'/>");
    Write("none/readme.txt", "");
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    int calls = 0;
    const int listener = CMultiLanguageMgr::AddChangeListener([&] { ++calls; });
    for (const wchar_t* code : {L"half", L"foreign", L"none", L"missing", L"..", L"en/../en", L"."}) {
        EXPECT_FALSE(CMultiLanguageMgr::SetLanguage(code));
    }
    CMultiLanguageMgr::RemoveChangeListener(listener);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(CMultiLanguageMgr::GetLanguage(), L"en");
    EXPECT_EQ(Text("k"), "good");
    ASSERT_EQ(m_problems.size(), 7u);
    EXPECT_EQ(m_problems[0], "b.xlf:1:21: <xliff> of line 1 is not ended");
    EXPECT_EQ(m_problems[1], "a.xlf:1:1: this is no XLIFF 2 file");
    EXPECT_TRUE(m_problems[2].ends_with(": there are no tables of this language"));
}

TEST_F(Language, WithoutAnInstallationDirectoryThereAreNoLanguages) {
    const ScopedAppPath none(FileOp::AppPathProvider([](std::wstring&) { return false; }));
    EXPECT_FALSE(CMultiLanguageMgr::SetLanguage(L"en"));
    EXPECT_TRUE(CMultiLanguageMgr::Languages().empty());
    EXPECT_EQ(m_problems, std::vector<std::string>{"the installation directory is unknown"});
}

TEST_F(Language, SmallFaultsAreReportedAndSkipped) {
    Write("en/a.xlf", Xliff("\n<file/>\n<file id='S'>\n<unit/>\n<unit id='bare'/>\n" + Unit("k", "x") + "</file>",
                            " trgLang=\"fr\""));
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    EXPECT_EQ(Text("k"), "x");
    EXPECT_EQ(m_problems,
              (std::vector<std::string>{"a.xlf:2:1: trgLang is \"fr\", but the folder is \"en\"",
                                        "a.xlf:3:1: a file without an id belongs to no section; it is skipped",
                                        "a.xlf:5:1: a unit has neither a name nor an id; it is skipped",
                                        "a.xlf:6:1: the unit \"bare\" has no segment; it is skipped"}));
}

TEST_F(Language, TablesInOtherEncodingsCount) {
    Write("en/a.xlf", "<?xml version='1.0' encoding='GBK'?><xliff version='2.0'><file id='S'><unit id='k'><segment>"
                      "<source>\xB5\xD8\xCD\xBC</source></segment></unit></file></xliff>");
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    EXPECT_EQ(Text("k"), "地图");
}

TEST_F(Language, ListenersAreCalledInOrderAfterTheChange) {
    Write("en/a.xlf", Xliff(Section("S", Unit("k", "x"))));
    std::string calls;
    const int first = CMultiLanguageMgr::AddChangeListener([&] { (calls += "1") += Text("k"); });
    const int second = CMultiLanguageMgr::AddChangeListener([&] { calls += "2"; });
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    EXPECT_EQ(calls, "1x2");
    CMultiLanguageMgr::RemoveChangeListener(first);
    CMultiLanguageMgr::SetLanguage(L"");
    EXPECT_EQ(calls, "1x22");
    CMultiLanguageMgr::RemoveChangeListener(second);
    CMultiLanguageMgr::RemoveChangeListener(second);
    CMultiLanguageMgr::SetLanguage(L"");
    EXPECT_EQ(calls, "1x22");
}

TEST_F(Language, AListenerMayRemoveItselfAndOthersAndAddMore) {
    std::string calls;
    int first = 0;
    int second = 0;
    int third = 0;
    first = CMultiLanguageMgr::AddChangeListener([&] {
        calls += "1";
        CMultiLanguageMgr::RemoveChangeListener(first);
        CMultiLanguageMgr::RemoveChangeListener(second);
        third = CMultiLanguageMgr::AddChangeListener([&] { calls += "3"; });
    });
    second = CMultiLanguageMgr::AddChangeListener([&] { calls += "2"; });
    CMultiLanguageMgr::SetLanguage(L"");
    EXPECT_EQ(calls, "1");
    CMultiLanguageMgr::SetLanguage(L"");
    EXPECT_EQ(calls, "13");
    CMultiLanguageMgr::RemoveChangeListener(third);
}

TEST_F(Language, DeepGroupsDoNotOverflowTheStack) {
    std::string units = Unit("k", "x");
    std::string opening;
    std::string closing;
    for (int i = 0; i < 50000; ++i) {
        opening += "<group>";
        closing += "</group>";
    }
    LoadUnits(opening + units + closing + "<unit id='after'><segment><source>y</source></segment></unit>");
    EXPECT_EQ(Text("k"), "x");
    EXPECT_EQ(Text("after"), "y");
}

TEST_F(Language, LookupsDuringASwitchSeeOneLanguageOrTheOther) {
    Write("en/a.xlf", Xliff(Section("S", Unit("k", "one"))));
    Write("fr/a.xlf", Xliff(Section("S", Unit("k", "deux"))));
    ASSERT_TRUE(CMultiLanguageMgr::SetLanguage(L"en"));
    std::atomic<bool> done = false;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back([&] {
            while (!done) {
                const std::string text = Text("k");
                if (text != "one" && text != "deux") {
                    ++wrong;
                }
            }
        });
    }
    for (int i = 0; i < 100; ++i) {
        EXPECT_TRUE(CMultiLanguageMgr::SetLanguage(i % 2 ? L"en" : L"fr"));
    }
    done = true;
    for (std::thread& reader : readers) {
        reader.join();
    }
    EXPECT_EQ(wrong, 0);
}

} // namespace
