#pragma once

#include "fx/control_bar.h"

#include <memory>
#include <vector>

class CStatusBarCtrl;

/// Styles of a pane in a status bar.
#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000
#define SBPS_STRETCH 0x08000000

/// The frame's status bar: the system's status window with panes that know their command ids.
class FRAMEWORK_API CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar();
    ~CStatusBar() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                          UINT nID = AFX_IDW_STATUS_BAR);
    using CWnd::Create;
    using CWnd::CreateEx;

    /// One pane per id: 0 (ID_SEPARATOR) is a message pane, any other id's string gives text and width. The first pane
    /// stretches. NULL ids make nIDCount empty panes.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);
    /// -1 when no pane has the id.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    /// cxWidth in pixels.
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    CString GetPaneText(int nIndex) const;
    void GetPaneText(int nIndex, CString& rString) const;
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    /// Valid as long as the bar's window.
    CStatusBarCtrl& GetStatusBarCtrl() const;
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane {
        UINT id = 0;
        int width = 0; ///< pixels of the text's room
        UINT style = SBPS_NORMAL;
        CString text;
    };

    void ShowPane(int index);
    void PlacePanes();

    std::vector<Pane> m_panes;
    std::unique_ptr<CStatusBarCtrl> m_control; ///< sees the bar's window through the control's members
};
