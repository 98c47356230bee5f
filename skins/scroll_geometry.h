#pragma once

#include <fx/geometry.h>

#include <vector>

/// Where the parts of a scroll bar lie and how far its thumb has gone. Pure functions of sizes, pixels of the bar's
/// client area; every size may be negative or absurd, as a window may be.
namespace scroll {

using Box = fx::Rect;
using Extent = fx::Size;

enum class Direction { Vertical, Horizontal };

/// A bar that is at least as tall as wide is vertical.
Direction DirectionOf(Extent client);
/// The size along the bar.
int LengthAlong(Direction direction, Extent size);

/// The parts whose place does not depend on what is scrolled.
struct Parts {
    Box firstArrow;
    Box secondArrow;
    Box track;
};
Parts Arrange(Direction direction, Extent client, int arrowSize);

inline constexpr int kShortestThumb = 15;

/// How long the thumb of a bar is that scrolls `totalLength` (not 0). A content that is shorter than the bar gets a
/// small thumb as a long one does.
int ThumbLength(int clientLength, int arrowSize, int totalLength);

/// Pixels that the thumb goes in one of `stepCount` steps; 0 where it has no room or there are no steps.
double PixelsPerStep(int trackLength, int thumbLength, double stepCount);

/// Where the thumb of a content at `position` begins, from the start of the bar.
int ThumbPosition(int position, double pixelsPerStep, int arrowSize);

/// The nearest beginning at which the thumb does not leave the track; the track's beginning where it is too long.
int KeepInTrack(int thumbPosition, int thumbLength, int trackStart, int trackEnd);

Box ThumbBox(Direction direction, int thumbPosition, int thumbLength, int arrowSize);

/// Whole steps of a thumb that is dragged by `delta` pixels: a step is made when 0.6 of it has been dragged.
int StepsOfDrag(int delta, double pixelsPerStep);

/// A part of an image and where it is drawn.
struct Piece {
    Box from;
    Box to;
};

/// Whether the whole image is stretched into the target: it is shorter than the target along the bar.
bool IsTooShort(Direction direction, Extent image, Extent target);

/// The pieces that make a thumb of the target's size out of an image that is at least as long: both ends as they are,
/// and as much of what lies between as is needed. `from` in pixels of the image, `to` of the target.
std::vector<Piece> CutPieces(Direction direction, Extent image, Extent target);

/// Where an image is drawn in its own size in the middle of a box; it may stick out.
Box CenteredIn(const Box& box, Extent image);

} // namespace scroll
