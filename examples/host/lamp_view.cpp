#include "lamp_view.h"

#include <afxglobals.h>

#include <array>

namespace {

constexpr int kDiameter = 96; // sizes in pixels at 96 DPI
constexpr int kGap = 32;
constexpr COLORREF kBackground = RGB(245, 246, 248);
constexpr std::array<COLORREF, LampBoard::kCount> kColors = {RGB(206, 52, 48), RGB(233, 168, 32), RGB(58, 156, 78)};
constexpr COLORREF kDark = RGB(206, 210, 216);

} // namespace

BEGIN_MESSAGE_MAP(CLampView, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

CLampView::CLampView(const LampBoard& board) : m_board(board) {}

BOOL CLampView::Create(CWnd* parent) {
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    // The frame gives the window of this id all room that the bars leave.
    return CWnd::Create(windowClass, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), parent, AFX_IDW_PANE_FIRST);
}

void CLampView::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    dc.FillSolidRect(client, kBackground);

    const double scale = afxGlobalData.GetRibbonImageScale();
    const int diameter = static_cast<int>(kDiameter * scale);
    const int gap = static_cast<int>(kGap * scale);
    CRect lamp(CPoint(gap, gap), CSize(diameter, diameter));
    for (std::size_t i = 0; i < LampBoard::kCount; ++i) {
        if (!m_board.IsMounted(i)) {
            continue;
        }
        CBrush brush(m_board.IsLit(i) ? kColors.at(i) : kDark);
        CPen pen(PS_SOLID, 1, kDark);
        CBrush* const earlierBrush = dc.SelectObject(&brush);
        CPen* const earlierPen = dc.SelectObject(&pen);
        dc.Ellipse(lamp);
        dc.SelectObject(earlierPen);
        dc.SelectObject(earlierBrush);
        lamp.OffsetRect(diameter + gap, 0);
    }
}
