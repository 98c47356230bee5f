#include "caption_window.h"

#include "scaled.h"
#include "soft_canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

// Pixels at 96 DPI.
constexpr int kLine = 1;
constexpr int kSizingBorder = 4;
constexpr int kCaption = 32;
constexpr int kIcon = 16;
constexpr int kButton = 44;
constexpr int kGap = 10;
constexpr double kSign = 4.5; // half of a button's sign
constexpr double kSignLine = 1.1;
constexpr double kHot = 0.12; // of the text's colour over the ground
constexpr double kPressed = 0.22;
constexpr COLORREF kCloseHot = RGB(196, 43, 28); // with white on it, in both skins
constexpr COLORREF kOnCloseHot = RGB(255, 255, 255);

FrameMeasures MeasuresFor(DWORD style) {
    const bool isSizable = (style & WS_THICKFRAME) != 0;
    return {isSizable ? Scaled(kSizingBorder) : kLine,
            Scaled(kCaption),
            Scaled(kIcon),
            Scaled(kButton),
            Scaled(kGap),
            (style & WS_MAXIMIZEBOX) != 0};
}

struct HitRow {
    FrameHit hit;
    LRESULT code;
    LRESULT mirroredCode; ///< The system knows left and right of the screen.
};
constexpr std::array<HitRow, 12> kHits = {{{FrameHit::Inside, HTCLIENT, HTCLIENT},
                                           {FrameHit::Caption, HTCAPTION, HTCAPTION},
                                           {FrameHit::Maximize, HTMAXBUTTON, HTMAXBUTTON},
                                           {FrameHit::Close, HTCLOSE, HTCLOSE},
                                           {FrameHit::Left, HTLEFT, HTRIGHT},
                                           {FrameHit::Right, HTRIGHT, HTLEFT},
                                           {FrameHit::Top, HTTOP, HTTOP},
                                           {FrameHit::Bottom, HTBOTTOM, HTBOTTOM},
                                           {FrameHit::TopLeft, HTTOPLEFT, HTTOPRIGHT},
                                           {FrameHit::TopRight, HTTOPRIGHT, HTTOPLEFT},
                                           {FrameHit::BottomLeft, HTBOTTOMLEFT, HTBOTTOMRIGHT},
                                           {FrameHit::BottomRight, HTBOTTOMRIGHT, HTBOTTOMLEFT}}};

bool IsButton(UINT hit) { return hit == HTCLOSE || hit == HTMAXBUTTON; }

} // namespace

BEGIN_MESSAGE_MAP(CCaptionWindow, CWnd)
ON_WM_NCCALCSIZE()
ON_WM_NCHITTEST()
ON_WM_NCPAINT()
ON_WM_NCACTIVATE()
ON_WM_NCLBUTTONDOWN()
ON_WM_NCLBUTTONUP()
ON_WM_NCMOUSEMOVE()
ON_WM_NCMOUSELEAVE()
ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

CSize CCaptionWindow::OuterSize(CSize inside, DWORD style) {
    const FrameMeasures measures = MeasuresFor(style);
    return {inside.cx + 2 * measures.border, inside.cy + 2 * measures.border + measures.caption};
}

FrameMeasures CCaptionWindow::Measures() const {
    FrameMeasures measures = MeasuresFor(GetStyle());
    measures.hasClose = CanClose();
    return measures;
}

CRect CCaptionWindow::CaptionOnScreen() const {
    CRect window;
    GetWindowRect(window);
    const WindowBox inside = PlaceFrame(window.Width(), window.Height(), Measures()).inside;
    return {window.left, window.top, window.right, window.top + inside.top};
}

void CCaptionWindow::OnNcCalcSize(BOOL /*calculates*/, NCCALCSIZE_PARAMS* sizes) {
    RECT& rect = sizes->rgrc[0];
    const WindowBox inside = PlaceFrame(rect.right - rect.left, rect.bottom - rect.top, Measures()).inside;
    rect = {rect.left + inside.left, rect.top + inside.top, rect.left + inside.right, rect.top + inside.bottom};
}

