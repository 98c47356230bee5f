// What the ribbon's tooltip draws.
#include "tooltip_ctrl_ex.h"

#include "commands/menu_fonts.h"
#include "skins/tooltip_geometry.h"
#include "skins/tooltip_screen.h"

#include <afxglobals.h>
#include <afxmenubar.h>
#include <afxtoolbar.h>
#include <fx/dc_scope.h>
#include <fx/to_rect.h>

#include <algorithm>

namespace {

constexpr COLORREF kReplacementColor = RGB(255, 0, 0);
constexpr int kLargestRegularIcon = 32; // at 96 DPI

/// A picture of the window in memory, copied to it at the end.
class WindowPicture {
public:
    WindowPicture(CDC& window, const CRect& client) : m_window(window), m_client(client) {
        if (m_dc.CreateCompatibleDC(&window) &&
            m_bitmap.CreateCompatibleBitmap(&window, client.Width(), client.Height())) {
            m_earlier = m_dc.SelectObject(&m_bitmap);
        }
    }
    ~WindowPicture() {
        if (m_earlier) {
            m_window.BitBlt(0, 0, m_client.Width(), m_client.Height(), &m_dc, 0, 0, SRCCOPY);
            m_dc.SelectObject(m_earlier);
        }
    }
    WindowPicture(const WindowPicture&) = delete;
    WindowPicture& operator=(const WindowPicture&) = delete;

    /// The window itself when the system has no room for a picture.
    CDC& Get() { return m_earlier ? m_dc : m_window; }

private:
    CDC& m_window;
    CRect m_client;
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_earlier = nullptr;
};

} // namespace

BOOL CToolTipCtrlEx::OnDrawIcon(CDC* dc, CRect rect) {
    if (m_pRibbonButton || !m_pHotButton || m_pHotButton->GetImage() < 0 || rect.IsRectEmpty()) {
        return CMFCToolTipCtrl::OnDrawIcon(dc, rect);
    }
    CMFCToolBarImages* const images =
        m_pHotButton->m_bUserButton ? CMFCToolBar::GetUserImages() : CMFCToolBar::GetImages();
    return images && images->DrawEx(dc, rect, m_pHotButton->GetImage(), CMFCToolBarImages::ImageAlignHorzStretch,
                                    CMFCToolBarImages::ImageAlignVertStretch);
}

int CToolTipCtrlEx::DescriptionWidth(CDC& dc, const CString& text) const {
    const bool isRegularIcon = m_iconSize.cx <= ScaledForDisplay(kLargestRegularIcon);
    if (m_nFixedWidthRegular > 0 && isRegularIcon) {
        const int beside = m_iconSize.cx > 0 ? static_cast<int>(m_iconSize.cx + m_margin.x) : 0;
        return std::max(1, ScaledForDisplay(m_nFixedWidthRegular) - beside);
    }
    CRect line(0, 0, 0, 0);
    dc.DrawText(text, line, DT_CALCRECT | DT_NOPREFIX);
    return std::min(line.Width(), ScaledForDisplay(std::max(GetParams().m_nMaxDescrWidth, 1)));
}

CSize CToolTipCtrlEx::OnDrawDescription(CDC* dc, CRect rect, BOOL calcOnly) {
    if (!HasHint()) {
        return CSize(0, 0);
    }
    // Bold is for what a tooltip begins with.
    const bool isBold = GetParams().m_bBoldLabel && GetWindowTextLength() == 0;
    const fx::DcSelection font(*dc, isBold ? BoldMenuFont() : CMFCMenuBar::GetMenuFont().GetSafeHandle());
    const bool isReplaced = IsF1Hint() && !m_sStrGlobleDesciption.IsEmpty();
    const CString& text = isReplaced ? m_sStrGlobleDesciption : m_description;
    constexpr UINT format = DT_WORDBREAK | DT_NOPREFIX;
    if (calcOnly) {
        CRect used(0, 0, DescriptionWidth(*dc, text), 0);
        dc->DrawText(text, used, format | DT_CALCRECT);
        return used.Size();
    }
    const COLORREF color = isReplaced ? dc->SetTextColor(kReplacementColor) : dc->GetTextColor();
    const int backMode = dc->SetBkMode(TRANSPARENT);
    const int height = dc->DrawText(text, rect, format);
    dc->SetBkMode(backMode);
    dc->SetTextColor(color);
    return CSize(rect.Width(), height);
}

void CToolTipCtrlEx::DrawBottomIcon(CDC& dc, const CRect& rect) const {
    if (!IsF1Hint() || rect.IsRectEmpty()) {
        return;
    }
    const auto kind = hint::KindOfIcon(rect.Width(), afxGlobalData.GetRibbonImageScale());
    const HICON icon = kind == hint::IconKind::Large   ? m_hIconLargeBottom
                       : kind == hint::IconKind::Small ? m_hIconSmallBottom
                                                       : nullptr;
    if (icon) {
        ::DrawIconEx(dc.GetSafeHdc(), rect.left, rect.top, icon, rect.Width(), rect.Height(), 0, nullptr, DI_NORMAL);
    }
}

void CToolTipCtrlEx::OnPaint() {
    if (GetParams().m_bBalloonTooltip) {
        CMFCToolTipCtrl::OnPaint();
        return;
    }
    CPaintDC paint(this);
    CRect client;
    GetClientRect(client);
    WindowPicture picture(paint, client);
    CDC& dc = picture.Get();
    COLORREF textColor = 0, lineColor = 0;
    OnFillBackground(&dc, client, textColor, lineColor);
    OnDrawBorder(&dc, client, lineColor);
    dc.SetTextColor(textColor);

    const hint::Layout layout = GetLayout();
    if (!layout.icon.IsEmpty()) {
        OnDrawIcon(&dc, fx::ToRect(layout.icon));
    }
    DrawBottomIcon(dc, fx::ToRect(layout.bottomIcon));
    OnDrawLabel(&dc, fx::ToRect(layout.label), FALSE);
    if (layout.separator) {
        if (GetParams().m_bDrawSeparator) {
            OnDrawSeparator(&dc, layout.label.left, static_cast<int>(client.right - m_margin.x), *layout.separator);
        }
        OnDrawDescription(&dc, fx::ToRect(layout.description), FALSE);
    }
}
