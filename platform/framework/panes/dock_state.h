#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Where all panes of a frame are, as it is kept from one run to the next: a value, and the bytes that stand for it.
namespace panes {

enum class PlaceKind : std::uint8_t { Top, Bottom, Left, Right, Floating };

struct SavedRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    bool operator==(const SavedRect&) const = default;
};

struct SavedPane {
    std::uint32_t id = 0; ///< control id, each only once
    PlaceKind kind = PlaceKind::Top;
    std::int32_t row = 0;    ///< from the frame's edge inwards; of a floating pane the one where it was docked
    std::int32_t offset = 0; ///< along the row, pixels
    bool isVisible = true;
    PlaceKind dockedAt = PlaceKind::Top; ///< of a floating pane: the side where it was docked
    bool wasDocked = false;              ///< whether that side counts
    SavedRect floating;                  ///< screen pixels; empty when it has never floated
    bool operator==(const SavedPane&) const = default;
};

/// Panes of one row stand in their order along it.
using DockState = std::vector<SavedPane>;

std::vector<std::uint8_t> WriteDockState(const DockState& state);

/// Nothing when the bytes are not what WriteDockState makes: another version, a wrong length or check sum, an id twice,
/// a value that no pane can have. Whatever the bytes are, nothing else happens.
std::optional<DockState> ReadDockState(std::span<const std::uint8_t> bytes);

/// The check sum over everything that stands before it; the last four bytes of a state.
std::uint32_t CheckSumOf(std::span<const std::uint8_t> bytes);

} // namespace panes
