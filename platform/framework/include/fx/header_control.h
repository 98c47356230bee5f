#pragma once

#include "fx/image_list.h"
#include "fx/wnd.h"

#include <commctrl.h>

/// The header above columns. Every member is one message or call of the control; results are the control's own.
class FRAMEWORK_API CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl();
    ~CHeaderCtrl() override;

    BOOL ClearAllFilters();
    BOOL ClearFilter(int nColumn);
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    CImageList* CreateDragImage(int nIndex);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    BOOL DeleteItem(int nPos);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    BOOL EditFilter(int nColumn, BOOL bDiscardChanges);
    int GetBitmapMargin() const;
    int GetFocusedItem() const;
    CImageList* GetImageList() const;
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const;
    int GetItemCount() const;
    BOOL GetItemDropDownRect(int iItem, LPRECT lpRect) const;
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    BOOL GetOrderArray(LPINT piArray, int iCount);
    BOOL GetOverflowRect(LPRECT lpRect) const;
    int HitTest(LPHDHITTESTINFO* phdhti);
    int InsertItem(int nPos, HDITEM* phdi);
    BOOL Layout(HDLAYOUT* pHeaderLayout);
    int OrderToIndex(int nOrder) const;
    int SetBitmapMargin(int nWidth);
    int SetFilterChangeTimeout(DWORD dwTimeOut);
    BOOL SetFocusedItem(int iItem);
    int SetHotDivider(CPoint pt);
    int SetHotDivider(int nIndex);
    CImageList* SetImageList(CImageList* pImageList);
    BOOL SetItem(int nPos, HDITEM* pHeaderItem);
    BOOL SetOrderArray(int iCount, LPINT piArray);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
