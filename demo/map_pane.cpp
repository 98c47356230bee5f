#include "map_pane.h"

#include <afxglobals.h>

#include <algorithm>
#include <array>

namespace {

enum ChildId : UINT { MapId = 1, ListId, DownId, AcrossId };

constexpr int kListWidth = 190; // at 96 DPI
constexpr int kNarrowest = 3;   // the list takes no more than this part of the width
constexpr UINT kSilver = 1;

/// By skin: black, silver.
constexpr std::array<ViewerColors, 2> kColors = {{
    {RGB(60, 64, 73), RGB(241, 243, 249), RGB(190, 196, 210), RGB(44, 47, 55), RGB(110, 168, 254)},
    {RGB(250, 250, 250), RGB(17, 17, 17), RGB(90, 96, 106), RGB(197, 197, 197), RGB(28, 100, 200)},
}};

} // namespace

BEGIN_MESSAGE_MAP(CMapPane, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

CMapPane::CMapPane(MapState& state, const MapData& data, CMapWindow& map)
    : m_state(state),
      m_map(map),
      m_list(state, data, [this] { TakeChange(); }),
      m_down(state, MapAxis::Down, [this] { TakeChange(); }),
      m_across(state, MapAxis::Across, [this] { TakeChange(); }) {}

BOOL CMapPane::Create(CWnd* parent, UINT id) {
    const LPCTSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CWnd::Create(windowClass, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                      CRect(0, 0, 0, 0), parent, id) ||
        !m_map.Create(this, MapId) || !m_list.Create(this, ListId) || !m_down.Create(this, DownId) ||
        !m_across.Create(this, AcrossId)) {
        return FALSE;
    }
    m_map.SetViewListener([this] {
        m_down.ShowState();
        m_across.ShowState();
        CRect client;
        GetClientRect(client);
        if (m_isStarted && BarsIn(client.Size()) != m_bars) {
            PlaceParts(client.Size());
        }
    });
    return TRUE;
}

void CMapPane::SetSkin(UINT skin) {
    m_colors = kColors[skin == kSilver ? 1 : 0];
    m_list.SetSkin(skin, m_colors);
    for (CMapScrollBar* const bar : {&m_down, &m_across}) {
        bar->SetSkin(skin);
    }
    m_corner = skin == kSilver ? m_down.GetSilverBkColor() : m_down.GetBlackBkColor();
    if (GetSafeHwnd()) {
        Invalidate(FALSE);
    }
}

void CMapPane::Mirror(bool isMirrored) {
    m_list.ModifyStyleEx(isMirrored ? 0 : WS_EX_LAYOUTRTL, isMirrored ? WS_EX_LAYOUTRTL : 0);
    CRect client;
    GetClientRect(client);
    OnSize(SIZE_RESTORED, client.Width(), client.Height());
}

void CMapPane::ShowState() {
    m_map.ShowState();
    m_list.ShowState();
}

CRect CMapPane::PlaceOf(Part part) const {
    const std::array<const CWnd*, 4> windows = {&m_list, &m_map, &m_down, &m_across};
    CRect place;
    windows[static_cast<std::size_t>(part)]->GetWindowRect(place);
    return place;
}

void CMapPane::TakeChange() {
    ShowState();
    if (m_listener) {
        m_listener();
    }
}

void CMapPane::Start() {
    m_isStarted = true;
    CRect client;
    GetClientRect(client);
    OnSize(SIZE_RESTORED, client.Width(), client.Height());
}

void CMapPane::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    if (!m_isStarted || width <= 0 || height <= 0) {
        return;
    }
    PlaceParts(CSize(width, height));
    // Now: until it is painted, new area shows whatever the screen had there.
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

int CMapPane::ListWidth(int width) { return std::min(afxGlobalData.ScalePixels(kListWidth), width / kNarrowest); }

MapBars CMapPane::BarsIn(CSize size) const {
    const int left = ListWidth(size.cx) + afxGlobalData.ScalePixels(1);
    return BarsFor(m_state.View(), size.cx - left, size.cy, m_down.GetScrollWidth());
}

// A map that is seen whole along an axis has the room of that axis's bar.
void CMapPane::PlaceParts(CSize size) {
    // The first size is the one that the whole map is made to fit into.
    m_bars = m_state.WindowWidth() > 1 ? BarsIn(size) : MapBars{};
    const int breadth = m_down.GetScrollWidth();
    const int list = ListWidth(size.cx);
    const int left = list + afxGlobalData.ScalePixels(1);
    const CRect map(left, 0, std::max<int>(size.cx - (m_bars.down ? breadth : 0), left),
                    std::max<int>(size.cy - (m_bars.across ? breadth : 0), 0));
    m_list.MoveWindow(0, 0, list, size.cy);
    m_map.MoveWindow(map);
    m_down.MoveWindow(map.right, 0, breadth, map.bottom);
    m_across.MoveWindow(map.left, map.bottom, map.Width(), breadth);
    m_down.InitThumb();
    m_across.InitThumb();
    m_down.ShowWindow(m_bars.down ? SW_SHOWNA : SW_HIDE);
    m_across.ShowWindow(m_bars.across ? SW_SHOWNA : SW_HIDE);
}

BOOL CMapPane::OnEraseBkgnd(CDC* /*dc*/) { return TRUE; }

// The line beside the list, and the corner between the bars.
void CMapPane::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    dc.FillSolidRect(client, m_corner);
    CRect list;
    m_list.GetWindowRect(list);
    CRect line(list.Width(), 0, list.Width() + afxGlobalData.ScalePixels(1), client.bottom);
    dc.FillSolidRect(line, m_colors.line);
}
