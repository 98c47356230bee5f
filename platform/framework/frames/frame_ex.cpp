#include "afxframewndex.h"

#include "afxext.h"
#include "fx/registered_messages.h"

IMPLEMENT_DYNCREATE(CFrameWndEx, CFrameWnd)

BEGIN_MESSAGE_MAP(CFrameWndEx, CFrameWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_SIZE()
ON_MESSAGE(WM_SETTEXT, &CFrameWndEx::OnSetText)
ON_REGISTERED_MESSAGE(AFX_WM_CHANGEVISUALMANAGER, &CFrameWndEx::OnChangeVisualManager)
ON_REGISTERED_MESSAGE(AFX_WM_CREATETOOLBAR, &CFrameWndEx::OnToolbarCreateNew)
ON_REGISTERED_MESSAGE(AFX_WM_DELETETOOLBAR, &CFrameWndEx::OnToolbarDelete)
END_MESSAGE_MAP()

CFrameWndEx::CFrameWndEx() = default;

CFrameWndEx::~CFrameWndEx() {
    // The panes take themselves out of the docking manager, so it must still be there.
    EndWindow();
}

LRESULT CFrameWndEx::OnSetText(WPARAM, LPARAM) { return Default(); }
