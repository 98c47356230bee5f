#include "fx/tool_bar_control.h"

#include "afxmsg_.h"
#include "fx/string.h"
#include "fx/tool_tip_control.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

CToolBarCtrl::CToolBarCtrl() = default;

CToolBarCtrl::~CToolBarCtrl() { DestroyWindow(); }

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, TOOLBARCLASSNAME, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::AddButtons(int nNumButtons, LPTBBUTTON lpButtons) {
    return Send<BOOL>(*this, TB_ADDBUTTONS, nNumButtons, lpButtons);
}

BOOL CToolBarCtrl::InsertButton(int nIndex, LPTBBUTTON lpButton) {
    return Send<BOOL>(*this, TB_INSERTBUTTON, nIndex, lpButton);
}

BOOL CToolBarCtrl::DeleteButton(int nIndex) { return Send<BOOL>(*this, TB_DELETEBUTTON, nIndex); }

BOOL CToolBarCtrl::GetButton(int nIndex, LPTBBUTTON lpButton) const {
    return Send<BOOL>(*this, TB_GETBUTTON, nIndex, lpButton);
}

int CToolBarCtrl::GetButtonCount() const { return Send<int>(*this, TB_BUTTONCOUNT); }

UINT CToolBarCtrl::CommandToIndex(UINT nID) const { return Send<UINT>(*this, TB_COMMANDTOINDEX, nID); }

BOOL CToolBarCtrl::GetItemRect(int nIndex, LPRECT lpRect) const {
    return Send<BOOL>(*this, TB_GETITEMRECT, nIndex, lpRect);
}

BOOL CToolBarCtrl::GetRect(int nID, LPRECT lpRect) const { return Send<BOOL>(*this, TB_GETRECT, nID, lpRect); }

int CToolBarCtrl::HitTest(LPPOINT ppt) const { return Send<int>(*this, TB_HITTEST, 0, ppt); }

int CToolBarCtrl::AddStrings(LPCTSTR lpszStrings) { return Send<int>(*this, TB_ADDSTRING, 0, lpszStrings); }

BOOL CToolBarCtrl::EnableButton(int nID, BOOL bEnable) {
    return Send<BOOL>(*this, TB_ENABLEBUTTON, nID, MAKELPARAM(bEnable, 0));
}

BOOL CToolBarCtrl::CheckButton(int nID, BOOL bCheck) {
    return Send<BOOL>(*this, TB_CHECKBUTTON, nID, MAKELPARAM(bCheck, 0));
}

BOOL CToolBarCtrl::PressButton(int nID, BOOL bPress) {
    return Send<BOOL>(*this, TB_PRESSBUTTON, nID, MAKELPARAM(bPress, 0));
}

BOOL CToolBarCtrl::HideButton(int nID, BOOL bHide) {
    return Send<BOOL>(*this, TB_HIDEBUTTON, nID, MAKELPARAM(bHide, 0));
}

BOOL CToolBarCtrl::Indeterminate(int nID, BOOL bIndeterminate) {
    return Send<BOOL>(*this, TB_INDETERMINATE, nID, MAKELPARAM(bIndeterminate, 0));
}

BOOL CToolBarCtrl::IsButtonEnabled(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONENABLED, nID); }

BOOL CToolBarCtrl::IsButtonChecked(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONCHECKED, nID); }

BOOL CToolBarCtrl::IsButtonPressed(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONPRESSED, nID); }

BOOL CToolBarCtrl::IsButtonHidden(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONHIDDEN, nID); }

BOOL CToolBarCtrl::IsButtonIndeterminate(int nID) const { return Send<BOOL>(*this, TB_ISBUTTONINDETERMINATE, nID); }

int CToolBarCtrl::GetState(int nID) const { return Send<int>(*this, TB_GETSTATE, nID); }

BOOL CToolBarCtrl::SetState(int nID, UINT nState) { return Send<BOOL>(*this, TB_SETSTATE, nID, MAKELPARAM(nState, 0)); }

DWORD CToolBarCtrl::GetButtonSize() const { return Send<DWORD>(*this, TB_GETBUTTONSIZE); }

BOOL CToolBarCtrl::SetButtonSize(CSize size) {
    return Send<BOOL>(*this, TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy));
}

BOOL CToolBarCtrl::SetBitmapSize(CSize size) {
    return Send<BOOL>(*this, TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy));
}

void CToolBarCtrl::AutoSize() { Send(*this, TB_AUTOSIZE); }

BOOL CToolBarCtrl::GetMaxSize(LPSIZE pSize) const { return Send<BOOL>(*this, TB_GETMAXSIZE, 0, pSize); }

CImageList* CToolBarCtrl::GetImageList() const {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, TB_GETIMAGELIST));
}

CImageList* CToolBarCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(Send<HIMAGELIST>(*this, TB_SETIMAGELIST, 0, HandleOf(pImageList)));
}

DWORD CToolBarCtrl::GetExtendedStyle() const { return Send<DWORD>(*this, TB_GETEXTENDEDSTYLE); }

DWORD CToolBarCtrl::SetExtendedStyle(DWORD dwExStyle) { return Send<DWORD>(*this, TB_SETEXTENDEDSTYLE, 0, dwExStyle); }

CToolTipCtrl* CToolBarCtrl::GetToolTips() const { return SendForWindow<CToolTipCtrl>(*this, TB_GETTOOLTIPS); }

void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip) { Send(*this, TB_SETTOOLTIPS, HandleOf(pTip)); }

void CToolBarCtrl::SetOwner(CWnd* pWnd) { Send(*this, TB_SETPARENT, HandleOf(pWnd)); }

BEGIN_MESSAGE_MAP(CToolBarCtrl, CWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

int CToolBarCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    // The control refuses buttons until it knows how large their descriptions are.
    Send(*this, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    return 0;
}
