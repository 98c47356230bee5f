// Where the panes of a status bar lie.
#include "toolbar/status_bar_parts.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Placed(const std::vector<toolbar::StatusPaneWidth>& panes, int length, int gap = 2) {
    std::string text;
    for (const toolbar::StatusPanePlace& place : toolbar::PlaceStatusPanes(panes, length, gap)) {
        text += (text.empty() ? "" : " ") + std::to_string(place.left) + "-" + std::to_string(place.right);
    }
    return text;
}

TEST(StatusPanes, ThePaneThatStretchesHasWhatTheOthersLeave) {
    EXPECT_EQ(Placed({{10, true}, {20, false}, {30, false}}, 100), "0-46 48-68 70-100");
}

TEST(StatusPanes, SeveralThatStretchShareItAndTheFirstHasTheRest) {
    EXPECT_EQ(Placed({{0, true}, {0, true}}, 103), "0-51 53-103");
}

TEST(StatusPanes, WithoutOneThatStretchesTheEndStaysEmpty) {
    EXPECT_EQ(Placed({{20, false}, {30, false}}, 100), "0-20 22-52");
}

TEST(StatusPanes, WhatHasNoRoomIsNotShownNorWhatLiesBehindIt) {
    EXPECT_EQ(Placed({{20, false}, {30, false}, {5, false}}, 40), "0-20 22-22 40-40");
    EXPECT_EQ(Placed({{10, true}, {20, false}, {30, false}}, 40), "0-0 0-20 22-22");
}

TEST(StatusPanes, NoneAndNoRoomAreNoTrouble) {
    EXPECT_EQ(Placed({}, 100), "");
    EXPECT_EQ(Placed({{10, true}, {10, false}}, 0), "0-0 0-0");
    EXPECT_EQ(Placed({{10, true}, {10, false}}, -5), "0-0 0-0");
}

} // namespace
