#pragma once

#include "fx/bar_frame.h"

/// A frame with docked panes, ribbon or menu bar.
class FRAMEWORK_API CFrameWndEx : public fx::BarFrameOf<CFrameWnd> {
    DECLARE_DYNCREATE(CFrameWndEx)

public:
    CFrameWndEx();
    ~CFrameWndEx() override;

    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);

    // What these do for a ribbon that stands for the caption stands in DefWindowProc, where they lead.
    using CFrameWnd::OnGetMinMaxInfo;
    using CFrameWnd::OnNcActivate;
    using CFrameWnd::OnNcCalcSize;
    using CFrameWnd::OnNcHitTest;
    using CFrameWnd::OnNcPaint;
    using CFrameWnd::OnSysColorChange;
    using CFrameWnd::OnWindowPosChanged;

protected:
    DECLARE_MESSAGE_MAP()
};
