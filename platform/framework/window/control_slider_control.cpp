#include "fx/slider_control.h"

#include "fx/tool_tip_control.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

CSliderCtrl::CSliderCtrl() = default;

CSliderCtrl::~CSliderCtrl() { DestroyWindow(); }

void CSliderCtrl::ClearSel(BOOL bRedraw) { Send(*this, TBM_CLEARSEL, bRedraw); }

void CSliderCtrl::ClearTics(BOOL bRedraw) { Send(*this, TBM_CLEARTICS, bRedraw); }

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::Create(TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, TRACKBAR_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const { return SendForWindow<CWnd>(*this, TBM_GETBUDDY, fLocation); }

void CSliderCtrl::GetChannelRect(LPRECT lprc) const { Send(*this, TBM_GETCHANNELRECT, 0, lprc); }

int CSliderCtrl::GetLineSize() const { return Send<int>(*this, TBM_GETLINESIZE); }

UINT CSliderCtrl::GetNumTics() const { return Send<UINT>(*this, TBM_GETNUMTICS); }

int CSliderCtrl::GetPageSize() const { return Send<int>(*this, TBM_GETPAGESIZE); }

int CSliderCtrl::GetPos() const { return Send<int>(*this, TBM_GETPOS); }

void CSliderCtrl::GetRange(int& nMin, int& nMax) const {
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

int CSliderCtrl::GetRangeMax() const { return Send<int>(*this, TBM_GETRANGEMAX); }

int CSliderCtrl::GetRangeMin() const { return Send<int>(*this, TBM_GETRANGEMIN); }

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const {
    nMin = Send<int>(*this, TBM_GETSELSTART);
    nMax = Send<int>(*this, TBM_GETSELEND);
}

int CSliderCtrl::GetThumbLength() const { return Send<int>(*this, TBM_GETTHUMBLENGTH); }

void CSliderCtrl::GetThumbRect(LPRECT lprc) const { Send(*this, TBM_GETTHUMBRECT, 0, lprc); }

int CSliderCtrl::GetTic(int nTic) const { return Send<int>(*this, TBM_GETTIC, nTic); }

DWORD* CSliderCtrl::GetTicArray() const { return Send<DWORD*>(*this, TBM_GETPTICS); }

int CSliderCtrl::GetTicPos(int nTic) const { return Send<int>(*this, TBM_GETTICPOS, nTic); }

CToolTipCtrl* CSliderCtrl::GetToolTips() const { return SendForWindow<CToolTipCtrl>(*this, TBM_GETTOOLTIPS); }

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation) {
    return SendForWindow<CWnd>(*this, TBM_SETBUDDY, fLocation, HandleOf(pWndBuddy));
}

int CSliderCtrl::SetLineSize(int nSize) { return Send<int>(*this, TBM_SETLINESIZE, 0, nSize); }

int CSliderCtrl::SetPageSize(int nSize) { return Send<int>(*this, TBM_SETPAGESIZE, 0, nSize); }

void CSliderCtrl::SetPos(int nPos) { Send(*this, TBM_SETPOS, TRUE, nPos); }

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw) {
    SetRangeMin(nMin, bRedraw);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::SetRangeMax(int nMax, BOOL bRedraw) { Send(*this, TBM_SETRANGEMAX, bRedraw, nMax); }

void CSliderCtrl::SetRangeMin(int nMin, BOOL bRedraw) { Send(*this, TBM_SETRANGEMIN, bRedraw, nMin); }

void CSliderCtrl::SetSelection(int nMin, int nMax) {
    Send(*this, TBM_SETSELSTART, FALSE, nMin);
    Send(*this, TBM_SETSELEND, TRUE, nMax);
}

void CSliderCtrl::SetThumbLength(int nLength) { Send(*this, TBM_SETTHUMBLENGTH, nLength); }

BOOL CSliderCtrl::SetTic(int nTic) { return Send<BOOL>(*this, TBM_SETTIC, 0, nTic); }

void CSliderCtrl::SetTicFreq(int nFreq) { Send(*this, TBM_SETTICFREQ, nFreq); }

int CSliderCtrl::SetTipSide(int nLocation) { return Send<int>(*this, TBM_SETTIPSIDE, nLocation); }

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip) { Send(*this, TBM_SETTOOLTIPS, HandleOf(pWndTip)); }
