#include "fx/header_control.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

CHeaderCtrl::CHeaderCtrl() = default;

CHeaderCtrl::~CHeaderCtrl() { DestroyWindow(); }

BOOL CHeaderCtrl::ClearAllFilters() { return Send<BOOL>(*this, HDM_CLEARFILTER, -1); }

BOOL CHeaderCtrl::ClearFilter(int nColumn) { return Send<BOOL>(*this, HDM_CLEARFILTER, nColumn); }

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::Create(WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex) {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, HDM_CREATEDRAGIMAGE, nIndex));
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_HEADER, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::DeleteItem(int nPos) { return Send<BOOL>(*this, HDM_DELETEITEM, nPos); }

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CHeaderCtrl::EditFilter(int nColumn, BOOL bDiscardChanges) {
    return Send<BOOL>(*this, HDM_EDITFILTER, nColumn, MAKELPARAM(bDiscardChanges, 0));
}

int CHeaderCtrl::GetBitmapMargin() const { return Send<int>(*this, HDM_GETBITMAPMARGIN); }

int CHeaderCtrl::GetFocusedItem() const { return Send<int>(*this, HDM_GETFOCUSEDITEM); }

CImageList* CHeaderCtrl::GetImageList() const {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, HDM_GETIMAGELIST));
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const {
    return Send<BOOL>(*this, HDM_GETITEM, nPos, pHeaderItem);
}

int CHeaderCtrl::GetItemCount() const { return Send<int>(*this, HDM_GETITEMCOUNT); }

BOOL CHeaderCtrl::GetItemDropDownRect(int iItem, LPRECT lpRect) const {
    return Send<BOOL>(*this, HDM_GETITEMDROPDOWNRECT, iItem, lpRect);
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const {
    return Send<BOOL>(*this, HDM_GETITEMRECT, nIndex, lpRect);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount) {
    return Send<BOOL>(*this, HDM_GETORDERARRAY, iCount, piArray);
}

BOOL CHeaderCtrl::GetOverflowRect(LPRECT lpRect) const { return Send<BOOL>(*this, HDM_GETOVERFLOWRECT, 0, lpRect); }

int CHeaderCtrl::HitTest(LPHDHITTESTINFO* phdhti) { return Send<int>(*this, HDM_HITTEST, 0, phdhti); }

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi) { return Send<int>(*this, HDM_INSERTITEM, nPos, phdi); }

BOOL CHeaderCtrl::Layout(HDLAYOUT* pHeaderLayout) { return Send<BOOL>(*this, HDM_LAYOUT, 0, pHeaderLayout); }

int CHeaderCtrl::OrderToIndex(int nOrder) const { return Send<int>(*this, HDM_ORDERTOINDEX, nOrder); }

int CHeaderCtrl::SetBitmapMargin(int nWidth) { return Send<int>(*this, HDM_SETBITMAPMARGIN, nWidth); }

int CHeaderCtrl::SetFilterChangeTimeout(DWORD dwTimeOut) {
    return Send<int>(*this, HDM_SETFILTERCHANGETIMEOUT, 0, dwTimeOut);
}

BOOL CHeaderCtrl::SetFocusedItem(int iItem) { return Send<BOOL>(*this, HDM_SETFOCUSEDITEM, 0, iItem); }

int CHeaderCtrl::SetHotDivider(CPoint pt) { return Send<int>(*this, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y)); }

int CHeaderCtrl::SetHotDivider(int nIndex) { return Send<int>(*this, HDM_SETHOTDIVIDER, FALSE, nIndex); }

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, HDM_SETIMAGELIST, 0, HandleOf(pImageList)));
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem) { return Send<BOOL>(*this, HDM_SETITEM, nPos, pHeaderItem); }

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray) {
    return Send<BOOL>(*this, HDM_SETORDERARRAY, iCount, piArray);
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}
