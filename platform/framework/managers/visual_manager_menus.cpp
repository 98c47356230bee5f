#include "afxvisualmanager.h"

#include "afxdrawmanager.h"
#include "managers/manager_look.h"
#include "visual/soft_shadow.h"

#include <afxribbonpanelmenu.h>

using visual::ColorSlot;
using visual::FaceSlot;
using visual::LookOf;
using visual::ToColorRef;

namespace {

bool IsDark(visual::Argb colour) {
    constexpr unsigned half = 128 * 3;
    return visual::RedOf(colour) + visual::GreenOf(colour) + visual::BlueOf(colour) < half;
}

} // namespace

bool visual::FillRibbonMenu(HDC dc, CBasePane* bar, const RECT& rect, const Look& look) {
    const auto* menu = dynamic_cast<CMFCRibbonPanelMenuBar*>(bar);
    if (menu == nullptr) {
        return false;
    }
    PaintSolid(dc, rect, look.skin[ColorSlot::MenuFill]);
    const LONG column = rect.left + menu->GetImageColumnWidth();
    PaintSolid(dc, {rect.left, rect.top, column, rect.bottom}, look.skin[ColorSlot::MenuGutter]);
    PaintSolid(dc, {column, rect.top, column + look.Line(), rect.bottom}, look.skin[ColorSlot::MenuGutterLine]);
    return true;
}

void CMFCVisualManager::OnDrawMenuBorder(CDC* pDC, CMFCPopupMenu*, CRect rect) {
    visual::PaintFrame(*pDC, rect, GetSkin()[ColorSlot::MenuBorder], LookOf(GetSkin()).Line());
    rect.DeflateRect(LookOf(GetSkin()).Line(), LookOf(GetSkin()).Line());
    visual::PaintFrame(*pDC, rect, GetSkin()[ColorSlot::MenuFill], LookOf(GetSkin()).Line());
}

void CMFCVisualManager::OnDrawMenuShadow(CDC* pDC, const CRect& rectClient, const CRect& rectExclude, int nDepth,
                                         int iMinBrightness, int iMaxBrightness, CBitmap* pBmpSaveBottom,
                                         CBitmap* pBmpSaveRight, BOOL bRTL) {
    const int saved = pDC->SaveDC();
    if (!rectExclude.IsRectEmpty()) {
        pDC->ExcludeClipRect(rectExclude);
    }
    if (pBmpSaveBottom || pBmpSaveRight) {
        // Whoever keeps what lies below it means the shadow of two strips.
        CDrawingManager(*pDC).DrawShadow(rectClient, nDepth, iMinBrightness, iMaxBrightness, pBmpSaveBottom,
                                         pBmpSaveRight, static_cast<COLORREF>(-1), !bRTL);
    } else {
        // On dark ground the same shade is hardly seen.
        const int darkness = (iMinBrightness - iMaxBrightness) * (IsDark(GetSkin()[ColorSlot::MenuFill]) ? 2 : 1);
        visual::PaintSoftShadow(*pDC, rectClient, nDepth, darkness);
    }
    pDC->RestoreDC(saved);
}

void CMFCVisualManager::OnDrawMenuCheck(CDC* pDC, CMFCToolBarMenuButton*, CRect rect, BOOL bHighlight, BOOL bIsRadio) {
    visual::PaintFace(*pDC, rect, GetSkin()[bHighlight ? FaceSlot::MenuCheckHot : FaceSlot::MenuCheck],
                      visual::PlateCorners(GetSkin(), LookOf(GetSkin())), LookOf(GetSkin()));
    if (bIsRadio) {
        visual::PaintRadioMark(*pDC, rect, GetSkin()[ColorSlot::CheckMark], LookOf(GetSkin()));
    } else {
        visual::PaintCheckMark(*pDC, rect, GetSkin()[ColorSlot::CheckMark], LookOf(GetSkin()));
    }
}

void CMFCVisualManager::OnDrawMenuItemButton(CDC* pDC, CMFCToolBarMenuButton*, CRect rectButton, BOOL bHighlight,
                                             BOOL bDisabled) {
    CRect line = rectButton;
    line.right = line.left + 2 * LookOf(GetSkin()).Line();
    visual::PaintEtchedLine(*pDC, line, true, GetSkin()[ColorSlot::MenuSeparator], GetSkin()[ColorSlot::MenuFill],
                            LookOf(GetSkin()));
    if (bHighlight && !bDisabled) {
        visual::PaintBorders(*pDC, rectButton, GetSkin()[FaceSlot::MenuItemHot], {}, LookOf(GetSkin()));
    }
}

