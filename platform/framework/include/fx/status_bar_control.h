#pragma once

#include "fx/wnd.h"

#include <commctrl.h>

class CToolTipCtrl;

/// The system's status bar window. Every member is one message of the control.
class FRAMEWORK_API CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    CStatusBarCtrl();
    ~CStatusBarCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    CString GetText(int nPane, int* pType = NULL) const;
    int GetTextLength(int nPane, int* pType = NULL) const;
    /// Right edges in client pixels; -1 reaches to the border.
    BOOL SetParts(int nParts, int* pWidths);
    int GetParts(int nParts, int* pParts) const;
    BOOL GetBorders(int* pBorders) const;
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin);
    BOOL SetSimple(BOOL bSimple = TRUE);
    BOOL IsSimple() const;
    BOOL GetRect(int nPane, LPRECT lpRect) const;
    COLORREF SetBkColor(COLORREF cr);
    HICON GetIcon(int iPart) const;
    BOOL SetIcon(int nPane, HICON hIcon);
    CString GetTipText(int nPane) const;
    void SetTipText(int nPane, LPCTSTR pszTipText);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
