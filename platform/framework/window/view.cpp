#include "afxext.h"
#include "afxpriv.h"
#include "afxwin.h"
#include "fx/document.h"

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
ON_WM_CREATE()
ON_WM_PAINT()
ON_WM_DESTROY()
ON_WM_MOUSEACTIVATE()
ON_MESSAGE(WM_INITIALUPDATE, &CView::OnInitialUpdateMessage)
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView() {
    if (m_pDocument != nullptr) {
        m_pDocument->RemoveView(this);
    }
}

int CView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    const auto* const context = static_cast<const CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (context != nullptr && context->m_pCurrentDoc != nullptr) {
        context->m_pCurrentDoc->AddView(this);
    }
    return 0;
}

BOOL CView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    return m_pDocument != nullptr && m_pDocument->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CView::OnInitialUpdate() { OnUpdate(nullptr, 0, nullptr); }

BOOL CView::IsSelected(const CObject*) const { return FALSE; }

void CView::OnPrepareDC(CDC*, CPrintInfo* pInfo) {
    constexpr UINT kNoLastPage = 0xFFFF;
    if (pInfo != nullptr && pInfo->m_pPD->m_pd.nMaxPage == kNoLastPage) {
        pInfo->m_bContinuePrinting = pInfo->m_nCurPage == 1;
    }
}

BOOL CView::OnPreparePrinting(CPrintInfo*) { return TRUE; }
void CView::OnBeginPrinting(CDC*, CPrintInfo*) {}
void CView::OnPrint(CDC* pDC, CPrintInfo*) { OnDraw(pDC); }
void CView::OnEndPrinting(CDC*, CPrintInfo*) {}
void CView::OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT, CPreviewView*) { OnEndPrinting(pDC, pInfo); }

void CView::OnUpdate(CView*, LPARAM, CObject*) { Invalidate(); }

void CView::OnActivateView(BOOL bActivate, CView* pActivateView, CView*) {
    const CWnd* const top = GetTopLevelParent();
    if (bActivate && pActivateView == this && top != nullptr && ::GetActiveWindow() == top->m_hWnd) {
        SetFocus();
    }
}

void CView::OnActivateFrame(UINT, CFrameWnd*) {}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    }
    if ((cs.style & WS_BORDER) != 0) {
        // A sunken edge takes the place of the line.
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~static_cast<LONG>(WS_BORDER);
    }
    return CWnd::PreCreateWindow(cs);
}

void CView::PostNcDestroy() { delete this; }

void CView::OnPaint() {
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

void CView::OnDestroy() {
    if (CFrameWnd* const frame = GetParentFrame(); frame != nullptr && frame->GetActiveView() == this) {
        frame->SetActiveView(nullptr);
    }
    CWnd::OnDestroy();
}

int CView::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    const int result = CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT) {
        return result;
    }
    CFrameWnd* const frame = GetParentFrame();
    if (frame == nullptr) {
        return result;
    }
    const HWND focus = ::GetFocus();
    if (frame->GetActiveView() != this) {
        frame->SetActiveView(this);
    } else if (focus != m_hWnd && !::IsChild(m_hWnd, focus)) {
        OnActivateView(TRUE, this, this);
    }
    return result;
}

LRESULT CView::OnInitialUpdateMessage(WPARAM, LPARAM) {
    OnInitialUpdate();
    return 0;
}
