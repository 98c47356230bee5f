#pragma once

#include "fx/image_list.h"
#include "fx/wnd.h"

#include <commctrl.h>

class CEdit;
class CHeaderCtrl;
class CToolTipCtrl;

/// A list of items as icons, list, report or tiles. Every member is one message or call of the control; results are the
/// control's own.
class FRAMEWORK_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl();
    ~CListCtrl() override;

    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;
    BOOL Arrange(UINT nCode);
    void CancelEditLabel();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    BOOL DeleteAllItems();
    BOOL DeleteColumn(int nCol);
    BOOL DeleteItem(int nItem);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    CEdit* EditLabel(int nItem);
    LRESULT EnableGroupView(BOOL fEnable);
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const;
    COLORREF GetBkColor() const;
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const;
    UINT GetCallbackMask() const;
    BOOL GetCheck(int nItem) const;
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const;
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    int GetColumnWidth(int nCol) const;
    int GetCountPerPage() const;
    CEdit* GetEditControl() const;
    CString GetEmptyText() const;
    DWORD GetExtendedStyle();
    POSITION GetFirstSelectedItemPosition() const;
    int GetFocusedGroup() const;
    int GetGroupCount() const;
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const;
    BOOL GetGroupInfoByIndex(int iIndex, PLVGROUP pGroup) const;
    void GetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) const;
    BOOL GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords = LVGGR_GROUP) const;
    UINT GetGroupState(int iGroupId, DWORD dwMask) const;
    CHeaderCtrl* GetHeaderCtrl();
    HCURSOR GetHotCursor();
    int GetHotItem();
    DWORD GetHoverTime() const;
    CImageList* GetImageList(int nImageList) const;
    BOOL GetInsertMark(LPLVINSERTMARK plvim) const;
    COLORREF GetInsertMarkColor() const;
    int GetInsertMarkRect(LPRECT pRect) const;
    BOOL GetItem(LVITEM* pItem) const;
    int GetItemCount() const;
    DWORD_PTR GetItemData(int nItem) const;
    BOOL GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const;
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const;
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    UINT GetItemState(int nItem, UINT nMask) const;
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    CString GetItemText(int nItem, int nSubItem) const;
    int GetNextItem(int nItem, int nFlags) const;
    BOOL GetNextItemIndex(PLVITEMINDEX pItemIndex, int nFlags) const;
    int GetNextSelectedItem(POSITION& pos) const;
    UINT GetNumberOfWorkAreas() const;
    BOOL GetOrigin(LPPOINT lpPoint) const;
    COLORREF GetOutlineColor() const;
    UINT GetSelectedColumn() const;
    UINT GetSelectedCount() const;
    int GetSelectionMark();
    int GetStringWidth(LPCTSTR lpsz) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref);
    COLORREF GetTextBkColor() const;
    COLORREF GetTextColor() const;
    BOOL GetTileInfo(PLVTILEINFO plvti) const;
    BOOL GetTileViewInfo(PLVTILEVIEWINFO ptvi) const;
    CToolTipCtrl* GetToolTips() const;
    int GetTopIndex() const;
    DWORD GetView() const;
    BOOL GetViewRect(LPRECT lpRect) const;
    void GetWorkAreas(int nWorkAreas, LPRECT pRect) const;
    BOOL HasGroup(int iGroupId) const;
    int HitTest(LVHITTESTINFO* pHitTestInfo) const;
    int HitTest(CPoint pt, UINT* pFlags = NULL) const;
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    LRESULT InsertGroup(int index, PLVGROUP pgrp);
    LRESULT InsertGroupSorted(PLVINSERTGROUPSORTED pStructInsert);
    int InsertItem(const LVITEM* pItem);
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage, LPARAM lParam);
    int InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const;
    BOOL IsGroupViewEnabled() const;
    BOOL IsItemVisible(int index) const;
    UINT MapIDToIndex(UINT id) const;
    UINT MapIndexToID(UINT index) const;
    LRESULT MoveGroup(int iGroupId, int toIndex);
    void MoveItemToGroup(int idItemFrom, int idGroupTo);
    BOOL RedrawItems(int nFirst, int nLast);
    void RemoveAllGroups();
    LRESULT RemoveGroup(int iGroupId);
    BOOL Scroll(CSize size);
    BOOL SetBkColor(COLORREF cr);
    BOOL SetBkImage(LVBKIMAGE* plvbkImage);
    BOOL SetBkImage(HBITMAP hBitmap, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    BOOL SetBkImage(LPTSTR pszUrl, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    BOOL SetCallbackMask(UINT nMask);
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray);
    BOOL SetColumnWidth(int nCol, int cx);
    DWORD SetExtendedStyle(DWORD dwNewStyle);
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp);
    void SetGroupMetrics(PLVGROUPMETRICS pGroupMetrics);
    HCURSOR SetHotCursor(HCURSOR hc);
    int SetHotItem(int iIndex);
    DWORD SetHoverTime(DWORD dwHoverTime = (DWORD)-1);
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size);
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    BOOL SetInfoTip(PLVSETINFOTIP plvInfoTip);
    BOOL SetInsertMark(LPLVINSERTMARK plvim);
    COLORREF SetInsertMarkColor(COLORREF color);
    BOOL SetItem(const LVITEM* pItem);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam, int nIndent);
    void SetItemCount(int nItems);
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL);
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    BOOL SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const;
    BOOL SetItemPosition(int nItem, POINT pt);
    BOOL SetItemState(int nItem, LVITEM* pItem);
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    COLORREF SetOutlineColor(COLORREF color);
    LRESULT SetSelectedColumn(int iCol);
    int SetSelectionMark(int iIndex);
    BOOL SetTextBkColor(COLORREF cr);
    BOOL SetTextColor(COLORREF cr);
    BOOL SetTileInfo(PLVTILEINFO pTileInfo);
    BOOL SetTileViewInfo(PLVTILEVIEWINFO ptvi);
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    DWORD SetView(int iView);
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect);
    BOOL SortGroups(PFNLVGROUPCOMPARE _pfnGroupCompare, LPVOID _plv);
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    int SubItemHitTest(LPLVHITTESTINFO pInfo);
    BOOL Update(int nItem);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
