#include "fx/control_view.h"

#include "afxcmn.h"
#include "window/control_message.h"

using namespace control;

IMPLEMENT_DYNCREATE(CCtrlView, CView)
IMPLEMENT_DYNCREATE(CListView, CCtrlView)
IMPLEMENT_DYNCREATE(CTreeView, CCtrlView)

BEGIN_MESSAGE_MAP(CCtrlView, CView)
ON_WM_PAINT()
END_MESSAGE_MAP()

CCtrlView::CCtrlView() = default;
CCtrlView::CCtrlView(LPCTSTR lpszClass, DWORD dwStyle) : m_strClass(lpszClass), m_dwDefaultStyle(dwStyle) {}
CCtrlView::~CCtrlView() = default;

BOOL CCtrlView::PreCreateWindow(CREATESTRUCT& cs) {
    EnsureCommonControls();
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = m_strClass;
    }
    cs.style |= static_cast<LONG>(m_dwDefaultStyle);
    return CView::PreCreateWindow(cs);
}

void CCtrlView::OnPaint() { Default(); }

// Printing asks for it; a control has nothing to draw elsewhere.
void CCtrlView::OnDraw(CDC*) {}

// Each control object shares the view's window: it must not destroy it.

CListView::CListView() : CCtrlView(WC_LISTVIEW, AFX_WS_DEFAULT_VIEW), m_control(std::make_unique<CListCtrl>()) {}

CListView::~CListView() { m_control->m_hWnd = nullptr; }

CListCtrl& CListView::GetListCtrl() const {
    m_control->m_hWnd = m_hWnd;
    return *m_control;
}

void CListView::RemoveImageList(int nImageList) { GetListCtrl().SetImageList(nullptr, nImageList); }

CTreeView::CTreeView() : CCtrlView(WC_TREEVIEW, AFX_WS_DEFAULT_VIEW), m_control(std::make_unique<CTreeCtrl>()) {}

CTreeView::~CTreeView() { m_control->m_hWnd = nullptr; }

CTreeCtrl& CTreeView::GetTreeCtrl() const {
    m_control->m_hWnd = m_hWnd;
    return *m_control;
}
