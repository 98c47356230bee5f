#include "afxvisualmanageroffice2007.h"

#include "afxpopupmenubar.h"
#include "afxtooltipctrl.h"
#include "managers/manager_look.h"
#include "managers/menu_background.h"
#include "visual/system_skins.h"

#include <afxribbonbar.h>

using visual::ColorSlot;
using visual::FaceSlot;
using visual::LookOf;
using visual::ToColorRef;

IMPLEMENT_DYNCREATE(CMFCVisualManagerOfficeXP, CMFCVisualManager)
IMPLEMENT_DYNCREATE(CMFCVisualManagerOffice2003, CMFCVisualManagerOfficeXP)
IMPLEMENT_DYNCREATE(CMFCVisualManagerOffice2007, CMFCVisualManagerOffice2003)

namespace {

CMFCVisualManagerOffice2007::Style g_style = CMFCVisualManagerOffice2007::Office2007_LunaBlue;
BOOL g_statusBarPlain = FALSE;
BOOL g_captionColors = TRUE;

void PaintMenuBorder(CDC& dc, CRect rect, const visual::Skin& skin) {
    const int line = LookOf(skin).Line();
    visual::PaintFrame(dc, rect, skin[ColorSlot::MenuBorder], line);
    rect.DeflateRect(line, line);
    visual::PaintFrame(dc, rect, skin[ColorSlot::MenuFill], line);
}

void PaintSeparator(CDC& dc, const CRect& rect, BOOL isUpright, const visual::Skin& skin) {
    visual::PaintEtchedLine(dc, rect, isUpright != FALSE, skin[ColorSlot::SeparatorDark],
                            skin[ColorSlot::SeparatorLight], LookOf(skin));
}

void SetPen(CPen& pen, visual::Argb color) {
    pen.DeleteObject();
    pen.CreatePen(PS_SOLID, 1, ToColorRef(color));
}

void SetTooltip(CMFCToolTipInfo& info, const visual::Skin& skin) {
    const visual::Face& face = skin[FaceSlot::Tooltip];
    info.m_bVislManagerTheme = TRUE;
    info.m_clrFill = ToColorRef(face.top1);
    info.m_clrFillGradient = ToColorRef(face.bottom2);
    info.m_clrText = ToColorRef(skin[ColorSlot::TooltipText]);
    info.m_clrBorder = ToColorRef(face.outer);
    info.m_nGradientAngle = 270;
    info.m_bRoundedCorners = skin.radius > 0;
}

} // namespace

CMFCVisualManagerOfficeXP::CMFCVisualManagerOfficeXP(BOOL bIsTemporary) : CMFCVisualManager(bIsTemporary) {}
CMFCVisualManagerOfficeXP::~CMFCVisualManagerOfficeXP() = default;
const visual::Skin& CMFCVisualManagerOfficeXP::GetSkin() const { return visual::BlendedSkin(); }
void CMFCVisualManagerOfficeXP::OnUpdateSystemColors() { CMFCVisualManager::OnUpdateSystemColors(); }

CMFCVisualManagerOffice2003::CMFCVisualManagerOffice2003(BOOL bIsTemporary) : CMFCVisualManagerOfficeXP(bIsTemporary) {
    CMFCVisualManagerOffice2003::OnUpdateSystemColors();
}

CMFCVisualManagerOffice2003::~CMFCVisualManagerOffice2003() = default;

const visual::Skin& CMFCVisualManagerOffice2003::GetSkin() const { return visual::GradientSkin(); }

void __stdcall CMFCVisualManagerOffice2003::SetStatusBarOfficeXPLook(BOOL bLook) { g_statusBarPlain = bLook; }
BOOL __stdcall CMFCVisualManagerOffice2003::IsStatusBarOfficeXPLook() { return g_statusBarPlain; }
void CMFCVisualManagerOffice2003::SetDefaultWinXPColors(BOOL bColors) { g_captionColors = bColors; }
BOOL CMFCVisualManagerOffice2003::IsDefaultWinXPColorsEnabled() { return g_captionColors; }

COLORREF CMFCVisualManagerOffice2003::GetBaseThemeColor() {
    return g_captionColors ? afxGlobalData.clrActiveCaption : afxGlobalData.clrBtnFace;
}

COLORREF CMFCVisualManagerOffice2003::GetHighlightMenuItemColor() const {
    return ToColorRef(GetSkin()[FaceSlot::MenuItemHot].top1);
}

void CMFCVisualManagerOffice2003::OnFillHighlightedArea(CDC* pDC, CRect rect, CBrush* pBrush, CMFCToolBarButton*) {
    if (pBrush != nullptr) {
        pDC->FillRect(rect, pBrush);
    } else {
        visual::PaintFill(*pDC, rect, GetSkin()[FaceSlot::ButtonHot], LookOf(GetSkin()));
    }
}

void CMFCVisualManagerOffice2003::OnHighlightQuickCustomizeMenuButton(CDC* pDC, CMFCToolBarMenuButton*, CRect rect) {
    visual::PaintFace(*pDC, rect, GetSkin()[FaceSlot::MenuItemHot], {}, LookOf(GetSkin()));
}

void CMFCVisualManagerOffice2003::OnDrawMenuBorder(CDC* pDC, CMFCPopupMenu*, CRect rect) {
    PaintMenuBorder(*pDC, rect, GetSkin());
}

