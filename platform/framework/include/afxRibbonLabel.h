#pragma once

#include <afxribbonbutton.h>

// A text that sends no command of its own. A multi-line label breaks its text over the height of its panel.
class FRAMEWORK_API CMFCRibbonLabel : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonLabel)

public:
    CMFCRibbonLabel(LPCTSTR lpszText, BOOL bIsMultiLine = FALSE);
    ~CMFCRibbonLabel() override;

    BOOL IsMultiLine() const { return m_bIsMultiLine; }
    void CopyFrom(const CMFCRibbonBaseElement& src) override;
    CSize GetRegularSize(CDC* pDC) override;
    CSize GetIntermediateSize(CDC* pDC) override;
    CSize GetCompactSize(CDC* pDC) override;
    BOOL HasLargeMode() const override { return FALSE; }
    BOOL HasIntermediateMode() const override { return FALSE; }
    BOOL HasCompactMode() const override { return FALSE; }
    BOOL CanBeStretched() override { return FALSE; }
    BOOL IsWholeRowHeight() const override { return m_bIsMultiLine; }
    BOOL IsTabStop() const override { return FALSE; }
    BOOL CanBeAddedToQuickAccessToolBar() const override { return FALSE; }
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    void OnDraw(CDC* pDC) override;
    int DrawRibbonText(CDC* pDC, const CString& strText, CRect rectText, UINT uiDTFlags,
                       COLORREF clrText = static_cast<COLORREF>(-1)) override;
    void OnLButtonUp(CPoint point) override;

protected:
    CMFCRibbonLabel() = default;
    void OnClick(CPoint point) override;

    BOOL m_bIsMultiLine = FALSE;
};
