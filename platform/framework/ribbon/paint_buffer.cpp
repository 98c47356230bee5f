#include "ribbon/paint_buffer.h"

RibbonPaintBuffer::RibbonPaintBuffer(CDC& target, const CRect& area) : m_target(target), m_area(area) {
    const HDC targetDC = target.GetSafeHdc();
    if (area.IsRectEmpty() || !m_memory.CreateCompatibleDC(&target)) {
        return;
    }
    m_bitmap = ::CreateCompatibleBitmap(targetDC, area.Width(), area.Height());
    if (m_bitmap == nullptr) {
        return;
    }
    const HDC memory = m_memory.GetSafeHdc();
    m_previous = ::SelectObject(memory, m_bitmap);
    ::SetViewportOrgEx(memory, -area.left, -area.top, nullptr);
    ::IntersectClipRect(memory, area.left, area.top, area.right, area.bottom);
}

RibbonPaintBuffer::~RibbonPaintBuffer() {
    if (m_bitmap == nullptr) {
        return;
    }
    const HDC memory = m_memory.GetSafeHdc();
    ::BitBlt(m_target.GetSafeHdc(), m_area.left, m_area.top, m_area.Width(), m_area.Height(), memory, m_area.left,
             m_area.top, SRCCOPY);
    ::SelectObject(memory, m_previous);
    ::DeleteObject(m_bitmap);
}
