#pragma once

#include <cstddef>
#include <vector>

/// Where the panes of one row of a dock site lie, along the row. All values are pixels from the row's beginning; a row
/// of a vertical site runs from top to bottom.
namespace panes {

struct RowWish {
    int offset;   ///< where the pane was put; it lies there when there is room
    int length;   ///< as wanted; may be more than there is
    int smallest; ///< with less the pane shows only a part of what it holds
};

struct Span {
    int offset;
    int length;
    int End() const { return offset + length; }
};

constexpr std::size_t kNobody = static_cast<std::size_t>(-1);

/// Places the panes in the order of their wishes, side by side and inside `room`, each as near to its wished offset as
/// the others let it; wishes are kept, so that a row that gets longer again pulls nobody anywhere else than back. The
/// pane `first` gets its offset before the others, which give way to both sides. When there is too little room, panes
/// that want more than the whole row get shorter, then the last ones down to their smallest length, at the end all in
/// proportion.
std::vector<Span> PlaceRow(const std::vector<RowWish>& wishes, int room, std::size_t first = kNobody);

/// Whether every pane of the row has the length that it wants.
bool HasRoomForAll(const std::vector<RowWish>& wishes, int room);

} // namespace panes
