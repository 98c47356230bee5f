#include "afxvisualmanager.h"

#include "managers/manager_look.h"
#include "ribbon/shown_text.h"

#include <afxribbonbar.h>
#include <afxribboncategory.h>
#include <afxRibbonPanel.h>
#include <afxribbonpanelmenu.h>
#include <afxribbonquickaccesstoolbar.h>
#include <afxribbonslider.h>
#include <afxribbonstatusbar.h>
#include <afxribbonstatusbarpane.h>
#include <afxstatusbar.h>

#include <array>

using visual::ColorSlot;
using visual::ElementState;
using visual::FaceSlot;
using visual::LookOf;
using visual::StateOf;
using visual::ToColorRef;

namespace {

ElementState StateFrom(BOOL hot, BOOL pressed, BOOL disabled) {
    return {hot != FALSE, pressed != FALSE, false, disabled != FALSE, false};
}

visual::Argb TintOf(CMFCVisualManager& manager, AFX_RibbonCategoryColor color) {
    return color == AFX_CategoryColor_None ? 0 : visual::FromColorRef(manager.RibbonCategoryColorToRGB(color));
}

COLORREF ButtonTextColor(const visual::Skin& skin, const ElementState& state) {
    if (state.isDisabled) {
        return ToColorRef(skin[ColorSlot::RibbonTextDisabled]);
    }
    const bool isLit = state.isHot || state.isPressed || state.isChecked || state.isDropped;
    return ToColorRef(skin[isLit ? ColorSlot::RibbonTextHot : ColorSlot::RibbonText]);
}

// The tab row lies on the ribbon's ground and not on a panel: its elements belong to no category.
bool IsInTabRow(const CMFCRibbonBaseElement& element) {
    CMFCRibbonBar* const bar = element.GetParentRibbonBar();
    return bar != nullptr && element.GetParentCategory() == nullptr && element.GetParentPanel() == nullptr &&
           !element.IsQATMode() && !element.IsKindOf(RUNTIME_CLASS(CMFCRibbonQuickAccessCustomizeButton)) &&
           !visual::IsStatusBar(bar);
}

// A status bar's plates are thin enough for one colour in every state.
COLORREF StatusTextColor(const CMFCRibbonBaseElement& element, const visual::Skin& skin) {
    return ToColorRef(skin[element.IsDisabled() ? ColorSlot::StatusTextDisabled : ColorSlot::StatusText]);
}

// A row of a pop-up; the part under the pointer of a row with a command and a menu has a frame of its own.
COLORREF FillMenuRow(CDC* pDC, CMFCRibbonButton& button, const ElementState& state, const visual::Skin& skin) {
    if (state.isDisabled) {
        return ToColorRef(skin[ColorSlot::MenuTextDisabled]);
    }
    if (!state.isHot && !state.isDropped) {
        return ToColorRef(skin[ColorSlot::MenuText]);
    }
    const visual::Look look = LookOf(skin);
    const visual::Corners corners = visual::Corners::All(look.Radius());
    const CRect menu = button.GetMenuRect();
    const CRect command = button.GetCommandRect();
    if (command.IsRectEmpty() || menu.IsRectEmpty()) {
        visual::PaintFace(*pDC, button.GetRect(), skin[FaceSlot::MenuItemHot], corners, look);
    } else {
        visual::PaintFace(*pDC, command, skin[FaceSlot::MenuItemHot], corners, look);
        visual::PaintFace(*pDC, menu, skin[FaceSlot::MenuItemHot], corners, look);
    }
    return ToColorRef(skin[ColorSlot::MenuTextHot]);
}

/// The panel is the last one of a pop-up, whose own edge follows: no line is needed behind it.
bool EndsItsPopup(CMFCRibbonPanel& panel, const CRect& rect) {
    constexpr int kNear = 8; // pixels at 96 DPI
    const CMFCRibbonPanelMenuBar* const bar = panel.GetParentMenuBar();
    if (bar == nullptr) {
        return false;
    }
    CRect client;
    bar->GetClientRect(&client);
    return client.right - rect.right < afxGlobalData.ScalePixels(kNear);
}

visual::ButtonParts PartsOf(CMFCRibbonButton& button) {
    visual::ButtonParts parts;
    parts.rect = button.GetRect();
    parts.command = button.GetCommandRect();
    parts.menu = button.GetMenuRect();
    parts.isCommandHot = button.IsCommandAreaHighlighted() != FALSE;
    parts.isMenuHot = button.IsMenuAreaHighlighted() != FALSE;
    parts.place = visual::PlaceOf(button);
    parts.isOnStatusBar = visual::IsStatusBar(button.GetParentRibbonBar());
    return parts;
}

} // namespace

