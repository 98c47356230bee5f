#include "window_place.h"

#include <gtest/gtest.h>

namespace {

const WindowBox kFirst = {0, 0, 1920, 1040};
const WindowBox kRightOfIt = {1920, 0, 3200, 984};
const WindowBox kLeftOfIt = {-1280, 0, 0, 984};

void ExpectPlace(const WindowBox& found, const WindowBox& wanted) {
    EXPECT_EQ(found.left, wanted.left);
    EXPECT_EQ(found.top, wanted.top);
    EXPECT_EQ(found.right, wanted.right);
    EXPECT_EQ(found.bottom, wanted.bottom);
}

} // namespace

TEST(PlaceOnMonitors, AWindowThatIsSeenStaysWhereItWas) {
    for (const WindowBox& place : {WindowBox{100, 100, 900, 700}, WindowBox{-600, 50, 200, 700},
                                   WindowBox{1700, 900, 2500, 1500}, WindowBox{2000, 0, 3000, 900}}) {
        ExpectPlace(PlaceOnMonitors(place, {kFirst, kRightOfIt}), place);
    }
}

TEST(PlaceOnMonitors, AWindowOnAMonitorThatIsGoneComesToTheNearest) {
    ExpectPlace(PlaceOnMonitors({2000, 100, 3000, 900}, {kFirst}), {920, 100, 1920, 900});
    ExpectPlace(PlaceOnMonitors({-1200, 100, -200, 900}, {kFirst, kRightOfIt}), {0, 100, 1000, 900});
    ExpectPlace(PlaceOnMonitors({-3000, 100, -2000, 900}, {kFirst, kLeftOfIt}), {-1280, 100, -280, 900});
}

TEST(PlaceOnMonitors, ATitleOutOfReachIsBroughtBack) {
    ExpectPlace(PlaceOnMonitors({100, -300, 900, 500}, {kFirst}), {100, 0, 900, 800});      // above
    ExpectPlace(PlaceOnMonitors({100, 1030, 900, 1500}, {kFirst}), {100, 570, 900, 1040});  // below
    ExpectPlace(PlaceOnMonitors({1900, 100, 2500, 500}, {kFirst}), {1320, 100, 1920, 500}); // all but a sliver
}

TEST(PlaceOnMonitors, AWindowLargerThanTheMonitorIsMadeToFit) {
    ExpectPlace(PlaceOnMonitors({3000, 0, 6000, 2000}, {kFirst}), kFirst);
}

TEST(PlaceOnMonitors, WithoutMonitorsNothingMoves) { ExpectPlace(PlaceOnMonitors({5, 6, 7, 8}, {}), {5, 6, 7, 8}); }
