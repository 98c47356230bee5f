#include "afxvisualmanager.h"

#include "managers/manager_look.h"
#include "managers/menu_background.h"

#include <afxbasepane.h>
#include <afxcaptionbutton.h>
#include <afxext.h>
#include <afxribbonpanelmenu.h>

#include <algorithm>
#include <utility>

using visual::ColorSlot;
using visual::ElementState;
using visual::FaceSlot;
using visual::LookOf;
using visual::ToColorRef;

namespace {

ElementState StateFrom(CMFCVisualManager::AFX_BUTTON_STATE state) {
    ElementState result;
    result.isHot = state == CMFCVisualManager::ButtonsIsHighlighted;
    result.isPressed = state == CMFCVisualManager::ButtonsIsPressed;
    return result;
}

/// The framework's toolbars call a checked button a pressed one; flat skins tell the two apart.
ElementState StateOfButton(const CMFCToolBarButton* button, CMFCVisualManager::AFX_BUTTON_STATE state,
                           const visual::Skin& skin) {
    ElementState result = StateFrom(state);
    if (skin.isFlat && button != nullptr && (button->m_nStyle & (TBBS_CHECKED | TBBS_PRESSED)) == TBBS_CHECKED) {
        result.isPressed = false;
        result.isChecked = true;
    }
    return result;
}

ElementState ComboState(BOOL disabled, BOOL dropped, BOOL highlighted) {
    return {highlighted != FALSE, false, false, disabled != FALSE, dropped != FALSE};
}

// A hit that stands for nothing known has no picture.
void PaintCaptionGlyph(HDC dc, const CRect& rect, UINT hit, bool isAcross, bool isMaximized, visual::Argb color,
                       const visual::Look& look) {
    using visual::ArrowDirection;
    switch (hit) {
    case HTCLOSE:
    case AFX_HTCLOSE:
        visual::PaintWindowGlyph(dc, rect, visual::WindowGlyph::Close, color, look);
        break;
    case HTMINBUTTON:
        visual::PaintWindowGlyph(dc, rect, visual::WindowGlyph::Minimize, color, look);
        break;
    case HTMAXBUTTON:
        visual::PaintWindowGlyph(dc, rect, isMaximized ? visual::WindowGlyph::Maximize : visual::WindowGlyph::Restore,
                                 color, look);
        break;
    case AFX_HTMAXBUTTON:
        if (isAcross) {
            visual::PaintArrow(dc, rect, isMaximized ? ArrowDirection::Right : ArrowDirection::Left, color, 0, look);
        } else {
            visual::PaintArrow(dc, rect, isMaximized ? ArrowDirection::Down : ArrowDirection::Up, color, 0, look);
        }
        break;
    case AFX_HTMENU:
        visual::PaintArrow(dc, rect, ArrowDirection::Down, color, 0, look);
        break;
    default:
        break;
    }
}

} // namespace

