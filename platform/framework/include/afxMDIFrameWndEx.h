#pragma once

#include "fx/bar_frame.h"

/// An MDI frame with docked panes, ribbon or menu bar.
class FRAMEWORK_API CMDIFrameWndEx : public fx::BarFrameOf<CMDIFrameWnd> {
    DECLARE_DYNCREATE(CMDIFrameWndEx)

public:
    CMDIFrameWndEx();
    ~CMDIFrameWndEx() override;

    /// Gives the MDI client what the panes leave over.
    virtual void AdjustClientArea();
    virtual void OnSizeMDIClient(const CRect& rectOld, const CRect& rectNew);

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPanesPlaced() override;

    CRect m_clientPlace{0, 0, 0, 0}; ///< of the MDI client when OnSizeMDIClient was called last
    DECLARE_MESSAGE_MAP()
};
