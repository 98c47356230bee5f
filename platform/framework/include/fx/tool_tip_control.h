#pragma once

#include "fx/wnd.h"

#include <commctrl.h>

/// A tool's description with room for its text.
class CToolInfo : public TOOLINFOW {
public:
    TCHAR szText[256];
};

/// A tooltip window. A tool is a window, or a rectangle (client pixels) of a window together with an id that is not 0.
class FRAMEWORK_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();
    ~CToolTipCtrl() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    /// With LPSTR_TEXTCALLBACK the text is asked for by TTN_NEEDTEXT, which goes to pWnd. A rectangle and an id belong
    /// together: both or neither. FALSE when that is broken or the control refuses.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = NULL, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = NULL, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const;

    void Activate(BOOL bActivate);
    void RelayEvent(LPMSG lpMsg);
    void Pop();
    void Popup();
    void Update();

    void SetDelayTime(UINT nDelay);
    /// Milliseconds; dwDuration is TTDT_AUTOPOP, TTDT_INITIAL or TTDT_RESHOW.
    void SetDelayTime(DWORD dwDuration, int iTime);
    int GetDelayTime(DWORD dwDuration) const;
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE);
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;
    void GetMargin(LPRECT lprc) const;
    void SetMargin(LPRECT lprc);
    int GetMaxTipWidth() const;
    int SetMaxTipWidth(int iWidth);
    COLORREF GetTipBkColor() const;
    void SetTipBkColor(COLORREF clr);
    COLORREF GetTipTextColor() const;
    void SetTipTextColor(COLORREF clr);
    void GetTitle(PTTGETTITLE pttgt) const;
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle);
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName);

protected:
    /// Describes the tool for a message; false when rectangle and id do not go together.
    bool FillInToolInfo(TOOLINFO& info, const CWnd* window, UINT_PTR tool) const;
};
