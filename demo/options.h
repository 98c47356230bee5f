#pragma once

#include <optional>
#include <string>
#include <vector>

/// What the demo was asked for on its command line.
struct DemoOptions {
    std::wstring language; ///< Empty: as at the last time, at first the system's.
    std::wstring skin;     ///< Empty: as at the last time, at first as the system prefers.
    std::wstring mode;     ///< The working mode that is shown first; empty: the one that the user has chosen.
    int width = 0;         ///< Outer size of the frame in screen pixels; 0: as at the last time.
    int height = 0;
    int scalePercent = 0;                 ///< 0: as the screen says.
    int category = -1;                    ///< Index of the category shown first; -1: the mode's own.
    std::optional<bool> showsClassicBars; ///< Menu bar and toolbars in the ribbon's place, or the ribbon.
    std::optional<bool> isRightToLeft;    ///< Mirrored layout, whatever the language; nothing: as it is written.
    bool isFresh = false;                 ///< As if for the first time: keeps nothing either.
    std::wstring settings;                ///< The folder of what is kept between two runs; empty: the user's own.
    std::wstring mapFile;                 ///< GeoJSON file that is opened at the start; empty: none.
    std::wstring screenshot;              ///< PNG file to write, then leave; empty: stay.
    std::wstring record;                  ///< JSON file that is written anew after each change; empty: none.
    int recordPause = 0;                  ///< Milliseconds at least between two records; the last state is written too.
    bool followsFiles = false;            ///< The bars are built anew whenever their files are written.
    bool stays = false;                   ///< Nothing that is done in it closes it, for long tests.
    std::wstring watch;                   ///< File that lines about the state of the process are added to; empty: none.
};

/// Nothing, with a line in `error`, when an argument is unknown or malformed.
std::optional<DemoOptions> ParseDemoOptions(const std::vector<std::wstring>& arguments, std::wstring& error);
