#include "config/diagnostic_codes.h"
#include "reports.h"

namespace {

struct FrameText {
    ExampleFrame frame;
    std::string_view where;
    std::string_view language = "xml";
};
constexpr FrameText kFrames[] = {
    {ExampleFrame::RibbonFile, "A ribbon file"},
    {ExampleFrame::Panel, "In a panel of a ribbon file"},
    {ExampleFrame::MenuFile, "A menu file"},
    {ExampleFrame::Popup, "In a popup of a menu file"},
    {ExampleFrame::ToolBarFile, "A toolbar file"},
    {ExampleFrame::ToolBar, "In a toolbar of a toolbar file"},
    {ExampleFrame::Table, "In a translation table"},
    {ExampleFrame::Field, "In a translation table, where `Place` is the text of an edit of `WIDTH=\"60\"`"},
    {ExampleFrame::ToolTip, "In a translation table, where `In` is a button with `NAME` and `TOOLTIP`"},
    {ExampleFrame::Twin, "In a toolbar of a toolbar file, where a button `Open` of the ribbon has the same icon"},
    {ExampleFrame::Files, "Files of an installation", "text"},
};

/// Bytes that are no text show as what they are read as.
std::string Shown(std::string_view lines) {
    std::string shown;
    for (const char c : lines) {
        shown += c == '\xFF' ? "\xEF\xBF\xBD" : std::string(1, c);
    }
    return shown;
}

std::string ExampleOf(const DiagnosticCode& code) {
    std::string text;
    for (const FrameText& frame : kFrames) {
        if (frame.frame == code.frame) {
            const std::string fence = "```" + std::string(frame.language) + "\n";
            text.append(frame.where).append(":\n\n").append(fence).append(Shown(code.wrong));
            text.append("\n```\n\nMended:\n\n").append(fence).append(Shown(code.right)).append("\n```\n\n");
        }
    }
    return text;
}

} // namespace

std::string DiagnosticsGuide() {
    std::string guide =
        "# What barcheck says\n\n"
        "`barcheck DIR` reads the configuration of an installation directory as the library does and says what is "
        "wrong\n"
        "with it. The library itself passes over nearly all of it without a word. Every finding has one of the codes\n"
        "below; they do not change between versions. `barcheck --help` tells the options, [how to use it](barcheck.md) "
        "tells\nthe rest. This page is written by `barcheck --guide`.\n\n"
        "| code | severity | what is wrong |\n|---|---|---|\n";
    for (const DiagnosticCode& code : DiagnosticCodes()) {
        const std::string name(code.code);
        guide.append("| [`").append(name).append("`](#").append(name).append(") | ");
        guide.append(NameOf(code.severity)).append(" | ").append(code.meaning).append(" |\n");
    }
    guide += "\n";
    for (const DiagnosticCode& code : DiagnosticCodes()) {
        guide += "## " + std::string(code.code) + "\n\n" + std::string(code.meaning) + "\n\n*What the program does:* " +
                 std::string(code.effect) + "\n\n*How to mend it:* " + std::string(code.mend) + "\n\n" +
                 ExampleOf(code);
    }
    guide.pop_back();
    return guide;
}
