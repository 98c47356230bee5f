// Members that are one call of the system: text, style, state, place, painting, input, clipboard, menus.
#include "fx/app.h"
#include "fx/dc.h"
#include "fx/gdi_objects.h"
#include "fx/menu.h"
#include "fx/wnd.h"

namespace {

HDC HandleOf(const CDC* dc) { return dc != nullptr ? dc->m_hDC : nullptr; }
HRGN HandleOf(const CRgn* region) { return region != nullptr ? static_cast<HRGN>(region->GetSafeHandle()) : nullptr; }

BOOL ModifyBits(HWND window, int index, DWORD remove, DWORD add, UINT flags) {
    const DWORD before = static_cast<DWORD>(::GetWindowLongPtr(window, index));
    const DWORD after = (before & ~remove) | add;
    if (before == after) {
        return FALSE;
    }
    ::SetWindowLongPtr(window, index, static_cast<LONG_PTR>(after));
    if (flags != 0) {
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}

} // namespace

// Family.
CWnd* CWnd::GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
CWnd* CWnd::SetParent(CWnd* pWndNewParent) { return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd())); }
CWnd* CWnd::GetOwner() const { return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent(); }
void CWnd::SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd->GetSafeHwnd(); }
CWnd* CWnd::GetAncestor(UINT gaFlags) const { return FromHandle(::GetAncestor(m_hWnd, gaFlags)); }
CWnd* CWnd::GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
CWnd* CWnd::GetNextWindow(UINT nFlag) const { return FromHandle(::GetWindow(m_hWnd, nFlag)); }
CWnd* CWnd::GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
CWnd* CWnd::GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
BOOL CWnd::IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, pWnd->GetSafeHwnd()); }
CWnd* CWnd::ChildWindowFromPoint(POINT point) const { return FromHandle(::ChildWindowFromPoint(m_hWnd, point)); }
CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const {
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}
CWnd* PASCAL CWnd::WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
CWnd* PASCAL CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}
CWnd* CWnd::FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow) {
    return FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
}
CWnd* PASCAL CWnd::GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }

// Messages.
LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}
BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}
BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}
BOOL CWnd::IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessage(m_hWnd, lpMsg); }

// Text, font, icons.
void CWnd::SetWindowText(LPCTSTR lpszString) { ::SetWindowText(m_hWnd, lpszString); }
int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}
void CWnd::GetWindowText(CString& rString) const {
    const int length = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBuffer(length + 1), length + 1);
    rString.ReleaseBuffer();
}
int CWnd::GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    const HGDIOBJ font = pFont != nullptr ? pFont->GetSafeHandle() : nullptr;
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(font), bRedraw);
}
CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}
HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon) {
    return reinterpret_cast<HICON>(
        ::SendMessage(m_hWnd, WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(hIcon)));
}
HICON CWnd::GetIcon(BOOL bBigIcon) const {
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL, 0));
}

// Style and state.
DWORD CWnd::GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE)); }
DWORD CWnd::GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE)); }
BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyStyle(m_hWnd, dwRemove, dwAdd, nFlags);
}
BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyStyleEx(m_hWnd, dwRemove, dwAdd, nFlags);
}
BOOL PASCAL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyBits(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}
BOOL PASCAL CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyBits(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}
BOOL CWnd::EnableWindow(BOOL bEnable) { return ::EnableWindow(m_hWnd, bEnable); }
BOOL CWnd::IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
BOOL CWnd::ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
BOOL CWnd::IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
BOOL CWnd::IsIconic() const { return ::IsIconic(m_hWnd); }
BOOL CWnd::IsZoomed() const { return ::IsZoomed(m_hWnd); }
BOOL CWnd::AnimateWindow(DWORD dwTime, DWORD dwFlags) { return ::AnimateWindow(m_hWnd, dwTime, dwFlags); }
void CWnd::CloseWindow() { ::CloseWindow(m_hWnd); }
BOOL CWnd::OpenIcon() { return ::OpenIcon(m_hWnd); }
UINT CWnd::ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
void CWnd::ShowOwnedPopups(BOOL bShow) { ::ShowOwnedPopups(m_hWnd, bShow); }
BOOL CWnd::FlashWindow(BOOL bInvert) { return ::FlashWindow(m_hWnd, bInvert); }
BOOL CWnd::FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout) {
    FLASHWINFO info = {sizeof(info), m_hWnd, dwFlags, uCount, dwTimeout};
    return ::FlashWindowEx(&info);
}
BOOL CWnd::GetWindowInfo(PWINDOWINFO pwi) const { return ::GetWindowInfo(m_hWnd, pwi); }
BOOL CWnd::GetTitleBarInfo(PTITLEBARINFO pti) const { return ::GetTitleBarInfo(m_hWnd, pti); }
BOOL CWnd::GetMenuBarInfo(LONG idObject, LONG idItem, PMENUBARINFO pmbi) const {
    return ::GetMenuBarInfo(m_hWnd, idObject, idItem, pmbi);
}
BOOL CWnd::SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags) {
    return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
}
BOOL CWnd::GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const {
    return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
}
BOOL CWnd::UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc, COLORREF crKey,
                               BLENDFUNCTION* pblend, DWORD dwFlags) {
    return ::UpdateLayeredWindow(m_hWnd, HandleOf(pDCDst), pptDst, psize, HandleOf(pDCSrc), pptSrc, crKey, pblend,
                                 dwFlags);
}
BOOL CWnd::IsTouchWindow() const { return ::IsTouchWindow(m_hWnd, nullptr); }
BOOL CWnd::RegisterTouchWindow(BOOL bRegister, ULONG ulFlags) {
    return bRegister ? ::RegisterTouchWindow(m_hWnd, ulFlags) : ::UnregisterTouchWindow(m_hWnd);
}

