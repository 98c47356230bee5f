#pragma once

#include "fx/wnd.h"

/// A list box. An owner-drawn one overrides the item virtuals, which the parent's messages reach by reflection. Every
/// member is one message or call of the control; results are the control's own.
class FRAMEWORK_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox();
    ~CListBox() override;

    int AddString(LPCTSTR lpszItem);
    virtual int CharToItem(UINT nKey, UINT nIndex);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    int DeleteString(UINT nIndex);
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    int FindString(int nStartAfter, LPCTSTR lpszItem) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int GetAnchorIndex() const;
    int GetCaretIndex() const;
    int GetCount() const;
    int GetCurSel() const;
    int GetHorizontalExtent() const;
    DWORD_PTR GetItemData(int nIndex) const;
    void* GetItemDataPtr(int nIndex) const;
    int GetItemHeight(int nIndex) const;
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    DWORD GetListBoxInfo() const;
    LCID GetLocale() const;
    int GetSel(int nIndex) const;
    int GetSelCount() const;
    int GetSelItems(int nMaxItems, LPINT rgIndex) const;
    int GetText(int nIndex, LPTSTR lpszBuffer) const;
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const;
    int GetTopIndex() const;
    int InitStorage(int nItems, UINT nBytes);
    int InsertString(int nIndex, LPCTSTR lpszItem);
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    void ResetContent();
    int SelectString(int nStartAfter, LPCTSTR lpszItem);
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    void SetAnchorIndex(int nIndex);
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);
    void SetColumnWidth(int cxWidth);
    int SetCurSel(int nSelect);
    void SetHorizontalExtent(int cxExtent);
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    int SetItemDataPtr(int nIndex, void* pData);
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    LCID SetLocale(LCID nNewLocale);
    int SetSel(int nIndex, BOOL bSelect = TRUE);
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    int SetTopIndex(int nIndex);
    virtual int VKeyToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
