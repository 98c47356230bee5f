// What a tooltip draws, and how large it is.
#include "afxtooltipctrl.h"

#include "afxdrawmanager.h"
#include "afxglobals.h"
#include "afxribbonbutton.h"
#include "fx/dc_scope.h"
#include "popups/tooltip_shape.h"
#include "popups/tooltip_text.h"

#include <algorithm>

namespace {

constexpr COLORREF g_none = static_cast<COLORREF>(-1);
/// From top to bottom.
constexpr int g_usualAngle = 270;
constexpr int g_largestRegularImage = 32;

/// Text wrapped to the width, drawn with the selected font and text colour, or only measured.
CSize DrawWrapped(CDC* dc, const CString& text, CRect rect, int width, BOOL isMeasureOnly) {
    const HDC handle = dc->GetSafeHdc();
    const auto fit = [handle, width](std::wstring_view line) {
        int count = 0;
        SIZE size{};
        ::GetTextExtentExPointW(handle, line.data(), static_cast<int>(line.size()), width, &count, nullptr, &size);
        return static_cast<std::size_t>(std::max(count, 1));
    };
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(handle, &metrics);
    const LONG rowHeight = metrics.tmHeight + metrics.tmExternalLeading;
    const int backMode = ::SetBkMode(handle, TRANSPARENT);
    CSize used(0, 0);
    for (const std::wstring& line :
         tooltip::WrapText({text.GetString(), static_cast<std::size_t>(text.GetLength())}, fit)) {
        SIZE size{};
        ::GetTextExtentPoint32W(handle, line.c_str(), static_cast<int>(line.size()), &size);
        if (!isMeasureOnly) {
            ::ExtTextOutW(handle, rect.left, rect.top + used.cy, ETO_CLIPPED, rect, line.c_str(),
                          static_cast<UINT>(line.size()), nullptr);
        }
        used.cx = std::max(used.cx, size.cx);
        used.cy += rowHeight;
    }
    ::SetBkMode(handle, backMode);
    return used;
}

COLORREF ColorOr(COLORREF color, int systemColor) { return color != g_none ? color : ::GetSysColor(systemColor); }

} // namespace

IMPLEMENT_DYNCREATE(CMFCToolTipCtrl, CToolTipCtrl)

CMFCToolTipInfo& CMFCToolTipInfo::operator=(CMFCToolTipInfo& src) {
    return *this = static_cast<const CMFCToolTipInfo&>(src);
}

CMFCToolTipCtrl::CMFCToolTipCtrl(CMFCToolTipInfo* pParams) { SetParams(pParams); }

CMFCToolTipCtrl::~CMFCToolTipCtrl() = default;

void CMFCToolTipCtrl::SetParams(CMFCToolTipInfo* pParams) {
    m_Params = pParams != nullptr ? *pParams : CMFCToolTipInfo();
}

void CMFCToolTipCtrl::SetDescription(const CString strDesrciption) { m_strDescription = strDesrciption; }

void CMFCToolTipCtrl::SetHotRibbonButton(CMFCRibbonButton* pRibbonButton) { m_pRibbonButton = pRibbonButton; }

void CMFCToolTipCtrl::SetLocation(CPoint pt) { m_ptLocation = pt; }

void CMFCToolTipCtrl::SetFixedWidth(int nWidthRegular, int nWidthLargeImage) {
    m_nFixedWidthRegular = nWidthRegular;
    m_nFixedWidthWithImage = nWidthLargeImage;
}

CSize CMFCToolTipCtrl::GetIconSize() {
    if (m_pRibbonButton == nullptr || !m_pRibbonButton->IsDrawTooltipImage()) {
        return CSize(0, 0);
    }
    const bool isLarge = m_pRibbonButton->IsLargeImage() != FALSE;
    return m_pRibbonButton->GetImageSize(isLarge ? CMFCRibbonBaseElement::RibbonImageLarge
                                                 : CMFCRibbonBaseElement::RibbonImageSmall);
}

