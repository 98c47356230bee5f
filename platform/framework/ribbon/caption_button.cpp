// Minimise, maximise and close buttons that the bar shows for its frame or for a maximised MDI child.
#include "afxribbonbar.h"

#include "afxvisualmanager.h"
#include "ribbon/bar_menus.h"
#include "ribbon/bar_parts.h"

IMPLEMENT_DYNCREATE(CMFCRibbonCaptionButton, CMFCRibbonButton)

CMFCRibbonCaptionButton::CMFCRibbonCaptionButton() = default;

CMFCRibbonCaptionButton::CMFCRibbonCaptionButton(UINT uiSysCmd, HWND hwndMDIChild)
    : m_uiSysCmd(uiSysCmd), m_hwndMDIChild(hwndMDIChild) {}

HWND CMFCRibbonCaptionButton::TargetWindow() const {
    if (m_hwndMDIChild != nullptr) {
        return m_hwndMDIChild;
    }
    CMFCRibbonBar* bar = GetParentRibbonBar();
    return bar != nullptr && bar->GetSafeHwnd() != nullptr ? ::GetParent(bar->GetSafeHwnd()) : nullptr;
}

UINT CMFCRibbonCaptionButton::GetSystemCommand() const {
    const HWND window = TargetWindow();
    return m_uiSysCmd == SC_MAXIMIZE && window != nullptr && ::IsZoomed(window) ? SC_RESTORE : m_uiSysCmd;
}

CSize CMFCRibbonCaptionButton::GetRegularSize(CDC* /*pDC*/) {
    const CMFCRibbonBar* bar = GetParentRibbonBar();
    if (bar == nullptr) {
        return {0, 0};
    }
    const RibbonMetrics& metrics = bar->GetMetrics();
    return m_hwndMDIChild != nullptr ? CSize(metrics.childButtonSide, metrics.childButtonSide)
                                     : CSize(metrics.captionButtonWidth, metrics.captionButtonHeight);
}

CString CMFCRibbonCaptionButton::GetToolTipText() const {
    switch (GetSystemCommand()) {
    case SC_MINIMIZE:
        return RibbonText(RibbonTextId::WindowMinimize);
    case SC_MAXIMIZE:
        return RibbonText(RibbonTextId::WindowMaximize);
    case SC_RESTORE:
        return RibbonText(RibbonTextId::WindowRestore);
    case SC_CLOSE:
        return RibbonText(RibbonTextId::WindowClose);
    default:
        return {};
    }
}

void CMFCRibbonCaptionButton::OnDraw(CDC* pDC) {
    CMFCVisualManager::GetInstance()->OnDrawRibbonCaptionButton(pDC, this);
}

// Posted, so that the bar has finished with the click before the window closes.
void CMFCRibbonCaptionButton::OnClick(CPoint /*point*/) {
    if (const HWND window = TargetWindow(); window != nullptr) {
        ::PostMessageW(window, WM_SYSCOMMAND, GetSystemCommand(), 0);
    }
}
