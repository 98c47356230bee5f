#pragma once

#include "fx/image_list.h"
#include "fx/wnd.h"

#include <commctrl.h>

class CEdit;
class CToolTipCtrl;

/// A tree of items. Every member is one message or call of the control; results are the control's own.
class FRAMEWORK_API CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    CTreeCtrl();
    ~CTreeCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    CImageList* CreateDragImage(HTREEITEM hItem);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    BOOL DeleteAllItems();
    BOOL DeleteItem(HTREEITEM hItem);
    CEdit* EditLabel(HTREEITEM hItem);
    BOOL EndEditLabelNow(BOOL fCancelWithoutSave);
    BOOL EnsureVisible(HTREEITEM hItem);
    BOOL Expand(HTREEITEM hItem, UINT nCode);
    COLORREF GetBkColor() const;
    BOOL GetCheck(HTREEITEM hItem) const;
    HTREEITEM GetChildItem(HTREEITEM hItem) const;
    UINT GetCount() const;
    HTREEITEM GetDropHilightItem() const;
    CEdit* GetEditControl() const;
    DWORD GetExtendedStyle() const;
    HTREEITEM GetFirstVisibleItem() const;
    CImageList* GetImageList(UINT nImageList) const;
    UINT GetIndent() const;
    COLORREF GetInsertMarkColor() const;
    BOOL GetItem(TVITEM* pItem) const;
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    int GetItemExpandedImageIndex(HTREEITEM hItem) const;
    SHORT GetItemHeight() const;
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL GetItemPartRect(HTREEITEM hItem, int nPart, LPRECT lpRect) const;
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    UINT GetItemStateEx(HTREEITEM hItem) const;
    CString GetItemText(HTREEITEM hItem) const;
    HTREEITEM GetLastVisibleItem() const;
    COLORREF GetLineColor() const;
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetParentItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetRootItem() const;
    UINT GetScrollTime() const;
    UINT GetSelectedCount();
    HTREEITEM GetSelectedItem() const;
    COLORREF GetTextColor() const;
    CToolTipCtrl* GetToolTips() const;
    UINT GetVisibleCount() const;
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = NULL) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const;
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct);
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState, UINT nStateMask,
                         LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    HTREEITEM MapAccIdToItem(UINT uAccId) const;
    UINT MapItemToAccID(HTREEITEM hItem) const;
    BOOL Select(HTREEITEM hItem, UINT nCode);
    BOOL SelectDropTarget(HTREEITEM hItem);
    BOOL SelectItem(HTREEITEM hItem);
    BOOL SelectSetFirstVisible(HTREEITEM hItem);
    BOOL SetAutoscrollInfo(UINT uPixelsPerSec, UINT uUpdateTime);
    COLORREF SetBkColor(COLORREF clr);
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles);
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    void SetIndent(UINT nIndent);
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE);
    COLORREF SetInsertMarkColor(COLORREF clrNew);
    BOOL SetItem(TVITEM* pItem);
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage);
    SHORT SetItemHeight(SHORT cyHeight);
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    BOOL SetItemStateEx(HTREEITEM hItem, UINT uStateEx);
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT);
    UINT SetScrollTime(UINT uScrollTime);
    COLORREF SetTextColor(COLORREF clr);
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    void ShowInfoTip(HTREEITEM hItem);
    BOOL SortChildren(HTREEITEM hItem);
    BOOL SortChildrenCB(LPTVSORTCB pSort);
};
