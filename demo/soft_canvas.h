#pragma once

#include <afxwin.h>

#include "soft_shapes.h"

/// A part of a device context to draw into with smooth shapes and texts, from left to right whatever the layout of the
/// context is: what is mirrored, its user mirrors. Begins as what is there, and is shown when it goes.
class SoftCanvas {
public:
    /// `area` in the context's own co-ordinates. The context outlives the canvas.
    SoftCanvas(CDC& target, const CRect& area);
    ~SoftCanvas();
    SoftCanvas(const SoftCanvas&) = delete;
    SoftCanvas& operator=(const SoftCanvas&) = delete;

    /// There is nothing to draw into, or no memory for it.
    bool IsEmpty() const { return m_pixels.bits == nullptr; }
    /// From 0, 0 on; transparent texts in the user's font.
    CDC& Dc() { return m_memory; }
    CSize Size() const { return {m_pixels.width, m_pixels.height}; }

    void Fill(const CRect& rect, COLORREF color);
    void FillRounded(const CRect& rect, int corner, COLORREF color, double strength = 1);
    /// A line along the inside of the rectangle's edge.
    void DrawRounded(const CRect& rect, int corner, int width, COLORREF line, COLORREF ground);
    void DrawLine(double x1, double y1, double x2, double y2, double width, COLORREF color);
    /// A circle of which only the line is seen. Behind Dc() was drawn to, too.
    void DrawRing(double x, double y, double radius, double width, COLORREF color);

private:
    CDC& m_target;
    CRect m_place; ///< In the target without mirroring.
    CDC m_memory;
    CBitmap m_bitmap;
    HGDIOBJ m_bitmapBefore = nullptr;
    HGDIOBJ m_fontBefore = nullptr;
    soft::Pixels m_pixels;
};
