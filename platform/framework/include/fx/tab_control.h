#pragma once

#include "fx/image_list.h"
#include "fx/wnd.h"

#include <commctrl.h>

class CToolTipCtrl;

/// A row of tabs. Every member is one message or call of the control; results are the control's own.
class FRAMEWORK_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl();
    ~CTabCtrl() override;

    void AdjustRect(BOOL bLarger, LPRECT lpRect);
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    BOOL DeleteAllItems();
    BOOL DeleteItem(int nItem);
    void DeselectAll(BOOL fExcludeFocus);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    int GetCurFocus() const;
    int GetCurSel() const;
    DWORD GetExtendedStyle();
    CImageList* GetImageList() const;
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    int GetItemCount() const;
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    int GetRowCount() const;
    CToolTipCtrl* GetToolTips() const;
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE);
    int HitTest(TCHITTESTINFO* pHitTestInfo) const;
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                    DWORD dwStateMask);
    void RemoveImage(int nImage);
    void SetCurFocus(int nItem);
    int SetCurSel(int nItem);
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0);
    CImageList* SetImageList(CImageList* pImageList);
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem);
    BOOL SetItemExtra(int nBytes);
    CSize SetItemSize(CSize size);
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    int SetMinTabWidth(int cx);
    void SetPadding(CSize size);
    void SetToolTips(CToolTipCtrl* pWndTip);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