BOOL CMFCToolTipCtrl::OnDrawIcon(CDC* pDC, CRect rectImage) {
    if (m_pRibbonButton == nullptr || rectImage.IsRectEmpty()) {
        return FALSE;
    }
    const bool isLarge = m_pRibbonButton->IsLargeImage() != FALSE;
    m_pRibbonButton->DrawImage(
        pDC, isLarge ? CMFCRibbonBaseElement::RibbonImageLarge : CMFCRibbonBaseElement::RibbonImageSmall, rectImage);
    return TRUE;
}

int CMFCToolTipCtrl::GetTextWidth() const {
    const bool hasIcon = m_sizeImage.cx > 0;
    const bool isLargeImage = m_sizeImage.cx > afxGlobalData.ScalePixels(g_largestRegularImage);
    const int fixedWidth = afxGlobalData.ScalePixels(isLargeImage ? m_nFixedWidthWithImage : m_nFixedWidthRegular);
    const int taken = static_cast<int>(2 * m_ptMargin.x + (hasIcon ? m_sizeImage.cx + m_ptMargin.x : 0));
    if (IsDescriptionShown() && fixedWidth > taken) {
        return fixedWidth - taken;
    }
    return afxGlobalData.ScalePixels(std::max(m_Params.m_nMaxDescrWidth, 1));
}

CSize CMFCToolTipCtrl::OnDrawLabel(CDC* pDC, CRect rect, BOOL bCalcOnly) {
    const fx::DcSelection font(*pDC, m_Params.m_bBoldLabel ? afxGlobalData.fontBold : afxGlobalData.fontTooltip);
    // A label alone may be wider than a description: as wide as the tooltip may be.
    const int widest = GetSafeHwnd() != nullptr ? GetMaxTipWidth() : -1;
    const int width = IsDescriptionShown() ? GetTextWidth() : widest > 0 ? widest : ::GetSystemMetrics(SM_CXSCREEN) / 2;
    return DrawWrapped(pDC, m_strLabel, rect, width, bCalcOnly);
}

CSize CMFCToolTipCtrl::OnDrawDescription(CDC* pDC, CRect rect, BOOL bCalcOnly) {
    if (!IsDescriptionShown()) {
        return CSize(0, 0);
    }
    const fx::DcSelection font(*pDC, afxGlobalData.fontTooltip);
    return DrawWrapped(pDC, m_strDescription, rect, GetTextWidth(), bCalcOnly);
}

void CMFCToolTipCtrl::OnDrawSeparator(CDC* pDC, int x1, int x2, int y) {
    const COLORREF line = ColorOr(m_Params.m_clrBorder, COLOR_INFOTEXT);
    const COLORREF fill = ColorOr(m_Params.m_clrFill, COLOR_INFOBK);
    CDrawingManager(*pDC).DrawLine(x1, y, x2, y, CDrawingManager::PixelAlpha(line, fill, 50));
}

void CMFCToolTipCtrl::OnDrawBorder(CDC* pDC, CRect rect, COLORREF clrLine) {
    if (!m_Params.m_bRoundedCorners) {
        CDrawingManager(*pDC).DrawRect(rect, g_none, clrLine);
        return;
    }
    // Along the edge of the window's own region, which a rounded rectangle drawn with a pen misses here and there.
    const HRGN shape = tooltip::RoundedShape(rect);
    const HBRUSH brush = ::CreateSolidBrush(clrLine);
    ::FrameRgn(pDC->GetSafeHdc(), shape, brush, 1, 1);
    ::DeleteObject(brush);
    ::DeleteObject(shape);
}

void CMFCToolTipCtrl::OnFillBackground(CDC* pDC, CRect rect, COLORREF& clrText, COLORREF& clrLine) {
    clrText = ColorOr(m_Params.m_clrText, COLOR_INFOTEXT);
    clrLine = ColorOr(m_Params.m_clrBorder, COLOR_INFOTEXT);
    const COLORREF fill = ColorOr(m_Params.m_clrFill, COLOR_INFOBK);
    CDrawingManager manager(*pDC);
    if (m_Params.m_clrFillGradient == g_none) {
        manager.DrawRect(rect, fill, g_none);
    } else {
        manager.FillGradient2(rect, fill, m_Params.m_clrFillGradient,
                              m_Params.m_nGradientAngle >= 0 ? m_Params.m_nGradientAngle : g_usualAngle);
    }
}