bool visual::IsStatusBar(const CBasePane* bar) {
    return DYNAMIC_DOWNCAST(CMFCRibbonStatusBar, bar) != nullptr || DYNAMIC_DOWNCAST(CMFCStatusBar, bar) != nullptr;
}

bool visual::FillStatusBar(HDC dc, CBasePane* bar, const RECT& rect, const Look& look) {
    if (!IsStatusBar(bar)) {
        return false;
    }
    PaintStatusBar(dc, rect, look);
    return true;
}

bool visual::PaintStatusSeparator(HDC dc, CBasePane* bar, const RECT& rect, bool isUpright, const Look& look) {
    if (!IsStatusBar(bar)) {
        return false;
    }
    PaintEtchedLine(dc, rect, isUpright, look.skin[ColorSlot::StatusSeparatorDark],
                    look.skin[ColorSlot::StatusSeparatorLight], look);
    return true;
}

COLORREF CMFCVisualManager::RibbonCategoryColorToRGB(AFX_RibbonCategoryColor color) {
    static constexpr std::array<COLORREF, 8> colors{static_cast<COLORREF>(-1), RGB(224, 84, 76),  RGB(240, 146, 54),
                                                    RGB(228, 196, 52),         RGB(104, 178, 72), RGB(72, 132, 214),
                                                    RGB(92, 92, 190),          RGB(160, 92, 180)};
    const auto index = static_cast<std::size_t>(color);
    return index < colors.size() ? colors[index] : colors[0];
}

void CMFCVisualManager::OnDrawRibbonCaption(CDC* pDC, CMFCRibbonBar* pBar, CRect rect, CRect rectText) {
    CWnd* const frame = pBar != nullptr ? pBar->GetTopLevelParent() : nullptr;
    const bool isActive = pBar == nullptr || pBar->IsCaptionActive();
    visual::PaintCaption(*pDC, rect, isActive, LookOf(GetSkin()));
    if (frame == nullptr) {
        return;
    }
    CString title;
    frame->GetWindowText(title);
    // A lone dot says less than nothing.
    const CString least = title.Left(1) + L"...";
    if (pDC->GetTextExtent(least).cx > rectText.Width() && pDC->GetTextExtent(title).cx > rectText.Width()) {
        return;
    }
    visual::PaintText(*pDC, rectText, title, title.GetLength(),
                      DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX,
                      GetSkin()[isActive ? ColorSlot::CaptionText : ColorSlot::CaptionTextInactive]);
}

void CMFCVisualManager::OnDrawRibbonApplicationButton(CDC* pDC, CMFCRibbonButton* pButton) {
    const CRect rect = pButton->GetRect();
    visual::PaintApplicationButton(*pDC, rect, StateOf(*pButton), LookOf(GetSkin()));
    // For the text that the button draws over it; the ground may be a picture.
    const COLORREF ground = pDC->GetPixel(rect.CenterPoint());
    if (ground != CLR_INVALID) {
        pDC->SetTextColor(ToColorRef(visual::TextColorOn(visual::FromColorRef(ground), GetSkin())));
    }
}

