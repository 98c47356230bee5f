#include "panes/dock_rows.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace panes {

namespace {

constexpr int kAsLongAsThereIs = std::numeric_limits<int>::max() / 2;

bool IsAlone(const DockRow& row, const DockedPane& pane) {
    return std::ranges::all_of(row.panes,
                               [&](const DockedPane& other) { return other.key == pane.key || !other.isVisible; });
}

RowWish WishOf(const DockRow& row, const DockedPane& pane) {
    const bool fills = pane.wantsWholeRow && IsAlone(row, pane);
    return {fills ? 0 : pane.offset, fills ? kAsLongAsThereIs : pane.length, pane.smallest};
}

std::vector<RowWish> WishesOf(const DockRow& row) {
    std::vector<RowWish> wishes;
    for (const DockedPane& pane : row.panes) {
        if (pane.isVisible) {
            wishes.push_back(WishOf(row, pane));
        }
    }
    return wishes;
}

std::vector<PlacedPane> PlacePanes(const DockRow& row, int room, PaneKey first) {
    std::vector<PlacedPane> placed;
    std::size_t firstIndex = kNobody;
    for (const DockedPane& pane : row.panes) {
        if (pane.isVisible) {
            firstIndex = pane.key == first ? placed.size() : firstIndex;
            placed.push_back({pane.key, {0, 0}});
        }
    }
    const std::vector<Span> spans = PlaceRow(WishesOf(row), room, firstIndex);
    for (std::size_t index = 0; index < placed.size(); ++index) {
        placed[index].span = spans[index];
    }
    return placed;
}

int ThicknessOf(const DockRow& row) {
    int thickness = 0;
    for (const DockedPane& pane : row.panes) {
        thickness = pane.isVisible ? std::max(thickness, pane.thickness) : thickness;
    }
    return thickness;
}

/// Between which of the row's panes one comes to stand that lies there. Hidden ones keep to the pane behind them.
std::size_t IndexFor(const DockRow& row, const DockedPane& pane, int room) {
    const long long middle = 2LL * pane.offset + pane.length;
    const std::vector<PlacedPane> placed = PlacePanes(row, room, 0);
    std::size_t visible = 0;
    std::size_t index = 0;
    for (std::size_t at = 0; at < row.panes.size(); ++at) {
        if (!row.panes[at].isVisible) {
            continue;
        }
        const Span& span = placed[visible++].span;
        if (middle < 2LL * span.offset + span.length) {
            return index;
        }
        index = at + 1;
    }
    return index;
}

} // namespace

const DockedPane* DockRows::Find(PaneKey key) const {
    for (const DockRow& row : m_rows) {
        for (const DockedPane& pane : row.panes) {
            if (pane.key == key) {
                return &pane;
            }
        }
    }
    return nullptr;
}

DockedPane* DockRows::Find(PaneKey key) { return const_cast<DockedPane*>(std::as_const(*this).Find(key)); }

std::size_t DockRows::RowOf(PaneKey key) const {
    const auto found = std::ranges::find_if(m_rows, [key](const DockRow& row) {
        return std::ranges::any_of(row.panes, [key](const DockedPane& pane) { return pane.key == key; });
    });
    return static_cast<std::size_t>(found - m_rows.begin());
}

std::size_t DockRows::RowWithId(int id) const {
    const auto found = std::ranges::find_if(m_rows, [id](const DockRow& row) { return row.id == id; });
    return static_cast<std::size_t>(found - m_rows.begin());
}

bool DockRows::CanTake(const DockRow& row, const DockedPane& pane) const {
    return !pane.wantsWholeRow &&
           std::ranges::none_of(row.panes, [](const DockedPane& other) { return other.wantsWholeRow; });
}

std::size_t DockRows::InsertRow(std::size_t index) {
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(index), DockRow{++m_lastId, {}});
    return index;
}

void DockRows::EraseIfEmpty(std::size_t index) {
    if (m_rows[index].panes.empty()) {
        m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(index));
    }
}

void DockRows::AddLast(const DockedPane& pane, int room) {
    DockedPane added = pane;
    added.offset = 0;
    if (!m_rows.empty() && CanTake(m_rows.back(), pane)) {
        DockRow& row = m_rows.back();
        std::vector<RowWish> wishes = WishesOf(row);
        wishes.push_back({0, pane.length, pane.smallest});
        if (HasRoomForAll(wishes, room)) {
            const std::vector<PlacedPane> placed = PlacePanes(row, room, 0);
            added.offset = placed.empty() ? 0 : placed.back().span.End();
            row.panes.push_back(added);
            return;
        }
    }
    m_rows[InsertRow(m_rows.size())].panes.push_back(added);
}

bool DockRows::AddBefore(const DockedPane& pane, PaneKey target) {
    const std::size_t index = RowOf(target);
    if (index == m_rows.size() || !CanTake(m_rows[index], pane)) {
        return false;
    }
    std::vector<DockedPane>& panes = m_rows[index].panes;
    const auto found = std::ranges::find_if(panes, [target](const DockedPane& other) { return other.key == target; });
    DockedPane added = pane;
    added.offset = found->offset;
    panes.insert(found, added);
    return true;
}

