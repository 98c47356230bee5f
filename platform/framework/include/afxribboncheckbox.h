#pragma once

#include <afxribbonbutton.h>

// A check box with its text on the right; a click sends the command, the handler's update sets the check.
class FRAMEWORK_API CMFCRibbonCheckBox : public CMFCRibbonButton {
    DECLARE_DYNCREATE(CMFCRibbonCheckBox)

public:
    CMFCRibbonCheckBox(UINT nID, LPCTSTR lpszText);

    CSize GetCompactSize(CDC* pDC) override;
    CSize GetIntermediateSize(CDC* pDC) override;
    CSize GetRegularSize(CDC* pDC) override;
    BOOL HasLargeMode() const override { return FALSE; }
    BOOL HasCompactMode() const override { return FALSE; }
    BOOL IsDrawTooltipImage() const override { return FALSE; }
    BOOL SetACCData(CWnd* pParent, CAccessibilityData& data) override;
    void OnDraw(CDC* pDC) override;

protected:
    CMFCRibbonCheckBox() = default;
};
