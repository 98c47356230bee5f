#include "fx/frame_impl.h"

#include "afxbasepane.h"
#include "panes/ribbon_pane.h"

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

void CFrameImpl::OnShowPopupMenu(CMFCPopupMenu* popup) { m_activePopup = popup; }

void CFrameImpl::OnClosePopupMenu(CMFCPopupMenu* popup) {
    if (m_activePopup == popup) {
        m_activePopup = nullptr;
    }
}
