#pragma once

#include "command_search.h"

#include <afxcontrolbars.h>

#include <string>
#include <vector>

class LanguageNames;

/// Where commands are to be found in a frame.
struct CommandPlaces {
    const CMFCRibbonBar* ribbon = nullptr;
    HMENU menu = nullptr;
    bool prefersMenu = false;   ///< The menu is what the user sees.
    CFrameWnd* frame = nullptr; ///< Its accelerators are the shortcuts.
    std::wstring iconSet;       ///< The folder of the icons that can be seen on the skin, such as "\\modle_0\\".
    const LanguageNames* names = nullptr;
};

/// All commands that can be run from a list: the buttons and menu items, each once, with their state as the reactors
/// say it now. Fields, combos and sliders want a value and are left out.
std::vector<SearchCommand> CollectCommands(const CommandPlaces& places);

/// Letter case and accents taken off, for FindCommands.
std::wstring FoldForSearch(const std::wstring& text);

/// The file of the command's small icon in a set of icons; empty when the ribbon has none for it.
CString CommandIconFile(const CMFCRibbonBar& ribbon, UINT id, const wchar_t* set);
