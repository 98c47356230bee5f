// How a menu's item looks, in a menu and in a toolbar.
#include "afxtoolbarmenubutton.h"

#include "afxglobals.h"
#include "afxmenubar.h"
#include "afxpopupmenu.h"
#include "afxusertoolsmanager.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "toolbar/menu_row.h"
#include "toolbar/metrics.h"
#include "visual/manager_instance.h"

using toolbar::Scaled;

namespace {

constexpr int acceleratorGap = 18;

struct ItemText {
    CString label;
    CString accelerator;
};

ItemText SplitText(const CString& text) {
    const int tabulator = text.Find(L'\t');
    return tabulator < 0 ? ItemText{text, CString()} : ItemText{text.Left(tabulator), text.Mid(tabulator + 1)};
}

int TextWidth(CDC& dc, const CString& text, UINT flags) {
    CRect rect(0, 0, 0, 0);
    dc.DrawText(text, rect, DT_SINGLELINE | DT_CALCRECT | flags);
    return rect.Width();
}

void DrawArrow(CDC& dc, const CRect& rect, bool isToTheRight, COLORREF color) {
    visual::PaintChevron(dc, rect, isToTheRight ? visual::ArrowDirection::Right : visual::ArrowDirection::Down,
                         visual::FromColorRef(color), visual::CurrentLook());
}

/// The host's drawing of the image. TRUE: done.
BOOL DrawByFrame(CDC* dc, const CMFCToolBarMenuButton& button, const CRect& rect) {
    CFrameWnd* frame = button.GetParentWnd() ? button.GetParentWnd()->GetTopLevelFrame() : nullptr;
    return frame && frame->OnDrawMenuImage(dc, &button, rect);
}

/// The user's tool that the item starts; null: it starts none.
CUserTool* ToolOf(const CMFCToolBarMenuButton& button) {
    return afxUserToolsManager != nullptr ? afxUserToolsManager->FindTool(button.m_nID) : nullptr;
}

} // namespace

CRect CMFCToolBarMenuButton::GetArrowRect(const CRect& rect, BOOL bHorz) const {
    CRect arrow = rect;
    if (bHorz) {
        arrow.left = arrow.right - Scaled(toolbar::ArrowWidth);
    } else {
        arrow.top = arrow.bottom - Scaled(toolbar::ArrowWidth);
    }
    return arrow;
}

SIZE CMFCToolBarMenuButton::OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) {
    const CMFCPopupMenuBar* menu = GetMenuBar();
    if (!menu) {
        CSize size = CMFCToolBarButton::OnCalculateSize(pDC, sizeDefault, bHorz);
        if (size.cx > 0 && DYNAMIC_DOWNCAST(CMFCMenuBar, m_pWndParent)) {
            size.cx += 2 * Scaled(toolbar::MenuBarPadding);
        }
        if (size.cx > 0 && HasPopup() && m_bDrawDownArrow) {
            (bHorz ? size.cx : size.cy) += Scaled(toolbar::ArrowWidth);
        }
        return size;
    }
    m_bHorz = bHorz;
    if (!m_bVisible || m_bIsHidden) {
        return CSize(0, 0);
    }
    const ItemText text = SplitText(m_strText);
    const bool isDefault = m_nID != 0 && m_nID == menu->GetDefaultMenuId();
    const fx::DcSelection font(*pDC, isDefault ? afxGlobalData.fontBold.GetSafeHandle() : nullptr);
    const UINT prefix = menu->IsDropDownListMode() ? DT_NOPREFIX : 0;
    m_sizeText = CSize(TextWidth(*pDC, text.label, prefix), afxGlobalData.GetCharacterHeight());
    if (!text.accelerator.IsEmpty()) {
        m_sizeText.cx += Scaled(acceleratorGap) + TextWidth(*pDC, text.accelerator, DT_NOPREFIX);
    }
    return CSize(toolbar::MenuRowWidth(m_sizeText.cx, menu->GetRowMetrics()), menu->GetRowHeight());
}

void CMFCToolBarMenuButton::GetImageRect(CRect& rectImage) {
    rectImage.SetRectEmpty();
    if (const CMFCPopupMenuBar* menu = GetMenuBar()) {
        rectImage = toolbar::LayOutMenuRow(m_rect, menu->GetRowMetrics()).image;
    } else if (const auto* bar = DYNAMIC_DOWNCAST(CMFCToolBar, m_pWndParent); bar && IsDrawImage()) {
        CRect face = m_rect;
        if (HasPopup() && m_bDrawDownArrow) {
            (m_bHorz ? face.right : face.bottom) -= Scaled(toolbar::ArrowWidth);
        }
        rectImage = PlaceContent(face, Scaled(bar->GetImageSize()), m_bHorz).image;
    }
}

BOOL CMFCToolBarMenuButton::HaveHotBorder() const { return !GetMenuBar(); }

void CMFCToolBarMenuButton::OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz, BOOL,
                                   BOOL bHighlight, BOOL bDrawBorder, BOOL bGrayDisabledButtons) {
    if (GetMenuBar()) {
        DrawMenuItem(pDC, rect, pImages, bHighlight, bGrayDisabledButtons);
    } else {
        DrawBarItem(pDC, rect, pImages, bHorz, bHighlight, bDrawBorder, bGrayDisabledButtons);
    }
}

