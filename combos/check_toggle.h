#pragma once

#include <vector>

/// What a check combo tells its host of one item (WM_COMBO_CHECK_CHANGED's lParam).
enum class CheckNotice {
    Unchecked = 0,
    Checked = 1,
    CheckedWithOthers = 3,
    UncheckedWithOthers = 4,
};

/// One item's new check, and whether the host is told of it.
struct CheckChange {
    int index = 0;
    bool check = false;
    bool isTold = false;
    CheckNotice notice = CheckNotice::Unchecked;

    friend bool operator==(const CheckChange&, const CheckChange&) = default;
};

/// An ordinary click: the item's check is inverted and told.
CheckChange ToggleOne(int index, bool old);

/// An exclusive click: the clicked item gets the opposite of its old check, every other one the old check itself. So an
/// unchecked item is checked alone, and a checked one is unchecked while all others are checked. In item order; the
/// clicked item is not told.
std::vector<CheckChange> ToggleExclusive(int index, bool old, int itemCount);
