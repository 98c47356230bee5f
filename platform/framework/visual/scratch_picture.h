#pragma once

#include "visual/pixels.h"

#include <windows.h>

namespace visual {

/// A picture of 32 bits for the time of one draw, selected into a memory device context of its own. To make the two and
/// to select one into the other takes the system many times as long as to draw a small picture, so that bitmaps of
/// buttons' sizes are kept for the next draw of that size: a few of them, by each thread for itself.
class ScratchPicture {
public:
    /// At least 1 x 1 pixels, all of them clear.
    ScratchPicture(int width, int height);
    ~ScratchPicture();
    ScratchPicture(const ScratchPicture&) = delete;
    ScratchPicture& operator=(const ScratchPicture&) = delete;

    /// The system had none left: there are no pixels, and nothing to draw from.
    bool IsEmpty() const { return m_view.bits == nullptr; }
    /// May be written until the first draw from the context.
    const PixelView& View() const { return m_view; }
    /// Everything that is drawn from it counts in device pixels.
    HDC Context() const { return m_context; }

    /// Bitmaps that were made, kept ones taken again left out.
    static int GetMadeCount();

private:
    HDC m_context = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
    PixelView m_view;
};

} // namespace visual
