#pragma once

#include "config/diagnostics.h"

#include <span>
#include <string_view>

/// What the lines of an example stand in.
enum class ExampleFrame {
    None,
    RibbonFile,
    Panel, ///< elements of a ribbon's panel
    MenuFile,
    Popup, ///< items of a menu's popup
    ToolBarFile,
    ToolBar, ///< buttons of a toolbar
    Table,   ///< units of a translation table
    Field,   ///< the same, where "Place" is the text of an edit of WIDTH 60
    ToolTip, ///< the same, where "In" has a name and a tooltip
    Twin,    ///< buttons of a toolbar, where a ribbon has the command "Open" with the icon pic\\example.ico
    Files,   ///< names of files of an installation, each with its size where that matters
};

/// One kind of problem: what the guide says of it and what the tests prove. Texts are UTF-8.
struct DiagnosticCode {
    std::string_view code;
    DiagnosticSeverity severity;
    /// What is wrong.
    std::string_view meaning;
    /// What the program does with it.
    std::string_view effect;
    /// How to mend it.
    std::string_view mend;
    ExampleFrame frame = ExampleFrame::None;
    /// Lines that have this problem and no other, and the same lines without it.
    std::string_view wrong = {};
    std::string_view right = {};
};

/// All of them, in the order of the guide.
std::span<const DiagnosticCode> DiagnosticCodes();

/// The code of a file of one kind in another's place: then nothing else is said of it, and nothing is known of what it
/// should hold.
inline constexpr std::string_view kWrongKind = "wrong-kind";

/// Null for a word that is no code.
const DiagnosticCode* FindDiagnosticCode(std::string_view code);

/// `code` must be one of DiagnosticCodes().
DiagnosticSeverity SeverityOf(std::string_view code);

/// "error", "warning" or "note".
std::string_view NameOf(DiagnosticSeverity severity);
