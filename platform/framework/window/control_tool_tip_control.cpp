#include "fx/tool_tip_control.h"

#include "fx/string.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

CToolTipCtrl::CToolTipCtrl() = default;

CToolTipCtrl::~CToolTipCtrl() { DestroyWindow(); }

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) { return CreateEx(pParentWnd, dwStyle, 0); }

BOOL CToolTipCtrl::CreateEx(CWnd* pParentWnd, DWORD dwStyle, DWORD dwStyleEx) {
    EnsureCommonControls();
    if (!CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, HandleOf(pParentWnd), nullptr)) {
        return FALSE;
    }
    SetOwner(pParentWnd);
    return TRUE;
}

bool CToolTipCtrl::FillInToolInfo(TOOLINFO& info, const CWnd* window, UINT_PTR tool) const {
    info = TOOLINFO{};
    info.cbSize = TTTOOLINFOW_V2_SIZE; // which every version of the controls takes
    if (!window || !window->m_hWnd) {
        return false;
    }
    if (tool == 0) {
        info.hwnd = ::GetParent(window->m_hWnd);
        info.uFlags = TTF_IDISHWND;
        info.uId = reinterpret_cast<UINT_PTR>(window->m_hWnd);
    } else {
        info.hwnd = window->m_hWnd;
        info.uId = tool;
    }
    return true;
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    CString text;
    return text.LoadString(nIDText) && AddTool(pWnd, static_cast<LPCTSTR>(text), lpRectTool, nIDTool);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    TOOLINFO info;
    const bool belongTogether = (lpRectTool == nullptr) == (nIDTool == 0);
    if (!belongTogether || !FillInToolInfo(info, pWnd, nIDTool)) {
        return FALSE;
    }
    if (lpRectTool) {
        info.rect = *lpRectTool;
    }
    info.lpszText = const_cast<LPTSTR>(lpszText);
    return Send<BOOL>(*this, TTM_ADDTOOL, 0, &info);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO info;
    if (FillInToolInfo(info, pWnd, nIDTool)) {
        Send(*this, TTM_DELTOOL, 0, &info);
    }
}

int CToolTipCtrl::GetToolCount() const { return Send<int>(*this, TTM_GETTOOLCOUNT); }

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const {
    if (!FillInToolInfo(ToolInfo, pWnd, nIDTool)) {
        return FALSE;
    }
    ToolInfo.szText[0] = L'\0';
    ToolInfo.lpszText = ToolInfo.szText;
    return Send<BOOL>(*this, TTM_GETTOOLINFO, 0, static_cast<TOOLINFO*>(&ToolInfo));
}

void CToolTipCtrl::SetToolInfo(LPTOOLINFO lpToolInfo) { Send(*this, TTM_SETTOOLINFO, 0, lpToolInfo); }

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO info;
    if (FillInToolInfo(info, pWnd, nIDTool)) {
        info.rect = *lpRect;
        Send(*this, TTM_NEWTOOLRECT, 0, &info);
    }
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO info;
    if (FillInToolInfo(info, pWnd, nIDTool)) {
        info.lpszText = const_cast<LPTSTR>(lpszText);
        Send(*this, TTM_UPDATETIPTEXT, 0, &info);
    }
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool) {
    CString text;
    if (text.LoadString(nIDText)) {
        UpdateTipText(static_cast<LPCTSTR>(text), pWnd, nIDTool);
    }
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    constexpr int longestText = 1024;
    std::vector<wchar_t> text(longestText);
    TOOLINFO info;
    str.Empty();
    if (FillInToolInfo(info, pWnd, nIDTool)) {
        info.lpszText = text.data();
        Send(*this, TTM_GETTEXT, longestText, &info);
        str = text.data();
    }
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const {
    TTHITTESTINFO test{};
    test.hwnd = HandleOf(pWnd);
    test.pt = pt;
    test.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!Send<BOOL>(*this, TTM_HITTEST, 0, &test)) {
        return FALSE;
    }
    *lpToolInfo = test.ti;
    return TRUE;
}

BOOL CToolTipCtrl::GetCurrentTool(LPTOOLINFO lpToolInfo) const {
    return Send<BOOL>(*this, TTM_GETCURRENTTOOL, 0, lpToolInfo);
}

void CToolTipCtrl::Activate(BOOL bActivate) { Send(*this, TTM_ACTIVATE, bActivate); }

void CToolTipCtrl::RelayEvent(LPMSG lpMsg) { Send(*this, TTM_RELAYEVENT, 0, lpMsg); }

void CToolTipCtrl::Pop() { Send(*this, TTM_POP); }

void CToolTipCtrl::Popup() { Send(*this, TTM_POPUP); }

void CToolTipCtrl::Update() { Send(*this, TTM_UPDATE); }

void CToolTipCtrl::SetDelayTime(UINT nDelay) { Send(*this, TTM_SETDELAYTIME, TTDT_AUTOMATIC, MAKELPARAM(nDelay, 0)); }

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime) {
    Send(*this, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
}

int CToolTipCtrl::GetDelayTime(DWORD dwDuration) const { return Send<int>(*this, TTM_GETDELAYTIME, dwDuration); }

BOOL CToolTipCtrl::AdjustRect(LPRECT lprc, BOOL bLarger) { return Send<BOOL>(*this, TTM_ADJUSTRECT, bLarger, lprc); }

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const {
    const auto size = Send<DWORD>(*this, TTM_GETBUBBLESIZE, 0, lpToolInfo);
    return CSize(LOWORD(size), HIWORD(size));
}

void CToolTipCtrl::GetMargin(LPRECT lprc) const { Send(*this, TTM_GETMARGIN, 0, lprc); }

void CToolTipCtrl::SetMargin(LPRECT lprc) { Send(*this, TTM_SETMARGIN, 0, lprc); }

int CToolTipCtrl::GetMaxTipWidth() const { return Send<int>(*this, TTM_GETMAXTIPWIDTH); }

int CToolTipCtrl::SetMaxTipWidth(int iWidth) { return Send<int>(*this, TTM_SETMAXTIPWIDTH, 0, iWidth); }

COLORREF CToolTipCtrl::GetTipBkColor() const { return Send<COLORREF>(*this, TTM_GETTIPBKCOLOR); }

void CToolTipCtrl::SetTipBkColor(COLORREF clr) { Send(*this, TTM_SETTIPBKCOLOR, clr); }

COLORREF CToolTipCtrl::GetTipTextColor() const { return Send<COLORREF>(*this, TTM_GETTIPTEXTCOLOR); }

void CToolTipCtrl::SetTipTextColor(COLORREF clr) { Send(*this, TTM_SETTIPTEXTCOLOR, clr); }

void CToolTipCtrl::GetTitle(PTTGETTITLE pttgt) const { Send(*this, TTM_GETTITLE, 0, pttgt); }

BOOL CToolTipCtrl::SetTitle(UINT uIcon, LPCTSTR lpstrTitle) {
    return Send<BOOL>(*this, TTM_SETTITLE, uIcon, lpstrTitle);
}

HRESULT CToolTipCtrl::SetWindowTheme(LPCWSTR pszSubAppName) {
    return Send<HRESULT>(*this, TTM_SETWINDOWTHEME, 0, pszSubAppName);
}
