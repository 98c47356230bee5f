#include "ribbon/panel_picture.h"

#include "afxglobals.h"
#include "afxRibbonPanel.h"
#include "afxvisualmanager.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr int kBehind = 2; // pixels at 96 DPI up to the next panel: a flat skin has its line there

} // namespace

CRect ReachOfPanel(const CMFCRibbonPanel& panel) {
    CRect reach = panel.GetRect();
    reach.right += afxGlobalData.ScalePixels(kBehind);
    return reach;
}

void DrawBelowElements(CDC& dc, CMFCRibbonPanel& panel, CMFCRibbonLaunchButton& launch) {
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    const COLORREF color = manager->OnDrawRibbonPanel(&dc, &panel, panel.GetRect(), panel.GetCaptionRect());
    dc.SetTextColor(color == static_cast<COLORREF>(-1) ? afxGlobalData.clrBarText : color);
    if (dc.RectVisible(panel.GetCaptionRect())) {
        manager->OnDrawRibbonPanelCaption(&dc, &panel, panel.GetCaptionRect());
        launch.OnDraw(&dc);
    }
}

PanelPicture::PanelPicture(CMFCRibbonPanel& panel, CMFCRibbonLaunchButton& launch)
    : m_picture(ReachOfPanel(panel).Width(), ReachOfPanel(panel).Height()) {
    if (m_picture.IsEmpty()) {
        return;
    }
    CDC& dc = *CDC::FromHandle(m_picture.Context());
    const int state = dc.SaveDC();
    dc.SetViewportOrg(-panel.GetRect().left, -panel.GetRect().top);
    dc.SetBkMode(TRANSPARENT);
    DrawBelowElements(dc, panel, launch);
    m_textColor = dc.GetTextColor();
    dc.RestoreDC(state);
    ::GdiFlush();
}

bool PanelPicture::ShowsTheSameAs(const PanelPicture& other) const {
    const visual::PixelView& one = m_picture.View();
    const visual::PixelView& two = other.m_picture.View();
    return !m_picture.IsEmpty() && !other.m_picture.IsEmpty() && m_textColor == other.m_textColor &&
           one.width == two.width && one.height == two.height &&
           std::equal(one.bits, one.bits + static_cast<std::ptrdiff_t>(one.width) * one.height, two.bits);
}
