// The sheets of a print preview.
#include "afxcontrolbars.h"
#include "documents/preview_pages.h"
#include "fx/dc_scope.h"
#include "fx/print_preview.h"

#include <algorithm>

namespace {

constexpr int kMargin = 12; ///< around each sheet, pixels at 96 DPI
constexpr int kShadow = 3;
constexpr double kInch = 25.4; ///< millimetres
constexpr double kWhole = 100; ///< percent

/// So many sheets beside each other with the margins round them, in pixels.
struct Layout {
    Layout(CSize millimetres, double scale, UINT sheets)
        : margin(afxGlobalData.ScalePixels(kMargin)),
          sheet(static_cast<int>(millimetres.cx * scale), static_cast<int>(millimetres.cy * scale)),
          whole(static_cast<int>(sheets) * (sheet.cx + margin) + margin, sheet.cy + 2 * margin) {}

    int margin;
    CSize sheet;
    CSize whole;
};

} // namespace

IMPLEMENT_DYNAMIC(CPreviewView, CScrollView)

BEGIN_MESSAGE_MAP(CPreviewView, CScrollView)
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

CPreviewView::CPreviewView(fx::PreviewPages& pages) : m_pages(pages), m_page(pages.First()) {}

BOOL CPreviewView::PreCreateWindow(CREATESTRUCT& cs) {
    // A sheet is not turned round in a mirrored frame.
    cs.dwExStyle |= WS_EX_NOINHERITLAYOUT;
    return CScrollView::PreCreateWindow(cs);
}

void CPreviewView::SetCurrentPage(UINT nPage) {
    m_page = std::clamp(nPage, m_pages.First(), std::max(m_pages.First(), m_pages.Last()));
    while (m_page > m_pages.First() && !m_pages.Has(m_page)) {
        m_page = std::max(m_pages.First(), m_pages.Last());
    }
    ScrollToPosition(CPoint(0, 0));
    Lay();
}

void CPreviewView::SetPagesShown(UINT nPages) {
    m_shown = std::clamp(nPages, 1U, 2U);
    Lay();
}

void CPreviewView::SetZoom(int percent) {
    m_zoom = percent;
    Lay();
}

bool CPreviewView::HasPreviousPage() const { return m_page > m_pages.First(); }
bool CPreviewView::HasNextPage() const { return m_pages.Has(LastShown() + 1); }
CString CPreviewView::GetPageText() const { return m_pages.Describe(m_page, LastShown()); }

UINT CPreviewView::LastShown() const { return m_shown == 2 && m_pages.Has(m_page + 1) ? m_page + 1 : m_page; }

double CPreviewView::ScreenDots() const {
    const HDC screen = ::GetDC(nullptr);
    const int dots = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return dots / kInch;
}

double CPreviewView::GetPercent(int zoom) const { return PixelsPerMillimetre(zoom) / ScreenDots() * kWhole; }

double CPreviewView::PixelsPerMillimetre(int zoom) const {
    if (zoom > 0) {
        return zoom / kWhole * ScreenDots();
    }
    CRect room;
    GetClientRect(room);
    const int margin = afxGlobalData.ScalePixels(kMargin), shown = static_cast<int>(m_shown);
    const double across = static_cast<double>(room.Width() - (shown + 1) * margin) / (shown * m_pages.Sheet().cx);
    const double down = static_cast<double>(room.Height() - 2 * margin) / m_pages.Sheet().cy;
    return std::max({std::min(across, down), 1.0 / m_pages.Sheet().cx, 1.0 / m_pages.Sheet().cy});
}

std::vector<CRect> CPreviewView::GetSheets() const {
    const Layout layout(m_pages.Sheet(), PixelsPerMillimetre(m_zoom), m_shown);
    CRect room;
    GetClientRect(room);
    const CPoint scroll = GetDeviceScrollPosition();
    const int left = std::max(0L, (room.Width() - layout.whole.cx) / 2) + layout.margin - scroll.x;
    const int top = std::max(0L, (room.Height() - layout.whole.cy) / 2) + layout.margin - scroll.y;
    std::vector<CRect> sheets;
    for (UINT page = m_page; page <= LastShown(); ++page) {
        const int across = static_cast<int>(page - m_page) * (layout.sheet.cx + layout.margin);
        sheets.emplace_back(CPoint(left + across, top), layout.sheet);
    }
    return sheets;
}

void CPreviewView::Lay() {
    // What fits has nothing to scroll, however it is rounded.
    const CSize fitting(1, 1);
    SetScrollSizes(MM_TEXT, m_zoom > 0 ? Layout(m_pages.Sheet(), PixelsPerMillimetre(m_zoom), m_shown).whole : fitting);
    Invalidate();
}

void CPreviewView::OnSize(UINT nType, int cx, int cy) {
    CScrollView::OnSize(nType, cx, cy);
    Invalidate();
}

BOOL CPreviewView::OnEraseBkgnd(CDC*) { return TRUE; }

// Beside the screen first: a page of text would flicker.
void CPreviewView::OnDraw(CDC* pDC) {
    CRect room;
    GetClientRect(room);
    const CPoint scroll = GetDeviceScrollPosition();
    room += scroll; // as the context counts
    fx::MemoryDc memory(*pDC, room);
    memory->FillSolidRect(room, ::GetSysColor(COLOR_APPWORKSPACE));
    const int shadow = afxGlobalData.ScalePixels(kShadow);
    UINT page = m_page;
    for (const CRect& seen : GetSheets()) {
        const CRect sheet = seen + scroll;
        memory->FillSolidRect(sheet + CPoint(shadow, shadow), ::GetSysColor(COLOR_3DDKSHADOW));
        m_pages.Draw(memory, sheet, page++);
    }
}
