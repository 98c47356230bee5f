// How the scroll bar is drawn: each part in memory, then copied.
#include "scroll_bar_base.h"

#include "skins/scroll_images.h"

#include <fx/to_rect.h>

namespace {

/// A part of the bar in memory, with the part's own top left corner at the origin; copied to the bar at the end.
class PartDc {
public:
    PartDc(CDC& target, const CRect& part) : m_target(target), m_part(part) {
        if (m_dc.CreateCompatibleDC(&target) && m_bitmap.CreateCompatibleBitmap(&target, part.Width(), part.Height())) {
            m_earlier = m_dc.SelectObject(&m_bitmap);
        }
    }
    ~PartDc() {
        if (m_earlier) {
            m_target.BitBlt(m_part.left, m_part.top, m_part.Width(), m_part.Height(), &m_dc, 0, 0, SRCCOPY);
            m_dc.SelectObject(m_earlier);
        }
    }
    PartDc(const PartDc&) = delete;
    PartDc& operator=(const PartDc&) = delete;

    /// False when the system has no room for it.
    bool IsReady() const { return m_earlier != nullptr; }
    CDC& Get() { return m_dc; }
    CRect Area() const { return CRect(CPoint(0, 0), m_part.Size()); }

private:
    CDC& m_target;
    CRect m_part;
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_earlier = nullptr;
};

} // namespace

void CScrollBarBase::OnPaint() {
    CPaintDC paint(this);
    CRect client;
    GetClientRect(client);
    if (client.IsRectEmpty()) {
        return;
    }
    PartDc whole(paint, client);
    if (whole.IsReady()) {
        whole.Get().FillSolidRect(client, m_bkColor);
        DrawTrack(whole.Get());
        DrawArrows(whole.Get());
    }
}

BOOL CScrollBarBase::OnEraseBkgnd(CDC* /*dc*/) { return TRUE; }

void CScrollBarBase::DrawTrack() {
    if (GetSafeHwnd()) {
        CClientDC dc(this);
        DrawTrack(dc);
    }
}

void CScrollBarBase::DrawArrows() {
    if (GetSafeHwnd()) {
        CClientDC dc(this);
        DrawArrows(dc);
    }
}

void CScrollBarBase::DrawTrack(CDC& dc) {
    if (!CanScroll()) {
        CRect client;
        GetClientRect(client);
        dc.FillSolidRect(client, m_bkColor);
        return;
    }
    PlaceThumb();
    if (m_track.IsRectEmpty()) {
        return;
    }
    PartDc track(dc, m_track);
    if (!track.IsReady()) {
        return;
    }
    track.Get().FillSolidRect(track.Area(), m_bkColor);
    CRect thumb = m_thumb;
    thumb.OffsetRect(m_isVertical ? CPoint(0, -m_track.top) : CPoint(-m_track.left, 0));
    m_images->DrawThumb(track.Get().GetSafeHdc(), m_hover == 2 ? ScrollImages::PressedThumb : ScrollImages::Thumb,
                        m_isVertical ? scroll::Direction::Vertical : scroll::Direction::Horizontal, fx::FromRect(thumb),
                        m_thumbPressed ? ScrollImages::File::AsBefore : ScrollImages::File::LookedAt);
}

void CScrollBarBase::DrawArrows(CDC& dc) {
    if (CanScroll()) {
        DrawArrow(dc, m_firstArrow, FirstArrow);
        DrawArrow(dc, m_secondArrow, SecondArrow);
    }
}

void CScrollBarBase::DrawArrow(CDC& dc, const CRect& rect, Image image) {
    if (rect.IsRectEmpty()) {
        return;
    }
    PartDc arrow(dc, rect);
    if (!arrow.IsReady()) {
        return;
    }
    CRect ground = arrow.Area();
    arrow.Get().FillSolidRect(ground, m_sideColor);
    if (m_hover != 0) {
        ground.DeflateRect(1, 1);
    }
    arrow.Get().FillSolidRect(ground, m_bkColor);
    m_images->DrawCentered(arrow.Get().GetSafeHdc(), static_cast<ScrollImages::Which>(image),
                           fx::FromRect(arrow.Area()));
}
