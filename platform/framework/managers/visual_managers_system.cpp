// The looks in the system's own colours.
#include "afxpopupmenubar.h"
#include "afxvisualmanagervs2008.h"
#include "afxvisualmanagerwindows7.h"
#include "fx/scoped_change.h"
#include "visual/system_skins.h"

#include <uxtheme.h>

IMPLEMENT_DYNCREATE(CMFCVisualManagerVS2005, CMFCVisualManagerOffice2003)
IMPLEMENT_DYNCREATE(CMFCVisualManagerVS2008, CMFCVisualManagerVS2005)
IMPLEMENT_DYNCREATE(CMFCVisualManagerWindows, CMFCVisualManagerOfficeXP)
IMPLEMENT_DYNCREATE(CMFCVisualManagerWindows7, CMFCVisualManagerWindows)

using fx::ScopedChange;

CMFCVisualManagerVS2005::CMFCVisualManagerVS2005(BOOL bIsTemporary) : CMFCVisualManagerOffice2003(bIsTemporary) {
    CMFCVisualManagerVS2005::OnUpdateSystemColors(); // from this class's colour
}
CMFCVisualManagerVS2005::~CMFCVisualManagerVS2005() = default;
COLORREF CMFCVisualManagerVS2005::GetBaseThemeColor() { return afxGlobalData.clrBtnFace; }
void CMFCVisualManagerVS2005::OnUpdateSystemColors() { CMFCVisualManagerOffice2003::OnUpdateSystemColors(); }

CMFCVisualManagerVS2008::CMFCVisualManagerVS2008(BOOL bIsTemporary) : CMFCVisualManagerVS2005(bIsTemporary) {}
CMFCVisualManagerVS2008::~CMFCVisualManagerVS2008() = default;

CMFCVisualManagerWindows::CMFCVisualManagerWindows(BOOL bIsTemporary) : CMFCVisualManagerOfficeXP(bIsTemporary) {}
CMFCVisualManagerWindows::~CMFCVisualManagerWindows() = default;

BOOL CMFCVisualManagerWindows::IsWinXPThemeAvailible() { return ::IsAppThemed() && ::IsThemeActive(); }

const visual::Skin& CMFCVisualManagerWindows::GetSkin() const {
    return m_bDrawsMenu && m_bOfficeStyleMenus ? visual::BlendedSkin() : visual::SystemSkin();
}

COLORREF CMFCVisualManagerWindows::GetMenuItemTextColor(CMFCToolBarMenuButton* pButton, BOOL bHighlighted,
                                                        BOOL bDisabled) {
    const ScopedChange menu(m_bDrawsMenu, TRUE);
    return CMFCVisualManagerOfficeXP::GetMenuItemTextColor(pButton, bHighlighted, bDisabled);
}

void CMFCVisualManagerWindows::OnDrawMenuBorder(CDC* pDC, CMFCPopupMenu* pMenu, CRect rect) {
    const ScopedChange menu(m_bDrawsMenu, TRUE);
    CMFCVisualManagerOfficeXP::OnDrawMenuBorder(pDC, pMenu, rect);
}

void CMFCVisualManagerWindows::OnDrawMenuCheck(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect, BOOL bHighlight,
                                               BOOL bIsRadio) {
    const ScopedChange menu(m_bDrawsMenu, TRUE);
    CMFCVisualManagerOfficeXP::OnDrawMenuCheck(pDC, pButton, rect, bHighlight, bIsRadio);
}

void CMFCVisualManagerWindows::OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz) {
    const ScopedChange menu(m_bDrawsMenu, DYNAMIC_DOWNCAST(CMFCPopupMenuBar, pBar) != nullptr);
    CMFCVisualManagerOfficeXP::OnDrawSeparator(pDC, pBar, rect, bIsHoriz);
}

void CMFCVisualManagerWindows::OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect rectClip,
                                                   BOOL bNCArea) {
    const ScopedChange menu(m_bDrawsMenu, DYNAMIC_DOWNCAST(CMFCPopupMenuBar, pBar) != nullptr);
    CMFCVisualManagerOfficeXP::OnFillBarBackground(pDC, pBar, rectClient, rectClip, bNCArea);
}

void CMFCVisualManagerWindows::OnHighlightMenuItem(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect,
                                                   COLORREF& clrText) {
    const ScopedChange menu(m_bDrawsMenu, TRUE);
    CMFCVisualManagerOfficeXP::OnHighlightMenuItem(pDC, pButton, rect, clrText);
}

CMFCVisualManagerWindows7::CMFCVisualManagerWindows7() = default;
CMFCVisualManagerWindows7::~CMFCVisualManagerWindows7() = default;
const visual::Skin& CMFCVisualManagerWindows7::GetSkin() const { return visual::BlendedSkin(); }
