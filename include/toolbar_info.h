#pragma once

#include <string>

/// One configured element of a toolbar file: a group, a toolbar or a button, with the attributes as they are written.
/// Plain data; CDynToolBarCreater::ToolBarInfo is this record.
struct ToolBarInfo {
    std::wstring strType;    ///< a button's kind
    std::wstring strPrompt;  ///< a toolbar's title, a button's caption
    std::wstring strPicPath; ///< icon path as configured, see GetIconPathStr
    std::wstring strKeyword; ///< a group's name, a button's key in CMenuIdMgr
    std::wstring strToolTip;
};
