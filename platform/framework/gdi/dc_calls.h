#pragma once

#include "fx/dc.h"

// Small helpers of the device context's sources.

/// A change that output and attribute context must both see; the result is the attribute context's.
template <typename Result, typename Call>
Result OnBothContexts(const CDC& dc, Result failed, Call call) {
    Result result = failed;
    if (dc.m_hDC != nullptr && dc.m_hDC != dc.m_hAttribDC) {
        result = call(dc.m_hDC);
    }
    if (dc.m_hAttribDC != nullptr) {
        result = call(dc.m_hAttribDC);
    }
    return result;
}

inline HDC SafeHandle(const CDC* dc) { return dc == nullptr ? nullptr : dc->m_hDC; }
inline HBRUSH SafeHandle(const CBrush* brush) { return brush == nullptr ? nullptr : static_cast<HBRUSH>(*brush); }
inline HBITMAP SafeHandle(const CBitmap* bitmap) { return bitmap == nullptr ? nullptr : static_cast<HBITMAP>(*bitmap); }
inline HRGN SafeHandle(const CRgn* region) { return region == nullptr ? nullptr : static_cast<HRGN>(*region); }