void CMFCToolBarMenuButton::DrawBarItem(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz,
                                        BOOL bHighlight, BOOL bDrawBorder, BOOL bGrayDisabled) {
    const bool hasArrow = HasPopup() && m_bDrawDownArrow;
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    const UINT style = m_nStyle;
    if (IsDroppedDown()) {
        m_nStyle |= TBBS_PRESSED;
    }
    const bool isDisabled = IsDisabledState();
    const BOOL isHot = bHighlight && !isDisabled;
    const auto state = static_cast<CMFCVisualManager::AFX_BUTTON_STATE>(GetButtonState(isHot));
    FillInterior(pDC, rect, isHot);
    CRect face = rect;
    const CRect arrow = GetArrowRect(rect, bHorz);
    if (hasArrow) {
        (bHorz ? face.right : face.bottom) = bHorz ? arrow.left : arrow.top;
    }
    const Content content = PlaceContent(face, pImages ? CSize(pImages->GetImageSize(TRUE)) : CSize(0, 0), bHorz);
    if (pImages && IsDrawImage()) {
        pImages->Draw(pDC, content.image.left, content.image.top, GetImage(), FALSE, isDisabled && bGrayDisabled);
    }
    DrawButtonText(pDC, content.text, isHot);
    if (hasArrow) {
        DrawArrow(*pDC, arrow, !bHorz,
                  isDisabled ? manager->GetToolbarDisabledTextColor()
                             : manager->GetToolbarButtonTextColor(this, state));
    }
    if (bDrawBorder) {
        DrawButtonBorder(pDC, rect, isHot);
    }
    if (hasArrow && IsSplit() && state != CMFCVisualManager::ButtonsIsRegular) {
        CRect line = arrow;
        (bHorz ? line.right : line.bottom) = (bHorz ? line.left : line.top) + 2;
        manager->OnDrawButtonSeparator(pDC, this, line, state, bHorz);
    }
    m_nStyle = style;
}

void CMFCToolBarMenuButton::DrawMenuItem(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHighlight,
                                         BOOL bGrayDisabled) {
    const CMFCPopupMenuBar& menu = *GetMenuBar();
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    const toolbar::MenuRow row = toolbar::LayOutMenuRow(rect, menu.GetRowMetrics());
    const bool isDisabled = IsDisabledState();
    const bool isHot = bHighlight && (!isDisabled || CMFCMenuBar::IsHighlightDisabledItems());
    COLORREF color = manager->GetMenuItemTextColor(this, isHot, isDisabled);
    if (isHot) {
        CRect face = rect;
        face.DeflateRect(1, 0);
        COLORREF hotColor = color;
        manager->OnHighlightMenuItem(pDC, this, face, hotColor);
        color = manager->GetMenuItemTextColor(this, TRUE, isDisabled);
    }
    if (!row.image.IsRectEmpty()) {
        DrawMenuItemImage(pDC, row.image, pImages, isHot, bGrayDisabled);
    }
    const bool isDefault = m_nID != 0 && m_nID == menu.GetDefaultMenuId();
    const fx::DcSelection font(*pDC, isDefault ? afxGlobalData.fontBold.GetSafeHandle() : nullptr);
    {
        const fx::TextColour colour(*pDC, color);
        const ItemText text = SplitText(m_strText);
        const UINT prefix = menu.IsDropDownListMode() ? DT_NOPREFIX : menu.ShowsMnemonics() ? 0 : DT_HIDEPREFIX;
        CRect label = row.text;
        pDC->DrawText(text.label, label, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | prefix);
        if (!text.accelerator.IsEmpty()) {
            pDC->DrawText(text.accelerator, label, DT_SINGLELINE | DT_VCENTER | DT_RIGHT | DT_NOPREFIX);
        }
    }
    if (HasPopup()) {
        DrawArrow(*pDC, row.arrow, true, color);
    }
}

void CMFCToolBarMenuButton::DrawMenuItemImage(CDC* pDC, const CRect& rectImage, CMFCToolBarImages* pImages,
                                              BOOL bHighlight, BOOL bGrayDisabled) {
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    const bool isChecked = (m_nStyle & TBBS_CHECKED) != 0;
    const bool hasImage = pImages && IsDrawImage();
    CRect frame = rectImage;
    frame.InflateRect(Scaled(2), Scaled(2));
    if (isChecked && hasImage) {
        manager->OnFillButtonInterior(pDC, this, frame, CMFCVisualManager::ButtonsIsPressed);
        manager->OnDrawButtonBorder(pDC, this, frame, CMFCVisualManager::ButtonsIsPressed);
    }
    if (DrawByFrame(pDC, *this, rectImage)) {
        return;
    }
    if (hasImage) {
        const CSize size(pImages->GetImageSize(TRUE));
        pImages->Draw(pDC, rectImage.left + (rectImage.Width() - size.cx) / 2,
                      rectImage.top + (rectImage.Height() - size.cy) / 2, GetImage(), FALSE,
                      IsDisabledState() && bGrayDisabled);
    } else if (CUserTool* const tool = ToolOf(*this)) {
        tool->DrawToolIcon(pDC, rectImage);
    } else if (isChecked) {
        manager->OnDrawMenuCheck(pDC, this, frame, bHighlight, m_bIsRadio);
    }
}

void CMFCToolBarMenuButton::DrawDocumentIcon(CDC* pDC, const CRect& rectImage, HICON hIcon) {
    if (hIcon) {
        const fx::PictureScope place(*pDC, rectImage);
        ::DrawIconEx(*pDC, place.Corner().x, place.Corner().y, hIcon, rectImage.Width(), rectImage.Height(), 0, nullptr,
                     DI_NORMAL);
    }
}
