#pragma once

#include <afxwin.h>

#include <functional>
#include <utility>
#include <vector>

/// What combos with marks keep while their bars are built anew.
namespace kept {

template <class Combo>
using Marks = std::vector<std::function<void(Combo&)>>;

/// The items of a combo of a ribbon or of a toolbar.
template <class Combo>
struct Items {
    explicit Items(const Combo& combo) : chosen(combo.GetCurSel()) {
        for (int index = 0; index < static_cast<int>(combo.GetCount()); ++index) {
            items.emplace_back(combo.GetItem(index), combo.GetItemData(index));
        }
    }
    void GiveTo(Combo& combo) const {
        for (const auto& [text, data] : items) {
            combo.AddItem(text, data);
        }
        for (const auto& mark : marks) {
            mark(combo);
        }
    }

    std::vector<std::pair<CString, DWORD_PTR>> items;
    Marks<Combo> marks;
    int chosen;
};

} // namespace kept
