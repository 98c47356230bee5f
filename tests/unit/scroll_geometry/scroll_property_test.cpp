// What holds for a scroll bar of every size.
#include "skins/scroll_geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

using scroll::Direction;
using scroll::Extent;

constexpr int kArrow = 18;
constexpr int kBreadth = 20;
constexpr std::array kTotals = {1, 7, 100, 999, 20000, 1000000};
constexpr std::array kLimits = {1, 2, 9, 100, 5000};

class ScrollSizes : public testing::TestWithParam<Direction> {
protected:
    static Extent Client(int length) {
        return GetParam() == Direction::Vertical ? Extent{kBreadth, length} : Extent{length, kBreadth};
    }
    struct Track {
        int start, end;
        int Length() const { return end - start; }
    };
    static Track TrackOf(int length) {
        const scroll::Box track = scroll::Arrange(GetParam(), Client(length), kArrow).track;
        return GetParam() == Direction::Vertical ? Track{track.top, track.bottom} : Track{track.left, track.right};
    }
    /// The thumb of a content at a position, from its beginning to its end.
    static Track ThumbAt(int length, int total, int limit, int position) {
        const Track track = TrackOf(length);
        const int thumb = scroll::ThumbLength(length, kArrow, total);
        const double step = scroll::PixelsPerStep(track.Length(), thumb, limit);
        const int start =
            scroll::KeepInTrack(scroll::ThumbPosition(position, step, kArrow), thumb, track.start, track.end);
        return {start, start + thumb};
    }
};

TEST_P(ScrollSizes, TheThumbIsInsideATrackThatHasRoomForIt) {
    for (int length = 1; length <= 2000; ++length) {
        const Track track = TrackOf(length);
        for (const int total : kTotals) {
            for (const int limit : kLimits) {
                for (const int position : {-5, 0, limit / 2, limit, limit + 5}) {
                    const Track thumb = ThumbAt(length, total, limit, position);
                    ASSERT_GE(thumb.start, track.start) << length << ' ' << total << ' ' << limit << ' ' << position;
                    if (track.Length() >= scroll::kShortestThumb) {
                        ASSERT_LE(thumb.end, track.end) << length << ' ' << total << ' ' << limit << ' ' << position;
                    }
                }
            }
        }
    }
}

TEST_P(ScrollSizes, TheThumbIsNeverShorterThan15Pixels) {
    for (int length = 1; length <= 2000; ++length) {
        for (const int total : kTotals) {
            ASSERT_GE(scroll::ThumbLength(length, kArrow, total), 15) << length << ' ' << total;
        }
    }
}

TEST_P(ScrollSizes, TheThumbNeverGoesBackAsThePositionRises) {
    for (int length = 1; length <= 2000; length += 3) {
        for (const int total : kTotals) {
            const int limit = 120;
            int last = ThumbAt(length, total, limit, 0).start;
            for (int position = 1; position <= limit; ++position) {
                const int start = ThumbAt(length, total, limit, position).start;
                ASSERT_GE(start, last) << length << ' ' << total << ' ' << position;
                last = start;
            }
        }
    }
}

TEST_P(ScrollSizes, TheEndsOfTheContentAreTheEndsOfTheTrack) {
    for (int length = 60; length <= 2000; ++length) {
        const Track track = TrackOf(length);
        for (const int limit : kLimits) {
            ASSERT_EQ(ThumbAt(length, 3000, limit, 0).start, track.start) << length << ' ' << limit;
            // The whole part of a product may lack one pixel.
            ASSERT_GE(ThumbAt(length, 3000, limit, limit).end, track.end - 1) << length << ' ' << limit;
        }
    }
}

TEST_P(ScrollSizes, ArrowsAndTrackFillTheBarWithoutAGap) {
    for (int length = 2 * kArrow; length <= 2000; ++length) {
        const scroll::Parts parts = scroll::Arrange(GetParam(), Client(length), kArrow);
        if (GetParam() == Direction::Vertical) {
            ASSERT_EQ(parts.firstArrow.bottom, parts.track.top);
            ASSERT_EQ(parts.track.bottom, parts.secondArrow.top);
            ASSERT_EQ(parts.secondArrow.bottom, length);
        } else {
            ASSERT_EQ(parts.firstArrow.right, parts.track.left);
            ASSERT_EQ(parts.track.right, parts.secondArrow.left);
            ASSERT_EQ(parts.secondArrow.right, length);
        }
    }
}

TEST_P(ScrollSizes, ThePiecesOfAThumbCoverItOnceFromEndToEnd) {
    for (int length = 4; length <= 400; ++length) {
        const Extent image = GetParam() == Direction::Vertical ? Extent{17, 400} : Extent{400, 17};
        const Extent target = GetParam() == Direction::Vertical ? Extent{18, length} : Extent{length, 18};
        int covered = 0;
        for (const scroll::Piece& piece : scroll::CutPieces(GetParam(), image, target)) {
            const bool isVertical = GetParam() == Direction::Vertical;
            ASSERT_EQ(isVertical ? piece.to.top : piece.to.left, covered) << length;
            ASSERT_EQ(isVertical ? piece.from.Height() : piece.from.Width(),
                      isVertical ? piece.to.Height() : piece.to.Width())
                << "nothing is stretched along the bar";
            covered = isVertical ? piece.to.bottom : piece.to.right;
            ASSERT_GE(isVertical ? piece.from.top : piece.from.left, 0);
            ASSERT_LE(isVertical ? piece.from.bottom : piece.from.right, 400);
        }
        ASSERT_EQ(covered, length);
    }
}

TEST_P(ScrollSizes, DraggedStepsRiseWithThePointerAndMirror) {
    for (const double step : {0.3, 1.0, 2.5, 17.0}) {
        int last = scroll::StepsOfDrag(-300, step);
        for (int delta = -299; delta <= 300; ++delta) {
            const int steps = scroll::StepsOfDrag(delta, step);
            ASSERT_GE(steps, last) << delta << ' ' << step;
            ASSERT_EQ(steps, -scroll::StepsOfDrag(-delta, step)) << delta << ' ' << step;
            last = steps;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Both, ScrollSizes, testing::Values(Direction::Vertical, Direction::Horizontal),
                         [](const testing::TestParamInfo<Direction>& direction) {
                             return direction.param == Direction::Vertical ? "Vertical" : "Horizontal";
                         });

} // namespace
