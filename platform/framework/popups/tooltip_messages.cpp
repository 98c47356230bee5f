// When a tooltip appears: its size and place, and painting it.
#include "afxtooltipctrl.h"

#include "afxglobals.h"
#include "afxmsg_.h"
#include "afxribbonbar.h"
#include "afxribbonbutton.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/window_dc.h"
#include "popups/popup_place.h"
#include "popups/tooltip_layout.h"
#include "popups/tooltip_shape.h"
#include "popups/tooltip_text.h"

#include <vector>

namespace {

const CPoint g_nowhere(-1, -1);
constexpr int g_longestLabel = 4096;

struct Margins {
    int x, y;
};
constexpr Margins g_squareMargins = {4, 2};
constexpr Margins g_roundedMargins = {6, 4};

} // namespace

BEGIN_MESSAGE_MAP(CMFCToolTipCtrl, CToolTipCtrl)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_NCCALCSIZE()
ON_WM_NCPAINT()
ON_WM_SIZE()
ON_WM_WINDOWPOSCHANGING()
ON_NOTIFY_REFLECT(TTN_SHOW, OnShow)
ON_NOTIFY_REFLECT(TTN_POP, OnPop)
END_MESSAGE_MAP()

void CMFCToolTipCtrl::UpdateParams() {
    CMFCVisualManager* manager = m_Params.m_bVislManagerTheme ? CMFCVisualManager::GetInstance() : nullptr;
    CMFCToolTipInfo params;
    if (manager != nullptr && manager->GetToolTipInfo(params, m_nOwnerType)) {
        m_Params = params;
        m_Params.m_bVislManagerTheme = TRUE;
    }
}

CString CMFCToolTipCtrl::GetLabel() {
    std::vector<wchar_t> text(g_longestLabel);
    ::GetWindowTextW(m_hWnd, text.data(), g_longestLabel);
    // Who says that "&" is no mark has given the text as it is to be shown.
    const bool isLiteral = (GetStyle() & TTS_NOPREFIX) != 0;
    return isLiteral ? CString(text.data()) : CString(tooltip::WithoutKeyMarks(text.data()).c_str());
}

void CMFCToolTipCtrl::OnShow(NMHDR* /*pNMHDR*/, LRESULT* pResult) {
    *pResult = 0;
    m_rectShow.SetRectEmpty();
    UpdateParams();
    if (m_Params.m_bBalloonTooltip) {
        return; // the system draws balloons
    }
    m_strLabel = GetLabel();
    const Margins& margins = m_Params.m_bRoundedCorners ? g_roundedMargins : g_squareMargins;
    m_ptMargin = CPoint(afxGlobalData.ScalePixels(margins.x), afxGlobalData.ScalePixels(margins.y));
    m_sizeImage = m_Params.m_bDrawIcon ? GetIconSize() : CSize(0, 0);
    CClientDC dc(this);
    tooltip::Content content;
    content.icon = m_sizeImage;
    content.label = OnDrawLabel(&dc, CRect(0, 0, 0, 0), TRUE);
    content.description = IsDescriptionShown() ? OnDrawDescription(&dc, CRect(0, 0, 0, 0), TRUE) : CSize(0, 0);
    *pResult = PlaceForShow(m_ptLocation, tooltip::Arrange(content, CSize(m_ptMargin.x, m_ptMargin.y)).window);
}

