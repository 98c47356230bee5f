#pragma once

#include <afxvisualmanagerwindows.h>

/// As CMFCVisualManagerWindows, with flat bars and highlights that are mixed from the system's selection colour.
class FRAMEWORK_API CMFCVisualManagerWindows7 : public CMFCVisualManagerWindows {
    DECLARE_DYNCREATE(CMFCVisualManagerWindows7)

public:
    CMFCVisualManagerWindows7();
    ~CMFCVisualManagerWindows7() override;

protected:
    const visual::Skin& GetSkin() const override;
};
