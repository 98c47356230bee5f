#pragma once

#include "afxglobals.h"

namespace tooltip {

/// How wide a tooltip's text may get before it wraps, pixels: what the host has set, else more than one line needs.
inline int WidestText() {
    return afxGlobalData.m_nMaxToolTipWidth > 0 ? afxGlobalData.m_nMaxToolTipWidth : afxGlobalData.ScalePixels(640);
}

} // namespace tooltip
