// Where a tooltip opens: at the corners of one and of two monitors.
#include "skins/tooltip_geometry.h"

#include <gtest/gtest.h>

#include <ostream>

namespace fx {

static std::ostream& operator<<(std::ostream& out, const Point& point) {
    return out << '(' << point.x << ", " << point.y << ')';
}

} // namespace fx

namespace {

using hint::Place;
using hint::Point;
using hint::Rect;
using hint::Request;

constexpr int kPointerHeight = 32;
constexpr Rect kScreen = {0, 0, 1920, 1040};
/// To the left of the first one and higher, as desktops are put together.
constexpr Rect kSecondScreen = {-1280, -200, 0, 784};

Request At(Point pointer, const Rect& workArea = kScreen) {
    Request request;
    request.pointer = pointer;
    request.pointerHeight = kPointerHeight;
    request.size = {200, 60};
    request.workArea = workArea;
    return request;
}

void ExpectInside(const Request& request) {
    const Place place = hint::PlaceOnScreen(request);
    const Rect tooltip = {place.corner.x, place.corner.y, place.corner.x + request.size.width,
                          place.corner.y + request.size.height};
    EXPECT_TRUE(request.workArea.Contains(tooltip)) << place.corner;
}

class HintCorners : public testing::TestWithParam<Rect> {
protected:
    static const Rect& Area() { return GetParam(); }
};

TEST_P(HintCorners, AtTheTopLeftTheSystemPlacesIt) {
    const Place place = hint::PlaceOnScreen(At({Area().left, Area().top}, Area()));
    EXPECT_FALSE(place.isPlaced);
}

TEST_P(HintCorners, AtTheTopRightItEndsBeforeTheEdge) {
    const Place place = hint::PlaceOnScreen(At({Area().right - 1, Area().top}, Area()));
    EXPECT_TRUE(place.isPlaced);
    EXPECT_EQ(place.corner, (Point{Area().right - 200 - 1, Area().top + kPointerHeight}));
}

TEST_P(HintCorners, AtTheBottomLeftItOpensAboveThePointer) {
    const Place place = hint::PlaceOnScreen(At({Area().left, Area().bottom - 1}, Area()));
    EXPECT_TRUE(place.isPlaced);
    EXPECT_EQ(place.corner, (Point{Area().left, Area().bottom - 1 - 60 - 1}));
}

TEST_P(HintCorners, AtTheBottomRightItOpensAboveAndBefore) {
    const Place place = hint::PlaceOnScreen(At({Area().right - 1, Area().bottom - 1}, Area()));
    EXPECT_TRUE(place.isPlaced);
    EXPECT_EQ(place.corner, (Point{Area().right - 201, Area().bottom - 62}));
}

TEST_P(HintCorners, TheBottomCountsFromBelowThePointer) {
    const int last = Area().bottom - kPointerHeight - 60;
    EXPECT_FALSE(hint::PlaceOnScreen(At({Area().left, last}, Area())).isPlaced);
    EXPECT_TRUE(hint::PlaceOnScreen(At({Area().left, last + 1}, Area())).isPlaced);
}

TEST_P(HintCorners, TheRightEdgeItselfMayBeReached) {
    EXPECT_FALSE(hint::PlaceOnScreen(At({Area().right - 200, Area().top}, Area())).isPlaced);
    EXPECT_TRUE(hint::PlaceOnScreen(At({Area().right - 199, Area().top}, Area())).isPlaced);
}

TEST_P(HintCorners, AFixedPlaceIsKeptInsideAtEveryCorner) {
    for (const int x : {Area().left - 50, Area().left, Area().right - 100, Area().right + 50}) {
        for (const int y : {Area().top - 50, Area().top, Area().bottom - 30, Area().bottom + 50}) {
            Request request = At({Area().left + 300, Area().top + 300}, Area());
            request.wanted = Point{x, y};
            ExpectInside(request);
            EXPECT_TRUE(hint::PlaceOnScreen(request).isPlaced);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, HintCorners, testing::Values(kScreen, kSecondScreen),
                         [](const auto& screen) { return screen.index == 0 ? "First" : "Second"; });

TEST(HintPlace, TheOwnersPlaceIsTakenAndSaidToBeTaken) {
    Request request = At({500, 300});
    request.wanted = Point{40, 160};
    const Place place = hint::PlaceOnScreen(request);
    EXPECT_EQ(place.corner, (Point{40, 160}));
    EXPECT_TRUE(place.isPlaced);
    EXPECT_EQ(hint::PointOf(request), (Point{40, 160}));
    EXPECT_EQ(hint::PointOf(At({500, 300})), (Point{500, 300}));
}

TEST(HintPlace, NearTheBottomItOpensAboveTheRibbonNotOverIt) {
    Request request = At({500, 960});
    request.ribbon = Rect{0, 880, 1920, 1020};
    request.wanted = Point{480, 1020};
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{480, 820}));
    request.wanted.reset();
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{500, 820}));
}

TEST(HintPlace, ARibbonAtTheTopIsOpenedBelow) {
    Request request = At({500, 90});
    request.ribbon = Rect{0, 0, 1920, 140};
    request.wanted = Point{480, 140};
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{480, 140}));
}

TEST(HintPlace, ThePointersRoomBelowDecidesWhereverTheOwnerWantsTheTooltip) {
    const int last = kScreen.bottom - kPointerHeight - 60;
    Request request = At({500, last});
    request.wanted = Point{40, 300};
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{40, 300}));
    request.pointer.y = last + 1;
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{40, last + 1 - 60 - 1}));
    request.ribbon = Rect{0, 400, 1920, 540};
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{40, 340}));
}

TEST(HintPlace, AnOwnersPlaceBelowTheScreenIsLeftForOneAboveTheRibbon) {
    Request request = At({500, 885});
    request.ribbon = Rect{0, 880, 1920, 1020};
    request.wanted = Point{480, 1020};
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{480, 820}));
    request.ribbon.reset();
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{480, 980}));
}

TEST(HintPlace, OneLargerThanTheMonitorKeepsItsBeginning) {
    Request request = At({500, 300});
    request.size = {4000, 3000};
    EXPECT_EQ(hint::PlaceOnScreen(request).corner, (Point{0, 0}));
}

} // namespace
