#include "fx/frame_impl.h"

#include "afxbasepane.h"
#include "afxribbonbar.h"
#include "panes/ribbon_pane.h"

#include <windowsx.h>

bool CFrameImpl::Create() { return m_dockingManager.Create(m_frame) != FALSE; }

CMFCRibbonBar* CFrameImpl::RibbonBar() {
    CObList panes;
    m_dockingManager.GetPaneList(panes);
    for (POSITION position = panes.GetHeadPosition(); position;) {
        if (CMFCRibbonBar* ribbon = RibbonPane(static_cast<CBasePane*>(panes.GetNext(position)))) {
            return ribbon;
        }
    }
    return nullptr;
}

// The system sends the wheel to the focus. A window inside the ribbon that has both focus and pointer keeps it.
BOOL CFrameImpl::HandWheelToRibbon(const MSG& message) {
    if (message.message != WM_MOUSEWHEEL || ::GetCapture() || !m_frame->IsWindowEnabled()) {
        return FALSE;
    }
    const CMFCRibbonBar* const bar = RibbonBar();
    const HWND ribbon = bar ? bar->GetSafeHwnd() : nullptr;
    const HWND below = ::WindowFromPoint({GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)});
    const bool isOverRibbon = ribbon && (below == ribbon || ::IsChild(ribbon, below));
    if (!isOverRibbon || message.hwnd == below) {
        return FALSE;
    }
    ::SendMessageW(ribbon, message.message, message.wParam, message.lParam);
    return TRUE;
}

void CFrameImpl::OnShowPopupMenu(CMFCPopupMenu* popup) { m_activePopup = popup; }

void CFrameImpl::OnClosePopupMenu(CMFCPopupMenu* popup) {
    if (m_activePopup == popup) {
        m_activePopup = nullptr;
    }
}
