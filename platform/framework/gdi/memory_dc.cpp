#include "fx/dc_scope.h"

namespace fx {

MemoryDc::MemoryDc(CDC& target, const CRect& rect) : m_target(target), m_rect(rect) {
    CRect pixels(rect);
    target.LPtoDP(&pixels);
    pixels.NormalizeRect();
    if (pixels.IsRectEmpty() || !m_memory.CreateCompatibleDC(&target)) {
        return;
    }
    if (!m_bitmap.CreateCompatibleBitmap(&target, pixels.Width(), pixels.Height())) {
        m_memory.DeleteDC();
        return;
    }
    // Handles, not wrappers: a temporary wrapper might be deleted before this object is.
    m_bitmapBefore = ::SelectObject(m_memory, m_bitmap);
    if (const DWORD layout = ::GetLayout(target); layout != 0 && layout != GDI_ERROR) {
        ::SetLayout(m_memory, layout);
    }
    m_memory.SetMapMode(target.GetMapMode());
    if (target.GetMapMode() == MM_ANISOTROPIC || target.GetMapMode() == MM_ISOTROPIC) {
        m_memory.SetWindowExt(target.GetWindowExt());
        m_memory.SetViewportExt(target.GetViewportExt());
    }
    m_memory.SetWindowOrg(rect.TopLeft());
    m_fontBefore = ::SelectObject(m_memory, ::GetCurrentObject(target.m_hAttribDC, OBJ_FONT));
    m_memory.SetTextColor(target.GetTextColor());
    m_memory.SetBkColor(target.GetBkColor());
    m_memory.SetBkMode(target.GetBkMode());
    m_memory.BitBlt(rect.left, rect.top, rect.Width(), rect.Height(), &target, rect.left, rect.top, SRCCOPY);
    m_isBuffered = true;
}

MemoryDc::~MemoryDc() {
    if (!m_isBuffered) {
        return;
    }
    m_memory.SetWindowOrg(m_rect.TopLeft());
    m_target.BitBlt(m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), &m_memory, m_rect.left, m_rect.top,
                    SRCCOPY);
    ::SelectObject(m_memory, m_fontBefore);
    ::SelectObject(m_memory, m_bitmapBefore);
}

} // namespace fx
