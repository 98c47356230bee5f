#pragma once

#include "afxbasepane.h"

#include <afxcoll.h>

#include <memory>

class CPane;

namespace panes {
class DockRows;
struct DockedPane;
struct RowPlace;
} // namespace panes

/// One side of a docking frame: the window in which the panes lie that are docked there, in rows from the frame's edge
/// inwards. The frame's docking manager makes it when docking is enabled or a pane is docked at that side, owns it and
/// gives it its place. It never owns panes: a pane is its child window while it is docked. All values are pixels.
class FRAMEWORK_API CDockSite : public CBasePane {
    DECLARE_DYNCREATE(CDockSite)

public:
    CDockSite();
    ~CDockSite() override;

    using CBasePane::CreateEx;
    using CBasePane::DockPane;
    using CBasePane::MoveWindow;
    using CBasePane::ShowPane;
    /// dwStyle: one CBRS_ALIGN_ bit says which side it is.
    virtual BOOL CreateEx(DWORD dwStyleEx, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, DWORD dwControlBarStyle,
                          CCreateContext* pContext = NULL);

    /// Takes the pane out of where it is and into this site: behind the others of the last row when there is room, else
    /// in a row of its own; with lpRect (screen) where that lies. The layout is not recalculated.
    virtual void DockPane(CPane* pWnd, AFX_DOCK_METHOD dockMethod, LPCRECT lpRect = NULL);
    /// Into the row of the target (which is docked here), in front of it; FALSE when one of them wants its row alone.
    virtual BOOL DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar);
    /// Forgets the pane; its window stays a child of this one. Nothing happens to one that is not docked here.
    virtual void RemovePane(CPane* pWnd, AFX_DOCK_METHOD dockMethod);
    /// Along its row (ptOffset.x of a horizontal site, else .y); its neighbours give way.
    virtual BOOL MovePane(CPane* pWnd, UINT nFlags, CPoint ptOffset);
    virtual BOOL ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate);
    BOOL ReplacePane(CPane* pOldBar, CPane* pNewBar);

    CPane* FindPaneByID(UINT nID);
    /// The visible pane at a point of the screen.
    virtual CPane* PaneFromPoint(CPoint pt);
    const CObList& GetPaneList() const { return m_lstControlBars; }
    /// CDockingPanesRow, from the frame's edge inwards.
    const CObList& GetDockSiteRowsList() const { return m_lstDockBarRows; }
    int FindRowIndex(CDockingPanesRow* pRow);
    bool IsLastRow(CDockingPanesRow* pRow) const;
    CDockingPanesRow* RowOfPane(const CPane* pane) const;
    /// AFX_IDW_DOCKBAR_ of the side.
    virtual UINT GetDockSiteID() const;

    BOOL CanAcceptPane(const CBasePane* pBar) const override;
    BOOL IsResizable() const override { return FALSE; }
    virtual BOOL IsDragMode() const { return FALSE; }
    BOOL DoesAllowDynInsertBefore() const override { return TRUE; }
    BOOL CanFocus() const override { return FALSE; }
    /// As thick as its rows, as long as there is.
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    /// Places the panes in the window as it is.
    virtual void RepositionPanes(CRect& rectNewClientArea);
    /// 1 to 4: the point lies to the left, right, top or bottom of the rectangle's middle; 0: outside.
    static int __stdcall RectSideFromPoint(const CRect& rect, const CPoint& point);

    // The framework's own.
    /// Asks the panes for their sizes and answers how thick the site has to be for that length.
    int Measure(int length);
    /// From now on rows stay as they are, whatever room there is.
    void Settle();
    /// Docks at a row with an offset along it; see panes::DockRows.
    void DockAt(CPane& pane, const panes::RowPlace& place, int offset);
    /// Puts a pane back where it was: into the row with that number when it is still there, else into a new one.
    void DockBack(CPane& pane, int rowId, int rowIndex, int offset);
    /// Behind the last pane of the last row, or in a new row after all.
    void Append(CPane& pane, bool inNewRow, int offset);
    /// The pane that gets its place before the others of its row; NULL: none.
    void SetMovedPane(const CPane* pane);
    /// The places that panes were pushed to by the moved one become their own.
    void KeepPlaces();
    const panes::DockRows& Rows() const { return *m_rows; }
    /// The rows become those; panes that have come or gone since `rows` was copied stay where they are now.
    void SetRows(const panes::DockRows& rows);
    /// Distance from the outer edge and along the rows of a point of the screen.
    CPoint AcrossAndAlong(CPoint screen) const;
    /// Length of the rows.
    int GetRowLength() const;

protected:
    void DoPaint(CDC* pDC) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    panes::DockedPane Describe(CPane& pane) const;
    /// Makes the pane a child of this site that lies there horizontally or vertically.
    void Adopt(CPane& pane);
    void UpdateRowObjects();

    CObList m_lstControlBars; ///< CPane, not owned
    CObList m_lstDockBarRows; ///< CDockingPanesRow, owned
    std::unique_ptr<panes::DockRows> m_rows;
    const CPane* m_movedPane = NULL;
    bool m_isSettled = false;
    bool m_isPlacing = false;
};
