#pragma once

#include "afxwin.h"
#include "fx/bar_styles.h"

class CPane;

/// Remembers where a pane was docked and where it floated, so that it finds its way back.
class FRAMEWORK_API CRecentDockSiteInfo : public CObject {
public:
    explicit CRecentDockSiteInfo(CPane* pBar) : m_pane(pBar) {}

    void Init();
    void CleanUp() { Init(); }
    /// Client pixels of the frame; the same for both values until panes have sliders.
    CRect& GetRecentDockedRect(BOOL bForSlider);
    CRecentDockSiteInfo& operator=(CRecentDockSiteInfo& src);
    virtual void SetInfo(BOOL bForSlider, CRecentDockSiteInfo& srcInfo);

    CRect m_rectRecentFloatingRect{0, 0, 0, 0}; ///< screen pixels; empty: it has never floated

    // The framework's own: the side (CBRS_ALIGN_, 0: never docked), row and offset along it in pixels.
    DWORD m_dwRecentAlignment = 0;
    int m_nRecentRowID = 0;
    int m_nRecentRowIndex = 0;
    int m_nRecentOffset = 0;

private:
    CPane* m_pane;
    CRect m_dockedRects[2]{CRect(0, 0, 0, 0), CRect(0, 0, 0, 0)};
};
