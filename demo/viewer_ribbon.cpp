#include "viewer_ribbon.h"

#include <fx/scoped_change.h>
#include <fx/window_guard.h>

IMPLEMENT_DYNAMIC(CViewerRibbon, CMFCRibbonBarEx)

void CViewerRibbon::SetQuickAccessMenuTip(const CString& text) {
    const CRect toolbar = GetQuickAccessToolbarLocation();
    const CRect commands = GetQATCommandsLocation();
    CMFCRibbonBaseElement* const button =
        HitTest(CPoint((commands.right + toolbar.right) / 2, toolbar.CenterPoint().y));
    if (button != nullptr && button->GetID() == 0 && !button->IsKindOf(RUNTIME_CLASS(CMFCRibbonTab))) {
        button->SetToolTipText(text);
    }
}

// A switch of the skin ends the look that gives the button its height. What is painted on the way would be painted
// twice.
void CViewerRibbon::ChangeSkinColor(int nStyle, bool bFlag) {
    {
        const fx::ScopedChange<bool> between(m_isBetweenSkins, true);
        CMFCRibbonBarEx::ChangeSkinColor(nStyle, bFlag);
    }
    SetWindows7Look(TRUE, TRUE);
}

LRESULT CViewerRibbon::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT && m_isBetweenSkins) {
        ValidateRect(nullptr);
        return 0;
    }
    return CMFCRibbonBarEx::WindowProc(message, wParam, lParam);
}

BOOL CViewerRibbon::OnShowRibbonContextMenu(CWnd* window, int x, int y, CMFCRibbonBaseElement* hit) {
    const fx::WindowGuard guard(this);
    m_isInContextMenu = true;
    const BOOL isShown = CMFCRibbonBarEx::OnShowRibbonContextMenu(window, x, y, hit);
    if (guard.IsAlive()) {
        m_isInContextMenu = false;
    }
    return isShown;
}