COLORREF CMFCVisualManager::OnDrawRibbonTabsFrame(CDC* pDC, CMFCRibbonBar*, CRect rectTab) {
    visual::PaintTabRow(*pDC, rectTab, LookOf(GetSkin()));
    return ToColorRef(GetSkin()[ColorSlot::TabText]);
}

COLORREF CMFCVisualManager::OnDrawRibbonCategoryTab(CDC* pDC, CMFCRibbonTab* pTab, BOOL bIsActive) {
    visual::TabState state{bIsActive != FALSE, pTab->IsHighlighted() != FALSE, pTab->IsFocused() != FALSE, 0};
    // An active tab shows the focus by its brightness.
    state.isHot = state.isHot || (state.isFocused && !state.isActive);
    if (const CMFCRibbonCategory* category = pTab->GetParentCategory()) {
        state.tint = TintOf(*this, category->GetTabColor());
    }
    visual::PaintTab(*pDC, pTab->GetRect(), state, LookOf(GetSkin()));
    return ToColorRef(visual::TabTextColor(state, GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonCategory(CDC* pDC, CMFCRibbonCategory* pCategory, CRect rectCategory) {
    const CRect tab = pCategory != nullptr && pCategory->IsActive() ? pCategory->GetTabRect() : CRect(0, 0, 0, 0);
    visual::PaintCategory(*pDC, rectCategory, tab.left, tab.right, LookOf(GetSkin()));
}

COLORREF CMFCVisualManager::OnDrawRibbonCategoryCaption(CDC* pDC, CMFCRibbonContextCaption* pContextCaption) {
    const visual::Argb tint = TintOf(*this, pContextCaption->GetColor());
    if (tint != 0) {
        visual::PaintContextCaption(*pDC, pContextCaption->GetRect(), tint, LookOf(GetSkin()));
    }
    return ToColorRef(GetSkin()[ColorSlot::CaptionText]);
}

void CMFCVisualManager::OnDrawRibbonCategoryScroll(CDC* pDC, CRibbonCategoryScroll* pScroll) {
    visual::PaintCategoryScroll(*pDC, pScroll->GetRect(), pScroll->IsLeftScroll() != FALSE, StateOf(*pScroll),
                                LookOf(GetSkin()));
}

COLORREF CMFCVisualManager::OnDrawRibbonPanel(CDC* pDC, CMFCRibbonPanel* pPanel, CRect rectPanel, CRect rectCaption) {
    if (GetSkin().isFlat && pPanel != nullptr && EndsItsPopup(*pPanel, rectPanel)) {
        return ToColorRef(GetSkin()[ColorSlot::PanelElementText]);
    }
    visual::PaintPanel(*pDC, rectPanel, rectCaption, pPanel != nullptr && pPanel->IsHighlighted(), LookOf(GetSkin()));
    return ToColorRef(GetSkin()[ColorSlot::PanelElementText]);
}

void CMFCVisualManager::OnDrawRibbonPanelCaption(CDC* pDC, CMFCRibbonPanel* pPanel, CRect rectCaption) {
    const CString name = ribbon::PlainText(pPanel->GetName());
    if (const CRect launch = pPanel->GetLaunchButton().GetRect(); !launch.IsRectEmpty()) {
        rectCaption.right = launch.left;
    }
    visual::PaintPanelCaption(*pDC, rectCaption, name, name.GetLength(), pPanel->IsHighlighted() != FALSE,
                              LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonLaunchButton(CDC* pDC, CMFCRibbonLaunchButton* pButton, CMFCRibbonPanel* pPanel) {
    visual::PaintLaunchButton(*pDC, pButton->GetRect(), StateOf(*pButton), pPanel != nullptr && pPanel->IsHighlighted(),
                              LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonKeyTip(CDC* pDC, CMFCRibbonBaseElement* pElement, CRect rect, CString str) {
    str.MakeUpper();
    visual::PaintKeyTip(*pDC, rect, str, str.GetLength(), pElement != nullptr && pElement->IsDisabled(),
                        LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonQuickAccessToolBarSeparator(CDC* pDC, CMFCRibbonSeparator*, CRect rect) {
    visual::PaintEtchedLine(*pDC, rect, true, GetSkin()[ColorSlot::SeparatorDark], GetSkin()[ColorSlot::SeparatorLight],
                            LookOf(GetSkin()));
}

void CMFCVisualManager::OnFillRibbonQuickAccessToolBarPopup(CDC* pDC, CMFCRibbonPanelMenuBar*, CRect rect) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::PopupFill]);
}

COLORREF CMFCVisualManager::OnFillRibbonButton(CDC* pDC, CMFCRibbonButton* pButton) {
    const ElementState state = StateOf(*pButton);
    if (pButton->IsMenuMode()) {
        return FillMenuRow(pDC, *pButton, state, GetSkin());
    }
    visual::PaintButton(*pDC, PartsOf(*pButton), state, LookOf(GetSkin()));
    if (visual::IsStatusBar(pButton->GetParentRibbonBar())) {
        return StatusTextColor(*pButton, GetSkin());
    }
    const COLORREF color = ButtonTextColor(GetSkin(), state);
    const bool isPlain = color == ToColorRef(GetSkin()[ColorSlot::RibbonText]);
    return isPlain && IsInTabRow(*pButton) ? ToColorRef(GetSkin()[ColorSlot::TabText]) : color;
}

COLORREF CMFCVisualManager::OnDrawRibbonStatusBarPane(CDC* pDC, CMFCRibbonStatusBar* pBar,
                                                      CMFCRibbonStatusBarPane* pPane) {
    if (pPane == nullptr) {
        return GetRibbonStatusBarTextColor(pBar);
    }
    if (!pPane->IsStatic()) {
        visual::PaintButton(*pDC, PartsOf(*pPane), StateOf(*pPane), LookOf(GetSkin()));
    }
    return pPane->IsDisabled() ? StatusTextColor(*pPane, GetSkin()) : GetRibbonStatusBarTextColor(pBar);
}

void CMFCVisualManager::OnDrawRibbonButtonBorder(CDC* pDC, CMFCRibbonButton* pButton) {
    // A lit face has its border already; only a button that always shows one still needs it.
    if (pButton->IsAlwaysDrawBorder() && visual::ButtonFaceFor(GetSkin(), StateOf(*pButton)) == nullptr) {
        visual::PaintBorders(*pDC, pButton->GetRect(), GetSkin()[FaceSlot::Group],
                             visual::CornersFor(visual::PlaceOf(*pButton), LookOf(GetSkin()).Radius()),
                             LookOf(GetSkin()));
    }
}

COLORREF CMFCVisualManager::OnDrawRibbonButtonsGroup(CDC* pDC, CMFCRibbonButtonsGroup* pGroup, CRect rectGroup) {
    // A flat skin has no frame around what stands alone in its row.
    const bool isQuickAccess = pGroup != nullptr && pGroup->IsKindOf(RUNTIME_CLASS(CMFCRibbonQuickAccessToolBar));
    if (!GetSkin().isFlat || !isQuickAccess) {
        visual::PaintGroup(*pDC, rectGroup, LookOf(GetSkin()));
    }
    return static_cast<COLORREF>(-1);
}

void CMFCVisualManager::OnDrawRibbonDefaultPaneButton(CDC* pDC, CMFCRibbonButton* pButton) {
    const ElementState state = StateOf(*pButton);
    visual::PaintDefaultPane(*pDC, pButton->GetRect(), state, LookOf(GetSkin()));
    // The text over it takes the colour of the context.
    pDC->SetTextColor(ButtonTextColor(GetSkin(), state));
}

void CMFCVisualManager::OnDrawRibbonDefaultPaneButtonContext(CDC* pDC, CMFCRibbonButton* pButton) {
    pButton->DrawBottomText(pDC, FALSE);
}

void CMFCVisualManager::OnDrawRibbonDefaultPaneButtonIndicator(CDC* pDC, CMFCRibbonButton* pButton, CRect rect, BOOL,
                                                               BOOL) {
    const bool isDisabled = pButton->IsDisabled() != FALSE;
    if (visual::PaintPlate(*pDC, rect, isDisabled ? GetSkin().arrowDisabledPlate : GetSkin().arrowPlate,
                           visual::PlatePlace::Alone, LookOf(GetSkin()))) {
        return;
    }
    visual::PaintArrow(*pDC, rect, visual::ArrowDirection::Down,
                       GetSkin()[isDisabled ? ColorSlot::GlyphDisabled : ColorSlot::Glyph],
                       GetSkin()[ColorSlot::GlyphLight], LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawDefaultRibbonImage(CDC* pDC, CRect rectImage, BOOL bIsDisabled, BOOL bIsPressed,
                                                 BOOL bIsHighlighted) {
    // A flat skin's knobs are filled; what stands in this frame is a picture.
    const visual::Face& face = GetSkin().isFlat
                                   ? GetSkin()[FaceSlot::CategoryScroll]
                                   : visual::KnobFaceFor(GetSkin(), StateFrom(bIsHighlighted, bIsPressed, bIsDisabled));
    visual::PaintFace(*pDC, rectImage, face, visual::Corners::All(LookOf(GetSkin()).Radius()), LookOf(GetSkin()));
}

void CMFCVisualManager::OnFillRibbonEdit(CDC* pDC, CMFCRibbonRichEditCtrl*, CRect rect, BOOL bIsHighlighted,
                                         BOOL bIsPaneHighlighted, BOOL bIsDisabled, COLORREF& clrText,
                                         COLORREF& clrSelBackground, COLORREF& clrSelText) {
    visual::PaintEdit(*pDC, rect, StateFrom(bIsHighlighted || bIsPaneHighlighted, FALSE, bIsDisabled),
                      LookOf(GetSkin()));
    clrText = ToColorRef(GetSkin()[bIsDisabled ? ColorSlot::EditTextDisabled : ColorSlot::EditText]);
    clrSelBackground = ToColorRef(GetSkin()[ColorSlot::EditSelection]);
    clrSelText = ToColorRef(GetSkin()[ColorSlot::EditSelectionText]);
}

// A label lies on its panel without a face of its own.
void CMFCVisualManager::OnDrawRibbonLabel(CDC*, CMFCRibbonLabel*, CRect) {}

void CMFCVisualManager::OnDrawRibbonCheckBoxOnList(CDC* pDC, CMFCRibbonCheckBox*, CRect rect, BOOL bIsSelected,
                                                   BOOL bHighlighted) {
    ElementState state;
    state.isChecked = bIsSelected != FALSE;
    state.isHot = bHighlighted != FALSE;
    visual::PaintCheckBox(*pDC, rect, state, false, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonProgressBar(CDC* pDC, CMFCRibbonProgressBar*, CRect rectProgress, CRect rectChunk,
                                                BOOL) {
    visual::PaintProgress(*pDC, rectProgress, rectChunk, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonSliderChannel(CDC* pDC, CMFCRibbonSlider* pSlider, CRect rect) {
    LONG filledTo = rect.left;
    if (pSlider != nullptr && pSlider->GetRangeMax() > pSlider->GetRangeMin()) {
        filledTo += ::MulDiv(rect.Width(), pSlider->GetPos() - pSlider->GetRangeMin(),
                             pSlider->GetRangeMax() - pSlider->GetRangeMin());
    }
    visual::PaintSliderChannel(*pDC, rect, filledTo, pSlider != nullptr && pSlider->IsDisabled(), LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonSliderThumb(CDC* pDC, CMFCRibbonSlider*, CRect rect, BOOL bIsHighlighted,
                                                BOOL bIsPressed, BOOL bIsDisabled) {
    visual::PaintSliderThumb(*pDC, rect, StateFrom(bIsHighlighted, bIsPressed, bIsDisabled), LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonSliderZoomButton(CDC* pDC, CMFCRibbonSlider*, CRect rect, BOOL bIsZoomOut,
                                                     BOOL bIsHighlighted, BOOL bIsPressed, BOOL bIsDisabled) {
    visual::PaintZoomButton(*pDC, rect, !bIsZoomOut, StateFrom(bIsHighlighted, bIsPressed, bIsDisabled),
                            LookOf(GetSkin()));
}

void CMFCVisualManager::GetRibbonSliderColors(CMFCRibbonSlider*, BOOL bIsHighlighted, BOOL bIsPressed, BOOL bIsDisabled,
                                              COLORREF& clrLine, COLORREF& clrFill) {
    const visual::Face& face = visual::KnobFaceFor(GetSkin(), StateFrom(bIsHighlighted, bIsPressed, bIsDisabled));
    clrLine = ToColorRef(face.outer);
    clrFill = ToColorRef(face.bottom1);
}

void CMFCVisualManager::OnDrawRibbonGalleryBorder(CDC* pDC, CMFCRibbonGallery*, CRect rectBorder) {
    visual::PaintFrame(*pDC, rectBorder, GetSkin()[FaceSlot::Edit].outer, LookOf(GetSkin()).Line());
}

void CMFCVisualManager::OnDrawRibbonMenuCheckFrame(CDC* pDC, CMFCRibbonButton* pButton, CRect rect) {
    const bool isHot = pButton != nullptr && StateOf(*pButton).isHot;
    visual::PaintFace(*pDC, rect, GetSkin()[isHot ? FaceSlot::MenuCheckHot : FaceSlot::MenuCheck],
                      visual::PlateCorners(GetSkin(), LookOf(GetSkin())), LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonMainPanelFrame(CDC* pDC, CMFCRibbonMainPanel*, CRect rect) {
    visual::PaintFace(*pDC, rect, GetSkin()[FaceSlot::MainPanelFrame], {}, LookOf(GetSkin()));
}

void CMFCVisualManager::OnDrawRibbonMainPanelButtonBorder(CDC*, CMFCRibbonButton*) {}

COLORREF CMFCVisualManager::OnFillRibbonMainPanelButton(CDC* pDC, CMFCRibbonButton* pButton) {
    const ElementState state = StateOf(*pButton);
    const FaceSlot face = state.isHot && !state.isDisabled ? FaceSlot::MenuItemHot : FaceSlot::Group;
    visual::PaintFace(*pDC, pButton->GetRect(), GetSkin()[face], visual::Corners::All(LookOf(GetSkin()).Radius()),
                      LookOf(GetSkin()));
    return ToColorRef(GetSkin()[state.isDisabled ? ColorSlot::MenuTextDisabled : ColorSlot::MenuText]);
}

void CMFCVisualManager::OnFillRibbonMenuFrame(CDC* pDC, CMFCRibbonMainPanel*, CRect rect) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::MenuFill]);
}

void CMFCVisualManager::OnDrawRibbonRecentFilesFrame(CDC* pDC, CMFCRibbonMainPanel*, CRect rect) {
    visual::PaintSolid(*pDC, rect, GetSkin()[ColorSlot::MenuGutter]);
    visual::PaintSolid(*pDC, {rect.left, rect.top, rect.left + LookOf(GetSkin()).Line(), rect.bottom},
                       GetSkin()[ColorSlot::MenuGutterLine]);
}

COLORREF CMFCVisualManager::GetRibbonHyperlinkTextColor(CMFCRibbonLinkCtrl*) {
    return ToColorRef(GetSkin()[ColorSlot::Hyperlink]);
}

COLORREF CMFCVisualManager::GetRibbonQuickAccessToolBarTextColor(BOOL bDisabled) {
    return ToColorRef(GetSkin()[bDisabled ? ColorSlot::QatTextDisabled : ColorSlot::QatText]);
}

COLORREF CMFCVisualManager::GetRibbonStatusBarTextColor(CMFCRibbonStatusBar*) {
    return ToColorRef(GetSkin()[ColorSlot::StatusText]);
}
