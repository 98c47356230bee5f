#include "options_layout.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

OptionsMeasures Usual() {
    return {.rows = 3,
            .margin = 16,
            .gap = 8,
            .labelWidth = 90,
            .listWidth = 200,
            .listHeight = 28,
            .listDepth = 240,
            .noteWidth = 150,
            .rowHeight = 26,
            .takeWidth = 80,
            .cancelWidth = 90};
}

} // namespace

TEST(OptionsLayout, LabelsAreCentredOnTheirLists) {
    const OptionsPlaces places = PlaceOptions(Usual());
    ASSERT_EQ(places.labels.size(), 3u);
    for (std::size_t row = 0; row < places.labels.size(); ++row) {
        EXPECT_EQ(places.labels[row].top, places.lists[row].top);
        EXPECT_EQ(places.labels[row].bottom - places.labels[row].top, 28);
        EXPECT_LT(places.labels[row].right, places.lists[row].left);
        EXPECT_EQ(places.lists[row].left, places.lists[0].left);
        EXPECT_EQ(places.lists[row].bottom - places.lists[row].top, 240);
    }
}

TEST(OptionsLayout, RowsAreEquallyFarApartAndNoneLiesOverAnother) {
    for (const int listHeight : {20, 26, 40}) {
        OptionsMeasures measures = Usual();
        measures.listHeight = listHeight;
        const OptionsPlaces places = PlaceOptions(measures);
        const int step = places.labels[1].top - places.labels[0].top;
        EXPECT_GE(step, listHeight + measures.gap);
        EXPECT_EQ(places.labels[2].top - places.labels[1].top, step);
        EXPECT_GE(places.note.top, places.labels[2].top + listHeight + measures.gap);
        EXPECT_GE(places.take.top, places.note.bottom + measures.gap);
    }
}

TEST(OptionsLayout, TheButtonsStandAtTheEndOfTheLists) {
    const OptionsPlaces places = PlaceOptions(Usual());
    EXPECT_EQ(places.cancel.right, places.lists[0].right);
    EXPECT_EQ(places.cancel.right - places.cancel.left, 90);
    EXPECT_EQ(places.take.right, places.cancel.left - 8);
    EXPECT_EQ(places.take.right - places.take.left, 80);
}

TEST(OptionsLayout, TheMarginIsTheSameOnAllSides) {
    const OptionsPlaces places = PlaceOptions(Usual());
    EXPECT_EQ(places.labels[0].left, 16);
    EXPECT_EQ(places.labels[0].top, 16);
    EXPECT_EQ(places.width - places.cancel.right, 16);
    EXPECT_EQ(places.height - places.cancel.bottom, 16);
}

TEST(OptionsLayout, WhatIsLongestMakesItWide) {
    OptionsMeasures note = Usual();
    note.noteWidth = 700;
    EXPECT_EQ(PlaceOptions(note).width, 16 + 700 + 16);
    EXPECT_EQ(PlaceOptions(note).lists[0].right, 716) << "the lists use it";
    OptionsMeasures buttons = Usual();
    buttons.takeWidth = buttons.cancelWidth = 300;
    EXPECT_EQ(PlaceOptions(buttons).take.left, 16);
}
