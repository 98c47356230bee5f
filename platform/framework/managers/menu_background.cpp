#include "managers/menu_background.h"

#include "afxpopupmenubar.h"

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
    if (DYNAMIC_DOWNCAST(CMFCPopupMenuBar, bar) == nullptr) {
        return false;
    }
    const LONG middle = (rect.top + rect.bottom - look.Line()) / 2;
    PaintSolid(dc, {rect.left, middle, rect.right, middle + look.Line()}, look.skin[ColorSlot::MenuSeparator]);
    return true;
}
