#include "fx/tree_control.h"

#include "fx/edit_control.h"
#include "fx/tool_tip_control.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

CTreeCtrl::CTreeCtrl() = default;

CTreeCtrl::~CTreeCtrl() { DestroyWindow(); }

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::Create(WC_TREEVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem) {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, TVM_CREATEDRAGIMAGE, 0, hItem));
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_TREEVIEW, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::DeleteAllItems() { return Send<BOOL>(*this, TVM_DELETEITEM, 0, TVI_ROOT); }

BOOL CTreeCtrl::DeleteItem(HTREEITEM hItem) { return Send<BOOL>(*this, TVM_DELETEITEM, 0, hItem); }

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem) { return SendForWindow<CEdit>(*this, TVM_EDITLABEL, 0, hItem); }

BOOL CTreeCtrl::EndEditLabelNow(BOOL fCancelWithoutSave) {
    return Send<BOOL>(*this, TVM_ENDEDITLABELNOW, fCancelWithoutSave);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM hItem) { return Send<BOOL>(*this, TVM_ENSUREVISIBLE, 0, hItem); }

BOOL CTreeCtrl::Expand(HTREEITEM hItem, UINT nCode) { return Send<BOOL>(*this, TVM_EXPAND, nCode, hItem); }

COLORREF CTreeCtrl::GetBkColor() const { return Send<COLORREF>(*this, TVM_GETBKCOLOR); }

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const {
    const UINT state = GetItemState(hItem, TVIS_STATEIMAGEMASK);
    return (state >> 12) == 2;
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM hItem) const {
    return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_CHILD, hItem);
}

UINT CTreeCtrl::GetCount() const { return Send<UINT>(*this, TVM_GETCOUNT); }

HTREEITEM CTreeCtrl::GetDropHilightItem() const { return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_DROPHILITE); }

CEdit* CTreeCtrl::GetEditControl() const { return SendForWindow<CEdit>(*this, TVM_GETEDITCONTROL); }

DWORD CTreeCtrl::GetExtendedStyle() const { return Send<DWORD>(*this, TVM_GETEXTENDEDSTYLE); }

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const { return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE); }

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, TVM_GETIMAGELIST, nImageList));
}

UINT CTreeCtrl::GetIndent() const { return Send<UINT>(*this, TVM_GETINDENT); }

COLORREF CTreeCtrl::GetInsertMarkColor() const { return Send<COLORREF>(*this, TVM_GETINSERTMARKCOLOR); }

BOOL CTreeCtrl::GetItem(TVITEM* pItem) const { return Send<BOOL>(*this, TVM_GETITEM, 0, pItem); }

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const {
    TVITEM item{};
    item.hItem = hItem;
    item.mask = TVIF_PARAM;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

int CTreeCtrl::GetItemExpandedImageIndex(HTREEITEM hItem) const {
    TVITEMEX item{};
    item.hItem = hItem;
    item.mask = TVIF_EXPANDEDIMAGE;
    Send(*this, TVM_GETITEM, 0, &item);
    return item.iExpandedImage;
}

SHORT CTreeCtrl::GetItemHeight() const { return Send<SHORT>(*this, TVM_GETITEMHEIGHT); }

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const {
    TVITEM item{};
    item.hItem = hItem;
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    if (!GetItem(&item)) {
        return FALSE;
    }
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return TRUE;
}

BOOL CTreeCtrl::GetItemPartRect(HTREEITEM hItem, int nPart, LPRECT lpRect) const {
    TVGETITEMPARTRECTINFO info{hItem, lpRect, static_cast<TVITEMPART>(nPart)};
    return Send<BOOL>(*this, TVM_GETITEMPARTRECT, 0, &info);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const {
    *reinterpret_cast<HTREEITEM*>(lpRect) = hItem;
    return Send<BOOL>(*this, TVM_GETITEMRECT, bTextOnly, lpRect);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const {
    return Send<UINT>(*this, TVM_GETITEMSTATE, hItem, nStateMask);
}

UINT CTreeCtrl::GetItemStateEx(HTREEITEM hItem) const {
    TVITEMEX item{};
    item.hItem = hItem;
    item.mask = TVIF_STATEEX;
    Send(*this, TVM_GETITEM, 0, &item);
    return item.uStateEx;
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const {
    for (size_t size = 256;; size *= 2) {
        std::vector<wchar_t> text(size);
        TVITEM item{};
        item.hItem = hItem;
        item.mask = TVIF_TEXT;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(size);
        GetItem(&item);
        if (wcslen(item.pszText) + 1 < size) {
            return CString(item.pszText);
        }
    }
}

HTREEITEM CTreeCtrl::GetLastVisibleItem() const { return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_LASTVISIBLE); }

COLORREF CTreeCtrl::GetLineColor() const { return Send<COLORREF>(*this, TVM_GETLINECOLOR); }

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const {
    return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, nCode, hItem);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM hItem) const {
    return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_NEXT, hItem);
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM hItem) const {
    return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_NEXTVISIBLE, hItem);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM hItem) const {
    return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_PARENT, hItem);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM hItem) const {
    return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_PREVIOUS, hItem);
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM hItem) const {
    return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_PREVIOUSVISIBLE, hItem);
}

HTREEITEM CTreeCtrl::GetRootItem() const { return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_ROOT); }

UINT CTreeCtrl::GetScrollTime() const { return Send<UINT>(*this, TVM_GETSCROLLTIME); }

UINT CTreeCtrl::GetSelectedCount() { return Send<UINT>(*this, TVM_GETSELECTEDCOUNT); }

HTREEITEM CTreeCtrl::GetSelectedItem() const { return Send<HTREEITEM>(*this, TVM_GETNEXTITEM, TVGN_CARET); }

