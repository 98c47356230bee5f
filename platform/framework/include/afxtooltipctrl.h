#pragma once

#include <afxcmn.h>

class CMFCRibbonButton;
class CMFCToolBarButton;

/// How a tooltip looks. A colour of (COLORREF)-1 means the system's.
class FRAMEWORK_API CMFCToolTipInfo {
public:
    CMFCToolTipInfo() = default;
    CMFCToolTipInfo(const CMFCToolTipInfo&) = default;
    CMFCToolTipInfo& operator=(CMFCToolTipInfo& src);
    CMFCToolTipInfo& operator=(const CMFCToolTipInfo& src) = default;

    BOOL m_bBalloonTooltip = FALSE;
    BOOL m_bDrawIcon = TRUE;
    BOOL m_bDrawDescription = TRUE;
    BOOL m_bRoundedCorners = FALSE;
    BOOL m_bBoldLabel = TRUE;
    BOOL m_bDrawSeparator = TRUE;
    /// Take everything else from the visual manager.
    BOOL m_bVislManagerTheme = FALSE;
    COLORREF m_clrFill = (COLORREF)-1;
    COLORREF m_clrFillGradient = (COLORREF)-1;
    COLORREF m_clrText = (COLORREF)-1;
    COLORREF m_clrBorder = (COLORREF)-1;
    /// -1: the default, from top to bottom.
    int m_nGradientAngle = -1;
    /// Pixels at 96 DPI; a longer description is wrapped.
    int m_nMaxDescrWidth = 200;
};

/// A tooltip with an optional icon, a label, a separator line and a description below it, drawn in the look that its
/// parameters say. Create it through CTooltipManager.
class FRAMEWORK_API CMFCToolTipCtrl : public CToolTipCtrl {
    DECLARE_DYNCREATE(CMFCToolTipCtrl)

public:
    CMFCToolTipCtrl(CMFCToolTipInfo* pParams = NULL);
    ~CMFCToolTipCtrl() override;

    const CMFCToolTipInfo& GetParams() const { return m_Params; }
    /// NULL: the default look.
    void SetParams(CMFCToolTipInfo* pParams);
    virtual void SetDescription(const CString strDesrciption);
    /// The element whose image and description are shown; NULL for none. Not owned; reset it before the element goes.
    void SetHotRibbonButton(CMFCRibbonButton* pRibbonButton);
    /// Screen position of the next show; CPoint(-1, -1) leaves it to the system.
    void SetLocation(CPoint pt);
    /// Widths, in pixels at 96 DPI, of tooltips with a description: with an image larger than 32 pixels at 96 DPI, and
    /// all others. 0: as wide as the text, at most m_nMaxDescrWidth.
    void SetFixedWidth(int nWidthRegular, int nWidthLargeImage);

    virtual CSize GetIconSize();
    /// FALSE when there was no icon to draw.
    virtual BOOL OnDrawIcon(CDC* pDC, CRect rectImage);
    /// Draws, or with bCalcOnly only measures; the size used.
    virtual CSize OnDrawLabel(CDC* pDC, CRect rect, BOOL bCalcOnly);
    virtual CSize OnDrawDescription(CDC* pDC, CRect rect, BOOL bCalcOnly);
    virtual void OnDrawSeparator(CDC* pDC, int x1, int x2, int y);
    virtual void OnDrawBorder(CDC* pDC, CRect rect, COLORREF clrLine);
    virtual void OnFillBackground(CDC* pDC, CRect rect, COLORREF& clrText, COLORREF& clrLine);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    /// TTN_SHOW: sizes and places the window. *pResult is 1 when it was placed, 0 when the system places it.
    afx_msg void OnShow(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPop(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

    /// Fill m_Params from the visual manager when the tooltip follows it.
    void UpdateParams();
    /// The text of the current tool, without its accelerator marks.
    CString GetLabel();
    /// Moves (unless ptScreen is CPoint(-1, -1)) and sizes the window for this show, kept inside the work area of the
    /// monitor there. TRUE when it was moved: the handler of TTN_SHOW answers that.
    BOOL PlaceForShow(CPoint ptScreen, CSize size);
    /// The look of this type of owner is asked from the visual manager.
    void SetOwnerType(UINT nType) { m_nOwnerType = nType; }
    BOOL IsDescriptionShown() const { return m_Params.m_bDrawDescription && !m_strDescription.IsEmpty(); }
    /// Width in which label and description are wrapped, in pixels.
    int GetTextWidth() const;

    friend class CTooltipManager;
    friend class CMFCToolBar;

    CMFCToolTipInfo m_Params;
    CString m_strDescription;
    /// The label that is shown; OnShow fills it.
    CString m_strLabel;
    /// Set by toolbars, as m_pRibbonButton by the ribbon. Not owned.
    CMFCToolBarButton* m_pHotButton = NULL;
    CMFCRibbonButton* m_pRibbonButton = NULL;
    CSize m_sizeImage = CSize(0, 0);
    CPoint m_ptMargin = CPoint(0, 0);
    CPoint m_ptLocation = CPoint(-1, -1);
    CRect m_rectShow = CRect(0, 0, 0, 0);
    BOOL m_bMovedForShow = FALSE;
    UINT m_nOwnerType = (UINT)-1;
    int m_nFixedWidthRegular = 0;
    int m_nFixedWidthWithImage = 0;
};
