#pragma once

#include <cstdint>

/// What window combos keep in the data of an item. Portable.
namespace item_bits {

using Data = std::uintptr_t;

inline constexpr Data light = 0x4;
/// Locked when either is set; a change flips both.
inline constexpr Data lock = 0x1 | 0x8;

constexpr bool IsLightOn(Data data) { return (data & light) != 0; }
constexpr bool IsLocked(Data data) { return (data & lock) != 0; }
constexpr Data WithLight(Data data, bool isOn) { return IsLightOn(data) == isOn ? data : data ^ light; }
/// An item with one of the two bits alone stays locked: flipped, the other one is set.
constexpr Data WithLock(Data data, bool isLocked) { return IsLocked(data) == isLocked ? data : data ^ lock; }

} // namespace item_bits