void CMFCVisualManager::OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect, BOOL) {
    if (visual::FillStatusBar(*pDC, pBar, rectClient, LookOf(GetSkin())) ||
        visual::FillRibbonMenu(*pDC, pBar, rectClient, LookOf(GetSkin())) ||
        visual::PaintMenuBackground(*pDC, pBar, rectClient, LookOf(GetSkin()))) {
        return;
    }
    visual::PaintFill(*pDC, rectClient, GetSkin()[FaceSlot::ToolBar], LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawBarGripper(CDC* pDC, CRect rectGripper, BOOL bHorz, CBasePane*) {
    visual::PaintGripper(*pDC, rectGripper, bHorz != FALSE, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz) {
    if (const auto* menu = dynamic_cast<CMFCRibbonPanelMenuBar*>(pBar); menu != nullptr && !bIsHoriz) {
        const int top = rect.CenterPoint().y;
        visual::PaintSolid(*pDC, CRect(rect.left + menu->GetImageColumnWidth(), top, rect.right, top + 1),
                           GetSkin()[ColorSlot::MenuSeparator]);
        return;
    }
    if ((!bIsHoriz && visual::PaintMenuSeparator(*pDC, pBar, rect, LookOf(GetSkin()))) ||
        visual::PaintStatusSeparator(*pDC, pBar, rect, bIsHoriz != FALSE, LookOf(GetSkin()))) {
        return;
    }
    visual::PaintEtchedLine(*pDC, rect, bIsHoriz != FALSE, GetSkin()[ColorSlot::SeparatorDark],
                            GetSkin()[ColorSlot::SeparatorLight], LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawPaneBorder(CDC* pDC, CBasePane*, CRect& rect) {
    visual::PaintFrame(*pDC, rect, GetSkin()[ColorSlot::PaneBorder], 1);
}

void CMFCVisualManager::OnFillButtonInterior(CDC* pDC, CMFCToolBarButton* pButton, CRect rect, AFX_BUTTON_STATE state) {
    const visual::Face* const face = visual::ButtonFaceFor(GetSkin(), StateOfButton(pButton, state, GetSkin()));
    if (face == nullptr || !m_bEnableToolbarButtonFill) {
        return;
    }
    if (GetSkin().isFlat) {
        // With its border: the corners are round.
        visual::PaintFace(*pDC, rect, *face, visual::PlateCorners(GetSkin(), LookOf(GetSkin())), LookOf(GetSkin()));
    } else {
        visual::PaintFill(*pDC, rect, *face, LookOf(GetSkin()));
    }
}

void CMFCVisualManager::OnDrawButtonBorder(CDC* pDC, CMFCToolBarButton*, CRect rect, AFX_BUTTON_STATE state) {
    const visual::Face* const face = visual::ButtonFaceFor(GetSkin(), StateFrom(state));
    if (face != nullptr && !GetSkin().isFlat) {
        visual::PaintBorders(*pDC, rect, *face, {}, LookOf(GetSkin()));
    }
}

void CMFCVisualManager::OnDrawButtonSeparator(CDC* pDC, CMFCToolBarButton*, CRect rect, AFX_BUTTON_STATE state,
                                              BOOL bHorz) {
    const visual::Face* const face = visual::ButtonFaceFor(GetSkin(), StateFrom(state));
    visual::PaintEtchedLine(*pDC, rect, bHorz != FALSE,
                            face != nullptr ? face->outer : GetSkin()[ColorSlot::SeparatorDark],
                            face != nullptr ? face->inner : GetSkin()[ColorSlot::SeparatorLight], LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawFloatingToolbarBorder(CDC* pDC, CMFCBaseToolBar*, CRect rectBorder, CRect) {
    visual::PaintFrame(*pDC, rectBorder, GetSkin()[ColorSlot::FrameBorder], 1);
    rectBorder.DeflateRect(1, 1);
    visual::PaintFrame(*pDC, rectBorder, GetSkin()[ColorSlot::FrameBorderInner], 1);
}

void CMFCVisualManager::OnDrawComboBorder(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped, BOOL bIsHighlighted,
                                          CMFCToolBarComboBoxButton*) {
    const FaceSlot slot = bDisabled                      ? FaceSlot::EditDisabled
                          : bIsDropped || bIsHighlighted ? FaceSlot::EditHot
                                                         : FaceSlot::Edit;
    if (GetSkin().isFlat) {
        visual::PaintBorders(*pDC, rect, GetSkin()[slot], visual::PlateCorners(GetSkin(), LookOf(GetSkin())),
                             LookOf(GetSkin()));
    } else {
        visual::PaintFrame(*pDC, rect, GetSkin()[slot].outer, LookOf(GetSkin()).Line());
    }
}

void CMFCVisualManager::OnDrawComboDropButton(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped,
                                              BOOL bIsHighlighted, CMFCToolBarComboBoxButton*) {
    const ElementState state = ComboState(bDisabled, bIsDropped, bIsHighlighted);
    const visual::Skin& skin = GetSkin();
    const bool isLit = !state.isDisabled && (state.isHot || state.isDropped);
    visual::Face face = skin[!isLit            ? FaceSlot::DropButton
                             : state.isDropped ? FaceSlot::DropButtonPressed
                                               : FaceSlot::DropButtonHot];
    const std::uint32_t arrowPlate = std::exchange(face.plate, 0);
    if (isLit) {
        visual::PaintFace(*pDC, rect, face, visual::PlateCorners(skin, LookOf(skin)), LookOf(skin));
    } else if (!skin.isFlat || face.top1 != skin[FaceSlot::Edit].top1) {
        // Of a field in the same colour the round corners stay.
        visual::PaintFill(*pDC, rect, face, LookOf(skin));
    }
    if (!state.isDisabled && visual::PaintPlate(*pDC, rect, arrowPlate, visual::PlatePlace::Alone, LookOf(skin))) {
        return;
    }
    const visual::Argb arrow = skin[state.isDisabled ? ColorSlot::DropArrowDisabled
                                    : isLit          ? ColorSlot::DropArrowHot
                                                     : ColorSlot::DropArrow];
    visual::PaintArrow(*pDC, rect, visual::ArrowDirection::Down, arrow, 0, LookOf(skin));
}

void CMFCVisualManager::OnDrawEditBorder(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsHighlighted,
                                         CMFCToolBarEditBoxButton*) {
    OnDrawComboBorder(pDC, rect, bDisabled, FALSE, bIsHighlighted, nullptr);
}

void CMFCVisualManager::OnDrawCheckBox(CDC* pDC, CRect rect, BOOL bHighlighted, BOOL bChecked, BOOL bEnabled) {
    OnDrawCheckBoxEx(pDC, rect, bChecked ? 1 : 0, bHighlighted, FALSE, bEnabled);
}

void CMFCVisualManager::OnDrawCheckBoxEx(CDC* pDC, CRect rect, int nState, BOOL bHighlighted, BOOL bPressed,
                                         BOOL bEnabled) {
    const ElementState state{bHighlighted != FALSE, bPressed != FALSE, nState == 1, !bEnabled, false};
    visual::PaintCheckBox(*pDC, rect, state, nState == 2, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawExpandingBox(CDC* pDC, CRect rect, BOOL bIsOpened, COLORREF colorBox) {
    visual::PaintFrame(*pDC, rect, visual::FromColorRef(colorBox), 1);
    visual::PaintSign(*pDC, rect, !bIsOpened, visual::FromColorRef(colorBox), LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawScrollButtons(CDC* pDC, const CRect& rect, const int, int iImage, BOOL bHilited) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::BarBackground]);
    if (bHilited) {
        visual::PaintFace(*pDC, rect, GetSkin()[FaceSlot::ButtonHot], {}, LookOf(GetSkin()));
    }
    visual::PaintArrow(*pDC, rect, static_cast<visual::ArrowDirection>(std::clamp(iImage, 0, 3)),
                       GetSkin()[ColorSlot::Glyph], 0, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawStatusBarPaneBorder(CDC* pDC, CMFCStatusBar*, CRect rectPane, UINT, UINT nStyle) {
    if (nStyle & SBPS_NOBORDERS) {
        return;
    }
    rectPane.left = rectPane.right - 2 * LookOf(GetSkin()).Line();
    visual::PaintEtchedLine(*pDC, rectPane, true, GetSkin()[ColorSlot::StatusSeparatorDark],
                            GetSkin()[ColorSlot::StatusSeparatorLight], LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawStatusBarProgress(CDC* pDC, CMFCStatusBar*, CRect rectProgress, int nProgressTotal,
                                                int nProgressCurr, COLORREF, COLORREF, COLORREF clrProgressText,
                                                BOOL bProgressText) {
    if (nProgressTotal <= 0) {
        return;
    }
    const int part = std::clamp(nProgressCurr, 0, nProgressTotal);
    CRect chunk = rectProgress;
    chunk.right = chunk.left + MulDiv(chunk.Width(), part, nProgressTotal);
    visual::PaintProgress(*pDC, rectProgress, chunk, LookOf(GetSkin()));
    if (!bProgressText) {
        return;
    }
    CString text;
    text.Format(L"%d%%", MulDiv(part, 100, nProgressTotal));
    visual::PaintText(*pDC, rectProgress, text, text.GetLength(), DT_CENTER | DT_VCENTER | DT_SINGLELINE,
                      visual::FromColorRef(clrProgressText));
}

void CMFCVisualManager::OnDrawStatusBarSizeBox(CDC* pDC, CMFCStatusBar*, CRect rectSizeBox) {
    visual::PaintSizeBox(*pDC, rectSizeBox, LookOf(GetSkin()));
}

COLORREF CMFCVisualManager::OnFillCommandsListBackground(CDC* pDC, CRect rect, BOOL bIsSelected) {
    if (bIsSelected) {
        visual::PaintFace(*pDC, rect, GetSkin()[FaceSlot::MenuItemHot], {}, LookOf(GetSkin()));
    } else {
        visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::MenuFill]);
    }
    return ToColorRef(GetSkin()[bIsSelected ? ColorSlot::MenuTextHot : ColorSlot::MenuText]);
}

void CMFCVisualManager::OnDrawToolBoxFrame(CDC* pDC, const CRect& rect) {
    visual::PaintFrame(*pDC, rect, GetSkin()[ColorSlot::PaneBorder], 1);
}

void CMFCVisualManager::OnDrawSplitterBorder(CDC* pDC, CSplitterWndEx*, CRect rect) {
    visual::PaintFrame(*pDC, rect, GetSkin()[ColorSlot::PaneBorder], 1);
}

void CMFCVisualManager::OnDrawSplitterBox(CDC* pDC, CSplitterWndEx*, CRect& rect) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::DividerFill]);
}

void CMFCVisualManager::OnFillSplitterBackground(CDC* pDC, CSplitterWndEx*, CRect rect) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::DividerFill]);
}

COLORREF CMFCVisualManager::OnDrawPaneCaption(CDC* pDC, CDockablePane*, BOOL bActive, CRect rectCaption, CRect) {
    visual::PaintFace(*pDC, rectCaption, GetSkin()[bActive ? FaceSlot::PaneCaptionActive : FaceSlot::PaneCaption], {},
                      LookOf(GetSkin()));
    return ToColorRef(GetSkin()[bActive ? ColorSlot::PaneCaptionTextActive : ColorSlot::PaneCaptionText]);
}

void CMFCVisualManager::OnDrawCaptionButton(CDC* pDC, CMFCCaptionButton* pButton, BOOL bActive, BOOL bHorz,
                                            BOOL bMaximized, BOOL bDisabled, int) {
    const CRect rect = pButton->GetRect();
    const ElementState state{pButton->m_bFocused != FALSE, pButton->m_bPushed != FALSE, false, bDisabled != FALSE,
                             pButton->m_bDroppedDown != FALSE};
    const visual::Face* const face = bDisabled ? nullptr : visual::ButtonFaceFor(GetSkin(), state);
    if (face != nullptr) {
        visual::PaintFace(*pDC, rect, *face, visual::Corners::All(LookOf(GetSkin()).Px(2)), LookOf(GetSkin()));
    }
    const visual::Argb plain = GetSkin()[bActive ? ColorSlot::PaneCaptionTextActive : ColorSlot::PaneCaptionText];
    const visual::Argb color =
        bDisabled ? visual::WithAlpha(plain, 110)
        : face != nullptr
            ? GetSkin()[state.isPressed || state.isDropped ? ColorSlot::PaneGlyphPressed : ColorSlot::PaneGlyphHot]
        : bActive ? plain
                  : GetSkin()[ColorSlot::PaneGlyph];
    PaintCaptionGlyph(*pDC, rect, pButton->GetHit(), bHorz != FALSE, bMaximized != FALSE, color, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawPaneDivider(CDC* pDC, CPaneDivider*, CRect rect, BOOL) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::DividerFill]);
}

COLORREF CMFCVisualManager::OnFillMiniFrameCaption(CDC* pDC, CRect rectCaption, CPaneFrameWnd*, BOOL bActive) {
    visual::PaintFill(*pDC, rectCaption, GetSkin()[bActive ? FaceSlot::PaneCaptionActive : FaceSlot::PaneCaption],
                      LookOf(GetSkin()));
    return ToColorRef(GetSkin()[bActive ? ColorSlot::PaneCaptionTextActive : ColorSlot::PaneCaptionText]);
}

void CMFCVisualManager::OnDrawMiniFrameBorder(CDC* pDC, CPaneFrameWnd*, CRect rectBorder, CRect) {
    OnDrawFloatingToolbarBorder(pDC, nullptr, rectBorder, CRect(2, 2, 2, 2));
}

void CMFCVisualManager::OnDrawTab(CDC* pDC, CRect rectTab, int, BOOL bIsActive, const CMFCBaseTabCtrl*) {
    visual::PaintFace(*pDC, rectTab, GetSkin()[bIsActive ? FaceSlot::DocumentTabActive : FaceSlot::DocumentTab],
                      visual::Corners::Top(LookOf(GetSkin()).Radius()), LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawTabCloseButton(CDC* pDC, CRect rect, const CMFCBaseTabCtrl*, BOOL bIsHighlighted,
                                             BOOL bIsPressed, BOOL bIsDisabled) {
    const ElementState state{bIsHighlighted != FALSE, bIsPressed != FALSE, false, bIsDisabled != FALSE, false};
    visual::PaintCaptionButton(*pDC, rect, visual::WindowGlyph::Close, state, LookOf(GetSkin()));
}

void CMFCVisualManager::OnFillTab(CDC* pDC, CRect rectFill, CBrush*, int, BOOL bIsActive, const CMFCBaseTabCtrl*) {
    visual::PaintFill(*pDC, rectFill, GetSkin()[bIsActive ? FaceSlot::DocumentTabActive : FaceSlot::DocumentTab],
                      LookOf(GetSkin()));
}

void CMFCVisualManager::OnEraseTabsArea(CDC* pDC, CRect rect, const CMFCBaseTabCtrl*) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::TabsArea]);
    if (GetSkin().isFlat) {
        visual::PaintSolid(*pDC, {rect.left, rect.bottom - LookOf(GetSkin()).Line(), rect.right, rect.bottom},
                           GetSkin()[ColorSlot::TabsAreaLine]);
    }
}

void CMFCVisualManager::OnEraseTabsButton(CDC* pDC, CRect rect, CMFCButton*, CMFCBaseTabCtrl*) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::TabsButton]);
}

BOOL CMFCVisualManager::OnEraseTabsFrame(CDC* pDC, CRect rect, const CMFCBaseTabCtrl*) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::TabsFrame]);
    return TRUE;
}
