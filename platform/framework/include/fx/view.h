#pragma once

#include "fx/wnd.h"

class CDocument;
class CFrameWnd;
struct CPrintInfo;

/// Style of a view that a frame makes.
#define AFX_WS_DEFAULT_VIEW (WS_CHILD | WS_VISIBLE | WS_BORDER)

/// The window that a frame shows its content in. A frame knows one active view, which gets the focus with it and its
/// commands first. Create it with new, mostly by CFrameWnd::CreateView: the object deletes itself with its window.
class FRAMEWORK_API CView : public CWnd {
    DECLARE_DYNAMIC(CView)

public:
    ~CView() override;

    /// NULL for a view without one.
    CDocument* GetDocument() const { return m_pDocument; }

    /// Called once after the view was made, before it is shown; the base updates the whole view.
    virtual void OnInitialUpdate();
    /// FALSE unless overridden.
    virtual BOOL IsSelected(const CObject* pDocItem) const;
    /// Before every drawing on the screen (pInfo is then NULL); the base does nothing.
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = NULL);

protected:
    CView();

    virtual void OnDraw(CDC* pDC) = 0;
    /// What the view shows has changed; the base draws the whole view again.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    /// Activation moved from one view of the frame to another, either of which may be NULL or, when the frame itself
    /// was activated, the same. The base takes the focus.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    /// The frame with this active view was activated or deactivated (WA_ values); the base does nothing.
    virtual void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    /// The document comes behind the view, its template behind the document.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    /// Attaches the view to the document of the frame's creation, if there is one.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);

    afx_msg void OnPaint();
    afx_msg void OnDestroy();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT OnInitialUpdateMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CDocument* m_pDocument = NULL; ///< not owned; set by CDocument::AddView

private:
    friend class CDocument;
    friend class CFrameWnd;
};
