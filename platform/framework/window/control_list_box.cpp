#include "fx/list_box.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

CListBox::~CListBox() { DestroyWindow(); }

int CListBox::AddString(LPCTSTR lpszItem) { return Send<int>(*this, LB_ADDSTRING, 0, lpszItem); }

int CListBox::CharToItem(UINT nKey, UINT nIndex) {
    (void)nKey;
    (void)nIndex;
    return -1;
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) { (void)lpDeleteItemStruct; }

int CListBox::DeleteString(UINT nIndex) { return Send<int>(*this, LB_DELETESTRING, nIndex); }

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard) { return Send<int>(*this, LB_DIR, attr, lpszWildCard); }

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const {
    return Send<int>(*this, LB_FINDSTRING, nStartAfter, lpszItem);
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return Send<int>(*this, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CListBox::GetAnchorIndex() const { return Send<int>(*this, LB_GETANCHORINDEX); }

int CListBox::GetCaretIndex() const { return Send<int>(*this, LB_GETCARETINDEX); }

int CListBox::GetCount() const { return Send<int>(*this, LB_GETCOUNT); }

int CListBox::GetCurSel() const { return Send<int>(*this, LB_GETCURSEL); }

int CListBox::GetHorizontalExtent() const { return Send<int>(*this, LB_GETHORIZONTALEXTENT); }

DWORD_PTR CListBox::GetItemData(int nIndex) const { return Send<DWORD_PTR>(*this, LB_GETITEMDATA, nIndex); }

void* CListBox::GetItemDataPtr(int nIndex) const { return Send<void*>(*this, LB_GETITEMDATA, nIndex); }

int CListBox::GetItemHeight(int nIndex) const { return Send<int>(*this, LB_GETITEMHEIGHT, nIndex); }

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const { return Send<int>(*this, LB_GETITEMRECT, nIndex, lpRect); }

DWORD CListBox::GetListBoxInfo() const { return Send<DWORD>(*this, LB_GETLISTBOXINFO); }

LCID CListBox::GetLocale() const { return Send<LCID>(*this, LB_GETLOCALE); }

int CListBox::GetSel(int nIndex) const { return Send<int>(*this, LB_GETSEL, nIndex); }

int CListBox::GetSelCount() const { return Send<int>(*this, LB_GETSELCOUNT); }

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const {
    return Send<int>(*this, LB_GETSELITEMS, nMaxItems, rgIndex);
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const { return Send<int>(*this, LB_GETTEXT, nIndex, lpszBuffer); }

void CListBox::GetText(int nIndex, CString& rString) const {
    rString = ItemText(*this, LB_GETTEXTLEN, LB_GETTEXT, nIndex);
}

int CListBox::GetTextLen(int nIndex) const { return Send<int>(*this, LB_GETTEXTLEN, nIndex); }

int CListBox::GetTopIndex() const { return Send<int>(*this, LB_GETTOPINDEX); }

int CListBox::InitStorage(int nItems, UINT nBytes) { return Send<int>(*this, LB_INITSTORAGE, nItems, nBytes); }

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem) { return Send<int>(*this, LB_INSERTSTRING, nIndex, lpszItem); }

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const DWORD answer = Send<DWORD>(*this, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(answer);
    return LOWORD(answer);
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

void CListBox::ResetContent() { Send(*this, LB_RESETCONTENT); }

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem) {
    return Send<int>(*this, LB_SELECTSTRING, nStartAfter, lpszItem);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem) {
    return bSelect ? Send<int>(*this, LB_SELITEMRANGEEX, nFirstItem, nLastItem)
                   : Send<int>(*this, LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

void CListBox::SetAnchorIndex(int nIndex) { Send(*this, LB_SETANCHORINDEX, nIndex); }

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll) { return Send<int>(*this, LB_SETCARETINDEX, nIndex, !bScroll); }

void CListBox::SetColumnWidth(int cxWidth) { Send(*this, LB_SETCOLUMNWIDTH, cxWidth); }

int CListBox::SetCurSel(int nSelect) { return Send<int>(*this, LB_SETCURSEL, nSelect); }

void CListBox::SetHorizontalExtent(int cxExtent) { Send(*this, LB_SETHORIZONTALEXTENT, cxExtent); }

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return Send<int>(*this, LB_SETITEMDATA, nIndex, dwItemData);
}

int CListBox::SetItemDataPtr(int nIndex, void* pData) { return Send<int>(*this, LB_SETITEMDATA, nIndex, pData); }

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return Send<int>(*this, LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

LCID CListBox::SetLocale(LCID nNewLocale) { return Send<LCID>(*this, LB_SETLOCALE, nNewLocale); }

int CListBox::SetSel(int nIndex, BOOL bSelect) { return Send<int>(*this, LB_SETSEL, bSelect, nIndex); }

void CListBox::SetTabStops() { Send(*this, LB_SETTABSTOPS); }

BOOL CListBox::SetTabStops(const int& cxEachStop) { return Send<BOOL>(*this, LB_SETTABSTOPS, 1, &cxEachStop); }

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops) {
    return Send<BOOL>(*this, LB_SETTABSTOPS, nTabStops, rgTabStops);
}

int CListBox::SetTopIndex(int nIndex) { return Send<int>(*this, LB_SETTOPINDEX, nIndex); }

int CListBox::VKeyToItem(UINT nKey, UINT nIndex) {
    (void)nKey;
    (void)nIndex;
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_VKEYTOITEM:
        *pResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_CHARTOITEM:
        *pResult = CharToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    default:
        return RouteOwnerDraw(*this, message, lParam, pResult) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}
