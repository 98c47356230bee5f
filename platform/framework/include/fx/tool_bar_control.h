#pragma once

#include "fx/wnd.h"

#include <commctrl.h>

class CImageList;
class CToolTipCtrl;

/// The system's toolbar window. Every member is one message of the control.
class FRAMEWORK_API CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    CToolBarCtrl();
    ~CToolBarCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons);
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton);
    BOOL DeleteButton(int nIndex);
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const;
    int GetButtonCount() const;
    UINT CommandToIndex(UINT nID) const;
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    BOOL GetRect(int nID, LPRECT lpRect) const;
    int HitTest(LPPOINT ppt) const;
    int AddStrings(LPCTSTR lpszStrings);
    BOOL EnableButton(int nID, BOOL bEnable = TRUE);
    BOOL CheckButton(int nID, BOOL bCheck = TRUE);
    BOOL PressButton(int nID, BOOL bPress = TRUE);
    BOOL HideButton(int nID, BOOL bHide = TRUE);
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE);
    BOOL IsButtonEnabled(int nID) const;
    BOOL IsButtonChecked(int nID) const;
    BOOL IsButtonPressed(int nID) const;
    BOOL IsButtonHidden(int nID) const;
    BOOL IsButtonIndeterminate(int nID) const;
    int GetState(int nID) const;
    BOOL SetState(int nID, UINT nState);
    DWORD GetButtonSize() const;
    BOOL SetButtonSize(CSize size);
    BOOL SetBitmapSize(CSize size);
    void AutoSize();
    BOOL GetMaxSize(LPSIZE pSize) const;
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwExStyle);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pTip);
    void SetOwner(CWnd* pWnd);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()
};
