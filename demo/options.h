#pragma once

#include <optional>
#include <string>
#include <vector>

/// What the demo was asked for on its command line.
struct DemoOptions {
    std::wstring language = L"zh-CN";
    std::wstring skin;             ///< Empty: as the system prefers.
    std::wstring mode = L"browse"; ///< The working mode that is shown first.
    int width = 1280;              ///< Outer size of the frame in screen pixels.
    int height = 800;
    int scalePercent = 0;          ///< 0: as the screen says.
    int category = -1;             ///< Index of the category shown first; -1: the mode's own.
    bool showsClassicBars = false; ///< Menu bar and toolbars in the ribbon's place.
    bool isRightToLeft = false;    ///< Mirrored layout, as for languages that are written so.
    std::wstring mapFile;          ///< GeoJSON file that is opened at the start; empty: none.
    std::wstring screenshot;       ///< PNG file to write, then leave; empty: stay.
    std::wstring record;           ///< JSON file that is written anew after each change; empty: none.
};

/// Nothing, with a line in `error`, when an argument is unknown or malformed.
std::optional<DemoOptions> ParseDemoOptions(const std::vector<std::wstring>& arguments, std::wstring& error);
