#include "message_layout.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

MessageMeasures Usual() {
    return {.margin = 20,
            .gap = 8,
            .iconSide = 32,
            .textWidth = 300,
            .textHeight = 60,
            .rowHeight = 26,
            .buttonWidths = {80, 90}};
}

} // namespace

TEST(MessageLayout, TheTextStandsBesideTheIcon) {
    const MessagePlaces places = PlaceMessage(Usual());
    EXPECT_EQ(places.icon.left, 20);
    EXPECT_EQ(places.text.left, places.icon.right + 16);
    EXPECT_EQ(places.text.right - places.text.left, 300);
    EXPECT_EQ(places.text.bottom - places.text.top, 60);
}

TEST(MessageLayout, TheLowerOfTextAndIconStandsInTheMiddleOfTheHigherOne) {
    for (const int height : {10, 32, 60, 400}) {
        MessageMeasures measures = Usual();
        measures.textHeight = height;
        const MessagePlaces places = PlaceMessage(measures);
        EXPECT_EQ(places.text.top + places.text.bottom, places.icon.top + places.icon.bottom) << height;
        EXPECT_EQ(std::min(places.text.top, places.icon.top), 20) << height;
        EXPECT_EQ(places.buttons[0].top, std::max(places.text.bottom, places.icon.bottom) + 16) << height;
    }
}

TEST(MessageLayout, TheButtonsStandInARowAtTheEnd) {
    const MessagePlaces places = PlaceMessage(Usual());
    ASSERT_EQ(places.buttons.size(), 2u);
    EXPECT_EQ(places.buttons[1].right, places.text.right);
    EXPECT_EQ(places.buttons[1].right - places.buttons[1].left, 90);
    EXPECT_EQ(places.buttons[0].right, places.buttons[1].left - 8);
    EXPECT_EQ(places.buttons[0].right - places.buttons[0].left, 80);
    EXPECT_EQ(places.buttons[0].bottom - places.buttons[0].top, 26);
}

TEST(MessageLayout, TheMarginIsTheSameOnAllSides) {
    const MessagePlaces places = PlaceMessage(Usual());
    EXPECT_EQ(places.width - places.buttons[1].right, 20);
    EXPECT_EQ(places.height - places.buttons[1].bottom, 20);
}

TEST(MessageLayout, ButtonsThatAreLongerThanAShortTextMakeItWide) {
    MessageMeasures measures = Usual();
    measures.textWidth = 40;
    measures.buttonWidths = {100, 100, 100};
    const MessagePlaces places = PlaceMessage(measures);
    EXPECT_EQ(places.buttons[0].left, 20);
    EXPECT_EQ(places.width, 20 + 3 * 100 + 2 * 8 + 20);
    EXPECT_EQ(places.text.right, places.buttons[2].right) << "the text has the room too";
}
