#pragma once

class CDC;

namespace toolbar {

class ScrollStrips;

/// Which way the rows can still go.
struct ScrollRoom {
    bool up = false;
    bool down = false;
};

/// Draws the strips, if there are any, as the visual manager does.
void DrawStrips(CDC& dc, const ScrollStrips& strips, ScrollRoom room);

} // namespace toolbar
