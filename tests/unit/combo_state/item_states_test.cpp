#include "combos/item_states.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

/// A state of two parts.
struct ComboRow {
    unsigned clr = 0;
    bool light = false;
};

TEST(ItemStates, AreSetForItemsOnly) {
    ItemStates<bool> states;
    EXPECT_TRUE(states.Set(0, 3, true));
    EXPECT_TRUE(states.Set(2, 3, true));
    for (const int index : {-1, 3, 4, INT_MAX, INT_MIN}) {
        EXPECT_FALSE(states.Set(index, 3, true)) << index;
        bool state = false;
        EXPECT_FALSE(states.Get(index, state)) << "a refused setter makes no entry: " << index;
    }
    EXPECT_FALSE(states.Set(0, 0, true)) << "no items";
}

TEST(ItemStates, APositionThatWasNeverSetLeavesTheCallersVariableAlone) {
    ItemStates<bool> states;
    states.Set(1, 3, false);
    bool state = true;
    EXPECT_FALSE(states.Get(0, state));
    EXPECT_FALSE(states.Get(-1, state));
    EXPECT_FALSE(states.Get(INT_MAX, state));
    EXPECT_TRUE(state);
    EXPECT_TRUE(states.Get(1, state));
    EXPECT_FALSE(state) << "an entry that says no is an entry";
}

TEST(ItemStates, AreReadWithoutALookAtTheItems) {
    ItemStates<bool> states;
    states.Set(2, 3, true);
    // The items are gone; the position keeps its state, for whatever comes there.
    bool state = false;
    EXPECT_TRUE(states.Get(2, state));
    EXPECT_TRUE(state);
}

TEST(ItemStates, MayBeSetUncheckedAnywhere) {
    ItemStates<ComboRow> states;
    for (const int index : {-1, 7, INT_MAX}) {
        states.SetUnchecked(index, {0x123456, true});
        ComboRow row;
        EXPECT_TRUE(states.Get(index, row));
        EXPECT_EQ(row.clr, 0x123456u);
        EXPECT_TRUE(row.light);
    }
}

TEST(ItemStates, AChangeOfOnePartKeepsTheOther) {
    ItemStates<ComboRow> states;
    EXPECT_TRUE(states.Modify(0, 1, [](ComboRow& row) { row.light = true; }));
    EXPECT_EQ(states.GetOrEmpty(0).clr, 0u) << "a new row is black";
    EXPECT_TRUE(states.Modify(0, 1, [](ComboRow& row) { row.clr = 0xFF; }));
    EXPECT_TRUE(states.GetOrEmpty(0).light);
    EXPECT_EQ(states.GetOrEmpty(0).clr, 0xFFu);
    EXPECT_FALSE(states.Modify(1, 1, [](ComboRow& row) { row.clr = 1; }));
    ComboRow row;
    EXPECT_FALSE(states.Get(1, row));
}

TEST(ItemStates, WhatIsDrawnWithoutAnEntryIsEmpty) {
    EXPECT_FALSE(ItemStates<bool>().GetOrEmpty(0));
    EXPECT_FALSE(ItemStates<ComboRow>().GetOrEmpty(5).light);
    EXPECT_EQ(ItemStates<ComboRow>().GetOrEmpty(5).clr, 0u);
}

TEST(ItemStates, ACopyIsIndependent) {
    ItemStates<bool> first;
    first.Set(0, 1, true);
    ItemStates<bool> second = first;
    second.Set(0, 1, false);
    EXPECT_TRUE(first.GetOrEmpty(0));
}

} // namespace
