#include "afxtoolbarbutton.h"

#include "afxcommandmanager.h"
#include "afxtoolbar.h"
#include "afxvisualmanager.h"
#include "toolbar/choose_buttons.h"
#include "toolbar/metrics.h"

#include <algorithm>

using toolbar::Scaled;

CString CMFCToolBarButton::GetLabel() const {
    const int tabulator = m_strText.Find(L'\t');
    return tabulator >= 0 ? m_strText.Left(tabulator) : m_strText;
}

CString CMFCToolBarButton::GetShownText() const { return toolbar::WithoutPrefix(GetLabel()); }

CSize CMFCToolBarButton::MeasureText(CDC* pDC) const {
    const CString text = GetShownText();
    if (text.IsEmpty()) {
        return CSize(0, 0);
    }
    CRect rect(0, 0, 0, 0);
    pDC->DrawText(text, rect, DT_CALCRECT | DT_NOPREFIX | (m_bTextBelow && m_bWrapText ? DT_CENTER : DT_SINGLELINE));
    return rect.Size();
}

SIZE CMFCToolBarButton::OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) {
    m_bHorz = bHorz;
    m_sizeText = CSize(0, 0);
    if (!m_bVisible || m_bIsHidden) {
        return CSize(0, 0);
    }
    // A button without an image shows its text, whatever it was told.
    const bool showsImage = IsDrawImage() != FALSE;
    const bool showsText = !m_strText.IsEmpty() && (!showsImage || (m_bText && bHorz));
    if (!showsText) {
        return sizeDefault;
    }
    m_sizeText = MeasureText(pDC);
    const int margin = Scaled(toolbar::ButtonTextMargin);
    if (!showsImage) {
        return CSize(std::max<int>(sizeDefault.cx, m_sizeText.cx + 2 * margin),
                     std::max<int>(sizeDefault.cy, m_sizeText.cy + 2 * Scaled(2)));
    }
    if (m_bTextBelow) {
        return CSize(std::max<int>(sizeDefault.cx, m_sizeText.cx + 2 * margin), sizeDefault.cy + m_sizeText.cy);
    }
    return CSize(sizeDefault.cx + m_sizeText.cx + margin, std::max<int>(sizeDefault.cy, m_sizeText.cy));
}

CMFCToolBarButton::Content CMFCToolBarButton::PlaceContent(const CRect& rect, CSize sizeImage, BOOL bHorz) const {
    Content content{CRect(0, 0, 0, 0), CRect(0, 0, 0, 0)};
    const bool showsImage = IsDrawImage() && sizeImage != CSize(0, 0);
    const bool showsText = m_sizeText.cx > 0;
    if (showsImage) {
        CPoint place(rect.left + (rect.Width() - sizeImage.cx) / 2, rect.top + (rect.Height() - sizeImage.cy) / 2);
        if (showsText && m_bTextBelow) {
            place.y = rect.top + Scaled(toolbar::ButtonPadding);
        } else if (showsText && bHorz) {
            place.x = rect.left + Scaled(toolbar::ButtonPadding);
        }
        content.image = CRect(place, sizeImage);
    }
    if (showsText) {
        content.text = rect;
        if (showsImage && m_bTextBelow) {
            content.text.top = content.image.bottom;
        } else if (showsImage) {
            content.text.left = content.image.right + Scaled(toolbar::ButtonTextGap);
        }
    }
    return content;
}

int CMFCToolBarButton::GetButtonState(BOOL bHighlight) const {
    if (m_nStyle & (TBBS_PRESSED | TBBS_CHECKED)) {
        return CMFCVisualManager::ButtonsIsPressed;
    }
    return bHighlight ? CMFCVisualManager::ButtonsIsHighlighted : CMFCVisualManager::ButtonsIsRegular;
}

void CMFCToolBarButton::FillInterior(CDC* pDC, const CRect& rect, BOOL bHighlight) {
    const auto state = static_cast<CMFCVisualManager::AFX_BUTTON_STATE>(GetButtonState(bHighlight));
    if (!m_bDisableFill && state != CMFCVisualManager::ButtonsIsRegular) {
        CMFCVisualManager::GetInstance()->OnFillButtonInterior(pDC, this, rect, state);
    }
}

void CMFCToolBarButton::DrawButtonBorder(CDC* pDC, const CRect& rect, BOOL bHighlight) {
    const auto state = static_cast<CMFCVisualManager::AFX_BUTTON_STATE>(GetButtonState(bHighlight));
    if (state != CMFCVisualManager::ButtonsIsRegular) {
        CMFCVisualManager::GetInstance()->OnDrawButtonBorder(pDC, this, rect, state);
    }
}