void DockRows::AddAt(const DockedPane& pane, RowPlace place, int room) {
    place.row = std::min(place.row, m_rows.size());
    if (!place.isNew && (place.row == m_rows.size() || !CanTake(m_rows[place.row], pane))) {
        place = {std::min(place.row + 1, m_rows.size()), true};
    }
    DockRow& row = m_rows[place.isNew ? InsertRow(place.row) : place.row];
    const std::size_t index = IndexFor(row, pane, room);
    row.panes.insert(row.panes.begin() + static_cast<std::ptrdiff_t>(index), pane);
}

void DockRows::MoveTo(PaneKey key, RowPlace place, int offset, int room) {
    const std::size_t from = RowOf(key);
    if (from == m_rows.size()) {
        return;
    }
    DockedPane moved = *Find(key);
    moved.offset = offset;
    moved.flows = false;
    const bool isAlone = m_rows[from].panes.size() == 1;
    const bool staysItsRow = place.isNew ? place.row == from || place.row == from + 1 : place.row == from;
    if (isAlone && staysItsRow) {
        *Find(key) = moved;
        return;
    }
    std::erase_if(m_rows[from].panes, [key](const DockedPane& pane) { return pane.key == key; });
    if (isAlone) {
        EraseIfEmpty(from);
        place.row -= place.row > from ? 1 : 0;
    }
    AddAt(moved, place, room);
}

void DockRows::Append(const DockedPane& pane, bool inNewRow) {
    if (inNewRow || m_rows.empty() || !CanTake(m_rows.back(), pane)) {
        InsertRow(m_rows.size());
    }
    m_rows.back().panes.push_back(pane);
}

void DockRows::Remove(PaneKey key) {
    const std::size_t index = RowOf(key);
    if (index < m_rows.size()) {
        std::erase_if(m_rows[index].panes, [key](const DockedPane& pane) { return pane.key == key; });
        EraseIfEmpty(index);
    }
}

void DockRows::Flow(int room) {
    DockRows flowed;
    for (const DockRow& row : m_rows) {
        bool isOpen = false; // a row of the new ones takes the panes of this row that stay together
        for (const DockedPane& pane : row.panes) {
            if (pane.flows) {
                flowed.AddLast(pane, room);
            } else if (isOpen && flowed.CanTake(flowed.m_rows.back(), pane)) {
                flowed.m_rows.back().panes.push_back(pane);
            } else {
                flowed.m_rows[flowed.InsertRow(flowed.m_rows.size())].panes.push_back(pane);
            }
            isOpen = true;
        }
    }
    for (DockRow& row : flowed.m_rows) {
        row.id = ++m_lastId;
    }
    // A row keeps its number where it keeps its place.
    for (std::size_t index = 0; index < flowed.m_rows.size() && index < m_rows.size(); ++index) {
        flowed.m_rows[index].id = m_rows[index].id;
    }
    m_rows = std::move(flowed.m_rows);
}

void DockRows::KeepPlaces(std::size_t row, int room, PaneKey first) {
    if (row >= m_rows.size() || !HasRoomForAll(WishesOf(m_rows[row]), room)) {
        return;
    }
    for (const PlacedPane& placed : PlacePanes(m_rows[row], room, first)) {
        Find(placed.key)->offset = placed.span.offset;
    }
}

std::vector<PlacedRow> DockRows::Place(int room, PaneKey first) const {
    std::vector<PlacedRow> placed;
    placed.reserve(m_rows.size());
    int offset = 0;
    for (const DockRow& row : m_rows) {
        const int thickness = ThicknessOf(row);
        placed.push_back({row.id, offset, thickness, PlacePanes(row, room, first)});
        offset += thickness;
    }
    return placed;
}

int DockRows::Thickness() const {
    int sum = 0;
    for (const DockRow& row : m_rows) {
        sum += ThicknessOf(row);
    }
    return sum;
}

RowPlace DockRows::RowAt(int across) const {
    constexpr int edgePart = 5; // a fifth of a row on either side stands for the gap between two rows
    int offset = 0;
    for (std::size_t index = 0; index < m_rows.size(); ++index) {
        const int thickness = ThicknessOf(m_rows[index]);
        if (thickness == 0) {
            continue;
        }
        if (across < offset + thickness / edgePart) {
            return {index, true};
        }
        if (across < offset + thickness - thickness / edgePart) {
            return {index, false};
        }
        offset += thickness;
    }
    return {m_rows.size(), true};
}

RowPlace DockRows::Translated(RowPlace place, const DockRows& before) const {
    for (std::size_t index = place.row; index < before.m_rows.size(); ++index) {
        const std::size_t row = RowWithId(before.m_rows[index].id);
        if (row < m_rows.size()) {
            return {row, place.isNew || index != place.row};
        }
    }
    return {m_rows.size(), true};
}

} // namespace panes
