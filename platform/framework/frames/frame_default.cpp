// What a frame with panes does in place of the system, for the frame of one window and for the MDI frame alike: its
// DefWindowProc comes here, so that a host's own handlers are asked first and get here by calling their base class.
#include "fx/frame_impl.h"

#include <windowsx.h>

#include <vector>

#include "afxmenubar.h"
#include "afxpriv.h"
#include "afxribbonbar.h"
#include "afxvisualmanager.h"
#include "fx/dark_caption.h"
#include "toolbar/dark_dialog.h"

namespace {

CPoint PointOf(LPARAM lParam) { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

/// Client area that no window covers gets its ground at once: the frame's own, or the look's where it has none.
void FillUncovered(CFrameWnd& frame, CMFCRibbonBar* ribbon) {
    if (ribbon == nullptr || frame.IsIconic()) {
        return;
    }
    CRect client;
    frame.GetClientRect(&client);
    CDC dc;
    dc.Attach(::GetDCEx(frame, nullptr, DCX_CACHE | DCX_CLIPCHILDREN | DCX_CLIPSIBLINGS));
    if (frame.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc())) == 0) {
        CMFCVisualManager::GetInstance()->OnFillBarBackground(&dc, ribbon, client, client);
    }
    ::ReleaseDC(frame, dc.Detach());
}

/// Buttons of commands that nobody handles would be seen enabled first, and drawn twice. The ribbon asks for itself
/// when it is painted. A handler may do anything, to the bars too.
void AskToolBarsForStates(CDockingManager& manager) {
    CObList panes;
    manager.GetPaneList(panes, TRUE, RUNTIME_CLASS(CMFCToolBar));
    std::vector<HWND> bars;
    for (POSITION position = panes.GetHeadPosition(); position != nullptr;) {
        bars.push_back(static_cast<CMFCToolBar*>(panes.GetNext(position))->GetSafeHwnd());
    }
    for (const HWND bar : bars) {
        if (::IsWindow(bar)) {
            ::SendMessageW(bar, WM_IDLEUPDATECMDUI, TRUE, 0);
        }
    }
}

/// The caption that the system draws is as dark as what the frame holds.
void FollowLook(const CFrameWnd& frame) {
    if ((frame.GetStyle() & WS_CHILD) == 0) {
        fx::SetDarkCaption(frame.m_hWnd, toolbar::IsLookDark());
    }
}

bool Grows(const WINDOWPOS& place, CSize former) {
    return (place.flags & SWP_NOSIZE) == 0 && (place.cx > former.cx || place.cy > former.cy);
}

} // namespace

LRESULT CFrameImpl::OnDefault(UINT message, WPARAM wParam, LPARAM lParam, SystemProc system) {
    switch (message) {
    case WM_ERASEBKGND:
        return OnEraseBkgnd(reinterpret_cast<HDC>(wParam), system);
    case WM_SHOWWINDOW:
        if (wParam != FALSE) {
            FollowLook(*m_frame);
            AskToolBarsForStates(m_dockingManager);
        }
        break;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED: {
        const LRESULT result = system(*m_frame, message, wParam, lParam);
        OnSystemChange();
        return result;
    }
    case WM_ACTIVATE:
        if (CMFCMenuBar* const bar = LOWORD(wParam) == WA_INACTIVE ? MenuBar() : nullptr) {
            bar->EndKeyboard();
        }
        break;
    case WM_DPICHANGED:
        OnDpiChanged(LOWORD(wParam), reinterpret_cast<const RECT*>(lParam));
        return 0;
    default:
        break;
    }
    if (!m_replacesCaption) {
        return system(*m_frame, message, wParam, lParam);
    }
    LRESULT result = 0;
    if (!m_frame->IsIconic() && DrawsCaption(message, wParam, lParam, result, system)) {
        return result;
    }
    return DefaultWithCaption(message, wParam, lParam, system);
}

