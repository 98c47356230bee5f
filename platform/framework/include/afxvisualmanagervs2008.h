#pragma once

#include <afxvisualmanagervs2005.h>

/// As CMFCVisualManagerVS2005, from which it differs in windows alone that the framework does not have.
class FRAMEWORK_API CMFCVisualManagerVS2008 : public CMFCVisualManagerVS2005 {
    DECLARE_DYNCREATE(CMFCVisualManagerVS2008)

public:
    CMFCVisualManagerVS2008(BOOL bIsTemporary = FALSE);
    ~CMFCVisualManagerVS2008() override;
};
