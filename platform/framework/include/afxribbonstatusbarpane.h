#pragma once

#include <memory>

#include "afxribbonbutton.h"

class RibbonPaneAnimation;

/// A pane of a ribbon status bar: an icon or an animation, and a text. A static pane only shows something, any other
/// one is a button. Sizes are pixels, scaled unless it says otherwise.
class FRAMEWORK_API CMFCRibbonStatusBarPane : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonStatusBarPane)

public:
    CMFCRibbonStatusBarPane();
    /// lpszAlmostLargeText: the longest text that is shown whole; the pane is as wide as that. NULL: as its text. The
    /// icon stays the caller's.
    CMFCRibbonStatusBarPane(UINT nCmdID, LPCTSTR lpszText, BOOL bIsStatic = FALSE, HICON hIcon = NULL,
                            LPCTSTR lpszAlmostLargeText = NULL);
    /// With an animation, see SetAnimationList.
    CMFCRibbonStatusBarPane(UINT nCmdID, LPCTSTR lpszText, HBITMAP hBmpAnimationList, int cxAnimation = 16,
                            COLORREF clrTrnsp = RGB(192, 192, 192), HICON hIcon = NULL, BOOL bIsStatic = FALSE);
    CMFCRibbonStatusBarPane(UINT nCmdID, LPCTSTR lpszText, UINT uiAnimationListResID, int cxAnimation = 16,
                            COLORREF clrTrnsp = RGB(192, 192, 192), HICON hIcon = NULL, BOOL bIsStatic = FALSE);
    ~CMFCRibbonStatusBarPane() override;

    LPCTSTR GetAlmostLargeText() const { return m_strAlmostLargeText; }
    void SetAlmostLargeText(LPCTSTR lpszAlmostLargeText);
    /// TA_LEFT, TA_CENTER or TA_RIGHT.
    int GetTextAlign() const { return m_nTextAlign; }
    void SetTextAlign(int nAlign);
    BOOL IsStatic() const { return m_bIsStatic; }
    /// The pane lies in the extended area of its bar.
    BOOL IsExtended() const;

    // Animation. The bitmap holds the frames side by side, each cxAnimation pixels wide (not scaled); it is copied. One
    // that is running ends first.
    void SetAnimationList(HBITMAP hBmpAnimationList, int cxAnimation = 16, COLORREF clrTransp = RGB(192, 192, 192));
    /// FALSE: there is no such bitmap.
    BOOL SetAnimationList(UINT uiAnimationListResID, int cxAnimation = 16, COLORREF clrTransp = RGB(192, 192, 192));
    /// Milliseconds; nDuration -1: until StopAnimation. Without frames nothing happens.
    void StartAnimation(UINT nFrameDelay = 500, UINT nDuration = (UINT)-1);
    void StopAnimation();
    BOOL IsAnimation() const;

    CSize GetRegularSize(CDC* pDC) override;
    CSize GetIntermediateSize(CDC* pDC) override;
    CSize GetCompactSize(CDC* pDC) override;
    BOOL HasLargeMode() const override { return FALSE; }
    BOOL IsTabStop() const override { return !m_bIsStatic; }
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    void OnDraw(CDC* pDC) override;
    void OnDrawBorder(CDC* pDC) override;
    COLORREF OnFillBackground(CDC* pDC) override;

protected:
    /// The animation has ended, by itself or by StopAnimation.
    virtual void OnFinishAnimation() {}
    void OnClick(CPoint point) override;
    BOOL OnKey(BOOL bIsMenuKey) override;

private:
    friend class RibbonPaneAnimation;
    CSize Measure(CDC* pDC) const;
    CSize PictureSize() const;

    CString m_strAlmostLargeText;
    int m_nTextAlign = TA_LEFT;
    BOOL m_bIsStatic = FALSE;
    std::unique_ptr<RibbonPaneAnimation> m_animation; ///< null without frames
};
