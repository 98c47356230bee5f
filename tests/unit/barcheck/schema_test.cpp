#include "bench/support/scenario.h"
#include "config/element_kind.h"
#include "config/toolbar_file.h"
#include "options.h"
#include "planted_faults.h"
#include "sample_installation.h"
#include "schema.h"
#include "table_schema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct SchemaFile {
    const wchar_t* kind;
    const char* name;
    const char* sample;
};
constexpr SchemaFile kSchemas[] = {
    {L"ribbon", "ribbon.xsd", "cfg/ribbon.xml"},    {L"menu", "menu.xsd", "cfg/menu.xml"},
    {L"toolbar", "toolbar.xsd", "cfg/toolbar.xml"}, {L"table", "table.xsd", "lang/en/a.xlf"},
    {L"table", "table.xsd", "lang/de/a.xlf"},
};

/// As the program writes it.
std::string WrittenSchema(const wchar_t* kind) {
    std::wstring error;
    const std::optional<BarcheckOptions> options = ParseBarcheckOptions({L"--schema", kind}, error);
    if (!options) {
        return "wrong usage";
    }
    return options->schema ? SchemaOf(*options->schema) : std::string(TableSchema());
}

const fs::path kFolder = fs::path(BARWRIGHT_SOURCE) / "docs" / "schemas";

TEST(Schema, ThereIsNoneOfAnotherKind) {
    std::wstring error;
    EXPECT_FALSE(ParseBarcheckOptions({L"--schema", L"tables"}, error));
    EXPECT_NE(error, L"");
}

TEST(Schema, TheGuidesSchemasAreWhatTheTablesSay) {
    for (const SchemaFile& schema : kSchemas) {
        std::ifstream stream(kFolder / schema.name, std::ios::binary);
        const std::string text((std::istreambuf_iterator<char>(stream)), {});
        EXPECT_EQ(text, WrittenSchema(schema.kind)) << "barcheck --schema ... > docs/schemas/" << schema.name;
    }
}

/// What an editor offers for an attribute whose type is a union of words and a pattern.
std::vector<std::string> WordsOf(const std::string& schema, const std::string& type) {
    std::vector<std::string> words;
    const std::size_t start = schema.find("<xs:simpleType name=\"" + type + "\">");
    const std::size_t end = schema.find("</xs:union>", start);
    const std::string key = "<xs:enumeration value=\"";
    for (std::size_t at = schema.find(key, start); at < end; at = schema.find(key, at)) {
        at += key.size();
        words.push_back(schema.substr(at, schema.find('"', at) - at));
    }
    return words;
}

std::vector<std::string> Narrow(const std::vector<std::wstring>& words) {
    std::vector<std::string> narrow;
    for (const std::wstring& word : words) {
        narrow.push_back(wstring2String(word));
    }
    return narrow;
}

TEST(Schema, EditorsCompleteTheWordsOfTheReaders) {
    EXPECT_EQ(WordsOf(WrittenSchema(L"ribbon"), "type"), Narrow(ElementTypes()));
    EXPECT_EQ(WordsOf(WrittenSchema(L"ribbon"), "statusType"), (std::vector<std::string>{"BUTTON", "SLIDER", "label"}));
    EXPECT_EQ(WordsOf(WrittenSchema(L"toolbar"), "type"), Narrow(ToolBarItemTypes()));
    EXPECT_EQ(WordsOf(WrittenSchema(L"ribbon"), "flag"), (std::vector<std::string>{"Y", "N"}));
    EXPECT_EQ(WordsOf(WrittenSchema(L"ribbon"), "size"), (std::vector<std::string>{"16", "32"}));
}

#ifndef _WIN32

/// Which of the files are valid. The program is started once, as starting it takes the most time.
std::set<fs::path> ValidFiles(const fs::path& schema, const std::vector<fs::path>& files) {
    const TemporaryDirectory directory;
    const fs::path said = directory.Path() / "said";
    std::string command = "xmllint --nonet --noout --schema '" + schema.string() + "'";
    for (const fs::path& file : files) {
        command += " '" + file.string() + "'";
    }
    (void)std::system((command + " 2>'" + said.string() + "'").c_str());
    std::ifstream stream(said, std::ios::binary);
    std::set<fs::path> valid;
    for (std::string line; std::getline(stream, line);) {
        constexpr std::string_view end = " validates";
        if (line.ends_with(end)) {
            valid.insert(line.substr(0, line.size() - end.size()));
        }
    }
    return valid;
}

