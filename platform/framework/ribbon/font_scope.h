#pragma once

#include <afxwin.h>

/// Selects the ribbon's regular font for its lifetime.
class RibbonFontScope {
public:
    explicit RibbonFontScope(CDC& dc);
    ~RibbonFontScope();
    RibbonFontScope(const RibbonFontScope&) = delete;
    RibbonFontScope& operator=(const RibbonFontScope&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

/// One line in the middle of the rectangle, ended with dots where it is too long. color: -1 for the bar's.
void DrawCenteredText(CDC& dc, const CString& text, CRect rect, COLORREF color);