// Place.
void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}
void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}
BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
}
void CWnd::BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
void CWnd::GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
void CWnd::GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof(WINDOWPLACEMENT);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}
BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) {
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof(placement);
    return ::SetWindowPlacement(m_hWnd, &placement);
}
int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }
int CWnd::GetWindowRgn(HRGN hRgn) const { return ::GetWindowRgn(m_hWnd, hRgn); }
void CWnd::ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}
void CWnd::ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}
void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), reinterpret_cast<LPPOINT>(lpRect), 2);
}
void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
}

// Painting.
CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) { return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint)); }
void CWnd::EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
CDC* CWnd::GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, HandleOf(prgnClip), flags));
}
CDC* CWnd::GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
int CWnd::ReleaseDC(CDC* pDC) { return ::ReleaseDC(m_hWnd, HandleOf(pDC)); }
void CWnd::UpdateWindow() { ::UpdateWindow(m_hWnd); }
void CWnd::SetRedraw(BOOL bRedraw) { ::SendMessage(m_hWnd, WM_SETREDRAW, bRedraw, 0); }
BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) { return ::GetUpdateRgn(m_hWnd, HandleOf(pRgn), bErase); }
void CWnd::Invalidate(BOOL bErase) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) { ::InvalidateRgn(m_hWnd, HandleOf(pRgn), bErase); }
void CWnd::ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
void CWnd::ValidateRgn(CRgn* pRgn) { ::ValidateRgn(m_hWnd, HandleOf(pRgn)); }
BOOL CWnd::LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
void CWnd::UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    return ::RedrawWindow(m_hWnd, lpRectUpdate, HandleOf(prgnUpdate), flags);
}
void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(HandleOf(pDC)), static_cast<LPARAM>(dwFlags));
}
void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(HandleOf(pDC)), static_cast<LPARAM>(dwFlags));
}
BOOL CWnd::PrintWindow(CDC* pDC, UINT nFlags) const { return ::PrintWindow(m_hWnd, HandleOf(pDC), nFlags); }
BOOL CWnd::DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo) {
    return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
}
BOOL CWnd::DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags) {
    return ::DrawCaption(m_hWnd, HandleOf(pDC), lprc, uFlags);
}

// Input.
CWnd* PASCAL CWnd::GetFocus() { return FromHandle(::GetFocus()); }
CWnd* CWnd::SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
CWnd* PASCAL CWnd::GetCapture() { return FromHandle(::GetCapture()); }
CWnd* CWnd::SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
CWnd* PASCAL CWnd::GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
CWnd* CWnd::SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
CWnd* PASCAL CWnd::GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
BOOL CWnd::SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD)) {
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}
BOOL CWnd::KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
BOOL CWnd::DragDetect(POINT pt) const { return ::DragDetect(m_hWnd, pt); }
void CWnd::DragAcceptFiles(BOOL bAccept) { ::DragAcceptFiles(m_hWnd, bAccept); }
void CWnd::CreateCaret(CBitmap* pBitmap) {
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(pBitmap->GetSafeHandle()), 0, 0);
}
void CWnd::CreateGrayCaret(int nWidth, int nHeight) {
    // The value 1 in place of a bitmap is the system's gray.
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(UINT_PTR{1}), nWidth, nHeight);
}
void CWnd::CreateSolidCaret(int nWidth, int nHeight) { ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight); }
CPoint PASCAL CWnd::GetCaretPos() {
    CPoint point;
    ::GetCaretPos(&point);
    return point;
}
void PASCAL CWnd::SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
void CWnd::HideCaret() { ::HideCaret(m_hWnd); }
void CWnd::ShowCaret() { ::ShowCaret(m_hWnd); }

// Clipboard.
BOOL CWnd::OpenClipboard() { return ::OpenClipboard(m_hWnd); }
CWnd* PASCAL CWnd::GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
CWnd* PASCAL CWnd::GetClipboardViewer() { return FromHandle(::GetClipboardViewer()); }
CWnd* PASCAL CWnd::GetOpenClipboardWindow() { return FromHandle(::GetOpenClipboardWindow()); }
HWND CWnd::SetClipboardViewer() { return ::SetClipboardViewer(m_hWnd); }
BOOL CWnd::ChangeClipboardChain(HWND hWndNext) { return ::ChangeClipboardChain(m_hWnd, hWndNext); }

// Menus.
CMenu* CWnd::GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
BOOL CWnd::SetMenu(CMenu* pMenu) { return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu()); }
void CWnd::DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
CMenu* CWnd::GetSystemMenu(BOOL bRevert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert)); }
BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite) {
    return ::HiliteMenuItem(m_hWnd, pMenu->GetSafeHmenu(), nIDHiliteItem, nHilite);
}

// Help and accessibility.
DWORD CWnd::GetWindowContextHelpId() const { return ::GetWindowContextHelpId(m_hWnd); }
BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId) { return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId); }
void CWnd::NotifyWinEvent(DWORD event, LONG idObjectType, LONG idObject) {
    ::NotifyWinEvent(event, m_hWnd, idObjectType, idObject);
}
void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    if (CWinApp* app = AfxGetApp()) {
        app->WinHelp(dwData, nCmd);
    }
}
