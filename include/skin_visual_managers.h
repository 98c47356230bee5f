#pragma once

#include "barwright_api.h"
#include "tovasque/visual_manager_office2007_2.h"

/// The dark skin. Every colour and every picture of both skins stands in one table, skins/skin_values.h.
///
/// The platform makes and owns the one in use: CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(...)). Nobody else
/// can: the constructors are protected.
class BARWRIGHT_API CQKVisualManagerOffice2007Black : public CMFCVisualManagerOffice20072 {
    DECLARE_DYNCREATE(CQKVisualManagerOffice2007Black)

public:
    /// TRUE: the window's title stands in the middle. Holds for the process: for the manager in use, when it is one of
    /// these skins, at once, and for every later one.
    static void SetCaptionCenter(BOOL center);

    /// Brackets the painting of toolbars that lie flat: their first fill colour is another one in between, by the
    /// platform's style. End writes back what the last Begin saved; without one, zero colours. Calls do not nest.
    void BeginDrawFlatToolBar();
    void EndDrawFlatToolBar();

    /// Black in the combos' drop lists (CMFCPopupMenuBarEx), which lie on light ground, under the pointer too.
    COLORREF GetMenuItemTextColor(CMFCToolBarMenuButton* button, BOOL highlighted, BOOL disabled) override;
    void OnUpdateSystemColors() override;
    /// A row of docked bars goes on as those that lie flat in it.
    void OnFillBarBackground(CDC* dc, CBasePane* bar, CRect client, CRect clip, BOOL nonClient = FALSE) override;
    void OnDrawMenuBorder(CDC* dc, CMFCPopupMenu* menu, CRect rect) override;
    void OnDrawSeparator(CDC* dc, CBasePane* bar, CRect rect, BOOL horizontal) override;

protected:
    CQKVisualManagerOffice2007Black();

#define BARWRIGHT_DECLARE(getter, red, green, blue) COLORREF getter() override;
    TOVASQUE_SKIN_GETTERS(BARWRIGHT_DECLARE)

    BOOL IsLightDropList(CMFCPopupMenuBar* list) override;

    COLORREF m_clrMenuBorder = RGB(75, 80, 92);
    COLORREF m_clrMenuSeparator = RGB(61, 66, 78);
    COLORREF m_clrMenuText = RGB(217, 223, 251);
    COLORREF m_clrMenuTextHighlighted = RGB(217, 223, 251);
    COLORREF m_clrRibbonMenuInnerBorder = RGB(123, 127, 142);

private:
    void DrawMenuSeparator(CDC* dc, CMFCPopupMenuBar* bar, const CRect& rect);
    void DrawToolBarSeparator(CDC* dc, const CRect& rect, BOOL horizontal);

    static BOOL s_captionCenter;
    static COLORREF s_savedToolBarLight;
    static COLORREF s_savedToolBarDark;
};

/// The light skin. Menus, separators and caption buttons are the platform's.
class BARWRIGHT_API CQKVisualManagerOffice2007Silver : public CQKVisualManagerOffice2007Black {
    DECLARE_DYNCREATE(CQKVisualManagerOffice2007Silver)

public:
    COLORREF GetMenuItemTextColor(CMFCToolBarMenuButton* button, BOOL highlighted, BOOL disabled) override;
    void OnDrawMenuBorder(CDC* dc, CMFCPopupMenu* menu, CRect rect) override;
    void OnDrawSeparator(CDC* dc, CBasePane* bar, CRect rect, BOOL horizontal) override;
    void OnDrawRibbonCaptionButton(CDC* dc, CMFCRibbonCaptionButton* button) override;

protected:
    CQKVisualManagerOffice2007Silver();

    TOVASQUE_SKIN_GETTERS(BARWRIGHT_DECLARE)
#undef BARWRIGHT_DECLARE

    BOOL IsLightDropList(CMFCPopupMenuBar*) override { return FALSE; }
};
