#pragma once

#include "afxMDIFrameWndEx.h"

/// An MDI child with panes of its own.
class FRAMEWORK_API CMDIChildWndEx : public fx::DockingFrameOf<CMDIChildWnd> {
    DECLARE_DYNCREATE(CMDIChildWndEx)

public:
    CMDIChildWndEx();
    ~CMDIChildWndEx() override;

    void RecalcLayout(BOOL bNotify = TRUE) override;

    virtual CString GetFrameText() const;
    virtual HICON GetFrameIcon() const;
    virtual BOOL IsReadOnly() { return FALSE; }
    virtual BOOL CanShowOnWindowsList() { return TRUE; }
    virtual void ActivateTopLevelFrame();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()
};
