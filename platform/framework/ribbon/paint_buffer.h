#pragma once

#include "afxwin.h"

/// A bitmap that is drawn to instead of the target and copied to it at the end, so that nothing flickers. Its context
/// has the target's co-ordinates. Without memory for the bitmap drawing goes to the target itself.
class RibbonPaintBuffer {
public:
    RibbonPaintBuffer(CDC& target, const CRect& area);
    ~RibbonPaintBuffer();
    RibbonPaintBuffer(const RibbonPaintBuffer&) = delete;
    RibbonPaintBuffer& operator=(const RibbonPaintBuffer&) = delete;

    CDC& GetDC() { return m_bitmap != nullptr ? m_memory : m_target; }

private:
    CDC& m_target;
    CRect m_area;
    CDC m_memory;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
};
