#pragma once

#include <windows.h>

#include <nlohmann/json.hpp>

#include <string>
#include <utility>
#include <vector>

class CMenu;
class CMFCRibbonBar;
class CMFCRibbonStatusBar;
class CMFCToolBar;

/// What a dump is made from; bars that are not there give empty lists.
struct DumpSources {
    CMFCRibbonBar* ribbon = nullptr;
    CMFCRibbonStatusBar* statusBar = nullptr;
    std::vector<std::vector<std::wstring>> commands =
        {};                               ///< m_cmdList of every ribbon builder, one list for each file.
    std::vector<const CMenu*> menus = {}; ///< Of every menu builder, in the order of the files.
    HACCEL accelerators = nullptr;        ///< Of the frame.
    std::wstring application = {};        ///< The application whose status extras are shown.
    /// Of every group of toolbars, which it names, in the order of the groups.
    std::vector<std::pair<std::wstring, const CMFCToolBar*>> toolBars = {};
};

/// The bars as JSON: what was built, by whom it is known, where it lies. Of the registry, the commands whose ids fit
/// into 16 bits or lie below the next free one; none that are negative. Rectangles are [left, top, right, bottom] in
/// client pixels of the bar. The keys keep the order that readers of the format rely on.
nlohmann::ordered_json DumpFrame(const DumpSources& sources);

/// Writes the dump as UTF-8 with two spaces of indentation. False when the file cannot be written.
bool WriteJson(const nlohmann::ordered_json& json, const std::wstring& path);
