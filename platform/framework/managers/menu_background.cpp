#include "managers/menu_background.h"

#include "afxpopupmenubar.h"

#include <algorithm>

bool visual::PaintMenuBackground(HDC dc, CBasePane* bar, const RECT& rect, const Look& look) {
    const auto* menu = DYNAMIC_DOWNCAST(CMFCPopupMenuBar, bar);
    if (menu == nullptr) {
        return false;
    }
    PaintSolid(dc, rect, look.skin[ColorSlot::MenuFill]);
    const int gutter = menu->GetGutterWidth();
    if (gutter > 0) {
        const LONG edge = rect.left + gutter;
        PaintSolid(dc, {rect.left, rect.top, edge, rect.bottom}, look.skin[ColorSlot::MenuGutter]);
        PaintSolid(dc, {edge - look.Line(), rect.top, edge, rect.bottom}, look.skin[ColorSlot::MenuGutterLine]);
    }
    return true;
}

bool visual::PaintMenuSeparator(HDC dc, CBasePane* bar, const RECT& rect, const Look& look) {
    const auto* menu = DYNAMIC_DOWNCAST(CMFCPopupMenuBar, bar);
    if (menu == nullptr) {
        return false;
    }
    // The line runs beside the column of images.
    const int gutter = menu->GetGutterWidth();
    const LONG left = gutter > 0 ? std::max<LONG>(rect.left, gutter + look.Px(2)) : rect.left;
    const LONG middle = (rect.top + rect.bottom - look.Line()) / 2;
    PaintSolid(dc, {left, middle, rect.right, middle + look.Line()}, look.skin[ColorSlot::MenuSeparator]);
    return true;
}