bool IsValid(const fs::path& schema, const fs::path& file) { return !ValidFiles(schema, {file}).empty(); }

/// Faults of codes that a schema sees as a rule, and not here.
constexpr std::string_view kHidden[] = {
    "IDKEY=\"Safe\"",                                      // no schema knows that it is another name of KEYWORD
    "@@<panel NAME=\"\"/>",                                // a panel without a name needs none
    "TYPE=\"label\"><item KEYWORD=\"West\"",               // by its TYPE it could have items
    "<item KEYWORD=\"East\" @@TYPE=\"BUTTON\"/><category", // as in the row of the status bar
    "..\\pic",                                             // how deep a path is
    "SEPARATTOR",
    "@@<item SHORTKEY=\"Q\"/>", // separators of a menu have no keyword,
    "@@<item TYPE=\"qkLayerCheckCtrl\"/>",
    "@@<item TYPE=\"button\" PROMPT=\"Find\"", // nor have those of a toolbar
    "latin9",                                  // the parser knows more encodings
    "trgLang=\"fr\"",
    "RibbonBarCFG",
    "<source></source>", // the folder, the program's sections and which texts must not be empty
};

/// Faults of codes that it does not see as a rule.
constexpr std::pair<std::string_view, std::string_view> kSeen[] = {
    {"missing-caption", "<category "},  {"missing-caption", "<popup "},    {"missing-caption", "@@<bar>"},
    {"missing-caption", "PROMPT=\"\""}, {"lost-shortcut", "\"MenuEdit\""}, {"attribute-order", "@@name=\"\""},
    {"no-attributes", "<category/>"},   {"no-attributes", "@@<item"},
};

/// What a schema can see of the faults in a file of the kind.
bool IsVisible(const PlantedFault& fault) {
    const std::set<std::string_view> codes = {
        "xml-syntax",  "xml-encoding", "xml-reference",   "unknown-attribute", "duplicate-attribute",
        "bad-number",  "odd-size",     "bad-flag",        "unknown-type",      "missing-type",
        "stray-text",  "wrong-depth",  "shortcut-syntax", "access-key-syntax", "missing-keyword",
        "empty-group", "bad-table",    "children-lost",   "duplicate-text",    "path-separator"};
    const std::string_view after = fault.after;
    const auto has = [after](std::string_view text) { return after.find(text) != after.npos; };
    if (codes.contains(fault.code)) {
        return std::ranges::none_of(kHidden, has);
    }
    const bool isMenu = std::string_view(fault.file) == "cfg/menu.xml";
    return std::ranges::any_of(kSeen, [&](const auto& seen) {
        return seen.first == fault.code && has(seen.second) && !(isMenu && seen.first == "no-attributes");
    });
}

class ValidatingParser : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(std::system("xmllint --version >/dev/null 2>&1"), 0)
            << "there is no xmllint: scripts/setup installs it";
    }
    CheckedInstallation m_installation;
};

TEST_F(ValidatingParser, AcceptsTheCleanSamples) {
    WriteSample(m_installation);
    for (const SchemaFile& schema : kSchemas) {
        EXPECT_TRUE(IsValid(kFolder / schema.name, m_installation.Directory().Path() / schema.sample)) << schema.name;
    }
    for (const char* folder : {"demo/lang", "examples/host/lang"}) {
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(BARWRIGHT_SOURCE) / folder)) {
            if (entry.path().extension() == ".xlf") {
                EXPECT_TRUE(IsValid(kFolder / "table.xsd", entry.path())) << entry.path();
            }
        }
    }
    for (const char* folder : {"demo/cfg", "examples/host/cfg"}) {
        for (const auto& entry : fs::directory_iterator(fs::path(BARWRIGHT_SOURCE) / folder)) {
            const std::string name = entry.path().filename().string();
            const bool isMenu = name.starts_with("menu") || name == "keys.xml";
            const char* const schema = isMenu ? "menu.xsd" : name.starts_with("toolbar") ? "toolbar.xsd" : "ribbon.xsd";
            EXPECT_TRUE(IsValid(kFolder / schema, entry.path())) << entry.path();
        }
    }
}

TEST_F(ValidatingParser, AcceptsWhatTheTableGuideShows) {
    const std::string table = R"(<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.1" srcLang="en"
      xmlns:own="urn:own" own:tool="x" xml:space="preserve"><file id="Common"><notes><note category="place">x</note></notes>
  <group id="g" name="Any"><unit id="a" name="Layers:"><own:thing/><notes><note>n</note></notes>
    <segment state="final"><source>A <pc id="1">b <cp hex="001B"/></pc><ph id="2"/></source><target order="2">x</target></segment>
    <ignorable><source> </source></ignorable></unit></group></file></xliff>)";
    m_installation.Write("lang/en/b.xlf", table);
    EXPECT_TRUE(IsValid(kFolder / "table.xsd", m_installation.Directory().Path() / "lang/en/b.xlf"));
}

