// A mini frame: its window, its pane, its sizes, how it is drawn. What the mouse does: pane_frame_mouse.cpp.
#include "afxPaneFrameWnd.h"

#include "afxDockingManager.h"
#include "afxDockSite.h"
#include "afxglobals.h"
#include "afxPane.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/registered_messages.h"
#include "fx/window_dc.h"
#include "panes/row_place.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNCREATE(CPaneFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CPaneFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_MOUSEACTIVATE()
ON_WM_SETCURSOR()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_RBUTTONUP()
ON_WM_CAPTURECHANGED()
ON_REGISTERED_MESSAGE(AFX_WM_CHANGEVISUALMANAGER, &CPaneFrameWnd::OnChangeVisualManager)
END_MESSAGE_MAP()

namespace {

// At 96 DPI.
constexpr int kBorder = 3;
constexpr int kCaptionPadding = 2;
constexpr int kTextIndent = 4;

CObList& AllFrames() {
    static CObList frames;
    return frames;
}

template <typename Found>
CPaneFrameWnd* FindFrame(Found found) {
    for (POSITION position = AllFrames().GetHeadPosition(); position != nullptr;) {
        auto* const frame = static_cast<CPaneFrameWnd*>(AllFrames().GetNext(position));
        if (found(*frame)) {
            return frame;
        }
    }
    return nullptr;
}

} // namespace

CPaneFrameWnd::CPaneFrameWnd() { m_closeButton.SetMiniFramebutton(); }

CPaneFrameWnd::~CPaneFrameWnd() { DestroyWindow(); }

BOOL CPaneFrameWnd::Create(LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           CCreateContext* pContext) {
    return CreateEx(0, lpszWindowName, dwStyle, rect, pParentWnd, pContext);
}

BOOL CPaneFrameWnd::CreateEx(DWORD dwStyleEx, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                             CCreateContext*) {
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW));
    return CWnd::CreateEx(dwStyleEx, windowClass, lpszWindowName, dwStyle | WS_POPUP | WS_CLIPCHILDREN, rect,
                          pParentWnd, 0);
}

BOOL CPaneFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    cs.dwExStyle |= WS_EX_TOOLWINDOW;
    return CWnd::PreCreateWindow(cs);
}

int CPaneFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    AllFrames().AddHead(this);
    if (m_pDockManager != nullptr) {
        m_pDockManager->AddMiniFrame(this);
    }
    return 0;
}

void CPaneFrameWnd::OnDestroy() {
    m_pPane = nullptr; // it goes with this window, and has nothing to leave any more
    if (m_pDockManager != nullptr) {
        m_pDockManager->RemoveMiniFrame(this);
    }
    if (const POSITION position = AllFrames().Find(this)) {
        AllFrames().RemoveAt(position);
    }
    CWnd::OnDestroy();
}

void CPaneFrameWnd::PostNcDestroy() {
    CWnd::PostNcDestroy();
    delete this;
}

// The system's way to close a window; the pane is hidden and stays where it floats.
void CPaneFrameWnd::OnClose() {
    if (m_pPane == nullptr) {
        DestroyWindow();
        return;
    }
    auto* const frame = m_pDockManager != nullptr ? m_pDockManager->GetDockSiteFrameWnd() : nullptr;
    if (frame == nullptr || frame->OnCloseMiniFrame(this)) {
        m_pPane->OnPressCloseButton();
    }
}

void CPaneFrameWnd::AddPane(CBasePane* pWnd) {
    auto* const pane = DYNAMIC_DOWNCAST(CPane, pWnd);
    if (pane == nullptr || m_pPane != nullptr) {
        return;
    }
    if (CDockSite* const site = pane->GetParentDockSite()) {
        site->RemovePane(pane, DM_UNKNOWN);
    } else if (CPaneFrameWnd* const other = pane->GetParentMiniFrame(TRUE)) {
        other->RemovePane(pane);
    }
    m_pPane = pane;
    pane->m_bIsDocked = FALSE;
    pane->SetPaneAlignment(0);
    panes::ChangeParent(*pane, *this);
    m_hasCloseButton = pane->CanBeClosed();
    CString name;
    pane->GetPaneName(name);
    SetWindowText(name);
    AdjustLayout();
}

