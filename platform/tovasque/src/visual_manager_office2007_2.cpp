#include "tovasque/visual_manager_office2007_2.h"

#include "src/skin_palette.h"
#include "src/skin_table_of.h"

#include <afxDockSite.h>
#include <afxglobals.h>
#include <afxpopupmenu.h>
#include <afxribbonbar.h>

#include <algorithm>

IMPLEMENT_DYNCREATE(CMFCVisualManagerOffice20072, CMFCVisualManagerOffice2007)

namespace {

constexpr visual::Argb kDeepBlue = 0xFF1C64C8, kLightBlue = 0xFF6EA8FE; // accents of light and of dark skins

visual::Argb Opaque(COLORREF color) {
    return visual::MakeArgb(255, GetRValue(color), GetGValue(color), GetBValue(color));
}

COLORREF ToColorRef(visual::Argb color) {
    return RGB(visual::RedOf(color), visual::GreenOf(color), visual::BlueOf(color));
}

CMFCPopupMenuBar* MenuOf(CWnd* window) { return DYNAMIC_DOWNCAST(CMFCPopupMenuBar, window); }

} // namespace

namespace tovasque {

const visual::Skin& SkinTable::Get() {
    if (!m_skin) {
        Palette palette;
#define TOVASQUE_READ(getter, red, green, blue) palette.getter = Opaque(m_manager.getter());
        TOVASQUE_SKIN_GETTERS(TOVASQUE_READ)
#undef TOVASQUE_READ
        palette.accent = m_manager.GetBaseStyle() == 0 ? kDeepBlue : kLightBlue;
        m_pictures.emplace(m_manager.GetSkinImages(), m_manager.GetDropDownIconPath());
        m_skin = MakeFlatSkin(palette);
        m_pictures->SetArrowColors((*m_skin)[visual::ColorSlot::DropArrow], (*m_skin)[visual::ColorSlot::DropArrowHot]);
        m_skin->plates = m_manager.IsImageMode() ? &*m_pictures : nullptr;
    }
    return *m_skin;
}

void SkinTable::Clear() {
    m_skin.reset();
    m_pictures.reset();
}

} // namespace tovasque

CMFCVisualManagerOffice20072::CMFCVisualManagerOffice20072() : m_table(std::make_unique<tovasque::SkinTable>(*this)) {}
CMFCVisualManagerOffice20072::~CMFCVisualManagerOffice20072() = default;

#define TOVASQUE_DEFINE(getter, red, green, blue)                                                                      \
    COLORREF CMFCVisualManagerOffice20072::getter() { return RGB(red, green, blue); }
TOVASQUE_SKIN_GETTERS(TOVASQUE_DEFINE)
#undef TOVASQUE_DEFINE

std::vector<tovasque::SkinColor> CMFCVisualManagerOffice20072::GetSkinColors() {
    return {
#define TOVASQUE_LIST(getter, red, green, blue) {#getter, getter()},
        TOVASQUE_SKIN_GETTERS(TOVASQUE_LIST)
#undef TOVASQUE_LIST
    };
}

// ---- what a skin is made of

const visual::Skin& CMFCVisualManagerOffice20072::GetSkin() const {
    return CanDrawStyle() ? m_table->Get() : CMFCVisualManagerOffice2007::GetSkin();
}

void CMFCVisualManagerOffice20072::SetSkinImages(const std::array<LPCTSTR, tovasque::kSkinImages>& paths) {
    std::ranges::copy(paths, m_images.begin());
    m_table->Clear();
}

void CMFCVisualManagerOffice20072::SetBaseStyle(int nStyle) {
    m_nBaseStyle = nStyle;
    m_table->Clear();
}

void CMFCVisualManagerOffice20072::SetImageMode(BOOL bImages) {
    m_bImageMode = bImages;
    m_table->Clear();
}

void CMFCVisualManagerOffice20072::OnUpdateSystemColors() {
    m_table->Clear();
    CMFCVisualManagerOffice2007::OnUpdateSystemColors();
}