void CMFCVisualManagerOffice2003::OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz) {
    // Between a menu's items the line is the menu's own.
    if (!bIsHoriz && DYNAMIC_DOWNCAST(CMFCPopupMenuBar, pBar) != nullptr) {
        CMFCVisualManager::OnDrawSeparator(pDC, pBar, rect, bIsHoriz);
    } else if (!visual::PaintStatusSeparator(*pDC, pBar, rect, bIsHoriz != FALSE, LookOf(GetSkin()))) {
        PaintSeparator(*pDC, rect, bIsHoriz, GetSkin());
    }
}

void CMFCVisualManagerOffice2003::OnUpdateSystemColors() {
    CMFCVisualManagerOfficeXP::OnUpdateSystemColors();
    visual::UpdateGradientSkin(visual::FromColorRef(GetBaseThemeColor()));
    const visual::Skin& skin = GetSkin();
    m_clrToolBarGradientLight = ToColorRef(skin[FaceSlot::ToolBar].top1);
    m_clrToolBarGradientDark = ToColorRef(skin[FaceSlot::ToolBar].bottom2);
    SetPen(m_penSeparator, skin[ColorSlot::SeparatorDark]);
    SetPen(m_penSeparatorLight, skin[ColorSlot::SeparatorLight]);
}

void CMFCVisualManagerOffice2003::OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect, BOOL) {
    if (visual::FillStatusBar(*pDC, pBar, rectClient, LookOf(GetSkin())) ||
        visual::FillRibbonMenu(*pDC, pBar, rectClient, LookOf(GetSkin())) ||
        visual::PaintMenuBackground(*pDC, pBar, rectClient, LookOf(GetSkin()))) {
        return;
    }
    const visual::Argb light = visual::FromColorRef(m_clrToolBarGradientLight);
    const visual::Argb dark = visual::FromColorRef(m_clrToolBarGradientDark);
    visual::Face face = GetSkin()[FaceSlot::ToolBar];
    face.top1 = light;
    face.top2 = visual::Mix(light, dark, 1, 3);
    face.bottom1 = visual::Mix(light, dark, 2, 3);
    face.bottom2 = dark;
    visual::PaintFill(*pDC, rectClient, face, LookOf(GetSkin()));
}

CMFCVisualManagerOffice2007::CMFCVisualManagerOffice2007() { CMFCVisualManagerOffice2007::OnUpdateSystemColors(); }
CMFCVisualManagerOffice2007::~CMFCVisualManagerOffice2007() = default;

BOOL __stdcall CMFCVisualManagerOffice2007::SetStyle(Style style, LPCTSTR) {
    if (style < Office2007_LunaBlue || style > Office2007_Silver) {
        return FALSE;
    }
    g_style = style;
    return TRUE;
}

CMFCVisualManagerOffice2007::Style __stdcall CMFCVisualManagerOffice2007::GetStyle() { return g_style; }
void __stdcall CMFCVisualManagerOffice2007::CleanStyle() { g_style = Office2007_LunaBlue; }
void __stdcall CMFCVisualManagerOffice2007::SetResourceHandle(HINSTANCE) {}

BOOL CMFCVisualManagerOffice2007::CanDrawStyle() const {
    return afxGlobalData.m_nBitsPerPixel > 8 && !afxGlobalData.IsHighContrastMode();
}

const visual::Skin& CMFCVisualManagerOffice2007::GetSkin() const {
    return CanDrawStyle() ? visual::StyleSkin(static_cast<std::size_t>(g_style))
                          : CMFCVisualManagerOffice2003::GetSkin();
}

CMFCRibbonBar* CMFCVisualManagerOffice2007::GetRibbonBar(CWnd* pWnd) const {
    for (CWnd* child = pWnd->GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT)) {
        if (CMFCRibbonBar* const bar = DYNAMIC_DOWNCAST(CMFCRibbonBar, child);
            bar != nullptr && bar->IsMainRibbonBar()) {
            return bar;
        }
    }
    return nullptr;
}

BOOL CMFCVisualManagerOffice2007::IsRibbonPresent(CWnd* pWnd) const {
    CMFCRibbonBar* const bar = GetRibbonBar(pWnd);
    return bar != nullptr && bar->IsWindowVisible();
}

BOOL CMFCVisualManagerOffice2007::GetToolTipInfo(CMFCToolTipInfo& params, UINT) {
    if (!CanDrawStyle()) {
        return FALSE;
    }
    SetTooltip(params, GetSkin());
    return TRUE;
}

CSize CMFCVisualManagerOffice2007::GetNcBtnSize(BOOL bSmall) const {
    const int side = afxGlobalData.ScalePixels(bSmall ? 17 : 28);
    return CSize(side, bSmall ? side : afxGlobalData.ScalePixels(22));
}

void CMFCVisualManagerOffice2007::OnDrawMenuBorder(CDC* pDC, CMFCPopupMenu*, CRect rect) {
    PaintMenuBorder(*pDC, rect, GetSkin());
}

void CMFCVisualManagerOffice2007::OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz) {
    // Between a menu's items the line is the menu's own.
    if (!bIsHoriz && DYNAMIC_DOWNCAST(CMFCPopupMenuBar, pBar) != nullptr) {
        CMFCVisualManager::OnDrawSeparator(pDC, pBar, rect, bIsHoriz);
    } else {
        PaintSeparator(*pDC, rect, bIsHoriz, GetSkin());
    }
}

void CMFCVisualManagerOffice2007::OnUpdateSystemColors() { CMFCVisualManagerOffice2003::OnUpdateSystemColors(); }
