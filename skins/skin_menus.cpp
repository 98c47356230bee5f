// The dark skin's menus and separators.
#include "skin_visual_managers.h"

#include "check_drop_down.h"
#include "skins/menu_rules.h"

#include <afxglobals.h>
#include <afxpopupmenu.h>
#include <afxribbonbar.h>
#include <afxribbonpanelmenu.h>
#include <afxribbonstatusbar.h>

namespace {

constexpr int kBorderWidth = 2;
constexpr COLORREF kDropListText = RGB(0, 0, 0);

/// The menu hangs below a bar that is no menu itself.
bool HangsFromBar(const CMFCPopupMenu& menu) {
    const CMFCPopupMenu* root = &menu;
    while (root->GetParentPopupMenu() != nullptr) {
        root = root->GetParentPopupMenu();
    }
    const CMFCToolBar* const bar = root->GetParentToolBar();
    return bar != nullptr && !bar->IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBar));
}

} // namespace

COLORREF CQKVisualManagerOffice2007Black::GetMenuItemTextColor(CMFCToolBarMenuButton* button, BOOL highlighted,
                                                               BOOL /*disabled*/) {
    const CWnd* const parent = button != nullptr ? button->GetParentWnd() : nullptr;
    if (parent != nullptr && parent->IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBarEx))) {
        return kDropListText;
    }
    return highlighted ? m_clrMenuTextHighlighted : m_clrMenuText;
}

BOOL CQKVisualManagerOffice2007Black::IsLightDropList(CMFCPopupMenuBar* list) {
    return list->IsKindOf(RUNTIME_CLASS(CMFCPopupMenuBarEx));
}

void CQKVisualManagerOffice2007Black::OnDrawMenuBorder(CDC* dc, CMFCPopupMenu* menu, CRect rect) {
    if (!CanDrawImages() || menu == nullptr) {
        CMFCVisualManagerOffice2003::OnDrawMenuBorder(dc, menu, rect);
        return;
    }
    const CMFCPopupMenuBar* const bar = menu->GetMenuBar();
    const bool isRibbonMenu = bar != nullptr && bar->IsKindOf(RUNTIME_CLASS(CMFCRibbonPanelMenuBar));
    if (isRibbonMenu && DrawRibbonMenuFrame(dc, menu, rect)) {
        return;
    }
    if (HangsFromBar(*menu)) {
        CMFCVisualManagerOffice2003::OnDrawMenuBorder(dc, menu, rect);
        return;
    }
    DrawPopupBorder(dc, rect);
    DrawCustomBorder(dc, rect, kBorderWidth, m_clrMenuBorder);
    if (isRibbonMenu) {
        DrawCustomBorder(dc, rect, 1, m_clrRibbonMenuInnerBorder);
    }
}

void CQKVisualManagerOffice2007Black::OnDrawSeparator(CDC* dc, CBasePane* bar, CRect rect, BOOL horizontal) {
    if (!CanDrawImages() || bar == nullptr) {
        CMFCVisualManagerOffice2007::OnDrawSeparator(dc, bar, rect, horizontal);
        return;
    }
    if (const auto* const status = DYNAMIC_DOWNCAST(CMFCRibbonStatusBar, bar)) {
        dc->FillSolidRect(skins::StatusSeparatorRect(rect, status->IsBottomFrame(), GetRibbonSeparatorWidth()),
                          GetStatusBarIntervalColor());
        return;
    }
    if (bar->IsKindOf(RUNTIME_CLASS(CMFCRibbonBar))) {
        DrawRibbonSeparator(dc, skins::RibbonSeparatorRect(rect, GetRibbonSeparatorWidth()));
        return;
    }
    auto* const menuBar = DYNAMIC_DOWNCAST(CMFCPopupMenuBar, bar);
    if (menuBar != nullptr && !horizontal && !menuBar->IsRibbonPanelInRegularMode()) {
        DrawMenuSeparator(dc, menuBar, rect);
    } else {
        DrawToolBarSeparator(dc, rect, horizontal);
    }
}

void CQKVisualManagerOffice2007Black::DrawMenuSeparator(CDC* dc, CMFCPopupMenuBar* bar, const CRect& rect) {
    CRect client;
    bar->GetClientRect(&client);
    const CRect line = skins::MenuSeparatorRect(
        {rect, static_cast<int>(client.right), static_cast<int>(bar->GetCurrentMenuImageSize().cx),
         GetMenuImageMargin(), !bar->m_bDisableSideBarInXPMode && !bar->IsDropDownListMode(),
         DYNAMIC_DOWNCAST(CMFCPopupMenu, bar->GetParent()) != nullptr, afxGlobalData.GetRibbonImageScale()});
    CPen pen(PS_SOLID, 1, m_clrMenuSeparator);
    CPen* const formerPen = dc->SelectObject(&pen);
    CBrush brush(m_clrMenuSeparator);
    CBrush* const formerBrush = dc->SelectObject(&brush);
    dc->Rectangle(line);
    dc->SelectObject(formerBrush);
    dc->SelectObject(formerPen);
}

void CQKVisualManagerOffice2007Black::DrawToolBarSeparator(CDC* dc, const CRect& rect, BOOL horizontal) {
    const CRect line = skins::ToolBarSeparatorRect(rect, horizontal);
    const CPoint middle = line.CenterPoint();
    // The line itself and the light one beside it.
    const auto draw = [&](COLORREF color, int step) {
        CPen pen(PS_SOLID, 1, color);
        CPen* const former = dc->SelectObject(&pen);
        if (horizontal) {
            dc->MoveTo(middle.x + step, line.top);
            dc->LineTo(middle.x + step, line.bottom);
        } else {
            dc->MoveTo(line.left, middle.y + step);
            dc->LineTo(line.right, middle.y + step);
        }
        dc->SelectObject(former);
    };
    const ToolBarColors colors = GetToolBarSeparatorColors();
    draw(colors.dark, 0);
    draw(colors.light, 1);
}