void CPaneFrameWnd::RemovePane(CBasePane* pWnd, BOOL bDestroy, BOOL bNoDelayedDestroy) {
    if (m_pPane == nullptr || m_pPane != pWnd) {
        return;
    }
    CPane* const pane = std::exchange(m_pPane, nullptr);
    GetWindowRect(&m_rectRecentFloatingRect);
    pane->m_recentDockInfo.m_rectRecentFloatingRect = m_rectRecentFloatingRect;
    pane->OnRemoveFromMiniFrame(this);
    if (bDestroy) {
        pane->DestroyWindow();
    }
    ShowWindow(SW_HIDE);
    // The pane's window is this one's child until the caller has given it another parent.
    if (bNoDelayedDestroy || bDestroy) {
        DestroyWindow();
    } else {
        PostMessage(WM_CLOSE);
    }
}

void CPaneFrameWnd::ReplacePane(CBasePane* pBarOrg, CBasePane* pBarReplaceWith) {
    if (m_pPane != nullptr && m_pPane == pBarOrg) {
        m_pPane = nullptr;
        AddPane(pBarReplaceWith);
    }
}

CWnd* CPaneFrameWnd::GetPane() const { return m_pPane; }

int CPaneFrameWnd::GetVisiblePaneCount() const { return m_pPane != nullptr && m_pPane->IsVisible() ? 1 : 0; }

CWnd* CPaneFrameWnd::GetFirstVisiblePane() const { return GetVisiblePaneCount() > 0 ? m_pPane : nullptr; }

CBasePane* CPaneFrameWnd::PaneFromPoint(CPoint point, int nSensitivity, BOOL bCheckVisibility) {
    CRect window;
    GetWindowRect(&window);
    window.InflateRect(nSensitivity, nSensitivity);
    const bool counts = m_pPane != nullptr && (!bCheckVisibility || m_pPane->IsVisible());
    return counts && window.PtInRect(point) ? m_pPane : nullptr;
}

void CPaneFrameWnd::UpdateVisibility() {
    const BOOL isWanted = GetVisiblePaneCount() > 0 && !m_bDelayShow;
    if (isWanted != IsWindowVisible()) {
        ShowWindow(isWanted ? SW_SHOWNOACTIVATE : SW_HIDE);
    }
}

AFX_DOCK_TYPE CPaneFrameWnd::GetDockingMode() const {
    return m_pPane != nullptr ? m_pPane->GetDockingMode() : DT_UNDEFINED;
}

int CPaneFrameWnd::GetCaptionHeight() const {
    const int text = afxGlobalData.GetTextHeight();
    return std::max<int>(text, CMFCCaptionButton::GetSize().cy) + afxGlobalData.ScalePixels(kCaptionPadding);
}

void CPaneFrameWnd::CalcBorderSize(CRect& rectBorderSize) const {
    const int border = afxGlobalData.ScalePixels(kBorder);
    rectBorderSize.SetRect(border, border, border, border);
}

void CPaneFrameWnd::GetCaptionRect(CRect& rectCaption) const {
    CRect border;
    CalcBorderSize(border);
    GetClientRect(&rectCaption);
    rectCaption.DeflateRect(border.left, border.top, border.right, 0);
    rectCaption.bottom = rectCaption.top + GetCaptionHeight();
}

CRect CPaneFrameWnd::PaneRect() const {
    CRect border;
    CalcBorderSize(border);
    CRect rect;
    GetClientRect(&rect);
    rect.DeflateRect(border.left, border.top + GetCaptionHeight(), border.right, border.bottom);
    return rect;
}

CSize CPaneFrameWnd::SizeAround(CSize pane) const {
    CRect border;
    CalcBorderSize(border);
    return {pane.cx + border.left + border.right, pane.cy + border.top + border.bottom + GetCaptionHeight()};
}

