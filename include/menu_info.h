#pragma once

#include <string>

/// One configured element of a menu file: an item, a popup or a separator. Plain data; CDynMenuCreater::_menuInfo is
/// this record.
struct MenuInfo {
    bool bSeparator = false;  ///< no other field is filled then
    std::wstring strName;     ///< caption, translated
    std::wstring strKeyword;  ///< the command's key in CMenuIdMgr
    std::wstring strShortKey; ///< mnemonic, shown in brackets behind the caption
    std::wstring strHotKey;   ///< shortcut as written, such as Ctrl+Shift+S
    std::wstring strText;     ///< what the menu shows: caption and mnemonic
    std::wstring strCmd;      ///< command text
    std::wstring strToolTip;  ///< translated
    std::wstring strPicPath;  ///< icon path as configured, see GetIconPathStr
    std::wstring strParam;    ///< command parameter
};
