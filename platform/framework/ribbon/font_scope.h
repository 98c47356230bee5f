#pragma once

#include <afxwin.h>

#include "fx/dc_scope.h"

/// Selects the ribbon's regular font for its lifetime.
class RibbonFontScope : public fx::DcSelection {
public:
    explicit RibbonFontScope(CDC& dc);
};

/// One line in the middle of the rectangle, ended with dots where it is too long. color: -1 for the bar's.
void DrawCenteredText(CDC& dc, const CString& text, CRect rect, COLORREF color);
