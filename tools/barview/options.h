#pragma once

#include <optional>
#include <string>
#include <vector>

/// What the preview was asked for.
struct BarviewOptions {
    std::wstring directory;                 ///< Installation directory, with its closing backslash.
    std::vector<std::wstring> ribbonFiles;  ///< Relative to the directory, as the builders get them.
    std::vector<std::wstring> menuFiles;    ///< Likewise.
    std::vector<std::wstring> toolBarFiles; ///< Likewise.
    std::wstring language;
    std::wstring skin = L"silver";
    int width = 1280; ///< Client size of the frame in screen pixels.
    int height = 300;
    int scalePercent = 0;     ///< 0: as the screen says.
    std::wstring category;    ///< Name of the category to show; empty: the first.
    std::wstring application; ///< The ribbon file whose status row is shown; empty: no status bar.
    std::wstring path;        ///< Of the working mode to show; empty: all categories.
    std::wstring screenshot;
    std::wstring dump;
    std::wstring batch; ///< File that lists directories and the files of their dumps; empty: `directory` alone.

    bool isWatching = false; ///< Build the bars anew whose files change, and write the outputs each time.
    int changes = 0;         ///< Leave after so many changes; 0: when the window is closed.

    /// Nobody answers: leave after the output, and never wait for an answer.
    bool IsUnattended() const { return !isWatching && (!screenshot.empty() || !dump.empty() || !batch.empty()); }
};

/// Takes an installation directory, with its closing backslash, and the files in it that were not named.
void TakeDirectory(const std::wstring& directory, BarviewOptions& options);

/// Nothing, with a line in `error`, on wrong usage.
std::optional<BarviewOptions> ParseBarviewOptions(const std::vector<std::wstring>& arguments, std::wstring& error);

/// One line for each option.
const wchar_t* BarviewUsage();
