#include "fx/list_control.h"

#include "fx/edit_control.h"
#include "fx/header_control.h"
#include "fx/tool_tip_control.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

CListCtrl::CListCtrl() = default;

CListCtrl::~CListCtrl() { DestroyWindow(); }

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const {
    const DWORD size = Send<DWORD>(*this, LVM_APPROXIMATEVIEWRECT, iCount, MAKELPARAM(sz.cx, sz.cy));
    return CSize(LOWORD(size), HIWORD(size));
}

BOOL CListCtrl::Arrange(UINT nCode) { return Send<BOOL>(*this, LVM_ARRANGE, nCode); }

void CListCtrl::CancelEditLabel() { Send(*this, LVM_CANCELEDITLABEL); }

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::Create(WC_LISTVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint) {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, LVM_CREATEDRAGIMAGE, nItem, lpPoint));
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_LISTVIEW, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CListCtrl::DeleteAllItems() { return Send<BOOL>(*this, LVM_DELETEALLITEMS); }

BOOL CListCtrl::DeleteColumn(int nCol) { return Send<BOOL>(*this, LVM_DELETECOLUMN, nCol); }

BOOL CListCtrl::DeleteItem(int nItem) { return Send<BOOL>(*this, LVM_DELETEITEM, nItem); }

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

CEdit* CListCtrl::EditLabel(int nItem) { return SendForWindow<CEdit>(*this, LVM_EDITLABEL, nItem); }

LRESULT CListCtrl::EnableGroupView(BOOL fEnable) { return Send<LRESULT>(*this, LVM_ENABLEGROUPVIEW, fEnable); }

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK) {
    return Send<BOOL>(*this, LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0));
}

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const {
    return Send<int>(*this, LVM_FINDITEM, nStart, pFindInfo);
}

COLORREF CListCtrl::GetBkColor() const { return Send<COLORREF>(*this, LVM_GETBKCOLOR); }

BOOL CListCtrl::GetBkImage(LVBKIMAGE* plvbkImage) const { return Send<BOOL>(*this, LVM_GETBKIMAGE, 0, plvbkImage); }

UINT CListCtrl::GetCallbackMask() const { return Send<UINT>(*this, LVM_GETCALLBACKMASK); }

BOOL CListCtrl::GetCheck(int nItem) const { return (GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) == 2; }

BOOL CListCtrl::GetColumn(int nCol, LVCOLUMN* pColumn) const { return Send<BOOL>(*this, LVM_GETCOLUMN, nCol, pColumn); }

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) {
    if (iCount == -1) {
        CHeaderCtrl* header = GetHeaderCtrl();
        if (!header) {
            return FALSE;
        }
        iCount = header->GetItemCount();
    }
    return Send<BOOL>(*this, LVM_GETCOLUMNORDERARRAY, iCount, piArray);
}

int CListCtrl::GetColumnWidth(int nCol) const { return Send<int>(*this, LVM_GETCOLUMNWIDTH, nCol); }

int CListCtrl::GetCountPerPage() const { return Send<int>(*this, LVM_GETCOUNTPERPAGE); }

CEdit* CListCtrl::GetEditControl() const { return SendForWindow<CEdit>(*this, LVM_GETEDITCONTROL); }

CString CListCtrl::GetEmptyText() const {
    wchar_t text[256] = L"";
    Send(*this, LVM_GETEMPTYTEXT, 256, text);
    return CString(text);
}

DWORD CListCtrl::GetExtendedStyle() { return Send<DWORD>(*this, LVM_GETEXTENDEDLISTVIEWSTYLE); }

POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(-1, LVNI_SELECTED) + 1));
}

int CListCtrl::GetFocusedGroup() const { return Send<int>(*this, LVM_GETFOCUSEDGROUP); }

int CListCtrl::GetGroupCount() const { return Send<int>(*this, LVM_GETGROUPCOUNT); }

int CListCtrl::GetGroupInfo(int iGroupId, PLVGROUP pgrp) const {
    return Send<int>(*this, LVM_GETGROUPINFO, iGroupId, pgrp);
}

