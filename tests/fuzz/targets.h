#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

// What is fed with bytes that mean nothing, until something breaks. Each target reads them as one part of the library
// does and aborts where a rule does not hold that holds for every input. `scripts/fuzz` looks for new inputs, the tests
// replay those that were kept.

/// The XML reader with all its encodings.
void FuzzXml(std::string_view bytes);
/// Conversions of texts, shortcuts, suggestions and paths.
void FuzzTexts(std::string_view bytes);
/// A ribbon file.
void FuzzRibbon(std::string_view bytes);
/// A menu file.
void FuzzMenu(std::string_view bytes);
/// A toolbar file.
void FuzzToolBars(std::string_view bytes);
/// A translation table, read and completed.
void FuzzTable(std::string_view bytes);
/// An icon file's headers.
void FuzzIcon(std::string_view bytes);
/// A whole installation: the files' texts one behind the other, see kFileBorder.
void FuzzBarcheck(std::string_view bytes);

/// Stands between the files of an installation: ribbon, menu, toolbars, tables of English and Chinese, an icon.
inline constexpr std::string_view kFileBorder = "\n====\n";

struct FuzzTarget {
    /// Of its program, its corpus and its logs.
    std::string_view name;
    void (*function)(std::string_view bytes);
};

inline constexpr FuzzTarget kFuzzTargets[] = {
    {"xml", FuzzXml},           {"texts", FuzzTexts}, {"ribbon", FuzzRibbon}, {"menu", FuzzMenu},
    {"toolbars", FuzzToolBars}, {"table", FuzzTable}, {"icon", FuzzIcon},     {"barcheck", FuzzBarcheck},
};

/// Ends the program where a rule does not hold.
inline void Demand(bool holds, const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
    if (!holds) {
        std::fprintf(stderr, "%s:%d: a rule does not hold\n", file, line);
        std::abort();
    }
}
