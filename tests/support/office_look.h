#pragma once

#include <afxglobals.h>
#include <afxvisualmanageroffice2007.h>

/// One of the styles at a scale of the ribbon.
struct OfficeLook {
    CMFCVisualManagerOffice2007::Style style;
    const wchar_t* name;
    double scale;
};

/// The look is in force while the object lives, the initial one and the screen's scale are afterwards.
class ScopedOfficeLook {
public:
    explicit ScopedOfficeLook(const OfficeLook& look) {
        CMFCVisualManagerOffice2007::SetStyle(look.style);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        afxGlobalData.SetRibbonImageScale(look.scale);
    }
    ~ScopedOfficeLook() {
        afxGlobalData.SetRibbonImageScale(0);
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManagerOffice2007::CleanStyle();
    }
    ScopedOfficeLook(const ScopedOfficeLook&) = delete;
    ScopedOfficeLook& operator=(const ScopedOfficeLook&) = delete;
};
