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

#ifndef _WIN32

bool IsValid(const fs::path& schema, const fs::path& file) {
    const std::string command =
        "xmllint --nonet --noout --schema '" + schema.string() + "' '" + file.string() + "' >/dev/null 2>&1";
    return std::system(command.c_str()) == 0;
}

/// What a schema can see of the faults in a file of the kind.
bool IsVisible(const PlantedFault& fault) {
    const std::set<std::string_view> codes = {"xml-syntax",   "unknown-attribute", "bad-number", "unknown-type",
                                              "missing-type", "bad-flag",          "stray-text", "shortcut-syntax"};
    const std::set<std::string_view> ofTables = {"xml-syntax", "bad-table", "duplicate-text"};
    const std::string_view code = fault.code;
    if (std::string_view(fault.file).starts_with("lang/")) {
        // No schema knows the folder, the program's sections and which texts must not be empty.
        constexpr std::string_view hidden[] = {"trgLang=\"fr\"", "RibbonBarCFG", "<source></source>"};
        const std::string_view after = fault.after;
        return ofTables.contains(code) &&
               std::ranges::none_of(hidden, [after](std::string_view text) { return after.find(text) != after.npos; });
    }
    return codes.contains(code);
}

class ValidatingParser : public testing::Test {
protected:
    void SetUp() override {
        if (std::system("xmllint --version >/dev/null 2>&1") != 0) {
            GTEST_SKIP() << "there is no xmllint";
        }
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

TEST_F(ValidatingParser, RefusesEachFaultThatASchemaCanSee) {
    for (const PlantedFault& fault : kPlantedFaults) {
        for (const SchemaFile& schema : kSchemas) {
            if (fault.file != std::string_view(schema.sample) || !IsVisible(fault)) {
                continue;
            }
            const std::string text = TextWithFault(fault);
            m_installation.Write(schema.sample, text);
            EXPECT_FALSE(IsValid(kFolder / schema.name, m_installation.Directory().Path() / schema.sample))
                << fault.after;
        }
    }
}

#endif

} // namespace
