#include "afxMDIFrameWndEx.h"

#include "afxext.h"
#include "afxmenubar.h"
#include "fx/registered_messages.h"

#include <utility>

IMPLEMENT_DYNCREATE(CMDIFrameWndEx, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWndEx, CMDIFrameWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_SIZE()
ON_REGISTERED_MESSAGE(AFX_WM_CHANGEVISUALMANAGER, &CMDIFrameWndEx::OnChangeVisualManager)
ON_REGISTERED_MESSAGE(AFX_WM_CREATETOOLBAR, &CMDIFrameWndEx::OnToolbarCreateNew)
ON_REGISTERED_MESSAGE(AFX_WM_DELETETOOLBAR, &CMDIFrameWndEx::OnToolbarDelete)
END_MESSAGE_MAP()

CMDIFrameWndEx::CMDIFrameWndEx() = default;

CMDIFrameWndEx::~CMDIFrameWndEx() {
    // The panes take themselves out of the docking manager, so it must still be there.
    EndWindow();
}

LRESULT CMDIFrameWndEx::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // The system would spread the MDI client over the panes, for the layout to take it back at once.
    if (message == WM_SIZE) {
        return 0;
    }
    return BarFrameOf::DefWindowProc(message, wParam, lParam);
}

void CMDIFrameWndEx::OnPanesPlaced() {
    AdjustClientArea();
    if (CMFCMenuBar* const bar = m_Impl.MenuBar()) {
        BOOL isMaximized = FALSE;
        CMDIChildWnd* const child = MDIGetActive(&isMaximized);
        bar->SetMaximizeMode(isMaximized, isMaximized ? child : nullptr);
    }
}

void CMDIFrameWndEx::AdjustClientArea() {
    if (!m_hWndMDIClient) {
        return;
    }
    CRect former;
    ::GetWindowRect(m_hWndMDIClient, &former);
    ScreenToClient(&former);
    const CRect place = m_dockManager.GetClientAreaBounds();
    if (former != place) {
        ::SetWindowPos(m_hWndMDIClient, nullptr, place.left, place.top, place.Width(), place.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (m_clientPlace != place) {
        OnSizeMDIClient(std::exchange(m_clientPlace, place), place);
    }
}

void CMDIFrameWndEx::OnSizeMDIClient(const CRect&, const CRect&) {}
