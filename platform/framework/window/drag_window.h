#pragma once

#include "afxwin.h"

namespace fx {

/// Has the mouse while its user drags something with the left button held: a child window without extent, so that what
/// is dragged may change its parent, or go. Points are screen pixels.
class DragWindow : public CWnd {
public:
    DragWindow() = default;
    /// Its window may go with its parent, in the middle of the drag.
    ~DragWindow() override;

    /// Ends without effect: Esc was pressed, or the mouse went to somebody else. The keys go to the window with the
    /// focus, which knows nothing of the drag; they are seen on their way.
    virtual void Cancel() = 0;
    /// Something is being dragged in this thread.
    static bool HasMouse() { return Current() != nullptr; }

protected:
    /// False: there is no window, and nothing has begun. One drag at a time in a thread.
    bool TakeMouse(CWnd* parent);
    void ReleaseMouse();
    /// That has the mouse in this thread; null when nothing is dragged.
    static DragWindow* Current();

    virtual bool IsUnderWay() const = 0;
    virtual void MoveTo(CPoint screen) = 0;
    /// The button was let go.
    virtual void Finish(CPoint screen) = 0;

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    DECLARE_MESSAGE_MAP()

private:
    static BOOL CancelByEscape(MSG* message);
    static const bool kIsFilterAdded;

    CPoint ToScreen(CPoint point) const;
};

} // namespace fx
