#pragma once

#include <gtest/gtest.h>

#include <iosfwd>

#include "tests/support/message_pump.h"

/// How many objects this process holds from the system, to be compared before and after. Reads the process's own handle
/// tables where the system does not answer the question itself, so objects that no wrapper owns are counted as well.
struct GuiObjects {
    /// Bitmaps, brushes, fonts, pens, palettes, regions and device contexts; an icon's bitmaps are among them.
    long gdi = 0;
    /// Those GDI objects, device contexts and image lists that a wrapper owns.
    long wrapped = 0;
    /// Icons and cursors, shared ones included (the system loads those once and keeps them).
    long icons = 0;
    long menus = 0;
    /// Windows of all kinds, message-only ones excepted.
    long windows = 0;

    friend bool operator==(const GuiObjects&, const GuiObjects&) = default;
    friend std::ostream& operator<<(std::ostream& out, const GuiObjects& objects);
};

/// Deletes the calling thread's temporary wrappers first, which would count otherwise. Costs some 10 ms.
GuiObjects CountGuiObjects();

/// Success when one of three passes ends with as many objects as it began with: the system takes an object for itself
/// now and then, but what a pass leaks it leaks every time.
template <class Pass>
::testing::AssertionResult LeavesNothingBehind(Pass pass) {
    ::testing::AssertionResult failure = ::testing::AssertionFailure();
    for (int round = 0; round < 3; ++round) {
        const GuiObjects before = CountGuiObjects();
        pass();
        const GuiObjects after = CountGuiObjects();
        if (after == before) {
            return ::testing::AssertionSuccess();
        }
        failure << "from " << before << " to " << after << "\n";
    }
    return failure;
}

/// Success when the action, done `count` times, leaves nothing behind. Before that it is done `first` times, which
/// fills what keeps things on purpose, within limits. The action is given the number of the round.
template <class Action>
::testing::AssertionResult RepeatedLeavesNothingBehind(int first, int count, Action action) {
    const auto repeat = [&action](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            action(round);
        }
        PumpPending();
    };
    repeat(first);
    return LeavesNothingBehind([&] { repeat(count); });
}
