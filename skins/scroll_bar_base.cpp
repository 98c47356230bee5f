// The scroll bar's state and what the mouse does with it.
#include "scroll_bar_base.h"

#include "skins/scroll_geometry.h"
#include "skins/scroll_images.h"
#include "skins/scroll_timers.h"

#include <fx/to_rect.h>

namespace {

constexpr UINT_PTR kRepeatTimer = 1;
constexpr UINT_PTR kDelayTimer = 2;
constexpr UINT kRepeatTime = 50;
constexpr UINT kDelayTime = 250;

constexpr int kHoverNone = 0;
constexpr int kHoverBar = 1;
constexpr int kHoverThumb = 2;

ScrollTimers* g_timers = nullptr;

scroll::Direction DirectionOf(bool isVertical) {
    return isVertical ? scroll::Direction::Vertical : scroll::Direction::Horizontal;
}

LONG& Along(bool isVertical, CPoint& point) { return isVertical ? point.y : point.x; }

} // namespace

ScrollTimers& ScrollTimers::Get() {
    static ScrollTimers system;
    return g_timers ? *g_timers : system;
}

void ScrollTimers::Use(ScrollTimers* timers) { g_timers = timers; }

BEGIN_MESSAGE_MAP(CScrollBarBase, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_TIMER()
ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

int CScrollBarBase::GetBaseScrollPos() { return 0; }

int CScrollBarBase::GetBaseScrollLimit() { return 0; }

void CScrollBarBase::ScrollBaseMove(int /*steps*/) {}

int CScrollBarBase::GetStepLength() { return 1; }

void CScrollBarBase::InitThumb() {
    if (!GetSafeHwnd()) {
        return;
    }
    CRect client;
    GetClientRect(client);
    if (!m_client.IsRectEmpty() && m_client == client) {
        return;
    }
    m_client = client;
    m_isVertical = scroll::DirectionOf(fx::FromSize(client.Size())) == scroll::Direction::Vertical;
    UpdateSkin(m_skin);
    UpdatePosition();
    DrawTrack();
    DrawArrows();
}

void CScrollBarBase::SetTotalLength(int length) {
    m_totalLength = length;
    UpdatePosition();
    DrawTrack();
    DrawArrows();
}

void CScrollBarBase::OnMouseWheelScroll() {
    UpdatePosition();
    DrawTrack();
}

// 0 alone says that there is nothing to scroll.
bool CScrollBarBase::CanScroll() { return m_totalLength != 0 && GetBaseScrollLimit() != 0; }

void CScrollBarBase::PlaceParts() {
    const scroll::Parts parts = scroll::Arrange(DirectionOf(m_isVertical), fx::FromSize(m_client.Size()), m_arrowSize);
    m_firstArrow = fx::ToRect(parts.firstArrow);
    m_secondArrow = fx::ToRect(parts.secondArrow);
    m_track = fx::ToRect(parts.track);
}

int CScrollBarBase::TrackLength() const { return m_isVertical ? m_track.Height() : m_track.Width(); }

int CScrollBarBase::ThumbLength() const {
    const int length = scroll::LengthAlong(DirectionOf(m_isVertical), fx::FromSize(m_client.Size()));
    return scroll::ThumbLength(length, m_arrowSize, m_totalLength);
}

void CScrollBarBase::PlaceThumb() {
    const int length = ThumbLength();
    const LONG start = m_isVertical ? m_track.top : m_track.left;
    const LONG end = m_isVertical ? m_track.bottom : m_track.right;
    m_thumbPosition = scroll::KeepInTrack(m_thumbPosition, length, start, end);
    m_thumb = fx::ToRect(scroll::ThumbBox(DirectionOf(m_isVertical), m_thumbPosition, length, m_arrowSize));
}

void CScrollBarBase::UpdatePosition() {
    PlaceParts();
    if (!CanScroll()) {
        return;
    }
    m_pixelsPerStep = scroll::PixelsPerStep(TrackLength(), ThumbLength(), GetBaseScrollLimit());
    m_thumbPosition = scroll::ThumbPosition(GetBaseScrollPos(), m_pixelsPerStep, m_arrowSize);
    m_lastThumbPosition = m_thumbPosition;
    PlaceThumb();
}

void CScrollBarBase::UpdatePoint(int steps, int /*thumbPosition*/) {
    // Moving the content may already bring the thumb there.
    const int previous = m_lastThumbPosition;
    ScrollBaseMove(steps);
    m_pixelsPerStep = scroll::PixelsPerStep(TrackLength(), ThumbLength(), GetBaseScrollLimit());
    m_thumbPosition = scroll::ThumbPosition(GetBaseScrollPos(), m_pixelsPerStep, m_arrowSize);
    Along(m_isVertical, m_dragOrigin) += m_thumbPosition - previous;
    m_lastThumbPosition = m_thumbPosition;
    PlaceThumb();
}

int CScrollBarBase::ArrowAt(CPoint point) {
    if (!CanScroll()) {
        return 0;
    }
    return m_firstArrow.PtInRect(point) ? -1 : m_secondArrow.PtInRect(point) ? 1 : 0;
}

bool CScrollBarBase::IsOnThumb(CPoint point) { return CanScroll() && m_thumb.PtInRect(point); }

void CScrollBarBase::MoveBy(int steps) {
    ScrollBaseMove(steps);
    UpdatePosition();
    DrawTrack();
}

void CScrollBarBase::OnLButtonDown(UINT /*flags*/, CPoint point) {
    SetCapture();
    m_dragOrigin = point;
    if (IsOnThumb(point)) {
        m_thumbPressed = true;
        return;
    }
    const int step = ArrowAt(point);
    if (step == 0) {
        return;
    }
    // Pressed before the content moves: whoever takes the capture meanwhile ends the press.
    (step < 0 ? m_firstArrowPressed : m_secondArrowPressed) = true;
    MoveBy(step);
    if (GetSafeHwnd()) {
        ScrollTimers::Get().Start(*this, kDelayTimer, kDelayTime);
    }
}

void CScrollBarBase::OnLButtonDblClk(UINT /*flags*/, CPoint point) {
    if (const int step = ArrowAt(point); step != 0) {
        MoveBy(step);
    }
}

void CScrollBarBase::OnLButtonUp(UINT /*flags*/, CPoint /*point*/) {
    const bool wasDragged = m_thumbPressed;
    EndPress();
    if (::GetCapture() == m_hWnd) {
        ::ReleaseCapture();
    }
    // The thumb followed the pointer between two steps; now it stands where the content does.
    if (wasDragged) {
        UpdatePosition();
        DrawTrack();
    }
}

void CScrollBarBase::OnCaptureChanged(CWnd* window) {
    if (window != this) {
        EndPress();
    }
}

void CScrollBarBase::EndPress() {
    ScrollTimers::Get().Stop(*this, kRepeatTimer);
    m_thumbPressed = false;
    m_firstArrowPressed = false;
    m_secondArrowPressed = false;
}

void CScrollBarBase::OnTimer(UINT_PTR id) {
    const bool isArrowPressed = m_firstArrowPressed || m_secondArrowPressed;
    if (id == kDelayTimer && isArrowPressed) {
        ScrollTimers::Get().Stop(*this, kDelayTimer);
        ScrollTimers::Get().Start(*this, kRepeatTimer, kRepeatTime);
    }
    if (id == kRepeatTimer) {
        if (isArrowPressed) {
            ScrollBaseMove(m_secondArrowPressed ? 1 : -1);
        }
        UpdatePosition();
        DrawTrack();
    }
}

void CScrollBarBase::OnMouseMove(UINT /*flags*/, CPoint point) {
    if (!m_isTracking) {
        TRACKMOUSEEVENT request = {sizeof request, TME_LEAVE, m_hWnd, 1};
        m_isTracking = ::TrackMouseEvent(&request) != FALSE;
    }
    if (m_thumbPressed) {
        Drag(point);
        return;
    }
    const int hover = IsOnThumb(point) ? kHoverThumb : kHoverBar;
    if (hover != m_hover) {
        m_hover = hover;
        DrawTrack();
        DrawArrows();
    }
}

void CScrollBarBase::Drag(CPoint point) {
    if (!CanScroll()) {
        return;
    }
    const int delta = Along(m_isVertical, point) - Along(m_isVertical, m_dragOrigin);
    m_thumbPosition = m_lastThumbPosition + delta;
    const int stepLength = GetStepLength();
    const double stepCount = stepLength > 0 ? static_cast<double>(GetBaseScrollLimit()) / stepLength : 0;
    const int steps = scroll::StepsOfDrag(delta, scroll::PixelsPerStep(TrackLength(), ThumbLength(), stepCount));
    if (steps != 0 && steps <= stepCount) {
        UpdatePoint(steps, m_thumbPosition);
    }
    const bool isFirst = m_hover != kHoverThumb;
    m_hover = kHoverThumb;
    DrawTrack();
    if (isFirst) {
        DrawArrows();
    }
}

void CScrollBarBase::OnMouseLeave() {
    m_isTracking = false;
    m_hover = kHoverNone;
    DrawTrack();
    DrawArrows();
}
