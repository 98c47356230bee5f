#pragma once

#include "afxwin.h"

/// A bitmap that is drawn to instead of the target and copied to it at the end, so that nothing flickers. Its context
/// has the target's co-ordinates. Without memory for the bitmap drawing goes to the target itself. The bitmap stays for
/// the next paint of the thread and grows to the widest and the highest one.
class RibbonPaintBuffer {
public:
    /// `shown` (may be null): the part of `area` that is to be drawn, in the target's co-ordinates; drawing outside of
    /// it has no effect and can be left out.
    RibbonPaintBuffer(CDC& target, const CRect& area, HRGN shown = nullptr);
    ~RibbonPaintBuffer();
    RibbonPaintBuffer(const RibbonPaintBuffer&) = delete;
    RibbonPaintBuffer& operator=(const RibbonPaintBuffer&) = delete;

    CDC& GetDC() { return m_isOpen ? m_memory : m_target; }

private:
    CDC& m_target;
    CRect m_area;
    CDC m_memory;
    HBITMAP m_bitmap = nullptr;
    CSize m_size;
    HGDIOBJ m_previous = nullptr;
    bool m_isOpen = false;
};

/// The paint of a window through a buffer, while its WM_PAINT lasts. What need not be painted again, between two far
/// places too, has no effect and can be left out.
class RibbonWindowPaint {
public:
    explicit RibbonWindowPaint(CWnd& window);

    CDC& GetDC() { return m_buffer.GetDC(); }

private:
    struct UpdateRegion {
        explicit UpdateRegion(CWnd& window);
        CRgn region;
    };

    UpdateRegion m_shown; // first: the paint's context empties the window's own
    CPaintDC m_target;
    RibbonPaintBuffer m_buffer;
};
