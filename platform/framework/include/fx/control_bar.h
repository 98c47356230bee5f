#pragma once

#include "fx/bar_styles.h"
#include "fx/wnd.h"

class CFrameWnd;

/// A bar along an edge of its frame, placed by the frame's RecalcLayout; the frame lists it but does not own it.
class FRAMEWORK_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)

public:
    ~CControlBar() override;

    DWORD GetBarStyle() { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle);
    /// Pixels between the bar's edges and what is inside.
    CRect GetBorders() const { return m_rectBorders; }
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    void SetBorders(LPCRECT lpRect);
    /// Number of items, for bars that have any.
    int GetCount() const { return m_nCount; }
    CFrameWnd* GetDockingFrame() const;
    BOOL IsFloating() const { return FALSE; }
    void SetInPlaceOwner(CWnd* pWnd) { m_pInPlaceOwner = pWnd; }

    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);
    virtual void CalcInsideRect(CRect& rect, BOOL bHorz) const;
    virtual void DoPaint(CDC* pDC);
    virtual void DrawBorders(CDC* pDC, CRect& rect);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

    BOOL IsVisible() const;
    /// Shows or hides at the frame's next layout.
    void DelayShow(BOOL bShow);
    /// Does what DelayShow asked for; true when the visibility changed.
    bool ShowIfDelayed();

    BOOL m_bAutoDelete = FALSE; ///< delete the object after its window
    CWnd* m_pInPlaceOwner = NULL;

protected:
    CControlBar();
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwStyle = 0; ///< CBRS_ bits
    CRect m_rectBorders{0, 0, 0, 0};
    int m_nCount = 0;

private:
    enum class DelayedShow { Nothing, Show, Hide };
    DelayedShow m_delayedShow = DelayedShow::Nothing;
};
