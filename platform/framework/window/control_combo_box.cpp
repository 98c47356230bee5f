#include "fx/combo_box.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

CComboBox::~CComboBox() { DestroyWindow(); }

int CComboBox::AddString(LPCTSTR lpszString) { return Send<int>(*this, CB_ADDSTRING, 0, lpszString); }

void CComboBox::Clear() { Send(*this, WM_CLEAR); }

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }

void CComboBox::Copy() { Send(*this, WM_COPY); }

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CComboBox::Cut() { Send(*this, WM_CUT); }

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) { (void)lpDeleteItemStruct; }

int CComboBox::DeleteString(UINT nIndex) { return Send<int>(*this, CB_DELETESTRING, nIndex); }

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard) { return Send<int>(*this, CB_DIR, attr, lpszWildCard); }

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const {
    return Send<int>(*this, CB_FINDSTRING, nStartAfter, lpszString);
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return Send<int>(*this, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const {
    pcbi->cbSize = sizeof(COMBOBOXINFO);
    return Send<BOOL>(*this, CB_GETCOMBOBOXINFO, 0, pcbi);
}

int CComboBox::GetCount() const { return Send<int>(*this, CB_GETCOUNT); }

CString CComboBox::GetCueBanner() const {
    wchar_t text[256] = L"";
    GetCueBanner(text, 256);
    return CString(text);
}

BOOL CComboBox::GetCueBanner(LPTSTR lpszText, int cchText) const {
    return Send<BOOL>(*this, CB_GETCUEBANNER, lpszText, cchText);
}

int CComboBox::GetCurSel() const { return Send<int>(*this, CB_GETCURSEL); }

void CComboBox::GetDroppedControlRect(LPRECT lprect) const { Send(*this, CB_GETDROPPEDCONTROLRECT, 0, lprect); }

BOOL CComboBox::GetDroppedState() const { return Send<BOOL>(*this, CB_GETDROPPEDSTATE); }

int CComboBox::GetDroppedWidth() const { return Send<int>(*this, CB_GETDROPPEDWIDTH); }

DWORD CComboBox::GetEditSel() const { return Send<DWORD>(*this, CB_GETEDITSEL); }

BOOL CComboBox::GetExtendedUI() const { return Send<BOOL>(*this, CB_GETEXTENDEDUI); }

UINT CComboBox::GetHorizontalExtent() const { return Send<UINT>(*this, CB_GETHORIZONTALEXTENT); }

DWORD_PTR CComboBox::GetItemData(int nIndex) const { return Send<DWORD_PTR>(*this, CB_GETITEMDATA, nIndex); }

void* CComboBox::GetItemDataPtr(int nIndex) const { return Send<void*>(*this, CB_GETITEMDATA, nIndex); }

int CComboBox::GetItemHeight(int nIndex) const { return Send<int>(*this, CB_GETITEMHEIGHT, nIndex); }

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const { return Send<int>(*this, CB_GETLBTEXT, nIndex, lpszText); }

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    rString = ItemText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, nIndex);
}

int CComboBox::GetLBTextLen(int nIndex) const { return Send<int>(*this, CB_GETLBTEXTLEN, nIndex); }

LCID CComboBox::GetLocale() const { return Send<LCID>(*this, CB_GETLOCALE); }

int CComboBox::GetMinVisible() const { return Send<int>(*this, CB_GETMINVISIBLE); }

int CComboBox::GetTopIndex() const { return Send<int>(*this, CB_GETTOPINDEX); }

int CComboBox::InitStorage(int nItems, UINT nBytes) { return Send<int>(*this, CB_INITSTORAGE, nItems, nBytes); }

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString) {
    return Send<int>(*this, CB_INSERTSTRING, nIndex, lpszString);
}

BOOL CComboBox::LimitText(int nMaxChars) { return Send<BOOL>(*this, CB_LIMITTEXT, nMaxChars); }

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

void CComboBox::Paste() { Send(*this, WM_PASTE); }

void CComboBox::ResetContent() { Send(*this, CB_RESETCONTENT); }

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString) {
    return Send<int>(*this, CB_SELECTSTRING, nStartAfter, lpszString);
}

BOOL CComboBox::SetCueBanner(LPCTSTR lpszText) { return Send<BOOL>(*this, CB_SETCUEBANNER, 0, lpszText); }

int CComboBox::SetCurSel(int nSelect) { return Send<int>(*this, CB_SETCURSEL, nSelect); }

int CComboBox::SetDroppedWidth(UINT nWidth) { return Send<int>(*this, CB_SETDROPPEDWIDTH, nWidth); }

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar) {
    return Send<BOOL>(*this, CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar));
}

int CComboBox::SetExtendedUI(BOOL bExtended) { return Send<int>(*this, CB_SETEXTENDEDUI, bExtended); }

void CComboBox::SetHorizontalExtent(UINT nExtent) { Send(*this, CB_SETHORIZONTALEXTENT, nExtent); }

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return Send<int>(*this, CB_SETITEMDATA, nIndex, dwItemData);
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData) { return Send<int>(*this, CB_SETITEMDATA, nIndex, pData); }

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return Send<int>(*this, CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

LCID CComboBox::SetLocale(LCID nNewLocale) { return Send<LCID>(*this, CB_SETLOCALE, nNewLocale); }

BOOL CComboBox::SetMinVisibleItems(int iMinVisible) { return Send<BOOL>(*this, CB_SETMINVISIBLE, iMinVisible); }

int CComboBox::SetTopIndex(int nIndex) { return Send<int>(*this, CB_SETTOPINDEX, nIndex); }

void CComboBox::ShowDropDown(BOOL bShowIt) { Send(*this, CB_SHOWDROPDOWN, bShowIt); }

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return RouteOwnerDraw(*this, message, lParam, pResult) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
