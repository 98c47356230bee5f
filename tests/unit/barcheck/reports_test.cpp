#include "config/diagnostic_codes.h"
#include "options.h"
#include "reports.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>

namespace {

using Json = nlohmann::json;

std::vector<Diagnostic> SomeFindings() {
    return {{L"cfg/a b.xml",
             {2, 4},
             DiagnosticSeverity::Warning,
             "unknown-attribute",
             L"50% of \"\x5730\x56FE\"\nis wrong",
             L"mend it",
             {{L"cfg/b.xml", {7, 8}, L"here"}}},
            {L"cfg/b.xml", {9, 1}, DiagnosticSeverity::Note, "unused-text", L"noted", L"", {}},
            {L"cfg/none.xml", {1, 1}, DiagnosticSeverity::Error, "missing-file", L"gone", L"", {}}};
}

TEST(BarcheckReport, TextShowsTheLineWithACaretTheFixAndWhatIsRelated) {
    const TemporaryDirectory directory;
    directory.Write("cfg/a b.xml", "first\r\n\t\xE5\x9C\xB0x\r\nlast");
    directory.Write("cfg/b.xml", "<b/>");
    EXPECT_EQ(TextReport(SomeFindings(), directory.Prefix()),
              "cfg/a b.xml:2:4: warning: 50% of \"\xE5\x9C\xB0\xE5\x9B\xBE\"\nis wrong [unknown-attribute]\n"
              "    \t\xE5\x9C\xB0x\n"
              "    \t   ^\n"
              "    fix: mend it\n"
              "    cfg/b.xml:7:8: here\n"
              "cfg/b.xml:9:1: note: noted [unused-text]\n"
              "cfg/none.xml:1:1: error: gone [missing-file]\n");
    EXPECT_EQ(Summary(SomeFindings()), "1 error, 1 warning, 1 note");
}

TEST(BarcheckReport, TextCutsALongLineAroundItsPlace) {
    const TemporaryDirectory directory;
    directory.Write("a.xml", std::string(1000, 'a') + "b" + std::string(1000, 'c'));
    const std::vector<Diagnostic> findings = {
        {L"a.xml", {1, 1001}, DiagnosticSeverity::Note, "unused-text", L"x", L"", {}}};
    EXPECT_EQ(TextReport(findings, directory.Prefix()), "a.xml:1:1001: note: x [unused-text]\n    " +
                                                            std::string(100, 'a') + "b" + std::string(99, 'c') +
                                                            "\n    " + std::string(100, ' ') + "^\n");
}

TEST(BarcheckReport, JsonHasTheFieldsOfEachFindingAndLeavesEmptyOnesOut) {
    const Json report = Json::parse(JsonReport(SomeFindings()));
    ASSERT_EQ(report.size(), 3u);
    EXPECT_EQ(report[0], Json::parse(R"json({"file": "cfg/a b.xml", "line": 2, "column": 4, "severity": "warning",
        "code": "unknown-attribute", "message": "50% of \"地图\"\nis wrong", "fix": "mend it",
        "related": [{"file": "cfg/b.xml", "line": 7, "message": "here"}]})json"));
    EXPECT_FALSE(report[1].contains("fix"));
    EXPECT_FALSE(report[1].contains("related"));
    EXPECT_EQ(report[1]["severity"], "note");
    EXPECT_EQ(report[2]["severity"], "error");
    EXPECT_EQ(JsonReport({}), "[]\n");
}

TEST(BarcheckReport, SarifNamesRulesPlacesAndLevels) {
    const Json report = Json::parse(SarifReport(SomeFindings()));
    EXPECT_EQ(report["version"], "2.1.0");
    const Json& run = report["runs"][0];
    EXPECT_EQ(run["tool"]["driver"]["name"], "barcheck");
    EXPECT_EQ(run["tool"]["driver"]["rules"].size(), DiagnosticCodes().size());
    ASSERT_EQ(run["results"].size(), 3u);
    const Json& result = run["results"][0];
    const auto index = result["ruleIndex"].get<std::size_t>();
    EXPECT_EQ(run["tool"]["driver"]["rules"][index]["id"], result["ruleId"]);
    EXPECT_EQ(result["level"], "warning");
    const Json& place = result["locations"][0]["physicalLocation"];
    EXPECT_EQ(place["artifactLocation"]["uri"], "cfg/a%20b.xml");
    EXPECT_EQ(place["region"]["startLine"], 2);
    EXPECT_EQ(place["region"]["startColumn"], 4);
    EXPECT_EQ(result["relatedLocations"][0]["message"]["text"], "here");
    EXPECT_EQ(Json::parse(SarifReport({}))["runs"][0]["results"], Json::array());
}

TEST(BarcheckReport, SarifNamesFilesFromWhereTheProgramWasStarted) {
    const std::vector<Diagnostic> findings = {{L"cfg/a.xml",
                                               {3, 4},
                                               DiagnosticSeverity::Error,
                                               "missing-file",
                                               L"gone",
                                               L"",
                                               {{L"cfg/b.xml", {5, 6}, L"here"}}}};
    const Json report = Json::parse(SarifReport(findings, L"the product/files/"));
    const Json& result = report["runs"][0]["results"][0];
    const auto uriOf = [](const Json& location) { return location["physicalLocation"]["artifactLocation"]["uri"]; };
    EXPECT_EQ(uriOf(result["locations"][0]), "the%20product/files/cfg/a.xml");
    EXPECT_EQ(uriOf(result["relatedLocations"][0]), "the%20product/files/cfg/b.xml");
}

TEST(BarcheckReport, GithubCommandsAreOneLineEachWithTheirSignsEscaped) {
    EXPECT_EQ(GithubReport(SomeFindings()), "::warning file=cfg/a b.xml,line=2,col=4,title=unknown-attribute::50%25 of "
                                            "\"\xE5\x9C\xB0\xE5\x9B\xBE\"%0Ais wrong (mend it)\n"
                                            "::notice file=cfg/b.xml,line=9,col=1,title=unused-text::noted\n"
                                            "::error file=cfg/none.xml,line=1,col=1,title=missing-file::gone\n");
}

TEST(BarcheckReport, GithubCommandsNameFilesFromWhereTheProgramWasStarted) {
    const std::vector<Diagnostic> findings = {
        {L"cfg/a.xml", {3, 4}, DiagnosticSeverity::Error, "missing-file", L"gone", L"", {}}};
    EXPECT_EQ(GithubReport(findings, L"product/files/"),
              "::error file=product/files/cfg/a.xml,line=3,col=4,title=missing-file::gone\n");
}

TEST(BarcheckOptions, ADirectoryBelowTheWorkingDirectoryIsTheFilesFolder) {
    const TemporaryDirectory directory;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::create_directories(directory.Path() / "product" / "files");
    std::filesystem::current_path(directory.Path());
    std::wstring error;
    EXPECT_EQ(ParseBarcheckOptions({L"product/files"}, error)->folder, L"product/files/");
    EXPECT_EQ(ParseBarcheckOptions({L"./product//files/"}, error)->folder, L"product/files/");
    EXPECT_EQ(ParseBarcheckOptions({L"."}, error)->folder, L"");
    EXPECT_EQ(ParseBarcheckOptions({L"./"}, error)->folder, L"");
    EXPECT_EQ(ParseBarcheckOptions({directory.Path().wstring()}, error)->folder, L"");
    std::filesystem::current_path(before);
}

TEST(BarcheckOptions, AFileMayBeNamedAsAShellCompletesIt) {
    const TemporaryDirectory directory;
    directory.Write("product/cfg/menu.xml", "<menu/>");
    directory.Write("cfg/menu.xml", "<menu/>");
    directory.Write("other/menu.xml", "<menu/>");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(directory.Path());
    std::wstring error;
    const auto read = [&](const std::wstring& file) {
        std::wstring name = ParseBarcheckOptions({L"product", file}, error)->files.front();
        std::ranges::replace(name, L'\\', L'/');
        return name;
    };
    EXPECT_EQ(read(L"cfg/menu.xml"), L"cfg/menu.xml"); // relative to the directory, where that is there
    EXPECT_EQ(read(L"product/cfg/menu.xml"), L"cfg/menu.xml");
    EXPECT_EQ(read((directory.Path() / "product" / "cfg" / "menu.xml").wstring()), L"cfg/menu.xml");
    EXPECT_EQ(read(L"other/menu.xml"), L"other/menu.xml"); // outside
    EXPECT_EQ(read(L"none.xml"), L"none.xml");
    EXPECT_EQ(read(L""), L"");
    std::filesystem::current_path(before);
}

TEST(BarcheckOptions, AreReadInAnyOrder) {
    const TemporaryDirectory directory;
    std::wstring error;
    const std::wstring path = directory.Path().wstring();
    const auto options =
        ParseBarcheckOptions({L"--strict", path, L"--lang", L"de", L"a.xml", L"--format", L"sarif", L"b.xml"}, error);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->directory, directory.Prefix());
    EXPECT_EQ(options->files, (std::vector<std::wstring>{L"a.xml", L"b.xml"}));
    EXPECT_TRUE(options->isStrict);
    EXPECT_EQ(options->language, L"de");
    EXPECT_EQ(options->format, ReportFormat::Sarif);
    EXPECT_TRUE(ParseBarcheckOptions({L"--guide"}, error));
    EXPECT_TRUE(ParseBarcheckOptions({L"--help"}, error));
    EXPECT_EQ(ParseBarcheckOptions({L"-h"}, error)->task, BarcheckOptions::Task::Help);
    EXPECT_EQ(ParseBarcheckOptions({L"--schema", L"menu"}, error)->schema, ConfigurationKind::Menu);
    EXPECT_EQ(ParseBarcheckOptions({path, L"--extract", L"fr"}, error)->extract, L"fr");
}

TEST(BarcheckOptions, WrongUsageIsSaid) {
    const TemporaryDirectory directory;
    const std::wstring path = directory.Path().wstring();
    for (const std::vector<std::wstring>& arguments : {std::vector<std::wstring>{},
                                                       {path + L"/none"},
                                                       {path, L"--format"},
                                                       {path, L"--format", L"xml"},
                                                       {path, L"--lang", L""},
                                                       {path, L"--lang", L"../x"},
                                                       {path, L"--sstrict"}}) {
        std::wstring error;
        EXPECT_FALSE(ParseBarcheckOptions(arguments, error));
        EXPECT_NE(error, L"");
    }
}

} // namespace
