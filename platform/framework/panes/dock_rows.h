#pragma once

#include "panes/row_layout.h"

#include <cstdint>

/// The rows of one dock site as a value: which panes share which row, in which order, where each was put. It knows no
/// windows; a pane is a key. Rows stand from the frame's edge inwards, lengths run along the site, thicknesses across
/// it; all values are pixels.
namespace panes {

using PaneKey = std::uintptr_t;

struct DockedPane {
    PaneKey key = 0;
    int offset = 0;
    int length = 0;
    int smallest = 0;
    int thickness = 0;
    bool isVisible = true;
    bool wantsWholeRow = false; ///< shares its row with nobody and fills it
    bool flows = false;         ///< nobody has said where: Flow may put it into another row
};

struct DockRow {
    int id = 0; ///< stays the same while the row exists
    std::vector<DockedPane> panes;
};

/// A row that exists, or a new one that comes to stand in front of it (behind the last one: the number of rows).
struct RowPlace {
    std::size_t row = 0;
    bool isNew = false;
};

struct PlacedPane {
    PaneKey key;
    Span span;
};

struct PlacedRow {
    int id;
    int offset;                    ///< from the site's outer edge
    int thickness;                 ///< 0 when nothing in the row is visible
    std::vector<PlacedPane> panes; ///< the visible ones
};

class DockRows {
public:
    const std::vector<DockRow>& Rows() const { return m_rows; }
    bool Contains(PaneKey key) const { return Find(key) != nullptr; }
    const DockedPane* Find(PaneKey key) const;
    DockedPane* Find(PaneKey key);
    /// The index of the pane's row; the number of rows when it has none.
    std::size_t RowOf(PaneKey key) const;
    std::size_t RowWithId(int id) const;

    /// Behind the others of the last row when it fits there, else in a new row.
    void AddLast(const DockedPane& pane, int room);
    /// In the row of `target`, in front of it; the others give way. False without such a pane or when one of the two
    /// wants the whole row.
    bool AddBefore(const DockedPane& pane, PaneKey target);
    /// With the offset that it brings, among the others of the row by the middles of all. A row that cannot take it,
    /// or is not there, is followed by a new one.
    void AddAt(const DockedPane& pane, RowPlace place, int room);
    /// The same for a pane that is in a row already; its own row stays when it lies there alone and nothing changes.
    void MoveTo(PaneKey key, RowPlace place, int offset, int room);
    /// Behind all panes of the last row, with the offset that it brings; in a new row when that is wanted, or the row
    /// cannot take it.
    void Append(const DockedPane& pane, bool inNewRow);
    void Remove(PaneKey key);
    /// Puts the panes that flow into rows anew, in the order in which they stand.
    void Flow(int room);
    /// From now on the panes of that row lie where they do, unless the row is too short for them.
    void KeepPlaces(std::size_t row, int room, PaneKey first);

    std::vector<PlacedRow> Place(int room, PaneKey first = 0) const;
    /// Sum of the rows' thicknesses.
    int Thickness() const;
    /// The row at a distance from the outer edge; near a row's edge and beyond all rows a new one.
    RowPlace RowAt(int across) const;

    /// The place that `place` was in rows as they were before, in these rows: rows that are gone are between those
    /// that are still there.
    RowPlace Translated(RowPlace place, const DockRows& before) const;

private:
    bool CanTake(const DockRow& row, const DockedPane& pane) const;
    std::size_t InsertRow(std::size_t index);
    void EraseIfEmpty(std::size_t index);

    std::vector<DockRow> m_rows;
    int m_lastId = 0;
};

} // namespace panes
