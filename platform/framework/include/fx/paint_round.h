#pragma once

// One painting of a window: the time from the making of a CPaintDC to its destruction.

#include "framework_api.h"

namespace fx {

/// Whether this thread paints a window now.
FRAMEWORK_API bool IsPainting();

/// For what is made once for everything that one painting draws: `drop` is called once in this thread when the painting
/// that goes on now ends, or when another window is painted in the middle of it. False: none goes on, and nothing is
/// called.
FRAMEWORK_API bool CallAtPaintEnd(void (*drop)());

} // namespace fx
