#pragma once

#include <afxvisualmanageroffice2003.h>

/// Bars with gradients, mixed from the face of the system's buttons instead of its captions.
class FRAMEWORK_API CMFCVisualManagerVS2005 : public CMFCVisualManagerOffice2003 {
    DECLARE_DYNCREATE(CMFCVisualManagerVS2005)

public:
    CMFCVisualManagerVS2005(BOOL bIsTemporary = FALSE);
    ~CMFCVisualManagerVS2005() override;

    COLORREF GetBaseThemeColor() override;
    void OnUpdateSystemColors() override;
};
