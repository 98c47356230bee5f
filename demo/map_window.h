#pragma once

#include <afxwin.h>

#include "map_data.h"
#include "map_painter.h"
#include "map_state.h"

#include <functional>

/// The window that shows the map. Drags with the left button, zooms with the wheel and by double click. State and data
/// are the owner's and outlive the window.
class CMapWindow : public CWnd {
public:
    CMapWindow(MapState& state, const MapData& data);

    BOOL Create(CWnd* parent, UINT id);

    /// How texts and lines are drawn from now on; repaints.
    void SetStyle(const MapPaintStyle& style);
    /// Repaints when the state has changed since the last painting.
    void ShowState();
    /// Is told of the place under the pointer whenever it moves.
    void SetPointerListener(std::function<void(GeoPoint)> listener) { m_pointerListener = std::move(listener); }
    /// Draws the map as it is shown now into a new bitmap. FALSE when there is no room for one.
    BOOL MakePicture(CBitmap& picture);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    DECLARE_MESSAGE_MAP()

private:
    void ZoomAt(CPoint client, double factor);

    MapState& m_state;
    MapPainter m_painter;
    MapPaintStyle m_style;
    CBitmap m_picture; ///< The map as last drawn; paint messages without a change only copy it.
    unsigned m_drawnVersion = 0;
    unsigned m_shownVersion = 0;
    bool m_dragging = false;
    CPoint m_dragFrom;
    std::function<void(GeoPoint)> m_pointerListener;
};
