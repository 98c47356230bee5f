#pragma once

#include "layer_rows.h"
#include "map_state.h"
#include "viewer_scroll_bar.h"

#include <afxwin.h>

#include <functional>
#include <vector>

/// What the viewer's own windows are painted with in a skin.
class SoftCanvas;

struct ViewerColors {
    COLORREF ground;
    COLORREF text;
    COLORREF secondary;
    COLORREF line;
    COLORREF accent;
};

/// The list beside the map: a tick for each layer, and the cities, to which a click goes. Chosen by the mouse or, with
/// the focus, by the arrow keys, Space and Enter; scrolled by its bar, the wheel and the keys. State and data are the
/// owner's.
class CLayerList : public CWnd {
public:
    /// `changed` is called after each change of the state.
    CLayerList(MapState& state, const MapData& data, std::function<void()> changed);

    BOOL Create(CWnd* parent, UINT id);

    /// The rows in other words, or for the first time.
    void SetTexts(const LayerRowTexts& texts);
    void SetSkin(UINT skin, const ViewerColors& colors);
    /// Shows the state if it has changed since it was last shown.
    void ShowState();

    // For its bar: rows.
    int GetFirstRow() const { return m_first; }
    int GetLastFirstRow() const;
    void ScrollRows(int count);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* earlier);
    afx_msg void OnKillFocus(CWnd* next);
    DECLARE_MESSAGE_MAP()

private:
    /// Scrolls the list that it lies in.
    class CBar : public CViewerScrollBar {
    public:
        explicit CBar(CLayerList& list) : m_list(list) {}
        void ShowState();
        int GetBaseScrollPos() override { return m_list.GetFirstRow(); }
        int GetBaseScrollLimit() override { return m_list.GetLastFirstRow(); }
        void ScrollBaseMove(int steps) override { m_list.ScrollRows(steps); }

    private:
        CLayerList& m_list;
    };

    int RowHeight() const;
    int ShownCount() const;
    CRect RowRect(int row) const;
    int RowAt(CPoint point) const;
    void SetHot(int row);
    void Choose(int row);
    void MoveTo(int row);
    void ShowFirst(int row);
    CRect TickRect(int row) const;
    CRect SwatchRect(int row) const;
    CRect Mirrored(CRect rect) const;
    void DrawMarks(SoftCanvas& canvas, int row);
    void DrawText(CDC& dc, int row);

    MapState& m_state;
    const MapData& m_data;
    std::function<void()> m_changed;
    std::vector<LayerRow> m_rows;
    ViewerColors m_colors = {};
    CBar m_bar{*this};
    int m_first = 0;
    int m_hot = -1;  ///< Under the pointer; -1: none.
    int m_mark = -1; ///< Where the keys are; -1: nowhere yet.
    unsigned m_shownVersion = 0;
};
