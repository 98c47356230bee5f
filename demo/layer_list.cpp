#include "layer_list.h"

#include "map_painter.h"

#include <afxglobals.h>

#include <algorithm>

#include <gdiplus.h>

namespace {

// Pixels at 96 DPI.
constexpr int kRowHeight = 26;
constexpr int kIndent = 10;
constexpr int kTickSize = 14;
constexpr int kTickGap = 8;
constexpr int kSwatchSize = 10;
constexpr int kPlateMargin = 4;
constexpr int kCorner = 4;
constexpr int kWheelRows = 3;
constexpr int kHotStrength = 20; // of 255: the text's colour over the ground
constexpr int kMarkStrength = 41;
constexpr UINT kBarId = 1;

int Scaled(int pixels) { return afxGlobalData.ScalePixels(pixels); }

Gdiplus::Color ToGdiPlus(COLORREF color, BYTE alpha = 255) {
    return {alpha, GetRValue(color), GetGValue(color), GetBValue(color)};
}

COLORREF ToColorRef(std::uint32_t rgb) { return RGB(rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF); }

void AddRounded(Gdiplus::GraphicsPath& path, const CRect& rect, int corner) {
    const int diameter = 2 * corner;
    const int right = rect.right - diameter - 1, bottom = rect.bottom - diameter - 1;
    path.AddArc(static_cast<INT>(rect.left), static_cast<INT>(rect.top), diameter, diameter, 180, 90);
    path.AddArc(right, static_cast<INT>(rect.top), diameter, diameter, 270, 90);
    path.AddArc(right, bottom, diameter, diameter, 0, 90);
    path.AddArc(static_cast<INT>(rect.left), bottom, diameter, diameter, 90, 90);
    path.CloseFigure();
}

void FillPlate(CDC& dc, const CRect& rect, COLORREF color, BYTE alpha) {
    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::GraphicsPath path;
    AddRounded(path, rect, Scaled(kCorner));
    const Gdiplus::SolidBrush brush(ToGdiPlus(color, alpha));
    graphics.FillPath(&brush, &path);
}

} // namespace