LRESULT CCaptionWindow::OnNcHitTest(CPoint point) {
    CRect window;
    GetWindowRect(window);
    const bool isMirrored = (GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    const int x = isMirrored ? window.right - 1 - point.x : point.x - window.left;
    const FrameHit hit =
        HitFrame(x, point.y - window.top, window.Width(), window.Height(), Measures(), IsSizable() && !IsZoomed());
    const auto* const row = std::ranges::find(kHits, hit, &HitRow::hit);
    return isMirrored ? row->mirroredCode : row->code;
}

// ---- drawing

// The canvas is not mirrored: texts and signs are never drawn the other way round, only their places are.
CRect CCaptionWindow::FromPlace(const WindowBox& place, int width) const {
    const bool isMirrored = (GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    return isMirrored ? CRect(width - place.right, place.top, width - place.left, place.bottom)
                      : CRect(place.left, place.top, place.right, place.bottom);
}

void CCaptionWindow::OnNcPaint() {
    CWindowDC dc(this);
    CRect window;
    GetWindowRect(window);
    window.OffsetRect(-window.TopLeft());
    const FramePlaces places = PlaceFrame(window.Width(), window.Height(), Measures());
    const WindowBox& inside = places.inside;
    const std::array<CRect, 4> frame = {{{0, 0, window.right, inside.top},
                                         {0, inside.top, inside.left, inside.bottom},
                                         {inside.right, inside.top, window.right, inside.bottom},
                                         {0, inside.bottom, window.right, window.bottom}}};
    {
        SoftCanvas canvas(dc, frame[0]);
        if (!canvas.IsEmpty()) {
            DrawCaption(canvas, places);
        }
    }
    for (std::size_t i = 1; i < frame.size(); ++i) {
        dc.FillSolidRect(frame[i], m_colors.ground);
    }
    dc.FillSolidRect(0, inside.top, kLine, window.bottom - inside.top, m_colors.line);
    dc.FillSolidRect(window.right - kLine, inside.top, kLine, window.bottom - inside.top, m_colors.line);
    dc.FillSolidRect(0, window.bottom - kLine, window.right, kLine, m_colors.line);
}

void CCaptionWindow::DrawCaption(SoftCanvas& canvas, const FramePlaces& places) const {
    const CRect all(CPoint(0, 0), canvas.Size());
    canvas.Fill(all, m_colors.line);
    canvas.Fill(CRect(kLine, kLine, all.right - kLine, all.bottom), m_colors.ground);
    CDC& dc = canvas.Dc();
    const CRect icon = FromPlace(places.icon, all.Width());
    if (const HICON sign = GetIcon(FALSE)) {
        ::DrawIconEx(dc.GetSafeHdc(), icon.left, icon.top, sign, icon.Width(), icon.Height(), 0, nullptr, DI_NORMAL);
    }
    CString text;
    GetWindowText(text);
    CRect title = FromPlace(places.title, all.Width());
    const UINT side = (GetExStyle() & WS_EX_LAYOUTRTL) != 0 ? DT_RIGHT | DT_RTLREADING : DT_LEFT;
    dc.SetTextColor(m_isActive ? m_colors.text : m_colors.secondary);
    dc.DrawText(text, title, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | side);
    for (const auto& [hit, place] : {std::pair(HTCLOSE, places.close), std::pair(HTMAXBUTTON, places.maximize)}) {
        if (place.right > place.left) {
            DrawButton(canvas, hit, FromPlace(place, all.Width()));
        }
    }
}

void CCaptionWindow::DrawButton(SoftCanvas& canvas, UINT hit, const CRect& place) const {
    const bool isHot = m_hot == hit, isClose = hit == HTCLOSE;
    COLORREF sign = m_isActive ? m_colors.text : m_colors.secondary;
    if (isHot && isClose) {
        canvas.Fill(place, kCloseHot);
        sign = kOnCloseHot;
    } else if (isHot) {
        canvas.FillRounded(place, 0, m_colors.text, m_pressed == hit ? kPressed : kHot);
    }
    const double scale = Scaled(100) / 100.0, half = kSign * scale, line = kSignLine * scale;
    const double x = (place.left + place.right) / 2.0, y = (place.top + place.bottom) / 2.0;
    if (isClose) {
        canvas.DrawLine(x - half, y - half, x + half, y + half, line, sign);
        canvas.DrawLine(x - half, y + half, x + half, y - half, line, sign);
        return;
    }
    const int side = static_cast<int>(std::lround(2 * half + line));
    const CPoint corner(static_cast<int>(x) - side / 2, static_cast<int>(y) - side / 2);
    const CRect box(corner, CSize(side, side));
    const int width = std::max(1, static_cast<int>(line));
    canvas.Fill(CRect(box.left, box.top, box.right, box.top + width), sign);
    canvas.Fill(CRect(box.left, box.bottom - width, box.right, box.bottom), sign);
    canvas.Fill(CRect(box.left, box.top, box.left + width, box.bottom), sign);
    canvas.Fill(CRect(box.right - width, box.top, box.right, box.bottom), sign);
}

BOOL CCaptionWindow::OnNcActivate(BOOL isActive) {
    m_isActive = isActive != FALSE;
    OnNcPaint(); // the system would draw a caption of its own
    return TRUE;
}

// ---- the buttons

void CCaptionWindow::SetHot(UINT hit) {
    if (std::exchange(m_hot, hit) != hit) {
        OnNcPaint();
    }
}

void CCaptionWindow::OnNcMouseMove(UINT hit, CPoint /*point*/) {
    TRACKMOUSEEVENT request = {sizeof request, TME_LEAVE | TME_NONCLIENT, m_hWnd, 0};
    ::TrackMouseEvent(&request);
    SetHot(IsButton(hit) ? hit : HTNOWHERE);
    Default();
}

void CCaptionWindow::OnNcMouseLeave() {
    m_pressed = HTNOWHERE;
    SetHot(HTNOWHERE);
}

// The system would draw its own button while it is pressed.
void CCaptionWindow::OnNcLButtonDown(UINT hit, CPoint /*point*/) {
    m_pressed = IsButton(hit) ? hit : HTNOWHERE;
    if (m_pressed == HTNOWHERE) {
        Default();
    } else {
        OnNcPaint();
    }
}

void CCaptionWindow::OnNcLButtonUp(UINT hit, CPoint /*point*/) {
    if (std::exchange(m_pressed, HTNOWHERE) != hit || !IsButton(hit)) {
        Default();
        return;
    }
    const UINT command = hit == HTCLOSE ? SC_CLOSE : IsZoomed() ? SC_RESTORE : SC_MAXIMIZE;
    PostMessage(WM_SYSCOMMAND, command);
}

// Without a caption the system would lay the maximized window over the task bar.
void CCaptionWindow::OnGetMinMaxInfo(MINMAXINFO* info) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    if (::GetMonitorInfoW(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor)) {
        const CRect work(monitor.rcWork);
        info->ptMaxPosition = {work.left - monitor.rcMonitor.left, work.top - monitor.rcMonitor.top};
        info->ptMaxSize = {work.Width(), work.Height()};
    }
}