COLORREF CMFCVisualManager::OnDrawMenuLabel(CDC* pDC, CRect rect) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::MenuLabelFill]);
    visual::PaintSolid(*pDC, {rect.left, rect.bottom - LookOf(GetSkin()).Line(), rect.right, rect.bottom},
                       GetSkin()[ColorSlot::MenuSeparator]);
    return ToColorRef(GetSkin()[ColorSlot::MenuLabelText]);
}

void CMFCVisualManager::OnDrawMenuResizeBar(CDC* pDC, CRect rect, int) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::MenuGutter]);
    visual::PaintGripper(*pDC, rect, rect.Height() > rect.Width(), LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawMenuScrollButton(CDC* pDC, CRect rect, BOOL bIsScrollDown, BOOL bIsHighlited,
                                               BOOL bIsPressed, BOOL bIsDisabled) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::MenuFill]);
    if ((bIsHighlited || bIsPressed) && !bIsDisabled) {
        visual::PaintFace(*pDC, rect, GetSkin()[bIsPressed ? FaceSlot::ButtonPressed : FaceSlot::MenuItemHot], {},
                          LookOf(GetSkin()));
    }
    visual::PaintArrow(*pDC, rect, bIsScrollDown ? visual::ArrowDirection::Down : visual::ArrowDirection::Up,
                       GetSkin()[bIsDisabled ? ColorSlot::GlyphDisabled : ColorSlot::Glyph], 0, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawMenuSystemButton(CDC* pDC, CRect rect, UINT uiSystemCommand, UINT nStyle,
                                               BOOL bHighlight) {
    visual::ElementState state;
    state.isHot = bHighlight != FALSE;
    state.isPressed = (nStyle & TBSTATE_PRESSED) != 0;
    const visual::WindowGlyph glyph = uiSystemCommand == SC_MINIMIZE   ? visual::WindowGlyph::Minimize
                                      : uiSystemCommand == SC_RESTORE  ? visual::WindowGlyph::Restore
                                      : uiSystemCommand == SC_MAXIMIZE ? visual::WindowGlyph::Maximize
                                                                       : visual::WindowGlyph::Close;
    visual::PaintCaptionButton(*pDC, rect, glyph, state, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawMenuArrowOnCustomizeList(CDC* pDC, CRect rectCommand, BOOL) {
    CRect arrow = rectCommand;
    arrow.left = arrow.right - arrow.Height();
    visual::PaintArrow(*pDC, arrow, visual::ArrowDirection::Right, GetSkin()[ColorSlot::Glyph], 0, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawShowAllMenuItems(CDC* pDC, CRect rect, AFX_BUTTON_STATE state) {
    if (state != ButtonsIsRegular) {
        visual::PaintFace(*pDC, rect, GetSkin()[FaceSlot::MenuItemHot], {}, LookOf(GetSkin()));
    }
    visual::PaintArrow(*pDC, rect, visual::ArrowDirection::Down, GetSkin()[ColorSlot::Glyph], 0, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawTearOffCaption(CDC* pDC, CRect rect, BOOL bIsActive) {
    visual::PaintFill(*pDC, rect, GetSkin()[bIsActive ? FaceSlot::PaneCaptionActive : FaceSlot::PaneCaption],
                      LookOf(GetSkin()));
}

void CMFCVisualManager::OnHighlightMenuItem(CDC* pDC, CMFCToolBarMenuButton*, CRect rect, COLORREF& clrText) {
    visual::PaintFace(*pDC, rect, GetSkin()[FaceSlot::MenuItemHot], visual::Corners::All(LookOf(GetSkin()).Radius()),
                      LookOf(GetSkin()));
    clrText = ToColorRef(GetSkin()[ColorSlot::MenuTextHot]);
}

void CMFCVisualManager::OnHighlightRarelyUsedMenuItems(CDC* pDC, CRect rectRarelyUsed) {
    visual::PaintSolid(*pDC, rectRarelyUsed, GetSkin()[ColorSlot::MenuGutter]);
}
