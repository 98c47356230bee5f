#include "afxwin.h"

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

CMiniFrameWnd::CMiniFrameWnd() = default;

CMiniFrameWnd::~CMiniFrameWnd() { EndWindow(); }

BOOL CMiniFrameWnd::Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID) {
    return CreateEx(0, lpClassName, lpWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMiniFrameWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                             const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if (!lpClassName) {
        lpClassName = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW));
    }
    m_strTitle = lpWindowName;
    return CWnd::CreateEx(dwExStyle, lpClassName, lpWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                          rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>((dwStyle & WS_CHILD) ? nID : 0)));
}
