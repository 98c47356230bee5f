#pragma once

#include "afxcaptionbutton.h"
#include "afxwin.h"
#include "fx/bar_styles.h"

class CBasePane;
class CDockingManager;
class CPane;

/// What is near a point of a mini frame, beside the system's HTCAPTION, HTCLOSE, HTCLIENT and the borders.
enum AFX_PREDOCK_STATE { PDS_NOTHING, PDS_DOCK_REGULAR, PDS_DOCK_TO_TAB };

/// Captions of mini frames.
#define AFX_CAPTION_BTN_PIN 0x01
#define AFX_CAPTION_BTN_CLOSE 0x02
#define AFX_CAPTION_BTN_CUSTOMIZE 0x10

/// The small window in which a pane floats: a border, a caption with its name and a button that hides it, and the pane.
/// The docking manager's frame owns it as a window; the object deletes itself with the window, which goes when the pane
/// leaves it. It is moved and resized here, and handed to the docking manager while it is dragged, so that it docks.
class FRAMEWORK_API CPaneFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CPaneFrameWnd)

public:
    CPaneFrameWnd();
    ~CPaneFrameWnd() override;

    /// rect: screen pixels. pParentWnd: the docking frame.
    virtual BOOL Create(LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        CCreateContext* pContext = NULL);
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          CCreateContext* pContext = NULL);
    using CWnd::CreateEx;
    void SetDockingManager(CDockingManager* pManager) { m_pDockManager = pManager; }
    CDockingManager* GetDockingManager() const { return m_pDockManager; }

    /// The pane becomes the child of this window; one at a time.
    virtual void AddPane(CBasePane* pWnd);
    /// bDestroy: the pane is destroyed too. Without its pane the mini frame closes, with bNoDelayedDestroy at once.
    virtual void RemovePane(CBasePane* pWnd, BOOL bDestroy = FALSE, BOOL bNoDelayedDestroy = FALSE);
    virtual void ReplacePane(CBasePane* pBarOrg, CBasePane* pBarReplaceWith);
    virtual CWnd* GetPane() const;
    virtual int GetPaneCount() const { return m_pPane != NULL ? 1 : 0; }
    virtual int GetVisiblePaneCount() const;
    virtual CWnd* GetFirstVisiblePane() const;
    virtual CBasePane* PaneFromPoint(CPoint point, int nSensitivity, BOOL bCheckVisibility);
    /// Shows or hides itself as its pane is.
    void UpdateVisibility();

    // Places, in pixels of the window; it has no non-client area.
    virtual int GetCaptionHeight() const;
    virtual void GetCaptionRect(CRect& rectCaption) const;
    virtual void CalcBorderSize(CRect& rectBorderSize) const;
    virtual CString GetCaptionText();
    virtual void SetCaptionButtons(DWORD dwButtons);
    /// HTCAPTION, HTCLOSE, HTCLIENT, HTLEFT and so on; HTNOWHERE. point: screen.
    virtual LRESULT HitTest(CPoint point, BOOL bDetectCaption);
    /// Lays out caption and pane.
    virtual void AdjustLayout();
    /// As large as the pane wants to be at its present width.
    virtual void SizeToContent();
    virtual void OnPaneRecalcLayout();
    /// The whole window around a pane of that size.
    CSize SizeAround(CSize pane) const;

    /// Back to where the pane was docked before.
    virtual void OnDockToRecentPos();
    virtual void StoreRecentDockSiteInfo(CPane* pBar);
    virtual BOOL OnBeforeDock() { return TRUE; }
    virtual AFX_DOCK_TYPE GetDockingMode() const;
    CRect GetRecentFloatingRect() const { return m_rectRecentFloatingRect; }
    CPoint GetHotPoint() const { return m_ptHot; }
    void SetHotPoint(CPoint& ptNew) { m_ptHot = ptNew; }
    BOOL IsCaptured() const;
    BOOL IsDelayShow() const { return m_bDelayShow; }
    void SetDelayShow(BOOL bDelayShow) { m_bDelayShow = bDelayShow; }

    static CBasePane* FindFloatingPaneByID(UINT nID);
    static CPaneFrameWnd* __stdcall FrameFromPoint(CPoint pt, int nSensitivity, CPaneFrameWnd* pFrameToExclude = NULL,
                                                   BOOL bFloatMultiOnly = FALSE);
    static void RedrawAll();

protected:
    virtual void OnDrawBorder(CDC* pDC);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg LRESULT OnChangeVisualManager(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CRect PaneRect() const;
    CPoint ToScreen(CPoint point) const;
    void UpdateCloseButton(CPoint point);
    void ResizeTo(CPoint screen);
    void EndCapture();

    CDockingManager* m_pDockManager = NULL;
    CPane* m_pPane = NULL; ///< not owned
    CMFCCaptionButton m_closeButton{HTCLOSE};
    CRect m_rectRecentFloatingRect{0, 0, 0, 0};
    CPoint m_ptHot{0, 0};
    LRESULT m_capturedHit = HTNOWHERE; ///< the part that has the mouse
    BOOL m_bDelayShow = FALSE;
    BOOL m_bTracked = FALSE;
    BOOL m_hasCloseButton = TRUE;
};
