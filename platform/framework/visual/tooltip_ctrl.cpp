#include "afxtooltipctrl.h"

#include "afxdrawmanager.h"
#include "afxglobals.h"
#include "afxvisualmanager.h"
#include "visual/paint.h"
#include "visual/tooltip_geometry.h"

#include <afxribbonbutton.h>

namespace {

constexpr COLORREF g_default = static_cast<COLORREF>(-1);

COLORREF Chosen(COLORREF color, int systemIndex) { return color == g_default ? GetSysColor(systemIndex) : color; }

visual::TooltipPlaces Measure(CMFCToolTipCtrl& tooltip, CDC& dc, CSize icon, CSize margin) {
    visual::TooltipParts parts;
    parts.icon = icon;
    parts.margin = margin;
    parts.gap = afxGlobalData.ScalePixels(4);
    parts.hasSeparator = tooltip.GetParams().m_bDrawSeparator != FALSE;
    parts.label = tooltip.OnDrawLabel(&dc, CRect(0, 0, 0, 0), TRUE);
    parts.description = tooltip.OnDrawDescription(&dc, CRect(0, 0, 0, 0), TRUE);
    return visual::PlaceTooltip(parts);
}

} // namespace

CMFCToolTipInfo& CMFCToolTipInfo::operator=(CMFCToolTipInfo& src) {
    return *this = static_cast<const CMFCToolTipInfo&>(src);
}

IMPLEMENT_DYNCREATE(CMFCToolTipCtrl, CToolTipCtrl)

BEGIN_MESSAGE_MAP(CMFCToolTipCtrl, CToolTipCtrl)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_NOTIFY_REFLECT(TTN_SHOW, &CMFCToolTipCtrl::OnShow)
ON_NOTIFY_REFLECT(TTN_POP, &CMFCToolTipCtrl::OnPop)
END_MESSAGE_MAP()

CMFCToolTipCtrl::CMFCToolTipCtrl(CMFCToolTipInfo* pParams) { SetParams(pParams); }
CMFCToolTipCtrl::~CMFCToolTipCtrl() = default;

void CMFCToolTipCtrl::SetParams(CMFCToolTipInfo* pParams) {
    m_Params = pParams != nullptr ? static_cast<const CMFCToolTipInfo&>(*pParams) : CMFCToolTipInfo();
    m_bParamsPending = TRUE;
}

void CMFCToolTipCtrl::UpdateParams() {
    if (m_bParamsPending && m_Params.m_bVislManagerTheme)
        CMFCVisualManager::GetInstance()->GetToolTipInfo(m_Params);
    m_bParamsPending = FALSE;
}

void CMFCToolTipCtrl::SetDescription(const CString strDesrciption) { m_strDescription = strDesrciption; }
void CMFCToolTipCtrl::SetHotRibbonButton(CMFCRibbonButton* pRibbonButton) { m_pRibbonButton = pRibbonButton; }
void CMFCToolTipCtrl::SetLocation(CPoint pt) { m_ptLocation = pt; }

void CMFCToolTipCtrl::SetFixedWidth(int nWidthRegular, int nWidthLargeImage) {
    m_nFixedWidthRegular = nWidthRegular;
    m_nFixedWidthWithImage = nWidthLargeImage;
}

CString CMFCToolTipCtrl::GetLabel() {
    CString label;
    GetWindowText(label);
    label.Replace(L"&&", L"\1");
    label.Remove(L'&');
    label.Replace(L"\1", L"&");
    return label;
}

CSize CMFCToolTipCtrl::GetIconSize() {
    if (m_pRibbonButton == nullptr || !m_pRibbonButton->IsDrawTooltipImage())
        return CSize(0, 0);
    const CSize large = m_pRibbonButton->GetImageSize(CMFCRibbonBaseElement::RibbonImageLarge);
    return large.cx > 0 ? large : m_pRibbonButton->GetImageSize(CMFCRibbonBaseElement::RibbonImageSmall);
}

BOOL CMFCToolTipCtrl::OnDrawIcon(CDC* pDC, CRect rectImage) {
    if (m_pRibbonButton == nullptr)
        return FALSE;
    const bool isLarge = m_pRibbonButton->GetImageSize(CMFCRibbonBaseElement::RibbonImageLarge).cx > 0;
    m_pRibbonButton->DrawImage(
        pDC, isLarge ? CMFCRibbonBaseElement::RibbonImageLarge : CMFCRibbonBaseElement::RibbonImageSmall, rectImage);
    return TRUE;
}

CSize CMFCToolTipCtrl::OnDrawLabel(CDC* pDC, CRect rect, BOOL bCalcOnly) {
    const BOOL isBold = m_Params.m_bBoldLabel && m_Params.m_bDrawDescription && !m_strDescription.IsEmpty();
    CFont* const previous = pDC->SelectObject(isBold ? &afxGlobalData.fontBold : &afxGlobalData.fontTooltip);
    CRect area = rect;
    const UINT lines = m_strLabel.Find(L'\n') >= 0 ? 0 : DT_SINGLELINE;
    pDC->DrawText(m_strLabel, area, DT_NOPREFIX | lines | (bCalcOnly ? DT_CALCRECT : 0));
    pDC->SelectObject(previous);
    return area.Size();
}

