#pragma once

#include <afxcontrolbars.h>

#include "menu_id_mgr.h"

/// Pictures of commands and buttons are taken from their files again.
inline void ForgetIcons() {
    // The library's own list of toolbar images is the framework's as long as it holds any.
    if (CMFCToolBarImages* const images = CMFCToolBar::GetUserImages()) {
        images->Clear();
        CMFCToolBar::SetUserImages(nullptr);
    }
    CMFCToolBar::ResetAllImages();
    CMFCToolBar::SetSizes(CSize(23, 22), CSize(16, 15));
    GetCmdMgr()->ClearAllCmdImages();
}
