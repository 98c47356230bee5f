#include "afxbasetoolbar.h"

IMPLEMENT_DYNCREATE(CMFCBaseToolBar, CPane)

CMFCBaseToolBar::CMFCBaseToolBar() = default;

CMFCBaseToolBar::~CMFCBaseToolBar() = default;

// A toolbar shrinks to its first button: what does not fit is cut off.
void CMFCBaseToolBar::GetMinSize(CSize& size) const { size = CSize(0, 0); }

void CMFCBaseToolBar::OnAfterChangeParent(CWnd* pWndOldParent) {
    CPane::OnAfterChangeParent(pWndOldParent);
    RecalcLayout();
    // Gripper, rows and the button of the rest depend on where it lies, even when its size stays the same.
    AdjustLayout();
}
