#pragma once

#include "map_scroll.h"
#include "scroll_bar_base.h"

#include <functional>

/// A scroll bar of the viewer: in the viewer's skin, as broad as the display's scale wants it.
class CViewerScrollBar : public CScrollBarBase {
public:
    BOOL Create(CWnd* parent, UINT id);

protected:
    /// As long as what is scrolled, in pixels: shows it anew when it, the position or the limit is another one.
    void ShowScroll(const MapScroll& scroll);

private:
    using CScrollBarBase::Create;

    MapScroll m_shown;
};

/// Scrolls the map along one axis. The state is the owner's.
class CMapScrollBar : public CViewerScrollBar {
public:
    /// `scrolled` is called after each change of the state.
    CMapScrollBar(MapState& state, MapAxis axis, std::function<void()> scrolled);

    /// The map was moved, zoomed or resized.
    void ShowState() { ShowScroll(ScrollOf(m_state, m_axis)); }

    int GetBaseScrollPos() override { return ScrollOf(m_state, m_axis).position; }
    int GetBaseScrollLimit() override { return ScrollOf(m_state, m_axis).limit; }
    void ScrollBaseMove(int steps) override;

protected:
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    MapState& m_state;
    MapAxis m_axis;
    std::function<void()> m_scrolled;
};
