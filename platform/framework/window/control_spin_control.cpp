#include "fx/spin_control.h"

#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSpinButtonCtrl::CSpinButtonCtrl() = default;

CSpinButtonCtrl::~CSpinButtonCtrl() { DestroyWindow(); }

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::Create(UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, UPDOWN_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

UINT CSpinButtonCtrl::GetAccel(int nAccel, UDACCEL* pAccel) const {
    return Send<UINT>(*this, UDM_GETACCEL, nAccel, pAccel);
}

UINT CSpinButtonCtrl::GetBase() const { return Send<UINT>(*this, UDM_GETBASE); }

CWnd* CSpinButtonCtrl::GetBuddy() const { return SendForWindow<CWnd>(*this, UDM_GETBUDDY); }

int CSpinButtonCtrl::GetPos() const { return Send<int>(*this, UDM_GETPOS); }

int CSpinButtonCtrl::GetPos32(LPBOOL lpbError) const { return Send<int>(*this, UDM_GETPOS32, 0, lpbError); }

DWORD CSpinButtonCtrl::GetRange() const { return Send<DWORD>(*this, UDM_GETRANGE); }

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const { GetRange32(lower, upper); }

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const { Send(*this, UDM_GETRANGE32, &lower, &upper); }

BOOL CSpinButtonCtrl::SetAccel(int nAccel, UDACCEL* pAccel) { return Send<BOOL>(*this, UDM_SETACCEL, nAccel, pAccel); }

int CSpinButtonCtrl::SetBase(int nBase) { return Send<int>(*this, UDM_SETBASE, nBase); }

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy) {
    return SendForWindow<CWnd>(*this, UDM_SETBUDDY, HandleOf(pWndBuddy));
}

int CSpinButtonCtrl::SetPos(int nPos) { return Send<int>(*this, UDM_SETPOS, 0, MAKELPARAM(nPos, 0)); }

int CSpinButtonCtrl::SetPos32(int nPos) { return Send<int>(*this, UDM_SETPOS32, 0, nPos); }

void CSpinButtonCtrl::SetRange(short nLower, short nUpper) { Send(*this, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower)); }

void CSpinButtonCtrl::SetRange32(int nLower, int nUpper) { Send(*this, UDM_SETRANGE32, nLower, nUpper); }
