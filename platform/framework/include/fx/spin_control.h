#pragma once

#include "fx/wnd.h"

#include <commctrl.h>

/// A pair of arrow buttons, usually with a buddy window. Every member is one message or call of the control; results
/// are the control's own.
class FRAMEWORK_API CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl();
    ~CSpinButtonCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const;
    UINT GetBase() const;
    CWnd* GetBuddy() const;
    int GetPos() const;
    int GetPos32(LPBOOL lpbError = NULL) const;
    DWORD GetRange() const;
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const;
    BOOL SetAccel(int nAccel, UDACCEL* pAccel);
    int SetBase(int nBase);
    CWnd* SetBuddy(CWnd* pWndBuddy);
    int SetPos(int nPos);
    int SetPos32(int nPos);
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
};
