#include "ribbon/font_scope.h"

#include "afxglobals.h"

RibbonFontScope::RibbonFontScope(CDC& dc)
    : m_dc(dc.GetSafeHdc()), m_previous(::SelectObject(m_dc, afxGlobalData.fontRegular.GetSafeHandle())) {}

RibbonFontScope::~RibbonFontScope() {
    if (m_previous != nullptr) {
        ::SelectObject(m_dc, m_previous);
    }
}

void DrawCenteredText(CDC& dc, const CString& text, CRect rect, COLORREF color) {
    RibbonFontScope font(dc);
    const bool isDefault = color == static_cast<COLORREF>(-1);
    const COLORREF previousColor = dc.SetTextColor(isDefault ? afxGlobalData.clrBarText : color);
    const int previousMode = dc.SetBkMode(TRANSPARENT);
    dc.DrawText(text, rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    dc.SetBkMode(previousMode);
    dc.SetTextColor(previousColor);
}