void CMFCToolBarButton::DrawButtonText(CDC* pDC, const CRect& rectText, BOOL bHighlight) {
    if (rectText.IsRectEmpty()) {
        return;
    }
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    const auto state = static_cast<CMFCVisualManager::AFX_BUTTON_STATE>(GetButtonState(bHighlight));
    const COLORREF before = pDC->SetTextColor(IsDisabledState() ? manager->GetToolbarDisabledTextColor()
                                                                : manager->GetToolbarButtonTextColor(this, state));
    const int modeBefore = pDC->SetBkMode(TRANSPARENT);
    const bool isBeside = !m_bTextBelow && IsDrawImage();
    CRect rect = rectText;
    UINT flags = DT_NOPREFIX | DT_END_ELLIPSIS | (isBeside ? DT_LEFT : DT_CENTER);
    if (m_bTextBelow && m_bWrapText) {
        rect.top += std::max(0, (rect.Height() - static_cast<int>(m_sizeText.cy)) / 2);
    } else {
        flags |= DT_SINGLELINE | DT_VCENTER;
    }
    const auto* bar = DYNAMIC_DOWNCAST(CMFCToolBar, m_pWndParent);
    const bool showsMnemonic = bar && bar->ShowsMnemonics();
    pDC->DrawText(showsMnemonic ? GetLabel() : GetShownText(), rect, showsMnemonic ? flags & ~DT_NOPREFIX : flags);
    pDC->SetBkMode(modeBefore);
    pDC->SetTextColor(before);
}

void CMFCToolBarButton::OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz, BOOL,
                               BOOL bHighlight, BOOL bDrawBorder, BOOL bGrayDisabledButtons) {
    const bool isDisabled = IsDisabledState();
    const BOOL isHot = bHighlight && !isDisabled;
    FillInterior(pDC, rect, isHot);
    Content content = PlaceContent(rect, pImages ? CSize(pImages->GetImageSize(TRUE)) : CSize(0, 0), bHorz);
    if ((m_nStyle & TBBS_PRESSED) && CMFCVisualManager::GetInstance()->IsOffsetPressedButton()) {
        content.image.OffsetRect(1, 1);
        content.text.OffsetRect(1, 1);
    }
    if (pImages && IsDrawImage()) {
        pImages->Draw(pDC, content.image.left, content.image.top, GetImage(), FALSE, isDisabled && bGrayDisabledButtons,
                      (m_nStyle & TBBS_INDETERMINATE) != 0);
    }
    DrawButtonText(pDC, content.text, isHot);
    if (bDrawBorder && HaveHotBorder()) {
        DrawButtonBorder(pDC, rect, isHot);
    }
}

namespace {

// In a list of commands, at 96 DPI.
constexpr int kListRowMargin = 2;
constexpr int kListTextGap = 6;

/// The list that the image of a button without a toolbar is in, and where; null: it has none.
CMFCToolBarImages* ImagesOf(const CMFCToolBarButton& button, int& image) {
    image = button.GetImage();
    if (image < 0 && !button.m_bUserButton) {
        image = GetCmdMgr()->GetCmdImage(button.m_nID);
    }
    CMFCToolBarImages* const images = button.m_bUserButton ? CMFCToolBar::GetUserImages() : CMFCToolBar::GetImages();
    const bool hasImage = images != nullptr && !button.IsLocked() && image >= 0 && image < images->GetCount();
    return hasImage ? images : nullptr;
}

} // namespace

int CMFCToolBarButton::OnDrawOnCustomizeList(CDC* pDC, const CRect& rect, BOOL) {
    const CSize size = Scaled(CMFCToolBar::GetMenuImageSize());
    const int margin = Scaled(kListRowMargin);
    const CRect place(CPoint(rect.left + margin, rect.top + (rect.Height() - size.cy) / 2), size);
    int image = -1;
    if (CMFCToolBarImages* const images = ImagesOf(*this, image)) {
        images->DrawEx(pDC, place, image, CMFCToolBarImages::ImageAlignHorzStretch,
                       CMFCToolBarImages::ImageAlignVertStretch);
    }
    CRect text = rect;
    text.left = place.right + Scaled(kListTextGap);
    const CString readable = toolbar::ReadableText(*this);
    pDC->DrawText(readable, text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    return std::min<int>(rect.Width(), text.left - rect.left + pDC->GetTextExtent(readable).cx);
}
