#include "afxext.h"
#include "afxpriv.h"
#include "afxwin.h"
#include "fx/document.h"

#include <utility>

// The frame and the views in it.

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID) {
    if (pContext == nullptr || pContext->m_pNewViewClass == nullptr) {
        return nullptr;
    }
    CObject* const object = pContext->m_pNewViewClass->CreateObject();
    CWnd* const view = DYNAMIC_DOWNCAST(CWnd, object);
    if (view == nullptr) {
        delete object;
        return nullptr;
    }
    // A view whose window cannot be made deletes itself.
    if (!view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this, nID, pContext)) {
        return nullptr;
    }
    return view;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext) {
    const bool wantsView = pContext != nullptr && pContext->m_pNewViewClass != nullptr;
    return !wantsView || CreateView(pContext, AFX_IDW_PANE_FIRST) != nullptr;
}

CDocument* CFrameWnd::GetActiveDocument() {
    const CView* const view = GetActiveView();
    return view != nullptr ? view->GetDocument() : nullptr;
}

CString CFrameWnd::DocumentTitle() {
    const CDocument* const document = GetActiveDocument();
    if (document == nullptr) {
        return CString();
    }
    CString title = document->GetTitle();
    if (m_windowNumber > 0) {
        title.AppendFormat(L":%d", m_windowNumber);
    }
    return title;
}

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify) {
    CView* const former = std::exchange(m_pViewActive, nullptr);
    if (former == pViewNew) {
        m_pViewActive = former;
        return;
    }
    if (former != nullptr) {
        former->OnActivateView(FALSE, pViewNew, former);
    }
    // The former view may have made another one active.
    if (m_pViewActive != nullptr) {
        return;
    }
    m_pViewActive = pViewNew;
    if (pViewNew != nullptr && bNotify) {
        pViewNew->OnActivateView(TRUE, pViewNew, former);
    }
}

void CFrameWnd::InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible) {
    CView* view = nullptr;
    if (GetActiveView() == nullptr) {
        view = DYNAMIC_DOWNCAST(CView, GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE));
        if (view != nullptr) {
            // The view is told below, when it has been filled.
            SetActiveView(view, FALSE);
        }
    }
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    if (pDoc != nullptr) {
        OnUpdateFrameTitle(TRUE);
    }
    if (!bMakeVisible) {
        return;
    }
    // A program that only prints shows nothing.
    const CWinApp* const application = AfxGetApp();
    const bool isHidden =
        application != nullptr && application->m_pMainWnd == this && application->m_nCmdShow == SW_HIDE;
    ActivateFrame(isHidden ? SW_HIDE : -1);
    if (view != nullptr) {
        view->OnActivateView(TRUE, view, view);
    }
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd) {
    if (m_pViewActive != nullptr) {
        m_pViewActive->SetFocus();
    } else {
        CWnd::OnSetFocus(pOldWnd);
    }
}

void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    if (m_pViewActive != nullptr) {
        m_pViewActive->OnActivateFrame(nState, this);
    }
}
