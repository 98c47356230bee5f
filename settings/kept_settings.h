#pragma once

#include <optional>
#include <string>
#include <vector>

using Keywords = std::vector<std::wstring>;

/// The quick access toolbar of one path.
struct KeptCommands {
    std::wstring path; ///< empty: of a bar without paths
    Keywords commands; ///< as the user has them, unknown ones included
    Keywords seen;     ///< what was configured at any time since the user began to change it
};

struct KeptToolBar {
    std::wstring group;
    std::wstring title; ///< as the toolbar file has it
    int number = 0;     ///< among the group's bars of that title, from 0
    bool isShown = true;
};

struct KeptShortcuts {
    std::wstring keyword;
    std::vector<std::wstring> keys;
};

/// What a user changed, by keyword.
struct KeptSettings {
    std::optional<bool> isMinimized;
    std::optional<bool> isQuickAccessBelow;
    std::vector<KeptCommands> quickAccess;
    std::vector<KeptToolBar> toolBars;
    std::vector<KeptShortcuts> shortcuts;
};
