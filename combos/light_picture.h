#pragma once

#include <cstdint>
#include <vector>

/// The library's own pictures of a light. Portable.

enum class LightState { On, Off };

/// A bulb in a square of `side` pixels, drawn for that size: rows from the top, each pixel 0xAARRGGBB with colours that
/// are not multiplied by alpha. Empty for a side below 1.
std::vector<std::uint32_t> DrawLightPicture(int side, LightState state);