COLORREF CTreeCtrl::GetTextColor() const { return Send<COLORREF>(*this, TVM_GETTEXTCOLOR); }

CToolTipCtrl* CTreeCtrl::GetToolTips() const { return SendForWindow<CToolTipCtrl>(*this, TVM_GETTOOLTIPS); }

UINT CTreeCtrl::GetVisibleCount() const { return Send<UINT>(*this, TVM_GETVISIBLECOUNT); }

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    TVHITTESTINFO info{};
    info.pt = pt;
    const HTREEITEM item = HitTest(&info);
    if (pFlags) {
        *pFlags = info.flags;
    }
    return item;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pHitTestInfo) const {
    return Send<HTREEITEM>(*this, TVM_HITTEST, 0, pHitTestInfo);
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT lpInsertStruct) {
    return Send<HTREEITEM>(*this, TVM_INSERTITEM, 0, lpInsertStruct);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    TVINSERTSTRUCT insert{};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter) {
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0, 0, hParent,
                      hInsertAfter);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const {
    TVITEM item{};
    item.hItem = hItem;
    item.mask = TVIF_CHILDREN;
    GetItem(&item);
    return item.cChildren;
}

HTREEITEM CTreeCtrl::MapAccIdToItem(UINT uAccId) const {
    return Send<HTREEITEM>(*this, TVM_MAPACCIDTOHTREEITEM, uAccId);
}

UINT CTreeCtrl::MapItemToAccID(HTREEITEM hItem) const { return Send<UINT>(*this, TVM_MAPHTREEITEMTOACCID, hItem); }

BOOL CTreeCtrl::Select(HTREEITEM hItem, UINT nCode) { return Send<BOOL>(*this, TVM_SELECTITEM, nCode, hItem); }

BOOL CTreeCtrl::SelectDropTarget(HTREEITEM hItem) { return Send<BOOL>(*this, TVM_SELECTITEM, TVGN_DROPHILITE, hItem); }

BOOL CTreeCtrl::SelectItem(HTREEITEM hItem) { return Send<BOOL>(*this, TVM_SELECTITEM, TVGN_CARET, hItem); }

BOOL CTreeCtrl::SelectSetFirstVisible(HTREEITEM hItem) {
    return Send<BOOL>(*this, TVM_SELECTITEM, TVGN_FIRSTVISIBLE, hItem);
}

BOOL CTreeCtrl::SetAutoscrollInfo(UINT uPixelsPerSec, UINT uUpdateTime) {
    return Send<BOOL>(*this, TVM_SETAUTOSCROLLINFO, uPixelsPerSec, uUpdateTime);
}

COLORREF CTreeCtrl::SetBkColor(COLORREF clr) { return Send<COLORREF>(*this, TVM_SETBKCOLOR, 0, clr); }

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck) {
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

DWORD CTreeCtrl::SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles) {
    return Send<DWORD>(*this, TVM_SETEXTENDEDSTYLE, dwExMask, dwExStyles);
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, TVM_SETIMAGELIST, nImageListType, HandleOf(pImageList)));
}

void CTreeCtrl::SetIndent(UINT nIndent) { Send(*this, TVM_SETINDENT, nIndent); }

BOOL CTreeCtrl::SetInsertMark(HTREEITEM hItem, BOOL fAfter) {
    return Send<BOOL>(*this, TVM_SETINSERTMARK, fAfter, hItem);
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF clrNew) {
    return Send<COLORREF>(*this, TVM_SETINSERTMARKCOLOR, 0, clrNew);
}

BOOL CTreeCtrl::SetItem(TVITEM* pItem) { return Send<BOOL>(*this, TVM_SETITEM, 0, pItem); }

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                        UINT nStateMask, LPARAM lParam) {
    TVITEM item{};
    item.hItem = hItem;
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData) {
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CTreeCtrl::SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage) {
    TVITEMEX item{};
    item.hItem = hItem;
    item.mask = TVIF_EXPANDEDIMAGE;
    item.iExpandedImage = iExpandedImage;
    return Send<BOOL>(*this, TVM_SETITEM, 0, &item);
}

SHORT CTreeCtrl::SetItemHeight(SHORT cyHeight) { return Send<SHORT>(*this, TVM_SETITEMHEIGHT, cyHeight); }

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0, 0);
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask) {
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

BOOL CTreeCtrl::SetItemStateEx(HTREEITEM hItem, UINT uStateEx) {
    TVITEMEX item{};
    item.hItem = hItem;
    item.mask = TVIF_STATEEX;
    item.uStateEx = uStateEx;
    return Send<BOOL>(*this, TVM_SETITEM, 0, &item);
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem) {
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

COLORREF CTreeCtrl::SetLineColor(COLORREF clrNew) { return Send<COLORREF>(*this, TVM_SETLINECOLOR, 0, clrNew); }

UINT CTreeCtrl::SetScrollTime(UINT uScrollTime) { return Send<UINT>(*this, TVM_SETSCROLLTIME, uScrollTime); }

COLORREF CTreeCtrl::SetTextColor(COLORREF clr) { return Send<COLORREF>(*this, TVM_SETTEXTCOLOR, 0, clr); }

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return SendForWindow<CToolTipCtrl>(*this, TVM_SETTOOLTIPS, HandleOf(pWndTip));
}

void CTreeCtrl::ShowInfoTip(HTREEITEM hItem) { Send(*this, TVM_SHOWINFOTIP, 0, hItem); }

BOOL CTreeCtrl::SortChildren(HTREEITEM hItem) { return Send<BOOL>(*this, TVM_SORTCHILDREN, 0, hItem); }

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB pSort) { return Send<BOOL>(*this, TVM_SORTCHILDRENCB, 0, pSort); }