CSize CMFCToolTipCtrl::OnDrawDescription(CDC* pDC, CRect rect, BOOL bCalcOnly) {
    if (!m_Params.m_bDrawDescription || m_strDescription.IsEmpty())
        return CSize(0, 0);
    CFont* const previous = pDC->SelectObject(&afxGlobalData.fontTooltip);
    CRect area = rect;
    if (bCalcOnly) {
        const int fixedWidth = m_sizeImage.cx > 16 ? m_nFixedWidthWithImage : m_nFixedWidthRegular;
        const int taken = m_sizeImage.cx > 0 ? m_sizeImage.cx + afxGlobalData.ScalePixels(4) : 0;
        const int width = fixedWidth > 0 ? afxGlobalData.ScalePixels(fixedWidth) - taken - 2 * m_ptMargin.x
                                         : afxGlobalData.ScalePixels(m_Params.m_nMaxDescrWidth);
        area = CRect(0, 0, std::max(width, afxGlobalData.ScalePixels(40)), 0);
    }
    pDC->DrawText(m_strDescription, area, DT_NOPREFIX | DT_WORDBREAK | (bCalcOnly ? DT_CALCRECT : 0));
    pDC->SelectObject(previous);
    return area.Size();
}

void CMFCToolTipCtrl::OnDrawSeparator(CDC* pDC, int x1, int x2, int y) {
    const COLORREF light = visual::ToColorRef(
        visual::Mix(visual::FromColorRef(Chosen(m_Params.m_clrBorder, COLOR_INFOTEXT)), 0xFFFFFFFF, 1, 2));
    pDC->FillSolidRect(x1, y, x2 - x1, 1, light);
    pDC->FillSolidRect(x1, y + 1, x2 - x1, 1, RGB(255, 255, 255));
}

void CMFCToolTipCtrl::OnDrawBorder(CDC* pDC, CRect rect, COLORREF clrLine) {
    if (!m_Params.m_bRoundedCorners) {
        pDC->Draw3dRect(rect, clrLine, clrLine);
        return;
    }
    const visual::Canvas canvas(*pDC, rect);
    if (!canvas.IsEmpty())
        visual::StrokeRounded(canvas.View(), canvas.Local(rect), visual::Corners::All(2), visual::FromColorRef(clrLine),
                              1);
}

void CMFCToolTipCtrl::OnFillBackground(CDC* pDC, CRect rect, COLORREF& clrText, COLORREF& clrLine) {
    const COLORREF fill = Chosen(m_Params.m_clrFill, COLOR_INFOBK);
    clrText = Chosen(m_Params.m_clrText, COLOR_INFOTEXT);
    clrLine = Chosen(m_Params.m_clrBorder, COLOR_INFOTEXT);
    if (m_Params.m_clrFillGradient == g_default)
        pDC->FillSolidRect(rect, fill);
    else
        CDrawingManager(*pDC).FillGradient2(rect, fill, m_Params.m_clrFillGradient,
                                            m_Params.m_nGradientAngle == -1 ? 270 : m_Params.m_nGradientAngle);
}

void CMFCToolTipCtrl::OnShow(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    UpdateParams();
    m_strLabel = GetLabel();
    m_sizeImage = m_Params.m_bDrawIcon ? GetIconSize() : CSize(0, 0);
    m_ptMargin = m_Params.m_bRoundedCorners ? CPoint(6, 4) : CPoint(4, 2);
    m_ptMargin = CPoint(afxGlobalData.ScalePixels(m_ptMargin.x), afxGlobalData.ScalePixels(m_ptMargin.y));
    CClientDC dc(this);
    const CSize size = Measure(*this, dc, m_sizeImage, CSize(m_ptMargin.x, m_ptMargin.y)).size;

    CRect window;
    GetWindowRect(window);
    const bool isFixed = m_ptLocation != CPoint(-1, -1);
    const CPoint wanted = isFixed ? m_ptLocation : window.TopLeft();
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    RECT work{};
    if (GetMonitorInfoW(MonitorFromPoint(wanted, MONITOR_DEFAULTTONEAREST), &monitor))
        work = monitor.rcWork;
    else
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const CPoint corner = visual::KeepInside(wanted, size, work);
    SetWindowPos(nullptr, corner.x, corner.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    if (isFixed || corner != window.TopLeft() || size != window.Size())
        *pResult = 1;
    SetWindowRgn(m_Params.m_bRoundedCorners ? CreateRoundRectRgn(0, 0, size.cx + 1, size.cy + 1, 4, 4) : nullptr, TRUE);
}

void CMFCToolTipCtrl::OnPop(NMHDR*, LRESULT* pResult) {
    m_strDescription.Empty();
    m_ptLocation = CPoint(-1, -1);
    *pResult = 0;
}

BOOL CMFCToolTipCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CMFCToolTipCtrl::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    COLORREF text = 0, line = 0;
    OnFillBackground(&dc, client, text, line);
    OnDrawBorder(&dc, client, line);
    const visual::TooltipPlaces places = Measure(*this, dc, m_sizeImage, CSize(m_ptMargin.x, m_ptMargin.y));
    if (m_sizeImage.cx > 0)
        OnDrawIcon(&dc, places.icon);
    dc.SetBkMode(TRANSPARENT);
    const COLORREF previous = dc.SetTextColor(text);
    OnDrawLabel(&dc, places.label, FALSE);
    if (places.description.bottom > places.description.top) {
        if (places.separatorY != 0)
            OnDrawSeparator(&dc, places.label.left, client.right - m_ptMargin.x, places.separatorY);
        OnDrawDescription(&dc, places.description, FALSE);
    }
    dc.SetTextColor(previous);
}
