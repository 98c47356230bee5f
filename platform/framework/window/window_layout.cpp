// Who belongs to whom above the direct parent, and where windows go: centring, edges, borders.
#include "afxpriv.h"
#include "fx/app.h"
#include "fx/frame.h"
#include "fx/wnd.h"
#include "window/moving_flags.h"

namespace {

RECT WorkArea(HWND window) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

void MovePart(AFX_SIZEPARENTPARAMS* layout, HWND window, const RECT& rect) {
    const UINT flags = fx::MovingFlags(window);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    if (layout->hDWP != nullptr) {
        layout->hDWP = ::DeferWindowPos(layout->hDWP, window, nullptr, rect.left, rect.top, width, height, flags);
    } else {
        ::SetWindowPos(window, nullptr, rect.left, rect.top, width, height, flags);
    }
}

} // namespace

CWnd* CWnd::GetParentOwner() const {
    HWND window = m_hWnd;
    while ((::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD) != 0) {
        const HWND parent = ::GetParent(window);
        if (parent == nullptr) {
            break;
        }
        window = parent;
    }
    return FromHandle(window);
}

CWnd* CWnd::GetTopLevelParent() const {
    if (GetSafeHwnd() == nullptr) {
        return nullptr;
    }
    HWND window = m_hWnd;
    while (HWND parent = ::GetParent(window)) {
        window = parent;
    }
    return FromHandle(window);
}

CWnd* CWnd::GetTopLevelOwner() const {
    if (GetSafeHwnd() == nullptr) {
        return nullptr;
    }
    HWND window = m_hWnd;
    for (;;) {
        const bool isChild = (::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD) != 0;
        const HWND next = isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
        if (next == nullptr) {
            break;
        }
        window = next;
    }
    return FromHandle(window);
}

CFrameWnd* CWnd::GetParentFrame() const {
    if (GetSafeHwnd() == nullptr) {
        return nullptr;
    }
    for (CWnd* parent = GetParent(); parent != nullptr; parent = parent->GetParent()) {
        if (auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, parent)) {
            return frame;
        }
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
    if (GetSafeHwnd() == nullptr) {
        return nullptr;
    }
    CFrameWnd* frame = DYNAMIC_DOWNCAST(CFrameWnd, const_cast<CWnd*>(this));
    if (frame == nullptr) {
        frame = GetParentFrame();
    }
    while (frame != nullptr) {
        CFrameWnd* outer = frame->GetParentFrame();
        if (outer == nullptr) {
            break;
        }
        frame = outer;
    }
    return frame;
}

CWnd* CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop) {
    HWND owner = pParent != nullptr ? pParent->m_hWnd : AfxGetMainWnd()->GetSafeHwnd();
    while (owner != nullptr && (::GetWindowLongPtr(owner, GWL_STYLE) & WS_CHILD) != 0) {
        owner = ::GetParent(owner);
    }
    HWND top = owner;
    while (HWND next = top != nullptr ? ::GetParent(top) : nullptr) {
        top = next;
    }
    // A modal dialog of the owner, if there is one, is who the new window must be in front of.
    if (pParent == nullptr && owner != nullptr) {
        owner = ::GetLastActivePopup(owner);
    }
    if (pWndTop != nullptr) {
        const bool disable = top != nullptr && ::IsWindowEnabled(top) && top != owner;
        *pWndTop = disable ? top : nullptr;
        if (disable) {
            ::EnableWindow(top, FALSE);
        }
    }
    return FromHandle(owner);
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    if (HWND child = ::GetDlgItem(m_hWnd, nID)) {
        // A child with the id may itself contain one: dialogs in bars are looked into first.
        if (::GetTopWindow(child) != nullptr) {
            const CWnd* inner = FromHandlePermanent(child);
            CWnd* found = inner != nullptr ? inner->GetDescendantWindow(nID, bOnlyPerm) : nullptr;
            if (found != nullptr) {
                return found;
            }
        }
        if (CWnd* wnd = bOnlyPerm ? FromHandlePermanent(child) : FromHandle(child)) {
            return wnd;
        }
    }
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd* wnd = bOnlyPerm ? FromHandlePermanent(child) : FromHandle(child);
        if (CWnd* found = wnd != nullptr ? wnd->GetDescendantWindow(nID, bOnlyPerm) : nullptr) {
            return found;
        }
    }
    return nullptr;
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    HWND centre = pAlternateOwner != nullptr ? pAlternateOwner->m_hWnd
                  : isChild                  ? ::GetParent(m_hWnd)
                                             : ::GetWindow(m_hWnd, GW_OWNER);
    CRect rect;
    GetWindowRect(&rect);
    CRect area;
    CRect around;
    if (isChild) {
        const HWND parent = ::GetParent(m_hWnd);
        ::GetClientRect(parent, &area);
        ::GetClientRect(centre, &around);
        ::MapWindowPoints(centre, parent, reinterpret_cast<LPPOINT>(&around), 2);
    } else {
        if (centre != nullptr && (!::IsWindowVisible(centre) || ::IsIconic(centre))) {
            centre = nullptr;
        }
        area = WorkArea(centre != nullptr ? centre : m_hWnd);
        if (centre != nullptr) {
            ::GetWindowRect(centre, &around);
        } else {
            around = area;
        }
    }
    int left = (around.left + around.right) / 2 - rect.Width() / 2;
    int top = (around.top + around.bottom) / 2 - rect.Height() / 2;
    left = left + rect.Width() > area.right ? area.right - rect.Width() : left;
    top = top + rect.Height() > area.bottom ? area.bottom - rect.Height() : top;
    left = left < area.left ? area.left : left;
    top = top < area.top ? area.top : top;
    SetWindowPos(nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    DWORD exStyle = GetExStyle();
    if (nAdjustType == adjustBorder) {
        exStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    }
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, exStyle);
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch) {
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr) {
        layout.rect = *lpRectClient;
    } else {
        GetClientRect(&layout.rect);
    }
    if (nFlag != reposQuery) {
        layout.hDWP = ::BeginDeferWindowPos(8);
    }
    HWND leftOver = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const UINT id = LOWORD(::GetDlgCtrlID(child));
        if (id == nIDLeftOver) {
            leftOver = child;
        } else if (id >= nIDFirst && id <= nIDLast && FromHandlePermanent(child) != nullptr) {
            ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
        }
    }
    if (nFlag == reposQuery) {
        if (lpRectParam != nullptr) {
            *lpRectParam = bStretch ? layout.rect : RECT{0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy};
        }
        return;
    }
    if (nIDLeftOver != 0 && leftOver != nullptr) {
        if (nFlag == reposExtra && lpRectParam != nullptr) {
            layout.rect.left += lpRectParam->left;
            layout.rect.top += lpRectParam->top;
            layout.rect.right -= lpRectParam->right;
            layout.rect.bottom -= lpRectParam->bottom;
        }
        if (CWnd* rest = FromHandlePermanent(leftOver)) {
            rest->CalcWindowRect(&layout.rect);
        }
        MovePart(&layout, leftOver, layout.rect);
    }
    if (layout.hDWP != nullptr) {
        ::EndDeferWindowPos(layout.hDWP);
    }
}
