#pragma once

#include "visual/scratch_picture.h"

#include <afxwin.h>

class CMFCRibbonLaunchButton;
class CMFCRibbonPanel;

/// The panel, and the line that a flat skin draws in the gap behind it. Client pixels of the bar.
CRect ReachOfPanel(const CMFCRibbonPanel& panel);

/// What the visual manager draws of a panel that is not collapsed, below its elements. The context's text colour is
/// afterwards the one that elements have on the panel.
void DrawBelowElements(CDC& dc, CMFCRibbonPanel& panel, CMFCRibbonLaunchButton& launch);

/// What DrawBelowElements draws at the moment, to be compared with another moment.
class PanelPicture {
public:
    PanelPicture(CMFCRibbonPanel& panel, CMFCRibbonLaunchButton& launch);

    /// Whether the elements, too, would look the same on both. False when the system had no room for a picture.
    bool ShowsTheSameAs(const PanelPicture& other) const;

private:
    visual::ScratchPicture m_picture;
    COLORREF m_textColor = CLR_INVALID;
};
