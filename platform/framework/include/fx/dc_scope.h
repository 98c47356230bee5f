#pragma once

// Scopes for drawing: what is changed on a device context is put back at the end of the block.

#include "fx/dc.h"

namespace fx {

/// One object selected into a context, the one before selected back. Handles, not wrappers: the framework may delete a
/// temporary wrapper before the scope ends.
class DcSelection {
public:
    /// object: null selects nothing.
    DcSelection(HDC dc, HGDIOBJ object)
        : m_dc(dc), m_before(object != nullptr ? ::SelectObject(dc, object) : nullptr) {}
    ~DcSelection() {
        if (m_before != nullptr) {
            ::SelectObject(m_dc, m_before);
        }
    }
    DcSelection(const DcSelection&) = delete;
    DcSelection& operator=(const DcSelection&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_before;
};

/// Everything that SaveDC keeps: selected objects, colours, modes, clipping, co-ordinates.
class DcState {
public:
    explicit DcState(CDC& dc) : m_dc(dc), m_saved(dc.SaveDC()) {}
    ~DcState() {
        if (m_saved != 0) {
            m_dc.RestoreDC(m_saved);
        }
    }
    DcState(const DcState&) = delete;
    DcState& operator=(const DcState&) = delete;

private:
    CDC& m_dc;
    int m_saved;
};

/// Text colour and a transparent background for a block.
class TextColour {
public:
    TextColour(CDC& dc, COLORREF colour)
        : m_dc(dc), m_colour(dc.SetTextColor(colour)), m_mode(dc.SetBkMode(TRANSPARENT)) {}
    ~TextColour() {
        m_dc.SetTextColor(m_colour);
        m_dc.SetBkMode(m_mode);
    }
    TextColour(const TextColour&) = delete;
    TextColour& operator=(const TextColour&) = delete;

private:
    CDC& m_dc;
    COLORREF m_colour;
    int m_mode;
};

/// While it lives a picture that is drawn with its upper left corner at Corner() lies where the context fills the
/// rectangle. A mirrored context that leaves pictures unturned would put it one pixel beside.
class FRAMEWORK_API PictureScope {
public:
    /// The rectangle is in the context's logical units; its size is the picture's.
    PictureScope(CDC& dc, const CRect& rect);
    ~PictureScope();
    PictureScope(const PictureScope&) = delete;
    PictureScope& operator=(const PictureScope&) = delete;

    CPoint Corner() const { return m_corner; }

private:
    CDC& m_dc;
    CPoint m_corner;
    int m_saved = 0;
};

/// A double buffer: draws to memory in the target's own co-ordinates and copies the rectangle to the target at the end.
/// It starts with what the target shows there, with the target's font and colours, and mirrored as the target is. When
/// memory for the picture is out, GetDC gives the target itself.
class FRAMEWORK_API MemoryDc {
public:
    /// The rectangle is in the target's logical units; the target must outlive this.
    MemoryDc(CDC& target, const CRect& rect);
    ~MemoryDc();
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    CDC& GetDC() noexcept { return m_isBuffered ? m_memory : m_target; }
    operator CDC&() noexcept { return GetDC(); }
    CDC* operator->() noexcept { return &GetDC(); }

private:
    CDC& m_target;
    CPoint m_corner; // of the rectangle on the target's device, in its pixels
    CSize m_size;    // in pixels
    CBitmap m_bitmap;
    CDC m_memory;
    HGDIOBJ m_bitmapBefore = nullptr;
    HGDIOBJ m_fontBefore = nullptr;
    bool m_isBuffered = false;
};

} // namespace fx
