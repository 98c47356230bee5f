#pragma once

#include "fx/scroll_view.h"

#include <vector>

namespace fx {
class PreviewPages;
} // namespace fx

/// The sheets of a print preview: as large as the window, or enlarged and scrolled. CView::OnFilePrintPreview makes it.
class FRAMEWORK_API CPreviewView : public CScrollView {
    DECLARE_DYNAMIC(CPreviewView)

public:
    /// The pages outlive the view.
    explicit CPreviewView(fx::PreviewPages& pages);

    UINT GetCurrentPage() const { return m_page; }
    /// Pages that the document has not are left out: the last one that it has is shown.
    void SetCurrentPage(UINT nPage);
    /// 1 or 2 sheets beside each other.
    void SetPagesShown(UINT nPages);
    UINT GetPagesShown() const { return m_shown; }
    bool HasPreviousPage() const;
    bool HasNextPage() const;
    /// Percent of the sheet's true size; 0: as large as the window has room for, which it is at first.
    void SetZoom(int percent);
    int GetZoom() const { return m_zoom; }
    /// Percent of the sheet's true size at a zoom, which matters for 0.
    double GetPercent(int zoom) const;
    /// The sheets that are seen now, from the left, in the window's pixels.
    std::vector<CRect> GetSheets() const;
    /// "Page 3".
    CString GetPageText() const;

protected:
    void OnDraw(CDC* pDC) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    UINT LastShown() const;
    double PixelsPerMillimetre(int zoom) const;
    double ScreenDots() const;
    void Lay();

    fx::PreviewPages& m_pages;
    UINT m_page;
    UINT m_shown = 1;
    int m_zoom = 0;
};

/// Shows the pages of the view in a window over its frame until the user closes it; it offers to print them. The view's
/// functions for printing are called as for a printer, with CPrintInfo::m_bPreview set, and OnEndPrintPreview at last.
/// Without a printer the user is told so.
FRAMEWORK_API void AFXAPI AFXPrintPreview(CView* pView);