BEGIN_MESSAGE_MAP(CLayerList, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

CLayerList::CLayerList(MapState& state, const MapData& data, std::function<void()> changed)
    : m_state(state), m_data(data), m_changed(std::move(changed)) {}

BOOL CLayerList::Create(CWnd* parent, UINT id) {
    const LPCTSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return CWnd::Create(windowClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                        CRect(0, 0, 0, 0), parent, id) &&
           m_bar.Create(this, kBarId);
}

void CLayerList::SetTexts(const LayerRowTexts& texts) {
    m_rows = MakeLayerRows(m_data, texts, [](const std::wstring& a, const std::wstring& b) {
        return ::CompareStringEx(LOCALE_NAME_USER_DEFAULT, LINGUISTIC_IGNORECASE, a.c_str(), -1, b.c_str(), -1, nullptr,
                                 nullptr, 0) == CSTR_LESS_THAN;
    });
    m_hot = m_mark = -1;
    ShowFirst(m_first);
}

void CLayerList::SetSkin(UINT skin, const ViewerColors& colors) {
    m_colors = colors;
    m_bar.SetSkin(skin);
    if (GetSafeHwnd()) {
        Invalidate(FALSE);
    }
}

void CLayerList::ShowState() {
    if (m_shownVersion != m_state.Version() && GetSafeHwnd()) {
        m_shownVersion = m_state.Version();
        Invalidate(FALSE);
    }
}

void CLayerList::CBar::ShowState() {
    const int rows = static_cast<int>(m_list.m_rows.size());
    ShowScroll({rows * m_list.RowHeight(), m_list.GetLastFirstRow(), m_list.GetFirstRow()});
}

int CLayerList::RowHeight() const { return Scaled(kRowHeight); }

int CLayerList::ShownCount() const {
    CRect client;
    GetClientRect(client);
    return client.Height() / RowHeight();
}

int CLayerList::GetLastFirstRow() const { return std::max(0, static_cast<int>(m_rows.size()) - ShownCount()); }

void CLayerList::ScrollRows(int count) { ShowFirst(m_first + count); }

void CLayerList::ShowFirst(int row) {
    if (!GetSafeHwnd()) {
        return;
    }
    m_first = std::clamp(row, 0, GetLastFirstRow());
    m_bar.ShowWindow(GetLastFirstRow() > 0 ? SW_SHOWNA : SW_HIDE);
    m_bar.ShowState();
    Invalidate(FALSE);
}

CRect CLayerList::RowRect(int row) const {
    CRect client;
    GetClientRect(client);
    const int right = static_cast<int>(client.right) - (m_bar.IsWindowVisible() ? m_bar.GetScrollWidth() : 0);
    const int top = (row - m_first) * RowHeight();
    return CRect(0, top, right, top + RowHeight());
}

int CLayerList::RowAt(CPoint point) const {
    const int row = point.y < 0 ? -1 : m_first + static_cast<int>(point.y) / RowHeight();
    return row >= 0 && row < static_cast<int>(m_rows.size()) && m_rows[row].IsChoosable() ? row : -1;
}

void CLayerList::SetHot(int row) {
    for (const int changed : {m_hot, row}) {
        if (m_hot != row && changed >= 0) {
            InvalidateRect(RowRect(changed), FALSE);
        }
    }
    m_hot = row;
}

void CLayerList::Choose(int row) {
    if (row < 0) {
        return;
    }
    const LayerRow& chosen = m_rows[row];
    if (chosen.kind == LayerRow::Kind::Layer) {
        m_state.Toggle(static_cast<MapLayer>(chosen.index));
    } else {
        m_state.CenterOn(m_data.cities[chosen.index].place);
    }
    m_changed();
}

void CLayerList::MoveTo(int row) {
    m_mark = row;
    ShowFirst(FirstRowToShow(row, m_first, ShownCount()));
}

void CLayerList::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    if (width <= 0 || height <= 0) {
        return;
    }
    const int breadth = m_bar.GetScrollWidth();
    m_bar.MoveWindow(width - breadth, 0, breadth, height);
    m_bar.InitThumb();
    ShowFirst(m_first);
}

void CLayerList::OnLButtonDown(UINT /*flags*/, CPoint point) { Choose(RowAt(point)); }

void CLayerList::OnMouseMove(UINT /*flags*/, CPoint point) {
    TRACKMOUSEEVENT request = {sizeof request, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&request);
    SetHot(RowAt(point));
}

void CLayerList::OnMouseLeave() { SetHot(-1); }

BOOL CLayerList::OnMouseWheel(UINT /*flags*/, short delta, CPoint point) {
    ScrollRows(-kWheelRows * delta / WHEEL_DELTA);
    m_bar.OnMouseWheelScroll();
    ScreenToClient(&point);
    SetHot(RowAt(point));
    return TRUE;
}

void CLayerList::OnKeyDown(UINT key, UINT /*repeat*/, UINT /*flags*/) {
    const int start = m_mark < 0 ? m_first - 1 : m_mark;
    switch (key) {
    case VK_DOWN:
        MoveTo(NextChoosableRow(m_rows, start, 1));
        break;
    case VK_UP:
        MoveTo(NextChoosableRow(m_rows, start, -1));
        break;
    case VK_NEXT:
    case VK_PRIOR:
        ScrollRows(key == VK_NEXT ? ShownCount() : -ShownCount());
        break;
    case VK_SPACE:
    case VK_RETURN:
        Choose(m_mark);
        break;
    default:
        Default();
    }
}

void CLayerList::OnSetFocus(CWnd* /*earlier*/) { Invalidate(FALSE); }

void CLayerList::OnKillFocus(CWnd* /*next*/) { Invalidate(FALSE); }

BOOL CLayerList::OnEraseBkgnd(CDC* /*dc*/) { return TRUE; }

