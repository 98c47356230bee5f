#include "panes/dock_rows.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using panes::DockedPane;
using panes::DockRows;

constexpr int kRoom = 100;

DockedPane Pane(panes::PaneKey key, int length, int offset = 0) {
    DockedPane pane;
    pane.key = key;
    pane.offset = offset;
    pane.length = length;
    pane.smallest = 5;
    pane.thickness = 20;
    return pane;
}

/// "1@0+30 2@50+20 | 3@0+10": key, offset and length of the visible panes, rows apart.
std::string Shown(const DockRows& rows, int room = kRoom) {
    std::string text;
    for (const panes::PlacedRow& row : rows.Place(room)) {
        text += text.empty() ? "" : "| ";
        for (const panes::PlacedPane& pane : row.panes) {
            text += std::to_string(pane.key) + "@" + std::to_string(pane.span.offset) + "+" +
                    std::to_string(pane.span.length) + " ";
        }
    }
    return text.empty() ? text : text.substr(0, text.size() - 1);
}

DockRows TwoRows() {
    DockRows rows;
    rows.AddLast(Pane(1, 40), kRoom);
    rows.AddLast(Pane(2, 40), kRoom);
    rows.AddLast(Pane(3, 40), kRoom);
    return rows;
}

TEST(DockRows, PanesShareARowWhileTheyFit) { EXPECT_EQ(Shown(TwoRows()), "1@0+40 2@40+40 | 3@0+40"); }

TEST(DockRows, APaneThatWantsItsRowSharesItWithNobodyAndFillsIt) {
    DockRows rows;
    DockedPane bar = Pane(9, 40);
    bar.wantsWholeRow = true;
    rows.AddLast(Pane(1, 40), kRoom);
    rows.AddLast(bar, kRoom);
    rows.AddLast(Pane(2, 40), kRoom);
    EXPECT_EQ(Shown(rows), "1@0+40 | 9@0+100 | 2@0+40");
    EXPECT_FALSE(rows.AddBefore(Pane(3, 10), 9));
    rows.AddAt(Pane(3, 10), {1, false}, kRoom);
    EXPECT_EQ(Shown(rows), "1@0+40 | 9@0+100 | 3@0+10 | 2@0+40") << "the next row but one is a new one";
}

TEST(DockRows, APaneBeforeAnotherPushesIt) {
    DockRows rows = TwoRows();
    EXPECT_TRUE(rows.AddBefore(Pane(4, 15), 2));
    EXPECT_EQ(Shown(rows), "1@0+40 4@40+15 2@55+40 | 3@0+40");
    EXPECT_FALSE(rows.AddBefore(Pane(5, 15), 77)) << "there is no such pane";
}

TEST(DockRows, AMovedPaneComesBeforeThoseWhoseMiddleItHasPassed) {
    DockRows rows = TwoRows();
    rows.MoveTo(1, {0, false}, 15, kRoom);
    EXPECT_EQ(Shown(rows), "1@15+40 2@55+40 | 3@0+40");
    rows.MoveTo(1, {0, false}, 45, kRoom);
    EXPECT_EQ(Shown(rows), "2@20+40 1@60+40 | 3@0+40") << "past the middle of the other";
    rows.MoveTo(1, {0, false}, 0, kRoom);
    EXPECT_EQ(Shown(rows), "1@0+40 2@40+40 | 3@0+40");
}

TEST(DockRows, AMovedPanePushesItsNeighboursAndTheyComeBack) {
    DockRows rows;
    rows.AddAt(Pane(1, 20, 0), {0, true}, kRoom);
    rows.AddAt(Pane(2, 20, 30), {0, false}, kRoom);
    rows.MoveTo(1, {0, false}, 18, kRoom);
    EXPECT_EQ(Shown(rows), "1@18+20 2@38+20");
    rows.MoveTo(1, {0, false}, 5, kRoom);
    EXPECT_EQ(Shown(rows), "1@5+20 2@30+20");
    rows.MoveTo(1, {0, false}, 18, kRoom);
    rows.KeepPlaces(0, kRoom, 1);
    rows.MoveTo(1, {0, false}, 5, kRoom);
    EXPECT_EQ(Shown(rows), "1@5+20 2@38+20") << "the pushed place was kept";
}

TEST(DockRows, PlacesInARowThatIsTooShortAreNotKept) {
    DockRows rows;
    rows.AddAt(Pane(1, 60, 0), {0, true}, 200);
    rows.AddAt(Pane(2, 60, 130), {0, false}, 200);
    rows.KeepPlaces(0, 100, 1);
    EXPECT_EQ(Shown(rows, 200), "1@0+60 2@130+60");
}

TEST(DockRows, ANewRowComesBeforeBetweenAndAfterTheOthers) {
    DockRows before = TwoRows();
    before.MoveTo(2, {0, true}, 10, kRoom);
    EXPECT_EQ(Shown(before), "2@10+40 | 1@0+40 | 3@0+40");
    DockRows between = TwoRows();
    between.MoveTo(2, {1, true}, 10, kRoom);
    EXPECT_EQ(Shown(between), "1@0+40 | 2@10+40 | 3@0+40");
    DockRows after = TwoRows();
    after.MoveTo(2, {2, true}, 10, kRoom);
    EXPECT_EQ(Shown(after), "1@0+40 | 3@0+40 | 2@10+40");
}

