#pragma once

#include "dialog_frame.h"
#include "layer_list.h"

#include <afxcontrolbars.h>

class SoftCanvas;

/// A top-level window whose frame and caption have the viewer's colours: it draws them itself, because the system's are
/// light in a dark skin where it does not offer others. Moving, sizing and the system menu stay the system's work.
/// Mirrored where its style says so.
class CCaptionWindow : public CWnd {
public:
    /// For the record.
    CRect CaptionOnScreen() const;

protected:
    explicit CCaptionWindow(const ViewerColors& colors) : m_colors(colors) {}

    /// Whether the caption has a button for that.
    virtual bool CanClose() const { return true; }
    /// Of the system's styles what is left to it: it knows of no caption.
    static DWORD WithoutCaption(DWORD style) { return style & ~static_cast<DWORD>(WS_CAPTION | WS_MINIMIZEBOX); }
    /// Size of a window with that inside, in pixels.
    static CSize OuterSize(CSize inside, DWORD style);

    afx_msg void OnNcCalcSize(BOOL calculates, NCCALCSIZE_PARAMS* sizes);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnNcActivate(BOOL isActive);
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point);
    afx_msg void OnNcLButtonUp(UINT hit, CPoint point);
    afx_msg void OnNcMouseMove(UINT hit, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    DECLARE_MESSAGE_MAP()

private:
    FrameMeasures Measures() const;
    bool IsSizable() const { return (GetStyle() & WS_THICKFRAME) != 0; }
    CRect FromPlace(const WindowBox& place, int width) const;
    void DrawCaption(SoftCanvas& canvas, const FramePlaces& places) const;
    void DrawButton(SoftCanvas& canvas, UINT hit, const CRect& place) const;
    void SetHot(UINT hit);

    const ViewerColors m_colors;
    UINT m_hot = HTNOWHERE;     ///< The button under the pointer.
    UINT m_pressed = HTNOWHERE; ///< The one that was pressed and not let go.
    bool m_isActive = true;
};
