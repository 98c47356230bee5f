#pragma once

#include "visual/paint_ribbon.h"

constexpr SIZE g_sheetSize{1000, 560}; // at 96 DPI

/// Draws every part of the ribbon in every state.
void DrawSheet(HDC dc, const visual::Look& look);
