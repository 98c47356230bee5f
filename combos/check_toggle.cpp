#include "combos/check_toggle.h"

CheckChange ToggleOne(int index, bool old) {
    return {index, !old, true, old ? CheckNotice::Unchecked : CheckNotice::Checked};
}

std::vector<CheckChange> ToggleExclusive(int index, bool old, int itemCount) {
    const CheckNotice others = old ? CheckNotice::CheckedWithOthers : CheckNotice::UncheckedWithOthers;
    std::vector<CheckChange> changes;
    for (int i = 0; i < itemCount; ++i) {
        if (i == index) {
            changes.push_back({i, !old, false, CheckNotice::Unchecked});
        } else {
            changes.push_back({i, old, true, others});
        }
    }
    return changes;
}
