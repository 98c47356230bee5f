#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One configured element of a ribbon file: a category, a panel, a ribbon element, a sub-item or an extra status-bar
/// button. Plain data; CAddRibbonBar::_RibbonInfo is this record.
struct RibbonInfo {
    bool groupBefore = false;             ///< a separator stands before this element
    std::wstring name;                    ///< displayed text, translated
    std::wstring type;                    ///< kind of element, in any letter case
    std::wstring tooltip;                 ///< translated
    std::wstring keyword;                 ///< the command's key in CMenuIdMgr
    std::wstring picPath;                 ///< icon path as configured, see GetIconPathStr
    std::wstring picDisPath;              ///< icon path of the disabled state
    std::int32_t size = 0;                ///< icon size in pixels at 96 DPI; 16 makes a small button
    std::wstring cmd;                     ///< command text
    std::wstring param;                   ///< command parameter
    std::wstring help;                    ///< help file name
    bool acceptF1 = true;                 ///< the element takes the F1 hint
    bool cateTab = false;                 ///< a category that is a plain one, without a command
    std::vector<std::wstring> valueGroup; ///< as configured, empty pieces included
    std::int32_t width = 0;               ///< of a slider or an edit, in pixels at 96 DPI
};
