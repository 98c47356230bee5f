#include "skins/scroll_geometry.h"

#include <algorithm>
#include <limits>

namespace scroll {

namespace {

/// Rows or columns at each end of a thumb's image that are never cut.
constexpr int kEnd = 2;
/// Vertical thumbs below this take their middle from the image's top.
constexpr int kShortThumb = 20;
/// What a drag lacks to be the next step and is given.
constexpr double kRounding = 0.4;

int ToInt(double value) {
    constexpr double lowest = std::numeric_limits<int>::min() / 2;
    constexpr double highest = std::numeric_limits<int>::max() / 2;
    return static_cast<int>(std::clamp(value, lowest, highest));
}

int MiddleOffset(Direction direction, Extent image, Extent target) {
    if (direction == Direction::Horizontal) {
        return (image.width - target.width) / 2;
    }
    return target.height < kShortThumb ? 0 : (image.height - target.height) / 2;
}

} // namespace

Direction DirectionOf(Extent client) {
    return client.height >= client.width ? Direction::Vertical : Direction::Horizontal;
}

int LengthAlong(Direction direction, Extent size) {
    return direction == Direction::Vertical ? size.height : size.width;
}

Parts Arrange(Direction direction, Extent client, int arrowSize) {
    const int w = arrowSize;
    const Box first = {0, 0, w, w};
    if (direction == Direction::Vertical) {
        const int end = client.height - w;
        return {first.Moved(1, 0), Box{0, end, w, client.height}.Moved(1, 0), Box{0, w, w, end}.Moved(1, 0)};
    }
    const int end = client.width - w;
    return {first.Moved(0, 1), Box{end, 0, client.width, w}.Moved(0, 1), Box{w, 0, end, w}.Moved(0, 1)};
}

int ThumbLength(int clientLength, int arrowSize, int totalLength) {
    if (clientLength <= 0 || totalLength == 0) {
        return kShortestThumb;
    }
    double share = static_cast<double>(clientLength) / totalLength;
    if (share > 1) {
        share = 1 / share;
    }
    return std::max(kShortestThumb, ToInt((clientLength - 2 * arrowSize) * share));
}

double PixelsPerStep(int trackLength, int thumbLength, double stepCount) {
    const int room = trackLength - thumbLength;
    return room > 0 && stepCount > 0 ? room / stepCount : 0;
}

int ThumbPosition(int position, double pixelsPerStep, int arrowSize) {
    return ToInt(position * pixelsPerStep) + arrowSize;
}

int KeepInTrack(int thumbPosition, int thumbLength, int trackStart, int trackEnd) {
    return std::max(trackStart, std::min(thumbPosition, trackEnd - thumbLength));
}

Box ThumbBox(Direction direction, int thumbPosition, int thumbLength, int arrowSize) {
    const int end = thumbPosition + thumbLength;
    return direction == Direction::Vertical ? Box{0, thumbPosition, arrowSize, end}
                                            : Box{thumbPosition, 0, end, arrowSize};
}

int StepsOfDrag(int delta, double pixelsPerStep) {
    if (pixelsPerStep <= 0) {
        return 0;
    }
    return ToInt(delta / pixelsPerStep + (delta < 1 ? -kRounding : kRounding));
}

bool IsTooShort(Direction direction, Extent image, Extent target) {
    return LengthAlong(direction, target) > LengthAlong(direction, image);
}

std::vector<Piece> CutPieces(Direction direction, Extent image, Extent target) {
    const int length = LengthAlong(direction, target);
    const int imageLength = LengthAlong(direction, image);
    const int middle = length - 2 * kEnd;
    const int offset = MiddleOffset(direction, image, target);
    const auto across = [direction](int from, int count, int breadth) {
        return direction == Direction::Vertical ? Box{0, from, breadth, from + count}
                                                : Box{from, 0, from + count, breadth};
    };
    const int breadth = direction == Direction::Vertical ? target.width : target.height;
    const int imageBreadth = direction == Direction::Vertical ? image.width : image.height;
    const auto piece = [&](int from, int to, int count) {
        return Piece{across(from, count, imageBreadth), across(to, count, breadth)};
    };
    std::vector<Piece> pieces = {piece(0, 0, kEnd)};
    if (middle > 0) {
        pieces.push_back(piece(offset + kEnd, kEnd, middle));
    }
    pieces.push_back(piece(imageLength - kEnd, length - kEnd, kEnd));
    return pieces;
}

Box CenteredIn(const Box& box, Extent image) {
    const int left = box.left + (box.Width() - image.width) / 2;
    const int top = box.top + (box.Height() - image.height) / 2;
    return {left, top, left + image.width, top + image.height};
}

} // namespace scroll
