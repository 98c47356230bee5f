#include "checked_installation.h"
#include "config/diagnostic_codes.h"
#include "reports.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace {

/// Writes the lines of an example into the installation that they need.
void WriteExample(const CheckedInstallation& installation, ExampleFrame frame, const std::string& lines) {
    switch (frame) {
    case ExampleFrame::RibbonFile:
        installation.Write("cfg/ribbon.xml", lines);
        break;
    case ExampleFrame::Panel:
        installation.WriteIcon("pic", "example.ico");
        installation.Write("pic/16/text.ico", "no icon");
        installation.Write("pic/16/small.ico", MakeIconFile(8, {0, 0}));
        installation.Write("cfg/ribbon.xml", RibbonWith(lines));
        break;
    case ExampleFrame::MenuFile:
        installation.Write("cfg/menu.xml", lines);
        break;
    case ExampleFrame::Popup:
        installation.Write("cfg/menu.xml", MenuWith(lines));
        break;
    case ExampleFrame::ToolBarFile:
        installation.Write("cfg/toolbar.xml", lines);
        break;
    case ExampleFrame::ToolBar:
        installation.Write("cfg/toolbar.xml", ToolBarWith(lines));
        break;
    case ExampleFrame::Table:
        installation.Write("cfg/ribbon.xml", "<ribbon><row><category KEYWORD=\"In\" NAME=\"\"/></row></ribbon>");
        break;
    case ExampleFrame::Field:
        installation.Write(
            "cfg/ribbon.xml",
            "<ribbon><row><category KEYWORD=\"In\" NAME=\"\"><panel KEYWORD=\"Inside\"><item "
            "KEYWORD=\"Place\" NAME=\"\" TYPE=\"edit\" WIDTH=\"60\"/></panel></category></row></ribbon>");
        break;
    case ExampleFrame::None:
        break;
    }
}

void WriteTableOf(const CheckedInstallation& installation, const DiagnosticCode& code, std::string_view lines) {
    // Only a table that is translated lacks targets.
    const std::string source = code.code == "untranslated-text" ? "en" : "de";
    installation.Write("lang/de/a.xlf", CheckedInstallation::Table(std::string(lines), source));
}

std::string FindingsIn(const DiagnosticCode& code, std::string_view lines) {
    const CheckedInstallation installation;
    WriteExample(installation, code.frame, std::string(lines));
    if (code.frame == ExampleFrame::Table || code.frame == ExampleFrame::Field) {
        WriteTableOf(installation, code, lines);
    }
    std::string codes;
    for (const Diagnostic& finding : installation.Check()) {
        codes += std::string(finding.code) + " ";
    }
    return codes;
}

TEST(DiagnosticCode, EveryExampleOfTheGuideHasItsFaultAloneAndIsCleanWhenMended) {
    for (const DiagnosticCode& code : DiagnosticCodes()) {
        if (code.frame != ExampleFrame::None) {
            EXPECT_EQ(FindingsIn(code, code.wrong), std::string(code.code) + " ") << code.wrong;
            EXPECT_EQ(FindingsIn(code, code.right), "") << code.right;
        }
    }
}

TEST(DiagnosticCode, EveryCodeStandsOnceAndSaysWhatItIs) {
    std::set<std::string_view> seen;
    for (const DiagnosticCode& code : DiagnosticCodes()) {
        EXPECT_TRUE(seen.insert(code.code).second) << code.code;
        EXPECT_EQ(code.code.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string_view::npos) << code.code;
        for (const std::string_view text : {code.meaning, code.effect, code.mend}) {
            EXPECT_TRUE(text.ends_with('.')) << code.code << ": " << text;
        }
        EXPECT_EQ(FindDiagnosticCode(code.code), &code);
        EXPECT_EQ(SeverityOf(code.code), code.severity);
    }
    EXPECT_EQ(FindDiagnosticCode("no-such-code"), nullptr);
    EXPECT_ANY_THROW(SeverityOf("no-such-code"));
}

TEST(DiagnosticCode, TheGuideIsWhatTheTableSays) {
    std::ifstream stream(std::filesystem::path(BARWRIGHT_SOURCE) / "docs" / "diagnostics.md", std::ios::binary);
    const std::string page((std::istreambuf_iterator<char>(stream)), {});
    EXPECT_EQ(page, DiagnosticsGuide()) << "build/native/bin/barcheck --guide > docs/diagnostics.md";
}

} // namespace