BOOL CMFCToolTipCtrl::PlaceForShow(CPoint ptScreen, CSize size) {
    CRect system;
    GetWindowRect(system);
    CPoint cursor;
    ::GetCursorPos(&cursor);
    const bool isFixed = ptScreen != g_nowhere;
    const CPoint wanted = isFixed ? ptScreen : CPoint(cursor.x, cursor.y + ::GetSystemMetrics(SM_CYCURSOR) * 2 / 3);
    int avoidTop = static_cast<int>(cursor.y) - 1;
    const CWnd* bar = m_pRibbonButton != nullptr ? m_pRibbonButton->GetTopLevelRibbonBar() : nullptr;
    if (bar != nullptr && bar->GetSafeHwnd() != nullptr) {
        CRect area;
        bar->GetWindowRect(area);
        avoidTop = static_cast<int>(area.top);
    }
    const CPoint corner =
        tooltip::KeepInside(wanted, size, toolbar::WorkAreaAround(CRect(wanted, CSize(0, 0))), avoidTop);
    m_bMovedForShow = TRUE;
    m_rectShow = CRect(corner, size);
    // The frame again, too: with the looks the system's border may have come or gone.
    SetWindowPos(nullptr, corner.x, corner.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    return m_bMovedForShow;
}

// The system may size the window again after TTN_SHOW, for the text in its own font.
void CMFCToolTipCtrl::OnWindowPosChanging(WINDOWPOS* lpwndpos) {
    if (!m_rectShow.IsRectEmpty()) {
        if ((lpwndpos->flags & SWP_NOSIZE) == 0) {
            lpwndpos->cx = m_rectShow.Width();
            lpwndpos->cy = m_rectShow.Height();
        }
        if ((lpwndpos->flags & SWP_NOMOVE) == 0 && m_bMovedForShow) {
            lpwndpos->x = m_rectShow.left;
            lpwndpos->y = m_rectShow.top;
        }
    }
    CToolTipCtrl::OnWindowPosChanging(lpwndpos);
}

void CMFCToolTipCtrl::OnPop(NMHDR* /*pNMHDR*/, LRESULT* pResult) {
    m_rectShow.SetRectEmpty();
    *pResult = 0;
}

// The system gives each tooltip a border of its own; here the whole window is drawn, with one border.
void CMFCToolTipCtrl::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp) {
    if (m_Params.m_bBalloonTooltip) {
        CToolTipCtrl::OnNcCalcSize(bCalcValidRects, lpncsp);
    }
}

void CMFCToolTipCtrl::OnNcPaint() {
    if (m_Params.m_bBalloonTooltip) {
        CToolTipCtrl::OnNcPaint();
    }
}

void CMFCToolTipCtrl::OnSize(UINT nType, int cx, int cy) {
    CToolTipCtrl::OnSize(nType, cx, cy);
    if (m_Params.m_bBalloonTooltip) {
        return;
    }
    // The window owns its region from here.
    ::SetWindowRgn(m_hWnd, m_Params.m_bRoundedCorners ? tooltip::RoundedShape(CRect(0, 0, cx, cy)) : nullptr, FALSE);
}

BOOL CMFCToolTipCtrl::OnEraseBkgnd(CDC* pDC) {
    return m_Params.m_bBalloonTooltip ? CToolTipCtrl::OnEraseBkgnd(pDC) : TRUE;
}

void CMFCToolTipCtrl::OnPaint() {
    if (m_Params.m_bBalloonTooltip) {
        Default();
        return;
    }
    CPaintDC paint(this);
    CRect client;
    GetClientRect(client);
    // All at once, so that nothing flickers.
    fx::MemoryDc memory(paint, client);
    CDC& dc = memory;
    COLORREF text = 0, line = 0;
    OnFillBackground(&dc, client, text, line);
    OnDrawBorder(&dc, client, line);
    tooltip::Content content;
    content.icon = m_sizeImage;
    content.label = OnDrawLabel(&dc, CRect(0, 0, 0, 0), TRUE);
    content.description = IsDescriptionShown() ? OnDrawDescription(&dc, CRect(0, 0, 0, 0), TRUE) : CSize(0, 0);
    const tooltip::Layout layout = tooltip::Arrange(content, CSize(m_ptMargin.x, m_ptMargin.y));
    if (!layout.icon.IsRectEmpty()) {
        OnDrawIcon(&dc, layout.icon);
    }
    ::SetTextColor(dc.GetSafeHdc(), text);
    OnDrawLabel(&dc, layout.label, FALSE);
    if (layout.separatorY >= 0) {
        if (m_Params.m_bDrawSeparator) {
            OnDrawSeparator(&dc, static_cast<int>(layout.label.left), static_cast<int>(client.right - m_ptMargin.x),
                            layout.separatorY);
        }
        OnDrawDescription(&dc, layout.description, FALSE);
    }
}
