#pragma once

#include "fx/wnd.h"

class CDocument;
class CFrameWnd;
class CPreviewView;
struct CPrintInfo;

namespace fx {
class PreviewPages;
} // namespace fx

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
    /// From OnPreparePrinting: asks for the printer and what is to be printed, unless the job is direct. FALSE: nothing
    /// is to be printed.
    BOOL DoPreparePrinting(CPrintInfo* pInfo);
    /// The commands ID_FILE_PRINT and, without a dialog, ID_FILE_PRINT_DIRECT, for maps of derived classes.
    afx_msg void OnFilePrint();
    /// The command ID_FILE_PRINT_PREVIEW, for maps of derived classes; see AFXPrintPreview.
    afx_msg void OnFilePrintPreview();
    /// Before every drawing on the screen (pInfo is then NULL) and of a page. The base does nothing for the screen, and
    /// ends the printing of a document whose length nobody has told behind the first page.
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

    // A print job in its order. The length of the document is told in the first or second one (CPrintInfo::SetMaxPage).
    /// FALSE: no job. The base has nothing to print with: a view that prints calls DoPreparePrinting.
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    /// A page; the base calls OnDraw.
    virtual void OnPrint(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo);
    /// Instead of it when the job was a preview, which is about to close; the base calls OnEndPrinting. point: not
    /// used.
    virtual void OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT point, CPreviewView* pView);

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
    /// False: something went wrong of which the user knows nothing.
    bool PrintJob(CDC& dc, CPrintInfo& info);
    bool PrintPage(CDC& dc, CPrintInfo& info);

    friend class CDocument;
    friend class CFrameWnd;
    friend class fx::PreviewPages;
};
