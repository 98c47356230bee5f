#include "fx/dc_scope.h"
#include "gdi/device_pixels.h"

namespace fx {

PictureScope::PictureScope(CDC& dc, const CRect& rect) : m_dc(dc), m_corner(rect.TopLeft()) {
    if (gdi::KeepsPictures(dc)) {
        m_corner = gdi::DeviceCorner(dc, rect);
        m_saved = gdi::CountDevicePixels(dc);
    }
}

PictureScope::~PictureScope() {
    if (m_saved != 0) {
        ::RestoreDC(m_dc, m_saved);
    }
}

MemoryDc::MemoryDc(CDC& target, const CRect& rect) : m_target(target) {
    CRect pixels(rect);
    target.LPtoDP(&pixels);
    pixels.NormalizeRect();
    m_corner = gdi::DeviceCorner(target, rect);
    m_size = pixels.Size();
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
    gdi::PutCornerAtOrigin(m_memory, rect);
    m_fontBefore = ::SelectObject(m_memory, ::GetCurrentObject(target.m_hAttribDC, OBJ_FONT));
    m_memory.SetTextColor(target.GetTextColor());
    m_memory.SetBkColor(target.GetBkColor());
    m_memory.SetBkMode(target.GetBkMode());
    gdi::CopyPixels(m_memory, {0, 0}, target, m_corner, m_size);
    m_isBuffered = true;
}

MemoryDc::~MemoryDc() {
    if (!m_isBuffered) {
        return;
    }
    gdi::CopyPixels(m_target, m_corner, m_memory, {0, 0}, m_size);
    ::SelectObject(m_memory, m_fontBefore);
    ::SelectObject(m_memory, m_bitmapBefore);
}

} // namespace fx
