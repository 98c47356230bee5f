#pragma once

#include "visual/paint.h"

class CBasePane;

namespace visual {

/// What lies behind a menu's items, with the column of images. False, and nothing drawn, when the bar is no menu.
bool PaintMenuBackground(HDC dc, CBasePane* bar, const RECT& rect, const Look& look);
/// The line between items. False, and nothing drawn, when the bar is no menu.
bool PaintMenuSeparator(HDC dc, CBasePane* bar, const RECT& rect, const Look& look);

} // namespace visual
