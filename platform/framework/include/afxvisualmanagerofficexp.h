#pragma once

#include <afxvisualmanager.h>

/// A flat look whose highlights are mixed from the system's selection colour.
class FRAMEWORK_API CMFCVisualManagerOfficeXP : public CMFCVisualManager {
    DECLARE_DYNCREATE(CMFCVisualManagerOfficeXP)

public:
    CMFCVisualManagerOfficeXP(BOOL bIsTemporary = FALSE);
    ~CMFCVisualManagerOfficeXP() override;

    void OnUpdateSystemColors() override;

protected:
    const visual::Skin& GetSkin() const override;
};
