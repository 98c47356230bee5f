#include "ribbon/font_scope.h"

#include "afxglobals.h"

RibbonFontScope::RibbonFontScope(CDC& dc) : DcSelection(dc.GetSafeHdc(), afxGlobalData.fontRegular.GetSafeHandle()) {}

void DrawCenteredText(CDC& dc, const CString& text, CRect rect, COLORREF color) {
    RibbonFontScope font(dc);
    const bool isDefault = color == static_cast<COLORREF>(-1);
    const fx::TextColour colour(dc, isDefault ? afxGlobalData.clrBarText : color);
    dc.DrawText(text, rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}
