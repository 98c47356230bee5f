#include "skin_visual_managers.h"

#include "skins/menu_rules.h"
#include "skins/skin_values.h"

#include <afxglobals.h>

#include <array>

IMPLEMENT_DYNCREATE(CQKVisualManagerOffice2007Black, CMFCVisualManagerOffice20072)
IMPLEMENT_DYNCREATE(CQKVisualManagerOffice2007Silver, CQKVisualManagerOffice2007Black)

BOOL CQKVisualManagerOffice2007Black::s_captionCenter = FALSE;
COLORREF CQKVisualManagerOffice2007Black::s_savedToolBarLight = 0;
COLORREF CQKVisualManagerOffice2007Black::s_savedToolBarDark = 0;

namespace {

constexpr LPCTSTR kDropDownIcon = L"pic\\skin\\icon\\16\\down.ico";

// What the base tells a dark skin from a light one by.
constexpr int kDarkBaseStyle = 3, kLightBaseStyle = 0;

#define BARWRIGHT_BLACK(black, silver) black,
#define BARWRIGHT_SILVER(black, silver) silver,
constexpr std::array<LPCTSTR, tovasque::kSkinImages> kBlackImages = {{BARWRIGHT_SKIN_IMAGES(BARWRIGHT_BLACK)}};
constexpr std::array<LPCTSTR, tovasque::kSkinImages> kSilverImages = {{BARWRIGHT_SKIN_IMAGES(BARWRIGHT_SILVER)}};
#undef BARWRIGHT_BLACK
#undef BARWRIGHT_SILVER

} // namespace

#define BARWRIGHT_DEFINE(getter, black, silver)                                                                        \
    COLORREF CQKVisualManagerOffice2007Black::getter() { return black; }                                               \
    COLORREF CQKVisualManagerOffice2007Silver::getter() { return silver; }
BARWRIGHT_SKIN_COLORS(BARWRIGHT_DEFINE)
#undef BARWRIGHT_DEFINE

CQKVisualManagerOffice2007Black::CQKVisualManagerOffice2007Black() {
    SetPlatformStyle(skins::kBlackStyle);
    SetDropDownIconPath(kDropDownIcon);
    SetSkinImages(kBlackImages);
    SetBaseStyle(kDarkBaseStyle);
}

CQKVisualManagerOffice2007Silver::CQKVisualManagerOffice2007Silver() {
    SetPlatformStyle(skins::kSilverStyle);
    SetDropDownIconPath(kDropDownIcon);
    SetSkinImages(kSilverImages);
    SetBaseStyle(kLightBaseStyle);
}

void CQKVisualManagerOffice2007Black::SetCaptionCenter(BOOL center) {
    s_captionCenter = center;
    if (auto* const skin = DYNAMIC_DOWNCAST(CQKVisualManagerOffice2007Black, CMFCVisualManager::GetInstance())) {
        skin->m_BCaptionCenter = center;
    }
}

void CQKVisualManagerOffice2007Black::OnUpdateSystemColors() {
    CMFCVisualManagerOffice20072::OnUpdateSystemColors();
    m_BCaptionCenter = s_captionCenter;
}

void CQKVisualManagerOffice2007Black::BeginDrawFlatToolBar() {
    const ToolBarColors now = GetToolBarColors();
    s_savedToolBarLight = now.light;
    s_savedToolBarDark = now.dark;
    SetToolBarColors({skins::FlatToolBarColor(GetPlatformStyle(), now.light), now.dark});
}

void CQKVisualManagerOffice2007Black::EndDrawFlatToolBar() {
    SetToolBarColors({s_savedToolBarLight, s_savedToolBarDark});
}

// ---- what the silver skin takes from the platform

COLORREF CQKVisualManagerOffice2007Silver::GetMenuItemTextColor(CMFCToolBarMenuButton* button, BOOL highlighted,
                                                                BOOL disabled) {
    return CMFCVisualManagerOffice2007::GetMenuItemTextColor(button, highlighted, disabled);
}

void CQKVisualManagerOffice2007Silver::OnDrawMenuBorder(CDC* dc, CMFCPopupMenu* menu, CRect rect) {
    CMFCVisualManagerOffice2007::OnDrawMenuBorder(dc, menu, rect);
}

void CQKVisualManagerOffice2007Silver::OnDrawSeparator(CDC* dc, CBasePane* bar, CRect rect, BOOL horizontal) {
    CMFCVisualManagerOffice2007::OnDrawSeparator(dc, bar, rect, horizontal);
}

void CQKVisualManagerOffice2007Silver::OnDrawRibbonCaptionButton(CDC* dc, CMFCRibbonCaptionButton* button) {
    CMFCVisualManagerOffice2007::OnDrawRibbonCaptionButton(dc, button);
}