TEST(DockRows, APaneAloneKeepsItsRowNextToItself) {
    DockRows rows = TwoRows();
    const int id = rows.Rows()[1].id;
    rows.MoveTo(3, {1, true}, 7, kRoom);
    rows.MoveTo(3, {2, true}, 8, kRoom);
    rows.MoveTo(3, {1, false}, 9, kRoom);
    EXPECT_EQ(Shown(rows), "1@0+40 2@40+40 | 3@9+40");
    EXPECT_EQ(rows.Rows()[1].id, id);
    EXPECT_EQ(rows.RowWithId(id), 1u);
}

TEST(DockRows, ARowWithoutPanesIsGone) {
    DockRows rows = TwoRows();
    rows.MoveTo(3, {0, false}, 90, 200);
    EXPECT_EQ(Shown(rows, 200), "1@0+40 2@40+40 3@90+40");
    rows.Remove(1);
    rows.Remove(2);
    rows.Remove(3);
    EXPECT_TRUE(rows.Rows().empty());
    EXPECT_EQ(rows.Thickness(), 0);
}

TEST(DockRows, AHiddenPaneKeepsItsPlaceAndTakesNoRoom) {
    DockRows rows = TwoRows();
    rows.Find(3)->isVisible = false;
    EXPECT_EQ(rows.Thickness(), 20);
    EXPECT_EQ(rows.Place(kRoom)[1].thickness, 0);
    rows.Find(1)->isVisible = false;
    EXPECT_EQ(Shown(rows), "2@40+40 |");
    rows.Find(1)->isVisible = true;
    EXPECT_EQ(Shown(rows), "1@0+40 2@40+40 |");
}

TEST(DockRows, ARowIsFoundByItsDistanceFromTheEdge) {
    const DockRows rows = TwoRows();
    struct At {
        int across;
        std::size_t row;
        bool isNew;
    };
    for (const At& at : {At{-3, 0, true}, At{0, 0, true}, At{10, 0, false}, At{17, 1, true}, At{22, 1, true},
                         At{30, 1, false}, At{38, 2, true}, At{400, 2, true}}) {
        const panes::RowPlace place = rows.RowAt(at.across);
        EXPECT_EQ(place.row, at.row) << at.across;
        EXPECT_EQ(place.isNew, at.isNew) << at.across;
    }
}

TEST(DockRows, AnAppendedPaneKeepsItsOrderWhateverItsOffset) {
    DockRows rows;
    rows.Append(Pane(1, 20, 60), false);
    rows.Append(Pane(2, 20, 10), false);
    rows.Append(Pane(3, 20, 10), true);
    EXPECT_EQ(Shown(rows), "1@60+20 2@80+20 | 3@10+20");
    DockedPane alone = Pane(4, 20);
    alone.wantsWholeRow = true;
    rows.Append(alone, false);
    rows.Append(Pane(5, 20), false);
    EXPECT_EQ(Shown(rows), "1@60+20 2@80+20 | 3@10+20 | 4@0+100 | 5@0+20");
}

TEST(DockRows, APlaceInFormerRowsIsFoundInThePresentOnes) {
    const DockRows before = TwoRows(); // "1 2 | 3"
    DockRows now = before;
    now.MoveTo(2, {1, true}, 0, kRoom); // "1 | 2 | 3"
    const auto translated = [&](std::size_t row, bool isNew) {
        const panes::RowPlace place = now.Translated({row, isNew}, before);
        return std::to_string(place.row) + (place.isNew ? " new" : "");
    };
    EXPECT_EQ(translated(0, false), "0");
    EXPECT_EQ(translated(1, false), "2");
    EXPECT_EQ(translated(1, true), "2 new");
    EXPECT_EQ(translated(2, true), "3 new");
    now.Remove(1); // "2 | 3"
    EXPECT_EQ(translated(0, false), "1 new") << "the row is gone: before the next one";
    now.Remove(3);
    EXPECT_EQ(translated(1, false), "1 new");
}

TEST(DockRows, PanesThatNobodyPutSomewhereFlowIntoTheRowsThatTheyNeed) {
    DockRows rows;
    for (panes::PaneKey key = 1; key <= 3; ++key) {
        DockedPane pane = Pane(key, 0);
        pane.flows = true;
        rows.AddLast(pane, kRoom);
    }
    EXPECT_EQ(rows.Rows().size(), 1u);
    for (panes::PaneKey key = 1; key <= 3; ++key) {
        rows.Find(key)->length = 45;
    }
    rows.Flow(kRoom);
    EXPECT_EQ(Shown(rows), "1@0+45 2@45+45 | 3@0+45");
    rows.MoveTo(3, {0, true}, 20, kRoom);
    rows.Flow(kRoom);
    EXPECT_EQ(Shown(rows), "3@10+45 1@55+45 | 2@0+45") << "the first fits beside it";
}

} // namespace
