#include "viewer_ribbon.h"

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

BOOL CViewerRibbon::OnShowRibbonContextMenu(CWnd* window, int x, int y, CMFCRibbonBaseElement* hit) {
    const fx::WindowGuard guard(this);
    m_isInContextMenu = true;
    const BOOL isShown = CMFCRibbonBarEx::OnShowRibbonContextMenu(window, x, y, hit);
    if (guard.IsAlive()) {
        m_isInContextMenu = false;
    }
    return isShown;
}
