#include "fx/bar_frame.h"

#include "afxmenubar.h"
#include "afxwinappex.h"
#include "fx/scoped_change.h"

namespace fx {

template <class Base>
BarFrameOf<Base>::BarFrameOf() = default;

template <class Base>
BarFrameOf<Base>::~BarFrameOf() = default;

template <class Base>
BOOL BarFrameOf<Base>::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    m_Impl.m_defaultResourceId = nIDResource;
    if (!Base::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext)) {
        return FALSE;
    }
    if (CMFCMenuBar* bar = m_Impl.MenuBar(); bar && this->m_hMenuDefault) {
        bar->SetDefaultMenuResId(nIDResource);
        bar->OnDefaultMenuLoaded(this->m_hMenuDefault);
    }
    m_Impl.OnLoadFrame();
    return TRUE;
}

template <class Base>
BOOL BarFrameOf<Base>::PreCreateWindow(CREATESTRUCT& cs) {
    // The panes cover the client area: painting under them would only flicker.
    cs.style |= WS_CLIPCHILDREN;
    return Base::PreCreateWindow(cs);
}

template <class Base>
int BarFrameOf<Base>::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return m_Impl.Create() ? Base::OnCreate(lpCreateStruct) : -1;
}

// The state is saved as soon as it is certain that the frame closes, and before anything of it goes.
template <class Base>
void BarFrameOf<Base>::OnClose() {
    auto* const application = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp());
    if (!application || application->m_pMainWnd != this) {
        Base::OnClose();
        return;
    }
    if (!application->SaveAllModified()) {
        return;
    }
    if (application->m_pszRegistryKey) {
        application->OnClosingMainFrame(&m_Impl);
    }
    application->HideApplication();
    this->DestroyWindow();
}

template <class Base>
void BarFrameOf<Base>::OnSize(UINT nType, int cx, int cy) {
    Base::OnSize(nType, cx, cy);
}

template <class Base>
void BarFrameOf<Base>::RecalcLayout(BOOL bNotify) {
    if (m_Impl.m_isInLayout || !this->m_hWnd) {
        return;
    }
    m_Impl.UpdateCaptionStyle();
    const ScopedChange<bool> layout(m_Impl.m_isInLayout, true);
    this->m_nIdleFlags &= ~(idleLayout | idleNotify);
    this->m_dockManager.RecalcLayout(bNotify);
    OnPanesPlaced();
}

template <class Base>
void BarFrameOf<Base>::AdjustDockingLayout(HDWP hdwp) {
    DockingFrameOf<Base>::AdjustDockingLayout(hdwp);
    OnPanesPlaced();
}

template <class Base>
void BarFrameOf<Base>::OnPanesPlaced() {}

template <class Base>
LRESULT BarFrameOf<Base>::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_Impl.OnDefault(message, wParam, lParam, [](CFrameWnd& frame, UINT number, WPARAM first, LPARAM second) {
        return static_cast<BarFrameOf&>(frame).Base::DefWindowProc(number, first, second);
    });
}

template <class Base>
LRESULT BarFrameOf<Base>::OnChangeVisualManager(WPARAM, LPARAM) {
    m_Impl.OnChangeVisualManager();
    return 0;
}

template <class Base>
BOOL BarFrameOf<Base>::OnShowPanes(BOOL bShow) {
    return this->m_dockManager.ShowPanes(bShow);
}

template <class Base>
void BarFrameOf<Base>::EnablePaneMenu(BOOL bEnable, UINT uiCustomizeCmd, const CString& strCustomizeLabel,
                                      UINT uiViewToolbarsMenuEntryID, BOOL bContextMenuShowsToolbarsOnly,
                                      BOOL bViewMenuShowsToolbarsOnly) {
    m_Impl.SetPaneEntry(bEnable ? uiViewToolbarsMenuEntryID : 0, bViewMenuShowsToolbarsOnly != FALSE);
    this->m_dockManager.EnablePaneContextMenu(bEnable, uiCustomizeCmd, strCustomizeLabel,
                                              bContextMenuShowsToolbarsOnly);
}

