#pragma once

#include "fx/geometry.h"

/// The ribbon's geometry is plain. All lengths are scaled pixels.
namespace ribbon {

using fx::Point;
using fx::Rect;
using fx::Size;

} // namespace ribbon
