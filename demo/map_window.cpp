#include "map_window.h"

#include "map_stand_in.h"

#include <fx/window_guard.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace {

/// What a key does: zooms by a factor, or moves the view by parts of the window.
struct KeyRow {
    UINT key;
    double zoom = 0;
    double east = 0;
    double north = 0;
};
constexpr double kKeyZoom = 1.25;
constexpr double kKeyStep = 0.1;
constexpr std::array<KeyRow, 8> kKeys = {{{VK_ADD, kKeyZoom},
                                          {VK_OEM_PLUS, kKeyZoom},
                                          {VK_SUBTRACT, 1 / kKeyZoom},
                                          {VK_OEM_MINUS, 1 / kKeyZoom},
                                          {VK_LEFT, 0, -kKeyStep, 0},
                                          {VK_RIGHT, 0, kKeyStep, 0},
                                          {VK_UP, 0, 0, kKeyStep},
                                          {VK_DOWN, 0, 0, -kKeyStep}}};

constexpr UINT kPictureFinishedMessage = WM_APP + 1;

/// A device context in memory with a bitmap in it.
class BitmapDc {
public:
    BitmapDc(HDC model, HBITMAP bitmap) : m_dc(::CreateCompatibleDC(model)), m_earlier(::SelectObject(m_dc, bitmap)) {}
    ~BitmapDc() {
        ::SelectObject(m_dc, m_earlier);
        ::DeleteDC(m_dc);
    }
    BitmapDc(const BitmapDc&) = delete;
    BitmapDc& operator=(const BitmapDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HDC m_dc;
    HGDIOBJ m_earlier;
};

COLORREF AroundTheMap(const MapState& state) {
    const std::uint32_t color = ShownColor(state, MapLayer::Relief);
    return RGB(color >> 16 & 0xFF, color >> 8 & 0xFF, color & 0xFF);
}

/// Everything of the window but the target, so that no pixel is drawn twice.
void FillAround(CDC& dc, const CRect& client, const fx::Rect& target, COLORREF color) {
    const CRect covered(target.left, target.top, target.right, target.bottom);
    const int saved = dc.SaveDC();
    if (!covered.IsRectEmpty()) {
        dc.ExcludeClipRect(covered);
    }
    dc.FillSolidRect(client, color);
    dc.RestoreDC(saved);
}

void DrawStandIn(CDC& dc, const MapStandIn& plan, HBITMAP picture) {
    const BitmapDc memory(dc.GetSafeHdc(), picture);
    const fx::Rect& from = plan.source;
    const fx::Rect& to = plan.target;
    dc.SetStretchBltMode(COLORONCOLOR);
    ::StretchBlt(dc.GetSafeHdc(), to.left, to.top, to.right - to.left, to.bottom - to.top, memory.Get(), from.left,
                 from.top, from.right - from.left, from.bottom - from.top, SRCCOPY);
}

/// False when there is no room for the copy.
bool CopyForScreen(CWnd& window, HBITMAP drawn, CSize size, CBitmap& copy) {
    CClientDC screen(&window);
    if (!copy.CreateCompatibleBitmap(&screen, size.cx, size.cy)) {
        return false;
    }
    const BitmapDc source(screen.GetSafeHdc(), drawn);
    const BitmapDc target(screen.GetSafeHdc(), static_cast<HBITMAP>(copy.GetSafeHandle()));
    return ::BitBlt(target.Get(), 0, 0, size.cx, size.cy, source.Get(), 0, 0, SRCCOPY) != FALSE;
}

} // namespace

CMapWindow::CMapWindow(MapState& state, const MapData& data) : m_state(state), m_data(data) {}

BEGIN_MESSAGE_MAP(CMapWindow, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_KEYDOWN()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_CONTEXTMENU()
ON_WM_CAPTURECHANGED()
ON_MESSAGE(kPictureFinishedMessage, OnPictureFinished)
END_MESSAGE_MAP()

BOOL CMapWindow::Create(CWnd* parent, UINT id) {
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CWnd::Create(windowClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), parent, id)) {
        return FALSE;
    }
    // West stays on the left, whichever way the reader's language runs.
    ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
    const HWND window = GetSafeHwnd();
    m_drawer = std::make_unique<MapDrawer>(m_data, [window] { ::PostMessageW(window, kPictureFinishedMessage, 0, 0); });
    return TRUE;
}

void CMapWindow::OrderPicture() {
    m_shownVersion = m_state.Version();
    if (m_drawer) {
        m_drawer->Order(m_state, m_style, ++m_order);
        TellWork(true);
    }
    if (GetSafeHwnd()) {
        Invalidate(FALSE);
    }
    if (m_viewListener) {
        m_viewListener();
    }
}

void CMapWindow::TakePicture() {
    if (auto drawn = m_drawer->Take(); drawn && drawn->bitmap) {
        m_drawn = std::move(drawn);
    }
    if (IsFinished()) {
        TellWork(false);
    }
}

void CMapWindow::TellWork(bool isAtWork) {
    if (m_workListener) {
        m_workListener(isAtWork);
    }
}

