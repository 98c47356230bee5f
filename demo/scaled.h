#pragma once

#include <afxglobals.h>

/// Pixels at 96 DPI, at the scale of the program.
inline int Scaled(int pixels) { return afxGlobalData.ScalePixels(pixels); }
