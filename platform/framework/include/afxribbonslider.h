#pragma once

#include <afxbaseribbonelement.h>

#include "fx/ribbon_slider_part.h"

// A horizontal slider with optional "-" and "+" buttons. The command is sent after each change that the user makes.
class FRAMEWORK_API CMFCRibbonSlider : public CMFCRibbonBaseElement {
    DECLARE_DYNCREATE(CMFCRibbonSlider)

public:
    // nWidth: the channel's length in pixels at 96 DPI.
    CMFCRibbonSlider(UINT nID, int nWidth = 100);

    // Positions outside of the range are moved to its nearest end; a range with nMax < nMin is swapped.
    void SetPos(int nPos, BOOL bRedraw = TRUE);
    int GetPos() const { return m_nPos; }
    void SetRange(int nMin, int nMax);
    int GetRangeMin() const { return m_nMin; }
    int GetRangeMax() const { return m_nMax; }
    void SetZoomButtons(BOOL bSet = TRUE);
    BOOL HasZoomButtons() const { return m_bZoomButtons; }
    void SetZoomIncrement(int nZoomIncrement) { m_nZoomIncrement = nZoomIncrement; }
    int GetZoomIncrement() const { return m_nZoomIncrement; }
    int GetWidth() const { return m_nWidth; }

    CSize GetRegularSize(CDC* pDC) override;
    int GetNarrowestWidth(CDC* pDC) override;
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    BOOL PutACCValue(LPCTSTR lpszValue) override;
    void OnDraw(CDC* pDC) override;
    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    BOOL IsAutoRepeatMode(int& nDelay) const override;
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    BOOL OnAutoRepeat() override;

    void OnMouseMove(CPoint point) override;
    void OnLButtonDown(CPoint point) override;
    void OnLButtonUp(CPoint point) override;
    void OnHighlight(BOOL bHighlight) override;
    void SetPressed(BOOL bPressed) override;

protected:
    CMFCRibbonSlider() = default;
    BOOL OnProcessKey(UINT nChar) override;

    // Which part is under the point, and which position a thumb centred there would show.
    RibbonSliderPart GetPartFromPoint(CPoint point) const;
    int GetPosFromPoint(CPoint point) const;
    CRect GetThumbRect() const;
    // What the user does: sets the position and sends the command when it changed.
    virtual void ChangePos(int nPos);
    // The position so many units further on, inside the range.
    int GetPosAfter(long long nStep) const;
    // What a page key moves by: a fifth of the range, at least one increment.
    long long GetPageStep() const;

    int m_nWidth = 100;
    int m_nMin = 0;
    int m_nMax = 100;
    int m_nPos = 0;
    int m_nZoomIncrement = 10;
    BOOL m_bZoomButtons = FALSE;
    BOOL m_bHasRepeated = FALSE; // a held zoom button has stepped already: its release does not step again
    RibbonSliderPart m_HotPart = RibbonSliderPart::None;
    RibbonSliderPart m_PressedPart = RibbonSliderPart::None;
};
