#pragma once

#include "afxwin.h"
#include "fx/bar_styles.h"

class CPane;

/// Remembers where a pane was docked.
class FRAMEWORK_API CRecentDockSiteInfo : public CObject {
public:
    explicit CRecentDockSiteInfo(CPane* pBar) : m_pane(pBar) {}

    void Init();
    void CleanUp() { Init(); }
    /// Client pixels of the frame; the same for both values until panes have sliders.
    CRect& GetRecentDockedRect(BOOL bForSlider);
    CRecentDockSiteInfo& operator=(CRecentDockSiteInfo& src);
    virtual void SetInfo(BOOL bForSlider, CRecentDockSiteInfo& srcInfo);

    CRect m_rectRecentFloatingRect{0, 0, 0, 0}; ///< screen pixels

private:
    CPane* m_pane;
    CRect m_dockedRects[2]{CRect(0, 0, 0, 0), CRect(0, 0, 0, 0)};
};
