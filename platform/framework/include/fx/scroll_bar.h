#pragma once

#include "fx/wnd.h"

/// A scroll bar that is a window of its own. Every member is one message or call of the control; results are the
/// control's own.
class FRAMEWORK_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar();
    ~CScrollBar() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const;
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    int GetScrollLimit();
    int GetScrollPos() const;
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE);
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(BOOL bShow = TRUE);
};
