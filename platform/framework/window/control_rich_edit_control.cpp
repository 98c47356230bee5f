#include "fx/rich_edit_control.h"

#include "fx/string.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

CRichEditCtrl::CRichEditCtrl() = default;

CRichEditCtrl::~CRichEditCtrl() { DestroyWindow(); }

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CRichEditCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    static const HMODULE library = ::LoadLibraryExW(L"msftedit.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return library && CWnd::CreateEx(dwExStyle, MSFTEDIT_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CRichEditCtrl::CanUndo() const { return Send<BOOL>(*this, EM_CANUNDO); }

BOOL CRichEditCtrl::Undo() { return Send<BOOL>(*this, EM_UNDO); }

void CRichEditCtrl::EmptyUndoBuffer() { Send(*this, EM_EMPTYUNDOBUFFER); }

void CRichEditCtrl::Clear() { Send(*this, WM_CLEAR); }

void CRichEditCtrl::Copy() { Send(*this, WM_COPY); }

void CRichEditCtrl::Cut() { Send(*this, WM_CUT); }

void CRichEditCtrl::Paste() { Send(*this, WM_PASTE); }

BOOL CRichEditCtrl::CanPaste(UINT nFormat) const { return Send<BOOL>(*this, EM_CANPASTE, nFormat); }

BOOL CRichEditCtrl::GetModify() const { return Send<BOOL>(*this, EM_GETMODIFY); }

void CRichEditCtrl::SetModify(BOOL bModified) { Send(*this, EM_SETMODIFY, bModified); }

BOOL CRichEditCtrl::SetReadOnly(BOOL bReadOnly) { return Send<BOOL>(*this, EM_SETREADONLY, bReadOnly); }

void CRichEditCtrl::LimitText(long nChars) { Send(*this, EM_EXLIMITTEXT, 0, nChars); }

long CRichEditCtrl::GetLimitText() const { return Send<long>(*this, EM_GETLIMITTEXT); }

long CRichEditCtrl::GetTextLength() const { return Send<long>(*this, WM_GETTEXTLENGTH); }

int CRichEditCtrl::GetLineCount() const { return Send<int>(*this, EM_GETLINECOUNT); }

int CRichEditCtrl::LineIndex(int nLine) const { return Send<int>(*this, EM_LINEINDEX, nLine); }

int CRichEditCtrl::LineLength(int nLine) const { return Send<int>(*this, EM_LINELENGTH, nLine); }

long CRichEditCtrl::LineFromChar(long nIndex) const { return Send<long>(*this, EM_EXLINEFROMCHAR, 0, nIndex); }

void CRichEditCtrl::GetSel(CHARRANGE& cr) const { Send(*this, EM_EXGETSEL, 0, &cr); }

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const {
    CHARRANGE range{};
    GetSel(range);
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar) {
    CHARRANGE range{nStartChar, nEndChar};
    SetSel(range);
}

void CRichEditCtrl::SetSel(CHARRANGE& cr) { Send(*this, EM_EXSETSEL, 0, &cr); }

CString CRichEditCtrl::GetSelText() const {
    CHARRANGE range{};
    GetSel(range);
    std::vector<wchar_t> text(static_cast<size_t>(range.cpMax - range.cpMin) + 1);
    Send(*this, EM_GETSELTEXT, 0, text.data());
    return CString(text.data());
}

void CRichEditCtrl::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo) {
    Send(*this, EM_REPLACESEL, bCanUndo, lpszNewText);
}

void CRichEditCtrl::HideSelection(BOOL bHide, BOOL bPerm) { Send(*this, EM_HIDESELECTION, bHide, bPerm); }

void CRichEditCtrl::GetRect(LPRECT lpRect) const { Send(*this, EM_GETRECT, 0, lpRect); }

void CRichEditCtrl::SetRect(LPCRECT lpRect) { Send(*this, EM_SETRECT, 0, lpRect); }

COLORREF CRichEditCtrl::SetBackgroundColor(BOOL bSysColor, COLORREF cr) {
    return Send<COLORREF>(*this, EM_SETBKGNDCOLOR, bSysColor, cr);
}

DWORD CRichEditCtrl::GetDefaultCharFormat(CHARFORMAT& cf) const {
    cf.cbSize = sizeof cf;
    return Send<DWORD>(*this, EM_GETCHARFORMAT, SCF_DEFAULT, &cf);
}

BOOL CRichEditCtrl::SetDefaultCharFormat(CHARFORMAT& cf) {
    cf.cbSize = sizeof cf;
    return Send<BOOL>(*this, EM_SETCHARFORMAT, SCF_DEFAULT, &cf);
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMAT& cf) const {
    cf.cbSize = sizeof cf;
    return Send<DWORD>(*this, EM_GETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetSelectionCharFormat(CHARFORMAT& cf) {
    cf.cbSize = sizeof cf;
    return Send<BOOL>(*this, EM_SETCHARFORMAT, SCF_SELECTION, &cf);
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT& pf) const {
    pf.cbSize = sizeof pf;
    return Send<DWORD>(*this, EM_GETPARAFORMAT, 0, &pf);
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT& pf) {
    pf.cbSize = sizeof pf;
    return Send<BOOL>(*this, EM_SETPARAFORMAT, 0, &pf);
}

long CRichEditCtrl::GetEventMask() const { return Send<long>(*this, EM_GETEVENTMASK); }

DWORD CRichEditCtrl::SetEventMask(DWORD dwEventMask) { return Send<DWORD>(*this, EM_SETEVENTMASK, 0, dwEventMask); }

long CRichEditCtrl::StreamIn(int nFormat, EDITSTREAM& es) { return Send<long>(*this, EM_STREAMIN, nFormat, &es); }

long CRichEditCtrl::StreamOut(int nFormat, EDITSTREAM& es) { return Send<long>(*this, EM_STREAMOUT, nFormat, &es); }

CPoint CRichEditCtrl::GetCharPos(long lChar) const {
    POINTL position{};
    Send(*this, EM_POSFROMCHAR, &position, lChar);
    return CPoint(position.x, position.y);
}

int CRichEditCtrl::CharFromPos(CPoint pt) const {
    const POINTL position{pt.x, pt.y};
    return Send<int>(*this, EM_CHARFROMPOS, 0, &position);
}