CMFCToolTipInfo& CMFCVisualManagerOffice20072::GetToolTipInfo() {
    if (m_toolTipInfo == nullptr) {
        m_toolTipInfo = std::make_unique<CMFCToolTipInfo>();
        CMFCVisualManagerOffice2007::GetToolTipInfo(*m_toolTipInfo);
    }
    return *m_toolTipInfo;
}

BOOL CMFCVisualManagerOffice20072::GetToolTipInfo(CMFCToolTipInfo& params, UINT nType) {
    if (!CanDrawStyle()) {
        return CMFCVisualManagerOffice2007::GetToolTipInfo(params, nType);
    }
    params = GetToolTipInfo();
    return TRUE;
}

BOOL CMFCVisualManagerOffice20072::CanDrawImages() const { return CanDrawStyle() && m_bImageMode; }

// ---- drawing

void CMFCVisualManagerOffice20072::OnDrawRibbonCaption(CDC* pDC, CMFCRibbonBar* pBar, CRect rect, CRect rectText) {
    if (m_BCaptionCenter) {
        // As much to the left of the row's middle as to its right.
        const int middle = rect.CenterPoint().x;
        const int half = std::min(middle - rectText.left, rectText.right - middle);
        CString title;
        if (const CWnd* const frame = pBar != nullptr ? pBar->GetTopLevelParent() : nullptr) {
            frame->GetWindowText(title);
        }
        if (2 * half >= pDC->GetTextExtent(title).cx) {
            rectText.left = middle - half;
            rectText.right = middle + half;
        }
    }
    CMFCVisualManagerOffice2007::OnDrawRibbonCaption(pDC, pBar, rect, rectText);
}

COLORREF CMFCVisualManagerOffice20072::OnDrawRibbonTabsFrame(CDC* pDC, CMFCRibbonBar* pWndRibbonBar, CRect rectTab) {
    const COLORREF text = CMFCVisualManagerOffice2007::OnDrawRibbonTabsFrame(pDC, pWndRibbonBar, rectTab);
    const CMFCRibbonCategory* const active = pWndRibbonBar != nullptr ? pWndRibbonBar->GetActiveCategory() : nullptr;
    if (CanDrawStyle() && active != nullptr && pWndRibbonBar->GetCaptionRect().IsRectEmpty() &&
        pWndRibbonBar->IsQuickAccessToolbarOnTop() && !pWndRibbonBar->GetQuickAccessToolbarLocation().IsRectEmpty()) {
        rectTab.bottom = std::min(rectTab.bottom, active->GetTabRect().top);
        if (rectTab.top < rectTab.bottom) {
            pDC->FillSolidRect(rectTab, GetTitleBgColor());
        }
    }
    return text;
}

void CMFCVisualManagerOffice20072::SetPlatformStyle(int nStyle) { SetStyle(static_cast<Style>(nStyle)); }

int CMFCVisualManagerOffice20072::GetPlatformStyle() const { return GetStyle(); }

CMFCVisualManagerOffice20072::ToolBarColors CMFCVisualManagerOffice20072::GetToolBarColors() const {
    return {m_clrToolBarGradientLight, m_clrToolBarGradientDark};
}

void CMFCVisualManagerOffice20072::SetToolBarColors(const ToolBarColors& colors) {
    m_clrToolBarGradientLight = colors.light;
    m_clrToolBarGradientDark = colors.dark;
}

CMFCVisualManagerOffice20072::ToolBarColors CMFCVisualManagerOffice20072::GetToolBarSeparatorColors() const {
    LOGPEN dark{}, light{};
    ::GetObjectW(m_penSeparator.GetSafeHandle(), sizeof dark, &dark);
    ::GetObjectW(m_penSeparatorLight.GetSafeHandle(), sizeof light, &light);
    return {light.lopnColor, dark.lopnColor};
}

