// The ground of rows of docked bars.
#include "skin_visual_managers.h"

#include "skins/menu_rules.h"

#include <afxDockSite.h>
#include <afxtoolbar.h>

namespace {

/// Whether a bar that a file describes, which paints itself between BeginDrawFlatToolBar and EndDrawFlatToolBar, lies
/// in the row; `row` is in the site's client area.
bool HasFlatBar(const CDockSite& site, const CRect& row) {
    const HWND parent = site.GetSafeHwnd();
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const auto* const bar = DYNAMIC_DOWNCAST(CMFCToolBar, CWnd::FromHandlePermanent(child));
        if (bar == nullptr || !bar->m_bFromConfig || !::IsWindowVisible(child)) {
            continue;
        }
        CRect place, shared;
        bar->GetWindowRect(&place);
        site.ScreenToClient(&place);
        if (shared.IntersectRect(place, row)) {
            return true;
        }
    }
    return false;
}

} // namespace

void CQKVisualManagerOffice2007Black::OnFillBarBackground(CDC* dc, CBasePane* bar, CRect client, CRect clip,
                                                          BOOL nonClient) {
    const auto* const site = DYNAMIC_DOWNCAST(CDockSite, bar);
    if (site == nullptr || !HasFlatBar(*site, client)) {
        CMFCVisualManagerOffice20072::OnFillBarBackground(dc, bar, client, clip, nonClient);
        return;
    }
    const ToolBarColors colors = GetToolBarColors();
    SetToolBarColors({skins::FlatToolBarColor(GetPlatformStyle(), colors.light), colors.dark});
    CMFCVisualManagerOffice20072::OnFillBarBackground(dc, bar, client, clip, nonClient);
    SetToolBarColors(colors);
}
