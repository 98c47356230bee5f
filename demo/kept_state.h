#pragma once

#include "map_state.h"

#include <optional>
#include <string>
#include <vector>

/// Where the frame lies when it is neither maximised nor minimised, in screen pixels.
struct KeptWindow {
    WindowBox place;
    bool isMaximized = false;
};

/// What the viewer finds again at its next start, beside the bars' own settings and what the map shows. What is empty
/// was not kept: the viewer then does as at its first start.
struct KeptViewer {
    std::wstring language;
    std::wstring skin;
    std::optional<std::wstring> iconStyle; ///< Where the user has chosen another one than the skin's.
    std::optional<KeptWindow> window;
    bool showsClassicBars = false;
    std::wstring startMode;                   ///< The working mode of the next start; empty: browsing.
    int scalePercent = 0;                     ///< Of texts and icons; 0: as the screen says.
    std::vector<std::wstring> hiddenToolbars; ///< Their titles as their file has them.
    std::vector<std::wstring> openedFiles;    ///< Full paths of the map's layers of the user's own, in their order.
};

/// As a readable text.
std::string WriteKept(const KeptViewer& viewer, const MapState& map);

/// Reads what WriteKept has written. Nothing when the text is no such file; then both arguments are as they were.
/// Otherwise the names of the entries that cannot be used: each of them is as it was, all others are taken. The map
/// shows the kept view instead of the whole world when it gets its first size.
std::optional<std::vector<std::string>> ReadKept(const std::string& text, KeptViewer& viewer, MapState& map);
