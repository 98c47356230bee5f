#include "afxwin.h"

#include "afxext.h"
#include "window/menu_items.h"

#include <algorithm>
#include <shellapi.h>
#include <string>
#include <utility>

// What the frame tells its user: prompts in the message bar, tooltips, the state of menu items.

namespace {

/// Commands from here on belong to the system (system menu, MDI children), not to the program.
constexpr UINT firstSystemCommand = 0xF000;

/// A command's string resource holds the prompt, a line break, and the tooltip. Empty without a resource.
CString PartOfCommandText(UINT command, int part) {
    CString text;
    CString answer;
    if (text.LoadString(command)) {
        AfxExtractSubString(answer, text, part);
    }
    return answer;
}

} // namespace

CWnd* CFrameWnd::GetMessageBar() { return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE); }

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const { rMessage = PartOfCommandText(nID, 0); }

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID) { SendMessage(WM_SETMESSAGESTRING, nID); }

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam) {
    if (CWnd* bar = GetMessageBar()) {
        CString text;
        if (lParam) {
            text = reinterpret_cast<LPCTSTR>(lParam);
        } else if (wParam) {
            GetMessageString(static_cast<UINT>(wParam), text);
        }
        bar->SetWindowText(text);
    }
    m_nIDTracking = static_cast<UINT>(wParam);
    return static_cast<LRESULT>(std::exchange(m_nIDLastMessage, static_cast<UINT>(wParam)));
}

LRESULT CFrameWnd::OnPopMessageString(WPARAM wParam, LPARAM lParam) {
    return SendMessage(WM_SETMESSAGESTRING, wParam ? wParam : AFX_IDS_IDLEMESSAGE, lParam);
}

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu) {
    CWnd::OnMenuSelect(nItemID, nFlags, hSysMenu);
    const bool isMenuClosed = nFlags == 0xFFFF;
    const bool hasNoCommand = nItemID == 0 || (nFlags & (MF_SEPARATOR | MF_POPUP | MF_MENUBREAK | MF_MENUBARBREAK));
    UINT message = nItemID;
    if (isMenuClosed) {
        message = AFX_IDS_IDLEMESSAGE;
    } else if (hasNoCommand || nItemID >= firstSystemCommand) {
        message = 0;
    }
    if (message != m_nIDLastMessage || isMenuClosed) {
        SetMessageText(message);
    }
}

BOOL CFrameWnd::OnToolTipText(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    auto* need = reinterpret_cast<NMTTDISPINFOW*>(pNMHDR);
    UINT_PTR command = pNMHDR->idFrom;
    if (need->uFlags & TTF_IDISHWND) {
        command = static_cast<UINT>(::GetDlgCtrlID(reinterpret_cast<HWND>(pNMHDR->idFrom)));
    }
    if (command == 0) {
        return FALSE;
    }
    m_toolTipText = PartOfCommandText(static_cast<UINT>(command), 1);
    if (m_toolTipText.IsEmpty()) {
        return FALSE;
    }
    need->lpszText = const_cast<LPTSTR>(static_cast<LPCTSTR>(m_toolTipText));
    *pResult = 0;
    // A tip that was made for a window below would stay behind the frame's other popups.
    ::SetWindowPos(pNMHDR->hwndFrom, HWND_TOP, 0, 0, 0, 0,
                   SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOMOVE | SWP_NOOWNERZORDER);
    return TRUE;
}

void CFrameWnd::OnInitMenuPopup(CMenu* pMenu, UINT nIndex, BOOL bSysMenu) {
    CWnd::OnInitMenuPopup(pMenu, nIndex, bSysMenu);
    CancelToolTips();
    if (bSysMenu || !pMenu) {
        return;
    }
    CCmdUI state;
    state.m_pMenu = pMenu;
    if (CMenu* bar = GetMenu()) {
        const UINT count = fx::ItemCountOf(*bar);
        for (UINT index = 0; index < count; ++index) {
            if (::GetSubMenu(bar->m_hMenu, static_cast<int>(index)) == pMenu->m_hMenu) {
                state.m_pParentMenu = bar;
            }
        }
    }
    state.m_nIndexMax = fx::ItemCountOf(*pMenu);
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        UpdateMenuItem(state, *pMenu);
    }
}

void CFrameWnd::UpdateMenuItem(CCmdUI& state, CMenu& menu) {
    state.m_nID = menu.GetMenuItemID(static_cast<int>(state.m_nIndex));
    if (state.m_nID == 0) {
        return;
    }
    constexpr UINT opensSubmenu = static_cast<UINT>(-1);
    if (state.m_nID == opensSubmenu) {
        // A submenu stands for its first item, so that its handler can disable the whole; it is never disabled for lack
        // of a handler.
        state.m_pSubMenu = menu.GetSubMenu(static_cast<int>(state.m_nIndex));
        state.m_nID = state.m_pSubMenu ? state.m_pSubMenu->GetMenuItemID(0) : 0;
        if (state.m_nID == 0 || state.m_nID == opensSubmenu) {
            return;
        }
        state.DoUpdate(this, FALSE);
    } else {
        state.m_pSubMenu = nullptr;
        state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < firstSystemCommand);
    }
    // The handler may have put items in or taken some out: go on behind those that it put in for this command.
    const UINT count = fx::ItemCountOf(menu);
    if (count < state.m_nIndexMax) {
        state.m_nIndex -= std::min(state.m_nIndexMax - count, state.m_nIndex + 1);
    }
    while (state.m_nIndex + 1 < count && menu.GetMenuItemID(static_cast<int>(state.m_nIndex + 1)) == state.m_nID) {
        ++state.m_nIndex;
    }
    state.m_nIndexMax = count;
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* pCmdUI) {
    struct Indicator {
        UINT id;
        int key;
    };
    static constexpr Indicator kIndicators[] = {
        {ID_INDICATOR_CAPS, VK_CAPITAL},
        {ID_INDICATOR_NUM, VK_NUMLOCK},
        {ID_INDICATOR_SCRL, VK_SCROLL},
        {ID_INDICATOR_KANA, VK_KANA},
    };
    const auto* const found = std::ranges::find(kIndicators, pCmdUI->m_nID, &Indicator::id);
    if (found == std::end(kIndicators)) {
        pCmdUI->ContinueRouting();
        return;
    }
    pCmdUI->Enable((::GetKeyState(found->key) & 1) != 0);
}

void CFrameWnd::OnDropFiles(HDROP hDropInfo) {
    SetActiveWindow(); // the user is here now
    CWinApp* const application = AfxGetApp();
    const UINT count = ::DragQueryFileW(hDropInfo, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count && application != nullptr; ++i) {
        std::wstring path(::DragQueryFileW(hDropInfo, i, nullptr, 0) + 1, L'\0');
        ::DragQueryFileW(hDropInfo, i, path.data(), static_cast<UINT>(path.size()));
        application->OpenDocumentFile(path.c_str());
    }
    ::DragFinish(hDropInfo);
}
