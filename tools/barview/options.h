#pragma once

#include <optional>
#include <string>
#include <utility>
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
    std::wstring matrix;  ///< Folder for pictures of every tab in every combination of the four below.
    std::wstring against; ///< Another installation directory, to be compared with.
    std::vector<std::wstring> skins;
    std::vector<std::wstring> languages; ///< None: all, and the two that are made up.
    std::vector<int> scales;
    std::vector<std::pair<int, int>> sizes;
    std::wstring batch; ///< File that lists directories and the files of their dumps; empty: `directory` alone.

    // Which kinds of files the user has named; of the others those count that are there.
    bool isRibbonNamed = false;
    bool isMenuNamed = false;
    bool areToolBarsNamed = false;

    bool isMirrored = false; ///< The window runs from the right to the left.
    bool isWatching = false; ///< Build the bars anew whose files change, and write the outputs each time.
    int changes = 0;         ///< Leave after so many changes; 0: when the window is closed.

    /// Nobody answers: leave after the output, and never wait for an answer.
    bool IsUnattended() const {
        return !isWatching && (!screenshot.empty() || !dump.empty() || !batch.empty() || !matrix.empty());
    }
};

/// Takes an installation directory, with its closing backslash, and the files in it that were not named.
void TakeDirectory(const std::wstring& directory, BarviewOptions& options);

/// Looks again which files are there of the kinds that were not named. Where none is left of a kind, those that were
/// stay: an editor that removes a file before it writes it anew is not finished yet.
void FindUnnamedFiles(BarviewOptions& options);

/// Nothing, with a line in `error`, on wrong usage.
std::optional<BarviewOptions> ParseBarviewOptions(const std::vector<std::wstring>& arguments, std::wstring& error);

/// One line for each option.
const wchar_t* BarviewUsage();
