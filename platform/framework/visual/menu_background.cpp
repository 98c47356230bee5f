#include "visual/menu_background.h"

#include "afxpopupmenubar.h"

bool visual::PaintMenuBackground(HDC dc, CBasePane* bar, const RECT& rect, const Look& look) {
    const auto* menu = DYNAMIC_DOWNCAST(CMFCPopupMenuBar, bar);
    if (menu == nullptr)
        return false;
    PaintSolid(dc, rect, look.skin[ColorSlot::MenuFill]);
    const int gutter = menu->GetGutterWidth();
    if (gutter > 0) {
        const LONG edge = rect.left + gutter;
        PaintSolid(dc, {rect.left, rect.top, edge, rect.bottom}, look.skin[ColorSlot::MenuGutter]);
        PaintSolid(dc, {edge - look.Line(), rect.top, edge, rect.bottom}, look.skin[ColorSlot::MenuGutterLine]);
    }
    return true;
}
