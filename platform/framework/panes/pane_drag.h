#pragma once

#include "afxPane.h"
#include "panes/dock_rows.h"
#include "window/drag_window.h"

#include <memory>
#include <vector>

class CDockSite;

namespace panes {

class DragPreview;

/// A pane in its user's hand, from the press of the button on. A pane whose docking mode is immediate moves at once,
/// any other one when the button is let go, and an outline shows where to. Near a side it docks, unless Ctrl is held;
/// everywhere else it floats, if it may. Esc, or the loss of the mouse, puts everything back. Screen pixels throughout.
class PaneDrag : public fx::DragWindow {
public:
    PaneDrag(CDockingManager& manager, CPane& pane, CPoint screen);
    ~PaneDrag() override;

    /// Takes the mouse. False: it could not.
    bool Begin();
    void Cancel() override;
    bool IsUnderWay() const override { return m_pane != nullptr; }
    bool IsOf(const CPane* pane) const { return pane != nullptr && m_pane == pane; }
    /// The pane is gone or was taken somewhere else: there is nothing more to do.
    void Forget(const CPane* pane);

protected:
    void MoveTo(CPoint screen) override;
    void Finish(CPoint screen) override;

private:
    /// Where the pane would come to lie.
    struct Target {
        CDockSite* site = nullptr; ///< null: it floats at `rect`
        RowPlace place;
        int offset = 0;
        CRect rect{0, 0, 0, 0};
    };

    Target FindTarget(CPoint screen) const;
    CDockSite* FindSite(CPoint screen) const;
    Target InSite(CDockSite& site, CPoint screen) const;
    CRect Outline(const Target& target) const;
    void Apply(const Target& target);
    void PutBack();
    CPane* End();

    CDockingManager& m_manager;
    CPane* m_pane;
    CPoint m_start;
    CPoint m_hot{0, 0};     ///< from the corner of pane or mini frame to the mouse
    int m_hotFromStart = 0; ///< the same from where rows begin: in a mirrored frame at the right
    bool m_isMoving = false;
    bool m_isImmediate;
    std::unique_ptr<DragPreview> m_preview;

    struct SiteBefore {
        CDockSite* site;
        DockRows rows;
    };
    std::vector<SiteBefore> m_sitesBefore;
    CDockSite* m_siteBefore = nullptr;
    int m_toMiddle = 0; ///< across that site, from the mouse to the middle of the pane
    CRect m_floatBefore{0, 0, 0, 0};
    CRecentDockSiteInfo m_recentBefore{nullptr};
};

} // namespace panes
