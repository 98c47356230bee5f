#pragma once

#include "fx/wnd.h"

#include <commctrl.h>

/// A progress bar. Every member is one message or call of the control; results are the control's own.
class FRAMEWORK_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl();
    ~CProgressCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    COLORREF GetBarColor() const;
    COLORREF GetBkColor() const;
    int GetPos();
    void GetRange(int& nLower, int& nUpper);
    int GetState() const;
    int GetStep() const;
    int OffsetPos(int nPos);
    COLORREF SetBarColor(COLORREF clrBar);
    COLORREF SetBkColor(COLORREF clrNew);
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval);
    int SetPos(int nPos);
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    int SetState(int iState);
    int SetStep(int nStep);
    int StepIt();
};
