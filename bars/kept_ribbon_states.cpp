#include "bars/kept_marks.h"
#include "kept_bar_states.h"
#include "ribbon_bar_ex.h"
#include "ribbon_category_ex.h"
#include "ribbon_check_combo.h"
#include "ribbon_multi_combo.h"

#include <afxRibbonEdit.h>
#include <afxribbonslider.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using Giver = std::function<void(CMFCRibbonBaseElement&)>;

Giver TakeSlider(const CMFCRibbonSlider& slider) {
    return
        [low = slider.GetRangeMin(), high = slider.GetRangeMax(), place = slider.GetPos()](CMFCRibbonBaseElement& to) {
            if (auto* const found = DYNAMIC_DOWNCAST(CMFCRibbonSlider, &to)) {
                found->SetRange(low, high);
                found->SetPos(place);
            }
        };
}

Giver TakeEdit(const CMFCRibbonEdit& edit) {
    return [text = edit.GetEditText()](CMFCRibbonBaseElement& to) {
        if (auto* const found = DYNAMIC_DOWNCAST(CMFCRibbonEdit, &to)) {
            found->SetEditText(text);
        }
    };
}

void TakeMark(const CMFCRibbonCheckComb& combo, int index, kept::Marks<CMFCRibbonCheckComb>& marks) {
    bool isChecked = false;
    if (combo.GetItemCheck(index, isChecked)) {
        marks.emplace_back([index, isChecked](CMFCRibbonCheckComb& to) { to.SetItemCheck(index, isChecked); });
    }
}

void TakeMark(const CMFCRibbonMultiCombo& combo, int index, kept::Marks<CMFCRibbonMultiCombo>& marks) {
    CMFCRibbonMultiCombo::rowInfo info = {};
    if (combo.GetItemInfo(index, info)) {
        marks.emplace_back([index, info](CMFCRibbonMultiCombo& to) {
            CMFCRibbonMultiCombo::rowInfo copy = info;
            to.SetItemInfo(index, copy);
        });
    }
}

void TakeMark(const CMFCRibbonVesMultiCombo& combo, int index, kept::Marks<CMFCRibbonVesMultiCombo>& marks) {
    bool isLit = false;
    if (combo.GetItemLight(index, isLit)) {
        marks.emplace_back([index, isLit](CMFCRibbonVesMultiCombo& to) { to.SetItemLight(index, isLit, false); });
    }
}

/// Null for an element that has no state to keep.
template <class Combo>
Giver TakeCombo(CMFCRibbonBaseElement& element) {
    auto* const combo = dynamic_cast<Combo*>(&element);
    if (!combo || combo->GetCount() == 0) {
        return nullptr;
    }
    kept::Items<Combo> items(*combo);
    for (int index = 0; index < static_cast<int>(combo->GetCount()); ++index) {
        TakeMark(*combo, index, items.marks);
    }
    return [items](CMFCRibbonBaseElement& to) {
        auto* const found = dynamic_cast<Combo*>(&to);
        if (found && found->GetCount() == 0) {
            items.GiveTo(*found);
            found->SelectItem(items.chosen);
        }
    };
}

Giver Take(CMFCRibbonBaseElement& element) {
    if (const auto* const slider = DYNAMIC_DOWNCAST(CMFCRibbonSlider, &element)) {
        return TakeSlider(*slider);
    }
    for (const auto take :
         {TakeCombo<CMFCRibbonCheckComb>, TakeCombo<CMFCRibbonMultiCombo>, TakeCombo<CMFCRibbonVesMultiCombo>}) {
        if (Giver giver = take(element)) {
            return giver;
        }
    }
    if (element.IsKindOf(RUNTIME_CLASS(CMFCRibbonEdit)) && !element.IsKindOf(RUNTIME_CLASS(CMFCRibbonComboBox))) {
        return TakeEdit(*DYNAMIC_DOWNCAST(CMFCRibbonEdit, &element));
    }
    return nullptr;
}

/// Calls it for each element of all categories, with its place among those of its command.
template <class Call>
void ForEachElement(CMFCRibbonBar& ribbon, const Call& call) {
    std::map<UINT, std::size_t> met;
    for (int i = 0; i < ribbon.GetCategoryCount(); ++i) {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        ribbon.GetCategory(i)->GetElements(elements);
        for (int k = 0; k < static_cast<int>(elements.GetSize()); ++k) {
            const UINT id = elements[k]->GetID();
            call(*elements[k], std::pair(id, met[id]++));
        }
    }
}

UINT IdOf(CMFCRibbonCategory* category) {
    const auto* const extended = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, category);
    return extended ? extended->GetID() : 0;
}

/// A category, to be found again in a ribbon that was built anew.
struct KeptCategory {
    UINT id = 0; ///< 0: a plain one, known by its name
    CString name;
    int index = -1;

    static KeptCategory At(CMFCRibbonBar& ribbon, int index) {
        CMFCRibbonCategory* const category = ribbon.GetCategory(index);
        return category ? KeptCategory{IdOf(category), category->GetName(), index} : KeptCategory();
    }
    /// -1 without one.
    int FindIn(CMFCRibbonBar& ribbon) const {
        for (int i = 0; i < ribbon.GetCategoryCount() && index >= 0; ++i) {
            CMFCRibbonCategory* const category = ribbon.GetCategory(i);
            if (id != 0 ? IdOf(category) == id : name == category->GetName()) {
                return i;
            }
        }
        return index < ribbon.GetCategoryCount() ? index : -1;
    }
};

} // namespace

struct CKeptRibbonStates::State {
    struct Path {
        CMFCRibbonBarEx::PathRange range;
        KeptCategory active;
    };

    CMFCRibbonBarEx& ribbon;
    std::map<std::wstring, Path> paths;
    KeptCategory active;
    std::map<std::pair<UINT, std::size_t>, Giver> givers;

    explicit State(CMFCRibbonBarEx& of)
        : ribbon(of), active(KeptCategory::At(of, of.GetCategoryIndex(of.GetActiveCategory()))) {
        ribbon.RememberActiveCategory();
        for (const auto& [name, range] : std::exchange(ribbon.m_mapPathRange, {})) {
            paths.emplace(name, Path{range, KeptCategory::At(ribbon, range.active)});
        }
        ForEachElement(ribbon, [this](CMFCRibbonBaseElement& element, const std::pair<UINT, std::size_t>& place) {
            if (Giver giver = Take(element)) {
                givers.emplace(place, std::move(giver));
            }
        });
    }

    void GiveBack() {
        for (const auto& [name, path] : paths) {
            CMFCRibbonBarEx::PathRange& range = ribbon.m_mapPathRange.try_emplace(name, path.range).first->second;
            range.active = path.active.FindIn(ribbon);
        }
        ForEachElement(ribbon, [this](CMFCRibbonBaseElement& element, const std::pair<UINT, std::size_t>& place) {
            if (const auto found = givers.find(place); found != givers.end()) {
                found->second(element);
            }
        });
        const std::wstring shown = ribbon.Path();
        if (!shown.empty()) {
            ribbon.ShowPath(shown);
        }
        CMFCRibbonCategory* const category = ribbon.GetCategory(active.FindIn(ribbon));
        if (category && category->IsVisible()) {
            ribbon.SetActiveCategory(category);
        }
    }
};

CKeptRibbonStates::CKeptRibbonStates(CMFCRibbonBarEx& ribbon) : m_state(std::make_unique<State>(ribbon)) {}

CKeptRibbonStates::~CKeptRibbonStates() { m_state->GiveBack(); }
