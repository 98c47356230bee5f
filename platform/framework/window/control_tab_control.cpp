#include "fx/tab_control.h"

#include "fx/tool_tip_control.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CTabCtrl::CTabCtrl() = default;

CTabCtrl::~CTabCtrl() { DestroyWindow(); }

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect) { Send(*this, TCM_ADJUSTRECT, bLarger, lpRect); }

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::Create(WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_TABCONTROL, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CTabCtrl::DeleteAllItems() { return Send<BOOL>(*this, TCM_DELETEALLITEMS); }

BOOL CTabCtrl::DeleteItem(int nItem) { return Send<BOOL>(*this, TCM_DELETEITEM, nItem); }

void CTabCtrl::DeselectAll(BOOL fExcludeFocus) { Send(*this, TCM_DESELECTALL, fExcludeFocus); }

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

int CTabCtrl::GetCurFocus() const { return Send<int>(*this, TCM_GETCURFOCUS); }

int CTabCtrl::GetCurSel() const { return Send<int>(*this, TCM_GETCURSEL); }

DWORD CTabCtrl::GetExtendedStyle() { return Send<DWORD>(*this, TCM_GETEXTENDEDSTYLE); }

CImageList* CTabCtrl::GetImageList() const { return CImageList::FromHandle(Send<HIMAGELIST>(*this, TCM_GETIMAGELIST)); }

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const {
    return Send<BOOL>(*this, TCM_GETITEM, nItem, pTabCtrlItem);
}

int CTabCtrl::GetItemCount() const { return Send<int>(*this, TCM_GETITEMCOUNT); }

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const { return Send<BOOL>(*this, TCM_GETITEMRECT, nItem, lpRect); }

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const {
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

int CTabCtrl::GetRowCount() const { return Send<int>(*this, TCM_GETROWCOUNT); }

CToolTipCtrl* CTabCtrl::GetToolTips() const { return SendForWindow<CToolTipCtrl>(*this, TCM_GETTOOLTIPS); }

BOOL CTabCtrl::HighlightItem(int idItem, BOOL fHighlight) {
    return Send<BOOL>(*this, TCM_HIGHLIGHTITEM, idItem, MAKELPARAM(fHighlight, 0));
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const { return Send<int>(*this, TCM_HITTEST, 0, pHitTestInfo); }

LONG CTabCtrl::InsertItem(int nItem, TCITEM* pTabCtrlItem) {
    return Send<LONG>(*this, TCM_INSERTITEM, nItem, pTabCtrlItem);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0); }

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam) {
    return InsertItem(nMask, nItem, lpszItem, nImage, lParam, 0, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                          DWORD dwStateMask) {
    TCITEM item{};
    item.mask = nMask;
    item.dwState = dwState;
    item.dwStateMask = dwStateMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(nItem, &item);
}

void CTabCtrl::RemoveImage(int nImage) { Send(*this, TCM_REMOVEIMAGE, nImage); }

void CTabCtrl::SetCurFocus(int nItem) { Send(*this, TCM_SETCURFOCUS, nItem); }

int CTabCtrl::SetCurSel(int nItem) { return Send<int>(*this, TCM_SETCURSEL, nItem); }

DWORD CTabCtrl::SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask) {
    return Send<DWORD>(*this, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, TCM_SETIMAGELIST, 0, HandleOf(pImageList)));
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem) { return Send<BOOL>(*this, TCM_SETITEM, nItem, pTabCtrlItem); }

BOOL CTabCtrl::SetItemExtra(int nBytes) { return Send<BOOL>(*this, TCM_SETITEMEXTRA, nBytes); }

CSize CTabCtrl::SetItemSize(CSize size) {
    const DWORD former = Send<DWORD>(*this, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(former), HIWORD(former));
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState) {
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

int CTabCtrl::SetMinTabWidth(int cx) { return Send<int>(*this, TCM_SETMINTABWIDTH, 0, cx); }

void CTabCtrl::SetPadding(CSize size) { Send(*this, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip) { Send(*this, TCM_SETTOOLTIPS, HandleOf(pWndTip)); }

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}