LRESULT CMapWindow::OnPictureFinished(WPARAM, LPARAM) {
    TakePicture();
    Invalidate(FALSE);
    std::ranges::move(m_drawer->TakeKept(), std::back_inserter(m_finished));
    HandOverFinished();
    return 0;
}

// A taker may open a window and so come back here, or end this one.
void CMapWindow::HandOverFinished() {
    const fx::WindowGuard guard(this);
    while (guard.IsAlive() && !m_finished.empty() && ::IsWindowEnabled(::GetAncestor(GetSafeHwnd(), GA_ROOT))) {
        const std::unique_ptr<DrawnMap> drawn = std::move(m_finished.front());
        m_finished.pop_front();
        if (const auto taker = m_takers.extract(drawn->order)) {
            HandOver(drawn->bitmap, drawn->state, taker.mapped());
        }
    }
}

void CMapWindow::ResumeRequests() {
    if (!m_finished.empty()) {
        PostMessage(kPictureFinishedMessage);
    }
}

void CMapWindow::Finish() {
    m_drawer->Wait();
    TakePicture();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void CMapWindow::SetStyle(const MapPaintStyle& style) {
    m_style = style;
    OrderPicture();
}

void CMapWindow::ShowState() {
    if (m_shownVersion != m_state.Version() && GetSafeHwnd()) {
        OrderPicture();
    }
}

void CMapWindow::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    const MapStandIn plan = m_drawn ? PlanStandIn(m_drawn->state, m_state) : MapStandIn{};
    FillAround(dc, client, plan.target, AroundTheMap(m_state));
    if (!plan.source.IsEmpty()) {
        DrawStandIn(dc, plan, m_drawn->bitmap);
    }
}

void CMapWindow::RequestPicture(PictureTaker taker) {
    if (IsFinished()) {
        HandOver(m_drawn->bitmap, m_drawn->state, taker);
        return;
    }
    m_takers[++m_keptOrder] = std::move(taker);
    m_drawer->OrderKept(m_state, m_style, m_keptOrder);
}

void CMapWindow::RequestPage(int fineness, PictureTaker taker) {
    MapPaintStyle style = m_style;
    style.scale *= fineness;
    m_takers[++m_keptOrder] = std::move(taker);
    m_drawer->OrderKept(m_state.OfPage(fineness), style, m_keptOrder);
}

// A taker may run for long, or end the window: nothing of the window is held while it does.
void CMapWindow::HandOver(HBITMAP drawn, const MapState& state, const PictureTaker& taker) {
    CBitmap picture;
    const CSize size(state.WindowWidth(), state.WindowHeight());
    taker(drawn != nullptr && CopyForScreen(*this, drawn, size, picture) ? &picture : nullptr);
}

BOOL CMapWindow::OnEraseBkgnd(CDC*) { return TRUE; }

void CMapWindow::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    if (width > 0 && height > 0) {
        m_state.SetWindowSize(width, height);
        OrderPicture();
        // Now: until it is painted, new area shows whatever the screen had there.
        UpdateWindow();
    }
}

void CMapWindow::OnLButtonDown(UINT, CPoint point) {
    SetFocus();
    SetCapture();
    m_dragging = true;
    m_dragFrom = point;
}

void CMapWindow::OnMouseMove(UINT, CPoint point) {
    if (m_pointerListener) {
        m_pointerListener(m_state.ToPlace(point.x, point.y));
    }
    if (!m_dragging) {
        return;
    }
    m_state.Drag(m_dragFrom.x - point.x, point.y - m_dragFrom.y);
    m_dragFrom = point;
    ShowState();
}

void CMapWindow::OnLButtonUp(UINT, CPoint) {
    if (m_dragging) {
        ReleaseCapture();
    }
}

void CMapWindow::OnContextMenu(CWnd*, CPoint point) {
    if (m_menuListener) {
        m_menuListener(point);
    }
}

void CMapWindow::OnCaptureChanged(CWnd*) {
    if (!m_dragging) {
        return;
    }
    m_dragging = false;
    m_state.EndDrag();
    ShowState();
}

void CMapWindow::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    const auto* const row =
        std::find_if(kKeys.begin(), kKeys.end(), [key](const KeyRow& one) { return one.key == key; });
    if (row == kKeys.end() || ::GetKeyState(VK_CONTROL) < 0) {
        CWnd::OnKeyDown(key, repeat, flags);
        return;
    }
    if (row->zoom != 0) {
        m_state.Zoom(row->zoom);
    } else {
        m_state.Pan(row->east, row->north);
    }
    ShowState();
}

void CMapWindow::OnLButtonDblClk(UINT, CPoint point) { ZoomAt(point, 2); }

BOOL CMapWindow::OnMouseWheel(UINT, short delta, CPoint point) {
    ScreenToClient(&point);
    ZoomAt(point, std::pow(1.25, delta / static_cast<double>(WHEEL_DELTA)));
    return TRUE;
}

void CMapWindow::ZoomAt(CPoint client, double factor) {
    m_state.Zoom(factor, client.x - m_state.WindowWidth() / 2.0, client.y - m_state.WindowHeight() / 2.0);
    ShowState();
}
