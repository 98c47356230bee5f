#pragma once

#include "afxwin.h"

namespace panes {

/// The outline that shows where a dragged pane will come to lie: a hollow window that takes no input. Screen pixels.
class DragPreview : public CWnd {
public:
    DragPreview() = default;
    ~DragPreview() override;

    /// An empty rectangle hides it.
    void Show(const CRect& rect);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};

} // namespace panes
