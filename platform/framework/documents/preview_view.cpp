// The sheets of a print preview.
#include "afxcontrolbars.h"
#include "documents/preview_pages.h"
#include "fx/print_preview.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMargin = 12; ///< around each sheet, pixels at 96 DPI
constexpr int kShadow = 3;
constexpr double kInch = 25.4; ///< millimetres
constexpr double kWhole = 100; ///< percent

int Scaled(int pixels) { return static_cast<int>(std::lround(pixels * afxGlobalData.GetRibbonImageScale())); }

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
    const int margin = Scaled(kMargin), shown = static_cast<int>(m_shown);
    const double across = static_cast<double>(room.Width() - (shown + 1) * margin) / (shown * m_pages.Sheet().cx);
    const double down = static_cast<double>(room.Height() - 2 * margin) / m_pages.Sheet().cy;
    return std::max({std::min(across, down), 1.0 / m_pages.Sheet().cx, 1.0 / m_pages.Sheet().cy});
}

std::vector<CRect> CPreviewView::GetSheets() const {
    const double scale = PixelsPerMillimetre(m_zoom);
    const CSize sheet(static_cast<int>(m_pages.Sheet().cx * scale), static_cast<int>(m_pages.Sheet().cy * scale));
    const int margin = Scaled(kMargin), shown = static_cast<int>(m_shown);
    CRect room;
    GetClientRect(room);
    const CPoint scroll = GetDeviceScrollPosition();
    const CSize whole(shown * sheet.cx + (shown + 1) * margin, sheet.cy + 2 * margin);
    const int left = std::max(0, (room.Width() - static_cast<int>(whole.cx)) / 2) + margin - scroll.x;
    const int top = std::max(0, (room.Height() - static_cast<int>(whole.cy)) / 2) + margin - scroll.y;
    std::vector<CRect> sheets;
    for (UINT page = m_page; page <= LastShown(); ++page) {
        sheets.emplace_back(CPoint(left + static_cast<int>(page - m_page) * (sheet.cx + margin), top), sheet);
    }
    return sheets;
}

void CPreviewView::Lay() {
    const double scale = PixelsPerMillimetre(m_zoom);
    const int margin = Scaled(kMargin), shown = static_cast<int>(m_shown);
    const CSize whole(static_cast<int>(m_pages.Sheet().cx * scale) * shown + (shown + 1) * margin,
                      static_cast<int>(m_pages.Sheet().cy * scale) + 2 * margin);
    // What fits has nothing to scroll, however it is rounded.
    SetScrollSizes(MM_TEXT, m_zoom > 0 ? whole : CSize(1, 1));
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
    CDC memory;
    CBitmap bitmap;
    if (room.IsRectEmpty() || !memory.CreateCompatibleDC(pDC) ||
        !bitmap.CreateCompatibleBitmap(pDC, room.Width(), room.Height())) {
        return;
    }
    CBitmap* const before = memory.SelectObject(&bitmap);
    memory.FillSolidRect(room, ::GetSysColor(COLOR_APPWORKSPACE));
    UINT page = m_page;
    for (const CRect& sheet : GetSheets()) {
        memory.FillSolidRect(sheet + CPoint(Scaled(kShadow), Scaled(kShadow)), ::GetSysColor(COLOR_3DDKSHADOW));
        m_pages.Draw(memory, sheet, page++);
    }
    const CPoint scroll = GetDeviceScrollPosition();
    pDC->BitBlt(scroll.x, scroll.y, room.Width(), room.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(before);
}
