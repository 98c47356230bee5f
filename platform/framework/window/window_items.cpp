// Scrolling, dialog items and the exchange of their contents.
#include "fx/app.h"
#include "fx/data_exchange.h"
#include "fx/exceptions.h"
#include "fx/gdi_objects.h"
#include "fx/scoped_change.h"
#include "fx/wnd.h"
#include "window/thread_state.h"

namespace {

/// A scroll bar: the window's own, or the control that stands for it.
struct Bar {
    HWND window;
    int kind;
};

Bar BarOf(const CWnd& wnd, int kind) {
    if (const auto* control = reinterpret_cast<const CWnd*>(wnd.GetScrollBarCtrl(kind))) {
        return {control->m_hWnd, SB_CTL};
    }
    return {wnd.m_hWnd, kind};
}

} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const { return nullptr; }

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags) {
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    if (nBar == SB_BOTH) {
        EnableScrollBarCtrl(SB_HORZ, bEnable);
        EnableScrollBarCtrl(SB_VERT, bEnable);
        return;
    }
    if (CScrollBar* control = GetScrollBarCtrl(nBar)) {
        reinterpret_cast<CWnd*>(control)->EnableWindow(bEnable);
        return;
    }
    ::EnableScrollBar(m_hWnd, static_cast<UINT>(nBar), bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}

int CWnd::GetScrollPos(int nBar) const {
    const Bar bar = BarOf(*this, nBar);
    return ::GetScrollPos(bar.window, bar.kind);
}
int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
    const Bar bar = BarOf(*this, nBar);
    return ::SetScrollPos(bar.window, bar.kind, nPos, bRedraw);
}
void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
    const Bar bar = BarOf(*this, nBar);
    ::GetScrollRange(bar.window, bar.kind, lpMinPos, lpMaxPos);
}
void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
    const Bar bar = BarOf(*this, nBar);
    ::SetScrollRange(bar.window, bar.kind, nMinPos, nMaxPos, bRedraw);
}
BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    const Bar bar = BarOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(bar.window, bar.kind, lpScrollInfo);
}
BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    const Bar bar = BarOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(bar.window, bar.kind, lpScrollInfo, bRedraw);
    return TRUE;
}
int CWnd::GetScrollLimit(int nBar) {
    SCROLLINFO info = {};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE)) {
        return 0;
    }
    // The last page begins before the end of the range.
    return info.nPage > 1 ? info.nMax - static_cast<int>(info.nPage) + 1 : info.nMax;
}
BOOL CWnd::GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const {
    return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
}
void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) { ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow); }

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect) {
    if (IsWindowVisible() || lpRect != nullptr || lpClipRect != nullptr) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
        return;
    }
    // The system leaves the children of an invisible window where they are.
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CRect rect;
        ::GetWindowRect(child, &rect);
        ScreenToClient(&rect);
        ::SetWindowPos(child, nullptr, rect.left + xAmount, rect.top + yAmount, 0, 0,
                       SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
}
int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    const HRGN region = prgnUpdate != nullptr ? static_cast<HRGN>(prgnUpdate->GetSafeHandle()) : nullptr;
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, region, lpRectUpdate, flags);
}

// Dialog items.
int CWnd::GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
int CWnd::SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID)); }
CWnd* CWnd::GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
void CWnd::GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const {
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}
void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned) { ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned); }
int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}
int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    if (CWnd* item = GetDlgItem(nID)) {
        item->GetWindowText(rString);
    }
    return rString.GetLength();
}
void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemText(m_hWnd, nID, lpszString); }
LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}
CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}
CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}
void CWnd::CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton) {
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}
int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) {
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id) {
        if (IsDlgButtonChecked(id) != 0) {
            return id;
        }
    }
    return 0;
}
UINT CWnd::IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType) {
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}
int CWnd::DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType) {
    return ::DlgDirListComboBox(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
}
BOOL CWnd::DlgDirSelect(LPTSTR lpString, int nIDListBox) {
    return ::DlgDirSelectEx(m_hWnd, lpString, MAX_PATH, nIDListBox);
}
BOOL CWnd::DlgDirSelectComboBox(LPTSTR lpString, int nIDComboBox) {
    return ::DlgDirSelectComboBoxEx(m_hWnd, lpString, MAX_PATH, nIDComboBox);
}

// A control that is filled notifies at once. A handler that answers by reading all of them would take over those that
// are not filled yet, so such notifications are not passed on.
BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    const fx::ScopedChange<HWND> exchanging(fx::CurrentThread().exchanging, m_hWnd);
    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) {
        // CDataExchange::Fail: the user has been told.
        e->Delete();
    } catch (CException* e) {
        e->ReportError(MB_ICONEXCLAMATION);
        e->Delete();
    }
    return FALSE;
}

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (control == nullptr) {
        AfxThrowNotSupportedException();
    }
    m_lastControl = control;
    m_isEdit = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    const HWND control = PrepareCtrl(nIDC);
    m_isEdit = true;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_lastControl != nullptr) {
        ::SetFocus(m_lastControl);
        if (m_isEdit) {
            ::SendMessage(m_lastControl, EM_SETSEL, 0, -1);
        }
    }
    AfxThrowUserException();
}
