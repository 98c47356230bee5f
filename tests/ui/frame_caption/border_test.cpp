#include "frames/frame_border.h"

#include <gtest/gtest.h>

namespace {

constexpr RECT kWindow{100, 100, 500, 400};
constexpr RECT kClient{104, 104, 496, 396};
constexpr int kCorner = 12;

struct Case {
    POINT point;
    LRESULT hit;
};

TEST(FrameBorder, EachEdgeAndCornerResizesItsWay) {
    const Case cases[] = {
        {{101, 250}, HTLEFT},        {{498, 250}, HTRIGHT},    {{300, 101}, HTTOP},        {{300, 398}, HTBOTTOM},
        {{101, 101}, HTTOPLEFT},     {{498, 101}, HTTOPRIGHT}, {{101, 398}, HTBOTTOMLEFT}, {{498, 398}, HTBOTTOMRIGHT},
        {{300, 250}, HTCLIENT},      {{104, 104}, HTCLIENT},   {{99, 250}, HTNOWHERE},     {{500, 250}, HTNOWHERE},
        {{103, 111}, HTTOPLEFT},     {{103, 112}, HTLEFT},     {{111, 103}, HTTOPLEFT},    {{112, 103}, HTTOP},
        {{488, 396}, HTBOTTOMRIGHT}, {{487, 396}, HTBOTTOM},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(HitFrameBorder(kWindow, kClient, kCorner, true, row.point), row.hit)
            << row.point.x << ' ' << row.point.y;
    }
}

TEST(FrameBorder, AFrameThatCannotBeSizedHasBordersOnly) {
    EXPECT_EQ(HitFrameBorder(kWindow, kClient, kCorner, false, {101, 101}), HTBORDER);
    EXPECT_EQ(HitFrameBorder(kWindow, kClient, kCorner, false, {300, 250}), HTCLIENT);
}

TEST(FrameBorder, AMaximizedFrameIsClientAreaToItsEdges) {
    EXPECT_EQ(HitFrameBorder(kWindow, kWindow, kCorner, true, {100, 100}), HTCLIENT);
    EXPECT_EQ(HitFrameBorder(kWindow, kWindow, kCorner, true, {499, 399}), HTCLIENT);
}

} // namespace