CString CPaneFrameWnd::GetCaptionText() {
    CString name;
    if (m_pPane != nullptr) {
        m_pPane->GetPaneName(name);
    }
    return name;
}

void CPaneFrameWnd::SetCaptionButtons(DWORD dwButtons) {
    m_hasCloseButton = (dwButtons & AFX_CAPTION_BTN_CLOSE) != 0;
    AdjustLayout();
}

void CPaneFrameWnd::AdjustLayout() {
    if (m_hWnd == nullptr) {
        return;
    }
    CRect caption;
    GetCaptionRect(caption);
    const CSize button = CMFCCaptionButton::GetSize();
    m_closeButton.Move({caption.right - button.cx, caption.CenterPoint().y - button.cy / 2}, !m_hasCloseButton);
    if (m_pPane != nullptr && m_pPane->m_hWnd != nullptr) {
        panes::DeferMove(nullptr, m_pPane->m_hWnd, PaneRect());
    }
    Invalidate();
}

void CPaneFrameWnd::SizeToContent() {
    if (m_pPane == nullptr) {
        return;
    }
    const CSize pane = m_pPane->CanBeResized() ? m_pPane->StretchPane(PaneRect().Width(), FALSE)
                                               : m_pPane->CalcFixedLayout(FALSE, TRUE);
    const CSize size = SizeAround(pane);
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    AdjustLayout();
}

void CPaneFrameWnd::OnPaneRecalcLayout() { SizeToContent(); }

void CPaneFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    AdjustLayout();
}

LRESULT CPaneFrameWnd::OnChangeVisualManager(WPARAM, LPARAM) {
    SizeToContent();
    return 0;
}

BOOL CPaneFrameWnd::OnEraseBkgnd(CDC*) { return TRUE; }

void CPaneFrameWnd::OnPaint() {
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    fx::MemoryDc memory(paint, client);
    CDC& dc = memory.GetDC();
    OnDrawBorder(&dc);
    CRect caption;
    GetCaptionRect(caption);
    const BOOL isActive = ::GetActiveWindow() == m_hWnd;
    const COLORREF text = CMFCVisualManager::GetInstance()->OnFillMiniFrameCaption(&dc, caption, this, isActive);
    {
        const fx::DcSelection font(dc.m_hDC, afxGlobalData.fontRegular.m_hObject);
        const fx::TextColour colour(dc, text);
        CRect rect = caption;
        rect.left += afxGlobalData.ScalePixels(kTextIndent);
        rect.right -= m_closeButton.GetRect().Width();
        dc.DrawText(GetCaptionText(), rect, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    m_closeButton.OnDraw(&dc, isActive);
}

void CPaneFrameWnd::OnDrawBorder(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CRect border;
    CalcBorderSize(border);
    CMFCVisualManager::GetInstance()->OnFillBarBackground(pDC, m_pPane, client, client, TRUE);
    CMFCVisualManager::GetInstance()->OnDrawMiniFrameBorder(pDC, this, client, border);
}

CBasePane* CPaneFrameWnd::FindFloatingPaneByID(UINT nID) {
    const auto hasPane = [nID](const CPaneFrameWnd& frame) {
        return frame.m_pPane != nullptr && static_cast<UINT>(frame.m_pPane->GetDlgCtrlID()) == nID;
    };
    const CPaneFrameWnd* const found = FindFrame(hasPane);
    return found != nullptr ? found->m_pPane : nullptr;
}

CPaneFrameWnd* __stdcall CPaneFrameWnd::FrameFromPoint(CPoint pt, int nSensitivity, CPaneFrameWnd* pFrameToExclude,
                                                       BOOL) {
    return FindFrame([&](const CPaneFrameWnd& frame) {
        CRect window;
        frame.GetWindowRect(&window);
        window.InflateRect(nSensitivity, nSensitivity);
        return &frame != pFrameToExclude && frame.IsWindowVisible() && window.PtInRect(pt);
    });
}

void CPaneFrameWnd::RedrawAll() {
    FindFrame([](CPaneFrameWnd& frame) {
        frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
        return false;
    });
}
