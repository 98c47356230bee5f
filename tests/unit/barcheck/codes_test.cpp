#include "checked_installation.h"
#include "config/diagnostic_codes.h"
#include "reports.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

namespace {

/// Writes the files whose names the lines are: ribbon and menu files without a fault.
void WriteFiles(const CheckedInstallation& installation, const std::string& lines) {
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) {
        constexpr std::string_view tooLong = " (257 MB)";
        constexpr std::uintmax_t megabyte = 1'000'000;
        const bool isTooLong = line.ends_with(tooLong);
        std::string name = isTooLong ? line.substr(0, line.size() - tooLong.size()) : line;
        std::ranges::replace(name, '\\', '/');
        installation.Write(name, name.starts_with("cfg/menu")
                                     ? MenuWith("<item KEYWORD=\"Undo\" MENUNAME=\"\"/>")
                                     : RibbonWith("<item KEYWORD=\"In\" NAME=\"\" TYPE=\"BUTTON\"/>"));
        if (isTooLong) { // a hole, which takes no place on the disk
            std::filesystem::resize_file(installation.Directory().Path() / name, 270 * megabyte);
        }
    }
}

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
    case ExampleFrame::ToolTip:
        installation.Write("cfg/ribbon.xml",
                           "<ribbon><row><category KEYWORD=\"In\" NAME=\"\" TOOLTIP=\"\"/></row></ribbon>");
        break;
    case ExampleFrame::Twin:
        installation.WriteIcon("pic", "example.ico");
        installation.Write(
            "cfg/ribbon.xml",
            RibbonWith("<item KEYWORD=\"Open\" NAME=\"\" TYPE=\"BUTTON\" PICPATH=\"pic\\example.ico\"/>"));
        installation.Write("cfg/toolbar.xml", ToolBarWith(lines));
        break;
    case ExampleFrame::Files:
        WriteFiles(installation, lines);
        break;
    case ExampleFrame::None:
        break;
    }
}

/// Whether the lines are units of a table.
bool IsTable(ExampleFrame frame) {
    return frame == ExampleFrame::Table || frame == ExampleFrame::Field || frame == ExampleFrame::ToolTip;
}

void WriteTableOf(const CheckedInstallation& installation, const DiagnosticCode& code, std::string_view lines) {
    // Only a table that is translated lacks targets.
    const std::string source = code.code == "untranslated-text" ? "en" : "de";
    installation.Write("lang/de/a.xlf", CheckedInstallation::Table(std::string(lines), source));
}

std::string FindingsIn(const DiagnosticCode& code, std::string_view lines) {
    const CheckedInstallation installation;
    WriteExample(installation, code.frame, std::string(lines));
    if (IsTable(code.frame)) {
        WriteTableOf(installation, code, lines);
    }
    std::string codes;
    for (const Diagnostic& finding : installation.Check()) {
        codes += std::string(finding.code) + " ";
    }
    return codes;
}

TEST(DiagnosticCode, EveryCodeHasAnExampleWithItsFaultAloneThatIsCleanWhenMended) {
    for (const DiagnosticCode& code : DiagnosticCodes()) {
        ASSERT_NE(code.frame, ExampleFrame::None) << code.code << " has no example";
        EXPECT_EQ(FindingsIn(code, code.wrong), std::string(code.code) + " ") << code.wrong;
        EXPECT_EQ(FindingsIn(code, code.right), "") << code.right;
        EXPECT_NE(DiagnosticsGuide().find(code.wrong.substr(0, code.wrong.find('\xFF'))), std::string::npos)
            << code.code;
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
