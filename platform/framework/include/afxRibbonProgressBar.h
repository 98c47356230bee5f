#pragma once

#include "afxbaseribbonelement.h"

/// How far a long work has come, in a panel or a status bar. It takes no input.
class FRAMEWORK_API CMFCRibbonProgressBar : public CMFCRibbonBaseElement {
    DECLARE_DYNCREATE(CMFCRibbonProgressBar)

public:
    CMFCRibbonProgressBar() = default;
    /// Pixels at 96 DPI.
    CMFCRibbonProgressBar(UINT nID, int nWidth = 90, int nHeight = 22);

    /// A range with nMax < nMin is swapped; the position moves into it.
    void SetRange(int nMin, int nMax);
    int GetRangeMin() const { return m_nMin; }
    int GetRangeMax() const { return m_nMax; }
    /// A position outside of the range is moved to its nearest end; in infinite mode it goes round.
    void SetPos(int nPos, BOOL bRedraw = TRUE);
    int GetPos() const { return m_nPos; }
    /// Nobody knows how long the work takes: a short piece moves along with the position.
    void SetInfiniteMode(BOOL bSet = TRUE);
    BOOL IsInfiniteMode() const { return m_bInfiniteMode; }

    CSize GetRegularSize(CDC* pDC) override;
    BOOL IsTabStop() const override { return FALSE; }
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    void OnDraw(CDC* pDC) override;

private:
    int m_nWidth = 90;
    int m_nHeight = 22;
    int m_nMin = 0;
    int m_nMax = 100;
    int m_nPos = 0;
    BOOL m_bInfiniteMode = FALSE;
};
