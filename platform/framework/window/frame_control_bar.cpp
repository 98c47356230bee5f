#include "afxext.h"
#include "fx/window_dc.h"

#include "window/bar_place.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

CControlBar::CControlBar() = default;

CControlBar::~CControlBar() {
    m_bAutoDelete = FALSE; // it is being deleted
    DestroyWindow();
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= WS_CHILD | WS_CLIPSIBLINGS;
    return CWnd::PreCreateWindow(cs);
}

int CControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    if (CFrameWnd* frame = GetDockingFrame()) {
        frame->AddControlBar(this);
        frame->DelayRecalcLayout();
    }
    return 0;
}

void CControlBar::OnDestroy() {
    if (CFrameWnd* frame = GetDockingFrame()) {
        frame->RemoveControlBar(this);
    }
    CWnd::OnDestroy();
}

void CControlBar::PostNcDestroy() {
    if (m_bAutoDelete) {
        delete this;
    }
}

CFrameWnd* CControlBar::GetDockingFrame() const {
    return DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
}

void CControlBar::SetBarStyle(DWORD dwStyle) {
    m_dwStyle = dwStyle;
    if (CFrameWnd* frame = m_hWnd ? GetDockingFrame() : nullptr) {
        frame->DelayRecalcLayout();
    }
}

void CControlBar::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom) {
    m_rectBorders = CRect(cxLeft, cyTop, cxRight, cyBottom);
}

void CControlBar::SetBorders(LPCRECT lpRect) { m_rectBorders = *lpRect; }

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int asLongAsThereIs = 32767;
    return CSize(bStretch && bHorz ? asLongAsThereIs : 0, bStretch && !bHorz ? asLongAsThereIs : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD) { return CalcFixedLayout(FALSE, (m_dwStyle & CBRS_ORIENT_VERT) == 0); }

void CControlBar::CalcInsideRect(CRect& rect, BOOL) const {
    rect.DeflateRect(m_rectBorders.left, m_rectBorders.top, m_rectBorders.right, m_rectBorders.bottom);
}

void CControlBar::OnPaint() {
    CPaintDC dc(this);
    if (IsVisible()) {
        DoPaint(&dc);
    }
}

void CControlBar::DoPaint(CDC* pDC) {
    CRect rect;
    GetClientRect(&rect);
    DrawBorders(pDC, rect);
}

void CControlBar::DrawBorders(CDC* pDC, CRect& rect) {
    UINT edges = 0;
    edges |= (m_dwStyle & CBRS_BORDER_LEFT) ? BF_LEFT : 0u;
    edges |= (m_dwStyle & CBRS_BORDER_TOP) ? BF_TOP : 0u;
    edges |= (m_dwStyle & CBRS_BORDER_RIGHT) ? BF_RIGHT : 0u;
    edges |= (m_dwStyle & CBRS_BORDER_BOTTOM) ? BF_BOTTOM : 0u;
    if (edges) {
        ::DrawEdge(pDC->m_hDC, &rect, BDR_RAISEDINNER, edges | BF_ADJUST);
    }
}

BOOL CControlBar::IsVisible() const { return m_hWnd && (GetStyle() & WS_VISIBLE) != 0; }

void CControlBar::DelayShow(BOOL bShow) { m_delayedShow = bShow ? DelayedShow::Show : DelayedShow::Hide; }

bool CControlBar::ShowIfDelayed() {
    const DelayedShow wanted = std::exchange(m_delayedShow, DelayedShow::Nothing);
    if (wanted == DelayedShow::Nothing || (wanted == DelayedShow::Show) == (IsVisible() != FALSE)) {
        return false;
    }
    ShowWindow(wanted == DelayedShow::Show ? SW_SHOWNA : SW_HIDE);
    return true;
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    if (!IsVisible() || (m_dwStyle & CBRS_ALIGN_ANY) == 0) {
        return 0;
    }
    auto& place = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const bool isHorizontal = (m_dwStyle & CBRS_ORIENT_HORZ) != 0;
    frame_bars::TakePlaceInFrame(*this, m_dwStyle, CalcFixedLayout(place.bStretch, isHorizontal), place);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    CFrameWnd* const target = IsVisible() ? frame_bars::CommandTargetOf(*this) : nullptr;
    if (target != nullptr) {
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    }
    return 0;
}