template <class Base>
CMFCRibbonBar* BarFrameOf<Base>::GetRibbonBar() {
    return m_Impl.RibbonBar();
}

template <class Base>
const CMFCMenuBar* BarFrameOf<Base>::GetMenuBar() const {
    return m_Impl.MenuBar();
}

template <class Base>
BOOL BarFrameOf<Base>::IsMenuBarAvailable() const {
    return m_Impl.MenuBar() != nullptr;
}

template <class Base>
CFrameImpl& BarFrameOf<Base>::GetFrameImpl() {
    return m_Impl;
}

template <class Base>
UINT BarFrameOf<Base>::GetDefaultResId() const {
    return m_Impl.m_defaultResourceId;
}

template <class Base>
CMFCPopupMenu* BarFrameOf<Base>::GetActivePopup() const {
    return m_Impl.ActivePopup();
}

template <class Base>
BOOL BarFrameOf<Base>::OnShowPopupMenu(CMFCPopupMenu* pMenu) {
    m_Impl.OnShowPopupMenu(pMenu);
    return TRUE;
}

template <class Base>
void BarFrameOf<Base>::OnClosePopupMenu(CMFCPopupMenu* pMenuPopup) {
    m_Impl.OnClosePopupMenu(pMenuPopup);
}

template <class Base>
BOOL BarFrameOf<Base>::OnDrawMenuImage(CDC*, const CMFCToolBarMenuButton*, const CRect&) {
    return FALSE;
}

template <class Base>
BOOL BarFrameOf<Base>::GetToolbarButtonToolTipText(CMFCToolBarButton*, CString&) {
    return FALSE;
}

template <class Base>
BOOL BarFrameOf<Base>::PreTranslateMessage(MSG* pMsg) {
    return m_Impl.HandWheelToRibbon(*pMsg) || m_Impl.HandActiveKeyToRibbon(*pMsg) ||
           m_Impl.HandActiveKeyToMenuBar(*pMsg) || Base::PreTranslateMessage(pMsg) || m_Impl.HandKeyToRibbon(*pMsg) ||
           m_Impl.HandKeyToMenuBar(*pMsg);
}

template <class Base>
BOOL BarFrameOf<Base>::ShowInMenuBar(HMENU hMenu) {
    CMFCMenuBar* bar = m_Impl.MenuBar();
    if (bar && hMenu) {
        bar->CreateFromMenu(hMenu, hMenu == this->m_hMenuDefault);
    }
    return bar != nullptr;
}

template <class Base>
LRESULT BarFrameOf<Base>::OnToolbarCreateNew(WPARAM, LPARAM lp) {
    return reinterpret_cast<LRESULT>(m_Impl.CreateUserToolBar(reinterpret_cast<LPCTSTR>(lp)));
}

template <class Base>
LRESULT BarFrameOf<Base>::OnToolbarDelete(WPARAM, LPARAM lp) {
    return m_Impl.DeleteUserToolBar(reinterpret_cast<const CMFCToolBar*>(lp));
}

template <class Base>
BOOL BarFrameOf<Base>::OnPaneCheck(UINT nID) {
    CBasePane* pane = this->GetPane(nID);
    if (!pane) {
        return FALSE;
    }
    this->ShowPane(pane, !pane->IsVisible(), FALSE, FALSE);
    return TRUE;
}

template <class Base>
void BarFrameOf<Base>::OnUpdatePaneMenu(CCmdUI* pCmdUI) {
    if (CBasePane* pane = this->GetPane(pCmdUI->m_nID)) {
        pCmdUI->SetCheck(pane->IsVisible());
    } else {
        pCmdUI->ContinueRouting();
    }
}

template class BarFrameOf<CFrameWnd>;
template class BarFrameOf<CMDIFrameWnd>;

} // namespace fx
