#pragma once

#include "layer_list.h"
#include "map_window.h"
#include "viewer_scroll_bar.h"

/// What the frame shows below its ribbon: the list of layers and cities, the map, and the map's two scroll bars. State,
/// data and map window are the owner's.
class CMapPane : public CWnd {
public:
    CMapPane(MapState& state, const MapData& data, CMapWindow& map);

    /// Makes the map's window, too.
    BOOL Create(CWnd* parent, UINT id);
    /// Gives list, map and scroll bars their places, from now on with every size of the pane. For the first time it is
    /// called when all bars of the frame are there: the whole map is made to fit into the first place that it gets.
    void Start();

    void SetTexts(const LayerRowTexts& texts) { m_list.SetTexts(texts); }
    /// 0 black, 1 silver.
    void SetSkin(UINT skin);
    /// The list beside the map changes sides; the map itself and the scroll bars do not turn round.
    void Mirror(bool isMirrored);
    const ViewerColors& Colors() const { return m_colors; }
    /// Shows the state in all parts that show another one.
    void ShowState();
    /// Where a part is on the screen.
    enum class Part { List, Map, Down, Across };
    CRect PlaceOf(Part part) const;
    /// Is called after the list or a scroll bar has changed the state.
    void SetChangeListener(std::function<void()> listener) { m_listener = std::move(listener); }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    void TakeChange();
    /// Of a pane of that width, pixels.
    static int ListWidth(int width);
    MapBars BarsIn(CSize size) const;
    void PlaceParts(CSize size);

    const MapState& m_state;
    CMapWindow& m_map;
    CLayerList m_list;
    CMapScrollBar m_down;
    CMapScrollBar m_across;
    MapBars m_bars;
    bool m_isStarted = false;
    ViewerColors m_colors = {};
    COLORREF m_corner = 0;
    std::function<void()> m_listener;
};