BOOL CListCtrl::GetGroupInfoByIndex(int iIndex, PLVGROUP pGroup) const {
    return Send<BOOL>(*this, LVM_GETGROUPINFOBYINDEX, iIndex, pGroup);
}

void CListCtrl::GetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) const {
    Send(*this, LVM_GETGROUPMETRICS, 0, pGroupMetrics);
}

BOOL CListCtrl::GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords) const {
    lpRect->top = iCoords;
    return Send<BOOL>(*this, LVM_GETGROUPRECT, iGroupId, lpRect);
}

UINT CListCtrl::GetGroupState(int iGroupId, DWORD dwMask) const {
    return Send<UINT>(*this, LVM_GETGROUPSTATE, iGroupId, dwMask);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() { return SendForWindow<CHeaderCtrl>(*this, LVM_GETHEADER); }

HCURSOR CListCtrl::GetHotCursor() { return Send<HCURSOR>(*this, LVM_GETHOTCURSOR); }

int CListCtrl::GetHotItem() { return Send<int>(*this, LVM_GETHOTITEM); }

DWORD CListCtrl::GetHoverTime() const { return Send<DWORD>(*this, LVM_GETHOVERTIME); }

CImageList* CListCtrl::GetImageList(int nImageList) const {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, LVM_GETIMAGELIST, nImageList));
}

BOOL CListCtrl::GetInsertMark(LPLVINSERTMARK plvim) const { return Send<BOOL>(*this, LVM_GETINSERTMARK, 0, plvim); }

COLORREF CListCtrl::GetInsertMarkColor() const { return Send<COLORREF>(*this, LVM_GETINSERTMARKCOLOR); }

int CListCtrl::GetInsertMarkRect(LPRECT pRect) const { return Send<int>(*this, LVM_GETINSERTMARKRECT, 0, pRect); }

BOOL CListCtrl::GetItem(LVITEM* pItem) const { return Send<BOOL>(*this, LVM_GETITEM, 0, pItem); }

int CListCtrl::GetItemCount() const { return Send<int>(*this, LVM_GETITEMCOUNT); }

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    LVITEM item{};
    item.iItem = nItem;
    item.mask = LVIF_PARAM;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const {
    pRect->top = iColumn;
    pRect->left = rectType;
    return Send<BOOL>(*this, LVM_GETITEMINDEXRECT, pItemIndex, pRect);
}

