#include "layer_list.h"

#include "map_painter.h"
#include "scaled.h"
#include "soft_canvas.h"

#include <algorithm>

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
constexpr double kHotStrength = 0.08; // of the text's colour over the ground
constexpr double kMarkStrength = 0.22;
constexpr UINT kBarId = 1;

COLORREF ToColorRef(std::uint32_t rgb) { return RGB(rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF); }

void DrawSwatch(SoftCanvas& canvas, CRect rect, COLORREF color, COLORREF rim) {
    canvas.FillRounded(rect, rect.Width() / 2, rim);
    rect.DeflateRect(Scaled(1), Scaled(1));
    canvas.FillRounded(rect, rect.Width() / 2, color);
}

void DrawTick(SoftCanvas& canvas, CRect box, bool isTicked, const ViewerColors& colors) {
    canvas.FillRounded(box, Scaled(3), isTicked ? colors.accent : colors.secondary);
    if (!isTicked) {
        box.DeflateRect(Scaled(1), Scaled(1));
        canvas.FillRounded(box, Scaled(2), colors.ground);
        return;
    }
    const double unit = static_cast<double>(box.Width()) / kTickSize;
    const auto x = [&](double units) { return box.left + units * unit; };
    const auto y = [&](double units) { return box.top + units * unit; };
    canvas.DrawLine(x(3.5), y(7.25), x(6), y(9.75), 1.6 * unit, colors.ground);
    canvas.DrawLine(x(6), y(9.75), x(10.5), y(4.5), 1.6 * unit, colors.ground);
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
    SoftCanvas canvas(paint, client);
    if (canvas.IsEmpty()) {
        return;
    }
    canvas.Fill(CRect(CPoint(0, 0), canvas.Size()), m_colors.ground);
    const int end = std::min(static_cast<int>(m_rows.size()), m_first + ShownCount() + 1);
    for (int row = m_first; row < end; ++row) {
        DrawMarks(canvas, row);
    }
    for (int row = m_first; row < end; ++row) {
        DrawText(canvas.Dc(), row);
    }
}

// The canvas is not: texts and ticks are never drawn the other way round, only their places are.
CRect CLayerList::Mirrored(CRect rect) const {
    if (GetExStyle() & WS_EX_LAYOUTRTL) {
        CRect client;
        GetClientRect(client);
        rect = CRect(client.right - rect.right, rect.top, client.right - rect.left, rect.bottom);
    }
    return rect;
}

CRect CLayerList::TickRect(int row) const {
    const CRect rect = RowRect(row);
    const int size = Scaled(kTickSize);
    return CRect(CPoint(rect.left + Scaled(kIndent), rect.top + (rect.Height() - size) / 2), CSize(size, size));
}

CRect CLayerList::SwatchRect(int row) const {
    const CRect rect = RowRect(row);
    const int size = Scaled(kSwatchSize);
    const CPoint corner(rect.right - Scaled(kIndent) - size, rect.top + (rect.Height() - size) / 2);
    return CRect(corner, CSize(size, size));
}

void CLayerList::DrawMarks(SoftCanvas& canvas, int row) {
    CRect plate = Mirrored(RowRect(row));
    plate.DeflateRect(Scaled(kPlateMargin), Scaled(1));
    if (row == m_mark && GetFocus() == this) {
        canvas.FillRounded(plate, Scaled(kCorner), m_colors.accent, kMarkStrength);
    } else if (row == m_hot) {
        canvas.FillRounded(plate, Scaled(kCorner), m_colors.text, kHotStrength);
    }
    if (m_rows[row].kind == LayerRow::Kind::Layer) {
        const auto layer = static_cast<MapLayer>(m_rows[row].index);
        DrawTick(canvas, Mirrored(TickRect(row)), m_state.IsShown(layer), m_colors);
        DrawSwatch(canvas, Mirrored(SwatchRect(row)), ToColorRef(ShownColor(m_state, layer)), m_colors.secondary);
    }
}

void CLayerList::DrawText(CDC& dc, int row) {
    const LayerRow& shown = m_rows[row];
    CRect text = RowRect(row);
    const bool hasMarks = shown.kind == LayerRow::Kind::Layer;
    text.left = hasMarks ? TickRect(row).right + Scaled(kTickGap) : text.left + Scaled(kIndent);
    text.right = hasMarks ? SwatchRect(row).left - Scaled(kTickGap) : text.right - Scaled(kIndent);
    text = Mirrored(text);
    dc.SetTextColor(shown.IsChoosable() ? m_colors.text : m_colors.secondary);
    const UINT reading = (GetExStyle() & WS_EX_LAYOUTRTL) != 0 ? DT_RIGHT | DT_RTLREADING : 0;
    dc.DrawText(shown.text.c_str(), text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX | reading);
}
