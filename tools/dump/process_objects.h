#pragma once

/// How many objects this process holds from the system, for tests that compare before and after. Reads the process's
/// own handle tables where the system does not answer the question itself, so objects that no wrapper owns are counted
/// too.
struct ProcessObjects {
    /// Bitmaps, brushes, fonts, pens, palettes, regions and device contexts; an icon's bitmaps are among them.
    long gdi = 0;
    /// Icons and cursors, shared ones included (the system loads those once and keeps them).
    long icons = 0;
    long menus = 0;
    /// Windows of all kinds, message-only ones excepted.
    long windows = 0;
};

/// From any thread. Costs some 10 ms.
ProcessObjects CountProcessObjects();
