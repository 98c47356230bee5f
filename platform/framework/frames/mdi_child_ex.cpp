#include "afxMDIChildWndEx.h"

#include "afxext.h"
#include "afxMDIFrameWndEx.h"

IMPLEMENT_DYNCREATE(CMDIChildWndEx, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CMDIChildWndEx, CMDIChildWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

CMDIChildWndEx::CMDIChildWndEx() = default;

CMDIChildWndEx::~CMDIChildWndEx() {
    // The panes take themselves out of the docking manager, so it must still be there.
    EndWindow();
}

int CMDIChildWndEx::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (!m_dockManager.Create(this)) {
        return -1;
    }
    return CMDIChildWnd::OnCreate(lpCreateStruct);
}

void CMDIChildWndEx::RecalcLayout(BOOL bNotify) {
    if (m_hWnd) {
        m_nIdleFlags &= ~(idleLayout | idleNotify);
        m_dockManager.RecalcLayout(bNotify);
    }
    // A menu bar shows whether the child is maximised.
    auto* const frame = DYNAMIC_DOWNCAST(CMDIFrameWndEx, m_hWnd ? GetMDIFrame() : nullptr);
    if (frame && frame->IsMenuBarAvailable()) {
        frame->DelayRecalcLayout();
    }
}

CString CMDIChildWndEx::GetFrameText() const {
    CString text;
    GetWindowText(text);
    return text;
}

HICON CMDIChildWndEx::GetFrameIcon() const {
    const HICON icon = GetIcon(FALSE);
    return icon ? icon : reinterpret_cast<HICON>(::GetClassLongPtrW(m_hWnd, GCLP_HICON));
}

void CMDIChildWndEx::ActivateTopLevelFrame() {
    if (CFrameWnd* frame = GetTopLevelFrame()) {
        frame->ActivateFrame();
    }
}
