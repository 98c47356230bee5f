#include "planted_faults.h"
#include "sample_installation.h"
#include "schema.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace {

namespace fs = std::filesystem;

struct SchemaFile {
    ConfigurationKind kind;
    const char* name;
    const char* sample;
};
constexpr SchemaFile kSchemas[] = {
    {ConfigurationKind::Ribbon, "ribbon.xsd", "cfg/ribbon.xml"},
    {ConfigurationKind::Menu, "menu.xsd", "cfg/menu.xml"},
    {ConfigurationKind::ToolBars, "toolbar.xsd", "cfg/toolbar.xml"},
};

const fs::path kFolder = fs::path(BARWRIGHT_SOURCE) / "docs" / "schemas";

TEST(Schema, TheGuidesSchemasAreWhatTheTablesSay) {
    for (const SchemaFile& schema : kSchemas) {
        std::ifstream stream(kFolder / schema.name, std::ios::binary);
        const std::string text((std::istreambuf_iterator<char>(stream)), {});
        EXPECT_EQ(text, SchemaOf(schema.kind)) << "barcheck --schema ... > docs/schemas/" << schema.name;
    }
}

#ifndef _WIN32

bool IsValid(const fs::path& schema, const fs::path& file) {
    const std::string command =
        "xmllint --nonet --noout --schema '" + schema.string() + "' '" + file.string() + "' >/dev/null 2>&1";
    return std::system(command.c_str()) == 0;
}

/// What a schema can see of the faults in a file of the kind.
bool IsVisible(std::string_view code) {
    const std::set<std::string_view> codes = {"xml-syntax",   "unknown-attribute", "bad-number", "unknown-type",
                                              "missing-type", "bad-flag",          "stray-text", "shortcut-syntax"};
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
    for (const char* folder : {"demo/cfg", "examples/host/cfg"}) {
        for (const auto& entry : fs::directory_iterator(fs::path(BARWRIGHT_SOURCE) / folder)) {
            const std::string name = entry.path().filename().string();
            if (name == "keys.xml") {
                continue; // a menu file with names of its own, which the readers take
            }
            const char* const schema = name.starts_with("menu")      ? "menu.xsd"
                                       : name.starts_with("toolbar") ? "toolbar.xsd"
                                                                     : "ribbon.xsd";
            EXPECT_TRUE(IsValid(kFolder / schema, entry.path())) << entry.path();
        }
    }
}

TEST_F(ValidatingParser, RefusesEachFaultThatASchemaCanSee) {
    for (const PlantedFault& fault : kPlantedFaults) {
        for (const SchemaFile& schema : kSchemas) {
            if (fault.file != std::string_view(schema.sample) || !IsVisible(fault.code)) {
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