void CLayerList::OnPaint() {
    CPaintDC paint(this);
    CRect client;
    GetClientRect(client);
    CDC memory;
    CBitmap bitmap;
    if (!memory.CreateCompatibleDC(&paint) || !bitmap.CreateCompatibleBitmap(&paint, client.Width(), client.Height())) {
        return;
    }
    CBitmap* const earlier = memory.SelectObject(&bitmap);
    CFont* const font = memory.SelectObject(&afxGlobalData.fontRegular);
    memory.SetBkMode(TRANSPARENT);
    memory.FillSolidRect(client, m_colors.ground);
    const int end = std::min(static_cast<int>(m_rows.size()), m_first + ShownCount() + 1);
    for (int row = m_first; row < end; ++row) {
        DrawRow(memory, row);
    }
    paint.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(font);
    memory.SelectObject(earlier);
}

void CLayerList::DrawRow(CDC& dc, int row) {
    const LayerRow& shown = m_rows[row];
    const CRect rect = RowRect(row);
    CRect plate = rect;
    plate.DeflateRect(Scaled(kPlateMargin), Scaled(1));
    if (row == m_mark && GetFocus() == this) {
        FillPlate(dc, plate, m_colors.accent, kMarkStrength);
    } else if (row == m_hot) {
        FillPlate(dc, plate, m_colors.text, kHotStrength);
    }
    CRect text = rect;
    text.left += Scaled(kIndent);
    text.right -= Scaled(kIndent);
    if (shown.kind == LayerRow::Kind::Layer) {
        const auto layer = static_cast<MapLayer>(shown.index);
        const int size = Scaled(kTickSize);
        const int top = static_cast<int>(rect.top) + (rect.Height() - size) / 2;
        DrawTick(dc, CRect(CPoint(text.left, top), CSize(size, size)), m_state.IsShown(layer));
        const int swatch = Scaled(kSwatchSize);
        const CPoint corner(text.right - swatch, rect.top + (rect.Height() - swatch) / 2);
        DrawSwatch(dc, CRect(corner, CSize(swatch, swatch)), ToColorRef(ShownColor(m_state, layer)));
        text.left += size + Scaled(kTickGap);
        text.right = corner.x - Scaled(kTickGap);
    }
    dc.SetTextColor(shown.IsChoosable() ? m_colors.text : m_colors.secondary);
    dc.DrawText(shown.text.c_str(), text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void CLayerList::DrawSwatch(CDC& dc, const CRect& rect, COLORREF color) {
    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    const Gdiplus::Rect circle(rect.left, rect.top, rect.Width(), rect.Height());
    const Gdiplus::SolidBrush brush(ToGdiPlus(color));
    graphics.FillEllipse(&brush, circle);
    const Gdiplus::Pen pen(ToGdiPlus(m_colors.secondary), static_cast<float>(Scaled(1)));
    graphics.DrawEllipse(&pen, circle);
}

void CLayerList::DrawTick(CDC& dc, const CRect& box, bool isTicked) {
    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::GraphicsPath frame;
    AddRounded(frame, box, Scaled(3));
    const auto width = static_cast<float>(Scaled(1));
    if (!isTicked) {
        const Gdiplus::Pen pen(ToGdiPlus(m_colors.secondary), width);
        graphics.DrawPath(&pen, &frame);
        return;
    }
    const Gdiplus::SolidBrush brush(ToGdiPlus(m_colors.accent));
    graphics.FillPath(&brush, &frame);
    const float unit = static_cast<float>(box.Width()) / kTickSize;
    const Gdiplus::PointF corner(static_cast<float>(box.left), static_cast<float>(box.top));
    const Gdiplus::PointF points[] = {{corner.X + 3 * unit, corner.Y + 7 * unit},
                                      {corner.X + 5.75F * unit, corner.Y + 9.75F * unit},
                                      {corner.X + 10.5F * unit, corner.Y + 4.25F * unit}};
    const Gdiplus::Pen pen(ToGdiPlus(m_colors.ground), 1.5F * unit);
    graphics.DrawLines(&pen, points, 3);
}
