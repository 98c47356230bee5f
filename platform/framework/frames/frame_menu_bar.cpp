// The menu bar of a frame with panes: how keys come to it.
#include "afxmenubar.h"
#include "fx/frame_impl.h"

CMFCMenuBar* CFrameImpl::MenuBar() const {
    CObList panes;
    m_dockingManager.GetPaneList(panes, FALSE, RUNTIME_CLASS(CMFCMenuBar));
    return panes.IsEmpty() ? nullptr : static_cast<CMFCMenuBar*>(panes.GetHead());
}

CMFCMenuBar* CFrameImpl::MenuBarForKeys(const MSG& message) {
    CMFCMenuBar* const bar = IsInputForFrame(message) ? MenuBar() : nullptr;
    return bar && bar->IsWindowVisible() ? bar : nullptr;
}

BOOL CFrameImpl::HandActiveKeyToMenuBar(const MSG& message) {
    CMFCMenuBar* const bar = MenuBarForKeys(message);
    return bar && bar->OnActiveKey(message);
}

BOOL CFrameImpl::HandKeyToMenuBar(const MSG& message) {
    CMFCMenuBar* const bar = MenuBarForKeys(message);
    return bar && bar->OnFrameKey(message);
}
