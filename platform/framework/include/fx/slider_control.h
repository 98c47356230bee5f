#pragma once

#include "fx/wnd.h"

#include <commctrl.h>

class CToolTipCtrl;

/// A track bar. Every member is one message or call of the control; results are the control's own.
class FRAMEWORK_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl();
    ~CSliderCtrl() override;

    void ClearSel(BOOL bRedraw = FALSE);
    void ClearTics(BOOL bRedraw = FALSE);
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    void GetChannelRect(LPRECT lprc) const;
    int GetLineSize() const;
    UINT GetNumTics() const;
    int GetPageSize() const;
    int GetPos() const;
    void GetRange(int& nMin, int& nMax) const;
    int GetRangeMax() const;
    int GetRangeMin() const;
    void GetSelection(int& nMin, int& nMax) const;
    int GetThumbLength() const;
    void GetThumbRect(LPRECT lprc) const;
    int GetTic(int nTic) const;
    DWORD* GetTicArray() const;
    int GetTicPos(int nTic) const;
    CToolTipCtrl* GetToolTips() const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    int SetLineSize(int nSize);
    int SetPageSize(int nSize);
    void SetPos(int nPos);
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE);
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE);
    void SetSelection(int nMin, int nMax);
    void SetThumbLength(int nLength);
    BOOL SetTic(int nTic);
    void SetTicFreq(int nFreq);
    int SetTipSide(int nLocation);
    void SetToolTips(CToolTipCtrl* pWndTip);
};
