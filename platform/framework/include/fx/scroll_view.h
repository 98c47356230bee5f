#pragma once

#include "fx/view.h"
#include "fx/wheel_rest.h"

class CBrush;

/// A view of something larger than its window. What OnDraw draws has its own co-ordinates, in units of the map mode;
/// OnPrepareDC moves them by what is scrolled. A derived class calls SetScrollSizes before the first layout, mostly in
/// OnInitialUpdate or OnUpdate.
class FRAMEWORK_API CScrollView : public CView {
    DECLARE_DYNAMIC(CScrollView)

public:
    ~CScrollView() override;

    /// How far a page or a line goes unless told: a tenth of the whole, a tenth of a page.
    static const SIZE sizeDefault;

    /// Any map mode but MM_ISOTROPIC and MM_ANISOTROPIC; sizes in its units, all positive. Keeps the position as far as
    /// the new sizes allow.
    void SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage = sizeDefault,
                        const SIZE& sizeLine = sizeDefault);
    /// The whole is always as large as the window, and there are no scroll bars.
    void SetScaleToFitSize(SIZE sizeTotal);
    /// In units of the map mode; what is at the window's upper left corner. 0, 0 while the view scales.
    CPoint GetScrollPosition() const;
    /// The same in pixels.
    CPoint GetDeviceScrollPosition() const { return m_position; }
    /// In units of the map mode.
    CSize GetTotalSize() const { return m_total; }
    /// In pixels but for the map mode.
    void GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const;
    /// In units of the map mode; goes as far as there is something.
    void ScrollToPosition(POINT pt);
    /// Gives the frame the size at which the whole is shown; bShrinkOnly: unless it would grow.
    void ResizeParentToFit(BOOL bShrinkOnly = TRUE);
    /// Fills what of the window lies outside of the whole; for OnEraseBkgnd of a derived class.
    void FillOutsideRect(CDC* pDC, CBrush* pBrush);
    void CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const;

    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = NULL) override;

protected:
    CScrollView();

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    DECLARE_MESSAGE_MAP()

private:
    bool IsScaling() const { return m_mapMode == 0; }
    CSize ToPixels(SIZE logical) const;
    /// The window without scroll bars.
    CSize OuterSize() const;
    void UpdateBars();
    bool MoveTo(CPoint pixels);
    bool ScrollByBar(int bar, UINT code);

    int m_mapMode = MM_TEXT; ///< 0: scales to the window
    CSize m_total{0, 0};     ///< in units of the map mode
    CSize m_totalPixels{0, 0};
    CSize m_pagePixels{0, 0};
    CSize m_linePixels{0, 0};
    CPoint m_position{0, 0}; ///< in pixels, from 0
    fx::WheelRest m_wheel;
    bool m_updatesBars = false;
};
