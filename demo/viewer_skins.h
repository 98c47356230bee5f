#pragma once

#include "map_state.h"

#include <algorithm>
#include <array>
#include <string>

/// A look of the viewer.
struct ViewerSkin {
    const wchar_t* name;
    int style;                ///< As the ribbon numbers them.
    const wchar_t* iconStyle; ///< "0": light icons for dark ground; "1": dark ones
    const wchar_t* icons;     ///< The folder of those that can be seen on it
    const wchar_t* iconSet;   ///< The end of its name
    MapPalette palette;       ///< What the map is drawn with while the user has chosen none
};

inline constexpr std::array<ViewerSkin, 2> kViewerSkins = {
    {{L"silver", 1, L"1", L"pic\\skin\\icon\\modle\\", L"\\modle\\", MapPalette::Natural},
     {L"black", 0, L"0", L"pic\\skin\\icon\\modle_0\\", L"\\modle_0\\", MapPalette::Night}}};

/// Null for any other name.
inline const ViewerSkin* FindViewerSkin(const std::wstring& name) {
    for (const ViewerSkin& skin : kViewerSkins) {
        if (name == skin.name) {
            return &skin;
        }
    }
    return nullptr;
}

/// Whether some skin's icons have that style.
inline bool IsIconStyleOfSkin(const std::wstring& style) {
    return std::ranges::any_of(kViewerSkins, [&style](const ViewerSkin& skin) { return style == skin.iconStyle; });
}
