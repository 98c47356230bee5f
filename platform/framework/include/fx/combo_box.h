#pragma once

#include "fx/wnd.h"

/// A combo box. An owner-drawn one overrides the item virtuals, which the parent's messages reach by reflection. Every
/// member is one message or call of the control; results are the control's own.
class FRAMEWORK_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox();
    ~CComboBox() override;

    int AddString(LPCTSTR lpszString);
    void Clear();
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    void Copy();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    void Cut();
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    int DeleteString(UINT nIndex);
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;
    int GetCount() const;
    CString GetCueBanner() const;
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const;
    int GetCurSel() const;
    void GetDroppedControlRect(LPRECT lprect) const;
    BOOL GetDroppedState() const;
    int GetDroppedWidth() const;
    DWORD GetEditSel() const;
    BOOL GetExtendedUI() const;
    UINT GetHorizontalExtent() const;
    DWORD_PTR GetItemData(int nIndex) const;
    void* GetItemDataPtr(int nIndex) const;
    int GetItemHeight(int nIndex) const;
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;
    LCID GetLocale() const;
    int GetMinVisible() const;
    int GetTopIndex() const;
    int InitStorage(int nItems, UINT nBytes);
    int InsertString(int nIndex, LPCTSTR lpszString);
    BOOL LimitText(int nMaxChars);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    void Paste();
    void ResetContent();
    int SelectString(int nStartAfter, LPCTSTR lpszString);
    BOOL SetCueBanner(LPCTSTR lpszText);
    int SetCurSel(int nSelect);
    int SetDroppedWidth(UINT nWidth);
    BOOL SetEditSel(int nStartChar, int nEndChar);
    int SetExtendedUI(BOOL bExtended = TRUE);
    void SetHorizontalExtent(UINT nExtent);
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    int SetItemDataPtr(int nIndex, void* pData);
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    LCID SetLocale(LCID nNewLocale);
    BOOL SetMinVisibleItems(int iMinVisible);
    int SetTopIndex(int nIndex);
    void ShowDropDown(BOOL bShowIt = TRUE);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
