// Tooltips of a toolbar: one tool that follows the button under the pointer.
#include "afxtoolbar.h"

#include "afxkeyboardmanager.h"
#include "afxtooltipmanager.h"
#include "toolbar/hosted_control.h"
#include "toolbar/metrics.h"

namespace {

constexpr UINT_PTR kTool = 1;

/// The keys of the button's command in brackets, if users want to see them.
CString KeysBehind(const CMFCToolBarButton& button, CFrameWnd* frame) {
    CString keys;
    const bool isCommand = button.m_nID != 0 && button.m_nID != static_cast<UINT>(-1);
    const bool hasKeys = CMFCToolBar::GetShowShortcutKeys() && isCommand &&
                         CKeyboardManager::FindDefaultAccelerator(button.m_nID, keys, frame, TRUE);
    return hasKeys ? L" (" + keys + L")" : CString();
}

} // namespace

BOOL CMFCToolBar::PreTranslateMessage(MSG* pMsg) {
    const bool isMouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    const bool isOnBar = isMouse && pMsg->hwnd == m_hWnd && !m_bMenuMode;
    if (isOnBar && m_pToolTip == nullptr) {
        CreateToolBarTooltip(); // a window of its own, which most bars of a program never need
    }
    if (isOnBar && m_pToolTip != nullptr) {
        if (pMsg->message == WM_MOUSEMOVE) {
            PlaceTooltip(CPoint(AFX_GET_X_LPARAM(pMsg->lParam), AFX_GET_Y_LPARAM(pMsg->lParam)));
        }
        m_pToolTip->RelayEvent(pMsg);
    }
    if (pMsg->hwnd != m_hWnd) {
        CMFCToolBarButton* const button = toolbar::ButtonWith(*this, pMsg->hwnd);
        if (button != nullptr && button->PreTranslateControlMessage(pMsg)) {
            return TRUE;
        }
    }
    return CMFCBaseToolBar::PreTranslateMessage(pMsg);
}

void CMFCToolBar::CreateToolBarTooltip() {
    CTooltipManager::DeleteToolTip(m_pToolTip);
    m_iTooltipButton = -1;
    if (CTooltipManager::CreateToolTip(m_pToolTip, this, AFX_TOOLTIP_TYPE_TOOLBAR)) {
        m_pToolTip->AddTool(this, LPSTR_TEXTCALLBACK, CRect(0, 0, 0, 0), kTool);
    }
}

void CMFCToolBar::PlaceTooltip(CPoint point) {
    if (m_pToolTip == nullptr) {
        return;
    }
    const int hit = m_bShowTooltips ? HitTest(point) : -1;
    if (hit == m_iTooltipButton) {
        return;
    }
    m_iTooltipButton = hit;
    if (auto* const drawn = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, m_pToolTip)) {
        drawn->m_pHotButton = nullptr; // it may be about to be deleted
    }
    const CMFCToolBarButton* const button = GetButton(hit);
    m_pToolTip->Pop();
    m_pToolTip->SetToolRect(this, kTool, button ? button->Rect() : CRect(0, 0, 0, 0));
}

LRESULT CMFCToolBar::OnUpdateToolTips(WPARAM wp, LPARAM) {
    if ((wp & AFX_TOOLTIP_TYPE_TOOLBAR) != 0 && m_pToolTip != nullptr) {
        CreateToolBarTooltip();
    }
    return 0;
}

INT_PTR CMFCToolBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const int hit = m_bShowTooltips ? const_cast<CMFCToolBar*>(this)->HitTest(point) : -1;
    const CMFCToolBarButton* button = GetButton(hit);
    if (!button) {
        return -1;
    }
    if (pTI) {
        pTI->hwnd = m_hWnd;
        pTI->uId = static_cast<UINT_PTR>(hit) + 1;
        pTI->rect = button->Rect();
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return hit + 1;
}

BOOL CMFCToolBar::OnUserToolTip(CMFCToolBarButton* pButton, CString& strTTText) const {
    if (pButton->OnGetCustomToolTipText(strTTText)) {
        return TRUE;
    }
    CFrameWnd* frame = GetTopLevelFrame();
    if (frame && frame->GetToolbarButtonToolTipText(pButton, strTTText)) {
        return TRUE;
    }
    const int tabulator = pButton->m_strText.Find(L'\t');
    strTTText = toolbar::WithoutPrefix(tabulator >= 0 ? pButton->m_strText.Left(tabulator) : pButton->m_strText);
    CString resource;
    if (strTTText.IsEmpty() && pButton->m_nID != 0 && resource.LoadString(pButton->m_nID)) {
        const int lineEnd = resource.Find(L'\n');
        strTTText = lineEnd >= 0 ? resource.Mid(lineEnd + 1) : resource;
    }
    return !strTTText.IsEmpty();
}

BOOL CMFCToolBar::OnNeedTipText(UINT, NMHDR* pNMH, LRESULT* pResult) {
    auto* need = reinterpret_cast<NMTTDISPINFOW*>(pNMH);
    // The bar's own tooltip lies on one button at a time; the system's names it.
    const bool isOwn = m_pToolTip != nullptr && pNMH->hwndFrom == m_pToolTip->GetSafeHwnd();
    CMFCToolBarButton* button = GetButton(isOwn ? m_iTooltipButton : static_cast<int>(pNMH->idFrom) - 1);
    m_strToolTip.Empty();
    // Over an open menu the tooltip would cover what it says.
    if (!button || button->IsDroppedDown() || !OnUserToolTip(button, m_strToolTip)) {
        return FALSE;
    }
    m_strToolTip += KeysBehind(*button, GetTopLevelFrame());
    if (auto* const drawn = isOwn ? DYNAMIC_DOWNCAST(CMFCToolTipCtrl, m_pToolTip) : nullptr) {
        drawn->m_pHotButton = button;
    }
    need->lpszText = const_cast<LPTSTR>(static_cast<LPCTSTR>(m_strToolTip));
    *pResult = 0;
    return TRUE;
}