void CMFCVisualManagerOffice20072::OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect rectClip,
                                                       BOOL bNCArea) {
    if (CMFCPopupMenuBar* const list = MenuOf(pBar); list != nullptr && CanDrawStyle() && IsLightDropList(list)) {
        pDC->FillSolidRect(rectClient, GetRibbonEditBgColor());
        return;
    }
    CMFCVisualManagerOffice2007::OnFillBarBackground(pDC, pBar, rectClient, rectClip, bNCArea);
    const bool isToolBar = pBar != nullptr && pBar->IsKindOf(RUNTIME_CLASS(CMFCToolBar)) &&
                           !pBar->IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBar));
    const bool isRowOfBars = pBar != nullptr && pBar->IsKindOf(RUNTIME_CLASS(CDockSite));
    if ((!isToolBar && !isRowOfBars) || !CanDrawStyle()) {
        return;
    }
    pDC->FillSolidRect(rectClient, m_clrToolBarGradientDark);
    // A bar lies flat on its second colour; of the first one there is a hint along the top of a row, which goes on
    // where the row is longer than its bars are.
    if (pBar->IsHorizontal()) {
        rectClient.bottom = rectClient.top + 1;
        constexpr int hint = 2; // tenths
        pDC->FillSolidRect(rectClient, ToColorRef(visual::Mix(Opaque(m_clrToolBarGradientDark),
                                                              Opaque(m_clrToolBarGradientLight), hint, 10)));
    }
}

void CMFCVisualManagerOffice20072::OnHighlightMenuItem(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect,
                                                       COLORREF& clrText) {
    CMFCPopupMenuBar* const list = pButton != nullptr ? MenuOf(pButton->GetParentWnd()) : nullptr;
    if (list == nullptr || !CanDrawStyle() || !IsLightDropList(list)) {
        CMFCVisualManagerOffice2007::OnHighlightMenuItem(pDC, pButton, rect, clrText);
        return;
    }
    constexpr int share = 4; // of the accent, so that a dark text stays easy to read
    pDC->FillSolidRect(
        rect, ToColorRef(visual::Mix(Opaque(GetRibbonEditBgColor()), GetSkin()[visual::ColorSlot::Accent], share, 10)));
    clrText = RGB(0, 0, 0);
}

void CMFCVisualManagerOffice20072::DrawPopupBorder(CDC* pDC, CRect rect) {
    DrawCustomBorder(pDC, rect, 1, ToColorRef(GetSkin()[visual::ColorSlot::MenuBorder]));
}

BOOL CMFCVisualManagerOffice20072::DrawRibbonMenuFrame(CDC* pDC, CMFCPopupMenu* pMenu, CRect rect) {
    if (pMenu == nullptr || (!pMenu->IsScrollable() && !pMenu->IsResizeble())) {
        return FALSE;
    }
    CMFCVisualManagerOffice2007::OnDrawMenuBorder(pDC, pMenu, rect);
    return TRUE;
}

void CMFCVisualManagerOffice20072::DrawCustomBorder(CDC* pDC, CRect rect, int nWidth, COLORREF color, COLORREF second) {
    const COLORREF lower = second == static_cast<COLORREF>(-1) ? color : second;
    for (int i = 0; i < nWidth && rect.Width() > 1 && rect.Height() > 1; ++i) {
        pDC->Draw3dRect(rect, color, lower);
        rect.DeflateRect(1, 1);
    }
}

void CMFCVisualManagerOffice20072::DrawRibbonSeparator(CDC* pDC, CRect rect) {
    const int width = GetRibbonSeparatorWidth();
    rect.left += std::max((rect.Width() - width) / 2, 0);
    rect.right = std::min<LONG>(rect.left + width, rect.right);
    pDC->FillSolidRect(rect, ToColorRef(GetSkin()[visual::ColorSlot::SeparatorDark]));
}

int CMFCVisualManagerOffice20072::GetRibbonSeparatorWidth() const {
    return std::max(static_cast<int>(afxGlobalData.GetRibbonImageScale()), 1);
}
