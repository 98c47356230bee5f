#include "fx/edit_control.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

CEdit::~CEdit() { DestroyWindow(); }

BOOL CEdit::CanUndo() const { return Send<BOOL>(*this, EM_CANUNDO); }

int CEdit::CharFromPos(CPoint pt) const { return Send<int>(*this, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)); }

void CEdit::Clear() { Send(*this, WM_CLEAR); }

void CEdit::Copy() { Send(*this, WM_COPY); }

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::Cut() { Send(*this, WM_CUT); }

void CEdit::EmptyUndoBuffer() { Send(*this, EM_EMPTYUNDOBUFFER); }

BOOL CEdit::FmtLines(BOOL bAddEOL) { return Send<BOOL>(*this, EM_FMTLINES, bAddEOL); }

BOOL CEdit::GetCueBanner(LPWSTR lpszText, int cchText) const {
    return Send<BOOL>(*this, EM_GETCUEBANNER, lpszText, cchText);
}

CString CEdit::GetCueBanner() const {
    wchar_t text[256] = L"";
    GetCueBanner(text, 256);
    return CString(text);
}

int CEdit::GetFirstVisibleLine() const { return Send<int>(*this, EM_GETFIRSTVISIBLELINE); }

HLOCAL CEdit::GetHandle() const { return Send<HLOCAL>(*this, EM_GETHANDLE); }

BOOL CEdit::GetHighlight(int* pichStart, int* pichEnd) const {
    return Send<BOOL>(*this, EM_GETHILITE, pichStart, pichEnd);
}

UINT CEdit::GetLimitText() const { return Send<UINT>(*this, EM_GETLIMITTEXT); }

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const { return Send<int>(*this, EM_GETLINE, nIndex, lpszBuffer); }

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    *reinterpret_cast<WORD*>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return Send<int>(*this, EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLineCount() const { return Send<int>(*this, EM_GETLINECOUNT); }

DWORD CEdit::GetMargins() const { return Send<DWORD>(*this, EM_GETMARGINS); }

BOOL CEdit::GetModify() const { return Send<BOOL>(*this, EM_GETMODIFY); }

TCHAR CEdit::GetPasswordChar() const { return Send<TCHAR>(*this, EM_GETPASSWORDCHAR); }

void CEdit::GetRect(LPRECT lpRect) const { Send(*this, EM_GETRECT, 0, lpRect); }

DWORD CEdit::GetSel() const { return Send<DWORD>(*this, EM_GETSEL); }

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0;
    DWORD end = 0;
    Send(*this, EM_GETSEL, &start, &end);
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

BOOL CEdit::HideBalloonTip() { return Send<BOOL>(*this, EM_HIDEBALLOONTIP); }

void CEdit::LimitText(int nChars) { Send(*this, EM_LIMITTEXT, nChars); }

int CEdit::LineFromChar(int nIndex) const { return Send<int>(*this, EM_LINEFROMCHAR, nIndex); }

int CEdit::LineIndex(int nLine) const { return Send<int>(*this, EM_LINEINDEX, nLine); }

int CEdit::LineLength(int nLine) const { return Send<int>(*this, EM_LINELENGTH, nLine); }

void CEdit::LineScroll(int nLines, int nChars) { Send(*this, EM_LINESCROLL, nChars, nLines); }

void CEdit::Paste() { Send(*this, WM_PASTE); }

CPoint CEdit::PosFromChar(UINT nChar) const {
    const DWORD position = Send<DWORD>(*this, EM_POSFROMCHAR, nChar);
    return CPoint(static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position)));
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo) { Send(*this, EM_REPLACESEL, bCanUndo, lpszNewText); }

BOOL CEdit::SetCueBanner(LPCWSTR lpszText) { return Send<BOOL>(*this, EM_SETCUEBANNER, FALSE, lpszText); }

BOOL CEdit::SetCueBanner(LPCWSTR lpszText, BOOL fDrawWhenFocused) {
    return Send<BOOL>(*this, EM_SETCUEBANNER, fDrawWhenFocused, lpszText);
}

void CEdit::SetHandle(HLOCAL hBuffer) { Send(*this, EM_SETHANDLE, hBuffer); }

void CEdit::SetHighlight(int ichStart, int ichEnd) { Send(*this, EM_SETHILITE, ichStart, ichEnd); }

void CEdit::SetLimitText(UINT nMax) { Send(*this, EM_SETLIMITTEXT, nMax); }

void CEdit::SetMargins(UINT nLeft, UINT nRight) {
    Send(*this, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

void CEdit::SetModify(BOOL bModified) { Send(*this, EM_SETMODIFY, bModified); }

void CEdit::SetPasswordChar(TCHAR ch) { Send(*this, EM_SETPASSWORDCHAR, ch); }

BOOL CEdit::SetReadOnly(BOOL bReadOnly) { return Send<BOOL>(*this, EM_SETREADONLY, bReadOnly); }

void CEdit::SetRect(LPCRECT lpRect) { Send(*this, EM_SETRECT, 0, lpRect); }

void CEdit::SetRectNP(LPCRECT lpRect) { Send(*this, EM_SETRECTNP, 0, lpRect); }

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll) {
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    Send(*this, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll) {
        Send(*this, EM_SCROLLCARET);
    }
}

void CEdit::SetTabStops() { Send(*this, EM_SETTABSTOPS); }

BOOL CEdit::SetTabStops(const int& cxEachStop) { return Send<BOOL>(*this, EM_SETTABSTOPS, 1, &cxEachStop); }

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops) {
    return Send<BOOL>(*this, EM_SETTABSTOPS, nTabStops, rgTabStops);
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip) {
    return Send<BOOL>(*this, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon) {
    EDITBALLOONTIP tip{sizeof tip, lpszTitle, lpszText, ttiIcon};
    return ShowBalloonTip(&tip);
}

BOOL CEdit::Undo() { return Send<BOOL>(*this, EM_UNDO); }
