#include "afxwin.h"

#include "afxext.h"
#include "fx/scoped_change.h"
#include "window/frame_title.h"

#include <utility>

// What lies inside the frame: bars, the client window, the menu bar; done at once or at idle time.

void CFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED) {
        RecalcLayout();
    }
}

void CFrameWnd::RecalcLayout(BOOL) {
    if (m_isInLayout) {
        return;
    }
    const fx::ScopedChange<bool> layout(m_isInLayout, true);
    m_nIdleFlags &= ~(idleLayout | idleNotify);
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
}

void CFrameWnd::DelayRecalcLayout(BOOL bNotify) { m_nIdleFlags |= bNotify ? idleLayout | idleNotify : idleLayout; }

void CFrameWnd::PlaceControlBars(AFX_SIZEPARENTPARAMS& place) {
    for (POSITION position = m_listControlBars.GetHeadPosition(); position;) {
        CObject* bar = m_listControlBars.GetNext(position);
        static_cast<CControlBar*>(bar)->SendMessage(WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&place));
    }
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM) {
    ShowDelayedBars();
    // What is asked for while this is done is for the next idle time.
    const UINT flags = std::exchange(m_nIdleFlags, 0);
    if (flags & idleMenu) {
        OnUpdateFrameMenu(m_hMenuAlt);
    }
    if (flags & idleTitle) {
        OnUpdateFrameTitle(TRUE);
    }
    if (flags & idleLayout) {
        RecalcLayout(flags & idleNotify);
        UpdateWindow();
    }
    return 0;
}

void CFrameWnd::ShowDelayedBars() {
    for (POSITION position = m_listControlBars.GetHeadPosition(); position;) {
        if (static_cast<CControlBar*>(m_listControlBars.GetNext(position))->ShowIfDelayed()) {
            m_nIdleFlags |= idleLayout;
        }
    }
}

CControlBar* CFrameWnd::GetControlBar(UINT nID) {
    if (nID == 0) {
        return nullptr;
    }
    for (POSITION position = m_listControlBars.GetHeadPosition(); position;) {
        auto* bar = static_cast<CControlBar*>(m_listControlBars.GetNext(position));
        if (static_cast<UINT>(bar->GetDlgCtrlID()) == nID) {
            return bar;
        }
    }
    return nullptr;
}

void CFrameWnd::AddControlBar(CControlBar* bar) {
    if (!m_listControlBars.Find(bar)) {
        m_listControlBars.AddTail(bar);
    }
}

void CFrameWnd::RemoveControlBar(CControlBar* bar) {
    if (const POSITION position = m_listControlBars.Find(bar)) {
        m_listControlBars.RemoveAt(position);
        DelayRecalcLayout();
    }
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay) {
    pBar->DelayShow(bShow);
    if (bDelay) {
        return;
    }
    pBar->ShowIfDelayed();
    RecalcLayout();
}

BOOL CFrameWnd::OnBarCheck(UINT nID) {
    CControlBar* bar = GetControlBar(nID);
    if (!bar) {
        return FALSE;
    }
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI) {
    if (CControlBar* bar = GetControlBar(pCmdUI->m_nID)) {
        pCmdUI->SetCheck(bar->IsVisible());
    } else {
        pCmdUI->ContinueRouting();
    }
}

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if ((GetStyle() & FWS_ADDTOTITLE) == 0) {
        return;
    }
    CString title = m_strTitle;
    CString added;
    if (CFrameWnd* const active = bAddToTitle ? GetActiveFrame() : nullptr) {
        added = active->DocumentTitle();
        if (added.IsEmpty() && active != this) {
            added = active->GetTitle();
        }
    }
    if (!added.IsEmpty()) {
        title = (GetStyle() & FWS_PREFIXTITLE) ? added + L" - " + m_strTitle : m_strTitle + L" - " + added;
    }
    fx::SetTitle(*this, title);
}

void CFrameWnd::OnUpdateFrameMenu(HMENU hMenuAlt) {
    const HMENU menu = hMenuAlt ? hMenuAlt : m_hMenuDefault;
    if (ShowInMenuBar(menu) || m_menuBarState == AFX_MBS_HIDDEN) {
        return;
    }
    if (menu && ::GetMenu(m_hWnd) != menu) {
        ::SetMenu(m_hWnd, menu);
    }
}

void CFrameWnd::DelayUpdateFrameMenu(HMENU hMenuAlt) {
    m_hMenuAlt = hMenuAlt;
    m_nIdleFlags |= idleMenu;
}

DWORD CFrameWnd::GetMenuBarState() { return m_menuBarState; }

BOOL CFrameWnd::SetMenuBarState(DWORD nState) {
    if (nState == m_menuBarState || (nState != AFX_MBS_VISIBLE && nState != AFX_MBS_HIDDEN)) {
        return FALSE;
    }
    if (!m_hMenuDefault) {
        m_hMenuDefault = ::GetMenu(m_hWnd);
    }
    if (!m_hMenuDefault) {
        return FALSE;
    }
    m_menuBarState = nState;
    if (nState == AFX_MBS_VISIBLE) {
        OnShowMenuBar();
    } else {
        OnHideMenuBar();
    }
    ::SetMenu(m_hWnd, nState == AFX_MBS_VISIBLE ? m_hMenuDefault : nullptr);
    return TRUE;
}

DWORD CFrameWnd::GetMenuBarVisibility() { return m_menuBarVisibility; }

void CFrameWnd::SetMenuBarVisibility(DWORD nStyle) {
    if (nStyle == 0 || (nStyle & ~(AFX_MBV_KEEPVISIBLE | AFX_MBV_DISPLAYONFOCUS | AFX_MBV_DISPLAYONF10)) != 0) {
        return;
    }
    m_menuBarVisibility = nStyle;
    SetMenuBarState(nStyle == AFX_MBV_KEEPVISIBLE ? AFX_MBS_VISIBLE : AFX_MBS_HIDDEN);
}

void CFrameWnd::OnShowMenuBar() {}

void CFrameWnd::OnHideMenuBar() {}

void CFrameWnd::OnSysCommand(UINT nID, LPARAM lParam) {
    if ((nID & 0xFFF0) == SC_KEYMENU && m_menuBarVisibility != AFX_MBV_KEEPVISIBLE && lParam != ' ') {
        m_isMenuBarShownForKeys = SetMenuBarState(AFX_MBS_VISIBLE) != FALSE;
    }
    CWnd::OnSysCommand(nID, lParam);
}

void CFrameWnd::OnExitMenuLoop(BOOL bIsTrackPopupMenu) {
    CWnd::OnExitMenuLoop(bIsTrackPopupMenu);
    if (std::exchange(m_isMenuBarShownForKeys, false)) {
        SetMenuBarState(AFX_MBS_HIDDEN);
    }
}
