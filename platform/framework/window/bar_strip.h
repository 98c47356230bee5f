#pragma once

#include <windows.h>

/// The sides of a frame and the strips that bars and panes take off them. All values are pixels of one co-ordinate
/// system.
namespace frame_bars {

enum class Side { Top, Bottom, Left, Right };

/// Whether a strip along the side runs from left to right.
bool IsHorizontal(Side side);

/// Takes a strip of `thickness` off one side of `area` and answers it; less when there is no room.
RECT TakeStrip(RECT& area, Side side, LONG thickness);

/// The side of a CBRS_ALIGN_ bit; top when there is none.
Side SideOfAlignment(DWORD alignment);

} // namespace frame_bars
