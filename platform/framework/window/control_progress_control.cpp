#include "fx/progress_control.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

CProgressCtrl::CProgressCtrl() = default;

CProgressCtrl::~CProgressCtrl() { DestroyWindow(); }

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::Create(PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, PROGRESS_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

COLORREF CProgressCtrl::GetBarColor() const { return Send<COLORREF>(*this, PBM_GETBARCOLOR); }

COLORREF CProgressCtrl::GetBkColor() const { return Send<COLORREF>(*this, PBM_GETBKCOLOR); }

int CProgressCtrl::GetPos() { return Send<int>(*this, PBM_GETPOS); }

void CProgressCtrl::GetRange(int& nLower, int& nUpper) {
    PBRANGE range{};
    Send(*this, PBM_GETRANGE, FALSE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

int CProgressCtrl::GetState() const { return Send<int>(*this, PBM_GETSTATE); }

int CProgressCtrl::GetStep() const { return Send<int>(*this, PBM_GETSTEP); }

int CProgressCtrl::OffsetPos(int nPos) { return Send<int>(*this, PBM_DELTAPOS, nPos); }

COLORREF CProgressCtrl::SetBarColor(COLORREF clrBar) { return Send<COLORREF>(*this, PBM_SETBARCOLOR, 0, clrBar); }

COLORREF CProgressCtrl::SetBkColor(COLORREF clrNew) { return Send<COLORREF>(*this, PBM_SETBKCOLOR, 0, clrNew); }

BOOL CProgressCtrl::SetMarquee(BOOL fMarqueeMode, int nInterval) {
    return Send<BOOL>(*this, PBM_SETMARQUEE, fMarqueeMode, nInterval);
}

int CProgressCtrl::SetPos(int nPos) { return Send<int>(*this, PBM_SETPOS, nPos); }

void CProgressCtrl::SetRange(short nLower, short nUpper) { SetRange32(nLower, nUpper); }

void CProgressCtrl::SetRange32(int nLower, int nUpper) { Send(*this, PBM_SETRANGE32, nLower, nUpper); }

int CProgressCtrl::SetState(int iState) { return Send<int>(*this, PBM_SETSTATE, iState); }

int CProgressCtrl::SetStep(int nStep) { return Send<int>(*this, PBM_SETSTEP, nStep); }

int CProgressCtrl::StepIt() { return Send<int>(*this, PBM_STEPIT); }
