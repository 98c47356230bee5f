#pragma once

#include "afxwin.h"

#include <afxcoll.h>

class CBasePane;
class CDockSite;
class CPane;

/// A row of a dock site as hosts see it: which panes share it. The site makes, changes and deletes it; a pointer is
/// good until panes are docked, moved or removed. Pixels, co-ordinates of the site's client area.
class FRAMEWORK_API CDockingPanesRow : public CObject {
    DECLARE_DYNAMIC(CDockingPanesRow)

public:
    CDockingPanesRow(CDockSite* pParentDockBar, int nOffset, int nHeight);
    ~CDockingPanesRow() override;
    virtual BOOL Create() { return TRUE; }

    CDockSite* GetDockSite() const { return m_pParentDockBar; }
    int GetID() const { return m_nID; }
    DWORD GetRowAlignment() const;
    bool IsHorizontal() const;

    /// CPane in their order along the row, hidden ones too.
    const CObList& GetPaneList() const { return m_lstControlBars; }
    int GetPaneCount() const { return static_cast<int>(m_lstControlBars.GetCount()); }
    BOOL HasPane(CBasePane* pControlBar);
    virtual int GetVisibleCount();
    virtual BOOL IsEmpty() const { return m_lstControlBars.IsEmpty(); }
    virtual BOOL IsVisible() const;
    /// Its pane shares it with nobody.
    virtual BOOL IsExclusiveRow() const;
    virtual BOOL ShowPane(CPane* pControlBar, BOOL bShow, BOOL bDelay = FALSE);

    /// Distance from the site's outer edge, and thickness.
    int GetRowOffset() const { return m_nRowOffset; }
    int GetRowHeight() const { return m_nRowHeight; }
    /// Thickness of the thickest pane.
    int GetMaxPaneSize(BOOL bSkipHiddenBars = TRUE) const;
    /// What the visible panes leave free along the row.
    virtual int GetAvailableLength(BOOL bUseVirtualRect = FALSE) const;
    int GetExtraSpace() const { return 0; }
    void GetClientRect(CRect& rect) const;
    void GetWindowRect(CRect& rect) const;
    void ScreenToClient(CRect& rect) const;
    void RedrawAll();

private:
    CDockSite* m_pParentDockBar;
    int m_nRowOffset;
    int m_nRowHeight;
    int m_nID = 0;
    CObList m_lstControlBars; ///< CPane, not owned

    friend class CDockSite;
};
