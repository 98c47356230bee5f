#include "fx/status_bar_control.h"

#include "fx/string.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

CStatusBarCtrl::CStatusBarCtrl() = default;

CStatusBarCtrl::~CStatusBarCtrl() { DestroyWindow(); }

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, STATUSCLASSNAME, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::SetText(LPCTSTR lpszText, int nPane, int nType) {
    return Send<BOOL>(*this, SB_SETTEXT, MAKEWORD(nPane, 0) | nType, lpszText);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const {
    const int length = GetTextLength(nPane, pType);
    std::vector<wchar_t> text(static_cast<size_t>(length) + 1);
    Send(*this, SB_GETTEXT, nPane, text.data());
    return CString(text.data());
}

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const {
    const auto answer = Send<DWORD>(*this, SB_GETTEXTLENGTH, nPane);
    if (pType) {
        *pType = HIWORD(answer);
    }
    return LOWORD(answer);
}

BOOL CStatusBarCtrl::SetParts(int nParts, int* pWidths) { return Send<BOOL>(*this, SB_SETPARTS, nParts, pWidths); }

int CStatusBarCtrl::GetParts(int nParts, int* pParts) const { return Send<int>(*this, SB_GETPARTS, nParts, pParts); }

BOOL CStatusBarCtrl::GetBorders(int* pBorders) const { return Send<BOOL>(*this, SB_GETBORDERS, 0, pBorders); }

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const {
    int borders[3] = {};
    if (!GetBorders(borders)) {
        return FALSE;
    }
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return TRUE;
}

void CStatusBarCtrl::SetMinHeight(int nMin) { Send(*this, SB_SETMINHEIGHT, nMin); }

BOOL CStatusBarCtrl::SetSimple(BOOL bSimple) { return Send<BOOL>(*this, SB_SIMPLE, bSimple); }

BOOL CStatusBarCtrl::IsSimple() const { return Send<BOOL>(*this, SB_ISSIMPLE); }

BOOL CStatusBarCtrl::GetRect(int nPane, LPRECT lpRect) const { return Send<BOOL>(*this, SB_GETRECT, nPane, lpRect); }

COLORREF CStatusBarCtrl::SetBkColor(COLORREF cr) { return Send<COLORREF>(*this, SB_SETBKCOLOR, 0, cr); }

HICON CStatusBarCtrl::GetIcon(int iPart) const { return Send<HICON>(*this, SB_GETICON, iPart); }

BOOL CStatusBarCtrl::SetIcon(int nPane, HICON hIcon) { return Send<BOOL>(*this, SB_SETICON, nPane, hIcon); }

CString CStatusBarCtrl::GetTipText(int nPane) const {
    constexpr int longestText = 256;
    wchar_t text[longestText] = L"";
    Send(*this, SB_GETTIPTEXT, MAKEWPARAM(nPane, longestText), text);
    return CString(text);
}

void CStatusBarCtrl::SetTipText(int nPane, LPCTSTR pszTipText) { Send(*this, SB_SETTIPTEXT, nPane, pszTipText); }

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) { (void)lpDrawItemStruct; }

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
