#pragma once

#include "afxPane.h"
#include "fx/status_bar.h"

#include <memory>
#include <vector>

class CToolTipCtrl;

/// A pane of a status bar as it is shown, for those who draw it. Owned by the bar; valid until its panes change.
class CMFCStatusBarPaneInfo {
public:
    UINT nID = 0;
    UINT nStyle = SBPS_NORMAL;
    int cxText = 0; ///< pixels for the content; the pane is wider by its margins
    int cxIcon = 0; ///< of the icon's or animation's frame
    CString strText;
    CString strToolTip;
    CRect rect{0, 0, 0, 0}; ///< in the bar; empty: there is no room for it
    COLORREF clrText = static_cast<COLORREF>(-1);
    COLORREF clrBackground = static_cast<COLORREF>(-1);
    long nProgressTotal = -1; ///< -1: the pane shows no progress
    long nProgressCurr = 0;
    BOOL bProgressText = FALSE;
    COLORREF clrProgressBar = static_cast<COLORREF>(-1);
    COLORREF clrProgressBarDest = static_cast<COLORREF>(-1);
    COLORREF clrProgressText = static_cast<COLORREF>(-1);
};

/// The frame's status bar as a pane that the visual manager draws: texts, icons, animations and progress bars beside
/// each other. The panes with SBPS_STRETCH share the room that the others leave, and shrink first; what has no room at
/// the right end is not shown. The frame shows its messages in the first pane whose id is 0, and update handlers enable
/// and fill those with commands. An index beyond the panes changes nothing and answers an empty value. Widths are
/// pixels of the display.
class FRAMEWORK_API CMFCStatusBar : public CPane {
    DECLARE_DYNCREATE(CMFCStatusBar)

public:
    CMFCStatusBar();
    ~CMFCStatusBar() override;

    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT nID = AFX_IDW_STATUS_BAR);
    /// dwCtrlStyle: SBARS_SIZEGRIP or 0. A bar at the bottom of a frame that can be sized has a grip either way.
    BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                  UINT nID = AFX_IDW_STATUS_BAR);
    using CPane::Create;
    using CPane::CreateEx;

    // Panes
    /// One per id: 0 (ID_SEPARATOR) is a message pane, any other id's string gives text and width. The first pane
    /// stretches. NULL ids make nIDCount empty panes. FALSE: a string is missing, and nothing has changed.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);
    int GetCount() const { return static_cast<int>(m_panes.size()); }
    /// -1 when no pane has the id.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    int GetPaneWidth(int nIndex) const;
    void SetPaneWidth(int nIndex, int cx);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    using CPane::GetPaneStyle;
    using CPane::SetPaneStyle;

    // Content. bUpdate: it is drawn at once.
    CString GetPaneText(int nIndex) const;
    void GetPaneText(int nIndex, CString& s) const;
    /// FALSE: there is no such pane.
    virtual BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    /// Copied; NULL takes the icon away.
    void SetPaneIcon(int nIndex, HICON hIcon, BOOL bUpdate = TRUE);
    void SetPaneIcon(int nIndex, HBITMAP hBmp, COLORREF clrTransparent = RGB(255, 0, 255), BOOL bUpdate = TRUE);
    /// Copied: one image after the other, nFrameRate milliseconds each; NULL ends it.
    void SetPaneAnimation(int nIndex, HIMAGELIST hImageList, UINT nFrameRate = 500, BOOL bUpdate = TRUE);
    /// nTotal -1: the pane shows its text again. Colours of -1 are the visual manager's.
    void EnablePaneProgressBar(int nIndex, long nTotal = 100, BOOL bDisplayText = FALSE,
                               COLORREF clrBar = static_cast<COLORREF>(-1),
                               COLORREF clrBarDest = static_cast<COLORREF>(-1),
                               COLORREF clrProgressText = static_cast<COLORREF>(-1));
    void SetPaneProgress(int nIndex, long nCurr, BOOL bUpdate = TRUE);
    /// -1: the pane shows no progress.
    long GetPaneProgress(int nIndex) const;
    void SetPaneTextColor(int nIndex, COLORREF clrText = static_cast<COLORREF>(-1), BOOL bUpdate = TRUE);
    void SetPaneBackgroundColor(int nIndex, COLORREF clrBackground = static_cast<COLORREF>(-1), BOOL bUpdate = TRUE);
    CString GetTipText(int nIndex) const;
    void SetTipText(int nIndex, LPCTSTR pszTipText);
    void InvalidatePaneContent(int nIndex);
    /// A double click on a pane sends its id to the bar's owner as a command.
    void EnablePaneDoubleClick(BOOL bEnable = TRUE) { m_bPaneDoubleClick = bEnable; }
    /// The area behind the panes, at the end of the bar, is drawn in the colour of an extended area.
    void SetDrawExtendedArea(BOOL bSet = TRUE);
    BOOL GetDrawExtendedArea() const { return m_bDrawExtendedArea; }
    /// FALSE: there is none.
    virtual BOOL GetExtendedArea(CRect& rect) const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    BOOL DoesAllowDynInsertBefore() const override { return FALSE; }
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void RecalcLayout() override;

protected:
    virtual void OnDrawPane(CDC* pDC, CMFCStatusBarPaneInfo* pPane);
    void DoPaint(CDC* pDC) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnUpdateToolTips(WPARAM wp, LPARAM lp);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane;

    Pane* Find(int nIndex) const;
    int HitTest(CPoint point) const;
    void PlacePanes();
    /// A pane that there is shows these images from now on, each for that time (ms; 0: only the first), and owns them.
    void TakeImages(int nIndex, HIMAGELIST hImages, UINT nFrameTime, BOOL bUpdate);
    void UpdateTooltip();
    void Redraw(int nIndex, BOOL bUpdate);
    bool HasSizeGrip() const;
    CRect GetGripRect() const;

    std::vector<std::unique_ptr<Pane>> m_panes;
    CToolTipCtrl* m_pToolTip = NULL; ///< the tooltip manager's
    BOOL m_bPaneDoubleClick = FALSE;
    BOOL m_bDrawExtendedArea = FALSE;
    DWORD m_dwCtrlStyle = 0;
};
