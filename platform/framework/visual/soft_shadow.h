#pragma once

#include <windows.h>

namespace visual {

/// How much of a shadow's darkness lies on a pixel, 0 to 1: all of it below the object's lower edge, fading over the
/// depth, narrower at the sides and narrowest above, as light from above has it. Nothing of the object's own pixels.
double SoftShadowStrength(POINT pixel, const RECT& object, int depth);

/// Darkens what lies around the object, up to depth pixels wide. percent: of black, where the shadow is darkest.
void PaintSoftShadow(HDC dc, const RECT& object, int depth, int percent);

} // namespace visual
