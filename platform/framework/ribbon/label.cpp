#include <afxRibbonLabel.h>

#include <afxglobals.h>
#include <afxribbonbar.h>
#include <afxvisualmanager.h>

#include "ribbon/element_metrics.h"
#include <oleacc.h>

IMPLEMENT_DYNCREATE(CMFCRibbonLabel, CMFCRibbonButton)

namespace {
// A multi-line label is about so many times as wide as high.
constexpr int kMultiLineRows = 3;
// Above and below the text on a status bar, at 96 DPI.
constexpr int kStatusMarginY = 2;
} // namespace

CMFCRibbonLabel::CMFCRibbonLabel(LPCTSTR lpszText, BOOL bIsMultiLine)
    : CMFCRibbonButton(0, lpszText), m_bIsMultiLine(bIsMultiLine) {}

CMFCRibbonLabel::~CMFCRibbonLabel() = default;

void CMFCRibbonLabel::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonButton::CopyFrom(src);
    if (const auto* label = dynamic_cast<const CMFCRibbonLabel*>(&src); label != nullptr) {
        m_bIsMultiLine = label->m_bIsMultiLine;
    }
}

// A multi-line label takes the width at which its text fits the panel's rows.
CSize CMFCRibbonLabel::GetRegularSize(CDC* pDC) {
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    const CString shown = GetShownText();
    const fx::Size text = ribbon::MeasureText(pDC, {shown.GetString(), static_cast<size_t>(shown.GetLength())});
    m_sizeTextRight = fx::ToSize(text);
    if (!m_bIsMultiLine || shown.IsEmpty()) {
        // In a panel's row it is as high as its neighbours; on a status bar its text only stands in the middle.
        const bool isInRow = m_pRibbonBar == nullptr || m_pRibbonBar->IsMainRibbonBar();
        const int height = isInRow ? metrics.RowHeight() : metrics.textHeight + 2 * metrics.Scaled(kStatusMarginY);
        return {text.width + 2 * m_szMargin.cx, height};
    }

    const ribbon::TextContext context(pDC);
    CDC* dc = CDC::FromHandle(context.Get());
    const int limit = kMultiLineRows * metrics.textHeight;
    const int step = std::max(1, metrics.Scaled(4));
    CRect lines(0, 0, text.width / kMultiLineRows, 0);
    for (int width = lines.right; width <= text.width; width += step) {
        lines = CRect(0, 0, width, 0);
        dc->DrawText(shown, lines, DT_WORDBREAK | DT_NOPREFIX | DT_CALCRECT);
        if (lines.Height() <= limit && lines.Width() <= width) {
            break;
        }
    }
    return {lines.Width() + 2 * m_szMargin.cx, lines.Height() + 2 * m_szMargin.cy};
}

CSize CMFCRibbonLabel::GetIntermediateSize(CDC* pDC) { return GetRegularSize(pDC); }

CSize CMFCRibbonLabel::GetCompactSize(CDC* pDC) { return GetRegularSize(pDC); }

// The text has the colour that the container has set, as its background is the container's.
void CMFCRibbonLabel::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    const ribbon::TextContext context(pDC);
    const CString shown = GetShownText();
    if (IsMenuMode()) {
        // A heading of the rows below it.
        const COLORREF color = CMFCVisualManager::GetInstance()->OnDrawMenuLabel(pDC, m_rect);
        CFont* regular = pDC->SelectObject(&afxGlobalData.fontBold);
        CRect heading = m_rect;
        heading.DeflateRect(m_szMargin.cx, 0);
        DrawRibbonText(pDC, shown, heading, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS, color);
        pDC->SelectObject(regular);
        return;
    }
    CMFCVisualManager::GetInstance()->OnDrawRibbonLabel(pDC, this, m_rect);
    CRect text = m_rect;
    text.DeflateRect(m_szMargin.cx, 0);
    UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | DT_NOCLIP;
    if (m_bIsMultiLine) {
        format = DT_WORDBREAK | DT_NOPREFIX;
        CRect needed = text;
        const int height = pDC->DrawText(shown, needed, format | DT_CALCRECT);
        text.DeflateRect(0, std::max(0, (text.Height() - height) / 2));
    }
    DrawRibbonText(pDC, shown, text, format, ribbon::TextColor(pDC, static_cast<COLORREF>(-1), IsDisabled()));
}

int CMFCRibbonLabel::DrawRibbonText(CDC* pDC, const CString& strText, CRect rectText, UINT uiDTFlags,
                                    COLORREF clrText) {
    const auto length = static_cast<size_t>(strText.GetLength());
    CompareWithMeasured(fx::ToSize(ribbon::MeasureText(pDC, {strText.GetString(), length})));
    return CMFCRibbonButton::DrawRibbonText(pDC, strText, rectText, uiDTFlags, clrText);
}

void CMFCRibbonLabel::OnLButtonUp(CPoint /*point*/) { m_bIsPressed = FALSE; }

void CMFCRibbonLabel::OnClick(CPoint /*point*/) {}

// ---- for assistive programs

BOOL CMFCRibbonLabel::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_STATICTEXT;
    data.m_strDefaultAction.Empty();
    return TRUE;
}
