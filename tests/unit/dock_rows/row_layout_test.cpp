#include "panes/row_layout.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using panes::PlaceRow;
using panes::RowWish;

/// "0+30 50+20": offset and length of each.
std::string Placed(const std::vector<RowWish>& wishes, int room, std::size_t first = panes::kNobody) {
    std::string text;
    for (const panes::Span& span : PlaceRow(wishes, room, first)) {
        text += (text.empty() ? "" : " ") + std::to_string(span.offset) + "+" + std::to_string(span.length);
    }
    return text;
}

struct RowCase {
    const char* rule;
    std::vector<RowWish> wishes;
    int room;
    std::size_t first;
    const char* places;
};

const RowCase kCases[] = {
    {"an empty row", {}, 100, panes::kNobody, ""},
    {"a pane lies where it was put", {{30, 20, 5}}, 100, panes::kNobody, "30+20"},
    {"one beyond the end is pulled back", {{95, 20, 5}}, 100, panes::kNobody, "80+20"},
    {"one before the beginning comes in", {{-10, 20, 5}}, 100, panes::kNobody, "0+20"},
    {"the second gives way to the first", {{0, 40, 5}, {20, 40, 5}}, 100, panes::kNobody, "0+40 40+40"},
    {"the end pushes back through all",
     {{40, 30, 5}, {60, 30, 5}, {90, 30, 5}},
     100,
     panes::kNobody,
     "10+30 40+30 70+30"},
    {"gaps stay", {{10, 10, 5}, {50, 10, 5}}, 100, panes::kNobody, "10+10 50+10"},
    {"without room the last gets shorter", {{0, 60, 10}, {60, 60, 10}}, 100, panes::kNobody, "0+60 60+40"},
    {"then the one before it", {{0, 60, 10}, {60, 60, 10}}, 50, panes::kNobody, "0+40 40+10"},
    {"below the smallest all in proportion", {{0, 60, 20}, {60, 60, 20}}, 20, panes::kNobody, "0+10 10+10"},
    {"one that wants it all gets shorter first", {{0, 32767, 10}, {0, 60, 10}}, 100, panes::kNobody, "0+40 40+60"},
    {"alone it gets it all", {{0, 32767, 10}}, 100, panes::kNobody, "0+100"},
    {"no room at all", {{0, 60, 20}}, 0, panes::kNobody, "0+0"},
    {"less than no room", {{7, 60, 20}}, -5, panes::kNobody, "0+0"},
    {"the moved one pushes to the left", {{10, 30, 5}, {20, 30, 5}}, 100, 1, "0+30 30+30"},
    {"and as far as there is room", {{40, 30, 5}, {50, 30, 5}}, 100, 1, "20+30 50+30"},
    {"and to the right", {{30, 30, 5}, {40, 30, 5}}, 100, 0, "30+30 60+30"},
    {"but nobody out of the row", {{60, 30, 5}, {70, 30, 5}}, 100, 0, "40+30 70+30"},
};

TEST(RowLayout, PanesLieSideBySideNearTheirWishes) {
    for (const RowCase& test : kCases) {
        EXPECT_EQ(Placed(test.wishes, test.room, test.first), test.places) << test.rule;
    }
}

TEST(RowLayout, ALongerRowPutsThePanesBackWhereTheyWere) {
    const std::vector<RowWish> wishes = {{0, 50, 10}, {100, 50, 10}};
    EXPECT_EQ(Placed(wishes, 80), "0+50 50+30");
    EXPECT_EQ(Placed(wishes, 120), "0+50 70+50");
    EXPECT_EQ(Placed(wishes, 200), "0+50 100+50");
}

TEST(RowLayout, HugeWishesDoNotOverflow) {
    const int huge = 2147483647;
    EXPECT_EQ(Placed({{huge, huge, huge}, {huge, huge, huge}, {-huge, huge, 0}}, 90), "0+45 45+45 90+0");
}

} // namespace
