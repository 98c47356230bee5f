#include "message_sign.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr MessageKind kKinds[] = {MessageKind::Information, MessageKind::Question, MessageKind::Warning,
                                  MessageKind::Error};

bool Covers(const SignStroke& stroke, double x, double y) {
    const double dx = stroke.x2 - stroke.x1, dy = stroke.y2 - stroke.y1, length = dx * dx + dy * dy;
    const double along = length > 0 ? ((x - stroke.x1) * dx + (y - stroke.y1) * dy) / length : 0;
    const double at = std::clamp(along, 0.0, 1.0);
    return std::hypot(x - stroke.x1 - at * dx, y - stroke.y1 - at * dy) <= stroke.width / 2;
}

bool Covers(const std::vector<SignStroke>& strokes, double x, double y) {
    return std::ranges::any_of(strokes, [&](const SignStroke& stroke) { return Covers(stroke, x, y); });
}

/// Calls it for points that lie closely all over the square.
template <class See>
void ForPoints(See see) {
    constexpr int side = 200;
    for (int i = 0; i < side * side; ++i) {
        see((i % side + 0.5) / side, (static_cast<double>(i / side) + 0.5) / side);
    }
}

} // namespace

TEST(MessageSign, NothingReachesBeyondTheSquare) {
    for (const MessageKind kind : kKinds) {
        const MessageSign sign = SignOf(kind);
        for (const auto& strokes : {sign.plate, sign.sign}) {
            for (const SignStroke& stroke : strokes) {
                const double half = stroke.width / 2;
                EXPECT_GE(std::min({stroke.x1, stroke.x2, stroke.y1, stroke.y2}) - half, 0);
                EXPECT_LE(std::max({stroke.x1, stroke.x2, stroke.y1, stroke.y2}) + half, 1);
            }
        }
    }
}

TEST(MessageSign, ThePlateLiesBehindAllOfTheSign) {
    for (const MessageKind kind : kKinds) {
        const MessageSign sign = SignOf(kind);
        ForPoints([&](double x, double y) {
            if (Covers(sign.sign, x, y)) {
                EXPECT_TRUE(Covers(sign.plate, x, y)) << static_cast<int>(kind) << " at " << x << ", " << y;
            }
        });
    }
}

TEST(MessageSign, ThePlateHasNoHoles) {
    for (const MessageKind kind : kKinds) {
        const std::vector<SignStroke> plate = SignOf(kind).plate;
        for (int row = 0; row < 200; ++row) {
            int turns = 0;
            bool wasInside = false;
            for (int column = 0; column <= 200; ++column) {
                const bool isInside = column < 200 && Covers(plate, (column + 0.5) / 200, (row + 0.5) / 200);
                turns += isInside != wasInside ? 1 : 0;
                wasInside = isInside;
            }
            EXPECT_LE(turns, 2) << static_cast<int>(kind) << " in row " << row;
        }
    }
}

TEST(MessageSign, EveryKindIsKnownByItsOwn) {
    for (const MessageKind one : kKinds) {
        for (const MessageKind other : kKinds) {
            if (one == other) {
                continue;
            }
            const MessageSign first = SignOf(one), second = SignOf(other);
            int different = 0;
            ForPoints([&](double x, double y) {
                different += Covers(first.sign, x, y) != Covers(second.sign, x, y) ? 1 : 0;
            });
            EXPECT_GT(different, 200) << static_cast<int>(one) << " and " << static_cast<int>(other);
        }
    }
}
