#pragma once

#include <afxwin.h>

#include "ribbon/shown_text.h"

/// Texts for assistive programs; string resources of the framework.
enum class RibbonAccessTextId : UINT {
    Ribbon = 17150,
    QuickAccess = 17151,
    Tabs = 17152,
    Press = 17153,
    Open = 17154,
    Check = 17155,
    Uncheck = 17156,
    Switch = 17157,
    Edit = 17158,
    Alt = 17159,
    ScrollLeft = 17160,
    ScrollRight = 17161,
    StatusBar = 17162,
};

CString RibbonAccessText(RibbonAccessTextId id);
