#pragma once

#include "barwright_api.h"

#include <afxRibbonLabel.h>

/// A ribbon label that tells the host of clicks (WM_RIBBON_LABEL_CLICKED), translates its text when it draws it, and
/// may be coloured, shifted or put at the right end of a status bar. The container owns it.
class BARWRIGHT_API CMFCRibbonLabelEx : public CMFCRibbonLabel {
    DECLARE_DYNCREATE(CMFCRibbonLabelEx)

public:
    explicit CMFCRibbonLabelEx(LPCTSTR text, BOOL multiLine = FALSE);

    /// The status bar places a right label at its right end.
    void SetRight(bool right) { m_right = right; }
    bool IsRight() const { return m_right; }
    /// Added to the text's left edge; scaled pixels, may be negative. The label is wider by it.
    void SetLeftOffset(int offset);
    /// 0xFFFFFFFF: the visual manager's colour, or that of disabled texts.
    void SetTextColor(COLORREF color) { m_textColor = color; }

    /// The translation of the text.
    CString GetShownText() const override;
    void OnDraw(CDC* dc) override;
    void OnLButtonDown(CPoint point) override;
    CSize GetRegularSize(CDC* dc) override;
    void CopyFrom(const CMFCRibbonBaseElement& src) override;

protected:
    CMFCRibbonLabelEx() : CMFCRibbonLabel(L"") {}

private:
    bool m_isMultiLine = false;
    bool m_right = false;
    COLORREF m_textColor = 0xFFFFFFFF;
    int m_leftOffset = 0;
};
