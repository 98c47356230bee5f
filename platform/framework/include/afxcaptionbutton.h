#pragma once

#include "framework_api.h"

#include <afxwin.h>

/// What a caption button stands for, beside the system's own HTCLOSE, HTMINBUTTON, HTMAXBUTTON: for buttons that the
/// system shall not take for its own.
constexpr UINT AFX_HTMENU = 0x1000;      // opens the menu of the pane
constexpr UINT AFX_HTMAXBUTTON = 0x1001; // gives the pane its row, or back to it
constexpr UINT AFX_HTCLOSE = 0x1002;

/// A button in the caption of a pane or of a mini frame. It has no window: its owner, the window with the caption,
/// keeps it, places it, draws it and tells it its state. Points are in the owner's window or client pixels, as it
/// draws.
class FRAMEWORK_API CMFCCaptionButton : public CObject {
    DECLARE_DYNAMIC(CMFCCaptionButton)

public:
    CMFCCaptionButton();
    /// nHit: HTCLOSE, AFX_HTCLOSE and so on. bLeftAlign: it stands at the beginning of the caption.
    explicit CMFCCaptionButton(UINT nHit, BOOL bLeftAlign = FALSE);

    UINT GetHit() const { return m_nHit; }
    BOOL IsLeftAlign() const { return m_bLeftAlign; }
    /// Empty while the button is hidden.
    virtual CRect GetRect() const;
    /// Of every caption button, in scaled pixels; what the visual manager adds to its border is counted.
    static CSize GetSize();
    /// The caption is that of a mini frame.
    BOOL IsMiniFrameButton() const { return m_bIsMiniFrameButton; }
    void SetMiniFramebutton(BOOL bSet = TRUE) { m_bIsMiniFrameButton = bSet; }
    void Move(const CPoint& ptTo, BOOL bHide = FALSE);
    /// bActive: the caption is the active window's. For AFX_HTMAXBUTTON an arrow: across when bHorz, else upright; to
    /// the right or down when bMaximized, else to the left or up.
    virtual void OnDraw(CDC* pDC, BOOL bActive, BOOL bHorz = TRUE, BOOL bMaximized = TRUE, BOOL bDisabled = FALSE);

    // For the owner.
    BOOL m_bPushed = FALSE;
    BOOL m_bFocused = FALSE; // under the pointer
    BOOL m_bDroppedDown = FALSE;

private:
    UINT m_nHit = 0;
    BOOL m_bLeftAlign = FALSE;
    BOOL m_bIsMiniFrameButton = FALSE;
    BOOL m_bHidden = FALSE;
    CPoint m_ptPos{0, 0};
};