// An iconic frame has no client area: the system draws it and finds its points.
bool CFrameImpl::DrawsCaption(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, SystemProc system) {
    switch (message) {
    case WM_NCCALCSIZE:
        // With and without wParam the first of what lParam leads to is the window's rectangle.
        OnNcCalcSize(*reinterpret_cast<RECT*>(lParam));
        return true;
    case WM_NCHITTEST:
        result = OnNcHitTest(PointOf(lParam));
        return true;
    case WM_NCPAINT:
        OnNcPaint();
        return true;
    case WM_NCACTIVATE:
        // -1: the system notes the activation but draws nothing.
        system(*m_frame, message, wParam, -1);
        OnNcActivate(wParam != FALSE);
        result = TRUE;
        return true;
    default:
        return false;
    }
}

LRESULT CFrameImpl::DefaultWithCaption(UINT message, WPARAM wParam, LPARAM lParam, SystemProc system) {
    switch (message) {
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
    case WM_NCRBUTTONDOWN:
    case WM_NCRBUTTONUP:
        if (OnNcButton(message, static_cast<UINT>(wParam), PointOf(lParam))) {
            return 0;
        }
        break;
    case WM_SYSCOMMAND:
        if (OnSysCommand(static_cast<UINT>(wParam), lParam)) {
            return 0;
        }
        break;
    case WM_GETMINMAXINFO:
    case WM_WINDOWPOSCHANGING:
    case WM_WINDOWPOSCHANGED:
    case WM_SETTEXT: {
        if (message == WM_WINDOWPOSCHANGED) {
            // Before the layout: the region of the former size would cut off what it paints.
            const CSize former = m_regionSize;
            UpdateRegion();
            // The layout and the ribbon take their time, and until they paint, area that is new shows what the system
            // had there: black, mostly.
            if (Grows(*reinterpret_cast<const WINDOWPOS*>(lParam), former)) {
                FillUncovered(*m_frame, RibbonBar());
            }
        }
        const LRESULT result = system(*m_frame, message, wParam, lParam);
        if (message == WM_GETMINMAXINFO) {
            OnGetMinMaxInfo(*reinterpret_cast<MINMAXINFO*>(lParam));
        } else if (message == WM_WINDOWPOSCHANGING) {
            OnWindowPosChanging(*reinterpret_cast<WINDOWPOS*>(lParam));
        } else if (message == WM_WINDOWPOSCHANGED) {
            OnWindowPosChanged(*reinterpret_cast<const WINDOWPOS*>(lParam));
        } else {
            RedrawCaption();
        }
        return result;
    }
    default:
        break;
    }
    return system(*m_frame, message, wParam, lParam);
}

// The ribbon's rows stay: erasing them would flash while the frame grows, before the ribbon has its new width.
LRESULT CFrameImpl::OnEraseBkgnd(HDC dc, SystemProc system) {
    CMFCRibbonBar* ribbon = RibbonBar();
    const int saved = ::SaveDC(dc);
    if (ribbon != nullptr && ribbon->IsVisible()) {
        CRect rows;
        ribbon->GetWindowRect(&rows);
        m_frame->ScreenToClient(&rows);
        CRect client;
        m_frame->GetClientRect(&client);
        ::ExcludeClipRect(dc, client.left, rows.top, client.right, rows.bottom);
    }
    const LRESULT isErased = system(*m_frame, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    ::RestoreDC(dc, saved);
    return isErased;
}

void CFrameImpl::OnDpiChanged(UINT dpi, const RECT* place) {
    OnSystemChange(dpi);
    if (place != nullptr) {
        m_frame->SetWindowPos(nullptr, place->left, place->top, place->right - place->left, place->bottom - place->top,
                              SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void CFrameImpl::OnChangeVisualManager() {
    FollowLook(*m_frame);
    if (m_replacesCaption) {
        m_regionSize = CSize(-1, -1);
        UpdateRegion();
        FillUncovered(*m_frame, RibbonBar()); // which nobody paints perhaps
    }
    m_frame->RecalcLayout();
    // Not painted yet: bars and fields that have not heard of the look would be seen with the colours of the former
    // one.
    m_frame->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_FRAME | RDW_ERASE);
}
