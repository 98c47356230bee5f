#pragma once

#include <fx/geometry.h>

#include <vector>

/// Where the marks of a combo's item stand: in a row of the drop list, on the combo's face, and as the zones in which a
/// click counts. Portable; lengths are device pixels. Drawing and zones have formulas of their own where a face and
/// the list's rows differ in height.
namespace marks {

using fx::Rect;

/// Between one mark and the next, and between the last one and the text.
inline constexpr int gap = 3;

/// The zone under a point of a list whose rows are `rowHeight` high: the zones are those of the first row and count
/// for every row. -1 outside of all of them.
template <class Zone>
int ZoneAt(const std::vector<Zone>& zones, int x, int y, int rowHeight) {
    if (rowHeight <= 0) {
        return -1;
    }
    const int yInRow = y % rowHeight;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        const Zone& zone = zones[i];
        if (x >= zone.left && x < zone.right && yInRow >= zone.top && yInRow < zone.bottom) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

// ---- a check box

struct CheckRow {
    Rect box;
    Rect text;
};

/// `row`: a row or the edit area of the face, within the text margins.
CheckRow PlaceCheckRow(const Rect& row, int boxSize);
/// The list's one zone: the column of the boxes. It reaches down to the bottom of the edit area, which is at least a
/// row high.
Rect CheckZone(int boxSize, int editBottom);
/// The same column on the face.
Rect CheckFaceZone(const Rect& edit, int boxSize);

// ---- a swatch and a light

struct SwatchRow {
    Rect swatch;
    Rect light;
    Rect text;
};

/// `row`: a row, or the edit area of the face, where a click counts on the marks themselves. A row that is lower than
/// the icon cuts the squares.
SwatchRow PlaceSwatchRow(const Rect& row, int iconSize);
/// The list's zones: swatch, light.
std::vector<Rect> SwatchZones(int editHeight, int iconSize);

// ---- a light alone

struct LightRow {
    Rect light;
    Rect text;
};

/// `row`: a row, or the edit area of the face, where a click counts on the light itself.
LightRow PlaceLightRow(const Rect& row, int iconSize);
/// The list's zones: the light, and a second one beside it that switches nothing.
std::vector<Rect> LightZones(int iconSize);

} // namespace marks
