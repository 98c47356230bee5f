#include "combos/mark_geometry.h"

#include <algorithm>

namespace marks {
namespace {

/// From the row's left side to its first square.
constexpr int squareLeft = 3;
/// From the row's left side to its check box.
constexpr int boxLeft = 1;
/// From the row's top to the zone of a light.
constexpr int lightZoneTop = 4;

/// Where a square of that size begins so that the middle cuts it in half.
int Above(int middle, int size) { return static_cast<int>(middle - size * 0.5); }

} // namespace

CheckRow PlaceCheckRow(const Rect& row, int boxSize) {
    CheckRow placed;
    const int left = row.left + boxLeft;
    const int top = (row.top + row.bottom) / 2 - boxSize / 2;
    placed.box = {left, top, left + boxSize, top + boxSize};
    placed.text = {placed.box.right + gap, row.top, row.right, row.bottom};
    return placed;
}

Rect CheckZone(int boxSize, int editBottom) { return {boxLeft, 0, boxSize + 2 * boxLeft, editBottom}; }

Rect CheckFaceZone(const Rect& edit, int boxSize) {
    return {edit.left + boxLeft, edit.top, edit.left + boxSize + 2 * boxLeft, edit.bottom};
}

SwatchRow PlaceSwatchRow(const Rect& row, int iconSize) {
    const int top = std::max(row.top, Above((row.top + row.bottom) / 2, iconSize));
    const int bottom = std::min(top + iconSize, row.bottom);
    const int side = bottom - top;
    const int left = row.left + squareLeft;
    SwatchRow placed;
    placed.swatch = {left, top, left + side, bottom};
    placed.light = placed.swatch.Moved(side + gap, 0);
    placed.text = {placed.light.right + gap, row.top, row.right, row.bottom};
    return placed;
}

std::vector<Rect> SwatchZones(int editHeight, int iconSize) {
    const int top = std::max(0, Above(editHeight / 2, iconSize));
    const int bottom = std::min(top + iconSize, editHeight);
    const int side = bottom - top;
    const Rect swatch{squareLeft, top, squareLeft + side, bottom};
    return {swatch, swatch.Moved(side + gap, 0)};
}

LightRow PlaceLightRow(const Rect& row, int iconSize) {
    LightRow placed;
    const int left = row.left + squareLeft;
    const int top = row.top + (row.Height() - iconSize) / 2;
    placed.light = {left, top, left + iconSize, top + iconSize};
    placed.text = {placed.light.right + gap, row.top, row.right, row.bottom};
    return placed;
}

std::vector<Rect> LightZones(int iconSize) {
    const Rect light{squareLeft, lightZoneTop, squareLeft + iconSize, lightZoneTop + iconSize};
    const int secondLeft = light.right + gap;
    return {light, {secondLeft, 0, secondLeft + iconSize, iconSize}};
}

} // namespace marks
