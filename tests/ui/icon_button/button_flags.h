#pragma once

#include "ribbon_icon_button.h"

/// Shows the flags that a button keeps for itself.
struct ButtonFlags : CMFCRibbonUNIcoButton {
    static BOOL DestroysIcons(const CMFCRibbonUNIcoButton& button) {
        return button.*(&ButtonFlags::m_bAutoDestroyIcon);
    }
    static BOOL BlendsIcons(const CMFCRibbonUNIcoButton& button) { return button.*(&ButtonFlags::m_bAlphaBlendIcon); }
};