BOOL CListCtrl::GetItemPosition(int nItem, LPPOINT lpPoint) const {
    return Send<BOOL>(*this, LVM_GETITEMPOSITION, nItem, lpPoint);
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const {
    lpRect->left = static_cast<LONG>(nCode);
    return Send<BOOL>(*this, LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const {
    const DWORD spacing = Send<DWORD>(*this, LVM_GETITEMSPACING, fSmall);
    *pnHorzSpacing = LOWORD(spacing);
    *pnVertSpacing = HIWORD(spacing);
    return TRUE;
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const { return Send<UINT>(*this, LVM_GETITEMSTATE, nItem, nMask); }

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const {
    LVITEM item{};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    return Send<int>(*this, LVM_GETITEMTEXT, nItem, &item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const {
    for (int size = 256;; size *= 2) {
        std::vector<wchar_t> text(static_cast<size_t>(size));
        if (GetItemText(nItem, nSubItem, text.data(), size) < size - 1) {
            return CString(text.data());
        }
    }
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const {
    return Send<int>(*this, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
}

BOOL CListCtrl::GetNextItemIndex(PLVITEMINDEX pItemIndex, int nFlags) const {
    return Send<BOOL>(*this, LVM_GETNEXTITEMINDEX, pItemIndex, MAKELPARAM(nFlags, 0));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const {
    const int item = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(item, LVNI_SELECTED) + 1));
    return item;
}

UINT CListCtrl::GetNumberOfWorkAreas() const {
    UINT count = 0;
    Send(*this, LVM_GETNUMBEROFWORKAREAS, 0, &count);
    return count;
}

BOOL CListCtrl::GetOrigin(LPPOINT lpPoint) const { return Send<BOOL>(*this, LVM_GETORIGIN, 0, lpPoint); }

COLORREF CListCtrl::GetOutlineColor() const { return Send<COLORREF>(*this, LVM_GETOUTLINECOLOR); }

UINT CListCtrl::GetSelectedColumn() const { return Send<UINT>(*this, LVM_GETSELECTEDCOLUMN); }

UINT CListCtrl::GetSelectedCount() const { return Send<UINT>(*this, LVM_GETSELECTEDCOUNT); }

int CListCtrl::GetSelectionMark() { return Send<int>(*this, LVM_GETSELECTIONMARK); }

int CListCtrl::GetStringWidth(LPCTSTR lpsz) const { return Send<int>(*this, LVM_GETSTRINGWIDTH, 0, lpsz); }

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) {
    ref.top = iSubItem;
    ref.left = nArea;
    return Send<BOOL>(*this, LVM_GETSUBITEMRECT, iItem, static_cast<LPRECT>(&ref));
}

COLORREF CListCtrl::GetTextBkColor() const { return Send<COLORREF>(*this, LVM_GETTEXTBKCOLOR); }

COLORREF CListCtrl::GetTextColor() const { return Send<COLORREF>(*this, LVM_GETTEXTCOLOR); }

BOOL CListCtrl::GetTileInfo(PLVTILEINFO plvti) const { return Send<BOOL>(*this, LVM_GETTILEINFO, 0, plvti); }

BOOL CListCtrl::GetTileViewInfo(PLVTILEVIEWINFO ptvi) const { return Send<BOOL>(*this, LVM_GETTILEVIEWINFO, 0, ptvi); }

CToolTipCtrl* CListCtrl::GetToolTips() const { return SendForWindow<CToolTipCtrl>(*this, LVM_GETTOOLTIPS); }

int CListCtrl::GetTopIndex() const { return Send<int>(*this, LVM_GETTOPINDEX); }

DWORD CListCtrl::GetView() const { return Send<DWORD>(*this, LVM_GETVIEW); }

BOOL CListCtrl::GetViewRect(LPRECT lpRect) const { return Send<BOOL>(*this, LVM_GETVIEWRECT, 0, lpRect); }

void CListCtrl::GetWorkAreas(int nWorkAreas, LPRECT pRect) const { Send(*this, LVM_GETWORKAREAS, nWorkAreas, pRect); }

BOOL CListCtrl::HasGroup(int iGroupId) const { return Send<BOOL>(*this, LVM_HASGROUP, iGroupId); }

int CListCtrl::HitTest(LVHITTESTINFO* pHitTestInfo) const { return Send<int>(*this, LVM_HITTEST, 0, pHitTestInfo); }

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    LVHITTESTINFO info{};
    info.pt = pt;
    const int item = HitTest(&info);
    if (pFlags) {
        *pFlags = info.flags;
    }
    return item;
}

int CListCtrl::InsertColumn(int nCol, const LVCOLUMN* pColumn) {
    return Send<int>(*this, LVM_INSERTCOLUMN, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem) {
    LVCOLUMN column{};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

LRESULT CListCtrl::InsertGroup(int index, PLVGROUP pgrp) { return Send<LRESULT>(*this, LVM_INSERTGROUP, index, pgrp); }

LRESULT CListCtrl::InsertGroupSorted(PLVINSERTGROUPSORTED pStructInsert) {
    return Send<LRESULT>(*this, LVM_INSERTGROUPSORTED, pStructInsert);
}

int CListCtrl::InsertItem(const LVITEM* pItem) { return Send<int>(*this, LVM_INSERTITEM, 0, pItem); }

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0); }

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam) {
    LVITEM item{};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

int CListCtrl::InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const {
    return Send<int>(*this, LVM_INSERTMARKHITTEST, pPoint, plvim);
}

BOOL CListCtrl::IsGroupViewEnabled() const { return Send<BOOL>(*this, LVM_ISGROUPVIEWENABLED); }

BOOL CListCtrl::IsItemVisible(int index) const { return Send<BOOL>(*this, LVM_ISITEMVISIBLE, index); }

UINT CListCtrl::MapIDToIndex(UINT id) const { return Send<UINT>(*this, LVM_MAPIDTOINDEX, id); }

UINT CListCtrl::MapIndexToID(UINT index) const { return Send<UINT>(*this, LVM_MAPINDEXTOID, index); }

LRESULT CListCtrl::MoveGroup(int iGroupId, int toIndex) {
    return Send<LRESULT>(*this, LVM_MOVEGROUP, iGroupId, toIndex);
}

void CListCtrl::MoveItemToGroup(int idItemFrom, int idGroupTo) {
    Send(*this, LVM_MOVEITEMTOGROUP, idItemFrom, idGroupTo);
}

BOOL CListCtrl::RedrawItems(int nFirst, int nLast) { return Send<BOOL>(*this, LVM_REDRAWITEMS, nFirst, nLast); }

void CListCtrl::RemoveAllGroups() { Send(*this, LVM_REMOVEALLGROUPS); }

LRESULT CListCtrl::RemoveGroup(int iGroupId) { return Send<LRESULT>(*this, LVM_REMOVEGROUP, iGroupId); }

BOOL CListCtrl::Scroll(CSize size) { return Send<BOOL>(*this, LVM_SCROLL, size.cx, size.cy); }

BOOL CListCtrl::SetBkColor(COLORREF cr) { return Send<BOOL>(*this, LVM_SETBKCOLOR, 0, cr); }

BOOL CListCtrl::SetBkImage(LVBKIMAGE* plvbkImage) { return Send<BOOL>(*this, LVM_SETBKIMAGE, 0, plvbkImage); }

BOOL CListCtrl::SetBkImage(HBITMAP hBitmap, BOOL fTile, int xOffsetPercent, int yOffsetPercent) {
    LVBKIMAGE image{};
    image.ulFlags = LVBKIF_SOURCE_HBITMAP | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.hbm = hBitmap;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

BOOL CListCtrl::SetBkImage(LPTSTR pszUrl, BOOL fTile, int xOffsetPercent, int yOffsetPercent) {
    LVBKIMAGE image{};
    image.ulFlags = LVBKIF_SOURCE_URL | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.pszImage = pszUrl;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

BOOL CListCtrl::SetCallbackMask(UINT nMask) { return Send<BOOL>(*this, LVM_SETCALLBACKMASK, nMask); }

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck) {
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

BOOL CListCtrl::SetColumn(int nCol, const LVCOLUMN* pColumn) { return Send<BOOL>(*this, LVM_SETCOLUMN, nCol, pColumn); }

BOOL CListCtrl::SetColumnOrderArray(int iCount, LPINT piArray) {
    return Send<BOOL>(*this, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
}

BOOL CListCtrl::SetColumnWidth(int nCol, int cx) {
    return Send<BOOL>(*this, LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0));
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle) {
    return Send<DWORD>(*this, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
}

int CListCtrl::SetGroupInfo(int iGroupId, PLVGROUP pgrp) { return Send<int>(*this, LVM_SETGROUPINFO, iGroupId, pgrp); }

void CListCtrl::SetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) { Send(*this, LVM_SETGROUPMETRICS, 0, pGroupMetrics); }

HCURSOR CListCtrl::SetHotCursor(HCURSOR hc) { return Send<HCURSOR>(*this, LVM_SETHOTCURSOR, 0, hc); }

int CListCtrl::SetHotItem(int iIndex) { return Send<int>(*this, LVM_SETHOTITEM, iIndex); }

DWORD CListCtrl::SetHoverTime(DWORD dwHoverTime) { return Send<DWORD>(*this, LVM_SETHOVERTIME, 0, dwHoverTime); }

CSize CListCtrl::SetIconSpacing(int cx, int cy) { return SetIconSpacing(CSize(cx, cy)); }

CSize CListCtrl::SetIconSpacing(CSize size) {
    const DWORD former = Send<DWORD>(*this, LVM_SETICONSPACING, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(former), HIWORD(former));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, LVM_SETIMAGELIST, nImageListType, HandleOf(pImageList)));
}

BOOL CListCtrl::SetInfoTip(PLVSETINFOTIP plvInfoTip) { return Send<BOOL>(*this, LVM_SETINFOTIP, 0, plvInfoTip); }

BOOL CListCtrl::SetInsertMark(LPLVINSERTMARK plvim) { return Send<BOOL>(*this, LVM_SETINSERTMARK, 0, plvim); }

COLORREF CListCtrl::SetInsertMarkColor(COLORREF color) {
    return Send<COLORREF>(*this, LVM_SETINSERTMARKCOLOR, 0, color);
}

BOOL CListCtrl::SetItem(const LVITEM* pItem) { return Send<BOOL>(*this, LVM_SETITEM, 0, pItem); }

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam) {
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam, int nIndent) {
    LVITEM item{};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

void CListCtrl::SetItemCount(int nItems) { Send(*this, LVM_SETITEMCOUNT, nItems); }

BOOL CListCtrl::SetItemCountEx(int iCount, DWORD dwFlags) {
    return Send<BOOL>(*this, LVM_SETITEMCOUNT, iCount, dwFlags);
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData) {
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CListCtrl::SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const {
    LVITEM item{};
    item.stateMask = dwMask;
    item.state = dwState;
    return SUCCEEDED(Send<HRESULT>(*this, LVM_SETITEMINDEXSTATE, pItemIndex, &item));
}

BOOL CListCtrl::SetItemPosition(int nItem, POINT pt) { return Send<BOOL>(*this, LVM_SETITEMPOSITION32, nItem, &pt); }

BOOL CListCtrl::SetItemState(int nItem, LVITEM* pItem) { return Send<BOOL>(*this, LVM_SETITEMSTATE, nItem, pItem); }

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    LVITEM item{};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText) {
    LVITEM item{};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return Send<BOOL>(*this, LVM_SETITEMTEXT, nItem, &item);
}

COLORREF CListCtrl::SetOutlineColor(COLORREF color) { return Send<COLORREF>(*this, LVM_SETOUTLINECOLOR, 0, color); }

LRESULT CListCtrl::SetSelectedColumn(int iCol) { return Send<LRESULT>(*this, LVM_SETSELECTEDCOLUMN, iCol); }

int CListCtrl::SetSelectionMark(int iIndex) { return Send<int>(*this, LVM_SETSELECTIONMARK, 0, iIndex); }

BOOL CListCtrl::SetTextBkColor(COLORREF cr) { return Send<BOOL>(*this, LVM_SETTEXTBKCOLOR, 0, cr); }

BOOL CListCtrl::SetTextColor(COLORREF cr) { return Send<BOOL>(*this, LVM_SETTEXTCOLOR, 0, cr); }

BOOL CListCtrl::SetTileInfo(PLVTILEINFO pTileInfo) { return Send<BOOL>(*this, LVM_SETTILEINFO, 0, pTileInfo); }

BOOL CListCtrl::SetTileViewInfo(PLVTILEVIEWINFO ptvi) { return Send<BOOL>(*this, LVM_SETTILEVIEWINFO, 0, ptvi); }

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return SendForWindow<CToolTipCtrl>(*this, LVM_SETTOOLTIPS, HandleOf(pWndTip));
}

DWORD CListCtrl::SetView(int iView) { return Send<DWORD>(*this, LVM_SETVIEW, iView); }

void CListCtrl::SetWorkAreas(int nWorkAreas, LPRECT lpRect) { Send(*this, LVM_SETWORKAREAS, nWorkAreas, lpRect); }

BOOL CListCtrl::SortGroups(PFNLVGROUPCOMPARE _pfnGroupCompare, LPVOID _plv) {
    return Send<BOOL>(*this, LVM_SORTGROUPS, _pfnGroupCompare, _plv);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
    return Send<BOOL>(*this, LVM_SORTITEMS, dwData, pfnCompare);
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
    return Send<BOOL>(*this, LVM_SORTITEMSEX, dwData, pfnCompare);
}

int CListCtrl::SubItemHitTest(LPLVHITTESTINFO pInfo) { return Send<int>(*this, LVM_SUBITEMHITTEST, 0, pInfo); }

BOOL CListCtrl::Update(int nItem) { return Send<BOOL>(*this, LVM_UPDATE, nItem); }

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}
