#pragma once

#include <afxwin.h>

#include "map_data.h"
#include "map_drawer.h"
#include "map_painter.h"
#include "map_state.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>

/// The window that shows the map. Drags with the left button, zooms with the wheel and by double click. State and data
/// are the owner's and outlive the window.
///
/// It never waits for a drawing: what changes is shown at once with the last finished picture, shifted or scaled to the
/// new view, on the colour that lies around the map; the sharp picture follows when its thread has drawn it.
class CMapWindow : public CWnd {
public:
    CMapWindow(MapState& state, const MapData& data);

    BOOL Create(CWnd* parent, UINT id);

    /// How texts and lines are drawn from now on; repaints.
    void SetStyle(const MapPaintStyle& style);
    /// Shows the state if it has changed since it was last shown.
    void ShowState();
    /// Whether the window has the sharp picture of the present state.
    bool IsFinished() const { return m_drawn && m_drawn->order == m_order; }
    /// Waits for the sharp picture of the present state and shows it; for those who photograph the window.
    void Finish();
    /// Is told of the place under the pointer whenever it moves.
    void SetPointerListener(std::function<void(GeoPoint)> listener) { m_pointerListener = std::move(listener); }
    /// Is told where on the screen a right click wants the map's menu; (-1, -1): the key for menus wants it.
    void SetMenuListener(std::function<void(CPoint)> listener) { m_menuListener = std::move(listener); }
    /// Is called whenever the view or the window's size has become another one.
    void SetViewListener(std::function<void()> listener) { m_viewListener = std::move(listener); }
    /// Is told when a picture is being drawn, and when the one of the present state is there.
    void SetWorkListener(std::function<void(bool isAtWork)> listener) { m_workListener = std::move(listener); }
    /// Takes a sharp picture of the map; null when there was no room for one.
    using PictureTaker = std::function<void(CBitmap* picture)>;
    /// Hands over a picture of the map as it is now: at once where it is drawn, otherwise when it is. Whoever waits for
    /// it here would keep the whole program waiting. While the frame takes no input, as another window waits over it
    /// for an answer, pictures wait, too: a taker may open a window of its own.
    void RequestPicture(PictureTaker taker);
    /// The same of what goes on the page, drawn for itself: `fineness` pixels for each that the page has in the window.
    void RequestPage(int fineness, PictureTaker taker);
    /// The frame takes input again: pictures that have waited for that are handed over when this has returned.
    void ResumeRequests();

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg LRESULT OnPictureFinished(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    void ZoomAt(CPoint client, double factor);

    void OrderPicture();
    void TakePicture();
    void HandOverFinished();
    void HandOver(HBITMAP drawn, const MapState& state, const PictureTaker& taker);
    void TellWork(bool isAtWork);

    MapState& m_state;
    const MapData& m_data;
    MapPaintStyle m_style;
    std::unique_ptr<DrawnMap> m_drawn;                ///< The last finished picture, perhaps of an earlier state.
    unsigned m_order = 0;                             ///< The last order that the drawer was given.
    std::map<unsigned, PictureTaker> m_takers;        ///< Of the pictures that were ordered for them.
    std::deque<std::unique_ptr<DrawnMap>> m_finished; ///< Of those, not handed over yet.
    unsigned m_keptOrder = 0;
    unsigned m_shownVersion = 0;
    bool m_dragging = false;
    CPoint m_dragFrom;
    std::function<void(GeoPoint)> m_pointerListener;
    std::function<void(CPoint)> m_menuListener;
    std::function<void()> m_viewListener;
    std::function<void(bool isAtWork)> m_workListener;
    std::unique_ptr<MapDrawer> m_drawer; ///< Made with the window.
};
