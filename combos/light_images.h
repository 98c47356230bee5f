#pragma once

#include "combos/light_picture.h"
#include "combos/mark_geometry.h"

class CDC;

/// Draws the light of the library's shared image list, which gets the library's own pictures first when the host has
/// set none by then. An image that the host's list does not have draws nothing.

/// At its natural size, in the upper left corner.
void DrawLight(CDC& dc, const fx::Rect& place, LightState state);
/// Stretched to the place where the ribbon's images are scaled, else at its natural size. The library's own pictures
/// are drawn anew for each size instead of being stretched.
void DrawLightScaled(CDC& dc, const fx::Rect& place, LightState state);
