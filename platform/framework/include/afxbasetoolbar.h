#pragma once

#include "afxPane.h"

/// What toolbars have in common with each other and not with panes: they dock at once and have no smallest size.
class FRAMEWORK_API CMFCBaseToolBar : public CPane {
    DECLARE_DYNCREATE(CMFCBaseToolBar)

public:
    CMFCBaseToolBar();
    ~CMFCBaseToolBar() override;

    AFX_DOCK_TYPE GetDockingMode() const override { return DT_IMMEDIATE; }
    void GetMinSize(CSize& size) const override;
    void OnAfterChangeParent(CWnd* pWndOldParent) override;
};
