#include "ribbon/element_metrics.h"

#include <afxglobals.h>

namespace ribbon {

FaceMetrics CurrentMetrics() { return {afxGlobalData.GetRibbonImageScale(), afxGlobalData.GetTextHeight()}; }

CRect ToRect(const Rect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

Rect FromRect(const CRect& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

TextContext::TextContext(CDC* pDC) {
    m_hDC = pDC != nullptr ? pDC->GetSafeHdc() : nullptr;
    if (m_hDC == nullptr)
        m_hDC = m_hMeasureDC = ::CreateCompatibleDC(nullptr);
    m_hOldFont = ::SelectObject(m_hDC, afxGlobalData.fontRegular.GetSafeHandle());
    m_oldMode = ::SetBkMode(m_hDC, TRANSPARENT);
}

TextContext::~TextContext() {
    ::SetBkMode(m_hDC, m_oldMode);
    if (m_hOldFont != nullptr)
        ::SelectObject(m_hDC, m_hOldFont);
    if (m_hMeasureDC != nullptr)
        ::DeleteDC(m_hMeasureDC);
}

Size TextContext::Measure(std::wstring_view text) const {
    if (text.empty())
        return {};
    SIZE size{};
    ::GetTextExtentPoint32W(m_hDC, text.data(), static_cast<int>(text.size()), &size);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void DrawMenuArrow(CDC* pDC, const Rect& rect, COLORREF color) {
    const COLORREF oldColor = pDC->GetBkColor();
    for (int row = 0; row < rect.Height() && rect.Width() > 2 * row; ++row) {
        const CRect line(rect.left + row, rect.top + row, rect.right - row, rect.top + row + 1);
        pDC->FillSolidRect(line, color);
    }
    pDC->SetBkColor(oldColor);
}

COLORREF TextColor(CDC* pDC, COLORREF color, BOOL isDisabled) {
    if (color != static_cast<COLORREF>(-1))
        return color;
    return isDisabled ? afxGlobalData.clrGrayedText : pDC->GetTextColor();
}

} // namespace ribbon
