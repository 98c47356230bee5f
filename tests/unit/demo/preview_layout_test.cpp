#include "preview_layout.h"

#include <gtest/gtest.h>

namespace {

constexpr double kScreen = 96;
constexpr double kPixels = 96 / 25.4; // a millimetre, at 100 %
const PreviewRoom kRoom{800, 600, 20};

TEST(PreviewZoom, TheWholeSheetFitsTheRoomWithItsMargin) {
    for (const PageShape shape : {PageShape::Portrait, PageShape::Landscape}) {
        const SheetSize sheet = UsualSheet(shape);
        const double zoom = FittingZoom(sheet, kRoom, kScreen);
        const PreviewPlace place = PlaceSheet(sheet, kRoom, kPixels * zoom / 100, 0, 0);
        EXPECT_GE(place.sheet.left, kRoom.margin - 1);
        EXPECT_GE(place.sheet.top, kRoom.margin - 1);
        EXPECT_LE(place.sheet.right, kRoom.width - kRoom.margin + 1);
        EXPECT_LE(place.sheet.bottom, kRoom.height - kRoom.margin + 1);
        const bool touches = place.sheet.left <= kRoom.margin + 1 || place.sheet.top <= kRoom.margin + 1;
        EXPECT_TRUE(touches) << "it could be larger";
    }
}

TEST(PreviewZoom, ARoomThatIsTooSmallGivesTheLeastStep) {
    EXPECT_EQ(FittingZoom(UsualSheet(PageShape::Portrait), {30, 20, 20}, kScreen), 10);
}

TEST(PreviewZoom, StepsGoFromAnyPercentageToTheNextAndStopAtTheEnds) {
    EXPECT_EQ(NextZoom(54.3, 1), 75);
    EXPECT_EQ(NextZoom(54.3, -1), 50);
    EXPECT_EQ(NextZoom(100, 1), 125);
    EXPECT_EQ(NextZoom(100, -1), 75);
    EXPECT_EQ(NextZoom(99.8, 1), 125);
    EXPECT_EQ(NextZoom(400, 1), 400);
    EXPECT_EQ(NextZoom(10, -1), 10);
    EXPECT_EQ(NextZoom(3, -1), 10);
}

TEST(PreviewPlace, ASmallSheetLiesInTheMiddleAndCannotBeMoved) {
    const PreviewPlace place = PlaceSheet({100, 100}, kRoom, 1, 50, -50);
    EXPECT_EQ(place.sheet.left, 350);
    EXPECT_EQ(place.sheet.right, 450);
    EXPECT_EQ(place.sheet.top, 250);
    EXPECT_EQ(place.scrollAcross, 0);
    EXPECT_EQ(place.scrollDown, 0);
}

TEST(PreviewPlace, ALargeSheetIsMovedNoFartherThanItsMargin) {
    const SheetSize sheet{1000, 1000};
    const PreviewPlace first = PlaceSheet(sheet, kRoom, 1, -100, 0);
    EXPECT_EQ(first.sheet.left, kRoom.margin);
    EXPECT_EQ(first.scrollAcross, 0);
    const PreviewPlace last = PlaceSheet(sheet, kRoom, 1, 9999, 9999);
    EXPECT_EQ(last.sheet.right, kRoom.width - kRoom.margin);
    EXPECT_EQ(last.sheet.bottom, kRoom.height - kRoom.margin);
    EXPECT_EQ(last.scrollAcross, 240);
    EXPECT_EQ(last.scrollDown, 440);
}

} // namespace