TEST_F(ValidatingParser, AcceptsGeneratedFiles) {
    ScenarioDirectory scenario;
    scenario.AddInstallation(800, 5, 2);
    for (const auto& entry : fs::recursive_directory_iterator(scenario.Path())) {
        const std::string name = entry.path().filename().string();
        const char* const schema = name.ends_with(".xlf")        ? "table.xsd"
                                   : name.starts_with("menu")    ? "menu.xsd"
                                   : name.starts_with("toolbar") ? "toolbar.xsd"
                                   : name.starts_with("ribbon")  ? "ribbon.xsd"
                                                                 : nullptr;
        if (entry.is_regular_file() && schema) {
            EXPECT_TRUE(IsValid(kFolder / schema, entry.path())) << entry.path();
        }
    }
}

TEST_F(ValidatingParser, RefusesEachFaultThatASchemaCanSeeAndNoOther) {
    for (const SchemaFile& schema : kSchemas) {
        std::vector<fs::path> files;
        std::vector<const PlantedFault*> faults;
        for (const PlantedFault& fault : kPlantedFaults) {
            if (fault.file == std::string_view(schema.sample)) {
                const std::string name = "faults/" + std::to_string(files.size()) + "-" + schema.name;
                m_installation.Write(name, TextWithFault(fault));
                files.push_back(m_installation.Directory().Path() / name);
                faults.push_back(&fault);
            }
        }
        ASSERT_FALSE(files.empty());
        const std::set<fs::path> valid = ValidFiles(kFolder / schema.name, files);
        for (std::size_t i = 0; i < files.size(); ++i) {
            EXPECT_EQ(!valid.contains(files[i]), IsVisible(*faults[i])) << faults[i]->code << ": " << faults[i]->after;
        }
    }
}

/// What the schema says of one value of an attribute, in the element of the sample that has it.
bool Takes(const CheckedInstallation& installation, const SchemaFile& schema, const std::string& before,
           const std::string& after) {
    for (const SampleFile& file : SampleFiles()) {
        if (file.name == std::string_view(schema.sample)) {
            std::string text = file.text;
            installation.Write(schema.sample, text.replace(text.find(before), before.size(), after));
        }
    }
    return IsValid(kFolder / schema.name, installation.Directory().Path() / schema.sample);
}

TEST_F(ValidatingParser, TakesSizesAndWidthsAsTheReaderDoes) {
    for (const char* const size : {"16", "32", "+32", "0032", "016"}) {
        EXPECT_TRUE(Takes(m_installation, kSchemas[0], "SIZE=\"32\"", "SIZE=\"" + std::string(size) + "\"")) << size;
    }
    for (const char* const size : {"24", "64", "0", "-16", "160", "3216", ""}) {
        EXPECT_FALSE(Takes(m_installation, kSchemas[0], "SIZE=\"32\"", "SIZE=\"" + std::string(size) + "\"")) << size;
    }
    for (const char* const width : {"1", "+120", "0120", "2147483647"}) {
        EXPECT_TRUE(Takes(m_installation, kSchemas[0], "WIDTH=\"120\"", "WIDTH=\"" + std::string(width) + "\""))
            << width;
    }
    for (const char* const width : {"0", "-120", "+0", "000", "12px", ""}) {
        EXPECT_FALSE(Takes(m_installation, kSchemas[0], "WIDTH=\"120\"", "WIDTH=\"" + std::string(width) + "\""))
            << width;
    }
}

TEST_F(ValidatingParser, TakesALetterOrADigitAsShortKey) {
    for (const char* const letter : {"X", "x", "5", "\xC3\x84", ""}) {
        EXPECT_TRUE(Takes(m_installation, kSchemas[1], "SHORTKEY=\"X\"", "SHORTKEY=\"" + std::string(letter) + "\""));
    }
    for (const char* const letter : {"Alt+X", "XY", " ", "&amp;", "&amp;X"}) {
        EXPECT_FALSE(Takes(m_installation, kSchemas[1], "SHORTKEY=\"X\"", "SHORTKEY=\"" + std::string(letter) + "\""));
    }
}

#endif

} // namespace
